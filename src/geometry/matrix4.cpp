// The fixed 4x4 Qel32f routines: product, transposed product, determinant,
// inverse, transpose, identity and the identity test. Every one reads its whole operand
// before it stores, so a destination may be a source.
#include "../frame/export.h"
#include "../solvers/invert4x4.h"
#include "matrix4.h"

#include <cmath>

using namespace qel::geo;

QELM_API QelStatus qelmMul_mm4x4_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst) {
  if (!src1 || !src2 || !dst) return qelStatusNullPointer;
  storeRows(dst, product(loadRows(src1), loadRows(src2)));
  return qelStatusOk;
}

QELM_API QelStatus qelmMulTranspose_m4_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst) {
  storeRows(dst, transpose(product(loadRows(src1), loadRows(src2))));
  return qelStatusOk;
}

// Expansion along row 0, its four cofactors in four lanes from the 2x2 minors
// of rows 2 and 3; the signed lanes are added in pairs.
QELM_API QelStatus qelmDet_m4_32f(const Qel32f* src, Qel32f* dst) {
  const Rows4 m = loadRows(src);
  const __m128 r0 = m.r[0], r1 = m.r[1], r2 = m.r[2], r3 = m.r[3];
  const __m128 a = lanes<2, 2, 1, 1>(r2), b = lanes<3, 3, 3, 2>(r2), c = lanes<1, 0, 0, 0>(r2);
  const __m128 d = lanes<3, 3, 3, 2>(r3), e = lanes<2, 2, 1, 1>(r3), f = lanes<1, 0, 0, 0>(r3);
  const __m128 g1 = lanes<1, 0, 0, 0>(r1), g2 = lanes<2, 2, 1, 1>(r1), g3 = lanes<3, 3, 3, 2>(r1);
  const __m128 t = (((a * d - b * e) * g1 - (c * d - f * b) * g2) + (e * c - a * f) * g3) * r0;
  const __m128 pairs = _mm_hsub_ps(t, t);  // (t0 - t1, t2 - t3, ...)
  *dst = _mm_cvtss_f32(pairs + lanes<1, 1, 1, 1>(pairs));
  return qelStatusOk;
}

QELM_API QelStatus qelmTranspose_m4_32f(const Qel32f* src, Qel32f* dst) {
  storeRows(dst, transpose(loadRows(src)));
  return qelStatusOk;
}

QELM_API QelStatus qelmIdentity_m4_32f(Qel32f* dst) {
  const __m128 one = _mm_set_ss(1.0f);
  storeRows(dst, {{one, lanes<1, 0, 1, 1>(one), lanes<1, 1, 0, 1>(one), lanes<1, 1, 1, 0>(one)}});
  return qelStatusOk;
}

// The weak test: element (0, 0) must be 1; then one whole column equal to the
// identity's is enough. Negative zero compares equal to zero.
QELM_API QelStatus qelmIsIdentity_m4_32f(const Qel32f* src, Qel32s* dst) {
  if (!(src[0] == 1.0f)) {
    *dst = 0;
    return qelStatusOk;
  }
  const __m128 one = _mm_set_ss(1.0f);
  const Rows4 m = loadRows(src);
  const __m128 same = _mm_and_ps(_mm_and_ps(_mm_cmpeq_ps(m.r[0], one), _mm_cmpeq_ps(m.r[1], lanes<1, 0, 1, 1>(one))),
                                 _mm_and_ps(_mm_cmpeq_ps(m.r[2], lanes<1, 1, 0, 1>(one)),
                                            _mm_cmpeq_ps(m.r[3], lanes<1, 1, 1, 0>(one))));
  *dst = _mm_movemask_ps(same) != 0 ? 1 : 0;
  return qelStatusOk;
}

// The shared 4x4 cofactors; singular when |det| is below 2^-119 (128 units of
// the smallest normal), so a NaN determinant goes on. The reciprocal is the
// refined estimate.
QELM_API QelStatus qelmInvert_m4_32f(const Qel32f* src, Qel32f* dstDet, Qel32f* dst) {
  const Rows4 m = loadRows(src);
  const qel::Cofactors4 c = qel::cofactors4x4(m.r[0], m.r[1], m.r[2], m.r[3]);
  const float det = _mm_cvtss_f32(c.det);
  if (std::fabs(det) < 0x1p-119f) {
    if (dstDet) *dstDet = 0.0f;
    return qelStatusSingular;
  }
  if (dstDet) *dstDet = det;
  qel::storeInverse4x4_32f(c, qel::reciprocalEstimate32f(det), dst);
  return qelStatusOk;
}
