// Vectors of 2, 3 and 4 packed Qel32f: scalar straight lines, the element type
// throughout but for the root (64 bits, rounded) and the Hermite weights. Each
// routine reads element i of its sources before it stores element i, so in-place
// calls work where an element depends on its own index alone; the builders of
// look-at matrices call these same routines.
#pragma once

#include "qelm/qelmtypes.h"

#include <cmath>

namespace qel::geo {

template <int N, class F>
inline void each(F&& f) {
  for (int i = 0; i < N; ++i) f(i);
}

// a0 b0 + a1 b1 + ..., in index order from the first product.
template <int N>
inline float dot(const float* a, const float* b) {
  float s = a[0] * b[0];
  for (int i = 1; i < N; ++i) s = s + a[i] * b[i];
  return s;
}

// The root of a 32-bit sum, taken in 64 bits and rounded.
inline float root(float s) { return static_cast<float>(std::sqrt(static_cast<double>(s))); }

// Normalize's squares: index order, except the four-element form, which adds
// the first element last.
template <int N>
inline float normalizeSquares(const float* a) {
  if constexpr (N == 4) return ((a[1] * a[1] + a[2] * a[2]) + a[3] * a[3]) + a[0] * a[0];
  else return dot<N>(a, a);
}

// A zero vector divides 0 by 0: NaNs, as the arithmetic gives.
template <int N>
inline void normalize(const float* a, float* d) {
  const float len = root(normalizeSquares<N>(a));
  each<N>([&](int i) { d[i] = a[i] / len; });
}

inline void cross3(const float* a, const float* b, float* d) {
  d[0] = a[1] * b[2] - a[2] * b[1];
  d[1] = a[2] * b[0] - a[0] * b[2];
  d[2] = a[0] * b[1] - a[1] * b[0];
}

// p0 = a, t0 = b, p1 = c, t1 = e. The weights come from the rounded s2, in 64 bits.
template <int N>
inline void hermite(const float* a, const float* b, const float* c, const float* e, float s, float* d) {
  const float s2f = s * s;
  const double s2 = s2f, s3 = s2 * static_cast<double>(s);
  const float w1 = static_cast<float>(((s - s2) - s2) + s3);
  const float w2 = static_cast<float>((s3 - 3.0 * s2) + s3);
  const float w3 = static_cast<float>(s3 - s2);
  each<N>([&](int i) { d[i] = (a[i] - c[i]) * w2 + ((a[i] + b[i] * w1) + e[i] * w3); });
}

}  // namespace qel::geo
