// Vector algebra, all 86 exports (DotProduct, L2Norm, CrossProduct, Saxpy,
// LComb) in every description, against a long double and, bit for bit, against
// the sum each path fixes: the groupings of lengths 3..6 by kernel, the split
// sums peeled on the second vector or its pointer list, groups of objects within
// each share of the team; the root estimate within a few units in the last place.
#include <gtest/gtest.h>

#include "products.h"

namespace {
using namespace qt;

enum Fam { DotProduct, L2Norm, CrossProduct, Saxpy, LComb };
struct VExp {
  std::string name;  // without the qelm prefix
  QelStatus (*call)(Feed&);
  Lay lay;
  Fam fam;
  bool a1, a2;  // src1, src2 are arrays (L2Norm: src is)
  bool is(const char* s) const { return name.find(s) != std::string::npos; }
};
#define X(fam, F, sh, sfx, lay, a1, a2) \
  VExp{#fam "_" #sh "_" #F #sfx, [](Feed& f) { return callWith(&qelm##fam##_##sh##_##F##sfx, f); }, lay, fam, a1, a2}
#define ONE(fam, F, sh) X(fam, F, sh, , S, 0, 0), X(fam, F, sh, _P, P, 0, 0)
#define ARR(fam, F, sh, a1, a2) X(fam, F, sh, , S, a1, a2), X(fam, F, sh, _L, L, a1, a2), X(fam, F, sh, _P, P, a1, a2)
#define ALL(F)                                                                                                   \
  {ONE(DotProduct, F, vv), ARR(DotProduct, F, vav, 1, 0), ARR(DotProduct, F, vava, 1, 1), ONE(L2Norm, F, v),        \
   ARR(L2Norm, F, va, 1, 1), ONE(CrossProduct, F, vv), ARR(CrossProduct, F, vav, 1, 0),                            \
   ARR(CrossProduct, F, vva, 0, 1), ARR(CrossProduct, F, vava, 1, 1), ONE(Saxpy, F, vv), ARR(Saxpy, F, vav, 1, 0), \
   ARR(Saxpy, F, vva, 0, 1), ARR(Saxpy, F, vava, 1, 1), ONE(LComb, F, vv), ARR(LComb, F, vav, 1, 0),               \
   ARR(LComb, F, vava, 1, 1)}
const std::vector<VExp> k32 = ALL(32f), k64 = ALL(64f);

template <class T>
struct VCall {
  const VExp& e;
  const int len, count;
  Batch<T> a, b, d;  // b lies `skew` bytes on; an L2Norm reads a alone
  const T v1 = T(1.25), v2 = T(-0.625);
  bool reduces() const { return e.fam <= L2Norm; }
  bool arrays() const { return e.a1 || e.a2; }
  int width() const { return e.fam == CrossProduct ? 3 : len; }
  VCall(const VExp& ex, int k, int n, std::array<Form, 3> f, int skew = 0, bool listOneOn = false)
      : e(ex), len(k), count(n), a(1, width(), e.a1 ? n : 1, f[0]), b(1, width(), e.a2 ? n : 1, f[1], skew),
        d(1, reduces() ? 1 : width(), arrays() ? n : 1, reduces() && f[2] != Form::Unaligned ? Form::Packed : f[2]) {
    a.fillRandom(3 + k), b.fillRandom(5 + k), a.elemsOneOn = b.elemsOneOn = listOneOn;
  }
  Outcome run(const std::vector<Spoil>& bad = {}) {
    Args g(e.lay, bad);
    g.group(a, e.a1, false);
    if (e.fam >= Saxpy) g.f.val(v1);
    if (e.fam != L2Norm) g.group(b, e.a2, false);
    if (e.fam == LComb) g.f.val(v2);
    reduces() ? g.ptr(d.ptr()) : g.group(d, arrays(), false);
    if (e.fam != CrossProduct) g.num('Z', len);
    if (arrays()) g.num('C', count);
    return {e.call(g.f), d.untouched(), g.seen};
  }
  const Batch<T>& second() const { return e.fam == L2Norm ? a : b; }
  T x(int n, int k) const { return a.get(e.a1 * n, 0, k); }
  T y(int n, int k) const { return second().get(e.a2 * n, 0, k); }  // L2Norm: a2 is a1
  bool contiguous() const { return e.lay != P && a.s2 == sizeof(T) && second().s2 == sizeof(T) && d.s2 == sizeof(T); }
};

// The value each path gives for element i of object n in a team of `threads`;
// none for the root estimate.
template <class T>
std::optional<T> model(const VCall<T>& c, int n, int i, int threads) {
  const VExp& e = c.e;
  auto x = [&](int k) { return c.x(n, k); }, y = [&](int k) { return c.y(n, k); };
  if (e.fam == CrossProduct) return x((i + 1) % 3) * y((i + 2) % 3) - x((i + 2) % 3) * y((i + 1) % 3);
  if (e.fam == Saxpy) return x(i) * c.v1 + y(i);
  if (e.fam == LComb) return x(i) * c.v1 + y(i) * c.v2;
  std::vector<T> t;
  for (int k = 0; k < c.len; ++k) t.push_back(x(k) * y(k));
  const bool f32 = sizeof(T) == 4, norm = e.fam == L2Norm, vava = e.is("_vava_");
  const Share s = shareHolding(c.count, threads, n);
  const int at = n - s.first, grouped = s.size & ~3;
  auto root = [&](T v) { return norm ? std::sqrt(v) : v; };
  auto pairs = [&] { return c.len == 4 ? (t[0] + t[1]) + (t[2] + t[3]) : c.len == 5 ? ((t[0] + t[1]) + (t[2] + t[3])) + t[4]
                                                                        : ((t[0] + t[1]) + (t[2] + t[3])) + (t[4] + t[5]); };
  if (c.len < 3 || c.len > 6) {
    const uintptr_t list = uintptr_t(c.second().elems()), onY = c.second().address(e.is("_vav_") ? 0 : n);
    if (e.lay == P) return root(split(t, list, 8));
    return root(c.contiguous() && (e.is("_vv_") || e.is("_v_") || e.is("_vav_") || (vava && e.lay == S)) ? split(t, onY) : split(t));
  }
  if (e.lay == P) {
    const uintptr_t out = c.d.address(s.first);
    const int peel = out % 4 ? s.size : std::min<int>(s.size, (16 - out % 16) % 16 / 4);
    if (e.is("L2Norm_va_32f_P") && c.len == 3 && at >= peel && at < peel + ((s.size - peel) & ~3)) return std::nullopt;
    return root(fromZero(t));
  }
  if (!c.contiguous()) {
    if (f32 && (e.name == "DotProduct_vv_32f" || e.is("Product_vav_32f_L") || e.is("Product_vava_32f_L")))
      return c.len == 3 ? (t[1] + t[2]) + t[0]
                        : std::accumulate(t.begin(), t.end() - 3, (t[c.len - 1] + t[c.len - 3]) + t[c.len - 2]);
    if (f32 && c.len == 4 && (e.name == "L2Norm_v_32f" || e.name == "L2Norm_va_32f_L")) return root(((t[3] + t[0]) + t[1]) + t[2]);
    return root(fromZero(t));
  }
  const bool on16 = (c.a.address(s.first) | c.b.address(s.first) | c.d.address(s.first) | c.a.s0 | c.b.s0) % 16 == 0;
  if (e.name == "DotProduct_vava_32f" && s.size >= 5 && on16 && (c.len == 4 || (c.len > 4 && at < grouped))) return pairs();
  if ((e.is("Product_vav_32f") && c.len == 4) || (e.name == "L2Norm_v_32f" && c.len > 3)) return root(pairs());
  if (e.name == "L2Norm_va_32f" && c.len == 5 && at >= grouped) return root(pairs());
  if (e.name == "DotProduct_vava_64f" && (c.len == 4 || c.len == 5))
    return c.len == 4 ? (t[0] + t[2]) + (t[1] + t[3]) : ((t[0] + t[2]) + (t[1] + t[3])) + t[4];
  if ((e.name == "L2Norm_v_64f" || e.name == "L2Norm_va_64f") && c.len < 6)
    return root(c.len == 3 ? (t[2] + t[0]) + t[1] : c.len == 4 ? (t[0] + t[2]) + (t[1] + t[3]) : ((t[0] + t[2]) + t[4]) + (t[1] + t[3]));
  return root(fromZero(t));
}

// Runs the call and checks every result against the model where it has one,
// and against the long double value within a few units of its magnitude.
template <class T>
std::vector<T> check(VCall<T>& c, int threads, const std::string& how) {
  const std::string at = c.e.name + " len " + std::to_string(c.len) + " count " + std::to_string(c.count) + " " + how;
  EXPECT_EQ(c.run().status, qelStatusOk) << at;
  for (int n = 0; n < c.d.count(); ++n)
    for (int i = 0; i < (c.reduces() ? 1 : c.width()); ++i) {
      const T got = c.d.get(n, 0, i);
      const std::optional<T> want = model(c, n, i, threads);
      EXPECT_TRUE(!want || std::memcmp(&got, &*want, sizeof(T)) == 0) << at << " at " << n << "," << i << ": " << got << " vs " << *want;
      long double ref = 0, mag = 0;
      auto add = [&](long double v) { ref += v, mag += std::fabs(v); };
      if (c.reduces()) for (int k = 0; k < c.len; ++k) add((long double)c.x(n, k) * c.y(n, k));
      if (c.e.fam == CrossProduct) add((long double)c.x(n, (i + 1) % 3) * c.y(n, (i + 2) % 3)), add(-(long double)c.x(n, (i + 2) % 3) * c.y(n, (i + 1) % 3));
      if (c.e.fam >= Saxpy) add((long double)c.x(n, i) * c.v1), add(c.e.fam == LComb ? (long double)c.y(n, i) * c.v2 : c.y(n, i));
      const long double tol = (c.len + 4) * std::numeric_limits<T>::epsilon();
      if (c.e.fam == L2Norm) EXPECT_LE(std::fabs(got - std::sqrt(ref)), tol * std::sqrt(ref)) << at;
      else EXPECT_LE(std::fabs(got - ref), tol * mag) << at;
    }
  EXPECT_TRUE(c.d.outsideIntact()) << at;
  return c.d.values();
}

const std::vector<std::array<Form, 3>> kForms = {{Form::Packed, Form::Packed, Form::Packed},
                                                 {Form::Pitch16, Form::Pitch16, Form::Pitch16},
                                                 {Form::RowGaps, Form::Unaligned, Form::Unaligned},
                                                 {Form::ElementGaps, Form::Packed, Form::Packed},
                                                 {Form::Packed, Form::Packed, Form::ElementGaps}};

TEST(Vectors, EveryExportFormLengthCountAndAddressRoundsByItsPath) {
  forEach(k32, k64, [&]<class T>(const VExp& e) {
    for (size_t f = 0; f < kForms.size(); ++f)
      for (int len : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 17, 23})
        for (int count : e.a1 || e.a2 ? std::vector{1, 4, 5, 8, 9} : std::vector{1})
          for (int skew = 0; skew < (f < 3 && len > 6 ? 16 : 1); skew += sizeof(T))
            for (bool listOneOn : {false, true}) {
              if ((e.fam == CrossProduct && len != 3) || (listOneOn && (e.lay != P || skew))) continue;
              VCall<T> c(e, len, count, kForms[f], skew, listOneOn);
              check(c, 1, "form " + std::to_string(f) + " skew " + std::to_string(skew) + (listOneOn ? " list+8" : ""));
            }
  });
}

TEST(Vectors, ChecksInTheirOrderWriteNothing) {
  forEach(k32, k64, [&]<class T>(const VExp& e) {
    const std::string order = e.fam != CrossProduct ? "NCZSR" : !e.a1 && !e.a2 ? "NSR" : !e.is("_vav_") ? "NCSR"
                              : e.lay == S ? "NSC" : e.lay == L ? "NSRC" : "NSCR";
    checkOrder(e.name, sizeof(T), {}, [&](auto bad) { return VCall<T>(e, 3, 2, kForms[0]).run(bad); }, order);
  });
}

// The last work that stays serial, by form (contiguous, general).
int lastSerial(const VExp& e, bool contiguous) {
  const bool f32 = e.is("_32f");
  if (e.fam == CrossProduct) return e.is("_vava_") ? 3000 : e.name == "CrossProduct_vva_64f_P" ? -1 : 2999;
  if (e.fam == L2Norm) return 1500;
  if (e.fam == DotProduct) {
    const int limits[2][3][2] = {{{5001, 2621}, {2401, 2401}, {2401, 2401}}, {{3501, 2001}, {4201, 3301}, {2001, 2001}}};
    return limits[!f32][e.lay][!contiguous || e.lay == P] - 1;
  }
  if (e.fam == LComb) return f32 && e.lay == L && !contiguous ? 3750 : 4500;
  if (e.lay == P) return 1200;
  if (e.lay == S) return contiguous ? 3000 : f32 ? 2000 : 1200;
  return !f32 ? 1000 : contiguous ? 1500 : e.is("_vva_") ? 1500 : 1000;
}

TEST(Vectors, WorkLimitsAtTheirEdges) {
  forEach(k32, k64, [&]<class T>(const VExp& e) {
    if (e.a1 || e.a2)
      for (int f : {0, 3}) {
        // W = base + per count: Saxpy and LComb (2 count + 1) len, 3 len count;
        // DotProduct (count + 1) len, 2 len count; L2Norm len count; CrossProduct 2 or 3 count.
        // Multiples of 2 or 3 come within 2 of a limit.
        const bool two = e.a1 && e.a2, scaled = e.fam >= Saxpy;
        const int per = e.fam == L2Norm ? 1 : two ? 2 + scaled : 1 + scaled;
        limitEdges(e.name, lastSerial(e, !f), 2 * (e.fam == CrossProduct || two), [&](int, int k) {
          if (e.fam == CrossProduct) return std::pair{0, two ? 3 : 2};
          return std::pair{two || e.fam == L2Norm ? 0 : k, per * k};
        }, [&](int, int k, int count, int threads) {
          VCall<T> c(e, e.fam == CrossProduct ? 3 : k, count, kForms[f]);
          check(c, threads, "limit");
        });
      }
  });
}

// Identical bits across budgets but where a share's own count and addresses
// choose the sums: groups of pairs, the groups of lengths, the root estimate.
TEST(Vectors, BudgetsSplitCountAsTheDriverSays) {
  forEach(k32, k64, [&]<class T>(const VExp& e) {
    for (int len : {3, 4, 5, 9})
      if ((e.a1 || e.a2) && (e.fam != CrossProduct || len == 3) && e.name != "CrossProduct_vva_64f_P")
        for (int f : {0, 1, 3}) {
          const bool same = (e.name != "DotProduct_vava_32f" && e.name != "L2Norm_va_32f" && e.name != "L2Norm_va_32f_P") || (f == 3 && e.lay != P);
          sweepBudgets<T>(e.name, same, [&](int budget) {
            VCall<T> c(e, len, 2001, kForms[f]);
            return check(c, budget, "budget");
          });
        }
  });
}

// One vector in place: the contiguous cross product reads all six elements
// first; the general one stores dst(0) before it reads the rest. Saxpy and
// LComb: dst on a source is right on every path; dst one element behind src1
// gives the strictly sequential result.
TEST(Vectors, InPlaceAndOverlap) {
  auto run = [&]<class T>(T) {
    const bool f32 = sizeof(T) == 4;
    for (int step : {1, 2}) {
      const T orig[3] = {1.5, -2.25, 3.125}, b[3] = {0.375, 4.5, -1.75};
      T a[6] = {}, w[3] = {orig[0], orig[1], orig[2]};  // w: src1 as the general kernel finds it
      for (int k = 0; k < 3; ++k) a[k * step] = orig[k];
      const int s = step * sizeof(T);
      ASSERT_EQ(f32 ? qelmCrossProduct_vv_32f((float*)a, s, (float*)b, 4, (float*)a, s)
                    : qelmCrossProduct_vv_64f((double*)a, s, (double*)b, 8, (double*)a, s), qelStatusOk);
      for (int i = 0; i < 3; ++i) {
        const T* src = step == 1 ? orig : w;
        const T r = src[(i + 1) % 3] * b[(i + 2) % 3] - src[(i + 2) % 3] * b[(i + 1) % 3];
        EXPECT_EQ(a[i * step], r) << "cross in place, step " << step << " element " << i;
        w[i] = r;
      }
    }
    for (int len : {3, 7, 8, 9, 16, 33})
      for (int shape = 0; shape < 3; ++shape) {  // dst on src1, on src2, one element behind src1
        std::vector<T> x(len + 1), y(len), want;
        for (int k = 0; k < len; ++k) x[k] = T(0.5 + k % 5), y[k] = T(k % 3 - 1.25);
        T* dst = shape == 0 ? x.data() : shape == 1 ? y.data() : x.data() + 1;
        std::vector<T> xs = x, ys = y;
        for (int k = 0; k < len; ++k) want.push_back(xs[k] * T(1.5) + ys[k]), (shape == 2 ? xs[k + 1] : xs[len]) = want.back();
        ASSERT_EQ(f32 ? qelmSaxpy_vv_32f((float*)x.data(), 4, 1.5f, (float*)y.data(), 4, (float*)dst, 4, len)
                      : qelmSaxpy_vv_64f((double*)x.data(), 8, 1.5, (double*)y.data(), 8, (double*)dst, 8, len), qelStatusOk);
        for (int k = 0; k < len; ++k) EXPECT_EQ(dst[k], want[k]) << "saxpy len " << len << " shape " << shape << " at " << k;
      }
  };
  run(float(0)), run(double(0));
}

// The root estimate: exactly 0 for zero vectors; a dst that overlaps the
// element runs (in the gap behind object 0) takes the exact root for all.
TEST(Vectors, RootEstimateZeroAndOverlap) {
  constexpr int count = 64, pitch = 128;
  alignas(16) static float buf[count * pitch];
  std::mt19937 rng(7);
  for (int n = 0; n < count; ++n)
    for (int j = 0; j < 3; ++j) buf[n * pitch + j] = std::uniform_real_distribution<float>(-3, 3)(rng);
  alignas(16) float apart[count], zeros[count * 3] = {}, zeroRoots[count];
  const float *list[3] = {buf, buf + 1, buf + 2}, *zlist[3] = {zeros, zeros + 1, zeros + 2};
  std::fill(zeroRoots, zeroRoots + count, -1.0f);
  ASSERT_EQ(qelmL2Norm_va_32f_P(list, 0, pitch * 4, apart, 3, count), qelStatusOk);
  ASSERT_EQ(qelmL2Norm_va_32f_P(list, 0, pitch * 4, buf + 4, 3, count), qelStatusOk);
  ASSERT_EQ(qelmL2Norm_va_32f_P(zlist, 0, 12, zeroRoots, 3, count), qelStatusOk);
  int differ = 0;
  for (int n = 0; n < count; ++n) {
    const float* v = buf + n * pitch;
    const float exact = std::sqrt((0.0f + v[0] * v[0] + v[1] * v[1]) + v[2] * v[2]);
    EXPECT_EQ(buf[4 + n], exact) << n;
    EXPECT_NEAR(apart[n], exact, 4 * exact * std::numeric_limits<float>::epsilon()) << n;
    EXPECT_TRUE(zeroRoots[n] == 0.0f && !std::signbit(zeroRoots[n])) << n;
    differ += apart[n] != exact;
  }
  EXPECT_GT(differ, 0) << "no object took the estimate";
}

}  // namespace
