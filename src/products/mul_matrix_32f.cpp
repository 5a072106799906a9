// qelmMul over two matrices, Qel32f exports. One line per export:
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
QEL_MUL(qelmMul_mm_32f,          m,  m,  m, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mm_32f_P,        m,  m,  m, Qel32f, P,   kNone,     k3456, kOrSelect)
QEL_MUL(qelmMul_mt_32f,          m,  t,  m, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mt_32f_P,        m,  t,  m, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tm_32f,          t,  m,  m, Qel32f, S,   k345,      k3456, 0)
QEL_MUL(qelmMul_tm_32f_P,        t,  m,  m, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tt_32f,          t,  t,  m, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tt_32f_P,        t,  t,  m, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mam_32f,         ma, m, ma, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mam_32f_L,       ma, m, ma, Qel32f, L,   k3456,     k3,    kOwnGeneral)
QEL_MUL(qelmMul_mam_32f_P,       ma, m, ma, Qel32f, P,   kNone,     k3,    0)
QEL_MUL(qelmMul_mat_32f,         ma, t, ma, Qel32f, S,   k3456,     k3,    0)
QEL_MUL(qelmMul_mat_32f_L,       ma, t, ma, Qel32f, L,   k3456,     k3,    kOwnGeneral)
QEL_MUL(qelmMul_mat_32f_P,       ma, t, ma, Qel32f, P,   kNone,     k3,    0)
QEL_MUL(qelmMul_tam_32f,         ta, m, ma, Qel32f, S,   k3456,     k3,    0)
QEL_MUL(qelmMul_tam_32f_L,       ta, m, ma, Qel32f, L,   k3456,     k3,    kOwnGeneral)
QEL_MUL(qelmMul_tam_32f_P,       ta, m, ma, Qel32f, P,   kNone,     k3,    0)
QEL_MUL(qelmMul_tat_32f,         ta, t, ma, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tat_32f_L,       ta, t, ma, Qel32f, L,   k3456,     k3,    kOwnGeneral)
QEL_MUL(qelmMul_tat_32f_P,       ta, t, ma, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mma_32f,         m,  ma, ma, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mma_32f_L,       m,  ma, ma, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mma_32f_P,       m,  ma, ma, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mta_32f,         m,  ta, ma, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mta_32f_L,       m,  ta, ma, Qel32f, L,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mta_32f_P,       m,  ta, ma, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tma_32f,         t,  ma, ma, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tma_32f_L,       t,  ma, ma, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tma_32f_P,       t,  ma, ma, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tta_32f,         t,  ta, ma, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tta_32f_L,       t,  ta, ma, Qel32f, L,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tta_32f_P,       t,  ta, ma, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mama_32f,        ma, ma, ma, Qel32f, S,   k3456,     k345,  0)
QEL_MUL(qelmMul_mama_32f_L,      ma, ma, ma, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mama_32f_P,      ma, ma, ma, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_mata_32f,        ma, ta, ma, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mata_32f_L,      ma, ta, ma, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_mata_32f_P,      ma, ta, ma, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tama_32f,        ta, ma, ma, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tama_32f_L,      ta, ma, ma, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tama_32f_P,      ta, ma, ma, Qel32f, P,   kNone,     k3456, 0)
QEL_MUL(qelmMul_tata_32f,        ta, ta, ma, Qel32f, S,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tata_32f_L,      ta, ta, ma, Qel32f, L,   k3456,     k3456, 0)
QEL_MUL(qelmMul_tata_32f_P,      ta, ta, ma, Qel32f, P,   kNone,     k3456, 0)
// clang-format on
