// qelmMul of a matrix by vectors: all 44 exports, in every description, against
// a long-double reference and, bit for bit, against the sums each path fixes:
// sizes 3..6 by their kernel's grouping, the general loop from zero, the split
// product in blocks of eight and its aligned form, whose peel follows the
// address of the vector, and object pairs per share of the team.
#include <gtest/gtest.h>
#include <qelm/qelm.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "pinned_core.h"
#include "vector_operands.h"

namespace {

using namespace qt;

template <class T>
using Ops = std::array<Operand<T>, 3>;  // matrix, vector, dst

template <Desc D, bool A1, bool A2, class F, class T>
QelStatus invoke(F f, const Ops<T>& o, int count) {
  return std::apply(f, std::tuple_cat(matrixArgs<D, A1>(o[0]), vectorArgs<D, A2>(o[1]),
                                      resultArgs<D, A1 || A2>(o[2], count)));
}

template <class T>
struct Entry {
  std::string name;
  bool t, a1, a2;  // transposed, matrix array, vector array
  Desc desc;
  QelStatus (*call)(const Ops<T>&, int);
};

#define E(T, F, sh, sfx, D, t, a1, a2)                \
  Entry<T>{"qelmMul_" #sh "_" #F #sfx, t, a1, a2, Desc::D, \
           +[](const Ops<T>& o, int c) { return invoke<Desc::D, a1, a2>(qelmMul_##sh##_##F##sfx, o, c); }}
#define SINGLE(T, F, sh, t) E(T, F, sh, , Std, t, 0, 0), E(T, F, sh, _P, P, t, 0, 0)
#define ARRAY(T, F, sh, t, a1, a2) E(T, F, sh, , Std, t, a1, a2), E(T, F, sh, _L, L, t, a1, a2), E(T, F, sh, _P, P, t, a1, a2)
#define ALL(T, F)                                                                                       \
  SINGLE(T, F, mv, 0), SINGLE(T, F, tv, 1), ARRAY(T, F, mva, 0, 0, 1), ARRAY(T, F, tva, 1, 0, 1),      \
      ARRAY(T, F, mav, 0, 1, 0), ARRAY(T, F, tav, 1, 1, 0), ARRAY(T, F, mava, 0, 1, 1), ARRAY(T, F, tava, 1, 1, 1)
template <class T>
std::vector<Entry<T>> entries();
template <>
std::vector<Entry<float>> entries() { return {ALL(float, 32f)}; }
template <>
std::vector<Entry<double>> entries() { return {ALL(double, 64f)}; }

// ---- the family's exceptions to its rules
const std::set<std::string> kNoSmallPath = {"qelmMul_mva_32f_L", "qelmMul_tva_32f_L", "qelmMul_tva_64f_L",
                                            "qelmMul_tava_64f_L"};
const std::set<std::string> kMvaLayout = {"qelmMul_mav_32f", "qelmMul_mav_32f_L", "qelmMul_mava_32f",
                                          "qelmMul_mava_32f_L"};

// Two accumulators of 16 bytes over whole blocks of eight from `peel` on, lane 0
// starting at the plain sum of the peeled terms, then the rest one by one.
// With peel 0 this is the plain split product.
template <class T>
T blockSum(const std::vector<T>& p, size_t peel) {
  const size_t K = p.size(), lanes = 16 / sizeof(T);
  if (K < peel + 8) return fromZero(p);
  T a[4] = {fromZero(p, 0, peel), T(0), T(0), T(0)}, b[4] = {};
  const size_t q = K - (K - peel) % 8;
  for (size_t k = peel; k < q; ++k) {
    T* acc = (k - peel) % (2 * lanes) < lanes ? &a[0] : &b[0];
    acc[(k - peel) % lanes] += p[k];
  }
  T s[4];
  for (size_t l = 0; l < 4; ++l) s[l] = a[l] + b[l];
  T v = lanes == 4 ? (s[0] + s[1]) + (s[2] + s[3]) : s[0] + s[1];
  for (size_t k = q; k < K; ++k) v += p[k];
  return v;
}
template <class T>
T alignedSum(const std::vector<T>& p, uintptr_t x) {
  const size_t r = x % 16;
  if (r % sizeof(T)) return fromZero(p);
  return blockSum(p, r ? (16 - r) / sizeof(T) : 0);
}

struct Forms {
  Form a, x, d;
};
enum class Data { Random, NegativeZeros };

template <class T>
struct Case {
  const Entry<T>& e;
  int M, K, count;
  Forms f;
  int skew;
  std::unique_ptr<Batch<T>> a, x, d;
  Ops<T> ops;

  Case(const Entry<T>& en, int m, int k, int cnt, Forms fs, int sk = 0, Data data = Data::Random)
      : e(en), M(m), K(k), count(cnt), f(fs), skew(sk) {
    a = std::make_unique<Batch<T>>(e.t ? K : M, e.t ? M : K, e.a1 ? count : 1, f.a);
    x = std::make_unique<Batch<T>>(1, K, e.a2 ? count : 1, f.x, skew);
    d = std::make_unique<Batch<T>>(1, M, e.a1 || e.a2 ? count : 1, f.d);
    a->fillRandom(3 + M * 31 + K);
    x->fillRandom(5 + K, data == Data::NegativeZeros ? 0.5 : -4.0, 4.0);
    if (data == Data::NegativeZeros)  // every product -0: only sums started at +0 turn it to +0
      for (int n = 0; n < a->count(); ++n)
        for (int i = 0; i < a->rows(); ++i)
          for (int j = 0; j < a->cols(); ++j) a->set(n, i, j, T(-0.0));
    ops = {operandOf(*a, e.desc), operandOf(*x, e.desc), operandOf(*d, e.desc)};
  }
  QelStatus run() const { return e.call(ops, count); }
  bool contiguous() const {
    const int s = sizeof(T);
    return e.desc != Desc::P && a->s2 == s && x->s2 == s && d->s2 == s;
  }
  bool stage2() const { return contiguous() && !(M == K && M >= 3 && M <= 6 && !kNoSmallPath.count(e.name)); }
  // Pairs of objects take the plain split product, the odd last of a share the aligned one.
  bool pairsKernel() const { return e.a2 && e.name != "qelmMul_mva_32f"; }
  T op(int n, int i, int k) const { return e.t ? a->get(e.a1 ? n : 0, k, i) : a->get(e.a1 ? n : 0, i, k); }
  std::vector<T> products(int n, int i) const {
    std::vector<T> p;
    for (int k = 0; k < K; ++k) p.push_back(op(n, i, k) * x->get(e.a2 ? n : 0, 0, k));
    return p;
  }
  static bool all(std::initializer_list<uintptr_t> v, uintptr_t m) {
    for (uintptr_t u : v)
      if (u % m) return false;
    return true;
  }
  // The sum of result (n, i) on its path; none where a few additions may group freely.
  std::optional<T> model(int n, int i, const std::vector<Share>& shares) const {
    const std::vector<T> p = products(n, i);
    const uintptr_t xa = x->address(e.a2 ? n : 0), x0 = uintptr_t(x->ptr()), d0 = uintptr_t(d->ptr());
    if (!stage2()) {
      if (!contiguous()) return M == K && M >= 3 && M <= 6 ? fromLeft(p) : fromZero(p);
      const bool own = e.name == "qelmMul_mva_32f";
      if (sizeof(T) == 8 && M >= 5) return std::nullopt;  // two-lane forms of 5 and 6
      if (M == 4 && (e.name == "qelmMul_mva_64f" || e.name == "qelmMul_mva_64f_L"))
        return (p[0] + p[1]) + (p[2] + p[3]);
      if (!own && !kMvaLayout.count(e.name)) return fromLeft(p);
      if (M == 4)
        return own && all({d0, x0, uintptr_t(x->s0), uintptr_t(d->s0)}, 16) ? (p[0] + p[1]) + (p[2] + p[3])
                                                                              : (p[0] + p[2]) + (p[1] + p[3]);
      if (M == 5) return i < 4 ? ((p[0] + p[1]) + p[4]) + (p[2] + p[3]) : ((p[0] + p[2]) + p[4]) + (p[1] + p[3]);
      if (M == 6) return ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
      return fromLeft(p);
    }
    if (e.name == "qelmMul_mva_32f")
      return all({uintptr_t(a->ptr()), uintptr_t(a->s1), x0, uintptr_t(x->s0), d0, uintptr_t(d->s0)}, 64)
                 ? blockSum(p, 0)
                 : alignedSum(p, xa);
    if (!pairsKernel()) return alignedSum(p, xa);
    const Share s = shareHolding(shares, n);
    return s.size % 2 && n == s.first + s.size - 1 ? alignedSum(p, xa) : blockSum(p, 0);
  }
  void expectResults(const std::vector<Share>& shares, const std::string& how = "") const {
    const long double eps = std::numeric_limits<T>::epsilon();
    for (int n = 0; n < d->count(); ++n)
      for (int i = 0; i < M; ++i) {
        const T got = d->get(n, 0, i);
        const std::optional<T> want = model(n, i, shares);
        ASSERT_TRUE(!want || std::memcmp(&got, &*want, sizeof(T)) == 0)
            << e.name << " " << M << "x" << K << " " << where() << " " << how << " at " << n << "," << i << ": " << got << " vs "
            << *want;
        long double ref = 0, mag = 0;
        for (int k = 0; k < K; ++k) {
          const long double t = (long double)op(n, i, k) * x->get(e.a2 ? n : 0, 0, k);
          ref += t, mag += std::fabs(t);
        }
        ASSERT_LE(std::fabs(got - ref), (K + 1) * eps * mag) << e.name << " " << where() << " " << how;
      }
    ASSERT_TRUE(d->outsideIntact()) << e.name << " " << where() << " " << how;
  }
  std::string where() const {
    return std::string(formName(f.a)) + "/" + formName(f.x) + "/" + formName(f.d) + " skew " + std::to_string(skew);
  }
};

template <class T>
class MulVector : public ::testing::Test {};
using Types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(MulVector, Types);

// (M, K): the sizes 3..6, rows in blocks of 8 and 4 with every remainder, K
// below and around peel + 8, rectangles that look square in one extent.
const std::vector<std::pair<int, int>> kSizes = {{1, 1},  {2, 2},  {3, 3},  {4, 4},  {5, 5},  {6, 6},  {7, 7},
                                                 {8, 8},  {9, 9},  {3, 4},  {4, 3},  {6, 5},  {2, 9},  {5, 10},
                                                 {7, 11}, {11, 12}, {13, 8}, {1, 17}, {9, 23}, {16, 16}, {4, 7}};
const std::vector<Forms> kContiguous = {{Form::Packed, Form::Packed, Form::Packed},
                                        {Form::Pitch16, Form::Pitch16, Form::Pitch16},
                                        {Form::RowGaps, Form::Unaligned, Form::Unaligned}};
const std::vector<Forms> kGeneral = {{Form::ColumnMajor, Form::Packed, Form::Packed},
                                     {Form::Packed, Form::ElementGaps, Form::Packed},
                                     {Form::Packed, Form::Packed, Form::ElementGaps}};

TYPED_TEST(MulVector, EveryExportFormSizeAndVectorAddressRoundsByItsPath) {
  using T = TypeParam;
  // Vector at 16k + every multiple of the element size, and at no multiple of it.
  const std::vector<int> skews = sizeof(T) == 4 ? std::vector<int>{0, 4, 8, 12, 2} : std::vector<int>{0, 8, 4};
  for (const auto& e : entries<T>())
    for (bool general : {false, true})
      for (const Forms& f : general ? kGeneral : kContiguous)
        for (int skew : general ? std::vector<int>{0} : skews)
          for (auto [M, K] : kSizes)
            for (Data data : {Data::Random, Data::NegativeZeros}) {
              Case<T> c(e, M, K, 5, f, skew, data);
              ASSERT_EQ(c.run(), qelStatusOk) << e.name;
              c.expectResults(sharesOf(5, 1, false));
            }
}

// N C Z M S R, and nothing written when a check fails.
TYPED_TEST(MulVector, ChecksInOrderWriteNothing) {
  using T = TypeParam;
  const int el = sizeof(T), half = el / 2;
  for (const auto& e : entries<T>()) {
    const bool arr = e.a1 || e.a2;
    const bool array[3] = {e.a1, e.a2, arr};
    const bool anyStride = arr || e.desc != Desc::P;
    auto expectStatus = [&](QelStatus want, auto spoil) {
      Case<T> c(e, 3, 4, 2, {Form::Packed, Form::Packed, Form::Packed});
      int count = 2;
      spoil(c.ops, count);
      c.count = count;
      c.d->fillCanary();
      ASSERT_EQ(c.run(), want) << e.name;
      ASSERT_TRUE(c.d->untouched()) << e.name;
    };
    auto badStride = [&](Ops<T>& o) {  // the first stride the form passes, if any
      for (int k = 0; k < 3; ++k)
        for (int f = 0; f < 3; ++f)
          if (passes(e.desc, array[k], k == 0, f)) return void(fieldOf(o[k], f) = half);
    };
    for (int k = 0; k < 3; ++k)
      expectStatus(qelStatusNullPointer, [&](Ops<T>& o, int& count) {
        o[k].ptr = nullptr, o[k].list = nullptr, o[k].elems = nullptr;
        count = 0, o[1].w = 0;
      });
    if (arr)
      for (int bad : {0, -1}) expectStatus(qelStatusBadCount, [&](Ops<T>& o, int& count) { count = bad, o[0].h = 0; });
    for (int* (*size)(Ops<T>&) : {+[](Ops<T>& o) { return &o[0].w; }, +[](Ops<T>& o) { return &o[0].h; },
                                  +[](Ops<T>& o) { return &o[1].w; }})
      for (int bad : {0, -3}) expectStatus(qelStatusBadSize, [&](Ops<T>& o, int&) { *size(o) = bad, badStride(o); });
    expectStatus(qelStatusSizeMismatch, [&](Ops<T>& o, int&) { o[1].w += 1, badStride(o); });
    expectStatus(qelStatusSizeMismatch, [&](Ops<T>& o, int&) { (e.t ? o[0].h : o[0].w) -= 1, badStride(o); });
    for (int k = 0; k < 3; ++k)
      for (int f = 0; f < 4; ++f) {
        if (!passes(e.desc, array[k], k == 0, f)) continue;
        const QelStatus want = f == 3 ? qelStatusBadRoiShift : qelStatusBadStride;
        for (int bad : f == 3 ? std::vector<int>{half, -el} : std::vector<int>{half, 0, -el})
          expectStatus(want, [&](Ops<T>& o, int&) { fieldOf(o[k], f) = bad; });
        if (f == 3 && anyStride)  // strides before shifts
          expectStatus(qelStatusBadStride, [&](Ops<T>& o, int&) { fieldOf(o[k], f) = half, badStride(o); });
      }
  }
}

// The work counts every element touched, an operand given once counted once.
int workOf(bool a1, bool a2, int M, int K, int c) {
  const int e1 = M * K;
  if (!a1) return e1 + (M + K) * c;
  if (!a2) return (e1 + M) * c + K;
  return (e1 + M + K) * c;
}

// Serial below the limit, the driver from the limit on; mv and tv never fork.
TYPED_TEST(MulVector, WorkLimitsAtTheirEdges) {
  using T = TypeParam;
  for (const auto& e : entries<T>())
    for (bool contiguous : {true, false}) {
      if (e.desc == Desc::P && contiguous) continue;
      const Forms f = contiguous ? kContiguous[0] : kGeneral[0];
      if (!e.a1 && !e.a2) {
        PinnedBudget pin(2);
        Case<T> c(e, 40, 40, 1, f);
        ASSERT_EQ(c.run(), qelStatusOk);
        EXPECT_EQ(pin.calls(), 0) << e.name;
        continue;
      }
      const int limit = !contiguous || e.desc == Desc::P         ? 1441
                        : sizeof(T) == 4 && e.desc == Desc::Std ? 2501
                                                                 : 3601;
      for (int target : {limit - 1, limit}) {
        int M = 0, K = 0, count = 0;
        for (int m = 1; m <= 9 && !count; ++m)
          for (int k = 1; k <= 9 && !count; ++k)
            for (int c = 2; c <= target && !count; ++c)
              if (workOf(e.a1, e.a2, m, k, c) == target) M = m, K = k, count = c;
        ASSERT_GT(count, 0) << e.name << " " << target;
        PinnedBudget pin(2);
        Case<T> c(e, M, K, count, f, 4);
        ASSERT_EQ(c.run(), qelStatusOk);
        const bool forked = target >= limit;
        EXPECT_EQ(pin.calls(), forked ? 2 : 0) << e.name << " W " << target;
        c.expectResults(sharesOf(count, 2, forked), "W " + std::to_string(target));
      }
    }
}

// Each budget against the model of its shares. Only the pairs stage may differ
// by budget: the odd last object of a share takes the aligned split product.
TYPED_TEST(MulVector, BudgetsSplitCountAsTheDriverSays) {
  using T = TypeParam;
  const int count = 401;
  for (const auto& e : entries<T>()) {
    if (!e.a1 && !e.a2) continue;
    for (auto [M, K] : {std::pair{5, 5}, std::pair{9, 17}})
      for (auto [f, skew] : {std::pair{kContiguous[0], 0}, std::pair{kContiguous[0], 4},
                             std::pair{kContiguous[1], 0}, std::pair{kGeneral[0], 0}}) {
          std::vector<T> first;
          for (int budget : {1, 2, 3, 7}) {
            PinnedBudget pin(budget);
            Case<T> c(e, M, K, count, f, skew);
            ASSERT_EQ(c.run(), qelStatusOk);
            ASSERT_EQ(pin.calls(), budget == 1 ? 1 : 2) << e.name;
            c.expectResults(sharesOf(count, budget, budget > 1), "budget " + std::to_string(budget));
            if (budget == 1) {
              first = c.d->values();
            } else if (!(c.stage2() && c.pairsKernel())) {
              EXPECT_TRUE(sameBits(first, c.d->values())) << e.name << " budget " << budget;
            }
          }
        }
  }
}

}  // namespace
