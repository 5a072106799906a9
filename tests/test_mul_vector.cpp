// qelmMul of a matrix by vectors: all 44 exports, in every description, against
// a long double and, bit for bit, against the sums each path fixes: sizes 3..6
// by their kernel's grouping, the general loop from zero, the split product in
// blocks of eight and its aligned form, peeled on the vector's address, and
// object pairs within each share of the team.
#include <gtest/gtest.h>

#include <set>

#include "products.h"

namespace {
using namespace qt;

#define E(F, sh, sfx, lay, t, a1, a2)                                                         \
  VecExport{#sh "_" #F #sfx, [](Feed& f) { return callWith(&qelmMul_##sh##_##F##sfx, f); }, lay, t, false, \
            {a1, a2, false, a1 || a2}}
#define ARR(F, sh, t, a1, a2) E(F, sh, , S, t, a1, a2), E(F, sh, _L, L, t, a1, a2), E(F, sh, _P, P, t, a1, a2)
#define ALL(F)                                                                                                   \
  {E(F, mv, , S, 0, 0, 0), E(F, mv, _P, P, 0, 0, 0), E(F, tv, , S, 1, 0, 0), E(F, tv, _P, P, 1, 0, 0),            \
   ARR(F, mva, 0, 0, 1), ARR(F, tva, 1, 0, 1), ARR(F, mav, 0, 1, 0), ARR(F, tav, 1, 1, 0), ARR(F, mava, 0, 1, 1), \
   ARR(F, tava, 1, 1, 1)}
const std::vector<VecExport> k32 = ALL(32f), k64 = ALL(64f);
// Contiguous kernels without square forms; those with the layout of mva_32f.
const std::set<std::string> kNoSmall = {"mva_32f_L", "tva_32f_L", "tva_64f_L", "tava_64f_L"},
                            kLayout = {"mva_32f", "mav_32f", "mav_32f_L", "mava_32f", "mava_32f_L"};

template <class T>
bool small(const VecCall<T>& c) {
  return c.M == c.K && c.M >= 3 && c.M <= 6 && !(c.contiguous() && kNoSmall.count(c.e.name));
}
template <class T>
bool pairs(const VecCall<T>& c) { return c.contiguous() && !small(c) && c.e.arr[1] && c.e.name != "mva_32f"; }

// Result (n, i) on its path in a team of `threads`; none where a few additions
// may group freely.
template <class T>
std::optional<T> model(const VecCall<T>& c, int n, int i, int threads) {
  const std::vector<T> p = c.products(n, i);
  const std::string& name = c.e.name;
  if (!c.contiguous()) return small(c) ? fromLeft(p) : fromZero(p);
  if (!small(c)) {  // mva_32f aligned throughout: on 64 bytes its plain product is the same
    const Share s = shareHolding(c.count, threads, n);  // pairs, but for the odd last object of a share
    return !pairs(c) || (s.size % 2 && n == s.first + s.size - 1) ? split(p, c.x.address(c.e.arr[1] * n)) : split(p);
  }
  if (sizeof(T) == 8 && c.M >= 5) return std::nullopt;  // two-lane forms
  if (c.M == 4 && (name == "mva_64f" || name == "mva_64f_L")) return (p[0] + p[1]) + (p[2] + p[3]);
  if (!kLayout.count(name) || c.M == 3) return fromLeft(p);
  if (c.M == 5) return i < 4 ? ((p[0] + p[1]) + p[4]) + (p[2] + p[3]) : ((p[0] + p[2]) + p[4]) + (p[1] + p[3]);
  if (c.M == 6) return ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
  const bool routine = name == "mva_32f" && (c.d.address(0) | c.x.address(0) | c.x.s0 | c.d.s0) % 16 == 0;
  return routine ? (p[0] + p[1]) + (p[2] + p[3]) : (p[0] + p[2]) + (p[1] + p[3]);
}

TEST(MulVector, EveryExportFormSizeAndVectorAddressRoundsByItsPath) {
  // (M, K): sizes 3..6, rows in blocks of 8 and 4 with remainders, K around
  // peel + 8, a matrix all on 64 bytes.
  const std::vector<std::pair<int, int>> sizes = {{1, 1}, {2, 2}, {3, 3}, {4, 4},  {5, 5},  {6, 6},  {7, 7},  {9, 9}, {3, 4},
                                                  {6, 5}, {2, 8}, {5, 10}, {7, 11}, {13, 8}, {1, 17}, {9, 23}, {16, 16}};
  forEach(k32, k64, [&]<class T>(const VecExport& e) {
    // The vector at 16k + each multiple of the element size, and at no multiple of
    // it. The library reads such elements as the processor allows; the sanitizer's
    // alignment check would report exactly those reads, so its build leaves them out.
#ifdef __SANITIZE_ADDRESS__
    const std::vector<int> skews = sizeof(T) == 4 ? std::vector<int>{0, 4, 8, 12} : std::vector<int>{0, 8};
#else
    const std::vector<int> skews = sizeof(T) == 4 ? std::vector<int>{0, 4, 8, 12, 2} : std::vector<int>{0, 8, 4};
#endif
    for (size_t f = 0; f < kVecForms.size(); ++f)
      for (int skew : f < 3 ? skews : std::vector<int>{0})
        for (auto [M, K] : sizes)
          for (bool negativeZeros : {false, true}) {
            if (f == 5 || (negativeZeros && skew)) continue;  // no z here
            VecCall<T> c(e, M, K, 5, kVecForms[f], skew);
            if (negativeZeros) c.a.fill(T(-0.0)), c.x.fillRandom(7, 0.5, 4.0);  // only a sum from +0 gives +0
            c.check(model<T>, 1, "form " + std::to_string(f) + " skew " + std::to_string(skew));
          }
  });
}

TEST(MulVector, ChecksInOrderWriteNothing) {
  forEach(k32, k64, [&]<class T>(const VecExport& e) {
    checkOrder(e.name, sizeof(T), e.t ? std::vector{1, 2} : std::vector{0, 2},
               [&](auto bad) { return VecCall<T>(e, 3, 4, 2, kVecForms[0]).run(bad); });
  });
}

TEST(MulVector, WorkLimitsAtTheirEdges) {
  forEach(k32, k64, [&]<class T>(const VecExport& e) {
    for (int f : {0, 3}) {
      const int last = f || e.lay == P ? 1440 : sizeof(T) == 4 && e.lay == S ? 2500 : 3600;
      if (e.lay != P || f)  // mv, tv: no work figure
        limitEdges(e.name, e.arr[3] ? last : -1, 0, [&](int m, int k) {
          return !e.arr[0] ? std::pair{m * k, m + k} : !e.arr[1] ? std::pair{k, m * k + m} : std::pair{0, m * k + m + k};
        }, [&](int m, int k, int count, int threads) {
          VecCall<T>(e, m, k, count, kVecForms[f], sizeof(T)).check(model<T>, threads, "limit");  // x off 16 bytes
        });
    }
  });
}

// Only the pairs may differ by budget: the odd last object of a share takes the
// aligned split product.
TEST(MulVector, BudgetsSplitCountAsTheDriverSays) {
  forEach(k32, k64, [&]<class T>(const VecExport& e) {
    for (auto [M, K] : {std::pair{5, 5}, std::pair{9, 17}})
      for (auto [f, skew] : {std::pair{0, 0}, std::pair{0, int(sizeof(T))}, std::pair{1, 0}, std::pair{3, 0}})
        if (e.arr[3])
          sweepBudgets<T>(e.name, !pairs(VecCall<T>(e, M, K, 1, kVecForms[f])), [&](int budget) {
            return VecCall<T>(e, M, K, 401, kVecForms[f], skew).check(model<T>, budget, "budget");
          });
  });
}

}  // namespace
