// Add and Sub over vectors and constants: one front-end of the second kind,
// the one-vector kernel, and the export table.
#include "../frame/export.h"
#include "elementwise.h"
#include "../frame/operands.h"

namespace {
using namespace qel;

// The work figure of each shape class, from `len` and `count`.
enum class VecWork {
  OneArray,     // vac, vav, vva:   (2 count + 1) len
  ConstArrays,  // vaca, cava:      (2 len + 1) count
  TwoArrays,    // vava:            3 len count
  ConstPerObj,  // vca, cav:        len (count + 1) + count
  CountOnly,    // cva:             2 count, whatever len is
  None,         // no work test: always serial
};

Work workOf(VecWork kind, int len, int count) {
  switch (kind) {
    case VecWork::OneArray: return (Work(2) * count + 1) * len;
    case VecWork::ConstArrays: return (Work(2) * len + 1) * count;
    case VecWork::TwoArrays: return Work(3) * len * count;
    case VecWork::ConstPerObj: return Work(len) * (Work(count) + 1) + count;
    case VecWork::CountOnly:
    case VecWork::None: break;
  }
  return Work(2) * count;
}

// Parallel when W is above the limit; cva's limits are one lower.
template <class T, Layout L>
WorkLimit vectorLimit(VecWork kind) {
  int32_t t = L == Layout::L ? 2500 : L == Layout::P ? 1500 : std::is_same_v<T, Qel32f> ? 4800 : 1400;
  return WorkLimit::parallelAbove(kind == VecWork::CountOnly ? t - 1 : t);
}

template <class Op, class T, Layout L, class A, class B, class D>
QelStatus vectorArrayFront(const char* order, VecWork kind, A a, B b, D d, int len, int count) {
  if (QelStatus st = firstFailure(order, checkViews(count, {len}, a, b, d))) return st;
  auto job = makeJob(
      [len](int share, void*, auto va, auto vb, auto vd) {
        return elementwise<Op, 1>(va, vb, vd, len, 1, share);
      },
      a, b, d);
  if (kind == VecWork::None) return runSerial(job, count);
  return runSecondKind(job, count, workOf(kind, len, count), vectorLimit<T, L>(kind));
}

template <class Op, class A, class B, class D>
QelStatus vectorOnceFront(const char* order, A a, B b, D d, int len) {
  if (QelStatus st = firstFailure(order, checkViews(1, {len}, a, b, d))) return st;
  auto job = makeJob(
      [len](int, void*, auto va, auto vb, auto vd) { return vectorOnce<Op>(va, vb, vd, len); }, a,
      b, d);
  return runSerial(job, 1);
}

}  // namespace

// Operands are named in argument order: (kind, name) twice. SWAP 1 marks the
// shapes whose constant comes first (cv, cav, cva, cava): it is passed after
// the vector, and the difference is taken the other way.
#define QEL_SWAP_0(x, y) x, y
#define QEL_SWAP_1(x, y) y, x

#define QEL_VEC_ARRAY(OP, SHAPE, T, F, SUFFIX, LAY, ORDER, WORK, K1, N1, K2, N2, SWAP, DLAY)    \
  QELM_API QelStatus qelm##OP##_##SHAPE##_##F##SUFFIX(QEL_ARGS_##K1##_##LAY(const T, N1),             \
                                                      QEL_ARGS_##K2##_##LAY(const T, N2),             \
                                                      QEL_ARGS_va_##DLAY(T, dst), int len, int count) { \
    return vectorArrayFront<OP##Op, T, Layout::DLAY>(                                        \
        ORDER, VecWork::WORK,                                                                \
        QEL_SWAP_##SWAP(QEL_VIEW_##K1##_##LAY(N1, len), QEL_VIEW_##K2##_##LAY(N2, len)),           \
        QEL_VIEW_va_##DLAY(dst, len), len, count);                                            \
  }

#define QEL_VEC_ONCE(OP, SHAPE, T, F, SUFFIX, LAY, ORDER, K1, N1, K2, N2, SWAP)                \
  QELM_API QelStatus qelm##OP##_##SHAPE##_##F##SUFFIX(QEL_ARGS_##K1##_##LAY(const T, N1),             \
                                                      QEL_ARGS_##K2##_##LAY(const T, N2),             \
                                                      QEL_ARGS_v_##LAY(T, dst), int len) {        \
    return vectorOnceFront<OP##Op>(                                                          \
        ORDER, QEL_SWAP_##SWAP(QEL_VIEW_##K1##_##LAY(N1, len), QEL_VIEW_##K2##_##LAY(N2, len)),    \
        QEL_VIEW_v_##LAY(dst, len), len);                                                    \
  }

// Every type and layout of a shape with count. The orders are those of
// standard, _L and _P in 32f and 64f; the _P members may also differ in the
// description of their first array (P, or Pns without its object-distance
// check) and in their work test (the 64f one).
#define QEL_VEC_ARRAY_SHAPE(OP, SHAPE, OS, OL, OP32, OP64, P32, W, W64P, K1, N1, K2, N2, SWAP) \
  QEL_VEC_ARRAY(OP, SHAPE, Qel32f, 32f, , S, OS, W, K1, N1, K2, N2, SWAP, S)                \
  QEL_VEC_ARRAY(OP, SHAPE, Qel32f, 32f, _L, L, OL, W, K1, N1, K2, N2, SWAP, L)              \
  QEL_VEC_ARRAY(OP, SHAPE, Qel32f, 32f, _P, P32, OP32, W, K1, N1, K2, N2, SWAP, P)          \
  QEL_VEC_ARRAY(OP, SHAPE, Qel64f, 64f, , S, OS, W, K1, N1, K2, N2, SWAP, S)                \
  QEL_VEC_ARRAY(OP, SHAPE, Qel64f, 64f, _L, L, OL, W, K1, N1, K2, N2, SWAP, L)              \
  QEL_VEC_ARRAY(OP, SHAPE, Qel64f, 64f, _P, P, OP64, W64P, K1, N1, K2, N2, SWAP, P)

#define QEL_VEC_ONCE_SHAPE(OP, SHAPE, K1, N1, K2, N2, SWAP)                    \
  QEL_VEC_ONCE(OP, SHAPE, Qel32f, 32f, , S, "NZS", K1, N1, K2, N2, SWAP)       \
  QEL_VEC_ONCE(OP, SHAPE, Qel32f, 32f, _P, P, "NZR", K1, N1, K2, N2, SWAP)     \
  QEL_VEC_ONCE(OP, SHAPE, Qel64f, 64f, , S, "NZS", K1, N1, K2, N2, SWAP)       \
  QEL_VEC_ONCE(OP, SHAPE, Qel64f, 64f, _P, P, "NZR", K1, N1, K2, N2, SWAP)

QEL_VEC_ONCE_SHAPE(Add, vv, v, src1, v, src2, 0)
QEL_VEC_ONCE_SHAPE(Add, vc, v, src, c, val, 0)
QEL_VEC_ARRAY_SHAPE(Add, vav, "NZSC", "NZSRC", "NZSCR", "NZSCR", P, OneArray, OneArray, va, src1, v, src2, 0)
QEL_VEC_ARRAY_SHAPE(Add, vac, "NCZS", "NCZSR", "NCZSR", "NCZSR", P, OneArray, OneArray, va, src, c, val, 0)
QEL_VEC_ARRAY_SHAPE(Add, vava, "NCZS", "NCZSR", "NCZSR", "NCZSR", P, TwoArrays, TwoArrays, va, src1, va, src2, 0)
// Add_vca in 64f _P tests no roi shift.
QEL_VEC_ARRAY_SHAPE(Add, vca, "NCZS", "NCZSR", "NCZSR", "NCZS", P, ConstPerObj, ConstPerObj, v, src, ca, val, 0)
// Add_vaca in 32f _P leaves srcStride0 out of its stride checks.
QEL_VEC_ARRAY_SHAPE(Add, vaca, "NCZS", "NCZSR", "NCZSR", "NCZSR", Pns, ConstArrays, ConstArrays, va, src, ca, val, 0)

QEL_VEC_ONCE_SHAPE(Sub, vv, v, src1, v, src2, 0)
QEL_VEC_ONCE_SHAPE(Sub, vc, v, src, c, val, 0)
QEL_VEC_ONCE_SHAPE(Sub, cv, v, src, c, val, 1)
QEL_VEC_ARRAY_SHAPE(Sub, vav, "NZSC", "NZSRC", "NZSCR", "NZSCR", P, OneArray, OneArray, va, src1, v, src2, 0)
QEL_VEC_ARRAY_SHAPE(Sub, vac, "NCZS", "NCZSR", "NCZSR", "NCZSR", P, OneArray, OneArray, va, src, c, val, 0)
QEL_VEC_ARRAY_SHAPE(Sub, vca, "NCZS", "NCZSR", "NCZSR", "NCZSR", P, ConstPerObj, ConstPerObj, v, src, ca, val, 0)
QEL_VEC_ARRAY_SHAPE(Sub, vava, "NCZS", "NCZSR", "NCZSR", "NCZSR", P, TwoArrays, TwoArrays, va, src1, va, src2, 0)
QEL_VEC_ARRAY_SHAPE(Sub, vaca, "NCZS", "NCZSR", "NCZSR", "NCZSR", P, ConstArrays, ConstArrays, va, src, ca, val, 0)
QEL_VEC_ARRAY_SHAPE(Sub, cva, "NCZS", "NCZSR", "NCZSR", "NCZSR", P, CountOnly, CountOnly, va, src, c, val, 1)
QEL_VEC_ARRAY_SHAPE(Sub, cava, "NCZS", "NCZSR", "NCZSR", "NCZSR", P, ConstArrays, ConstArrays, va, src, ca, val, 1)
// Sub_cav in 32f _P tests no roi shift.
QEL_VEC_ARRAY_SHAPE(Sub, cav, "NCZS", "NCZSR", "NCZS", "NCZSR", P, ConstPerObj, ConstPerObj, v, src, ca, val, 1)
// Sub_vva in 64f _P has no work test and no driver.
QEL_VEC_ARRAY_SHAPE(Sub, vva, "NCZS", "NCZSR", "NCZSR", "NCZSR", P, OneArray, None, v, src1, va, src2, 0)
