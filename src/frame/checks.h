// Argument checks. A function names its check groups in its own order, for
// example "NCSZ"; the first group that fails gives the status and nothing else
// is looked at. Groups:
//   N  every pointer argument is non-null                      -8
//   C  count is at least 1                                     -203
//   Z  every size is at least 1                                -6
//   M  the sizes fit each other                                -204
//   S  every stride of the descriptions is a positive multiple
//      of the element size                                     -182
//   R  every roi shift is a non-negative multiple of it        -202
//   0  the distance between objects, where a family tests it
//      apart from the other strides (only with count above 1)  -182
#pragma once

#include "qelm/qelmtypes.h"

#include <initializer_list>

namespace qel {

struct CheckGroups {
  bool pointers = true;
  bool count = true;
  bool sizes = true;
  bool match = true;
  bool strides = true;
  bool shifts = true;
  bool objectStrides = true;
};

inline bool sizesPositive(std::initializer_list<int32_t> sizes) {
  for (int32_t s : sizes)
    if (s < 1) return false;
  return true;
}

// Evaluates the groups in `order` and answers the first failure, or qelStatusOk.
inline QelStatus firstFailure(const char* order, const CheckGroups& g) {
  for (const char* c = order; *c; ++c) {
    switch (*c) {
      case 'N': if (!g.pointers) return qelStatusNullPointer; break;
      case 'C': if (!g.count) return qelStatusBadCount; break;
      case 'Z': if (!g.sizes) return qelStatusBadSize; break;
      case 'M': if (!g.match) return qelStatusSizeMismatch; break;
      case 'S': if (!g.strides) return qelStatusBadStride; break;
      case 'R': if (!g.shifts) return qelStatusBadRoiShift; break;
      case '0': if (!g.objectStrides) return qelStatusBadStride; break;
      default: break;
    }
  }
  return qelStatusOk;
}

}  // namespace qel

namespace qel {

// The groups of a call whose operands are all described by views: N, S and R
// come from the views, C from count, Z from the sizes. M is the family's own.
template <class... V>
CheckGroups checkViews(int count, std::initializer_list<int32_t> sizes, const V&... views) {
  CheckGroups g;
  g.pointers = (views.pointerOk() && ...);
  g.count = count >= 1;
  g.sizes = sizesPositive(sizes);
  g.strides = (views.stridesOk() && ...);
  g.shifts = (views.shiftsOk() && ...);
  return g;
}

}  // namespace qel

namespace qel {

// Arrays that look at the distance between objects only when there are two or
// more of them: S covers the strides inside an object, 0 the object distance.
template <class... V>
CheckGroups checkViewsObjectStrideIfMany(int count, std::initializer_list<int32_t> sizes, const V&... views) {
  CheckGroups g = checkViews(count, sizes, views...);
  g.strides = (views.innerStridesOk() && ...);
  g.objectStrides = count <= 1 || (views.objectStrideOk() && ...);
  return g;
}

}  // namespace qel
