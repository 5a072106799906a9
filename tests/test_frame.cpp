// The call frame seen from outside: the version record, the base services,
// the driver's gate and partition, observed through the pinned base library.
#include <gtest/gtest.h>
#include <omp.h>
#include <qelm/qelm.h>

#include <cstring>

#include "batch.h"
#include "pinned_core.h"

namespace {

TEST(Version, RecordFollowsFeatureAnswer) {
  pinnedSetFeature(1);
  const QelLibraryVersion* with = qelmGetLibVersion();
  EXPECT_EQ(with, qelmGetLibVersion());
  EXPECT_STREQ(with->name, "qelmy8-7.0.dll+");
  pinnedSetFeature(0);
  const QelLibraryVersion* without = qelmGetLibVersion();
  EXPECT_STREQ(without->name, "qelmy8-7.0.dll");
  pinnedSetFeature(1);
  for (const QelLibraryVersion* v : {with, without}) {
    EXPECT_EQ(v->major, 7);
    EXPECT_EQ(v->minor, 0);
    EXPECT_EQ(v->majorBuild, 205);
    EXPECT_EQ(v->build, 986);
    EXPECT_EQ(std::memcmp(v->targetCpu, "y8\0\0", 4), 0);
    EXPECT_STREQ(v->version, "7.0 build 205.58");
    EXPECT_STREQ(v->buildDate, "Apr 18 2011");
  }
}

}  // namespace
