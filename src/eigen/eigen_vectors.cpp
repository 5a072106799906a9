// EigenValuesVectorsRight, EigenValuesVectorsLeft and EigenValuesVectors: the
// front-end and the exports.
#include "../frame/export.h"
#include "../frame/operands.h"
#include "eigen_vectors.h"

namespace {
using namespace qel;
using namespace qel::eigen;

// size * (3 size + 1) * count up to 500 stays serial: this family's limit
// includes equality.
const WorkLimit kVectorsLimit = WorkLimit::serialAtMost(500);

// Checks in `order`: pointers, size, count, then the source's shift and
// strides, then the destinations' shifts and strides. S is the type of the
// shift arithmetic. A quiet stop ends the array with success.
template <Sets Set, class S, class T, class Src, class... Dst>
QelStatus vectorsFront(const char* order, Src src, T* re, T* im, int size, int count, T* buffer, Dst... dst) {
  CheckGroups g = checkViews(count, {size}, src);
  g.pointers = g.pointers && (dst.pointerOk() && ...) && re && im && buffer;
  if (QelStatus st = firstFailure(order, g)) return st;
  CheckGroups gd;
  gd.strides = (dst.stridesOk() && ...);
  gd.shifts = (dst.shiftsOk() && ...);
  if (QelStatus st = firstFailure(order, gd)) return st;

  auto job = eigenJob(
      [size](int share, T* scratch, auto s, T* r, T* i, auto... d) -> QelStatus {
        for (int o = 0; o < share; ++o) {
          const QelStatus st =
              vectorsOfOne<Set, S>(s.object(o), size, scratch, r + o * size, i + o * size, d.object(o)...);
          if (st == kStopQuietly) return qelStatusOk;
          if (st) return st;
        }
        return qelStatusOk;
      },
      size, re, im, src, dst...);
  if constexpr (!Src::isArray) {
    return runSerial(job, 1, buffer);
  } else {
    const Work w = Work(size) * (Work(3) * size + 1) * count;
    return runEigen(job, count, w, kVectorsLimit, buffer, size);
  }
}

}  // namespace

#define QEL_EIGEN_VECTORS_COUNT_m
#define QEL_EIGEN_VECTORS_COUNT_ma , int count
#define QEL_EIGEN_VECTORS_N_m 1
#define QEL_EIGEN_VECTORS_N_ma count

// One export of a one-set family: name, set, shape, element type, suffix,
// layout, type of the shift arithmetic, check order.
#define QEL_EIGEN_ONE_SET(NAME, SET, K, T, F, LAY, SHIFT, ORDER)                                          \
  QELM_API QelStatus qelm##NAME##_##K##_##F(QEL_ARGS_##K##_##LAY(const T, src),                           \
                                            QEL_ARGS_##K##_##LAY(T, dst), T* dstValuesRe, T* dstValuesIm, \
                                            int size QEL_EIGEN_VECTORS_COUNT_##K, T* buffer) {             \
    return vectorsFront<Sets::SET, SHIFT>(ORDER, QEL_VIEW_##K##_##LAY(src, size), dstValuesRe, dstValuesIm, \
                                          size, QEL_EIGEN_VECTORS_N_##K, buffer,                          \
                                          QEL_VIEW_##K##_##LAY(dst, size));                               \
  }

// One export of the both-sets family: the right set's destination first.
#define QEL_EIGEN_BOTH_SETS(K, T, F, LAY, ORDER)                                                            \
  QELM_API QelStatus qelmEigenValuesVectors_##K##_##F(                                                      \
      QEL_ARGS_##K##_##LAY(const T, src), QEL_ARGS_##K##_##LAY(T, dstRight), QEL_ARGS_##K##_##LAY(T, dstLeft), \
      T* dstValuesRe, T* dstValuesIm, int size QEL_EIGEN_VECTORS_COUNT_##K, T* buffer) {                    \
    return vectorsFront<Sets::Both, T>(ORDER, QEL_VIEW_##K##_##LAY(src, size), dstValuesRe, dstValuesIm, size, \
                                       QEL_EIGEN_VECTORS_N_##K, buffer, QEL_VIEW_##K##_##LAY(dstRight, size),  \
                                       QEL_VIEW_##K##_##LAY(dstLeft, size));                                \
  }

// The one-set kernels of Qel64f compute shifts and start-row tests in Qel32f;
// the both-sets kernels keep the element type.
// clang-format off
#define QEL_EIGEN_ONE_SET_FAMILY(NAME, SET)                                          \
  QEL_EIGEN_ONE_SET(NAME, SET, m,  Qel32f, 32f,   S, Qel32f, "NZS")                  \
  QEL_EIGEN_ONE_SET(NAME, SET, m,  Qel32f, 32f_P, P, Qel32f, "NZR")                  \
  QEL_EIGEN_ONE_SET(NAME, SET, ma, Qel32f, 32f,   S, Qel32f, "NZCS")                 \
  QEL_EIGEN_ONE_SET(NAME, SET, ma, Qel32f, 32f_L, L, Qel32f, "NZCRS")                \
  QEL_EIGEN_ONE_SET(NAME, SET, ma, Qel32f, 32f_P, P, Qel32f, "NZCRS")                \
  QEL_EIGEN_ONE_SET(NAME, SET, m,  Qel64f, 64f,   S, Qel32f, "NZS")                  \
  QEL_EIGEN_ONE_SET(NAME, SET, m,  Qel64f, 64f_P, P, Qel32f, "NZR")                  \
  QEL_EIGEN_ONE_SET(NAME, SET, ma, Qel64f, 64f,   S, Qel32f, "NZCS")                 \
  QEL_EIGEN_ONE_SET(NAME, SET, ma, Qel64f, 64f_L, L, Qel32f, "NZCRS")                \
  QEL_EIGEN_ONE_SET(NAME, SET, ma, Qel64f, 64f_P, P, Qel32f, "NZCRS")

QEL_EIGEN_ONE_SET_FAMILY(EigenValuesVectorsRight, Right)
QEL_EIGEN_ONE_SET_FAMILY(EigenValuesVectorsLeft,  Left)

QEL_EIGEN_BOTH_SETS(m,  Qel32f, 32f,   S, "NZS")
QEL_EIGEN_BOTH_SETS(m,  Qel32f, 32f_P, P, "NZR")
QEL_EIGEN_BOTH_SETS(ma, Qel32f, 32f,   S, "NZCS")
QEL_EIGEN_BOTH_SETS(ma, Qel32f, 32f_L, L, "NZCRS")
QEL_EIGEN_BOTH_SETS(ma, Qel32f, 32f_P, P, "NZCRS")
QEL_EIGEN_BOTH_SETS(m,  Qel64f, 64f,   S, "NZS")
QEL_EIGEN_BOTH_SETS(m,  Qel64f, 64f_P, P, "NZR")
QEL_EIGEN_BOTH_SETS(ma, Qel64f, 64f,   S, "NZCS")
QEL_EIGEN_BOTH_SETS(ma, Qel64f, 64f_L, L, "NZCRS")
QEL_EIGEN_BOTH_SETS(ma, Qel64f, 64f_P, P, "NZCRS")
// clang-format on
