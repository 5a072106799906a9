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

QelStatus qelmAdd_mm_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                         int src2Stride1, int src2Stride2, Qel32f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmAdd_mm_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmAdd_mm_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                         int src2Stride1, int src2Stride2, Qel64f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmAdd_mm_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmAdd_tm_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                         int src2Stride1, int src2Stride2, Qel32f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmAdd_tm_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmAdd_tm_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                         int src2Stride1, int src2Stride2, Qel64f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmAdd_tm_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmAdd_tt_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                         int src2Stride1, int src2Stride2, Qel32f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmAdd_tt_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmAdd_tt_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                         int src2Stride1, int src2Stride2, Qel64f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmAdd_tt_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmAdd_mam_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmAdd_mam_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel32f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmAdd_mam_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmAdd_mam_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmAdd_mam_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel64f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmAdd_mam_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmAdd_mat_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmAdd_mat_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel32f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmAdd_mat_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmAdd_mat_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmAdd_mat_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel64f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmAdd_mat_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmAdd_tam_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmAdd_tam_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel32f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmAdd_tam_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmAdd_tam_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmAdd_tam_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel64f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmAdd_tam_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmAdd_tat_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmAdd_tat_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel32f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmAdd_tat_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmAdd_tat_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmAdd_tat_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel64f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmAdd_tat_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmAdd_mama_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmAdd_mama_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel32f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmAdd_mama_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmAdd_mama_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmAdd_mama_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel64f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmAdd_mama_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmAdd_tama_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmAdd_tama_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel32f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmAdd_tama_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmAdd_tama_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmAdd_tama_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel64f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmAdd_tama_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmAdd_tata_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmAdd_tata_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel32f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmAdd_tata_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmAdd_tata_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmAdd_tata_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel64f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmAdd_tata_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmSub_mm_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                         int src2Stride1, int src2Stride2, Qel32f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmSub_mm_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmSub_mm_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                         int src2Stride1, int src2Stride2, Qel64f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmSub_mm_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmSub_mt_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                         int src2Stride1, int src2Stride2, Qel32f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmSub_mt_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmSub_mt_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                         int src2Stride1, int src2Stride2, Qel64f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmSub_mt_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmSub_tm_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                         int src2Stride1, int src2Stride2, Qel32f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmSub_tm_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmSub_tm_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                         int src2Stride1, int src2Stride2, Qel64f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmSub_tm_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmSub_tt_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                         int src2Stride1, int src2Stride2, Qel32f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmSub_tt_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmSub_tt_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                         int src2Stride1, int src2Stride2, Qel64f* dst, int dstStride1,
                         int dstStride2, int width, int height);
QelStatus qelmSub_tt_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int width,
                           int height);
QelStatus qelmSub_mam_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_mam_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel32f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmSub_mam_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_mam_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_mam_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel64f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmSub_mam_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_mat_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_mat_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel32f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmSub_mat_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_mat_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_mat_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel64f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmSub_mat_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_tam_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_tam_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel32f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmSub_tam_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_tam_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_tam_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel64f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmSub_tam_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_tat_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_tat_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel32f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmSub_tat_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_tat_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_tat_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                            int src1Stride2, const Qel64f* src2, int src2Stride1, int src2Stride2,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                            int dstStride2, int width, int height, int count);
QelStatus qelmSub_tat_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_mma_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                          int src2Stride0, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_mma_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1,
                            int src2Stride2, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmSub_mma_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                            int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_mma_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                          int src2Stride0, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_mma_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1,
                            int src2Stride2, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmSub_mma_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                            int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_mta_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                          int src2Stride0, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_mta_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1,
                            int src2Stride2, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmSub_mta_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                            int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_mta_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                          int src2Stride0, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_mta_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1,
                            int src2Stride2, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmSub_mta_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                            int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_tma_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                          int src2Stride0, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_tma_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1,
                            int src2Stride2, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmSub_tma_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                            int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_tma_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                          int src2Stride0, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_tma_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1,
                            int src2Stride2, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmSub_tma_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                            int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_tta_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                          int src2Stride0, int src2Stride1, int src2Stride2, Qel32f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_tta_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1,
                            int src2Stride2, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmSub_tta_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                            int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_tta_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, const Qel64f* src2,
                          int src2Stride0, int src2Stride1, int src2Stride2, Qel64f* dst,
                          int dstStride0, int dstStride1, int dstStride2, int width, int height,
                          int count);
QelStatus qelmSub_tta_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1,
                            int src2Stride2, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmSub_tta_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                            int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int width, int height, int count);
QelStatus qelmSub_mama_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmSub_mama_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel32f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmSub_mama_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmSub_mama_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmSub_mama_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel64f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmSub_mama_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmSub_mata_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmSub_mata_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel32f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmSub_mata_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmSub_mata_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmSub_mata_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel64f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmSub_mata_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmSub_tama_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmSub_tama_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel32f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmSub_tama_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmSub_tama_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmSub_tama_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel64f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmSub_tama_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmSub_tata_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmSub_tata_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel32f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmSub_tata_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmSub_tata_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                           int height, int count);
QelStatus qelmSub_tata_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1,
                             int src1Stride2, QEL_SRC_LIST(Qel64f) src2, int src2RoiShift,
                             int src2Stride1, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmSub_tata_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);

/* ---- Add and Sub over vectors and constants. */
/* A constant is passed by value after the vector it meets, also where the shape
 * names it first: Sub_cv takes the arguments of Sub_vc and forms val - src. */
QelStatus qelmAdd_vv_32f(const Qel32f* src1, int src1Stride2, const Qel32f* src2, int src2Stride2,
                         Qel32f* dst, int dstStride2, int len);
QelStatus qelmAdd_vv_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int len);
QelStatus qelmAdd_vv_64f(const Qel64f* src1, int src1Stride2, const Qel64f* src2, int src2Stride2,
                         Qel64f* dst, int dstStride2, int len);
QelStatus qelmAdd_vv_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int len);
QelStatus qelmAdd_vc_32f(const Qel32f* src, int srcStride2, Qel32f val, Qel32f* dst,
                         int dstStride2, int len);
QelStatus qelmAdd_vc_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f val,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int len);
QelStatus qelmAdd_vc_64f(const Qel64f* src, int srcStride2, Qel64f val, Qel64f* dst,
                         int dstStride2, int len);
QelStatus qelmAdd_vc_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f val,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int len);
QelStatus qelmAdd_vav_32f(const Qel32f* src1, int src1Stride0, int src1Stride2, const Qel32f* src2,
                          int src2Stride2, Qel32f* dst, int dstStride0, int dstStride2, int len,
                          int count);
QelStatus qelmAdd_vav_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2,
                            const Qel32f* src2, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmAdd_vav_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmAdd_vav_64f(const Qel64f* src1, int src1Stride0, int src1Stride2, const Qel64f* src2,
                          int src2Stride2, Qel64f* dst, int dstStride0, int dstStride2, int len,
                          int count);
QelStatus qelmAdd_vav_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2,
                            const Qel64f* src2, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmAdd_vav_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmAdd_vac_32f(const Qel32f* src, int srcStride0, int srcStride2, Qel32f val,
                          Qel32f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmAdd_vac_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2, Qel32f val,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int len,
                            int count);
QelStatus qelmAdd_vac_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f val,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len,
                            int count);
QelStatus qelmAdd_vac_64f(const Qel64f* src, int srcStride0, int srcStride2, Qel64f val,
                          Qel64f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmAdd_vac_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2, Qel64f val,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int len,
                            int count);
QelStatus qelmAdd_vac_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f val,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len,
                            int count);
QelStatus qelmAdd_vca_32f(const Qel32f* src, int srcStride2, const Qel32f* val, int valStride0,
                          Qel32f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmAdd_vca_32f_L(const Qel32f* src, int srcStride2, QEL_SRC_LIST(Qel32f) val,
                            int valRoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride2, int len, int count);
QelStatus qelmAdd_vca_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, const Qel32f* val,
                            int valStride0, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride0, int len, int count);
QelStatus qelmAdd_vca_64f(const Qel64f* src, int srcStride2, const Qel64f* val, int valStride0,
                          Qel64f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmAdd_vca_64f_L(const Qel64f* src, int srcStride2, QEL_SRC_LIST(Qel64f) val,
                            int valRoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride2, int len, int count);
QelStatus qelmAdd_vca_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, const Qel64f* val,
                            int valStride0, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride0, int len, int count);
QelStatus qelmAdd_vava_32f(const Qel32f* src1, int src1Stride0, int src1Stride2,
                           const Qel32f* src2, int src2Stride0, int src2Stride2, Qel32f* dst,
                           int dstStride0, int dstStride2, int len, int count);
QelStatus qelmAdd_vava_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int len,
                             int count);
QelStatus qelmAdd_vava_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len,
                             int count);
QelStatus qelmAdd_vava_64f(const Qel64f* src1, int src1Stride0, int src1Stride2,
                           const Qel64f* src2, int src2Stride0, int src2Stride2, Qel64f* dst,
                           int dstStride0, int dstStride2, int len, int count);
QelStatus qelmAdd_vava_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int len,
                             int count);
QelStatus qelmAdd_vava_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len,
                             int count);
QelStatus qelmAdd_vaca_32f(const Qel32f* src, int srcStride0, int srcStride2, const Qel32f* val,
                           int valStride0, Qel32f* dst, int dstStride0, int dstStride2, int len,
                           int count);
QelStatus qelmAdd_vaca_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2,
                             QEL_SRC_LIST(Qel32f) val, int valRoiShift, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmAdd_vaca_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                             const Qel32f* val, int valStride0, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmAdd_vaca_64f(const Qel64f* src, int srcStride0, int srcStride2, const Qel64f* val,
                           int valStride0, Qel64f* dst, int dstStride0, int dstStride2, int len,
                           int count);
QelStatus qelmAdd_vaca_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2,
                             QEL_SRC_LIST(Qel64f) val, int valRoiShift, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmAdd_vaca_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                             const Qel64f* val, int valStride0, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSub_vv_32f(const Qel32f* src1, int src1Stride2, const Qel32f* src2, int src2Stride2,
                         Qel32f* dst, int dstStride2, int len);
QelStatus qelmSub_vv_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int len);
QelStatus qelmSub_vv_64f(const Qel64f* src1, int src1Stride2, const Qel64f* src2, int src2Stride2,
                         Qel64f* dst, int dstStride2, int len);
QelStatus qelmSub_vv_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                           int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int len);
QelStatus qelmSub_vc_32f(const Qel32f* src, int srcStride2, Qel32f val, Qel32f* dst,
                         int dstStride2, int len);
QelStatus qelmSub_vc_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f val,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int len);
QelStatus qelmSub_vc_64f(const Qel64f* src, int srcStride2, Qel64f val, Qel64f* dst,
                         int dstStride2, int len);
QelStatus qelmSub_vc_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f val,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int len);
QelStatus qelmSub_cv_32f(const Qel32f* src, int srcStride2, Qel32f val, Qel32f* dst,
                         int dstStride2, int len);
QelStatus qelmSub_cv_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f val,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int len);
QelStatus qelmSub_cv_64f(const Qel64f* src, int srcStride2, Qel64f val, Qel64f* dst,
                         int dstStride2, int len);
QelStatus qelmSub_cv_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f val,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int len);
QelStatus qelmSub_vav_32f(const Qel32f* src1, int src1Stride0, int src1Stride2, const Qel32f* src2,
                          int src2Stride2, Qel32f* dst, int dstStride0, int dstStride2, int len,
                          int count);
QelStatus qelmSub_vav_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2,
                            const Qel32f* src2, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmSub_vav_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSub_vav_64f(const Qel64f* src1, int src1Stride0, int src1Stride2, const Qel64f* src2,
                          int src2Stride2, Qel64f* dst, int dstStride0, int dstStride2, int len,
                          int count);
QelStatus qelmSub_vav_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2,
                            const Qel64f* src2, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmSub_vav_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSub_vva_32f(const Qel32f* src1, int src1Stride2, const Qel32f* src2, int src2Stride0,
                          int src2Stride2, Qel32f* dst, int dstStride0, int dstStride2, int len,
                          int count);
QelStatus qelmSub_vva_32f_L(const Qel32f* src1, int src1Stride2, QEL_SRC_LIST(Qel32f) src2,
                            int src2RoiShift, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmSub_vva_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                            int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel32f) dst,
                            int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSub_vva_64f(const Qel64f* src1, int src1Stride2, const Qel64f* src2, int src2Stride0,
                          int src2Stride2, Qel64f* dst, int dstStride0, int dstStride2, int len,
                          int count);
QelStatus qelmSub_vva_64f_L(const Qel64f* src1, int src1Stride2, QEL_SRC_LIST(Qel64f) src2,
                            int src2RoiShift, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmSub_vva_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                            int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel64f) dst,
                            int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSub_vac_32f(const Qel32f* src, int srcStride0, int srcStride2, Qel32f val,
                          Qel32f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmSub_vac_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2, Qel32f val,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int len,
                            int count);
QelStatus qelmSub_vac_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f val,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len,
                            int count);
QelStatus qelmSub_vac_64f(const Qel64f* src, int srcStride0, int srcStride2, Qel64f val,
                          Qel64f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmSub_vac_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2, Qel64f val,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int len,
                            int count);
QelStatus qelmSub_vac_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f val,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len,
                            int count);
QelStatus qelmSub_vca_32f(const Qel32f* src, int srcStride2, const Qel32f* val, int valStride0,
                          Qel32f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmSub_vca_32f_L(const Qel32f* src, int srcStride2, QEL_SRC_LIST(Qel32f) val,
                            int valRoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride2, int len, int count);
QelStatus qelmSub_vca_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, const Qel32f* val,
                            int valStride0, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride0, int len, int count);
QelStatus qelmSub_vca_64f(const Qel64f* src, int srcStride2, const Qel64f* val, int valStride0,
                          Qel64f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmSub_vca_64f_L(const Qel64f* src, int srcStride2, QEL_SRC_LIST(Qel64f) val,
                            int valRoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride2, int len, int count);
QelStatus qelmSub_vca_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, const Qel64f* val,
                            int valStride0, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride0, int len, int count);
QelStatus qelmSub_vava_32f(const Qel32f* src1, int src1Stride0, int src1Stride2,
                           const Qel32f* src2, int src2Stride0, int src2Stride2, Qel32f* dst,
                           int dstStride0, int dstStride2, int len, int count);
QelStatus qelmSub_vava_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int len,
                             int count);
QelStatus qelmSub_vava_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len,
                             int count);
QelStatus qelmSub_vava_64f(const Qel64f* src1, int src1Stride0, int src1Stride2,
                           const Qel64f* src2, int src2Stride0, int src2Stride2, Qel64f* dst,
                           int dstStride0, int dstStride2, int len, int count);
QelStatus qelmSub_vava_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int len,
                             int count);
QelStatus qelmSub_vava_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len,
                             int count);
QelStatus qelmSub_vaca_32f(const Qel32f* src, int srcStride0, int srcStride2, const Qel32f* val,
                           int valStride0, Qel32f* dst, int dstStride0, int dstStride2, int len,
                           int count);
QelStatus qelmSub_vaca_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2,
                             QEL_SRC_LIST(Qel32f) val, int valRoiShift, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmSub_vaca_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                             const Qel32f* val, int valStride0, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSub_vaca_64f(const Qel64f* src, int srcStride0, int srcStride2, const Qel64f* val,
                           int valStride0, Qel64f* dst, int dstStride0, int dstStride2, int len,
                           int count);
QelStatus qelmSub_vaca_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2,
                             QEL_SRC_LIST(Qel64f) val, int valRoiShift, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmSub_vaca_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                             const Qel64f* val, int valStride0, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSub_cav_32f(const Qel32f* src, int srcStride2, const Qel32f* val, int valStride0,
                          Qel32f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmSub_cav_32f_L(const Qel32f* src, int srcStride2, QEL_SRC_LIST(Qel32f) val,
                            int valRoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride2, int len, int count);
QelStatus qelmSub_cav_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, const Qel32f* val,
                            int valStride0, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride0, int len, int count);
QelStatus qelmSub_cav_64f(const Qel64f* src, int srcStride2, const Qel64f* val, int valStride0,
                          Qel64f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmSub_cav_64f_L(const Qel64f* src, int srcStride2, QEL_SRC_LIST(Qel64f) val,
                            int valRoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride2, int len, int count);
QelStatus qelmSub_cav_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, const Qel64f* val,
                            int valStride0, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride0, int len, int count);
QelStatus qelmSub_cva_32f(const Qel32f* src, int srcStride0, int srcStride2, Qel32f val,
                          Qel32f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmSub_cva_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2, Qel32f val,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int len,
                            int count);
QelStatus qelmSub_cva_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f val,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len,
                            int count);
QelStatus qelmSub_cva_64f(const Qel64f* src, int srcStride0, int srcStride2, Qel64f val,
                          Qel64f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmSub_cva_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2, Qel64f val,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int len,
                            int count);
QelStatus qelmSub_cva_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f val,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len,
                            int count);
QelStatus qelmSub_cava_32f(const Qel32f* src, int srcStride0, int srcStride2, const Qel32f* val,
                           int valStride0, Qel32f* dst, int dstStride0, int dstStride2, int len,
                           int count);
QelStatus qelmSub_cava_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2,
                             QEL_SRC_LIST(Qel32f) val, int valRoiShift, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmSub_cava_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                             const Qel32f* val, int valStride0, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSub_cava_64f(const Qel64f* src, int srcStride0, int srcStride2, const Qel64f* val,
                           int valStride0, Qel64f* dst, int dstStride0, int dstStride2, int len,
                           int count);
QelStatus qelmSub_cava_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2,
                             QEL_SRC_LIST(Qel64f) val, int valRoiShift, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmSub_cava_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                             const Qel64f* val, int valStride0, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride0, int len, int count);


/* ---- Mul over two matrices: dst = op1(A) * op2(B). */
/* Every operand here is sized as stored, unlike a transposed operand of Add and
 * Sub: src1Width and src1Height describe src1 as it lies in memory, transposed
 * (t, ta) or not.
 * op1 has M rows and K columns, op2 K rows and N columns, and dst holds M rows
 * of N elements; its _P list has M x N entries, row by row. Inner products may
 * round differently by size and layout: square sizes 3 to 6 add from the left,
 * longer contiguous rows add in split blocks of eight. */

QelStatus qelmMul_mm_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                         Qel32f* dst, int dstStride1, int dstStride2);
QelStatus qelmMul_mm_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Width, int src2Height,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift);
QelStatus qelmMul_mt_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                         Qel32f* dst, int dstStride1, int dstStride2);
QelStatus qelmMul_mt_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Width, int src2Height,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift);
QelStatus qelmMul_tm_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                         Qel32f* dst, int dstStride1, int dstStride2);
QelStatus qelmMul_tm_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Width, int src2Height,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift);
QelStatus qelmMul_tt_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                         Qel32f* dst, int dstStride1, int dstStride2);
QelStatus qelmMul_tt_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Width, int src2Height,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift);
QelStatus qelmMul_mam_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mam_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mam_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mat_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mat_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mat_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tam_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tam_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tam_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tat_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tat_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel32f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tat_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mma_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mma_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mma_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mta_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mta_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mta_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tma_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tma_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tma_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tta_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tta_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tta_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mama_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mama_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mama_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mata_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mata_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mata_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tama_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tama_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tama_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tata_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel32f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                           Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tata_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tata_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mm_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                         Qel64f* dst, int dstStride1, int dstStride2);
QelStatus qelmMul_mm_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Width, int src2Height,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift);
QelStatus qelmMul_mt_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                         Qel64f* dst, int dstStride1, int dstStride2);
QelStatus qelmMul_mt_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Width, int src2Height,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift);
QelStatus qelmMul_tm_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                         Qel64f* dst, int dstStride1, int dstStride2);
QelStatus qelmMul_tm_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Width, int src2Height,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift);
QelStatus qelmMul_tt_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                         Qel64f* dst, int dstStride1, int dstStride2);
QelStatus qelmMul_tt_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Width, int src2Height,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift);
QelStatus qelmMul_mam_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mam_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mam_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mat_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mat_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mat_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tam_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tam_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tam_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tat_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tat_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel64f* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tat_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mma_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mma_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mma_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mta_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mta_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mta_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tma_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tma_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tma_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tta_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                          Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tta_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tta_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mama_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mama_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mama_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mata_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mata_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_mata_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tama_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tama_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tama_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tata_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel64f* src2, int src2Stride0, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                           Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tata_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2, int count);
QelStatus qelmMul_tata_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Width, int src2Height,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);

/* ---- Mul of a matrix by a vector: dst = op(A) * x. */
/* As in Mul over two matrices, src1Width and src1Height describe src1 as it
 * lies in memory, transposed (t, ta) or not. m shapes need src2Len equal to
 * src1Width and give src1Height results; t shapes need src2Len equal to
 * src1Height and give src1Width results. dst has no length of its own.
 * mva: one matrix, `count` vectors; mav: `count` matrices, one vector; mava:
 * matrices and vectors in pairs. Inner products of 8 terms and more add in
 * split blocks of eight; where one vector serves many rows the blocks start at
 * its first 16-byte boundary, so the rounding may depend on where x lies. */

QelStatus qelmMul_mv_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel32f* src2, int src2Stride2, int src2Len,
                         Qel32f* dst, int dstStride2);
QelStatus qelmMul_mv_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Len,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift);
QelStatus qelmMul_mv_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel64f* src2, int src2Stride2, int src2Len,
                         Qel64f* dst, int dstStride2);
QelStatus qelmMul_mv_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Len,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift);
QelStatus qelmMul_tv_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel32f* src2, int src2Stride2, int src2Len,
                         Qel32f* dst, int dstStride2);
QelStatus qelmMul_tv_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Len,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift);
QelStatus qelmMul_tv_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                         const Qel64f* src2, int src2Stride2, int src2Len,
                         Qel64f* dst, int dstStride2);
QelStatus qelmMul_tv_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                           QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Len,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift);
QelStatus qelmMul_mva_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride0, int src2Stride2, int src2Len,
                          Qel32f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_mva_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_mva_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mva_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride0, int src2Stride2, int src2Len,
                          Qel64f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_mva_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_mva_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tva_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride0, int src2Stride2, int src2Len,
                          Qel32f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_tva_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_tva_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tva_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride0, int src2Stride2, int src2Len,
                          Qel64f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_tva_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_tva_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mav_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride2, int src2Len,
                          Qel32f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_mav_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel32f* src2, int src2Stride2, int src2Len,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_mav_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Len,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mav_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride2, int src2Len,
                          Qel64f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_mav_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel64f* src2, int src2Stride2, int src2Len,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_mav_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Len,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tav_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel32f* src2, int src2Stride2, int src2Len,
                          Qel32f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_tav_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel32f* src2, int src2Stride2, int src2Len,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_tav_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Len,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tav_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                          const Qel64f* src2, int src2Stride2, int src2Len,
                          Qel64f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_tav_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel64f* src2, int src2Stride2, int src2Len,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_tav_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                            QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Len,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mava_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel32f* src2, int src2Stride0, int src2Stride2, int src2Len,
                           Qel32f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_mava_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_mava_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_mava_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel64f* src2, int src2Stride0, int src2Stride2, int src2Len,
                           Qel64f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_mava_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_mava_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tava_32f(const Qel32f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel32f* src2, int src2Stride0, int src2Stride2, int src2Len,
                           Qel32f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_tava_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_tava_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmMul_tava_64f(const Qel64f* src1, int src1Stride0, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel64f* src2, int src2Stride0, int src2Stride2, int src2Len,
                           Qel64f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmMul_tava_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmMul_tava_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);

/* ---- Mul by a constant: every element of src times val. */
/* mc, mac, vc and vac take one constant by value. vca multiplies one vector by
 * each of `count` constants (object n is src * val[n]); vaca multiplies object
 * n by constant n. Their constants are given like an operand: a pointer and
 * valStride0, or in _L forms a list of `count` pointers and valRoiShift.
 * width and height are those of the result, as in Add and Sub: for tc and tac
 * the stored matrix has width rows and height columns. */

QelStatus qelmMul_mc_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f val,
                         Qel32f* dst, int dstStride1, int dstStride2, int width, int height);
QelStatus qelmMul_mc_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f val,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int width, int height);
QelStatus qelmMul_mc_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f val,
                         Qel64f* dst, int dstStride1, int dstStride2, int width, int height);
QelStatus qelmMul_mc_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f val,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int width, int height);
QelStatus qelmMul_tc_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f val,
                         Qel32f* dst, int dstStride1, int dstStride2, int width, int height);
QelStatus qelmMul_tc_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f val,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int width, int height);
QelStatus qelmMul_tc_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f val,
                         Qel64f* dst, int dstStride1, int dstStride2, int width, int height);
QelStatus qelmMul_tc_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f val,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int width, int height);
QelStatus qelmMul_mac_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                          Qel32f val, Qel32f* dst, int dstStride0, int dstStride1, int dstStride2,
                          int width, int height, int count);
QelStatus qelmMul_mac_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1,
                            int srcStride2, Qel32f val, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmMul_mac_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f val,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                            int height, int count);
QelStatus qelmMul_mac_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                          Qel64f val, Qel64f* dst, int dstStride0, int dstStride1, int dstStride2,
                          int width, int height, int count);
QelStatus qelmMul_mac_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1,
                            int srcStride2, Qel64f val, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmMul_mac_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f val,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                            int height, int count);
QelStatus qelmMul_tac_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                          Qel32f val, Qel32f* dst, int dstStride0, int dstStride1, int dstStride2,
                          int width, int height, int count);
QelStatus qelmMul_tac_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1,
                            int srcStride2, Qel32f val, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmMul_tac_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f val,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                            int height, int count);
QelStatus qelmMul_tac_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                          Qel64f val, Qel64f* dst, int dstStride0, int dstStride1, int dstStride2,
                          int width, int height, int count);
QelStatus qelmMul_tac_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1,
                            int srcStride2, Qel64f val, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride1, int dstStride2, int width, int height, int count);
QelStatus qelmMul_tac_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f val,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                            int height, int count);
QelStatus qelmMul_vc_32f(const Qel32f* src, int srcStride2, Qel32f val, Qel32f* dst,
                         int dstStride2, int len);
QelStatus qelmMul_vc_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f val,
                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int len);
QelStatus qelmMul_vc_64f(const Qel64f* src, int srcStride2, Qel64f val, Qel64f* dst,
                         int dstStride2, int len);
QelStatus qelmMul_vc_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f val,
                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int len);
QelStatus qelmMul_vac_32f(const Qel32f* src, int srcStride0, int srcStride2, Qel32f val,
                          Qel32f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmMul_vac_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2, Qel32f val,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int len,
                            int count);
QelStatus qelmMul_vac_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f val,
                            QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len,
                            int count);
QelStatus qelmMul_vac_64f(const Qel64f* src, int srcStride0, int srcStride2, Qel64f val,
                          Qel64f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmMul_vac_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2, Qel64f val,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int len,
                            int count);
QelStatus qelmMul_vac_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f val,
                            QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len,
                            int count);
QelStatus qelmMul_vca_32f(const Qel32f* src, int srcStride2, const Qel32f* val, int valStride0,
                          Qel32f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmMul_vca_32f_L(const Qel32f* src, int srcStride2, QEL_SRC_LIST(Qel32f) val,
                            int valRoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride2, int len, int count);
QelStatus qelmMul_vca_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, const Qel32f* val,
                            int valStride0, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                            int dstStride0, int len, int count);
QelStatus qelmMul_vca_64f(const Qel64f* src, int srcStride2, const Qel64f* val, int valStride0,
                          Qel64f* dst, int dstStride0, int dstStride2, int len, int count);
QelStatus qelmMul_vca_64f_L(const Qel64f* src, int srcStride2, QEL_SRC_LIST(Qel64f) val,
                            int valRoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride2, int len, int count);
QelStatus qelmMul_vca_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, const Qel64f* val,
                            int valStride0, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                            int dstStride0, int len, int count);
QelStatus qelmMul_vaca_32f(const Qel32f* src, int srcStride0, int srcStride2, const Qel32f* val,
                           int valStride0, Qel32f* dst, int dstStride0, int dstStride2, int len,
                           int count);
QelStatus qelmMul_vaca_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2,
                             QEL_SRC_LIST(Qel32f) val, int valRoiShift, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmMul_vaca_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                             const Qel32f* val, int valStride0, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmMul_vaca_64f(const Qel64f* src, int srcStride0, int srcStride2, const Qel64f* val,
                           int valStride0, Qel64f* dst, int dstStride0, int dstStride2, int len,
                           int count);
QelStatus qelmMul_vaca_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2,
                             QEL_SRC_LIST(Qel64f) val, int valRoiShift, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmMul_vaca_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                             const Qel64f* val, int valStride0, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride0, int len, int count);

/* ---- Gaxpy: dst = A * x + z. */
/* src1 is the one matrix A, never transposed, of src1Width columns and
 * src1Height rows; src2 is x with src2Len equal to src1Width, src3 is z with
 * src3Len equal to src1Height, and dst holds src1Height elements. Each inner
 * product is finished before z is added to it. mva: `count` pairs of x and z;
 * mvav: `count` vectors x and the one z for all of them. dst must not overlap
 * src2 or src3. */

QelStatus qelmGaxpy_mv_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel32f* src2, int src2Stride2, int src2Len,
                           const Qel32f* src3, int src3Stride2, int src3Len,
                           Qel32f* dst, int dstStride2);
QelStatus qelmGaxpy_mv_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Len,
                             QEL_SRC_LIST(Qel32f) src3, int src3RoiShift, int src3Len,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift);
QelStatus qelmGaxpy_mv_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                           const Qel64f* src2, int src2Stride2, int src2Len,
                           const Qel64f* src3, int src3Stride2, int src3Len,
                           Qel64f* dst, int dstStride2);
QelStatus qelmGaxpy_mv_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Len,
                             QEL_SRC_LIST(Qel64f) src3, int src3RoiShift, int src3Len,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift);
QelStatus qelmGaxpy_mva_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel32f* src2, int src2Stride0, int src2Stride2, int src2Len,
                            const Qel32f* src3, int src3Stride0, int src3Stride2, int src3Len,
                            Qel32f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmGaxpy_mva_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                              QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                              QEL_SRC_LIST(Qel32f) src3, int src3RoiShift, int src3Stride2, int src3Len,
                              QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmGaxpy_mva_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                              QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                              QEL_SRC_LIST(Qel32f) src3, int src3RoiShift, int src3Stride0, int src3Len,
                              QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmGaxpy_mva_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                            const Qel64f* src2, int src2Stride0, int src2Stride2, int src2Len,
                            const Qel64f* src3, int src3Stride0, int src3Stride2, int src3Len,
                            Qel64f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmGaxpy_mva_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                              QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                              QEL_SRC_LIST(Qel64f) src3, int src3RoiShift, int src3Stride2, int src3Len,
                              QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmGaxpy_mva_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                              QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                              QEL_SRC_LIST(Qel64f) src3, int src3RoiShift, int src3Stride0, int src3Len,
                              QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmGaxpy_mvav_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             const Qel32f* src2, int src2Stride0, int src2Stride2, int src2Len,
                             const Qel32f* src3, int src3Stride2, int src3Len,
                             Qel32f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmGaxpy_mvav_32f_L(const Qel32f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                               QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                               const Qel32f* src3, int src3Stride2, int src3Len,
                               QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmGaxpy_mvav_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Width, int src1Height,
                               QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                               QEL_SRC_LIST(Qel32f) src3, int src3RoiShift, int src3Len,
                               QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmGaxpy_mvav_64f(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             const Qel64f* src2, int src2Stride0, int src2Stride2, int src2Len,
                             const Qel64f* src3, int src3Stride2, int src3Len,
                             Qel64f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmGaxpy_mvav_64f_L(const Qel64f* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                               QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2, int src2Len,
                               const Qel64f* src3, int src3Stride2, int src3Len,
                               QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmGaxpy_mvav_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Width, int src1Height,
                               QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, int src2Len,
                               QEL_SRC_LIST(Qel64f) src3, int src3RoiShift, int src3Len,
                               QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);

/* ---- LUDecomp and LUBackSubst. */

/* LUDecomp: Gaussian elimination with partial pivoting on the index array alone.
 * Rows never move: row dstIndex[k] of dst holds row k of the factors, the
 * multipliers of the unit lower triangle left of the diagonal and the upper
 * triangle from the diagonal on. dstIndex holds `size` entries per matrix
 * (dstIndex + n*size for matrix n of an array). A singular pivot answers
 * qelStatusSingular; an array stops at its first singular matrix. */
QelStatus qelmLUDecomp_m_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32s* dstIndex,
                             Qel32f* dst, int dstStride1, int dstStride2, int size);
QelStatus qelmLUDecomp_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32s* dstIndex,
                               QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int size);
QelStatus qelmLUDecomp_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                              Qel32s* dstIndex, Qel32f* dst, int dstStride0, int dstStride1, int dstStride2,
                              int size, int count);
QelStatus qelmLUDecomp_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                Qel32s* dstIndex, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                                int dstStride2, int size, int count);
QelStatus qelmLUDecomp_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32s* dstIndex,
                                QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int size, int count);
QelStatus qelmLUDecomp_m_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel32s* dstIndex,
                             Qel64f* dst, int dstStride1, int dstStride2, int size);
QelStatus qelmLUDecomp_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel32s* dstIndex,
                               QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int size);
QelStatus qelmLUDecomp_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                              Qel32s* dstIndex, Qel64f* dst, int dstStride0, int dstStride1, int dstStride2,
                              int size, int count);
QelStatus qelmLUDecomp_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                Qel32s* dstIndex, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                                int dstStride2, int size, int count);
QelStatus qelmLUDecomp_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel32s* dstIndex,
                                QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int size, int count);

/* LUBackSubst: solves A x = b from the factors and index of LUDecomp; b (src2)
 * and x (dst) in natural order. mv: one system; mva: one matrix, `count`
 * right-hand sides sharing srcIndex; mava: `count` matrices, each with its own
 * `size` index entries and right-hand side. No numerical check is made. */
QelStatus qelmLUBackSubst_mv_32f(const Qel32f* src, int srcStride1, int srcStride2, const Qel32s* srcIndex,
                                 const Qel32f* src2, int src2Stride2, Qel32f* dst, int dstStride2, int size);
QelStatus qelmLUBackSubst_mv_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, const Qel32s* srcIndex,
                                   QEL_SRC_LIST(Qel32f) src2, int src2RoiShift,
                                   QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int size);
QelStatus qelmLUBackSubst_mva_32f(const Qel32f* src, int srcStride1, int srcStride2, const Qel32s* srcIndex,
                                  const Qel32f* src2, int src2Stride0, int src2Stride2,
                                  Qel32f* dst, int dstStride0, int dstStride2, int size, int count);
QelStatus qelmLUBackSubst_mva_32f_L(const Qel32f* src, int srcStride1, int srcStride2, const Qel32s* srcIndex,
                                    QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2,
                                    QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int size, int count);
QelStatus qelmLUBackSubst_mva_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, const Qel32s* srcIndex,
                                    QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                                    QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int size, int count);
QelStatus qelmLUBackSubst_mava_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                                   const Qel32s* srcIndex, const Qel32f* src2, int src2Stride0, int src2Stride2,
                                   Qel32f* dst, int dstStride0, int dstStride2, int size, int count);
QelStatus qelmLUBackSubst_mava_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                     const Qel32s* srcIndex, QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2,
                                     QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int size, int count);
QelStatus qelmLUBackSubst_mava_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, const Qel32s* srcIndex,
                                     QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                                     QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int size, int count);
QelStatus qelmLUBackSubst_mv_64f(const Qel64f* src, int srcStride1, int srcStride2, const Qel32s* srcIndex,
                                 const Qel64f* src2, int src2Stride2, Qel64f* dst, int dstStride2, int size);
QelStatus qelmLUBackSubst_mv_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, const Qel32s* srcIndex,
                                   QEL_SRC_LIST(Qel64f) src2, int src2RoiShift,
                                   QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int size);
QelStatus qelmLUBackSubst_mva_64f(const Qel64f* src, int srcStride1, int srcStride2, const Qel32s* srcIndex,
                                  const Qel64f* src2, int src2Stride0, int src2Stride2,
                                  Qel64f* dst, int dstStride0, int dstStride2, int size, int count);
QelStatus qelmLUBackSubst_mva_64f_L(const Qel64f* src, int srcStride1, int srcStride2, const Qel32s* srcIndex,
                                    QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2,
                                    QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int size, int count);
QelStatus qelmLUBackSubst_mva_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, const Qel32s* srcIndex,
                                    QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                                    QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int size, int count);
QelStatus qelmLUBackSubst_mava_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                                   const Qel32s* srcIndex, const Qel64f* src2, int src2Stride0, int src2Stride2,
                                   Qel64f* dst, int dstStride0, int dstStride2, int size, int count);
QelStatus qelmLUBackSubst_mava_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                     const Qel32s* srcIndex, QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2,
                                     QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int size, int count);
QelStatus qelmLUBackSubst_mava_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, const Qel32s* srcIndex,
                                     QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                                     QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int size, int count);

/* ---- Copy between descriptions: every element of `count` matrices (ma) or
 * vectors (va) moved as its bit pattern, objects, rows and elements in rising
 * order. The two letters name the source's and the destination's description
 * (S standard, L list of objects, P pointer per element). */

QelStatus qelmCopy_ma_32f_SS(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, Qel32f* dst,
                             int dstStride0, int dstStride1, int dstStride2, int width, int height,
                             int count);
QelStatus qelmCopy_ma_32f_SL(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2,
                             int width, int height, int count);
QelStatus qelmCopy_ma_32f_SP(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmCopy_ma_32f_LS(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                             Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmCopy_ma_32f_LL(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2,
                             int width, int height, int count);
QelStatus qelmCopy_ma_32f_LP(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmCopy_ma_32f_PS(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f* dst,
                             int dstStride0, int dstStride1, int dstStride2, int width, int height,
                             int count);
QelStatus qelmCopy_ma_32f_PL(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2,
                             int width, int height, int count);
QelStatus qelmCopy_ma_32f_PP(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmCopy_ma_64f_SS(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, Qel64f* dst,
                             int dstStride0, int dstStride1, int dstStride2, int width, int height,
                             int count);
QelStatus qelmCopy_ma_64f_SL(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2,
                             int width, int height, int count);
QelStatus qelmCopy_ma_64f_SP(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmCopy_ma_64f_LS(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                             Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                             int height, int count);
QelStatus qelmCopy_ma_64f_LL(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2,
                             int width, int height, int count);
QelStatus qelmCopy_ma_64f_LP(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmCopy_ma_64f_PS(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f* dst,
                             int dstStride0, int dstStride1, int dstStride2, int width, int height,
                             int count);
QelStatus qelmCopy_ma_64f_PL(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2,
                             int width, int height, int count);
QelStatus qelmCopy_ma_64f_PP(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                             int height, int count);
QelStatus qelmCopy_va_32f_SS(const Qel32f* src, int srcStride0, int srcStride2, Qel32f* dst, int dstStride0,
                             int dstStride2, int len, int count);
QelStatus qelmCopy_va_32f_SL(const Qel32f* src, int srcStride0, int srcStride2, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmCopy_va_32f_SP(const Qel32f* src, int srcStride0, int srcStride2, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmCopy_va_32f_LS(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2, Qel32f* dst,
                             int dstStride0, int dstStride2, int len, int count);
QelStatus qelmCopy_va_32f_LL(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmCopy_va_32f_LP(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmCopy_va_32f_PS(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f* dst,
                             int dstStride0, int dstStride2, int len, int count);
QelStatus qelmCopy_va_32f_PL(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmCopy_va_32f_PP(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                             QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmCopy_va_64f_SS(const Qel64f* src, int srcStride0, int srcStride2, Qel64f* dst, int dstStride0,
                             int dstStride2, int len, int count);
QelStatus qelmCopy_va_64f_SL(const Qel64f* src, int srcStride0, int srcStride2, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmCopy_va_64f_SP(const Qel64f* src, int srcStride0, int srcStride2, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmCopy_va_64f_LS(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2, Qel64f* dst,
                             int dstStride0, int dstStride2, int len, int count);
QelStatus qelmCopy_va_64f_LL(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmCopy_va_64f_LP(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmCopy_va_64f_PS(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f* dst,
                             int dstStride0, int dstStride2, int len, int count);
QelStatus qelmCopy_va_64f_PL(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmCopy_va_64f_PP(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                             QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len, int count);

/* ---- Extract into a packed buffer: dst[n*width*height + i*width + j] (vectors
 * dst[n*len + j]); t and ta are read transposed, stored width rows by height. */

QelStatus qelmExtract_m_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* dst, int width,
                            int height);
QelStatus qelmExtract_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* dst, int width,
                              int height);
QelStatus qelmExtract_m_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* dst, int width,
                            int height);
QelStatus qelmExtract_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* dst, int width,
                              int height);
QelStatus qelmExtract_t_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* dst, int width,
                            int height);
QelStatus qelmExtract_t_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* dst, int width,
                              int height);
QelStatus qelmExtract_t_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* dst, int width,
                            int height);
QelStatus qelmExtract_t_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* dst, int width,
                              int height);
QelStatus qelmExtract_v_32f(const Qel32f* src, int srcStride2, Qel32f* dst, int len);
QelStatus qelmExtract_v_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* dst, int len);
QelStatus qelmExtract_v_64f(const Qel64f* src, int srcStride2, Qel64f* dst, int len);
QelStatus qelmExtract_v_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* dst, int len);
QelStatus qelmExtract_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, Qel32f* dst,
                             int width, int height, int count);
QelStatus qelmExtract_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                               Qel32f* dst, int width, int height, int count);
QelStatus qelmExtract_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f* dst,
                               int width, int height, int count);
QelStatus qelmExtract_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, Qel64f* dst,
                             int width, int height, int count);
QelStatus qelmExtract_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                               Qel64f* dst, int width, int height, int count);
QelStatus qelmExtract_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f* dst,
                               int width, int height, int count);
QelStatus qelmExtract_ta_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, Qel32f* dst,
                             int width, int height, int count);
QelStatus qelmExtract_ta_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                               Qel32f* dst, int width, int height, int count);
QelStatus qelmExtract_ta_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f* dst,
                               int width, int height, int count);
QelStatus qelmExtract_ta_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, Qel64f* dst,
                             int width, int height, int count);
QelStatus qelmExtract_ta_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                               Qel64f* dst, int width, int height, int count);
QelStatus qelmExtract_ta_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f* dst,
                               int width, int height, int count);
QelStatus qelmExtract_va_32f(const Qel32f* src, int srcStride0, int srcStride2, Qel32f* dst, int len,
                             int count);
QelStatus qelmExtract_va_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2, Qel32f* dst,
                               int len, int count);
QelStatus qelmExtract_va_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f* dst,
                               int len, int count);
QelStatus qelmExtract_va_64f(const Qel64f* src, int srcStride0, int srcStride2, Qel64f* dst, int len,
                             int count);
QelStatus qelmExtract_va_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2, Qel64f* dst,
                               int len, int count);
QelStatus qelmExtract_va_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f* dst,
                               int len, int count);

/* ---- Transpose: dst (width rows of height) = the transpose of src (height rows
 * of width). LoadIdentity: ones on the leading diagonal, zeros elsewhere. */

QelStatus qelmTranspose_m_32f(const Qel32f* src, int srcStride1, int srcStride2, int width, int height,
                              Qel32f* dst, int dstStride1, int dstStride2);
QelStatus qelmTranspose_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int width, int height,
                                QEL_DST_LIST(Qel32f) dst, int dstRoiShift);
QelStatus qelmTranspose_m_64f(const Qel64f* src, int srcStride1, int srcStride2, int width, int height,
                              Qel64f* dst, int dstStride1, int dstStride2);
QelStatus qelmTranspose_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int width, int height,
                                QEL_DST_LIST(Qel64f) dst, int dstRoiShift);
QelStatus qelmTranspose_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, int width,
                               int height, Qel32f* dst, int dstStride0, int dstStride1, int dstStride2,
                               int count);
QelStatus qelmTranspose_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                 int width, int height, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                                 int dstStride1, int dstStride2, int count);
QelStatus qelmTranspose_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, int width,
                                 int height, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0,
                                 int count);
QelStatus qelmTranspose_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, int width,
                               int height, Qel64f* dst, int dstStride0, int dstStride1, int dstStride2,
                               int count);
QelStatus qelmTranspose_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                 int width, int height, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                                 int dstStride1, int dstStride2, int count);
QelStatus qelmTranspose_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, int width,
                                 int height, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0,
                                 int count);
QelStatus qelmLoadIdentity_ma_32f(Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                                  int height, int count);
QelStatus qelmLoadIdentity_ma_32f_L(QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                                    int dstStride2, int width, int height, int count);
QelStatus qelmLoadIdentity_ma_32f_P(QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width,
                                    int height, int count);
QelStatus qelmLoadIdentity_ma_64f(Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                                  int height, int count);
QelStatus qelmLoadIdentity_ma_64f_L(QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                                    int dstStride2, int width, int height, int count);
QelStatus qelmLoadIdentity_ma_64f_P(QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width,
                                    int height, int count);

/* ---- Trace (sum of the diagonal of a square matrix) and FrobNorm (square root
 * of the sum of squares), one scalar per object at dst[n]. */

QelStatus qelmTrace_m_32f(const Qel32f* src, int srcStride1, int srcStride2, int size, Qel32f* dst);
QelStatus qelmTrace_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int size, Qel32f* dst);
QelStatus qelmTrace_m_64f(const Qel64f* src, int srcStride1, int srcStride2, int size, Qel64f* dst);
QelStatus qelmTrace_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int size, Qel64f* dst);
QelStatus qelmTrace_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, int size,
                           Qel32f* dst, int count);
QelStatus qelmTrace_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                             int size, Qel32f* dst, int count);
QelStatus qelmTrace_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, int size,
                             Qel32f* dst, int count);
QelStatus qelmTrace_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, int size,
                           Qel64f* dst, int count);
QelStatus qelmTrace_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                             int size, Qel64f* dst, int count);
QelStatus qelmTrace_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, int size,
                             Qel64f* dst, int count);
QelStatus qelmFrobNorm_m_32f(const Qel32f* src, int srcStride1, int srcStride2, int width, int height,
                             Qel32f* dst);
QelStatus qelmFrobNorm_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int width, int height,
                               Qel32f* dst);
QelStatus qelmFrobNorm_m_64f(const Qel64f* src, int srcStride1, int srcStride2, int width, int height,
                             Qel64f* dst);
QelStatus qelmFrobNorm_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int width, int height,
                               Qel64f* dst);
QelStatus qelmFrobNorm_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, int width,
                              int height, Qel32f* dst, int count);
QelStatus qelmFrobNorm_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                int width, int height, Qel32f* dst, int count);
QelStatus qelmFrobNorm_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, int width,
                                int height, Qel32f* dst, int count);
QelStatus qelmFrobNorm_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, int width,
                              int height, Qel64f* dst, int count);
QelStatus qelmFrobNorm_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                int width, int height, Qel64f* dst, int count);
QelStatus qelmFrobNorm_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, int width,
                                int height, Qel64f* dst, int count);

/* ---- Vector algebra. */
/* DotProduct: dst[n] = sum of src1(k) src2(k); L2Norm: dst[n] = the square root of the sum of
 * src(k) squared. dst is a packed array of one result per object in every description; in vav
 * the array is src1 and src2 the one vector. */

QelStatus qelmDotProduct_vv_32f(const Qel32f* src1, int src1Stride2, const Qel32f* src2, int src2Stride2,
                                Qel32f* dst, int len);
QelStatus qelmDotProduct_vv_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                                  int src2RoiShift, Qel32f* dst, int len);
QelStatus qelmDotProduct_vv_64f(const Qel64f* src1, int src1Stride2, const Qel64f* src2, int src2Stride2,
                                Qel64f* dst, int len);
QelStatus qelmDotProduct_vv_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                                  int src2RoiShift, Qel64f* dst, int len);
QelStatus qelmDotProduct_vav_32f(const Qel32f* src1, int src1Stride0, int src1Stride2, const Qel32f* src2,
                                 int src2Stride2, Qel32f* dst, int len, int count);
QelStatus qelmDotProduct_vav_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2,
                                   const Qel32f* src2, int src2Stride2, Qel32f* dst, int len, int count);
QelStatus qelmDotProduct_vav_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                                   QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, Qel32f* dst, int len,
                                   int count);
QelStatus qelmDotProduct_vav_64f(const Qel64f* src1, int src1Stride0, int src1Stride2, const Qel64f* src2,
                                 int src2Stride2, Qel64f* dst, int len, int count);
QelStatus qelmDotProduct_vav_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2,
                                   const Qel64f* src2, int src2Stride2, Qel64f* dst, int len, int count);
QelStatus qelmDotProduct_vav_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                                   QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, Qel64f* dst, int len,
                                   int count);
QelStatus qelmDotProduct_vava_32f(const Qel32f* src1, int src1Stride0, int src1Stride2, const Qel32f* src2,
                                  int src2Stride0, int src2Stride2, Qel32f* dst, int len, int count);
QelStatus qelmDotProduct_vava_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2,
                                    QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2, Qel32f* dst,
                                    int len, int count);
QelStatus qelmDotProduct_vava_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                                    QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, Qel32f* dst,
                                    int len, int count);
QelStatus qelmDotProduct_vava_64f(const Qel64f* src1, int src1Stride0, int src1Stride2, const Qel64f* src2,
                                  int src2Stride0, int src2Stride2, Qel64f* dst, int len, int count);
QelStatus qelmDotProduct_vava_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2,
                                    QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2, Qel64f* dst,
                                    int len, int count);
QelStatus qelmDotProduct_vava_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                                    QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, Qel64f* dst,
                                    int len, int count);
QelStatus qelmL2Norm_v_32f(const Qel32f* src, int srcStride2, Qel32f* dst, int len);
QelStatus qelmL2Norm_v_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* dst, int len);
QelStatus qelmL2Norm_v_64f(const Qel64f* src, int srcStride2, Qel64f* dst, int len);
QelStatus qelmL2Norm_v_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* dst, int len);
QelStatus qelmL2Norm_va_32f(const Qel32f* src, int srcStride0, int srcStride2, Qel32f* dst, int len, int count);
QelStatus qelmL2Norm_va_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride2, Qel32f* dst, int len,
                              int count);
QelStatus qelmL2Norm_va_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f* dst, int len,
                              int count);
QelStatus qelmL2Norm_va_64f(const Qel64f* src, int srcStride0, int srcStride2, Qel64f* dst, int len, int count);
QelStatus qelmL2Norm_va_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride2, Qel64f* dst, int len,
                              int count);
QelStatus qelmL2Norm_va_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f* dst, int len,
                              int count);

/* CrossProduct of three-element vectors: dst = src1 x src2. */

QelStatus qelmCrossProduct_vv_32f(const Qel32f* src1, int src1Stride2, const Qel32f* src2, int src2Stride2,
                                  Qel32f* dst, int dstStride2);
QelStatus qelmCrossProduct_vv_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                                    int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift);
QelStatus qelmCrossProduct_vv_64f(const Qel64f* src1, int src1Stride2, const Qel64f* src2, int src2Stride2,
                                  Qel64f* dst, int dstStride2);
QelStatus qelmCrossProduct_vv_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                                    int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift);
QelStatus qelmCrossProduct_vav_32f(const Qel32f* src1, int src1Stride0, int src1Stride2, const Qel32f* src2,
                                   int src2Stride2, Qel32f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmCrossProduct_vav_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2,
                                     const Qel32f* src2, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                                     int dstRoiShift, int dstStride2, int count);
QelStatus qelmCrossProduct_vav_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                                     QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                                     int dstRoiShift, int dstStride0, int count);
QelStatus qelmCrossProduct_vav_64f(const Qel64f* src1, int src1Stride0, int src1Stride2, const Qel64f* src2,
                                   int src2Stride2, Qel64f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmCrossProduct_vav_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2,
                                     const Qel64f* src2, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                                     int dstRoiShift, int dstStride2, int count);
QelStatus qelmCrossProduct_vav_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                                     QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                                     int dstRoiShift, int dstStride0, int count);
QelStatus qelmCrossProduct_vva_32f(const Qel32f* src1, int src1Stride2, const Qel32f* src2, int src2Stride0,
                                   int src2Stride2, Qel32f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmCrossProduct_vva_32f_L(const Qel32f* src1, int src1Stride2, QEL_SRC_LIST(Qel32f) src2,
                                     int src2RoiShift, int src2Stride2, QEL_DST_LIST(Qel32f) dst,
                                     int dstRoiShift, int dstStride2, int count);
QelStatus qelmCrossProduct_vva_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, QEL_SRC_LIST(Qel32f) src2,
                                     int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel32f) dst,
                                     int dstRoiShift, int dstStride0, int count);
QelStatus qelmCrossProduct_vva_64f(const Qel64f* src1, int src1Stride2, const Qel64f* src2, int src2Stride0,
                                   int src2Stride2, Qel64f* dst, int dstStride0, int dstStride2, int count);
QelStatus qelmCrossProduct_vva_64f_L(const Qel64f* src1, int src1Stride2, QEL_SRC_LIST(Qel64f) src2,
                                     int src2RoiShift, int src2Stride2, QEL_DST_LIST(Qel64f) dst,
                                     int dstRoiShift, int dstStride2, int count);
QelStatus qelmCrossProduct_vva_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, QEL_SRC_LIST(Qel64f) src2,
                                     int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel64f) dst,
                                     int dstRoiShift, int dstStride0, int count);
QelStatus qelmCrossProduct_vava_32f(const Qel32f* src1, int src1Stride0, int src1Stride2, const Qel32f* src2,
                                    int src2Stride0, int src2Stride2, Qel32f* dst, int dstStride0,
                                    int dstStride2, int count);
QelStatus qelmCrossProduct_vava_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2,
                                      QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2,
                                      QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmCrossProduct_vava_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0,
                                      QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                                      QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int count);
QelStatus qelmCrossProduct_vava_64f(const Qel64f* src1, int src1Stride0, int src1Stride2, const Qel64f* src2,
                                    int src2Stride0, int src2Stride2, Qel64f* dst, int dstStride0,
                                    int dstStride2, int count);
QelStatus qelmCrossProduct_vava_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2,
                                      QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2,
                                      QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int count);
QelStatus qelmCrossProduct_vava_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0,
                                      QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                                      QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int count);

/* Saxpy: dst(k) = src1(k) val + src2(k); LComb: dst(k) = src1(k) val1 + src2(k) val2. */

QelStatus qelmSaxpy_vv_32f(const Qel32f* src1, int src1Stride2, Qel32f val, const Qel32f* src2, int src2Stride2,
                           Qel32f* dst, int dstStride2, int len);
QelStatus qelmSaxpy_vv_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, Qel32f val, QEL_SRC_LIST(Qel32f) src2,
                             int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int len);
QelStatus qelmSaxpy_vv_64f(const Qel64f* src1, int src1Stride2, Qel64f val, const Qel64f* src2, int src2Stride2,
                           Qel64f* dst, int dstStride2, int len);
QelStatus qelmSaxpy_vv_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, Qel64f val, QEL_SRC_LIST(Qel64f) src2,
                             int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int len);
QelStatus qelmSaxpy_vav_32f(const Qel32f* src1, int src1Stride0, int src1Stride2, Qel32f val,
                            const Qel32f* src2, int src2Stride2, Qel32f* dst, int dstStride0, int dstStride2,
                            int len, int count);
QelStatus qelmSaxpy_vav_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2, Qel32f val,
                              const Qel32f* src2, int src2Stride2, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                              int dstStride2, int len, int count);
QelStatus qelmSaxpy_vav_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, Qel32f val,
                              QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                              int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSaxpy_vav_64f(const Qel64f* src1, int src1Stride0, int src1Stride2, Qel64f val,
                            const Qel64f* src2, int src2Stride2, Qel64f* dst, int dstStride0, int dstStride2,
                            int len, int count);
QelStatus qelmSaxpy_vav_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2, Qel64f val,
                              const Qel64f* src2, int src2Stride2, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                              int dstStride2, int len, int count);
QelStatus qelmSaxpy_vav_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, Qel64f val,
                              QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                              int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSaxpy_vva_32f(const Qel32f* src1, int src1Stride2, Qel32f val, const Qel32f* src2,
                            int src2Stride0, int src2Stride2, Qel32f* dst, int dstStride0, int dstStride2,
                            int len, int count);
QelStatus qelmSaxpy_vva_32f_L(const Qel32f* src1, int src1Stride2, Qel32f val, QEL_SRC_LIST(Qel32f) src2,
                              int src2RoiShift, int src2Stride2, QEL_DST_LIST(Qel32f) dst, int dstRoiShift,
                              int dstStride2, int len, int count);
QelStatus qelmSaxpy_vva_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, Qel32f val,
                              QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                              QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSaxpy_vva_64f(const Qel64f* src1, int src1Stride2, Qel64f val, const Qel64f* src2,
                            int src2Stride0, int src2Stride2, Qel64f* dst, int dstStride0, int dstStride2,
                            int len, int count);
QelStatus qelmSaxpy_vva_64f_L(const Qel64f* src1, int src1Stride2, Qel64f val, QEL_SRC_LIST(Qel64f) src2,
                              int src2RoiShift, int src2Stride2, QEL_DST_LIST(Qel64f) dst, int dstRoiShift,
                              int dstStride2, int len, int count);
QelStatus qelmSaxpy_vva_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, Qel64f val,
                              QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                              QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSaxpy_vava_32f(const Qel32f* src1, int src1Stride0, int src1Stride2, Qel32f val,
                             const Qel32f* src2, int src2Stride0, int src2Stride2, Qel32f* dst, int dstStride0,
                             int dstStride2, int len, int count);
QelStatus qelmSaxpy_vava_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2, Qel32f val,
                               QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2,
                               QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmSaxpy_vava_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, Qel32f val,
                               QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                               QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmSaxpy_vava_64f(const Qel64f* src1, int src1Stride0, int src1Stride2, Qel64f val,
                             const Qel64f* src2, int src2Stride0, int src2Stride2, Qel64f* dst, int dstStride0,
                             int dstStride2, int len, int count);
QelStatus qelmSaxpy_vava_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2, Qel64f val,
                               QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2,
                               QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmSaxpy_vava_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, Qel64f val,
                               QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                               QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmLComb_vv_32f(const Qel32f* src1, int src1Stride2, Qel32f val1, const Qel32f* src2,
                           int src2Stride2, Qel32f val2, Qel32f* dst, int dstStride2, int len);
QelStatus qelmLComb_vv_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, Qel32f val1,
                             QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, Qel32f val2, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int len);
QelStatus qelmLComb_vv_64f(const Qel64f* src1, int src1Stride2, Qel64f val1, const Qel64f* src2,
                           int src2Stride2, Qel64f val2, Qel64f* dst, int dstStride2, int len);
QelStatus qelmLComb_vv_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, Qel64f val1,
                             QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, Qel64f val2, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int len);
QelStatus qelmLComb_vav_32f(const Qel32f* src1, int src1Stride0, int src1Stride2, Qel32f val1,
                            const Qel32f* src2, int src2Stride2, Qel32f val2, Qel32f* dst, int dstStride0,
                            int dstStride2, int len, int count);
QelStatus qelmLComb_vav_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2, Qel32f val1,
                              const Qel32f* src2, int src2Stride2, Qel32f val2, QEL_DST_LIST(Qel32f) dst,
                              int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmLComb_vav_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, Qel32f val1,
                              QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, Qel32f val2,
                              QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmLComb_vav_64f(const Qel64f* src1, int src1Stride0, int src1Stride2, Qel64f val1,
                            const Qel64f* src2, int src2Stride2, Qel64f val2, Qel64f* dst, int dstStride0,
                            int dstStride2, int len, int count);
QelStatus qelmLComb_vav_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2, Qel64f val1,
                              const Qel64f* src2, int src2Stride2, Qel64f val2, QEL_DST_LIST(Qel64f) dst,
                              int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmLComb_vav_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, Qel64f val1,
                              QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, Qel64f val2,
                              QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmLComb_vava_32f(const Qel32f* src1, int src1Stride0, int src1Stride2, Qel32f val1,
                             const Qel32f* src2, int src2Stride0, int src2Stride2, Qel32f val2, Qel32f* dst,
                             int dstStride0, int dstStride2, int len, int count);
QelStatus qelmLComb_vava_32f_L(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride2, Qel32f val1,
                               QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2, Qel32f val2,
                               QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmLComb_vava_32f_P(QEL_SRC_LIST(Qel32f) src1, int src1RoiShift, int src1Stride0, Qel32f val1,
                               QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0, Qel32f val2,
                               QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int len, int count);
QelStatus qelmLComb_vava_64f(const Qel64f* src1, int src1Stride0, int src1Stride2, Qel64f val1,
                             const Qel64f* src2, int src2Stride0, int src2Stride2, Qel64f val2, Qel64f* dst,
                             int dstStride0, int dstStride2, int len, int count);
QelStatus qelmLComb_vava_64f_L(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride2, Qel64f val1,
                               QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2, Qel64f val2,
                               QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int len, int count);
QelStatus qelmLComb_vava_64f_P(QEL_SRC_LIST(Qel64f) src1, int src1RoiShift, int src1Stride0, Qel64f val1,
                               QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0, Qel64f val2,
                               QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int len, int count);

/* ---- Symmetric eigenproblems. */

/* EigenValuesSym: every eigenvalue of a real symmetric matrix of order `size`,
 * by a Householder reduction to tridiagonal form and an implicitly shifted QL/QR
 * iteration, at most 30 passes per eigenvalue. dstValues holds `size` values per
 * matrix (dstValues + n*size for matrix n of an array), in descending order from
 * order 3 on; order 2 gives its closed-form pair unsorted (ascending for a
 * clearly negative trace). buffer is scratch of size*size elements, row after
 * row; its contents on return are meaningless. A matrix whose product of
 * eigenvalues is at most the element type's epsilon in magnitude answers
 * qelStatusSingular, whatever its scale; 30 passes without a split answer
 * qelStatusNoConvergence. An array stops at its first failing matrix.
 * EigenValuesVectorsSym also gives the unit eigenvector of dstValues[j] in
 * column j of dstVectors, with no sign normalisation. */
QelStatus qelmEigenValuesSym_m_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* buffer,
                                   Qel32f* dstValues, int size);
QelStatus qelmEigenValuesSym_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* buffer,
                                     Qel32f* dstValues, int size);
QelStatus qelmEigenValuesSym_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                                    Qel32f* buffer, Qel32f* dstValues, int size, int count);
QelStatus qelmEigenValuesSym_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1,
                                      int srcStride2, Qel32f* buffer, Qel32f* dstValues, int size, int count);
QelStatus qelmEigenValuesSym_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                                      Qel32f* buffer, Qel32f* dstValues, int size, int count);
QelStatus qelmEigenValuesVectorsSym_m_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* buffer,
                                          Qel32f* dstVectors, int dstStride1, int dstStride2,
                                          Qel32f* dstValues, int size);
QelStatus qelmEigenValuesVectorsSym_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* buffer,
                                            QEL_DST_LIST(Qel32f) dstVectors, int dstRoiShift,
                                            Qel32f* dstValues, int size);
QelStatus qelmEigenValuesVectorsSym_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                                           Qel32f* buffer, Qel32f* dstVectors, int dstStride0, int dstStride1,
                                           int dstStride2, Qel32f* dstValues, int size, int count);
QelStatus qelmEigenValuesVectorsSym_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1,
                                             int srcStride2, Qel32f* buffer, QEL_DST_LIST(Qel32f) dstVectors,
                                             int dstRoiShift, int dstStride1, int dstStride2,
                                             Qel32f* dstValues, int size, int count);
QelStatus qelmEigenValuesVectorsSym_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                                             Qel32f* buffer, QEL_DST_LIST(Qel32f) dstVectors, int dstRoiShift,
                                             int dstStride0, Qel32f* dstValues, int size, int count);
QelStatus qelmEigenValuesSym_m_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* buffer,
                                   Qel64f* dstValues, int size);
QelStatus qelmEigenValuesSym_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* buffer,
                                     Qel64f* dstValues, int size);
QelStatus qelmEigenValuesSym_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                                    Qel64f* buffer, Qel64f* dstValues, int size, int count);
QelStatus qelmEigenValuesSym_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1,
                                      int srcStride2, Qel64f* buffer, Qel64f* dstValues, int size, int count);
QelStatus qelmEigenValuesSym_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                                      Qel64f* buffer, Qel64f* dstValues, int size, int count);
QelStatus qelmEigenValuesVectorsSym_m_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* buffer,
                                          Qel64f* dstVectors, int dstStride1, int dstStride2,
                                          Qel64f* dstValues, int size);
QelStatus qelmEigenValuesVectorsSym_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* buffer,
                                            QEL_DST_LIST(Qel64f) dstVectors, int dstRoiShift,
                                            Qel64f* dstValues, int size);
QelStatus qelmEigenValuesVectorsSym_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                                           Qel64f* buffer, Qel64f* dstVectors, int dstStride0, int dstStride1,
                                           int dstStride2, Qel64f* dstValues, int size, int count);
QelStatus qelmEigenValuesVectorsSym_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1,
                                             int srcStride2, Qel64f* buffer, QEL_DST_LIST(Qel64f) dstVectors,
                                             int dstRoiShift, int dstStride1, int dstStride2,
                                             Qel64f* dstValues, int size, int count);
QelStatus qelmEigenValuesVectorsSym_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                                             Qel64f* buffer, QEL_DST_LIST(Qel64f) dstVectors, int dstRoiShift,
                                             int dstStride0, Qel64f* dstValues, int size, int count);

/* ---- Geometry on fixed sizes: packed Qel32f vectors of 2, 3 or 4 elements and
 * packed 4x4 matrices (element (r, c) at 4 r + c), any alignment, in the
 * row-vector convention: a point multiplies a matrix from the left, translation
 * stands in row 3. No checks unless stated: only qelmMul_mm4x4_32f tests its
 * pointers, and qelmAffineTransform3DH_mva_32f checks as the array families do. */

QelStatus qelmAdd_v2_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmSub_v2_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmMulC_v2_32f(const Qel32f* src, Qel32f val, Qel32f* dst);
QelStatus qelmDotProduct_v2_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmCrossProduct_v2_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmLenSqr_v2_32f(const Qel32f* src, Qel32f* dst);
QelStatus qelmLen_v2_32f(const Qel32f* src, Qel32f* dst);
QelStatus qelmMax_v2_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmMin_v2_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmNormalize_v2_32f(const Qel32f* src, Qel32f* dst);
QelStatus qelmInterpolationLinear_v2_32f(const Qel32f* src1, const Qel32f* src2, Qel32f val, Qel32f* dst);
QelStatus qelmBaryCentric_v2_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3, Qel32f val1,
                              Qel32f val2, Qel32f* dst);
QelStatus qelmHermite_v2_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3, const Qel32f* src4,
                          Qel32f val, Qel32f* dst);
QelStatus qelmInterpolationCatmullRom_v2_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3,
                                          const Qel32f* src4, Qel32f val, Qel32f* dst);
QelStatus qelmAdd_v3_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmSub_v3_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmMulC_v3_32f(const Qel32f* src, Qel32f val, Qel32f* dst);
QelStatus qelmDotProduct_v3_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmCrossProduct_v3_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmLenSqr_v3_32f(const Qel32f* src, Qel32f* dst);
QelStatus qelmLen_v3_32f(const Qel32f* src, Qel32f* dst);
QelStatus qelmMax_v3_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmMin_v3_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmNormalize_v3_32f(const Qel32f* src, Qel32f* dst);
QelStatus qelmInterpolationLinear_v3_32f(const Qel32f* src1, const Qel32f* src2, Qel32f val, Qel32f* dst);
QelStatus qelmBaryCentric_v3_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3, Qel32f val1,
                              Qel32f val2, Qel32f* dst);
QelStatus qelmHermite_v3_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3, const Qel32f* src4,
                          Qel32f val, Qel32f* dst);
QelStatus qelmInterpolationCatmullRom_v3_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3,
                                          const Qel32f* src4, Qel32f val, Qel32f* dst);
QelStatus qelmAdd_v4_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmSub_v4_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmMulC_v4_32f(const Qel32f* src, Qel32f val, Qel32f* dst);
QelStatus qelmDotProduct_v4_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmCrossProduct_v4_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3, Qel32f* dst);
QelStatus qelmLenSqr_v4_32f(const Qel32f* src, Qel32f* dst);
QelStatus qelmLen_v4_32f(const Qel32f* src, Qel32f* dst);
QelStatus qelmMax_v4_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmMin_v4_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmNormalize_v4_32f(const Qel32f* src, Qel32f* dst);
QelStatus qelmInterpolationLinear_v4_32f(const Qel32f* src1, const Qel32f* src2, Qel32f val, Qel32f* dst);
QelStatus qelmBaryCentric_v4_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3, Qel32f val1,
                              Qel32f val2, Qel32f* dst);
QelStatus qelmHermite_v4_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3, const Qel32f* src4,
                          Qel32f val, Qel32f* dst);
QelStatus qelmInterpolationCatmullRom_v4_32f(const Qel32f* src1, const Qel32f* src2, const Qel32f* src3,
                                          const Qel32f* src4, Qel32f val, Qel32f* dst);

QelStatus qelmIdentity_m4_32f(Qel32f* dst);
QelStatus qelmTranslation_m4_32f(Qel32f x, Qel32f y, Qel32f z, Qel32f* dst);
QelStatus qelmScaling_m4_32f(Qel32f x, Qel32f y, Qel32f z, Qel32f* dst);
QelStatus qelmRotationX_m4_32f(Qel32f angle, Qel32f* dst);
QelStatus qelmRotationY_m4_32f(Qel32f angle, Qel32f* dst);
QelStatus qelmRotationZ_m4_32f(Qel32f angle, Qel32f* dst);
QelStatus qelmRotationAxis_v3m4_32f(const Qel32f* axis, Qel32f angle, Qel32f* dst);
QelStatus qelmRotationYawPitchRoll_m4_32f(Qel32f yaw, Qel32f pitch, Qel32f roll, Qel32f* dst);
QelStatus qelmLookAtLH_m4_32f(const Qel32f* eye, const Qel32f* at, const Qel32f* up, Qel32f* dst);
QelStatus qelmLookAtRH_m4_32f(const Qel32f* eye, const Qel32f* at, const Qel32f* up, Qel32f* dst);
QelStatus qelmOrthoLH_m4_32f(Qel32f width, Qel32f height, Qel32f zNear, Qel32f zFar, Qel32f* dst);
QelStatus qelmOrthoRH_m4_32f(Qel32f width, Qel32f height, Qel32f zNear, Qel32f zFar, Qel32f* dst);
QelStatus qelmPerspectiveLH_m4_32f(Qel32f width, Qel32f height, Qel32f zNear, Qel32f zFar, Qel32f* dst);
QelStatus qelmPerspectiveRH_m4_32f(Qel32f width, Qel32f height, Qel32f zNear, Qel32f zFar, Qel32f* dst);
QelStatus qelmPerspectiveFovLH_m4_32f(Qel32f fovY, Qel32f aspect, Qel32f zNear, Qel32f zFar, Qel32f* dst);
QelStatus qelmPerspectiveFovRH_m4_32f(Qel32f fovY, Qel32f aspect, Qel32f zNear, Qel32f zFar, Qel32f* dst);
QelStatus qelmOrthoOffCenterLH_m4_32f(Qel32f left, Qel32f right, Qel32f bottom, Qel32f top, Qel32f zNear,
                                      Qel32f zFar, Qel32f* dst);
QelStatus qelmOrthoOffCenterRH_m4_32f(Qel32f left, Qel32f right, Qel32f bottom, Qel32f top, Qel32f zNear,
                                      Qel32f zFar, Qel32f* dst);
QelStatus qelmPerspectiveOffCenterLH_m4_32f(Qel32f left, Qel32f right, Qel32f bottom, Qel32f top, Qel32f zNear,
                                            Qel32f zFar, Qel32f* dst);
QelStatus qelmPerspectiveOffCenterRH_m4_32f(Qel32f left, Qel32f right, Qel32f bottom, Qel32f top, Qel32f zNear,
                                            Qel32f zFar, Qel32f* dst);

QelStatus qelmAffineTransform_m4v2_32f(const Qel32f* m, const Qel32f* src, Qel32f* dst);
QelStatus qelmAffineTransform_m4v2a_32f(const Qel32f* m, const Qel32f* src, int srcStride, Qel32f* dst, int dstStride,
                                        int count);
QelStatus qelmAffineTransform_m4v3_32f(const Qel32f* m, const Qel32f* src, Qel32f* dst);
QelStatus qelmAffineTransform_m4v3a_32f(const Qel32f* m, const Qel32f* src, int srcStride, Qel32f* dst, int dstStride,
                                        int count);
QelStatus qelmAffineTransform_m4v4_32f(const Qel32f* m, const Qel32f* src, Qel32f* dst);
QelStatus qelmAffineTransform_m4v4a_32f(const Qel32f* m, const Qel32f* src, int srcStride, Qel32f* dst, int dstStride,
                                        int count);
QelStatus qelmAffineTransformCoord_m4v2_32f(const Qel32f* m, const Qel32f* src, Qel32f* dst);
QelStatus qelmAffineTransformCoord_m4v2a_32f(const Qel32f* m, const Qel32f* src, int srcStride, Qel32f* dst, int dstStride,
                                             int count);
QelStatus qelmAffineTransformCoord_m4v3_32f(const Qel32f* m, const Qel32f* src, Qel32f* dst);
QelStatus qelmAffineTransformCoord_m4v3a_32f(const Qel32f* m, const Qel32f* src, int srcStride, Qel32f* dst, int dstStride,
                                             int count);
QelStatus qelmAffineTransformNormal_m4v2_32f(const Qel32f* m, const Qel32f* src, Qel32f* dst);
QelStatus qelmAffineTransformNormal_m4v2a_32f(const Qel32f* m, const Qel32f* src, int srcStride, Qel32f* dst, int dstStride,
                                              int count);
QelStatus qelmAffineTransformNormal_m4v3_32f(const Qel32f* m, const Qel32f* src, Qel32f* dst);
QelStatus qelmAffineTransformNormal_m4v3a_32f(const Qel32f* m, const Qel32f* src, int srcStride, Qel32f* dst, int dstStride,
                                              int count);
QelStatus qelmProject_m4v3_32f(const Qel32f* projection, const Qel32f* view, const Qel32f* world, const Qel32f* src,
                               Qel32f viewWidth, Qel32f viewHeight, Qel32f minZ, Qel32f maxZ, Qel32f* dst);
QelStatus qelmProject_m4v3a_32f(const Qel32f* projection, const Qel32f* view, const Qel32f* world, const Qel32f* src,
                                int srcStride, Qel32f viewWidth, Qel32f viewHeight, Qel32f minZ, Qel32f maxZ,
                                Qel32f* dst, int dstStride, int count);
/* Unproject answers qelStatusSingular for a singular world-view-projection
 * chain; qelmAffineTransform3DH_mva_32f, besides its checks, answers
 * qelStatusDivideByZero where a vector's w vanishes (that vector then holds the
 * largest float). The other transforms always answer qelStatusOk. */
QelStatus qelmUnproject_m4v3_32f(const Qel32f* projection, const Qel32f* view, const Qel32f* world, const Qel32f* src,
                                 Qel32f viewWidth, Qel32f viewHeight, Qel32f minZ, Qel32f maxZ, Qel32f* dst);
QelStatus qelmUnproject_m4v3a_32f(const Qel32f* projection, const Qel32f* view, const Qel32f* world, const Qel32f* src,
                                  int srcStride, Qel32f viewWidth, Qel32f viewHeight, Qel32f minZ, Qel32f maxZ,
                                  Qel32f* dst, int dstStride, int count);
QelStatus qelmAffineTransform3DH_mva_32f(const Qel32f* src1, int src1Stride1, int src1Stride2, const Qel32f* src2,
                                         int src2Stride0, int src2Stride2, Qel32f* dst, int dstStride0, int dstStride2,
                                         int count);

QelStatus qelmMul_mm4x4_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmMulTranspose_m4_32f(const Qel32f* src1, const Qel32f* src2, Qel32f* dst);
QelStatus qelmDet_m4_32f(const Qel32f* src, Qel32f* dst);
/* Invert_m4 answers qelStatusSingular for a singular matrix, with 0 in dstDet
 * (which may be null). */
QelStatus qelmInvert_m4_32f(const Qel32f* src, Qel32f* dstDet, Qel32f* dst);
/* The rest always answer qelStatusOk. */
QelStatus qelmTranspose_m4_32f(const Qel32f* src, Qel32f* dst);
QelStatus qelmIsIdentity_m4_32f(const Qel32f* src, Qel32s* dst);

/* ---- General eigenproblems: EigenValues, EigenValuesVectorsRight,
 * EigenValuesVectorsLeft, EigenValuesVectors and the buffer-size queries.
 *
 * The matrix is reduced to Hessenberg form and driven to quasi-triangular form
 * by a Francis double-shift QR iteration, without balancing and without
 * sorting: eigenvalues leave in the order of their place on the final diagonal,
 * a complex pair in neighbouring places, the positive imaginary part first.
 * dstValuesRe and dstValuesIm are plain arrays of `size` values per matrix
 * (elements n*size .. n*size+size-1 for matrix n of an array). `buffer` is the
 * caller's scratch, as many bytes as the buffer-size query of the family
 * answers; it is used on the serial path only. The iteration has a budget of
 * 30*size sweeps per matrix: qelStatusNoConvergence when it runs out.
 *
 * The working matrix is the transpose of the source. So the Right family
 * gives x with A^T x = lambda x (the source's left eigenvectors) and the Left
 * family y with A conj(y) = lambda conj(y) (its right eigenvectors). Column j
 * of a destination is vector j; a complex pair at j, j+1 stores the real part
 * in column j and the imaginary part in column j+1 of the vector of
 * dstValuesRe[j] + i dstValuesIm[j]. Every vector has unit Euclidean length.
 * EigenValuesVectors writes the Right set to its first destination and the
 * Left set to its second. A complex 2x2 system with a pivot below its limit
 * answers qelStatusError; a real one ends the call with qelStatusOk and no
 * vectors written for that matrix and the ones after it. */

/* Buffer sizes in bytes: size*(size+5) elements for EigenValues,
 * size*(3*size+5) for the three vector families. */
QelStatus qelmEigenValuesGetBufSize_32f(int size, int* bufSize);
QelStatus qelmEigenValuesGetBufSize_64f(int size, int* bufSize);
QelStatus qelmEigenValuesVectorsGetBufSize_32f(int size, int* bufSize);
QelStatus qelmEigenValuesVectorsGetBufSize_64f(int size, int* bufSize);

QelStatus qelmEigenValues_m_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* dstValuesRe,
                                Qel32f* dstValuesIm, int size, Qel32f* buffer);
QelStatus qelmEigenValues_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* dstValuesRe,
                                  Qel32f* dstValuesIm, int size, Qel32f* buffer);
QelStatus qelmEigenValues_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                                 Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size, int count,
                                 Qel32f* buffer);
QelStatus qelmEigenValues_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                   Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size, int count,
                                   Qel32f* buffer);
QelStatus qelmEigenValues_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                                   Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size, int count,
                                   Qel32f* buffer);
QelStatus qelmEigenValues_m_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* dstValuesRe,
                                Qel64f* dstValuesIm, int size, Qel64f* buffer);
QelStatus qelmEigenValues_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* dstValuesRe,
                                  Qel64f* dstValuesIm, int size, Qel64f* buffer);
QelStatus qelmEigenValues_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                                 Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size, int count,
                                 Qel64f* buffer);
QelStatus qelmEigenValues_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                   Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size, int count,
                                   Qel64f* buffer);
QelStatus qelmEigenValues_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                                   Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size, int count,
                                   Qel64f* buffer);

QelStatus qelmEigenValuesVectorsRight_m_32f(const Qel32f* src, int srcStride1, int srcStride2,
                                            Qel32f* dstVectors, int dstStride1, int dstStride2,
                                            Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size,
                                            Qel32f* buffer);
QelStatus qelmEigenValuesVectorsRight_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift,
                                              QEL_DST_LIST(Qel32f) dstVectors, int dstRoiShift,
                                              Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size,
                                              Qel32f* buffer);
QelStatus qelmEigenValuesVectorsRight_ma_32f(const Qel32f* src, int srcStride0, int srcStride1,
                                             int srcStride2, Qel32f* dstVectors, int dstStride0,
                                             int dstStride1, int dstStride2, Qel32f* dstValuesRe,
                                             Qel32f* dstValuesIm, int size, int count, Qel32f* buffer);
QelStatus qelmEigenValuesVectorsRight_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1,
                                               int srcStride2, QEL_DST_LIST(Qel32f) dstVectors,
                                               int dstRoiShift, int dstStride1, int dstStride2,
                                               Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size, int count,
                                               Qel32f* buffer);
QelStatus qelmEigenValuesVectorsRight_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                                               QEL_DST_LIST(Qel32f) dstVectors, int dstRoiShift,
                                               int dstStride0, Qel32f* dstValuesRe, Qel32f* dstValuesIm,
                                               int size, int count, Qel32f* buffer);
QelStatus qelmEigenValuesVectorsRight_m_64f(const Qel64f* src, int srcStride1, int srcStride2,
                                            Qel64f* dstVectors, int dstStride1, int dstStride2,
                                            Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size,
                                            Qel64f* buffer);
QelStatus qelmEigenValuesVectorsRight_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift,
                                              QEL_DST_LIST(Qel64f) dstVectors, int dstRoiShift,
                                              Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size,
                                              Qel64f* buffer);
QelStatus qelmEigenValuesVectorsRight_ma_64f(const Qel64f* src, int srcStride0, int srcStride1,
                                             int srcStride2, Qel64f* dstVectors, int dstStride0,
                                             int dstStride1, int dstStride2, Qel64f* dstValuesRe,
                                             Qel64f* dstValuesIm, int size, int count, Qel64f* buffer);
QelStatus qelmEigenValuesVectorsRight_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1,
                                               int srcStride2, QEL_DST_LIST(Qel64f) dstVectors,
                                               int dstRoiShift, int dstStride1, int dstStride2,
                                               Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size, int count,
                                               Qel64f* buffer);
QelStatus qelmEigenValuesVectorsRight_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                                               QEL_DST_LIST(Qel64f) dstVectors, int dstRoiShift,
                                               int dstStride0, Qel64f* dstValuesRe, Qel64f* dstValuesIm,
                                               int size, int count, Qel64f* buffer);

QelStatus qelmEigenValuesVectorsLeft_m_32f(const Qel32f* src, int srcStride1, int srcStride2,
                                           Qel32f* dstVectors, int dstStride1, int dstStride2,
                                           Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size,
                                           Qel32f* buffer);
QelStatus qelmEigenValuesVectorsLeft_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift,
                                             QEL_DST_LIST(Qel32f) dstVectors, int dstRoiShift,
                                             Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size,
                                             Qel32f* buffer);
QelStatus qelmEigenValuesVectorsLeft_ma_32f(const Qel32f* src, int srcStride0, int srcStride1,
                                            int srcStride2, Qel32f* dstVectors, int dstStride0,
                                            int dstStride1, int dstStride2, Qel32f* dstValuesRe,
                                            Qel32f* dstValuesIm, int size, int count, Qel32f* buffer);
QelStatus qelmEigenValuesVectorsLeft_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1,
                                              int srcStride2, QEL_DST_LIST(Qel32f) dstVectors,
                                              int dstRoiShift, int dstStride1, int dstStride2,
                                              Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size, int count,
                                              Qel32f* buffer);
QelStatus qelmEigenValuesVectorsLeft_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                                              QEL_DST_LIST(Qel32f) dstVectors, int dstRoiShift,
                                              int dstStride0, Qel32f* dstValuesRe, Qel32f* dstValuesIm,
                                              int size, int count, Qel32f* buffer);
QelStatus qelmEigenValuesVectorsLeft_m_64f(const Qel64f* src, int srcStride1, int srcStride2,
                                           Qel64f* dstVectors, int dstStride1, int dstStride2,
                                           Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size,
                                           Qel64f* buffer);
QelStatus qelmEigenValuesVectorsLeft_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift,
                                             QEL_DST_LIST(Qel64f) dstVectors, int dstRoiShift,
                                             Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size,
                                             Qel64f* buffer);
QelStatus qelmEigenValuesVectorsLeft_ma_64f(const Qel64f* src, int srcStride0, int srcStride1,
                                            int srcStride2, Qel64f* dstVectors, int dstStride0,
                                            int dstStride1, int dstStride2, Qel64f* dstValuesRe,
                                            Qel64f* dstValuesIm, int size, int count, Qel64f* buffer);
QelStatus qelmEigenValuesVectorsLeft_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1,
                                              int srcStride2, QEL_DST_LIST(Qel64f) dstVectors,
                                              int dstRoiShift, int dstStride1, int dstStride2,
                                              Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size, int count,
                                              Qel64f* buffer);
QelStatus qelmEigenValuesVectorsLeft_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                                              QEL_DST_LIST(Qel64f) dstVectors, int dstRoiShift,
                                              int dstStride0, Qel64f* dstValuesRe, Qel64f* dstValuesIm,
                                              int size, int count, Qel64f* buffer);

QelStatus qelmEigenValuesVectors_m_32f(const Qel32f* src, int srcStride1, int srcStride2,
                                       Qel32f* dstVectorsRight, int dstRightStride1, int dstRightStride2,
                                       Qel32f* dstVectorsLeft, int dstLeftStride1, int dstLeftStride2,
                                       Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size, Qel32f* buffer);
QelStatus qelmEigenValuesVectors_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift,
                                         QEL_DST_LIST(Qel32f) dstVectorsRight, int dstRightRoiShift,
                                         QEL_DST_LIST(Qel32f) dstVectorsLeft, int dstLeftRoiShift,
                                         Qel32f* dstValuesRe, Qel32f* dstValuesIm, int size, Qel32f* buffer);
QelStatus qelmEigenValuesVectors_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                                        Qel32f* dstVectorsRight, int dstRightStride0, int dstRightStride1,
                                        int dstRightStride2, Qel32f* dstVectorsLeft, int dstLeftStride0,
                                        int dstLeftStride1, int dstLeftStride2, Qel32f* dstValuesRe,
                                        Qel32f* dstValuesIm, int size, int count, Qel32f* buffer);
QelStatus qelmEigenValuesVectors_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1,
                                          int srcStride2, QEL_DST_LIST(Qel32f) dstVectorsRight,
                                          int dstRightRoiShift, int dstRightStride1, int dstRightStride2,
                                          QEL_DST_LIST(Qel32f) dstVectorsLeft, int dstLeftRoiShift,
                                          int dstLeftStride1, int dstLeftStride2, Qel32f* dstValuesRe,
                                          Qel32f* dstValuesIm, int size, int count, Qel32f* buffer);
QelStatus qelmEigenValuesVectors_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                                          QEL_DST_LIST(Qel32f) dstVectorsRight, int dstRightRoiShift,
                                          int dstRightStride0, QEL_DST_LIST(Qel32f) dstVectorsLeft,
                                          int dstLeftRoiShift, int dstLeftStride0, Qel32f* dstValuesRe,
                                          Qel32f* dstValuesIm, int size, int count, Qel32f* buffer);
QelStatus qelmEigenValuesVectors_m_64f(const Qel64f* src, int srcStride1, int srcStride2,
                                       Qel64f* dstVectorsRight, int dstRightStride1, int dstRightStride2,
                                       Qel64f* dstVectorsLeft, int dstLeftStride1, int dstLeftStride2,
                                       Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size, Qel64f* buffer);
QelStatus qelmEigenValuesVectors_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift,
                                         QEL_DST_LIST(Qel64f) dstVectorsRight, int dstRightRoiShift,
                                         QEL_DST_LIST(Qel64f) dstVectorsLeft, int dstLeftRoiShift,
                                         Qel64f* dstValuesRe, Qel64f* dstValuesIm, int size, Qel64f* buffer);
QelStatus qelmEigenValuesVectors_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                                        Qel64f* dstVectorsRight, int dstRightStride0, int dstRightStride1,
                                        int dstRightStride2, Qel64f* dstVectorsLeft, int dstLeftStride0,
                                        int dstLeftStride1, int dstLeftStride2, Qel64f* dstValuesRe,
                                        Qel64f* dstValuesIm, int size, int count, Qel64f* buffer);
QelStatus qelmEigenValuesVectors_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1,
                                          int srcStride2, QEL_DST_LIST(Qel64f) dstVectorsRight,
                                          int dstRightRoiShift, int dstRightStride1, int dstRightStride2,
                                          QEL_DST_LIST(Qel64f) dstVectorsLeft, int dstLeftRoiShift,
                                          int dstLeftStride1, int dstLeftStride2, Qel64f* dstValuesRe,
                                          Qel64f* dstValuesIm, int size, int count, Qel64f* buffer);
QelStatus qelmEigenValuesVectors_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                                          QEL_DST_LIST(Qel64f) dstVectorsRight, int dstRightRoiShift,
                                          int dstRightStride0, QEL_DST_LIST(Qel64f) dstVectorsLeft,
                                          int dstLeftRoiShift, int dstLeftStride0, Qel64f* dstValuesRe,
                                          Qel64f* dstValuesIm, int size, int count, Qel64f* buffer);

/* ---- Invert and Det. */

/* Invert: the inverse as the adjugate over the determinant. `buffer` holds at
 * least size*size + size elements (a work area, then size Qel32s row indices);
 * it is used by orders 2 and 7 up only, yet may never be null. A singular
 * matrix answers qelStatusSingular; an array stops at its first singular
 * matrix. */
QelStatus qelmInvert_m_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* buffer, Qel32f* dst,
                           int dstStride1, int dstStride2, int size);
QelStatus qelmInvert_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* buffer, QEL_DST_LIST(Qel32f) dst,
                             int dstRoiShift, int size);
QelStatus qelmInvert_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, Qel32f* buffer,
                            Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int size, int count);
QelStatus qelmInvert_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                              Qel32f* buffer, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                              int dstStride2, int size, int count);
QelStatus qelmInvert_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f* buffer,
                              QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int size, int count);
QelStatus qelmInvert_m_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* buffer, Qel64f* dst,
                           int dstStride1, int dstStride2, int size);
QelStatus qelmInvert_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* buffer, QEL_DST_LIST(Qel64f) dst,
                             int dstRoiShift, int size);
QelStatus qelmInvert_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, Qel64f* buffer,
                            Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int size, int count);
QelStatus qelmInvert_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                              Qel64f* buffer, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                              int dstStride2, int size, int count);
QelStatus qelmInvert_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f* buffer,
                              QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int size, int count);

/* Det: the determinant of each matrix into dst (one element, or a packed array
 * of `count` elements). `buffer` as for Invert. A singular matrix is no error:
 * the status is qelStatusOk. */
QelStatus qelmDet_m_32f(const Qel32f* src, int srcStride1, int srcStride2, int size, Qel32f* buffer, Qel32f* dst);
QelStatus qelmDet_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int size, Qel32f* buffer, Qel32f* dst);
QelStatus qelmDet_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, int size,
                         Qel32f* buffer, Qel32f* dst, int count);
QelStatus qelmDet_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2, int size,
                           Qel32f* buffer, Qel32f* dst, int count);
QelStatus qelmDet_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, int size, Qel32f* buffer,
                           Qel32f* dst, int count);
QelStatus qelmDet_m_64f(const Qel64f* src, int srcStride1, int srcStride2, int size, Qel64f* buffer, Qel64f* dst);
QelStatus qelmDet_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int size, Qel64f* buffer, Qel64f* dst);
QelStatus qelmDet_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, int size,
                         Qel64f* buffer, Qel64f* dst, int count);
QelStatus qelmDet_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2, int size,
                           Qel64f* buffer, Qel64f* dst, int count);
QelStatus qelmDet_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, int size, Qel64f* buffer,
                           Qel64f* dst, int count);

/* ---- CholeskyDecomp and CholeskyBackSubst. */
/* CholeskyDecomp: A = L L^T for a symmetric positive definite A, read on and below its
 * diagonal. dst holds L below the diagonal and 1 / L(i,i) on it; its upper triangle is
 * neither read nor written. A value under a root at or below the tolerance answers
 * qelStatusNotPositiveDefinite; an array stops at its first such matrix.
 * CholeskyBackSubst solves A x = b (src2 = b, dst = x) with that factor. In mva one
 * factor serves every right-hand side. */
QelStatus qelmCholeskyDecomp_m_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* dst, int dstStride1,
                                   int dstStride2, int size);
QelStatus qelmCholeskyDecomp_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, QEL_DST_LIST(Qel32f) dst,
                                     int dstRoiShift, int size);
QelStatus qelmCholeskyDecomp_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, Qel32f* dst,
                                    int dstStride0, int dstStride1, int dstStride2, int size, int count);
QelStatus qelmCholeskyDecomp_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                      QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1, int dstStride2,
                                      int size, int count);
QelStatus qelmCholeskyDecomp_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                                      QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int size, int count);
QelStatus qelmCholeskyBackSubst_mv_32f(const Qel32f* src, int srcStride1, int srcStride2, const Qel32f* src2,
                                       int src2Stride2, Qel32f* dst, int dstStride2, int size);
QelStatus qelmCholeskyBackSubst_mv_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, QEL_SRC_LIST(Qel32f) src2,
                                         int src2RoiShift, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int size);
QelStatus qelmCholeskyBackSubst_mva_32f(const Qel32f* src, int srcStride1, int srcStride2, const Qel32f* src2,
                                        int src2Stride0, int src2Stride2, Qel32f* dst, int dstStride0, int dstStride2,
                                        int size, int count);
QelStatus qelmCholeskyBackSubst_mva_32f_L(const Qel32f* src, int srcStride1, int srcStride2,
                                          QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2,
                                          QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int size,
                                          int count);
QelStatus qelmCholeskyBackSubst_mva_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, QEL_SRC_LIST(Qel32f) src2,
                                          int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel32f) dst,
                                          int dstRoiShift, int dstStride0, int size, int count);
QelStatus qelmCholeskyBackSubst_mava_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2,
                                         const Qel32f* src2, int src2Stride0, int src2Stride2, Qel32f* dst,
                                         int dstStride0, int dstStride2, int size, int count);
QelStatus qelmCholeskyBackSubst_mava_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                           QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2,
                                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int size,
                                           int count);
QelStatus qelmCholeskyBackSubst_mava_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0,
                                           QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                                           QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int size,
                                           int count);
QelStatus qelmCholeskyDecomp_m_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* dst, int dstStride1,
                                   int dstStride2, int size);
QelStatus qelmCholeskyDecomp_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, QEL_DST_LIST(Qel64f) dst,
                                     int dstRoiShift, int size);
QelStatus qelmCholeskyDecomp_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, Qel64f* dst,
                                    int dstStride0, int dstStride1, int dstStride2, int size, int count);
QelStatus qelmCholeskyDecomp_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                      QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1, int dstStride2,
                                      int size, int count);
QelStatus qelmCholeskyDecomp_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                                      QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int size, int count);
QelStatus qelmCholeskyBackSubst_mv_64f(const Qel64f* src, int srcStride1, int srcStride2, const Qel64f* src2,
                                       int src2Stride2, Qel64f* dst, int dstStride2, int size);
QelStatus qelmCholeskyBackSubst_mv_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, QEL_SRC_LIST(Qel64f) src2,
                                         int src2RoiShift, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int size);
QelStatus qelmCholeskyBackSubst_mva_64f(const Qel64f* src, int srcStride1, int srcStride2, const Qel64f* src2,
                                        int src2Stride0, int src2Stride2, Qel64f* dst, int dstStride0, int dstStride2,
                                        int size, int count);
QelStatus qelmCholeskyBackSubst_mva_64f_L(const Qel64f* src, int srcStride1, int srcStride2,
                                          QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2,
                                          QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int size,
                                          int count);
QelStatus qelmCholeskyBackSubst_mva_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, QEL_SRC_LIST(Qel64f) src2,
                                          int src2RoiShift, int src2Stride0, QEL_DST_LIST(Qel64f) dst,
                                          int dstRoiShift, int dstStride0, int size, int count);
QelStatus qelmCholeskyBackSubst_mava_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2,
                                         const Qel64f* src2, int src2Stride0, int src2Stride2, Qel64f* dst,
                                         int dstStride0, int dstStride2, int size, int count);
QelStatus qelmCholeskyBackSubst_mava_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                           QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2,
                                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int size,
                                           int count);
QelStatus qelmCholeskyBackSubst_mava_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0,
                                           QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                                           QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int size,
                                           int count);

/* ---- QRDecomp and QRBackSubst. */
/* QRDecomp: Householder QR of a height x width matrix, height >= width. dst holds R on
 * and above the diagonal and the tails of the reflectors below it (their heads, 1, are
 * implied). A column that has vanished below the diagonal answers qelStatusDivideByZero.
 * QRBackSubst solves R x = Q^T b (src2 = b of height elements, dst = x of width), the
 * least-squares solution when height > width. buffer: height elements of scratch, never
 * null; a call that forks leaves it alone. */
QelStatus qelmQRDecomp_m_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* buffer, Qel32f* dst,
                             int dstStride1, int dstStride2, int width, int height);
QelStatus qelmQRDecomp_m_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* buffer, QEL_DST_LIST(Qel32f) dst,
                               int dstRoiShift, int width, int height);
QelStatus qelmQRDecomp_ma_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, Qel32f* buffer,
                              Qel32f* dst, int dstStride0, int dstStride1, int dstStride2, int width, int height,
                              int count);
QelStatus qelmQRDecomp_ma_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                Qel32f* buffer, QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride1,
                                int dstStride2, int width, int height, int count);
QelStatus qelmQRDecomp_ma_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f* buffer,
                                QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width, int height,
                                int count);
QelStatus qelmQRBackSubst_mv_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* buffer,
                                 const Qel32f* src2, int src2Stride2, Qel32f* dst, int dstStride2, int width,
                                 int height);
QelStatus qelmQRBackSubst_mv_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* buffer,
                                   QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, QEL_DST_LIST(Qel32f) dst,
                                   int dstRoiShift, int width, int height);
QelStatus qelmQRBackSubst_mva_32f(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* buffer,
                                  const Qel32f* src2, int src2Stride0, int src2Stride2, Qel32f* dst, int dstStride0,
                                  int dstStride2, int width, int height, int count);
QelStatus qelmQRBackSubst_mva_32f_L(const Qel32f* src, int srcStride1, int srcStride2, Qel32f* buffer,
                                    QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2,
                                    QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int width, int height,
                                    int count);
QelStatus qelmQRBackSubst_mva_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, Qel32f* buffer,
                                    QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                                    QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width, int height,
                                    int count);
QelStatus qelmQRBackSubst_mava_32f(const Qel32f* src, int srcStride0, int srcStride1, int srcStride2, Qel32f* buffer,
                                   const Qel32f* src2, int src2Stride0, int src2Stride2, Qel32f* dst, int dstStride0,
                                   int dstStride2, int width, int height, int count);
QelStatus qelmQRBackSubst_mava_32f_L(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                     Qel32f* buffer, QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride2,
                                     QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride2, int width, int height,
                                     int count);
QelStatus qelmQRBackSubst_mava_32f_P(QEL_SRC_LIST(Qel32f) src, int srcRoiShift, int srcStride0, Qel32f* buffer,
                                     QEL_SRC_LIST(Qel32f) src2, int src2RoiShift, int src2Stride0,
                                     QEL_DST_LIST(Qel32f) dst, int dstRoiShift, int dstStride0, int width, int height,
                                     int count);
QelStatus qelmQRDecomp_m_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* buffer, Qel64f* dst,
                             int dstStride1, int dstStride2, int width, int height);
QelStatus qelmQRDecomp_m_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* buffer, QEL_DST_LIST(Qel64f) dst,
                               int dstRoiShift, int width, int height);
QelStatus qelmQRDecomp_ma_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, Qel64f* buffer,
                              Qel64f* dst, int dstStride0, int dstStride1, int dstStride2, int width, int height,
                              int count);
QelStatus qelmQRDecomp_ma_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                Qel64f* buffer, QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride1,
                                int dstStride2, int width, int height, int count);
QelStatus qelmQRDecomp_ma_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f* buffer,
                                QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width, int height,
                                int count);
QelStatus qelmQRBackSubst_mv_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* buffer,
                                 const Qel64f* src2, int src2Stride2, Qel64f* dst, int dstStride2, int width,
                                 int height);
QelStatus qelmQRBackSubst_mv_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* buffer,
                                   QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, QEL_DST_LIST(Qel64f) dst,
                                   int dstRoiShift, int width, int height);
QelStatus qelmQRBackSubst_mva_64f(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* buffer,
                                  const Qel64f* src2, int src2Stride0, int src2Stride2, Qel64f* dst, int dstStride0,
                                  int dstStride2, int width, int height, int count);
QelStatus qelmQRBackSubst_mva_64f_L(const Qel64f* src, int srcStride1, int srcStride2, Qel64f* buffer,
                                    QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2,
                                    QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int width, int height,
                                    int count);
QelStatus qelmQRBackSubst_mva_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, Qel64f* buffer,
                                    QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                                    QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width, int height,
                                    int count);
QelStatus qelmQRBackSubst_mava_64f(const Qel64f* src, int srcStride0, int srcStride1, int srcStride2, Qel64f* buffer,
                                   const Qel64f* src2, int src2Stride0, int src2Stride2, Qel64f* dst, int dstStride0,
                                   int dstStride2, int width, int height, int count);
QelStatus qelmQRBackSubst_mava_64f_L(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride1, int srcStride2,
                                     Qel64f* buffer, QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride2,
                                     QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride2, int width, int height,
                                     int count);
QelStatus qelmQRBackSubst_mava_64f_P(QEL_SRC_LIST(Qel64f) src, int srcRoiShift, int srcStride0, Qel64f* buffer,
                                     QEL_SRC_LIST(Qel64f) src2, int src2RoiShift, int src2Stride0,
                                     QEL_DST_LIST(Qel64f) dst, int dstRoiShift, int dstStride0, int width, int height,
                                     int count);

#ifdef __cplusplus
}
#endif

#endif
