// Work tests and the parallel driver, shared by every family.
//
// A family describes one call as a job:
//   bool contiguous() const            the stride test: every stride 2 is the element size
//   QelStatus run(bool contiguous, int first, int share, void* scratch) const
//                                      the serial kernel on objects first .. first+share-1
// and hands it to a front-end helper below with its work figure and limits.
#pragma once

#include "qelm/qelcore.h"
#include "qelm/qelmtypes.h"

#include <omp.h>

#include <cstddef>
#include <cstdint>
#include <tuple>

#include "views.h"

namespace qel {

// A work figure is formed in wrapping 32-bit arithmetic and compared as signed:
// a very large job may wrap negative and so stay serial.
struct Work {
  uint32_t v;
  Work(int32_t x) : v(static_cast<uint32_t>(x)) {}  // NOLINT: sizes convert implicitly
  Work(uint32_t x, int) : v(x) {}
  friend Work operator*(Work a, Work b) { return {a.v * b.v, 0}; }
  friend Work operator+(Work a, Work b) { return {a.v + b.v, 0}; }
  int32_t value() const { return static_cast<int32_t>(v); }
};

// Family tables state a limit in one of four ways; two senses remain.
struct WorkLimit {
  int32_t t;
  bool serialAtLimit;  // W == t stays serial

  bool serial(int32_t w) const { return serialAtLimit ? w <= t : w < t; }
  static WorkLimit serialBelow(int32_t t) { return {t, false}; }
  static WorkLimit serialAtMost(int32_t t) { return {t, true}; }
  static WorkLimit parallelFrom(int32_t t) { return {t, false}; }
  static WorkLimit parallelAbove(int32_t t) { return {t, true}; }
};

struct DriverTraits {
  bool sharedStatus = false;  // the kernel can fail: merge statuses under the lock
  int32_t sliceBytes = 0;     // scratch per thread, 0 for none
};

// One thread's share of `count` objects in a team of `threads`: the first
// `extra` threads take one object more, shares are contiguous in thread order.
struct Share {
  int first, size;
};
inline Share shareOf(int t, int perThread, int extra) {
  if (t < extra) return {(perThread + 1) * t, perThread + 1};
  return {(perThread + 1) * extra + (t - extra) * perThread, perThread};
}

template <class Job>
QelStatus parallelDriver(const Job& job, int count, DriverTraits traits = {},
                         void* callerBuffer = nullptr) {
  const int threads = ownGetNumThreads();
  if (threads < 2 || count < threads) return job.run(job.contiguous(), 0, count, callerBuffer);

  char* scratch = nullptr;
  if (traits.sliceBytes > 0)
    scratch = static_cast<char*>(omp_alloc(static_cast<size_t>(threads) * traits.sliceBytes,
                                           omp_default_mem_alloc));
  const bool contiguous = job.contiguous();
  const int request = ownGetNumThreads();
  // Inside another active region no new team can be formed: the same body then
  // runs in a serialized region as a team of one.
  const bool canFork = omp_get_active_level() < omp_get_max_active_levels();

  QelStatus status = qelStatusOk;
#pragma omp parallel num_threads(request > 0 ? request : 1) if (canFork)
  {
    // Every member divides count by the same team size and finds the shares
    // the master would hand out, so the team needs no barrier before its work:
    // on a runtime whose threads sleep between regions a barrier is one more
    // wake-up per call.
    const int nThreads = omp_get_num_threads();
    const int perThread = count / nThreads;
    const int extra = count % nThreads;
    const int t = omp_get_thread_num();
    const Share s = shareOf(t, perThread, extra);
    QelStatus mine = qelStatusOk;
    if (s.size > 0)
      mine = job.run(contiguous, s.first, s.size,
                     scratch ? scratch + static_cast<size_t>(t) * traits.sliceBytes : nullptr);
    if (traits.sharedStatus) {
#pragma omp critical(qelm_shared_status)
      if (status == qelStatusOk) status = mine;
    }
  }
  if (scratch) omp_free(scratch, omp_default_mem_alloc);
  return traits.sharedStatus ? status : qelStatusOk;
}

// Front-end of the first kind: the stride test first, then the work test
// against the limit of the chosen kernel.
template <class Job>
QelStatus runFirstKind(const Job& job, int count, Work w, WorkLimit contiguousLimit,
                       WorkLimit generalLimit, DriverTraits traits = {},
                       void* callerBuffer = nullptr) {
  const bool contiguous = job.contiguous();
  const WorkLimit limit = contiguous ? contiguousLimit : generalLimit;
  if (limit.serial(w.value())) return job.run(contiguous, 0, count, callerBuffer);
  return parallelDriver(job, count, traits, callerBuffer);
}

// Front-end of the second kind: the work test first; the stride test only on
// the serial way (the driver makes its own).
template <class Job>
QelStatus runSecondKind(const Job& job, int count, Work w, WorkLimit limit,
                        DriverTraits traits = {}, void* callerBuffer = nullptr) {
  if (!limit.serial(w.value())) return parallelDriver(job, count, traits, callerBuffer);
  return job.run(job.contiguous(), 0, count, callerBuffer);
}

// Shapes and members without a work test: the serial kernel on the whole count.
template <class Job>
QelStatus runSerial(const Job& job, int count, void* callerBuffer = nullptr) {
  return job.run(job.contiguous(), 0, count, callerBuffer);
}

}  // namespace qel


namespace qel {

// The job most families need: a kernel over operand views. `kernel(count,
// scratch, views...)` is called with every view moved to the share's first
// object, and, when every stride 2 is the element size, in its contiguous form.
template <class Kernel, class... Views>
struct ViewJob {
  Kernel kernel;
  std::tuple<Views...> views;

  bool contiguous() const {
    return std::apply([](const auto&... v) { return allUnitStride(v...); }, views);
  }
  QelStatus run(bool contig, int first, int share, void* scratch) const {
    if constexpr (anyStride2<Views...>) {
      if (contig)
        return std::apply(
            [&](const auto&... v) { return kernel(share, scratch, v.from(first).toContiguous()...); },
            views);
    }
    return std::apply([&](const auto&... v) { return kernel(share, scratch, v.from(first)...); },
                      views);
  }
};

template <class Kernel, class... Views>
ViewJob<Kernel, Views...> makeJob(Kernel kernel, Views... views) {
  return {kernel, {views...}};
}

}  // namespace qel
