// The mix of calls shared by the stress test and the allocation check: rows
// from every family, each a call of one export on operands it owns, with the
// object counts at which it stays serial and at which it forks a team.
#pragma once

#include <qelm/qelm.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "batch.h"
#include "pinned_core.h"

namespace stress {

using qt::Batch;

// Team size of every forked call: three members give uneven shares.
constexpr int kBudget = 3;

// Contents of an input operand. `every` > 0 spoils objects 1, 1 + every, ...
// (zeros or NaN), so that a decomposition fails in some shares of a team and
// not in others.
enum class Kind { Random, Dominant, Spd };
struct Fill {
  Kind kind = Kind::Random;
  int every = 0;
  double spoil = 0.0;
};
const Fill kRandom{}, kDominant{Kind::Dominant}, kSpd{Kind::Spd};
const Fill kSingular{Kind::Dominant, 7, 0.0}, kIndefinite{Kind::Spd, 7, 0.0}, kNaN{Kind::Random, 5, NAN};

struct Result {
  QelStatus status = 0;
  std::vector<unsigned char> bits;
  bool operator==(const Result&) const = default;
};

// One call with the operands it owns: inputs made once from a seed, outputs
// (and caller buffers) back to the canary before every call.
class Instance {
 public:
  // Inputs lie in `form` (row and element gaps, column order, misalignment:
  // the general kernels and their bodies), outputs packed.
  explicit Instance(uint32_t seed, qt::Form form = qt::Form::Packed) : seed_(seed), form_(form) {}

  template <class T>
  Batch<T>& in(int rows, int cols, int count, const Fill& f = kRandom) {
    return fillIn(make<T>(rows, cols, count, form_), f);
  }
  // An input that must be packed whatever the form (geometry operands).
  template <class T>
  Batch<T>& packed(int rows, int cols, int count, const Fill& f = kRandom) {
    return fillIn(make<T>(rows, cols, count), f);
  }
  template <class T>
  Batch<T>& fillIn(Batch<T>& b, const Fill& f) {
    const int rows = b.rows(), cols = b.cols();
    b.fillRandom(seed_++);
    for (int n = 0; n < b.count(); ++n) {
      if (f.kind != Kind::Random)
        for (int i = 0; i < rows; ++i) {
          for (int j = 0; j < i && f.kind == Kind::Spd; ++j) b.set(n, i, j, b.get(n, j, i));
          b.set(n, i, i, b.get(n, i, i) + T(4 * rows + 1));
        }
      if (f.every && n % f.every == 1)
        for (int i = 0; i < rows; ++i)
          for (int j = 0; j < cols; ++j) b.set(n, i, j, T(f.spoil));
    }
    return b;
  }
  template <class T>
  Batch<T>& out(int rows, int cols, int count) {
    Batch<T>& b = make<T>(rows, cols, count);
    resets_.push_back([&b] { b.fillCanary(); });
    reads_.push_back([&b](std::vector<unsigned char>& bits) {
      const std::vector<T> v = b.values();
      const auto* p = reinterpret_cast<const unsigned char*>(v.data());
      bits.insert(bits.end(), p, p + v.size() * sizeof(T));
      bits.push_back(b.outsideIntact());
    });
    return b;
  }
  // A caller buffer of `elements`: not a result, but compared too, since a
  // forked call leaves it alone and a serial one fills it the same way each time.
  template <class T>
  T* buffer(int elements) { return out<T>(1, elements, 1).ptr(); }

  std::function<QelStatus()> call;

  Result run() {
    for (auto& r : resets_) r();
    Result res;
    res.status = call();
    for (auto& r : reads_) r(res.bits);
    return res;
  }

 private:
  template <class T>
  Batch<T>& make(int rows, int cols, int count, qt::Form form = qt::Form::Packed) {
    auto b = std::make_shared<Batch<T>>(rows, cols, std::max(count, 1), form);
    keep_.push_back(b);
    return *b;
  }
  uint32_t seed_;
  qt::Form form_;
  std::vector<std::shared_ptr<void>> keep_;
  std::vector<std::function<void()>> resets_;
  std::vector<std::function<void(std::vector<unsigned char>&)>> reads_;
};

template <class T>
int eigenBytes(int size, QelStatus (*query)(int, int*)) {
  int bytes = 0;
  query(size, &bytes);
  return bytes / int(sizeof(T));
}

// The solvers at one size: a decomposition, and when it succeeds its solve.
template <int S>
std::function<QelStatus()> lu(Instance& I, int n, const Fill& f) {
  auto& a = I.in<Qel32f>(S, S, n, f); auto& b = I.in<Qel32f>(1, S, n);
  auto& d = I.out<Qel32f>(S, S, n); auto& idx = I.out<Qel32s>(1, S * std::max(n, 1), 1); auto& x = I.out<Qel32f>(1, S, n);
  return [&, n] {
    const QelStatus s = qelmLUDecomp_ma_32f(a.ptr(), a.s0, a.s1, a.s2, idx.ptr(), d.ptr(), d.s0, d.s1, d.s2, S, n);
    return s ? s : qelmLUBackSubst_mava_32f(d.ptr(), d.s0, d.s1, d.s2, idx.ptr(), b.ptr(), b.s0, b.s2, x.ptr(), x.s0, x.s2, S, n);
  };
}
template <int S>
std::function<QelStatus()> cholesky(Instance& I, int n, const Fill& f) {
  auto& a = I.in<Qel64f>(S, S, n, f); auto& b = I.in<Qel64f>(1, S, n);
  auto& d = I.out<Qel64f>(S, S, n); auto& x = I.out<Qel64f>(1, S, n);
  return [&, n] {
    const QelStatus s = qelmCholeskyDecomp_ma_64f_P(a.elems(), a.elemShift, a.s0, d.elems(), d.elemShift, d.s0, S, n);
    return s ? s : qelmCholeskyBackSubst_mava_64f_P(d.elems(), d.elemShift, d.s0, b.elems(), b.elemShift, b.s0, x.elems(), x.elemShift, x.s0, S, n);
  };
}
template <int S>
std::function<QelStatus()> invert32(Instance& I, int n, const Fill& f) {
  auto& a = I.in<Qel32f>(S, S, n, f); auto& d = I.out<Qel32f>(S, S, n); Qel32f* buf = I.buffer<Qel32f>(S * S + S);
  return [&, n, buf] { return qelmInvert_ma_32f(a.ptr(), a.s0, a.s1, a.s2, buf, d.ptr(), d.s0, d.s1, d.s2, S, n); };
}

using Make = std::function<std::function<QelStatus()>(Instance&, int n, const Fill&)>;
// A row of the mix: the call is made with `count` 0 (refused), `small` objects
// (serial) and `large` objects (forked when `forks`; 0: no large call). A
// forked call of a family with scratch takes one block of budget x slice bytes
// from the runtime's allocator: `slices` lists the slice of each forked call the
// row makes.
struct Row {
  const char* name;
  Fill fill;
  int small, large;
  bool forks;
  std::vector<int> slices;
  Make make;
};

// clang-format off
inline const std::vector<Row>& mix() {
  static const std::vector<Row> rows = {
    // Element-wise arithmetic.
    {"Add_mam_32f", kRandom, 4, 200, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(4, 4, n, f); auto& b = I.in<Qel32f>(4, 4, 1); auto& d = I.out<Qel32f>(4, 4, n);
      return [&, n] { return qelmAdd_mam_32f(a.ptr(), a.s0, a.s1, a.s2, b.ptr(), b.s1, b.s2, d.ptr(), d.s0, d.s1, d.s2, 4, 4, n); }; }},
    {"Sub_mama_64f_P", kRandom, 3, 150, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(5, 3, n, f); auto& b = I.in<Qel64f>(5, 3, n); auto& d = I.out<Qel64f>(5, 3, n);
      return [&, n] { return qelmSub_mama_64f_P(a.elems(), a.elemShift, a.s0, b.elems(), b.elemShift, b.s0, d.elems(), d.elemShift, d.s0, 3, 5, n); }; }},
    {"Add_vav_64f_L", kRandom, 5, 400, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(1, 6, n, f); auto& b = I.in<Qel64f>(1, 6, 1); auto& d = I.out<Qel64f>(1, 6, n);
      return [&, n] { return qelmAdd_vav_64f_L(a.list(), a.listShift, a.s2, b.ptr(), b.s2, d.list(), d.listShift, d.s2, 6, n); }; }},
    {"Sub_vac_32f", kRandom, 5, 600, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(1, 4, n, f); auto& d = I.out<Qel32f>(1, 4, n);
      return [&, n] { return qelmSub_vac_32f(a.ptr(), a.s0, a.s2, 0.75f, d.ptr(), d.s0, d.s2, 4, n); }; }},
    // Products.
    {"Mul_mama_32f", kRandom, 3, 150, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(4, 5, n, f); auto& b = I.in<Qel32f>(5, 3, n); auto& d = I.out<Qel32f>(4, 3, n);
      return [&, n] { return qelmMul_mama_32f(a.ptr(), a.s0, a.s1, a.s2, 5, 4, b.ptr(), b.s0, b.s1, b.s2, 3, 5, d.ptr(), d.s0, d.s1, d.s2, n); }; }},
    {"Mul_mava_64f_L", kRandom, 3, 200, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(6, 6, n, f); auto& v = I.in<Qel64f>(1, 6, n); auto& d = I.out<Qel64f>(1, 6, n);
      return [&, n] { return qelmMul_mava_64f_L(a.list(), a.listShift, a.s1, a.s2, 6, 6, v.list(), v.listShift, v.s2, 6, d.list(), d.listShift, d.s2, n); }; }},
    {"Mul_mac_32f_P", kRandom, 3, 200, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(3, 3, n, f); auto& d = I.out<Qel32f>(3, 3, n);
      return [&, n] { return qelmMul_mac_32f_P(a.elems(), a.elemShift, a.s0, -1.5f, d.elems(), d.elemShift, d.s0, 3, 3, n); }; }},
    {"Gaxpy_mva_64f", kRandom, 3, 1500, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(4, 4, 1, f); auto& x = I.in<Qel64f>(1, 4, n); auto& y = I.in<Qel64f>(1, 4, n); auto& d = I.out<Qel64f>(1, 4, n);
      return [&, n] { return qelmGaxpy_mva_64f(a.ptr(), a.s1, a.s2, 4, 4, x.ptr(), x.s0, x.s2, 4, y.ptr(), y.s0, y.s2, 4, d.ptr(), d.s0, d.s2, n); }; }},
    // Vector algebra.
    {"DotProduct_vava_32f_L", kRandom, 4, 600, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(1, 5, n, f); auto& b = I.in<Qel32f>(1, 5, n); auto& d = I.out<Qel32f>(1, n, 1);
      return [&, n] { return qelmDotProduct_vava_32f_L(a.list(), a.listShift, a.s2, b.list(), b.listShift, b.s2, d.ptr(), 5, n); }; }},
    {"L2Norm_va_64f_P", kRandom, 4, 800, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(1, 4, n, f); auto& d = I.out<Qel64f>(1, n, 1);
      return [&, n] { return qelmL2Norm_va_64f_P(a.elems(), a.elemShift, a.s0, d.ptr(), 4, n); }; }},
    {"CrossProduct_vava_32f", kRandom, 4, 3000, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(1, 3, n, f); auto& b = I.in<Qel32f>(1, 3, n); auto& d = I.out<Qel32f>(1, 3, n);
      return [&, n] { return qelmCrossProduct_vava_32f(a.ptr(), a.s0, a.s2, b.ptr(), b.s0, b.s2, d.ptr(), d.s0, d.s2, n); }; }},
    {"Saxpy_vava_64f", kRandom, 4, 600, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(1, 4, n, f); auto& b = I.in<Qel64f>(1, 4, n); auto& d = I.out<Qel64f>(1, 4, n);
      return [&, n] { return qelmSaxpy_vava_64f(a.ptr(), a.s0, a.s2, 0.5, b.ptr(), b.s0, b.s2, d.ptr(), d.s0, d.s2, 4, n); }; }},
    {"LComb_vav_32f_P", kRandom, 4, 600, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(1, 4, n, f); auto& b = I.in<Qel32f>(1, 4, 1); auto& d = I.out<Qel32f>(1, 4, n);
      return [&, n] { return qelmLComb_vav_32f_P(a.elems(), a.elemShift, a.s0, 2.0f, b.elems(), b.elemShift, -0.25f, d.elems(), d.elemShift, d.s0, 4, n); }; }},
    // Movement and measures (Copy, Extract, Transpose_ma, LoadIdentity_ma never fork).
    {"Copy_ma_64f_PS", kRandom, 3, 300, false, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(3, 4, n, f); auto& d = I.out<Qel64f>(3, 4, n);
      return [&, n] { return qelmCopy_ma_64f_PS(a.elems(), a.elemShift, a.s0, d.ptr(), d.s0, d.s1, d.s2, 4, 3, n); }; }},
    {"Extract_ma_32f_L", kRandom, 3, 300, false, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(4, 4, n, f); auto& d = I.out<Qel32f>(1, 16 * std::max(n, 1), 1);
      return [&, n] { return qelmExtract_ma_32f_L(a.list(), a.listShift, a.s1, a.s2, d.ptr(), 4, 4, n); }; }},
    {"Transpose_ma_64f", kRandom, 3, 300, false, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(3, 5, n, f); auto& d = I.out<Qel64f>(5, 3, n);
      return [&, n] { return qelmTranspose_ma_64f(a.ptr(), a.s0, a.s1, a.s2, 5, 3, d.ptr(), d.s0, d.s1, d.s2, n); }; }},
    {"LoadIdentity_ma_32f_P", kRandom, 3, 2000, false, {}, [](Instance& I, int n, const Fill&) {
      auto& d = I.out<Qel32f>(4, 4, n);
      return [&, n] { return qelmLoadIdentity_ma_32f_P(d.elems(), d.elemShift, d.s0, 4, 4, n); }; }},
    {"Trace_ma_64f_L", kRandom, 3, 2000, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(5, 5, n, f); auto& d = I.out<Qel64f>(1, n, 1);
      return [&, n] { return qelmTrace_ma_64f_L(a.list(), a.listShift, a.s1, a.s2, 5, d.ptr(), n); }; }},
    {"FrobNorm_ma_32f", kRandom, 3, 300, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(4, 6, n, f); auto& d = I.out<Qel32f>(1, n, 1);
      return [&, n] { return qelmFrobNorm_ma_32f(a.ptr(), a.s0, a.s1, a.s2, 6, 4, d.ptr(), n); }; }},
    // Decompositions and solvers; the spoiled fills fail in some shares.
    {"LUDecomp+BackSubst_32f", kDominant, 3, 800, true, {}, lu<4>},
    {"LUDecomp+BackSubst_32f", kSingular, 3, 800, true, {}, lu<4>},
    {"LUDecomp+BackSubst_32f", kSingular, 3, 400, true, {}, lu<7>},
    {"CholeskyDecomp+BackSubst_64f_P", kSpd, 3, 800, true, {}, cholesky<5>},
    {"CholeskyDecomp+BackSubst_64f_P", kIndefinite, 3, 800, true, {}, cholesky<5>},
    {"CholeskyDecomp+BackSubst_64f_P", kIndefinite, 3, 400, true, {}, cholesky<8>},
    {"QRDecomp+BackSubst_64f", kDominant, 3, 800, true, {5 * 8, 5 * 8}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(5, 4, n, f); auto& b = I.in<Qel64f>(1, 5, n);
      auto& q = I.out<Qel64f>(5, 4, n); auto& x = I.out<Qel64f>(1, 4, n); Qel64f* buf = I.buffer<Qel64f>(5);
      return [&, n, buf] {
        const QelStatus s = qelmQRDecomp_ma_64f(a.ptr(), a.s0, a.s1, a.s2, buf, q.ptr(), q.s0, q.s1, q.s2, 4, 5, n);
        return s ? s : qelmQRBackSubst_mava_64f(q.ptr(), q.s0, q.s1, q.s2, buf, b.ptr(), b.s0, b.s2, x.ptr(), x.s0, x.s2, 4, 5, n); }; }},
    {"Invert_ma_32f", kSingular, 3, 600, true, {(16 + 4) * 4}, invert32<4>},
    {"Invert_ma_32f", kSingular, 3, 300, true, {(49 + 7) * 4}, invert32<7>},
    {"Invert_ma_64f_P", kDominant, 3, 300, true, {(36 + 6) * 8}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(6, 6, n, f); auto& d = I.out<Qel64f>(6, 6, n); Qel64f* buf = I.buffer<Qel64f>(42);
      return [&, n, buf] { return qelmInvert_ma_64f_P(a.elems(), a.elemShift, a.s0, buf, d.elems(), d.elemShift, d.s0, 6, n); }; }},
    {"Det_ma_64f", kRandom, 3, 2500, true, {(36 + 6) * 8}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(6, 6, n, f); auto& d = I.out<Qel64f>(1, n, 1); Qel64f* buf = I.buffer<Qel64f>(42);
      return [&, n, buf] { return qelmDet_ma_64f(a.ptr(), a.s0, a.s1, a.s2, 6, buf, d.ptr(), n); }; }},
    {"Det_ma_32f_L", kRandom, 3, 1700, true, {(81 + 9) * 4}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(9, 9, n, f); auto& d = I.out<Qel32f>(1, n, 1); Qel32f* buf = I.buffer<Qel32f>(90);
      return [&, n, buf] { return qelmDet_ma_32f_L(a.list(), a.listShift, a.s1, a.s2, 9, buf, d.ptr(), n); }; }},
    // Eigenproblems; NaN entries make some objects fail to converge.
    {"EigenValuesVectorsSym_ma_32f", kSpd, 3, 60, true, {16 * 4}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(4, 4, n, f); auto& v = I.out<Qel32f>(4, 4, n); auto& w = I.out<Qel32f>(1, 4 * std::max(n, 1), 1);
      Qel32f* buf = I.buffer<Qel32f>(16);
      return [&, n, buf] { return qelmEigenValuesVectorsSym_ma_32f(a.ptr(), a.s0, a.s1, a.s2, buf, v.ptr(), v.s0, v.s1, v.s2, w.ptr(), 4, n); }; }},
    {"EigenValuesVectorsSym_ma_64f_P", kSpd, 3, 60, true, {25 * 8}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(5, 5, n, f); auto& v = I.out<Qel64f>(5, 5, n);
      auto& w = I.out<Qel64f>(1, 5 * std::max(n, 1), 1); Qel64f* buf = I.buffer<Qel64f>(25);
      return [&, n, buf] { return qelmEigenValuesVectorsSym_ma_64f_P(a.elems(), a.elemShift, a.s0, buf, v.elems(), v.elemShift, v.s0, w.ptr(), 5, n); }; }},
    {"EigenValuesSym_ma_64f_L", kSpd, 3, 60, true, {36 * 8}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(6, 6, n, f); auto& w = I.out<Qel64f>(1, 6 * std::max(n, 1), 1); Qel64f* buf = I.buffer<Qel64f>(36);
      return [&, n, buf] { return qelmEigenValuesSym_ma_64f_L(a.list(), a.listShift, a.s1, a.s2, buf, w.ptr(), 6, n); }; }},
    {"EigenValues_ma_64f", kNaN, 3, 40, true, {5 * (3 * 5 + 5) * 8}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(5, 5, n, f); auto& re = I.out<Qel64f>(1, 5 * std::max(n, 1), 1); auto& im = I.out<Qel64f>(1, 5 * std::max(n, 1), 1);
      Qel64f* buf = I.buffer<Qel64f>(eigenBytes<Qel64f>(5, qelmEigenValuesGetBufSize_64f));
      return [&, n, buf] { return qelmEigenValues_ma_64f(a.ptr(), a.s0, a.s1, a.s2, re.ptr(), im.ptr(), 5, n, buf); }; }},
    {"EigenValuesVectors_ma_32f", kRandom, 3, 40, true, {4 * (3 * 4 + 5) * 4}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(4, 4, n, f); auto& r = I.out<Qel32f>(4, 4, n); auto& l = I.out<Qel32f>(4, 4, n);
      auto& re = I.out<Qel32f>(1, 4 * std::max(n, 1), 1); auto& im = I.out<Qel32f>(1, 4 * std::max(n, 1), 1);
      Qel32f* buf = I.buffer<Qel32f>(eigenBytes<Qel32f>(4, qelmEigenValuesVectorsGetBufSize_32f));
      return [&, n, buf] { return qelmEigenValuesVectors_ma_32f(a.ptr(), a.s0, a.s1, a.s2, r.ptr(), r.s0, r.s1, r.s2, l.ptr(), l.s0, l.s1, l.s2,
                                                                re.ptr(), im.ptr(), 4, n, buf); }; }},
    {"EigenValuesVectorsLeft_ma_64f_P", kNaN, 3, 40, true, {3 * (3 * 3 + 5) * 8}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel64f>(3, 3, n, f); auto& l = I.out<Qel64f>(3, 3, n);
      auto& re = I.out<Qel64f>(1, 3 * std::max(n, 1), 1); auto& im = I.out<Qel64f>(1, 3 * std::max(n, 1), 1);
      Qel64f* buf = I.buffer<Qel64f>(eigenBytes<Qel64f>(3, qelmEigenValuesVectorsGetBufSize_64f));
      return [&, n, buf] { return qelmEigenValuesVectorsLeft_ma_64f_P(a.elems(), a.elemShift, a.s0, l.elems(), l.elemShift, l.s0, re.ptr(), im.ptr(), 3, n, buf); }; }},
    {"EigenValuesVectorsRight_ma_32f_L", kNaN, 3, 40, true, {4 * (3 * 4 + 5) * 4}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.in<Qel32f>(4, 4, n, f); auto& r = I.out<Qel32f>(4, 4, n);
      auto& re = I.out<Qel32f>(1, 4 * std::max(n, 1), 1); auto& im = I.out<Qel32f>(1, 4 * std::max(n, 1), 1);
      Qel32f* buf = I.buffer<Qel32f>(eigenBytes<Qel32f>(4, qelmEigenValuesVectorsGetBufSize_32f));
      return [&, n, buf] { return qelmEigenValuesVectorsRight_ma_32f_L(a.list(), a.listShift, a.s1, a.s2, r.list(), r.listShift, r.s1, r.s2,
                                                                       re.ptr(), im.ptr(), 4, n, buf); }; }},
    // Geometry: the one array transform with a team, an array one without, single objects.
    {"AffineTransform3DH_mva_32f", kRandom, 3, 400, true, {}, [](Instance& I, int n, const Fill& f) {
      auto& m = I.in<Qel32f>(4, 4, 1); auto& v = I.in<Qel32f>(1, 3, n, f); auto& d = I.out<Qel32f>(1, 3, n);
      return [&, n] { return qelmAffineTransform3DH_mva_32f(m.ptr(), m.s1, m.s2, v.ptr(), v.s0, v.s2, d.ptr(), d.s0, d.s2, n); }; }},
    {"AffineTransform_m4v3a_32f", kRandom, 3, 400, false, {}, [](Instance& I, int n, const Fill& f) {
      auto& m = I.packed<Qel32f>(4, 4, 1); auto& v = I.packed<Qel32f>(1, 3, n, f); auto& d = I.out<Qel32f>(1, 3, n);
      return [&, n] { return qelmAffineTransform_m4v3a_32f(m.ptr(), v.ptr(), v.s0, d.ptr(), d.s0, n); }; }},
    {"Invert_m4_32f", kSingular, 1, 0, false, {}, [](Instance& I, int n, const Fill& f) {
      auto& a = I.packed<Qel32f>(4, 4, 7, f); auto& det = I.out<Qel32f>(1, 1, 1); auto& d = I.out<Qel32f>(4, 4, 1);
      const Qel32f* src = &a.at(n ? 1 : 0, 0, 0);  // object 1 is the spoiled one
      return [&, src] { return qelmInvert_m4_32f(src, det.ptr(), d.ptr()); }; }},
    {"Normalize_v3_32f", kRandom, 1, 0, false, {}, [](Instance& I, int, const Fill& f) {
      auto& a = I.packed<Qel32f>(1, 3, 1, f); auto& d = I.out<Qel32f>(1, 3, 1);
      return [&] { return qelmNormalize_v3_32f(a.ptr(), d.ptr()); }; }},
  };
  return rows;
}
// clang-format on

}  // namespace stress
