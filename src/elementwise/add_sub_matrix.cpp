// Add and Sub over matrices: one front-end, one kernel, and the export table.
#include "../frame/export.h"
#include "elementwise.h"
#include "operands.h"

namespace {
using namespace qel;

enum class Layout { S, L, P };

// Serial below 3000 only for the 32f standard contiguous kernels; 2000 elsewhere.
template <class T, Layout L>
WorkLimit contiguousLimit() {
  return WorkLimit::serialBelow(std::is_same_v<T, Qel32f> && L == Layout::S ? 3000 : 2000);
}

// Front-end of the first kind for every array shape: checks in `order`, the
// work figure by the number of array operands, then the kernel pair or driver.
template <class Op, class T, Layout L, class A, class B, class D>
QelStatus matrixArrayFront(const char* order, A a, B b, D d, int width, int height, int count) {
  if (QelStatus st = firstFailure(order, checkViews(count, {width, height}, a, b, d))) return st;
  const Work w = (A::isArray && B::isArray) ? Work(3) * width * height * count
                                            : Work(width) * height * (Work(2) * count + 1);
  auto job = makeJob(
      [width, height](int share, void*, auto va, auto vb, auto vd) {
        return elementwise<Op, 0>(va, vb, vd, width, height, share);
      },
      a, b, d);
  return runFirstKind(job, count, w, contiguousLimit<T, L>(), WorkLimit::serialBelow(2000));
}

// Shapes without count: the kernel pair on one object, never a driver.
template <class Op, class A, class B, class D>
QelStatus matrixSingleFront(const char* order, A a, B b, D d, int width, int height) {
  if (QelStatus st = firstFailure(order, checkViews(1, {width, height}, a, b, d))) return st;
  auto job = makeJob(
      [width, height](int, void*, auto va, auto vb, auto vd) {
        return elementwise<Op, 0>(va, vb, vd, width, height, 1);
      },
      a, b, d);
  return runSerial(job, 1);
}

}  // namespace

// One export: OP, shape, element type, layout, check order, then operand A and
// B as (kind, reading).
#define QEL_EW_ARRAY(OP, SHAPE, T, F, SUFFIX, LAY, ORDER, KA, RA, KB, RB)                          \
  QELM_API QelStatus qelm##OP##_##SHAPE##_##F##SUFFIX(QEL_P_##KA##_##LAY(T, src1),               \
                                                      QEL_P_##KB##_##LAY(T, src2),               \
                                                      QEL_D_ARR_##LAY(T), int width, int height, \
                                                      int count) {                               \
    return matrixArrayFront<OP##Op, T, Layout::LAY>(                                             \
        ORDER, QEL_READ_##RA(QEL_V_##KA##_##LAY(src1, QEL_ROWLEN_##RA)),                         \
        QEL_READ_##RB(QEL_V_##KB##_##LAY(src2, QEL_ROWLEN_##RB)), QEL_V_ARR_##LAY(dst, width),   \
        width, height, count);                                                                   \
  }

#define QEL_EW_ONE(OP, SHAPE, T, F, SUFFIX, LAY, ORDER, RA, RB)                                    \
  QELM_API QelStatus qelm##OP##_##SHAPE##_##F##SUFFIX(QEL_P_ONE_##LAY(T, src1),                  \
                                                      QEL_P_ONE_##LAY(T, src2),                  \
                                                      QEL_D_ONE_##LAY(T), int width, int height) { \
    return matrixSingleFront<OP##Op>(ORDER,                                                      \
                                     QEL_READ_##RA(QEL_V_ONE_##LAY(src1, QEL_ROWLEN_##RA)),      \
                                     QEL_READ_##RB(QEL_V_ONE_##LAY(src2, QEL_ROWLEN_##RB)),      \
                                     QEL_V_ONE_##LAY(dst, width), width, height);                \
  }

// Every type and layout of one shape. ORDER is the standard layout's order;
// _L and _P check N C Z S R.
#define QEL_EW_ARRAY_SHAPE(OP, SHAPE, ORDER, KA, RA, KB, RB)                   \
  QEL_EW_ARRAY(OP, SHAPE, Qel32f, 32f, , S, ORDER, KA, RA, KB, RB)             \
  QEL_EW_ARRAY(OP, SHAPE, Qel32f, 32f, _L, L, "NCZSR", KA, RA, KB, RB)         \
  QEL_EW_ARRAY(OP, SHAPE, Qel32f, 32f, _P, P, "NCZSR", KA, RA, KB, RB)         \
  QEL_EW_ARRAY(OP, SHAPE, Qel64f, 64f, , S, ORDER, KA, RA, KB, RB)             \
  QEL_EW_ARRAY(OP, SHAPE, Qel64f, 64f, _L, L, "NCZSR", KA, RA, KB, RB)         \
  QEL_EW_ARRAY(OP, SHAPE, Qel64f, 64f, _P, P, "NCZSR", KA, RA, KB, RB)

#define QEL_EW_ONE_SHAPE(OP, SHAPE, RA, RB)                   \
  QEL_EW_ONE(OP, SHAPE, Qel32f, 32f, , S, "NZS", RA, RB)      \
  QEL_EW_ONE(OP, SHAPE, Qel32f, 32f, _P, P, "NZR", RA, RB)    \
  QEL_EW_ONE(OP, SHAPE, Qel64f, 64f, , S, "NZS", RA, RB)      \
  QEL_EW_ONE(OP, SHAPE, Qel64f, 64f, _P, P, "NZR", RA, RB)

// Add commutes, so it has fewer shapes than Sub. mam (and Sub's mma) test the
// strides before the sizes in the standard layout.
QEL_EW_ONE_SHAPE(Add, mm, m, m)
QEL_EW_ONE_SHAPE(Add, tm, t, m)
QEL_EW_ONE_SHAPE(Add, tt, t, t)
QEL_EW_ARRAY_SHAPE(Add, mam, "NCSZ", ARR, m, ONE, m)
QEL_EW_ARRAY_SHAPE(Add, mat, "NCZS", ARR, m, ONE, t)
QEL_EW_ARRAY_SHAPE(Add, tam, "NCZS", ARR, t, ONE, m)
QEL_EW_ARRAY_SHAPE(Add, tat, "NCZS", ARR, t, ONE, t)
QEL_EW_ARRAY_SHAPE(Add, mama, "NCZS", ARR, m, ARR, m)
QEL_EW_ARRAY_SHAPE(Add, tama, "NCZS", ARR, t, ARR, m)
QEL_EW_ARRAY_SHAPE(Add, tata, "NCZS", ARR, t, ARR, t)

QEL_EW_ONE_SHAPE(Sub, mm, m, m)
QEL_EW_ONE_SHAPE(Sub, mt, m, t)
QEL_EW_ONE_SHAPE(Sub, tm, t, m)
QEL_EW_ONE_SHAPE(Sub, tt, t, t)
QEL_EW_ARRAY_SHAPE(Sub, mam, "NCSZ", ARR, m, ONE, m)
QEL_EW_ARRAY_SHAPE(Sub, mat, "NCZS", ARR, m, ONE, t)
QEL_EW_ARRAY_SHAPE(Sub, tam, "NCZS", ARR, t, ONE, m)
QEL_EW_ARRAY_SHAPE(Sub, tat, "NCZS", ARR, t, ONE, t)
QEL_EW_ARRAY_SHAPE(Sub, mma, "NCSZ", ONE, m, ARR, m)
QEL_EW_ARRAY_SHAPE(Sub, mta, "NCZS", ONE, m, ARR, t)
QEL_EW_ARRAY_SHAPE(Sub, tma, "NCZS", ONE, t, ARR, m)
QEL_EW_ARRAY_SHAPE(Sub, tta, "NCZS", ONE, t, ARR, t)
QEL_EW_ARRAY_SHAPE(Sub, mama, "NCZS", ARR, m, ARR, m)
QEL_EW_ARRAY_SHAPE(Sub, mata, "NCZS", ARR, m, ARR, t)
QEL_EW_ARRAY_SHAPE(Sub, tama, "NCZS", ARR, t, ARR, m)
QEL_EW_ARRAY_SHAPE(Sub, tata, "NCZS", ARR, t, ARR, t)
