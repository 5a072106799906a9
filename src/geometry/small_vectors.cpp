// The exports of the 2, 3 and 4-element vector routines: one table line per
// dimension, the cross products written per dimension (they differ in kind).
// None checks anything and every one answers qelStatusOk.
#include "../frame/export.h"
#include "small_vectors.h"

namespace {
using namespace qel::geo;

template <int N>
void catmullRom(const float* p0, const float* p1, const float* p2, const float* p3, float s, float* d) {
  float t0[N], t1[N];
  each<N>([&](int i) { t0[i] = (p2[i] - p0[i]) * 0.5f, t1[i] = (p3[i] - p1[i]) * 0.5f; });
  hermite<N>(p1, t0, p2, t1, s, d);
}

}  // namespace

#define QEL_SMALL_VECTORS(N)                                                                                       \
  QELM_API QelStatus qelmAdd_v##N##_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst) {                    \
    each<N>([&](int i) { dst[i] = src1[i] + src2[i]; });                                                          \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmSub_v##N##_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst) {                    \
    each<N>([&](int i) { dst[i] = src1[i] - src2[i]; });                                                          \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmMulC_v##N##_32f(const Qel32f* src, Qel32f val, Qel32f* dst) {                            \
    each<N>([&](int i) { dst[i] = src[i] * val; });                                                               \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmDotProduct_v##N##_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst) {             \
    *dst = dot<N>(src1, src2);                                                                                     \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmLenSqr_v##N##_32f(const Qel32f* src, Qel32f* dst) {                                      \
    *dst = dot<N>(src, src);                                                                                       \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmLen_v##N##_32f(const Qel32f* src, Qel32f* dst) {                                         \
    *dst = root(dot<N>(src, src));                                                                                 \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  /* A NaN on either side loses the comparison: the element of src2 is taken. */                                 \
  QELM_API QelStatus qelmMax_v##N##_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst) {                    \
    each<N>([&](int i) { dst[i] = src1[i] > src2[i] ? src1[i] : src2[i]; });                                      \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmMin_v##N##_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst) {                    \
    each<N>([&](int i) { dst[i] = src1[i] < src2[i] ? src1[i] : src2[i]; });                                      \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmNormalize_v##N##_32f(const Qel32f* src, Qel32f* dst) {                                   \
    normalize<N>(src, dst);                                                                                        \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmInterpolationLinear_v##N##_32f(const Qel32f* src1, const Qel32f* src2, Qel32f val,      \
                                                        Qel32f* dst) {                                            \
    each<N>([&](int i) { dst[i] = src1[i] + (src2[i] - src1[i]) * val; });                                        \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmBaryCentric_v##N##_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3,      \
                                                Qel32f val1, Qel32f val2, Qel32f* dst) {                          \
    each<N>([&](int i) { dst[i] = ((src2[i] - src1[i]) * val1 + src1[i]) + (src3[i] - src1[i]) * val2; });        \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmHermite_v##N##_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3,          \
                                            const Qel32f* src4, Qel32f val, Qel32f* dst) {                        \
    hermite<N>(src1, src2, src3, src4, val, dst);                                                                  \
    return qelStatusOk;                                                                                            \
  }                                                                                                                \
  QELM_API QelStatus qelmInterpolationCatmullRom_v##N##_32f(const Qel32f* src1, const Qel32f* src2,              \
                                                            const Qel32f* src3, const Qel32f* src4, Qel32f val,  \
                                                            Qel32f* dst) {                                        \
    catmullRom<N>(src1, src2, src3, src4, val, dst);                                                               \
    return qelStatusOk;                                                                                            \
  }

QEL_SMALL_VECTORS(2)
QEL_SMALL_VECTORS(3)
QEL_SMALL_VECTORS(4)

// The cross products read their sources again after the first store.
QELM_API QelStatus qelmCrossProduct_v2_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst) {
  *dst = src1[0] * src2[1] - src1[1] * src2[0];
  return qelStatusOk;
}

QELM_API QelStatus qelmCrossProduct_v3_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst) {
  cross3(src1, src2, dst);
  return qelStatusOk;
}

// The product of a with the 2x2 minors (i, j) = b[i] c[j] - b[j] c[i]; negated
// components are subtractions from zero.
QELM_API QelStatus qelmCrossProduct_v4_32f(const Qel32f* a, const Qel32f* b, const Qel32f* c, Qel32f* dst) {
  auto m = [&](int i, int j) { return b[i] * c[j] - b[j] * c[i]; };
  dst[0] = (m(2, 3) * a[1] - m(1, 3) * a[2]) + m(1, 2) * a[3];
  dst[1] = 0.0f - ((m(2, 3) * a[0] - m(0, 3) * a[2]) + m(0, 2) * a[3]);
  dst[2] = (m(1, 3) * a[0] - m(0, 3) * a[1]) + m(0, 1) * a[3];
  dst[3] = 0.0f - ((m(1, 2) * a[0] - m(0, 2) * a[1]) + m(0, 1) * a[2]);
  return qelStatusOk;
}
