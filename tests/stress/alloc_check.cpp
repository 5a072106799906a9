// What the library allocates. malloc and its kin, and the OpenMP runtime's
// allocator calls, are replaced here by counting versions; every row of the
// mix is then called on each of its paths:
//   serial (few objects, or a budget of 1 that turns the driver back to the
//   serial kernel) and refused calls: no allocation at all;
//   forked: only the scratch block of the families with per-thread scratch,
//   one block of budget x slice bytes per forked call from the runtime's
//   allocator, freed before the call returns; no other heap use.
#include <gtest/gtest.h>

#include <dlfcn.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

#include "mix.h"

extern "C" {
void* __libc_malloc(size_t);
void* __libc_calloc(size_t, size_t);
void* __libc_realloc(void*, size_t);
void* __libc_memalign(size_t, size_t);
void __libc_free(void*);
}

namespace {

std::atomic<bool> counting{false};
// Inside a replaced runtime allocator call, heap calls are the runtime's own.
thread_local int inRuntime = 0;

struct Tally {
  std::atomic<long> heap{0}, heapFree{0};        // made by anyone else while counting
  std::atomic<long> nested{0}, nestedFree{0};    // made by the runtime's allocator
  std::atomic<long> blocks{0}, blockFrees{0};    // runtime allocator calls
  std::atomic<size_t> sizes[8]{};                // of the first blocks
  std::atomic<void*> taken[8]{}, freed[8]{};
} tally;

void reset() {
  tally.heap = tally.heapFree = tally.nested = tally.nestedFree = tally.blocks = tally.blockFrees = 0;
  for (int i = 0; i < 8; ++i) tally.sizes[i] = 0, tally.taken[i] = tally.freed[i] = nullptr;
}

void* heapCall(void* p) {
  if (counting) ++(inRuntime ? tally.nested : tally.heap);
  return p;
}

template <class F>
F* next(const char* name) {
  static_assert(sizeof(F*) == sizeof(void*));
  return reinterpret_cast<F*>(dlsym(RTLD_NEXT, name));
}

// The runtime's allocator calls, looked up before any counting starts.
using OmpAlloc = void*(size_t, uintptr_t);
using OmpAlignedAlloc = void*(size_t, size_t, uintptr_t);
using OmpCalloc = void*(size_t, size_t, uintptr_t);
using OmpAlignedCalloc = void*(size_t, size_t, size_t, uintptr_t);
using OmpRealloc = void*(void*, size_t, uintptr_t, uintptr_t);
using OmpFree = void(void*, uintptr_t);
OmpAlloc* realOmpAlloc = next<OmpAlloc>("omp_alloc");
OmpAlignedAlloc* realOmpAlignedAlloc = next<OmpAlignedAlloc>("omp_aligned_alloc");
OmpCalloc* realOmpCalloc = next<OmpCalloc>("omp_calloc");
OmpAlignedCalloc* realOmpAlignedCalloc = next<OmpAlignedCalloc>("omp_aligned_calloc");
OmpRealloc* realOmpRealloc = next<OmpRealloc>("omp_realloc");
OmpFree* realOmpFree = next<OmpFree>("omp_free");

template <class Call>
void* block(size_t bytes, Call call) {
  ++inRuntime;
  void* p = call();
  --inRuntime;
  if (counting) {
    const long k = tally.blocks++;
    if (k < 8) tally.sizes[k] = bytes, tally.taken[k] = p;
  }
  return p;
}

}  // namespace

extern "C" {
void* malloc(size_t n) { return heapCall(__libc_malloc(n)); }
void* calloc(size_t n, size_t m) { return heapCall(__libc_calloc(n, m)); }
void* realloc(void* p, size_t n) { return heapCall(__libc_realloc(p, n)); }
void* memalign(size_t a, size_t n) { return heapCall(__libc_memalign(a, n)); }
void* aligned_alloc(size_t a, size_t n) { return heapCall(__libc_memalign(a, n)); }
int posix_memalign(void** out, size_t a, size_t n) {
  if (a < sizeof(void*) || (a & (a - 1))) return EINVAL;
  void* p = heapCall(__libc_memalign(a, n));
  if (!p) return ENOMEM;
  *out = p;
  return 0;
}
void free(void* p) {
  if (p && counting) ++(inRuntime ? tally.nestedFree : tally.heapFree);
  __libc_free(p);
}

void* omp_alloc(size_t n, uintptr_t a) { return block(n, [&] { return realOmpAlloc(n, a); }); }
void* omp_aligned_alloc(size_t al, size_t n, uintptr_t a) {
  return block(n, [&] { return realOmpAlignedAlloc(al, n, a); });
}
void* omp_calloc(size_t n, size_t m, uintptr_t a) { return block(n * m, [&] { return realOmpCalloc(n, m, a); }); }
void* omp_aligned_calloc(size_t al, size_t n, size_t m, uintptr_t a) {
  return block(n * m, [&] { return realOmpAlignedCalloc(al, n, m, a); });
}
void* omp_realloc(void* p, size_t n, uintptr_t a, uintptr_t f) {
  return block(n, [&] { return realOmpRealloc(p, n, a, f); });
}
void omp_free(void* p, uintptr_t a) {
  if (counting) {
    const long k = tally.blockFrees++;
    if (k < 8) tally.freed[k] = p;
  }
  ++inRuntime;
  realOmpFree(p, a);
  --inRuntime;
}
}

namespace {

using namespace stress;

// One call counted: budget pinned, path told by the number of budget queries
// (none or one: serial; two per forked call).
struct Seen {
  bool forked;
  std::string what;  // empty: as expected
};
Seen count(Instance& c, int budget, const std::vector<int>& slices, bool mayFork) {
  PinnedBudget pin(budget);
  reset();
  counting = true;
  c.call();
  counting = false;
  const bool forked = budget >= 2 && pin.calls() >= 2;
  std::string bad;
  auto say = [&](const std::string& s) { bad += (bad.empty() ? "" : "; ") + s; };
  if (forked && !mayFork) say("forked");
  if (tally.heap || tally.heapFree)
    say(std::to_string(tally.heap) + " heap calls, " + std::to_string(tally.heapFree) + " frees");
  const size_t want = forked ? slices.size() : 0;
  if (size_t(tally.blocks) != want || size_t(tally.blockFrees) != want)
    say(std::to_string(tally.blocks) + " blocks, " + std::to_string(tally.blockFrees) + " freed, " +
        std::to_string(want) + " expected");
  for (size_t k = 0; k < want && k < 8 && bad.empty(); ++k) {
    if (tally.sizes[k] != size_t(budget) * slices[k])
      say("block " + std::to_string(k) + " of " + std::to_string(tally.sizes[k]) + " bytes, expected " +
          std::to_string(budget * slices[k]));
    if (tally.freed[k] != tally.taken[k]) say("block " + std::to_string(k) + " not the one freed");
  }
  if (tally.nested != tally.nestedFree) say("the runtime's allocator kept memory");
  return {forked, bad};
}

}  // namespace

TEST(AllocCheck, SerialPathsAllocateNothingForkedOnesOnlyTheirScratch) {
  ASSERT_TRUE(realOmpAlloc && realOmpFree);
  // The first forked call of a process starts the runtime's threads and builds
  // its team and per-thread state, which a runtime keeps for the next region of
  // the same size: that is the runtime's, made once, not the library's. One
  // forked call of a family without scratch and one of a family with a shared
  // status (the named critical section) warm it up; from then on every call is
  // counted on its first run.
  for (const char* name : {"Add_mam_32f", "CholeskyDecomp+BackSubst_64f_P"})
    for (const Row& r : mix())
      if (std::string(r.name) == name) {
        Instance c(1);
        c.call = r.make(c, r.large, r.fill);
        PinnedBudget pin(kBudget);
        c.run();
        ASSERT_GE(pin.calls(), 2) << name << " forks";
        break;
      }

  int forkedCalls = 0, blocks = 0;
  for (const Row& r : mix()) {
    // Refused, few objects, many objects with a budget of 1, many with a team.
    const struct { int n, budget; } paths[] = {{0, kBudget}, {r.small, kBudget}, {r.large, 1}, {r.large, kBudget}};
    for (const auto& p : paths) {
      if (p.n == 0 && &p != &paths[0]) continue;
      Instance c(7);
      c.call = r.make(c, p.n, r.fill);
      const bool last = &p == &paths[3];
      const Seen s = count(c, p.budget, r.slices, last && r.forks);
      EXPECT_EQ(s.what, "") << r.name << " count " << p.n << " budget " << p.budget;
      if (last && r.forks) {
        EXPECT_TRUE(s.forked) << r.name << " count " << p.n << " forks";
        forkedCalls += s.forked, blocks += s.forked ? int(r.slices.size()) : 0;
      }
    }
  }
  std::printf("%zu rows, %d forked calls with %d scratch blocks\n", mix().size(), forkedCalls, blocks);
}

// The replacements are the ones reached: a heap call made inside another shared
// library (operator new in the C++ runtime) and a block of the OpenMP
// runtime's allocator (with its own heap calls inside) are both seen.
TEST(AllocCheck, CountersSeeCallsFromOtherLibraries) {
  reset();
  counting = true;
  ::operator delete(::operator new(64));
  void* p = omp_alloc(256, 1);  // 1: the runtime's default allocator
  omp_free(p, 1);
  counting = false;
  EXPECT_EQ(tally.heap, 1);
  EXPECT_EQ(tally.heapFree, 1);
  EXPECT_EQ(tally.blocks, 1);
  EXPECT_EQ(tally.sizes[0], 256u);
  EXPECT_EQ(tally.freed[0], tally.taken[0]);
  EXPECT_EQ(tally.nested, tally.nestedFree);
}
