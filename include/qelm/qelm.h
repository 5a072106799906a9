/* qelm: matrix and vector primitives for many small objects at once.
 *
 * Every operation exists for single objects and for arrays of `count` of them,
 * in Qel32f and Qel64f, and in three memory descriptions:
 *   standard  pointer and byte strides (stride0 between objects, stride1 between
 *             rows, stride2 between neighbours in a row);
 *   _L        an array of `count` object pointers, each plus a byte roi shift is a
 *             standard object;
 *   _P        an array of element pointers, one per element of an object in row
 *             order; object n lies at each pointer + roi shift + n * stride0.
 * All distances are bytes, formed in 32-bit signed arithmetic. Every operation
 * returns a QelStatus; a failed argument check leaves every output untouched. */
#ifndef QELM_QELM_H
#define QELM_QELM_H

#include "qelmtypes.h"

#ifdef __cplusplus
extern "C" {
#endif

const QelLibraryVersion* qelmGetLibVersion(void);

/* ---- Add and Sub over matrices: dst = A + B, dst = A - B element by element.
 * width and height are those of the result; a transposed operand (t, ta) is
 * stored with width rows and height columns. */

QelStatus qelmAdd_mam_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel32f* src2, int src2Stride1, int src2Stride2,
                          Qel32f* dst, int dstStride0, int dstStride1, int dstStride2,
                          int width, int height, int count);
QelStatus qelmAdd_mam_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2,
                            const Qel32f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2,
                            int width, int height, int count);
QelStatus qelmAdd_mam_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0,
                            int width, int height, int count);
QelStatus qelmAdd_mam_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel64f* src2, int src2Stride1, int src2Stride2,
                          Qel64f* dst, int dstStride0, int dstStride1, int dstStride2,
                          int width, int height, int count);
QelStatus qelmAdd_mam_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2,
                            const Qel64f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2,
                            int width, int height, int count);
QelStatus qelmAdd_mam_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0,
                            int width, int height, int count);

/* ---- Add and Sub over vectors and constants. */

/* ---- Mul over two matrices: dst = op1(A) * op2(B). */

/* ---- LUDecomp and LUBackSubst. */

#ifdef __cplusplus
}
#endif

#endif
