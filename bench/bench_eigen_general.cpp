// General eigenvalues, and eigenvalues with one set of eigenvectors, on one
// thread: qelm's array calls against Eigen's EigenSolver on fixed-size
// matrices and LAPACKE geev per matrix. Items are matrices.
#include <benchmark/benchmark.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <Eigen/Eigenvalues>
#include <complex>
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
struct Matrices {
  int n, count;
  std::vector<T> a, re, im, vectors;
  Matrices(int n_, int count_)
      : n(n_), count(count_), a(size_t(n_) * n_ * count_), re(size_t(n_) * count_), im(re.size()), vectors(a.size()) {
    std::mt19937 rng(11);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (auto& v : a) v = T(u(rng));
  }
};

template <class T, int N, bool Vectors>
void qelmEigen(benchmark::State& state) {
  Matrices<T> s(N, int(state.range(0)));
  const int e = sizeof(T), m = N * N * e, r = N * e;
  int bytes = 0;
  if constexpr (std::is_same_v<T, float>) qelmEigenValuesVectorsGetBufSize_32f(N, &bytes);
  else qelmEigenValuesVectorsGetBufSize_64f(N, &bytes);
  std::vector<T> buffer(bytes / e);
  qelSetNumThreads(1);
  for (auto _ : state) {
    QelStatus st;
    if constexpr (!Vectors && std::is_same_v<T, float>)
      st = qelmEigenValues_ma_32f(s.a.data(), m, r, e, s.re.data(), s.im.data(), N, s.count, buffer.data());
    else if constexpr (!Vectors)
      st = qelmEigenValues_ma_64f(s.a.data(), m, r, e, s.re.data(), s.im.data(), N, s.count, buffer.data());
    else if constexpr (std::is_same_v<T, float>)
      st = qelmEigenValuesVectorsRight_ma_32f(s.a.data(), m, r, e, s.vectors.data(), m, r, e, s.re.data(),
                                              s.im.data(), N, s.count, buffer.data());
    else
      st = qelmEigenValuesVectorsRight_ma_64f(s.a.data(), m, r, e, s.vectors.data(), m, r, e, s.re.data(),
                                              s.im.data(), N, s.count, buffer.data());
    if (st != qelStatusOk) state.SkipWithError("qelm eigen failed");
    benchmark::DoNotOptimize(s.re.data());
    benchmark::ClobberMemory();
  }
  qelSetNumThreads(0);
  state.SetItemsProcessed(state.iterations() * s.count);
}

template <class T, int N, bool Vectors>
void eigenEigen(benchmark::State& state) {
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  Matrices<T> s(N, int(state.range(0)));
  Eigen::EigenSolver<Eigen::Matrix<T, N, N>> solver;
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k) {
      solver.compute(Eigen::Map<const Mat>(&s.a[size_t(k) * N * N]), Vectors);
      const auto& values = solver.eigenvalues();
      for (int i = 0; i < N; ++i) {
        s.re[size_t(k) * N + i] = values[i].real();
        s.im[size_t(k) * N + i] = values[i].imag();
      }
      if constexpr (Vectors) {
        const auto vectors = solver.eigenvectors();
        for (int i = 0; i < N; ++i)
          for (int j = 0; j < N; ++j) s.vectors[size_t(k) * N * N + i * N + j] = vectors(i, j).real();
      }
    }
    benchmark::DoNotOptimize(s.re.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}

#ifdef QELM_BENCH_HAVE_LAPACKE
// geev destroys its matrix: each is copied first, as the others leave their
// source intact. Work arrays are sized by a query once.
template <class T, int N, bool Vectors>
void lapackeEigen(benchmark::State& state) {
  Matrices<T> s(N, int(state.range(0)));
  openblas_set_num_threads(1);
  T work[N * N], query = 0, dummy[1];
  const char jobvr = Vectors ? 'V' : 'N';
  if constexpr (std::is_same_v<T, float>)
    LAPACKE_sgeev_work(LAPACK_COL_MAJOR, 'N', jobvr, N, work, N, s.re.data(), s.im.data(), dummy, 1,
                       s.vectors.data(), N, &query, -1);
  else
    LAPACKE_dgeev_work(LAPACK_COL_MAJOR, 'N', jobvr, N, work, N, s.re.data(), s.im.data(), dummy, 1,
                       s.vectors.data(), N, &query, -1);
  std::vector<T> scratch(size_t(query) + 1);
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k) {
      std::memcpy(work, &s.a[size_t(k) * N * N], sizeof work);
      T* vr = &s.vectors[size_t(k) * N * N];
      if constexpr (std::is_same_v<T, float>)
        LAPACKE_sgeev_work(LAPACK_COL_MAJOR, 'N', jobvr, N, work, N, &s.re[size_t(k) * N], &s.im[size_t(k) * N],
                           dummy, 1, vr, N, scratch.data(), int(scratch.size()));
      else
        LAPACKE_dgeev_work(LAPACK_COL_MAJOR, 'N', jobvr, N, work, N, &s.re[size_t(k) * N], &s.im[size_t(k) * N],
                           dummy, 1, vr, N, scratch.data(), int(scratch.size()));
    }
    benchmark::DoNotOptimize(s.re.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}
#define EIG_LAPACKE(T, N)                                                                                 \
  BENCHMARK(lapackeEigen<T, N, false>)->Name("EigenValues_ma/" #T "/" #N "/lapacke")->Arg(1000);         \
  BENCHMARK(lapackeEigen<T, N, true>)->Name("EigenValuesVectorsRight_ma/" #T "/" #N "/lapacke")->Arg(1000);
#else
#define EIG_LAPACKE(T, N)
#endif

#define EIG_BENCH(T, N)                                                                                  \
  BENCHMARK(qelmEigen<T, N, false>)->Name("EigenValues_ma/" #T "/" #N "/qelm")->Arg(1000);              \
  BENCHMARK(eigenEigen<T, N, false>)->Name("EigenValues_ma/" #T "/" #N "/eigen")->Arg(1000);            \
  BENCHMARK(qelmEigen<T, N, true>)->Name("EigenValuesVectorsRight_ma/" #T "/" #N "/qelm")->Arg(1000);   \
  BENCHMARK(eigenEigen<T, N, true>)->Name("EigenValuesVectorsRight_ma/" #T "/" #N "/eigen")->Arg(1000); \
  EIG_LAPACKE(T, N)

EIG_BENCH(float, 3)
EIG_BENCH(float, 4)
EIG_BENCH(float, 6)
EIG_BENCH(double, 3)
EIG_BENCH(double, 4)
EIG_BENCH(double, 6)

}  // namespace

BENCHMARK_MAIN();
