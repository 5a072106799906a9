// LUBackSubst: the front-end and the exports.
#include "../frame/export.h"
#include "lu_index.h"
#include "lu_solve.h"

namespace {
using namespace qel;

// A vector is a matrix of one row; its row distance is never used.
template <class T>
Single<Mat<T>> vec(T* p, int stride2) { return {{p, elemSize<T>, stride2}}; }
template <class T>
StridedArray<T> vecs(T* p, int stride0, int stride2) { return {p, stride0, elemSize<T>, stride2}; }
template <class T>
ListArray<T> vecsL(T* const* p, int shift, int stride2) { return {p, shift, elemSize<T>, stride2}; }

// One front-end for the sixteen exports. The kernels can't fail, so the
// driver's result is qelStatusOk. mva reads the one index array in every
// share; mava moves it by `size` entries per matrix.
template <SolveShape Shape, bool Folded = false, class A, class B, class X>
QelStatus solveFront(const char* order, A a, const Qel32s* srcIndex, B b, X x, int size, int count) {
  const IndexArray<const Qel32s> index{srcIndex, Shape == SolveShape::Mava ? size : 0};
  if (QelStatus st = firstFailure(order, checkViews(count, {size}, a, index, b, x))) return st;
  auto job = makeJob(
      [size](int share, void*, auto va, auto vi, auto vb, auto vx) {
        return solveObjects<Shape, Folded>(va, vi, vb, vx, size, share);
      },
      a, index, b, x);
  if constexpr (Shape == SolveShape::Mv) {
    return runSerial(job, 1);
  } else if constexpr (Shape == SolveShape::Mva) {
    const WorkLimit limit = WorkLimit::serialBelow(701);
    return runFirstKind(job, count, (Work(size) + Work(2) * count) * size, limit, limit);
  } else {
    const WorkLimit limit = WorkLimit::serialBelow(1201);
    return runFirstKind(job, count, (Work(size) + 2) * size * count, limit, limit);
  }
}

constexpr auto Mv = SolveShape::Mv;
constexpr auto Mva = SolveShape::Mva;
constexpr auto Mava = SolveShape::Mava;

}  // namespace

// FOLDED: the standard mva export whose contiguous kernel has the folded form
// (only the 32f one).
#define QEL_LU_BACKSUBST(T, F, FOLDED)                                                             \
  QELM_API QelStatus qelmLUBackSubst_mv_##F(const T* src, int srcStride1, int srcStride2,          \
                                            const Qel32s* srcIndex, const T* src2,                 \
                                            int src2Stride2, T* dst, int dstStride2, int size) {   \
    return solveFront<Mv>("NZS", Single<Mat<const T>>{{src, srcStride1, srcStride2}}, srcIndex,    \
                          vec(src2, src2Stride2), vec(dst, dstStride2), size, 1);                  \
  }                                                                                                \
  QELM_API QelStatus qelmLUBackSubst_mv_##F##_P(const T* const* src, int srcRoiShift,              \
                                                const Qel32s* srcIndex, const T* const* src2,      \
                                                int src2RoiShift, T* const* dst, int dstRoiShift,  \
                                                int size) {                                        \
    return solveFront<Mv>("NZR", Single<MatP<const T>>{{src, srcRoiShift, size}}, srcIndex,        \
                          Single<MatP<const T>>{{src2, src2RoiShift, size}},                       \
                          Single<MatP<T>>{{dst, dstRoiShift, size}}, size, 1);                     \
  }                                                                                                \
  QELM_API QelStatus qelmLUBackSubst_mva_##F(                                                      \
      const T* src, int srcStride1, int srcStride2, const Qel32s* srcIndex, const T* src2,         \
      int src2Stride0, int src2Stride2, T* dst, int dstStride0, int dstStride2, int size,          \
      int count) {                                                                                 \
    return solveFront<Mva, FOLDED>("NCZS", Single<Mat<const T>>{{src, srcStride1, srcStride2}},    \
                                   srcIndex, vecs(src2, src2Stride0, src2Stride2),                 \
                                   vecs(dst, dstStride0, dstStride2), size, count);                \
  }                                                                                                \
  QELM_API QelStatus qelmLUBackSubst_mva_##F##_L(                                                  \
      const T* src, int srcStride1, int srcStride2, const Qel32s* srcIndex, const T* const* src2,  \
      int src2RoiShift, int src2Stride2, T* const* dst, int dstRoiShift, int dstStride2, int size, \
      int count) {                                                                                 \
    return solveFront<Mva>("NCZSR", Single<Mat<const T>>{{src, srcStride1, srcStride2}},           \
                           srcIndex, vecsL(src2, src2RoiShift, src2Stride2),                       \
                           vecsL(dst, dstRoiShift, dstStride2), size, count);                      \
  }                                                                                                \
  QELM_API QelStatus qelmLUBackSubst_mva_##F##_P(                                                  \
      const T* const* src, int srcRoiShift, const Qel32s* srcIndex, const T* const* src2,          \
      int src2RoiShift, int src2Stride0, T* const* dst, int dstRoiShift, int dstStride0, int size, \
      int count) {                                                                                 \
    return solveFront<Mva>("NCZSR", Single<MatP<const T>>{{src, srcRoiShift, size}}, srcIndex,     \
                           PointerArray<const T>{src2, src2RoiShift, src2Stride0, size},           \
                           PointerArray<T>{dst, dstRoiShift, dstStride0, size}, size, count);      \
  }                                                                                                \
  QELM_API QelStatus qelmLUBackSubst_mava_##F(                                                     \
      const T* src, int srcStride0, int srcStride1, int srcStride2, const Qel32s* srcIndex,        \
      const T* src2, int src2Stride0, int src2Stride2, T* dst, int dstStride0, int dstStride2,     \
      int size, int count) {                                                                       \
    return solveFront<Mava>("NCZS", StridedArray<const T>{src, srcStride0, srcStride1, srcStride2}, \
                            srcIndex, vecs(src2, src2Stride0, src2Stride2),                        \
                            vecs(dst, dstStride0, dstStride2), size, count);                       \
  }                                                                                                \
  QELM_API QelStatus qelmLUBackSubst_mava_##F##_L(                                                 \
      const T* const* src, int srcRoiShift, int srcStride1, int srcStride2,                        \
      const Qel32s* srcIndex, const T* const* src2, int src2RoiShift, int src2Stride2,             \
      T* const* dst, int dstRoiShift, int dstStride2, int size, int count) {                       \
    return solveFront<Mava>("NCZSR", ListArray<const T>{src, srcRoiShift, srcStride1, srcStride2}, \
                            srcIndex, vecsL(src2, src2RoiShift, src2Stride2),                      \
                            vecsL(dst, dstRoiShift, dstStride2), size, count);                     \
  }                                                                                                \
  QELM_API QelStatus qelmLUBackSubst_mava_##F##_P(                                                 \
      const T* const* src, int srcRoiShift, int srcStride0, const Qel32s* srcIndex,                \
      const T* const* src2, int src2RoiShift, int src2Stride0, T* const* dst, int dstRoiShift,     \
      int dstStride0, int size, int count) {                                                       \
    return solveFront<Mava>("NCZSR", PointerArray<const T>{src, srcRoiShift, srcStride0, size},    \
                            srcIndex, PointerArray<const T>{src2, src2RoiShift, src2Stride0, size}, \
                            PointerArray<T>{dst, dstRoiShift, dstStride0, size}, size, count);     \
  }

QEL_LU_BACKSUBST(Qel32f, 32f, true)
QEL_LU_BACKSUBST(Qel64f, 64f, false)
