// The real base library: the budget follows the OpenMP runtime until a program
// sets it, and the setter's value is what qelm's drivers then read.
#include <gtest/gtest.h>
#include <omp.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

TEST(BaseLibrary, BudgetDefaultsToOpenMpAndCanBeSet) {
  EXPECT_EQ(ownGetNumThreads(), omp_get_max_threads());
  qelSetNumThreads(3);
  EXPECT_EQ(ownGetNumThreads(), 3);
  EXPECT_EQ(qelGetNumThreads(), 3);
  qelSetNumThreads(1);
  EXPECT_EQ(ownGetNumThreads(), 1);
  qelSetNumThreads(0);
  EXPECT_EQ(ownGetNumThreads(), omp_get_max_threads());
  omp_set_num_threads(5);
  EXPECT_EQ(ownGetNumThreads(), 5) << "the default follows the runtime's maximum";
}

TEST(BaseLibrary, FeatureAndCacheQueries) {
  EXPECT_EQ(ownGetFeature(128), ownGetFeature(128));
  EXPECT_NE(ownGetFeature(128), 0) << "this build needs SSE4.1, so the machine has it";
  EXPECT_STREQ(qelmGetLibVersion()->name, "qelmy8-7.0.dll+");
  int32_t size = 0;
  qelGetMaxCacheSizeB(&size);
  EXPECT_GE(size, 0);
}
