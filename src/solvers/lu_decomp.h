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

// Fixed form, orders 3..6. The copy lives on the stack and its rows stay where
// src had them; row[k] points at the row that index[k] names, so each swap moves
// two integers and two pointers. src is read once, before anything is written,
// so dst may be src itself.
template <int N, class S, class D>
QelStatus luFixed(S src, Qel32s* index, D dst) {
  using T = std::remove_reference_t<decltype(dst.at(0, 0))>;
  constexpr T tol = LuTolerance<T>::fixed;

  T a[N][N];
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) a[i][j] = src.at(i, j);
  int idx[N];
  T* row[N];
  for (int i = 0; i < N; ++i) {
    idx[i] = i;
    row[i] = a[i];
  }
  auto publishIndex = [&] {
    for (int i = 0; i < N; ++i) index[i] = idx[i];
  };
  auto writeRow = [&](int k) {
    for (int j = 0; j < N; ++j) dst.at(idx[k], j) = row[k][j];
  };

  // The search of step 0 is the one loop; later searches ride on the updates.
  T best = row[0][0];
  int bestAt = 0;
  for (int i = 1; i < N; ++i)
    if (std::fabs(row[i][0]) > std::fabs(best)) {
      best = row[i][0];
      bestAt = i;
    }

  for (int k = 0; k < N - 1; ++k) {
    if (bestAt != k) {
      std::swap(idx[k], idx[bestAt]);
      std::swap(row[k], row[bestAt]);
    }
    const T* pr = row[k];
    if (std::fabs(pr[k]) < tol) {
      publishIndex();
      return qelStatusSingular;
    }
    writeRow(k);

    if (k < N - 2) {
      const T r = T(1) / pr[k];
      for (int i = k + 1; i < N; ++i) {
        T* ri = row[i];
        const T l = ri[k] * r;
        ri[k] = l;
        for (int j = k + 1; j < N; ++j) ri[j] = ri[j] - pr[j] * l;
        // Column k+1 of this row is final: it takes part in the next search.
        if (i == k + 1 || std::fabs(ri[k + 1]) > std::fabs(best)) {
          best = ri[k + 1];
          bestAt = i;
        }
      }
    } else {
      // The last step has one multiplier; it is a true quotient.
      T* ri = row[N - 1];
      const T l = ri[k] / pr[k];
      ri[k] = l;
      ri[N - 1] = ri[N - 1] - pr[N - 1] * l;
    }
  }
  if (std::fabs(row[N - 1][N - 1]) < tol) {
    publishIndex();
    return qelStatusSingular;
  }
  writeRow(N - 1);
  publishIndex();
  return qelStatusOk;
}

// The serial kernel: objects 0 .. count-1 in order, stopping at the first
// singular one; later objects and their index entries are left alone.
template <class S, class I, class D>
QelStatus luObjects(S src, I index, D dst, int size, int count) {
  auto each = [&](auto factor) -> QelStatus {
    for (int n = 0; n < count; ++n)
      if (QelStatus st = factor(src.object(n), index.object(n), dst.object(n))) return st;
    return qelStatusOk;
  };
  switch (size) {
    case 3: return each([](auto s, Qel32s* ix, auto d) { return luFixed<3>(s, ix, d); });
    case 4: return each([](auto s, Qel32s* ix, auto d) { return luFixed<4>(s, ix, d); });
    case 5: return each([](auto s, Qel32s* ix, auto d) { return luFixed<5>(s, ix, d); });
    case 6: return each([](auto s, Qel32s* ix, auto d) { return luFixed<6>(s, ix, d); });
    default: return each([size](auto s, Qel32s* ix, auto d) { return luGeneral(s, ix, d, size); });
  }
}

}  // namespace qel
