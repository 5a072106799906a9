// qelmGaxpy, y = A x + z: all 16 exports, in every description, against a
// long-double reference and, bit for bit, against the sums each path fixes:
// the per-size groupings of the contiguous kernels, the routine for twelve or
// more aligned vectors, and the plain loop from zero; z is always added last.
#include <gtest/gtest.h>
#include <qelm/qelm.h>

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

template <Desc D, bool Arr, bool ZArr, class F, class T>
QelStatus invoke(F f, const Ops<T>& o, int count) {
  return std::apply(f, std::tuple_cat(matrixArgs<D, false>(o[0]), vectorArgs<D, Arr>(o[1]), vectorArgs<D, ZArr>(o[2]),
                                      resultArgs<D, Arr>(o[3], count)));
}

template <class T>
struct Entry {
  std::string name;
  bool arr, zArr;  // x (and dst) an array; z an array
  Desc desc;
  QelStatus (*call)(const Ops<T>&, int);
};
#define G(T, F, sh, sfx, D, arr, zArr)                      \
  Entry<T>{"qelmGaxpy_" #sh "_" #F #sfx, arr, zArr, Desc::D, \
           +[](const Ops<T>& o, int c) { return invoke<Desc::D, arr, zArr>(qelmGaxpy_##sh##_##F##sfx, o, c); }}
#define ALL(T, F)                                                                                          \
  G(T, F, mv, , Std, 0, 0), G(T, F, mv, _P, P, 0, 0), G(T, F, mva, , Std, 1, 1), G(T, F, mva, _L, L, 1, 1), \
      G(T, F, mva, _P, P, 1, 1), G(T, F, mvav, , Std, 1, 0), G(T, F, mvav, _L, L, 1, 0), G(T, F, mvav, _P, P, 1, 0)
template <class T>
std::vector<Entry<T>> entries();
template <>
std::vector<Entry<float>> entries() { return {ALL(float, 32f)}; }
template <>
std::vector<Entry<double>> entries() { return {ALL(double, 64f)}; }

struct Forms {
  Form a, x, z, d;
};
// Tiny equal products and z = 1: every order of the products sums exactly, and
// z added before the last of them is lost, so only z last gives 1 + K/4 ulp.
enum class Data { Random, Tiny };

template <class T>
struct Case {
  const Entry<T>& e;
  int M, K, count;
  Forms f;
  std::unique_ptr<Batch<T>> a, x, z, d;
  Ops<T> ops;

  Case(const Entry<T>& en, int m, int k, int cnt, Forms fs, Data data = Data::Random, uint32_t seed = 9)
      : e(en), M(m), K(k), count(cnt), f(fs) {
    a = std::make_unique<Batch<T>>(M, K, 1, f.a);
    x = std::make_unique<Batch<T>>(1, K, e.arr ? count : 1, f.x);
    z = std::make_unique<Batch<T>>(1, M, e.zArr ? count : 1, f.z);
    d = std::make_unique<Batch<T>>(1, M, e.arr ? count : 1, f.d);
    a->fillRandom(seed), x->fillRandom(seed + 1), z->fillRandom(seed + 2);
    if (data == Data::Tiny) {
      const T ea = sizeof(T) == 4 ? std::ldexp(T(1), -12) : std::ldexp(T(1), -27);
      const T ex = sizeof(T) == 4 ? std::ldexp(T(1), -13) : std::ldexp(T(1), -27);
      for (Batch<T>* b : {a.get(), x.get(), z.get()})
        for (int n = 0; n < b->count(); ++n)
          for (int i = 0; i < b->rows(); ++i)
            for (int j = 0; j < b->cols(); ++j) b->set(n, i, j, b == a.get() ? ea : b == x.get() ? ex : T(1));
    }
    ops = {operandOf(*a, e.desc), operandOf(*x, e.desc), operandOf(*z, e.desc), operandOf(*d, e.desc)};
  }
  QelStatus run() const { return e.call(ops, count); }
  bool contiguous() const {
    const int s = sizeof(T);
    return e.desc != Desc::P && a->s2 == s && x->s2 == s && z->s2 == s && d->s2 == s;
  }
  std::vector<T> products(int n, int i) const {
    std::vector<T> p;
    for (int k = 0; k < K; ++k) p.push_back(a->get(0, i, k) * x->get(e.arr ? n : 0, 0, k));
    return p;
  }
  T zOf(int n, int i) const { return z->get(e.zArr ? n : 0, 0, i); }
  // Result (n, i) on its path; none where the order of the products is open.
  std::optional<T> model(int n, int i, const std::vector<Share>& shares) const {
    const std::vector<T> t = products(n, i);
    const T zi = zOf(n, i);
    if (M != K || M < 3 || M > 6) return fromZero(t) + zi;
    if (!contiguous() || e.desc != Desc::Std) return std::nullopt;
    if (sizeof(T) == 8) {
      if (M == 3) return ((t[0] + t[1]) + t[2]) + zi;
      if (M == 4) return ((t[0] + t[1]) + (t[2] + t[3])) + zi;
      if (M == 5) return (((t[0] + t[1]) + (t[2] + t[3])) + t[4]) + zi;
      return std::nullopt;
    }
    const bool aligned = uintptr_t(d->ptr()) % 16 == 0 && d->s0 % 16 == 0 && uintptr_t(x->ptr()) % 16 == 0 &&
                         x->s0 % 16 == 0;
    if (e.name == "qelmGaxpy_mvav_32f" && M >= 4 && aligned && shareHolding(shares, n).size >= 12)
      return M == 4 ? std::optional<T>(((t[0] + t[1]) + (t[2] + t[3])) + zi) : std::nullopt;
    if (M == 3) return ((t[0] + t[1]) + t[2]) + zi;
    if (M == 4) return ((t[0] + t[2]) + (t[1] + t[3])) + zi;
    if (M == 5)
      return i < 4 ? (((t[0] + t[1]) + t[4]) + (t[2] + t[3])) + zi : (((t[0] + t[2]) + t[4]) + (t[1] + t[3])) + zi;
    return (((t[0] + t[2]) + t[4]) + ((t[1] + t[3]) + t[5])) + zi;
  }
  void expectResults(const std::vector<Share>& shares, Data data = Data::Random, const std::string& how = "") const {
    const long double eps = std::numeric_limits<T>::epsilon();
    for (int n = 0; n < d->count(); ++n)
      for (int i = 0; i < M; ++i) {
        const T got = d->get(n, 0, i);
        // Tiny data sums exactly in any order: every path must give the inner sum, then z.
        const std::optional<T> want = data == Data::Tiny ? fromZero(products(n, i)) + zOf(n, i) : model(n, i, shares);
        ASSERT_TRUE(!want || std::memcmp(&got, &*want, sizeof(T)) == 0)
            << e.name << " " << M << "x" << K << " " << formName(f.a) << "/" << formName(f.x) << "/"
            << formName(f.z) << "/" << formName(f.d) << " count " << count << " " << how << " at " << n << ","
            << i << ": " << got << " vs " << *want;
        long double ref = zOf(n, i), mag = std::fabs(ref);
        for (int k = 0; k < K; ++k) {
          const long double p = (long double)a->get(0, i, k) * x->get(e.arr ? n : 0, 0, k);
          ref += p, mag += std::fabs(p);
        }
        ASSERT_LE(std::fabs(got - ref), (K + 2) * eps * mag) << e.name << " " << how;
      }
    ASSERT_TRUE(d->outsideIntact()) << e.name << " " << how;
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
  const Entry<float>& e = entries<float>()[5];
  ASSERT_EQ(e.name, "qelmGaxpy_mvav_32f");
  const Forms f{Form::Packed, Form::Packed, Form::Packed, Form::Packed};
  Case<float> eleven(e, 4, 4, 11, f, Data::Random, 21), twelve(e, 4, 4, 12, f, Data::Random, 21);
  ASSERT_EQ(eleven.run(), qelStatusOk);
  ASSERT_EQ(twelve.run(), qelStatusOk);
  eleven.expectResults({{0, 11}});
  twelve.expectResults({{0, 12}});
  bool differs = false;
  for (int n = 0; n < 11; ++n)
    for (int i = 0; i < 4; ++i) differs |= eleven.d->get(n, 0, i) != twelve.d->get(n, 0, i);
  EXPECT_TRUE(differs);
}

// N C Z M S R, and nothing written when a check fails.
TYPED_TEST(Gaxpy, ChecksInOrderWriteNothing) {
  using T = TypeParam;
  const int el = sizeof(T), half = el / 2;
  for (const auto& e : entries<T>()) {
    const bool array[4] = {false, e.arr, e.zArr, e.arr};
    const bool anyStride = e.arr || e.desc != Desc::P;
    auto expectStatus = [&](QelStatus want, auto spoil) {
      Case<T> c(e, 3, 4, 2, kForms[0]);
      spoil(c.ops, c.count);
      c.d->fillCanary();
      ASSERT_EQ(c.run(), want) << e.name;
      ASSERT_TRUE(c.d->untouched()) << e.name;
    };
    auto badStride = [&](Ops<T>& o) {
      for (int k = 0; k < 4; ++k)
        for (int f = 0; f < 3; ++f)
          if (passes(e.desc, array[k], k == 0, f)) return void(fieldOf(o[k], f) = half);
    };
    for (int k = 0; k < 4; ++k)
      expectStatus(qelStatusNullPointer, [&](Ops<T>& o, int& count) {
        o[k].ptr = nullptr, o[k].list = nullptr, o[k].elems = nullptr;
        count = 0, o[2].w = 0;
      });
    if (e.arr)
      for (int bad : {0, -1}) expectStatus(qelStatusBadCount, [&](Ops<T>& o, int& count) { count = bad, o[0].w = 0; });
    for (int* (*size)(Ops<T>&) : {+[](Ops<T>& o) { return &o[0].w; }, +[](Ops<T>& o) { return &o[0].h; },
                                  +[](Ops<T>& o) { return &o[1].w; }, +[](Ops<T>& o) { return &o[2].w; }})
      for (int bad : {0, -3}) expectStatus(qelStatusBadSize, [&](Ops<T>& o, int&) { *size(o) = bad, badStride(o); });
    // One test over both pairs: width against x, height against z.
    for (int* (*size)(Ops<T>&) : {+[](Ops<T>& o) { return &o[0].w; }, +[](Ops<T>& o) { return &o[0].h; },
                                  +[](Ops<T>& o) { return &o[1].w; }, +[](Ops<T>& o) { return &o[2].w; }})
      expectStatus(qelStatusSizeMismatch, [&](Ops<T>& o, int&) { *size(o) += 1, badStride(o); });
    for (int k = 0; k < 4; ++k)
      for (int f = 0; f < 4; ++f) {
        if (!passes(e.desc, array[k], k == 0, f)) continue;
        const QelStatus want = f == 3 ? qelStatusBadRoiShift : qelStatusBadStride;
        for (int bad : f == 3 ? std::vector<int>{half, -el} : std::vector<int>{half, 0, -el})
          expectStatus(want, [&](Ops<T>& o, int&) { fieldOf(o[k], f) = bad; });
        if (f == 3 && anyStride)
          expectStatus(qelStatusBadStride, [&](Ops<T>& o, int&) { fieldOf(o[k], f) = half, badStride(o); });
      }
  }
}

// The work counts the vectors alone: the one matrix is left out.
int workOf(bool zArr, int M, int K, int c) { return zArr ? (K + 2 * M) * c : K * c + (c + 1) * M; }
int limitOf(const std::string& name, bool contiguous) {
  const bool f32 = name.find("_32f") != std::string::npos;
  const bool L = name.back() == 'L', P = name.back() == 'P';
  if (P) return f32 ? 4501 : 7001;
  if (L) return f32 ? (contiguous ? 7001 : 501) : (contiguous ? 6001 : 5001);
  return f32 && contiguous ? 7001 : 5001;
}

// Serial below the limit, the driver from the limit on; mv never forks.
TYPED_TEST(Gaxpy, WorkLimitsAtTheirEdges) {
  using T = TypeParam;
  for (const auto& e : entries<T>())
    for (bool contiguous : {true, false}) {
      if (e.desc == Desc::P && contiguous) continue;
      const Forms f = kForms[contiguous ? 0 : 3];
      if (!e.arr) {
        PinnedBudget pin(2);
        Case<T> c(e, 60, 60, 1, f);
        ASSERT_EQ(c.run(), qelStatusOk);
        EXPECT_EQ(pin.calls(), 0) << e.name;
        continue;
      }
      const int limit = limitOf(e.name, contiguous);
      for (int target : {limit - 1, limit}) {
        int M = 0, K = 0, count = 0;
        for (int m = 1; m <= 9 && !count; ++m)
          for (int k = 1; k <= 9 && !count; ++k)
            for (int c = 2; c <= target && !count; ++c)
              if (workOf(e.zArr, m, k, c) == target) M = m, K = k, count = c;
        ASSERT_GT(count, 0) << e.name << " " << target;
        PinnedBudget pin(2);
        Case<T> c(e, M, K, count, f);
        ASSERT_EQ(c.run(), qelStatusOk);
        const bool forked = target >= limit;
        EXPECT_EQ(pin.calls(), forked ? 2 : 0) << e.name << " W " << target;
        c.expectResults(sharesOf(count, 2, forked), Data::Random, "W " + std::to_string(target));
      }
    }
}

// Nothing crosses objects, and every share holds twelve and more: no budget
// changes a bit.
TYPED_TEST(Gaxpy, SameBitsForEveryBudget) {
  using T = TypeParam;
  const int count = 901;
  for (const auto& e : entries<T>()) {
    if (!e.arr) continue;
    for (int n : {4, 6, 7})
      for (const Forms& f : {kForms[0], kForms[3]}) {
        std::vector<T> first;
        for (int budget : {1, 2, 3, 7}) {
          PinnedBudget pin(budget);
          Case<T> c(e, n, n, count, f);
          ASSERT_EQ(c.run(), qelStatusOk);
          ASSERT_EQ(pin.calls(), budget == 1 ? 1 : 2) << e.name << " " << n;
          c.expectResults(sharesOf(count, budget, budget > 1), Data::Random, "budget " + std::to_string(budget));
          if (budget == 1) first = c.d->values();
          else EXPECT_TRUE(sameBits(first, c.d->values())) << e.name << " budget " << budget;
        }
      }
  }
}

}  // namespace
