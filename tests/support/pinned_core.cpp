#include "pinned_core.h"

#include <atomic>

#define PINNED_API extern "C" __attribute__((visibility("default")))

namespace {
std::atomic<int32_t> budget{1};
std::atomic<int32_t> calls{0};
std::atomic<int32_t> feature{1};
std::atomic<int32_t> cacheSize{0};
std::atomic<int32_t> cacheCalls{0};
}  // namespace

PINNED_API void pinnedSetBudget(int32_t threads) { budget = threads; }
PINNED_API int32_t pinnedBudgetCalls(void) { return calls; }
PINNED_API void pinnedResetCalls(void) { calls = 0, cacheCalls = 0; }
PINNED_API int32_t pinnedCacheCalls(void) { return cacheCalls; }
PINNED_API void pinnedSetFeature(int32_t present) { feature = present; }
PINNED_API void pinnedSetCacheSize(int32_t bytes) { cacheSize = bytes; }

PINNED_API int32_t ownGetNumThreads(void) {
  ++calls;
  return budget;
}
PINNED_API int32_t ownGetFeature(int64_t mask) { return (mask & 128) ? feature.load() : 0; }
PINNED_API int32_t qelGetMaxCacheSizeB(int32_t* size) {
  ++cacheCalls;
  if (cacheSize >= 0) *size = cacheSize;
  return 0;
}
