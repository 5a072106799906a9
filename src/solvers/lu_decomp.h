// LU factorisation with partial pivoting on the index array alone: rows never
// move, row k of the factors stands in the row index[k] of dst, holding the
// multipliers of L left of the diagonal and U from the diagonal on.
//
// Two forms, chosen by the order alone:
//   luFixed<N>  orders 3..6: straight-line code on a private copy of src, its own
//               tolerance (a pivot strictly below it fails), the index swap before
//               the test, a true division for the last multiplier, rows written to
//               dst as they become final.
//   luGeneral   every other order: works in dst after copying src there, a pivot at
//               or below its tolerance fails before its swap, and every multiplier
//               is a product with the reciprocal of the pivot.
#pragma once

#include "../frame/lanes.h"
#include "../frame/views.h"
#include "qelm/qelmtypes.h"

#include <cmath>
#include <type_traits>
#include <utility>

namespace qel {

template <class T>
struct LuTolerance;
template <>
struct LuTolerance<Qel32f> {
  static constexpr Qel32f fixed = 0x1p-125f;   // bits 0x01000000
  static constexpr Qel32f general = 0x1p-23f;
};
template <>
struct LuTolerance<Qel64f> {
  static constexpr Qel64f fixed = 0x1p-1021;   // bits 0x0020000000000000
  static constexpr Qel64f general = 0x1p-52;
};

// General form, any order. dst is the working matrix from the copy on, so a
// failure leaves it holding the copy eliminated up to the failing step.
template <class S, class D>
QelStatus luGeneral(S src, Qel32s* index, D dst, int n) {
  using T = std::remove_reference_t<decltype(dst.at(0, 0))>;
  constexpr T tol = LuTolerance<T>::general;
  for (int i = 0; i < n; ++i) index[i] = i;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) dst.at(i, j) = src.at(i, j);

  for (int k = 0; k < n - 1; ++k) {
    T best = dst.at(index[k], k);
    int bestAt = k;
    for (int i = k + 1; i < n; ++i) {
      const T v = dst.at(index[i], k);
      if (std::fabs(v) > std::fabs(best)) {
        best = v;
        bestAt = i;
      }
    }
    // A NaN pivot compares false and runs on.
    if (std::fabs(best) <= tol) return qelStatusSingular;
    if (bestAt != k) std::swap(index[k], index[bestAt]);

    const int p = index[k];
    const T r = T(1) / dst.at(p, k);
    for (int i = k + 1; i < n; ++i) {
      T& l = dst.at(index[i], k);
      l = l * r;
    }
    for (int i = k + 1; i < n; ++i) {
      const int q = index[i];
      const T l = dst.at(q, k);
      for (int j = k + 1; j < n; ++j) dst.at(q, j) = dst.at(q, j) - dst.at(p, j) * l;
    }
  }
  if (std::fabs(dst.at(index[n - 1], n - 1)) <= tol) return qelStatusSingular;
  return qelStatusOk;
}

// Fixed form, orders 3..6. The private copy lives in registers, a row in one to
// three of them, and rows are exchanged there as the pivots are chosen, so that
// register row k is always the row that index[k] names; the exchange is a pair
// of masked blends per row, not a branch. The pivot search runs in the vector
// unit too: magnitudes compared lane against lane, the winning row number
// carried along in the same lanes.
//
// G objects go through the steps side by side, so that one object's divisions
// and searches wait while the other's run. With G = 1 each pivot row is stored
// as soon as it passes its test and the first failure ends the object, which
// leaves the failure state callers see. With G > 1 nothing is stored: the
// result says whether any of the G objects met a pivot below the tolerance,
// and the caller stores them all or runs them again one at a time.
template <class T, int N, int G>
struct LuRegs {
  using L = Lanes<T>;
  using V = typename L::V;
  static constexpr int R = RowRegs<T, N>::R;
  V a[G][N][R];
  int idx[G][N];
};

// Flattened: the step lambdas are large, and a step left out of line keeps the
// rows in memory instead of registers.
template <class T, int N, int G, class Store>
[[gnu::flatten]] inline QelStatus luSteps(LuRegs<T, N, G>& m, Store storeRow) {
  using L = Lanes<T>;
  using V = typename L::V;
  constexpr int R = RowRegs<T, N>::R;
  constexpr int W = RowRegs<T, N>::L;
  constexpr T tol = LuTolerance<T>::fixed;
  auto& a = m.a;
  // Column k of row i of object g, spread over all lanes.
  auto column = [&](int g, auto i, auto k) { return L::template splatLane<k % W>(a[g][i][k / W]); };
  V small = L::zero();

  QelStatus status = qelStatusOk;
  unroll<N - 1>([&](auto k) {
    if (status) return;
    V pivot[G];
    for (int g = 0; g < G; ++g) {
      // The first largest magnitude in index order; a NaN never wins nor loses.
      V best = L::abs(column(g, k, k));
      V at = L::splatInt(k);
      unroll<N - 1 - k>([&](auto m1) {
        constexpr int i = k + 1 + m1;
        const V c = L::abs(column(g, std::integral_constant<int, i>{}, k));
        const V gt = L::greater(c, best);
        best = L::select(gt, c, best);
        at = L::select(gt, L::splatInt(i), at);
      });
      unroll<N - 1 - k>([&](auto m1) {
        constexpr int i = k + 1 + m1;
        const V take = L::equalInt(at, i);
        unroll<R>([&](auto r) {
          const V pk = a[g][k][r];
          a[g][k][r] = L::select(take, a[g][i][r], pk);
          a[g][i][r] = L::select(take, pk, a[g][i][r]);
        });
      });
      const int p = L::firstInt(at);
      const int t = m.idx[g][p];
      m.idx[g][p] = m.idx[g][k];
      m.idx[g][k] = t;
      pivot[g] = column(g, k, k);
      if constexpr (G == 1) {
        if (std::fabs(L::lane0(pivot[g])) < tol) {
          status = qelStatusSingular;
          return;
        }
        storeRow(g, k);
      } else {
        small = L::either(small, L::greater(L::splat(tol), L::abs(pivot[g])));
      }
    }
    for (int g = 0; g < G; ++g) {
      // Multipliers by the reciprocal, but the last step's one multiplier is a
      // true quotient.
      V r;
      if constexpr (k < N - 2) r = L::div(L::splat(T(1)), pivot[g]);
      unroll<N - 1 - k>([&](auto m1) {
        constexpr int i = k + 1 + m1;
        V l;
        if constexpr (k < N - 2) l = L::mul(column(g, std::integral_constant<int, i>{}, k), r);
        else l = L::div(column(g, std::integral_constant<int, i>{}, k), pivot[g]);
        unroll<R - k / W>([&](auto q) {
          constexpr int rr = k / W + q;
          V nv = L::sub(a[g][i][rr], L::mul(a[g][k][rr], l));
          if constexpr (rr == k / W) {
            // Columns before k keep their multipliers; column k takes this one.
            nv = L::template blend<(1 << (k % W)) - 1>(nv, a[g][i][rr]);
            nv = L::template blend<1 << (k % W)>(nv, l);
          }
          a[g][i][rr] = nv;
        });
      });
    }
  });
  if (status) return status;
  for (int g = 0; g < G; ++g) {
    const V last = column(g, std::integral_constant<int, N - 1>{}, std::integral_constant<int, N - 1>{});
    if constexpr (G == 1) {
      if (std::fabs(L::lane0(last)) < tol) return qelStatusSingular;
      storeRow(g, N - 1);
    } else {
      small = L::either(small, L::greater(L::splat(tol), L::abs(last)));
    }
  }
  if constexpr (G > 1)
    if (L::anyLane(small)) return qelStatusSingular;
  return qelStatusOk;
}

template <int N, int G, class S, class T>
inline void luLoad(LuRegs<T, N, G>& m, int g, const S& src) {
  unroll<N>([&](auto i) { loadRow<T, N>(src, i, m.a[g][i]); });
  for (int i = 0; i < N; ++i) m.idx[g][i] = i;
}

// One object: src is read whole before anything is written, so dst may be src.
template <int N, class S, class D>
QelStatus luFixed(S src, Qel32s* index, D dst) {
  using T = std::remove_reference_t<decltype(dst.at(0, 0))>;
  LuRegs<T, N, 1> m;
  luLoad<N>(m, 0, src);
  const QelStatus st = luSteps(m, [&](int, int k) { storeRow<T, N>(dst, m.idx[0][k], m.a[0][k]); });
  for (int i = 0; i < N; ++i) index[i] = m.idx[0][i];
  return st;
}

// Two objects side by side; either singular and both run again alone, in
// order, which stops at the first failure as a loop of luFixed would.
template <int N, class S, class I, class D>
QelStatus luFixedPair(S src, I index, D dst, int n) {
  using T = std::remove_reference_t<decltype(dst.object(0).at(0, 0))>;
  LuRegs<T, N, 2> m;
  luLoad<N>(m, 0, src.object(n));
  luLoad<N>(m, 1, src.object(n + 1));
  if (luSteps(m, [](int, int) {}) == qelStatusOk) {
    for (int g = 0; g < 2; ++g) {
      const auto d = dst.object(n + g);
      unroll<N>([&](auto k) { storeRow<T, N>(d, m.idx[g][k], m.a[g][k]); });
      Qel32s* ix = index.object(n + g);
      for (int i = 0; i < N; ++i) ix[i] = m.idx[g][i];
    }
    return qelStatusOk;
  }
  for (int g = 0; g < 2; ++g)
    if (QelStatus st = luFixed<N>(src.object(n + g), index.object(n + g), dst.object(n + g))) return st;
  return qelStatusOk;
}

// The serial kernel: objects 0 .. count-1 in order, stopping at the first
// singular one; later objects and their index entries are left alone.
// L objects at once, one per lane (four Qel32f, two Qel64f), Q registers of
// them interleaved: every element a register across the objects, the same
// steps as luSteps in every lane, row exchanges as masked blends of whole rows.
// Nothing is stored unless all Q * L objects pass every test; false then, and
// the caller runs them one at a time.
template <int N, int Q, class S, class I, class D>
[[gnu::flatten]] bool luLanes(S src, I index, D dst, int n) {
  using T = std::remove_reference_t<decltype(dst.object(0).at(0, 0))>;
  using L = Lanes<T>;
  using V = typename L::V;
  constexpr int G = L::L;
  constexpr int R = RowRegs<T, N>::R;
  constexpr T tol = LuTolerance<T>::fixed;

  V a[Q][N][N];  // a[q][i][j]: element (i, j) of every object, rows in pivot order
  V idx[Q][N];   // the source row at position i, in every lane
  unroll<Q>([&](auto q) {
    unroll<N>([&](auto i) {
      V rows[G][R];
      unroll<G>([&](auto g) { loadRow<T, N>(src.object(n + q * G + g), i, rows[g]); });
      rowsToLanes<T, N>(rows, a[q][i]);
      idx[q][i] = L::splatInt(i);
    });
  });
  V small = L::zero();
  unroll<N - 1>([&](auto k) {
    unroll<Q>([&](auto q) {
      V best = L::abs(a[q][k][k]);
      V at = L::splatInt(k);
      unroll<N - 1 - k>([&](auto m) {
        constexpr int i = k + 1 + m;
        const V c = L::abs(a[q][i][k]);
        const V gt = L::greater(c, best);
        best = L::select(gt, c, best);
        at = L::select(gt, L::splatInt(i), at);
      });
      unroll<N - 1 - k>([&](auto m) {
        constexpr int i = k + 1 + m;
        const V take = L::equalInt(at, i);
        auto exchange = [&](V& x, V& y) {
          const V t = x;
          x = L::select(take, y, t);
          y = L::select(take, t, y);
        };
        unroll<N>([&](auto j) { exchange(a[q][k][j], a[q][i][j]); });
        exchange(idx[q][k], idx[q][i]);
      });
      small = L::either(small, L::greater(L::splat(tol), L::abs(a[q][k][k])));
    });
    unroll<Q>([&](auto q) {
      const V pivot = a[q][k][k];
      V r;
      if constexpr (k < N - 2) r = L::div(L::splat(T(1)), pivot);
      unroll<N - 1 - k>([&](auto m) {
        constexpr int i = k + 1 + m;
        V l;
        if constexpr (k < N - 2) l = L::mul(a[q][i][k], r);
        else l = L::div(a[q][i][k], pivot);
        a[q][i][k] = l;
        unroll<N - 1 - k>([&](auto jm) {
          constexpr int j = k + 1 + jm;
          a[q][i][j] = L::sub(a[q][i][j], L::mul(a[q][k][j], l));
        });
      });
    });
  });
  unroll<Q>([&](auto q) { small = L::either(small, L::greater(L::splat(tol), L::abs(a[q][N - 1][N - 1]))); });
  if (L::anyLane(small)) return false;

  unroll<Q>([&](auto q) {
    // Lane g of an index register holds its row number in 32-bit element
    // g * 4 / G (a Qel64f lane carries it twice).
    alignas(16) int32_t rowsOf[N][4];
    unroll<N>([&](auto k) {
      if constexpr (G == 4) _mm_store_si128(reinterpret_cast<__m128i*>(rowsOf[k]), _mm_castps_si128(idx[q][k]));
      else _mm_store_si128(reinterpret_cast<__m128i*>(rowsOf[k]), _mm_castpd_si128(idx[q][k]));
    });
    V rows[N][G][R];
    unroll<N>([&](auto k) { lanesToRows<T, N>(a[q][k], rows[k]); });
    unroll<G>([&](auto g) {
      const auto d = dst.object(n + q * G + g);
      Qel32s* ix = index.object(n + q * G + g);
      unroll<N>([&](auto k) {
        const int row = rowsOf[k][g * 4 / G];
        ix[k] = row;
        storeRow<T, N>(d, row, rows[k][g]);
      });
    });
  });
  return true;
}

template <class S, class I, class D>
QelStatus luObjects(S src, I index, D dst, int size, int count) {
  auto each = [&](auto factor) -> QelStatus {
    for (int n = 0; n < count; ++n)
      if (QelStatus st = factor(src.object(n), index.object(n), dst.object(n))) return st;
    return qelStatusOk;
  };
  // Objects two at a time where no object's result can reach the next one's
  // source: distinct arrays, or one array factored in place.
  auto pairs = [&](auto order) -> QelStatus {
    constexpr int N = decltype(order)::value;
    int n = 0;
    if (independentObjects(src, {N, N}, dst, {N, N}, count)) {
      // Qel64f registers hold two objects: three registers of them go together,
      // so that one group's divisions run while the others wait.
      if constexpr (rowsContiguous<typename S::Object> && rowsContiguous<typename D::Object>) {
        using T = std::remove_const_t<typename D::Object::Elem>;
        constexpr int Q = std::is_same_v<T, Qel32f> ? 1 : 3;
        constexpr int G = Q * RowRegs<T, N>::L;
        // Packed objects: every row a fixed offset from its object.
        const QelStatus st = withPackedDistances<N, N>(
            [&](const auto& s, const auto& d) -> QelStatus {
              for (; n + G <= count; n += G)
                if (!luLanes<N, Q>(s, index, d, n))
                  for (int g = 0; g < G; ++g)
                    if (QelStatus e = luFixed<N>(s.object(n + g), index.object(n + g), d.object(n + g))) return e;
              return qelStatusOk;
            },
            src, dst);
        if (st) return st;
      }
      for (; n + 1 < count; n += 2)
        if (QelStatus st = luFixedPair<N>(src, index, dst, n)) return st;
    }
    for (; n < count; ++n)
      if (QelStatus st = luFixed<N>(src.object(n), index.object(n), dst.object(n))) return st;
    return qelStatusOk;
  };
  switch (size) {
    case 3: return pairs(std::integral_constant<int, 3>{});
    case 4: return pairs(std::integral_constant<int, 4>{});
    case 5: return each([](auto s, Qel32s* ix, auto d) { return luFixed<5>(s, ix, d); });
    case 6: return each([](auto s, Qel32s* ix, auto d) { return luFixed<6>(s, ix, d); });
    default: return each([size](auto s, Qel32s* ix, auto d) { return luGeneral(s, ix, d, size); });
  }
}

}  // namespace qel
