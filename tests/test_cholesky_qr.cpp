// CholeskyDecomp / CholeskyBackSubst and QRDecomp / QRBackSubst. Every export in
// every description against models written here in the element type (the
// order of each sum, split accumulators included) and, for the answers, against
// long-double solves of the original systems; then tolerance islands, failure
// states serial and per share, thresholds, scratch, in-place use and checks.
#include <gtest/gtest.h>
#include <qelm/qelm.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <tuple>
#include <vector>

#include "batch.h"
#include "pinned_core.h"

namespace {

using qt::Batch;
using qt::Form;
using LD = long double;

template <class T> struct Ex;
#define CQ_EXPORTS(T, F)                                                                                     \
  template <> struct Ex<T> {                                                                                 \
    static constexpr auto cm = qelmCholeskyDecomp_m_##F, cmP = qelmCholeskyDecomp_m_##F##_P;                 \
    static constexpr auto cma = qelmCholeskyDecomp_ma_##F, cmaL = qelmCholeskyDecomp_ma_##F##_L,              \
                          cmaP = qelmCholeskyDecomp_ma_##F##_P;                                              \
    static constexpr auto cmv = qelmCholeskyBackSubst_mv_##F, cmvP = qelmCholeskyBackSubst_mv_##F##_P;        \
    static constexpr auto cmva = qelmCholeskyBackSubst_mva_##F, cmvaL = qelmCholeskyBackSubst_mva_##F##_L,    \
                          cmvaP = qelmCholeskyBackSubst_mva_##F##_P;                                         \
    static constexpr auto cmava = qelmCholeskyBackSubst_mava_##F, cmavaL = qelmCholeskyBackSubst_mava_##F##_L, \
                          cmavaP = qelmCholeskyBackSubst_mava_##F##_P;                                       \
    static constexpr auto qm = qelmQRDecomp_m_##F, qmP = qelmQRDecomp_m_##F##_P;                              \
    static constexpr auto qma = qelmQRDecomp_ma_##F, qmaL = qelmQRDecomp_ma_##F##_L,                          \
                          qmaP = qelmQRDecomp_ma_##F##_P;                                                    \
    static constexpr auto qmv = qelmQRBackSubst_mv_##F, qmvP = qelmQRBackSubst_mv_##F##_P;                    \
    static constexpr auto qmva = qelmQRBackSubst_mva_##F, qmvaL = qelmQRBackSubst_mva_##F##_L,                \
                          qmvaP = qelmQRBackSubst_mva_##F##_P;                                               \
    static constexpr auto qmava = qelmQRBackSubst_mava_##F, qmavaL = qelmQRBackSubst_mava_##F##_L,            \
                          qmavaP = qelmQRBackSubst_mava_##F##_P;                                             \
  };
CQ_EXPORTS(Qel32f, 32f)
CQ_EXPORTS(Qel64f, 64f)

enum Desc { Std, List, Ptr };
enum Shape { M, MA, MV, MVA, MAVA };
struct Call { Shape s; Desc d; };
const Call kDecomps[] = {{M, Std}, {M, Ptr}, {MA, Std}, {MA, List}, {MA, Ptr}};
const Call kSolves[] = {{MV, Std}, {MV, Ptr}, {MVA, Std}, {MVA, List}, {MVA, Ptr}, {MAVA, Std}, {MAVA, List}, {MAVA, Ptr}};
std::string name(Call c) { return std::string("M\0\0MA\0MV\0MVA\0MAVA" + 4 * c.s) + "SLP"[c.d]; }

// ------------------------------------------------------------------ callers
// Cholesky when buf is null (w = h = size), QR otherwise. A single factor of
// mva is object 0 of `a`.
template <class T>
QelStatus decomp(Call c, Batch<T>& a, T* buf, Batch<T>& o, int w, int h) {
  using E = Ex<T>;
  const int n = a.count();
  if (!buf) {
    if (c.s == M) return c.d == Ptr ? E::cmP(a.elems(), a.elemShift, o.elems(), o.elemShift, w)
                                    : E::cm(a.ptr(), a.s1, a.s2, o.ptr(), o.s1, o.s2, w);
    if (c.d == Std) return E::cma(a.ptr(), a.s0, a.s1, a.s2, o.ptr(), o.s0, o.s1, o.s2, w, n);
    if (c.d == List) return E::cmaL(a.list(), a.listShift, a.s1, a.s2, o.list(), o.listShift, o.s1, o.s2, w, n);
    return E::cmaP(a.elems(), a.elemShift, a.s0, o.elems(), o.elemShift, o.s0, w, n);
  }
  if (c.s == M) return c.d == Ptr ? E::qmP(a.elems(), a.elemShift, buf, o.elems(), o.elemShift, w, h)
                                  : E::qm(a.ptr(), a.s1, a.s2, buf, o.ptr(), o.s1, o.s2, w, h);
  if (c.d == Std) return E::qma(a.ptr(), a.s0, a.s1, a.s2, buf, o.ptr(), o.s0, o.s1, o.s2, w, h, n);
  if (c.d == List) return E::qmaL(a.list(), a.listShift, a.s1, a.s2, buf, o.list(), o.listShift, o.s1, o.s2, w, h, n);
  return E::qmaP(a.elems(), a.elemShift, a.s0, buf, o.elems(), o.elemShift, o.s0, w, h, n);
}

template <class T>
QelStatus solve(Call c, Batch<T>& a, T* buf, Batch<T>& b, Batch<T>& x, int w, int h) {
  using E = Ex<T>;
  const int n = b.count();
  const bool q = buf != nullptr;
  if (c.s == MV) {
    if (c.d == Ptr)
      return q ? E::qmvP(a.elems(), a.elemShift, buf, b.elems(), b.elemShift, x.elems(), x.elemShift, w, h)
               : E::cmvP(a.elems(), a.elemShift, b.elems(), b.elemShift, x.elems(), x.elemShift, w);
    return q ? E::qmv(a.ptr(), a.s1, a.s2, buf, b.ptr(), b.s2, x.ptr(), x.s2, w, h)
             : E::cmv(a.ptr(), a.s1, a.s2, b.ptr(), b.s2, x.ptr(), x.s2, w);
  }
  if (c.s == MVA) {
    if (c.d == Std)
      return q ? E::qmva(a.ptr(), a.s1, a.s2, buf, b.ptr(), b.s0, b.s2, x.ptr(), x.s0, x.s2, w, h, n)
               : E::cmva(a.ptr(), a.s1, a.s2, b.ptr(), b.s0, b.s2, x.ptr(), x.s0, x.s2, w, n);
    if (c.d == List)
      return q ? E::qmvaL(a.ptr(), a.s1, a.s2, buf, b.list(), b.listShift, b.s2, x.list(), x.listShift, x.s2, w, h, n)
               : E::cmvaL(a.ptr(), a.s1, a.s2, b.list(), b.listShift, b.s2, x.list(), x.listShift, x.s2, w, n);
    return q ? E::qmvaP(a.elems(), a.elemShift, buf, b.elems(), b.elemShift, b.s0, x.elems(), x.elemShift, x.s0, w, h, n)
             : E::cmvaP(a.elems(), a.elemShift, b.elems(), b.elemShift, b.s0, x.elems(), x.elemShift, x.s0, w, n);
  }
  if (c.d == Std)
    return q ? E::qmava(a.ptr(), a.s0, a.s1, a.s2, buf, b.ptr(), b.s0, b.s2, x.ptr(), x.s0, x.s2, w, h, n)
             : E::cmava(a.ptr(), a.s0, a.s1, a.s2, b.ptr(), b.s0, b.s2, x.ptr(), x.s0, x.s2, w, n);
  if (c.d == List)
    return q ? E::qmavaL(a.list(), a.listShift, a.s1, a.s2, buf, b.list(), b.listShift, b.s2, x.list(), x.listShift,
                         x.s2, w, h, n)
             : E::cmavaL(a.list(), a.listShift, a.s1, a.s2, b.list(), b.listShift, b.s2, x.list(), x.listShift, x.s2,
                         w, n);
  return q ? E::qmavaP(a.elems(), a.elemShift, a.s0, buf, b.elems(), b.elemShift, b.s0, x.elems(), x.elemShift, x.s0,
                       w, h, n)
           : E::cmavaP(a.elems(), a.elemShift, a.s0, b.elems(), b.elemShift, b.s0, x.elems(), x.elemShift, x.s0, w, n);
}

// ------------------------------------------------------------------ models
// A running value and its terms in the library's order: plain below 8 terms,
// else the value heads lane 0 of the first of two accumulators of 4 (float) or
// 2 (double) lanes, 8 terms a pass, folded pairwise, then the tail one by one.
template <class T>
T runSum(T init, const std::vector<T>& t) {
  const int K = t.size(), L = sizeof(T) == 4 ? 4 : 2;
  T s = init;
  int k = 0;
  if (K >= 8) {
    T acc[2][4] = {{init}};
    for (; k + 8 <= K; k += 8)
      for (int u = 0; u < 8; ++u) acc[(u / L) % 2][u % L] = acc[(u / L) % 2][u % L] + t[k + u];
    T f[4];
    for (int l = 0; l < L; ++l) f[l] = acc[0][l] + acc[1][l];
    s = L == 4 ? (f[0] + f[1]) + (f[2] + f[3]) : f[0] + f[1];
  }
  for (; k < K; ++k) s = s + t[k];
  return s;
}

template <class T>
struct CholModel {
  QelStatus st = qelStatusOk;
  std::vector<T> f;            // n*n, the factor in its stored form
  std::vector<bool> written;   // per element
};
// Late: the _P stores of order 3 (rows 0 and 1 after row 1, row 2 after row 2).
template <class T>
CholModel<T> modelChol(const std::vector<T>& a, int n, T tol, bool late) {
  CholModel<T> r{qelStatusOk, std::vector<T>(n * n, T(0)), std::vector<bool>(n * n, false)};
  auto& f = r.f;
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j <= i; ++j) {
      std::vector<T> t;
      for (int k = 0; k < j; ++k) t.push_back(-(f[i * n + k] * f[j * n + k]));
      const T s = runSum(a[i * n + j], t);
      if (j < i) {
        f[i * n + j] = s * f[j * n + j];
      } else if (tol >= s) {
        r.st = qelStatusNotPositiveDefinite;
        if (late)
          for (int e = 0; e < n * n; ++e) r.written[e] = i == 2 && e / n < 2 && e % n <= e / n;
        return r;
      } else {
        f[i * n + i] = T(1) / std::sqrt(s);
      }
      r.written[i * n + j] = true;
    }
  }
  return r;
}

template <class T>
std::vector<T> modelCholSolve(const std::vector<T>& f, const std::vector<T>& b, int n) {
  const bool fixed = n >= 3 && n <= 6;
  std::vector<T> y(n);
  for (int k = 0; k < n; ++k) {
    std::vector<T> t;
    for (int j = 0; j < k; ++j) t.push_back(-(f[k * n + j] * y[j]));
    y[k] = runSum(b[k], t) * f[k * n + k];
  }
  for (int k = n - 1; k >= 0; --k) {
    std::vector<T> t;
    for (int j = k + 1; j < n; ++j) t.push_back(-(f[(fixed ? n + k - j : j) * n + k] * y[fixed ? n + k - j : j]));
    y[k] = runSum(y[k], t) * f[k * n + k];
  }
  return y;
}

// d: m rows of n, reduced in place; answers the status and leaves the state.
template <class T>
QelStatus modelQr(std::vector<T>& d, int n, int m) {
  const double tol = sizeof(T) == 4 ? 0x1p-23 : 0x1p-52;
  std::vector<T> v(m);
  for (int k = 0; k < (n == m ? n - 1 : n); ++k) {
    std::vector<T> sq, vv;
    for (int i = k; i < m; ++i) sq.push_back(d[i * n + k] * d[i * n + k]);
    const double s = runSum(T(0), sq);
    if (tol > std::fabs(s)) return qelStatusDivideByZero;
    const T head = d[k * n + k];
    const T r = head > 0 ? T(std::sqrt(s)) : -T(std::sqrt(s));
    const T h = T(1) / (head + r);
    v[k] = 1;
    for (int i = k + 1; i < m; ++i) {
      v[i] = d[i * n + k] * h;
      vv.push_back(v[i] * v[i]);
    }
    const T beta = T(-2) / runSum(T(1), vv);
    for (int j = k; j < n; ++j) {
      std::vector<T> p;
      for (int i = k + 1; i < m; ++i) p.push_back(d[i * n + j] * v[i]);
      const T t = runSum(d[k * n + j], p) * beta;
      for (int i = k; i < m; ++i) d[i * n + j] = v[i] * t + d[i * n + j];
    }
    for (int i = k + 1; i < m; ++i) d[i * n + k] = v[i];
  }
  return qelStatusOk;
}

template <class T>
std::vector<T> modelQrSolve(const std::vector<T>& f, std::vector<T> c, int n, int m) {
  auto a = [&](int i, int j) { return f[i * n + j]; };
  std::vector<T> x(n);
  if (n == m && n == 3) {  // the stated formulas, term for term
    const T b0 = c[0], b1 = c[1], b2 = c[2];
    const T beta0 = T(-2) / (a(1, 0) * a(1, 0) + 1 + a(2, 0) * a(2, 0));
    const T t0 = (b1 * a(1, 0) + b0 + b2 * a(2, 0)) * beta0;
    const T c2 = b2 + a(2, 0) * t0, c1 = b1 + a(1, 0) * t0;
    const T t1 = (a(2, 1) * c2 + c1) * (T(-2) / (a(2, 1) * a(2, 1) + 1));
    x[2] = (c2 + a(2, 1) * t1) / a(2, 2);
    x[1] = (c1 - a(1, 2) * x[2] + t1) / a(1, 1);
    x[0] = (t0 + b0 - a(0, 2) * x[2] - a(0, 1) * x[1]) / a(0, 0);
    return x;
  }
  if (n == m && n >= 4 && n <= 6) {  // last row, head, then the rest ascending
    std::vector<T> t(n);
    for (int k = 0; k + 1 < n; ++k) {
      T q = a(n - 1, k) * a(n - 1, k) + 1, p = c[n - 1] * a(n - 1, k) + c[k];
      for (int i = k + 1; i < n - 1; ++i) q = q + a(i, k) * a(i, k), p = p + c[i] * a(i, k);
      t[k] = p * (T(-2) / q);
      for (int i = k + 1; i < n; ++i) c[i] = c[i] + a(i, k) * t[k];
    }
    x[n - 1] = c[n - 1] / a(n - 1, n - 1);
    x[n - 2] = (c[n - 2] - a(n - 2, n - 1) * x[n - 1] + t[n - 2]) / a(n - 2, n - 2);
    for (int k = n - 3; k >= 0; --k) {
      T s = t[k] + c[k];
      for (int j = n - 1; j > k; --j) s = s - a(k, j) * x[j];
      x[k] = s / a(k, k);
    }
    return x;
  }
  for (int k = 0; k < (n == m ? n - 1 : n); ++k) {
    T q = 1, p = c[k];
    for (int i = k + 1; i < m; ++i) q = q + a(i, k) * a(i, k), p = p + a(i, k) * c[i];
    const T t = (T(-2) / q) * p;
    c[k] = c[k] + t;
    for (int i = k + 1; i < m; ++i) c[i] = c[i] + a(i, k) * t;
  }
  for (int k = n - 1; k >= 0; --k) {
    T s = 0;
    for (int j = k + 1; j < n; ++j) s = s + a(k, j) * x[j];
    x[k] = (c[k] - s) / a(k, k);
  }
  return x;
}

// min ||A x - b|| in long double through the normal equations (A square: A x = b).
std::vector<LD> leastSquares(const std::vector<LD>& A, const std::vector<LD>& b, int n, int m) {
  std::vector<LD> N(n * (n + 1), 0);
  for (int i = 0; i < n; ++i)
    for (int k = 0; k < m; ++k) {
      for (int j = 0; j < n; ++j) N[i * (n + 1) + j] += A[k * n + i] * A[k * n + j];
      N[i * (n + 1) + n] += A[k * n + i] * b[k];
    }
  for (int k = 0; k < n; ++k)
    for (int i = k + 1; i < n; ++i) {
      const LD l = N[i * (n + 1) + k] / N[k * (n + 1) + k];
      for (int j = k; j <= n; ++j) N[i * (n + 1) + j] -= l * N[k * (n + 1) + j];
    }
  std::vector<LD> x(n);
  for (int k = n - 1; k >= 0; --k) {
    LD s = N[k * (n + 1) + n];
    for (int j = k + 1; j < n; ++j) s -= N[k * (n + 1) + j] * x[j];
    x[k] = s / N[k * (n + 1) + k];
  }
  return x;
}

// ------------------------------------------------------------------ helpers
template <class T>
bool canary(T v) {
  unsigned char c[sizeof(T)];
  std::memcpy(c, &v, sizeof(T));
  for (unsigned char b : c)
    if (b != qt::kCanary) return false;
  return true;
}
template <class T>
std::vector<T> object(const Batch<T>& b, int n) {
  std::vector<T> v;
  for (int i = 0; i < b.rows(); ++i)
    for (int j = 0; j < b.cols(); ++j) v.push_back(b.get(n, i, j));
  return v;
}
template <class T>
void setObject(Batch<T>& b, int n, const std::vector<T>& v) {
  for (int i = 0; i < b.rows(); ++i)
    for (int j = 0; j < b.cols(); ++j) b.set(n, i, j, v[i * b.cols() + j]);
}
// B B^T + n I in the lower triangle, NaN above it (never read).
template <class T>
std::vector<T> spd(int n, std::mt19937& rng) {
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<double> B(n * n);
  for (auto& e : B) e = u(rng);
  std::vector<T> a(n * n, T(NAN));
  for (int i = 0; i < n; ++i)
    for (int j = 0; j <= i; ++j) {
      double s = i == j ? n : 0;
      for (int k = 0; k < n; ++k) s += B[i * n + k] * B[j * n + k];
      a[i * n + j] = T(s);
    }
  return a;
}
template <class T>
std::vector<LD> symmetric(const std::vector<T>& a, int n) {
  std::vector<LD> A(n * n);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) A[i * n + j] = a[i >= j ? i * n + j : j * n + i];
  return A;
}
template <class T>
void expectNear(const std::vector<T>& got, const std::vector<LD>& want, const std::string& what) {
  const LD tol = sizeof(T) == 4 ? 2e-4L : 1e-11L;
  LD scale = 1;
  for (LD w : want) scale = std::max(scale, std::fabs(w));
  for (size_t k = 0; k < got.size(); ++k) ASSERT_LE(std::fabs(got[k] - want[k]), tol * scale) << what << " @" << k;
}

const Form kForms[] = {Form::Packed, Form::ElementGaps};

// ------------------------------------------------------------------ sweeps
// Factors of every export in every description, then every solve export on
// the factors of the strided array call, read through all three descriptions.
template <class T>
void sweepCholesky() {
  std::mt19937 rng(7);
  for (int n : {1, 2, 3, 4, 5, 6, 7, 9, 11})
    for (Form form : kForms)
      for (Call c : kDecomps) {
        const int count = c.s == M ? 1 : 5;  // 5: lanes of four and one more
        Batch<T> a(n, n, count, form), o(n, n, count, form);
        std::vector<std::vector<T>> src;
        for (int k = 0; k < count; ++k) setObject(a, k, src.emplace_back(spd<T>(n, rng)));
        const std::string what = name(c) + " n=" + std::to_string(n) + " " + qt::formName(form);
        ASSERT_EQ(decomp(c, a, (T*)nullptr, o, n, n), qelStatusOk) << what;
        ASSERT_TRUE(o.outsideIntact()) << what;
        for (int k = 0; k < count; ++k) {
          auto got = object(o, k);
          const auto model = modelChol(src[k], n, T(0), false);
          std::vector<T> lower;
          std::vector<LD> ref(n * n, 0);  // long-double L, reciprocal diagonal
          const auto A = symmetric(src[k], n);
          for (int i = 0; i < n; ++i)
            for (int j = 0; j <= i; ++j) {
              LD s = A[i * n + j];
              for (int q = 0; q < j; ++q) s -= ref[i * n + q] * ref[j * n + q];
              ref[i * n + j] = i == j ? 1 / std::sqrt(s) : s * ref[j * n + j];
            }
          for (int e = 0; e < n * n; ++e) {
            if (e % n > e / n) {
              ASSERT_TRUE(canary(got[e])) << what << " wrote above the diagonal";
            } else if (sizeof(T) == 8) {
              ASSERT_EQ(got[e], model.f[e]) << what << " @" << e;
            }
            if (e % n > e / n) ref[e] = got[e] = 0;
          }
          expectNear(got, ref, what);
        }
        if (c.s != MA || c.d != Std) continue;
        for (Call sc : kSolves) {
          const int cnt = sc.s == MV ? 1 : 5;
          Batch<T> b(1, n, cnt, form), x(1, n, cnt, form);
          b.fillRandom(11 + n);
          ASSERT_EQ(solve(sc, o, (T*)nullptr, b, x, n, n), qelStatusOk) << what << name(sc);
          ASSERT_TRUE(x.outsideIntact());
          for (int k = 0; k < cnt; ++k) {
            const int f = sc.s == MAVA ? k : 0;
            const auto got = object(x, k);
            ASSERT_TRUE(qt::sameBits(got, modelCholSolve(object(o, f), object(b, k), n))) << what << name(sc);
            const auto bk = object(b, k);
            expectNear(got, leastSquares(symmetric(src[f], n), std::vector<LD>(bk.begin(), bk.end()), n, n),
                       what + name(sc));
          }
        }
      }
}
TEST(Cholesky, EveryExportInEveryDescription32f) { sweepCholesky<Qel32f>(); }
TEST(Cholesky, EveryExportInEveryDescription64f) { sweepCholesky<Qel64f>(); }

template <class T>
void sweepQr() {
  const int shapes[][2] = {{1, 1}, {1, 4}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {3, 4}, {2, 12}, {4, 13}, {7, 7}, {9, 9}};
  for (const auto& sh : shapes)
    for (Form form : kForms)
      for (Call c : kDecomps) {
        const int w = sh[0], h = sh[1], count = c.s == M ? 1 : 5;  // 5: lanes of four and one more
        Batch<T> a(h, w, count, form), o(h, w, count, form);
        a.fillRandom(w * 31 + h);
        for (int k = 0; k < count; ++k)
          for (int i = 0; i < w; ++i) a.set(k, i, i, a.get(k, i, i) + T(8));
        std::vector<T> buf(h);
        const std::string what = name(c) + " " + std::to_string(w) + "x" + std::to_string(h) + qt::formName(form);
        ASSERT_EQ(decomp(c, a, buf.data(), o, w, h), qelStatusOk) << what;
        ASSERT_TRUE(o.outsideIntact());
        for (int k = 0; k < count; ++k) {
          auto model = object(a, k);
          ASSERT_EQ(modelQr(model, w, h), qelStatusOk);
          ASSERT_TRUE(qt::sameBits(object(o, k), model)) << what;
        }
        if (c.s != MA || c.d != Std) continue;
        for (Call sc : kSolves) {
          const int cnt = sc.s == MV ? 1 : 5;
          Batch<T> b(1, h, cnt, form), x(1, w, cnt, form);
          b.fillRandom(5 + h);
          ASSERT_EQ(solve(sc, o, buf.data(), b, x, w, h), qelStatusOk) << what << name(sc);
          ASSERT_TRUE(x.outsideIntact());
          for (int k = 0; k < cnt; ++k) {
            const int f = sc.s == MAVA ? k : 0;
            const auto got = object(x, k), bk = object(b, k), ak = object(a, f);
            ASSERT_TRUE(qt::sameBits(got, modelQrSolve(object(o, f), bk, w, h))) << what << name(sc);
            expectNear(got, leastSquares({ak.begin(), ak.end()}, {bk.begin(), bk.end()}, w, h), what + name(sc));
          }
        }
      }
}
TEST(QR, EveryExportInEveryDescription32f) { sweepQr<Qel32f>(); }
TEST(QR, EveryExportInEveryDescription64f) { sweepQr<Qel64f>(); }


// ------------------------------------------------------------------ edges
template <class T>
QelStatus factorOne(Call c, int n, Form form, std::vector<T> a, Batch<T>& o) {
  Batch<T> in(n, n, 1, form);
  setObject(in, 0, a);
  return decomp(c, in, (T*)nullptr, o, n, n);
}
template <class T>
std::vector<T> diagonal(int n, T d) {
  std::vector<T> a(n * n, T(0));
  for (int i = 0; i < n; ++i) a[i * n + i] = d;
  return a;
}

template <class T>
void choleskyIslands() {
  auto st = [](Call c, int n, Form f, T d) {
    Batch<T> o(n, n, 1, f);
    return factorOne(c, n, f, diagonal(n, d), o);
  };
  const auto npd = qelStatusNotPositiveDefinite;
  for (Call c : kDecomps) {
    // The _P kernels at order 3 want more than 2^-23; everything else more than 0.
    EXPECT_EQ(st(c, 3, Form::Packed, T(1e-9)), c.d == Ptr ? npd : qelStatusOk) << name(c);
    EXPECT_EQ(st(c, 3, Form::Packed, T(0x1p-23)), c.d == Ptr ? npd : qelStatusOk) << name(c);
    EXPECT_EQ(st(c, 3, Form::Packed, T(0x1.000002p-23)), qelStatusOk) << name(c);
    EXPECT_EQ(st(c, 4, Form::Packed, T(1e-9)), qelStatusOk) << name(c);
    for (int n : {1, 3, 6, 7}) EXPECT_EQ(st(c, n, Form::Packed, T(0)), npd) << name(c) << n;
    // 2^-52 on the general-stride kernel of the strided Qel64f array, orders 6 and 1, 2, 7 up.
    for (int n : {2, 5, 6, 7})
      for (Form f : kForms)
        EXPECT_EQ(st(c, n, f, T(1e-17)),
                  sizeof(T) == 8 && c.s == MA && c.d == Std && f == Form::ElementGaps && n != 5 ? npd : qelStatusOk)
            << name(c) << n << qt::formName(f);
  }
  // A NaN passes and spreads; size 1 is the reciprocal root.
  Batch<T> o(1, 1, 1);
  EXPECT_EQ(factorOne<T>({M, Std}, 1, Form::Packed, {T(NAN)}, o), qelStatusOk);
  EXPECT_TRUE(std::isnan(o.get(0, 0, 0)));
  EXPECT_EQ(factorOne<T>({M, Std}, 1, Form::Packed, {T(4)}, o), qelStatusOk);
  EXPECT_NEAR(o.get(0, 0, 0), 0.5, sizeof(T) == 4 ? 1e-6 : 0);
}
TEST(Cholesky, ToleranceIslands32f) { choleskyIslands<Qel32f>(); }
TEST(Cholesky, ToleranceIslands64f) { choleskyIslands<Qel64f>(); }

// A failure at row i: rows above finished, row i's left part stored without
// its diagonal, the rest untouched; the _P order 3 stores late.
template <class T>
void choleskyFailureStates() {
  for (int n : {3, 4, 7})
    for (int i = 0; i < n; ++i)
      for (Call c : {Call{M, Std}, Call{M, Ptr}, Call{MA, List}}) {
        auto a = diagonal(n, T(1));
        for (int j = 0; j < i; ++j) a[i * n + j] = T(0.25);
        a[i * n + i] = T(-1);
        Batch<T> o(n, n, 1);
        ASSERT_EQ(factorOne(c, n, Form::Packed, a, o), qelStatusNotPositiveDefinite);
        const auto model = modelChol(a, n, T(c.d == Ptr && n == 3 ? 0x1p-23 : 0), c.d == Ptr && n == 3);
        const auto got = object(o, 0);
        for (int e = 0; e < n * n; ++e) ASSERT_EQ(!canary(got[e]), model.written[e]) << name(c) << n << " " << i << " @" << e;
      }
}
TEST(Cholesky, FailureStates32f) { choleskyFailureStates<Qel32f>(); }
TEST(Cholesky, FailureStates64f) { choleskyFailureStates<Qel64f>(); }

TEST(QR, Edges) {
  using T = Qel32f;
  std::vector<T> buf(4);
  auto one = [&](int w, int h, std::vector<T> a, Batch<T>& o) {
    Batch<T> in(h, w, 1);
    setObject(in, 0, a);
    return decomp<T>({M, Std}, in, buf.data(), o, w, h);
  };
  // A vanished column: status, and column k untouched by step k.
  Batch<T> o3(3, 3, 1), o2(2, 1, 1), o1(1, 1, 1), o4(4, 1, 1);
  const std::vector<T> zeroFirst = {0, 1, 2, 0, 3, 4, 0, 5, 7};
  EXPECT_EQ(one(3, 3, zeroFirst, o3), qelStatusDivideByZero);
  EXPECT_TRUE(qt::sameBits(object(o3, 0), zeroFirst));
  EXPECT_EQ(one(1, 2, {1e-4f, 0}, o2), qelStatusDivideByZero);
  EXPECT_EQ(one(1, 2, {4e-4f, 0}, o2), qelStatusOk);
  const std::vector<T> dependent = {1, 2, 2, 2, 4, 4, 3, 6, 1};  // second column twice the first
  auto model = dependent;
  EXPECT_EQ(modelQr(model, 3, 3), qelStatusDivideByZero);
  EXPECT_EQ(one(3, 3, dependent, o3), qelStatusDivideByZero);
  EXPECT_TRUE(qt::sameBits(object(o3, 0), model));
  // 1 x 1 has no step; a zero head takes the negative root and a positive R.
  EXPECT_EQ(one(1, 1, {0}, o1), qelStatusOk);
  EXPECT_EQ(o1.get(0, 0, 0), 0.0f);
  EXPECT_EQ(one(1, 4, {0, 3, 0, 4}, o4), qelStatusOk);
  EXPECT_NEAR(o4.get(0, 0, 0), 5.0f, 1e-5);
  // A zero diagonal of R runs into the solve: status 0, infinity.
  Batch<T> f(3, 3, 1), b(1, 3, 1), x(1, 3, 1);
  setObject(f, 0, {1, 0, 0, 0, 1, 0, 0, 0, 0});
  b.fill(1);
  EXPECT_EQ(solve<T>({MV, Std}, f, buf.data(), b, x, 3, 3), qelStatusOk);
  EXPECT_TRUE(std::isinf(x.get(0, 0, 2)));
}

// Objects go through the fixed factor in groups; a group with a failure runs
// again object by object and stops at the failing one.
template <class T>
void groupStop(bool qr) {
  Batch<T> a(4, 4, 8), o(4, 4, 8);
  std::mt19937 rng(4);
  a.fillRandom(13);
  for (int k = 0; k < 8 && !qr; ++k) setObject(a, k, spd<T>(4, rng));
  auto failing = diagonal(4, T(1));
  failing[10] = T(-1);  // row 2 of the Cholesky factor; column 0 zero for QR
  if (qr) failing[0] = failing[4] = failing[8] = 0;
  setObject(a, 5, failing);
  std::vector<T> buf(4);
  ASSERT_EQ(decomp<T>({MA, Std}, a, qr ? buf.data() : nullptr, o, 4, 4),
            qr ? qelStatusDivideByZero : qelStatusNotPositiveDefinite);
  for (int k = 0; k < 8; ++k) {
    auto model = object(a, k);
    std::vector<bool> written(16, k <= 5);
    if (qr) {
      modelQr(model, 4, 4);
    } else {
      const auto m = modelChol(model, 4, T(0), false);
      model = m.f;
      for (int e = 0; e < 16; ++e) written[e] = k <= 5 && m.written[e];
    }
    const auto got = object(o, k);
    for (int e = 0; e < 16; ++e) {
      ASSERT_EQ(!canary(got[e]), written[e]) << k << " @" << e;
      if (written[e] && (qr || sizeof(T) == 8)) {
        ASSERT_EQ(got[e], model[e]) << k << " @" << e;
      }
    }
  }
}
// Objects in lanes give the bits of the same objects one at a time.
template <class T>
void lanesAsSingles() {
  std::mt19937 rng(6);
  for (bool qr : {false, true})
    for (int n = 3; n <= 6; ++n) {
      Batch<T> a(n, n, 8), o(n, n, 8), one(n, n, 1), in(n, n, 1);
      a.fillRandom(n);
      for (int k = 0; k < 8 && !qr; ++k) setObject(a, k, spd<T>(n, rng));
      std::vector<T> buf(n);
      T* bp = qr ? buf.data() : nullptr;
      ASSERT_EQ(decomp<T>({MA, Std}, a, bp, o, n, n), qelStatusOk);
      for (int k = 0; k < 8; ++k) {
        setObject(in, 0, object(a, k));
        setObject(one, 0, object(o, k));  // the same upper triangle
        ASSERT_EQ(decomp<T>({M, Std}, in, bp, one, n, n), qelStatusOk);
        ASSERT_TRUE(qt::sameBits(object(one, 0), object(o, k))) << qr << " " << n << " " << k;
      }
    }
}
TEST(CholeskyQR, LanesGiveTheBitsOfSingles) {
  lanesAsSingles<Qel32f>();
  lanesAsSingles<Qel64f>();
}

TEST(CholeskyQR, GroupsStopAtTheFailingObject) {
  for (bool qr : {false, true}) {
    groupStop<Qel32f>(qr);
    groupStop<Qel64f>(qr);
  }
}

// The fixed solve forms leave the buffer alone, the general form uses it.
TEST(QR, BufferUseBySize) {
  using T = Qel64f;
  for (auto [w, h, used] : {std::tuple{4, 4, false}, {3, 4, true}, {7, 7, true}})
    for (Call c : kSolves) {
      Batch<T> f(h, w, 2), b(1, h, 2), x(1, w, 2), buf(1, h, 1);
      f.fillRandom(3);
      b.fillRandom(4);
      ASSERT_EQ(solve(c, f, buf.ptr(), b, x, w, h), qelStatusOk);
      EXPECT_EQ(!buf.untouched(), used) << name(c) << w << "x" << h;
    }
}

// ------------------------------------------------------------------ arrays
// Four objects of which 1 and 3 fail, past the work limit: serially the run
// stops at object 1; under two threads each share stops at its own failure
// and the caller's buffer is left alone.
template <class T>
void stopsAndShares(bool qr) {
  const int n = qr ? 19 : 23;  // 19*2*19*4 > 2800, 23*23*4 > 2000
  for (int budget : {1, 2}) {
    Batch<T> a(n, n, 4), o(n, n, 4), buf(1, n, 1);
    for (int k = 0; k < 4; ++k) {
      auto m = diagonal(n, T(k % 2 ? 0 : 2));  // odd objects fail at once
      if (k % 2 == 0) m[n] = T(1);
      setObject(a, k, m);
    }
    PinnedBudget pin(budget);
    ASSERT_EQ(decomp<T>({MA, Std}, a, qr ? buf.ptr() : nullptr, o, n, n),
              qr ? qelStatusDivideByZero : qelStatusNotPositiveDefinite);
    EXPECT_EQ(pin.calls(), budget);
    for (int k = 0; k < 4; ++k) {
      auto model = object(a, k);
      std::vector<bool> written(n * n, true);
      if (qr) {
        modelQr(model, n, n);
      } else {
        const auto m = modelChol(model, n, T(0), false);
        model = m.f, written = m.written;
      }
      const auto got = object(o, k);
      if (budget == 1 && k > 1) {
        EXPECT_TRUE(std::all_of(got.begin(), got.end(), canary<T>)) << k;
        continue;
      }
      for (int e = 0; e < n * n; ++e) {
        if (!written[e] || (!qr && e % n > e / n)) {
          ASSERT_TRUE(canary(got[e])) << k << " @" << e;
        } else if (sizeof(T) == 8 || qr) {
          ASSERT_EQ(got[e], model[e]) << k << " @" << e;
        }
      }
    }
    if (qr) {
      EXPECT_EQ(buf.untouched(), budget == 2);
    }
  }
}
TEST(Cholesky, ArraysStopPerShare) { stopsAndShares<Qel64f>(false); }
TEST(QR, ArraysStopPerShare) { stopsAndShares<Qel32f>(true); }

// Work at the limit stays serial, one step above goes to the driver. Each
// row: Cholesky or QR, factor (ma) or solve, the call, the stored form, the
// sizes, and the counts on either side of the limit.
struct Edge {
  bool qr;
  Call c;
  Form f;
  int w, h, serial, parallel;
};
template <class T>
void workEdges(std::initializer_list<Edge> edges) {
  for (const Edge& e : edges)
    for (int count : {e.serial, e.parallel}) {
      Batch<T> a(e.h, e.w, e.c.s == MVA ? 1 : count, e.f), o(e.h, e.w, count, e.f);
      Batch<T> b(1, e.h, count, e.f), x(1, e.w, count, e.f);
      std::vector<T> buf(e.h);
      a.fill(0);
      for (int k = 0; k < a.count(); ++k)
        for (int i = 0; i < e.w; ++i) a.set(k, i, i, 1);
      b.fill(1);
      PinnedBudget pin(2);
      T* bp = e.qr ? buf.data() : nullptr;
      ASSERT_EQ(e.c.s == MA ? decomp(e.c, a, bp, o, e.w, e.h) : solve(e.c, a, bp, b, x, e.w, e.h), qelStatusOk);
      EXPECT_EQ(pin.calls(), count == e.serial ? 0 : 2)
          << (e.qr ? "QR " : "Cholesky ") << name(e.c) << qt::formName(e.f) << " count " << count;
    }
}
const Form P = Form::Packed, G = Form::ElementGaps;
TEST(CholeskyQR, WorkLimits32f) {
  workEdges<Qel32f>({
      {false, {MA, Std}, P, 2, 2, 1875, 1876}, {false, {MA, Std}, G, 2, 2, 1875, 1876},
      {false, {MA, List}, P, 2, 2, 500, 501}, {false, {MA, Ptr}, P, 2, 2, 500, 501},
      {false, {MVA, Std}, G, 2, 2, 299, 300}, {false, {MVA, List}, P, 2, 2, 179, 180},
      {false, {MVA, Ptr}, P, 2, 2, 179, 180}, {false, {MAVA, Std}, P, 2, 2, 256, 257},
      {false, {MAVA, Std}, G, 2, 2, 212, 213}, {false, {MAVA, List}, P, 2, 2, 212, 213},
      {false, {MAVA, Ptr}, P, 2, 2, 212, 213},
      {true, {MA, Std}, G, 1, 1, 1400, 1401}, {true, {MA, List}, P, 1, 1, 900, 901},
      {true, {MA, Ptr}, P, 1, 1, 900, 901}, {true, {MVA, Std}, P, 2, 2, 699, 700},
      {true, {MVA, List}, P, 2, 2, 449, 450}, {true, {MVA, Ptr}, P, 2, 2, 449, 450},
      {true, {MAVA, Std}, P, 1, 2, 560, 561}, {true, {MAVA, List}, G, 1, 2, 360, 361},
      {true, {MAVA, Ptr}, P, 1, 2, 360, 361},
  });
}
TEST(CholeskyQR, WorkLimits64f) {
  workEdges<Qel64f>({
      {false, {MA, Std}, P, 2, 2, 500, 501}, {false, {MA, Std}, G, 2, 2, 500, 501},
      {false, {MA, List}, P, 2, 2, 180, 181}, {false, {MA, List}, G, 2, 2, 500, 501},
      {false, {MA, Ptr}, P, 2, 2, 500, 501}, {false, {MVA, Std}, P, 2, 2, 179, 180},
      {false, {MVA, List}, G, 2, 2, 179, 180}, {false, {MVA, Ptr}, P, 2, 2, 179, 180},
      {false, {MAVA, Std}, P, 2, 2, 212, 213}, {false, {MAVA, List}, P, 2, 2, 212, 213},
      {false, {MAVA, Ptr}, P, 2, 2, 256, 257},
      {true, {MA, Std}, P, 1, 1, 1400, 1401}, {true, {MA, List}, G, 1, 1, 900, 901},
      {true, {MVA, Std}, G, 2, 2, 699, 700}, {true, {MAVA, Ptr}, P, 1, 2, 360, 361},
  });
  // Single objects never fork.
  Batch<Qel64f> a(40, 40, 1), o(40, 40, 1);
  for (int i = 0; i < 40; ++i) a.set(0, i, i, 1);
  std::vector<Qel64f> buf(40);
  PinnedBudget pin(2);
  EXPECT_EQ(decomp<Qel64f>({M, Std}, a, nullptr, o, 40, 40) | decomp<Qel64f>({M, Std}, a, buf.data(), o, 40, 40), 0);
  EXPECT_EQ(pin.calls(), 0);
}

// The same bits from one thread and from two.
TEST(CholeskyQR, SameBitsAcrossBudgets) {
  for (bool qr : {false, true}) {
    Batch<Qel32f> a(4, 4, 600), o1(4, 4, 600), o2(4, 4, 600), b(1, 4, 600), x1(1, 4, 600), x2(1, 4, 600);
    std::mt19937 rng(3);
    for (int k = 0; k < 600; ++k) setObject(a, k, spd<Qel32f>(4, rng));
    b.fillRandom(9);
    std::vector<Qel32f> buf(4);
    Qel32f* bp = qr ? buf.data() : nullptr;
    for (int budget : {1, 2}) {
      PinnedBudget pin(budget);
      auto& o = budget == 1 ? o1 : o2;
      auto& x = budget == 1 ? x1 : x2;
      ASSERT_EQ(decomp<Qel32f>({MA, Std}, a, bp, o, 4, 4), qelStatusOk);
      ASSERT_EQ(solve<Qel32f>({MAVA, List}, o, bp, b, x, 4, 4), qelStatusOk);
      EXPECT_EQ(pin.calls(), 2 * budget);
    }
    EXPECT_TRUE(qt::sameBits(o1.values(), o2.values()));
    EXPECT_TRUE(qt::sameBits(x1.values(), x2.values()));
  }
}

// dst = src in the factors, src2 = dst in the solves, fixed and general forms.
TEST(CholeskyQR, InPlace) {
  using T = Qel64f;
  for (bool qr : {false, true})
    for (auto [w, h] : {std::pair{4, 4}, {9, 9}, {3, 7}}) {
      if (!qr && w != h) continue;
      Batch<T> a(h, w, 2), o(h, w, 2), b(1, h, 2), x(1, h, 2);
      std::mt19937 rng(5);
      a.fillRandom(2);
      for (int k = 0; k < 2 && !qr; ++k) setObject(a, k, spd<T>(w, rng));
      b.fillRandom(8);
      std::vector<T> buf(h);
      T* bp = qr ? buf.data() : nullptr;
      ASSERT_EQ(decomp<T>({MA, Std}, a, bp, o, w, h), qelStatusOk);
      ASSERT_EQ(decomp<T>({MA, Std}, a, bp, a, w, h), qelStatusOk);
      for (int k = 0; k < 2; ++k)
        for (int i = 0; i < h; ++i)
          for (int j = 0; j <= (qr ? w - 1 : i); ++j) ASSERT_EQ(a.get(k, i, j), o.get(k, i, j));
      ASSERT_EQ(solve<T>({MAVA, Std}, o, bp, b, x, w, h), qelStatusOk);
      ASSERT_EQ(solve<T>({MAVA, Std}, o, bp, b, b, w, h), qelStatusOk);
      for (int k = 0; k < 2; ++k)
        for (int j = 0; j < w; ++j) ASSERT_EQ(b.get(k, 0, j), x.get(k, 0, j)) << qr << w << "x" << h;
    }
}

// ------------------------------------------------------------------ checks
TEST(CholeskyQR, ChecksInOrderAndWriteNothing) {
  using T = Qel32f;
  using E = Ex<T>;
  Batch<T> a(3, 3, 2), b(1, 3, 2), x(1, 3, 2);
  T buf[3];
  auto* al = a.list();
  auto* bl = b.list();
  auto* xl = x.list();
  const int e = 4;
  // Cholesky mva_L: N S R Z C; mva standard: N C Z S.
  EXPECT_EQ(E::cmvaL(a.ptr(), 12, e, nullptr, 0, e, xl, 0, e, 3, 2), qelStatusNullPointer);
  EXPECT_EQ(E::cmvaL(a.ptr(), 12, e, bl, 0, 2, xl, 0, e, 0, 0), qelStatusBadStride);
  EXPECT_EQ(E::cmvaL(a.ptr(), 12, e, bl, -4, e, xl, 0, e, 0, 0), qelStatusBadRoiShift);
  EXPECT_EQ(E::cmvaL(a.ptr(), 12, e, bl, 0, e, xl, 0, e, 0, 0), qelStatusBadSize);
  EXPECT_EQ(E::cmvaL(a.ptr(), 12, e, bl, 0, e, xl, 0, e, 3, 0), qelStatusBadCount);
  EXPECT_EQ(E::cmva(a.ptr(), 12, e, b.ptr(), 12, e, x.ptr(), 12, 2, 0, 0), qelStatusBadCount);
  EXPECT_EQ(E::cmva(a.ptr(), 12, e, b.ptr(), 12, e, x.ptr(), 12, 2, 0, 2), qelStatusBadSize);
  EXPECT_EQ(E::cmvaP(a.elems(), 0, b.elems(), 2, 12, x.elems(), 0, 12, 3, 2), qelStatusBadRoiShift);
  EXPECT_EQ(E::cmaL(al, 0, 12, e, al, 0, 12, 6, 3, 2), qelStatusBadStride);
  EXPECT_EQ(E::cmP(a.elems(), 6, a.elems(), 0, 3), qelStatusBadRoiShift);
  EXPECT_EQ(E::cm(a.ptr(), 12, e, a.ptr(), 0, e, 0), qelStatusBadSize);
  // QR: N C Z S R M, the buffer among the pointers, the mismatch last.
  EXPECT_EQ(E::qm(a.ptr(), 12, e, nullptr, a.ptr(), 12, e, 3, 3), qelStatusNullPointer);
  EXPECT_EQ(E::qm(a.ptr(), 12, 2, buf, a.ptr(), 12, e, 4, 3), qelStatusBadStride);
  EXPECT_EQ(E::qm(a.ptr(), 12, e, buf, a.ptr(), 12, e, 4, 3), qelStatusSizeMismatch);
  EXPECT_EQ(E::qmaL(al, 2, 12, e, buf, al, 0, 12, e, 4, 3, 2), qelStatusBadRoiShift);
  EXPECT_EQ(E::qmaP(a.elems(), 0, 36, buf, a.elems(), 0, 36, 4, 0, 2), qelStatusBadSize);
  EXPECT_EQ(E::qmvaL(a.ptr(), 12, e, buf, bl, 0, e, xl, 0, e, 3, 3, 0), qelStatusBadCount);
  EXPECT_EQ(E::qmava(a.ptr(), 36, 12, e, buf, b.ptr(), 12, e, x.ptr(), 12, e, 4, 3, 2), qelStatusSizeMismatch);
  EXPECT_EQ(E::qmvP(a.elems(), 0, buf, b.elems(), 0, x.elems(), 0, 4, 3), qelStatusSizeMismatch);
  EXPECT_TRUE(a.untouched() && b.untouched() && x.untouched());
}

}  // namespace
