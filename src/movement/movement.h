// Moving elements between descriptions. Copy, Extract, Transpose and
// LoadIdentity all walk objects, rows and elements through the frame's views
// and move each element as its bit pattern, so a signalling NaN's payload
// survives and -0.0 stays -0.0.
#pragma once

#include "../frame/views.h"

#include <type_traits>
#include <utility>

namespace qel::move {

// One element as bits. An SSE load and store of a float or double is a plain
// move, never a conversion, so a signalling NaN keeps its payload; a typed
// store also lets the compiler know it can't change a table of pointers.
template <class T>
inline void moveBits(T& dst, const T& src) {
  dst = src;
}

// The order of the walk. Objects: objects outermost, then rows, then elements,
// forward; this is what a partial overlap of source and destination sees.
// Elements: the element index outermost and the objects innermost.
enum class Walk { Objects, Elements };

// Elements that lie back to back, rows and objects included, form one run from
// the first: a standard array packed without gaps, or one such object. Other
// views have no run (nullptr_t).
template <class V>
inline auto runOf(const V& v, int width, int height, int count) {
  if constexpr (requires { v.base; v.s1; v.s2; }) {
    const int32_t e = elemSize<std::remove_pointer_t<decltype(v.base)>>, rowBytes = mul32(width, e);
    bool run = v.s2 == e && (height == 1 || v.s1 == rowBytes);
    if constexpr (requires { v.s0; }) run = run && (count == 1 || v.s0 == mul32(rowBytes, height));
    return run ? v.base : nullptr;
  } else {
    return nullptr;
  }
}

// One forward run, element after element. Where the two runs don't overlap the
// compiler moves it in vector units; where they do, its check keeps the order.
template <class T>
inline void moveRun(T* dst, const T* src, size_t n) {
  for (size_t k = 0; k < n; ++k) moveBits(dst[k], src[k]);
}

// dst(n)(i, j) = src(n)(i, j) for `height` rows of `width`. Sizes are ints or
// integral constants: a square size of 3 to 6 is laid out straight. A packed
// array, or each packed object, is one forward run: the same order.
// Element j of row i of an object, the row's address formed once.
template <class O>
inline auto rowOf(const O& o, int i) {
  if constexpr (requires { o.ptrs; })
    return [p = o.ptrs + i * o.rowLen, shift = o.shift](int j) -> auto& { return *byteAt(p[j], shift); };
  else if constexpr (requires { o.base; })
    return [p = o.row(i), s2 = o.stride2()](int j) -> auto& { return *byteAt(p, mul32(j, s2)); };
  else
    return [&o, i](int j) -> auto& { return o.at(i, j); };
}

template <class S, class D>
inline bool movedAsRun(const S& src, const D& dst, int width, int height, int count) {
  const auto s = runOf(src, width, height, count);
  const auto d = runOf(dst, width, height, count);
  if constexpr (std::is_null_pointer_v<decltype(s)> || std::is_null_pointer_v<decltype(d)>) {
    return false;
  } else {
    if (!s || !d) return false;
    moveRun(d, s, size_t(width) * size_t(height) * size_t(count));
    return true;
  }
}

template <Walk W = Walk::Objects, class S, class D, class Width, class Height>
inline void moveObjects(S src, D dst, Width width, Height height, int count) {
  if constexpr (W == Walk::Objects) {
    if (movedAsRun(src, dst, width, height, count)) return;
    for (int n = 0; n < count; ++n) {
      const auto so = src.object(n);
      const auto dobj = dst.object(n);
      if (movedAsRun(so, dobj, width, height, 1)) continue;
      for (int i = 0; i < height; ++i) {
        const auto s = rowOf(so, i);
        const auto d = rowOf(dobj, i);
        for (int j = 0; j < width; ++j) moveBits(d(j), s(j));
      }
    }
  } else {
    for (int i = 0; i < height; ++i)
      for (int j = 0; j < width; ++j)
        for (int n = 0; n < count; ++n) moveBits(dst.object(n).at(i, j), src.object(n).at(i, j));
  }
}

// f(width, height) with square sizes 3 to 6 as integral constants, other sizes
// as they are.
template <class F>
inline void bySize(int width, int height, F&& f) {
  if (width == height && width >= 3 && width <= 6) {
    switch (width) {
      case 3: return f(std::integral_constant<int, 3>{}, std::integral_constant<int, 3>{});
      case 4: return f(std::integral_constant<int, 4>{}, std::integral_constant<int, 4>{});
      case 5: return f(std::integral_constant<int, 5>{}, std::integral_constant<int, 5>{});
      default: return f(std::integral_constant<int, 6>{}, std::integral_constant<int, 6>{});
    }
  }
  f(width, height);
}

// The transpose of `height` rows of `width` into `width` rows of `height`:
// dst(j, i) = src(i, j), dst row by dst row, that is source column by column.
template <class S, class D>
inline void transposeObjects(S src, D dst, int width, int height, int count) {
  bySize(width, height, [&](auto w, auto h) { moveObjects(TransArray<S>{src}, dst, h, w, count); });
}

}  // namespace qel::move
