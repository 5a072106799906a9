// Inner products and Euclidean lengths: one design for both. A length is the
// inner product of a vector with itself, then the square root in the element
// type. Each result is one sum of the terms t(k) = a(k) * b(k):
//   len 3..6   straight-line code; each kernel has its own grouping of the few
//              additions (Tree), in scalars or, for groups of objects, in lanes
//   otherwise  the split sum of the frame, peeled on the address of the second
//              vector (or of its element-pointer list) where the kernel says so
// dst is a packed array of one result per object in every layout.
#pragma once

#include "../frame/checks.h"
#include "../frame/driver.h"
#include "../frame/lanes.h"
#include "../frame/operands.h"
#include "../frame/sums.h"
#include "../frame/views.h"
#include "qelm/qelmtypes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace qel::vec {

template <class V>
using ElemOf = typename V::Object::Elem;

// How the few terms of a straight-line length are added. Plain is the rule:
// from zero, in ascending k. The others keep the grouping a kernel has:
//   Pairs      4: (t0 + t1) + (t2 + t3); 5: that + t4; 6: that + (t4 + t5)
//   Pairs4     Pairs at 4 only;  Pairs5  Pairs at 5 only
//   Evens      3: (t2 + t0) + t1; 4: (t0 + t2) + (t1 + t3); 5: ((t0 + t2) + t4) + (t1 + t3)
//   EvensDot   4: (t0 + t2) + (t1 + t3); 5: that + t4
//   Back       3: (t1 + t2) + t0; from 4: (t[n-1] + t[n-3]) + t[n-2], then t0 upwards
//   Rot        4: ((t3 + t0) + t1) + t2
// Lengths a tree does not name are Plain.
enum class Tree { Plain, Pairs, Pairs4, Pairs5, Evens, EvensDot, Back, Rot };

template <Tree tr, int N, class X, class Add>
inline X sumTree(const X (&t)[N], X zero, Add add) {
  auto pair = [&](int i, int j) { return add(t[i], t[j]); };
  if constexpr ((tr == Tree::Pairs || tr == Tree::Pairs4) && N == 4) {
    return add(pair(0, 1), pair(2, 3));
  } else if constexpr ((tr == Tree::Pairs || tr == Tree::Pairs5) && N == 5) {
    return add(add(pair(0, 1), pair(2, 3)), t[4]);
  } else if constexpr (tr == Tree::Pairs && N == 6) {
    return add(add(pair(0, 1), pair(2, 3)), pair(4, 5));
  } else if constexpr (tr == Tree::Evens && N == 3) {
    return add(pair(2, 0), t[1]);
  } else if constexpr ((tr == Tree::Evens || tr == Tree::EvensDot) && N == 4) {
    return add(pair(0, 2), pair(1, 3));
  } else if constexpr (tr == Tree::Evens && N == 5) {
    return add(add(pair(0, 2), t[4]), pair(1, 3));
  } else if constexpr (tr == Tree::EvensDot && N == 5) {
    return add(add(pair(0, 2), pair(1, 3)), t[4]);
  } else if constexpr (tr == Tree::Back && N == 3) {
    return add(pair(1, 2), t[0]);
  } else if constexpr (tr == Tree::Back) {
    X s = add(add(t[N - 1], t[N - 3]), t[N - 2]);
    unroll<N - 3>([&](auto k) { s = add(s, t[k]); });
    return s;
  } else if constexpr (tr == Tree::Rot && N == 4) {
    return add(add(add(t[3], t[0]), t[1]), t[2]);
  } else {
    X s = zero;
    unroll<N>([&](auto k) { s = add(s, t[k]); });
    return s;
  }
}

// Terms a(k) * b(k) of two vectors, read in runs when both are contiguous.
template <class T, class OA, class OB>
struct VectorTerms {
  const OA& a;
  const OB& b;
  T at(int k) const { return T(a.at(0, k)) * T(b.at(0, k)); }
  typename Lanes<T>::V run(int k0) const {
    using S = Lanes<T>;
    if constexpr (OA::contiguous && OB::contiguous) {
      return S::mul(S::template load<S::L>(&a.at(0, k0)), S::template load<S::L>(&b.at(0, k0)));
    } else if constexpr (S::L == 4) {
      return S::mul(S::gather(a.at(0, k0), a.at(0, k0 + 1), a.at(0, k0 + 2), a.at(0, k0 + 3)),
                    S::gather(b.at(0, k0), b.at(0, k0 + 1), b.at(0, k0 + 2), b.at(0, k0 + 3)));
    } else {
      return S::mul(S::gather(a.at(0, k0), a.at(0, k0 + 1)), S::gather(b.at(0, k0), b.at(0, k0 + 1)));
    }
  }
};

template <class O>
constexpr bool isElementList = requires(O o) { o.ptrs; };

// Where the split sum peels: on the second vector, or, in _P, on the address of
// its list of element pointers (elements of 8 bytes, so a peel of 0 or 1).
enum class Long { Aligned, Split };

template <class T, Long how, class OA, class OB>
inline T longSum(const OA& a, const OB& b, int len) {
  const VectorTerms<T, OA, OB> terms{a, b};
  if constexpr (isElementList<OB>) return alignedSplitSum<T>(b.ptrs, 8, len, terms);
  else if constexpr (how == Long::Aligned && OB::contiguous) return alignedSplitSum<T>(&b.at(0, 0), int(sizeof(T)), len, terms);
  else return splitSum<T>(len, terms);
}

template <class T, Tree tr, int N, class OA, class OB>
inline T smallSum(const OA& a, const OB& b) {
  T t[N];
  unroll<N>([&](auto k) { t[k] = T(a.at(0, k)) * T(b.at(0, k)); });
  return sumTree<tr>(t, T(0), [](T x, T y) { return x + y; });
}

// EvensDot in two Qel64f lanes, one object: lane 0 takes the even terms,
// lane 1 the odd ones, then lane 0 + lane 1 (and t4 after that at length 5).
template <int N, class OA, class OB>
inline double evensInLanes(const OA& a, const OB& b) {
  auto pair = [&](int k) { return _mm_mul_pd(_mm_loadu_pd(&a.at(0, k)), _mm_loadu_pd(&b.at(0, k))); };
  const __m128d p = _mm_add_pd(pair(0), pair(2));
  const double s = _mm_cvtsd_f64(_mm_add_sd(p, _mm_unpackhi_pd(p, p)));
  if constexpr (N == 5) return s + a.at(0, 4) * b.at(0, 4);
  else return s;
}

template <bool Root, class T>
inline T finish(T s) {
  if constexpr (Root) return std::sqrt(s);
  else return s;
}

// Element k of `lanes` objects side by side, one object per lane. Contiguous
// objects are read in rows (up to four Qel32f, pairs of Qel64f) and transposed.
template <class T, int N, class O>
inline void columnsOf(const O (&o)[Lanes<T>::L], typename Lanes<T>::V (&c)[N]) {
  using S = Lanes<T>;
  int k0 = 0;
  if constexpr (S::L == 4 && O::contiguous) {
    constexpr int W = N < 4 ? N : 4;
    __m128 r[4];
    unroll<4>([&](auto l) { r[l] = S::template load<W>(&o[l].at(0, 0)); });
    _MM_TRANSPOSE4_PS(r[0], r[1], r[2], r[3]);
    unroll<W>([&](auto k) { c[k] = r[k]; });
    k0 = W;
  } else if constexpr (O::contiguous) {
    unroll<N / 2>([&](auto h) {
      const __m128d r0 = _mm_loadu_pd(&o[0].at(0, 2 * h)), r1 = _mm_loadu_pd(&o[1].at(0, 2 * h));
      c[2 * h] = _mm_unpacklo_pd(r0, r1), c[2 * h + 1] = _mm_unpackhi_pd(r0, r1);
    });
    k0 = N & ~1;
  }
  for (int k = k0; k < N; ++k) {
    if constexpr (S::L == 4) c[k] = S::gather(o[0].at(0, k), o[1].at(0, k), o[2].at(0, k), o[3].at(0, k));
    else c[k] = S::gather(o[0].at(0, k), o[1].at(0, k));
  }
}

// The columns of the group of objects at the start of array g; four packed
// Qel32f vectors of three come in three loads.
template <class T, int N, class G>
inline void groupColumns(const G& g, typename Lanes<T>::V (&c)[N]) {
  if constexpr (N == 3 && std::is_same_v<T, float> && G::Object::contiguous && requires { g.s0; }) {
    if (g.s0 == 12) return unpack3(g.base, c);
  }
  typename G::Object o[Lanes<T>::L];
  unroll<Lanes<T>::L>([&](auto l) { o[l] = g.object(l); });
  columnsOf<T, N>(o, c);
}

// Whole groups of `lanes` objects from `first`, every lane summed by `tr`;
// answers the object after the last group. A single b is spread once.
template <class T, Tree tr, int N, bool Root, class A, class B, class D>
int laneGroups(const A& a, const B& b, const D& d, int first, int count) {
  using S = Lanes<T>;
  using V = typename S::V;
  constexpr int L = S::L;
  V held[N];
  if constexpr (!B::isArray) unroll<N>([&](auto k) { held[k] = S::splat(b.object(0).at(0, k)); });
  int n = first;
  // The views step a group at a time, so an object's address is one short
  // distance from the group's.
  A ag = a.from(first);
  B bg = b.from(first);
  D dg = d.from(first);
  // Packed vectors of three: the group is three registers as it lies, the terms
  // are formed there and only the products are sorted into lanes.
  bool packed3 = false;
  if constexpr (N == 3 && isStridedContiguous<A> && isStridedContiguous<B>)
    packed3 = ag.s0 == 3 * int32_t(sizeof(T)) && bg.s0 == 3 * int32_t(sizeof(T));
  auto packedTerms = [&](auto& t) {
    V x[3], y[3];
    loadRun3(&ag.object(0).at(0, 0), x);
    if constexpr (Root) {
      unroll<3>([&](auto r) { y[r] = S::mul(x[r], x[r]); });  // a length: b is a
    } else {
      loadRun3(&bg.object(0).at(0, 0), y);
      unroll<3>([&](auto r) { y[r] = S::mul(x[r], y[r]); });
    }
    unpack3(y, t);
  };
  auto columnTerms = [&](V (&t)[N]) {
    V ca[N];
    groupColumns<T, N>(ag, ca);
    if constexpr (Root) {
      unroll<N>([&](auto k) { t[k] = S::mul(ca[k], ca[k]); });  // a length: b is a
    } else if constexpr (B::isArray) {
      V cb[N];
      groupColumns<T, N>(bg, cb);
      unroll<N>([&](auto k) { t[k] = S::mul(ca[k], cb[k]); });
    } else {
      unroll<N>([&](auto k) { t[k] = S::mul(ca[k], held[k]); });
    }
  };
  for (; count - n >= L; n += L, ag = ag.from(L), bg = bg.from(L), dg = dg.from(L)) {
    V t[N];
    if constexpr (N == 3) {
      if (packed3) packedTerms(t);
      else columnTerms(t);
    } else {
      columnTerms(t);
    }
    V s = sumTree<tr>(t, S::zero(), [](V x, V y) { return S::add(x, y); });
    if constexpr (Root) s = S::sqrt(s);
    S::template store<L>(&dg.object(0).at(0, 0), s);
  }
  return n;
}

inline bool on16(const void* p) { return (reinterpret_cast<uintptr_t>(p) & 15) == 0; }

// The Qel32f length of three-element vectors behind element pointers, by the
// reciprocal-square-root estimate and one Newton step, four objects a step once
// dst lies on 16 bytes: y = estimate(x), 0 where x is 0; u = x y;
// root = (u (y u - 3)) (-0.5). Objects before the boundary are exact. A dst that
// overlaps any run of elements, or is no multiple of 4, keeps every object
// exact. Answers the object after the last group.
template <class A, class D>
int estimatedRoots(const A& a, const D& d, int count) {
  float* out = &d.object(0).at(0, 0);
  const uintptr_t lo = reinterpret_cast<uintptr_t>(out), hi = lo + 4 * uintptr_t(count);
  if (lo & 3) return 0;
  for (int j = 0; j < 3; ++j) {
    const uintptr_t first = reinterpret_cast<uintptr_t>(&a.object(0).at(0, j));
    const uintptr_t last = reinterpret_cast<uintptr_t>(&a.object(count - 1).at(0, j));
    if (std::min(first, last) < hi && lo < std::max(first, last) + 4) return 0;
  }
  int n = 0;
  for (; n < count && !on16(out + n); ++n) out[n] = std::sqrt(smallSum<float, Tree::Plain, 3>(a.object(n), a.object(n)));
  for (; count - n >= 4; n += 4) {
    __m128 x = _mm_setzero_ps();
    for (int j = 0; j < 3; ++j) {
      const __m128 e = _mm_setr_ps(a.object(n).at(0, j), a.object(n + 1).at(0, j), a.object(n + 2).at(0, j),
                                   a.object(n + 3).at(0, j));
      x = j ? _mm_add_ps(x, _mm_mul_ps(e, e)) : _mm_mul_ps(e, e);
    }
    const __m128 y = _mm_andnot_ps(_mm_cmpeq_ps(x, _mm_setzero_ps()), _mm_rsqrt_ps(x));
    const __m128 u = _mm_mul_ps(x, y);
    const __m128 step = _mm_sub_ps(_mm_mul_ps(y, u), _mm_set1_ps(3.0f));
    _mm_store_ps(out + n, _mm_mul_ps(_mm_mul_ps(u, step), _mm_set1_ps(-0.5f)));
  }
  return n;
}

// What a kernel does beyond its trees:
//   Pairwise  Qel32f pairs of arrays: when the share has 5 objects or more and
//             both arrays and dst lie on 16 bytes object after object, lengths
//             4..6 take Pairs (length 4 for every object, 5 and 6 in groups of
//             four) and length 3 groups of four, the rest Plain
//   Groups    groups of four (Qel32f) add from zero, the rest one by one by the tree
//   Estimate  length 3 by the root estimate
enum class Extra { None, Pairwise, Groups, Estimate };

struct DotLine {
  Tree contiguous, general;  // trees of the straight-line lengths
  Long longSum;              // the long sum of the contiguous kernel
  Extra extra;
  bool root;                 // a length, not an inner product
};

template <DotLine line, int N, class A, class B, class D>
void straightLine(const A& a, const B& b, const D& d, int count) {
  using T = ElemOf<D>;
  constexpr bool contiguous = A::Object::contiguous;
  constexpr Tree tr = contiguous ? line.contiguous : line.general;
  int n = 0;
  if constexpr (contiguous && line.extra == Extra::Pairwise) {
    if constexpr (requires { a.s0, b.s0; }) {
      if (count >= 5 && on16(a.base) && on16(b.base) && on16(d.base) && (a.s0 & 15) == 0 && (b.s0 & 15) == 0) {
        n = laneGroups<T, N == 3 ? Tree::Plain : Tree::Pairs, N, line.root>(a, b, d, 0, count);
        for (; n < count; ++n)
          d.object(n).at(0, 0) = smallSum<T, N == 4 ? Tree::Pairs : Tree::Plain, N>(a.object(n), b.object(n));
        return;
      }
    }
  }
  if constexpr (contiguous && tr == Tree::EvensDot && (N == 4 || N == 5)) {
    B bn = b;
    for (A an = a; n < count; ++n, an = an.from(1), bn = bn.from(1))
      d.object(n).at(0, 0) = finish<line.root>(evensInLanes<N>(an.object(0), bn.object(0)));
    return;
  }
  if constexpr (contiguous && A::isArray) {
    // Lanes add in the object's own order, so groups cost nothing in rounding;
    // Groups kernels add their groups from zero, only the rest by their tree.
    n = laneGroups<T, line.extra == Extra::Groups ? Tree::Plain : tr, N, line.root>(a, b, d, 0, count);
  } else if constexpr (line.extra == Extra::Estimate && N == 3) {
    n = estimatedRoots(a, d, count);
  }
  for (; n < count; ++n) d.object(n).at(0, 0) = finish<line.root>(smallSum<T, tr, N>(a.object(n), b.object(n)));
}

// One serial kernel; contiguous when the views come in their contiguous form.
template <DotLine line, class A, class B, class D>
QelStatus dotKernel(A a, B b, D d, int len, int count) {
  using T = ElemOf<D>;
  constexpr Long how = A::Object::contiguous ? line.longSum : Long::Split;
  switch (len) {
    case 3: straightLine<line, 3>(a, b, d, count); break;
    case 4: straightLine<line, 4>(a, b, d, count); break;
    case 5: straightLine<line, 5>(a, b, d, count); break;
    case 6: straightLine<line, 6>(a, b, d, count); break;
    default:
      for (int n = 0; n < count; ++n)
        d.object(n).at(0, 0) = finish<line.root>(longSum<T, how>(a.object(n), b.object(n), len));
  }
  return qelStatusOk;
}

// Checks N C Z S R (a single pair has no count to fail). A length passes its
// vector as b too. Arrays compare their work with the limit of the chosen
// kernel: (count + 1) len with one vector against an array, 2 len count for
// two arrays, len count for lengths.
template <DotLine line, class A, class B, class D>
QelStatus dotFront(A a, B b, D d, int len, int count, int32_t contiguousLimit, int32_t generalLimit) {
  if (QelStatus st = firstFailure("NCZSR", checkViews(count, {len}, a, b, d))) return st;
  auto kernel = [len](int share, void*, auto va, auto vb, auto vd) {
    return dotKernel<line>(va, vb, vd, len, share);
  };
  auto run = [&](auto job) {
    if constexpr (!A::isArray) {
      return runSerial(job, 1);
    } else {
      const Work w = line.root      ? Work(len) * count
                     : B::isArray   ? Work(2) * len * count
                                    : (Work(count) + 1) * len;
      return runFirstKind(job, count, w, WorkLimit::serialBelow(contiguousLimit),
                          WorkLimit::serialBelow(generalLimit));
    }
  };
  if constexpr (line.root)
    return run(makeJob([kernel](int share, void* s, auto va, auto vd) { return kernel(share, s, va, va, vd); }, a, d));
  else
    return run(makeJob(kernel, a, b, d));
}

}  // namespace qel::vec
