// qelmMul over two matrices, Qel64f exports. One line per export:
//   operands (m, t one matrix; ma, ta an array), destination (m or ma),
//   the square sizes with straight-line code in the contiguous and the general
//   kernel (k3456 = 3, 4, 5, 6; k345; k3; kNone), and the odd members:
//   kNoTile      contiguous kernel without the 4-by-2 tile, a plain loop instead
//   kOrSelect    sizes 3 and 4 chosen by the OR of the four extents
//   kOwnGeneral  _L general kernel with a body of its own; every other _L general
//                kernel calls the single shape's general kernel once per object.
// _P kernels have no contiguous form; their column reads kNone.
#include "mul_matrix_exports.h"

// clang-format off
//      export                  op1 op2 dst type    lay  contiguous general flags
QEL_MUL(qelmMul_mm_64f,          m,  m,  m, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mm_64f_P,        m,  m,  m, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mt_64f,          m,  t,  m, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mt_64f_P,        m,  t,  m, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tm_64f,          t,  m,  m, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tm_64f_P,        t,  m,  m, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tt_64f,          t,  t,  m, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tt_64f_P,        t,  t,  m, Qel64f, P,   kNone,     k3456, kOrSelect)
QEL_MUL(qelmMul_mam_64f,         ma, m, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mam_64f_L,       ma, m, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mam_64f_P,       ma, m, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mat_64f,         ma, t, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mat_64f_L,       ma, t, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mat_64f_P,       ma, t, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tam_64f,         ta, m, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tam_64f_L,       ta, m, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tam_64f_P,       ta, m, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tat_64f,         ta, t, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tat_64f_L,       ta, t, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tat_64f_P,       ta, t, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mma_64f,         m,  ma, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mma_64f_L,       m,  ma, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mma_64f_P,       m,  ma, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mta_64f,         m,  ta, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mta_64f_L,       m,  ta, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mta_64f_P,       m,  ta, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tma_64f,         t,  ma, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tma_64f_L,       t,  ma, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tma_64f_P,       t,  ma, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tta_64f,         t,  ta, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tta_64f_L,       t,  ta, ma, Qel64f, L,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tta_64f_P,       t,  ta, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mama_64f,        ma, ma, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mama_64f_L,      ma, ma, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mama_64f_P,      ma, ma, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mata_64f,        ma, ta, ma, Qel64f, S,   k3456,     k3456, kNoTile)
QEL_MUL(qelmMul_mata_64f_L,      ma, ta, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mata_64f_P,      ma, ta, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tama_64f,        ta, ma, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tama_64f_L,      ta, ma, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tama_64f_P,      ta, ma, ma, Qel64f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tata_64f,        ta, ta, ma, Qel64f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tata_64f_L,      ta, ta, ma, Qel64f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tata_64f_P,      ta, ta, ma, Qel64f, P,   kNone,     k3456, 0)
// clang-format on
