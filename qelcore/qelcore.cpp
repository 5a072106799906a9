// The base library: thread budget, processor feature query, largest cache size.
#include "qelm/qelcore.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sched.h>
#include <strings.h>
#include <cpuid.h>
#include <omp.h>
#include <unistd.h>

#define QEL_EXPORT extern "C" __attribute__((visibility("default")))

namespace {
// 0 means "not set": follow the OpenMP runtime's maximum.
std::atomic<int32_t> budget{0};
// The processors this process may run on, read when first needed and again
// whenever a program sets the budget. 0: not read yet.
std::atomic<int32_t> usable{0};

bool hasSse41() {
  unsigned a, b, c, d;
  if (!__get_cpuid(1, &a, &b, &c, &d)) return false;
  return (c & bit_SSE4_1) != 0;
}

// The processors of the affinity mask, fewer if a cgroup quota allows less
// than that much processor time (a container given 1.5 processors may run 2
// threads at once).
int32_t readUsableProcessors() {
  int32_t n = 0;
  cpu_set_t set;
  if (sched_getaffinity(0, sizeof set, &set) == 0) n = CPU_COUNT(&set);
  if (n < 1) n = static_cast<int32_t>(sysconf(_SC_NPROCESSORS_ONLN));
  if (FILE* f = std::fopen("/sys/fs/cgroup/cpu.max", "r")) {
    char quota[32] = {};
    long period = 0;
    if (std::fscanf(f, "%31s %ld", quota, &period) == 2 && std::strcmp(quota, "max") != 0 && period > 0) {
      const long q = std::atol(quota);
      const long cpus = (q + period - 1) / period;
      if (cpus >= 1 && cpus < n) n = static_cast<int32_t>(cpus);
    }
    std::fclose(f);
  }
  return n < 1 ? 1 : n;
}

int32_t usableProcessors() {
  int32_t n = usable.load(std::memory_order_relaxed);
  if (n == 0) {
    n = readUsableProcessors();
    usable.store(n, std::memory_order_relaxed);
  }
  return n;
}

// A runtime told to wait passively puts its threads to sleep between regions,
// and waking them costs more than most calls of this library take (tens of
// microseconds on a virtual machine): the default is then serial.
bool passiveRuntime() {
  static const bool passive = [] {
    const char* policy = std::getenv("OMP_WAIT_POLICY");
    const char* spin = std::getenv("GOMP_SPINCOUNT");
    return (policy && strcasecmp(policy, "passive") == 0) || (spin && std::strcmp(spin, "0") == 0);
  }();
  return passive;
}
}  // namespace

QEL_EXPORT void qelSetNumThreads(int32_t threads) {
  usable.store(readUsableProcessors(), std::memory_order_relaxed);
  budget.store(threads > 0 ? threads : 0, std::memory_order_relaxed);
}

QEL_EXPORT int32_t qelGetNumThreads(void) { return ownGetNumThreads(); }

// Never more threads than processors: a team larger than the processors it
// runs on waits on its own members at every barrier, and an array call then
// runs several times slower than serially.
QEL_EXPORT int32_t ownGetNumThreads(void) {
  const int32_t set = budget.load(std::memory_order_relaxed);
  const int32_t wanted = set > 0 ? set : passiveRuntime() ? 1 : omp_get_max_threads();
  const int32_t cap = usableProcessors();
  return wanted < cap ? wanted : cap;
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
