// General eigenvectors: the reduction and iteration of eigen_general.h with the
// transformations kept, then back substitution on the quasi-triangular Schur
// form T, multiplication by the Schur vectors Z and normalisation.
//
// Everything works on H, the transpose of the source: the right set solves
// H x = lambda x (so the source's own left vectors), the left set
// y^H H = lambda y^H (the source's right vectors).
//
// Scratch per object, in elements (n = size):
//   one set:  H | Z | work (tau, column sums, right-hand sides) ...
//   both:     H | Z | copy of Z for the left set | work ...
#pragma once

#include "eigen_general.h"

namespace qel::eigen {

enum class Sets { Right, Left, Both };

// A stop that leaves the whole array at once while the call reports success:
// a real 2x2 system whose every entry is below smin.
constexpr QelStatus kStopQuietly = 1;

// Accumulates the reflectors of the reduction into Z = P1 P2 ... Pn-1, from
// the last to the first; reflector i has head 1 at row i+1 and its tail below.
template <class T>
void formSchurVectors(Cols<T> H, Cols<T> Z, const T* tau) {
  const int n = H.n;
  for (int j = 1; j <= n; ++j)
    for (int i = 1; i <= n; ++i) Z(i, j) = i == j ? T(1) : T(0);
  for (int i = n - 1; i >= 1; --i) {
    const T t = tau[i - 1];
    if (std::fabs(t) <= Limits<T>::tiny) continue;
    const int m = n - i;
    auto v = [&](int k) { return k == 1 ? T(1) : H(i + k, i); };
    for (int j = i + 1; j <= n; ++j) {
      T s = T(0);
      for (int k = 1; k <= m; ++k) s = s + Z(i + k, j) * v(k);
      const T tw = t * s;
      for (int k = 1; k <= m; ++k) Z(i + k, j) = Z(i + k, j) - tw * v(k);
    }
  }
}

// (a + ib) / (c + id), the smaller part of the divisor over the larger.
template <class T>
void complexDivide(T a, T b, T c, T d, T& p, T& q) {
  if (std::fabs(d) < std::fabs(c)) {
    const T e = d / c, f = c + d * e;
    p = (a + b * e) / f;
    q = (b - a * e) / f;
  } else {
    const T e = c / d, f = d + c * e;
    p = (b + a * e) / f;
    q = (-a + b * e) / f;
  }
}

// The vectors being solved for: real parts xr, imaginary parts xi, entries
// 1..n; `lo`..`hi` is the run that a scale applies to.
template <class T>
struct Rhs {
  T* xr;
  T* xi;
  int lo, hi;
  bool complex;

  T& re(int k) const { return xr[k - 1]; }
  T& im(int k) const { return xi[k - 1]; }
  void scale(T s) const {
    if (!(std::fabs(s - T(1)) > Limits<T>::tiny)) return;
    for (int k = lo; k <= hi; ++k) xr[k - 1] = xr[k - 1] * s;
    if (complex)
      for (int k = lo; k <= hi; ++k) xi[k - 1] = xi[k - 1] * s;
  }
  T modulus(int k) const { return complex ? std::fabs(re(k)) + std::fabs(im(k)) : std::fabs(re(k)); }
};

// (T(k,k) - (wr + i wi)) x(k) = rhs(k), the divisor kept at least smin, with
// the two overflow guards.
template <class T>
void solveOne(T tkk, T wr, T wi, T smin, T cnormK, T big, const Rhs<T>& x, int k) {
  using L = Limits<T>;
  T dr = tkk - wr, di = x.complex ? -wi : T(0);
  T mod = std::fabs(dr) + std::fabs(di);
  if (mod < smin) {
    dr = smin;
    di = T(0);
    mod = smin;
  }
  const T bn = x.modulus(k);
  if (mod < T(1) && bn > T(1) && bn > mod * L::huge) x.scale(T(1) / bn);
  if (x.complex) {
    T p, q;
    complexDivide(x.re(k), x.im(k), dr, di, p, q);
    x.re(k) = p;
    x.im(k) = q;
  } else {
    x.re(k) = x.re(k) / dr;
  }
  const T xa = x.modulus(k);
  if (xa > T(1) && cnormK > big / xa) x.scale(T(1) / xa);
}

// A 2x2 block of T minus (wr + i wi), or its transpose, solved by elimination
// with complete pivoting; pivots and exchanges come from tables over the four
// positions (column order 11, 21, 12, 22). Answers false, without solving,
// when every entry is below smin. `scale` (at most 1) is what the right-hand
// side was multiplied by.
template <class T>
bool solveTwo(bool trans, T smin, T a11, T a12, T a21, T a22, T wr, T wi, bool complex, const T br[2],
              const T bi[2], T xr[2], T xi[2], T& scale, T& xnorm) {
  static constexpr int pivot[4][4] = {{0, 1, 2, 3}, {1, 0, 3, 2}, {2, 3, 0, 1}, {3, 2, 1, 0}};
  static constexpr bool rswap[4] = {false, true, false, true};
  static constexpr bool zswap[4] = {false, false, true, true};
  const T big = Limits<T>::huge;
  T cr[4] = {a11 - wr, trans ? a12 : a21, trans ? a21 : a12, a22 - wr};
  const T ci[4] = {-wi, T(0), T(0), -wi};
  scale = T(1);

  T cmax = T(0);
  int ic = 0;
  for (int j = 0; j < 4; ++j) {
    const T m = complex ? std::fabs(cr[j]) + std::fabs(ci[j]) : std::fabs(cr[j]);
    if (m > cmax) {
      cmax = m;
      ic = j;
    }
  }
  if (cmax < smin) return false;

  if (!complex) {
    const T ur11 = cr[ic], c21 = cr[pivot[ic][1]], ur12 = cr[pivot[ic][2]], c22 = cr[pivot[ic][3]];
    const T ur11r = T(1) / ur11;
    const T lr21 = ur11r * c21;
    T ur22 = c22 - ur12 * lr21;
    if (std::fabs(ur22) < smin) ur22 = smin;
    T b1 = rswap[ic] ? br[1] : br[0], b2 = rswap[ic] ? br[0] : br[1];
    b2 = b2 - lr21 * b1;
    const T u = std::fabs(b1 * (ur22 * ur11r)), v = std::fabs(b2);
    const T bbnd = u < v ? v : u;
    if (bbnd > T(1) && std::fabs(ur22) < T(1) && bbnd >= big * std::fabs(ur22)) scale = T(1) / bbnd;
    const T x2 = (b2 * scale) / ur22;
    const T x1 = (scale * b1) * ur11r - x2 * (ur11r * ur12);
    xr[0] = zswap[ic] ? x2 : x1;
    xr[1] = zswap[ic] ? x1 : x2;
    xi[0] = xi[1] = T(0);
    xnorm = std::fabs(x1) < std::fabs(x2) ? std::fabs(x2) : std::fabs(x1);
  } else {
    const T ur11 = cr[ic], ui11 = ci[ic];
    const T c21 = cr[pivot[ic][1]], ci21 = ci[pivot[ic][1]];
    const T ur12 = cr[pivot[ic][2]], ui12 = ci[pivot[ic][2]];
    const T c22 = cr[pivot[ic][3]], ci22 = ci[pivot[ic][3]];
    T ur11r, ui11r, lr21, li21, ur12s, ui12s, ur22, ui22;
    if (ic == 0 || ic == 3) {  // the pivot carries -wi: a complex reciprocal
      if (std::fabs(ur11) > std::fabs(ui11)) {
        const T t = ui11 / ur11;
        ur11r = T(1) / (ur11 * (T(1) + t * t));
        ui11r = -t * ur11r;
      } else {
        const T t = ur11 / ui11;
        ui11r = -T(1) / (ui11 * (T(1) + t * t));
        ur11r = -t * ui11r;
      }
      lr21 = c21 * ur11r;
      li21 = c21 * ui11r;
      ur12s = ur12 * ur11r;
      ui12s = ur12 * ui11r;
      ur22 = c22 - ur12 * lr21;
      ui22 = ci22 - ur12 * li21;
    } else {  // a real pivot: the plain reciprocal
      ur11r = T(1) / ur11;
      ui11r = T(0);
      lr21 = c21 * ur11r;
      li21 = ci21 * ur11r;
      ur12s = ur12 * ur11r;
      ui12s = ui12 * ur11r;
      ur22 = c22 - ur12 * lr21 + ui12 * li21;
      ui22 = -ur12 * li21 - ui12 * lr21;
    }
    T u22 = std::fabs(ur22) + std::fabs(ui22);
    if (u22 < smin) {
      ur22 = smin;
      ui22 = T(0);
      u22 = smin;
    }
    T b1r = rswap[ic] ? br[1] : br[0], b2r = rswap[ic] ? br[0] : br[1];
    T b1i = rswap[ic] ? bi[1] : bi[0], b2i = rswap[ic] ? bi[0] : bi[1];
    b2r = b2r - lr21 * b1r + li21 * b1i;
    b2i = b2i - li21 * b1r - lr21 * b1i;
    const T u = (std::fabs(b1r) + std::fabs(b1i)) * (u22 * (std::fabs(ur11r) + std::fabs(ui11r)));
    const T v = std::fabs(b2r) + std::fabs(b2i);
    const T bbnd = u < v ? v : u;
    if (bbnd > T(1) && u22 < T(1) && bbnd >= big * u22) {
      scale = T(1) / bbnd;
      b1r = scale * b1r;
      b1i = scale * b1i;
      b2r = scale * b2r;
      b2i = scale * b2i;
    }
    T x2r, x2i;
    complexDivide(b2r, b2i, ur22, ui22, x2r, x2i);
    const T x1r = ur11r * b1r - ui11r * b1i - ur12s * x2r + ui12s * x2i;
    const T x1i = ui11r * b1r + ur11r * b1i - ui12s * x2r - ur12s * x2i;
    xr[0] = zswap[ic] ? x2r : x1r;
    xr[1] = zswap[ic] ? x1r : x2r;
    xi[0] = zswap[ic] ? x2i : x1i;
    xi[1] = zswap[ic] ? x1i : x2i;
    const T n1 = std::fabs(x1r) + std::fabs(x1i), n2 = std::fabs(x2r) + std::fabs(x2i);
    xnorm = n1 < n2 ? n2 : n1;
  }
  if (xnorm > T(1) && cmax > T(1) && xnorm > big / cmax) {
    const T t = cmax / big;
    xr[0] = t * xr[0];
    xr[1] = t * xr[1];
    xi[0] = t * xi[0];
    xi[1] = t * xi[1];
    xnorm = t * xnorm;
    scale = t * scale;
  }
  return true;
}

template <class T>
T larger(T a, T b) {
  return a < b ? b : a;
}

// Back substitution of one set on T, and multiplication into Z. `cnorm`
// holds the column sums of T above the diagonal; xr, xi n elements each.
template <class T, bool Right>
QelStatus solveSet(Cols<T> t, Cols<T> z, const T* cnorm, T* xr, T* xi) {
  using L = Limits<T>;
  const int n = t.n;
  const T small = T(n) * L::smallUnit;
  const T big = L::bigUnit / small;
  auto pairBelow = [&](int j) { return j < n && std::fabs(t(j + 1, j)) > L::tiny; };
  auto pairAbove = [&](int j) { return j > 1 && std::fabs(t(j, j - 1)) > L::tiny; };

  int ki = Right ? n : 1;
  while (Right ? ki >= 1 : ki <= n) {
    const bool pair = Right ? pairAbove(ki) : pairBelow(ki);
    // Positions of the value: p1 (real part, or the real vector) and p2.
    const int p1 = pair && Right ? ki - 1 : ki, p2 = pair ? p1 + 1 : p1;
    const T wr = t(ki, ki);
    const T wi = pair ? rootOf(std::fabs(t(p1, p2))) * rootOf(std::fabs(t(p2, p1))) : T(0);
    const T smin = larger((std::fabs(wr) + std::fabs(wi)) * L::eps, small);
    const T sminD = larger(smin, L::floor);
    // The left set solves with the conjugate value.
    const T wis = Right ? wi : -wi;
    const Rhs<T> x{xr, xi, Right ? 1 : p1, Right ? p2 : n, pair};

    // Right-hand side.
    if (!pair) {
      x.re(ki) = T(1);
      if (Right)
        for (int k = 1; k < ki; ++k) x.re(k) = -t(k, ki);
      else
        for (int k = ki + 1; k <= n; ++k) x.re(k) = -t(ki, k);
    } else if (Right) {
      if (std::fabs(t(p1, p2)) <= std::fabs(t(p2, p1))) {
        x.re(p1) = -wi / t(p2, p1);
        x.im(p2) = T(1);
      } else {
        x.re(p1) = T(1);
        x.im(p2) = wi / t(p1, p2);
      }
      x.re(p2) = T(0);
      x.im(p1) = T(0);
      for (int k = 1; k < p1; ++k) {
        x.re(k) = -x.re(p1) * t(k, p1);
        x.im(k) = -x.im(p2) * t(k, p2);
      }
    } else {
      if (std::fabs(t(p1, p2)) < std::fabs(t(p2, p1))) {
        x.re(p1) = T(1);
        x.im(p2) = -wi / t(p2, p1);
      } else {
        x.re(p1) = wi / t(p1, p2);
        x.im(p2) = T(1);
      }
      x.re(p2) = T(0);
      x.im(p1) = T(0);
      for (int k = p2 + 1; k <= n; ++k) {
        x.re(k) = -x.re(p1) * t(p1, k);
        x.im(k) = -x.im(p2) * t(p2, k);
      }
    }

    // Block by block: upward from p1-1 (right), downward from p2+1 (left).
    T vmax = T(1), vcrit = big;
    int j = Right ? p1 - 1 : p2 + 1;
    while (Right ? j >= 1 : j <= n) {
      const bool two = Right ? pairAbove(j) : pairBelow(j);
      const int b1 = two && Right ? j - 1 : j, b2 = two ? b1 + 1 : b1;
      if (!Right) {
        const T cn = two ? larger(cnorm[b1 - 1], cnorm[b2 - 1]) : cnorm[b1 - 1];
        if (cn > vcrit) {
          x.scale(T(1) / vmax);
          vmax = T(1);
          vcrit = big;
        }
        for (int c = b1; c <= b2; ++c) {
          T sr = T(0), si = T(0);
          for (int i = p2 + 1; i < b1; ++i) {
            sr = sr + t(i, c) * x.re(i);
            if (pair) si = si + t(i, c) * x.im(i);
          }
          x.re(c) = x.re(c) - sr;
          if (pair) x.im(c) = x.im(c) - si;
        }
      }
      if (!two) {
        solveOne(t(j, j), wr, wis, sminD, cnorm[j - 1], big, x, j);
      } else {
        const T br[2] = {x.re(b1), x.re(b2)};
        const T bi[2] = {pair ? x.im(b1) : T(0), pair ? x.im(b2) : T(0)};
        T sr[2], si[2], scale, xnorm;
        if (!solveTwo(!Right, sminD, t(b1, b1), t(b1, b2), t(b2, b1), t(b2, b2), wr, wis, pair, br, bi, sr, si,
                      scale, xnorm))
          return pair ? qelStatusError : kStopQuietly;
        if (xnorm > T(1)) {
          const T beta = larger(cnorm[b1 - 1], cnorm[b2 - 1]);
          if (beta > big / xnorm) {
            for (int c = 0; c < 2; ++c) {
              sr[c] = sr[c] / xnorm;
              si[c] = si[c] / xnorm;
            }
            scale = scale / xnorm;
          }
        }
        x.scale(scale);
        x.re(b1) = sr[0];
        x.re(b2) = sr[1];
        if (pair) {
          x.im(b1) = si[0];
          x.im(b2) = si[1];
        }
      }
      if (Right) {
        for (int c = b1; c <= b2; ++c)
          for (int i = 1; i < b1; ++i) {
            x.re(i) = x.re(i) - x.re(c) * t(i, c);
            if (pair) x.im(i) = x.im(i) - x.im(c) * t(i, c);
          }
      } else {
        for (int c = b1; c <= b2; ++c) {
          vmax = larger(vmax, std::fabs(x.re(c)));
          if (pair) vmax = larger(vmax, std::fabs(x.im(c)));
        }
        vcrit = big / vmax;
      }
      j = Right ? b1 - 1 : b2 + 1;
    }

    // Multiply back: the vector of T into a combination of the Schur vectors
    // not yet overwritten (those before it for the right set, after for the left).
    const int from = Right ? 1 : p2 + 1, to = Right ? p1 - 1 : n;
    auto back = [&](int col, int diag, bool imag) {
      const T xd = imag ? x.im(diag) : x.re(diag);
      for (int i = 1; i <= n; ++i) {
        T acc = z(i, col) * xd;
        for (int k = from; k <= to; ++k) acc = acc + z(i, k) * (imag ? x.im(k) : x.re(k));
        z(i, col) = acc;
      }
    };
    back(p1, p1, false);
    if (pair) back(p2, p2, true);

    if (pair) {
      T emax = T(0);
      for (int i = 1; i <= n; ++i) emax = larger(emax, std::fabs(z(i, p1)) + std::fabs(z(i, p2)));
      if (Right && std::fabs(emax) <= L::eps) return qelStatusNoConvergence;
      if (Right || emax > L::tiny) {
        const T r = T(1) / emax;
        for (int i = 1; i <= n; ++i) {
          z(i, p1) = z(i, p1) * r;
          z(i, p2) = z(i, p2) * r;
        }
      }
    } else if (!Right) {
      T emax = T(0);
      for (int i = 1; i <= n; ++i) emax = larger(emax, std::fabs(z(i, p1)));
      if (emax > L::tiny) {
        const T r = T(1) / emax;
        for (int i = 1; i <= n; ++i) z(i, p1) = z(i, p1) * r;
      }
    }
    ki = Right ? p1 - 1 : p2 + 1;
  }
  return qelStatusOk;
}

// Unit Euclidean length for every vector; a complex pair is also turned so
// that its largest element is (nearly) real.
template <class T>
void normalise(Cols<T> z, const T* im) {
  using L = Limits<T>;
  const int n = z.n;
  for (int j = 1; j <= n;) {
    if (std::fabs(im[j - 1]) < L::tiny || j == n) {
      T ss = T(0);
      for (int i = 1; i <= n; ++i) ss = ss + z(i, j) * z(i, j);
      if (ss > L::tiny) {
        const T r = T(1) / rootOf(ss);
        for (int i = 1; i <= n; ++i) z(i, j) = z(i, j) * r;
      }
      ++j;
      continue;
    }
    T sr = T(0), si = T(0);
    for (int i = 1; i <= n; ++i) sr = sr + z(i, j) * z(i, j);
    for (int i = 1; i <= n; ++i) si = si + z(i, j + 1) * z(i, j + 1);
    const T r = T(1) / rootOf(sr + si);
    int k = 1;
    T best = T(-1);
    for (int i = 1; i <= n; ++i) {
      z(i, j) = z(i, j) * r;
      z(i, j + 1) = z(i, j + 1) * r;
      const T m = z(i, j) * z(i, j) + z(i, j + 1) * z(i, j + 1);
      if (m > best) {
        best = m;
        k = i;
      }
    }
    const T rr = rootOf(z(k, j) * z(k, j) + z(k, j + 1) * z(k, j + 1));
    T cs = z(k, j) / rr, sn = z(k, j + 1) / rr;
    if (cs < T(0) && std::fabs(cs) > std::fabs(sn)) {
      cs = -cs;
      sn = -sn;
    }
    for (int i = 1; i <= n; ++i) {
      const T a = z(i, j), b = z(i, j + 1);
      z(i, j + 1) = cs * b - sn * a;
      z(i, j) = a * cs + b * sn;
    }
    j += 2;
  }
}

template <class D, class T>
void storeVectors(const D& dst, Cols<T> z) {
  for (int j = 0; j < z.n; ++j)
    for (int i = 0; i < z.n; ++i) dst.at(i, j) = z.p[j * z.n + i];
}

// Eigenvalues and the chosen sets of one matrix. S is the type of the shift
// arithmetic. Answers a status, or kStopQuietly.
template <Sets Set, class S, class M, class T, class... D>
QelStatus vectorsOfOne(const M& src, int n, T* buffer, T* re, T* im, const D&... dst) {
  if (n == 1) {
    re[0] = src.at(0, 0);
    im[0] = T(0);
    ((dst.at(0, 0) = T(1)), ...);
    return qelStatusOk;
  }
  const int nn = n * n;
  const Cols<T> H{buffer, n}, Z{buffer + nn, n}, Zl{buffer + 2 * nn, n};
  T* work = buffer + (Set == Sets::Both ? 3 : 2) * nn;
  loadTransposed(src, H);
  hessenberg(H, work, work + n);
  formSchurVectors(H, Z, work);
  clearBelowSubdiagonal(H);
  if (QelStatus st = francis<T, S, true>(H, Z, re, im)) return st;

  T* cnorm = work;
  cnorm[0] = T(0);
  for (int j = 2; j <= n; ++j) {
    T s = T(0);
    for (int i = 1; i < j; ++i) s = s + std::fabs(H(i, j));
    cnorm[j - 1] = s;
  }
  T* xr = work + n;
  T* xi = work + 2 * n;
  if constexpr (Set == Sets::Both) {
    for (int k = 0; k < nn; ++k) Zl.p[k] = Z.p[k];
    if (QelStatus st = solveSet<T, true>(H, Z, cnorm, xr, xi)) return st;
    if (QelStatus st = solveSet<T, false>(H, Zl, cnorm, xr, xi)) return st;
    normalise(Z, im);
    normalise(Zl, im);
    const Cols<T> sets[2] = {Z, Zl};
    int s = 0;
    (storeVectors(dst, sets[s++]), ...);
  } else {
    if (QelStatus st = solveSet<T, Set == Sets::Right>(H, Z, cnorm, xr, xi)) return st;
    normalise(Z, im);
    (storeVectors(dst, Z), ...);
  }
  return qelStatusOk;
}

}  // namespace qel::eigen
