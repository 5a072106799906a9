// Matrix-by-vector products y = op(A) x, once, for one matrix and many vectors,
// many matrices and one vector, or in pairs; and the square forms that Gaxpy
// shares, with z added after the inner product.
//
// Every kernel has three stages, and the rounding differs between them:
//   1. M = K = n for n in 3..6: the matrix held as columns in registers, rows
//      in lanes, each result a fixed sum of the n products (Sums below);
//   2. contiguous kernels otherwise: split inner products, the aligned form
//      (peeled on the vector's address) where one vector meets many rows, the
//      plain form for object pairs, whose two vectors need not share an
//      alignment;
//   3. general and _P kernels otherwise: dst(i) zeroed, every partial sum
//      written back.
// The sizes of src1 are those of the stored matrix: a t operand has M =
// src1Width results and K = src1Height terms.
#pragma once

#include "mul_matrix.h"

namespace qel::mul {

// The stored sizes of the matrix and the extents of the product.
struct VecDims {
  int32_t w, h, len;
  int32_t M, K;
};
template <bool Trans>
inline VecDims vecDimsOf(int32_t w, int32_t h, int32_t len) {
  return {w, h, len, Trans ? w : h, Trans ? h : w};
}

// ---------------------------------------------------------------- stage 1

// The sums of a square form, t(k) being the k-th product of a row:
//   Left    ((t0 + t1) + t2) + ..., the rule
//   Spread  the layout of one matrix against many Qel32f vectors:
//           n = 4 (t0 + t2) + (t1 + t3); n = 5 rows 0..3 ((t0 + t1) + t4) + (t2 + t3),
//           row 4 ((t0 + t2) + t4) + (t1 + t3); n = 6 ((t0 + t2) + t4) + ((t1 + t3) + t5)
//   Pairs4  (t0 + t1) + (t2 + t3) at n = 4, Left otherwise
//   Pairs   horizontal pairs: n = 4 as Pairs4, n = 5 that + t4, n = 6 that + (t4 + t5)
//   Mva32   Pairs4 at n = 4 when the vectors and results lie on 16 bytes, else Spread
//   Mvav32  Pairs when, in addition, the call has 12 vectors or more, else Spread
//   None    the kernel has no square forms
enum class Sums { Left, Spread, Pairs4, Pairs, Mva32, Mvav32, None };

template <class T, Sums Tree, int N, int Row0>
inline typename Lanes<T>::V combine(const typename Lanes<T>::V (&t)[N]) {
  using S = Lanes<T>;
  auto add = [](auto a, auto b) { return S::add(a, b); };
  if constexpr (Tree == Sums::Spread && N == 4) {
    return add(add(t[0], t[2]), add(t[1], t[3]));
  } else if constexpr (Tree == Sums::Spread && N == 5 && Row0 < 4) {
    return add(add(add(t[0], t[1]), t[4]), add(t[2], t[3]));
  } else if constexpr (Tree == Sums::Spread && N == 5) {
    return add(add(add(t[0], t[2]), t[4]), add(t[1], t[3]));
  } else if constexpr (Tree == Sums::Spread && N == 6) {
    return add(add(add(t[0], t[2]), t[4]), add(add(t[1], t[3]), t[5]));
  } else if constexpr ((Tree == Sums::Pairs4 || Tree == Sums::Pairs) && N == 4) {
    return add(add(t[0], t[1]), add(t[2], t[3]));
  } else if constexpr (Tree == Sums::Pairs && N == 5) {
    return add(add(add(t[0], t[1]), add(t[2], t[3])), t[4]);
  } else if constexpr (Tree == Sums::Pairs && N == 6) {
    return add(add(add(t[0], t[1]), add(t[2], t[3])), add(t[4], t[5]));
  } else {
    typename S::V s = t[0];
    unroll<N - 1>([&](auto k) { s = add(s, t[k + 1]); });
    return s;
  }
}

// op(A) as N columns of R registers: c[k][r] holds op(r * lanes + l, k) in lane
// l, lanes past row N - 1 zero.
template <class T, int N>
struct Columns {
  using S = Lanes<T>;
  static constexpr int L = S::L;
  static constexpr int R = (N + L - 1) / L;
  template <int r>
  static constexpr int width = N - r * L < L ? N - r * L : L;
  typename S::V c[N][R];
};

template <class T, int N, class O>
inline Columns<T, N> loadColumns(const O& o) {
  using C = Columns<T, N>;
  using S = Lanes<T>;
  constexpr int L = C::L;
  C cols;
  if constexpr (columnsContiguous<O>) {
    // A transposed operand: column k of op(A) is stored row k.
    unroll<N>([&](auto k) {
      const T* p = o.v.row(k);
      unroll<C::R>([&](auto r) { cols.c[k][r] = S::template load<C::template width<r>>(p + r * L); });
    });
  } else if constexpr (rowsContiguous<O>) {
    // Stored rows, transposed in registers block by block.
    unroll<C::R>([&](auto rb) {
      unroll<C::R>([&](auto cb) {
        constexpr int w = C::template width<cb>;
        typename S::V row[L];
        unroll<L>([&](auto l) {
          if constexpr (rb * L + l < N) row[l] = S::template load<w>(o.row(rb * L + l) + cb * L);
          else row[l] = S::zero();
        });
        if constexpr (L == 4) {
          _MM_TRANSPOSE4_PS(row[0], row[1], row[2], row[3]);
        } else {
          const auto lo = _mm_unpacklo_pd(row[0], row[1]);
          row[1] = _mm_unpackhi_pd(row[0], row[1]);
          row[0] = lo;
        }
        unroll<w>([&](auto j) { cols.c[cb * L + j][rb] = row[j]; });
      });
    });
  } else {
    alignas(16) T buf[N][C::R * L] = {};
    unroll<N>([&](auto k) { unroll<N>([&](auto i) { buf[k][i] = o.at(i, k); }); });
    unroll<N>([&](auto k) { unroll<C::R>([&](auto r) { cols.c[k][r] = S::loadAligned(&buf[k][r * L]); }); });
  }
  return cols;
}

// x(0) .. x(N - 1), each spread over all lanes.
template <class T, int N, class O>
inline void splatVector(const O& x, typename Lanes<T>::V (&xs)[N]) {
  using S = Lanes<T>;
  if constexpr (rowsContiguous<O>) {
    using C = Columns<T, N>;
    const T* p = x.row(0);
    unroll<C::R>([&](auto r) {
      const auto part = S::template load<C::template width<r>>(p + r * S::L);
      unroll<C::template width<r>>([&](auto l) { xs[r * S::L + l] = S::template splatLane<l>(part); });
    });
  } else {
    unroll<N>([&](auto k) { xs[k] = S::splat(x.at(0, k)); });
  }
}

// A vector of N elements as R registers, rows in lanes.
template <class T, int N, class O>
inline void loadLanes(const O& v, typename Lanes<T>::V (&out)[Columns<T, N>::R]) {
  using C = Columns<T, N>;
  using S = Lanes<T>;
  if constexpr (rowsContiguous<O>) {
    unroll<C::R>([&](auto r) { out[r] = S::template load<C::template width<r>>(v.row(0) + r * S::L); });
  } else {
    alignas(16) T buf[C::R * S::L] = {};
    unroll<N>([&](auto i) { buf[i] = v.at(0, i); });
    unroll<C::R>([&](auto r) { out[r] = S::loadAligned(&buf[r * S::L]); });
  }
}

template <class T, int N, class O>
inline void storeLanes(const O& v, const typename Lanes<T>::V (&y)[Columns<T, N>::R]) {
  using C = Columns<T, N>;
  using S = Lanes<T>;
  if constexpr (rowsContiguous<O>) {
    unroll<C::R>([&](auto r) { S::template store<C::template width<r>>(v.row(0) + r * S::L, y[r]); });
  } else {
    alignas(16) T buf[C::R * S::L];
    unroll<C::R>([&](auto r) { S::storeAligned(&buf[r * S::L], y[r]); });
    unroll<N>([&](auto i) { v.at(0, i) = buf[i]; });
  }
}

// Mul has nothing to add after the inner products; Gaxpy adds z.
struct NoAddend {
  static constexpr bool isArray = false;
  NoAddend object(int) const { return {}; }
};

// One object: every product of column k with x(k), summed by the tree, then z.
template <class T, int N, Sums Tree, class OZ, class OD>
inline void squareObject(const Columns<T, N>& a, const typename Lanes<T>::V (&xs)[N], const OZ& z,
                         const typename Lanes<T>::V* heldZ, const OD& d) {
  using C = Columns<T, N>;
  using V = typename Lanes<T>::V;
  V y[C::R];
  unroll<C::R>([&](auto r) {
    V t[N];
    unroll<N>([&](auto k) { t[k] = Lanes<T>::mul(xs[k], a.c[k][r]); });
    y[r] = combine<T, Tree, N, r * C::L>(t);
  });
  if constexpr (!std::is_same_v<OZ, NoAddend>) {
    V zs[C::R];
    if (!heldZ) loadLanes<T, N>(z, zs);
    unroll<C::R>([&](auto r) { y[r] = Lanes<T>::add(y[r], heldZ ? heldZ[r] : zs[r]); });
  }
  storeLanes<T, N>(d, y);
}

template <class V>
constexpr bool isPackedFloatArray = std::is_same_v<V, StridedArray<const float, true>> ||
                                    std::is_same_v<V, StridedArray<float, true>>;

// One Qel32f 3 by 3 matrix against packed 3-element vectors (12 bytes apart):
// four objects a step, as they lie in memory (Quad3Matrix), each result the
// same ((t0 + t1) + t2) (+ z) as one object alone. Answers how many objects it
// did.
template <class A, class X, class Z, class D>
int packedQuads3(const A& a, const X& x, const Z& z, const D& d, int count) {
  if constexpr (std::is_same_v<ElemOf<D>, float> && !A::isArray && isPackedFloatArray<X> &&
                isPackedFloatArray<D> && (!Z::isArray || isPackedFloatArray<Z>)) {
    constexpr bool addZ = !std::is_same_v<Z, NoAddend>;
    if (x.s0 != 12 || d.s0 != 12) return 0;
    if constexpr (Z::isArray) {
      if (z.s0 != 12) return 0;
    }
    const auto m = a.object(0);
    const Quad3Matrix c([&](int i, int k) { return m.at(i, k); });
    __m128 zs[3] = {};
    if constexpr (addZ && !Z::isArray) Quad3Matrix::spread([&](int i) { return z.object(0).at(0, i); }, zs);
    const int quads = count & ~3;
    for (int n = 0; n < quads; n += 4) {
      __m128 v[3], y[3];
      loadRun3(x.object(n).row(0), v);
      c.apply(v, y);
      if constexpr (Z::isArray) loadRun3(z.object(n).row(0), zs);  // an array z: this step's run
      if constexpr (addZ) unroll<3>([&](auto r) { y[r] = _mm_add_ps(y[r], zs[r]); });
      storeRun3(d.object(n).row(0), y);
    }
    return quads;
  } else {
    return 0;
  }
}

// Each object in order; a single operand (matrix, vector or z) is read once,
// ahead of the loop.
template <int N, Sums Tree, class A, class X, class Z, class D>
[[gnu::flatten]] void squareProducts(A a, X x, Z z, D d, int count) {
  using T = ElemOf<D>;
  using V = typename Lanes<T>::V;
  V zs[Columns<T, N>::R];
  const V* heldZ = nullptr;
  if constexpr (!std::is_same_v<Z, NoAddend> && !Z::isArray) {
    loadLanes<T, N>(z.object(0), zs);
    heldZ = zs;
  }
  V xs[N];
  if constexpr (!X::isArray) splatVector<T, N>(x.object(0), xs);
  auto one = [&](const Columns<T, N>& cols, int n) {
    if constexpr (X::isArray) splatVector<T, N>(x.object(n), xs);
    squareObject<T, N, Tree>(cols, xs, z.object(n), heldZ, d.object(n));
  };
  if constexpr (!A::isArray) {
    int n = 0;
    if constexpr (N == 3) n = packedQuads3(a, x, z, d, count);
    const Columns<T, N> cols = loadColumns<T, N>(a.object(0));
    for (; n < count; ++n) one(cols, n);
  } else {
    for (int n = 0; n < count; ++n) one(loadColumns<T, N>(a.object(n)), n);
  }
}

inline bool on16(const void* p) { return (reinterpret_cast<uintptr_t>(p) & 15) == 0; }
inline bool on16(int32_t s) { return (s & 15) == 0; }

// The vectors and the results of a strided call lie on 16 bytes, object after object.
template <class X, class D>
inline bool vectorsOn16(const X& x, const D& d) {
  if constexpr (requires { x.base, x.s0, d.base, d.s0; })
    return on16(x.base) && on16(x.s0) && on16(d.base) && on16(d.s0);
  else
    return false;
}

// The square form of size n with the kernel's sums, if it has one.
template <Sums Kind, class A, class X, class Z, class D>
bool squareForm(int n, A a, X x, Z z, D d, int count) {
  if constexpr (Kind == Sums::None) {
    return false;
  } else {
    auto run = [&](auto size) {
      constexpr int N = decltype(size)::value;
      if constexpr (Kind == Sums::Mva32 || Kind == Sums::Mvav32) {
        if constexpr (N == 4) {
          if (vectorsOn16(x, d) && (Kind == Sums::Mva32 || count >= 12))
            return squareProducts<N, Kind == Sums::Mva32 ? Sums::Pairs4 : Sums::Pairs>(a, x, z, d, count);
        }
        squareProducts<N, Sums::Spread>(a, x, z, d, count);
      } else {
        squareProducts<N, Kind>(a, x, z, d, count);
      }
    };
    switch (n) {
      case 3: run(std::integral_constant<int, 3>{}); return true;
      case 4: run(std::integral_constant<int, 4>{}); return true;
      case 5: run(std::integral_constant<int, 5>{}); return true;
      case 6: run(std::integral_constant<int, 6>{}); return true;
      default: return false;
    }
  }
}

// ---------------------------------------------------------------- stage 2

// The terms of row i: op(i, k) x(k), read in runs when both lie contiguous.
template <class T, class OA, class OX>
struct RowTerms {
  const OA& a;
  const OX& x;
  int i;
  T at(int k) const { return T(a.at(i, k)) * T(x.at(0, k)); }
  typename Lanes<T>::V run(int k0) const { return Lanes<T>::mul(op1Run<T>(a, i, k0), op1Run<T>(x, 0, k0)); }
};

template <bool Aligned, class T, class OA, class OX>
inline T rowProduct(const OA& a, const OX& x, int i, int K) {
  const RowTerms<T, OA, OX> terms{a, x, i};
  if constexpr (Aligned) return alignedSplitSum<T>(&x.at(0, 0), int(sizeof(T)), K, terms);
  else return splitSum<T>(K, terms);
}

// One object alone: rows in blocks of 8, each block formed before it is
// stored, then the 1 to 7 remaining rows; all peeled on the vector.
template <class T, class OA, class OX, class OD>
void rowBlocks(const OA& a, const OX& x, const OD& d, int M, int K) {
  for (int i0 = 0; i0 < M; i0 += 8) {
    const int rows = M - i0 < 8 ? M - i0 : 8;
    T out[8];
    for (int r = 0; r < rows; ++r) out[r] = rowProduct<true, T>(a, x, i0 + r, K);
    for (int r = 0; r < rows; ++r) d.at(0, i0 + r) = out[r];
  }
}

// Two objects: rows in blocks of 4 of both, eight plain split products formed
// before they are stored, then the 1 to 3 remaining rows of both.
template <class T, class OA, class OX, class OD>
void pairBlocks(const OA (&a)[2], const OX (&x)[2], const OD (&d)[2], int M, int K) {
  for (int i0 = 0; i0 < M; i0 += 4) {
    const int rows = M - i0 < 4 ? M - i0 : 4;
    T out[2][4];
    for (int o = 0; o < 2; ++o)
      for (int r = 0; r < rows; ++r) out[o][r] = rowProduct<false, T>(a[o], x[o], i0 + r, K);
    for (int o = 0; o < 2; ++o)
      for (int r = 0; r < rows; ++r) d[o].at(0, i0 + r) = out[o][r];
  }
}

// ---------------------------------------------------------------- stage 3

template <class T, class OA, class OX, class OD>
void loopProduct(const OA& a, const OX& x, const OD& d, int M, int K) {
  for (int i = 0; i < M; ++i) {
    T& out = d.at(0, i);
    out = T(0);
    for (int k = 0; k < K; ++k) out = out + T(a.at(i, k)) * T(x.at(0, k));
  }
}

// ---------------------------------------------------------------- kernels

// One serial kernel: contiguous when the views are in contiguous form, with
// the square sums `Kind`; general and _P kernels add from the left.
template <Sums Kind, class A, class X, class D>
QelStatus mulVecKernel(const VecDims& dm, A a, X x, D d, int count) {
  using T = ElemOf<D>;
  constexpr bool contiguous = D::Object::contiguous;
  constexpr Sums square = contiguous ? Kind : Sums::Left;
  if (dm.M == dm.K && squareForm<square>(dm.M, a, x, NoAddend{}, d, count)) return qelStatusOk;
  if constexpr (contiguous) {
    if constexpr (Kind == Sums::Mva32) {
      // One matrix against many vectors: every row peeled on its object's vector.
      for (int n = 0; n < count; ++n) {
        const auto xo = x.object(n);
        const auto dobj = d.object(n);
        for (int i = 0; i < dm.M; ++i) dobj.at(0, i) = rowProduct<true, T>(a.object(n), xo, i, dm.K);
      }
    } else if constexpr (!X::isArray) {
      for (int n = 0; n < count; ++n) rowBlocks<T>(a.object(n), x.object(n), d.object(n), dm.M, dm.K);
    } else {
      const int pairs = count & ~1;
      for (int n = 0; n < pairs; n += 2) {
        const typename A::Object ao[2] = {a.object(n), a.object(n + 1)};
        const typename X::Object xo[2] = {x.object(n), x.object(n + 1)};
        const typename D::Object dobj[2] = {d.object(n), d.object(n + 1)};
        pairBlocks<T>(ao, xo, dobj, dm.M, dm.K);
      }
      if (count & 1) rowBlocks<T>(a.object(pairs), x.object(pairs), d.object(pairs), dm.M, dm.K);
    }
  } else {
    for (int n = 0; n < count; ++n) loopProduct<T>(a.object(n), x.object(n), d.object(n), dm.M, dm.K);
  }
  return qelStatusOk;
}

// Checks N C Z M S R; the work figure counts the elements touched, a single
// operand once and an array operand `count` times.
template <class T, Layout F, Sums Kind, class A, class X, class D>
QelStatus mulVecFront(A a, X x, D d, const VecDims& dm, int count) {
  CheckGroups g = checkViews(count, {dm.w, dm.h, dm.len}, a, x, d);
  g.match = dm.K == dm.len;
  if (QelStatus st = firstFailure("NCZMSR", g)) return st;

  auto job = makeJob(
      [dm](int share, void*, auto va, auto vx, auto vd) {
        using VA = decltype(va);
        using VX = decltype(vx);
        using VD = decltype(vd);
        if constexpr (F == Layout::L && !VD::Object::contiguous) {
          // The _L general kernel: the single shape's general kernel once per object.
          for (int n = 0; n < share; ++n)
            mulVecKernel<Sums::Left>(dm, Single<typename VA::Object>{va.object(n)},
                                     Single<typename VX::Object>{vx.object(n)},
                                     Single<typename VD::Object>{vd.object(n)}, 1);
          return qelStatusOk;
        } else {
          return mulVecKernel<Kind>(dm, va, vx, vd, share);
        }
      },
      a, x, d);
  if constexpr (!A::isArray && !X::isArray) {
    return runSerial(job, 1);
  } else {
    const Work e1 = Work(dm.w) * dm.h;
    const Work w = A::isArray && X::isArray ? (e1 + dm.M + dm.K) * count
                   : A::isArray             ? (e1 + dm.M) * count + dm.K
                                            : e1 + (Work(dm.M) + dm.K) * count;
    return runFirstKind(job, count, w, WorkLimit::serialBelow(contiguousLimit<T, F>),
                        WorkLimit::serialBelow(generalLimit));
  }
}

}  // namespace qel::mul
