// Element-wise kernels: dst(n)(i, j) = A(i, j) op B(i, j), each element one
// operation in the element type, so every path below gives the same values and
// the paths differ in speed only.
#pragma once

#include "../frame/views.h"
#include "qelm/qelmtypes.h"

#include <smmintrin.h>

#include <type_traits>

namespace qel {

struct AddOp {
  template <class T>
  static T apply(T a, T b) { return a + b; }
  static __m128 apply(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
  static __m128d apply(__m128d a, __m128d b) { return _mm_add_pd(a, b); }
};
struct SubOp {
  template <class T>
  static T apply(T a, T b) { return a - b; }
  static __m128 apply(__m128 a, __m128 b) { return _mm_sub_ps(a, b); }
  static __m128d apply(__m128d a, __m128d b) { return _mm_sub_pd(a, b); }
};

// ------------------------------------------------ 32f rows held in SSE registers
//
// A contiguous Qel32f row of N elements is done as four-element units plus a
// two- and a one-element remainder, so no byte outside the row is read or written.
// Pitch16 fixes the row distance to 16 bytes (a packed array); AlignA marks
// operand A's rows as 16-byte aligned, AlignAll every operand's.

template <bool Aligned>
inline __m128 load4(const float* p) { return Aligned ? _mm_load_ps(p) : _mm_loadu_ps(p); }
template <bool Aligned>
inline void store4(float* p, __m128 v) { Aligned ? _mm_store_ps(p, v) : _mm_storeu_ps(p, v); }
inline __m128 load2(const float* p) {
  return _mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double*>(p)));
}
inline void store2(float* p, __m128 v) { _mm_store_sd(reinterpret_cast<double*>(p), _mm_castps_pd(v)); }

template <class Op, int N, bool AlignA, bool AlignAll>
inline void rowSse(const float* a, const float* b, float* d) {
  int j = 0;
  for (; j + 4 <= N; j += 4)
    store4<AlignAll>(d + j, Op::apply(load4<AlignA || AlignAll>(a + j), load4<AlignAll>(b + j)));
  if constexpr (N % 4 >= 2) {
    store2(d + j, Op::apply(load2(a + j), load2(b + j)));
    j += 2;
  }
  if constexpr (N % 2 == 1)
    _mm_store_ss(d + j, Op::apply(_mm_load_ss(a + j), _mm_load_ss(b + j)));
}

template <class Op, int R, int N, int Pitch, bool AlignA, bool AlignAll, class A, class B, class D>
void objectsSse(A a, B b, D d, int count) {
  for (int n = 0; n < count; ++n) {
    const auto ao = a.object(n);
    const auto bo = b.object(n);
    const auto dobj = d.object(n);
    for (int i = 0; i < R; ++i) {
      if constexpr (Pitch != 0)
        rowSse<Op, N, AlignA, AlignAll>(byteAt(ao.base, i * Pitch), byteAt(bo.base, i * Pitch),
                                        byteAt(dobj.base, i * Pitch));
      else
        rowSse<Op, N, AlignA, AlignAll>(ao.row(i), bo.row(i), dobj.row(i));
    }
  }
}

inline bool multipleOf16(const void* p) { return (reinterpret_cast<uintptr_t>(p) & 15) == 0; }
inline bool multipleOf16(int32_t s) { return (s & 15) == 0; }

// Alignment facts of a 32f contiguous call, taken from the first object: the
// base pointers, the object distances of the array operands and the row
// distances of every operand.
struct Alignment {
  bool pointers = true, firstStride0 = true, otherStride0 = true, rows = true;
  int32_t rowOr = 0;
};

template <class V>
inline void noteAlignment(Alignment& al, const V& v, bool first) {
  const auto o = v.object(0);
  al.pointers = al.pointers && multipleOf16(o.base);
  al.rows = al.rows && multipleOf16(o.s1);
  al.rowOr |= o.s1;
  if constexpr (requires { v.s0; }) {
    (first ? al.firstStride0 : al.otherStride0) = multipleOf16(v.s0);
  }
}

// The unrolled sizes of the 32f contiguous kernels. A vector of 3 to 6
// elements takes aligned units when every base and object distance is a
// multiple of 16. A square matrix:
//   3 by 3  packed rows at a pitch of 16, or the same sums at the real pitch;
//   4 by 4  packed and aligned, aligned at the real pitch, or unaligned;
//   5 by 5  unaligned, four elements and one per row;
//   6 by 6  aligned loads of the first operand, or unaligned. The destination's
//           object distance is not tested, so its later objects may be unaligned.
template <class V>
constexpr bool isObjectList = V::isArray && !requires(V v) { v.s0; };

template <class Op, int R, int N, class A, class B, class D>
void unrolledSse(A a, B b, D d, int count) {
  // Objects behind a list have addresses of their own: test each one.
  if constexpr (isObjectList<A> || isObjectList<B> || isObjectList<D>) {
    if (count > 1) {
      for (int n = 0; n < count; ++n) unrolledSse<Op, R, N>(a.from(n), b.from(n), d.from(n), 1);
      return;
    }
  }
  Alignment al;
  noteAlignment(al, a, true);
  noteAlignment(al, b, false);
  noteAlignment(al, d, false);
  const bool allAligned = al.pointers && al.firstStride0 && al.otherStride0 && al.rows;
  if constexpr (R == 1) {
    if (al.pointers && al.firstStride0 && al.otherStride0)
      return objectsSse<Op, 1, N, 0, true, true>(a, b, d, count);
    return objectsSse<Op, 1, N, 0, false, false>(a, b, d, count);
  } else if constexpr (N == 3) {
    if (allAligned && al.rowOr == 16) return objectsSse<Op, 3, 3, 16, false, false>(a, b, d, count);
    return objectsSse<Op, 3, 3, 0, false, false>(a, b, d, count);
  } else if constexpr (N == 4) {
    if (allAligned && al.rowOr == 16) return objectsSse<Op, 4, 4, 16, true, true>(a, b, d, count);
    if (allAligned) return objectsSse<Op, 4, 4, 0, true, true>(a, b, d, count);
    return objectsSse<Op, 4, 4, 0, false, false>(a, b, d, count);
  } else if constexpr (N == 6) {
    if (al.pointers && al.firstStride0 && al.rows)
      return objectsSse<Op, 6, 6, 0, true, false>(a, b, d, count);
    return objectsSse<Op, 6, 6, 0, false, false>(a, b, d, count);
  } else {
    return objectsSse<Op, N, N, 0, false, false>(a, b, d, count);
  }
}

// ------------------------------------------------ generic forms

template <class V>
constexpr bool isContiguousF32Rows =
    std::is_same_v<typename V::Object, Mat<const float, true>> ||
    std::is_same_v<typename V::Object, Mat<float, true>>;

// A single operand read once into a local block, before the object loop.
template <class T, int R, int N>
struct HeldObject {
  T e[R][N];
  T at(int i, int j) const { return e[i][j]; }
};
template <class T, int R, int N>
struct HeldSingle {
  HeldObject<T, R, N> held;
  const HeldObject<T, R, N>& object(int) const { return held; }
};
template <int R, int N, class V>
auto holdIfSingle(const V& v) {
  if constexpr (V::isArray) {
    return v;
  } else {
    using T = typename V::Object::Elem;
    HeldSingle<T, R, N> h;
    const auto o = v.object(0);
    for (int i = 0; i < R; ++i)
      for (int j = 0; j < N; ++j) h.held.e[i][j] = o.at(i, j);
    return h;
  }
}

// A fixed size N by N, fully unrolled by the compiler. A row is formed whole
// before it is stored, so an in-place call reads each element before it is written.
template <class Op, int R, int N, class A, class B, class D>
void unrolledGeneric(A a, B b, D d, int count) {
  using T = typename D::Object::Elem;
  const auto ha = holdIfSingle<R, N>(a);
  const auto hb = holdIfSingle<R, N>(b);
  for (int n = 0; n < count; ++n) {
    const auto& ao = ha.object(n);
    const auto& bo = hb.object(n);
    const auto dobj = d.object(n);
    for (int i = 0; i < R; ++i) {
      T row[N];
      for (int j = 0; j < N; ++j) row[j] = Op::apply(T(ao.at(i, j)), T(bo.at(i, j)));
      for (int j = 0; j < N; ++j) dobj.at(i, j) = row[j];
    }
  }
}

// The whole kernel over arrays. Square matrices of 3 to 6 (Rows = 0: height
// equal to width) or vectors of 3 to 6 elements (Rows = 1) are unrolled; every
// other size is a plain loop with objects outermost, then rows, then elements.
template <class Op, int Rows, class A, class B, class D>
QelStatus elementwise(A a, B b, D d, int width, int height, int count) {
  if ((Rows == 1 || width == height) && width >= 3 && width <= 6) {
    auto unrolled = [&](auto size) {
      constexpr int N = decltype(size)::value;
      constexpr int R = Rows == 1 ? 1 : N;
      if constexpr (isContiguousF32Rows<A> && isContiguousF32Rows<B> && isContiguousF32Rows<D>)
        unrolledSse<Op, R, N>(a, b, d, count);
      else
        unrolledGeneric<Op, R, N>(a, b, d, count);
    };
    switch (width) {
      case 3: unrolled(std::integral_constant<int, 3>{}); break;
      case 4: unrolled(std::integral_constant<int, 4>{}); break;
      case 5: unrolled(std::integral_constant<int, 5>{}); break;
      default: unrolled(std::integral_constant<int, 6>{}); break;
    }
    return qelStatusOk;
  }
  using T = typename D::Object::Elem;
  for (int n = 0; n < count; ++n) {
    const auto ao = a.object(n);
    const auto bo = b.object(n);
    const auto dobj = d.object(n);
    for (int i = 0; i < height; ++i)
      for (int j = 0; j < width; ++j) dobj.at(i, j) = Op::apply(T(ao.at(i, j)), T(bo.at(i, j)));
  }
  return qelStatusOk;
}

// ------------------------------------------------ one vector: vv, vc, cv

inline __m128 loadUnaligned(const float* p) { return _mm_loadu_ps(p); }
inline __m128d loadUnaligned(const double* p) { return _mm_loadu_pd(p); }
inline void storeAligned(float* p, __m128 v) { _mm_store_ps(p, v); }
inline void storeAligned(double* p, __m128d v) { _mm_store_pd(p, v); }
inline __m128 broadcast(float v) { return _mm_set1_ps(v); }
inline __m128d broadcast(double v) { return _mm_set1_pd(v); }

template <class V>
inline bool overlapsDst(const V& v, const void* dst, int len, int e) {
  if constexpr (requires { v.base; }) {
    const char* s = reinterpret_cast<const char*>(v.base);
    const char* d = static_cast<const char*>(dst);
    return s < d + len * e && d < s + len * e;
  } else {
    return false;  // a constant occupies no memory of the call
  }
}

template <class T, class V>
inline auto lanesAt(const V& v, int j) {
  if constexpr (requires { v.base; }) return loadUnaligned(&v.at(0, j));
  else return broadcast(v.val);
}

// One vector, element by element in forward order: the fixed lengths 3 to 6,
// lengths 1 and 2, general strides, and every overlapping call. Above length 6,
// a contiguous call whose sources don't overlap dst and whose dst is element
// aligned steps dst up to 16 bytes singly, then does eight elements a pass in
// vector units, and the tail singly.
template <class Op, class A, class B, class D>
QelStatus vectorOnce(A a, B b, D d, int len) {
  using T = typename D::Object::Elem;
  const auto ao = a.object(0);
  const auto bo = b.object(0);
  const auto dobj = d.object(0);
  int j = 0;
  if constexpr (D::Object::contiguous) {
    constexpr int e = sizeof(T), lanes = 16 / e;
    const uintptr_t addr = reinterpret_cast<uintptr_t>(dobj.base);
    if (len > 6 && !overlapsDst(ao, dobj.base, len, e) && !overlapsDst(bo, dobj.base, len, e) &&
        (addr & 3) == 0) {
      for (; j < len && ((addr + j * e) & 15) != 0; ++j)
        dobj.at(0, j) = Op::apply(T(ao.at(0, j)), T(bo.at(0, j)));
      for (; j + 8 <= len; j += 8)
        for (int k = 0; k < 8; k += lanes)
          storeAligned(&dobj.at(0, j + k),
                       Op::apply(lanesAt<T>(ao, j + k), lanesAt<T>(bo, j + k)));
    }
  }
  for (; j < len; ++j) dobj.at(0, j) = Op::apply(T(ao.at(0, j)), T(bo.at(0, j)));
  return qelStatusOk;
}

}  // namespace qel
