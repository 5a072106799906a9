// Copy between any two descriptions, and Extract of any description into a
// packed buffer. Neither has a kernel or a driver: the front-end holds the one
// walk over the views, on the calling thread.
#include "../frame/export.h"
#include "../frame/operands.h"
#include "movement.h"

namespace {
using namespace qel;
using move::Walk;

// Checks N Z C, then S, R and the object distances 0 in the export's order;
// the object distances only when count is above 1.
template <class S, class D>
QelStatus copyFront(const char* order, S src, D dst, int width, int height, int count) {
  if (QelStatus st = firstFailure(order, checkViewsObjectStrideIfMany(count, {width, height}, src, dst)))
    return st;
  move::bySize(width, height, [&](auto w, auto h) { move::moveObjects(src, dst, w, h, count); });
  return qelStatusOk;
}

// The destination is packed: the object, row and element distances follow
// from the sizes, so only its pointer is checked.
template <Walk W, class S, class T>
QelStatus extractFront(const char* order, S src, T* dst, int width, int height, int count) {
  CheckGroups g = checkViews(count, {width, height}, src);
  g.pointers = g.pointers && dst != nullptr;
  if (QelStatus st = firstFailure(order, g)) return st;
  const int32_t e = elemSize<T>;
  move::moveObjects<W>(src, arrayS(dst, mul32(mul32(width, height), e), mul32(width, e), e), width,
                       height, count);
  return qelStatusOk;
}

}  // namespace

// ---------------------------------------------------------------- Copy

// By the kind of object: the size parameters, the sizes as (width, height) and
// the row length of a _P table.
#define QEL_MOVE_SIZES_ma int width, int height
#define QEL_MOVE_SIZES_va int len
#define QEL_MOVE_DIMS_ma width, height
#define QEL_MOVE_DIMS_va len, 1
#define QEL_MOVE_ROW_ma width
#define QEL_MOVE_ROW_va len

// One export: kind, type, source and destination layouts, check order.
#define QEL_COPY(K, T, F, SL, DL, ORDER)                                                            \
  QELM_API QelStatus qelmCopy_##K##_##F##_##SL##DL(QEL_ARGS_##K##_##SL(const T, src),                  \
                                                   QEL_ARGS_##K##_##DL(T, dst), QEL_MOVE_SIZES_##K,   \
                                                   int count) {                                       \
    return copyFront(ORDER, QEL_VIEW_##K##_##SL(src, QEL_MOVE_ROW_##K),                               \
                     QEL_VIEW_##K##_##DL(dst, QEL_MOVE_ROW_##K), QEL_MOVE_DIMS_##K, count);           \
  }

// The nine layout pairs of a kind and type. The object distances (0) are those
// of the standard and _P sides, so LL has none; PP has no stride inside an
// object (S). SP and LP take their order as a column: the 32f vector copies
// test the shifts before the strides.
#define QEL_COPY_GRID(K, T, F, SP_LP_ORDER)        \
  QEL_COPY(K, T, F, S, S, "NZCS0")                 \
  QEL_COPY(K, T, F, S, L, "NZCSR0")                \
  QEL_COPY(K, T, F, S, P, SP_LP_ORDER)             \
  QEL_COPY(K, T, F, L, S, "NZCSR0")                \
  QEL_COPY(K, T, F, L, L, "NZCSR")                 \
  QEL_COPY(K, T, F, L, P, SP_LP_ORDER)             \
  QEL_COPY(K, T, F, P, S, "NZCSR0")                \
  QEL_COPY(K, T, F, P, L, "NZCSR0")                \
  QEL_COPY(K, T, F, P, P, "NZCR0")

QEL_COPY_GRID(ma, Qel32f, 32f, "NZCSR0")
QEL_COPY_GRID(ma, Qel64f, 64f, "NZCSR0")
QEL_COPY_GRID(va, Qel32f, 32f, "NZCRS0")
QEL_COPY_GRID(va, Qel64f, 64f, "NZCSR0")

// ---------------------------------------------------------------- Extract

// By the kind of source: its size parameters, the count (1 for one object),
// the result's (width, height), and the row length of a _P table as stored (a
// transposed matrix is stored with `height` elements a row).
#define QEL_MOVE_SIZES_m int width, int height
#define QEL_MOVE_SIZES_t int width, int height
#define QEL_MOVE_SIZES_v int len
#define QEL_MOVE_SIZES_ta int width, int height
#define QEL_MOVE_COUNT_ARG_m
#define QEL_MOVE_COUNT_ARG_t
#define QEL_MOVE_COUNT_ARG_v
#define QEL_MOVE_COUNT_ARG_ma , int count
#define QEL_MOVE_COUNT_ARG_ta , int count
#define QEL_MOVE_COUNT_ARG_va , int count
#define QEL_MOVE_COUNT_m 1
#define QEL_MOVE_COUNT_t 1
#define QEL_MOVE_COUNT_v 1
#define QEL_MOVE_COUNT_ma count
#define QEL_MOVE_COUNT_ta count
#define QEL_MOVE_COUNT_va count
#define QEL_MOVE_DIMS_m width, height
#define QEL_MOVE_DIMS_t width, height
#define QEL_MOVE_DIMS_v len, 1
#define QEL_MOVE_DIMS_ta width, height
#define QEL_MOVE_ROW_m width
#define QEL_MOVE_ROW_t height
#define QEL_MOVE_ROW_v len
#define QEL_MOVE_ROW_ta height

// One export: kind, type, layout, check order, walk (Objects, or Elements
// outermost with the objects innermost).
#define QEL_EXTRACT(K, T, F, SUFFIX, LAY, ORDER, WALK)                                              \
  QELM_API QelStatus qelmExtract_##K##_##F##SUFFIX(QEL_ARGS_##K##_##LAY(const T, src), T* dst,       \
                                                   QEL_MOVE_SIZES_##K QEL_MOVE_COUNT_ARG_##K) {       \
    return extractFront<Walk::WALK>(ORDER, QEL_VIEW_##K##_##LAY(src, QEL_MOVE_ROW_##K), dst,          \
                                    QEL_MOVE_DIMS_##K, QEL_MOVE_COUNT_##K);                          \
  }

// Columns: the _P order of one object in 32f and 64f; the _P walk of an array
// in 32f and 64f.
#define QEL_EXTRACT_ONE(K, P32, P64)                        \
  QEL_EXTRACT(K, Qel32f, 32f, , S, "NZS", Objects)          \
  QEL_EXTRACT(K, Qel32f, 32f, _P, P, P32, Objects)          \
  QEL_EXTRACT(K, Qel64f, 64f, , S, "NZS", Objects)          \
  QEL_EXTRACT(K, Qel64f, 64f, _P, P, P64, Objects)
#define QEL_EXTRACT_ARRAY(K, W32, W64)                      \
  QEL_EXTRACT(K, Qel32f, 32f, , S, "NZCS", Objects)         \
  QEL_EXTRACT(K, Qel32f, 32f, _L, L, "NZCRS", Objects)      \
  QEL_EXTRACT(K, Qel32f, 32f, _P, P, "NZCRS", W32)          \
  QEL_EXTRACT(K, Qel64f, 64f, , S, "NZCS", Objects)         \
  QEL_EXTRACT(K, Qel64f, 64f, _L, L, "NZCRS", Objects)      \
  QEL_EXTRACT(K, Qel64f, 64f, _P, P, "NZCRS", W64)

// The single-object _P forms test the size before the pointers, all but the
// 32f vector.
QEL_EXTRACT_ONE(m, "ZNR", "ZNR")
QEL_EXTRACT_ONE(t, "ZNR", "ZNR")
QEL_EXTRACT_ONE(v, "NZR", "ZNR")
QEL_EXTRACT_ARRAY(ma, Elements, Elements)
QEL_EXTRACT_ARRAY(ta, Objects, Objects)
QEL_EXTRACT_ARRAY(va, Elements, Objects)
