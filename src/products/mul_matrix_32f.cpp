// qelmMul over two matrices, Qel32f exports. One line per export:
//   operands (m, t one matrix; ma, ta an array), destination (1 or n),
//   the square sizes with straight-line code in the contiguous and the general
//   kernel (k3456 = 3, 4, 5, 6; k345; k3; kNone), and the odd members:
//   kNoTile      contiguous kernel without the 4-by-2 tile, a plain loop instead
//   kOrSelect    sizes 3 and 4 chosen by the OR of the four extents
//   kOwnGeneral  _L general kernel with a body of its own; every other _L general
//                kernel calls the single shape's general kernel once per object.
// _P kernels have no contiguous form; their column reads kNone.
#include "mul_matrix_exports.h"

// clang-format off
//      export                  op1 op2 dst type    form contiguous general flags
QEL_MUL(qelmMul_mm_32f,          m,  m,  1, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_mm_32f_P,        m,  m,  1, Qel32f, P,   kNone,     k3456, kOrSelect)
QEL_MUL(qelmMul_mt_32f,          m,  t,  1, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_mt_32f_P,        m,  t,  1, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tm_32f,          t,  m,  1, Qel32f, Std, k345,      k3456, 0)
QEL_MUL(qelmMul_tm_32f_P,        t,  m,  1, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tt_32f,          t,  t,  1, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_tt_32f_P,        t,  t,  1, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mam_32f,         ma, m,  n, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_mam_32f_L,       ma, m,  n, Qel32f, L,   k3456,     k3,    kOwnGeneral)
QEL_MUL(qelmMul_mam_32f_P,       ma, m,  n, Qel32f, P,   kNone,     k3,    0)
QEL_MUL(qelmMul_mat_32f,         ma, t,  n, Qel32f, Std, k3456,     k3,    0)
QEL_MUL(qelmMul_mat_32f_L,       ma, t,  n, Qel32f, L,   k3456,     k3,    kOwnGeneral)
QEL_MUL(qelmMul_mat_32f_P,       ma, t,  n, Qel32f, P,   kNone,     k3,    0)
QEL_MUL(qelmMul_tam_32f,         ta, m,  n, Qel32f, Std, k3456,     k3,    0)
QEL_MUL(qelmMul_tam_32f_L,       ta, m,  n, Qel32f, L,   k3456,     k3,    kOwnGeneral)
QEL_MUL(qelmMul_tam_32f_P,       ta, m,  n, Qel32f, P,   kNone,     k3,    0)
QEL_MUL(qelmMul_tat_32f,         ta, t,  n, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_tat_32f_L,       ta, t,  n, Qel32f, L,   k3456,     k3,    kOwnGeneral)
QEL_MUL(qelmMul_tat_32f_P,       ta, t,  n, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mma_32f,         m,  ma, n, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_mma_32f_L,       m,  ma, n, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mma_32f_P,       m,  ma, n, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mta_32f,         m,  ta, n, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_mta_32f_L,       m,  ta, n, Qel32f, L,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mta_32f_P,       m,  ta, n, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tma_32f,         t,  ma, n, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_tma_32f_L,       t,  ma, n, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tma_32f_P,       t,  ma, n, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tta_32f,         t,  ta, n, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_tta_32f_L,       t,  ta, n, Qel32f, L,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tta_32f_P,       t,  ta, n, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mama_32f,        ma, ma, n, Qel32f, Std, k3456,     k345,  0)
QEL_MUL(qelmMul_mama_32f_L,      ma, ma, n, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mama_32f_P,      ma, ma, n, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mata_32f,        ma, ta, n, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_mata_32f_L,      ma, ta, n, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mata_32f_P,      ma, ta, n, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tama_32f,        ta, ma, n, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_tama_32f_L,      ta, ma, n, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tama_32f_P,      ta, ma, n, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tata_32f,        ta, ta, n, Qel32f, Std, k3456,     k3456, 0)
QEL_MUL(qelmMul_tata_32f_L,      ta, ta, n, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tata_32f_P,      ta, ta, n, Qel32f, P,   kNone,     k3456, 0)
// clang-format on
