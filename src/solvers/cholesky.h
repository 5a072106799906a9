// Cholesky factor A = L L^T and its solve. The factor keeps L below the
// diagonal and 1 / L(i,i) on it, so the solve multiplies and never divides;
// the upper triangle is neither read nor written by either side.
//
// Two forms, chosen by the order alone:
//   fixed    orders 3..6, the factor held in locals; every sum is under 8
//            terms, so plain; the solve subtracts the backward terms in
//            descending j. The _P factor of order 3 stores its rows late.
//   general  every other order, working in dst; sums of 8 products or more
//            take the split accumulators, the backward terms in ascending j.
#pragma once

#include "../frame/lanes.h"
#include "../frame/sums.h"
#include "../frame/views.h"
#include "qelm/qelmtypes.h"
#include "solve_shape.h"

#include <smmintrin.h>

#include <cmath>
#include <type_traits>

namespace qel {

// 1 / sqrt(s): in Qel64f the true quotient; in Qel32f the 12-bit estimate y
// and one Newton step, y (s y y - 3) (-0.5), not correctly rounded.
inline double cholReciprocalRoot(double s) { return 1.0 / std::sqrt(s); }
inline float cholReciprocalRoot(float s) {
  const float y = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(s)));
  return y * (s * y * y - 3.0f) * -0.5f;
}

// What the value under the root must exceed, by order. Non-zero only in two
// islands: the _P kernels at order 3 (2^-23 in both types), and the strided
// Qel64f array export on its general-stride kernel at order 6 and the general
// orders (2^-52).
template <class T>
struct CholTolerance {
  T order3 = 0, order6 = 0, general = 0;

  static CholTolerance of(bool pointerKernel, bool generalStride64) {
    CholTolerance t;
    if (pointerKernel) t.order3 = T(0x1p-23);
    if (generalStride64) t.order6 = t.general = T(0x1p-52);
    return t;
  }
  T at(int order) const { return order == 3 ? order3 : order == 6 ? order6 : order >= 3 && order <= 5 ? 0 : general; }
};

// s minus the terms 0 .. K-1 in ascending order, s heading the first
// accumulator when there are 8 or more. Subtracting a product is adding its
// negation, bit for bit.
template <class T, class Term>
inline T minusProducts(T s, int K, Term term) {
  return splitSumFrom(s, K, gatheredTerms<T>([&](int k) { return T(-term(k)); }));
}

// ------------------------------------------------------------- factor

// Order N in locals. Stores go out as they are made, so a failure at row i
// leaves rows above finished and row i's left part stored, its diagonal not;
// with Late (the _P kernels at order 3) rows 0 and 1 go out after row 1
// passes and row 2 after row 2 passes.
template <int N, bool Late, class T, class S, class D>
QelStatus cholFixed(S a, D d, T tol) {
  T l[N][N];
  auto store = [&](int i) {
    for (int j = 0; j <= i; ++j) d.at(i, j) = l[i][j];
  };
#pragma GCC unroll 6
  for (int i = 0; i < N; ++i) {
#pragma GCC unroll 6
    for (int j = 0; j < i; ++j) {
      T s = a.at(i, j);
#pragma GCC unroll 6
      for (int k = 0; k < j; ++k) s = s - l[i][k] * l[j][k];
      l[i][j] = s * l[j][j];
      if (!Late) d.at(i, j) = l[i][j];
    }
    T s = a.at(i, i);
#pragma GCC unroll 6
    for (int k = 0; k < i; ++k) s = s - l[i][k] * l[i][k];
    if (tol >= s) return qelStatusNotPositiveDefinite;  // a NaN passes
    l[i][i] = cholReciprocalRoot(s);
    if (!Late) {
      d.at(i, i) = l[i][i];
    } else if (i == 1) {
      store(0);
      store(1);
    } else if (i == 2) {
      store(2);
    }
  }
  return qelStatusOk;
}

// Orders 3..6 on contiguous rows, one object per lane (four Qel32f; two
// Qel64f would fit, but gain nothing): the steps of cholFixed in every lane, the same estimate and Newton
// step in Qel32f. Only the lower triangle is stored, and nothing unless every
// lane passes; false then, and the caller runs the objects one at a time.
template <int N, class S, class D, class T>
[[gnu::flatten]] bool cholFixedLanes(S src, D dst, int n0, T tol) {
  using L = Lanes<T>;
  using V = typename L::V;
  constexpr int G = L::L;
  constexpr int R = RowRegs<T, N>::R;
  V a[N][N], l[N][N] = {};  // l above the diagonal stays zero, never stored
  unroll<N>([&](auto i) {
    V rows[G][R];
    unroll<G>([&](auto g) { loadRow<T, N>(src.object(n0 + g), i, rows[g]); });
    rowsToLanes<T, N>(rows, a[i]);
  });
  auto root = [](V s) {
    if constexpr (G == 4) {
      const V y = _mm_rsqrt_ps(s);
      return L::mul(L::mul(y, L::sub(L::mul(L::mul(s, y), y), L::splat(3.0f))), L::splat(-0.5f));
    } else {
      return L::div(L::splat(1.0), L::sqrt(s));
    }
  };
  V bad = L::zero();
  unroll<N>([&](auto i) {
    unroll<i>([&](auto j) {
      V s = a[i][j];
      unroll<j>([&](auto k) { s = L::sub(s, L::mul(l[i][k], l[j][k])); });
      l[i][j] = L::mul(s, l[j][j]);
    });
    V s = a[i][i];
    unroll<i>([&](auto k) { s = L::sub(s, L::mul(l[i][k], l[i][k])); });
    if constexpr (G == 4) bad = L::either(bad, _mm_cmpge_ps(L::splat(tol), s));  // a NaN passes
    else bad = L::either(bad, _mm_cmpge_pd(L::splat(tol), s));
    l[i][i] = root(s);
  });
  if (L::anyLane(bad)) return false;
  unroll<N>([&](auto i) {
    V rows[G][R];
    lanesToRows<T, N>(l[i], rows);
    unroll<G>([&](auto g) {
      alignas(16) T e[R * G];
      unroll<R>([&](auto r) { L::storeAligned(&e[r * G], rows[g][r]); });
      const auto d = dst.object(n0 + g);
      for (int j = 0; j <= i; ++j) d.at(i, j) = e[j];
    });
  });
  return true;
}

// Any order, in dst: rows above i are read back from it.
template <class T, class S, class D>
QelStatus cholGeneral(S a, D d, int n, T tol) {
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < i; ++j) {
      const T s = minusProducts(T(a.at(i, j)), j, [&](int k) { return T(d.at(i, k) * d.at(j, k)); });
      d.at(i, j) = s * d.at(j, j);
    }
    const T s = minusProducts(T(a.at(i, i)), i, [&](int k) { return T(d.at(i, k) * d.at(i, k)); });
    if (tol >= s) return qelStatusNotPositiveDefinite;
    d.at(i, i) = cholReciprocalRoot(s);
  }
  return qelStatusOk;
}

template <class O>
constexpr bool isPointerObject = !O::hasStride2;

// The serial kernel: objects 0 .. count-1, stopping at the first failure.
// GeneralStride64: the one export whose general-stride kernel has the 2^-52
// island; it applies when the views are not the contiguous ones.
template <bool GeneralStride64, class S, class D>
QelStatus cholObjects(S src, D dst, int size, int count) {
  using O = typename D::Object;
  using T = ElemOf<O>;
  constexpr bool pointer = isPointerObject<O>;
  const auto tol = CholTolerance<T>::of(pointer, GeneralStride64 && !O::contiguous);
  return bySize(
      size,
      [&](auto order) -> QelStatus {
        constexpr int N = decltype(order)::value;
        const T t = tol.at(N);
        int o = 0;
        // Qel64f pairs gain nothing over two objects in flight one by one.
        if constexpr (std::is_same_v<T, float> && rowsContiguous<typename S::Object> && rowsContiguous<O>) {
          constexpr int G = Lanes<T>::L;
          if (independentObjects(src, {N, N}, dst, {N, N}, count))
            for (; o + G <= count; o += G)
              if (!cholFixedLanes<N>(src, dst, o, t))
                for (int g = 0; g < G; ++g)
                  if (QelStatus st = cholFixed<N, false>(src.object(o + g), dst.object(o + g), t)) return st;
        }
        for (; o < count; ++o)
          if (QelStatus st = cholFixed<N, pointer && N == 3>(src.object(o), dst.object(o), t)) return st;
        return qelStatusOk;
      },
      [&]() -> QelStatus {
        const T t = tol.at(size);
        for (int o = 0; o < count; ++o)
          if (QelStatus st = cholGeneral(src.object(o), dst.object(o), size, t)) return st;
        return qelStatusOk;
      });
}

// ------------------------------------------------------------- solve

// The lower triangle of a factor of order N in locals.
template <int N, class T>
struct CholHeld {
  T l[N][N];
  template <class M>
  explicit CholHeld(M a) {
    for (int i = 0; i < N; ++i)
      for (int j = 0; j <= i; ++j) l[i][j] = a.at(i, j);
  }
};

// Forward L y = b, then backward L^T x = y with column k of L, the terms in
// descending j; each pass ends with a product by the stored reciprocal. b is
// read before x is stored, so the two may be one vector.
template <int N, class T, class B, class X>
inline void cholSolveHeld(const CholHeld<N, T>& f, B b, X x) {
  T y[N];
  for (int k = 0; k < N; ++k) {
    T s = b.at(0, k);
    for (int j = 0; j < k; ++j) s = s - f.l[k][j] * y[j];
    y[k] = s * f.l[k][k];
  }
  for (int k = N - 1; k >= 0; --k) {
    T s = y[k];
    for (int j = N - 1; j > k; --j) s = s - f.l[j][k] * y[j];
    y[k] = s * f.l[k][k];
  }
  for (int k = 0; k < N; ++k) x.at(0, k) = y[k];
}

// Any order, y and then x in dst, the backward terms in ascending j. b(k) is
// read just before x(k) is first written, so b may be x.
template <class M, class B, class X>
void cholSolveGeneral(M a, B b, X x, int n) {
  using T = ElemOf<X>;
  for (int k = 0; k < n; ++k) {
    const T s = minusProducts(T(b.at(0, k)), k, [&](int j) { return T(a.at(k, j) * x.at(0, j)); });
    x.at(0, k) = s * a.at(k, k);
  }
  for (int k = n - 1; k >= 0; --k) {
    const T s = minusProducts(T(x.at(0, k)), n - 1 - k,
                              [&](int m) { return T(a.at(k + 1 + m, k) * x.at(0, k + 1 + m)); });
    x.at(0, k) = s * a.at(k, k);
  }
}

// The serial kernel of every shape. mva reads its one factor once.
template <SolveShape Shape, class A, class B, class X>
QelStatus cholSolveObjects(A a, B b, X x, int size, int count) {
  using T = ElemOf<typename X::Object>;
  bySize(
      size,
      [&](auto order) {
        constexpr int N = decltype(order)::value;
        if constexpr (Shape == SolveShape::Mava) {
          for (int o = 0; o < count; ++o) cholSolveHeld(CholHeld<N, T>(a.object(o)), b.object(o), x.object(o));
        } else {
          const CholHeld<N, T> f(a.object(0));
          for (int o = 0; o < count; ++o) cholSolveHeld(f, b.object(o), x.object(o));
        }
      },
      [&] {
        for (int o = 0; o < count; ++o) cholSolveGeneral(a.object(o), b.object(o), x.object(o), size);
      });
  return qelStatusOk;
}

}  // namespace qel
