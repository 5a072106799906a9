// EigenValuesSym and EigenValuesVectorsSym: the front-end and the export table.
#include "../frame/export.h"
#include "../frame/operands.h"
#include "eigen_sym.h"

namespace {
using namespace qel;
using namespace qel::eigen;

// size (size + 1) count below 1001 stays serial for the values, size (2 size + 1)
// count below 701 for values and vectors.
const WorkLimit kValuesLimit = WorkLimit::serialBelow(1001);
const WorkLimit kVectorsLimit = WorkLimit::serialBelow(701);

// One front-end for all twenty exports. On the serial path the objects share
// the caller's buffer; the driver gives each thread a slice of its own block
// of size * size elements and leaves the caller's buffer alone.
template <class T, class S, class Q>
QelStatus symFront(const char* order, S src, T* buffer, Q vectors, T* dstValues, int size, int count,
                   bool sortFirst) {
  const auto values = vectorArrayS(dstValues, mul32(size, elemSize<T>), elemSize<T>);
  CheckGroups g = checkViews(count, {size}, src, vectors, values);
  g.pointers = g.pointers && buffer != nullptr;
  if (QelStatus st = firstFailure(order, g)) return st;

  auto job = makeJob(
      [size, sortFirst](int share, void* w, auto s, auto q, auto v) {
        return symArray(s, w, q, v, size, share, sortFirst);
      },
      src, vectors, values);
  if constexpr (!S::isArray) {
    return runSerial(job, 1, buffer);
  } else {
    const bool withVectors = hasVectors<Q>;
    const Work w = withVectors ? Work(size) * (Work(2) * size + 1) * count : Work(size) * (Work(size) + 1) * count;
    const DriverTraits traits{.sharedStatus = true, .sliceBytes = mul32(mul32(size, size), elemSize<T>)};
    return runSecondKind(job, count, w, withVectors ? kVectorsLimit : kValuesLimit, traits, buffer);
  }
}

}  // namespace

// Shapes: m (one matrix, no count) or ma. The pointer tables of _P are laid out
// by `size` elements a row.
#define QEL_EIG_COUNT_ARG_m
#define QEL_EIG_COUNT_ARG_ma , int count
#define QEL_EIG_COUNT_m 1
#define QEL_EIG_COUNT_ma count

// One export each: shape, type, layout and check order; the vectors forms also
// say whether the sort comes before the singular test (the m forms) or after it.
#define QEL_EIG_VALUES(K, T, F, SUFFIX, LAY, ORDER)                                                   \
  QELM_API QelStatus qelmEigenValuesSym_##K##_##F##SUFFIX(                                           \
      QEL_ARGS_##K##_##LAY(const T, src), T* buffer, T* dstValues, int size QEL_EIG_COUNT_ARG_##K) { \
    return symFront(ORDER, QEL_VIEW_##K##_##LAY(src, size), buffer, NoVectors{}, dstValues, size,    \
                    QEL_EIG_COUNT_##K, false);                                                       \
  }
#define QEL_EIG_VECTORS(K, T, F, SUFFIX, LAY, ORDER, SORT_FIRST)                                     \
  QELM_API QelStatus qelmEigenValuesVectorsSym_##K##_##F##SUFFIX(                                    \
      QEL_ARGS_##K##_##LAY(const T, src), T* buffer, QEL_ARGS_##K##_##LAY(T, dst), T* dstValues,     \
      int size QEL_EIG_COUNT_ARG_##K) {                                                              \
    return symFront(ORDER, QEL_VIEW_##K##_##LAY(src, size), buffer, QEL_VIEW_##K##_##LAY(dst, size), \
                    dstValues, size, QEL_EIG_COUNT_##K, SORT_FIRST);                                 \
  }

#define QEL_EIG_SYM(T, F)                                             \
  QEL_EIG_VALUES(m, T, F, , S, "NZS")                                 \
  QEL_EIG_VALUES(m, T, F, _P, P, "NZR")                               \
  QEL_EIG_VALUES(ma, T, F, , S, "NZCS")                               \
  QEL_EIG_VALUES(ma, T, F, _L, L, "NZCRS")                            \
  QEL_EIG_VALUES(ma, T, F, _P, P, "NZCRS")                            \
  QEL_EIG_VECTORS(m, T, F, , S, "NZS", true)                          \
  QEL_EIG_VECTORS(m, T, F, _P, P, "NZR", true)                        \
  QEL_EIG_VECTORS(ma, T, F, , S, "NZCS", false)                       \
  QEL_EIG_VECTORS(ma, T, F, _L, L, "NZCRS", false)                    \
  QEL_EIG_VECTORS(ma, T, F, _P, P, "NZCRS", false)

QEL_EIG_SYM(Qel32f, 32f)
QEL_EIG_SYM(Qel64f, 64f)
