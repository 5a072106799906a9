/* qelm: element types, status values and the version record. Plain C. */
#ifndef QELM_QELMTYPES_H
#define QELM_QELMTYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef float Qel32f;
typedef double Qel64f;
typedef int32_t Qel32s;

/* Every operation but qelmGetLibVersion answers with one of these values. */
typedef int32_t QelStatus;

enum {
    qelStatusOk = 0,
    qelStatusError = -2,
    qelStatusBadSize = -6,
    qelStatusNullPointer = -8,
    qelStatusDivideByZero = -10,
    qelStatusNotPositiveDefinite = -179,
    qelStatusBadStride = -182,
    qelStatusSingular = -195,
    qelStatusBadRoiShift = -202,
    qelStatusBadCount = -203,
    qelStatusSizeMismatch = -204,
    qelStatusNoConvergence = -205
};

#define QEL_MIN_NORMAL_32F 1.175494350822287507969e-38f
#define QEL_MIN_NORMAL_64F 2.225073858507201383090e-308

typedef struct QelLibraryVersion {
    int32_t major;
    int32_t minor;
    int32_t majorBuild;
    int32_t build;
    char targetCpu[4];
    const char* name;
    const char* version;
    const char* buildDate;
} QelLibraryVersion;

/* Pointer arrays of the _L and _P descriptions. A source list is read only;
   C++ accepts both T** and const T** for it, C takes the caller's T** as is. */
#ifdef __cplusplus
#define QEL_SRC_LIST(T) const T* const*
#else
#define QEL_SRC_LIST(T) T* const*
#endif
#define QEL_DST_LIST(T) T* const*

#ifdef __cplusplus
}
#endif

#endif
