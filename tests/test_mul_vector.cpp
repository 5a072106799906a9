// qelmMul of a matrix by vectors: all 44 exports, in every description, against
// a long-double reference and, bit for bit, against the sums each path fixes:
// sizes 3..6 by their kernel's grouping, the general loop from zero, the split
// product in blocks of eight and its aligned form, whose peel follows the
// address of the vector, and object pairs within each share of the team.
#include <gtest/gtest.h>

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

template <class T>
struct Entry {
  std::string name;
  bool t, a1, a2;  // transposed, array of matrices, array of vectors
  Desc desc;
  QelStatus (*call)(const Ops<T>&, int);
};
#define E(T, F, sh, sfx, D, t, a1, a2)                                                                          \
  Entry<T>{"qelmMul_" #sh "_" #F #sfx, t, a1, a2, Desc::D, +[](const Ops<T>& o, int c) {                      \
             return std::apply(qelmMul_##sh##_##F##sfx,                                                         \
                               std::tuple_cat(matrixArgs<Desc::D, a1>(o[0]), vectorArgs<Desc::D, a2>(o[1]), \
                                              resultArgs<Desc::D, a1 || a2>(o[2], c)));                      \
           }}
#define ARRAY(T, F, sh, t, a1, a2) E(T, F, sh, , Std, t, a1, a2), E(T, F, sh, _L, L, t, a1, a2), E(T, F, sh, _P, P, t, a1, a2)
#define ALL(T, F)                                                                                                  \
  E(T, F, mv, , Std, 0, 0, 0), E(T, F, mv, _P, P, 0, 0, 0), E(T, F, tv, , Std, 1, 0, 0), E(T, F, tv, _P, P, 1, 0, 0), \
      ARRAY(T, F, mva, 0, 0, 1), ARRAY(T, F, tva, 1, 0, 1), ARRAY(T, F, mav, 0, 1, 0), ARRAY(T, F, tav, 1, 1, 0),     \
      ARRAY(T, F, mava, 0, 1, 1), ARRAY(T, F, tava, 1, 1, 1)
template <class T>
std::vector<Entry<T>> entries() {
  if constexpr (sizeof(T) == 4) return {ALL(float, 32f)};
  else return {ALL(double, 64f)};
}

const std::set<std::string> kNoSmallPath = {"qelmMul_mva_32f_L", "qelmMul_tva_32f_L", "qelmMul_tva_64f_L",
                                            "qelmMul_tava_64f_L"};
const std::set<std::string> kMvaLayout = {"qelmMul_mva_32f", "qelmMul_mav_32f", "qelmMul_mav_32f_L",
                                          "qelmMul_mava_32f", "qelmMul_mava_32f_L"};

// Two 16-byte accumulators over whole blocks of eight from `peel` on, lane 0
// starting at the plain sum of the peeled terms, then the rest one by one.
// Peel 0 is the plain split product.
template <class T>
T blockSum(const std::vector<T>& p, size_t peel) {
  const size_t K = p.size(), lanes = 16 / sizeof(T);
  if (K < peel + 8) return fromZero(p);
  const size_t q = K - (K - peel) % 8;
  // A and B as rows; indices, not a conditional of two arrays, which GCC's
  // -O0 sanitizer build turns into a temporary.
  T acc[2][4] = {{fromZero(p, 0, peel)}};
  for (size_t k = peel; k < q; ++k) acc[(k - peel) / lanes % 2][(k - peel) % lanes] += p[k];
  T s[4];
  for (size_t l = 0; l < 4; ++l) s[l] = acc[0][l] + acc[1][l];
  T v = lanes == 4 ? (s[0] + s[1]) + (s[2] + s[3]) : s[0] + s[1];
  for (size_t k = q; k < K; ++k) v += p[k];
  return v;
}
template <class T>
T alignedSum(const std::vector<T>& p, uintptr_t x) {
  const size_t r = x % 16;
  return r % sizeof(T) ? fromZero(p) : blockSum(p, r ? (16 - r) / sizeof(T) : 0);
}
bool multiples(std::initializer_list<uintptr_t> v, uintptr_t m) {
  for (uintptr_t u : v)
    if (u % m) return false;
  return true;
}

struct Forms {
  Form a, x, d;
};

template <class T>
struct Case {
  const Entry<T>& e;
  int M, K, count, skew;
  std::unique_ptr<Batch<T>> a, x, d;
  Ops<T> ops;

  Case(const Entry<T>& en, int m, int k, int cnt, Forms f, int sk = 0, bool negativeZeros = false)
      : e(en), M(m), K(k), count(cnt), skew(sk) {
    a = std::make_unique<Batch<T>>(e.t ? K : M, e.t ? M : K, e.a1 ? count : 1, f.a);
    x = std::make_unique<Batch<T>>(1, K, e.a2 ? count : 1, f.x, skew);
    d = std::make_unique<Batch<T>>(1, M, e.a1 || e.a2 ? count : 1, f.d);
    a->fillRandom(3 + M * 31 + K);
    x->fillRandom(5 + K, negativeZeros ? 0.5 : -4.0, 4.0);
    if (negativeZeros) a->fill(T(-0.0));  // -0 products: only a sum from +0 gives +0
    ops = {operandOf(*a, e.desc), operandOf(*x, e.desc), operandOf(*d, e.desc)};
  }
  QelStatus run() const { return e.call(ops, count); }
  bool contiguous() const {
    return e.desc != Desc::P && a->s2 == sizeof(T) && x->s2 == sizeof(T) && d->s2 == sizeof(T);
  }
  bool small() const { return M == K && M >= 3 && M <= 6 && !(contiguous() && kNoSmallPath.count(e.name)); }
  // Pairs of objects take the plain split product, the odd last of a share the aligned one.
  bool pairs() const { return contiguous() && !small() && e.a2 && e.name != "qelmMul_mva_32f"; }
  T op(int n, int i, int k) const { return e.t ? a->get(e.a1 ? n : 0, k, i) : a->get(e.a1 ? n : 0, i, k); }
  T xOf(int n, int k) const { return x->get(e.a2 ? n : 0, 0, k); }

  // Result (n, i) on its path; none where a few additions may group freely.
  std::optional<T> model(int n, int i, const std::vector<Share>& shares) const {
    std::vector<T> p;
    for (int k = 0; k < K; ++k) p.push_back(op(n, i, k) * xOf(n, k));
    const uintptr_t xa = x->address(e.a2 ? n : 0), x0 = x->address(0), d0 = d->address(0);
    if (!contiguous()) return small() ? fromLeft(p) : fromZero(p);
    if (small()) {
      if (sizeof(T) == 8 && M >= 5) return std::nullopt;  // two-lane forms
      if (M == 4 && (e.name == "qelmMul_mva_64f" || e.name == "qelmMul_mva_64f_L")) return (p[0] + p[1]) + (p[2] + p[3]);
      if (!kMvaLayout.count(e.name) || M == 3) return fromLeft(p);
      if (M == 5) return i < 4 ? ((p[0] + p[1]) + p[4]) + (p[2] + p[3]) : ((p[0] + p[2]) + p[4]) + (p[1] + p[3]);
      if (M == 6) return ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
      const bool routine = e.name == "qelmMul_mva_32f" && multiples({d0, x0, uintptr_t(x->s0), uintptr_t(d->s0)}, 16);
      return routine ? (p[0] + p[1]) + (p[2] + p[3]) : (p[0] + p[2]) + (p[1] + p[3]);
    }
    if (e.name == "qelmMul_mva_32f")
      return multiples({a->address(0), uintptr_t(a->s1), x0, uintptr_t(x->s0), d0, uintptr_t(d->s0)}, 64)
                 ? blockSum(p, 0) : alignedSum(p, xa);
    const Share s = shareHolding(shares, n);
    return !pairs() || (s.size % 2 && n == s.first + s.size - 1) ? alignedSum(p, xa) : blockSum(p, 0);
  }
  void expectResults(const std::vector<Share>& shares, const std::string& how = "") const {
    const long double eps = std::numeric_limits<T>::epsilon();
    const std::string at = e.name + " " + std::to_string(M) + "x" + std::to_string(K) + " strides " +
                           std::to_string(a->s1) + "," + std::to_string(x->s0) + "," + std::to_string(d->s2) +
                           " skew " + std::to_string(skew) + " " + how;
    for (int n = 0; n < d->count(); ++n)
      for (int i = 0; i < M; ++i) {
        const T got = d->get(n, 0, i);
        const std::optional<T> want = model(n, i, shares);
        ASSERT_TRUE(!want || std::memcmp(&got, &*want, sizeof(T)) == 0)
            << at << " at " << n << "," << i << ": " << got << " vs " << *want;
        long double ref = 0, mag = 0;
        for (int k = 0; k < K; ++k) {
          const long double t = (long double)op(n, i, k) * xOf(n, k);
          ref += t, mag += std::fabs(t);
        }
        ASSERT_LE(std::fabs(got - ref), (K + 1) * eps * mag) << at;
      }
    ASSERT_TRUE(d->outsideIntact()) << at;
  }
};

template <class T>
class MulVector : public ::testing::Test {};
using Types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(MulVector, Types);

// (M, K): sizes 3..6, rows in blocks of 8 and 4 with every remainder, K below
// and around peel + 8, rectangles square in one extent.
const std::vector<std::pair<int, int>> kSizes = {{1, 1}, {2, 2}, {3, 3},  {4, 4},   {5, 5},  {6, 6},  {7, 7},
                                                 {8, 8}, {9, 9}, {3, 4},  {4, 3},   {6, 5},  {2, 9},  {5, 10},
                                                 {7, 11}, {4, 7}, {11, 12}, {13, 8}, {1, 17}, {9, 23}, {16, 16}};
const std::vector<Forms> kForms = {{Form::Packed, Form::Packed, Form::Packed},          // contiguous
                                   {Form::Pitch16, Form::Pitch16, Form::Pitch16},
                                   {Form::RowGaps, Form::Unaligned, Form::Unaligned},
                                   {Form::ColumnMajor, Form::Packed, Form::Packed},     // general
                                   {Form::Packed, Form::ElementGaps, Form::Packed},
                                   {Form::Packed, Form::Packed, Form::ElementGaps}};

TYPED_TEST(MulVector, EveryExportFormSizeAndVectorAddressRoundsByItsPath) {
  using T = TypeParam;
  // The vector at 16k + each multiple of the element size, and at no multiple of
  // it. The library reads such elements as the processor allows; the sanitizer's
  // alignment check would report exactly those reads, so its build leaves them out.
#ifdef __SANITIZE_ADDRESS__
  const std::vector<int> skews = sizeof(T) == 4 ? std::vector<int>{0, 4, 8, 12} : std::vector<int>{0, 8};
#else
  const std::vector<int> skews = sizeof(T) == 4 ? std::vector<int>{0, 4, 8, 12, 2} : std::vector<int>{0, 8, 4};
#endif
  for (const auto& e : entries<T>())
    for (size_t f = 0; f < kForms.size(); ++f)
      for (int skew : f < 3 ? skews : std::vector<int>{0})
        for (auto [M, K] : kSizes)
          for (bool negativeZeros : {false, true}) {
            Case<T> c(e, M, K, 5, kForms[f], skew, negativeZeros);
            ASSERT_EQ(c.run(), qelStatusOk) << e.name;
            c.expectResults(sharesOf(5, 1, false));
          }
}

TYPED_TEST(MulVector, ChecksInOrderWriteNothing) {
  using T = TypeParam;
  for (const auto& e : entries<T>())
    checksInOrder<T, 3>(e.desc, {e.a1, e.a2, e.a1 || e.a2}, e.a1 || e.a2, {{0, true}, {0, false}, {1, true}},
                        {{1, true}, {0, !e.t}}, [&](QelStatus want, auto spoil) {
                          Case<T> c(e, 3, 4, 2, kForms[0]);
                          spoil(c.ops, c.count);
                          c.d->fillCanary();
                          ASSERT_EQ(c.run(), want) << e.name;
                          ASSERT_TRUE(c.d->untouched()) << e.name;
                        });
}

// Serial below the limit, the driver from it on; mv and tv never fork.
TYPED_TEST(MulVector, WorkLimitsAtTheirEdges) {
  using T = TypeParam;
  for (const auto& e : entries<T>())
    for (bool contiguous : {true, false}) {
      if (e.desc == Desc::P && contiguous) continue;
      const Forms f = kForms[contiguous ? 0 : 3];
      const int limit = !contiguous || e.desc == Desc::P ? 1441 : sizeof(T) == 4 && e.desc == Desc::Std ? 2501 : 3601;
      for (int target : {limit - 1, limit}) {
        // Elements touched, an operand given once counted once: {once, per object}.
        auto [M, K, count] = sizesForWork(target, [&](int m, int k) {
          return !e.a1 ? std::pair{m * k, m + k} : !e.a2 ? std::pair{k, m * k + m} : std::pair{0, m * k + m + k};
        });
        if (!e.a1 && !e.a2) M = K = 40, count = 1;
        ASSERT_GT(count, 0) << e.name << " " << target;
        PinnedBudget pin(2);
        Case<T> c(e, M, K, count, f, sizeof(T));  // vectors off 16 bytes
        ASSERT_EQ(c.run(), qelStatusOk);
        const bool forked = target >= limit && count > 1;
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
      for (auto [f, skew] : {std::pair{0, 0}, std::pair{0, int(sizeof(T))}, std::pair{1, 0}, std::pair{3, 0}}) {
        std::vector<T> first;
        for (int budget : {1, 2, 3, 7}) {
          PinnedBudget pin(budget);
          Case<T> c(e, M, K, count, kForms[f], skew);
          ASSERT_EQ(c.run(), qelStatusOk);
          ASSERT_EQ(pin.calls(), budget == 1 ? 1 : 2) << e.name;
          c.expectResults(sharesOf(count, budget, budget > 1), "budget " + std::to_string(budget));
          if (budget == 1) first = c.d->values();
          if (budget > 1 && !c.pairs()) {
            EXPECT_TRUE(sameBits(first, c.d->values())) << e.name << " budget " << budget;
          }
        }
      }
  }
}

}  // namespace
