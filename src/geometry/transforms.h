// The point forms that the transforms, Project and Unproject share. A point is
// read through a source that spreads its element K over four lanes: straight
// from memory, or from a block of packed points already loaded (element e of
// the block in lane e % 4 of register e / 4), so four packed points cost a few
// loads and shuffles instead of one load and shuffle per element.
#pragma once

#include "../frame/lanes.h"
#include "matrix4.h"

namespace qel::geo {

struct FromMemory {
  const float* s;
  template <int K>
  __m128 at() const { return _mm_set1_ps(s[K]); }
};
template <int First>
struct FromBlock {
  const __m128* r;
  template <int K>
  __m128 at() const { return splat<(First + K) % 4>(r[(First + K) / 4]); }
};
template <int K, class P>
inline __m128 el(const P& p) {
  return p.template at<K>();
}

// (x, y, z, 1) m: ((R3 + R0 x) + R1 y) + R2 z.
template <class P>
inline __m128 plainPoint3(const Rows4& m, const P& p) {
  return ((m.r[3] + m.r[0] * el<0>(p)) + m.r[1] * el<1>(p)) + m.r[2] * el<2>(p);
}

// Every element divided by the fourth; a zero w gives infinities or NaNs.
inline __m128 byW(__m128 r) { return _mm_div_ps(r, splat<3>(r)); }

// The coordinate transform of (x, y, z, 1): (R3 + R2 z) + (R0 x + R1 y), by w.
template <class P>
inline __m128 coordPoint3(const Rows4& m, const P& p) {
  return byW((m.r[3] + m.r[2] * el<2>(p)) + (m.r[0] * el<0>(p) + m.r[1] * el<1>(p)));
}

}  // namespace qel::geo
