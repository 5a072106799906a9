// LUDecomp and LUBackSubst. Every export in every description is compared bit
// for bit with a model written here (rows swapped physically, sums laid out
// lane by lane), and the model itself is held to long-double residuals. Then
// the tolerance edges, failure states, stops, thresholds and argument checks.
#include <gtest/gtest.h>
#include <omp.h>
#include <qelm/qelm.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <type_traits>
#include <vector>

#include "batch.h"
#include "pinned_core.h"

namespace {

using qt::Batch;
using qt::Form;
using LD = long double;

// ------------------------------------------------------------------ the exports
template <class T> struct Lu;
#define LU_EXPORTS(T, F)                                                                      \
  template <> struct Lu<T> {                                                                  \
    static constexpr auto m = qelmLUDecomp_m_##F, mP = qelmLUDecomp_m_##F##_P;                \
    static constexpr auto ma = qelmLUDecomp_ma_##F, maL = qelmLUDecomp_ma_##F##_L,            \
                          maP = qelmLUDecomp_ma_##F##_P;                                      \
    static constexpr auto mv = qelmLUBackSubst_mv_##F, mvP = qelmLUBackSubst_mv_##F##_P;      \
    static constexpr auto mva = qelmLUBackSubst_mva_##F, mvaL = qelmLUBackSubst_mva_##F##_L,  \
                          mvaP = qelmLUBackSubst_mva_##F##_P;                                 \
    static constexpr auto mava = qelmLUBackSubst_mava_##F,                                    \
                          mavaL = qelmLUBackSubst_mava_##F##_L,                               \
                          mavaP = qelmLUBackSubst_mava_##F##_P;                               \
  };
LU_EXPORTS(Qel32f, 32f)
LU_EXPORTS(Qel64f, 64f)

enum Desc { Std, List, Ptr };               // description of the array operands
enum Shape { M, MA, MV, MVA, MAVA };

template <class T>
QelStatus decomp(Shape s, Desc d, Batch<T>& a, Qel32s* ix, Batch<T>& o, int n) {
  using F = Lu<T>;
  const int c = a.count();
  if (s == M)
    return d == Ptr ? F::mP(a.elems(), a.elemShift, ix, o.elems(), o.elemShift, n)
                    : F::m(a.ptr(), a.s1, a.s2, ix, o.ptr(), o.s1, o.s2, n);
  if (d == Std) return F::ma(a.ptr(), a.s0, a.s1, a.s2, ix, o.ptr(), o.s0, o.s1, o.s2, n, c);
  if (d == List)
    return F::maL(a.list(), a.listShift, a.s1, a.s2, ix, o.list(), o.listShift, o.s1, o.s2, n, c);
  return F::maP(a.elems(), a.elemShift, a.s0, ix, o.elems(), o.elemShift, o.s0, n, c);
}

template <class T>
QelStatus solve(Shape s, Desc d, Batch<T>& a, const Qel32s* ix, Batch<T>& b, Batch<T>& x, int n) {
  using F = Lu<T>;
  const int c = b.count();
  if (s == MV)
    return d == Ptr ? F::mvP(a.elems(), a.elemShift, ix, b.elems(), b.elemShift, x.elems(), x.elemShift, n)
                    : F::mv(a.ptr(), a.s1, a.s2, ix, b.ptr(), b.s2, x.ptr(), x.s2, n);
  if (s == MVA) {
    if (d == Std) return F::mva(a.ptr(), a.s1, a.s2, ix, b.ptr(), b.s0, b.s2, x.ptr(), x.s0, x.s2, n, c);
    if (d == List)
      return F::mvaL(a.ptr(), a.s1, a.s2, ix, b.list(), b.listShift, b.s2, x.list(), x.listShift, x.s2, n, c);
    return F::mvaP(a.elems(), a.elemShift, ix, b.elems(), b.elemShift, b.s0, x.elems(), x.elemShift, x.s0, n, c);
  }
  if (d == Std)
    return F::mava(a.ptr(), a.s0, a.s1, a.s2, ix, b.ptr(), b.s0, b.s2, x.ptr(), x.s0, x.s2, n, c);
  if (d == List)
    return F::mavaL(a.list(), a.listShift, a.s1, a.s2, ix, b.list(), b.listShift, b.s2, x.list(),
                    x.listShift, x.s2, n, c);
  return F::mavaP(a.elems(), a.elemShift, a.s0, ix, b.elems(), b.elemShift, b.s0, x.elems(),
                  x.elemShift, x.s0, n, c);
}

// ------------------------------------------------------------------ the models
template <class T> constexpr T tolFixed = std::is_same_v<T, float> ? T(0x1p-125f) : T(0x1p-1021);
template <class T> constexpr T tolGeneral = std::is_same_v<T, float> ? T(0x1p-23f) : T(0x1p-52);

// Elimination on a copy whose rows really move; out[perm[k]] = row k at the end.
template <class T>
struct LuModel {
  QelStatus st = qelStatusOk;
  std::vector<int> perm;
  std::vector<T> out;          // n*n, natural rows
  std::vector<bool> written;   // per natural row
};
template <class T>
LuModel<T> modelLu(std::vector<T> w, int n) {
  const bool fixed = n >= 3 && n <= 6;
  LuModel<T> r;
  for (int i = 0; i < n; ++i) r.perm.push_back(i);
  auto finish = [&](QelStatus st, int rowsWritten) {
    r.st = st;
    r.out.assign(n * n, T(0));
    r.written.assign(n, !fixed);
    for (int k = 0; k < n; ++k) {
      for (int j = 0; j < n; ++j) r.out[r.perm[k] * n + j] = w[k * n + j];
      if (k < rowsWritten) r.written[r.perm[k]] = true;
    }
    return r;
  };
  auto bad = [&](T v) { return fixed ? std::fabs(v) < tolFixed<T> : std::fabs(v) <= tolGeneral<T>; };
  for (int k = 0; k + 1 < n; ++k) {
    int at = k;
    for (int i = k + 1; i < n; ++i)
      if (std::fabs(w[i * n + k]) > std::fabs(w[at * n + k])) at = i;
    if (!fixed && bad(w[at * n + k])) return finish(qelStatusSingular, 0);
    for (int j = 0; j < n; ++j) std::swap(w[k * n + j], w[at * n + j]);
    std::swap(r.perm[k], r.perm[at]);
    if (bad(w[k * n + k])) return finish(qelStatusSingular, k);
    const T rec = T(1) / w[k * n + k];
    for (int i = k + 1; i < n; ++i) {
      w[i * n + k] = fixed && k == n - 2 ? w[i * n + k] / w[k * n + k] : w[i * n + k] * rec;
      for (int j = k + 1; j < n; ++j) w[i * n + j] = w[i * n + j] - w[k * n + j] * w[i * n + k];
    }
  }
  return finish(bad(w[n * n - 1]) ? qelStatusSingular : qelStatusOk, n - 1 + !bad(w[n * n - 1]));
}

// A sum of products in the library's order: plain below 8 terms (or 8 after the
// peel, or peel < 0), else a plain peel into lane 0, then two accumulators of 4
// (float) or 2 (double) lanes, then the tail one by one.
template <class T>
T modelSum(const std::vector<T>& t, int peel) {
  const int K = t.size(), L = std::is_same_v<T, float> ? 4 : 2;
  if (peel < 0 || K < peel + 8) {
    T s = 0;
    for (T v : t) s = s + v;
    return s;
  }
  T acc[2][4] = {};
  for (int k = 0; k < peel; ++k) acc[0][0] = acc[0][0] + t[k];
  int k = peel;
  for (; k + 8 <= K; k += 8)
    for (int u = 0; u < 8; ++u) acc[(u / L) % 2][u % L] = acc[(u / L) % 2][u % L] + t[k + u];
  T f[4];
  for (int l = 0; l < L; ++l) f[l] = acc[0][l] + acc[1][l];
  T s = L == 4 ? (f[0] + f[1]) + (f[2] + f[3]) : f[0] + f[1];
  for (; k < K; ++k) s = s + t[k];
  return s;
}

enum SolveForm { General, GeneralPeel, Subst, Recip, Folded };

// x from factors f (natural rows) and perm p, in the given form; dstAddr is the
// address of x[0] for the peel.
template <class T>
std::vector<T> modelSolve(const std::vector<T>& f, const std::vector<int>& p, const std::vector<T>& b,
                          int n, SolveForm form, uintptr_t dstAddr) {
  auto A = [&](int k, int j) { return f[p[k] * n + j]; };
  std::vector<T> x(n), w(n);
  for (int k = 0; k < n; ++k) w[k] = b[p[k]];
  if (form == General || form == GeneralPeel) {
    auto peelAt = [&](int j0) {
      const uintptr_t a = dstAddr + j0 * sizeof(T);
      if (form == General) return 0;
      if (a % sizeof(T)) return -1;
      return a % 16 ? int((16 - a % 16) / sizeof(T)) : 0;
    };
    for (int k = 0; k < n; ++k) {
      std::vector<T> t;
      for (int j = 0; j < k; ++j) t.push_back(A(k, j) * x[j]);
      x[k] = w[k] - modelSum(t, peelAt(0));
    }
    for (int k = n - 1; k >= 0; --k) {
      std::vector<T> t;
      for (int j = k + 1; j < n; ++j) t.push_back(A(k, j) * x[j]);
      x[k] = (x[k] - modelSum(t, peelAt(k + 1))) / A(k, k);
    }
    return x;
  }
  std::vector<T> r(n);
  for (int k = 0; k < n; ++k) r[k] = T(1) / A(k, k);
  if (form == Folded) {  // L^-1 and (rows H..n-1 of) U^-1 expanded
    const int H = n <= 4 ? 0 : n - 4;
    std::vector<T> M(n * n), D(n * n), G(n * n), V(n * n), t(n);
    for (int i = 1; i < n; ++i)
      for (int j = i - 1; j >= 0; --j) {
        if (j == i - 1) { M[i * n + j] = 0 - A(i, j); D[i * n + j] = A(i, j); continue; }
        T s = A(i, j + 1) * D[(j + 1) * n + j];
        for (int k = j + 2; k < i; ++k) s = s + A(i, k) * D[k * n + j];
        M[i * n + j] = s - A(i, j);
        D[i * n + j] = A(i, j) - s;
      }
    for (int i = n - 2; i >= H; --i)
      for (int j = i + 1; j < n; ++j) {
        if (j == i + 1) { G[i * n + j] = A(i, j); V[i * n + j] = (0 - A(i, j) * r[i]) * r[j]; continue; }
        T s = (0 - A(i, i + 1) * r[i + 1]) * G[(i + 1) * n + j];
        for (int k = i + 2; k < j; ++k) s = s + (0 - A(i, k) * r[k]) * G[k * n + j];
        G[i * n + j] = s + A(i, j);
        V[i * n + j] = (0 - r[i]) * (G[i * n + j] * r[j]);
      }
    for (int i = 0; i < n; ++i) {
      T s = i ? M[i * n] * w[0] : w[0];
      for (int j = 1; j < i; ++j) s = s + M[i * n + j] * w[j];
      t[i] = i ? s + w[i] : s;
    }
    for (int i = n - 1; i >= 0; --i) {
      T s = i >= H ? r[i] * t[i] : t[i];
      for (int j = n - 1; j > i; --j) s = i >= H ? s + V[i * n + j] * t[j] : s - A(i, j) * x[j];
      x[i] = i >= H ? s : s * r[i];
    }
    return x;
  }
  for (int k = 1; k < n; ++k) {
    T s = w[k];
    for (int j = 1; j < k; ++j) s = s - A(k, j) * w[j];
    w[k] = s - A(k, 0) * w[0];
  }
  for (int k = n - 1; k >= 0; --k) {
    T s = w[k];
    for (int j = n - 1; j > k; --j) s = s - A(k, j) * x[j];
    x[k] = form == Recip ? s * r[k] : s / A(k, k);
  }
  return x;
}

// Order 3 written out as the folded form is stated, term for term.
template <class T>
std::vector<T> foldedThree(const std::vector<T>& f, const std::vector<int>& p, const std::vector<T>& bv) {
  auto A = [&](int k, int j) { return f[p[k] * 3 + j]; };
  const T r0 = 1 / A(0, 0), r1 = 1 / A(1, 1), r2 = 1 / A(2, 2), a = A(1, 0), b2 = A(2, 1), c = A(2, 0),
          d = A(0, 1), e = A(0, 2), ff = A(1, 2);
  const T g = (0 - d * r1) * ff + e, h = (0 - d * r0) * r1, m = a * b2 - c;
  const T w0 = bv[p[0]], w1 = bv[p[1]], w2 = bv[p[2]];
  const T t1 = (0 - a) * w0 + w1, t2 = m * w0 + w1 * (0 - b2) + w2;
  return {w0 * r0 + t2 * ((0 - r0) * (g * r2)) + t1 * h, ((0 - ff * r1) * r2) * t2 + r1 * t1, r2 * t2};
}

// ------------------------------------------------------------------ helpers
template <class T>
std::vector<T> object(const Batch<T>& b, int o) {
  std::vector<T> v;
  for (int i = 0; i < b.rows(); ++i)
    for (int j = 0; j < b.cols(); ++j) v.push_back(b.at(o, i, j));
  return v;
}
template <class T>
bool canaryAt(const Batch<T>& b, int o, int i) {
  for (int j = 0; j < b.cols(); ++j) {
    const T v = b.at(o, i, j);
    const unsigned char* c = reinterpret_cast<const unsigned char*>(&v);
    for (size_t k = 0; k < sizeof(T); ++k)
      if (c[k] != qt::kCanary) return false;
  }
  return true;
}
constexpr Qel32s kIndexCanary = 0x7A7A7A7A;
bool contiguousForm(Form f) { return f != Form::ColumnMajor && f != Form::ElementGaps; }

// Diagonally heavy random matrices: pivoting still reorders, the residual stays meaningful.
template <class T>
void fillSystems(Batch<T>& a, uint32_t seed) {
  a.fillRandom(seed, -1.0, 1.0);
  for (int o = 0; o < a.count(); ++o)
    for (int i = 0; i < a.rows(); ++i) a.at(o, i, (i + o) % a.cols()) += T(i % 2 ? 3 : -3);
}

// Checks one object of dst and its index against the model; returns its status.
template <class T>
QelStatus expectFactors(const Batch<T>& src, const Batch<T>& dst, const Qel32s* ix, int o, int n) {
  const auto mod = modelLu(object(src, o), n);
  for (int k = 0; k < n; ++k) EXPECT_EQ(ix[o * n + k], mod.perm[k]) << "object " << o << " k " << k;
  for (int i = 0; i < n; ++i) {
    if (!mod.written[i]) { EXPECT_TRUE(canaryAt(dst, o, i)) << "row " << i; continue; }
    for (int j = 0; j < n; ++j)
      EXPECT_TRUE(qt::sameBits(std::vector<T>{dst.at(o, i, j)}, std::vector<T>{mod.out[i * n + j]}))
          << "object " << o << " (" << i << "," << j << ") n " << n;
  }
  return mod.st;
}

const std::vector<int> kSizes = {1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 17};
struct Case { Shape shape; Desc desc; int count; };

// ------------------------------------------------------------------ tests
template <class T>
void sweepDecomp() {
  for (Case c : {Case{M, Std, 1}, {M, Ptr, 1}, {MA, Std, 5}, {MA, Std, 7}, {MA, List, 5}, {MA, Ptr, 5}})
    for (Form form : qt::allForms())
      for (int n : kSizes) {
        SCOPED_TRACE(testing::Message() << "shape " << c.shape << " desc " << c.desc << " form "
                                        << qt::formName(form) << " n " << n);
        Batch<T> a(n, n, c.count, form), d(n, n, c.count, form);
        fillSystems(a, 100 + n);
        std::vector<Qel32s> ix(n * c.count, kIndexCanary);
        ASSERT_EQ(decomp(c.shape, c.desc, a, ix.data(), d, n), qelStatusOk);
        EXPECT_TRUE(d.outsideIntact());
        for (int o = 0; o < c.count; ++o) {
          ASSERT_EQ(expectFactors(a, d, ix.data(), o, n), qelStatusOk);
          LD worst = 0;  // P A = L U in long double
          for (int k = 0; k < n; ++k)
            for (int j = 0; j < n; ++j) {
              LD s = 0;
              for (int m = 0; m <= std::min(k, j); ++m)
                s += (m == k ? 1.0L : LD(d.at(o, ix[o * n + k], m))) * LD(d.at(o, ix[o * n + m], j));
              worst = std::max(worst, std::fabs(s - LD(a.at(o, ix[o * n + k], j))));
            }
          EXPECT_LT(worst, 64 * n * LD(tolGeneral<T>));
        }
        // In place: the same factors.
        std::vector<Qel32s> ix2(n * c.count);
        Batch<T> same(n, n, c.count, form);
        fillSystems(same, 100 + n);
        ASSERT_EQ(decomp(c.shape, c.desc, same, ix2.data(), same, n), qelStatusOk);
        EXPECT_TRUE(qt::sameBits(same.values(), d.values()));
        EXPECT_EQ(ix, ix2);
      }
}
TEST(LUDecomp, FactorsInEveryDescription32f) { sweepDecomp<Qel32f>(); }
TEST(LUDecomp, FactorsInEveryDescription64f) { sweepDecomp<Qel64f>(); }

template <class T>
void sweepSolve() {
  for (Case c : {Case{MV, Std, 1}, {MV, Ptr, 1}, {MVA, Std, 1}, {MVA, Std, 2}, {MVA, Std, 4},
                 {MVA, List, 4}, {MVA, Ptr, 4}, {MAVA, Std, 4}, {MAVA, Std, 19}, {MAVA, List, 4}, {MAVA, Ptr, 4}})
    for (Form form : qt::allForms())
      for (int n : kSizes) {
        SCOPED_TRACE(testing::Message() << "shape " << c.shape << " desc " << c.desc << " count "
                                        << c.count << " form " << qt::formName(form) << " n " << n);
        const int mats = c.shape == MAVA ? c.count : 1;
        Batch<T> a(n, n, mats, form), f(n, n, mats, form), b(1, n, c.count, form), x(1, n, c.count, form);
        fillSystems(a, 7 * n);
        b.fillRandom(11 * n);
        std::vector<Qel32s> ix(n * mats);
        for (int o = 0; o < mats; ++o)  // each matrix factored on its own
          ASSERT_EQ(Lu<T>::m(&a.at(o, 0, 0), a.s1, a.s2, &ix[o * n], &f.at(o, 0, 0), f.s1, f.s2, n), 0);
        ASSERT_EQ(solve(c.shape, c.desc, f, ix.data(), b, x, n), qelStatusOk);
        EXPECT_TRUE(x.outsideIntact());
        const bool fixed = n >= 3 && n <= 6, contig = c.desc != Ptr && contiguousForm(form);
        SolveForm sf = !fixed ? (c.shape == MV && contig ? GeneralPeel : General)
                              : c.shape != MVA ? Subst
                              : std::is_same_v<T, float> && c.desc == Std && contig && c.count >= 3 ? Folded
                                                                                                   : Recip;
        for (int o = 0; o < c.count; ++o) {
          const int mo = c.shape == MAVA ? o : 0;
          std::vector<int> p(ix.begin() + mo * n, ix.begin() + mo * n + n);
          const auto want = modelSolve(object(f, mo), p, object(b, o), n, sf, uintptr_t(&x.at(o, 0, 0)));
          EXPECT_TRUE(qt::sameBits(object(x, o), want)) << "object " << o;
          for (int i = 0; i < n; ++i) {  // A x = b in long double
            LD r = -LD(b.at(o, 0, i)), scale = std::fabs(r);
            for (int j = 0; j < n; ++j) {
              r += LD(a.at(mo, i, j)) * LD(x.at(o, 0, j));
              scale += std::fabs(LD(a.at(mo, i, j)) * LD(x.at(o, 0, j)));
            }
            EXPECT_LE(std::fabs(r), 16 * n * scale * LD(tolGeneral<T>));
          }
        }
      }
}
TEST(LUBackSubst, SolvesInEveryDescription32f) { sweepSolve<Qel32f>(); }
TEST(LUBackSubst, SolvesInEveryDescription64f) { sweepSolve<Qel64f>(); }

TEST(LUBackSubst, FoldedOrderThreeIsTheStatedFormula) {
  Batch<float> a(3, 3, 1), b(1, 3, 3), x(1, 3, 3);
  for (uint32_t seed = 1; seed < 200; ++seed) {
    fillSystems(a, seed);
    b.fillRandom(seed + 1000);
    std::vector<Qel32s> ix(3);
    ASSERT_EQ(qelmLUDecomp_m_32f(a.ptr(), a.s1, a.s2, ix.data(), a.ptr(), a.s1, a.s2, 3), 0);
    ASSERT_EQ(solve(MVA, Std, a, ix.data(), b, x, 3), 0);
    const std::vector<int> p(ix.begin(), ix.end());
    for (int o = 0; o < 3; ++o) ASSERT_TRUE(qt::sameBits(object(x, o), foldedThree(object(a, 0), p, object(b, o))));
  }
}

// The same right-hand side through count 2 (reciprocals) and count 3 (folded).
TEST(LUBackSubst, FoldedAndReciprocalFormsDifferInRounding) {
  int differ = 0;
  for (int n = 3; n <= 6; ++n)
    for (uint32_t seed = 1; seed < 60; ++seed) {
      Batch<float> a(n, n, 1), b(1, n, 3), x2(1, n, 2), x3(1, n, 3);
      fillSystems(a, seed);
      b.fillRandom(seed);
      std::vector<Qel32s> ix(n);
      ASSERT_EQ(qelmLUDecomp_m_32f(a.ptr(), a.s1, a.s2, ix.data(), a.ptr(), a.s1, a.s2, n), 0);
      ASSERT_EQ(qelmLUBackSubst_mva_32f(a.ptr(), a.s1, 4, ix.data(), b.ptr(), b.s0, 4, x2.ptr(), x2.s0, 4, n, 2), 0);
      ASSERT_EQ(qelmLUBackSubst_mva_32f(a.ptr(), a.s1, 4, ix.data(), b.ptr(), b.s0, 4, x3.ptr(), x3.s0, 4, n, 3), 0);
      differ += !qt::sameBits(object(x2, 0), object(x3, 0));
    }
  EXPECT_GT(differ, 0);
}

// ------------------------------------------------------------------ edges and failures
struct Edge { int n; double diag; QelStatus want32, want64; };
TEST(LUDecomp, ToleranceEdgesOfBothForms) {
  const double f3 = 0x1p-125, f6 = 0x1p-1021, g3 = 0x1p-23, g6 = 0x1p-52;
  for (Edge e : {Edge{2, 1e-10, -195, 0}, {3, 1e-10, 0, 0}, {6, 1e-8, 0, 0}, {7, 1e-8, -195, 0},
                 {1, 1e-9, -195, 0}, {1, 1.0, 0, 0}, {3, f3, 0, 0}, {3, std::nextafter(float(f3), 0.f), -195, 0},
                 {2, g3, -195, 0}, {2, std::nextafter(float(g3), 1.f), 0, 0}, {4, f6, -195, 0},
                 {2, g6, -195, -195}, {2, std::nextafter(g6, 1.0), -195, 0}})
    for (int t = 0; t < 2; ++t) {
      auto run = [&](auto zero) {
        using T = decltype(zero);
        Batch<T> a(e.n, e.n, 1);
        for (int i = 0; i < e.n; ++i)
          for (int j = 0; j < e.n; ++j) a.at(0, i, j) = i == j ? T(e.diag) : T(0);
        std::vector<Qel32s> ix(e.n);
        return Lu<T>::m(a.ptr(), a.s1, a.s2, ix.data(), a.ptr(), a.s1, a.s2, e.n);
      };
      if (t == 0) EXPECT_EQ(run(0.0f), e.want32) << e.n << " " << e.diag;
      else EXPECT_EQ(run(0.0), e.want64) << e.n << " " << e.diag;
    }
  // 2^-1021 itself passes the fixed 64f test; the next value down fails.
  for (double v : {f6, std::nextafter(f6, 0.0)}) {
    Batch<double> a(3, 3, 1);
    for (int i = 0; i < 3; ++i)
      for (int j = 0; j < 3; ++j) a.at(0, i, j) = i == j ? (i == 2 ? v : 1.0) : 0.0;
    std::vector<Qel32s> ix(3);
    EXPECT_EQ(qelmLUDecomp_m_64f(a.ptr(), a.s1, a.s2, ix.data(), a.ptr(), a.s1, a.s2, 3), v == f6 ? 0 : -195);
  }
}

// Singular matrices failing at step 0, at step 1 and at the last diagonal, a
// tie and a NaN, in both forms: status, index and dst (canary rows included)
// are the model's.
template <class T>
void failureStates() {
  enum Kind { Zero, Column1, LastDiagonal, Tie, NaN };
  for (int n : {2, 3, 4, 5, 6, 8})
    for (Kind kind : {Zero, Column1, LastDiagonal, Tie, NaN}) {
      Batch<T> a(n, n, 1), d(n, n, 1);
      a.fillRandom(n + 10 * kind);
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
          T& v = a.at(0, i, j);
          if (kind == Zero) v = 0;
          if (kind == Column1 && j < 2) v = T((1 << i) * (j + 1));  // column 1 dies at step 1
          if (kind == LastDiagonal) v = i == n - 1 ? j == 0 : i == j;  // last row = first
          if (kind == Tie && j == 0) v = i == 0 ? 1 : i == 1 ? -1 : T(0.5);
          if (kind == NaN && i == 0 && j == 0) v = NAN;
        }
      std::vector<Qel32s> ix(n, kIndexCanary);
      const QelStatus st = Lu<T>::m(a.ptr(), a.s1, a.s2, ix.data(), d.ptr(), d.s1, d.s2, n);
      SCOPED_TRACE(testing::Message() << "n " << n << " kind " << kind);
      EXPECT_EQ(st, kind == Tie || kind == NaN ? 0 : -195);
      EXPECT_EQ(st, expectFactors(a, d, ix.data(), 0, n));
      EXPECT_TRUE(d.outsideIntact());
      if (kind == Tie) { EXPECT_EQ(ix[0], 0); }
      if (kind == Zero && n >= 3 && n <= 6) { EXPECT_TRUE(d.untouched()); }
    }
}
TEST(LUDecomp, FailureStatesMatchTheForm32f) { failureStates<Qel32f>(); }
TEST(LUDecomp, FailureStatesMatchTheForm64f) { failureStates<Qel64f>(); }

// Serially the first singular matrix ends the call; in the driver each share
// stops at its own first one.
TEST(LUDecomp, ArraysStopAtTheFirstSingularObject) {
  for (int budget : {1, 2}) {
    const int count = budget == 1 ? 4 : 64, n = 4;  // 64 objects: W = 1024, two shares of 32
    const std::vector<int> singular = budget == 1 ? std::vector<int>{1} : std::vector<int>{5, 40};
    for (Desc desc : {Std, List, Ptr}) {
      Batch<double> a(n, n, count, Form::RowGaps), d(n, n, count, Form::RowGaps);
      fillSystems(a, 3);
      for (int o : singular)
        for (int i = 0; i < n; ++i) a.at(o, i, 1) = 0;
      std::vector<Qel32s> ix(n * count, kIndexCanary);
      PinnedBudget pin(budget);
      EXPECT_EQ(decomp(MA, desc, a, ix.data(), d, n), qelStatusSingular);
      EXPECT_EQ(pin.calls(), budget == 1 ? 0 : 2);
      for (int o = 0; o < count; ++o) {
        const int share = o < count / budget ? 0 : 1;
        const bool after = o > singular[budget == 1 ? 0 : share];
        if (after) {
          for (int i = 0; i < n; ++i) EXPECT_TRUE(canaryAt(d, o, i)) << o;
          EXPECT_EQ(ix[o * n], kIndexCanary) << o;
        } else {
          EXPECT_EQ(expectFactors(a, d, ix.data(), o, n), o == singular[share] ? -195 : 0) << o;
        }
      }
    }
  }
}

// W at T-1 (or the nearest reachable value below) stays serial, at T it forks.
TEST(LUFamily, WorkThresholds) {
  struct W { Shape s; int n, count, calls; };
  for (W t : {W{MA, 10, 10, 0}, {MA, 1, 1000, 0}, {MA, 1, 1001, 2}, {MVA, 10, 30, 0}, {MVA, 1, 349, 0},
              {MVA, 1, 350, 2}, {MAVA, 10, 10, 0}, {MAVA, 3, 80, 0}, {MAVA, 1, 401, 2}}) {
    const int mats = t.s == MVA ? 1 : t.count;
    Batch<float> a(t.n, t.n, mats), d(t.n, t.n, mats), b(1, t.n, t.count), x(1, t.n, t.count);
    fillSystems(a, 5);
    b.fillRandom(6);
    std::vector<Qel32s> ix(t.n * mats);
    ASSERT_EQ(decomp(MA, Std, a, ix.data(), d, t.n), 0);
    PinnedBudget pin(2);
    ASSERT_EQ(t.s == MA ? decomp(MA, Std, a, ix.data(), d, t.n) : solve(t.s, Std, d, ix.data(), b, x, t.n), 0);
    EXPECT_EQ(pin.calls(), t.calls) << t.s << " " << t.n << " " << t.count;
  }
}

// A share of fewer than 3 right-hand sides takes reciprocals even when the call has more.
TEST(LUBackSubst, FoldedFormGoesByTheShare) {
  const int n = 3, count = 116;  // W = 702; 64 threads take shares of 2 and 1
  Batch<float> a(n, n, 1), b(1, n, count), x(1, n, count);
  fillSystems(a, 9);
  b.fillRandom(10);
  std::vector<Qel32s> ix(n);
  ASSERT_EQ(qelmLUDecomp_m_32f(a.ptr(), a.s1, a.s2, ix.data(), a.ptr(), a.s1, a.s2, n), 0);
  PinnedBudget pin(64);
  ASSERT_EQ(solve(MVA, Std, a, ix.data(), b, x, n), 0);
  ASSERT_EQ(pin.calls(), 2);
  const std::vector<int> p(ix.begin(), ix.end());
  for (int o = 0; o < count; ++o)
    EXPECT_TRUE(qt::sameBits(object(x, o), modelSolve(object(a, 0), p, object(b, o), n, Recip, 0))) << o;
}

TEST(LUBackSubst, InPlaceHoldsForFixedSizesOnly) {
  for (int n : {4, 7}) {
    Batch<double> a(n, n, 1), b(1, n, 1), x(1, n, 1);
    fillSystems(a, 2);
    for (int i = 0; i < n; ++i) a.at(0, i, (i + 1) % n) += 10;  // a cyclic pivot order
    b.fillRandom(4);
    std::vector<Qel32s> ix(n);
    ASSERT_EQ(qelmLUDecomp_m_64f(a.ptr(), a.s1, a.s2, ix.data(), a.ptr(), a.s1, a.s2, n), 0);
    ASSERT_EQ(solve(MV, Std, a, ix.data(), b, x, n), 0);
    ASSERT_EQ(solve(MV, Std, a, ix.data(), b, b, n), 0);
    EXPECT_EQ(qt::sameBits(b.values(), x.values()), n == 4) << n;
  }
}

// Identity factors copy b; a zero diagonal is not looked at: status 0 and
// a non-finite x.
TEST(LUBackSubst, IdentityCopiesAndZeroDiagonalRunsOn) {
  for (Shape s : {MV, MVA, MAVA})
    for (int n : {1, 2, 4, 7}) {
      Batch<float> f(n, n, 2), b(1, n, s == MV ? 1 : 2), x(1, n, s == MV ? 1 : 2);
      b.fillRandom(n);
      std::vector<Qel32s> ix;
      for (int o = 0; o < 2; ++o)
        for (int i = 0; i < n; ++i) {
          ix.push_back(i);
          for (int j = 0; j < n; ++j) f.at(o, i, j) = i == j;
        }
      ASSERT_EQ(solve(s, Std, f, ix.data(), b, x, n), 0);
      EXPECT_TRUE(qt::sameBits(x.values(), b.values())) << s << " " << n;
      f.at(0, n - 1, n - 1) = 0;
      ASSERT_EQ(solve(s, Std, f, ix.data(), b, x, n), 0);
      EXPECT_FALSE(std::isfinite(x.at(0, 0, n - 1))) << s << " " << n;
    }
}

// Argument checks in their order; a failed check writes nothing.
TEST(LUFamily, ChecksInOrderAndWriteNothing) {
  Batch<float> a(4, 4, 2), d(4, 4, 2), b(1, 4, 2), x(1, 4, 2);
  fillSystems(a, 1);
  b.fillRandom(2);
  std::vector<Qel32s> ix(8, kIndexCanary);
  float* const* L = d.list();
  struct C { std::function<QelStatus()> call; QelStatus want; };
  const std::vector<C> cases = {
      {[&] { return qelmLUDecomp_m_32f(a.ptr(), 16, 4, nullptr, d.ptr(), 16, 4, 4); }, -8},
      {[&] { return qelmLUDecomp_m_32f(a.ptr(), 16, 2, ix.data(), d.ptr(), 16, 4, 0); }, -6},
      {[&] { return qelmLUDecomp_m_32f(a.ptr(), 16, 4, ix.data(), d.ptr(), 0, 4, 4); }, -182},
      {[&] { return qelmLUDecomp_m_32f_P(a.elems(), -4, ix.data(), d.elems(), 0, 4); }, -202},
      {[&] { return qelmLUDecomp_ma_32f(a.ptr(), 64, 16, 6, ix.data(), d.ptr(), 64, 16, 4, 0, 0); }, -203},
      {[&] { return qelmLUDecomp_ma_32f(a.ptr(), 64, 16, 6, ix.data(), d.ptr(), 64, 16, 4, 0, 2); }, -6},
      {[&] { return qelmLUDecomp_ma_32f(a.ptr(), 0, 16, 4, ix.data(), d.ptr(), 64, 16, 4, 4, 2); }, -182},
      {[&] { return qelmLUDecomp_ma_32f_L(a.list(), 2, 16, 0, ix.data(), L, 0, 16, 4, 4, 2); }, -182},
      {[&] { return qelmLUDecomp_ma_32f_L(a.list(), 2, 16, 4, ix.data(), L, 0, 16, 4, 4, 2); }, -202},
      {[&] { return qelmLUDecomp_ma_32f_P(a.elems(), 0, 64, ix.data(), d.elems(), 0, 6, 4, 2); }, -182},
      {[&] { return qelmLUBackSubst_mv_32f(a.ptr(), 16, 4, ix.data(), b.ptr(), 4, nullptr, 4, 4); }, -8},
      {[&] { return qelmLUBackSubst_mv_32f(a.ptr(), 16, 4, ix.data(), b.ptr(), 3, x.ptr(), 4, 0); }, -6},
      {[&] { return qelmLUBackSubst_mva_32f(a.ptr(), 16, 4, nullptr, b.ptr(), 16, 4, x.ptr(), 16, 4, 4, 0); }, -8},
      {[&] { return qelmLUBackSubst_mva_32f(a.ptr(), 16, 4, ix.data(), b.ptr(), 16, 5, x.ptr(), 16, 4, 0, 0); }, -203},
      {[&] { return qelmLUBackSubst_mva_32f_P(a.elems(), 0, ix.data(), b.elems(), 6, 16, x.elems(), 0, 16, 4, 2); }, -202},
      {[&] { return qelmLUBackSubst_mava_32f(a.ptr(), 64, 16, 4, ix.data(), b.ptr(), 16, 4, x.ptr(), -16, 4, 4, 2); }, -182},
      {[&] { return qelmLUBackSubst_mava_32f_L(a.list(), 0, 16, 4, ix.data(), b.list(), 0, 4, x.list(), 0, 4, 0, 2); }, -6},
      {[&] { return qelmLUBackSubst_mava_32f_P(a.elems(), 0, 64, ix.data(), b.elems(), 0, 16, x.elems(), 6, 16, 4, 2); }, -202},
  };
  for (size_t k = 0; k < cases.size(); ++k) {
    EXPECT_EQ(cases[k].call(), cases[k].want) << "case " << k;
    EXPECT_TRUE(d.untouched() && x.untouched()) << "case " << k;
    EXPECT_EQ(ix, std::vector<Qel32s>(8, kIndexCanary)) << "case " << k;
  }
}

}  // namespace
