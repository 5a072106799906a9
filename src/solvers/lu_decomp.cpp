// LUDecomp: the front-end and the exports.
#include "../frame/export.h"
#include "lu_decomp.h"
#include "lu_index.h"

namespace {
using namespace qel;

// size * size * count below 1001 stays serial, in every description.
const WorkLimit kDecompLimit = WorkLimit::serialBelow(1001);

// One front-end for all ten exports: checks in `order`, then for an array the
// work test and the driver, whose threads each stop at the first singular
// matrix of their share and merge their statuses.
template <class S, class D>
QelStatus decompFront(const char* order, S src, Qel32s* dstIndex, D dst, int size, int count) {
  const IndexArray<Qel32s> index{dstIndex, size};
  if (QelStatus st = firstFailure(order, checkViews(count, {size}, src, index, dst))) return st;
  auto job = makeJob(
      [size](int share, void*, auto s, auto ix, auto d) { return luObjects(s, ix, d, size, share); },
      src, index, dst);
  if constexpr (!S::isArray) {
    return runSerial(job, 1);
  } else {
    const Work w = Work(size) * size * count;
    return runFirstKind(job, count, w, kDecompLimit, kDecompLimit, DriverTraits{.sharedStatus = true});
  }
}

}  // namespace

#define QEL_LU_DECOMP(T, F)                                                                        \
  QELM_API QelStatus qelmLUDecomp_m_##F(const T* src, int srcStride1, int srcStride2,              \
                                        Qel32s* dstIndex, T* dst, int dstStride1, int dstStride2,  \
                                        int size) {                                                \
    return decompFront("NZS", Single<Mat<const T>>{{src, srcStride1, srcStride2}}, dstIndex,       \
                       Single<Mat<T>>{{dst, dstStride1, dstStride2}}, size, 1);                    \
  }                                                                                                \
  QELM_API QelStatus qelmLUDecomp_m_##F##_P(const T* const* src, int srcRoiShift,                  \
                                            Qel32s* dstIndex, T* const* dst, int dstRoiShift,      \
                                            int size) {                                            \
    return decompFront("NZR", Single<MatP<const T>>{{src, srcRoiShift, size}}, dstIndex,           \
                       Single<MatP<T>>{{dst, dstRoiShift, size}}, size, 1);                        \
  }                                                                                                \
  QELM_API QelStatus qelmLUDecomp_ma_##F(const T* src, int srcStride0, int srcStride1,             \
                                         int srcStride2, Qel32s* dstIndex, T* dst, int dstStride0, \
                                         int dstStride1, int dstStride2, int size, int count) {    \
    return decompFront("NCZS", StridedArray<const T>{src, srcStride0, srcStride1, srcStride2},     \
                       dstIndex, StridedArray<T>{dst, dstStride0, dstStride1, dstStride2}, size,   \
                       count);                                                                     \
  }                                                                                                \
  QELM_API QelStatus qelmLUDecomp_ma_##F##_L(const T* const* src, int srcRoiShift, int srcStride1, \
                                             int srcStride2, Qel32s* dstIndex, T* const* dst,      \
                                             int dstRoiShift, int dstStride1, int dstStride2,      \
                                             int size, int count) {                                \
    return decompFront("NCZSR", ListArray<const T>{src, srcRoiShift, srcStride1, srcStride2},      \
                       dstIndex, ListArray<T>{dst, dstRoiShift, dstStride1, dstStride2}, size,     \
                       count);                                                                     \
  }                                                                                                \
  QELM_API QelStatus qelmLUDecomp_ma_##F##_P(const T* const* src, int srcRoiShift, int srcStride0, \
                                             Qel32s* dstIndex, T* const* dst, int dstRoiShift,     \
                                             int dstStride0, int size, int count) {                \
    return decompFront("NCZSR", PointerArray<const T>{src, srcRoiShift, srcStride0, size},         \
                       dstIndex, PointerArray<T>{dst, dstRoiShift, dstStride0, size}, size, count); \
  }

QEL_LU_DECOMP(Qel32f, 32f)
QEL_LU_DECOMP(Qel64f, 64f)
