// The 4x4 inverse cores, shared by the Invert family and the geometry routines.
//
//   cofactors4x4(r0, r1, r2, r3)  the sixteen signed cofactors of a Qel32f matrix
//                                 held as four row registers, and its determinant
//   cofactors4x4_32f(src, cof)    the same from and to 16 packed floats, any
//                                 alignment: cof[4 i + j] is the cofactor of (i, j)
//   reciprocalEstimate32f(d)      the 12-bit estimate refined by one Newton step
//   storeInverse4x4_32f(c, r, dst) the transposed cofactors times r, 16 floats
//   invert4x4_64f(src, dst)       the Qel64f inverse of 16 packed doubles, with
//                                 its singular test (|det| below 256 units of the
//                                 smallest normal number): qelStatusSingular and
//                                 dst untouched, or qelStatusOk
//
// The Qel32f core leaves the singular test and the reciprocal to its caller:
// each caller has its own tolerance.
#pragma once

#include "qelm/qelmtypes.h"

#include <smmintrin.h>

#include <cmath>

namespace qel {

// Lanes of a row register, picked by four column numbers.
#define QEL_PICK(v, a, b, c, d) _mm_shuffle_ps(v, v, _MM_SHUFFLE(d, c, b, a))

struct Cofactors4 {
  __m128 c[4];  // c[i]: the cofactors of row i, lane j for column j
  __m128 det;   // the determinant in lane 0
};

// Pairing scheme: the six 2x2 minors of rows 2 and 3 serve the cofactors of
// rows 0 and 1, the six of rows 0 and 1 those of rows 2 and 3. Lane j of each
// expression leaves column j out; the three remaining columns are taken as
// "c" (the lowest), "a" (the middle) and "b" (the highest).
inline Cofactors4 cofactors4x4(__m128 r0, __m128 r1, __m128 r2, __m128 r3) {
  const __m128 oddNeg = _mm_setr_ps(0.0f, -0.0f, 0.0f, -0.0f);
  const __m128 evenNeg = _mm_setr_ps(-0.0f, 0.0f, -0.0f, 0.0f);
  auto lo = [](__m128 v) { return QEL_PICK(v, 1, 0, 0, 0); };
  auto mid = [](__m128 v) { return QEL_PICK(v, 2, 2, 1, 1); };
  auto hi = [](__m128 v) { return QEL_PICK(v, 3, 3, 3, 2); };

  // Minors of rows 2 and 3 on the column pairs (mid, hi), (lo, hi), (lo, mid).
  const __m128 c2l = lo(r2), c2m = mid(r2), c2h = hi(r2);
  const __m128 c3l = lo(r3), c3m = mid(r3), c3h = hi(r3);
  const __m128 s1 = _mm_sub_ps(_mm_mul_ps(c2m, c3h), _mm_mul_ps(c2h, c3m));
  const __m128 s2 = _mm_sub_ps(_mm_mul_ps(c2l, c3h), _mm_mul_ps(c2h, c3l));
  const __m128 s3 = _mm_sub_ps(_mm_mul_ps(c2l, c3m), _mm_mul_ps(c2m, c3l));
  // The same of rows 0 and 1.
  const __m128 c0l = lo(r0), c0m = mid(r0), c0h = hi(r0);
  const __m128 c1l = lo(r1), c1m = mid(r1), c1h = hi(r1);
  const __m128 t1 = _mm_sub_ps(_mm_mul_ps(c0m, c1h), _mm_mul_ps(c0h, c1m));
  const __m128 t2 = _mm_sub_ps(_mm_mul_ps(c0l, c1h), _mm_mul_ps(c0h, c1l));
  const __m128 t3 = _mm_sub_ps(_mm_mul_ps(c0l, c1m), _mm_mul_ps(c0m, c1l));

  auto expand = [](__m128 l, __m128 m, __m128 h, __m128 x1, __m128 x2, __m128 x3) {
    return _mm_add_ps(_mm_sub_ps(_mm_mul_ps(l, x1), _mm_mul_ps(m, x2)), _mm_mul_ps(h, x3));
  };
  Cofactors4 out;
  out.c[0] = _mm_xor_ps(expand(c1l, c1m, c1h, s1, s2, s3), oddNeg);
  out.c[1] = _mm_xor_ps(expand(c0l, c0m, c0h, s1, s2, s3), evenNeg);
  out.c[2] = _mm_xor_ps(expand(c3l, c3m, c3h, t1, t2, t3), oddNeg);
  out.c[3] = _mm_xor_ps(expand(c2l, c2m, c2h, t1, t2, t3), evenNeg);

  // Row 0 against its cofactors, summed pairwise: (p0 + p1) + (p2 + p3).
  const __m128 p = _mm_mul_ps(r0, out.c[0]);
  const __m128 pairs = _mm_add_ps(p, QEL_PICK(p, 1, 0, 3, 2));
  out.det = _mm_add_ss(pairs, QEL_PICK(pairs, 2, 2, 2, 2));
  return out;
}

inline float cofactors4x4_32f(const float* src, float* cof) {
  const Cofactors4 c = cofactors4x4(_mm_loadu_ps(src), _mm_loadu_ps(src + 4), _mm_loadu_ps(src + 8),
                                    _mm_loadu_ps(src + 12));
  for (int i = 0; i < 4; ++i) _mm_storeu_ps(cof + 4 * i, c.c[i]);
  return _mm_cvtss_f32(c.det);
}

// x + x - d (x x), x the processor's 12-bit estimate of 1 / d. Every lane.
inline __m128 reciprocalEstimate(__m128 d) {
  const __m128 x = _mm_rcp_ps(d);
  return _mm_sub_ps(_mm_add_ps(x, x), _mm_mul_ps(d, _mm_mul_ps(x, x)));
}
inline float reciprocalEstimate32f(float d) { return _mm_cvtss_f32(reciprocalEstimate(_mm_set_ss(d))); }

// The adjugate (cofactor (i, j) at (j, i)) times r.
inline void inverseRows4x4(const Cofactors4& c, float r, __m128 (&rows)[4]) {
  __m128 a = c.c[0], b = c.c[1], d = c.c[2], e = c.c[3];
  _MM_TRANSPOSE4_PS(a, b, d, e);
  const __m128 rr = _mm_set1_ps(r);
  rows[0] = _mm_mul_ps(a, rr);
  rows[1] = _mm_mul_ps(b, rr);
  rows[2] = _mm_mul_ps(d, rr);
  rows[3] = _mm_mul_ps(e, rr);
}
inline void storeInverse4x4_32f(const Cofactors4& c, float r, float* dst) {
  __m128 rows[4];
  inverseRows4x4(c, r, rows);
  for (int i = 0; i < 4; ++i) _mm_storeu_ps(dst + 4 * i, rows[i]);
}

#undef QEL_PICK

// ---------------------------------------------------------------- scalar 4x4

// Scalar adjugate of order 4 in any element type, the matrix read through
// a(i, j). The six 2x2 minors of rows 2, 3 give the cofactors of rows 0, 1 and
// those of rows 0, 1 the cofactors of rows 2, 3; the determinant is the
// expansion on column 0 through them. cof[i][j] is the signed cofactor of (i, j).
template <class T, class A>
inline T adjugate4(const A& a, T (&cof)[4][4]) {
  T m[4][4];
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) m[i][j] = a(i, j);
  auto minor2 = [&](int r, int s, int p, int q) { return m[r][p] * m[s][q] - m[r][q] * m[s][p]; };
  const T s01 = minor2(2, 3, 0, 1), s02 = minor2(2, 3, 0, 2), s03 = minor2(2, 3, 0, 3);
  const T s12 = minor2(2, 3, 1, 2), s13 = minor2(2, 3, 1, 3), s23 = minor2(2, 3, 2, 3);
  const T t01 = minor2(0, 1, 0, 1), t02 = minor2(0, 1, 0, 2), t03 = minor2(0, 1, 0, 3);
  const T t12 = minor2(0, 1, 1, 2), t13 = minor2(0, 1, 1, 3), t23 = minor2(0, 1, 2, 3);
  auto three = [](T x0, T m0, T x1, T m1, T x2, T m2) { return (x0 * m0 - x1 * m1) + x2 * m2; };
  for (int pass = 0; pass < 2; ++pass) {
    // Rows 0, 1 from rows 2, 3's minors; rows 2, 3 from rows 0, 1's.
    const int base = pass * 2;
    const T* u = m[pass == 0 ? 1 : 3];  // the row expanded for cofactor row base
    const T* v = m[pass == 0 ? 0 : 2];  // and for cofactor row base + 1
    const T x23 = pass == 0 ? s23 : t23, x13 = pass == 0 ? s13 : t13, x12 = pass == 0 ? s12 : t12;
    const T x03 = pass == 0 ? s03 : t03, x02 = pass == 0 ? s02 : t02, x01 = pass == 0 ? s01 : t01;
    const T* rows[2] = {u, v};
    for (int h = 0; h < 2; ++h) {
      const T* w = rows[h];
      const T e0 = three(w[1], x23, w[2], x13, w[3], x12);
      const T e1 = three(w[0], x23, w[2], x03, w[3], x02);
      const T e2 = three(w[0], x13, w[1], x03, w[3], x01);
      const T e3 = three(w[0], x12, w[1], x02, w[2], x01);
      // Row base keeps the signs + - + -, row base + 1 takes - + - +.
      if (h == 0) {
        cof[base][0] = e0, cof[base][1] = T(0) - e1, cof[base][2] = e2, cof[base][3] = T(0) - e3;
      } else {
        cof[base + 1][0] = T(0) - e0, cof[base + 1][1] = e1, cof[base + 1][2] = T(0) - e2, cof[base + 1][3] = e3;
      }
    }
  }
  return ((m[0][0] * cof[0][0] + m[1][0] * cof[1][0]) + m[2][0] * cof[2][0]) + m[3][0] * cof[3][0];
}

// 256 units of the smallest normal Qel64f: the contiguous Qel64f tolerance of
// order 4, twice what 2 n^3 would give.
constexpr Qel64f kInvert4x4Tolerance64f = 0x1p-1014;  // 5.696189077778436e-306

inline QelStatus invert4x4_64f(const Qel64f* src, Qel64f* dst) {
  Qel64f cof[4][4];
  const Qel64f d = adjugate4<Qel64f>([src](int i, int j) { return src[4 * i + j]; }, cof);
  if (kInvert4x4Tolerance64f > std::fabs(d)) return qelStatusSingular;  // a NaN passes
  const Qel64f r = 1.0 / d;
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) dst[4 * j + i] = cof[i][j] * r;
  return qelStatusOk;
}

}  // namespace qel
