// Add and Sub over matrices: the front-end and the exports.
#include "../frame/export.h"
#include "elementwise.h"

namespace {
using namespace qel;

enum class Layout { Standard, List, Pointer };

// Serial below 3000 only for the 32f standard contiguous kernels; 2000 elsewhere.
template <class T, Layout L>
WorkLimit contiguousLimit() {
  return WorkLimit::serialBelow(std::is_same_v<T, Qel32f> && L == Layout::Standard ? 3000 : 2000);
}

// Front-end of the first kind for every array shape: checks in `order`, the
// work figure by the number of array operands, then the kernel pair or driver.
template <class Op, class T, Layout L, class A, class B, class D>
QelStatus matrixArrayFront(const char* order, A a, B b, D d, int width, int height, int count) {
  if (QelStatus st = firstFailure(order, checkViews(count, {width, height}, a, b, d))) return st;
  const Work w = (A::isArray && B::isArray) ? Work(3) * width * height * count
                                            : Work(width) * height * (Work(2) * count + 1);
  auto job = makeJob(
      [width, height](int share, void*, auto va, auto vb, auto vd) {
        return elementwise<Op>(va, vb, vd, width, height, share);
      },
      a, b, d);
  return runFirstKind(job, count, w, contiguousLimit<T, L>(), WorkLimit::serialBelow(2000));
}

template <class T>
StridedArray<const T> arrayS(const T* p, int s0, int s1, int s2) { return {p, s0, s1, s2}; }
template <class T>
StridedArray<T> arrayS(T* p, int s0, int s1, int s2) { return {p, s0, s1, s2}; }
template <class T>
ListArray<T> arrayL(T* const* p, int shift, int s1, int s2) { return {p, shift, s1, s2}; }
template <class T>
PointerArray<T> arrayP(T* const* p, int shift, int s0, int rowLen) { return {p, shift, s0, rowLen}; }
template <class T>
Single<Mat<const T>> single(const T* p, int s1, int s2) { return {{p, s1, s2}}; }
template <class T>
Single<MatP<T>> singleP(T* const* p, int shift, int rowLen) { return {{p, shift, rowLen}}; }

}  // namespace

#define QEL_ADD_MAM(T, F)                                                                        \
  QELM_API QelStatus qelmAdd_mam_##F(const T* src1, int src1Stride0, int src1Stride1,           \
                                     int src1Stride2, const T* src2, int src2Stride1,          \
                                     int src2Stride2, T* dst, int dstStride0, int dstStride1,  \
                                     int dstStride2, int width, int height, int count) {       \
    return matrixArrayFront<AddOp, T, Layout::Standard>(                                         \
        "NCSZ", arrayS(src1, src1Stride0, src1Stride1, src1Stride2),                             \
        single(src2, src2Stride1, src2Stride2), arrayS(dst, dstStride0, dstStride1, dstStride2), \
        width, height, count);                                                                   \
  }                                                                                              \
  QELM_API QelStatus qelmAdd_mam_##F##_L(const T* const* src1, int src1RoiShift, int src1Stride1, \
                                         int src1Stride2, const T* src2, int src2Stride1,       \
                                         int src2Stride2, T* const* dst, int dstRoiShift,       \
                                         int dstStride1, int dstStride2, int width, int height, \
                                         int count) {                                           \
    return matrixArrayFront<AddOp, T, Layout::List>(                                             \
        "NCZSR", arrayL(src1, src1RoiShift, src1Stride1, src1Stride2),                           \
        single(src2, src2Stride1, src2Stride2), arrayL(dst, dstRoiShift, dstStride1, dstStride2), \
        width, height, count);                                                                   \
  }                                                                                              \
  QELM_API QelStatus qelmAdd_mam_##F##_P(const T* const* src1, int src1RoiShift, int src1Stride0, \
                                         const T* const* src2, int src2RoiShift, T* const* dst, \
                                         int dstRoiShift, int dstStride0, int width, int height, \
                                         int count) {                                           \
    return matrixArrayFront<AddOp, T, Layout::Pointer>(                                          \
        "NCZSR", arrayP(src1, src1RoiShift, src1Stride0, width),                                 \
        singleP(src2, src2RoiShift, width), arrayP(dst, dstRoiShift, dstStride0, width), width,  \
        height, count);                                                                          \
  }

QEL_ADD_MAM(Qel32f, 32f)
QEL_ADD_MAM(Qel64f, 64f)
