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
