// Inverses and determinants on one thread: qelm's array calls against Eigen's
// fixed-size inverse() and determinant() per matrix, a textbook loop (Gauss-
// Jordan with partial pivoting, elimination for the determinant), GLM's SIMD
// inverse at 4x4 in single precision, and LAPACKE getrf/getri (getrf and the
// diagonal product for the determinant). Items are matrices.
#include <benchmark/benchmark.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <Eigen/Dense>
#include <cmath>
#include <cstring>
#include <random>
#include <type_traits>
#include <utility>
#include <vector>

#if __has_include(<glm/glm.hpp>)
#define GLM_FORCE_INTRINSICS
#define GLM_FORCE_SSE41
#define GLM_FORCE_DEFAULT_ALIGNED_GENTYPES
#include <glm/glm.hpp>
#include <glm/gtc/type_aligned.hpp>
#define QELM_BENCH_HAVE_GLM 1
#endif

#ifdef QELM_BENCH_HAVE_LAPACKE
#include <lapacke.h>
extern "C" void openblas_set_num_threads(int);
#endif

namespace {

template <class T>
struct Matrices {
  int n, count;
  std::vector<T> a, x, det, buffer;
  Matrices(int n_, int count_)
      : n(n_), count(count_), a(size_t(n_) * n_ * count_), x(a.size()), det(count_), buffer(n_ * n_ + n_) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (size_t k = 0; k < a.size(); ++k) a[k] = T(u(rng));
    for (int k = 0; k < count; ++k)
      for (int i = 0; i < n; ++i) a[size_t(k) * n * n + i * n + i] += T(2);
  }
  T* at(std::vector<T>& v, int k) { return &v[size_t(k) * n * n]; }
};

template <class Body>
void timed(benchmark::State& state, int count, Body body) {
  for (auto _ : state) {
    body();
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * count);
}

// ---------------------------------------------------------------- qelm

template <class T, int N>
void qelmInvert(benchmark::State& state) {
  Matrices<T> s(N, int(state.range(0)));
  const int e = sizeof(T), m = N * N * e, v = N * e;
  qelSetNumThreads(1);
  timed(state, s.count, [&] {
    QelStatus st;
    if constexpr (std::is_same_v<T, float>)
      st = qelmInvert_ma_32f(s.a.data(), m, v, e, s.buffer.data(), s.x.data(), m, v, e, N, s.count);
    else
      st = qelmInvert_ma_64f(s.a.data(), m, v, e, s.buffer.data(), s.x.data(), m, v, e, N, s.count);
    if (st != qelStatusOk) state.SkipWithError("qelm inverse failed");
  });
  qelSetNumThreads(0);
}

template <class T, int N>
void qelmDet(benchmark::State& state) {
  Matrices<T> s(N, int(state.range(0)));
  const int e = sizeof(T), m = N * N * e, v = N * e;
  qelSetNumThreads(1);
  timed(state, s.count, [&] {
    if constexpr (std::is_same_v<T, float>)
      qelmDet_ma_32f(s.a.data(), m, v, e, N, s.buffer.data(), s.det.data(), s.count);
    else
      qelmDet_ma_64f(s.a.data(), m, v, e, N, s.buffer.data(), s.det.data(), s.count);
  });
  qelSetNumThreads(0);
}

// ---------------------------------------------------------------- Eigen

template <class T, int N>
void eigenInvert(benchmark::State& state) {
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  Matrices<T> s(N, int(state.range(0)));
  timed(state, s.count, [&] {
    for (int k = 0; k < s.count; ++k) Eigen::Map<Mat>(s.at(s.x, k)) = Eigen::Map<const Mat>(s.at(s.a, k)).inverse();
  });
}

template <class T, int N>
void eigenDet(benchmark::State& state) {
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  Matrices<T> s(N, int(state.range(0)));
  timed(state, s.count, [&] {
    for (int k = 0; k < s.count; ++k) s.det[k] = Eigen::Map<const Mat>(s.at(s.a, k)).determinant();
  });
}

// ---------------------------------------------------------------- the textbook loop

template <class T, int N>
inline void plainInvert(const T* src, T* dst) {
  T a[N][N], x[N][N] = {};
  for (int i = 0; i < N; ++i) {
    x[i][i] = T(1);
    for (int j = 0; j < N; ++j) a[i][j] = src[i * N + j];
  }
  for (int k = 0; k < N; ++k) {
    int p = k;
    for (int i = k + 1; i < N; ++i)
      if (std::fabs(a[i][k]) > std::fabs(a[p][k])) p = i;
    for (int j = 0; j < N; ++j) std::swap(a[k][j], a[p][j]), std::swap(x[k][j], x[p][j]);
    const T r = T(1) / a[k][k];
    for (int j = 0; j < N; ++j) a[k][j] *= r, x[k][j] *= r;
    for (int i = 0; i < N; ++i)
      if (i != k) {
        const T f = a[i][k];
        for (int j = 0; j < N; ++j) a[i][j] -= f * a[k][j], x[i][j] -= f * x[k][j];
      }
  }
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) dst[i * N + j] = x[i][j];
}

template <class T, int N>
inline T plainDet(const T* src) {
  T a[N][N], d = T(1);
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) a[i][j] = src[i * N + j];
  for (int k = 0; k < N; ++k) {
    int p = k;
    for (int i = k + 1; i < N; ++i)
      if (std::fabs(a[i][k]) > std::fabs(a[p][k])) p = i;
    if (p != k) {
      for (int j = 0; j < N; ++j) std::swap(a[k][j], a[p][j]);
      d = -d;
    }
    d *= a[k][k];
    for (int i = k + 1; i < N; ++i) {
      const T f = a[i][k] / a[k][k];
      for (int j = k + 1; j < N; ++j) a[i][j] -= f * a[k][j];
    }
  }
  return d;
}

template <class T, int N>
void loopInvert(benchmark::State& state) {
  Matrices<T> s(N, int(state.range(0)));
  timed(state, s.count, [&] {
    for (int k = 0; k < s.count; ++k) plainInvert<T, N>(s.at(s.a, k), s.at(s.x, k));
  });
}

template <class T, int N>
void loopDet(benchmark::State& state) {
  Matrices<T> s(N, int(state.range(0)));
  timed(state, s.count, [&] {
    for (int k = 0; k < s.count; ++k) s.det[k] = plainDet<T, N>(s.at(s.a, k));
  });
}

// ---------------------------------------------------------------- GLM, 4x4 single

#ifdef QELM_BENCH_HAVE_GLM
void glmInvert(benchmark::State& state) {
  Matrices<float> s(4, int(state.range(0)));
  std::vector<glm::aligned_mat4> a(s.count), x(s.count);
  std::memcpy(a.data(), s.a.data(), sizeof(float) * 16 * s.count);
  timed(state, s.count, [&] {
    for (int k = 0; k < s.count; ++k) x[k] = glm::inverse(a[k]);
    benchmark::DoNotOptimize(x.data());
  });
}
BENCHMARK(glmInvert)->Name("Invert_ma/float/4/glm")->Arg(1000)->Arg(100000);
#endif

// ---------------------------------------------------------------- LAPACKE

#ifdef QELM_BENCH_HAVE_LAPACKE
// Column-major calls: no transposition inside LAPACKE; each matrix is copied
// first, as getrf works in place and the others leave their source intact.
template <class T, int N>
void lapackeInvert(benchmark::State& state) {
  Matrices<T> s(N, int(state.range(0)));
  openblas_set_num_threads(1);
  lapack_int ipiv[N];
  T work[N * N];
  timed(state, s.count, [&] {
    for (int k = 0; k < s.count; ++k) {
      T* x = s.at(s.x, k);
      std::memcpy(x, s.at(s.a, k), sizeof(T) * N * N);
      if constexpr (std::is_same_v<T, float>) {
        LAPACKE_sgetrf_work(LAPACK_COL_MAJOR, N, N, x, N, ipiv);
        LAPACKE_sgetri_work(LAPACK_COL_MAJOR, N, x, N, ipiv, work, N * N);
      } else {
        LAPACKE_dgetrf_work(LAPACK_COL_MAJOR, N, N, x, N, ipiv);
        LAPACKE_dgetri_work(LAPACK_COL_MAJOR, N, x, N, ipiv, work, N * N);
      }
    }
  });
}

template <class T, int N>
void lapackeDet(benchmark::State& state) {
  Matrices<T> s(N, int(state.range(0)));
  openblas_set_num_threads(1);
  lapack_int ipiv[N];
  timed(state, s.count, [&] {
    for (int k = 0; k < s.count; ++k) {
      T* x = s.at(s.x, k);
      std::memcpy(x, s.at(s.a, k), sizeof(T) * N * N);
      if constexpr (std::is_same_v<T, float>) LAPACKE_sgetrf_work(LAPACK_COL_MAJOR, N, N, x, N, ipiv);
      else LAPACKE_dgetrf_work(LAPACK_COL_MAJOR, N, N, x, N, ipiv);
      T d = T(1);
      for (int i = 0; i < N; ++i) d *= ipiv[i] != i + 1 ? -x[i * N + i] : x[i * N + i];
      s.det[k] = d;
    }
  });
}
#define INVDET_LAPACKE(T, N)                                                                        \
  BENCHMARK(lapackeInvert<T, N>)->Name("Invert_ma/" #T "/" #N "/lapacke")->Arg(1000)->Arg(100000); \
  BENCHMARK(lapackeDet<T, N>)->Name("Det_ma/" #T "/" #N "/lapacke")->Arg(1000)->Arg(100000);
#else
#define INVDET_LAPACKE(T, N)
#endif

#define INVDET_BENCH(T, N)                                                                        \
  BENCHMARK(qelmInvert<T, N>)->Name("Invert_ma/" #T "/" #N "/qelm")->Arg(1000)->Arg(100000);     \
  BENCHMARK(eigenInvert<T, N>)->Name("Invert_ma/" #T "/" #N "/eigen")->Arg(1000)->Arg(100000);   \
  BENCHMARK(loopInvert<T, N>)->Name("Invert_ma/" #T "/" #N "/loop")->Arg(1000)->Arg(100000);     \
  BENCHMARK(qelmDet<T, N>)->Name("Det_ma/" #T "/" #N "/qelm")->Arg(1000)->Arg(100000);           \
  BENCHMARK(eigenDet<T, N>)->Name("Det_ma/" #T "/" #N "/eigen")->Arg(1000)->Arg(100000);         \
  BENCHMARK(loopDet<T, N>)->Name("Det_ma/" #T "/" #N "/loop")->Arg(1000)->Arg(100000);           \
  INVDET_LAPACKE(T, N)

INVDET_BENCH(float, 3)
INVDET_BENCH(float, 4)
INVDET_BENCH(float, 6)
INVDET_BENCH(double, 3)
INVDET_BENCH(double, 4)
INVDET_BENCH(double, 6)

}  // namespace

BENCHMARK_MAIN();
