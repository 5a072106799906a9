// Eigenvalues, and eigenvectors, of real symmetric matrices. Orders 1 and 2 have
// closed forms; from order 3 a Householder reduction to tridiagonal form in the
// caller's buffer W, then an implicitly shifted QL/QR sweep on its diagonal and
// subdiagonal, at most 30 passes per eigenvalue, then a descending sort.
//
// One object runs through symObject; Vectors adds the orthogonal matrix Q,
// kept in dstVectors itself (a view, in any description). The eigenvalue array
// is the reflection's scratch vector during the reduction.
//
// All thresholds are the element type's epsilon, absolute: a matrix whose
// running product of eigenvalues is small is refused whatever its conditioning.
// In 32-bit kernels roots are taken in 64 bits and magnitudes are compared with
// epsilon as 64-bit numbers.
#pragma once

#include "qelm/qelmtypes.h"

#include <cmath>
#include <type_traits>
#include <utility>

namespace qel::eigen {

template <class T>
constexpr T kEps = std::is_same_v<T, Qel32f> ? T(0x1p-23f) : T(0x1p-52);

template <class T>
inline T root(T x) {
  return T(std::sqrt(double(x)));
}
// |x| <= eps, |x| > eps and x > eps, in 64 bits. A NaN is neither small nor large.
template <class T>
inline bool small(T x) {
  return std::fabs(double(x)) <= double(kEps<T>);
}
template <class T>
inline bool large(T x) {
  return std::fabs(double(x)) > double(kEps<T>);
}
template <class T>
inline bool aboveEps(T x) {
  return double(x) > double(kEps<T>);
}

// The values family passes no vectors.
struct NoVectors {
  using Contiguous = NoVectors;
  static constexpr bool hasStride2 = false;
  static constexpr bool isArray = true;
  NoVectors object(int) const { return {}; }
  NoVectors from(int) const { return {}; }
  bool unitStride() const { return true; }
  Contiguous toContiguous() const { return {}; }
  bool stridesOk() const { return true; }
  bool shiftsOk() const { return true; }
  bool pointerOk() const { return true; }
};
template <class Q>
constexpr bool hasVectors = !std::is_same_v<Q, NoVectors>;

// ---------------------------------------------------------------- orders 1 and 2

template <class T, class S, class Q>
QelStatus symOrderOne(const S& src, T* values, const Q& q) {
  values[0] = src.at(0, 0);
  if constexpr (hasVectors<Q>) q.at(0, 0) = T(1);
  return qelStatusOk;
}

// The pair is not sorted: a clearly negative trace gives it in ascending order.
// src(1, 0) is never read; W holds the upper triangle mirrored.
template <class T, class S, class Q>
QelStatus symOrderTwo(const S& src, T* w, T* values, const Q& q) {
  w[0] = src.at(0, 0);
  w[1] = src.at(0, 1);
  w[2] = w[1];
  w[3] = src.at(1, 1);
  const T a = w[0], b = w[1], d = w[3];
  const T det = a * d - b * b;
  if (small(det)) return qelStatusSingular;
  const T df = a - d, tb = b + b, rt = root(df * df + tb * tb), sm = d + a;
  T l1, l2;
  bool negative = false;  // sgn1 = -1
  if (aboveEps(sm)) {
    l1 = (rt + sm) * T(0.5);
    l2 = det / l1;
  } else if (double(sm) >= -double(kEps<T>)) {
    l1 = rt * T(0.5);
    l2 = rt * T(-0.5);
  } else {
    l1 = (sm - rt) * T(0.5);
    l2 = det / l1;
    negative = true;
  }
  values[0] = l1;
  values[1] = l2;
  if constexpr (hasVectors<Q>) {
    const bool dfNegative = double(df) < -double(kEps<T>);  // sgn2 = -1
    const T cs = dfNegative ? df - rt : rt + df;
    T c1, s1;
    if (std::fabs(cs) > std::fabs(tb)) {
      const T ct = -tb / cs;
      s1 = T(1) / root(ct * ct + T(1));
      c1 = ct * s1;
    } else if (large(tb)) {
      const T tn = -cs / tb;
      c1 = T(1) / root(tn * tn + T(1));
      s1 = tn * c1;
    } else {
      c1 = T(1);
      s1 = T(0);
    }
    const T c = negative == dfNegative ? -s1 : c1;
    const T s = negative == dfNegative ? c1 : s1;
    q.at(0, 0) = c;
    q.at(1, 0) = s;
    q.at(0, 1) = -s;
    q.at(1, 1) = c;
  }
  return qelStatusOk;
}

// ---------------------------------------------------------------- order 3 and up

// Householder reduction of W (n x n, packed rows) to tridiagonal form; v is the
// eigenvalue array. Only the diagonal and subdiagonal are read afterwards.
template <int N, class T, class Q>
void symReduce(T* w, T* v, const Q& q, int size) {
  const int n = N ? N : size;
  auto W = [&](int i, int j) -> T& { return w[i * n + j]; };
  for (int k = 1; k <= n - 2; ++k) {
    T s = 0;
    for (int i = k; i < n; ++i) s = s + W(i, k - 1) * W(i, k - 1);
    const T norm = root(s);
    const T alpha = W(k, k - 1);
    // The vectors kernels leave a column that is already reflected alone, v unformed.
    if constexpr (hasVectors<Q>)
      if (!large(norm - alpha)) continue;
    for (int i = k + 1; i < n; ++i) v[i] = W(i, k - 1);
    T h;
    if (aboveEps(alpha)) {
      v[k] = alpha + norm;
      h = (s + alpha * norm) * T(2);
    } else if (large(alpha)) {
      v[k] = alpha - norm;
      h = (s - alpha * norm) * T(2);
    } else {
      v[k] = norm;
      h = s + s;
    }
    if (!aboveEps(h)) continue;
    const T f = T(2) / h;
    for (int c = k - 1; c < n; ++c) {
      T t = 0;
      for (int i = k; i < n; ++i) t = t + W(i, c) * v[i];
      for (int i = k; i < n; ++i) W(i, c) = W(i, c) - v[i] * (t * f);
    }
    for (int r = k - 1; r < n; ++r) {
      T t = 0;
      for (int j = k; j < n; ++j) t = t + W(r, j) * v[j];
      for (int j = k; j < n; ++j) W(r, j) = W(r, j) - v[j] * (t * f);
    }
    if constexpr (hasVectors<Q>) {
      if (k == 1) {  // the reflector itself, written over the identity
        for (int j = 1; j < n; ++j) q.at(0, j) = q.at(j, 0) = T(0);
        for (int i = 1; i < n; ++i) {
          q.at(i, i) = T(1) - f * v[i] * v[i];
          for (int j = i + 1; j < n; ++j) q.at(i, j) = q.at(j, i) = -f * v[i] * v[j];
        }
      } else {
        for (int r = 1; r < n; ++r) {
          T t = 0;
          for (int j = k; j < n; ++j) t = t + q.at(r, j) * v[j];
          for (int j = k; j < n; ++j) q.at(r, j) = q.at(r, j) - v[j] * t * f;
        }
      }
    }
  }
}

// Columns i and i+1 of Q turned by (c, s); Down names the sense of the sweep.
template <bool Down, class T, class Q>
inline void rotateColumns(const Q& q, int n, int i, T c, T s) {
  for (int r = 0; r < n; ++r) {
    T& xr = q.at(r, i);
    T& yr = q.at(r, i + 1);
    const T x = xr, y = yr;
    if (Down) {
      xr = c * x + s * y;
      yr = c * y - s * x;
    } else {
      xr = c * x - s * y;
      yr = c * y + s * x;
    }
  }
}

// The Wilkinson shift of the 2 x 2 block at (a, b), off-diagonal e, moved to the
// diagonal element dm: g = dm - db + e / q. A small positive g takes q = g - r.
template <class T>
inline T shifted(T da, T db, T e, T dm) {
  T g = (da - db) / (T(2) * e);
  const T r = root(g * g + T(1));
  const T q = aboveEps(g) ? g + r : g - r;
  return dm - db + e / q;
}

// Downward: eigenvalues split off at the bottom, l from n-1 to 1, the chase
// running down from m. In the values kernels every search that stops at m > 0
// writes W[m][m] as a value and multiplies it into prod.
template <int N, class T, class Q>
QelStatus sweepDown(T* w, T* v, const Q& q, int size, T& prod) {
  const int n = N ? N : size;
  auto W = [&](int i, int j) -> T& { return w[i * n + j]; };
  for (int l = n - 1; l >= 1; --l) {
    for (int iter = 0;; ++iter) {
      int m = l;
      for (; m > 0; --m)
        if (small(W(m, m - 1) * T(0.5))) {
          if constexpr (!hasVectors<Q>) {
            v[m] = W(m, m);
            prod = prod * W(m, m);
          }
          break;
        }
      if (m == l) break;
      if (iter == 30) return qelStatusNoConvergence;
      T g = shifted(W(l - 1, l - 1), W(l, l), W(l, l - 1), W(m, m));
      T s = 1, c = 1, p = 0;
      bool split = false;
      for (int i = m; i < l; ++i) {
        const T f = s * W(i + 1, i), b = c * W(i + 1, i);
        const T r = root(f * f + g * g);
        if (i != m) W(i, i - 1) = r;
        if (small(r)) {
          W(i, i) = W(i, i) - p;
          W(m + 1, m) = T(0);
          split = true;
          break;
        }
        c = g / r;
        s = f / r;
        if constexpr (hasVectors<Q>) rotateColumns<true>(q, n, i, c, s);
        const T t = W(i, i) - p;
        const T u = (W(i + 1, i + 1) - t) * s + T(2) * c * b;
        p = u * s;
        W(i, i) = t + p;
        g = u * c - b;
      }
      if (!split) {
        W(l, l) = W(l, l) - p;
        W(l, l - 1) = g;
      }
    }
  }
  if constexpr (!hasVectors<Q>) {
    v[0] = W(0, 0);
    prod = prod * W(0, 0);
  }
  return qelStatusOk;
}

// Upward: eigenvalues split off at the top, l from 0, the chase running up from m.
template <int N, class T, class Q>
QelStatus sweepUp(T* w, const Q& q, int size) {
  const int n = N ? N : size;
  auto W = [&](int i, int j) -> T& { return w[i * n + j]; };
  for (int l = 0; l < n; ++l) {
    for (int iter = 0;; ++iter) {
      int m = l;
      while (m < n - 1 && large(W(m + 1, m) * T(0.5))) ++m;
      if (m == l) break;
      if (iter == 30) return qelStatusNoConvergence;
      T g = shifted(W(l + 1, l + 1), W(l, l), W(l + 1, l), W(m, m));
      T s = 1, c = 1, p = 0;
      bool split = false;
      for (int i = m - 1; i >= l; --i) {
        const T f = s * W(i + 1, i), b = c * W(i + 1, i);
        const T r = root(f * f + g * g);
        if (i != m - 1) W(i + 2, i + 1) = r;
        if (small(r)) {
          W(i + 1, i + 1) = W(i + 1, i + 1) - p;
          W(m, m - 1) = T(0);
          split = true;
          break;
        }
        c = g / r;
        s = f / r;
        if constexpr (hasVectors<Q>) rotateColumns<false>(q, n, i, c, s);
        const T t = W(i + 1, i + 1) - p;
        const T u = (W(i, i) - t) * s + T(2) * c * b;
        p = u * s;
        W(i + 1, i + 1) = t + p;
        g = u * c - b;
      }
      if (!split) {
        W(l, l) = W(l, l) - p;
        W(l + 1, l) = g;
      }
    }
  }
  return qelStatusOk;
}

// Descending, the first of equal values staying first; Q's columns follow.
template <class T, class Q>
void sortDescending(T* v, const Q& q, int n) {
  for (int i = 0; i + 1 < n; ++i) {
    int j = i;
    for (int k = i + 1; k < n; ++k)
      if (v[k] > v[j]) j = k;
    if (j == i) continue;
    const T top = v[j];
    v[j] = v[i];
    v[i] = top;
    if constexpr (hasVectors<Q>)
      for (int r = 0; r < n; ++r) std::swap(q.at(r, i), q.at(r, j));
  }
}

// sortFirst: the single-matrix vectors forms sort before the singular test,
// so that a refused matrix still gives its values and vectors in order.
template <int N, class T, class S, class Q>
QelStatus symLarge(const S& src, T* w, T* v, const Q& q, int size, bool sortFirst) {
  const int n = N ? N : size;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      w[i * n + j] = src.at(i, j);
      if constexpr (hasVectors<Q>) q.at(i, j) = T(i == j);
    }
  symReduce<N>(w, v, q, n);

  T prod = 1;
  const bool down = std::fabs(w[n * n - 1]) <= std::fabs(w[0]);
  if (QelStatus st = down ? sweepDown<N>(w, v, q, n, prod) : sweepUp<N>(w, q, n)) return st;
  if (hasVectors<Q> || !down)
    for (int i = 0; i < n; ++i) {
      v[i] = w[i * n + i];
      prod = prod * v[i];
    }

  const QelStatus st = small(prod) ? qelStatusSingular : qelStatusOk;
  if (st && !sortFirst) return st;
  sortDescending(v, q, n);
  return st;
}

template <int N, class T, class S, class Q>
QelStatus symObject(const S& src, T* w, T* v, const Q& q, int size, bool sortFirst) {
  if (size == 1) return symOrderOne(src, v, q);
  if (size == 2) return symOrderTwo(src, w, v, q);
  return symLarge<N>(src, w, v, q, size, sortFirst);
}

// The objects of a share in order, all in the same W; the first failure ends it.
template <int N, class S, class Q, class V>
QelStatus symObjects(const S& src, void* buffer, const Q& q, const V& values, int size, int count,
                     bool sortFirst) {
  using T = std::remove_reference_t<decltype(values.object(0).at(0, 0))>;
  T* w = static_cast<T*>(buffer);
  for (int o = 0; o < count; ++o)
    if (QelStatus st = symObject<N>(src.object(o), w, &values.object(o).at(0, 0), q.object(o), size, sortFirst))
      return st;
  return qelStatusOk;
}

// Contiguous arrays of orders 3 to 6 run with the order fixed at compile time,
// so the loops over rows and columns unroll; the arithmetic is the same.
template <class S, class Q, class V>
QelStatus symArray(const S& src, void* buffer, const Q& q, const V& values, int size, int count, bool sortFirst) {
  if constexpr (S::isArray && S::hasStride2 && std::is_same_v<S, typename S::Contiguous>) {
    switch (size) {
      case 3: return symObjects<3>(src, buffer, q, values, size, count, sortFirst);
      case 4: return symObjects<4>(src, buffer, q, values, size, count, sortFirst);
      case 5: return symObjects<5>(src, buffer, q, values, size, count, sortFirst);
      case 6: return symObjects<6>(src, buffer, q, values, size, count, sortFirst);
      default: break;
    }
  }
  return symObjects<0>(src, buffer, q, values, size, count, sortFirst);
}

}  // namespace qel::eigen
