// EigenValues and the two buffer-size queries: the front-end and the exports.
#include "../frame/export.h"
#include "../frame/operands.h"
#include "eigen_general.h"

namespace {
using namespace qel;
using namespace qel::eigen;

// size * (size + 1) * count below 251 stays serial.
const WorkLimit kValuesLimit = WorkLimit::serialBelow(251);

// Checks in `order` (pointers, size, count, then the source's shift and
// strides); then a single matrix runs at once, an array by its work test.
// Objects run in order with one scratch; the first failure ends a share.
template <class T, class S>
QelStatus valuesFront(const char* order, S src, T* re, T* im, int size, int count, T* buffer) {
  CheckGroups g = checkViews(count, {size}, src);
  g.pointers = g.pointers && re && im && buffer;
  if (QelStatus st = firstFailure(order, g)) return st;
  auto job = eigenJob(
      [size](int share, T* scratch, auto s, T* r, T* i) -> QelStatus {
        for (int o = 0; o < share; ++o)
          if (QelStatus st = valuesOfOne(s.object(o), size, scratch, r + o * size, i + o * size)) return st;
        return qelStatusOk;
      },
      size, re, im, src);
  if constexpr (!S::isArray) {
    return runSerial(job, 1, buffer);
  } else {
    const Work w = Work(size) * (Work(size) + 1) * count;
    return runEigen(job, count, w, kValuesLimit, buffer, size);
  }
}

template <class T>
QelStatus answerBufSize(int size, int* bufSize, int32_t elements) {
  if (!bufSize) return qelStatusNullPointer;
  if (size < 1) return qelStatusBadSize;
  *bufSize = mul32(elements, elemSize<T>);
  return qelStatusOk;
}

}  // namespace

#define QEL_EIGEN_VALUES_COUNT_m
#define QEL_EIGEN_VALUES_COUNT_ma , int count
#define QEL_EIGEN_VALUES_N_m 1
#define QEL_EIGEN_VALUES_N_ma count

// One export: shape, type, suffix, layout, check order.
#define QEL_EIGEN_VALUES(K, T, F, LAY, ORDER)                                                        \
  QELM_API QelStatus qelmEigenValues_##K##_##F(QEL_ARGS_##K##_##LAY(const T, src), T* dstValuesRe, \
                                               T* dstValuesIm, int size QEL_EIGEN_VALUES_COUNT_##K, \
                                               T* buffer) {                                         \
    return valuesFront(ORDER, QEL_VIEW_##K##_##LAY(src, size), dstValuesRe, dstValuesIm, size,     \
                       QEL_EIGEN_VALUES_N_##K, buffer);                                             \
  }

// clang-format off
QEL_EIGEN_VALUES(m,  Qel32f, 32f,   S, "NZS")
QEL_EIGEN_VALUES(m,  Qel32f, 32f_P, P, "NZR")
QEL_EIGEN_VALUES(ma, Qel32f, 32f,   S, "NZCS")
QEL_EIGEN_VALUES(ma, Qel32f, 32f_L, L, "NZCRS")
QEL_EIGEN_VALUES(ma, Qel32f, 32f_P, P, "NZCRS")
QEL_EIGEN_VALUES(m,  Qel64f, 64f,   S, "NZS")
QEL_EIGEN_VALUES(m,  Qel64f, 64f_P, P, "NZR")
QEL_EIGEN_VALUES(ma, Qel64f, 64f,   S, "NZCS")
QEL_EIGEN_VALUES(ma, Qel64f, 64f_L, L, "NZCRS")
QEL_EIGEN_VALUES(ma, Qel64f, 64f_P, P, "NZCRS")
// clang-format on

QELM_API QelStatus qelmEigenValuesGetBufSize_32f(int size, int* bufSize) {
  return answerBufSize<Qel32f>(size, bufSize, valuesElements(size));
}
QELM_API QelStatus qelmEigenValuesGetBufSize_64f(int size, int* bufSize) {
  return answerBufSize<Qel64f>(size, bufSize, valuesElements(size));
}
QELM_API QelStatus qelmEigenValuesVectorsGetBufSize_32f(int size, int* bufSize) {
  return answerBufSize<Qel32f>(size, bufSize, vectorsElements(size));
}
QELM_API QelStatus qelmEigenValuesVectorsGetBufSize_64f(int size, int* bufSize) {
  return answerBufSize<Qel64f>(size, bufSize, vectorsElements(size));
}
