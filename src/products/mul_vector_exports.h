// The export line of a matrix-by-vector product: the export, its matrix (m, t
// one matrix; ma, ta an array), its vector (v one, va an array), its result (v
// or va), type, layout, and the sums of its contiguous kernel's square forms.
#pragma once

#include "../frame/export.h"
#include "../frame/operands.h"
#include "mul_matrix_exports.h"
#include "mul_vector.h"

#define QEL_MULV_COUNT_ARG_v
#define QEL_MULV_COUNT_ARG_va , int count
#define QEL_MULV_COUNT_v 1
#define QEL_MULV_COUNT_va count

#define QEL_MULV(name, KA, KX, KD, T, LAY, SUMS)                                                       \
  QELM_API QelStatus name(QEL_ARGS_##KA##_##LAY(const T, src1), int src1Width, int src1Height,      \
                          QEL_ARGS_##KX##_##LAY(const T, src2), int src2Len,                        \
                          QEL_ARGS_##KD##_##LAY(T, dst) QEL_MULV_COUNT_ARG_##KD) {                 \
    using namespace qel::mul;                                                                      \
    const VecDims dm = vecDimsOf<QEL_MUL_TRANS_##KA>(src1Width, src1Height, src2Len);              \
    return mulVecFront<T, qel::Layout::LAY, Sums::SUMS>(QEL_VIEW_##KA##_##LAY(src1, src1Width),    \
                                                        QEL_VIEW_##KX##_##LAY(src2, src2Len),      \
                                                        QEL_VIEW_##KD##_##LAY(dst, dm.M), dm,      \
                                                        QEL_MULV_COUNT_##KD);                      \
  }
