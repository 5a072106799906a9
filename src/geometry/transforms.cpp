// Vectors through a 4x4 Qel32f matrix in the row-vector convention: plain
// (a point (x, y[, z], 1) or a full four-element vector, four elements out),
// as a projective point (divided by its w), as a normal (no translation),
// through world, view and projection onto a viewport and back, and the one
// column-vector array transform with the array families' checks. Every form
// writes its own order of the row additions; arrays of the unchecked forms run
// the single form on each vector, strides trusted as given.
#include "../frame/export.h"
#include "../frame/operands.h"
#include "../solvers/invert4x4.h"
#include "matrix4.h"
#include "transforms.h"

#include <cfloat>
#include <cmath>

namespace {
using namespace qel;
using namespace qel::geo;

// Each vector through `form`, src and dst moved by their strides. Packed
// sources (N elements apart) go four vectors to a block of N loads; the values
// are the same either way.
template <int N, class Form>
QelStatus overArray(const Form& form, const float* src, int srcStride, float* dst, int dstStride, int count) {
  int i = 0;
  if (srcStride == 4 * N)
    for (; count - i >= 4; i += 4) {
      const float* s = byteAt(src, mul32(i, srcStride));
      __m128 r[N];
      unroll<N>([&](auto k) { r[k] = _mm_loadu_ps(s + 4 * k); });
      unroll<4>([&](auto p) { form(FromBlock<decltype(p)::value * N>{r}, byteAt(dst, mul32(i + p, dstStride))); });
    }
  for (; i < count; ++i) form(FromMemory{byteAt(src, mul32(i, srcStride))}, byteAt(dst, mul32(i, dstStride)));
  return qelStatusOk;
}

// The forms, each holding the matrix rows in registers; N is the length of the
// source vector.
struct Plain2 {
  static constexpr int N = 2;
  Rows4 m;
  template <class P>
  void operator()(const P& p, float* d) const {
    _mm_storeu_ps(d, (m.r[3] + m.r[0] * el<0>(p)) + m.r[1] * el<1>(p));
  }
};
struct Plain3 {
  static constexpr int N = 3;
  Rows4 m;
  template <class P>
  void operator()(const P& p, float* d) const { _mm_storeu_ps(d, plainPoint3(m, p)); }
};
struct Plain4 {
  static constexpr int N = 4;
  Rows4 m;
  template <class P>
  void operator()(const P& p, float* d) const {
    _mm_storeu_ps(d, (m.r[0] * el<0>(p) + m.r[1] * el<1>(p)) + (m.r[2] * el<2>(p) + m.r[3] * el<3>(p)));
  }
};
struct Coord2 {
  static constexpr int N = 2;
  Rows4 m;
  template <class P>
  void operator()(const P& p, float* d) const {
    Lanes<float>::store<2>(d, byW((m.r[0] * el<0>(p) + m.r[3]) + m.r[1] * el<1>(p)));
  }
};
struct Coord3 {
  static constexpr int N = 3;
  Rows4 m;
  template <class P>
  void operator()(const P& p, float* d) const { Lanes<float>::store<3>(d, coordPoint3(m, p)); }
};
struct Normal2 {
  static constexpr int N = 2;
  Rows4 m;
  template <class P>
  void operator()(const P& p, float* d) const {
    Lanes<float>::store<2>(d, m.r[0] * el<0>(p) + m.r[1] * el<1>(p));
  }
};
struct Normal3 {
  static constexpr int N = 3;
  Rows4 m;
  template <class P>
  void operator()(const P& p, float* d) const {
    Lanes<float>::store<3>(d, (m.r[0] * el<0>(p) + m.r[1] * el<1>(p)) + m.r[2] * el<2>(p));
  }
};

// The viewport of Project: origin (0, 0), y downwards, depth into minZ..maxZ.
struct Viewport {
  float viewWidth, viewHeight, minZ, maxZ;
  void toScreen(__m128 r, float* d) const {
    alignas(16) float n[4];
    _mm_store_ps(n, byW(r));
    const float hw = viewWidth * 0.5f, hh = viewHeight * 0.5f;
    d[0] = hw + hw * n[0];
    d[1] = hh + (0.0f - hh) * n[1];
    d[2] = minZ + (maxZ - minZ) * n[2];
  }
};

// (a0 R0 + a1 R1) + (a2 R2 + a3 R3): a four-element row vector times m.
inline __m128 vectorTimes(__m128 a, const Rows4& m) {
  return (splat<0>(a) * m.r[0] + splat<1>(a) * m.r[1]) + (splat<2>(a) * m.r[2] + splat<3>(a) * m.r[3]);
}

// The column-vector transform with a divide that may fail: t = M (x, y, z, 1)
// with M read through its strides once, then t / t3 unless |t3| is not above the
// smallest normal, where the vector gets the largest float and the call fails.
template <class M, class S, class D>
QelStatus homogeneous(M m, S src, D dst, int count) {
  const auto& a = m.object(0);
  const __m128 c0 = _mm_setr_ps(a.at(0, 0), a.at(1, 0), a.at(2, 0), a.at(3, 0));
  const __m128 c1 = _mm_setr_ps(a.at(0, 1), a.at(1, 1), a.at(2, 1), a.at(3, 1));
  const __m128 c2 = _mm_setr_ps(a.at(0, 2), a.at(1, 2), a.at(2, 2), a.at(3, 2));
  const __m128 c3 = _mm_setr_ps(a.at(0, 3), a.at(1, 3), a.at(2, 3), a.at(3, 3));
  QelStatus status = qelStatusOk;
  for (int n = 0; n < count; ++n) {
    const auto s = src.object(n);
    const auto d = dst.object(n);
    const __m128 t = (c0 * _mm_set1_ps(s.at(0, 0)) + c1 * _mm_set1_ps(s.at(0, 1))) + (c2 * _mm_set1_ps(s.at(0, 2)) + c3);
    alignas(16) float r[4];
    _mm_store_ps(r, t);
    if (std::fabs(r[3]) > FLT_MIN) {
      const float q = 1.0f / r[3];
      d.at(0, 0) = r[0] * q, d.at(0, 1) = r[1] * q, d.at(0, 2) = r[2] * q;
    } else {
      d.at(0, 0) = d.at(0, 1) = d.at(0, 2) = FLT_MAX;
      status = qelStatusDivideByZero;
    }
  }
  return status;
}

}  // namespace

// clang-format off
#define QEL_TRANSFORM(OP, SHAPE, FORM)                                                                          \
  QELM_API QelStatus qelm##OP##_##SHAPE##_32f(const Qel32f* m, const Qel32f* src, Qel32f* dst) {               \
    FORM{loadRows(m)}(FromMemory{src}, dst);                                                                  \
    return qelStatusOk;                                                                                       \
  }                                                                                                           \
  QELM_API QelStatus qelm##OP##_##SHAPE##a_32f(const Qel32f* m, const Qel32f* src, int srcStride, Qel32f* dst, \
                                               int dstStride, int count) {                                    \
    return overArray<FORM::N>(FORM{loadRows(m)}, src, srcStride, dst, dstStride, count);                      \
  }
QEL_TRANSFORM(AffineTransform,       m4v2, Plain2)
QEL_TRANSFORM(AffineTransform,       m4v3, Plain3)
QEL_TRANSFORM(AffineTransform,       m4v4, Plain4)
QEL_TRANSFORM(AffineTransformCoord,  m4v2, Coord2)
QEL_TRANSFORM(AffineTransformCoord,  m4v3, Coord3)
QEL_TRANSFORM(AffineTransformNormal, m4v2, Normal2)
QEL_TRANSFORM(AffineTransformNormal, m4v3, Normal3)
// clang-format on

// The single form takes the point through the three matrices in turn.
QELM_API QelStatus qelmProject_m4v3_32f(const Qel32f* projection, const Qel32f* view, const Qel32f* world,
                                        const Qel32f* src, Qel32f viewWidth, Qel32f viewHeight, Qel32f minZ,
                                        Qel32f maxZ, Qel32f* dst) {
  const __m128 r = vectorTimes(vectorTimes(plainPoint3(loadRows(world), FromMemory{src}), loadRows(view)), loadRows(projection));
  Viewport{viewWidth, viewHeight, minZ, maxZ}.toScreen(r, dst);
  return qelStatusOk;
}

// The array form multiplies the matrices once, view by projection first, so
// its last bits may differ from the single form's.
QELM_API QelStatus qelmProject_m4v3a_32f(const Qel32f* projection, const Qel32f* view, const Qel32f* world,
                                         const Qel32f* src, int srcStride, Qel32f viewWidth, Qel32f viewHeight,
                                         Qel32f minZ, Qel32f maxZ, Qel32f* dst, int dstStride, int count) {
  if (count < 1) return qelStatusOk;
  const Rows4 chain = product(loadRows(world), product(loadRows(view), loadRows(projection)));
  const Viewport port{viewWidth, viewHeight, minZ, maxZ};
  return overArray<3>([&](const auto& p, float* d) { port.toScreen(plainPoint3(chain, p), d); }, src, srcStride,
                      dst, dstStride, count);
}

namespace {

// The inverse of (world view) projection: the product in Qel32f, inverted in
// Qel64f by the shared 4x4 core and rounded back.
QelStatus chainInverse(const float* projection, const float* view, const float* world, Rows4& inverse) {
  alignas(16) float p[16];
  storeRows(p, product(product(loadRows(world), loadRows(view)), loadRows(projection)));
  double wide[16], inv[16];
  for (int i = 0; i < 16; ++i) wide[i] = p[i];
  if (QelStatus st = invert4x4_64f(wide, inv)) return st;
  for (int i = 0; i < 16; ++i) p[i] = static_cast<float>(inv[i]);
  inverse = loadRows(p);
  return qelStatusOk;
}

// Screen to normalised device coordinates: x and y into -1..1 (y upwards), depth
// into 0..1.
struct Unviewport {
  float viewWidth, viewHeight, minZ, maxZ;
  template <class P>
  void toDevice(const P& p, float* d) const {
    const float x = _mm_cvtss_f32(el<0>(p)), y = _mm_cvtss_f32(el<1>(p)), z = _mm_cvtss_f32(el<2>(p));
    d[0] = (2.0f * x) / viewWidth - 1.0f;
    d[1] = (-2.0f * y) / viewHeight + 1.0f;
    d[2] = (z - minZ) / (maxZ - minZ);
  }
};

}  // namespace

// A singular chain leaves the normalised coordinates in dst.
QELM_API QelStatus qelmUnproject_m4v3_32f(const Qel32f* projection, const Qel32f* view, const Qel32f* world,
                                          const Qel32f* src, Qel32f viewWidth, Qel32f viewHeight, Qel32f minZ,
                                          Qel32f maxZ, Qel32f* dst) {
  Unviewport{viewWidth, viewHeight, minZ, maxZ}.toDevice(FromMemory{src}, dst);
  Rows4 inverse;
  if (QelStatus st = chainInverse(projection, view, world, inverse)) return st;
  Lanes<float>::store<3>(dst, coordPoint3(inverse, FromMemory{dst}));
  return qelStatusOk;
}

// The chain is inverted once; a singular one leaves every vector untouched.
QELM_API QelStatus qelmUnproject_m4v3a_32f(const Qel32f* projection, const Qel32f* view, const Qel32f* world,
                                           const Qel32f* src, int srcStride, Qel32f viewWidth, Qel32f viewHeight,
                                           Qel32f minZ, Qel32f maxZ, Qel32f* dst, int dstStride, int count) {
  if (count < 1) return qelStatusOk;
  Rows4 inverse;
  if (QelStatus st = chainInverse(projection, view, world, inverse)) return st;
  const Unviewport port{viewWidth, viewHeight, minZ, maxZ};
  return overArray<3>(
      [&](const auto& p, float* d) {
        float n[3];
        port.toDevice(p, n);
        Lanes<float>::store<3>(d, coordPoint3(inverse, FromMemory{n}));
      },
      src, srcStride, dst, dstStride, count);
}

// 131 vectors (6 count above 784) are the first to reach the driver.
QELM_API QelStatus qelmAffineTransform3DH_mva_32f(const Qel32f* src1, int src1Stride1, int src1Stride2,
                                                  const Qel32f* src2, int src2Stride0, int src2Stride2, Qel32f* dst,
                                                  int dstStride0, int dstStride2, int count) {
  const auto m = single(src1, src1Stride1, src1Stride2);
  const auto s = vectorArrayS(src2, src2Stride0, src2Stride2);
  const auto d = vectorArrayS(dst, dstStride0, dstStride2);
  if (QelStatus st = firstFailure("NCS", checkViews(count, {}, m, s, d))) return st;
  auto job = makeJob([](int share, void*, auto vm, auto vs, auto vd) { return homogeneous(vm, vs, vd, share); }, m, s,
                     d);
  return runSecondKind(job, count, Work(count) * 6, WorkLimit::serialAtMost(784), DriverTraits{true, 0});
}
