// qelmDotProduct and qelmL2Norm: one line per export. Columns: the kinds of the
// sources (v one vector, va an array), type, layout, the trees of lengths 3..6
// in the contiguous and in the general kernel, the long sum of the contiguous
// kernel, its extra paths, and the work limits below which the contiguous and
// the general kernel stay serial. _P lines have one kernel: the general tree,
// the pointer-list peel, one limit. A _L general kernel is the single pair's
// general kernel once per object, so it carries that kernel's tree.
#include "../frame/export.h"
#include "dot.h"

#define QEL_DOT_COUNT_ARG_v
#define QEL_DOT_COUNT_ARG_va , int count
#define QEL_DOT_COUNT_v 1
#define QEL_DOT_COUNT_va count

#define QEL_DOT(name, KA, KB, T, LAY, CTREE, GTREE, LONG, EXTRA, CONTIGUOUS, GENERAL)                 \
  QELM_API QelStatus name(QEL_ARGS_##KA##_##LAY(const T, src1), QEL_ARGS_##KB##_##LAY(const T, src2),    \
                          QEL_ARGS_r_##LAY(T, dst), int len QEL_DOT_COUNT_ARG_##KA) {                 \
    using namespace qel::vec;                                                                         \
    return dotFront<DotLine{Tree::CTREE, Tree::GTREE, Long::LONG, Extra::EXTRA, false}>(              \
        QEL_VIEW_##KA##_##LAY(src1, len), QEL_VIEW_##KB##_##LAY(src2, len), QEL_VIEW_r_##LAY(dst, len), \
        len, QEL_DOT_COUNT_##KA, CONTIGUOUS, GENERAL);                                                \
  }

#define QEL_NORM(name, KA, T, LAY, CTREE, GTREE, LONG, EXTRA, LIMIT)                                  \
  QELM_API QelStatus name(QEL_ARGS_##KA##_##LAY(const T, src), QEL_ARGS_r_##LAY(T, dst),               \
                          int len QEL_DOT_COUNT_ARG_##KA) {                                           \
    using namespace qel::vec;                                                                         \
    return dotFront<DotLine{Tree::CTREE, Tree::GTREE, Long::LONG, Extra::EXTRA, true}>(               \
        QEL_VIEW_##KA##_##LAY(src, len), QEL_VIEW_##KA##_##LAY(src, len), QEL_VIEW_r_##LAY(dst, len),   \
        len, QEL_DOT_COUNT_##KA, LIMIT, LIMIT);                                                       \
  }

// clang-format off
//      export                       src1 src2 type    lay contiguous general long     extra     limits
QEL_DOT(qelmDotProduct_vv_32f,       v,   v,   Qel32f, S,  Plain,     Back,   Aligned, None,     0,    0)
QEL_DOT(qelmDotProduct_vv_32f_P,     v,   v,   Qel32f, P,  Plain,     Plain,  Split,   None,     0,    0)
QEL_DOT(qelmDotProduct_vv_64f,       v,   v,   Qel64f, S,  Plain,     Plain,  Aligned, None,     0,    0)
QEL_DOT(qelmDotProduct_vv_64f_P,     v,   v,   Qel64f, P,  Plain,     Plain,  Split,   None,     0,    0)
QEL_DOT(qelmDotProduct_vav_32f,      va,  v,   Qel32f, S,  Pairs4,    Plain,  Aligned, None,     5001, 2621)
QEL_DOT(qelmDotProduct_vav_32f_L,    va,  v,   Qel32f, L,  Pairs4,    Back,   Aligned, None,     2401, 2401)
QEL_DOT(qelmDotProduct_vav_32f_P,    va,  v,   Qel32f, P,  Plain,     Plain,  Split,   None,     2401, 2401)
QEL_DOT(qelmDotProduct_vav_64f,      va,  v,   Qel64f, S,  Plain,     Plain,  Aligned, None,     3501, 2001)
QEL_DOT(qelmDotProduct_vav_64f_L,    va,  v,   Qel64f, L,  Plain,     Plain,  Aligned, None,     4201, 3301)
QEL_DOT(qelmDotProduct_vav_64f_P,    va,  v,   Qel64f, P,  Plain,     Plain,  Split,   None,     2001, 2001)
QEL_DOT(qelmDotProduct_vava_32f,     va,  va,  Qel32f, S,  Plain,     Plain,  Aligned, Pairwise, 5001, 2621)
QEL_DOT(qelmDotProduct_vava_32f_L,   va,  va,  Qel32f, L,  Plain,     Back,   Split,   None,     2401, 2401)
QEL_DOT(qelmDotProduct_vava_32f_P,   va,  va,  Qel32f, P,  Plain,     Plain,  Split,   None,     2401, 2401)
QEL_DOT(qelmDotProduct_vava_64f,     va,  va,  Qel64f, S,  EvensDot,  Plain,  Aligned, None,     3501, 2001)
QEL_DOT(qelmDotProduct_vava_64f_L,   va,  va,  Qel64f, L,  Plain,     Plain,  Split,   None,     4201, 3301)
QEL_DOT(qelmDotProduct_vava_64f_P,   va,  va,  Qel64f, P,  Plain,     Plain,  Split,   None,     2001, 2001)

//       export                src type    lay contiguous general long     extra     limit
QEL_NORM(qelmL2Norm_v_32f,     v,  Qel32f, S,  Pairs,     Rot,    Aligned, None,     0)
QEL_NORM(qelmL2Norm_v_32f_P,   v,  Qel32f, P,  Plain,     Plain,  Split,   None,     0)
QEL_NORM(qelmL2Norm_v_64f,     v,  Qel64f, S,  Evens,     Plain,  Aligned, None,     0)
QEL_NORM(qelmL2Norm_v_64f_P,   v,  Qel64f, P,  Plain,     Plain,  Split,   None,     0)
QEL_NORM(qelmL2Norm_va_32f,    va, Qel32f, S,  Pairs5,    Plain,  Split,   Groups,   1501)
QEL_NORM(qelmL2Norm_va_32f_L,  va, Qel32f, L,  Plain,     Rot,    Split,   Groups,   1501)
QEL_NORM(qelmL2Norm_va_32f_P,  va, Qel32f, P,  Plain,     Plain,  Split,   Estimate, 1501)
QEL_NORM(qelmL2Norm_va_64f,    va, Qel64f, S,  Evens,     Plain,  Split,   None,     1501)
QEL_NORM(qelmL2Norm_va_64f_L,  va, Qel64f, L,  Plain,     Plain,  Split,   None,     1501)
QEL_NORM(qelmL2Norm_va_64f_P,  va, Qel64f, P,  Plain,     Plain,  Split,   None,     1501)
// clang-format on
