// The base library: thread budget, processor feature query, largest cache size.
#include "qelm/qelcore.h"

#include <atomic>
#include <cpuid.h>
#include <omp.h>
#include <unistd.h>

#define QEL_EXPORT extern "C" __attribute__((visibility("default")))

namespace {
// 0 means "not set": follow the OpenMP runtime's maximum.
std::atomic<int32_t> budget{0};

bool hasSse41() {
  unsigned a, b, c, d;
  if (!__get_cpuid(1, &a, &b, &c, &d)) return false;
  return (c & bit_SSE4_1) != 0;
}
}  // namespace

QEL_EXPORT void qelSetNumThreads(int32_t threads) {
  budget.store(threads > 0 ? threads : 0, std::memory_order_relaxed);
}

QEL_EXPORT int32_t qelGetNumThreads(void) { return ownGetNumThreads(); }

QEL_EXPORT int32_t ownGetNumThreads(void) {
  int32_t set = budget.load(std::memory_order_relaxed);
  return set > 0 ? set : omp_get_max_threads();
}

// Mask 128 asks whether the processor runs the instruction level the library
// was built for (SSE4.1).
QEL_EXPORT int32_t ownGetFeature(int64_t mask) {
  static const bool sse41 = hasSse41();
  int32_t present = 0;
  if (mask & 128) present = sse41 ? 1 : 0;
  return present;
}

QEL_EXPORT int32_t qelGetMaxCacheSizeB(int32_t* sizeBytes) {
  if (!sizeBytes) return -8;
  long largest = 0;
  for (int name : {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE,
                   _SC_LEVEL4_CACHE_SIZE}) {
    long size = sysconf(name);
    if (size > largest) largest = size;
  }
  if (largest > 0x7fffffffL) largest = 0x7fffffffL;
  *sizeBytes = static_cast<int32_t>(largest);
  return 0;
}
