/* qelcore: the base library under qelm. It owns the thread budget that every
   parallel call of qelm reads, and answers the two machine queries qelm makes. */
#ifndef QELM_QELCORE_H
#define QELM_QELCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The budget of threads a qelm call may request.
   - Until a program sets one it follows the OpenMP runtime's maximum
     (omp_get_max_threads), except under a passive wait policy
     (OMP_WAIT_POLICY=passive or GOMP_SPINCOUNT=0), where it is 1: waking a
     sleeping team costs more than most calls take.
   - It never exceeds the processors the process may run on: its affinity mask,
     or fewer under a cgroup processor quota. A larger value, set or default,
     is cut to that; qelGetNumThreads returns the budget as cut. The processors
     are read again at every qelSetNumThreads call.
   - A budget below 2 keeps every call serial. qelSetNumThreads(0) or below
     returns to the default.
   A program that runs threads of its own which call qelm at the same time (a
   server, a pool of workers) gives each call a share: the processors divided
   by its own threads, or 1. */
void qelSetNumThreads(int32_t threads);
int32_t qelGetNumThreads(void);

/* The services qelm imports. A program may load another base library with the
   same three names in place of this one. */
int32_t ownGetNumThreads(void);
int32_t ownGetFeature(int64_t mask);
int32_t qelGetMaxCacheSizeB(int32_t* sizeBytes);

#ifdef __cplusplus
}
#endif

#endif
