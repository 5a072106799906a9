// Mul by a constant: the array front-end, the single-object front-end and the
// export table. Each result element is one product, so the element-wise kernel
// walks every shape with MulOp, the constant (or array of constants) as its
// operand B; only the frame around it (work figures, limits, the kind of
// front-end) is this family's own.
#include "../frame/export.h"
#include "../elementwise/elementwise.h"
#include "../frame/operands.h"

namespace {
using namespace qel;

// The work figure of each shape class; a vector is a matrix of height 1.
enum class MulWork {
  Elements,     // mac, tac, vac:  2 width height count
  ConstPerObj,  // vca:            len (count + 1) + count
  ConstArrays,  // vaca:           count (2 len + 1)
};

Work workOf(MulWork kind, int width, int height, int count) {
  switch (kind) {
    case MulWork::ConstPerObj: return Work(width) * (Work(count) + 1) + count;
    case MulWork::ConstArrays: return Work(count) * (Work(2) * width + 1);
    case MulWork::Elements: break;
  }
  return Work(2) * width * height * count;
}

// The front-end kinds of the table. The first kind tests the strides first and
// takes the limit of the chosen kernel; a _P form has one kernel and so one
// limit. The second kind tests the work first, against one limit.
struct FirstKind {
  WorkLimit contiguous, general;
};
struct SecondKind {
  WorkLimit limit;
};
FirstKind firstKind(WorkLimit contiguous, WorkLimit general) { return {contiguous, general}; }
FirstKind firstKind(WorkLimit only) { return {only, only}; }
SecondKind secondKind(WorkLimit limit) { return {limit}; }
WorkLimit below(int32_t t) { return WorkLimit::serialBelow(t); }
WorkLimit atMost(int32_t t) { return WorkLimit::serialAtMost(t); }

template <class Job>
QelStatus runBy(FirstKind kind, const Job& job, int count, Work w) {
  return runFirstKind(job, count, w, kind.contiguous, kind.general);
}
template <class Job>
QelStatus runBy(SecondKind kind, const Job& job, int count, Work w) {
  return runSecondKind(job, count, w, kind.limit);
}

// Rows: 0 for matrices (unrolled when square of 3 to 6), 1 for vectors.
template <int Rows, class Kind, class A, class C, class D>
QelStatus mulArrayFront(const char* order, Kind kind, MulWork work, A a, C c, D d, int width,
                        int height, int count) {
  if (QelStatus st = firstFailure(order, checkViews(count, {width, height}, a, c, d))) return st;
  auto job = makeJob(
      [width, height](int share, void*, auto va, auto vc, auto vd) {
        return elementwise<MulOp, Rows>(va, vc, vd, width, height, share);
      },
      a, c, d);
  return runBy(kind, job, count, workOf(work, width, height, count));
}

// mc, tc, vc: the kernel pair on one object, never a driver. A vector takes the
// one-vector kernel, which runs long contiguous vectors in aligned units.
template <int Rows, class A, class C, class D>
QelStatus mulOnceFront(const char* order, A a, C c, D d, int width, int height) {
  if (QelStatus st = firstFailure(order, checkViews(1, {width, height}, a, c, d))) return st;
  auto job = makeJob(
      [width, height](int, void*, auto va, auto vc, auto vd) {
        if constexpr (Rows == 1) return vectorOnce<MulOp>(va, vc, vd, width);
        else return elementwise<MulOp, 0>(va, vc, vd, width, height, 1);
      },
      a, c, d);
  return runSerial(job, 1);
}

}  // namespace

// By the kind of operand: its stored row length (a _P table's row; sizes are
// the result's, so a transposed matrix is stored with `height` elements a row),
// and, by the destination, the size parameters and the rank of the kernel.
#define QEL_MULC_ROW_m width
#define QEL_MULC_ROW_ma width
#define QEL_MULC_ROW_t height
#define QEL_MULC_ROW_ta height
#define QEL_MULC_ROW_v len
#define QEL_MULC_ROW_va len
#define QEL_MULC_ROW_c 0
#define QEL_MULC_ROW_ca 0
#define QEL_MULC_SIZES_m int width, int height
#define QEL_MULC_SIZES_ma int width, int height
#define QEL_MULC_SIZES_v int len
#define QEL_MULC_SIZES_va int len
#define QEL_MULC_DIMS_m width, height
#define QEL_MULC_DIMS_ma width, height
#define QEL_MULC_DIMS_v len, 1
#define QEL_MULC_DIMS_va len, 1
#define QEL_MULC_ROWS_m 0
#define QEL_MULC_ROWS_ma 0
#define QEL_MULC_ROWS_v 1
#define QEL_MULC_ROWS_va 1

// One export: shape, element type, layout, check order, the kinds of src, val
// and dst, the work figure and the front-end kind with its limits.
#define QEL_MULC_ARRAY(SHAPE, T, F, SUFFIX, LAY, ORDER, KS, KC, KD, WORK, KIND)                  \
  QELM_API QelStatus qelmMul_##SHAPE##_##F##SUFFIX(                                               \
      QEL_ARGS_##KS##_##LAY(const T, src), QEL_ARGS_##KC##_##LAY(const T, val),                   \
      QEL_ARGS_##KD##_##LAY(T, dst), QEL_MULC_SIZES_##KD, int count) {                            \
    return mulArrayFront<QEL_MULC_ROWS_##KD>(                                                     \
        ORDER, KIND, MulWork::WORK, QEL_VIEW_##KS##_##LAY(src, QEL_MULC_ROW_##KS),                \
        QEL_VIEW_##KC##_##LAY(val, QEL_MULC_ROW_##KC), QEL_VIEW_##KD##_##LAY(dst, QEL_MULC_ROW_##KD), \
        QEL_MULC_DIMS_##KD, count);                                                               \
  }

#define QEL_MULC_ONE(SHAPE, T, F, SUFFIX, LAY, ORDER, KS, KD)                                    \
  QELM_API QelStatus qelmMul_##SHAPE##_##F##SUFFIX(QEL_ARGS_##KS##_##LAY(const T, src),           \
                                                   QEL_ARGS_c_##LAY(const T, val),                \
                                                   QEL_ARGS_##KD##_##LAY(T, dst), QEL_MULC_SIZES_##KD) { \
    return mulOnceFront<QEL_MULC_ROWS_##KD>(ORDER, QEL_VIEW_##KS##_##LAY(src, QEL_MULC_ROW_##KS), \
                                            QEL_VIEW_c_##LAY(val, 0),                             \
                                            QEL_VIEW_##KD##_##LAY(dst, QEL_MULC_ROW_##KD),        \
                                            QEL_MULC_DIMS_##KD);                                  \
  }

// Every type and layout of a shape with count: the front-end of each form is a
// column, in the order 32f, 32f_L, 32f_P, 64f, 64f_L, 64f_P.
#define QEL_MULC_ARRAY_SHAPE(SHAPE, KS, KC, KD, WORK, K32, K32L, K32P, K64, K64L, K64P) \
  QEL_MULC_ARRAY(SHAPE, Qel32f, 32f, , S, "NCZS", KS, KC, KD, WORK, K32)                 \
  QEL_MULC_ARRAY(SHAPE, Qel32f, 32f, _L, L, "NCZSR", KS, KC, KD, WORK, K32L)             \
  QEL_MULC_ARRAY(SHAPE, Qel32f, 32f, _P, P, "NCZSR", KS, KC, KD, WORK, K32P)             \
  QEL_MULC_ARRAY(SHAPE, Qel64f, 64f, , S, "NCZS", KS, KC, KD, WORK, K64)                 \
  QEL_MULC_ARRAY(SHAPE, Qel64f, 64f, _L, L, "NCZSR", KS, KC, KD, WORK, K64L)             \
  QEL_MULC_ARRAY(SHAPE, Qel64f, 64f, _P, P, "NCZSR", KS, KC, KD, WORK, K64P)

#define QEL_MULC_ONE_SHAPE(SHAPE, KS, KD)                  \
  QEL_MULC_ONE(SHAPE, Qel32f, 32f, , S, "NZS", KS, KD)     \
  QEL_MULC_ONE(SHAPE, Qel32f, 32f, _P, P, "NZR", KS, KD)   \
  QEL_MULC_ONE(SHAPE, Qel64f, 64f, , S, "NZS", KS, KD)     \
  QEL_MULC_ONE(SHAPE, Qel64f, 64f, _P, P, "NZR", KS, KD)

QEL_MULC_ONE_SHAPE(mc, m, m)
QEL_MULC_ONE_SHAPE(tc, t, m)
QEL_MULC_ONE_SHAPE(vc, v, v)

// The limits are the family's own by shape and form, each in its own sense:
// below(t) is serial while W < t, atMost(t) while W <= t. mac_32f_L alone drops
// its general limit to 1501; vac_32f keeps a contiguous 2500 against 3600.
QEL_MULC_ARRAY_SHAPE(mac, ma, c, ma, Elements,
                     firstKind(below(3501), below(3501)), firstKind(below(3501), below(1501)),
                     firstKind(atMost(1700)), firstKind(below(3501), below(3501)),
                     firstKind(below(3501), below(3501)), firstKind(atMost(1700)))
QEL_MULC_ARRAY_SHAPE(tac, ta, c, ma, Elements,
                     firstKind(below(3501), below(3501)), firstKind(below(3501), below(1501)),
                     firstKind(atMost(1700)), firstKind(below(3501), below(3501)),
                     firstKind(below(3501), below(3501)), firstKind(atMost(1700)))
QEL_MULC_ARRAY_SHAPE(vac, va, c, va, Elements,
                     firstKind(atMost(2500), atMost(1440)), firstKind(atMost(3600), atMost(1440)),
                     firstKind(atMost(1440)), firstKind(atMost(3600), atMost(1440)),
                     firstKind(atMost(3600), atMost(1440)), firstKind(atMost(1440)))
QEL_MULC_ARRAY_SHAPE(vca, v, ca, va, ConstPerObj,
                     secondKind(atMost(2100)), secondKind(atMost(1200)), secondKind(below(651)),
                     secondKind(atMost(2100)), secondKind(atMost(1200)), secondKind(below(651)))
QEL_MULC_ARRAY_SHAPE(vaca, va, ca, va, ConstArrays,
                     secondKind(atMost(2100)), secondKind(atMost(1200)), secondKind(below(651)),
                     secondKind(atMost(2100)), secondKind(atMost(1200)), secondKind(below(651)))
