// Operands of the families that multiply a matrix by vectors (Mul by a vector,
// Gaxpy): the raw arguments of a matrix, a vector or a result vector taken from
// a Batch, their argument groups per description, which fields a form passes
// (so a check test spoils only what exists), the team's shares and two sums.
#pragma once

#include <qelm/qelm.h>

#include <array>
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

// The checks of a front-end in their order N C Z M S R. Each group is spoiled
// alone and, but for R, with a later group spoiled too; `attempt(want, spoil)`
// makes a fresh call after spoil(ops, count) and expects `want` with the result
// untouched. Sizes and mismatches are (operand, width or else height); the
// first operand is the matrix.
template <class T, size_t N, class Attempt>
void checksInOrder(Desc desc, const std::array<bool, N>& array, bool hasCount,
                   const std::vector<std::pair<int, bool>>& sizes,
                   const std::vector<std::pair<int, bool>>& mismatches, Attempt attempt) {
  using Ops = std::array<Operand<T>, N>;
  const int el = sizeof(T), half = el / 2;
  auto size = [](Ops& o, std::pair<int, bool> s) -> int& { return s.second ? o[s.first].w : o[s.first].h; };
  bool anyStride = false;
  for (size_t k = 0; k < N; ++k)
    for (int f = 0; f < 3; ++f) anyStride |= passes(desc, array[k], k == 0, f);
  auto badStride = [&](Ops& o) {
    for (size_t k = 0; k < N; ++k)
      for (int f = 0; f < 3; ++f)
        if (passes(desc, array[k], k == 0, f)) return void(fieldOf(o[k], f) = half);
  };
  for (size_t k = 0; k < N; ++k)
    attempt(qelStatusNullPointer, [&](Ops& o, int& count) {
      o[k].ptr = nullptr, o[k].list = nullptr, o[k].elems = nullptr, count = 0, size(o, sizes[0]) = 0;
    });
  if (hasCount)
    for (int bad : {0, -1}) attempt(qelStatusBadCount, [&](Ops& o, int& count) { count = bad, size(o, sizes[0]) = 0; });
  for (auto s : sizes)
    for (int bad : {0, -3}) attempt(qelStatusBadSize, [&](Ops& o, int&) { size(o, s) = bad, badStride(o); });
  for (auto s : mismatches) attempt(qelStatusSizeMismatch, [&](Ops& o, int&) { size(o, s) += 1, badStride(o); });
  for (size_t k = 0; k < N; ++k)
    for (int f = 0; f < 4; ++f) {
      if (!passes(desc, array[k], k == 0, f)) continue;
      for (int bad : f == 3 ? std::vector<int>{half, -el} : std::vector<int>{half, 0, -el})
        attempt(f == 3 ? qelStatusBadRoiShift : qelStatusBadStride, [&](Ops& o, int&) { fieldOf(o[k], f) = bad; });
      if (f == 3 && anyStride)
        attempt(qelStatusBadStride, [&](Ops& o, int&) { fieldOf(o[k], f) = half, badStride(o); });
    }
}

// Sizes up to 64 and a count of at least 2 whose work base + per x count, with
// {base, per} = parts(M, K), is the target; all 0 if there are none.
template <class Parts>
std::tuple<int, int, int> sizesForWork(int target, Parts parts) {
  for (int m = 1; m <= 64; ++m)
    for (int k = 1; k <= 64; ++k)
      if (auto [base, per] = parts(m, k); (target - base) % per == 0 && target - base >= 2 * per)
        return {m, k, (target - base) / per};
  return {0, 0, 0};
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
