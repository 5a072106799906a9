// Invert: the front-end and the exports.
#include "../frame/export.h"
#include "../frame/operands.h"
#include "invert.h"

namespace {
using namespace qel;

// Order 1 never reaches a kernel: the front-end takes the reciprocal of each
// object in turn and stops at the first whose magnitude is not above twice the
// smallest normal number (a NaN stops too).
template <class S, class D>
QelStatus invertOrderOne(S src, D dst, int count) {
  using T = ElemT<typename D::Object>;
  const T t = T(2) * kMinNormal<T>;
  for (int n = 0; n < count; ++n) {
    const T x = src.object(n).at(0, 0);
    if (!(std::fabs(x) > t)) return qelStatusSingular;
    dst.object(n).at(0, 0) = T(1) / x;
  }
  return qelStatusOk;
}

// One front-end for the ten exports: checks in `order` (the buffer among the
// pointers), order 1 at once, then for arrays 2 * size * count against the
// limit of the kernel: 3600 for the contiguous Qel32f standard array, 2500
// everywhere else, serial at or below it. A forked call hands every thread a
// buffer slice of its own and leaves the caller's alone.
template <InvertKernel K, class S, class D>
QelStatus invertFront(const char* order, S src, void* buffer, D dst, int size, int count,
                      int32_t contiguousLimit = 2500) {
  using T = ElemT<typename D::Object>;
  CheckGroups g = checkViews(count, {size}, src, dst);
  g.pointers = g.pointers && buffer != nullptr;
  if (QelStatus st = firstFailure(order, g)) return st;
  if (size == 1) return invertOrderOne(src, dst, count);
  auto job = makeJob(
      [size, buffer](int share, void* scratch, auto s, auto d) {
        return invertObjects<K>(s, d, scratch, size, share);
      },
      src, dst);
  if constexpr (!S::isArray) {
    return runSerial(job, 1, buffer);
  } else {
    const Work w = Work(2) * size * count;
    const DriverTraits traits{.sharedStatus = true,
                              .sliceBytes = mul32(add32(mul32(size, size), size), int32_t(sizeof(T)))};
    return runFirstKind(job, count, w, WorkLimit::serialAtMost(contiguousLimit), WorkLimit::serialAtMost(2500),
                        traits, buffer);
  }
}

constexpr auto Plain = InvertKernel::Plain;
constexpr auto Array = InvertKernel::Array;
constexpr auto ArrayP = InvertKernel::ArrayP;

}  // namespace

// LIMIT: the serial limit of the contiguous standard array kernel.
#define QEL_INVERT(T, F, LIMIT)                                                                    \
  QELM_API QelStatus qelmInvert_m_##F(const T* src, int srcStride1, int srcStride2, T* buffer,     \
                                      T* dst, int dstStride1, int dstStride2, int size) {          \
    return invertFront<Plain>("NZS", single(src, srcStride1, srcStride2), buffer,                  \
                              single(dst, dstStride1, dstStride2), size, 1);                       \
  }                                                                                                \
  QELM_API QelStatus qelmInvert_m_##F##_P(const T* const* src, int srcRoiShift, T* buffer,         \
                                          T* const* dst, int dstRoiShift, int size) {              \
    return invertFront<Plain>("NZR", singleP(src, srcRoiShift, size), buffer,                      \
                              singleP(dst, dstRoiShift, size), size, 1);                           \
  }                                                                                                \
  QELM_API QelStatus qelmInvert_ma_##F(const T* src, int srcStride0, int srcStride1,               \
                                       int srcStride2, T* buffer, T* dst, int dstStride0,          \
                                       int dstStride1, int dstStride2, int size, int count) {      \
    return invertFront<Array>("NCZS", arrayS(src, srcStride0, srcStride1, srcStride2), buffer,     \
                              arrayS(dst, dstStride0, dstStride1, dstStride2), size, count, LIMIT); \
  }                                                                                                \
  QELM_API QelStatus qelmInvert_ma_##F##_L(const T* const* src, int srcRoiShift, int srcStride1,   \
                                           int srcStride2, T* buffer, T* const* dst,               \
                                           int dstRoiShift, int dstStride1, int dstStride2,        \
                                           int size, int count) {                                  \
    return invertFront<Plain>("NCZSR", arrayL(src, srcRoiShift, srcStride1, srcStride2), buffer,   \
                              arrayL(dst, dstRoiShift, dstStride1, dstStride2), size, count);      \
  }                                                                                                \
  QELM_API QelStatus qelmInvert_ma_##F##_P(const T* const* src, int srcRoiShift, int srcStride0,   \
                                           T* buffer, T* const* dst, int dstRoiShift,              \
                                           int dstStride0, int size, int count) {                  \
    return invertFront<ArrayP>("NCZSR", arrayP(src, srcRoiShift, srcStride0, size), buffer,        \
                               arrayP(dst, dstRoiShift, dstStride0, size), size, count);           \
  }

QEL_INVERT(Qel32f, 32f, 3600)
QEL_INVERT(Qel64f, 64f, 2500)
