// Long sums in the order the library fixes for inner products.
//
// Split sum: the first K8 terms (K with its low three bits cleared) go into two
// accumulators A and B. For Qel32f, term k goes to A when k mod 8 is 0..3 and to
// B when it is 4..7, at lane k mod 4; S = A + B lane by lane, folded as
// (S0 + S1) + (S2 + S3). For Qel64f, A takes k mod 4 in 0, 1 and B takes 2, 3, at
// lane k mod 2; S = A + B, folded as S0 + S1. The terms from K8 on are then
// added one by one. Below 8 terms the sum is plain, left to right.
//
// The lanes are ordinary scalars here: each lane sees exactly the additions a
// vector register would, so the bits are those of the SSE form.
#pragma once

#include <cstdint>
#include <type_traits>

namespace qel {

template <class T>
constexpr int splitLanes = std::is_same_v<T, float> ? 4 : 2;

// Plain left-to-right sum of term(first) .. term(last - 1), starting from `init`.
template <class T, class Term>
inline T plainSum(T init, int first, int last, Term term) {
  T s = init;
  for (int k = first; k < last; ++k) s = s + term(k);
  return s;
}

// Split accumulation of terms first .. first + 8*blocks - 1, lane 0 of A
// starting at `lane0`; answers the folded S.
template <class T, class Term>
inline T splitBlocks(T lane0, int first, int blocks, Term term) {
  constexpr int L = splitLanes<T>;
  T a[L] = {}, b[L] = {};
  a[0] = lane0;
  for (int blk = 0; blk < blocks; ++blk) {
    const int k0 = first + 8 * blk;
    if constexpr (L == 4) {
      for (int l = 0; l < 4; ++l) a[l] = a[l] + term(k0 + l);
      for (int l = 0; l < 4; ++l) b[l] = b[l] + term(k0 + 4 + l);
    } else {
      for (int half = 0; half < 2; ++half) {
        const int k = k0 + 4 * half;
        a[0] = a[0] + term(k);
        a[1] = a[1] + term(k + 1);
        b[0] = b[0] + term(k + 2);
        b[1] = b[1] + term(k + 3);
      }
    }
  }
  T s[L];
  for (int l = 0; l < L; ++l) s[l] = a[l] + b[l];
  if constexpr (L == 4)
    return (s[0] + s[1]) + (s[2] + s[3]);
  else
    return s[0] + s[1];
}

// The plain split sum of term(0) .. term(K - 1).
template <class T, class Term>
inline T splitSum(int K, Term term) {
  if (K < 8) return plainSum(T(0), 0, K, term);
  const int k8 = K & ~7;
  return plainSum(splitBlocks(T(0), 0, k8 / 8, term), k8, K, term);
}

// The aligned split sum: `x` is the memory whose alignment decides the peel.
// When its address is not a multiple of the element size the sum is plain;
// otherwise the first P terms (P brings x to 16 bytes) form a plain sum that
// starts lane 0 of A, whole blocks of 8 follow, and the rest is added singly.
template <class T, class Term>
inline T alignedSplitSum(const void* x, int K, Term term) {
  const int r = static_cast<int>(reinterpret_cast<uintptr_t>(x) & 15);
  const int e = static_cast<int>(sizeof(T));
  if (r % e != 0) return plainSum(T(0), 0, K, term);
  const int p = r == 0 ? 0 : (16 - r) / e;
  if (K < p + 8) return plainSum(T(0), 0, K, term);
  const T peel = plainSum(T(0), 0, p, term);
  const int q = K - ((K - p) % 8);
  return plainSum(splitBlocks(peel, p, (q - p) / 8, term), q, K, term);
}

}  // namespace qel
