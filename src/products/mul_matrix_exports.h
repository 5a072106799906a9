// The export line of a matrix-by-matrix product: one macro call names the
// export, its operands (m, t one matrix; ma, ta an array), the class of its
// destination (1 one matrix, n an array), type, form, and the table data:
// the square sizes of its contiguous and general kernels and its odd flags.
#pragma once

#include "../frame/export.h"
#include "mul_matrix.h"

// Parameters of a source operand by kind and form. In _L only the arrays are
// lists; a single operand keeps pointer and strides.
#define QEL_MUL_SRC_m_Std(T, s) const T* s, int s##Stride1, int s##Stride2, int s##Width, int s##Height
#define QEL_MUL_SRC_m_L QEL_MUL_SRC_m_Std
#define QEL_MUL_SRC_m_P(T, s) const T* const* s, int s##RoiShift, int s##Width, int s##Height
#define QEL_MUL_SRC_ma_Std(T, s) \
  const T* s, int s##Stride0, int s##Stride1, int s##Stride2, int s##Width, int s##Height
#define QEL_MUL_SRC_ma_L(T, s) \
  const T* const* s, int s##RoiShift, int s##Stride1, int s##Stride2, int s##Width, int s##Height
#define QEL_MUL_SRC_ma_P(T, s) const T* const* s, int s##RoiShift, int s##Stride0, int s##Width, int s##Height
#define QEL_MUL_SRC_t_Std QEL_MUL_SRC_m_Std
#define QEL_MUL_SRC_t_L QEL_MUL_SRC_m_L
#define QEL_MUL_SRC_t_P QEL_MUL_SRC_m_P
#define QEL_MUL_SRC_ta_Std QEL_MUL_SRC_ma_Std
#define QEL_MUL_SRC_ta_L QEL_MUL_SRC_ma_L
#define QEL_MUL_SRC_ta_P QEL_MUL_SRC_ma_P

// The view of a source operand; a _P list holds the stored rows of sWidth.
#define QEL_MUL_VIEW_m_Std(T, s) one(s, s##Stride1, s##Stride2)
#define QEL_MUL_VIEW_m_L QEL_MUL_VIEW_m_Std
#define QEL_MUL_VIEW_m_P(T, s) oneP(s, s##RoiShift, s##Width)
#define QEL_MUL_VIEW_ma_Std(T, s) array(s, s##Stride0, s##Stride1, s##Stride2)
#define QEL_MUL_VIEW_ma_L(T, s) list(s, s##RoiShift, s##Stride1, s##Stride2)
#define QEL_MUL_VIEW_ma_P(T, s) arrayP(s, s##RoiShift, s##Stride0, s##Width)
#define QEL_MUL_VIEW_t_Std(T, s) transposed(QEL_MUL_VIEW_m_Std(T, s))
#define QEL_MUL_VIEW_t_L(T, s) transposed(QEL_MUL_VIEW_m_L(T, s))
#define QEL_MUL_VIEW_t_P(T, s) transposed(QEL_MUL_VIEW_m_P(T, s))
#define QEL_MUL_VIEW_ta_Std(T, s) transposed(QEL_MUL_VIEW_ma_Std(T, s))
#define QEL_MUL_VIEW_ta_L(T, s) transposed(QEL_MUL_VIEW_ma_L(T, s))
#define QEL_MUL_VIEW_ta_P(T, s) transposed(QEL_MUL_VIEW_ma_P(T, s))

#define QEL_MUL_TRANS_m false
#define QEL_MUL_TRANS_ma false
#define QEL_MUL_TRANS_t true
#define QEL_MUL_TRANS_ta true

// The destination: one matrix or an array, M rows of N; its _P list has N a row.
#define QEL_MUL_DST_1_Std(T) T* dst, int dstStride1, int dstStride2
#define QEL_MUL_DST_1_P(T) T* const* dst, int dstRoiShift
#define QEL_MUL_DST_n_Std(T) T* dst, int dstStride0, int dstStride1, int dstStride2, int count
#define QEL_MUL_DST_n_L(T) T* const* dst, int dstRoiShift, int dstStride1, int dstStride2, int count
#define QEL_MUL_DST_n_P(T) T* const* dst, int dstRoiShift, int dstStride0, int count
#define QEL_MUL_DSTVIEW_1_Std(N) one(dst, dstStride1, dstStride2)
#define QEL_MUL_DSTVIEW_1_P(N) oneP(dst, dstRoiShift, N)
#define QEL_MUL_DSTVIEW_n_Std(N) array(dst, dstStride0, dstStride1, dstStride2)
#define QEL_MUL_DSTVIEW_n_L(N) list(dst, dstRoiShift, dstStride1, dstStride2)
#define QEL_MUL_DSTVIEW_n_P(N) arrayP(dst, dstRoiShift, dstStride0, N)
#define QEL_MUL_COUNT_1 1
#define QEL_MUL_COUNT_n count

#define QEL_MUL(name, K1, K2, DN, T, FORM, CONTIGUOUS, GENERAL, FLAGS)                               \
  QELM_API QelStatus name(QEL_MUL_SRC_##K1##_##FORM(T, src1), QEL_MUL_SRC_##K2##_##FORM(T, src2),  \
                          QEL_MUL_DST_##DN##_##FORM(T)) {                                          \
    using namespace qel::mul;                                                                      \
    const Dims dm = dimsOf<QEL_MUL_TRANS_##K1, QEL_MUL_TRANS_##K2>(src1Width, src1Height,          \
                                                                   src2Width, src2Height);         \
    return mulFront<T, Form::FORM, Form::FORM == Form::L && !((FLAGS) & kOwnGeneral)>(             \
        Line{CONTIGUOUS, GENERAL, FLAGS}, QEL_MUL_VIEW_##K1##_##FORM(T, src1),                     \
        QEL_MUL_VIEW_##K2##_##FORM(T, src2), QEL_MUL_DSTVIEW_##DN##_##FORM(dm.N), dm,              \
        QEL_MUL_COUNT_##DN);                                                                       \
  }
