// The version record. Two constant records differ only in `name`; the one
// ending in "+" is answered when the base library reports the feature of mask 128.
#include "export.h"

namespace {
constexpr QelLibraryVersion withoutFeature = {
    7, 0, 205, 986, {'y', '8', 0, 0}, "qelmy8-7.0.dll", "7.0 build 205.58", "Apr 18 2011"};
constexpr QelLibraryVersion withFeature = {
    7, 0, 205, 986, {'y', '8', 0, 0}, "qelmy8-7.0.dll+", "7.0 build 205.58", "Apr 18 2011"};
}  // namespace

QELM_API const QelLibraryVersion* qelmGetLibVersion(void) {
  return ownGetFeature(128) != 0 ? &withFeature : &withoutFeature;
}
