// Det: closed expansions at orders 3..6, elimination with true divisions in the
// caller's buffer at every other order. A singular matrix is a value, not a
// failure: every call that passes its checks answers qelStatusOk.
#include "../frame/export.h"
#include "../frame/operands.h"
#include "invert.h"

namespace {
using namespace qel;

// ---------------------------------------------------------------- closed forms

// Minors of rows 0 and 1 on columns i < j, then the 3x3 minors of rows 0..2
// expanded on row 2 (highest column first), and so on row by row. Each is
// formed once and shared; the orders of the sums are part of the result. Num
// is an element or a register of objects side by side (Packed).
template <int N, class Num>
struct Expansion {
  const Num (&a)[N][N];
  Num m2[N][N];  // m2[i][j], i < j
  Num m3[N][N][N];
  Num m4[N][N][N][N];

  Num minor3(int i, int j, int k) const {
    return (a[2][k] * m2[i][j] - a[2][j] * m2[i][k]) + a[2][i] * m2[j][k];
  }
  Num minor4(int i, int j, int k, int l) const {
    return ((a[3][l] * m3[i][j][k] - a[3][k] * m3[i][j][l]) + a[3][j] * m3[i][k][l]) - a[3][i] * m3[j][k][l];
  }
  explicit Expansion(const Num (&x)[N][N]) : a(x) {
    for (int i = 0; i < N; ++i)
      for (int j = i + 1; j < N; ++j) m2[i][j] = a[0][i] * a[1][j] - a[0][j] * a[1][i];
    if constexpr (N >= 5) {
      for (int i = 0; i < N; ++i)
        for (int j = i + 1; j < N; ++j)
          for (int k = j + 1; k < N; ++k) m3[i][j][k] = minor3(i, j, k);
    }
    if constexpr (N >= 6) {
      for (int i = 0; i < N; ++i)
        for (int j = i + 1; j < N; ++j)
          for (int k = j + 1; k < N; ++k)
            for (int l = k + 1; l < N; ++l) m4[i][j][k][l] = minor4(i, j, k, l);
    }
  }
};

// The last row's terms in the column order given; sign (-1)^(row + column).
template <int N, class Num, class Minor>
Num lastRow(const Num (&a)[N][N], const int (&order)[N], Minor minorWithout) {
  Num sum = Num(0);
  for (int q = 0; q < N; ++q) {
    const int c = order[q];
    const Num term = a[N - 1][c] * minorWithout(c);
    const bool minus = ((N - 1 + c) & 1) != 0;
    if (q == 0) sum = minus ? Num(0) - term : term;
    else sum = minus ? sum - term : sum + term;
  }
  return sum;
}

template <int N, class Num>
Num closedDet(const Num (&a)[N][N]) {
  const Expansion<N, Num> e(a);
  const auto& m = e.m2;
  if constexpr (N == 3) {
    return e.minor3(0, 1, 2);
  } else if constexpr (N == 4) {
    const Num u3 = ((a[2][2] * m[0][1] - a[2][1] * m[0][2]) + a[2][0] * m[1][2]) * a[3][3];
    const Num u2 = ((m[0][1] * a[2][3] - a[2][1] * m[0][3]) + a[2][0] * m[1][3]) * a[3][2];
    const Num u1 = ((m[0][2] * a[2][3] - a[2][2] * m[0][3]) + a[2][0] * m[2][3]) * a[3][1];
    const Num u0 = (Num(0) - a[3][0]) * ((m[1][2] * a[2][3] - m[1][3] * a[2][2]) + a[2][1] * m[2][3]);
    return ((u3 - u2) + u0) + u1;
  } else if constexpr (N == 5) {
    static constexpr int order[5] = {0, 3, 1, 2, 4};
    return lastRow<5>(a, order, [&](int c) {
      int k[4], n = 0;
      for (int j = 0; j < 5; ++j)
        if (j != c) k[n++] = j;
      return e.minor4(k[0], k[1], k[2], k[3]);
    });
  } else {
    // The six 5x5 minors of rows 0..4, expanded on row 4, highest column first.
    auto minor5 = [&](const int (&k)[5]) {
      Num sum = Num(0);
      for (int q = 4; q >= 0; --q) {
        int r[4], n = 0;
        for (int p = 0; p < 5; ++p)
          if (p != q) r[n++] = k[p];
        const Num term = a[4][k[q]] * e.m4[r[0]][r[1]][r[2]][r[3]];
        if (q == 4) sum = term;
        else sum = (q & 1) ? sum - term : sum + term;  // (-1)^(4 + q)
      }
      return sum;
    };
    static constexpr int order[6] = {0, 4, 1, 2, 3, 5};
    return lastRow<6>(a, order, [&](int c) {
      int k[5], n = 0;
      for (int j = 0; j < 6; ++j)
        if (j != c) k[n++] = j;
      return minor5(k);
    });
  }
}

// An array at a closed order: L objects at a time in lanes when the objects
// are a standard array, the rest one by one.
template <int N, class S, class R>
[[gnu::flatten]] void closedDetLanes(const S& src, const R& dst, int count) {
  using T = ElemT<typename R::Object>;
  constexpr int G = Lanes<T>::L;
  int n = 0;
  if (disjointObjects(src, {N, N}, dst, {1, 1}, count)) {
    for (; n + G <= count; n += G) {
      Packed<T> a[N][N];
      loadLanes<N>(src, n, a);
      alignas(16) T d[G];
      Lanes<T>::storeAligned(d, closedDet<N>(a).v);
      for (int g = 0; g < G; ++g) dst.object(n + g).at(0, 0) = d[g];
    }
  }
  for (; n < count; ++n) {
    const auto s = src.object(n);
    T a[N][N];
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) a[i][j] = s.at(i, j);
    dst.object(n).at(0, 0) = closedDet<N>(a);
  }
}

template <int N, class S, class R>
void closedDetObjects(const S& src, const R& dst, int count) {
  if constexpr (N <= 4)
    withPackedDistances<N, N>([&](const auto& s) { closedDetLanes<N>(s, dst, count); }, src);
  else
    closedDetLanes<N>(src, dst, count);
}

// ---------------------------------------------------------------- general form

// Elimination in `buffer` (an n x n work area, then n Qel32s row indices),
// the product of the pivots running in the result itself. A pivot below t:
// the single-matrix form answers an exact 0 at once (Exact0); the array
// forms clear the sign and go on to the last diagonal.
template <bool Exact0, class S, class T>
void detGeneral(const S& s, void* buffer, T& result, int n) {
  T* w = static_cast<T*>(buffer);
  Qel32s* index = reinterpret_cast<Qel32s*>(w + mul32(n, n));
  auto at = [&](int i, int j) -> T& { return w[mul32(index[i], n) + j]; };
  loadWork(s, w, index, n);
  result = T(1);
  T sign = T(1);
  const T t = cubeUnits<T>(n) * kMinNormal<T>;
  for (int k = 0; k < n - 1; ++k) {
    pivotRow(at, index, k, n, sign);
    const T p = at(k, k);
    if (t > std::fabs(p)) {
      if constexpr (Exact0) {
        result = T(0);
        return;
      }
      sign = T(0);
      break;
    }
    for (int i = k + 1; i < n; ++i) {
      const T m = at(i, k) / p;
      for (int j = k + 1; j < n; ++j) at(i, j) = at(i, j) - at(k, j) * m;
    }
    result = result * p;
  }
  const T last = at(n - 1, n - 1);
  if (std::fabs(last) > t) result = result * (sign * last);
  else result = T(0);
}

template <bool Exact0, class S, class R>
QelStatus detObjects(S src, R dst, void* buffer, int size, int count) {
  switch (size) {
    case 3: closedDetObjects<3>(src, dst, count); break;
    case 4: closedDetObjects<4>(src, dst, count); break;
    case 5: closedDetObjects<5>(src, dst, count); break;
    case 6: closedDetObjects<6>(src, dst, count); break;
    default:
      for (int n = 0; n < count; ++n) detGeneral<Exact0>(src.object(n), buffer, dst.object(n).at(0, 0), size);
  }
  return qelStatusOk;
}

// One front-end for the ten exports: checks in `order` (the buffer among the
// pointers), then for arrays size * count at or below 14400 serial, above it
// the driver with a buffer slice per thread.
template <class S, class T>
QelStatus detFront(const char* order, S src, int size, T* buffer, T* dst, int count) {
  const auto results = qel::results(dst);
  CheckGroups g = checkViews(count, {size}, src, results);
  g.pointers = g.pointers && buffer != nullptr;
  if (QelStatus st = firstFailure(order, g)) return st;
  constexpr bool single = !S::isArray;
  auto job = makeJob(
      [size](int share, void* scratch, auto s, auto r) {
        return detObjects<single>(s, r, scratch, size, share);
      },
      src, results);
  if constexpr (single) {
    return runSerial(job, 1, buffer);
  } else {
    const DriverTraits traits{.sharedStatus = false,
                              .sliceBytes = mul32(add32(mul32(size, size), size), int32_t(sizeof(T)))};
    const WorkLimit limit = WorkLimit::serialAtMost(14400);
    return runFirstKind(job, count, Work(size) * count, limit, limit, traits, buffer);
  }
}

}  // namespace

#define QEL_DET(T, F)                                                                              \
  QELM_API QelStatus qelmDet_m_##F(const T* src, int srcStride1, int srcStride2, int size,         \
                                   T* buffer, T* dst) {                                            \
    return detFront("NZS", single(src, srcStride1, srcStride2), size, buffer, dst, 1);             \
  }                                                                                                \
  QELM_API QelStatus qelmDet_m_##F##_P(const T* const* src, int srcRoiShift, int size, T* buffer,  \
                                       T* dst) {                                                   \
    return detFront("NZR", singleP(src, srcRoiShift, size), size, buffer, dst, 1);                 \
  }                                                                                                \
  QELM_API QelStatus qelmDet_ma_##F(const T* src, int srcStride0, int srcStride1, int srcStride2,  \
                                    int size, T* buffer, T* dst, int count) {                      \
    return detFront("NCZS", arrayS(src, srcStride0, srcStride1, srcStride2), size, buffer, dst,    \
                    count);                                                                        \
  }                                                                                                \
  QELM_API QelStatus qelmDet_ma_##F##_L(const T* const* src, int srcRoiShift, int srcStride1,      \
                                        int srcStride2, int size, T* buffer, T* dst, int count) {  \
    return detFront("NCZSR", arrayL(src, srcRoiShift, srcStride1, srcStride2), size, buffer, dst,  \
                    count);                                                                        \
  }                                                                                                \
  QELM_API QelStatus qelmDet_ma_##F##_P(const T* const* src, int srcRoiShift, int srcStride0,      \
                                        int size, T* buffer, T* dst, int count) {                  \
    return detFront("NCZSR", arrayP(src, srcRoiShift, srcStride0, size), size, buffer, dst,        \
                    count);                                                                        \
  }

QEL_DET(Qel32f, 32f)
QEL_DET(Qel64f, 64f)
