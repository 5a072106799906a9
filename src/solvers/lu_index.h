// The row-index array of the LU family. It is a plain contiguous run of Qel32s,
// `step` entries per object, whatever the description of the matrices: `step` is
// the order for arrays of matrices and 0 where every object shares one index
// (a single matrix against an array of right-hand sides). It answers the same
// questions as the operand views, so the driver moves it with a share like any
// other operand: by first * step entries.
#pragma once

#include "../frame/views.h"
#include "qelm/qelmtypes.h"

namespace qel {

template <class I>
struct IndexArray {
  using Object = I*;
  using Contiguous = IndexArray;
  static constexpr bool hasStride2 = false;
  static constexpr bool isArray = true;

  I* base;
  int32_t step;

  I* object(int n) const { return base + mul32(n, step); }
  IndexArray from(int first) const { return {base + mul32(first, step), step}; }
  bool unitStride() const { return true; }
  Contiguous toContiguous() const { return *this; }
  bool stridesOk() const { return true; }
  bool shiftsOk() const { return true; }
  bool pointerOk() const { return base != nullptr; }
};

}  // namespace qel
