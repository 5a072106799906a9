// Symmetric eigenproblems on one thread: qelm's array calls against Eigen's
// fixed-size SelfAdjointEigenSolver (and its closed form computeDirect at 3x3)
// and LAPACKE syev per matrix. Items are matrices. The matrices are random
// symmetric with a spread diagonal, so that no peer meets a degenerate case.
#include <benchmark/benchmark.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <Eigen/Dense>
#include <cstring>
#include <random>
#include <type_traits>
#include <vector>

#ifdef QELM_BENCH_HAVE_LAPACKE
#include <lapacke.h>
extern "C" void openblas_set_num_threads(int);
#endif

namespace {

template <class T>
struct Problems {
  int n, count;
  std::vector<T> a, vectors, values, buffer;
  Problems(int n_, int count_)
      : n(n_), count(count_), a(size_t(n_) * n_ * count_), vectors(a.size()), values(size_t(n_) * count_),
        buffer(size_t(n_) * n_) {
    std::mt19937 rng(11);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (int k = 0; k < count; ++k)
      for (int i = 0; i < n; ++i)
        for (int j = 0; j <= i; ++j) {
          const T v = T(u(rng)) + (i == j ? T(2 * i - n) : T(0));
          a[size_t(k) * n * n + i * n + j] = a[size_t(k) * n * n + j * n + i] = v;
        }
  }
};

template <class T, int N, bool Vectors>
void qelmSym(benchmark::State& state) {
  Problems<T> p(N, int(state.range(0)));
  const int e = sizeof(T), m = N * N * e, r = N * e;
  qelSetNumThreads(1);
  for (auto _ : state) {
    QelStatus st;
    if constexpr (std::is_same_v<T, float>)
      st = Vectors ? qelmEigenValuesVectorsSym_ma_32f(p.a.data(), m, r, e, p.buffer.data(), p.vectors.data(), m, r, e,
                                                      p.values.data(), N, p.count)
                   : qelmEigenValuesSym_ma_32f(p.a.data(), m, r, e, p.buffer.data(), p.values.data(), N, p.count);
    else
      st = Vectors ? qelmEigenValuesVectorsSym_ma_64f(p.a.data(), m, r, e, p.buffer.data(), p.vectors.data(), m, r, e,
                                                      p.values.data(), N, p.count)
                   : qelmEigenValuesSym_ma_64f(p.a.data(), m, r, e, p.buffer.data(), p.values.data(), N, p.count);
    if (st != qelStatusOk) state.SkipWithError("qelm eigen failed");
    benchmark::DoNotOptimize(p.values.data());
    benchmark::ClobberMemory();
  }
  qelSetNumThreads(0);
  state.SetItemsProcessed(state.iterations() * p.count);
}

// Direct: the closed form of Eigen's solver, offered for 3x3 only.
template <class T, int N, bool Vectors, bool Direct>
void eigenSym(benchmark::State& state) {
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  using Vec = Eigen::Matrix<T, N, 1>;
  Problems<T> p(N, int(state.range(0)));
  Eigen::SelfAdjointEigenSolver<Mat> solver;
  const int options = Vectors ? Eigen::ComputeEigenvectors : Eigen::EigenvaluesOnly;
  for (auto _ : state) {
    for (int k = 0; k < p.count; ++k) {
      Eigen::Map<const Mat> a(&p.a[size_t(k) * N * N]);
      if constexpr (Direct) solver.computeDirect(a, options);
      else solver.compute(a, options);
      Eigen::Map<Vec>(&p.values[size_t(k) * N]) = solver.eigenvalues();
      if constexpr (Vectors) Eigen::Map<Mat>(&p.vectors[size_t(k) * N * N]) = solver.eigenvectors();
    }
    benchmark::DoNotOptimize(p.values.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * p.count);
}

#ifdef QELM_BENCH_HAVE_LAPACKE
// syev works in place: each matrix is copied first; its workspace is sized once.
template <class T, int N, bool Vectors>
void lapackeSym(benchmark::State& state) {
  Problems<T> p(N, int(state.range(0)));
  openblas_set_num_threads(1);
  T work[64 * N];
  const char job = Vectors ? 'V' : 'N';
  for (auto _ : state) {
    for (int k = 0; k < p.count; ++k) {
      T* a = &p.vectors[size_t(k) * N * N];
      std::memcpy(a, &p.a[size_t(k) * N * N], sizeof(T) * N * N);
      if constexpr (std::is_same_v<T, float>)
        LAPACKE_ssyev_work(LAPACK_COL_MAJOR, job, 'L', N, a, N, &p.values[size_t(k) * N], work, 64 * N);
      else
        LAPACKE_dsyev_work(LAPACK_COL_MAJOR, job, 'L', N, a, N, &p.values[size_t(k) * N], work, 64 * N);
    }
    benchmark::DoNotOptimize(p.values.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * p.count);
}
#define SYM_LAPACKE(T, N)                                                                                      \
  BENCHMARK(lapackeSym<T, N, false>)->Name("EigenValuesSym_ma/" #T "/" #N "/lapacke")->Arg(1000);               \
  BENCHMARK(lapackeSym<T, N, true>)->Name("EigenValuesVectorsSym_ma/" #T "/" #N "/lapacke")->Arg(1000);
#else
#define SYM_LAPACKE(T, N)
#endif

#define SYM_BENCH(T, N)                                                                                        \
  BENCHMARK(qelmSym<T, N, false>)->Name("EigenValuesSym_ma/" #T "/" #N "/qelm")->Arg(1000);                     \
  BENCHMARK(eigenSym<T, N, false, false>)->Name("EigenValuesSym_ma/" #T "/" #N "/eigen")->Arg(1000);            \
  BENCHMARK(qelmSym<T, N, true>)->Name("EigenValuesVectorsSym_ma/" #T "/" #N "/qelm")->Arg(1000);               \
  BENCHMARK(eigenSym<T, N, true, false>)->Name("EigenValuesVectorsSym_ma/" #T "/" #N "/eigen")->Arg(1000);      \
  SYM_LAPACKE(T, N)
#define SYM_DIRECT(T)                                                                                          \
  BENCHMARK(eigenSym<T, 3, false, true>)->Name("EigenValuesSym_ma/" #T "/3/eigendirect")->Arg(1000);            \
  BENCHMARK(eigenSym<T, 3, true, true>)->Name("EigenValuesVectorsSym_ma/" #T "/3/eigendirect")->Arg(1000);

SYM_BENCH(float, 3)
SYM_DIRECT(float)
SYM_BENCH(float, 4)
SYM_BENCH(float, 6)
SYM_BENCH(double, 3)
SYM_DIRECT(double)
SYM_BENCH(double, 4)
SYM_BENCH(double, 6)

}  // namespace

BENCHMARK_MAIN();
