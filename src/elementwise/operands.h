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
