// Trace and FrobNorm: one scalar per object, in the element type, written to a
// packed result (dst[n] for an array). Arrays go to the plain driver above
// their work limits; the driver moves dst by `first` elements.
#include "../frame/export.h"
#include "../frame/lanes.h"
#include "../frame/operands.h"
#include "../frame/sums.h"
#include "movement.h"

#include <cmath>

namespace {
using namespace qel;

template <class V>
using ElemOf = typename V::Object::Elem;

// Which serial kernel an object view belongs to.
template <class O>
constexpr bool isPointerTable = !O::hasStride2;  // _P
template <class O>
constexpr bool isContiguousKernel = O::hasStride2 && O::contiguous;

// ---------------------------------------------------------------- Trace

// Orders of the general kernels at sizes 3 to 6, by diagonal index, left to
// right; they show in the last bits.
constexpr int kGeneralTraceOrder[4][6] = {
    {1, 2, 0}, {2, 3, 1, 0}, {3, 4, 2, 0, 1}, {4, 5, 3, 0, 1, 2}};

// Contiguous kernels add sizes 3 to 6 from d0 on, in rising order; every other
// size starts from 0 (so -0.0 alone comes out +0.0), and a single matrix keeps
// its running sum in dst. The _P kernel starts from 0 at every size.
template <class A, class D>
QelStatus traceKernel(A a, D d, int size, int count) {
  using T = ElemOf<D>;
  using O = typename A::Object;
  for (int n = 0; n < count; ++n) {
    const O o = a.object(n);
    T& out = d.object(n).at(0, 0);
    auto diag = [&](int k) { return T(o.at(k, k)); };
    if (!isPointerTable<O> && size >= 3 && size <= 6) {
      T s;
      if constexpr (isContiguousKernel<O>) {
        s = diag(0);
        for (int k = 1; k < size; ++k) s = s + diag(k);
      } else {
        const int* order = kGeneralTraceOrder[size - 3];
        s = diag(order[0]);
        for (int k = 1; k < size; ++k) s = s + diag(order[k]);
      }
      out = s;
      continue;
    }
    T s = T(0);
    for (int k = 0; k < size; ++k) {
      s = s + diag(k);
      if constexpr (!A::isArray && isContiguousKernel<O>) out = s;
    }
    out = s;
  }
  return qelStatusOk;
}

// ---------------------------------------------------------------- FrobNorm

// Sums of squares in lanes. A Qel32f run takes eight elements a pass as two
// registers of four, squared and added to one four-lane accumulator; a Qel64f
// run takes them into the two two-lane accumulators of the split sum. The lanes
// are folded after the last whole pass; what follows is added singly.
template <class T, class F>
T squaresInLanes(int k8, F x) {
  using S = Lanes<T>;
  auto square = [&](int k) { const T v = x(k); return v * v; };
  if constexpr (S::L == 4) {
    typename S::V acc = S::zero();
    for (int k = 0; k < k8; k += 8) {
      const __m128 v0 = S::gather(x(k), x(k + 1), x(k + 2), x(k + 3));
      const __m128 v1 = S::gather(x(k + 4), x(k + 5), x(k + 6), x(k + 7));
      acc = S::add(S::add(acc, S::mul(v0, v0)), S::mul(v1, v1));
    }
    const __m128 pairs = _mm_add_ps(acc, _mm_movehl_ps(acc, acc));  // l0 + l2, l1 + l3
    return _mm_cvtss_f32(_mm_add_ss(pairs, _mm_shuffle_ps(pairs, pairs, 1)));
  } else {
    return splitBlocks(T(0), 0, k8 / 8, gatheredTerms<T>(square));
  }
}

// A run of `len` elements x(0) .. x(len - 1) added to `total`: whole passes of
// eight in lanes, then the rest singly. Below eight, all singly.
template <class T, class F>
T addRun(T total, int len, F x) {
  const int k8 = len & ~7;
  if (k8 > 0) total = total + squaresInLanes<T>(k8, x);
  for (int k = k8; k < len; ++k) total = total + x(k) * x(k);
  return total;
}

// The sum of squares of one object on its kernel's path. Square sizes of 3 to
// 6 come as integral constants, so their row-order sums are straight lines.
template <class O, class Width, class Height>
auto sumOfSquares(const O& o, Width width, Height height) {
  using T = typename O::Elem;
  auto at = [&](int i, int j) { return T(o.at(i, j)); };
  // Small squares are unrolled in row order: (0,0), (0,1) and so on.
  auto rowOrder = [&] {
    T s = T(0);
    for (int i = 0; i < height; ++i)
      for (int j = 0; j < width; ++j) s = s + at(i, j) * at(i, j);
    return s;
  };
  auto rowsInTurn = [&] {
    T s = T(0);
    for (int i = 0; i < height; ++i) s = addRun(s, width, [&](int j) { return at(i, j); });
    return s;
  };
  if constexpr (isPointerTable<O>) {
    // Pointers two at a time over the flat index, each pair in two lanes (eight
    // pairs a pass, then the rest), the lanes folded, an odd last element alone.
    const int total = width * height, pairs = total / 2;
    T lane[2] = {T(0), T(0)};
    for (int p = 0; p < pairs; ++p)
      for (int l = 0; l < 2; ++l) {
        const int k = 2 * p + l;
        const T v = at(k / width, k % width);
        lane[l] = lane[l] + v * v;
      }
    T s = lane[0] + lane[1];
    if (total % 2) s = s + at(height - 1, width - 1) * at(height - 1, width - 1);
    return s;
  } else {
    const bool adjacent = height == 1 || o.s1 == mul32(width, o.stride2());
    auto oneRun = [&] { return addRun(T(0), width * height, [&](int k) { return T(*byteAt(o.base, mul32(k, o.stride2()))); }); };
    if constexpr (isContiguousKernel<O> && std::is_same_v<T, Qel64f>) {
      return rowsInTurn();  // Qel64f contiguous: rows in turn, whatever the sizes
    } else if constexpr (isContiguousKernel<O>) {
      if (width == height && width < 6) return rowOrder();
      return adjacent ? oneRun() : rowsInTurn();
    } else {
      if (width == height && width >= 3 && width <= 6) return rowOrder();
      return adjacent ? oneRun() : rowsInTurn();
    }
  }
}

// Contiguous square objects of 3 to 5 a register at a time, object k in lane
// k: each lane adds the same squares in the same row order from zero as one
// object alone, and the root in lanes is the exact one, so the bits are the
// same. G registers of objects go side by side: each lane's sum is one chain of
// N * N dependent additions, and G chains overlap. Starts at object n and
// answers where it stopped.
template <int N, int G, class A, class D>
int frobGroups(A a, D d, int n, int count) {
  using T = ElemOf<D>;
  using S = Lanes<T>;
  constexpr int K = G * S::L;
  for (; n + K <= count; n += K) {
    typename A::Object o[K];
    for (int k = 0; k < K; ++k) o[k] = a.object(n + k);
    typename S::V sum[G];
    for (int g = 0; g < G; ++g) sum[g] = S::zero();
    if constexpr (S::L == 4 && N == 4) {  // rows of four objects, transposed into columns
      for (int i = 0; i < 4; ++i)
        for (int g = 0; g < G; ++g) {
          __m128 c[4];
          for (int k = 0; k < 4; ++k) {
            c[k] = _mm_loadu_ps(o[4 * g + k].row(i));
            // Whole rows in registers: left to itself the compiler rebuilds
            // each column from four single-element loads and inserts.
            asm("" : "+x"(c[k]));
          }
          _MM_TRANSPOSE4_PS(c[0], c[1], c[2], c[3]);
          for (int j = 0; j < 4; ++j) sum[g] = S::add(sum[g], S::mul(c[j], c[j]));
        }
    } else unroll<N * N>([&](auto e) {
      constexpr int i = e / N, j = e % N;
      for (int g = 0; g < G; ++g) {
        const auto* q = &o[g * S::L];
        typename S::V v;
        if constexpr (S::L == 4) v = S::gather(q[0].at(i, j), q[1].at(i, j), q[2].at(i, j), q[3].at(i, j));
        else v = S::gather(q[0].at(i, j), q[1].at(i, j));
        sum[g] = S::add(sum[g], S::mul(v, v));
      }
    });
    alignas(16) T root[K];
    for (int g = 0; g < G; ++g) {
      if constexpr (S::L == 4) _mm_store_ps(root + 4 * g, _mm_sqrt_ps(sum[g]));
      else _mm_store_pd(root + 2 * g, _mm_sqrt_pd(sum[g]));
    }
    for (int k = 0; k < K; ++k) d.object(n + k).at(0, 0) = root[k];
  }
  return n;
}

template <class A, class D>
QelStatus frobKernel(A a, D d, int width, int height, int count) {
  move::bySize(width, height, [&](auto w, auto h) {
    int n = 0;
    if constexpr (std::is_same_v<decltype(w), decltype(h)> && !std::is_same_v<decltype(w), int>)
      if constexpr (isContiguousKernel<typename A::Object> && decltype(w)::value <= 5)
        n = frobGroups<decltype(w)::value, 1>(a, d, frobGroups<decltype(w)::value, 2>(a, d, 0, count), count);
    for (; n < count; ++n) d.object(n).at(0, 0) = ElemOf<D>(std::sqrt(sumOfSquares(a.object(n), w, h)));
  });
  return qelStatusOk;
}

// ---------------------------------------------------------------- front-ends

enum class Measure { Trace, Frob };

template <Measure M, class A, class D>
QelStatus measureFront(const char* order, A a, D d, int width, int height, int count, WorkLimit contiguous,
                       WorkLimit general) {
  if (QelStatus st = firstFailure(order, checkViews(count, {width, height}, a, d))) return st;
  auto job = makeJob(
      [width, height](int share, void*, auto va, auto vd) {
        if constexpr (M == Measure::Trace) return traceKernel(va, vd, width, share);
        else return frobKernel(va, vd, width, height, share);
      },
      a, d);
  if constexpr (!A::isArray) return runSerial(job, 1);
  const Work w = M == Measure::Trace ? Work(width) * count : Work(width) * height * count;
  return runFirstKind(job, count, w, contiguous, general);
}

WorkLimit below(int32_t t) { return WorkLimit::serialBelow(t); }
WorkLimit atMost(int32_t t) { return WorkLimit::serialAtMost(t); }

}  // namespace

// The result: one scalar, or `count` packed scalars.
#define QEL_MEASURE_DST_m(T, x) ::qel::vectorSingle(x, int(sizeof(T)))
#define QEL_MEASURE_DST_ma(T, x) ::qel::vectorArrayS(x, int(sizeof(T)), int(sizeof(T)))
#define QEL_MEASURE_COUNT_ARG_m
#define QEL_MEASURE_COUNT_ARG_ma , int count
#define QEL_MEASURE_COUNT_m 1
#define QEL_MEASURE_COUNT_ma count

// Trace has one size; it is the width and the height of the object.
#define QEL_TRACE(K, T, F, SUFFIX, LAY, ORDER)                                                          \
  QELM_API QelStatus qelmTrace_##K##_##F##SUFFIX(QEL_ARGS_##K##_##LAY(const T, src), int size, T* dst   \
                                                     QEL_MEASURE_COUNT_ARG_##K) {                       \
    return measureFront<Measure::Trace>(ORDER, QEL_VIEW_##K##_##LAY(src, size), QEL_MEASURE_DST_##K(T, dst), \
                                        size, size, QEL_MEASURE_COUNT_##K, below(3601), below(3601));    \
  }

// FrobNorm: the limits of the contiguous and the general kernel.
#define QEL_FROB(K, T, F, SUFFIX, LAY, ORDER, CONTIGUOUS, GENERAL)                                        \
  QELM_API QelStatus qelmFrobNorm_##K##_##F##SUFFIX(QEL_ARGS_##K##_##LAY(const T, src), int width,        \
                                                    int height, T* dst QEL_MEASURE_COUNT_ARG_##K) {       \
    return measureFront<Measure::Frob>(ORDER, QEL_VIEW_##K##_##LAY(src, width), QEL_MEASURE_DST_##K(T, dst), \
                                       width, height, QEL_MEASURE_COUNT_##K, CONTIGUOUS, GENERAL);       \
  }

// clang-format off
QEL_TRACE(m,  Qel32f, 32f, ,   S, "NZS")
QEL_TRACE(m,  Qel32f, 32f, _P, P, "NZR")
QEL_TRACE(m,  Qel64f, 64f, ,   S, "NZS")
QEL_TRACE(m,  Qel64f, 64f, _P, P, "NZR")
QEL_TRACE(ma, Qel32f, 32f, ,   S, "NCZS")
QEL_TRACE(ma, Qel32f, 32f, _L, L, "NCZSR")
QEL_TRACE(ma, Qel32f, 32f, _P, P, "NCZSR")
QEL_TRACE(ma, Qel64f, 64f, ,   S, "NCZS")
QEL_TRACE(ma, Qel64f, 64f, _L, L, "NCZSR")
QEL_TRACE(ma, Qel64f, 64f, _P, P, "NCZSR")

// One matrix has no work test: its limits go unused.
//       kind type    f    sfx lay order    contiguous    general
QEL_FROB(m,  Qel32f, 32f, ,   S, "NZS",   below(0),     below(0))
QEL_FROB(m,  Qel32f, 32f, _P, P, "NZR",   below(0),     below(0))
QEL_FROB(m,  Qel64f, 64f, ,   S, "NZS",   below(0),     below(0))
QEL_FROB(m,  Qel64f, 64f, _P, P, "NZR",   below(0),     below(0))
QEL_FROB(ma, Qel32f, 32f, ,   S, "NCZS",  below(2501),  below(1801))
QEL_FROB(ma, Qel32f, 32f, _L, L, "NCZSR", below(1601),  below(1601))
QEL_FROB(ma, Qel32f, 32f, _P, P, "NCZSR", below(1501),  below(1501))
QEL_FROB(ma, Qel64f, 64f, ,   S, "NCZS",  atMost(1800), atMost(1500))
QEL_FROB(ma, Qel64f, 64f, _L, L, "NCZSR", below(1601),  below(1601))
QEL_FROB(ma, Qel64f, 64f, _P, P, "NCZSR", below(2501),  below(2501))
// clang-format on
