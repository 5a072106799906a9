// Add and Sub over matrices: one front-end, one kernel, and the export table.
#include "../frame/export.h"
#include "elementwise.h"
#include "../frame/operands.h"

namespace {
using namespace qel;

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

// One export: OP, shape, element type, layout, check order, then the kinds of
// operands A and B (m, t, ma, ta). Sizes are the result's: a transposed operand
// is stored with `height` elements a row.
#define QEL_EW_ROW_m width
#define QEL_EW_ROW_ma width
#define QEL_EW_ROW_t height
#define QEL_EW_ROW_ta height

#define QEL_EW_ARRAY(OP, SHAPE, T, F, SUFFIX, LAY, ORDER, KA, KB)                                   \
  QELM_API QelStatus qelm##OP##_##SHAPE##_##F##SUFFIX(QEL_ARGS_##KA##_##LAY(const T, src1),         \
                                                      QEL_ARGS_##KB##_##LAY(const T, src2),         \
                                                      QEL_ARGS_ma_##LAY(T, dst), int width,         \
                                                      int height, int count) {                      \
    return matrixArrayFront<OP##Op, T, Layout::LAY>(ORDER, QEL_VIEW_##KA##_##LAY(src1, QEL_EW_ROW_##KA), \
                                                    QEL_VIEW_##KB##_##LAY(src2, QEL_EW_ROW_##KB),   \
                                                    QEL_VIEW_ma_##LAY(dst, width), width, height, count); \
  }

#define QEL_EW_ONE(OP, SHAPE, T, F, SUFFIX, LAY, ORDER, KA, KB)                                     \
  QELM_API QelStatus qelm##OP##_##SHAPE##_##F##SUFFIX(QEL_ARGS_##KA##_##LAY(const T, src1),         \
                                                      QEL_ARGS_##KB##_##LAY(const T, src2),         \
                                                      QEL_ARGS_m_##LAY(T, dst), int width, int height) { \
    return matrixSingleFront<OP##Op>(ORDER, QEL_VIEW_##KA##_##LAY(src1, QEL_EW_ROW_##KA),           \
                                     QEL_VIEW_##KB##_##LAY(src2, QEL_EW_ROW_##KB),                  \
                                     QEL_VIEW_m_##LAY(dst, width), width, height);                  \
  }

// Every type and layout of one shape. ORDER is the standard layout's order;
// _L and _P check N C Z S R.
#define QEL_EW_ARRAY_SHAPE(OP, SHAPE, ORDER, KA, KB)                   \
  QEL_EW_ARRAY(OP, SHAPE, Qel32f, 32f, , S, ORDER, KA, KB)             \
  QEL_EW_ARRAY(OP, SHAPE, Qel32f, 32f, _L, L, "NCZSR", KA, KB)         \
  QEL_EW_ARRAY(OP, SHAPE, Qel32f, 32f, _P, P, "NCZSR", KA, KB)         \
  QEL_EW_ARRAY(OP, SHAPE, Qel64f, 64f, , S, ORDER, KA, KB)             \
  QEL_EW_ARRAY(OP, SHAPE, Qel64f, 64f, _L, L, "NCZSR", KA, KB)         \
  QEL_EW_ARRAY(OP, SHAPE, Qel64f, 64f, _P, P, "NCZSR", KA, KB)

#define QEL_EW_ONE_SHAPE(OP, SHAPE, KA, KB)                   \
  QEL_EW_ONE(OP, SHAPE, Qel32f, 32f, , S, "NZS", KA, KB)      \
  QEL_EW_ONE(OP, SHAPE, Qel32f, 32f, _P, P, "NZR", KA, KB)    \
  QEL_EW_ONE(OP, SHAPE, Qel64f, 64f, , S, "NZS", KA, KB)      \
  QEL_EW_ONE(OP, SHAPE, Qel64f, 64f, _P, P, "NZR", KA, KB)

// Add commutes, so it has fewer shapes than Sub. mam (and Sub's mma) test the
// strides before the sizes in the standard layout.
QEL_EW_ONE_SHAPE(Add, mm, m, m)
QEL_EW_ONE_SHAPE(Add, tm, t, m)
QEL_EW_ONE_SHAPE(Add, tt, t, t)
QEL_EW_ARRAY_SHAPE(Add, mam, "NCSZ", ma, m)
QEL_EW_ARRAY_SHAPE(Add, mat, "NCZS", ma, t)
QEL_EW_ARRAY_SHAPE(Add, tam, "NCZS", ta, m)
QEL_EW_ARRAY_SHAPE(Add, tat, "NCZS", ta, t)
QEL_EW_ARRAY_SHAPE(Add, mama, "NCZS", ma, ma)
QEL_EW_ARRAY_SHAPE(Add, tama, "NCZS", ta, ma)
QEL_EW_ARRAY_SHAPE(Add, tata, "NCZS", ta, ta)

QEL_EW_ONE_SHAPE(Sub, mm, m, m)
QEL_EW_ONE_SHAPE(Sub, mt, m, t)
QEL_EW_ONE_SHAPE(Sub, tm, t, m)
QEL_EW_ONE_SHAPE(Sub, tt, t, t)
QEL_EW_ARRAY_SHAPE(Sub, mam, "NCSZ", ma, m)
QEL_EW_ARRAY_SHAPE(Sub, mat, "NCZS", ma, t)
QEL_EW_ARRAY_SHAPE(Sub, tam, "NCZS", ta, m)
QEL_EW_ARRAY_SHAPE(Sub, tat, "NCZS", ta, t)
QEL_EW_ARRAY_SHAPE(Sub, mma, "NCSZ", m, ma)
QEL_EW_ARRAY_SHAPE(Sub, mta, "NCZS", m, ta)
QEL_EW_ARRAY_SHAPE(Sub, tma, "NCZS", t, ma)
QEL_EW_ARRAY_SHAPE(Sub, tta, "NCZS", t, ta)
QEL_EW_ARRAY_SHAPE(Sub, mama, "NCZS", ma, ma)
QEL_EW_ARRAY_SHAPE(Sub, mata, "NCZS", ma, ta)
QEL_EW_ARRAY_SHAPE(Sub, tama, "NCZS", ta, ma)
QEL_EW_ARRAY_SHAPE(Sub, tata, "NCZS", ta, ta)
