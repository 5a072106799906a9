// qelmMul over a matrix and vectors, Qel32f exports. One line per export:
//   matrix (m, t one; ma, ta an array), vector (v, va), result (v, va), type,
//   layout, and the sums of the contiguous kernel's square forms (n = 3..6):
//   Left the rule, Spread and Mva32 the layout of one matrix against many vectors
//   (Mva32 with its aligned pairs at n = 4),
//   None no square forms at all, every size takes the split products.
// General, _L general and _P kernels add their square forms from the left.
#include "mul_vector_exports.h"

// clang-format off
//       export                   mat vec dst type    lay contiguous sums
QEL_MULV(qelmMul_mv_32f,          m,  v,  v,  Qel32f, S,  Left)
QEL_MULV(qelmMul_mv_32f_P,        m,  v,  v,  Qel32f, P,  Left)
QEL_MULV(qelmMul_tv_32f,          t,  v,  v,  Qel32f, S,  Left)
QEL_MULV(qelmMul_tv_32f_P,        t,  v,  v,  Qel32f, P,  Left)
QEL_MULV(qelmMul_mva_32f,         m,  va, va, Qel32f, S,  Mva32)
QEL_MULV(qelmMul_mva_32f_L,       m,  va, va, Qel32f, L,  None)
QEL_MULV(qelmMul_mva_32f_P,       m,  va, va, Qel32f, P,  Left)
QEL_MULV(qelmMul_tva_32f,         t,  va, va, Qel32f, S,  Left)
QEL_MULV(qelmMul_tva_32f_L,       t,  va, va, Qel32f, L,  None)
QEL_MULV(qelmMul_tva_32f_P,       t,  va, va, Qel32f, P,  Left)
QEL_MULV(qelmMul_mav_32f,         ma, v,  va, Qel32f, S,  Spread)
QEL_MULV(qelmMul_mav_32f_L,       ma, v,  va, Qel32f, L,  Spread)
QEL_MULV(qelmMul_mav_32f_P,       ma, v,  va, Qel32f, P,  Left)
QEL_MULV(qelmMul_tav_32f,         ta, v,  va, Qel32f, S,  Left)
QEL_MULV(qelmMul_tav_32f_L,       ta, v,  va, Qel32f, L,  Left)
QEL_MULV(qelmMul_tav_32f_P,       ta, v,  va, Qel32f, P,  Left)
QEL_MULV(qelmMul_mava_32f,        ma, va, va, Qel32f, S,  Spread)
QEL_MULV(qelmMul_mava_32f_L,      ma, va, va, Qel32f, L,  Spread)
QEL_MULV(qelmMul_mava_32f_P,      ma, va, va, Qel32f, P,  Left)
QEL_MULV(qelmMul_tava_32f,        ta, va, va, Qel32f, S,  Left)
QEL_MULV(qelmMul_tava_32f_L,      ta, va, va, Qel32f, L,  Left)
QEL_MULV(qelmMul_tava_32f_P,      ta, va, va, Qel32f, P,  Left)
// clang-format on
