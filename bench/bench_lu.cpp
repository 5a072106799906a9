// LU factorisation and LU solves on one thread, each timed on its own: qelm's
// array calls against a textbook fixed-size loop (what a user writes by hand,
// unrolled by the compiler), Eigen's fixed-size PartialPivLU and LAPACKE
// getrf/getrs per matrix. Items are systems.
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

#ifdef QELM_BENCH_HAVE_LAPACKE
#include <lapacke.h>
extern "C" void openblas_set_num_threads(int);
#endif

namespace {

template <class T>
struct Systems {
  int n, count;
  std::vector<T> a, lu, b, x;
  std::vector<Qel32s> index;
  Systems(int n_, int count_) : n(n_), count(count_), a(size_t(n_) * n_ * count_), lu(a.size()),
                                b(size_t(n_) * count_), x(b.size()), index(b.size()) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (size_t k = 0; k < a.size(); ++k) a[k] = T(u(rng));
    for (auto& v : b) v = T(u(rng));
  }
};

// ---------------------------------------------------------------- the textbook loop

// Partial pivoting with physical row swaps; multipliers by division.
template <class T, int N>
inline void plainFactor(const T* src, T* lu, int* piv) {
  T m[N][N];
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) m[i][j] = src[i * N + j];
  for (int k = 0; k < N; ++k) {
    int p = k;
    for (int i = k + 1; i < N; ++i)
      if (std::fabs(m[i][k]) > std::fabs(m[p][k])) p = i;
    piv[k] = p;
    if (p != k)
      for (int j = 0; j < N; ++j) std::swap(m[k][j], m[p][j]);
    for (int i = k + 1; i < N; ++i) {
      m[i][k] /= m[k][k];
      for (int j = k + 1; j < N; ++j) m[i][j] -= m[i][k] * m[k][j];
    }
  }
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) lu[i * N + j] = m[i][j];
}

template <class T, int N>
inline void plainSolve(const T* lu, const int* piv, const T* b, T* x) {
  T y[N];
  for (int i = 0; i < N; ++i) y[i] = b[i];
  for (int k = 0; k < N; ++k) std::swap(y[k], y[piv[k]]);
  for (int i = 1; i < N; ++i)
    for (int j = 0; j < i; ++j) y[i] -= lu[i * N + j] * y[j];
  for (int i = N - 1; i >= 0; --i) {
    for (int j = i + 1; j < N; ++j) y[i] -= lu[i * N + j] * y[j];
    y[i] /= lu[i * N + i];
  }
  for (int i = 0; i < N; ++i) x[i] = y[i];
}

// ---------------------------------------------------------------- factor

template <class T, int N>
void qelmFactor(benchmark::State& state) {
  Systems<T> s(N, int(state.range(0)));
  const int e = sizeof(T), m = N * N * e, v = N * e;
  qelSetNumThreads(1);
  for (auto _ : state) {
    QelStatus st;
    if constexpr (std::is_same_v<T, float>)
      st = qelmLUDecomp_ma_32f(s.a.data(), m, v, e, s.index.data(), s.lu.data(), m, v, e, N, s.count);
    else
      st = qelmLUDecomp_ma_64f(s.a.data(), m, v, e, s.index.data(), s.lu.data(), m, v, e, N, s.count);
    if (st != qelStatusOk) state.SkipWithError("qelm LU failed");
    benchmark::DoNotOptimize(s.lu.data());
    benchmark::ClobberMemory();
  }
  qelSetNumThreads(0);
  state.SetItemsProcessed(state.iterations() * s.count);
}

template <class T, int N>
void loopFactor(benchmark::State& state) {
  Systems<T> s(N, int(state.range(0)));
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k)
      plainFactor<T, N>(&s.a[size_t(k) * N * N], &s.lu[size_t(k) * N * N], &s.index[size_t(k) * N]);
    benchmark::DoNotOptimize(s.lu.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}

template <class T, int N>
void eigenFactor(benchmark::State& state) {
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  Systems<T> s(N, int(state.range(0)));
  std::vector<Eigen::PartialPivLU<Mat>> out(s.count);
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k) out[k].compute(Eigen::Map<const Mat>(&s.a[size_t(k) * N * N]));
    benchmark::DoNotOptimize(out.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}

// ---------------------------------------------------------------- solve, factors made beforehand

template <class T, int N>
void qelmSolve(benchmark::State& state) {
  Systems<T> s(N, int(state.range(0)));
  const int e = sizeof(T), m = N * N * e, v = N * e;
  qelSetNumThreads(1);
  QelStatus st;
  if constexpr (std::is_same_v<T, float>)
    st = qelmLUDecomp_ma_32f(s.a.data(), m, v, e, s.index.data(), s.lu.data(), m, v, e, N, s.count);
  else
    st = qelmLUDecomp_ma_64f(s.a.data(), m, v, e, s.index.data(), s.lu.data(), m, v, e, N, s.count);
  if (st != qelStatusOk) state.SkipWithError("qelm LU failed");
  for (auto _ : state) {
    if constexpr (std::is_same_v<T, float>)
      qelmLUBackSubst_mava_32f(s.lu.data(), m, v, e, s.index.data(), s.b.data(), v, e, s.x.data(), v, e, N, s.count);
    else
      qelmLUBackSubst_mava_64f(s.lu.data(), m, v, e, s.index.data(), s.b.data(), v, e, s.x.data(), v, e, N, s.count);
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  qelSetNumThreads(0);
  state.SetItemsProcessed(state.iterations() * s.count);
}

template <class T, int N>
void loopSolve(benchmark::State& state) {
  Systems<T> s(N, int(state.range(0)));
  for (int k = 0; k < s.count; ++k)
    plainFactor<T, N>(&s.a[size_t(k) * N * N], &s.lu[size_t(k) * N * N], &s.index[size_t(k) * N]);
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k)
      plainSolve<T, N>(&s.lu[size_t(k) * N * N], &s.index[size_t(k) * N], &s.b[size_t(k) * N], &s.x[size_t(k) * N]);
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}

template <class T, int N>
void eigenSolve(benchmark::State& state) {
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  using Vec = Eigen::Matrix<T, N, 1>;
  Systems<T> s(N, int(state.range(0)));
  std::vector<Eigen::PartialPivLU<Mat>> lu(s.count);
  for (int k = 0; k < s.count; ++k) lu[k].compute(Eigen::Map<const Mat>(&s.a[size_t(k) * N * N]));
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k)
      Eigen::Map<Vec>(&s.x[size_t(k) * N]) = lu[k].solve(Eigen::Map<const Vec>(&s.b[size_t(k) * N]));
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}

#ifdef QELM_BENCH_HAVE_LAPACKE
// Column-major calls need no transposition inside LAPACKE; the data is random
// either way. getrf works in place, so each matrix is copied first, as the
// others leave their source intact; getrs overwrites its right-hand side.
template <class T, int N>
void lapackeFactor(benchmark::State& state) {
  Systems<T> s(N, int(state.range(0)));
  openblas_set_num_threads(1);
  lapack_int ipiv[N];
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k) {
      T* lu = &s.lu[size_t(k) * N * N];
      std::memcpy(lu, &s.a[size_t(k) * N * N], sizeof(T) * N * N);
      if constexpr (std::is_same_v<T, float>) LAPACKE_sgetrf_work(LAPACK_COL_MAJOR, N, N, lu, N, ipiv);
      else LAPACKE_dgetrf_work(LAPACK_COL_MAJOR, N, N, lu, N, ipiv);
    }
    benchmark::DoNotOptimize(s.lu.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}

template <class T, int N>
void lapackeSolve(benchmark::State& state) {
  Systems<T> s(N, int(state.range(0)));
  openblas_set_num_threads(1);
  std::vector<lapack_int> ipiv(static_cast<size_t>(N) * s.count);
  s.lu = s.a;
  for (int k = 0; k < s.count; ++k) {
    T* lu = &s.lu[size_t(k) * N * N];
    if constexpr (std::is_same_v<T, float>) LAPACKE_sgetrf_work(LAPACK_COL_MAJOR, N, N, lu, N, &ipiv[size_t(k) * N]);
    else LAPACKE_dgetrf_work(LAPACK_COL_MAJOR, N, N, lu, N, &ipiv[size_t(k) * N]);
  }
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k) {
      T* x = &s.x[size_t(k) * N];
      std::memcpy(x, &s.b[size_t(k) * N], sizeof(T) * N);
      if constexpr (std::is_same_v<T, float>)
        LAPACKE_sgetrs_work(LAPACK_COL_MAJOR, 'N', N, 1, &s.lu[size_t(k) * N * N], N, &ipiv[size_t(k) * N], x, N);
      else
        LAPACKE_dgetrs_work(LAPACK_COL_MAJOR, 'N', N, 1, &s.lu[size_t(k) * N * N], N, &ipiv[size_t(k) * N], x, N);
    }
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}
#define LU_LAPACKE(T, N)                                                                                    \
  BENCHMARK(lapackeFactor<T, N>)->Name("LUDecomp_ma/" #T "/" #N "/lapacke")->Arg(1000)->Arg(100000);         \
  BENCHMARK(lapackeSolve<T, N>)->Name("LUBackSubst_mava/" #T "/" #N "/lapacke")->Arg(1000)->Arg(100000);
#else
#define LU_LAPACKE(T, N)
#endif

#define LU_BENCH(T, N)                                                                                  \
  BENCHMARK(qelmFactor<T, N>)->Name("LUDecomp_ma/" #T "/" #N "/qelm")->Arg(1000)->Arg(100000);         \
  BENCHMARK(loopFactor<T, N>)->Name("LUDecomp_ma/" #T "/" #N "/loop")->Arg(1000)->Arg(100000);         \
  BENCHMARK(eigenFactor<T, N>)->Name("LUDecomp_ma/" #T "/" #N "/eigen")->Arg(1000)->Arg(100000);       \
  BENCHMARK(qelmSolve<T, N>)->Name("LUBackSubst_mava/" #T "/" #N "/qelm")->Arg(1000)->Arg(100000);     \
  BENCHMARK(loopSolve<T, N>)->Name("LUBackSubst_mava/" #T "/" #N "/loop")->Arg(1000)->Arg(100000);     \
  BENCHMARK(eigenSolve<T, N>)->Name("LUBackSubst_mava/" #T "/" #N "/eigen")->Arg(1000)->Arg(100000);   \
  LU_LAPACKE(T, N)

LU_BENCH(float, 4)
LU_BENCH(float, 6)
LU_BENCH(double, 4)
LU_BENCH(double, 6)

}  // namespace

BENCHMARK_MAIN();
