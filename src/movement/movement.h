// Moving elements between descriptions. Copy, Extract, Transpose and
// LoadIdentity all walk objects, rows and elements through the frame's views
// and move each element as its bit pattern, so a signalling NaN's payload
// survives and -0.0 stays -0.0.
#pragma once

#include "../frame/views.h"

#include <cstring>
#include <type_traits>
#include <utility>

namespace qel::move {

template <class V>
using ElemOf = typename V::Object::Elem;

// One element as bits: no load into an arithmetic register, no conversion.
template <class T>
inline void moveBits(T& dst, const T& src) {
  std::memcpy(&dst, &src, sizeof(T));
}

// The order of the walk. Objects: objects outermost, then rows, then elements,
// forward; this is what a partial overlap of source and destination sees.
// Elements: the element index outermost and the objects innermost.
enum class Walk { Objects, Elements };

// dst(n)(i, j) = src(n)(i, j) for `height` rows of `width`. Sizes are ints or
// integral constants: a square size of 3 to 6 is laid out straight.
template <Walk W = Walk::Objects, class S, class D, class Width, class Height>
inline void moveObjects(S src, D dst, Width width, Height height, int count) {
  if constexpr (W == Walk::Objects) {
    for (int n = 0; n < count; ++n) {
      const auto so = src.object(n);
      const auto dobj = dst.object(n);
      for (int i = 0; i < height; ++i)
        for (int j = 0; j < width; ++j) moveBits(dobj.at(i, j), so.at(i, j));
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
