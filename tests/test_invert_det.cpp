// Invert and Det. Every export in every description against a long double
// Gauss-Jordan reference, and bit for bit against models written here where the
// order of operations is fixed (the order-3 adjugates, the closed determinants,
// both elimination forms). Then tolerance edges per kernel, failure states,
// stops, thresholds, budgets and argument checks.
#include <gtest/gtest.h>
#include <qelm/qelm.h>

#include <cmath>
#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

#include "batch.h"
#include "pinned_core.h"

namespace {

using qt::Batch;
using qt::Form;
using LD = long double;

template <class T> struct Ex;
#define INVDET_EXPORTS(T, F)                                                                       \
  template <> struct Ex<T> {                                                                       \
    static constexpr auto inv = qelmInvert_m_##F, invP = qelmInvert_m_##F##_P;                     \
    static constexpr auto invA = qelmInvert_ma_##F, invL = qelmInvert_ma_##F##_L,                  \
                          invAP = qelmInvert_ma_##F##_P;                                           \
    static constexpr auto det = qelmDet_m_##F, detP = qelmDet_m_##F##_P;                           \
    static constexpr auto detA = qelmDet_ma_##F, detL = qelmDet_ma_##F##_L,                        \
                          detAP = qelmDet_ma_##F##_P;                                              \
  };
INVDET_EXPORTS(Qel32f, 32f)
INVDET_EXPORTS(Qel64f, 64f)

enum Desc { M, MP, MA, ML, MAP };
const Desc kDescs[] = {M, MP, MA, ML, MAP};

template <class T>
QelStatus invert(Desc d, Batch<T>& a, T* buf, Batch<T>& o, int n) {
  using F = Ex<T>;
  const int c = a.count();
  switch (d) {
    case M: return F::inv(a.ptr(), a.s1, a.s2, buf, o.ptr(), o.s1, o.s2, n);
    case MP: return F::invP(a.elems(), a.elemShift, buf, o.elems(), o.elemShift, n);
    case MA: return F::invA(a.ptr(), a.s0, a.s1, a.s2, buf, o.ptr(), o.s0, o.s1, o.s2, n, c);
    case ML: return F::invL(a.list(), a.listShift, a.s1, a.s2, buf, o.list(), o.listShift, o.s1, o.s2, n, c);
    default: return F::invAP(a.elems(), a.elemShift, a.s0, buf, o.elems(), o.elemShift, o.s0, n, c);
  }
}
template <class T>
QelStatus det(Desc d, Batch<T>& a, T* buf, T* out, int n) {
  using F = Ex<T>;
  const int c = a.count();
  switch (d) {
    case M: return F::det(a.ptr(), a.s1, a.s2, n, buf, out);
    case MP: return F::detP(a.elems(), a.elemShift, n, buf, out);
    case MA: return F::detA(a.ptr(), a.s0, a.s1, a.s2, n, buf, out, c);
    case ML: return F::detL(a.list(), a.listShift, a.s1, a.s2, n, buf, out, c);
    default: return F::detAP(a.elems(), a.elemShift, a.s0, n, buf, out, c);
  }
}

template <class T> constexpr T kUnit = std::is_same_v<T, float> ? T(0x1p-126f) : T(0x1p-1022);
using Mx = std::vector<LD>;  // n*n, row by row
template <class T>
Mx objectOf(const Batch<T>& b, int k) {
  Mx m;
  for (int i = 0; i < b.rows(); ++i)
    for (int j = 0; j < b.cols(); ++j) m.push_back(b.get(k, i, j));
  return m;
}

// Gauss-Jordan with partial pivoting in long double.
Mx refInverse(Mx a, int n) {
  Mx x(n * n, 0);
  for (int i = 0; i < n; ++i) x[i * n + i] = 1;
  for (int k = 0; k < n; ++k) {
    int p = k;
    for (int i = k + 1; i < n; ++i)
      if (std::fabs(a[i * n + k]) > std::fabs(a[p * n + k])) p = i;
    for (int j = 0; j < n; ++j) std::swap(a[k * n + j], a[p * n + j]), std::swap(x[k * n + j], x[p * n + j]);
    const LD r = 1 / a[k * n + k];
    for (int j = 0; j < n; ++j) a[k * n + j] *= r, x[k * n + j] *= r;
    for (int i = 0; i < n; ++i)
      if (i != k) {
        const LD f = a[i * n + k];
        for (int j = 0; j < n; ++j) a[i * n + j] -= f * a[k * n + j], x[i * n + j] -= f * x[k * n + j];
      }
  }
  return x;
}
LD refDet(Mx a, int n) {
  LD d = 1;
  for (int k = 0; k < n; ++k) {
    int p = k;
    for (int i = k + 1; i < n; ++i)
      if (std::fabs(a[i * n + k]) > std::fabs(a[p * n + k])) p = i;
    if (p != k) d = -d;
    for (int j = 0; j < n; ++j) std::swap(a[k * n + j], a[p * n + j]);
    d *= a[k * n + k];
    for (int i = k + 1; i < n; ++i)
      for (int j = n - 1; j >= k; --j) a[i * n + j] -= a[i * n + k] / a[k * n + k] * a[k * n + j];
  }
  return d;
}

// ------------------------------------------------------------------ models in the element type

// Order 3 scalar adjugate; order64: the contiguous Qel64f sum a00, a20, a10.
template <class T>
std::vector<T> modelInv3(const Mx& m, bool order64, bool& singular, T tol) {
  auto a = [&](int i, int j) { return T(m[i * 3 + j]); };
  const T p = a(2, 2) * a(0, 1) - a(0, 2) * a(2, 1), q = a(2, 2) * a(1, 1) - a(1, 2) * a(2, 1);
  const T s = a(1, 2) * a(0, 1) - a(0, 2) * a(1, 1);
  const T d = order64 ? (a(0, 0) * q + a(2, 0) * s) - a(1, 0) * p : (a(2, 0) * s - a(1, 0) * p) + a(0, 0) * q;
  singular = tol > std::fabs(d);
  const T r = T(1) / d;
  return {q * r, -p * r, s * r,
          (a(1, 2) * a(2, 0) - a(2, 2) * a(1, 0)) * r, (a(2, 2) * a(0, 0) - a(0, 2) * a(2, 0)) * r,
          (a(0, 2) * a(1, 0) - a(1, 2) * a(0, 0)) * r,
          (a(2, 1) * a(1, 0) - a(1, 1) * a(2, 0)) * r, (a(2, 0) * a(0, 1) - a(2, 1) * a(0, 0)) * r,
          (a(1, 1) * a(0, 0) - a(0, 1) * a(1, 0)) * r};
}

// The closed determinants: the 2x2 minors of rows 0, 1, each larger minor the
// expansion on its last row, highest column first; the result's row in the
// column order given (order 4 has its own grouping).
template <class T>
T modelMinor(const Mx& m, int n, std::vector<int> cols) {
  const int k = cols.size();
  auto a = [&](int i, int j) { return T(m[i * n + j]); };
  if (k == 2) return a(0, cols[0]) * a(1, cols[1]) - a(0, cols[1]) * a(1, cols[0]);
  T sum = 0;
  for (int q = k - 1; q >= 0; --q) {
    std::vector<int> rest = cols;
    rest.erase(rest.begin() + q);
    const T term = a(k - 1, cols[q]) * modelMinor<T>(m, n, rest);
    sum = q == k - 1 ? term : ((k - 1 + q) & 1 ? sum - term : sum + term);
  }
  return sum;
}
template <class T>
T modelClosedDet(const Mx& m, int n) {
  auto a = [&](int i, int j) { return T(m[i * n + j]); };
  auto mn = [&](std::vector<int> c) { return modelMinor<T>(m, n, c); };
  if (n == 3) return mn({0, 1, 2});
  if (n == 4) {
    const T u3 = mn({0, 1, 2}) * a(3, 3), u2 = mn({0, 1, 3}) * a(3, 2), u1 = mn({0, 2, 3}) * a(3, 1);
    const T u0 = -a(3, 0) * mn({1, 2, 3});
    return ((u3 - u2) + u0) + u1;
  }
  const std::vector<int> order = n == 5 ? std::vector<int>{0, 3, 1, 2, 4} : std::vector<int>{0, 4, 1, 2, 3, 5};
  T sum = 0;
  for (size_t q = 0; q < order.size(); ++q) {
    std::vector<int> rest;
    for (int j = 0; j < n; ++j)
      if (j != order[q]) rest.push_back(j);
    const T term = a(n - 1, order[q]) * mn(rest);
    const bool minus = (n - 1 + order[q]) & 1;
    sum = q == 0 ? (minus ? -term : term) : (minus ? sum - term : sum + term);
  }
  return sum;
}

// Elimination on a copy whose rows really move. Returns false at a pivot below t
// (step k in `failedAt`); prod and sign as they stand; Divide: true quotients.
template <class T>
bool modelEliminate(std::vector<T>& w, int n, int m, T t, bool divide, T& prod, T& sign) {
  for (int k = 0; k + 1 < m; ++k) {
    int at = k;
    for (int i = k + 1; i < m; ++i)
      if (std::fabs(w[i * n + k]) > std::fabs(w[at * n + k])) at = i;
    if (at != k) {
      for (int j = 0; j < n; ++j) std::swap(w[k * n + j], w[at * n + j]);
      sign = -sign;
    }
    const T p = w[k * n + k];
    if (t > std::fabs(p)) return false;
    const T r = T(1) / p;
    for (int i = k + 1; i < m; ++i) {
      const T f = divide ? w[i * n + k] / p : w[i * n + k] * r;
      for (int j = k + 1; j < m; ++j) w[i * n + j] = w[i * n + j] - w[k * n + j] * f;
    }
    prod = prod * p;
  }
  return true;
}
template <class T>
T cube(int n) { return T(2 * n * n * n) * kUnit<T>; }

template <class T>
T modelGeneralDet(const Mx& m, int n, bool array) {
  std::vector<T> w(m.begin(), m.end());
  T prod = 1, sign = 1;
  if (!modelEliminate<T>(w, n, n, cube<T>(n), true, prod, sign)) {
    if (!array) return T(0);
    sign = 0;
  }
  const T last = w[n * n - 1];
  return std::fabs(last) > cube<T>(n) ? prod * (sign * last) : T(0);
}

// The n^5 inverse; pTest: the _P array kernel's last-diagonal test.
template <class T>
std::vector<T> modelGeneralInverse(const Mx& m, int n, bool pTest, bool& singular) {
  const T t = cube<T>(n);
  std::vector<T> w(m.begin(), m.end());
  T prod = 1, sign = 1;
  singular = !modelEliminate<T>(w, n, n, t, false, prod, sign);
  if (singular) return {};
  const T last = w[n * n - 1], d = prod * last * sign;
  singular = pTest ? !(std::fabs(last) > t) : t >= std::fabs(d);
  if (singular) return {};
  const T r = T(1) / d;
  std::vector<T> out(n * n);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      std::vector<T> mi(n * n, 0);
      for (int a = 0, ra = 0; a < n; ++a)
        if (a != i) {
          for (int b = 0, cb = 0; b < n; ++b)
            if (b != j) mi[ra * n + cb++] = T(m[a * n + b]);
          ++ra;
        }
      T mp = 1, ms = 1;
      if (!modelEliminate<T>(mi, n, n - 1, t, false, mp, ms)) mp = t;
      const T v = mi[(n - 2) * n + n - 2];
      const T c = std::fabs(v) > t ? ms * v * mp : t;
      out[j * n + i] = c * r * ((i + j) & 1 ? T(-1) : T(1));
    }
  return out;
}

template <class T>
void fillWellConditioned(Batch<T>& b, uint32_t seed) {
  b.fillRandom(seed, -1.0, 1.0);
  for (int k = 0; k < b.count(); ++k)
    for (int i = 0; i < b.rows(); ++i) b.set(k, i, i, b.get(k, i, i) + T(i % 2 ? -3 : 3));
}

// ------------------------------------------------------------------ sweeps

// The bound of a computed inverse: 32 n eps times the condition (infinity
// norms) times the largest element of the reference.
LD inverseBound(const Mx& m, const Mx& ref, int n, LD eps) {
  LD na = 0, ni = 0, big = 0;
  for (int i = 0; i < n; ++i) {
    LD ra = 0, ri = 0;
    for (int j = 0; j < n; ++j) ra += std::fabs(m[i * n + j]), ri += std::fabs(ref[i * n + j]);
    na = std::max(na, ra), ni = std::max(ni, ri);
  }
  for (LD v : ref) big = std::max(big, std::fabs(v));
  return 32 * n * eps * na * ni * big;
}

// Diagonally dominant data, and data without a dominant diagonal whose odd
// objects have all magnitudes of row 0 tied, so that the block forms exchange
// columns and meet their tie rules.
template <class T>
void sweepInvert() {
  const Form forms[] = {Form::Packed, Form::Pitch16, Form::RowGaps, Form::ColumnMajor, Form::Unaligned};
  const LD eps = std::numeric_limits<T>::epsilon();
  for (bool dominant : {true, false})
    for (int n = 1; n <= 8; ++n)
      for (Desc d : kDescs)
        for (Form f : forms) {
          if (((d == MP || d == MAP) && f != Form::Packed) || (!dominant && (n < 3 || n > 6))) continue;
          const int count = (d == M || d == MP) ? 1 : 5;
          Batch<T> a(n, n, count, f), o(n, n, count, f);
          if (dominant) {
            fillWellConditioned(a, 7 * n + d);
          } else {
            a.fillRandom(100 + n + d, -1.0, 1.0);
            for (int k = 1; k < count; k += 2)
              for (int j = 0; j < n; ++j) a.set(k, 0, j, T(j % 3 ? 0.5 : -0.5));
          }
          std::vector<T> buf(n * n + n);
          ASSERT_EQ(invert(d, a, buf.data(), o, n), qelStatusOk) << n << " " << d << " " << qt::formName(f);
          const bool contig = f != Form::ColumnMajor && d != MP && d != MAP, f32 = std::is_same_v<T, float>;
          for (int k = 0; k < count; ++k) {
            const Mx m = objectOf(a, k), ref = refInverse(m, n), got = objectOf(o, k);
            const LD bound = inverseBound(m, ref, n, eps);
            for (int e = 0; e < n * n; ++e) ASSERT_NEAR(got[e], ref[e], bound) << n << " " << d << " " << e;
            // Exact where the order is fixed: order 3 scalar, order 2 and 7 up.
            bool sing = false;
            std::vector<T> exact;
            if (n == 3 && !(f32 && contig && d != MA)) exact = modelInv3<T>(m, !f32 && contig, sing, T(0));
            if (n == 2 || n >= 7) exact = modelGeneralInverse<T>(m, n, d == MAP, sing);
            if (n == 1) exact = {T(1) / T(m[0])};
            for (size_t e = 0; e < exact.size(); ++e) {
              ASSERT_EQ(T(got[e]), exact[e]) << n << " " << d << " " << qt::formName(f) << " " << e;
            }
          }
          EXPECT_TRUE(o.outsideIntact());
        }
}
TEST(Invert, EveryExportMatchesReferenceAndModels32f) { sweepInvert<Qel32f>(); }
TEST(Invert, EveryExportMatchesReferenceAndModels64f) { sweepInvert<Qel64f>(); }

template <class T>
void sweepDet() {
  const LD eps = std::numeric_limits<T>::epsilon();
  for (int n = 1; n <= 8; ++n)
    for (Desc d : kDescs)
      for (Form f : {Form::Packed, Form::ElementGaps}) {
        const int count = (d == M || d == MP) ? 1 : 4;
        Batch<T> a(n, n, count, f);
        a.fillRandom(11 * n + d);
        std::vector<T> buf(n * n + n), out(count, T(-7));
        ASSERT_EQ(det(d, a, buf.data(), out.data(), n), qelStatusOk);
        for (int k = 0; k < count; ++k) {
          const Mx m = objectOf(a, k);
          const T model = n >= 3 && n <= 6 ? modelClosedDet<T>(m, n) : modelGeneralDet<T>(m, n, count > 1);
          EXPECT_EQ(out[k], model) << n << " " << d;
          LD scale = 1;
          for (int i = 0; i < n; ++i) scale *= 4 * n;  // Hadamard-like size of the terms
          EXPECT_NEAR(out[k], refDet(m, n), 8 * n * eps * scale) << n << " " << d;
        }
      }
}
TEST(Det, EveryExportMatchesModelsAndReference32f) { sweepDet<Qel32f>(); }
TEST(Det, EveryExportMatchesModelsAndReference64f) { sweepDet<Qel64f>(); }

// Arrays in lanes and single objects give the same bits: the standard array
// kernels group objects, the _L kernels never do.
TEST(Invert, LanesAndSingleObjectsAgree) {
  for (int n = 3; n <= 6; ++n) {
    Batch<float> a(n, n, 9), o(n, n, 9), l(n, n, 9);
    Batch<double> ad(n, n, 9), od(n, n, 9), ld(n, n, 9);
    a.fillRandom(n), ad.fillRandom(n);
    std::vector<float> buf(64);
    std::vector<double> bufd(64);
    ASSERT_EQ(invert(MA, a, buf.data(), o, n), qelStatusOk);
    ASSERT_EQ(invert(ML, a, buf.data(), l, n), qelStatusOk);
    if (n != 3) {  // 32f order 3: another form
      EXPECT_TRUE(qt::sameBits(o.values(), l.values())) << n;
    }
    ASSERT_EQ(invert(MA, ad, bufd.data(), od, n), qelStatusOk);
    ASSERT_EQ(invert(ML, ad, bufd.data(), ld, n), qelStatusOk);
    EXPECT_TRUE(qt::sameBits(od.values(), ld.values())) << n;
  }
}

// ------------------------------------------------------------------ edges

template <class T>
Batch<T> diagonal(int n, std::vector<T> diag, int count = 1, Form f = Form::Packed) {
  Batch<T> b(n, n, count, f);
  b.fill(T(0));
  for (int k = 0; k < count; ++k)
    for (int i = 0; i < n; ++i) b.set(k, i, i, diag[i % diag.size()]);
  return b;
}

TEST(Invert, OrderOneAndTwo) {
  float buf[8];
  for (float v : {1e-45f, std::nanf("")}) {
    Batch<float> a = diagonal<float>(1, {v}), o(1, 1, 1);
    EXPECT_EQ(invert(M, a, buf, o, 1), qelStatusSingular);
    EXPECT_TRUE(o.untouched());
  }
  Batch<float> a = diagonal<float>(1, {4.0f}), o(1, 1, 1);
  EXPECT_EQ(invert(MP, a, buf, o, 1), qelStatusOk);
  EXPECT_EQ(o.get(0, 0, 0), 0.25f);
  // diag(2, 4): the vanishing minors give t r = 16 units / 8, negated.
  Batch<float> b = diagonal<float>(2, {2.0f, 4.0f}), p(2, 2, 1);
  EXPECT_EQ(invert(M, b, buf, p, 2), qelStatusOk);
  EXPECT_EQ(p.get(0, 0, 0), 0.5f);
  EXPECT_EQ(p.get(0, 1, 1), 0.25f);
  EXPECT_EQ(p.get(0, 0, 1), -2 * kUnit<float>);
  EXPECT_EQ(p.get(0, 1, 0), -2 * kUnit<float>);
}

// The tolerance of each kernel, passed at its value and failed one step below;
// a failure leaves dst untouched (block forms: only their scratch rows).
template <class T>
void toleranceEdge(Desc d, Form f, int n, int units) {
  const T tol = T(units) * kUnit<T>;
  for (bool pass : {true, false}) {
    const T v = pass ? tol : std::nextafter(tol, T(0));
    Batch<T> a = diagonal<T>(n, {v, T(1)}, 1, f);
    for (int i = 1; i < n; ++i) a.set(0, i, i, T(1));
    Batch<T> o(n, n, 1, f);
    std::vector<T> buf(n * n + n);
    const QelStatus st = invert(d, a, buf.data(), o, n);
    EXPECT_EQ(st, pass ? qelStatusOk : qelStatusSingular) << n << " " << d << " " << units;
    if (pass) continue;
    const bool block = std::is_same_v<T, float> && n >= 5 && f != Form::ColumnMajor && d != MP && d != MAP;
    for (int i = block ? n - 4 : 0; i < n; ++i)
      for (int j = 0; j < n; ++j) {
        T v2 = o.get(0, i, j);
        EXPECT_EQ(std::memcmp(&v2, std::vector<unsigned char>(sizeof(T), qt::kCanary).data(), sizeof(T)), 0);
      }
  }
}
TEST(Invert, ToleranceOfEveryKernel) {
  const int u32[] = {54, 128, 250, 432}, u64c[] = {108, 256, 250, 432};
  for (int n = 3; n <= 6; ++n)
    for (Desc d : {M, MA, ML, MAP}) {
      toleranceEdge<float>(d, Form::Packed, n, u32[n - 3]);
      toleranceEdge<double>(d, Form::Packed, n, d == MAP ? u32[n - 3] : u64c[n - 3]);
      if (d != MAP) toleranceEdge<double>(d, Form::ColumnMajor, n, u32[n - 3]);
    }
  // 60 units: singular in the contiguous Qel64f kernel, accepted on a general stride.
  double buf[12];
  Batch<double> a = diagonal<double>(3, {60 * kUnit<double>, 1.0}), o(3, 3, 1);
  a.set(0, 2, 2, 1.0);
  EXPECT_EQ(invert(M, a, buf, o, 3), qelStatusSingular);
  Batch<double> g = diagonal<double>(3, {60 * kUnit<double>, 1.0}, 1, Form::ElementGaps), og(3, 3, 1, Form::ElementGaps);
  g.set(0, 2, 2, 1.0);
  EXPECT_EQ(invert(M, g, buf, og, 3), qelStatusOk);
}

// Contiguous 4x4 Qel32f arrays on 16-byte rows go two at a time: a singular
// object keeps its partner unwritten. The _L kernel has no pairs.
TEST(Invert, PairFormStoresBothOrNeither) {
  float buf[20];
  auto written = [](const Batch<float>& o, int k) {
    Batch<float> fresh(4, 4, 5, Form::Pitch16);
    return std::memcmp(&o.values()[16 * k], &fresh.values()[16 * k], 64) != 0;
  };
  for (int bad : {0, 1, 2, 3}) {
    Batch<float> a(4, 4, 5, Form::Pitch16), o(4, 4, 5, Form::Pitch16), l(4, 4, 5, Form::Pitch16);
    fillWellConditioned(a, 3);
    for (int j = 0; j < 4; ++j) a.set(bad, 1, j, 0.0f);
    EXPECT_EQ(invert(MA, a, buf, o, 4), qelStatusSingular);
    EXPECT_EQ(invert(ML, a, buf, l, 4), qelStatusSingular);
    for (int k = 0; k < 5; ++k) {
      EXPECT_EQ(written(o, k), k < bad / 2 * 2) << bad << " " << k;
      EXPECT_EQ(written(l, k), k < bad) << bad << " " << k;
    }
  }
}

TEST(Invert, ArrayStopsAtFirstSingular) {
  for (int n : {1, 3, 4, 7}) {
    Batch<double> a(n, n, 4), o(n, n, 4);
    fillWellConditioned(a, 5);
    for (int j = 0; j < n; ++j) a.set(1, 0, j, 0.0);
    std::vector<double> buf(n * n + n);
    EXPECT_EQ(invert(MA, a, buf.data(), o, n), qelStatusSingular);
    Batch<double> fresh(n, n, 4);
    const auto got = o.values();
    for (int k = 0; k < 4; ++k)
      for (int e = 0; e < n * n; ++e) {
        const bool written = std::memcmp(&got[k * n * n + e], &fresh.values()[k * n * n + e], 8) != 0;
        EXPECT_EQ(written, k == 0) << n << " " << k;
      }
  }
}

TEST(Det, SmallPivotsAndSigns) {
  double buf[64], out[2];
  Batch<double> one = diagonal<double>(1, {3.0});
  EXPECT_EQ(det(M, one, buf, out, 1), qelStatusOk);
  EXPECT_EQ(out[0], 3.0);
  float fb[4], fo[1];
  Batch<float> tiny = diagonal<float>(1, {1e-40f});
  EXPECT_EQ(det(M, tiny, fb, fo, 1), qelStatusOk);
  EXPECT_EQ(fo[0], 0.0f);
  Batch<double> perm(2, 2, 1);
  perm.fill(0.0), perm.set(0, 0, 1, 1.0), perm.set(0, 1, 0, 1.0);
  EXPECT_EQ(det(M, perm, buf, out, 2), qelStatusOk);
  EXPECT_EQ(out[0], -1.0);
  // Order 7 with a zero first column: the single form an exact +0, the array
  // form a zero of some sign, and the next object still gets its value.
  Batch<double> z(7, 7, 2);
  fillWellConditioned(z, 9);
  for (int i = 0; i < 7; ++i) z.set(0, i, 0, 0.0);
  EXPECT_EQ(det(M, z, buf, out, 7), qelStatusOk);
  EXPECT_EQ(std::signbit(out[0]), false);
  EXPECT_EQ(out[0], 0.0);
  EXPECT_EQ(det(MA, z, buf, out, 7), qelStatusOk);
  EXPECT_EQ(out[0], 0.0);
  EXPECT_NEAR(out[1], refDet(objectOf(z, 1), 7), 1e-9);
}

TEST(InvertDet, ChecksInOrder) {
  float a[64] = {1}, buf[64], o[64] = {};
  const float* list[1] = {a};
  float* olist[1] = {o};
  EXPECT_EQ(qelmInvert_m_32f(a, 12, 4, nullptr, o, 12, 4, 3), qelStatusNullPointer);
  EXPECT_EQ(qelmDet_m_32f(a, 12, 4, 3, nullptr, o), qelStatusNullPointer);
  EXPECT_EQ(qelmInvert_ma_32f(a, 36, 12, 4, buf, o, 36, 12, 4, 0, 0), qelStatusBadCount);
  EXPECT_EQ(qelmInvert_ma_32f(a, 36, 12, 2, buf, o, 36, 12, 4, 0, 1), qelStatusBadSize);
  EXPECT_EQ(qelmInvert_ma_32f(a, 36, 12, 2, buf, o, 36, 12, 4, 3, 1), qelStatusBadStride);
  EXPECT_EQ(qelmInvert_ma_32f_L(list, -4, 12, 4, buf, olist, 0, 12, 4, 3, 1), qelStatusBadRoiShift);
  EXPECT_EQ(qelmInvert_ma_32f_P(list, 0, 0, buf, olist, 0, 36, 3, 1), qelStatusBadStride);
  EXPECT_EQ(qelmInvert_m_32f_P(list, 2, buf, olist, 0, 1), qelStatusBadRoiShift);
  EXPECT_EQ(qelmDet_ma_64f(nullptr, 0, 0, 0, 0, nullptr, nullptr, 0), qelStatusNullPointer);
  EXPECT_EQ(qelmDet_ma_32f(a, 36, 12, 4, 3, buf, o, -1), qelStatusBadCount);
  EXPECT_EQ(qelmDet_m_32f(a, 12, 0, 0, buf, o), qelStatusBadSize);
  EXPECT_EQ(qelmDet_ma_32f_P(list, 6, 36, 3, buf, o, 1), qelStatusBadRoiShift);
  for (float v : o) EXPECT_EQ(v, 0.0f);
}

// Work limits at their edges (2 size count for Invert: 3600 on the contiguous
// Qel32f standard array, 2500 elsewhere; size count 14400 for Det), the
// caller's buffer left alone by a forked call, the same bits on any budget.
TEST(InvertDet, ThresholdsBuffersAndBudgets) {
  struct Case { int n, count; Form f; bool f32, parallel; };
  const Case cases[] = {{4, 450, Form::Packed, true, false}, {4, 451, Form::Packed, true, true},
                        {5, 250, Form::ColumnMajor, true, false}, {5, 251, Form::ColumnMajor, true, true},
                        {5, 250, Form::Packed, false, false}, {5, 251, Form::Packed, false, true}};
  for (const Case& c : cases) {
    auto run = [&](auto t, int budget) {
      using T = decltype(t);
      Batch<T> a(c.n, c.n, c.count, c.f), o(c.n, c.n, c.count, c.f);
      fillWellConditioned(a, 1);
      PinnedBudget pin(budget);
      std::vector<T> buf(c.n * c.n + c.n);
      EXPECT_EQ(invert(MA, a, buf.data(), o, c.n), qelStatusOk);
      EXPECT_EQ(pin.calls() > 0, c.parallel) << c.n << " " << c.count;
      return o.values();
    };
    if (c.f32) EXPECT_TRUE(qt::sameBits(run(0.0f, 1), run(0.0f, 2)));
    else EXPECT_TRUE(qt::sameBits(run(0.0, 1), run(0.0, 2)));
  }
  for (int count : {4800, 4801}) {
    Batch<double> a(3, 3, count);
    a.fillRandom(2);
    std::vector<double> buf(12), o1(count), o2(count);
    { PinnedBudget pin(2); det(MA, a, buf.data(), o1.data(), 3); EXPECT_EQ(pin.calls() > 0, count == 4801); }
    det(MA, a, buf.data(), o2.data(), 3);
    EXPECT_TRUE(qt::sameBits(o1, o2));
  }
  // Order 7 forked: every thread eliminates in its own slice.
  for (bool inv : {true, false}) {
    const int count = inv ? 400 : 2100;
    Batch<double> a(7, 7, count), o(7, 7, count);
    fillWellConditioned(a, 4);
    std::vector<double> buf(56, 1234.5), out(count);
    PinnedBudget pin(2);
    EXPECT_EQ(inv ? invert(MA, a, buf.data(), o, 7) : det(MA, a, buf.data(), out.data(), 7), qelStatusOk);
    EXPECT_GT(pin.calls(), 0);
    for (double v : buf) EXPECT_EQ(v, 1234.5);
  }
}

}  // namespace
