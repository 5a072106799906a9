// qelmSaxpy, dst(k) = src1(k) val + src2(k), and qelmLComb, dst(k) = src1(k)
// val1 + src2(k) val2: each product rounded, then the sum. Every element
// stands alone, so all paths give the same values; only the order in which a
// one-vector call stores can show, when dst overlaps a source.
#include "../frame/export.h"
#include "../frame/lanes.h"
#include "../frame/operands.h"

#include <cstdint>

namespace {
using namespace qel;

template <class V>
using ElemOf = typename V::Object::Elem;

// The two terms of an element; LComb scales src2 too.
template <class T, bool LComb>
struct Scaled {
  using S = Lanes<T>;
  T val1, val2;
  T first(T a) const { return a * val1; }
  T second(T b) const {
    if constexpr (LComb) return b * val2;
    else return b;
  }
  T operator()(T a, T b) const { return first(a) + second(b); }
  typename S::V operator()(typename S::V a, typename S::V b) const {
    const typename S::V scaledA = S::mul(a, S::splat(val1));
    if constexpr (LComb) return S::add(scaledA, S::mul(b, S::splat(val2)));
    else return S::add(scaledA, b);
  }
};

// One contiguous vector. Above length 6, when dst overlaps neither source,
// dst is stepped to 16 bytes singly and eight elements a pass go through
// vector units; otherwise, and for the tail, one element at a time in
// ascending order, so dst one element behind a source gives the sequential
// result.
template <class T, class Op>
void oneVector(const T* a, const T* b, T* d, int len, Op op) {
  using S = Lanes<T>;
  const intptr_t bytes = intptr_t(len) * intptr_t(sizeof(T));
  auto apart = [&](const T* s) {
    const intptr_t dist = reinterpret_cast<intptr_t>(d) - reinterpret_cast<intptr_t>(s);
    return dist >= bytes || -dist >= bytes;
  };
  int k = 0;
  const uintptr_t r = reinterpret_cast<uintptr_t>(d) & 15;
  if (len > 6 && apart(a) && apart(b) && r % sizeof(T) == 0) {
    const int peel = r ? int((16 - r) / sizeof(T)) : 0;
    if (len >= peel + 8) {
      for (; k < peel; ++k) d[k] = op(a[k], b[k]);
      for (; k + 8 <= len; k += 8)
        unroll<8 / S::L>([&](auto u) {
          const int j = k + u * S::L;
          S::storeAligned(d + j, op(S::template load<S::L>(a + j), S::template load<S::L>(b + j)));
        });
    }
  }
  for (; k < len; ++k) d[k] = op(a[k], b[k]);
}

// Lengths 3..6: a single operand's terms are formed once, ahead of the object
// loop; an object's results are formed before they are stored.
template <int N, class T, class Op, class A, class B, class D>
void straightLine(A a, B b, D d, int count, Op op) {
  T ha[N], hb[N];
  if constexpr (!A::isArray) unroll<N>([&](auto k) { ha[k] = op.first(a.object(0).at(0, k)); });
  if constexpr (!B::isArray) unroll<N>([&](auto k) { hb[k] = op.second(b.object(0).at(0, k)); });
  for (int n = 0; n < count; ++n, a = a.from(1), b = b.from(1), d = d.from(1)) {  // a step, not n strides
    const auto ao = a.object(0);
    const auto bo = b.object(0);
    const auto dobj = d.object(0);
    T out[N];
    unroll<N>([&](auto k) {
      out[k] = (A::isArray ? op.first(ao.at(0, k)) : ha[k]) + (B::isArray ? op.second(bo.at(0, k)) : hb[k]);
    });
    unroll<N>([&](auto k) { dobj.at(0, k) = out[k]; });
  }
}

template <class Op, class A, class B, class D>
QelStatus scaledSumKernel(A a, B b, D d, int len, int count, Op op) {
  using T = ElemOf<D>;
  if constexpr (!A::isArray && !B::isArray && D::Object::contiguous) {
    oneVector(&a.object(0).at(0, 0), &b.object(0).at(0, 0), &d.object(0).at(0, 0), len, op);
    return qelStatusOk;
  }
  if constexpr (isStridedContiguous<A> && isStridedContiguous<B> && isStridedContiguous<D>) {
    // Packed arrays, vector after vector without a gap, are one long vector.
    const int64_t packed = int64_t(len) * int64_t(sizeof(T));
    if (a.s0 == packed && b.s0 == packed && d.s0 == packed && int64_t(len) * count <= INT32_MAX) {
      oneVector(&a.object(0).at(0, 0), &b.object(0).at(0, 0), &d.object(0).at(0, 0), len * count, op);
      return qelStatusOk;
    }
  }
  switch (len) {
    case 3: straightLine<3, T>(a, b, d, count, op); return qelStatusOk;
    case 4: straightLine<4, T>(a, b, d, count, op); return qelStatusOk;
    case 5: straightLine<5, T>(a, b, d, count, op); return qelStatusOk;
    case 6: straightLine<6, T>(a, b, d, count, op); return qelStatusOk;
    default: break;
  }
  for (int n = 0; n < count; ++n) {
    const auto ao = a.object(n);
    const auto bo = b.object(n);
    const auto dobj = d.object(n);
    for (int k = 0; k < len; ++k) dobj.at(0, k) = op(T(ao.at(0, k)), T(bo.at(0, k)));
  }
  return qelStatusOk;
}

// Checks N C Z S R. The work is (2 count + 1) len with one array source,
// 3 len count with two, serial while at most the limit of the chosen kernel.
template <bool LComb, class T, class A, class B, class D>
QelStatus scaledSumFront(A a, B b, D d, T val1, T val2, int len, int count, int32_t contiguousLimit,
                         int32_t generalLimit) {
  if (QelStatus st = firstFailure("NCZSR", checkViews(count, {len}, a, b, d))) return st;
  const Scaled<T, LComb> op{val1, val2};
  auto job = makeJob(
      [len, op](int share, void*, auto va, auto vb, auto vd) { return scaledSumKernel(va, vb, vd, len, share, op); },
      a, b, d);
  if constexpr (!D::isArray) {
    return runSerial(job, 1);
  } else {
    const Work w = A::isArray && B::isArray ? Work(3) * len * count : (Work(2) * count + 1) * len;
    return runFirstKind(job, count, w, WorkLimit::serialAtMost(contiguousLimit),
                        WorkLimit::serialAtMost(generalLimit));
  }
}

}  // namespace

#define QEL_SCALED_COUNT_ARG_v
#define QEL_SCALED_COUNT_ARG_va , int count
#define QEL_SCALED_COUNT_v 1
#define QEL_SCALED_COUNT_va count

#define QEL_SCALED_VIEWS(KA, KB, KD, LAY)                                                    \
  QEL_VIEW_##KA##_##LAY(src1, len), QEL_VIEW_##KB##_##LAY(src2, len), QEL_VIEW_##KD##_##LAY(dst, len)

// One export: shape, the kinds of src1, src2 and dst, type, layout, and the
// limits at which the contiguous and the general kernel still stay serial.
#define QEL_SAXPY(SHAPE, KA, KB, KD, T, F, SUFFIX, LAY, CONTIGUOUS, GENERAL)                        \
  QELM_API QelStatus qelmSaxpy_##SHAPE##_##F##SUFFIX(                                              \
      QEL_ARGS_##KA##_##LAY(const T, src1), T val, QEL_ARGS_##KB##_##LAY(const T, src2),           \
      QEL_ARGS_##KD##_##LAY(T, dst), int len QEL_SCALED_COUNT_ARG_##KD) {                          \
    return scaledSumFront<false>(QEL_SCALED_VIEWS(KA, KB, KD, LAY), val, T(0), len,                \
                                 QEL_SCALED_COUNT_##KD, CONTIGUOUS, GENERAL);                      \
  }
#define QEL_LCOMB(SHAPE, KA, KB, KD, T, F, SUFFIX, LAY, CONTIGUOUS, GENERAL)                        \
  QELM_API QelStatus qelmLComb_##SHAPE##_##F##SUFFIX(                                              \
      QEL_ARGS_##KA##_##LAY(const T, src1), T val1, QEL_ARGS_##KB##_##LAY(const T, src2), T val2,  \
      QEL_ARGS_##KD##_##LAY(T, dst), int len QEL_SCALED_COUNT_ARG_##KD) {                          \
    return scaledSumFront<true>(QEL_SCALED_VIEWS(KA, KB, KD, LAY), val1, val2, len,                \
                                QEL_SCALED_COUNT_##KD, CONTIGUOUS, GENERAL);                       \
  }

// Saxpy's limits are much lower in _L than in the standard layout, and
// vva_32f_L keeps 1500 for its general kernel where vav and vava take 1000.
// clang-format off
//        shape src1 src2 dst type    F    suffix lay contiguous general
QEL_SAXPY(vv,   v,   v,   v,  Qel32f, 32f, ,      S,  0,         0)
QEL_SAXPY(vv,   v,   v,   v,  Qel32f, 32f, _P,    P,  0,         0)
QEL_SAXPY(vv,   v,   v,   v,  Qel64f, 64f, ,      S,  0,         0)
QEL_SAXPY(vv,   v,   v,   v,  Qel64f, 64f, _P,    P,  0,         0)
QEL_SAXPY(vav,  va,  v,   va, Qel32f, 32f, ,      S,  3000,      2000)
QEL_SAXPY(vav,  va,  v,   va, Qel32f, 32f, _L,    L,  1500,      1000)
QEL_SAXPY(vav,  va,  v,   va, Qel32f, 32f, _P,    P,  1200,      1200)
QEL_SAXPY(vav,  va,  v,   va, Qel64f, 64f, ,      S,  3000,      1200)
QEL_SAXPY(vav,  va,  v,   va, Qel64f, 64f, _L,    L,  1000,      1000)
QEL_SAXPY(vav,  va,  v,   va, Qel64f, 64f, _P,    P,  1200,      1200)
QEL_SAXPY(vva,  v,   va,  va, Qel32f, 32f, ,      S,  3000,      2000)
QEL_SAXPY(vva,  v,   va,  va, Qel32f, 32f, _L,    L,  1500,      1500)
QEL_SAXPY(vva,  v,   va,  va, Qel32f, 32f, _P,    P,  1200,      1200)
QEL_SAXPY(vva,  v,   va,  va, Qel64f, 64f, ,      S,  3000,      1200)
QEL_SAXPY(vva,  v,   va,  va, Qel64f, 64f, _L,    L,  1000,      1000)
QEL_SAXPY(vva,  v,   va,  va, Qel64f, 64f, _P,    P,  1200,      1200)
QEL_SAXPY(vava, va,  va,  va, Qel32f, 32f, ,      S,  3000,      2000)
QEL_SAXPY(vava, va,  va,  va, Qel32f, 32f, _L,    L,  1500,      1000)
QEL_SAXPY(vava, va,  va,  va, Qel32f, 32f, _P,    P,  1200,      1200)
QEL_SAXPY(vava, va,  va,  va, Qel64f, 64f, ,      S,  3000,      1200)
QEL_SAXPY(vava, va,  va,  va, Qel64f, 64f, _L,    L,  1000,      1000)
QEL_SAXPY(vava, va,  va,  va, Qel64f, 64f, _P,    P,  1200,      1200)

//        shape src1 src2 dst type    F    suffix lay contiguous general
QEL_LCOMB(vv,   v,   v,   v,  Qel32f, 32f, ,      S,  0,         0)
QEL_LCOMB(vv,   v,   v,   v,  Qel32f, 32f, _P,    P,  0,         0)
QEL_LCOMB(vv,   v,   v,   v,  Qel64f, 64f, ,      S,  0,         0)
QEL_LCOMB(vv,   v,   v,   v,  Qel64f, 64f, _P,    P,  0,         0)
QEL_LCOMB(vav,  va,  v,   va, Qel32f, 32f, ,      S,  4500,      4500)
QEL_LCOMB(vav,  va,  v,   va, Qel32f, 32f, _L,    L,  4500,      3750)
QEL_LCOMB(vav,  va,  v,   va, Qel32f, 32f, _P,    P,  4500,      4500)
QEL_LCOMB(vav,  va,  v,   va, Qel64f, 64f, ,      S,  4500,      4500)
QEL_LCOMB(vav,  va,  v,   va, Qel64f, 64f, _L,    L,  4500,      4500)
QEL_LCOMB(vav,  va,  v,   va, Qel64f, 64f, _P,    P,  4500,      4500)
QEL_LCOMB(vava, va,  va,  va, Qel32f, 32f, ,      S,  4500,      4500)
QEL_LCOMB(vava, va,  va,  va, Qel32f, 32f, _L,    L,  4500,      3750)
QEL_LCOMB(vava, va,  va,  va, Qel32f, 32f, _P,    P,  4500,      4500)
QEL_LCOMB(vava, va,  va,  va, Qel64f, 64f, ,      S,  4500,      4500)
QEL_LCOMB(vava, va,  va,  va, Qel64f, 64f, _L,    L,  4500,      4500)
QEL_LCOMB(vava, va,  va,  va, Qel64f, 64f, _P,    P,  4500,      4500)
// clang-format on
