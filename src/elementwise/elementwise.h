// Element-wise kernels: dst(n)(i, j) = A(i, j) op B(i, j), each element one
// operation in the element type, so every path below gives the same values and
// the paths differ in speed only.
#pragma once

#include "../frame/lanes.h"
#include "../frame/views.h"
#include "qelm/qelmtypes.h"

#include <smmintrin.h>

#include <algorithm>
#include <cstring>
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
// Mul by a constant: each element one product, the constant as operand B.
struct MulOp {
  template <class T>
  static T apply(T a, T b) { return a * b; }
  static __m128 apply(__m128 a, __m128 b) { return _mm_mul_ps(a, b); }
  static __m128d apply(__m128d a, __m128d b) { return _mm_mul_pd(a, b); }
};

// ------------------------------------------------ objects held in SSE registers
//
// A contiguous R by N object is loaded into registers as rows of vector units
// (four Qel32f or two Qel64f), the last unit of a row filled from smaller
// parts, so no byte outside the row is read or written. An operand read as its
// transpose is loaded by columns: a 4 by 4 Qel32f object is transposed by
// shuffling, even Qel64f sizes by 2 by 2 blocks, other sizes gather columns.
// A single operand is loaded once, before the object loop. Pitch fixes the
// row distance (16 for a packed array, 0 for the real one); AlignA marks operand
// A's rows as 16-byte aligned, AlignAll every operand's.

// A column of `n` consecutive stored rows at element i, one row per lane, the
// other lanes zero.
template <class T, int n>
inline typename Lanes<T>::V gatherColumn(const T* const* rows, int i) {
  T v[Lanes<T>::L] = {};
  for (int l = 0; l < n; ++l) v[l] = rows[l][i];
  if constexpr (Lanes<T>::L == 4) return Lanes<T>::gather(v[0], v[1], v[2], v[3]);
  else return Lanes<T>::gather(v[0], v[1]);
}

template <class T, int R, int N>
struct Block {
  using S = Lanes<T>;
  static constexpr int units = (N + S::L - 1) / S::L;
  typename S::V v[R][units];
};

template <class T, int N, bool Aligned>
inline void loadRow(typename Lanes<T>::V* u, const T* p) {
  using S = Lanes<T>;
  for (int j = 0; j + S::L <= N; j += S::L)
    u[j / S::L] = Aligned ? S::loadAligned(p + j) : S::template load<S::L>(p + j);
  if constexpr (N % S::L != 0) u[N / S::L] = S::template load<N % S::L>(p + N / S::L * S::L);
}
template <class T, int N, bool Aligned>
inline void storeRow(T* p, const typename Lanes<T>::V* u) {
  using S = Lanes<T>;
  for (int j = 0; j + S::L <= N; j += S::L) {
    if constexpr (Aligned) S::storeAligned(p + j, u[j / S::L]);
    else S::template store<S::L>(p + j, u[j / S::L]);
  }
  if constexpr (N % S::L != 0) S::template store<N % S::L>(p + N / S::L * S::L, u[N / S::L]);
}

template <int Pitch, class M>
inline auto rowAt(const M& m, int i) {
  if constexpr (Pitch != 0) return byteAt(m.base, i * Pitch);
  else return m.row(i);
}

template <class O>
constexpr bool isTransposedObject = requires(O o) { o.v; };
// A constant in every lane: it occupies no memory of the call, so it takes no
// part in the alignment tests either.
template <class O>
constexpr bool isConstantObject = requires(O o) { o.val; };

template <class T, int R, int N, int Pitch, bool Aligned, class O>
inline Block<T, R, N> loadBlock(const O& o) {
  using S = Lanes<T>;
  Block<T, R, N> blk;
  if constexpr (isConstantObject<O>) {
    for (int i = 0; i < R; ++i)
      for (int u = 0; u < Block<T, R, N>::units; ++u) blk.v[i][u] = S::splat(o.val);
  } else if constexpr (isTransposedObject<O>) {
    // Row i of the result is column i of the stored matrix.
    if constexpr (std::is_same_v<T, float> && N == 4) {
      __m128 r0 = _mm_loadu_ps(rowAt<Pitch>(o.v, 0)), r1 = _mm_loadu_ps(rowAt<Pitch>(o.v, 1));
      __m128 r2 = _mm_loadu_ps(rowAt<Pitch>(o.v, 2)), r3 = _mm_loadu_ps(rowAt<Pitch>(o.v, 3));
      _MM_TRANSPOSE4_PS(r0, r1, r2, r3);
      blk.v[0][0] = r0, blk.v[1][0] = r1, blk.v[2][0] = r2, blk.v[3][0] = r3;
    } else if constexpr (std::is_same_v<T, double> && N % 2 == 0) {
      // 2 by 2 blocks: two stored rows' column pair become two result rows' unit.
      for (int u = 0; u < N / 2; ++u)
        for (int c = 0; c < N / 2; ++c) {
          const __m128d top = _mm_loadu_pd(rowAt<Pitch>(o.v, 2 * u) + 2 * c);
          const __m128d bottom = _mm_loadu_pd(rowAt<Pitch>(o.v, 2 * u + 1) + 2 * c);
          blk.v[2 * c][u] = _mm_unpacklo_pd(top, bottom);
          blk.v[2 * c + 1][u] = _mm_unpackhi_pd(top, bottom);
        }
    } else {
      const T* stored[N];
      for (int k = 0; k < N; ++k) stored[k] = rowAt<Pitch>(o.v, k);
      for (int i = 0; i < R; ++i)
        for (int u = 0; u < Block<T, R, N>::units; ++u)
          blk.v[i][u] = (u + 1) * S::L <= N
                            ? gatherColumn<T, S::L>(stored + u * S::L, i)
                            : gatherColumn<T, (N % S::L ? N % S::L : S::L)>(stored + u * S::L, i);
    }
  } else {
    for (int i = 0; i < R; ++i) loadRow<T, N, Aligned>(blk.v[i], rowAt<Pitch>(o, i));
  }
  return blk;
}

template <class Op, int R, int N, int Pitch, bool AlignA, bool AlignAll, class T, class AO, class BO,
          class DO>
inline void oneObjectSse(const AO& ao, const BO& bo, const DO& dobj, const Block<T, R, N>* heldA,
                         const Block<T, R, N>* heldB) {
  using Blk = Block<T, R, N>;
  const Blk x = heldA ? *heldA : loadBlock<T, R, N, Pitch, AlignA || AlignAll>(ao);
  const Blk y = heldB ? *heldB : loadBlock<T, R, N, Pitch, AlignAll>(bo);
  for (int i = 0; i < R; ++i) {
    typename Lanes<T>::V row[Blk::units];
    for (int u = 0; u < Blk::units; ++u) row[u] = Op::apply(x.v[i][u], y.v[i][u]);
    storeRow<T, N, AlignAll>(rowAt<Pitch>(dobj, i), row);
  }
}

// Single operands go to registers (or their spill slots) once, before the loop.
template <class T, int R, int N, int Pitch, bool Aligned, class V>
inline const Block<T, R, N>* holdSse(const V& v, Block<T, R, N>& held) {
  if constexpr (V::isArray) return nullptr;
  held = loadBlock<T, R, N, Pitch, Aligned>(v.object(0));
  return &held;
}

template <class Op, int R, int N, int Pitch, bool AlignA, bool AlignAll, class A, class B, class D>
void objectsSse(A a, B b, D d, int count) {
  using T = typename D::Object::Elem;
  Block<T, R, N> ha, hb;
  const auto* heldA = holdSse<T, R, N, Pitch, AlignA || AlignAll>(a, ha);
  const auto* heldB = holdSse<T, R, N, Pitch, AlignAll>(b, hb);
  for (int n = 0; n < count; ++n)
    oneObjectSse<Op, R, N, Pitch, AlignA, AlignAll>(a.object(n), b.object(n), d.object(n), heldA, heldB);
}

// Arrays whose objects have addresses of their own (_L), and the object
// distance of a strided array, through a transposing adapter.
template <class V>
struct IsObjectList : std::false_type {};
template <class T, bool C>
struct IsObjectList<ListArray<T, C>> : std::true_type {};
template <class A>
struct IsObjectList<TransArray<A>> : IsObjectList<A> {};
template <class V>
constexpr bool isObjectList = IsObjectList<V>::value;

inline bool multipleOf16(const void* p) { return (reinterpret_cast<uintptr_t>(p) & 15) == 0; }
inline bool multipleOf16(int32_t s) { return (s & 15) == 0; }

// The stored matrix behind an object, transposed or not.
template <class O>
inline const auto& storedOf(const O& o) {
  if constexpr (isTransposedObject<O>) return o.v;
  else return o;
}

// Alignment facts of a contiguous call, taken from the first object: the base
// pointers, the object distances of the array operands and the row distances
// of every operand.
struct Alignment {
  bool pointers = true, firstStride0 = true, otherStride0 = true, rows = true;
  int32_t rowOr = 0;
};

template <class O>
inline bool baseOn16(const O& o) {
  if constexpr (isConstantObject<O>) return true;
  else return multipleOf16(storedOf(o).base);
}
template <class O>
inline bool rowsOn16(const O& o) {
  if constexpr (isConstantObject<O>) return true;
  else return multipleOf16(storedOf(o).s1);
}

template <class V>
inline void noteAlignment(Alignment& al, const V& v, bool first) {
  if constexpr (!isConstantObject<typename V::Object>) {
    const auto obj = v.object(0);
    const auto& o = storedOf(obj);
    al.pointers = al.pointers && multipleOf16(o.base);
    al.rows = al.rows && multipleOf16(o.s1);
    al.rowOr |= o.s1;
    if constexpr (requires { v.a.s0; }) {
      (first ? al.firstStride0 : al.otherStride0) = multipleOf16(v.a.s0);
    } else if constexpr (requires { v.s0; }) {
      (first ? al.firstStride0 : al.otherStride0) = multipleOf16(v.s0);
    }
  }
}

// _L arrays: every object is tested on its own bases inside the one loop.
template <class Op, int R, int N, class A, class B, class D>
void listedObjectsSse(A a, B b, D d, int count) {
  using T = typename D::Object::Elem;
  Block<T, R, N> ha, hb;
  const auto* heldA = holdSse<T, R, N, 0, false>(a, ha);
  const auto* heldB = holdSse<T, R, N, 0, false>(b, hb);
  const auto o = d.object(0);
  const bool rowsAligned = rowsOn16(a.object(0)) && rowsOn16(b.object(0)) && multipleOf16(o.s1);
  for (int n = 0; n < count; ++n) {
    const auto ao = a.object(n);
    const auto bo = b.object(n);
    const auto dobj = d.object(n);
    if (rowsAligned && baseOn16(ao) && baseOn16(bo) &&
        multipleOf16(dobj.base))
      oneObjectSse<Op, R, N, 0, true, true>(ao, bo, dobj, heldA, heldB);
    else
      oneObjectSse<Op, R, N, 0, false, false>(ao, bo, dobj, heldA, heldB);
  }
}

// The unrolled sizes of the contiguous kernels. A vector of 3 to 6
// elements takes aligned units when every base and object distance is a
// multiple of 16. A square matrix:
//   3 by 3  packed rows at a pitch of 16, or the same sums at the real pitch;
//   4 by 4  packed rows and aligned, aligned at the real pitch, or unaligned;
//   5 by 5  unaligned, four elements and one per row;
//   6 by 6  aligned loads of the first operand, or unaligned. The destination's
//           object distance is not tested, so its later objects may be unaligned.

template <class Op, int R, int N, class A, class B, class D>
void unrolledSse(A a, B b, D d, int count) {
  // Objects behind a list have addresses of their own: each one is tested on
  // its own bases and takes the aligned or the unaligned form.
  if constexpr (isObjectList<A> || isObjectList<B> || isObjectList<D>) {
    if (count > 1) return listedObjectsSse<Op, R, N>(a, b, d, count);
  }
  using T = typename D::Object::Elem;
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
    // Packed rows (16 bytes of Qel32f, 32 of Qel64f) are fixed offsets from the object.
    constexpr int packed = 4 * int(sizeof(T));
    if (allAligned && al.rowOr == packed) return objectsSse<Op, 4, 4, packed, true, true>(a, b, d, count);
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

// Operands whose objects are contiguous rows (read plainly or transposed).
template <class V, class T = typename V::Object::Elem>
constexpr bool isContiguousRows =
    std::is_same_v<typename V::Object, Mat<const T, true>> ||
    std::is_same_v<typename V::Object, Mat<T, true>> ||
    std::is_same_v<typename V::Object, Trans<Mat<const T, true>>>;

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

// Arrays packed without any gap (rows back to back, objects back to back) are
// one long run of elements, against another such run or one constant: the
// whole call is a single forward pass in vector units. Every element still
// gets its one operation.

template <class V>
inline bool isDense(const V& v, int width, int height) {
  const int32_t e = elemSize<typename V::Object::Elem>;
  return (height == 1 || v.s1 == width * e) && v.s0 == height * width * e;
}

// Operand B of a flat run: a run as long as A's, or one constant spread over a
// register once, which makes a scaling stream at copy bandwidth.
template <class T, bool Aligned = false>
struct RunOperand {
  const T* p;
  typename Lanes<T>::V lanes(size_t k) const {
    if constexpr (Aligned) return Lanes<T>::loadAligned(p + k);
    else return Lanes<T>::template load<Lanes<T>::L>(p + k);
  }
  T at(size_t k) const { return p[k]; }
  bool aligned() const { return (reinterpret_cast<uintptr_t>(p) & 15) == 0; }
  RunOperand<T, true> alignedForm() const { return {p}; }
};
template <class T>
struct SplatOperand {
  T val;
  typename Lanes<T>::V v = Lanes<T>::splat(val);
  typename Lanes<T>::V lanes(size_t) const { return v; }
  T at(size_t) const { return val; }
  bool aligned() const { return true; }
  SplatOperand alignedForm() const { return *this; }
};

template <class V>
constexpr bool isSingleConstant = std::is_same_v<V, Single<Const<typename V::Object::Elem>>>;

template <bool Aligned, class Op, class T, class B>
void flatPass(const T* a, const B b, T* d, size_t n) {
  using S = Lanes<T>;
  constexpr size_t W = S::L;
  auto load = [](const T* p) {
    if constexpr (Aligned) return S::loadAligned(p);
    else return S::template load<W>(p);
  };
  size_t k = 0;
  // Four units a pass, all loaded before any is stored: with dst equal to a
  // source each element is still read before it is written.
  for (; k + 4 * W <= n; k += 4 * W) {
    typename S::V r[4];
    for (size_t u = 0; u < 4; ++u) r[u] = Op::apply(load(a + k + u * W), b.lanes(k + u * W));
    for (size_t u = 0; u < 4; ++u) {
      if constexpr (Aligned) S::storeAligned(d + k + u * W, r[u]);
      else S::template store<W>(d + k + u * W, r[u]);
    }
  }
  for (; k + W <= n; k += W)
    S::template store<W>(d + k, Op::apply(load(a + k), b.lanes(k)));
  for (; k < n; ++k) d[k] = Op::apply(a[k], b.at(k));
}

// Runs that all start on 16 bytes take aligned loads, which the products and
// sums can read straight from memory: one instruction fewer per unit.
template <class Op, class T, class B>
void flatRun(const T* a, const B b, T* d, size_t n) {
  const bool aligned = ((reinterpret_cast<uintptr_t>(a) | reinterpret_cast<uintptr_t>(d)) & 15) == 0;
  if (aligned && b.aligned()) flatPass<true, Op>(a, b.alignedForm(), d, n);
  else flatPass<false, Op>(a, b, d, n);
}

// The whole kernel over arrays. Square matrices of 3 to 6 (Rows = 0: height
// equal to width) or vectors of 3 to 6 elements (Rows = 1) are unrolled; every
// other size is a plain loop with objects outermost, then rows, then elements.
template <class Op, int Rows, class A, class B, class D>
QelStatus elementwise(A a, B b, D d, int width, int height, int count) {
  if constexpr (isStridedContiguous<A> && isStridedContiguous<D> &&
                (isStridedContiguous<B> || isSingleConstant<B>)) {
    const int rows = Rows == 1 ? 1 : height;
    const size_t n = size_t(width) * size_t(rows) * size_t(count);
    if (isDense(a, width, rows) && isDense(d, width, rows)) {
      if constexpr (isSingleConstant<B>) {
        flatRun<Op>(a.base, SplatOperand<typename B::Object::Elem>{b.v.val}, d.base, n);
        return qelStatusOk;
      } else if (isDense(b, width, rows)) {
        flatRun<Op>(a.base, RunOperand<typename B::Object::Elem>{b.base}, d.base, n);
        return qelStatusOk;
      }
    }
  }
  if ((Rows == 1 || width == height) && width >= 3 && width <= 6) {
    auto unrolled = [&](auto size) {
      constexpr int N = decltype(size)::value;
      constexpr int R = Rows == 1 ? 1 : N;
      if constexpr (isContiguousRows<A> && (isContiguousRows<B> || isConstantObject<typename B::Object>) &&
                    isContiguousRows<D>)
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
  if constexpr (requires { v.base; }) return Lanes<T>::template load<Lanes<T>::L>(&v.at(0, j));
  else return Lanes<T>::splat(v.val);
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
          Lanes<T>::storeAligned(&dobj.at(0, j + k),
                                 Op::apply(lanesAt<T>(ao, j + k), lanesAt<T>(bo, j + k)));
    }
  }
  for (; j < len; ++j) dobj.at(0, j) = Op::apply(T(ao.at(0, j)), T(bo.at(0, j)));
  return qelStatusOk;
}

}  // namespace qel
