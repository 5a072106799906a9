// qelmMul over a matrix and vectors, Qel64f exports. One line per export:
//   matrix (m, t one; ma, ta an array), vector (v, va), result (v, va), type,
//   layout, and the sums of the contiguous kernel's square forms (n = 3..6):
//   Left the rule, Pairs4 horizontal pairs at n = 4,
//   None no square forms at all, every size takes the split products.
// General, _L general and _P kernels add their square forms from the left.
#include "mul_vector_exports.h"

// clang-format off
//       export                   mat vec dst type    lay contiguous sums
QEL_MULV(qelmMul_mv_64f,          m,  v,  v,  Qel64f, S,  Left)
QEL_MULV(qelmMul_mv_64f_P,        m,  v,  v,  Qel64f, P,  Left)
QEL_MULV(qelmMul_tv_64f,          t,  v,  v,  Qel64f, S,  Left)
QEL_MULV(qelmMul_tv_64f_P,        t,  v,  v,  Qel64f, P,  Left)
QEL_MULV(qelmMul_mva_64f,         m,  va, va, Qel64f, S,  Pairs4)
QEL_MULV(qelmMul_mva_64f_L,       m,  va, va, Qel64f, L,  Pairs4)
QEL_MULV(qelmMul_mva_64f_P,       m,  va, va, Qel64f, P,  Left)
QEL_MULV(qelmMul_tva_64f,         t,  va, va, Qel64f, S,  Left)
QEL_MULV(qelmMul_tva_64f_L,       t,  va, va, Qel64f, L,  None)
QEL_MULV(qelmMul_tva_64f_P,       t,  va, va, Qel64f, P,  Left)
QEL_MULV(qelmMul_mav_64f,         ma, v,  va, Qel64f, S,  Left)
QEL_MULV(qelmMul_mav_64f_L,       ma, v,  va, Qel64f, L,  Left)
QEL_MULV(qelmMul_mav_64f_P,       ma, v,  va, Qel64f, P,  Left)
QEL_MULV(qelmMul_tav_64f,         ta, v,  va, Qel64f, S,  Left)
QEL_MULV(qelmMul_tav_64f_L,       ta, v,  va, Qel64f, L,  Left)
QEL_MULV(qelmMul_tav_64f_P,       ta, v,  va, Qel64f, P,  Left)
QEL_MULV(qelmMul_mava_64f,        ma, va, va, Qel64f, S,  Left)
QEL_MULV(qelmMul_mava_64f_L,      ma, va, va, Qel64f, L,  Left)
QEL_MULV(qelmMul_mava_64f_P,      ma, va, va, Qel64f, P,  Left)
QEL_MULV(qelmMul_tava_64f,        ta, va, va, Qel64f, S,  Left)
QEL_MULV(qelmMul_tava_64f_L,      ta, va, va, Qel64f, L,  None)
QEL_MULV(qelmMul_tava_64f_P,      ta, va, va, Qel64f, P,  Left)
// clang-format on
