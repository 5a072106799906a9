// The point forms that Project and Unproject share with the plain and
// coordinate transforms.
#pragma once

#include "../frame/lanes.h"
#include "matrix4.h"

namespace qel::geo {

// (x, y, z, 1) m: ((R3 + R0 x) + R1 y) + R2 z.
inline __m128 plainPoint3(const Rows4& m, const float* s) {
  return ((m.r[3] + m.r[0] * _mm_set1_ps(s[0])) + m.r[1] * _mm_set1_ps(s[1])) + m.r[2] * _mm_set1_ps(s[2]);
}

// Every element divided by the fourth; a zero w gives infinities or NaNs.
inline __m128 byW(__m128 r) { return _mm_div_ps(r, splat<3>(r)); }

// The coordinate transform of (x, y, z, 1): (R3 + R2 z) + (R0 x + R1 y), by w.
inline __m128 coordPoint3(const Rows4& m, const float* s) {
  return byW((m.r[3] + m.r[2] * _mm_set1_ps(s[2])) + (m.r[0] * _mm_set1_ps(s[0]) + m.r[1] * _mm_set1_ps(s[1])));
}

}  // namespace qel::geo
