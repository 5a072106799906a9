// qelmGaxpy, y = A x + z: all 16 exports, in every description, against a long
// double and, bit for bit, against the sums each path fixes: the per-size
// groupings of the contiguous kernels, the routine for twelve and more aligned
// vectors (eleven take the other sums), the plain loop from zero; z added last.
#include <gtest/gtest.h>

#include "products.h"

namespace {
using namespace qt;

#define G(F, sh, sfx, lay, arr, zArr)                                                                          \
  VecExport{#sh "_" #F #sfx, [](Feed& f) { return callWith(&qelmGaxpy_##sh##_##F##sfx, f); }, lay, false, true, \
            {false, arr, zArr, arr}}
#define ALL(F)                                                                                                   \
  {G(F, mv, , S, 0, 0), G(F, mv, _P, P, 0, 0), G(F, mva, , S, 1, 1), G(F, mva, _L, L, 1, 1), G(F, mva, _P, P, 1, 1), \
   G(F, mvav, , S, 1, 0), G(F, mvav, _L, L, 1, 0), G(F, mvav, _P, P, 1, 0)}
const std::vector<VecExport> k32 = ALL(32f), k64 = ALL(64f);

// Result (n, i) on its path in a team of `threads`; none where the order of the
// products is open. Tiny data: equal products of a quarter ulp of 1 and z = 1
// sum exactly in any order, but z added before the last of them absorbs it.
template <class T, bool tiny = false>
std::optional<T> model(const VecCall<T>& c, int n, int i, int threads) {
  const std::vector<T> t = c.products(n, i);
  const T zi = c.zOf(n, i);
  if (tiny || c.M != c.K || c.M < 3 || c.M > 6) return fromZero(t) + zi;
  if (!c.contiguous() || c.e.lay != S) return std::nullopt;
  if (c.M == 3) return ((t[0] + t[1]) + t[2]) + zi;
  const bool routine = c.e.name == "mvav_32f" && shareHolding(c.count, threads, n).size >= 12 &&
                       (c.d.address(0) | c.d.s0 | c.x.address(0) | c.x.s0) % 16 == 0;
  if (sizeof(T) == 8 || routine) {
    if (c.M == 4) return ((t[0] + t[1]) + (t[2] + t[3])) + zi;
    return c.M == 5 && !routine ? std::optional((((t[0] + t[1]) + (t[2] + t[3])) + t[4]) + zi) : std::nullopt;
  }
  if (c.M == 4) return ((t[0] + t[2]) + (t[1] + t[3])) + zi;
  if (c.M == 6) return (((t[0] + t[2]) + t[4]) + ((t[1] + t[3]) + t[5])) + zi;
  return i < 4 ? (((t[0] + t[1]) + t[4]) + (t[2] + t[3])) + zi : (((t[0] + t[2]) + t[4]) + (t[1] + t[3])) + zi;
}

TEST(Gaxpy, EveryExportFormAndSizeRoundsByItsPathZLast) {
  const std::vector<std::pair<int, int>> sizes = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7},
                                                  {8, 8}, {3, 4}, {4, 3}, {2, 5}, {9, 6}, {6, 13}};
  forEach(k32, k64, [&]<class T>(const VecExport& e) {
    for (size_t f = 0; f < kVecForms.size(); ++f)
      for (auto [M, K] : sizes)
        for (int count : e.arr[1] ? std::vector{11, 12} : std::vector{1})
          for (bool tiny : {false, true}) {
            VecCall<T> c(e, M, K, count, kVecForms[f]);
            const T small = std::ldexp(T(1), sizeof(T) == 4 ? -12 : -27);
            if (tiny) c.a.fill(small), c.x.fill(sizeof(T) == 4 ? small / 2 : small), c.z.fill(T(1));
            c.check(tiny ? model<T, true> : model<T>, 1, "form " + std::to_string(f));
          }
  });
}

TEST(Gaxpy, ChecksInOrderWriteNothing) {  // one mismatch test over both pairs
  forEach(k32, k64, [&]<class T>(const VecExport& e) {
    checkOrder(e.name, sizeof(T), {0, 1, 2, 3}, [&](auto bad) { return VecCall<T>(e, 3, 4, 2, kVecForms[0]).run(bad); });
  });
}

// The work counts the vectors alone: the one matrix is reused and left out.
TEST(Gaxpy, WorkLimitsAtTheirEdges) {
  forEach(k32, k64, [&]<class T>(const VecExport& e) {
    const bool f32 = sizeof(T) == 4;
    for (int f : {0, 3}) {
      const int limit = e.lay == P   ? (f32 ? 4501 : 7001)
                        : e.lay == L ? (f ? (f32 ? 501 : 5001) : (f32 ? 7001 : 6001))
                                     : (f || !f32 ? 5001 : 7001);
      if (e.lay != P || f)  // mv: no work figure
        limitEdges(e.name, e.arr[1] ? limit - 1 : -1, 0, [&](int m, int k) {
          return e.arr[2] ? std::pair{0, k + 2 * m} : std::pair{m, k + m};
        }, [&](int m, int k, int count, int threads) {
          VecCall<T>(e, m, k, count, kVecForms[f]).check(model<T>, threads, "limit");
        });
    }
  });
}

// Nothing crosses objects and every share holds twelve and more: no budget
// changes a bit.
TEST(Gaxpy, SameBitsForEveryBudget) {
  forEach(k32, k64, [&]<class T>(const VecExport& e) {
    for (int n : {4, 6, 7})
      for (int f : {0, 3})
        if (e.arr[1])
          sweepBudgets<T>(e.name, true, [&](int budget) {
            return VecCall<T>(e, n, n, 901, kVecForms[f]).check(model<T>, budget, "budget");
          });
  });
}

}  // namespace
