/* qelcore: the base library under qelm. It owns the thread budget that every
   parallel call of qelm reads, and answers the two machine queries qelm makes. */
#ifndef QELM_QELCORE_H
#define QELM_QELCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The budget of threads a qelm call may request. Until a program sets one it
   follows the OpenMP runtime's maximum (omp_get_max_threads). A budget below 2
   keeps every call serial. qelSetNumThreads(0) or below returns to the default. */
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
