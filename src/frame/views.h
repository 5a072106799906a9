// Operand descriptions. Each view turns (object, row, column) into an address and
// nothing else, so one kernel body serves every description: the standard strided
// form, a list of object pointers (_L) and a table of element pointers (_P).
//
// Single-object views (Mat, MatP, Trans, Const) answer at(i, j).
// Array views answer object(n), a single-object view, and from(first), the array
// moved to object `first` for a thread's share. The arrays of matrices and
// vectors also split their stride test into the distance between objects and
// the strides inside one (objectStrideOk, innerStridesOk).
// All byte distances are formed in 32-bit signed arithmetic before they touch a
// pointer, as callers are promised.
#pragma once

#include <cstdint>
#include <type_traits>

namespace qel {

template <class T>
inline T* byteAt(T* p, int32_t offset) {
  using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
  return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + offset);
}

// 32-bit products that wrap instead of overflowing.
inline int32_t mul32(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) * static_cast<uint32_t>(b));
}
inline int32_t add32(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}

template <class T>
constexpr int32_t elemSize = static_cast<int32_t>(sizeof(std::remove_const_t<T>));

template <class T>
inline bool strideOk(int32_t stride) {
  return stride >= 1 && (stride & (elemSize<T> - 1)) == 0;
}
template <class T>
inline bool shiftOk(int32_t shift) {
  return shift >= 0 && (shift & (elemSize<T> - 1)) == 0;
}

// ---------------------------------------------------------------- single objects

// Strided matrix: (i, j) at base + i*s1 + j*s2. A vector is its row 0.
// Contig fixes s2 to the element size, which is what the contiguous kernels see.
template <class T, bool Contig = false>
struct Mat {
  using Elem = std::remove_const_t<T>;
  using Contiguous = Mat<T, true>;
  static constexpr bool hasStride2 = true;
  static constexpr bool contiguous = Contig;

  T* base;
  int32_t s1, s2;

  int32_t stride2() const { return Contig ? elemSize<T> : s2; }
  T& at(int i, int j) const { return *byteAt(base, add32(mul32(i, s1), mul32(j, stride2()))); }
  T* row(int i) const { return byteAt(base, mul32(i, s1)); }
  bool unitStride() const { return s2 == elemSize<T>; }
  Contiguous toContiguous() const { return {base, s1, s2}; }
  bool stridesOk() const { return strideOk<T>(s1) && strideOk<T>(s2); }
  bool shiftsOk() const { return true; }
  bool pointerOk() const { return base != nullptr; }
};

// Pointer per element: (i, j) at ptrs[i*rowLen + j] + shift, rows as stored.
template <class T>
struct MatP {
  using Elem = std::remove_const_t<T>;
  using Contiguous = MatP;
  static constexpr bool hasStride2 = false;
  static constexpr bool contiguous = false;

  T* const* ptrs;
  int32_t shift;
  int32_t rowLen;

  T& at(int i, int j) const { return *byteAt(ptrs[i * rowLen + j], shift); }
  bool unitStride() const { return true; }
  Contiguous toContiguous() const { return *this; }
  bool stridesOk() const { return true; }
  bool shiftsOk() const { return shiftOk<T>(shift); }
  bool pointerOk() const { return ptrs != nullptr; }
};

// A matrix read as its transpose: the result's (i, j) is the stored (j, i).
template <class V>
struct Trans {
  using Elem = typename V::Elem;
  using Contiguous = Trans<typename V::Contiguous>;
  static constexpr bool hasStride2 = V::hasStride2;
  static constexpr bool contiguous = V::contiguous;

  V v;

  auto& at(int i, int j) const { return v.at(j, i); }
  bool unitStride() const { return v.unitStride(); }
  Contiguous toContiguous() const { return {v.toContiguous()}; }
  bool stridesOk() const { return v.stridesOk(); }
  bool shiftsOk() const { return v.shiftsOk(); }
  bool pointerOk() const { return v.pointerOk(); }
};

// A constant passed by value stands for every element.
template <class T>
struct Const {
  using Elem = T;
  using Contiguous = Const;
  static constexpr bool hasStride2 = false;
  static constexpr bool contiguous = false;

  T val;

  T at(int, int) const { return val; }
  bool unitStride() const { return true; }
  Contiguous toContiguous() const { return *this; }
  bool stridesOk() const { return true; }
  bool shiftsOk() const { return true; }
  bool pointerOk() const { return true; }
};

// ---------------------------------------------------------------- arrays

// Standard array: object n at base + n*s0.
template <class T, bool Contig = false>
struct StridedArray {
  using Object = Mat<T, Contig>;
  using Contiguous = StridedArray<T, true>;
  static constexpr bool hasStride2 = true;
  static constexpr bool isArray = true;
  static constexpr bool standardArray = true;

  T* base;
  int32_t s0, s1, s2;

  Object object(int n) const { return {byteAt(base, mul32(n, s0)), s1, s2}; }
  StridedArray from(int first) const { return {byteAt(base, mul32(first, s0)), s0, s1, s2}; }
  bool unitStride() const { return s2 == elemSize<T>; }
  Contiguous toContiguous() const { return {base, s0, s1, s2}; }
  bool stridesOk() const { return objectStrideOk() && innerStridesOk(); }
  bool objectStrideOk() const { return strideOk<T>(s0); }
  bool innerStridesOk() const { return strideOk<T>(s1) && strideOk<T>(s2); }
  bool shiftsOk() const { return true; }
  bool pointerOk() const { return base != nullptr; }
};

// A standard array known to hold packed Rows x Cols objects (rows back to
// back, objects back to back): the same view with both distances constants of
// the code, so that every row of a group of objects is a fixed offset from the
// group's base.
template <class T, int Rows, int Cols>
struct PackedArray : StridedArray<T, true> {
  using Base = StridedArray<T, true>;
  using Object = typename Base::Object;
  static constexpr int32_t row = Cols * elemSize<T>, obj = Rows * row;
  Object object(int n) const { return {byteAt(this->base, mul32(n, obj)), row, elemSize<T>}; }
  PackedArray from(int first) const { return {{byteAt(this->base, mul32(first, obj)), obj, row, elemSize<T>}}; }
};

// A standard array with unit element stride, exactly (not a PackedArray).
template <class V>
struct IsStridedContiguous : std::false_type {};
template <class T>
struct IsStridedContiguous<StridedArray<T, true>> : std::true_type {};
template <class V>
constexpr bool isStridedContiguous = IsStridedContiguous<V>::value;

// Calls f(views...) with each standard array whose objects are packed Rows x
// Cols blocks as a PackedArray, every other view as it is. A body of f is
// compiled for each combination: kept to the small orders.
template <int Rows, int Cols, class F>
inline decltype(auto) withPackedDistances(F&& f) {
  return f();
}
template <int Rows, int Cols, class F, class V, class... Rest>
inline decltype(auto) withPackedDistances(F&& f, const V& v, const Rest&... rest) {
  auto next = [&](const auto& view) {
    return withPackedDistances<Rows, Cols>([&](const auto&... others) { return f(view, others...); }, rest...);
  };
  if constexpr (isStridedContiguous<V>) {
    using P = PackedArray<std::remove_pointer_t<decltype(v.base)>, Rows, Cols>;
    if (v.s1 == P::row && v.s0 == P::obj) return next(P{{v.base, v.s0, v.s1, v.s2}});
  }
  return next(v);
}

// _L array: object n at list[n] + shift, each a standard object.
template <class T, bool Contig = false>
struct ListArray {
  using Object = Mat<T, Contig>;
  using Contiguous = ListArray<T, true>;
  static constexpr bool hasStride2 = true;
  static constexpr bool isArray = true;

  T* const* list;
  int32_t shift, s1, s2;

  Object object(int n) const { return {byteAt(list[n], shift), s1, s2}; }
  ListArray from(int first) const { return {list + first, shift, s1, s2}; }
  bool unitStride() const { return s2 == elemSize<T>; }
  Contiguous toContiguous() const { return {list, shift, s1, s2}; }
  bool stridesOk() const { return strideOk<T>(s1) && strideOk<T>(s2); }
  bool objectStrideOk() const { return true; }
  bool innerStridesOk() const { return stridesOk(); }
  bool shiftsOk() const { return shiftOk<T>(shift); }
  bool pointerOk() const { return list != nullptr; }
};

// _P array: element (i, j) of object n at ptrs[i*rowLen + j] + shift + n*s0.
// CheckS0 = false leaves the object distance out of the stride checks.
template <class T, bool CheckS0 = true>
struct PointerArray {
  using Object = MatP<T>;
  using Contiguous = PointerArray;
  static constexpr bool hasStride2 = false;
  static constexpr bool isArray = true;

  T* const* ptrs;
  int32_t shift, s0, rowLen;

  Object object(int n) const { return {ptrs, add32(shift, mul32(n, s0)), rowLen}; }
  PointerArray from(int first) const { return {ptrs, add32(shift, mul32(first, s0)), s0, rowLen}; }
  bool unitStride() const { return true; }
  Contiguous toContiguous() const { return *this; }
  bool stridesOk() const { return objectStrideOk(); }
  bool objectStrideOk() const { return !CheckS0 || strideOk<T>(s0); }
  bool innerStridesOk() const { return true; }
  bool shiftsOk() const { return shiftOk<T>(shift); }
  bool pointerOk() const { return ptrs != nullptr; }
};

// An array whose every object is read as its transpose.
template <class A>
struct TransArray {
  using Object = Trans<typename A::Object>;
  using Contiguous = TransArray<typename A::Contiguous>;
  static constexpr bool hasStride2 = A::hasStride2;
  static constexpr bool isArray = true;

  A a;

  Object object(int n) const { return {a.object(n)}; }
  TransArray from(int first) const { return {a.from(first)}; }
  bool unitStride() const { return a.unitStride(); }
  Contiguous toContiguous() const { return {a.toContiguous()}; }
  bool stridesOk() const { return a.stridesOk(); }
  bool shiftsOk() const { return a.shiftsOk(); }
  bool pointerOk() const { return a.pointerOk(); }
};

// One object used unchanged against every object of an array.
template <class V>
struct Single {
  using Object = V;
  using Contiguous = Single<typename V::Contiguous>;
  static constexpr bool hasStride2 = V::hasStride2;
  static constexpr bool isArray = false;

  V v;

  Object object(int) const { return v; }
  Single from(int) const { return *this; }
  bool unitStride() const { return v.unitStride(); }
  Contiguous toContiguous() const { return {v.toContiguous()}; }
  bool stridesOk() const { return v.stridesOk(); }
  bool shiftsOk() const { return v.shiftsOk(); }
  bool pointerOk() const { return v.pointerOk(); }
};

// Array of constants by pointer and byte stride (standard and _P layouts).
template <class T>
struct ConstArray {
  using Object = Const<T>;
  using Contiguous = ConstArray;
  static constexpr bool hasStride2 = false;
  static constexpr bool isArray = true;

  const T* base;
  int32_t s0;

  Object object(int n) const { return {*byteAt(base, mul32(n, s0))}; }
  ConstArray from(int first) const { return {byteAt(base, mul32(first, s0)), s0}; }
  bool unitStride() const { return true; }
  Contiguous toContiguous() const { return *this; }
  bool stridesOk() const { return strideOk<T>(s0); }
  bool shiftsOk() const { return true; }
  bool pointerOk() const { return base != nullptr; }
};

// _L array of constants: constant n at list[n] + shift.
template <class T>
struct ConstList {
  using Object = Const<T>;
  using Contiguous = ConstList;
  static constexpr bool hasStride2 = false;
  static constexpr bool isArray = true;

  const T* const* list;
  int32_t shift;

  Object object(int n) const { return {*byteAt(list[n], shift)}; }
  ConstList from(int first) const { return {list + first, shift}; }
  bool unitStride() const { return true; }
  Contiguous toContiguous() const { return *this; }
  bool stridesOk() const { return true; }
  bool shiftsOk() const { return shiftOk<T>(shift); }
  bool pointerOk() const { return list != nullptr; }
};

// Whether a kernel may read later objects of src before it writes earlier
// objects of dst. disjointObjects: the byte ranges of the two standard arrays
// do not meet. independentObjects: that, or the two are one array (the same
// base and strides, an in-place call whose kernel reads each object whole
// before writing it). Each array is given with the rows and columns of its
// objects; other descriptions answer no.
struct Extent {
  int rows, cols;
};
template <class V>
constexpr bool isStandardArray = requires { V::standardArray; };

template <class A, class B>
inline bool disjointObjects(const A& a, Extent ea, const B& b, Extent eb, int count) {
  if constexpr (!isStandardArray<A> || !isStandardArray<B>) {
    return false;
  } else {
    auto span = [&](const auto& v, Extent e) {
      return int64_t(count - 1) * v.s0 + int64_t(e.rows - 1) * v.s1 + int64_t(e.cols - 1) * v.s2 +
             int64_t(sizeof(*v.base));
    };
    const auto pa = int64_t(reinterpret_cast<uintptr_t>(a.base));
    const auto pb = int64_t(reinterpret_cast<uintptr_t>(b.base));
    // Spans past 32 bits wrap their distances: treat them as meeting.
    const int64_t sa = span(a, ea), sb = span(b, eb);
    if (sa > INT32_MAX || sb > INT32_MAX) return false;
    return pa + sa <= pb || pb + sb <= pa;
  }
}
template <class A, class B>
inline bool independentObjects(const A& a, Extent ea, const B& b, Extent eb, int count) {
  if constexpr (!isStandardArray<A> || !isStandardArray<B>) {
    return false;
  } else {
    if (reinterpret_cast<uintptr_t>(a.base) == reinterpret_cast<uintptr_t>(b.base) && a.s0 == b.s0 &&
        a.s1 == b.s1 && a.s2 == b.s2)
      return true;
    return disjointObjects(a, ea, b, eb, count);
  }
}

// Description-wide questions over several operands.
template <class... V>
inline bool allUnitStride(const V&... v) {
  return (v.unitStride() && ...);
}
template <class... V>
constexpr bool anyStride2 = (V::hasStride2 || ...);

}  // namespace qel
