// The real base library: the budget follows the OpenMP runtime until a program
// sets it, never exceeds the processors the process may run on, and is what
// qelm's drivers then read.
#include <gtest/gtest.h>
#include <sched.h>
#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <omp.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

// The processors this test may use, as the base library counts them before
// any quota: the budget never exceeds them.
static int processors() {
  cpu_set_t set;
  sched_getaffinity(0, sizeof set, &set);
  return CPU_COUNT(&set);
}

TEST(BaseLibrary, BudgetDefaultsToOpenMpAndCanBeSetWithinTheProcessors) {
  // A budget far above any machine shows the cap: the processors, or fewer
  // under a cgroup quota.
  qelSetNumThreads(100000);
  const int cap = ownGetNumThreads();
  qelSetNumThreads(0);
  EXPECT_GE(cap, 1);
  EXPECT_LE(cap, processors());
  const bool passive = std::getenv("OMP_WAIT_POLICY") && strcasecmp(std::getenv("OMP_WAIT_POLICY"), "passive") == 0;
  auto expectedDefault = [&] { return passive ? 1 : std::min(omp_get_max_threads(), cap); };
  EXPECT_EQ(ownGetNumThreads(), expectedDefault());
  qelSetNumThreads(2);
  EXPECT_EQ(ownGetNumThreads(), std::min(2, cap));
  qelSetNumThreads(cap + 3);
  EXPECT_EQ(ownGetNumThreads(), cap) << "a budget above the processors is cut to them";
  EXPECT_EQ(qelGetNumThreads(), cap);
  qelSetNumThreads(1);
  EXPECT_EQ(ownGetNumThreads(), 1);
  qelSetNumThreads(0);
  EXPECT_EQ(ownGetNumThreads(), expectedDefault());
  omp_set_num_threads(1);
  EXPECT_EQ(ownGetNumThreads(), 1) << "the default follows the runtime's maximum";

  // A process pinned to one processor gets a serial budget, whatever it asks.
  cpu_set_t all, one;
  sched_getaffinity(0, sizeof all, &all);
  CPU_ZERO(&one);
  for (int c = 0; c < CPU_SETSIZE; ++c)
    if (CPU_ISSET(c, &all)) {
      CPU_SET(c, &one);
      break;
    }
  ASSERT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
  qelSetNumThreads(4);
  EXPECT_EQ(ownGetNumThreads(), 1);
  ASSERT_EQ(sched_setaffinity(0, sizeof all, &all), 0);
  qelSetNumThreads(0);
}

TEST(BaseLibrary, FeatureAndCacheQueries) {
  EXPECT_EQ(ownGetFeature(128), ownGetFeature(128));
  EXPECT_NE(ownGetFeature(128), 0) << "this build needs SSE4.1, so the machine has it";
  EXPECT_STREQ(qelmGetLibVersion()->name, "qelmy8-7.0.dll+");
  int32_t size = 0;
  qelGetMaxCacheSizeB(&size);
  EXPECT_GE(size, 0);
}
