// LU factorisation plus one solve per system, on one thread: qelm's array calls
// against a loop of Eigen's fixed-size PartialPivLU and a loop of LAPACKE
// getrf/getrs per matrix. Items are systems; compare items per second.
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
struct Systems {
  int n, count;
  std::vector<T> a, lu, b, x;
  std::vector<Qel32s> index;
  Systems(int n_, int count_) : n(n_), count(count_), a(size_t(n_) * n_ * count_), lu(a.size()),
                                b(size_t(n_) * count_), x(b.size()), index(b.size()) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (size_t k = 0; k < a.size(); ++k) a[k] = T(u(rng) + ((k % (n * n)) % (n + 1) == 0 ? 2.0 : 0.0));
    for (auto& v : b) v = T(u(rng));
  }
};

template <class T, int N>
void qelmRoad(benchmark::State& state) {
  Systems<T> s(N, int(state.range(0)));
  const int e = sizeof(T), m = N * N * e, v = N * e;
  qelSetNumThreads(1);
  for (auto _ : state) {
    QelStatus st;
    if constexpr (std::is_same_v<T, float>) {
      st = qelmLUDecomp_ma_32f(s.a.data(), m, v, e, s.index.data(), s.lu.data(), m, v, e, N, s.count);
      st |= qelmLUBackSubst_mava_32f(s.lu.data(), m, v, e, s.index.data(), s.b.data(), v, e, s.x.data(), v, e, N, s.count);
    } else {
      st = qelmLUDecomp_ma_64f(s.a.data(), m, v, e, s.index.data(), s.lu.data(), m, v, e, N, s.count);
      st |= qelmLUBackSubst_mava_64f(s.lu.data(), m, v, e, s.index.data(), s.b.data(), v, e, s.x.data(), v, e, N, s.count);
    }
    if (st != qelStatusOk) state.SkipWithError("qelm LU failed");
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  qelSetNumThreads(0);
  state.SetItemsProcessed(state.iterations() * s.count);
}

template <class T, int N>
void eigenLoop(benchmark::State& state) {
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  using Vec = Eigen::Matrix<T, N, 1>;
  Systems<T> s(N, int(state.range(0)));
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k) {
      const Eigen::PartialPivLU<Mat> lu(Eigen::Map<const Mat>(&s.a[size_t(k) * N * N]));
      Eigen::Map<Vec>(&s.x[size_t(k) * N]) = lu.solve(Eigen::Map<const Vec>(&s.b[size_t(k) * N]));
    }
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}

#ifdef QELM_BENCH_HAVE_LAPACKE
// Column-major calls need no transposition inside LAPACKE; the data is random
// either way. getrf works in place, so each matrix is copied first, as the
// other two leave their source intact.
template <class T, int N>
void lapackeLoop(benchmark::State& state) {
  Systems<T> s(N, int(state.range(0)));
  openblas_set_num_threads(1);
  lapack_int ipiv[N];
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k) {
      T* lu = &s.lu[size_t(k) * N * N];
      T* x = &s.x[size_t(k) * N];
      std::memcpy(lu, &s.a[size_t(k) * N * N], sizeof(T) * N * N);
      std::memcpy(x, &s.b[size_t(k) * N], sizeof(T) * N);
      if constexpr (std::is_same_v<T, float>) {
        LAPACKE_sgetrf_work(LAPACK_COL_MAJOR, N, N, lu, N, ipiv);
        LAPACKE_sgetrs_work(LAPACK_COL_MAJOR, 'N', N, 1, lu, N, ipiv, x, N);
      } else {
        LAPACKE_dgetrf_work(LAPACK_COL_MAJOR, N, N, lu, N, ipiv);
        LAPACKE_dgetrs_work(LAPACK_COL_MAJOR, 'N', N, 1, lu, N, ipiv, x, N);
      }
    }
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}
#define LU_LAPACKE(T, N) BENCHMARK_TEMPLATE(lapackeLoop, T, N)->Arg(1000)->Arg(100000);
#else
#define LU_LAPACKE(T, N)
#endif

#define LU_BENCH(T, N)                                              \
  BENCHMARK_TEMPLATE(qelmRoad, T, N)->Arg(1000)->Arg(100000);       \
  BENCHMARK_TEMPLATE(eigenLoop, T, N)->Arg(1000)->Arg(100000);      \
  LU_LAPACKE(T, N)

LU_BENCH(float, 4)
LU_BENCH(float, 6)
LU_BENCH(double, 4)
LU_BENCH(double, 6)

}  // namespace

BENCHMARK_MAIN();
