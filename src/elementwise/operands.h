// Parameter lists and views of the element-wise exports, by operand kind and
// layout, so that one export line names its shape and nothing else. Kinds:
//   ARR  an array operand (ma, ta, va), ONE  a single object (m, t, v),
//   CON  a constant by value (c), CAR  an array of constants (ca).
// Layouts: S standard, L list of objects, P pointer per element.
// Reading: m (as stored) or t (transposed, rows of the stored matrix = width).
#pragma once

#include "../frame/views.h"

namespace qel {

template <class T>
StridedArray<T> arrayS(T* p, int s0, int s1, int s2) { return {p, s0, s1, s2}; }
template <class T>
ListArray<T> arrayL(T* const* p, int shift, int s1, int s2) { return {p, shift, s1, s2}; }
template <class T, bool CheckS0 = true>
PointerArray<T, CheckS0> arrayP(T* const* p, int shift, int s0, int rowLen) { return {p, shift, s0, rowLen}; }
template <class T>
Single<Mat<T>> single(T* p, int s1, int s2) { return {{p, s1, s2}}; }
template <class T>
Single<MatP<T>> singleP(T* const* p, int shift, int rowLen) { return {{p, shift, rowLen}}; }
template <class T>
Single<Const<T>> constant(T val) { return {{val}}; }
template <class T>
ConstArray<T> constArray(const T* p, int s0) { return {p, s0}; }
template <class T>
ConstList<T> constList(const T* const* p, int shift) { return {p, shift}; }

template <class T>
StridedArray<T> vectorArrayS(T* p, int s0, int s2) { return {p, s0, elemSize<T>, s2}; }
template <class T>
ListArray<T> vectorArrayL(T* const* p, int shift, int s2) { return {p, shift, elemSize<T>, s2}; }
template <class T>
Single<Mat<T>> vectorSingle(T* p, int s2) { return {{p, elemSize<T>, s2}}; }
template <class T>
PointerArray<T, false> arrayPUncheckedStride0(T* const* p, int shift, int s0, int rowLen) {
  return {p, shift, s0, rowLen};
}

template <class A>
TransArray<A> transposed(A a) { return {a}; }
template <class V>
Single<Trans<V>> transposed(Single<V> s) { return {{s.v}}; }

}  // namespace qel

// ---- matrices: parameters
#define QEL_P_ARR_S(T, x) const T *x, int x##Stride0, int x##Stride1, int x##Stride2
#define QEL_P_ARR_L(T, x) const T *const *x, int x##RoiShift, int x##Stride1, int x##Stride2
#define QEL_P_ARR_P(T, x) const T *const *x, int x##RoiShift, int x##Stride0
#define QEL_P_ONE_S(T, x) const T *x, int x##Stride1, int x##Stride2
#define QEL_P_ONE_L(T, x) QEL_P_ONE_S(T, x)
#define QEL_P_ONE_P(T, x) const T *const *x, int x##RoiShift
#define QEL_D_ARR_S(T) T *dst, int dstStride0, int dstStride1, int dstStride2
#define QEL_D_ARR_L(T) T *const *dst, int dstRoiShift, int dstStride1, int dstStride2
#define QEL_D_ARR_P(T) T *const *dst, int dstRoiShift, int dstStride0
#define QEL_D_ONE_S(T) T *dst, int dstStride1, int dstStride2
#define QEL_D_ONE_P(T) T *const *dst, int dstRoiShift

// ---- matrices: views (rowLen is the stored row length of a _P table)
#define QEL_V_ARR_S(x, rowLen) arrayS(x, x##Stride0, x##Stride1, x##Stride2)
#define QEL_V_ARR_L(x, rowLen) arrayL(x, x##RoiShift, x##Stride1, x##Stride2)
#define QEL_V_ARR_P(x, rowLen) arrayP(x, x##RoiShift, x##Stride0, rowLen)
#define QEL_V_ONE_S(x, rowLen) single(x, x##Stride1, x##Stride2)
#define QEL_V_ONE_L(x, rowLen) QEL_V_ONE_S(x, rowLen)
#define QEL_V_ONE_P(x, rowLen) singleP(x, x##RoiShift, rowLen)
#define QEL_READ_m(view) view
#define QEL_READ_t(view) transposed(view)
#define QEL_ROWLEN_m width
#define QEL_ROWLEN_t height

// ---- vectors: a vector is row 0 of a matrix view. Its row distance is never
// used; it is set to the element size so that the matrix checks pass it by.
#define QEL_P_VARR_S(T, x) const T *x, int x##Stride0, int x##Stride2
#define QEL_P_VARR_L(T, x) const T *const *x, int x##RoiShift, int x##Stride2
#define QEL_P_VARR_P(T, x) const T *const *x, int x##RoiShift, int x##Stride0
#define QEL_P_VARR_Pns(T, x) QEL_P_VARR_P(T, x)
#define QEL_P_VONE_S(T, x) const T *x, int x##Stride2
#define QEL_P_VONE_L(T, x) QEL_P_VONE_S(T, x)
#define QEL_P_VONE_P(T, x) const T *const *x, int x##RoiShift
#define QEL_P_CON_S(T, x) T x
#define QEL_P_CON_L(T, x) T x
#define QEL_P_CON_P(T, x) T x
#define QEL_P_CAR_S(T, x) const T *x, int x##Stride0
#define QEL_P_CAR_L(T, x) const T *const *x, int x##RoiShift
#define QEL_P_CAR_P(T, x) QEL_P_CAR_S(T, x)
#define QEL_D_VARR_S(T) T *dst, int dstStride0, int dstStride2
#define QEL_D_VARR_L(T) T *const *dst, int dstRoiShift, int dstStride2
#define QEL_D_VARR_P(T) T *const *dst, int dstRoiShift, int dstStride0
#define QEL_D_VONE_S(T) T *dst, int dstStride2
#define QEL_D_VONE_P(T) T *const *dst, int dstRoiShift

#define QEL_V_VARR_S(x, len) vectorArrayS(x, x##Stride0, x##Stride2)
#define QEL_V_VARR_L(x, len) vectorArrayL(x, x##RoiShift, x##Stride2)
#define QEL_V_VARR_P(x, len) arrayP(x, x##RoiShift, x##Stride0, len)
// The one _P array whose object distance goes unchecked.
#define QEL_V_VARR_Pns(x, len) arrayPUncheckedStride0(x, x##RoiShift, x##Stride0, len)
#define QEL_V_VONE_S(x, len) vectorSingle(x, x##Stride2)
#define QEL_V_VONE_L(x, len) QEL_V_VONE_S(x, len)
#define QEL_V_VONE_P(x, len) singleP(x, x##RoiShift, len)
#define QEL_V_CON_S(x, len) constant(x)
#define QEL_V_CON_L(x, len) constant(x)
#define QEL_V_CON_P(x, len) constant(x)
#define QEL_V_CAR_S(x, len) constArray(x, x##Stride0)
#define QEL_V_CAR_L(x, len) constList(x, x##RoiShift)
#define QEL_V_CAR_P(x, len) constArray(x, x##Stride0)
#define QEL_P_CAR_Pns(T, x) QEL_P_CAR_P(T, x)
#define QEL_V_CAR_Pns(x, len) QEL_V_CAR_P(x, len)
