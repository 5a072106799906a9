// QR by Householder reflections, and the least-squares solve with it. The
// factor of a height x width matrix (height >= width) keeps R on and above the
// diagonal and, below it, the tail of each reflector v, whose head v(k) = 1 is
// implied. Reflector k maps b to b + beta v (v . b), beta = -2 / (v . v). A
// square matrix has no reflector for its last column.
//
//   qrFactor         one form for every size, v in the buffer; sums of 8 terms
//                    or more take the split accumulators. Square orders 3..6
//                    run the same steps on a private copy, unrolled.
//   qrSolveGeneral   b copied into the buffer, the reflectors applied with
//                    their sums taken anew, back substitution by division.
//   qrSolveFixed     square orders 3..6 in locals, the buffer untouched: the
//                    sums of beta and t in their own order, the head's share
//                    of each reflector carried into the back substitution.
#pragma once

#include "../frame/lanes.h"
#include "../frame/sums.h"
#include "../frame/views.h"
#include "qelm/qelmtypes.h"
#include "solve_shape.h"

#include <cmath>
#include <type_traits>

namespace qel {

// A column whose squared norm has a magnitude below this has vanished.
template <class T>
constexpr double qrTolerance = sizeof(T) == 4 ? 0x1p-23 : 0x1p-52;

inline int qrReflectors(int width, int height) { return width == height ? width - 1 : width; }

// ------------------------------------------------------------- factor

// The steps on a working matrix w(i, j), v built in the buffer and read back
// from `vl` (the buffer itself, or a private copy of it for fixed sizes).
// The test and the root of a Qel32f column work on its sum widened to double.
// N, M: compile-time width and height, or 0 for the sizes given.
template <int N, int M, class T, class W>
inline QelStatus qrSteps(W w, T* v, T* vl, int nr, int mr) {
  const int n = N ? N : nr, m = M ? M : mr;
  const int steps = qrReflectors(n, m);
#pragma GCC unroll 6
  for (int k = 0; k < steps; ++k) {
    const int tail = m - k - 1;
    const T s = splitSumFrom(T(0), m - k, gatheredTerms<T>([&](int q) {
                               const T e = w(k + q, k);
                               return T(e * e);
                             }));
    const double wide = s;
    if (qrTolerance<T> > std::fabs(wide)) return qelStatusDivideByZero;  // a NaN passes
    const T head = w(k, k);
    T r = T(std::sqrt(wide));
    if (!(head > 0)) r = -r;  // a zero or NaN head takes the negative root
    const T h = T(1) / (head + r);
    v[k] = vl[k] = 1;
#pragma GCC unroll 6
    for (int i = k + 1; i < m; ++i) v[i] = vl[i] = w(i, k) * h;
    const T q = splitSumFrom(T(1), tail, gatheredTerms<T>([&](int p) { return T(vl[k + 1 + p] * vl[k + 1 + p]); }));
    const T beta = T(-2) / q;
#pragma GCC unroll 6
    for (int j = k; j < n; ++j) {
      T t = splitSumFrom(T(w(k, j)), tail, gatheredTerms<T>([&](int p) { return T(w(k + 1 + p, j) * vl[k + 1 + p]); }));
      t = t * beta;
#pragma GCC unroll 6
      for (int i = k; i < m; ++i) w(i, j) = vl[i] * t + w(i, j);
    }
#pragma GCC unroll 6
    for (int i = k + 1; i < m; ++i) w(i, k) = vl[i];
  }
  return qelStatusOk;
}

// Any shape, working in dst after the copy.
template <class T, class S, class D>
QelStatus qrFactor(S src, D d, T* v, int n, int m) {
  for (int i = 0; i < m; ++i)
    for (int j = 0; j < n; ++j) d.at(i, j) = src.at(i, j);
  return qrSteps<0, 0>([&](int i, int j) -> T& { return d.at(i, j); }, v, v, n, m);
}

// Square orders 3..6 in a private copy, stored whole whatever the status:
// what dst holds is what the steps in place would have left.
template <int N, class T, class S, class D>
QelStatus qrFactorFixed(S src, D d, T* v) {
  T w[N][N], vl[N];
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) w[i][j] = src.at(i, j);
  const QelStatus st = qrSteps<N, N>([&](int i, int j) -> T& { return w[i][j]; }, v, vl, N, N);
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) d.at(i, j) = w[i][j];
  return st;
}

// Square orders 3..6, one object per lane (four Qel32f, two Qel64f): the same
// steps as qrSteps in every lane, sums under 8 terms so plain. The Qel32f
// root is taken in single precision: rounding the double root to single gives
// the correctly rounded single root, so the bits are those of the widened
// form. Nothing is stored unless every column of every lane passes; false
// then, and the caller runs the objects one at a time.
template <int N, class S, class D, class T>
[[gnu::flatten]] bool qrFactorLanes(S src, D dst, T* buffer, int n0) {
  using L = Lanes<T>;
  using V = typename L::V;
  constexpr int G = L::L;
  constexpr int R = RowRegs<T, N>::R;
  V w[N][N], vl[N];
  unroll<N>([&](auto i) {
    V rows[G][R];
    unroll<G>([&](auto g) { loadRow<T, N>(src.object(n0 + g), i, rows[g]); });
    rowsToLanes<T, N>(rows, w[i]);
  });
  const V sign = L::splat(T(-0.0)), zero = L::zero();
  V bad = zero;
  unroll<N - 1>([&](auto k) {
    V s = L::mul(w[k][k], w[k][k]);
    unroll<N - 1 - k>([&](auto p) { s = L::add(s, L::mul(w[k + 1 + p][k], w[k + 1 + p][k])); });
    bad = L::either(bad, L::greater(L::splat(T(qrTolerance<T>)), L::abs(s)));
    const V root = L::sqrt(s);
    const V negRoot = G == 4 ? V(_mm_xor_ps(__m128(root), __m128(sign))) : V(_mm_xor_pd(__m128d(root), __m128d(sign)));
    const V head = w[k][k];
    const V h = L::div(L::splat(T(1)), L::add(head, L::select(L::greater(head, zero), root, negRoot)));
    V q = L::splat(T(1));
    unroll<N - 1 - k>([&](auto p) {
      vl[k + 1 + p] = L::mul(w[k + 1 + p][k], h);
      q = L::add(q, L::mul(vl[k + 1 + p], vl[k + 1 + p]));
    });
    const V beta = L::div(L::splat(T(-2)), q);
    unroll<N - k>([&](auto jj) {
      constexpr int j = k + jj;
      V t = w[k][j];
      unroll<N - 1 - k>([&](auto p) { t = L::add(t, L::mul(w[k + 1 + p][j], vl[k + 1 + p])); });
      t = L::mul(t, beta);
      w[k][j] = L::add(t, w[k][j]);  // the head of v is 1
      unroll<N - 1 - k>([&](auto p) { w[k + 1 + p][j] = L::add(L::mul(vl[k + 1 + p], t), w[k + 1 + p][j]); });
    });
    unroll<N - 1 - k>([&](auto p) { w[k + 1 + p][k] = vl[k + 1 + p]; });
  });
  if (L::anyLane(bad)) return false;
  unroll<N>([&](auto i) {
    V rows[G][R];
    lanesToRows<T, N>(w[i], rows);
    unroll<G>([&](auto g) { storeRow<T, N>(dst.object(n0 + g), i, rows[g]); });
  });
  // The buffer ends as the serial steps leave it for the last object.
  alignas(16) T last[G];
  if constexpr (G == 4) _mm_store_ps(last, vl[N - 1]);
  else _mm_store_pd(last, vl[N - 1]);
  buffer[N - 2] = 1;
  buffer[N - 1] = last[G - 1];
  return true;
}

// The serial kernel: each object copied and reduced in turn, the first
// failure ending the run.
template <class S, class D, class T>
QelStatus qrObjects(S src, D dst, T* buffer, int width, int height, int count) {
  auto general = [&]() -> QelStatus {
    for (int o = 0; o < count; ++o)
      if (QelStatus st = qrFactor(src.object(o), dst.object(o), buffer, width, height)) return st;
    return qelStatusOk;
  };
  if (width != height) return general();
  return bySize(
      width,
      [&](auto order) -> QelStatus {
        constexpr int N = decltype(order)::value;
        constexpr int G = Lanes<std::remove_const_t<typename D::Object::Elem>>::L;
        int o = 0;
        if (independentObjects(src, {N, N}, dst, {N, N}, count))
          for (; o + G <= count; o += G)
            if (!qrFactorLanes<N>(src, dst, buffer, o))
              for (int g = 0; g < G; ++g)
                if (QelStatus st = qrFactorFixed<N>(src.object(o + g), dst.object(o + g), buffer)) return st;
        for (; o < count; ++o)
          if (QelStatus st = qrFactorFixed<N>(src.object(o), dst.object(o), buffer)) return st;
        return qelStatusOk;
      },
      general);
}

// ------------------------------------------------------------- solve

template <class M, class B, class X, class T>
void qrSolveGeneral(M a, B b, X x, T* w, int n, int m) {
  for (int i = 0; i < m; ++i) w[i] = b.at(0, i);
  const int steps = qrReflectors(n, m);
  for (int k = 0; k < steps; ++k) {
    T q = 1, p = w[k];
    for (int i = k + 1; i < m; ++i) {
      const T e = a.at(i, k);
      q = q + e * e;
      p = p + e * w[i];
    }
    const T t = (T(-2) / q) * p;
    w[k] = w[k] + t;
    for (int i = k + 1; i < m; ++i) w[i] = w[i] + a.at(i, k) * t;
  }
  x.at(0, n - 1) = w[n - 1] / a.at(n - 1, n - 1);
  for (int k = n - 2; k >= 0; --k) {
    T s = 0;
    for (int j = k + 1; j < n; ++j) s = s + a.at(k, j) * x.at(0, j);
    x.at(0, k) = (w[k] - s) / a.at(k, k);
  }
}

// A square factor of order N in locals with the betas of its reflectors.
// Order 3 sums as (row 1, head, row 2); orders 4..6 take the last row's term
// first, then the head, then the other rows in ascending order. T is the
// element type, or LaneValue for one object per lane.
template <int N, class T>
struct QrHeld {
  T a[N][N];
  T beta[N - 1];

  template <class Sum>
  static T reflectorSum(int k, T head, Sum term) {
    if (N == 3 && k == 0) return (term(1) + head) + term(2);
    T s = term(N - 1) + head;
    for (int i = k + 1; i < N - 1; ++i) s = s + term(i);
    return s;
  }

  QrHeld() = default;
  template <class M>
  explicit QrHeld(M m) {
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) a[i][j] = m.at(i, j);
    prepare();
  }
  void prepare() {
    for (int k = 0; k < N - 1; ++k)
      beta[k] = T(-2) / reflectorSum(k, T(1), [&](int i) { return T(a[i][k] * a[i][k]); });
  }
};

// The head's update t(k) is left out of c(k) and added in the back
// substitution: row N-2 as (c - a x(N-1)) + t, rows above as (t + c) minus
// the terms in descending j; true divisions. c is b on entry, x is y.
template <int N, class T>
inline void qrSolveCore(const QrHeld<N, T>& f, T (&c)[N], T (&y)[N]) {
  const auto& a = f.a;
  T t[N - 1];
  for (int k = 0; k < N - 1; ++k) {
    t[k] = QrHeld<N, T>::reflectorSum(k, c[k], [&](int i) { return T(c[i] * a[i][k]); }) * f.beta[k];
    for (int i = k + 1; i < N; ++i) c[i] = c[i] + a[i][k] * t[k];
  }
  y[N - 1] = c[N - 1] / a[N - 1][N - 1];
  y[N - 2] = ((c[N - 2] - a[N - 2][N - 1] * y[N - 1]) + t[N - 2]) / a[N - 2][N - 2];
  for (int k = N - 3; k >= 0; --k) {
    T s = t[k] + c[k];
    for (int j = N - 1; j > k; --j) s = s - a[k][j] * y[j];
    y[k] = s / a[k][k];
  }
}

// x is stored last, so b may be x.
template <int N, class T, class B, class X>
void qrSolveHeld(const QrHeld<N, T>& f, B b, X x) {
  T c[N], y[N];
  for (int i = 0; i < N; ++i) c[i] = b.at(0, i);
  qrSolveCore(f, c, y);
  for (int k = 0; k < N; ++k) x.at(0, k) = y[k];
}

// mava on contiguous rows: one object per lane, the steps of qrSolveHeld.
template <int N, class A, class B, class X>
[[gnu::flatten]] void qrSolveLanes(A a, B b, X x, int n0) {
  using T = ElemOf<typename X::Object>;
  using L = Lanes<T>;
  using V = typename L::V;
  constexpr int G = L::L;
  constexpr int R = RowRegs<T, N>::R;
  using P = LaneValue<T>;
  auto gather = [&](auto view, int i, V (&cols)[N]) {
    V rows[G][R];
    unroll<G>([&](auto g) { loadRow<T, N>(view(n0 + g), i, rows[g]); });
    rowsToLanes<T, N>(rows, cols);
  };
  QrHeld<N, P> f;
  V cols[N];
  for (int i = 0; i < N; ++i) {
    gather([&](int o) { return a.object(o); }, i, cols);
    for (int j = 0; j < N; ++j) f.a[i][j] = cols[j];
  }
  f.prepare();
  P c[N], y[N];
  gather([&](int o) { return b.object(o); }, 0, cols);
  for (int j = 0; j < N; ++j) c[j] = cols[j];
  qrSolveCore(f, c, y);
  for (int j = 0; j < N; ++j) cols[j] = y[j].v;
  V rows[G][R];
  lanesToRows<T, N>(cols, rows);
  unroll<G>([&](auto g) { storeRow<T, N>(x.object(n0 + g), 0, rows[g]); });
}

// The serial kernel of every shape. Square orders 3..6 take the fixed form
// (mva reads its factor and betas once), the rest the general form through
// the buffer, its sums taken anew for every right-hand side.
template <SolveShape Shape, class A, class B, class X, class T>
QelStatus qrSolveObjects(A a, B b, X x, T* buffer, int width, int height, int count) {
  auto general = [&] {
    for (int o = 0; o < count; ++o) qrSolveGeneral(a.object(o), b.object(o), x.object(o), buffer, width, height);
  };
  if (width != height) {
    general();
    return qelStatusOk;
  }
  bySize(
      width,
      [&](auto order) {
        constexpr int N = decltype(order)::value;
        if constexpr (Shape == SolveShape::Mava) {
          int o = 0;
          if constexpr (rowsContiguous<typename A::Object> && rowsContiguous<typename B::Object> &&
                        rowsContiguous<typename X::Object>) {
            constexpr int G = Lanes<T>::L;
            if (independentObjects(b, {1, N}, x, {1, N}, count) && independentObjects(a, {N, N}, x, {1, N}, count))
              for (; o + G <= count; o += G) qrSolveLanes<N>(a, b, x, o);
          }
          for (; o < count; ++o) qrSolveHeld(QrHeld<N, T>(a.object(o)), b.object(o), x.object(o));
        } else {
          const QrHeld<N, T> f(a.object(0));
          for (int o = 0; o < count; ++o) qrSolveHeld(f, b.object(o), x.object(o));
        }
      },
      general);
  return qelStatusOk;
}

}  // namespace qel
