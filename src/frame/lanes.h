// SSE registers seen as rows of a small matrix.
//
// A row of C elements is held in ceil(C / lanes) registers; the unused lanes of
// the last one are zero and are never stored, so no byte outside a row is read
// or written.
#pragma once

#include "views.h"

#include <smmintrin.h>

#include <cstring>
#include <type_traits>
#include <utility>

namespace qel {

// Calls f(integral_constant<int, 0>) .. f(integral_constant<int, N - 1>): a loop
// the compiler always lays out straight.
template <int N, class F>
inline void unroll(F&& f) {
  [&]<int... I>(std::integer_sequence<int, I...>) {
    (f(std::integral_constant<int, I>{}), ...);
  }(std::make_integer_sequence<int, N>{});
}

template <class T>
struct Lanes;

template <>
struct Lanes<float> {
  using V = __m128;
  static constexpr int L = 4;
  static V zero() { return _mm_setzero_ps(); }
  static V splat(float x) { return _mm_set1_ps(x); }
  static V first(float x) { return _mm_set_ss(x); }  // x in lane 0, the rest zero
  template <int I>
  static V splatLane(V v) { return _mm_shuffle_ps(v, v, _MM_SHUFFLE(I, I, I, I)); }
  static V mul(V a, V b) { return _mm_mul_ps(a, b); }
  static V add(V a, V b) { return _mm_add_ps(a, b); }
  static V sqrt(V a) { return _mm_sqrt_ps(a); }
  static V loadAligned(const float* p) { return _mm_load_ps(p); }
  static void storeAligned(float* p, V v) { _mm_store_ps(p, v); }
  // C consecutive elements (1 to 4), the other lanes zero.
  // A float pair moves as one 64-bit lane, through memcpy: it need not be
  // 8-byte aligned.
  static V loadPair(const float* p) {
    double pair;
    std::memcpy(&pair, p, sizeof pair);
    return _mm_castpd_ps(_mm_set_sd(pair));
  }
  static void storePair(float* p, V v) {
    const double pair = _mm_cvtsd_f64(_mm_castps_pd(v));
    std::memcpy(p, &pair, sizeof pair);
  }
  template <int C>
  static V load(const float* p) {
    if constexpr (C == 4) return _mm_loadu_ps(p);
    else if constexpr (C == 3) return _mm_insert_ps(loadPair(p), _mm_load_ss(p + 2), 0x20);
    else if constexpr (C == 2) return loadPair(p);
    else return _mm_load_ss(p);
  }
  template <int C>
  static void store(float* p, V v) {
    if constexpr (C == 4) {
      _mm_storeu_ps(p, v);
    } else if constexpr (C == 3) {
      storePair(p, v);
      _mm_store_ss(p + 2, _mm_movehl_ps(v, v));
    } else if constexpr (C == 2) {
      storePair(p, v);
    } else {
      _mm_store_ss(p, v);
    }
  }
  static V gather(float a, float b, float c, float d) { return _mm_setr_ps(a, b, c, d); }
  static V sub(V a, V b) { return _mm_sub_ps(a, b); }
  static V div(V a, V b) { return _mm_div_ps(a, b); }
  static V abs(V a) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), a); }
  static V greater(V a, V b) { return _mm_cmpgt_ps(a, b); }
  static V select(V mask, V a, V b) { return _mm_blendv_ps(b, a, mask); }  // mask ? a : b
  template <int Imm>
  static V blend(V a, V b) { return _mm_blend_ps(a, b, Imm); }  // lane l from b where bit l
  static float lane0(V v) { return _mm_cvtss_f32(v); }
  // A small integer spread over the register, and the lanes where it equals i:
  // row numbers ride along value comparisons without leaving the vector unit.
  static V splatInt(int i) { return _mm_castsi128_ps(_mm_set1_epi32(i)); }
  static V equalInt(V a, int i) { return _mm_castsi128_ps(_mm_cmpeq_epi32(_mm_castps_si128(a), _mm_set1_epi32(i))); }
  static int firstInt(V a) { return _mm_cvtsi128_si32(_mm_castps_si128(a)); }
  static V either(V a, V b) { return _mm_or_ps(a, b); }
  static bool anyLane(V a) { return _mm_movemask_ps(a) != 0; }
};

template <>
struct Lanes<double> {
  using V = __m128d;
  static constexpr int L = 2;
  static V zero() { return _mm_setzero_pd(); }
  static V splat(double x) { return _mm_set1_pd(x); }
  static V first(double x) { return _mm_set_sd(x); }
  template <int I>
  static V splatLane(V v) { return _mm_shuffle_pd(v, v, I ? 3 : 0); }
  static V mul(V a, V b) { return _mm_mul_pd(a, b); }
  static V add(V a, V b) { return _mm_add_pd(a, b); }
  static V sqrt(V a) { return _mm_sqrt_pd(a); }
  static V loadAligned(const double* p) { return _mm_load_pd(p); }
  static void storeAligned(double* p, V v) { _mm_store_pd(p, v); }
  template <int C>
  static V load(const double* p) {
    if constexpr (C == 2) return _mm_loadu_pd(p);
    else return _mm_load_sd(p);
  }
  template <int C>
  static void store(double* p, V v) {
    if constexpr (C == 2) _mm_storeu_pd(p, v);
    else _mm_store_sd(p, v);
  }
  static V gather(double a, double b) { return _mm_setr_pd(a, b); }
  static V sub(V a, V b) { return _mm_sub_pd(a, b); }
  static V div(V a, V b) { return _mm_div_pd(a, b); }
  static V abs(V a) { return _mm_andnot_pd(_mm_set1_pd(-0.0), a); }
  static V greater(V a, V b) { return _mm_cmpgt_pd(a, b); }
  static V select(V mask, V a, V b) { return _mm_blendv_pd(b, a, mask); }
  template <int Imm>
  static V blend(V a, V b) { return _mm_blend_pd(a, b, Imm); }
  static double lane0(V v) { return _mm_cvtsd_f64(v); }
  static V splatInt(int i) { return _mm_castsi128_pd(_mm_set1_epi32(i)); }
  static V equalInt(V a, int i) { return _mm_castsi128_pd(_mm_cmpeq_epi32(_mm_castpd_si128(a), _mm_set1_epi32(i))); }
  static int firstInt(V a) { return _mm_cvtsi128_si32(_mm_castpd_si128(a)); }
  static V either(V a, V b) { return _mm_or_pd(a, b); }
  static bool anyLane(V a) { return _mm_movemask_pd(a) != 0; }
};

// ---------------------------------------------------------------- rows of a view

template <class O>
struct IsTrans : std::false_type {};
template <class V>
struct IsTrans<Trans<V>> : std::true_type {};

// op(i, k) lies along a contiguous stored row as k grows: an untransposed
// contiguous matrix. op(k, j) lies along a stored row as k grows when the matrix
// is read transposed.
template <class O>
constexpr bool rowsContiguous = O::contiguous && !IsTrans<O>::value;
template <class O>
constexpr bool columnsContiguous = O::contiguous && IsTrans<O>::value;

// A row of N elements as R registers; lanes past column N - 1 are zero on load
// and never stored.
template <class T, int N>
struct RowRegs {
  using S = Lanes<T>;
  using V = typename S::V;
  static constexpr int L = S::L;
  static constexpr int R = (N + L - 1) / L;
  template <int r>
  static constexpr int width = (N - r * L) < L ? N - r * L : L;
};

template <class T, int N, class O>
inline void loadRow(const O& o, int i, typename Lanes<T>::V (&out)[RowRegs<T, N>::R]) {
  using B = RowRegs<T, N>;
  using S = Lanes<T>;
  if constexpr (rowsContiguous<O>) {
    const T* p = o.row(i);
    unroll<B::R>([&](auto r) { out[r] = S::template load<B::template width<r>>(p + r * S::L); });
  } else {
    alignas(16) T buf[B::R * S::L] = {};
    unroll<N>([&](auto j) { buf[j] = o.at(i, j); });
    unroll<B::R>([&](auto r) { out[r] = S::loadAligned(&buf[r * S::L]); });
  }
}

template <class T, int N, class O>
inline void storeRow(const O& o, int i, const typename Lanes<T>::V (&c)[RowRegs<T, N>::R]) {
  using B = RowRegs<T, N>;
  using S = Lanes<T>;
  if constexpr (rowsContiguous<O>) {
    T* p = o.row(i);
    unroll<B::R>([&](auto r) { S::template store<B::template width<r>>(p + r * S::L, c[r]); });
  } else {
    alignas(16) T buf[B::R * S::L];
    unroll<B::R>([&](auto r) { S::storeAligned(&buf[r * S::L], c[r]); });
    unroll<N>([&](auto j) { o.at(i, j) = buf[j]; });
  }
}

// ---------------------------------------------------------------- objects in lanes

// One value of every lane, with the element type's arithmetic lane by lane, so
// that a scalar form written over T runs unchanged on L objects at once.
template <class T>
struct LaneValue {
  using S = Lanes<T>;
  typename S::V v;
  LaneValue() = default;
  LaneValue(typename S::V x) : v(x) {}  // NOLINT: registers convert implicitly
  explicit LaneValue(T x) : v(S::splat(x)) {}
  friend LaneValue operator+(LaneValue a, LaneValue b) { return S::add(a.v, b.v); }
  friend LaneValue operator-(LaneValue a, LaneValue b) { return S::sub(a.v, b.v); }
  friend LaneValue operator*(LaneValue a, LaneValue b) { return S::mul(a.v, b.v); }
  friend LaneValue operator/(LaneValue a, LaneValue b) { return S::div(a.v, b.v); }
};

// L objects side by side, one per lane: element j of a row of object g becomes
// lane g of register j. Kernels whose objects run the same steps with no
// choice between them (solves, products) do L objects for the work of one.
template <class T, int N>
inline void rowsToLanes(const typename Lanes<T>::V (&rows)[Lanes<T>::L][RowRegs<T, N>::R],
                        typename Lanes<T>::V (&cols)[N]) {
  using B = RowRegs<T, N>;
  unroll<B::R>([&](auto q) {
    constexpr int w = B::template width<q>;
    if constexpr (B::L == 4) {
      __m128 r0 = rows[0][q], r1 = rows[1][q], r2 = rows[2][q], r3 = rows[3][q];
      _MM_TRANSPOSE4_PS(r0, r1, r2, r3);
      const __m128 t[4] = {r0, r1, r2, r3};
      unroll<w>([&](auto j) { cols[q * 4 + j] = t[j]; });
    } else {
      cols[q * 2] = _mm_unpacklo_pd(rows[0][q], rows[1][q]);
      if constexpr (w == 2) cols[q * 2 + 1] = _mm_unpackhi_pd(rows[0][q], rows[1][q]);
    }
  });
}

// The way back: lane g of register j becomes element j of row g.
template <class T, int N>
inline void lanesToRows(const typename Lanes<T>::V (&cols)[N],
                        typename Lanes<T>::V (&rows)[Lanes<T>::L][RowRegs<T, N>::R]) {
  using B = RowRegs<T, N>;
  using S = Lanes<T>;
  unroll<B::R>([&](auto q) {
    constexpr int w = B::template width<q>;
    if constexpr (B::L == 4) {
      __m128 t[4];
      unroll<4>([&](auto j) { t[j] = j < w ? cols[q * 4 + (j < w ? int(j) : 0)] : S::zero(); });
      _MM_TRANSPOSE4_PS(t[0], t[1], t[2], t[3]);
      unroll<4>([&](auto g) { rows[g][q] = t[g]; });
    } else {
      const __m128d hi = w == 2 ? cols[q * 2 + (w == 2 ? 1 : 0)] : S::zero();
      rows[0][q] = _mm_unpacklo_pd(cols[q * 2], hi);
      rows[1][q] = _mm_unpackhi_pd(cols[q * 2], hi);
    }
  });
}

// Three registers' worth of consecutive elements (twelve Qel32f, six Qel64f):
// four or two packed 3-element vectors as they lie.
template <class T>
inline void loadRun3(const T* p, typename Lanes<T>::V (&r)[3]) {
  for (int i = 0; i < 3; ++i) r[i] = Lanes<T>::template load<Lanes<T>::L>(p + i * Lanes<T>::L);
}
template <class T>
inline void storeRun3(T* p, const typename Lanes<T>::V (&r)[3]) {
  for (int i = 0; i < 3; ++i) Lanes<T>::template store<Lanes<T>::L>(p + i * Lanes<T>::L, r[i]);
}

// Four packed 3-element Qel32f vectors (12 bytes apart) as three registers,
// element k of vector l in lane l of register k, and back. The register forms
// take the run as it was loaded (or as it came out of element-wise products).
inline void unpack3(const __m128 (&r)[3], __m128 (&v)[3]) {
  const __m128 r0 = r[0], r1 = r[1], r2 = r[2];
  v[0] = _mm_shuffle_ps(r0, _mm_shuffle_ps(r1, r2, _MM_SHUFFLE(1, 1, 2, 2)), _MM_SHUFFLE(2, 0, 3, 0));
  v[1] = _mm_shuffle_ps(_mm_shuffle_ps(r0, r1, _MM_SHUFFLE(0, 0, 1, 1)),
                        _mm_shuffle_ps(r1, r2, _MM_SHUFFLE(2, 2, 3, 3)), _MM_SHUFFLE(2, 0, 2, 0));
  v[2] = _mm_shuffle_ps(_mm_shuffle_ps(r0, r1, _MM_SHUFFLE(1, 1, 2, 2)), r2, _MM_SHUFFLE(3, 0, 2, 0));
}
inline void unpack3(const float* p, __m128 (&v)[3]) {
  __m128 r[3];
  loadRun3(p, r);
  unpack3(r, v);
}
// Two packed 3-element Qel64f vectors (24 bytes apart): a0 a1 | a2 b0 | b1 b2.
inline void unpack3(const __m128d (&r)[3], __m128d (&v)[3]) {
  v[0] = _mm_shuffle_pd(r[0], r[1], 2);  // a0 b0
  v[1] = _mm_shuffle_pd(r[0], r[2], 1);  // a1 b1
  v[2] = _mm_shuffle_pd(r[1], r[2], 2);  // a2 b2
}
inline void unpack3(const double* p, __m128d (&v)[3]) {
  __m128d r[3];
  loadRun3(p, r);
  unpack3(r, v);
}
inline void pack3(double* p, const __m128d (&o)[3]) {
  _mm_storeu_pd(p, _mm_unpacklo_pd(o[0], o[1]));
  _mm_storeu_pd(p + 2, _mm_shuffle_pd(o[2], o[0], 2));
  _mm_storeu_pd(p + 4, _mm_unpackhi_pd(o[1], o[2]));
}
inline void pack3(float* p, const __m128 (&o)[3]) {
  const auto even = [](__m128 a, __m128 b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)); };
  _mm_storeu_ps(p, even(_mm_shuffle_ps(o[0], o[1], _MM_SHUFFLE(0, 0, 0, 0)),
                        _mm_shuffle_ps(o[2], o[0], _MM_SHUFFLE(1, 1, 0, 0))));
  _mm_storeu_ps(p + 4, even(_mm_shuffle_ps(o[1], o[2], _MM_SHUFFLE(1, 1, 1, 1)),
                            _mm_shuffle_ps(o[0], o[1], _MM_SHUFFLE(2, 2, 2, 2))));
  _mm_storeu_ps(p + 8, even(_mm_shuffle_ps(o[2], o[0], _MM_SHUFFLE(3, 3, 2, 2)),
                            _mm_shuffle_ps(o[1], o[2], _MM_SHUFFLE(3, 3, 3, 3))));
}

// Four packed 3-element Qel32f vectors times one 3 by 3 matrix, the vectors
// left as they lie: register r of the run holds elements 4r .. 4r + 3, so lane
// l carries element (4r + l) mod 3 of its own vector. Each lane's three terms
// are spread to it from the registers that hold its vector (thirteen shuffles
// for the four vectors, against twenty-odd for a transpose there and back),
// and the results land in the order they are stored in.
struct Quad3Matrix {
  __m128 c[3][3];  // c[r][k]: the coefficient of term k in each lane of register r
  // Register r of a run: lane l takes f of the element index it carries.
  template <class F>
  static __m128 inRunOrder(int r, F f) {
    return _mm_setr_ps(f((4 * r) % 3), f((4 * r + 1) % 3), f((4 * r + 2) % 3), f((4 * r + 3) % 3));
  }
  // coef(i, k): the coefficient of x(k) in result element i.
  template <class Coef>
  explicit Quad3Matrix(Coef coef) {
    for (int r = 0; r < 3; ++r)
      for (int k = 0; k < 3; ++k) c[r][k] = inRunOrder(r, [&](int i) { return coef(i, k); });
  }
  // One vector z spread the way the run lies, to be added lane by lane.
  template <class Elem>
  static void spread(Elem z, __m128 (&out)[3]) {
    for (int r = 0; r < 3; ++r) out[r] = inRunOrder(r, z);
  }
  // y[r] = ((c0 x0 + c1 x1) + c2 x2) lane by lane, x(k) of the lane's own vector.
  void apply(const __m128 (&x)[3], __m128 (&y)[3]) const {
    auto pick = [](__m128 a, __m128 b, auto imm) { return _mm_shuffle_ps(a, b, decltype(imm)::value); };
    using std::integral_constant;
    auto lanes0222 = [&](__m128 t) { return pick(t, t, integral_constant<int, _MM_SHUFFLE(2, 2, 2, 0)>{}); };
    auto lanes0002 = [&](__m128 t) { return pick(t, t, integral_constant<int, _MM_SHUFFLE(2, 0, 0, 0)>{}); };
    // x[0] = a0 a1 a2 b0, x[1] = b1 b2 c0 c1, x[2] = c2 d0 d1 d2.
    const __m128 s[3][3] = {
        {pick(x[0], x[0], integral_constant<int, _MM_SHUFFLE(3, 0, 0, 0)>{}),
         lanes0002(pick(x[0], x[1], integral_constant<int, _MM_SHUFFLE(0, 0, 1, 1)>{})),
         lanes0002(pick(x[0], x[1], integral_constant<int, _MM_SHUFFLE(1, 1, 2, 2)>{}))},
        {pick(x[0], x[1], integral_constant<int, _MM_SHUFFLE(2, 2, 3, 3)>{}),
         pick(x[1], x[1], integral_constant<int, _MM_SHUFFLE(3, 3, 0, 0)>{}),
         pick(x[1], x[2], integral_constant<int, _MM_SHUFFLE(0, 0, 1, 1)>{})},
        {lanes0222(pick(x[1], x[2], integral_constant<int, _MM_SHUFFLE(1, 1, 2, 2)>{})),
         lanes0222(pick(x[1], x[2], integral_constant<int, _MM_SHUFFLE(2, 2, 3, 3)>{})),
         pick(x[2], x[2], integral_constant<int, _MM_SHUFFLE(3, 3, 3, 0)>{})}};
    for (int r = 0; r < 3; ++r)
      y[r] = _mm_add_ps(_mm_add_ps(_mm_mul_ps(s[r][0], c[r][0]), _mm_mul_ps(s[r][1], c[r][1])),
                        _mm_mul_ps(s[r][2], c[r][2]));
  }
};

}  // namespace qel
