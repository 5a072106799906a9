// qelmMul over two matrices: all 88 exports, in every description, against a
// long-double reference and, bit for bit, against the rounding each path fixes:
// sizes 3..6 add from the left, the general loop from zero, the contiguous tile
// in split blocks of eight (modelled here from the text, not from the library).
#include <gtest/gtest.h>
#include <qelm/qelm.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "batch.h"
#include "pinned_core.h"

namespace {

using qt::Batch;
using qt::Form;

enum class Desc { Std, L, P };

// The raw arguments of one operand, taken from a batch and then free to spoil.
template <class T>
struct Operand {
  T* ptr;
  T* const* list;
  T* const* elems;
  int shift, s0, s1, s2, w, h;
};
template <class T>
using Ops = std::array<Operand<T>, 3>;  // src1, src2, dst

template <Desc D, bool Arr, class T>
auto srcGroup(const Operand<T>& o) {
  const T* p = o.ptr;
  if constexpr (D == Desc::P && Arr) return std::tuple(o.elems, o.shift, o.s0, o.w, o.h);
  else if constexpr (D == Desc::P) return std::tuple(o.elems, o.shift, o.w, o.h);
  else if constexpr (D == Desc::L && Arr) return std::tuple(o.list, o.shift, o.s1, o.s2, o.w, o.h);
  else if constexpr (Arr) return std::tuple(p, o.s0, o.s1, o.s2, o.w, o.h);
  else return std::tuple(p, o.s1, o.s2, o.w, o.h);
}
template <Desc D, bool Arr, class T>
auto dstGroup(const Operand<T>& o, int count) {
  if constexpr (D == Desc::P && Arr) return std::tuple(o.elems, o.shift, o.s0, count);
  else if constexpr (D == Desc::P) return std::tuple(o.elems, o.shift);
  else if constexpr (D == Desc::L) return std::tuple(o.list, o.shift, o.s1, o.s2, count);
  else if constexpr (Arr) return std::tuple(o.ptr, o.s0, o.s1, o.s2, count);
  else return std::tuple(o.ptr, o.s1, o.s2);
}
template <Desc D, bool A1, bool A2, class F, class T>
QelStatus invoke(F f, const Ops<T>& o, int count) {
  return std::apply(f, std::tuple_cat(srcGroup<D, A1>(o[0]), srcGroup<D, A2>(o[1]),
                                      dstGroup<D, A1 || A2>(o[2], count)));
}

template <class T>
struct Entry {
  std::string name;
  bool t1, t2, a1, a2;
  Desc desc;
  QelStatus (*call)(const Ops<T>&, int);
};

#define E(T, F, sh, sfx, D, t1, t2, a1, a2)                                        \
  Entry<T>{"qelmMul_" #sh "_" #F #sfx, t1, t2, a1, a2, Desc::D,                     \
           +[](const Ops<T>& o, int c) { return invoke<Desc::D, a1, a2>(qelmMul_##sh##_##F##sfx, o, c); }}
#define SINGLE(T, F, sh, t1, t2) E(T, F, sh, , Std, t1, t2, 0, 0), E(T, F, sh, _P, P, t1, t2, 0, 0)
#define ARRAY(T, F, sh, t1, t2, a1, a2) \
  E(T, F, sh, , Std, t1, t2, a1, a2), E(T, F, sh, _L, L, t1, t2, a1, a2), E(T, F, sh, _P, P, t1, t2, a1, a2)
#define ALL(T, F)                                                                                      \
  SINGLE(T, F, mm, 0, 0), SINGLE(T, F, mt, 0, 1), SINGLE(T, F, tm, 1, 0), SINGLE(T, F, tt, 1, 1),     \
      ARRAY(T, F, mam, 0, 0, 1, 0), ARRAY(T, F, mat, 0, 1, 1, 0), ARRAY(T, F, tam, 1, 0, 1, 0),       \
      ARRAY(T, F, tat, 1, 1, 1, 0), ARRAY(T, F, mma, 0, 0, 0, 1), ARRAY(T, F, mta, 0, 1, 0, 1),       \
      ARRAY(T, F, tma, 1, 0, 0, 1), ARRAY(T, F, tta, 1, 1, 0, 1), ARRAY(T, F, mama, 0, 0, 1, 1),      \
      ARRAY(T, F, mata, 0, 1, 1, 1), ARRAY(T, F, tama, 1, 0, 1, 1), ARRAY(T, F, tata, 1, 1, 1, 1)
template <class T>
std::vector<Entry<T>> entries();
template <>
std::vector<Entry<float>> entries() { return {ALL(float, 32f)}; }
template <>
std::vector<Entry<double>> entries() { return {ALL(double, 64f)}; }

// ---- which path each kernel takes, from the family's table of exceptions
const std::set<std::string> kContig345 = {"qelmMul_tm_32f"};
const std::set<std::string> kContigNone = {"qelmMul_mta_32f_L", "qelmMul_tta_32f_L", "qelmMul_tta_64f_L"};
const std::set<std::string> kGeneral345 = {"qelmMul_mama_32f"};
const std::set<std::string> kGeneral3 = {"qelmMul_mam_32f_L", "qelmMul_mat_32f", "qelmMul_mat_32f_L",
                                         "qelmMul_tam_32f",   "qelmMul_tam_32f_L", "qelmMul_tat_32f_L",
                                         "qelmMul_mam_32f_P", "qelmMul_mat_32f_P", "qelmMul_tam_32f_P"};
const std::set<std::string> kOrSelect = {"qelmMul_mm_32f_P", "qelmMul_tt_64f_P"};

enum class Path { Small, Tile, Loop };
Path pathOf(const std::string& name, bool contiguous, int M, int K, int N) {
  int top = 6, bottom = 3;  // the square sizes this kernel has
  if (contiguous && kContig345.count(name)) top = 5;
  if (contiguous && kContigNone.count(name)) top = 0;
  if (!contiguous && kGeneral345.count(name)) top = 5;
  if (!contiguous && kGeneral3.count(name)) top = 3;
  if (M == K && K == N && M >= bottom && M <= top) return Path::Small;
  if (!contiguous || name == "qelmMul_mata_64f") return Path::Loop;
  return Path::Tile;
}

// ---- the sums each path fixes, over products already rounded to T
template <class T>
T fromLeft(const std::vector<T>& p) {
  T s = p[0];
  for (size_t k = 1; k < p.size(); ++k) s += p[k];
  return s;
}
template <class T>
T fromZero(const std::vector<T>& p, size_t first = 0, T s = T(0)) {
  for (size_t k = first; k < p.size(); ++k) s += p[k];
  return s;
}
// Two accumulators of 16 bytes over the first K8 terms, folded, then the rest.
template <class T>
T splitModel(const std::vector<T>& p) {
  const size_t k8 = p.size() / 8 * 8;
  if (k8 == 0) return fromZero(p);
  T a[4] = {}, b[4] = {};
  for (size_t k = 0; k < k8; ++k) {
    // Choose the accumulator by pointer: GCC's bounds instrumentation copies a
    // conditional of two arrays, so the += would land in a temporary.
    T* acc = sizeof(T) == 4 ? (k % 8 < 4 ? &a[0] : &b[0]) : (k % 4 < 2 ? &a[0] : &b[0]);
    acc[sizeof(T) == 4 ? k % 4 : k % 2] += p[k];
  }
  const T v = sizeof(T) == 4 ? ((a[0] + b[0]) + (a[1] + b[1])) + ((a[2] + b[2]) + (a[3] + b[3]))
                             : (a[0] + b[0]) + (a[1] + b[1]);
  return fromZero(p, k8, v);
}

// ---- one call: its batches, its arguments, and what it must give
struct Dims { int M, K, N; };
enum class Data { Random, NegativeZeros };

template <class T>
struct Case {
  const Entry<T>& e;
  Dims d;
  int count;
  std::unique_ptr<Batch<T>> a, b, dst;
  Ops<T> ops;

  Case(const Entry<T>& en, Dims dm, int cnt, Form fs, Form fd, Data data = Data::Random, uint32_t seed = 7)
      : e(en), d(dm), count(cnt) {
    const bool arr = e.a1 || e.a2;
    a = std::make_unique<Batch<T>>(e.t1 ? d.K : d.M, e.t1 ? d.M : d.K, e.a1 ? count : 1, fs);
    b = std::make_unique<Batch<T>>(e.t2 ? d.N : d.K, e.t2 ? d.K : d.N, e.a2 ? count : 1, fs);
    dst = std::make_unique<Batch<T>>(d.M, d.N, arr ? count : 1, fd);
    a->fillRandom(seed);
    b->fillRandom(seed + 1, data == Data::NegativeZeros ? 0.5 : -4.0, 4.0);
    if (data == Data::NegativeZeros)  // every product -0: only a sum started at +0 turns it to +0
      for (int n = 0; n < a->count(); ++n)
        for (int i = 0; i < a->rows(); ++i)
          for (int j = 0; j < a->cols(); ++j) a->at(n, i, j) = T(-0.0);
    Batch<T>* all[3] = {a.get(), b.get(), dst.get()};
    for (int k = 0; k < 3; ++k) {
      Batch<T>& x = *all[k];
      ops[k] = {x.ptr(), x.list(), x.elems(), e.desc == Desc::L ? x.listShift : x.elemShift,
                x.s0,    x.s1,     x.s2,      x.cols(),                         x.rows()};
    }
  }
  QelStatus run() const { return e.call(ops, count); }
  bool contiguous() const {
    const int s = sizeof(T);
    return e.desc != Desc::P && a->s2 == s && b->s2 == s && dst->s2 == s;
  }
  // The products of result (n, i, j), in ascending k, each rounded to T.
  std::vector<T> products(int n, int i, int j) const {
    std::vector<T> p;
    for (int k = 0; k < d.K; ++k) {
      const T x = e.t1 ? a->at(e.a1 ? n : 0, k, i) : a->at(e.a1 ? n : 0, i, k);
      const T y = e.t2 ? b->at(e.a2 ? n : 0, j, k) : b->at(e.a2 ? n : 0, k, j);
      p.push_back(x * y);
    }
    return p;
  }
  // Every result against its path's sum, bit for bit, and against the
  // long-double reference within (K + 1) roundings of the absolute sum.
  void expectResults() const {
    const Path path = pathOf(e.name, contiguous(), d.M, d.K, d.N);
    // These general kernels may group the few additions of a result another way.
    const bool freeOrder = !contiguous() && path == Path::Small &&
                           ((e.name == "qelmMul_mam_32f" && d.M == 4) || (e.name == "qelmMul_mama_32f" && d.M >= 4));
    const long double eps = std::numeric_limits<T>::epsilon();
    for (int n = 0; n < dst->count(); ++n)
      for (int i = 0; i < d.M; ++i)
        for (int j = 0; j < d.N; ++j) {
          const std::vector<T> p = products(n, i, j);
          const T want = path == Path::Small ? fromLeft(p) : path == Path::Loop ? fromZero(p) : splitModel(p);
          const T got = dst->at(n, i, j);
          const bool zeroSign = want == T(0) && std::signbit(got) == std::signbit(want);
          ASSERT_TRUE(freeOrder ? got != T(0) || zeroSign : std::memcmp(&got, &want, sizeof(T)) == 0)
              << e.name << " " << d.M << "x" << d.K << "x" << d.N << " path " << int(path) << " at " << n
              << "," << i << "," << j << ": " << got << " vs " << want;
          long double ref = 0, mag = 0;
          for (int k = 0; k < d.K; ++k) {
            const long double x = e.t1 ? a->at(e.a1 ? n : 0, k, i) : a->at(e.a1 ? n : 0, i, k);
            const long double y = e.t2 ? b->at(e.a2 ? n : 0, j, k) : b->at(e.a2 ? n : 0, k, j);
            ref += x * y;
            mag += std::fabs(x * y);
          }
          ASSERT_LE(std::fabs(got - ref), (d.K + 1) * eps * mag) << e.name;
        }
    ASSERT_TRUE(dst->outsideIntact()) << e.name;
  }
};

template <class T>
class MulMatrix : public ::testing::Test {};
using Types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(MulMatrix, Types);

const std::vector<Dims> kDims = {{1, 1, 1}, {2, 2, 2}, {3, 3, 3}, {4, 4, 4}, {5, 5, 5}, {6, 6, 6}, {7, 7, 7},
                                 {8, 8, 8}, {9, 9, 9}, {3, 4, 3}, {2, 3, 5}, {5, 8, 3}, {4, 9, 1}, {7, 16, 4},
                                 {1, 17, 6}, {9, 17, 7}, {6, 3, 6}, {4, 6, 4}};
// Source and destination forms: contiguous, gapped, column-major and mixed.
const std::vector<std::pair<Form, Form>> kForms = {
    {Form::Packed, Form::Packed},       {Form::Pitch16, Form::Pitch16},    {Form::RowGaps, Form::Unaligned},
    {Form::ColumnMajor, Form::Packed},  {Form::Packed, Form::ElementGaps}, {Form::ElementGaps, Form::ColumnMajor}};

TYPED_TEST(MulMatrix, EveryExportFormAndSizeRoundsByItsPath) {
  for (const auto& e : entries<TypeParam>())
    for (const auto& [fs, fd] : kForms) {
      if (e.desc == Desc::P && fs != Form::Packed && fs != Form::RowGaps) continue;
      for (Dims d : kDims) {
        if (kOrSelect.count(e.name) && !(d.M == 3 && d.K == 3 && d.N == 3) && (d.M | d.K | d.N) == 3) continue;
        for (Data data : {Data::Random, Data::NegativeZeros}) {
          // Packed arrays of nine objects also reach the paths that take objects four at a time.
          Case<TypeParam> c(e, d, fs == Form::Packed && fd == Form::Packed ? 9 : 3, fs, fd, data);
          ASSERT_EQ(c.run(), qelStatusOk) << e.name;
          c.expectResults();
        }
      }
    }
}

// N C Z M S R: sizes before strides, and nothing written when a check fails.
TYPED_TEST(MulMatrix, ChecksInOrderWriteNothing) {
  using T = TypeParam;
  const int e4 = sizeof(T), half = e4 / 2;
  for (const auto& e : entries<T>()) {
    const bool arr = e.a1 || e.a2;
    auto expectStatus = [&](QelStatus want, auto spoil) {
      Case<T> c(e, {3, 4, 5}, 2, Form::Packed, Form::Packed);
      spoil(c.ops, c.count);
      c.dst->fillCanary();
      ASSERT_EQ(c.run(), want) << e.name;
      ASSERT_TRUE(c.dst->untouched()) << e.name;
    };
    // field 0..2: stride 0..2, field 3: roi shift; present only where the form has it
    auto has = [&](int k, int field) {
      const bool isArr = k == 0 ? e.a1 : k == 1 ? e.a2 : arr;
      if (field == 0) return isArr && e.desc != Desc::L;
      if (field == 3) return e.desc == Desc::P || (e.desc == Desc::L && isArr);
      return e.desc != Desc::P;
    };
    auto field = [](Operand<T>& o, int f) -> int& { return f == 0 ? o.s0 : f == 1 ? o.s1 : f == 2 ? o.s2 : o.shift; };
    auto spoilFirstStride = [&](Ops<T>& o) {
      for (int k = 0; k < 3; ++k)
        for (int f = 0; f < 3; ++f)
          if (has(k, f)) return void(field(o[k], f) = half);
    };
    const bool anyStride = arr || e.desc != Desc::P;
    for (int k = 0; k < 3; ++k)
      expectStatus(qelStatusNullPointer, [&](Ops<T>& o, int& count) {
        o[k].ptr = nullptr, o[k].list = nullptr, o[k].elems = nullptr;
        count = 0;
        o[0].w = 0;
      });
    if (arr) {
      for (int bad : {0, -1}) expectStatus(qelStatusBadCount, [&](Ops<T>& o, int& count) { count = bad, o[1].h = 0; });
    }
    for (int k = 0; k < 2; ++k)
      for (int* (*sz)(Operand<T>&) : {+[](Operand<T>& o) { return &o.w; }, +[](Operand<T>& o) { return &o.h; }})
        for (int bad : {0, -3})
          expectStatus(qelStatusBadSize, [&](Ops<T>& o, int&) { *sz(o[k]) = bad, spoilFirstStride(o); });
    expectStatus(qelStatusSizeMismatch, [&](Ops<T>& o, int&) { (e.t2 ? o[1].w : o[1].h) += 1, spoilFirstStride(o); });
    expectStatus(qelStatusSizeMismatch, [&](Ops<T>& o, int&) { (e.t1 ? o[0].h : o[0].w) -= 1; });
    for (int k = 0; k < 3; ++k)
      for (int f = 0; f < 4; ++f) {
        if (!has(k, f)) continue;
        const QelStatus want = f == 3 ? qelStatusBadRoiShift : qelStatusBadStride;
        for (int bad : f == 3 ? std::vector<int>{half, -e4} : std::vector<int>{half, 0, -e4})
          expectStatus(want, [&](Ops<T>& o, int&) { field(o[k], f) = bad; });
        if (f == 3 && anyStride)
          expectStatus(qelStatusBadStride, [&](Ops<T>& o, int&) { field(o[k], f) = half, spoilFirstStride(o); });
      }
  }
}

// qelmMul_mm_32f_P and qelmMul_tt_64f_P pick size 3 by the OR of the four
// extents: 1 by 2 times 2 by 1 runs the 3 path through the true row widths and
// reads and writes entries past its lists. Their twins give the 1 by 1 product.
template <class T, class F>
void orSelectCase(F f, bool trans, bool orSelect) {
  std::vector<T> pool(27);
  std::vector<T*> p1, p2, pd;
  for (int x = 0; x < 9; ++x) {
    p1.push_back(&pool[x]), p2.push_back(&pool[9 + x]), pd.push_back(&pool[18 + x]);
    pool[x] = T(x + 1), pool[9 + x] = T(0.5 * (x + 1)), pool[18 + x] = T(-99);
  }
  // mm: src1 1 by 2, src2 2 by 1; tt: src1 2 by 1, src2 1 by 2. Both give 1 by 1.
  const QelStatus st = trans ? f(p1.data(), 0, 1, 2, p2.data(), 0, 2, 1, pd.data(), 0)
                             : f(p1.data(), 0, 2, 1, p2.data(), 0, 1, 2, pd.data(), 0);
  ASSERT_EQ(st, qelStatusOk);
  const T product = pool[0] * pool[9] + pool[1] * pool[10];
  EXPECT_EQ(pool[18], orSelect ? product + pool[2] * pool[11] : product);
  for (int x = 1; x < 9; ++x) EXPECT_EQ(pool[18 + x] != T(-99), orSelect && x < 5) << x;
}
TEST(MulMatrixOdd, OrOfExtentsSelectsThe3Path) {
  orSelectCase<float>(qelmMul_mm_32f_P, false, true);
  orSelectCase<double>(qelmMul_mm_64f_P, false, false);
  orSelectCase<double>(qelmMul_tt_64f_P, true, true);
  orSelectCase<float>(qelmMul_tt_32f_P, true, false);
}

// Serial below the limit, the driver from the limit on; single shapes never fork.
TYPED_TEST(MulMatrix, WorkLimitsAtTheirEdges) {
  using T = TypeParam;
  for (const auto& e : entries<T>()) {
    for (bool contiguous : {true, false}) {
      if (e.desc == Desc::P && contiguous) continue;
      const Form f = contiguous ? Form::Packed : Form::ColumnMajor;
      if (!e.a1 && !e.a2) {
        PinnedBudget pin(2);
        Case<T> c(e, {24, 24, 24}, 1, f, f);
        ASSERT_EQ(c.run(), qelStatusOk);
        EXPECT_EQ(pin.calls(), 0) << e.name;
        continue;
      }
      const int limit = !contiguous || e.desc == Desc::P           ? 1441
                        : sizeof(T) == 4 && e.desc == Desc::Std ? 2501
                                                                   : 3601;
      for (int target : {limit - 1, limit}) {
        Dims d{0, 0, 0};
        int count = 0;
        for (int M = 1; M <= 7 && !count; ++M)
          for (int K = 1; K <= 7 && !count; ++K)
            for (int N = 1; N <= 7 && !count; ++N) {
              const int e1 = M * K, e2 = K * N, ed = M * N;
              const int base = e.a1 && e.a2 ? 0 : e.a1 ? e2 : e1;
              const int per = (e.a1 ? e1 : 0) + (e.a2 ? e2 : 0) + ed;
              if ((target - base) % per == 0 && (target - base) / per >= 2) count = (target - base) / per, d = {M, K, N};
            }
        ASSERT_GT(count, 0);
        PinnedBudget pin(2);
        Case<T> c(e, d, count, f, f);
        ASSERT_EQ(c.run(), qelStatusOk);
        EXPECT_EQ(pin.calls(), target < limit ? 0 : 2) << e.name << " W " << target;
        c.expectResults();
      }
    }
  }
}

TYPED_TEST(MulMatrix, SameBitsForEveryBudget) {
  using T = TypeParam;
  for (const auto& e : entries<T>()) {
    if (!e.a1 && !e.a2) continue;
    for (Dims d : {Dims{5, 5, 5}, Dims{6, 9, 7}})
      for (Form f : {Form::Packed, Form::ColumnMajor}) {
        std::vector<T> first;
        for (int budget : {1, 2, 3, 7}) {
          PinnedBudget pin(budget);
          Case<T> c(e, d, 97, f, f);
          ASSERT_EQ(c.run(), qelStatusOk);
          EXPECT_EQ(pin.calls(), budget == 1 ? 1 : 2) << e.name;
          if (budget == 1) {
            c.expectResults();
            first = c.dst->values();
          } else {
            EXPECT_TRUE(qt::sameBits(first, c.dst->values())) << e.name << " budget " << budget;
          }
        }
      }
  }
}

}  // namespace
