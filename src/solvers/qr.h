// QR by Householder reflections, and the least-squares solve with it. The
// factor of a height x width matrix (height >= width) keeps R on and above the
// diagonal and, below it, the tail of each reflector v, whose head v(k) = 1 is
// implied. Reflector k maps b to b + beta v (v . b), beta = -2 / (v . v). A
// square matrix has no reflector for its last column.
//
//   qrFactor         one form for every size, working in dst, v in the buffer;
//                    sums of 8 terms or more take the split accumulators.
//   qrSolveGeneral   b copied into the buffer, the reflectors applied with
//                    their sums taken anew, back substitution by division.
//   qrSolveFixed     square orders 3..6 in locals, the buffer untouched: the
//                    sums of beta and t in their own order, the head's share
//                    of each reflector carried into the back substitution.
#pragma once

#include "../frame/sums.h"
#include "../frame/views.h"
#include "qelm/qelmtypes.h"
#include "solve_shape.h"

#include <cmath>

namespace qel {

// A column whose squared norm has a magnitude below this has vanished.
template <class T>
constexpr double qrTolerance = sizeof(T) == 4 ? 0x1p-23 : 0x1p-52;

inline int qrSteps(int width, int height) { return width == height ? width - 1 : width; }

// ------------------------------------------------------------- factor

// The test and the root of a Qel32f column work on its sum widened to double.
template <class T, class S, class D>
QelStatus qrFactor(S src, D d, T* v, int n, int m) {
  for (int i = 0; i < m; ++i)
    for (int j = 0; j < n; ++j) d.at(i, j) = src.at(i, j);
  const int steps = qrSteps(n, m);
  for (int k = 0; k < steps; ++k) {
    const int tail = m - k - 1;
    const T s = splitSumFrom(T(0), m - k, gatheredTerms<T>([&](int q) {
                               const T e = d.at(k + q, k);
                               return T(e * e);
                             }));
    const double wide = s;
    if (qrTolerance<T> > std::fabs(wide)) return qelStatusDivideByZero;  // a NaN passes
    const T head = d.at(k, k);
    T r = T(std::sqrt(wide));
    if (!(head > 0)) r = -r;  // a zero or NaN head takes the negative root
    const T h = T(1) / (head + r);
    v[k] = 1;
    for (int i = k + 1; i < m; ++i) v[i] = d.at(i, k) * h;
    const T q = splitSumFrom(T(1), tail, gatheredTerms<T>([&](int p) { return T(v[k + 1 + p] * v[k + 1 + p]); }));
    const T beta = T(-2) / q;
    for (int j = k; j < n; ++j) {
      T t = splitSumFrom(T(d.at(k, j)), tail,
                         gatheredTerms<T>([&](int p) { return T(d.at(k + 1 + p, j) * v[k + 1 + p]); }));
      t = t * beta;
      for (int i = k; i < m; ++i) d.at(i, j) = v[i] * t + d.at(i, j);
    }
    for (int i = k + 1; i < m; ++i) d.at(i, k) = v[i];
  }
  return qelStatusOk;
}

// The serial kernel: each object copied and reduced in turn, the first
// failure ending the run.
template <class S, class D, class T>
QelStatus qrObjects(S src, D dst, T* buffer, int width, int height, int count) {
  for (int o = 0; o < count; ++o)
    if (QelStatus st = qrFactor(src.object(o), dst.object(o), buffer, width, height)) return st;
  return qelStatusOk;
}

// ------------------------------------------------------------- solve

template <class M, class B, class X, class T>
void qrSolveGeneral(M a, B b, X x, T* w, int n, int m) {
  for (int i = 0; i < m; ++i) w[i] = b.at(0, i);
  const int steps = qrSteps(n, m);
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
// first, then the head, then the other rows in ascending order.
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

  template <class M>
  explicit QrHeld(M m) {
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) a[i][j] = m.at(i, j);
    for (int k = 0; k < N - 1; ++k)
      beta[k] = T(-2) / reflectorSum(k, T(1), [&](int i) { return T(a[i][k] * a[i][k]); });
  }
};

// The head's update t(k) is left out of c(k) and added in the back
// substitution: row N-2 as (c - a x(N-1)) + t, rows above as (t + c) minus
// the terms in descending j; true divisions. x is stored last, so b may be x.
template <int N, class T, class B, class X>
void qrSolveHeld(const QrHeld<N, T>& f, B b, X x) {
  const auto& a = f.a;
  T c[N], t[N - 1];
  for (int i = 0; i < N; ++i) c[i] = b.at(0, i);
  for (int k = 0; k < N - 1; ++k) {
    t[k] = QrHeld<N, T>::reflectorSum(k, c[k], [&](int i) { return T(c[i] * a[i][k]); }) * f.beta[k];
    for (int i = k + 1; i < N; ++i) c[i] = c[i] + a[i][k] * t[k];
  }
  T y[N];
  y[N - 1] = c[N - 1] / a[N - 1][N - 1];
  y[N - 2] = ((c[N - 2] - a[N - 2][N - 1] * y[N - 1]) + t[N - 2]) / a[N - 2][N - 2];
  for (int k = N - 3; k >= 0; --k) {
    T s = t[k] + c[k];
    for (int j = N - 1; j > k; --j) s = s - a[k][j] * y[j];
    y[k] = s / a[k][k];
  }
  for (int k = 0; k < N; ++k) x.at(0, k) = y[k];
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
          for (int o = 0; o < count; ++o) qrSolveHeld(QrHeld<N, T>(a.object(o)), b.object(o), x.object(o));
        } else {
          const QrHeld<N, T> f(a.object(0));
          for (int o = 0; o < count; ++o) qrSolveHeld(f, b.object(o), x.object(o));
        }
      },
      general);
  return qelStatusOk;
}

}  // namespace qel
