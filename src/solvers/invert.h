// Invert: the inverse as the adjugate over the determinant, in one of three ways
// chosen by the order:
//
//   order 1          a reciprocal, in the front-end
//   orders 3..6      closed cofactor forms on locals, never touching the buffer:
//                      scalar adjugate   signed cofactors from shared minors, a
//                                        true reciprocal of the determinant
//                      vector adjugate   Qel32f contiguous orders 3 and 4, the
//                                        refined reciprocal estimate
//                      pair form         two 4x4 Qel32f objects at once, both
//                                        or neither stored
//                      block forms       Qel32f contiguous orders 5 (one pivot)
//                                        and 6 (two pivots) around the 4x4 core
//   order 2, 7 up    the determinant by elimination, then one elimination per
//                    element of the result, in the caller's buffer (n^5 work)
//
// A fixed form is singular when its tolerance is strictly above the magnitude of
// its determinant (or pivot): a NaN passes. Tolerances are whole units of the
// smallest normal number.
#pragma once

#include "../frame/lanes.h"
#include "../frame/views.h"
#include "invert4x4.h"
#include "qelm/qelmtypes.h"

#include <cmath>
#include <cstdint>
#include <utility>
#include <type_traits>

namespace qel {

template <class T>
constexpr T kMinNormal = std::is_same_v<T, Qel32f> ? T(0x1p-126) : T(0x1p-1022);

// 2 n^3 in wrapping 32-bit arithmetic, turned into the element type.
template <class T>
inline T cubeUnits(int n) {
  return T(mul32(mul32(mul32(2, n), n), n));
}
template <class T>
constexpr T units(int u) {
  return T(u) * kMinNormal<T>;
}

// Which kernel runs: the plain ones (m in every description, ma with _L), the
// standard array kernel (its own Qel32f forms at orders 3 and 4) and the _P
// array kernel (its own general form).
enum class InvertKernel { Plain, Array, ArrayP };

template <class O>
using ElemT = std::remove_const_t<std::remove_reference_t<decltype(std::declval<O>().at(0, 0))>>;

// ---------------------------------------------------------------- numbers in lanes

// One element of L objects side by side (four Qel32f, two Qel64f), with the
// arithmetic of a scalar: a closed form written once over its number type runs
// on one object or on L objects at once, with the same bits in every lane.
template <class T>
struct Packed {
  using L = Lanes<T>;
  using V = typename L::V;
  V v;
  Packed() = default;
  Packed(T x) : v(L::splat(x)) {}  // NOLINT: constants convert implicitly
  Packed(V x) : v(x) {}            // NOLINT
  friend Packed operator+(Packed a, Packed b) { return L::add(a.v, b.v); }
  friend Packed operator-(Packed a, Packed b) { return L::sub(a.v, b.v); }
  friend Packed operator*(Packed a, Packed b) { return L::mul(a.v, b.v); }
  friend Packed operator/(Packed a, Packed b) { return L::div(a.v, b.v); }
};

// The singular test of the fixed forms, tol > |det|, in any lane.
template <class T>
inline bool anyBelow(T tol, T det) { return tol > std::fabs(det); }
template <class T>
inline bool anyBelow(T tol, Packed<T> det) {
  using L = Lanes<T>;
  return L::anyLane(L::greater(L::splat(tol), L::abs(det.v)));
}

// Element (i, j) of objects n .. n+G-1 of an array as register (i, j), and back.
template <int N, class T, class S>
inline void loadLanes(const S& src, int n, Packed<T> (&a)[N][N]) {
  using L = Lanes<T>;
  constexpr int G = L::L, R = RowRegs<T, N>::R;
  unroll<N>([&](auto i) {
    typename L::V rows[G][R], cols[N];
    unroll<G>([&](auto g) { loadRow<T, N>(src.object(n + g), i, rows[g]); });
    rowsToLanes<T, N>(rows, cols);
    unroll<N>([&](auto j) { a[i][j] = cols[j]; });
  });
}
template <int N, class T, class D>
inline void storeLanes(const D& dst, int n, const Packed<T> (&x)[N][N]) {
  using L = Lanes<T>;
  constexpr int G = L::L, R = RowRegs<T, N>::R;
  unroll<N>([&](auto i) {
    typename L::V rows[G][R], cols[N];
    unroll<N>([&](auto j) { cols[j] = x[i][j].v; });
    lanesToRows<T, N>(cols, rows);
    unroll<G>([&](auto g) { storeRow<T, N>(dst.object(n + g), i, rows[g]); });
  });
}

// ---------------------------------------------------------------- scalar adjugates

// Order 3, in the order of additions the family fixes: the three products of
// the first column summed as a20, a10, a00, or (the contiguous Qel64f kernel)
// as a00, a20, a10. adj[j][i] is the cofactor of (i, j).
template <bool Order64, class Num>
Num adjugate3(const Num (&a)[3][3], Num (&adj)[3][3]) {
  const Num p = a[2][2] * a[0][1] - a[0][2] * a[2][1], q = a[2][2] * a[1][1] - a[1][2] * a[2][1];
  const Num s = a[1][2] * a[0][1] - a[0][2] * a[1][1];
  adj[0][0] = q;
  adj[0][1] = Num(0) - p;
  adj[0][2] = s;
  adj[1][0] = Num(0) - (a[2][2] * a[1][0] - a[1][2] * a[2][0]);
  adj[1][1] = a[2][2] * a[0][0] - a[0][2] * a[2][0];
  adj[1][2] = Num(0) - (a[1][2] * a[0][0] - a[0][2] * a[1][0]);
  adj[2][0] = a[2][1] * a[1][0] - a[1][1] * a[2][0];
  adj[2][1] = Num(0) - (a[2][1] * a[0][0] - a[2][0] * a[0][1]);
  adj[2][2] = a[1][1] * a[0][0] - a[0][1] * a[1][0];
  if constexpr (Order64) return (a[0][0] * q + a[2][0] * s) - a[1][0] * p;
  else return (a[2][0] * s - a[1][0] * p) + a[0][0] * q;
}

// Orders 5 and 6: the minors of every row set on the column sets that an
// expansion along the lowest column reaches from "all columns but j". Such a
// set is (skip, start): the columns from `start` on, without `skip` (N for
// none). Each minor is formed once and shared by every cofactor that needs it;
// the determinant is the expansion on column 0 through the minors of the rows
// below and above.
template <int N>
struct MinorPlan {
  static constexpr int M = 1 << N;
  static constexpr int setSize(int skip, int start) {
    return N - start - (skip < N && skip >= start ? 1 : 0);
  }
  // The set left when the lowest column of (skip, start) is taken away.
  static constexpr int lowest(int skip, int start) { return start == skip ? start + 1 : start; }
};

// Laid out at compile time: every set, row set and term is a constant, so the
// table lives in registers and the stack, not behind run-time indices.
template <int N, class T>
[[gnu::flatten]] inline T adjugateN(const T (&a)[N][N], T (&cof)[N][N]) {
  using P = MinorPlan<N>;
  constexpr int M = P::M;
  // f[skip][start][rows]: only the row sets of the set's size are filled.
  T f[N + 1][N + 1][M];
  unroll<N>([&](auto back) {
    constexpr int start = N - 1 - back;
    unroll<N + 1>([&](auto skip) {
      constexpr int k = P::setSize(skip, start);
      if constexpr (skip >= start && k > 0) {  // a skip below start is (N, start)
        constexpr int c = P::lowest(skip, start);
        // The rest after column c: (skip, c + 1), or with skip passed (N, c + 1).
        constexpr int restSkip = (skip < N && skip > c) ? int(skip) : N;
        unroll<M>([&](auto rows) {
          if constexpr (__builtin_popcount(unsigned(rows)) == k) {
            T sum;
            int pos = 0;
            unroll<N>([&](auto r) {
              if constexpr ((rows >> r) & 1) {
                T term;
                if constexpr (k == 1) term = a[r][c];
                else term = a[r][c] * f[restSkip][c + 1][rows & ~(1 << r)];
                if (pos == 0) sum = term;
                else sum = (pos & 1) ? sum - term : sum + term;
                ++pos;
              }
            });
            f[skip][start][rows] = sum;
          }
        });
      }
    });
  });
  constexpr int all = M - 1;
  unroll<N>([&](auto i) {
    unroll<N>([&](auto j) {
      const T m = j == 0 ? f[N][1][all & ~(1 << i)] : f[j][0][all & ~(1 << i)];
      cof[i][j] = ((i + j) & 1) ? T(0) - m : m;
    });
  });
  T det = a[0][0] * cof[0][0];
  for (int i = 1; i < N; ++i) det = det + a[i][0] * cof[i][0];
  return det;
}

template <int N, bool Order64, class Num>
Num adjugateOf(const Num (&a)[N][N], Num (&adj)[N][N]) {
  if constexpr (N == 3) {
    return adjugate3<Order64>(a, adj);
  } else {
    Num cof[N][N], det;
    if constexpr (N == 4) det = adjugate4<Num>([&](int i, int j) { return a[i][j]; }, cof);
    else det = adjugateN<N>(a, cof);
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) adj[j][i] = cof[i][j];
    return det;
  }
}

// One object: read whole, tested, then stored (dst may be src).
template <int N, bool Order64, class S, class D>
QelStatus invScalar(const S& s, const D& d, ElemT<D> tol) {
  using T = ElemT<D>;
  T a[N][N], adj[N][N];
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) a[i][j] = s.at(i, j);
  const T det = adjugateOf<N, Order64>(a, adj);
  if (tol > std::fabs(det)) return qelStatusSingular;
  const T r = T(1) / det;
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) d.at(i, j) = adj[i][j] * r;
  return qelStatusOk;
}

// An array: L objects at a time in lanes where no result can reach a later
// source; a group with any determinant below the tolerance runs again object
// by object, which stops where a loop of single objects stops.
template <int N, bool Order64, class S, class D>
[[gnu::flatten]] QelStatus invScalarLanes(const S& src, const D& dst, int count, ElemT<typename D::Object> tol) {
  using T = ElemT<typename D::Object>;
  using P = Packed<T>;
  constexpr int G = Lanes<T>::L;
  int n = 0;
  if (independentObjects(src, {N, N}, dst, {N, N}, count)) {
    for (; n + G <= count; n += G) {
      P a[N][N], adj[N][N];
      loadLanes<N>(src, n, a);
      const P det = adjugateOf<N, Order64>(a, adj);
      if (anyBelow(tol, det)) {
        for (int g = 0; g < G; ++g)
          if (QelStatus st = invScalar<N, Order64>(src.object(n + g), dst.object(n + g), tol)) return st;
        continue;
      }
      const P r = P(T(1)) / det;
      for (int i = 0; i < N; ++i)
        for (int j = 0; j < N; ++j) adj[i][j] = adj[i][j] * r;
      storeLanes<N>(dst, n, adj);
    }
  }
  for (; n < count; ++n)
    if (QelStatus st = invScalar<N, Order64>(src.object(n), dst.object(n), tol)) return st;
  return qelStatusOk;
}

template <int N, bool Order64, class S, class D>
QelStatus invScalarObjects(const S& src, const D& dst, int count, ElemT<typename D::Object> tol) {
  if constexpr (N <= 4)
    return withPackedDistances<N, N>(
        [&](const auto& s, const auto& d) { return invScalarLanes<N, Order64>(s, d, count, tol); }, src, dst);
  else
    return invScalarLanes<N, Order64>(src, dst, count, tol);
}

// ---------------------------------------------------------------- Qel32f vector forms

// Order 3: the cofactor rows are the cross products of the other two rows; the
// determinant is row 0 against its cofactors.
template <class S, class D>
QelStatus inv3Vector(const S& s, const D& d, float tol) {
  using L = Lanes<float>;
  __m128 a[1], b[1], c[1];
  loadRow<float, 3>(s, 0, a);
  loadRow<float, 3>(s, 1, b);
  loadRow<float, 3>(s, 2, c);
  auto yzx = [](__m128 v) { return _mm_shuffle_ps(v, v, _MM_SHUFFLE(3, 0, 2, 1)); };
  auto zxy = [](__m128 v) { return _mm_shuffle_ps(v, v, _MM_SHUFFLE(3, 1, 0, 2)); };
  auto cross = [&](__m128 u, __m128 v) {
    return _mm_sub_ps(_mm_mul_ps(yzx(u), zxy(v)), _mm_mul_ps(zxy(u), yzx(v)));
  };
  __m128 c0 = cross(b[0], c[0]), c1 = cross(c[0], a[0]), c2 = cross(a[0], b[0]);
  const __m128 p = _mm_mul_ps(a[0], c0);
  const float det = L::lane0(_mm_add_ss(_mm_add_ss(p, _mm_shuffle_ps(p, p, 1)), _mm_movehl_ps(p, p)));
  if (tol > std::fabs(det)) return qelStatusSingular;
  const __m128 r = _mm_set1_ps(reciprocalEstimate32f(det));
  __m128 c3 = L::zero();
  _MM_TRANSPOSE4_PS(c0, c1, c2, c3);
  const __m128 rows[3][1] = {{_mm_mul_ps(c0, r)}, {_mm_mul_ps(c1, r)}, {_mm_mul_ps(c2, r)}};
  for (int i = 0; i < 3; ++i) storeRow<float, 3>(d, i, rows[i]);
  return qelStatusOk;
}

template <class S>
inline Cofactors4 cofactorsOf(const S& s) {
  __m128 r[4][1];
  for (int i = 0; i < 4; ++i) loadRow<float, 4>(s, i, r[i]);
  return cofactors4x4(r[0][0], r[1][0], r[2][0], r[3][0]);
}

template <class D>
inline void storeInverse(const D& d, const Cofactors4& c) {
  __m128 rows[4];
  inverseRows4x4(c, _mm_cvtss_f32(reciprocalEstimate(c.det)), rows);
  for (int i = 0; i < 4; ++i) {
    const __m128 row[1] = {rows[i]};
    storeRow<float, 4>(d, i, row);
  }
}

template <class S, class D>
QelStatus inv4Vector(const S& s, const D& d, float tol) {
  const Cofactors4 c = cofactorsOf(s);
  if (tol > std::fabs(_mm_cvtss_f32(c.det))) return qelStatusSingular;
  storeInverse(d, c);
  return qelStatusOk;
}

// Two objects with the same formulas: the first determinant is tested first,
// and neither object is stored unless both pass.
template <class S, class D>
QelStatus inv4VectorPair(const S& s0, const D& d0, const S& s1, const D& d1, float tol) {
  const Cofactors4 c0 = cofactorsOf(s0), c1 = cofactorsOf(s1);
  if (tol > std::fabs(_mm_cvtss_f32(c0.det))) return qelStatusSingular;
  if (tol > std::fabs(_mm_cvtss_f32(c1.det))) return qelStatusSingular;
  storeInverse(d0, c0);
  storeInverse(d1, c1);
  return qelStatusOk;
}

// ---------------------------------------------------------------- Qel32f block forms

// One elimination step around the inverse of its Schur complement, down to the
// 4x4 core. Row 0 picks the pivot column: the highest column wins a tie, except
// that with StrictLast the last column must beat all others outright. With
// p the pivot, r its refined reciprocal estimate, w = r times the pivot column
// below, t the rest of row 0, S = A22 - w t and z = S^-1 (-w):
//   (0, 0) = r - r (t . z), row 0 = -r (t S^-1), column 0 = z, block = S^-1,
// then rows 0 and c exchanged, undoing the column exchange.
template <int N, bool StrictLast>
bool blockInverse(float (&a)[N][N], float (&x)[N][N], float tol) {
  if constexpr (N == 4) {
    const Cofactors4 c = cofactors4x4(_mm_loadu_ps(a[0]), _mm_loadu_ps(a[1]), _mm_loadu_ps(a[2]),
                                      _mm_loadu_ps(a[3]));
    if (tol > std::fabs(_mm_cvtss_f32(c.det))) return false;
    __m128 rows[4];
    inverseRows4x4(c, _mm_cvtss_f32(reciprocalEstimate(c.det)), rows);
    for (int i = 0; i < 4; ++i) _mm_storeu_ps(x[i], rows[i]);
    return true;
  } else {
    float best = std::fabs(a[0][0]);
    int c = 0;
    for (int j = 1; j < N; ++j) {
      const float m = std::fabs(a[0][j]);
      if (StrictLast && j == N - 1 ? m > best : m >= best) best = m, c = j;
    }
    const float p = a[0][c];
    if (tol > std::fabs(p)) return false;
    if (c != 0)
      for (int i = 0; i < N; ++i) std::swap(a[i][0], a[i][c]);
    constexpr int K = N - 1;
    const float r = reciprocalEstimate32f(p);
    float w[K], t[K], s[K][K], si[K][K];
    for (int i = 0; i < K; ++i) w[i] = r * a[i + 1][0], t[i] = a[0][i + 1];
    for (int i = 0; i < K; ++i)
      for (int j = 0; j < K; ++j) s[i][j] = a[i + 1][j + 1] - w[i] * t[j];
    if (!blockInverse<K, false>(s, si, tol)) return false;
    float tz = 0.0f;
    for (int i = 0; i < K; ++i) {
      float z = 0.0f;
      for (int k = 0; k < K; ++k) z = z + si[i][k] * (0.0f - w[k]);
      x[i + 1][0] = z;
      tz = tz + t[i] * z;
    }
    x[0][0] = r - r * tz;
    for (int j = 0; j < K; ++j) {
      float u = 0.0f;
      for (int k = 0; k < K; ++k) u = u + t[k] * si[k][j];
      x[0][j + 1] = (0.0f - r) * u;
      for (int i = 0; i < K; ++i) x[i + 1][j + 1] = si[i][j];
    }
    if (c != 0)
      for (int j = 0; j < N; ++j) std::swap(x[0][j], x[c][j]);
    return true;
  }
}

// Orders 5 and 6: the first one or two rows of src go to dst as scratch first,
// so a failing object's dst holds them there and nothing else is written.
template <int N, class S, class D>
QelStatus invBlock(const S& s, const D& d, float tol) {
  constexpr int Scratch = N - 4;
  float a[N][N], x[N][N];
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) a[i][j] = s.at(i, j);
  for (int i = 0; i < Scratch; ++i)
    for (int j = 0; j < N; ++j) d.at(i, j) = a[i][j];
  if (!blockInverse<N, N == 5>(a, x, tol)) return qelStatusSingular;
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) d.at(i, j) = x[i][j];
  return qelStatusOk;
}

// ---------------------------------------------------------------- general form

// The work area of the eliminations: the object's rows copied in order, and
// an index that names the row standing at each place.
template <class S, class T>
inline void loadWork(const S& s, T* w, Qel32s* index, int n) {
  for (int i = 0; i < n; ++i) {
    index[i] = i;
    for (int j = 0; j < n; ++j) w[mul32(i, n) + j] = s.at(i, j);
  }
}

// Partial pivoting through the index: the row of largest magnitude in column
// k among places k..m-1 (the first of equal ones) comes to place k; a real
// exchange flips the sign.
template <class At, class T>
inline void pivotRow(const At& at, Qel32s* index, int k, int m, T& sign) {
  int bestAt = k;
  T best = std::fabs(at(k, k));
  for (int i = k + 1; i < m; ++i) {
    const T v = std::fabs(at(i, k));
    if (v > best) best = v, bestAt = i;
  }
  if (index[bestAt] != index[k]) {
    std::swap(index[bestAt], index[k]);
    sign = T(0) - sign;
  }
}

// Order 2 and 7 up, in `buffer`: an n x n work area, then n Qel32s row indices.
// The determinant by elimination with reciprocal multipliers, then every
// element of the result as the determinant of its minor, eliminated the same
// way. A minor whose pivot falls below t gives prod = t and stops there; a
// vanishing last diagonal gives c = t: no element of the result is zero by
// construction. PTest: the _P array kernel, which tests the last diagonal
// instead of the determinant and leaves the buffer as it is on a failed pivot.
template <bool PTest, class S, class D>
QelStatus invertGeneral(const S& s, const D& d, void* buffer, int n) {
  using T = ElemT<D>;
  T* w = static_cast<T*>(buffer);
  Qel32s* index = reinterpret_cast<Qel32s*>(w + mul32(n, n));
  const T t = cubeUnits<T>(n) * kMinNormal<T>;
  auto at = [&](int i, int j) -> T& { return w[mul32(index[i], n) + j]; };

  // Eliminates the leading m x m block of the work area in index order; the
  // product of the pivots and the sign of the exchanges. False on a pivot
  // below t, with k the failing step.
  auto eliminate = [&](int m, T& prod, T& sign) {
    for (int k = 0; k < m - 1; ++k) {
      pivotRow(at, index, k, m, sign);
      const T p = at(k, k);
      if (t > std::fabs(p)) return false;
      const T r = T(1) / p;
      for (int i = k + 1; i < m; ++i) {
        const T mult = at(i, k) * r;
        for (int j = k + 1; j < m; ++j) at(i, j) = at(i, j) - at(k, j) * mult;
      }
      prod = prod * p;
    }
    return true;
  };

  loadWork(s, w, index, n);
  T prod = T(1), sign = T(1);
  if (!eliminate(n, prod, sign)) {
    if constexpr (!PTest) w[0] = T(0);
    return qelStatusSingular;
  }
  const T last = at(n - 1, n - 1);
  T det;
  if constexpr (PTest) {
    if (!(std::fabs(last) > t)) return qelStatusSingular;
    det = prod * last * sign;
  } else {
    det = prod * last * sign;
    if (t >= std::fabs(det)) return qelStatusSingular;
  }
  const T r = T(1) / det;

  const int m = n - 1;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      for (int a = 0, ra = 0; a < n; ++a) {
        if (a == i) continue;
        for (int b = 0, cb = 0; b < n; ++b) {
          if (b == j) continue;
          w[mul32(ra, n) + cb] = s.at(a, b);
          ++cb;
        }
        ++ra;
      }
      for (int k = 0; k < n; ++k) index[k] = k;
      T mprod = T(1), msign = T(1);
      if (!eliminate(m, mprod, msign)) mprod = t;
      const T v = at(m - 1, m - 1);
      const T c = std::fabs(v) > t ? msign * v * mprod : t;
      d.at(j, i) = c * r * (((i + j) & 1) ? T(-1) : T(1));
    }
  return qelStatusOk;
}

// ---------------------------------------------------------------- the serial kernel

template <InvertKernel K, class S, class D>
QelStatus invertObjects(S src, D dst, void* buffer, int size, int count) {
  using SO = typename S::Object;
  using DO = typename D::Object;
  using T = ElemT<DO>;
  constexpr bool f32 = std::is_same_v<T, Qel32f>;
  constexpr bool contig = SO::contiguous && DO::contiguous;

  auto each = [&](auto form) -> QelStatus {
    for (int n = 0; n < count; ++n)
      if (QelStatus st = form(src.object(n), dst.object(n))) return st;
    return qelStatusOk;
  };
  switch (size) {
    case 3:
      if constexpr (f32 && contig && K != InvertKernel::Array)
        return each([](const SO& s, const DO& d) { return inv3Vector(s, d, units<float>(54)); });
      else if constexpr (!f32 && contig)
        return invScalarObjects<3, true>(src, dst, count, units<T>(108));
      else
        return invScalarObjects<3, false>(src, dst, count, units<T>(54));
    case 4:
      if constexpr (f32 && contig) {
        constexpr float tol = units<float>(128);
        int n = 0;
        if constexpr (K == InvertKernel::Array) {
          // Two at a time on 16-byte rows of 16-byte aligned objects.
          const SO s0 = src.object(0);
          const DO d0 = dst.object(0);
          const bool aligned = ((reinterpret_cast<uintptr_t>(s0.base) | reinterpret_cast<uintptr_t>(d0.base) |
                                 uint32_t(src.s0) | uint32_t(dst.s0)) & 15) == 0 &&
                               src.s1 == 16 && dst.s1 == 16;
          if (aligned)
            for (; n + 1 < count; n += 2)
              if (QelStatus st = inv4VectorPair(src.object(n), dst.object(n), src.object(n + 1),
                                                dst.object(n + 1), tol))
                return st;
        }
        for (; n < count; ++n)
          if (QelStatus st = inv4Vector(src.object(n), dst.object(n), tol)) return st;
        return qelStatusOk;
      } else {
        return invScalarObjects<4, false>(src, dst, count, units<T>(!f32 && contig ? 256 : 128));
      }
    case 5:
      if constexpr (f32 && contig)
        return each([](const SO& s, const DO& d) { return invBlock<5>(s, d, units<float>(250)); });
      else
        return invScalarObjects<5, false>(src, dst, count, units<T>(250));
    case 6:
      if constexpr (f32 && contig)
        return each([](const SO& s, const DO& d) { return invBlock<6>(s, d, units<float>(432)); });
      else
        return invScalarObjects<6, false>(src, dst, count, units<T>(432));
    default:
      return each([&](const SO& s, const DO& d) {
        return invertGeneral<K == InvertKernel::ArrayP>(s, d, buffer, size);
      });
  }
}

}  // namespace qel
