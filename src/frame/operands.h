// The operand vocabulary of every export: for an operand kind in a layout, its
// C parameters and the view it becomes. Kinds are the shape tokens of the
// export names:
//   m  one matrix          ma  array of matrices
//   t  one matrix, read    ta  array of matrices, each read transposed
//      transposed
//   v  one vector          va  array of vectors
//   c  constant by value   ca  array of constants
//   r  one result element per object, a plain packed array in every layout
// Layouts: S standard, L list of objects, P pointer per element; Pns is the _P
// array whose object distance goes unchecked (one export has it).
//
//   QEL_ARGS_<kind>_<layout>(T, x)     the parameters of operand x, elements T
//                                      (const Qel32f for a source, Qel32f for dst)
//   QEL_VIEW_<kind>_<layout>(x, row)   its view; `row` is the stored row length
//                                      a _P table is laid out by (the length of
//                                      a vector), unused elsewhere
//
// A family appends what its operands carry beyond this (sizes such as
// src1Width, src2Len) in its own export macro. In _L only arrays are lists: a
// single operand keeps pointer and strides. A vector is row 0 of a matrix view
// whose row distance is the element size, so the matrix checks pass it by.
#pragma once

#include "views.h"

namespace qel {

enum class Layout { S, L, P };

template <class T>
StridedArray<T> arrayS(T* p, int s0, int s1, int s2) { return {p, s0, s1, s2}; }
template <class T>
ListArray<T> arrayL(T* const* p, int shift, int s1, int s2) { return {p, shift, s1, s2}; }
template <class T>
PointerArray<T> arrayP(T* const* p, int shift, int s0, int rowLen) { return {p, shift, s0, rowLen}; }
template <class T>
PointerArray<T, false> arrayPUncheckedStride0(T* const* p, int shift, int s0, int rowLen) {
  return {p, shift, s0, rowLen};
}
template <class T>
Single<Mat<T>> single(T* p, int s1, int s2) { return {{p, s1, s2}}; }
template <class T>
Single<MatP<T>> singleP(T* const* p, int shift, int rowLen) { return {{p, shift, rowLen}}; }

template <class T>
StridedArray<T> vectorArrayS(T* p, int s0, int s2) { return {p, s0, elemSize<T>, s2}; }
template <class T>
ListArray<T> vectorArrayL(T* const* p, int shift, int s2) { return {p, shift, elemSize<T>, s2}; }
template <class T>
Single<Mat<T>> vectorSingle(T* p, int s2) { return {{p, elemSize<T>, s2}}; }

template <class T>
StridedArray<T> results(T* p) { return {p, elemSize<T>, elemSize<T>, elemSize<T>}; }

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

// ---- matrices
#define QEL_ARGS_m_S(T, x) T *x, int x##Stride1, int x##Stride2
#define QEL_ARGS_m_L(T, x) QEL_ARGS_m_S(T, x)
#define QEL_ARGS_m_P(T, x) T *const *x, int x##RoiShift
#define QEL_ARGS_ma_S(T, x) T *x, int x##Stride0, int x##Stride1, int x##Stride2
#define QEL_ARGS_ma_L(T, x) T *const *x, int x##RoiShift, int x##Stride1, int x##Stride2
#define QEL_ARGS_ma_P(T, x) T *const *x, int x##RoiShift, int x##Stride0
#define QEL_ARGS_t_S QEL_ARGS_m_S
#define QEL_ARGS_t_L QEL_ARGS_m_L
#define QEL_ARGS_t_P QEL_ARGS_m_P
#define QEL_ARGS_ta_S QEL_ARGS_ma_S
#define QEL_ARGS_ta_L QEL_ARGS_ma_L
#define QEL_ARGS_ta_P QEL_ARGS_ma_P

#define QEL_VIEW_m_S(x, row) ::qel::single(x, x##Stride1, x##Stride2)
#define QEL_VIEW_m_L(x, row) QEL_VIEW_m_S(x, row)
#define QEL_VIEW_m_P(x, row) ::qel::singleP(x, x##RoiShift, row)
#define QEL_VIEW_ma_S(x, row) ::qel::arrayS(x, x##Stride0, x##Stride1, x##Stride2)
#define QEL_VIEW_ma_L(x, row) ::qel::arrayL(x, x##RoiShift, x##Stride1, x##Stride2)
#define QEL_VIEW_ma_P(x, row) ::qel::arrayP(x, x##RoiShift, x##Stride0, row)
#define QEL_VIEW_t_S(x, row) ::qel::transposed(QEL_VIEW_m_S(x, row))
#define QEL_VIEW_t_L(x, row) ::qel::transposed(QEL_VIEW_m_L(x, row))
#define QEL_VIEW_t_P(x, row) ::qel::transposed(QEL_VIEW_m_P(x, row))
#define QEL_VIEW_ta_S(x, row) ::qel::transposed(QEL_VIEW_ma_S(x, row))
#define QEL_VIEW_ta_L(x, row) ::qel::transposed(QEL_VIEW_ma_L(x, row))
#define QEL_VIEW_ta_P(x, row) ::qel::transposed(QEL_VIEW_ma_P(x, row))

// ---- vectors
#define QEL_ARGS_v_S(T, x) T *x, int x##Stride2
#define QEL_ARGS_v_L(T, x) QEL_ARGS_v_S(T, x)
#define QEL_ARGS_v_P(T, x) T *const *x, int x##RoiShift
#define QEL_ARGS_va_S(T, x) T *x, int x##Stride0, int x##Stride2
#define QEL_ARGS_va_L(T, x) T *const *x, int x##RoiShift, int x##Stride2
#define QEL_ARGS_va_P(T, x) T *const *x, int x##RoiShift, int x##Stride0
#define QEL_ARGS_va_Pns QEL_ARGS_va_P

#define QEL_VIEW_v_S(x, len) ::qel::vectorSingle(x, x##Stride2)
#define QEL_VIEW_v_L(x, len) QEL_VIEW_v_S(x, len)
#define QEL_VIEW_v_P(x, len) ::qel::singleP(x, x##RoiShift, len)
#define QEL_VIEW_va_S(x, len) ::qel::vectorArrayS(x, x##Stride0, x##Stride2)
#define QEL_VIEW_va_L(x, len) ::qel::vectorArrayL(x, x##RoiShift, x##Stride2)
#define QEL_VIEW_va_P(x, len) ::qel::arrayP(x, x##RoiShift, x##Stride0, len)
#define QEL_VIEW_va_Pns(x, len) ::qel::arrayPUncheckedStride0(x, x##RoiShift, x##Stride0, len)

// ---- constants: a _P array of constants stays a plain pointer with a stride
#define QEL_ARGS_c_S(T, x) T x
#define QEL_ARGS_c_L(T, x) T x
#define QEL_ARGS_c_P(T, x) T x
#define QEL_ARGS_ca_S(T, x) T *x, int x##Stride0
#define QEL_ARGS_ca_L(T, x) T *const *x, int x##RoiShift
#define QEL_ARGS_ca_P(T, x) QEL_ARGS_ca_S(T, x)
#define QEL_ARGS_ca_Pns QEL_ARGS_ca_P

#define QEL_VIEW_c_S(x, len) ::qel::constant(x)
#define QEL_VIEW_c_L(x, len) ::qel::constant(x)
#define QEL_VIEW_c_P(x, len) ::qel::constant(x)
#define QEL_VIEW_ca_S(x, len) ::qel::constArray(x, x##Stride0)
#define QEL_VIEW_ca_L(x, len) ::qel::constList(x, x##RoiShift)
#define QEL_VIEW_ca_P(x, len) QEL_VIEW_ca_S(x, len)
#define QEL_VIEW_ca_Pns QEL_VIEW_ca_P

// ---- one result per object: element n of a packed array, whatever the layout
#define QEL_ARGS_r_S(T, x) T *x
#define QEL_ARGS_r_L QEL_ARGS_r_S
#define QEL_ARGS_r_P QEL_ARGS_r_S
#define QEL_VIEW_r_S(x, len) ::qel::results(x)
#define QEL_VIEW_r_L QEL_VIEW_r_S
#define QEL_VIEW_r_P QEL_VIEW_r_S
