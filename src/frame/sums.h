// Long inner products in the order the library fixes, written once in SSE
// registers and used by every family that forms one.
//
// Split sum: the first K8 terms (K with its low three bits cleared) go into two
// accumulators A and B. For Qel32f, term k goes to A when k mod 8 is 0..3 and to
// B when it is 4..7, at lane k mod 4; S = A + B lane by lane, folded as
// (S0 + S1) + (S2 + S3). For Qel64f, A takes k mod 4 in 0, 1 and B takes 2, 3, at
// lane k mod 2; S = A + B, folded as S0 + S1. The terms from K8 on are then
// added one by one. Below 8 terms the sum is plain: from zero, left to right.
//
// Aligned split sum: the same after a peel that brings the address of the
// operand read in runs (the vector of a matrix-vector product, a list of
// pointers) to 16 bytes; see alignedSplitSum.
//
// Terms come from an object with
//   T at(int k)       term k, a product already rounded to T
//   V run(int k0)     terms k0 .. k0 + lanes - 1 in one register
#pragma once

#include "lanes.h"

#include <cstdint>

namespace qel {

// The two accumulators. Over each block of 8 terms, registers of even position
// go to A and those of odd position to B: for Qel32f A = terms 0..3, B = 4..7;
// for Qel64f A = terms 0, 1 and 4, 5, B = 2, 3 and 6, 7, each lane adding its
// terms in ascending order.
template <class T>
struct SplitAccumulator {
  using S = Lanes<T>;
  using V = typename S::V;
  static constexpr int perBlock = 8 / S::L;  // registers per block of 8 terms

  V a, b = S::zero();

  explicit SplitAccumulator(T lane0 = T(0)) : a(S::first(lane0)) {}

  void addProducts(const V (&p)[perBlock]) {
    unroll<perBlock>([&](auto q) {
      if constexpr (q % 2 == 0) a = S::add(a, p[q]);
      else b = S::add(b, p[q]);
    });
  }
  // x[q] * y[q] for the registers q of one block.
  void addBlock(const V (&x)[perBlock], const V (&y)[perBlock]) {
    V p[perBlock];
    unroll<perBlock>([&](auto q) { p[q] = S::mul(x[q], y[q]); });
    addProducts(p);
  }
  T reduce() const {
    const V s = S::add(a, b);
    if constexpr (S::L == 4) {
      const V pairs = _mm_add_ps(s, _mm_shuffle_ps(s, s, _MM_SHUFFLE(2, 3, 0, 1)));  // s0+s1, _, s2+s3, _
      return _mm_cvtss_f32(_mm_add_ss(pairs, _mm_movehl_ps(pairs, pairs)));
    } else {
      return _mm_cvtsd_f64(_mm_add_sd(s, _mm_unpackhi_pd(s, s)));
    }
  }
};

// Terms from a function of k, gathered into registers lane by lane.
template <class T, class F>
struct GatheredTerms {
  F f;
  T at(int k) const { return f(k); }
  typename Lanes<T>::V run(int k0) const {
    if constexpr (Lanes<T>::L == 4) return Lanes<T>::gather(f(k0), f(k0 + 1), f(k0 + 2), f(k0 + 3));
    else return Lanes<T>::gather(f(k0), f(k0 + 1));
  }
};
template <class T, class F>
GatheredTerms<T, F> gatheredTerms(F f) { return {f}; }

// init + term(first) + ... + term(last - 1), left to right.
template <class T, class Terms>
inline T plainSum(T init, int first, int last, const Terms& terms) {
  T s = init;
  for (int k = first; k < last; ++k) s = s + terms.at(k);
  return s;
}

// Whole blocks of 8 terms from `first`, lane 0 of A starting at `lane0`; the
// folded S.
template <class T, class Terms>
inline T splitBlocks(T lane0, int first, int blocks, const Terms& terms) {
  using Acc = SplitAccumulator<T>;
  Acc acc(lane0);
  for (int blk = 0; blk < blocks; ++blk) {
    typename Acc::V p[Acc::perBlock];
    unroll<Acc::perBlock>([&](auto q) { p[q] = terms.run(first + 8 * blk + q * Lanes<T>::L); });
    acc.addProducts(p);
  }
  return acc.reduce();
}

// The plain split sum of terms 0 .. K - 1.
template <class T, class Terms>
inline T splitSum(int K, const Terms& terms) {
  if (K < 8) return plainSum(T(0), 0, K, terms);
  const int k8 = K & ~7;
  return plainSum(splitBlocks(T(0), 0, k8 / 8, terms), k8, K, terms);
}

// The split sum of terms 0 .. K - 1 carried on from a running value: `init`
// starts lane 0 of A (or, below 8 terms, the plain sum).
template <class T, class Terms>
inline T splitSumFrom(T init, int K, const Terms& terms) {
  if (K < 8) return plainSum(init, 0, K, terms);
  const int k8 = K & ~7;
  return plainSum(splitBlocks(init, 0, k8 / 8, terms), k8, K, terms);
}

// The aligned split sum of terms 0 .. K - 1, peeled on `x`, an address of
// elements of `e` bytes (the term's element, or 8 for a list of pointers).
// When the address is no multiple of e the sum is plain; otherwise the first P
// terms, P = (16 - x mod 16) / e (0 when x is aligned), form a plain sum that
// starts lane 0 of A, whole blocks of 8 follow, and the rest is added singly.
// Below P + 8 terms the whole sum is plain.
template <class T, class Terms>
inline T alignedSplitSum(const void* x, int e, int K, const Terms& terms) {
  const int r = static_cast<int>(reinterpret_cast<uintptr_t>(x) & 15);
  if (r % e != 0) return plainSum(T(0), 0, K, terms);
  const int p = r == 0 ? 0 : (16 - r) / e;
  if (K < p + 8) return plainSum(T(0), 0, K, terms);
  const T peel = plainSum(T(0), 0, p, terms);
  const int q = K - ((K - p) % 8);
  return plainSum(splitBlocks(peel, p, (q - p) / 8, terms), q, K, terms);
}

}  // namespace qel
