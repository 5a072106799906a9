// Operands of the families that multiply a matrix by vectors (Mul by a vector,
// Gaxpy): the raw arguments of a matrix, a vector or a result vector taken from
// a Batch, their argument groups per description, which fields a form passes
// (so a check test spoils only what exists), the team's shares and two sums.
#pragma once

#include <tuple>
#include <vector>

#include "batch.h"

namespace qt {

enum class Desc { Std, L, P };

// Free to spoil after it is taken from a batch; a vector's length is `w`.
template <class T>
struct Operand {
  T* ptr;
  T* const* list;
  T* const* elems;
  int shift, s0, s1, s2, w, h;
};
template <class T>
Operand<T> operandOf(Batch<T>& b, Desc d) {
  return {b.ptr(), b.list(), b.elems(), d == Desc::L ? b.listShift : b.elemShift,
          b.s0,    b.s1,     b.s2,      b.cols(),                            b.rows()};
}

// A single operand of an _L function is a plain one.
template <Desc D, bool Arr, class T>
auto matrixArgs(const Operand<T>& o) {
  const T* p = o.ptr;
  if constexpr (D == Desc::P && Arr) return std::tuple(o.elems, o.shift, o.s0, o.w, o.h);
  else if constexpr (D == Desc::P) return std::tuple(o.elems, o.shift, o.w, o.h);
  else if constexpr (D == Desc::L && Arr) return std::tuple(o.list, o.shift, o.s1, o.s2, o.w, o.h);
  else if constexpr (Arr) return std::tuple(p, o.s0, o.s1, o.s2, o.w, o.h);
  else return std::tuple(p, o.s1, o.s2, o.w, o.h);
}
template <Desc D, bool Arr, class T>
auto vectorArgs(const Operand<T>& o) {
  const T* p = o.ptr;
  if constexpr (D == Desc::P && Arr) return std::tuple(o.elems, o.shift, o.s0, o.w);
  else if constexpr (D == Desc::P) return std::tuple(o.elems, o.shift, o.w);
  else if constexpr (D == Desc::L && Arr) return std::tuple(o.list, o.shift, o.s2, o.w);
  else if constexpr (Arr) return std::tuple(p, o.s0, o.s2, o.w);
  else return std::tuple(p, o.s2, o.w);
}
// The result has no length of its own; `count` follows it for arrays.
template <Desc D, bool Arr, class T>
auto resultArgs(const Operand<T>& o, int count) {
  if constexpr (D == Desc::P && Arr) return std::tuple(o.elems, o.shift, o.s0, count);
  else if constexpr (D == Desc::P) return std::tuple(o.elems, o.shift);
  else if constexpr (D == Desc::L) return std::tuple(o.list, o.shift, o.s2, count);
  else if constexpr (Arr) return std::tuple(o.ptr, o.s0, o.s2, count);
  else return std::tuple(o.ptr, o.s2);
}

// Fields 0..2 are strides 0..2, field 3 the roi shift.
inline bool passes(Desc d, bool array, bool matrix, int field) {
  if (field == 0) return array && d != Desc::L;
  if (field == 1) return matrix && d != Desc::P;
  if (field == 2) return d != Desc::P;
  return d == Desc::P || (d == Desc::L && array);
}
template <class T>
int& fieldOf(Operand<T>& o, int f) {
  return f == 0 ? o.s0 : f == 1 ? o.s1 : f == 2 ? o.s2 : o.shift;
}

// The shares of a forked team: the first count % threads take one more.
struct Share {
  int first, size;
};
inline std::vector<Share> sharesOf(int count, int threads, bool forked) {
  if (!forked) return {{0, count}};
  std::vector<Share> s;
  for (int t = 0, first = 0; t < threads; ++t) {
    const int size = count / threads + (t < count % threads);
    s.push_back({first, size});
    first += size;
  }
  return s;
}
inline Share shareHolding(const std::vector<Share>& shares, int n) {
  for (const Share& s : shares)
    if (n >= s.first && n < s.first + s.size) return s;
  return {0, 0};
}

// Products rounded to T, added from the first one or from +0.
template <class T>
T fromLeft(const std::vector<T>& p) {
  T s = p[0];
  for (size_t k = 1; k < p.size(); ++k) s += p[k];
  return s;
}
template <class T>
T fromZero(const std::vector<T>& p, size_t first = 0, size_t end = size_t(-1)) {
  T s = T(0);
  for (size_t k = first; k < p.size() && k < end; ++k) s += p[k];
  return s;
}

}  // namespace qt
