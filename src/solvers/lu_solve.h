// Solving A x = b from the factors of luFixed / luGeneral: row index[k] of the
// factor matrix holds row k of L (left of the diagonal, unit diagonal implied)
// and of U. b and x are in natural order. Four forms, by shape and order:
//
//   general       orders 1, 2, 7 up, every shape: dst holds y, then x; each sum
//                 starts from zero in ascending j and is subtracted in one step;
//                 sums of 8 terms or more use the split accumulators.
//   substitution  mv and mava at orders 3..6: one term subtracted at a time, the
//                 term of y(0) last in the forward pass; true divisions.
//   reciprocals   mva at orders 3..6: the factors and the reciprocals of the
//                 diagonal are read once per call (per share); the divisions
//                 become products.
//   folded        the 32f contiguous mva kernel at orders 3..6 for 3 or more
//                 right-hand sides: L^-1 and most of U^-1 are expanded once and
//                 each right-hand side is a short product.
#pragma once

#include "../frame/lanes.h"
#include "../frame/sums.h"
#include "../frame/views.h"
#include "qelm/qelmtypes.h"
#include "solve_shape.h"

#include <type_traits>

namespace qel {

// ------------------------------------------------------------- general form

// Peel = true is the contiguous mv kernel: a long sum starts with the terms
// that bring dst to 16 bytes, so its rounding follows the address of dst.
template <bool Peel, class M, class B, class X>
void solveGeneral(M a, const Qel32s* p, B b, X x, int n) {
  using T = ElemOf<X>;
  if (n == 1) {
    x.at(0, 0) = b.at(0, p[0]) / a.at(p[0], 0);
    return;
  }
  auto sum = [&](int pk, int j0, int K) {
    if (K == 0) return T(0);  // nothing to read, not even the address of x(j0)
    const auto terms = gatheredTerms<T>([&](int m) { return T(a.at(pk, j0 + m) * x.at(0, j0 + m)); });
    if constexpr (Peel)
      return alignedSplitSum<T>(&x.at(0, j0), int(sizeof(T)), K, terms);
    else
      return splitSum<T>(K, terms);
  };
  for (int k = 0; k < n; ++k) {
    const int pk = p[k];
    const T s = sum(pk, 0, k);
    x.at(0, k) = b.at(0, pk) - s;
  }
  for (int k = n - 1; k >= 0; --k) {
    const int pk = p[k];
    const T s = sum(pk, k + 1, n - 1 - k);
    x.at(0, k) = (x.at(0, k) - s) / a.at(pk, k);
  }
}

// ------------------------------------------------------------- substitution

// The forward pass shared by the fixed forms: y(k) = b(p(k)) minus the terms
// j = 1 .. k-1 in order, then the term j = 0.
template <int N, class T, class Coef>
inline void forwardSubst(T (&y)[N], Coef c) {
  for (int k = 1; k < N; ++k) {
    T t = y[k];
    for (int j = 1; j < k; ++j) t = t - c(k, j) * y[j];
    y[k] = t - c(k, 0) * y[0];
  }
}

// The backward pass: x(k) = y(k) minus the terms j = N-1 down to k+1, then
// divided by the diagonal (Divide) or multiplied by its reciprocal.
template <int N, class T, class Coef, class Diag>
inline void backwardSubst(T (&y)[N], Coef c, Diag finish) {
  y[N - 1] = finish(N - 1, y[N - 1]);
  for (int k = N - 2; k >= 0; --k) {
    T t = y[k];
    for (int j = N - 1; j > k; --j) t = t - c(k, j) * y[j];
    y[k] = finish(k, t);
  }
}

// mv and mava at orders 3..6. Everything is read before dst is written, so b
// may be dst itself.
template <int N, class M, class B, class X>
void solveSubst(M a, const Qel32s* p, B b, X x) {
  using T = ElemOf<X>;
  int pk[N];
  T y[N];
  for (int k = 0; k < N; ++k) pk[k] = p[k];
  for (int k = 0; k < N; ++k) y[k] = b.at(0, pk[k]);
  auto c = [&](int k, int j) { return T(a.at(pk[k], j)); };
  forwardSubst<N>(y, c);
  backwardSubst<N>(y, c, [&](int k, T t) { return t / c(k, k); });
  for (int k = 0; k < N; ++k) x.at(0, k) = y[k];
}

// mava at orders 3..6 on contiguous rows: one object per lane, the same
// subtractions and divisions as solveSubst in every lane, and Q registers of
// objects interleaved so that one's chain of divisions runs while the other's
// waits. The right-hand sides of all of them are read before any result is
// stored; the caller makes sure no result can reach another object's operands.
template <int N, int Q, class A, class I, class B, class X>
[[gnu::flatten]] void solveSubstLanes(A a, I index, B b, X x, int n) {
  using T = ElemOf<typename X::Object>;
  using S = Lanes<T>;
  using V = typename S::V;
  constexpr int G = S::L;
  constexpr int R = RowRegs<T, N>::R;
  V y[Q][N];
  V c[Q][N][N];
  unroll<Q>([&](auto q) {
    const int n0 = n + q * G;
    const Qel32s* p[G];
    unroll<G>([&](auto g) { p[g] = index.object(n0 + g); });
    unroll<N>([&](auto k) {
      if constexpr (G == 4)
        y[q][k] = S::gather(b.object(n0).at(0, p[0][k]), b.object(n0 + 1).at(0, p[1][k]),
                            b.object(n0 + 2).at(0, p[2][k]), b.object(n0 + 3).at(0, p[3][k]));
      else
        y[q][k] = S::gather(b.object(n0).at(0, p[0][k]), b.object(n0 + 1).at(0, p[1][k]));
    });
    unroll<N>([&](auto k) {
      V rows[G][R];
      unroll<G>([&](auto g) { loadRow<T, N>(a.object(n0 + g), p[g][k], rows[g]); });
      rowsToLanes<T, N>(rows, c[q][k]);
    });
  });
  // forwardSubst and backwardSubst, step by step across the Q groups.
  for (int k = 1; k < N; ++k)
    unroll<Q>([&](auto q) {
      V t = y[q][k];
      for (int j = 1; j < k; ++j) t = S::sub(t, S::mul(c[q][k][j], y[q][j]));
      y[q][k] = S::sub(t, S::mul(c[q][k][0], y[q][0]));
    });
  unroll<Q>([&](auto q) { y[q][N - 1] = S::div(y[q][N - 1], c[q][N - 1][N - 1]); });
  for (int k = N - 2; k >= 0; --k)
    unroll<Q>([&](auto q) {
      V t = y[q][k];
      for (int j = N - 1; j > k; --j) t = S::sub(t, S::mul(c[q][k][j], y[q][j]));
      y[q][k] = S::div(t, c[q][k][k]);
    });
  unroll<Q>([&](auto q) {
    V rows[G][R];
    lanesToRows<T, N>(y[q], rows);
    unroll<G>([&](auto g) { storeRow<T, N>(x.object(n + q * G + g), 0, rows[g]); });
  });
}

// ------------------------------------------------------------- hoisted factors

// The factors of one matrix in locals, rows in pivot order, with the
// reciprocals of the diagonal.
template <int N, class T>
struct HeldFactors {
  int p[N];
  T c[N][N];
  T r[N];

  template <class M>
  HeldFactors(M a, const Qel32s* index) {
    for (int k = 0; k < N; ++k) p[k] = index[k];
    for (int k = 0; k < N; ++k)
      for (int j = 0; j < N; ++j) c[k][j] = a.at(p[k], j);
    for (int k = 0; k < N; ++k) r[k] = T(1) / c[k][k];
  }
};

template <int N, class T, class B, class X>
void solveHeld(const HeldFactors<N, T>& f, B b, X x) {
  T y[N];
  for (int k = 0; k < N; ++k) y[k] = b.at(0, f.p[k]);
  auto c = [&](int k, int j) { return f.c[k][j]; };
  forwardSubst<N>(y, c);
  backwardSubst<N>(y, c, [&](int k, T t) { return t * f.r[k]; });
  for (int k = 0; k < N; ++k) x.at(0, k) = y[k];
}

// ------------------------------------------------------------- folded form
//
// With t = L^-1 w (w the right-hand side in pivot order) and V = U^-1:
//   L^-1:  M(i, i-1) = 0 - L(i, i-1); further left M(i, j) = sum_k L(i, k) D(k, j) - L(i, j)
//          over k = j+1 .. i-1 ascending, where D = -M is carried alongside as
//          D(i, j) = L(i, j) - sum_k L(i, k) D(k, j) (D(i, i-1) = L(i, i-1)).
//   U^-1:  V(i, i) = r(i), V(i, i+1) = (0 - U(i, i+1) r(i)) r(i+1), further right
//          V(i, j) = (0 - r(i)) (G(i, j) r(j)) with G(i, i+1) = U(i, i+1) and
//          G(i, j) = sum_k (0 - U(i, k) r(k)) G(k, j) + U(i, j), k = i+1 .. j-1 ascending.
// Per right-hand side: t(i) = sum_{j<i} M(i, j) w(j) + w(i), j ascending; then
// x(i) = r(i) t(i) + V(i, N-1) t(N-1) + ... + V(i, i+1) t(i+1). At orders 5 and 6
// only rows 4 .. 1 and 5 .. 2 of V are expanded; the rows above them follow by
// substitution with the reciprocals. At order 3 this is, term for term,
//   t1 = (0 - a) w0 + w1,  t2 = (a b2 - c) w0 + w1 (0 - b2) + w2,
//   x2 = r2 t2,  x1 = ((0 - f r1) r2) t2 + r1 t1,
//   x0 = w0 r0 + t2 ((0 - r0)(g r2)) + t1 ((0 - d r0) r1),  g = (0 - d r1) f + e.

template <int N>
struct FoldedFactors {
  static constexpr int firstExpanded = N <= 4 ? 0 : N - 4;  // rows of V held
  HeldFactors<N, float> h;
  float m[N][N];  // L^-1 below the diagonal
  float v[N][N];  // U^-1 above the diagonal, rows firstExpanded .. N-1

  template <class M>
  FoldedFactors(M a, const Qel32s* index) : h(a, index) {
    const auto& c = h.c;
    const auto& r = h.r;
    float d[N][N];
    for (int i = 1; i < N; ++i) {
      m[i][i - 1] = 0.0f - c[i][i - 1];
      d[i][i - 1] = c[i][i - 1];
      for (int j = i - 2; j >= 0; --j) {
        float s = c[i][j + 1] * d[j + 1][j];
        for (int k = j + 2; k < i; ++k) s = s + c[i][k] * d[k][j];
        m[i][j] = s - c[i][j];
        d[i][j] = c[i][j] - s;
      }
    }
    float g[N][N];
    for (int i = N - 2; i >= firstExpanded; --i) {
      g[i][i + 1] = c[i][i + 1];
      v[i][i + 1] = (0.0f - c[i][i + 1] * r[i]) * r[i + 1];
      for (int j = i + 2; j < N; ++j) {
        float s = (0.0f - c[i][i + 1] * r[i + 1]) * g[i + 1][j];
        for (int k = i + 2; k < j; ++k) s = s + (0.0f - c[i][k] * r[k]) * g[k][j];
        g[i][j] = s + c[i][j];
        v[i][j] = (0.0f - r[i]) * (g[i][j] * r[j]);
      }
    }
  }
};

template <int N, class B, class X>
void solveFolded(const FoldedFactors<N>& f, B b, X x) {
  constexpr int H = FoldedFactors<N>::firstExpanded;
  const auto& c = f.h.c;
  const auto& r = f.h.r;
  float w[N], t[N], y[N];
  for (int k = 0; k < N; ++k) w[k] = b.at(0, f.h.p[k]);
  t[0] = w[0];
  for (int i = 1; i < N; ++i) {
    float s = f.m[i][0] * w[0];
    for (int j = 1; j < i; ++j) s = s + f.m[i][j] * w[j];
    t[i] = s + w[i];
  }
  for (int i = N - 1; i >= H; --i) {
    float s = r[i] * t[i];
    for (int j = N - 1; j > i; --j) s = s + f.v[i][j] * t[j];
    y[i] = s;
  }
  for (int i = H - 1; i >= 0; --i) {
    float s = t[i];
    for (int j = N - 1; j > i; --j) s = s - c[i][j] * y[j];
    y[i] = s * r[i];
  }
  for (int k = 0; k < N; ++k) x.at(0, k) = y[k];
}

// ------------------------------------------------------------- serial kernels

template <class V>
constexpr bool isContiguousF32 = std::is_same_v<typename V::Object, Mat<float, true>>;
template <class V>
constexpr bool hasContiguousRows = V::Object::contiguous;
template <class... V>
constexpr bool allRowsContiguous = (rowsContiguous<typename V::Object> && ...);

// The serial kernel of every shape: `count` right-hand sides (mva, mava) or
// one (mv). Folded marks the one export whose contiguous kernel has the
// folded form.
template <SolveShape Shape, bool Folded, class A, class I, class B, class X>
QelStatus solveObjects(A a, I index, B b, X x, int size, int count) {
  using T = ElemOf<typename X::Object>;
  if constexpr (Shape == SolveShape::Mva) {
    const auto m = a.object(0);
    const Qel32s* p = index.object(0);
    bySize(
        size,
        [&](auto n) {
          constexpr int N = decltype(n)::value;
          if constexpr (Folded && isContiguousF32<X>) {
            if (count >= 3) {
              const FoldedFactors<N> f(m, p);
              for (int o = 0; o < count; ++o) solveFolded<N>(f, b.object(o), x.object(o));
              return;
            }
          }
          const HeldFactors<N, T> f(m, p);
          for (int o = 0; o < count; ++o) solveHeld<N>(f, b.object(o), x.object(o));
        },
        [&] {
          for (int o = 0; o < count; ++o) solveGeneral<false>(m, p, b.object(o), x.object(o), size);
        });
  } else {
    constexpr bool peel = Shape == SolveShape::Mv && hasContiguousRows<X>;
    bySize(
        size,
        [&](auto n) {
          constexpr int N = decltype(n)::value;
          int o = 0;
          if constexpr (Shape == SolveShape::Mava && allRowsContiguous<A, B, X>) {
            constexpr int G = 4 * Lanes<T>::L;
            if (independentObjects(b, {1, N}, x, {1, N}, count) && independentObjects(a, {N, N}, x, {1, N}, count))
              for (; o + G <= count; o += G) solveSubstLanes<N, 4>(a, index, b, x, o);
          }
          for (; o < count; ++o)
            solveSubst<N>(a.object(o), index.object(o), b.object(o), x.object(o));
        },
        [&] {
          for (int o = 0; o < count; ++o)
            solveGeneral<peel>(a.object(o), index.object(o), b.object(o), x.object(o), size);
        });
  }
  return qelStatusOk;
}

}  // namespace qel
