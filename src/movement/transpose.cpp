// Transpose and LoadIdentity. Neither goes parallel: a transposition is bound
// by memory and an identity is a few stores an object. Large Qel32f objects
// are transposed in blocks of rows, with non-temporal stores once source and
// destination no longer fit the cache.
#include "../frame/export.h"
#include "../frame/lanes.h"
#include "../frame/operands.h"
#include "movement.h"

#include <emmintrin.h>

#include <algorithm>
#include <cstring>

namespace {
using namespace qel;
using move::moveBits;

inline bool on(const void* p, uintptr_t bytes) { return reinterpret_cast<uintptr_t>(p) % bytes == 0; }
inline bool on(int32_t s, int32_t bytes) { return s % bytes == 0; }
inline const float* rowOf(const float* p, int32_t stride, int i) { return byteAt(p, mul32(i, stride)); }
inline float* rowOf(float* p, int32_t stride, int i) { return byteAt(p, mul32(i, stride)); }

// The largest cache in bytes, 0 when the base library can't tell.
inline int32_t cacheBytes() {
  int32_t size = 0;
  qelGetMaxCacheSizeB(&size);
  return size;
}

// ---------------------------------------------------------------- blocked Qel32f transposition

// `rows` source rows of `width`, cached stores. With the source on 8 bytes and
// the destination on 16, four source columns go at a time through 4 by 4
// register tiles into aligned stores, leftover rows singly. Remaining columns
// go one at a time: singly up to the destination row's 16-byte boundary, then
// four source rows into one aligned store, then the tail.
void cachedInner(const float* src, int32_t s1, float* dst, int32_t d1, int width, int rows) {
  int j = 0;
  if (on(src, 8) && on(s1, 8) && on(dst, 16) && on(d1, 16)) {
    for (; j + 4 <= width; j += 4) {
      int i = 0;
      for (; i + 4 <= rows; i += 4) {
        __m128 r[4];
        for (int k = 0; k < 4; ++k) {
          const float* p = rowOf(src, s1, i + k) + j;
          r[k] = _mm_loadh_pi(_mm_loadl_pi(_mm_setzero_ps(), reinterpret_cast<const __m64*>(p)),
                              reinterpret_cast<const __m64*>(p + 2));
        }
        _MM_TRANSPOSE4_PS(r[0], r[1], r[2], r[3]);
        for (int k = 0; k < 4; ++k) _mm_store_ps(rowOf(dst, d1, j + k) + i, r[k]);
      }
      for (; i < rows; ++i)
        for (int k = 0; k < 4; ++k) moveBits(rowOf(dst, d1, j + k)[i], rowOf(src, s1, i)[j + k]);
    }
  }
  for (; j < width; ++j) {
    float* d = rowOf(dst, d1, j);
    int i = 0;
    if (on(d, 4)) {
      for (; i < rows && !on(d + i, 16); ++i) moveBits(d[i], rowOf(src, s1, i)[j]);
      for (; i + 4 <= rows; i += 4) {
        float four[4];
        for (int k = 0; k < 4; ++k) moveBits(four[k], rowOf(src, s1, i + k)[j]);
        _mm_store_ps(d + i, _mm_loadu_ps(four));
      }
    }
    for (; i < rows; ++i) moveBits(d[i], rowOf(src, s1, i)[j]);
  }
}

inline void streamBits(float* d, const float* s) {
  int bits;
  std::memcpy(&bits, s, sizeof bits);
  _mm_stream_si32(reinterpret_cast<int*>(d), bits);
}

// Non-temporal stores: two source columns at a time, each source row read once
// for a pair of elements that go to two destination rows; then an odd last
// column. The fence orders the stores before the caller sees the result.
void streamingInner(const float* src, int32_t s1, float* dst, int32_t d1, int width, int rows) {
  int j = 0;
  for (; j + 2 <= width; j += 2) {
    float* d0 = rowOf(dst, d1, j);
    float* d1row = rowOf(dst, d1, j + 1);
    for (int i = 0; i < rows; ++i) {
      const float* s = rowOf(src, s1, i) + j;
      streamBits(d0 + i, s);
      streamBits(d1row + i, s + 1);
    }
  }
  if (j < width)
    for (int i = 0; i < rows; ++i) streamBits(rowOf(dst, d1, j) + i, rowOf(src, s1, i) + j);
  _mm_sfence();
}

// One object of contiguous rows. Without a decision from the caller, an object
// whose smaller side is above 128 asks for the cache: when source and
// destination together exceed it, stores are non-temporal. Source rows go in
// blocks of 64 (all at once when streaming a width that is no multiple of 16).
void blockedTranspose(const float* src, int32_t s1, float* dst, int32_t d1, int width, int height,
                      bool nonTemporal) {
  if (!nonTemporal && std::min(width, height) > 128) {
    const int32_t cache = cacheBytes();
    nonTemporal = cache != 0 && cache < mul32(mul32(8, width), height);
  }
  const int block = nonTemporal && width % 16 != 0 ? height : std::min(height, 64);
  while (height > 0) {
    const int rows = std::min(block, height);
    (nonTemporal ? streamingInner : cachedInner)(src, s1, dst, d1, width, rows);
    src = rowOf(src, s1, rows);
    dst += rows;
    height -= rows;
  }
}

// A 4 by 4 Qel32f object by shuffles: aligned 16-byte rows at a pitch of 16,
// or each row as two unaligned 8-byte halves at its real pitch.
template <bool Packed, class SO, class DO>
inline void transpose4x4(const SO& so, const DO& dobj) {
  __m128 r[4];
  for (int k = 0; k < 4; ++k) {
    const float* p = Packed ? so.base + 4 * k : so.row(k);
    r[k] = Packed ? _mm_load_ps(p) : _mm_loadh_pi(Lanes<float>::loadPair(p), reinterpret_cast<const __m64*>(p + 2));
  }
  _MM_TRANSPOSE4_PS(r[0], r[1], r[2], r[3]);
  for (int k = 0; k < 4; ++k) {
    float* p = Packed ? dobj.base + 4 * k : dobj.row(k);
    if constexpr (Packed) {
      _mm_store_ps(p, r[k]);
    } else {
      Lanes<float>::storePair(p, r[k]);
      _mm_storeh_pi(reinterpret_cast<__m64*>(p + 2), r[k]);
    }
  }
}

// Which contiguous Qel32f kernel an export has.
enum class Blocked {
  No,           // Qel64f, or not contiguous: the plain walk
  Object,       // one matrix: each object decides on the cache by itself
  Array,        // ma, ma_L: the whole array decides once
  ArrayShuffle  // ma: the array decision, and the 4 by 4 shuffles
};

// The contiguous Qel32f kernel: square sizes 3 to 6 element by element (4 by 4
// of ma by shuffles), every other size by blocks. An array larger than 128 KiB
// asks for the cache once, and streams when it exceeds three quarters of it.
template <Blocked K, class S, class D>
void transposeContiguous32(S src, D dst, int width, int height, int count) {
  if constexpr (K == Blocked::ArrayShuffle) {
    if (width == 4 && height == 4) {
      const auto so = src.object(0);
      const auto dobj = dst.object(0);
      const bool aligned = on(so.base, 16) && on(dobj.base, 16) && on(src.s0, 16) && on(so.s1, 16) &&
                           on(dst.s0, 16) && on(dobj.s1, 16) && (so.s1 | dobj.s1) == 16;
      for (int n = 0; n < count; ++n)
        aligned ? transpose4x4<true>(src.object(n), dst.object(n))
                : transpose4x4<false>(src.object(n), dst.object(n));
      return;
    }
  }
  if (width == height && width >= 3 && width <= 6) return move::transposeObjects(src, dst, width, height, count);
  bool nonTemporal = false;
  if constexpr (K != Blocked::Object) {
    const int32_t figure = mul32(mul32(mul32(8, width), height), count);
    if (figure > 131072) {
      const int32_t cache = cacheBytes();
      nonTemporal = cache != 0 && figure > cache - cache / 4;
    }
  }
  for (int n = 0; n < count; ++n) {
    const auto so = src.object(n);
    const auto dobj = dst.object(n);
    blockedTranspose(so.base, so.s1, dobj.base, dobj.s1, width, height, nonTemporal);
  }
}

// Checks, then the contiguous kernel when both element strides are the element
// size, else the plain walk. No work figure and no driver.
template <Blocked K, class S, class D>
QelStatus transposeFront(const char* order, S src, D dst, int width, int height, int count) {
  if (QelStatus st = firstFailure(order, checkViews(count, {width, height}, src, dst))) return st;
  if constexpr (K != Blocked::No) {
    if (allUnitStride(src, dst)) {
      transposeContiguous32<K>(src.toContiguous(), dst.toContiguous(), width, height, count);
      return qelStatusOk;
    }
  }
  move::transposeObjects(src, dst, width, height, count);
  return qelStatusOk;
}

// ---------------------------------------------------------------- LoadIdentity

// Each row zeroed, then its diagonal element, if the row has one, set to 1.
template <class O, class Width>
inline void identityObject(const O& o, Width width, int height) {
  using T = typename O::Elem;
  const T zero = T(0), one = T(1);
  for (int i = 0; i < height; ++i) {
    for (int j = 0; j < width; ++j) moveBits(o.at(i, j), zero);
    if (i < width) moveBits(o.at(i, i), one);
  }
}

// One Qel32f row of contiguous elements: singly up to 16 bytes when the row is
// on 4, eight a pass in aligned stores, the tail singly.
inline void zeroRow32(float* p, int width) {
  int j = 0;
  if (on(p, 4)) {
    for (; j < width && !on(p + j, 16); ++j) p[j] = 0.0f;  // on 4 here
    for (; j + 8 <= width; j += 8) _mm_store_ps(p + j, _mm_setzero_ps()), _mm_store_ps(p + j + 4, _mm_setzero_ps());
  }
  for (; j < width; ++j) moveBits(p[j], 0.0f);
}

// The standard Qel32f array with contiguous rows: 3 by 3 and 4 by 4 at a fixed
// pitch of 16 when aligned so, else at the real pitch (4 by 4 as whole rows);
// other sizes row by row.
template <class D>
void identityContiguous32(D dst, int width, int height, int count) {
  if (width == height && (width == 3 || width == 4)) {
    const bool packed = on(dst.base, 16) && on(dst.s0, 16) && dst.s1 == 16;
    const int32_t pitch = packed ? 16 : dst.s1;
    for (int n = 0; n < count; ++n) {
      float* base = dst.object(n).base;
      if (width == 4) {
        alignas(16) static const float rows[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
        for (int i = 0; i < 4; ++i)
          packed ? _mm_store_ps(rowOf(base, pitch, i), _mm_load_ps(rows[i]))
                 : _mm_storeu_ps(rowOf(base, pitch, i), _mm_load_ps(rows[i]));
      } else {
        identityObject(Mat<float, true>{base, pitch, 4}, std::integral_constant<int, 3>{}, 3);
      }
    }
    return;
  }
  for (int n = 0; n < count; ++n) {
    const auto o = dst.object(n);
    for (int i = 0; i < height; ++i) {
      zeroRow32(o.row(i), width);
      if (i < width) moveBits(o.at(i, i), 1.0f);
    }
  }
}

template <bool Paths, class D>
QelStatus identityFront(const char* order, D dst, int width, int height, int count) {
  if (QelStatus st = firstFailure(order, checkViewsObjectStrideIfMany(count, {width, height}, dst))) return st;
  if constexpr (Paths) {
    if (dst.unitStride()) {
      identityContiguous32(dst.toContiguous(), width, height, count);
      return qelStatusOk;
    }
  }
  for (int n = 0; n < count; ++n) identityObject(dst.object(n), width, height);
  return qelStatusOk;
}

}  // namespace

// One export: kind (m, ma), type, layout, check order, the contiguous kernel.
#define QEL_TRANSPOSE_COUNT_ARG_m
#define QEL_TRANSPOSE_COUNT_ARG_ma , int count
#define QEL_TRANSPOSE_COUNT_m 1
#define QEL_TRANSPOSE_COUNT_ma count
#define QEL_TRANSPOSE(K, T, F, SUFFIX, LAY, ORDER, KERNEL)                                          \
  QELM_API QelStatus qelmTranspose_##K##_##F##SUFFIX(QEL_ARGS_##K##_##LAY(const T, src), int width,  \
                                                     int height, QEL_ARGS_##K##_##LAY(T, dst)         \
                                                         QEL_TRANSPOSE_COUNT_ARG_##K) {               \
    return transposeFront<Blocked::KERNEL>(ORDER, QEL_VIEW_##K##_##LAY(src, width),                    \
                                           QEL_VIEW_##K##_##LAY(dst, height), width, height,          \
                                           QEL_TRANSPOSE_COUNT_##K);                                  \
  }

// clang-format off
QEL_TRANSPOSE(m,  Qel32f, 32f, ,   S, "NZS",   Object)
QEL_TRANSPOSE(m,  Qel32f, 32f, _P, P, "NZR",   No)
QEL_TRANSPOSE(m,  Qel64f, 64f, ,   S, "NZS",   No)
QEL_TRANSPOSE(m,  Qel64f, 64f, _P, P, "NZR",   No)
QEL_TRANSPOSE(ma, Qel32f, 32f, ,   S, "NCZS",  ArrayShuffle)
QEL_TRANSPOSE(ma, Qel32f, 32f, _L, L, "NCZSR", Array)
QEL_TRANSPOSE(ma, Qel32f, 32f, _P, P, "NCZSR", No)
QEL_TRANSPOSE(ma, Qel64f, 64f, ,   S, "NCZS",  No)
QEL_TRANSPOSE(ma, Qel64f, 64f, _L, L, "NCZSR", No)
QEL_TRANSPOSE(ma, Qel64f, 64f, _P, P, "NCZSR", No)
// clang-format on

// One export: type, layout, check order (0: the object distance, looked at
// only with count above 1), and whether the Qel32f row paths are taken.
#define QEL_IDENTITY(T, F, SUFFIX, LAY, ORDER, PATHS)                                                     \
  QELM_API QelStatus qelmLoadIdentity_ma_##F##SUFFIX(QEL_ARGS_ma_##LAY(T, dst), int width, int height,    \
                                                     int count) {                                         \
    return identityFront<PATHS>(ORDER, QEL_VIEW_ma_##LAY(dst, width), width, height, count);              \
  }

// clang-format off
QEL_IDENTITY(Qel32f, 32f, ,   S, "NZCS0", true)
QEL_IDENTITY(Qel32f, 32f, _L, L, "NZCSR", false)
QEL_IDENTITY(Qel32f, 32f, _P, P, "NZRC0", false)
QEL_IDENTITY(Qel64f, 64f, ,   S, "NZCS0", false)
QEL_IDENTITY(Qel64f, 64f, _L, L, "NZCSR", false)
QEL_IDENTITY(Qel64f, 64f, _P, P, "NZCR0", false)
// clang-format on
