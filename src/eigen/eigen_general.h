// General (non-symmetric) eigenproblems: the pieces shared by the values-only
// family and the families that also give eigenvectors.
//
// The working matrix H lives in the caller's buffer (or a thread's slice),
// copied row after row from the source and addressed column by column, so H is
// the transpose of the source. It is reduced to upper Hessenberg form by
// Householder reflectors and driven to quasi-triangular form by a Francis
// double-shift iteration. The iteration is written once, for two forms:
//   Keep = false  values only: an absolute split test, only the active block
//                 updated;
//   Keep = true   the Schur vectors Z kept: a relative split test, guarded
//                 shifts and start rows, the whole of H and Z updated, each
//                 standardised 2x2 block's rotation applied.
// S is the type in which shifts and start-row tests are computed: the element
// type, except in the one-set vector kernels of Qel64f, which use Qel32f.
#pragma once

#include "../frame/driver.h"
#include "../frame/views.h"
#include "qelm/qelmtypes.h"

#include <cmath>
#include <tuple>

namespace qel::eigen {

template <class T>
struct Limits;
template <>
struct Limits<Qel32f> {
  static constexpr Qel32f eps = 0x1p-23f;
  static constexpr Qel32f tiny = 0x1p-125f;   // bits 0x01000000
  static constexpr Qel32f floor = 0x1p-124f;  // bits 0x01800000
  static constexpr Qel32f eps4 = 0x1p-21f;
  static constexpr Qel32f smallUnit = 0x1p-102f;  // small = n * smallUnit
  static constexpr Qel32f bigUnit = 0.9999999f;   // big = bigUnit / small
  static constexpr Qel32f huge = 0x1p124f;        // 1 / floor
  // The single-precision rounding of the Qel64f epsilon: the shift tests of
  // the one-set Qel64f vector kernels are made in Qel32f with it.
  static constexpr Qel32f epsOf64 = static_cast<Qel32f>(0x1p-52);
};
template <>
struct Limits<Qel64f> {
  static constexpr Qel64f eps = 0x1p-52;
  static constexpr Qel64f tiny = 0x1p-1021;   // bits 0x0020000000000000
  static constexpr Qel64f floor = 0x1p-1020;  // bits 0x0030000000000000
  static constexpr Qel64f eps4 = 0x1p-50;
  static constexpr Qel64f smallUnit = 0x1p-969;
  static constexpr Qel64f bigUnit = 0.9999999999999998;
  static constexpr Qel64f huge = 0x1p1020;
};

// The epsilon of the shift arithmetic S for elements T.
template <class T, class S>
constexpr S shiftEps() {
  if constexpr (sizeof(S) < sizeof(T)) return Limits<Qel32f>::epsOf64;
  else return Limits<S>::eps;
}

// Square roots of Qel32f values are taken in Qel64f and rounded.
inline Qel32f rootOf(Qel32f x) { return static_cast<Qel32f>(std::sqrt(static_cast<double>(x))); }
inline Qel64f rootOf(Qel64f x) { return std::sqrt(x); }

// A matrix in the buffer, column after column, indices counted from 1.
template <class T>
struct Cols {
  T* p;
  int n;
  T& operator()(int i, int j) const { return p[(j - 1) * n + (i - 1)]; }
  T* col(int j) const { return p + (j - 1) * n; }
};

// Two-norm of (a, b) without overflow: the larger times the root of one plus
// the quotient of the squares; never below tiny.
template <class T>
T hyp(T a, T b) {
  using L = Limits<T>;
  const T x = std::fabs(a), y = std::fabs(b);
  T w = x < y ? y : x;
  const T z = x < y ? x : y;
  if (z >= L::tiny) w = w * rootOf(z * z / (w * w) + T(1));
  if (w < L::tiny) w = L::floor;
  return w;
}

template <class T>
struct Reflector {
  T beta, tau;
};

// Householder reflector of head alpha and tail x[0..len-1]: the tail is
// scaled in place into the reflector vector (head 1 implied).
template <class T>
Reflector<T> reflector(T alpha, T* x, int len) {
  using L = Limits<T>;
  if (len == 0) return {alpha, T(0)};
  T ss = T(0);
  for (int k = 0; k < len; ++k) ss = ss + x[k] * x[k];
  const T xnorm = rootOf(ss);
  if (xnorm < L::tiny) return {alpha, T(0)};
  const T w = hyp(alpha, xnorm);
  const T beta = alpha >= T(0) ? -w : w;
  const T tau = (beta - alpha) / beta;
  const T r = T(1) / (T(0) - (beta - alpha));
  for (int k = 0; k < len; ++k) x[k] = x[k] * r;
  return {beta, tau};
}

// Copies the source, row after row, into the buffer: H is its transpose.
template <class M, class T>
void loadTransposed(const M& src, Cols<T> h) {
  for (int r = 0; r < h.n; ++r)
    for (int c = 0; c < h.n; ++c) h.p[r * h.n + c] = src.at(r, c);
}

// Householder reduction to upper Hessenberg form. Reflector i keeps its vector
// below the subdiagonal of column i and its scalar in tau[i-1]; w is a work
// vector of n elements.
template <class T>
void hessenberg(Cols<T> H, T* tau, T* w) {
  using L = Limits<T>;
  const int n = H.n;
  for (int i = 1; i <= n - 1; ++i) {
    const int m = n - i;  // v(t) = H(i+t, i), t = 1..m
    const Reflector<T> r = reflector(H(i + 1, i), H.col(i) + i + 1, m - 1);
    tau[i - 1] = r.tau;
    H(i + 1, i) = T(1);
    if (std::fabs(r.tau) > L::tiny) {
      for (int j = 1; j <= n; ++j) {
        T s = T(0);
        for (int t = 1; t <= m; ++t) s = s + H(j, i + t) * H(i + t, i);
        w[j - 1] = s;
      }
      for (int t = 1; t <= m; ++t) {
        const T vt = H(i + t, i) * r.tau;
        for (int j = 1; j <= n; ++j) H(j, i + t) = H(j, i + t) - vt * w[j - 1];
      }
      for (int j = i + 1; j <= n; ++j) {
        T s = T(0);
        for (int t = 1; t <= m; ++t) s = s + H(i + t, j) * H(i + t, i);
        w[j - 1] = s;
      }
      for (int j = i + 1; j <= n; ++j) {
        const T tw = r.tau * w[j - 1];
        for (int t = 1; t <= m; ++t) H(i + t, j) = H(i + t, j) - tw * H(i + t, i);
      }
    }
    H(i + 1, i) = r.beta;
  }
}

template <class T>
void clearBelowSubdiagonal(Cols<T> H) {
  for (int j = 1; j <= H.n; ++j)
    for (int i = j + 2; i <= H.n; ++i) H(i, j) = T(0);
}

inline int signOf(double x) { return x < 0 ? -1 : 1; }

// A 2x2 diagonal block a b / c d brought to standard form, and the rotation
// (cs, sn) that does it.
template <class T>
struct Block {
  T a, b, c, d, cs, sn;
};

template <class T>
Block<T> standardise(T a, T b, T c, T d) {
  using L = Limits<T>;
  Block<T> k{a, b, c, d, T(1), T(0)};
  if (std::fabs(c) <= L::tiny) return k;
  if (std::fabs(b) <= L::tiny) return {d, -c, T(0), a, T(0), T(1)};
  if (std::fabs(a - d) <= L::tiny) return k;

  const T p = (a - d) * T(0.5);
  const T ab = std::fabs(b), ac = std::fabs(c);
  const T bcmax = ab < ac ? ac : ab;
  T bcmis = ab < ac ? ab : ac;
  if (signOf(b) != signOf(c)) bcmis = -bcmis;
  const T scale = bcmax < std::fabs(p) ? std::fabs(p) : bcmax;
  const T z = (p / scale) * p + (bcmax / scale) * bcmis;

  if (z >= L::eps4) {  // real eigenvalues: make the block triangular
    const T root = rootOf(scale) * rootOf(z);
    const T zz = p <= T(0) ? p - root : p + root;
    const T tau = hyp(c, zz);
    return {d + zz, b - c, T(0), d - bcmis * (bcmax / zz), zz / tau, c / tau};
  }

  // Complex or nearly equal eigenvalues: equalise the diagonal.
  const T sigma = b + c;
  const T tau = hyp(sigma, a - d);
  T cs = rootOf((std::fabs(sigma) / tau + T(1)) * T(0.5));
  T sn = (T(0) - p) / (tau * cs);
  if (sigma < T(0)) sn = -sn;
  const T aa = a * cs + b * sn, bb = b * cs - a * sn;
  const T cc = c * cs + d * sn, dd = d * cs - c * sn;
  k.b = bb * cs + dd * sn;
  k.c = cc * cs - aa * sn;
  k.a = k.d = ((dd + aa) * cs + (cc - bb) * sn) * T(0.5);
  k.cs = cs;
  k.sn = sn;
  if (std::fabs(k.b) <= L::tiny || std::fabs(k.c) <= L::tiny) {
    k.b = -k.c;
    k.c = T(0);
    k.cs = -sn;
    k.sn = cs;
  } else if (signOf(k.b) == signOf(k.c)) {
    // Real after all: p, the half difference of the input diagonal, is the
    // offset of the two values from their mean.
    const T q = k.c < T(0) ? -p : p;
    const T sab = rootOf(std::fabs(k.b)), sac = rootOf(std::fabs(k.c));
    const T r = T(1) / rootOf(std::fabs(k.b + k.c));
    k.cs = (cs * sab - sn * sac) * r;
    k.sn = (cs * sab + sn * sac) * r;
    k.b = k.b - k.c;
    k.c = T(0);
    k.a = k.a + q;
    k.d = k.d - q;
  }
  return k;
}

// x = cs x + sn y, y = cs y - sn x over two runs.
template <class T, class X, class Y>
void rotate(int from, int to, X x, Y y, T cs, T sn) {
  for (int i = from; i <= to; ++i) {
    const T u = x(i), v = y(i);
    x(i) = cs * u + sn * v;
    y(i) = cs * v - sn * u;
  }
}

// Francis double-shift QR on the Hessenberg H (and Z when kept), with one
// budget of 30 n iterations for the whole matrix. Eigenvalues go to re, im in
// the order of their place on the final diagonal.
template <class T, class S, bool Keep>
QelStatus francis(Cols<T> H, Cols<T> Z, T* re, T* im) {
  using L = Limits<T>;
  constexpr S tinyS = Limits<S>::tiny;
  constexpr S epsS = shiftEps<T, S>();
  const int n = H.n;
  const T small = T(n) * L::smallUnit;
  int budget = 30 * n;
  int hi = n;

  while (hi >= 1) {
    int lo = 1, its = 0;
    for (;;) {
      // The split: the lowest negligible subdiagonal element of the block.
      int k = hi;
      for (; k > lo; --k) {
        const T sub = std::fabs(H(k, k - 1));
        if constexpr (!Keep) {
          if (sub <= L::eps) break;
        } else {
          T tst = std::fabs(H(k - 1, k - 1)) + std::fabs(H(k, k));
          if (tst <= L::tiny) {
            tst = T(0);
            for (int j = lo; j <= hi; ++j) {
              T c = T(0);
              for (int i = lo; i <= (j + 1 < hi ? j + 1 : hi); ++i) c = c + std::fabs(H(i, j));
              if (c > tst) tst = c;
            }
          }
          const T bound = tst * L::eps;
          if (sub <= (bound < small ? small : bound)) break;
        }
      }
      lo = k;
      if (k > 1) H(k, k - 1) = T(0);
      if (lo >= hi - 1) break;

      // Shifts.
      S h33, h44, p;
      if (its == 10 || its == 20) {
        const S s = std::fabs(S(H(hi, hi - 1))) + std::fabs(S(H(hi - 1, hi - 2)));
        h44 = s * S(0.75) + S(H(hi, hi));
        h33 = h44;
        p = s * S(-0.4375) * s;
      } else {
        h33 = S(H(hi - 1, hi - 1));
        h44 = S(H(hi, hi));
        p = S(H(hi, hi - 1)) * S(H(hi - 1, hi));
        const S half = (h33 - h44) * S(0.5);
        const S disc = half * half + p;
        if constexpr (!Keep) {
          if (disc > S(0)) {
            S root = rootOf(disc);
            const S ave = (h44 + h33) * S(0.5);
            if (ave < S(0)) root = -root;
            S t = ave + root;
            if (std::fabs(h33) - std::fabs(h44) > S(0)) t = (h44 * h33 - p) / t;
            h33 = h44 = t;
            p = S(0);
          }
        } else {
          if (disc > tinyS) {
            const S root = rootOf(disc);
            const S ave = (h44 + h33) * S(0.5);
            S t = h33 >= -h44 ? ave + root : ave - root;
            if (std::fabs(h44) < std::fabs(h33) && std::fabs(t) > tinyS) t = (h44 * h33 - p) * (S(1) / t);
            h33 = h44 = t;
            p = S(0);
          }
        }
      }

      // Start row: the lowest m from which two small subdiagonal elements
      // let the bulge start.
      int m = hi - 2;
      S f1 = 0, f2 = 0, f3 = 0;
      for (;; --m) {
        const S h11 = S(H(m, m));
        const S r = h44 - h11, s = h33 - h11;
        const S sub = S(H(m + 1, m));
        bool stop = false;
        if constexpr (!Keep) {
          f1 = (r * s - p) / sub + S(H(m, m + 1));
        } else {
          // A vanishing subdiagonal ends the search here; its quotient is left out.
          stop = std::fabs(sub) <= tinyS;
          f1 = stop ? S(H(m, m + 1)) : (r * s - p) / sub + S(H(m, m + 1));
        }
        f2 = ((S(H(m + 1, m + 1)) - h11) - r) - s;
        f3 = S(H(m + 2, m + 1));
        const S sc = std::fabs(f1) + std::fabs(f2) + std::fabs(f3);
        if constexpr (!Keep) {
          f1 = f1 / sc;
          f2 = f2 / sc;
          f3 = f3 / sc;
        } else {
          const S rs = std::fabs(sc) <= tinyS ? sc : S(1) / sc;
          f1 = f1 * rs;
          f2 = f2 * rs;
          f3 = f3 * rs;
        }
        if (stop || m == lo) break;
        const S left = std::fabs(S(H(m, m - 1))) * (std::fabs(f2) + std::fabs(f3));
        const S right = std::fabs(f1) * epsS *
                        (std::fabs(S(H(m - 1, m - 1))) + std::fabs(h11) + std::fabs(S(H(m + 1, m + 1))));
        if (left <= right) break;
      }

      // The sweep: chase the bulge from m down to hi.
      const int rowEnd = Keep ? n : hi;
      const int colStart = Keep ? 1 : lo;
      for (int k2 = m; k2 <= hi - 1; ++k2) {
        const int nr = hi - k2 + 1 < 3 ? hi - k2 + 1 : 3;
        T head, tail[2];
        if (k2 > m) {
          head = H(k2, k2 - 1);
          tail[0] = H(k2 + 1, k2 - 1);
          tail[1] = nr == 3 ? H(k2 + 2, k2 - 1) : T(0);
        } else {
          head = T(f1);
          tail[0] = T(f2);
          tail[1] = T(f3);
        }
        const Reflector<T> r = reflector(head, tail, nr - 1);
        if (k2 > m) {
          H(k2, k2 - 1) = r.beta;
          H(k2 + 1, k2 - 1) = T(0);
          if (k2 < hi - 1) H(k2 + 2, k2 - 1) = T(0);
        } else if (m > lo) {
          H(k2, k2 - 1) = -H(k2, k2 - 1);
        }
        const T t1 = r.tau, v2 = tail[0], t2 = t1 * v2;
        if (nr == 3) {
          const T v3 = tail[1];
          for (int j = k2; j <= rowEnd; ++j) {
            const T sum = H(k2, j) + v2 * H(k2 + 1, j) + v3 * H(k2 + 2, j);
            H(k2, j) = H(k2, j) - t1 * sum;
            H(k2 + 1, j) = H(k2 + 1, j) - t2 * sum;
            H(k2 + 2, j) = H(k2 + 2, j) - sum * t1 * v3;
          }
          const int last = k2 + 3 < hi ? k2 + 3 : hi;
          for (int j = colStart; j <= last; ++j) {
            const T sum = H(j, k2) + v2 * H(j, k2 + 1) + v3 * H(j, k2 + 2);
            H(j, k2) = H(j, k2) - t1 * sum;
            H(j, k2 + 1) = H(j, k2 + 1) - t2 * sum;
            H(j, k2 + 2) = H(j, k2 + 2) - sum * t1 * v3;
          }
          if constexpr (Keep) {
            for (int j = 1; j <= n; ++j) {
              const T sum = Z(j, k2) + v2 * Z(j, k2 + 1) + v3 * Z(j, k2 + 2);
              Z(j, k2) = Z(j, k2) - t1 * sum;
              Z(j, k2 + 1) = Z(j, k2 + 1) - t2 * sum;
              Z(j, k2 + 2) = Z(j, k2 + 2) - sum * t1 * v3;
            }
          }
        } else {
          for (int j = k2; j <= rowEnd; ++j) {
            const T sum = H(k2, j) + v2 * H(k2 + 1, j);
            H(k2, j) = H(k2, j) - t1 * sum;
            H(k2 + 1, j) = H(k2 + 1, j) - t2 * sum;
          }
          for (int j = colStart; j <= hi; ++j) {
            const T sum = H(j, k2) + v2 * H(j, k2 + 1);
            H(j, k2) = H(j, k2) - t1 * sum;
            H(j, k2 + 1) = H(j, k2 + 1) - t2 * sum;
          }
          if constexpr (Keep) {
            for (int j = 1; j <= n; ++j) {
              const T sum = Z(j, k2) + v2 * Z(j, k2 + 1);
              Z(j, k2) = Z(j, k2) - t1 * sum;
              Z(j, k2 + 1) = Z(j, k2 + 1) - t2 * sum;
            }
          }
        }
      }
      if (++its == budget) return qelStatusNoConvergence;
    }

    // Deflation of one value or of a standardised 2x2 block.
    if (lo == hi) {
      re[hi - 1] = H(hi, hi);
      im[hi - 1] = T(0);
    } else {
      const Block<T> k = standardise(H(hi - 1, hi - 1), H(hi - 1, hi), H(hi, hi - 1), H(hi, hi));
      const T omega = std::fabs(k.c) > L::tiny ? rootOf(std::fabs(k.b)) * rootOf(std::fabs(k.c)) : T(0);
      H(hi - 1, hi - 1) = k.a;
      H(hi - 1, hi) = k.b;
      H(hi, hi - 1) = k.c;
      H(hi, hi) = k.d;
      re[hi - 2] = k.a;
      im[hi - 2] = omega;
      re[hi - 1] = k.d;
      im[hi - 1] = -omega;
      if constexpr (Keep) {
        if (!(k.cs == T(1) && k.sn == T(0))) {
          const int a = hi - 1, b = hi;
          rotate(hi + 1, n, [&](int j) -> T& { return H(a, j); }, [&](int j) -> T& { return H(b, j); }, k.cs, k.sn);
          rotate(1, hi - 2, [&](int i) -> T& { return H(i, a); }, [&](int i) -> T& { return H(i, b); }, k.cs, k.sn);
          rotate(1, n, [&](int i) -> T& { return Z(i, a); }, [&](int i) -> T& { return Z(i, b); }, k.cs, k.sn);
        }
      }
    }
    budget -= its;
    hi = lo - 1;
  }
  return qelStatusOk;
}

// Elements of scratch per object: the values family and the vectors families.
inline int32_t valuesElements(int32_t n) { return mul32(n, add32(n, 5)); }
inline int32_t vectorsElements(int32_t n) { return mul32(n, add32(mul32(3, n), 5)); }

// Eigenvalues of one matrix; buffer holds H, then tau, then the work vector.
template <class M, class T>
QelStatus valuesOfOne(const M& src, int n, T* buffer, T* re, T* im) {
  if (n == 1) {
    re[0] = src.at(0, 0);
    im[0] = T(0);
    return qelStatusOk;
  }
  const Cols<T> H{buffer, n};
  loadTransposed(src, H);
  hessenberg(H, buffer + n * n, buffer + n * n + n);
  if (n > 2) clearBelowSubdiagonal(H);
  return francis<T, T, false>(H, H, re, im);
}

// One call of a general eigen family as a job for the parallel driver: the
// source and destination views move with the share, the values arrays by
// `size` elements per object. The family has one kernel per description.
template <class T, class Kernel, class Src, class... Dst>
struct EigenJob {
  Kernel kernel;
  Src src;
  std::tuple<Dst...> dst;
  T* re;
  T* im;
  int n;

  bool contiguous() const { return false; }
  QelStatus run(bool, int first, int share, void* scratch) const {
    const int skip = mul32(first, n);
    return std::apply(
        [&](const auto&... d) {
          return kernel(share, static_cast<T*>(scratch), src.from(first), re + skip, im + skip, d.from(first)...);
        },
        dst);
  }
};

template <class T, class Kernel, class Src, class... Dst>
EigenJob<T, Kernel, Src, Dst...> eigenJob(Kernel k, int n, T* re, T* im, Src src, Dst... dst) {
  return {k, src, {dst...}, re, im, n};
}

// Serial or parallel: the driver's slices are the size the vectors query
// answers, whichever family asks.
template <class T, class Job>
QelStatus runEigen(const Job& job, int count, Work w, WorkLimit limit, T* buffer, int n) {
  const DriverTraits traits{.sharedStatus = true, .sliceBytes = mul32(vectorsElements(n), elemSize<T>)};
  return runSecondKind(job, count, w, limit, traits, buffer);
}

}  // namespace qel::eigen
