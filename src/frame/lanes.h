// SSE registers seen as rows of a small matrix.
//
// A row of C elements is held in ceil(C / lanes) registers; the unused lanes of
// the last one are zero and are never stored, so no byte outside a row is read
// or written.
#pragma once

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
};

// Four packed 3-element Qel32f vectors (12 bytes apart) as three registers,
// element k of vector l in lane l of register k, and back.
inline void unpack3(const float* p, __m128 (&v)[3]) {
  const __m128 r0 = _mm_loadu_ps(p), r1 = _mm_loadu_ps(p + 4), r2 = _mm_loadu_ps(p + 8);
  v[0] = _mm_shuffle_ps(r0, _mm_shuffle_ps(r1, r2, _MM_SHUFFLE(1, 1, 2, 2)), _MM_SHUFFLE(2, 0, 3, 0));
  v[1] = _mm_shuffle_ps(_mm_shuffle_ps(r0, r1, _MM_SHUFFLE(0, 0, 1, 1)),
                        _mm_shuffle_ps(r1, r2, _MM_SHUFFLE(2, 2, 3, 3)), _MM_SHUFFLE(2, 0, 2, 0));
  v[2] = _mm_shuffle_ps(_mm_shuffle_ps(r0, r1, _MM_SHUFFLE(1, 1, 2, 2)), r2, _MM_SHUFFLE(3, 0, 2, 0));
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

}  // namespace qel
