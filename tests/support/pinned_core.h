// A replaceable base library for tests. Linked before libqelm, its three
// services take the place of libqelcore's, so a test can pin the thread budget
// and see how often (and so whether) a call reached a parallel driver.
#pragma once

#include <cstdint>

extern "C" {
// Pins the answer of ownGetNumThreads; every answer is counted.
void pinnedSetBudget(int32_t threads);
// Number of ownGetNumThreads calls since the last reset.
int32_t pinnedBudgetCalls(void);
void pinnedResetCalls(void);
// Answer of ownGetFeature(128) and of the cache size query; a negative size
// leaves the caller's result unwritten, as a service that can't tell.
void pinnedSetFeature(int32_t present);
void pinnedSetCacheSize(int32_t bytes);
// Number of cache size queries since the last reset (pinnedResetCalls too).
int32_t pinnedCacheCalls(void);
}

// Pins a budget for one scope and clears the call counter.
struct PinnedBudget {
  explicit PinnedBudget(int32_t threads) { pinnedSetBudget(threads); pinnedResetCalls(); }
  ~PinnedBudget() { pinnedSetBudget(1); }
  int32_t calls() const { return pinnedBudgetCalls(); }
};
