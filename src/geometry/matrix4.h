// A packed 4x4 Qel32f matrix held as its four rows in registers, and the row
// arithmetic the transforms and the 4x4 routines share. A row-vector times the
// matrix is a sum of its rows scaled by the vector's elements; each routine
// writes its order of those additions out, lane by lane as scalar code would.
#pragma once

#include <smmintrin.h>

namespace qel::geo {

struct Rows4 {
  __m128 r[4];
};

// Any alignment: the unaligned load costs the same as the aligned one on
// aligned data.
inline Rows4 loadRows(const float* m) {
  return {{_mm_loadu_ps(m), _mm_loadu_ps(m + 4), _mm_loadu_ps(m + 8), _mm_loadu_ps(m + 12)}};
}
inline void storeRows(float* d, const Rows4& a) {
  for (int i = 0; i < 4; ++i) _mm_storeu_ps(d + 4 * i, a.r[i]);
}

template <int L0, int L1, int L2, int L3>
inline __m128 lanes(__m128 v) {
  return _mm_shuffle_ps(v, v, _MM_SHUFFLE(L3, L2, L1, L0));
}
template <int L>
inline __m128 splat(__m128 v) {
  return lanes<L, L, L, L>(v);
}

// + - * / on __m128 are the compiler's lane-wise single-precision operations
// (addps, subps, mulps, divps), never fused or reordered.

// Row i of a.b: ((a(i,0) B0 + a(i,1) B1) + a(i,2) B2) + a(i,3) B3.
inline __m128 rowTimes(__m128 ai, const Rows4& b) {
  return ((splat<0>(ai) * b.r[0] + splat<1>(ai) * b.r[1]) + splat<2>(ai) * b.r[2]) + splat<3>(ai) * b.r[3];
}
inline Rows4 product(const Rows4& a, const Rows4& b) {
  return {{rowTimes(a.r[0], b), rowTimes(a.r[1], b), rowTimes(a.r[2], b), rowTimes(a.r[3], b)}};
}

inline Rows4 transpose(Rows4 a) {
  _MM_TRANSPOSE4_PS(a.r[0], a.r[1], a.r[2], a.r[3]);
  return a;
}

}  // namespace qel::geo
