// qelmGaxpy, y = A x + z: all 16 exports, in every description, against a
// long-double reference and, bit for bit, against the sums each path fixes:
// the per-size groupings of the contiguous kernels, the routine for twelve and
// more aligned vectors, the plain loop from zero; z is always added last.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <string>

#include "pinned_core.h"
#include "vector_operands.h"

namespace {

using namespace qt;

template <class T>
using Ops = std::array<Operand<T>, 4>;  // A, x, z, dst

template <class T>
struct Entry {
  std::string name;
  bool arr, zArr;  // x and dst arrays; z an array
  Desc desc;
  QelStatus (*call)(const Ops<T>&, int);
};
#define G(T, F, sh, sfx, D, arr, zArr)                                                                        \
  Entry<T>{"qelmGaxpy_" #sh "_" #F #sfx, arr, zArr, Desc::D, +[](const Ops<T>& o, int c) {                   \
             return std::apply(qelmGaxpy_##sh##_##F##sfx,                                                     \
                               std::tuple_cat(matrixArgs<Desc::D, false>(o[0]), vectorArgs<Desc::D, arr>(o[1]), \
                                              vectorArgs<Desc::D, zArr>(o[2]), resultArgs<Desc::D, arr>(o[3], c))); \
           }}
#define ALL(T, F)                                                                                          \
  G(T, F, mv, , Std, 0, 0), G(T, F, mv, _P, P, 0, 0), G(T, F, mva, , Std, 1, 1), G(T, F, mva, _L, L, 1, 1), \
      G(T, F, mva, _P, P, 1, 1), G(T, F, mvav, , Std, 1, 0), G(T, F, mvav, _L, L, 1, 0), G(T, F, mvav, _P, P, 1, 0)
template <class T>
std::vector<Entry<T>> entries() {
  if constexpr (sizeof(T) == 4) return {ALL(float, 32f)};
  else return {ALL(double, 64f)};
}

struct Forms {
  Form a, x, z, d;
};
// Tiny: equal products of a quarter ulp of 1 and z = 1. The products sum
// exactly in any order, and z added before the last of them absorbs it, so
// only z last gives 1 + K/4 ulp (rounded) for K of 3 and more.
enum class Data { Random, Tiny };

template <class T>
struct Case {
  const Entry<T>& e;
  int M, K, count;
  std::unique_ptr<Batch<T>> a, x, z, d;
  Ops<T> ops;

  Case(const Entry<T>& en, int m, int k, int cnt, Forms f, Data data = Data::Random, uint32_t seed = 9)
      : e(en), M(m), K(k), count(cnt) {
    a = std::make_unique<Batch<T>>(M, K, 1, f.a);
    x = std::make_unique<Batch<T>>(1, K, e.arr ? count : 1, f.x);
    z = std::make_unique<Batch<T>>(1, M, e.zArr ? count : 1, f.z);
    d = std::make_unique<Batch<T>>(1, M, e.arr ? count : 1, f.d);
    a->fillRandom(seed), x->fillRandom(seed + 1), z->fillRandom(seed + 2);
    if (data == Data::Tiny)
      a->fill(std::ldexp(T(1), sizeof(T) == 4 ? -12 : -27)), x->fill(std::ldexp(T(1), sizeof(T) == 4 ? -13 : -27)),
          z->fill(T(1));
    ops = {operandOf(*a, e.desc), operandOf(*x, e.desc), operandOf(*z, e.desc), operandOf(*d, e.desc)};
  }
  QelStatus run() const { return e.call(ops, count); }
  bool contiguous() const {
    const int s = sizeof(T);
    return e.desc != Desc::P && a->s2 == s && x->s2 == s && z->s2 == s && d->s2 == s;
  }
  T xOf(int n, int k) const { return x->get(e.arr ? n : 0, 0, k); }
  T zOf(int n, int i) const { return z->get(e.zArr ? n : 0, 0, i); }

  // Result (n, i) on its path; none where the order of the products is open.
  std::optional<T> model(int n, int i, const std::vector<Share>& shares, Data data) const {
    std::vector<T> t;
    for (int k = 0; k < K; ++k) t.push_back(a->get(0, i, k) * xOf(n, k));
    const T zi = zOf(n, i);
    if (data == Data::Tiny || M != K || M < 3 || M > 6) return fromZero(t) + zi;
    if (!contiguous() || e.desc != Desc::Std) return std::nullopt;
    if (M == 3) return ((t[0] + t[1]) + t[2]) + zi;
    const bool pairRoutine = e.name == "qelmGaxpy_mvav_32f" && shareHolding(shares, n).size >= 12 &&
                             (d->address(0) | d->s0 | x->address(0) | x->s0) % 16 == 0;
    if (sizeof(T) == 8 || pairRoutine) {
      if (M == 4) return ((t[0] + t[1]) + (t[2] + t[3])) + zi;
      if (M == 5 && !pairRoutine) return (((t[0] + t[1]) + (t[2] + t[3])) + t[4]) + zi;
      return std::nullopt;
    }
    if (M == 4) return ((t[0] + t[2]) + (t[1] + t[3])) + zi;
    if (M == 5)
      return i < 4 ? (((t[0] + t[1]) + t[4]) + (t[2] + t[3])) + zi : (((t[0] + t[2]) + t[4]) + (t[1] + t[3])) + zi;
    return (((t[0] + t[2]) + t[4]) + ((t[1] + t[3]) + t[5])) + zi;
  }
  void expectResults(const std::vector<Share>& shares, Data data = Data::Random, const std::string& how = "") const {
    const long double eps = std::numeric_limits<T>::epsilon();
    const std::string at = e.name + " " + std::to_string(M) + "x" + std::to_string(K) + " count " +
                           std::to_string(count) + " strides " + std::to_string(a->s2) + "," + std::to_string(x->s2) +
                           "," + std::to_string(z->s2) + "," + std::to_string(d->s2) + " " + how;
    for (int n = 0; n < d->count(); ++n)
      for (int i = 0; i < M; ++i) {
        const T got = d->get(n, 0, i);
        const std::optional<T> want = model(n, i, shares, data);
        ASSERT_TRUE(!want || std::memcmp(&got, &*want, sizeof(T)) == 0)
            << at << " at " << n << "," << i << ": " << got << " vs " << *want;
        long double ref = zOf(n, i), mag = std::fabs(ref);
        for (int k = 0; k < K; ++k) {
          const long double p = (long double)a->get(0, i, k) * xOf(n, k);
          ref += p, mag += std::fabs(p);
        }
        ASSERT_LE(std::fabs(got - ref), (K + 2) * eps * mag) << at;
      }
    ASSERT_TRUE(d->outsideIntact()) << at;
  }
};

template <class T>
class Gaxpy : public ::testing::Test {};
using Types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(Gaxpy, Types);

const std::vector<std::pair<int, int>> kSizes = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7},
                                                 {8, 8}, {3, 4}, {4, 3}, {2, 5}, {9, 6}, {6, 13}};
const std::vector<Forms> kForms = {{Form::Packed, Form::Packed, Form::Packed, Form::Packed},
                                   {Form::Pitch16, Form::Pitch16, Form::Pitch16, Form::Pitch16},
                                   {Form::RowGaps, Form::Unaligned, Form::Unaligned, Form::Pitch16},
                                   {Form::ColumnMajor, Form::Packed, Form::Packed, Form::Packed},
                                   {Form::Packed, Form::ElementGaps, Form::Packed, Form::Packed},
                                   {Form::Packed, Form::Packed, Form::ElementGaps, Form::Packed},
                                   {Form::Packed, Form::Packed, Form::Packed, Form::ElementGaps}};

TYPED_TEST(Gaxpy, EveryExportFormAndSizeRoundsByItsPathZLast) {
  for (const auto& e : entries<TypeParam>())
    for (const Forms& f : kForms)
      for (auto [M, K] : kSizes)
        for (int count : e.arr ? std::vector<int>{3, 12} : std::vector<int>{1})
          for (Data data : {Data::Random, Data::Tiny}) {
            Case<TypeParam> c(e, M, K, count, f, data);
            ASSERT_EQ(c.run(), qelStatusOk) << e.name;
            c.expectResults(sharesOf(count, 1, false), data);
          }
}

// At n = 4 twelve aligned vectors take the routine of pairs, eleven do not.
TEST(GaxpyOdd, Mvav32fRoundsOtherwiseFromTwelveVectors) {
  const std::vector<Entry<float>> all = entries<float>();
  ASSERT_EQ(all[5].name, "qelmGaxpy_mvav_32f");
  Case<float> eleven(all[5], 4, 4, 11, kForms[0], Data::Random, 21), twelve(all[5], 4, 4, 12, kForms[0], Data::Random, 21);
  ASSERT_EQ(eleven.run(), qelStatusOk);
  ASSERT_EQ(twelve.run(), qelStatusOk);
  eleven.expectResults({{0, 11}});
  twelve.expectResults({{0, 12}});
  bool differs = false;
  for (int n = 0; n < 11; ++n)
    for (int i = 0; i < 4; ++i) differs |= eleven.d->get(n, 0, i) != twelve.d->get(n, 0, i);
  EXPECT_TRUE(differs);
}

TYPED_TEST(Gaxpy, ChecksInOrderWriteNothing) {
  using T = TypeParam;
  const std::vector<std::pair<int, bool>> sizes = {{0, true}, {0, false}, {1, true}, {2, true}};
  for (const auto& e : entries<T>())
    checksInOrder<T, 4>(e.desc, {false, e.arr, e.zArr, e.arr}, e.arr, sizes, sizes,  // one test over both pairs
                        [&](QelStatus want, auto spoil) {
                          Case<T> c(e, 3, 4, 2, kForms[0]);
                          spoil(c.ops, c.count);
                          c.d->fillCanary();
                          ASSERT_EQ(c.run(), want) << e.name;
                          ASSERT_TRUE(c.d->untouched()) << e.name;
                        });
}

// Serial below the limit, the driver from it on; mv never forks. The work
// counts the vectors alone: the one matrix is reused and left out.
TYPED_TEST(Gaxpy, WorkLimitsAtTheirEdges) {
  using T = TypeParam;
  for (const auto& e : entries<T>())
    for (bool contiguous : {true, false}) {
      if (e.desc == Desc::P && contiguous) continue;
      const bool f32 = sizeof(T) == 4;
      const int limit = e.desc == Desc::P   ? (f32 ? 4501 : 7001)
                        : e.desc == Desc::L ? (contiguous ? (f32 ? 7001 : 6001) : (f32 ? 501 : 5001))
                                            : (contiguous && f32 ? 7001 : 5001);
      for (int target : {limit - 1, limit}) {
        auto [M, K, count] = sizesForWork(target, [&](int m, int k) {
          return e.zArr ? std::pair{0, k + 2 * m} : std::pair{m, k + m};
        });
        if (!e.arr) M = K = 60, count = 1;
        if (!count) M = 1, K = target - 2, count = 1;  // 7001 is prime: one long object shows the driver by one query
        PinnedBudget pin(2);
        Case<T> c(e, M, K, count, kForms[contiguous ? 0 : 3]);
        ASSERT_EQ(c.run(), qelStatusOk);
        const bool driver = e.arr && target >= limit;
        EXPECT_EQ(pin.calls(), !driver ? 0 : count > 1 ? 2 : 1) << e.name << " W " << target;
        c.expectResults(sharesOf(count, 2, driver && count > 1), Data::Random, "W " + std::to_string(target));
      }
    }
}

// Nothing crosses objects and every share holds twelve and more: no budget
// changes a bit.
TYPED_TEST(Gaxpy, SameBitsForEveryBudget) {
  using T = TypeParam;
  const int count = 901;
  for (const auto& e : entries<T>()) {
    if (!e.arr) continue;
    for (int n : {4, 6, 7})
      for (int f : {0, 3}) {
        std::vector<T> first;
        for (int budget : {1, 2, 3, 7}) {
          PinnedBudget pin(budget);
          Case<T> c(e, n, n, count, kForms[f]);
          ASSERT_EQ(c.run(), qelStatusOk);
          ASSERT_EQ(pin.calls(), budget == 1 ? 1 : 2) << e.name << " " << n;
          c.expectResults(sharesOf(count, budget, budget > 1), Data::Random, "budget " + std::to_string(budget));
          if (budget == 1) first = c.d->values();
          EXPECT_TRUE(sameBits(first, c.d->values())) << e.name << " budget " << budget;
        }
      }
  }
}

}  // namespace
