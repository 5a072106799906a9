// qelmCrossProduct of three-element vectors, a = src1, b = src2:
//   dst(0) = a1 b2 - a2 b1,  dst(1) = a2 b0 - a0 b2,  dst(2) = a0 b1 - a1 b0,
// each product rounded, then the difference; every path gives these values.
// Contiguous kernels read all six elements before they store (so a pair in
// place is right); general and _P kernels form and store one component after
// the other, reading as they go. A single operand is read once, ahead of the
// object loop.
#include "../frame/export.h"
#include "../frame/lanes.h"
#include "../frame/operands.h"

namespace {
using namespace qel;

template <class V>
using ElemOf = typename V::Object::Elem;

template <class T>
struct Three {
  static constexpr bool contiguous = false;
  T e[3];
  T at(int, int k) const { return e[k]; }
};

template <class T, class O>
inline Three<T> readThree(const O& o) {
  return {{T(o.at(0, 0)), T(o.at(0, 1)), T(o.at(0, 2))}};
}

// An array as it is; a single operand read into locals.
template <class V>
auto held(const V& v) {
  if constexpr (V::isArray) {
    return v;
  } else {
    struct Held {
      Three<ElemOf<V>> h;
      const Three<ElemOf<V>>& object(int) const { return h; }
      Held from(int) const { return *this; }
    };
    return Held{readThree<ElemOf<V>>(v.object(0))};
  }
}

// One object, components formed and stored in turn.
template <class T, class OA, class OB, class OD>
inline void stepwise(const OA& a, const OB& b, const OD& d) {
  d.at(0, 0) = T(a.at(0, 1)) * T(b.at(0, 2)) - T(a.at(0, 2)) * T(b.at(0, 1));
  d.at(0, 1) = T(a.at(0, 2)) * T(b.at(0, 0)) - T(a.at(0, 0)) * T(b.at(0, 2));
  d.at(0, 2) = T(a.at(0, 0)) * T(b.at(0, 1)) - T(a.at(0, 1)) * T(b.at(0, 0));
}

// Qel32f: a and b in lanes, each against the other rotated, all three
// components in one subtraction: lane k is a(k+1) b(k+2) - a(k+2) b(k+1).
inline __m128 crossLanes(__m128 a, __m128 b) {
  const __m128 a12 = _mm_shuffle_ps(a, a, _MM_SHUFFLE(3, 0, 2, 1)), b20 = _mm_shuffle_ps(b, b, _MM_SHUFFLE(3, 1, 0, 2));
  const __m128 a20 = _mm_shuffle_ps(a, a, _MM_SHUFFLE(3, 1, 0, 2)), b12 = _mm_shuffle_ps(b, b, _MM_SHUFFLE(3, 0, 2, 1));
  return _mm_sub_ps(_mm_mul_ps(a12, b20), _mm_mul_ps(a20, b12));
}

template <class T, class O>
inline __m128 lanesOf(const O& o) {
  if constexpr (std::is_same_v<O, Three<T>>) return _mm_setr_ps(o.e[0], o.e[1], o.e[2], 0.0f);
  else return Lanes<float>::load<3>(&o.at(0, 0));
}

// The objects from n on, one at a time: Qel32f in lanes, each against the
// other rotated; Qel64f component by component after reading all six.
template <class A, class B, class D>
void floatTail(A a, B b, D d, int n, int count) {
  auto ha = held(a);
  auto hb = held(b);
  __m128 sa = _mm_setzero_ps(), sb = sa;  // a single operand, in lanes once
  if constexpr (!A::isArray) sa = lanesOf<float>(ha.object(0));
  if constexpr (!B::isArray) sb = lanesOf<float>(hb.object(0));
  for (; n < count; ++n, ha = ha.from(1), hb = hb.from(1), d = d.from(1))
    Lanes<float>::store<3>(&d.object(0).at(0, 0), crossLanes(A::isArray ? lanesOf<float>(ha.object(0)) : sa,
                                                             B::isArray ? lanesOf<float>(hb.object(0)) : sb));
}
template <class A, class B, class D>
void doubleTail(A a, B b, D d, int n, int count) {
  auto ha = held(a);
  auto hb = held(b);
  for (; n < count; ++n, ha = ha.from(1), hb = hb.from(1), d = d.from(1)) {
    const Three<double> x = readThree<double>(ha.object(0)), y = readThree<double>(hb.object(0));
    stepwise<double>(x, y, d.object(0));
  }
}

// Arrays step one object at a time (a short distance, not n times the stride).
template <class A, class B, class D>
QelStatus crossKernel(A a, B b, D d, int count) {
  using T = ElemOf<D>;
  if constexpr (!D::Object::contiguous) {
    if constexpr (!A::isArray && !B::isArray) {
      stepwise<T>(a.object(0), b.object(0), d.object(0));
    } else {
      auto ha = held(a);
      auto hb = held(b);
      for (int n = 0; n < count; ++n, ha = ha.from(1), hb = hb.from(1), d = d.from(1))
        stepwise<T>(ha.object(0), hb.object(0), d.object(0));
    }
  } else {
    int n = 0;
    if constexpr (isStridedContiguous<A> && isStridedContiguous<B> && isStridedContiguous<D>) {
      // Packed arrays: four Qel32f or two Qel64f objects a step, element k of
      // object l in lane l.
      using S = Lanes<T>;
      constexpr int32_t packed = 3 * int32_t(sizeof(T));
      if (a.s0 == packed && b.s0 == packed && d.s0 == packed)
        for (; count - n >= S::L; n += S::L, a = a.from(S::L), b = b.from(S::L), d = d.from(S::L)) {
          typename S::V x[3], y[3], r[3];
          unpack3(a.base, x), unpack3(b.base, y);
          unroll<3>([&](auto i) {
            r[i] = S::sub(S::mul(x[(i + 1) % 3], y[(i + 2) % 3]), S::mul(x[(i + 2) % 3], y[(i + 1) % 3]));
          });
          pack3(d.base, r);
        }
    }
    if constexpr (std::is_same_v<T, float>)
      floatTail(a, b, d, n, count);
    else
      doubleTail(a, b, d, n, count);
  }
  return qelStatusOk;
}

// The work is `perObject` times count (0: no work figure, always serial),
// tested before the strides: the driver makes its own stride test.
template <class A, class B, class D>
QelStatus crossFront(const char* order, int32_t perObject, WorkLimit limit, A a, B b, D d, int count) {
  if (QelStatus st = firstFailure(order, checkViews(count, {1}, a, b, d))) return st;
  auto job = makeJob([](int share, void*, auto va, auto vb, auto vd) { return crossKernel(va, vb, vd, share); }, a,
                     b, d);
  if (perObject == 0) return runSerial(job, count);
  return runSecondKind(job, count, Work(perObject) * count, limit);
}

WorkLimit atMost(int32_t t) { return WorkLimit::serialAtMost(t); }
WorkLimit below(int32_t t) { return WorkLimit::serialBelow(t); }
const WorkLimit none = below(0);

}  // namespace

#define QEL_CROSS_COUNT_ARG_v
#define QEL_CROSS_COUNT_ARG_va , int count
#define QEL_CROSS_COUNT_v 1
#define QEL_CROSS_COUNT_va count

// One export: shape, the kinds of src1, src2 and dst, type, layout, check
// order, work per object and the limit.
#define QEL_CROSS(SHAPE, KA, KB, KD, T, F, SUFFIX, LAY, ORDER, PER, LIMIT)                               \
  QELM_API QelStatus qelmCrossProduct_##SHAPE##_##F##SUFFIX(                                            \
      QEL_ARGS_##KA##_##LAY(const T, src1), QEL_ARGS_##KB##_##LAY(const T, src2),                       \
      QEL_ARGS_##KD##_##LAY(T, dst) QEL_CROSS_COUNT_ARG_##KD) {                                         \
    return crossFront(ORDER, PER, LIMIT, QEL_VIEW_##KA##_##LAY(src1, 3), QEL_VIEW_##KB##_##LAY(src2, 3), \
                      QEL_VIEW_##KD##_##LAY(dst, 3), QEL_CROSS_COUNT_##KD);                             \
  }

// Check orders differ by shape and are kept: vav tests its strides before
// count. vav and vva are serial while 2 count is at most 2999, vava while
// 3 count is at most 3000, written as "below" in _P; vva_64f_P alone never forks.
// clang-format off
//        shape  src1 src2 dst type    F    suffix lay order    work limit
QEL_CROSS(vv,    v,   v,   v,  Qel32f, 32f, ,      S,  "NS",    0,   none)
QEL_CROSS(vv,    v,   v,   v,  Qel32f, 32f, _P,    P,  "NR",    0,   none)
QEL_CROSS(vv,    v,   v,   v,  Qel64f, 64f, ,      S,  "NS",    0,   none)
QEL_CROSS(vv,    v,   v,   v,  Qel64f, 64f, _P,    P,  "NR",    0,   none)
QEL_CROSS(vav,   va,  v,   va, Qel32f, 32f, ,      S,  "NSC",   2,   atMost(2999))
QEL_CROSS(vav,   va,  v,   va, Qel32f, 32f, _L,    L,  "NSRC",  2,   atMost(2999))
QEL_CROSS(vav,   va,  v,   va, Qel32f, 32f, _P,    P,  "NSCR",  2,   below(3000))
QEL_CROSS(vav,   va,  v,   va, Qel64f, 64f, ,      S,  "NSC",   2,   atMost(2999))
QEL_CROSS(vav,   va,  v,   va, Qel64f, 64f, _L,    L,  "NSRC",  2,   atMost(2999))
QEL_CROSS(vav,   va,  v,   va, Qel64f, 64f, _P,    P,  "NSCR",  2,   below(3000))
QEL_CROSS(vva,   v,   va,  va, Qel32f, 32f, ,      S,  "NCS",   2,   atMost(2999))
QEL_CROSS(vva,   v,   va,  va, Qel32f, 32f, _L,    L,  "NCSR",  2,   atMost(2999))
QEL_CROSS(vva,   v,   va,  va, Qel32f, 32f, _P,    P,  "NCSR",  2,   below(3000))
QEL_CROSS(vva,   v,   va,  va, Qel64f, 64f, ,      S,  "NCS",   2,   atMost(2999))
QEL_CROSS(vva,   v,   va,  va, Qel64f, 64f, _L,    L,  "NCSR",  2,   atMost(2999))
QEL_CROSS(vva,   v,   va,  va, Qel64f, 64f, _P,    P,  "NCSR",  0,   none)
QEL_CROSS(vava,  va,  va,  va, Qel32f, 32f, ,      S,  "NCS",   3,   atMost(3000))
QEL_CROSS(vava,  va,  va,  va, Qel32f, 32f, _L,    L,  "NCSR",  3,   atMost(3000))
QEL_CROSS(vava,  va,  va,  va, Qel32f, 32f, _P,    P,  "NCSR",  3,   below(3001))
QEL_CROSS(vava,  va,  va,  va, Qel64f, 64f, ,      S,  "NCS",   3,   atMost(3000))
QEL_CROSS(vava,  va,  va,  va, Qel64f, 64f, _L,    L,  "NCSR",  3,   atMost(3000))
QEL_CROSS(vava,  va,  va,  va, Qel64f, 64f, _P,    P,  "NCSR",  3,   below(3001))
// clang-format on
