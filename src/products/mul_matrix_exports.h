// The export line of a matrix-by-matrix product: one macro call names the
// export, its operands (m, t one matrix; ma, ta an array), its destination
// (m one matrix, ma an array), type, layout, and the table data:
// the square sizes of its contiguous and general kernels and its odd flags.
#pragma once

#include "../frame/export.h"
#include "../frame/operands.h"
#include "mul_matrix.h"

// A source operand is its kind's parameters and views (m, t one matrix; ma, ta
// an array) followed by its stored sizes; a _P list holds the stored rows of
// sWidth entries. The destination is one matrix (m) or an array (ma) of M rows
// of N elements, followed by `count` when it is an array.
#define QEL_MUL_COUNT_ARG_m
#define QEL_MUL_COUNT_ARG_ma , int count
#define QEL_MUL_COUNT_m 1
#define QEL_MUL_COUNT_ma count
#define QEL_MUL_TRANS_m false
#define QEL_MUL_TRANS_ma false
#define QEL_MUL_TRANS_t true
#define QEL_MUL_TRANS_ta true

#define QEL_MUL(name, K1, K2, DK, T, LAY, CONTIGUOUS, GENERAL, FLAGS)                                  \
  QELM_API QelStatus name(QEL_ARGS_##K1##_##LAY(const T, src1), int src1Width, int src1Height,      \
                          QEL_ARGS_##K2##_##LAY(const T, src2), int src2Width, int src2Height,      \
                          QEL_ARGS_##DK##_##LAY(T, dst) QEL_MUL_COUNT_ARG_##DK) {                  \
    using namespace qel::mul;                                                                      \
    const Dims dm = dimsOf<QEL_MUL_TRANS_##K1, QEL_MUL_TRANS_##K2>(src1Width, src1Height,          \
                                                                   src2Width, src2Height);         \
    return mulFront<T, qel::Layout::LAY, qel::Layout::LAY == qel::Layout::L && !((FLAGS) & kOwnGeneral)>( \
        Line{CONTIGUOUS, GENERAL, FLAGS}, QEL_VIEW_##K1##_##LAY(src1, src1Width),                  \
        QEL_VIEW_##K2##_##LAY(src2, src2Width), QEL_VIEW_##DK##_##LAY(dst, dm.N), dm,              \
        QEL_MUL_COUNT_##DK);                                                                       \
  }
