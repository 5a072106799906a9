// Matrix-by-matrix products: dst = op1(src1) * op2(src2), each operand used as
// stored (m, ma) or transposed (t, ta), once or for every object of an array.
//
// Every kernel has three stages and the rounding differs between them on
// purpose:
//   1. square sizes 3..6 (the kernel's own set): straight-line code, every
//      result the plain sum p0 + p1 + ... added from the left;
//   2. contiguous kernels otherwise: a 4-by-2 register tile whose inner products
//      are split sums for K >= 8 (SplitAccumulator), sums from zero below;
//   3. general and _P kernels otherwise: dst(i, j) is zeroed and takes every
//      partial sum in ascending k.
// The shapes differ only in how op1(i, k) and op2(k, j) are addressed, which
// the views (Mat, Trans, MatP) decide.
#pragma once

#include "../frame/checks.h"
#include "../frame/driver.h"
#include "../frame/views.h"
#include "../frame/lanes.h"
#include "../frame/sums.h"
#include "../frame/operands.h"
#include "qelm/qelmtypes.h"

#include <cstdint>
#include <type_traits>

namespace qel::mul {

// ---------------------------------------------------------------- sizes

// The stored sizes of both operands and the extents of the product.
struct Dims {
  int32_t w1, h1, w2, h2;
  int32_t M, N, K, K2;  // K2: the inner extent as src2 sees it
};

template <bool Trans1, bool Trans2>
inline Dims dimsOf(int32_t w1, int32_t h1, int32_t w2, int32_t h2) {
  return {w1, h1, w2, h2, Trans1 ? w1 : h1, Trans2 ? h2 : w2, Trans1 ? h1 : w1, Trans2 ? w2 : h2};
}

// The square sizes a kernel has straight-line code for, as bits.
enum SmallSizes : unsigned { kNone = 0, k3 = 1, k345 = 7, k3456 = 15 };

// Odd members of the family, kept as they are.
enum LineFlags : unsigned {
  kNoTile = 1,      // the contiguous kernel loops like a general one after its small sizes
  kOrSelect = 2,    // sizes 3 and 4 chosen by the OR of the four extents
  kOwnGeneral = 4,  // a _L general kernel with a body of its own instead of the single shape's
};

// One line of an export table.
struct Line {
  unsigned contiguousSizes, generalSizes, flags;
};

// The size whose straight-line path a call takes, or 0: sizes 3, 4, 5, 6 in
// that order, all four extents equal to it.
inline int smallSizeOf(unsigned sizes, const Dims& d) {
  for (int n = 3; n <= 6; ++n)
    if ((sizes >> (n - 3) & 1u) && d.w1 == n && d.h1 == n && d.w2 == n && d.h2 == n) return n;
  return 0;
}

// 3 and 4 by the OR of the four extents, then 5 and 6 extent by extent. An OR
// of 3 also comes from mixed extents 1, 2, 3; those run the 3 path through
// their own row widths.
inline int smallSizeByOr(const Dims& d) {
  const int32_t any = d.w1 | d.h1 | d.w2 | d.h2;
  if (any == 3) return 3;
  if (any == 4) return 4;
  for (int n = 5; n <= 6; ++n)
    if (d.w1 == n && d.h1 == n && d.w2 == n && d.h2 == n) return n;
  return 0;
}

// ---------------------------------------------------------------- access traits

template <class V>
using ElemOf = typename V::Object::Elem;

// ---------------------------------------------------------------- stage 1: sizes 3..6

// Op2 of one product as rows held in registers.
template <class T, int N>
struct RowBlock {
  using S = Lanes<T>;
  static constexpr int R = (N + S::L - 1) / S::L;  // registers per row
  template <int r>
  static constexpr int width = (N - r * S::L) < S::L ? N - r * S::L : S::L;
  typename S::V v[N][R];
};

// Op1 of a single operand, read once and kept as scalars.
template <class T, int N>
struct ScalarBlock {
  static constexpr bool contiguous = false;
  T e[N][N];
  T at(int i, int k) const { return e[i][k]; }
};

template <class T, int N, class O>
inline ScalarBlock<T, N> readScalars(const O& o) {
  ScalarBlock<T, N> s;
  unroll<N>([&](auto i) { unroll<N>([&](auto k) { s.e[i][k] = o.at(i, k); }); });
  return s;
}

template <class T, int N, class O>
inline RowBlock<T, N> readRows(const O& o) {
  using S = Lanes<T>;
  using B = RowBlock<T, N>;
  B b;
  if constexpr (rowsContiguous<O>) {
    unroll<N>([&](auto k) {
      const T* p = o.row(k);
      unroll<B::R>([&](auto r) { b.v[k][r] = S::template load<B::template width<r>>(p + r * S::L); });
    });
  } else {
    alignas(16) T buf[N][B::R * S::L] = {};
    unroll<N>([&](auto k) { unroll<N>([&](auto j) { buf[k][j] = o.at(k, j); }); });
    unroll<N>([&](auto k) {
      unroll<B::R>([&](auto r) { b.v[k][r] = S::template load<S::L>(&buf[k][r * S::L]); });
    });
  }
  return b;
}

// op1(i, 0..N-1) as splatted registers: a contiguous Qel32f row is loaded once
// and spread lane by lane, anything else is read element by element.
template <class T, int N, class O>
inline void splatRow(const O& o, int i, typename Lanes<T>::V (&out)[N]) {
  using S = Lanes<T>;
  if constexpr (rowsContiguous<O> && S::L == 4) {
    using B = RowBlock<T, N>;
    const T* p = o.row(i);
    unroll<B::R>([&](auto r) {
      const auto part = S::template load<B::template width<r>>(p + r * S::L);
      unroll<B::template width<r>>([&](auto l) { out[r * S::L + l] = S::template splatLane<l>(part); });
    });
  } else {
    unroll<N>([&](auto k) { out[k] = S::splat(o.at(i, k)); });
  }
}

template <class T, int N, class O>
inline void writeRow(const O& o, int i, const typename Lanes<T>::V (&c)[RowBlock<T, N>::R]) {
  using S = Lanes<T>;
  using B = RowBlock<T, N>;
  if constexpr (rowsContiguous<O>) {
    T* p = o.row(i);
    unroll<B::R>([&](auto r) { S::template store<B::template width<r>>(p + r * S::L, c[r]); });
  } else {
    alignas(16) T buf[B::R * S::L];
    unroll<B::R>([&](auto r) { S::template store<S::L>(&buf[r * S::L], c[r]); });
    unroll<N>([&](auto j) { o.at(i, j) = buf[j]; });
  }
}

// Op2 rows read in place from a contiguous matrix, register by register.
template <class T, int N, class O>
struct RowsInPlace {
  const O& o;
  template <int r>
  typename Lanes<T>::V part(int k) const {
    return Lanes<T>::template load<RowBlock<T, N>::template width<r>>(o.row(k) + r * Lanes<T>::L);
  }
};
// The same, with the row addresses formed once per object.
template <class T, int N>
struct RowPointers {
  const T* p[N];
  template <class O>
  explicit RowPointers(const O& o) {
    unroll<N>([&](auto k) { p[k] = o.row(k); });
  }
  template <int r>
  typename Lanes<T>::V part(int k) const {
    return Lanes<T>::template load<RowBlock<T, N>::template width<r>>(p[k] + r * Lanes<T>::L);
  }
};
template <class T, int N>
struct RowsHeld {
  const RowBlock<T, N>& b;
  template <int r>
  typename Lanes<T>::V part(int k) const { return b.v[k][r]; }
};

// Row i of the result is op1(i, 0) * row 0 + op1(i, 1) * row 1 + ..., from the
// left: the same sum in the same order for every element of the row. Row i is
// stored once formed, after its op1 row has been read.
template <class T, int N, class O1, class Rows, class OD>
inline void productRows(const O1& a, const Rows& b, const OD& d) {
  using S = Lanes<T>;
  using B = RowBlock<T, N>;
  unroll<N>([&](auto i) {
    typename S::V ai[N], c[B::R];
    splatRow<T, N>(a, i, ai);
    unroll<B::R>([&](auto r) { c[r] = S::mul(ai[0], b.template part<r>(0)); });
    unroll<N - 1>([&](auto km1) {
      constexpr int k = km1 + 1;
      unroll<B::R>([&](auto r) { c[r] = S::add(c[r], S::mul(ai[k], b.template part<r>(k))); });
    });
    writeRow<T, N>(d, i, c);
  });
}
template <class T, int N, class O1, class OD>
inline void productRows(const O1& a, const RowBlock<T, N>& b, const OD& d) {
  productRows<T, N>(a, RowsHeld<T, N>{b}, d);
}

// The same sums, row by row, with every row address formed once per object
// (RowPointers for op2, one pointer per op1 row). Each op2 register is loaded
// where it is used: the load is the copy SSE's two-operand products need
// anyway. Rows are stored after their group is formed, so the caller uses this
// only where no result row can reach an operand row still to be read.
template <class T, int N, class O1, class Rows, class OD>
inline void productRowGroups(const O1& a, const Rows& b, const OD& d) {
  using S = Lanes<T>;
  using B = RowBlock<T, N>;
  constexpr int G = 1;  // more rows at a time trade loads for register copies and spills
  unroll<(N + G - 1) / G>([&](auto grp) {
    constexpr int i0 = grp * G;
    constexpr int g = N - i0 < G ? N - i0 : G;
    typename S::V c[g][B::R];
    // Row addresses once: element offsets within a row then need no
    // arithmetic of their own.
    const T* ar[g];
    unroll<g>([&](auto q) { ar[q] = a.row(i0 + q); });
    unroll<N>([&](auto k) {
      typename S::V ak[g];
      unroll<g>([&](auto q) { ak[q] = S::splat(ar[q][k]); });
      unroll<B::R>([&](auto r) {
        const auto bk = b.template part<r>(k);
        unroll<g>([&](auto q) {
          if constexpr (k == 0) c[q][r] = S::mul(ak[q], bk);
          else c[q][r] = S::add(c[q][r], S::mul(ak[q], bk));
        });
      });
    });
    unroll<g>([&](auto q) { writeRow<T, N>(d, i0 + q, c[q]); });
  });
}

// Qel64f: the same sums register column by register column. Column pair r
// of op2 (two elements of each of the N rows) stays in N registers while every
// result row takes its pair: a splatted op1 element is multiplied in place, so
// no term needs the register copy that the row form pays (six fewer
// instructions per result row at size 6). Op1 is read once per column pair,
// so the caller uses this only where the result reaches no operand.
template <int N, class O1, class Rows, class OD>
inline void productColumnPairs(const O1& a, const Rows& b, const OD& d) {
  using S = Lanes<double>;
  const double* ar[N];
  unroll<N>([&](auto i) { ar[i] = a.row(i); });
  unroll<RowBlock<double, N>::R>([&](auto r) {
    typename S::V bk[N];
    unroll<N>([&](auto k) { bk[k] = b.template part<r>(k); });
    unroll<N>([&](auto i) {
      typename S::V c = S::mul(S::splat(ar[i][0]), bk[0]);
      unroll<N - 1>([&](auto k1) { c = S::add(c, S::mul(S::splat(ar[i][k1 + 1]), bk[k1 + 1])); });
      S::template store<RowBlock<double, N>::template width<r>>(d.row(i) + r * S::L, c);
    });
  });
}

// Op2 of one object: sizes 3 and 4 (and every non-contiguous op2) are read
// whole into registers before the first store; the larger contiguous rows
// are read in place as the products need them.
template <class T, int N, class O1, class O2, class OD>
inline void productObject(const O1& a, const O2& b, const OD& d) {
  if constexpr (N >= 5 && rowsContiguous<O2>) productRows<T, N>(a, RowsInPlace<T, N, O2>{b}, d);
  else productRows<T, N>(a, readRows<T, N>(b), d);
}

// Packed 3x3 Qel32f objects times one matrix: the array is one run of 3-element
// rows, each times op2, and four rows go at once as they lie (Quad3Matrix),
// with the same ((a0 b0j + a1 b1j) + a2 b2j) as one row alone. Runs while whole
// groups of four objects remain; returns the number of objects done.
template <class A, class B, class D>
inline int packedRowQuads(const A& a, const B& b, const D& d, int count) {
  if (a.s1 != 12 || a.s0 != 36 || d.s1 != 12 || d.s0 != 36 || !independentObjects(a, {3, 3}, d, {3, 3}, count))
    return 0;
  const Quad3Matrix c([&](int j, int k) { return b.at(k, j); });
  const float* p = a.base;
  float* q = d.base;
  const int groups = count / 4;
  // Four objects are twelve rows: three steps of four rows.
  for (int g = 0; g < groups * 3; ++g, p += 12, q += 12) {
    __m128 x[3], y[3];
    loadRun3(p, x);
    c.apply(x, y);
    storeRun3(q, y);
  }
  return groups * 4;
}

// Each object in order. A single operand is read once ahead of the loop and
// kept; all of op2 is read before the first store of an object. Flattened: the
// straight-line code only exists once every helper is inlined.
template <int N, class A, class B, class D>
[[gnu::flatten]] void smallProducts(A a, B b, D d, int count) {
  using T = ElemOf<D>;
  if constexpr (!A::isArray && !B::isArray) {
    productRows<T, N>(readScalars<T, N>(a.object(0)), readRows<T, N>(b.object(0)), d.object(0));
  } else if constexpr (!B::isArray) {
    const RowBlock<T, N> held = readRows<T, N>(b.object(0));
    int n = 0;
    if constexpr (N == 3 && std::is_same_v<T, float> && std::is_same_v<A, StridedArray<const float, true>> &&
                  std::is_same_v<D, StridedArray<float, true>>)
      n = packedRowQuads(a, readScalars<T, N>(b.object(0)), d, count);
    for (; n < count; ++n) productRows<T, N>(a.object(n), held, d.object(n));
  } else if constexpr (!A::isArray) {
    const ScalarBlock<T, N> held = readScalars<T, N>(a.object(0));
    for (int n = 0; n < count; ++n) productObject<T, N>(held, b.object(n), d.object(n));
  } else {
    // Large contiguous objects in separate arrays: rows in groups.
    if constexpr (N >= 5 && rowsContiguous<typename A::Object> && rowsContiguous<typename B::Object> &&
                  rowsContiguous<typename D::Object>) {
      if (disjointObjects(a, {N, N}, d, {N, N}, count) && disjointObjects(b, {N, N}, d, {N, N}, count)) {
        auto each = [&](auto rows) {
          for (int n = 0; n < count; ++n) {
            const auto an = rows(a.object(n));
            const auto bo = rows(b.object(n));
            const auto dn = rows(d.object(n));
            const RowPointers<T, N> bn{bo};
            if constexpr (std::is_same_v<T, double> && N % 2 == 0)
              productColumnPairs<N>(an, bn, dn);
            else
              productRowGroups<T, N>(an, bn, dn);
          }
        };
        // Packed rows: the row distance becomes a constant of the code, so the
        // rows of an object are fixed offsets from its base.
        constexpr int32_t packed = N * int32_t(sizeof(T));
        if constexpr (requires { a.s1, b.s1, d.s1; }) {
          if (a.s1 == packed && b.s1 == packed && d.s1 == packed) {
            each([](auto o) { o.s1 = packed; return o; });
            return;
          }
        }
        each([](auto o) { return o; });
        return;
      }
    }
    for (int n = 0; n < count; ++n) productObject<T, N>(a.object(n), b.object(n), d.object(n));
  }
}

template <class A, class B, class D>
void smallProducts(int n, A a, B b, D d, int count) {
  switch (n) {
    case 3: return smallProducts<3>(a, b, d, count);
    case 4: return smallProducts<4>(a, b, d, count);
    case 5: return smallProducts<5>(a, b, d, count);
    default: return smallProducts<6>(a, b, d, count);
  }
}

// ---------------------------------------------------------------- stage 2: the tile

// L consecutive terms of the inner extent, k0 .. k0 + L - 1: op1(i, k) or op2(k, j).
template <class T, class O>
inline typename Lanes<T>::V op1Run(const O& o, int i, int k0) {
  using S = Lanes<T>;
  if constexpr (rowsContiguous<O>) {
    return S::template load<S::L>(&o.at(i, k0));
  } else if constexpr (S::L == 4) {
    return S::gather(o.at(i, k0), o.at(i, k0 + 1), o.at(i, k0 + 2), o.at(i, k0 + 3));
  } else {
    return S::gather(o.at(i, k0), o.at(i, k0 + 1));
  }
}
template <class T, class O>
inline typename Lanes<T>::V op2Run(const O& o, int k0, int j) {
  using S = Lanes<T>;
  if constexpr (columnsContiguous<O>) {
    return S::template load<S::L>(&o.at(k0, j));
  } else if constexpr (S::L == 4) {
    return S::gather(o.at(k0, j), o.at(k0 + 1, j), o.at(k0 + 2, j), o.at(k0 + 3, j));
  } else {
    return S::gather(o.at(k0, j), o.at(k0 + 1, j));
  }
}

// The Rows x Cols inner products of rows i.. and columns j.., all formed before
// any is stored.
template <int Rows, int Cols, class T, class OA, class OB, class OD>
inline void tileBlock(const OA& a, const OB& b, const OD& d, int i, int j, int K) {
  using Acc = SplitAccumulator<T>;
  constexpr int Q = Acc::perBlock;
  constexpr int L = Lanes<T>::L;
  const int k8 = K & ~7;
  Acc acc[Rows][Cols];
  for (int k0 = 0; k0 < k8; k0 += 8) {
    typename Acc::V y[Cols][Q];
    unroll<Cols>([&](auto c) { unroll<Q>([&](auto q) { y[c][q] = op2Run<T>(b, k0 + q * L, j + c); }); });
    unroll<Rows>([&](auto r) {
      typename Acc::V x[Q];
      unroll<Q>([&](auto q) { x[q] = op1Run<T>(a, i + r, k0 + q * L); });
      unroll<Cols>([&](auto c) { acc[r][c].addBlock(x, y[c]); });
    });
  }
  T out[Rows][Cols];
  unroll<Rows>([&](auto r) { unroll<Cols>([&](auto c) { out[r][c] = k8 ? acc[r][c].reduce() : T(0); }); });
  for (int k = k8; k < K; ++k)
    unroll<Rows>([&](auto r) {
      unroll<Cols>([&](auto c) { out[r][c] = out[r][c] + T(a.at(i + r, k)) * T(b.at(k, j + c)); });
    });
  unroll<Rows>([&](auto r) { unroll<Cols>([&](auto c) { d.at(i + r, j + c) = out[r][c]; }); });
}

// Tiles of 4 rows by 2 columns, then the last column of those rows, then the
// 1, 2 or 3 remaining rows one column at a time.
template <class T, class OA, class OB, class OD>
[[gnu::flatten]] void tileProduct(const OA& a, const OB& b, const OD& d, int M, int N, int K) {
  const int m4 = M & ~3, n2 = N & ~1;
  for (int i = 0; i < m4; i += 4)
    for (int j = 0; j < n2; j += 2) tileBlock<4, 2, T>(a, b, d, i, j, K);
  if ((N & 1) && m4 >= 4)
    for (int i = 0; i < m4; i += 4) tileBlock<4, 1, T>(a, b, d, i, N - 1, K);
  switch (M - m4) {
    case 1: for (int j = 0; j < N; ++j) tileBlock<1, 1, T>(a, b, d, m4, j, K); break;
    case 2: for (int j = 0; j < N; ++j) tileBlock<2, 1, T>(a, b, d, m4, j, K); break;
    case 3: for (int j = 0; j < N; ++j) tileBlock<3, 1, T>(a, b, d, m4, j, K); break;
    default: break;
  }
}

// ---------------------------------------------------------------- stage 3: the loop

// dst(i, j) passes through every partial sum in memory.
template <class T, class OA, class OB, class OD>
void loopProduct(const OA& a, const OB& b, const OD& d, int M, int N, int K) {
  for (int i = 0; i < M; ++i)
    for (int j = 0; j < N; ++j) {
      T& out = d.at(i, j);
      out = T(0);
      for (int k = 0; k < K; ++k) out = out + T(a.at(i, k)) * T(b.at(k, j));
    }
}

// ---------------------------------------------------------------- kernels

// One serial kernel over `count` objects: the contiguous one when the views
// are in contiguous form, otherwise the general or _P one.
template <class A, class B, class D>
QelStatus mulKernel(const Line& line, const Dims& dm, A a, B b, D d, int count) {
  using T = ElemOf<D>;
  constexpr bool contiguous = D::Object::contiguous;
  const int n = contiguous               ? smallSizeOf(line.contiguousSizes, dm)
                : line.flags & kOrSelect ? smallSizeByOr(dm)
                                         : smallSizeOf(line.generalSizes, dm);
  if (n) {
    smallProducts(n, a, b, d, count);
    return qelStatusOk;
  }
  const bool tile = contiguous && !(line.flags & kNoTile);
  for (int o = 0; o < count; ++o) {
    if constexpr (contiguous) {
      if (tile) {
        tileProduct<T>(a.object(o), b.object(o), d.object(o), dm.M, dm.N, dm.K);
        continue;
      }
    }
    loopProduct<T>(a.object(o), b.object(o), d.object(o), dm.M, dm.N, dm.K);
  }
  return qelStatusOk;
}

// A _L general kernel that is a loop calling the single shape's general kernel
// (the same instantiation as qelmMul_mm and its kin) once per object.
template <class A, class B, class D>
QelStatus perObjectKernel(const Line& line, const Dims& dm, A a, B b, D d, int count) {
  using OA = typename A::Object;
  using OB = typename B::Object;
  using OD = typename D::Object;
  for (int o = 0; o < count; ++o)
    mulKernel(line, dm, Single<OA>{a.object(o)}, Single<OB>{b.object(o)}, Single<OD>{d.object(o)}, 1);
  return qelStatusOk;
}

// ---------------------------------------------------------------- front-end

// Serial below 2501 only for 32f standard contiguous kernels, 3601 for the other
// contiguous ones, 1441 for every general and _P kernel.
template <class T, Layout F>
constexpr int32_t contiguousLimit = F == Layout::P                                   ? 1441
                                    : std::is_same_v<T, float> && F == Layout::S ? 2501
                                                                                   : 3601;
constexpr int32_t generalLimit = 1441;

// Checks N C Z M S R; the work figure counts every element touched, a single
// operand once and an array operand `count` times.
template <class T, Layout F, bool PerObject, class A, class B, class D>
QelStatus mulFront(const Line& line, A a, B b, D d, const Dims& dm, int count) {
  CheckGroups g = checkViews(count, {dm.w1, dm.h1, dm.w2, dm.h2}, a, b, d);
  g.match = dm.K == dm.K2;
  if (QelStatus st = firstFailure("NCZMSR", g)) return st;

  auto job = makeJob(
      [line, dm](int share, void*, auto va, auto vb, auto vd) {
        if constexpr (PerObject && !decltype(vd)::Object::contiguous)
          return perObjectKernel(line, dm, va, vb, vd, share);
        else
          return mulKernel(line, dm, va, vb, vd, share);
      },
      a, b, d);
  if constexpr (!A::isArray && !B::isArray) {
    return runSerial(job, 1);
  } else {
    const Work e1 = Work(dm.w1) * dm.h1, e2 = Work(dm.w2) * dm.h2, ed = Work(dm.M) * dm.N;
    const Work w = A::isArray && B::isArray ? (e1 + e2 + ed) * count
                   : A::isArray             ? e2 + (e1 + ed) * count
                                            : e1 + (e2 + ed) * count;
    return runFirstKind(job, count, w, WorkLimit::serialBelow(contiguousLimit<T, F>),
                        WorkLimit::serialBelow(generalLimit));
  }
}

}  // namespace qel::mul
