// Matrix-by-matrix products of many small matrices on one thread: qelm's
// Mul_mama (array times array) and Mul_mam (array times one matrix) against a
// loop of Eigen fixed-size Map products, a loop of one libxsmm dispatched kernel
// and a plain triple loop. Packed row-major objects; items are products, so
// compare items per second (ns per object = 1e9 / items_per_second).
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <Eigen/Dense>
#include <random>
#include <type_traits>
#include <vector>

#ifdef QELM_BENCH_HAVE_LIBXSMM
#include <libxsmm.h>
#endif
#ifdef QELM_BENCH_HAVE_LAPACKE
// libxsmm's archive falls back on BLAS; this reference keeps OpenBLAS linked,
// which the link order alone would drop.
extern "C" void openblas_set_num_threads(int);
#endif

namespace {

template <class T>
struct Products {
  int n, count;
  bool arrayB;
  std::vector<T> a, b, c;
  Products(int n_, int count_, bool arrayB_)
      : n(n_), count(count_), arrayB(arrayB_), a(size_t(n_) * n_ * count_),
        b(size_t(n_) * n_ * (arrayB_ ? count_ : 1)), c(a.size()) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (auto& v : a) v = T(u(rng));
    for (auto& v : b) v = T(u(rng));
  }
  const T* bOf(int k) const { return b.data() + (arrayB ? size_t(k) * n * n : 0); }
};

template <class F>
void timed(benchmark::State& state, int count, const void* out, F&& body) {
  for (auto _ : state) {
    body();
    benchmark::DoNotOptimize(out);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * count);
}

template <class T, int N, bool ArrayB>
void qelmMul(benchmark::State& state) {
  Products<T> p(N, int(state.range(0)), ArrayB);
  const int e = sizeof(T), s1 = N * e, s0 = N * N * e, cnt = p.count;
  qelSetNumThreads(1);
  timed(state, cnt, p.c.data(), [&] {
    QelStatus st;
    if constexpr (std::is_same_v<T, float> && ArrayB)
      st = qelmMul_mama_32f(p.a.data(), s0, s1, e, N, N, p.b.data(), s0, s1, e, N, N, p.c.data(), s0, s1, e, cnt);
    else if constexpr (std::is_same_v<T, float>)
      st = qelmMul_mam_32f(p.a.data(), s0, s1, e, N, N, p.b.data(), s1, e, N, N, p.c.data(), s0, s1, e, cnt);
    else if constexpr (ArrayB)
      st = qelmMul_mama_64f(p.a.data(), s0, s1, e, N, N, p.b.data(), s0, s1, e, N, N, p.c.data(), s0, s1, e, cnt);
    else
      st = qelmMul_mam_64f(p.a.data(), s0, s1, e, N, N, p.b.data(), s1, e, N, N, p.c.data(), s0, s1, e, cnt);
    if (st != qelStatusOk) state.SkipWithError("qelm Mul failed");
  });
  qelSetNumThreads(0);
}

template <class T, int N, bool ArrayB>
void eigenLoop(benchmark::State& state) {
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  Products<T> p(N, int(state.range(0)), ArrayB);
  timed(state, p.count, p.c.data(), [&] {
    for (int k = 0; k < p.count; ++k)
      Eigen::Map<Mat>(p.c.data() + size_t(k) * N * N).noalias() =
          Eigen::Map<const Mat>(p.a.data() + size_t(k) * N * N) * Eigen::Map<const Mat>(p.bOf(k));
  });
}

template <class T, int N, bool ArrayB>
void plainLoop(benchmark::State& state) {
  Products<T> p(N, int(state.range(0)), ArrayB);
  timed(state, p.count, p.c.data(), [&] {
    for (int k = 0; k < p.count; ++k) {
      const T* a = p.a.data() + size_t(k) * N * N;
      const T* b = p.bOf(k);
      T* c = p.c.data() + size_t(k) * N * N;
      for (int i = 0; i < N; ++i)
        for (int j = 0; j < N; ++j) {
          T s = 0;
          for (int q = 0; q < N; ++q) s += a[i * N + q] * b[q * N + j];
          c[i * N + j] = s;
        }
    }
  });
}

// Eigen with a single right operand as one expression: the array of left
// operands is one tall matrix, the products its rows times B.
template <class T, int N, bool ArrayB>
void eigenWhole(benchmark::State& state) {
  static_assert(!ArrayB);
  using Tall = Eigen::Matrix<T, Eigen::Dynamic, N, Eigen::RowMajor>;
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  Products<T> p(N, int(state.range(0)), ArrayB);
  timed(state, p.count, p.c.data(), [&] {
    Eigen::Map<Tall>(p.c.data(), p.count * N, N).noalias() =
        Eigen::Map<const Tall>(p.a.data(), p.count * N, N) * Eigen::Map<const Mat>(p.b.data());
  });
}

#ifdef QELM_BENCH_HAVE_LIBXSMM
// libxsmm is column-major: a row-major C = A B is the column-major C' = B' A'.
template <class T, int N, bool ArrayB>
void libxsmmLoop(benchmark::State& state) {
  Products<T> p(N, int(state.range(0)), ArrayB);
  const T alpha = 1, beta = 0;
  using Kernel = void (*)(const T*, const T*, T*, ...);
  Kernel kernel;
  // The code it generates for this machine may use AVX; the SSE code is the
  // fair peer of a library built for SSE4.1. The library must be initialised
  // first: its first dispatch initialises it and resets the target to the
  // machine's, and a kernel once generated stays in its registry.
  libxsmm_init();
  if (std::getenv("QELM_BENCH_XSMM_NATIVE") == nullptr) libxsmm_set_target_arch("sse4");
  if constexpr (std::is_same_v<T, float>)
    kernel = libxsmm_smmdispatch(N, N, N, nullptr, nullptr, nullptr, &alpha, &beta, nullptr, nullptr);
  else
    kernel = libxsmm_dmmdispatch(N, N, N, nullptr, nullptr, nullptr, &alpha, &beta, nullptr, nullptr);
  if (!kernel) return state.SkipWithError("no libxsmm kernel");
  state.SetLabel(libxsmm_get_target_arch());
#ifdef QELM_BENCH_HAVE_LAPACKE
  openblas_set_num_threads(1);
#endif
  timed(state, p.count, p.c.data(), [&] {
    for (int k = 0; k < p.count; ++k)
      kernel(p.bOf(k), p.a.data() + size_t(k) * N * N, p.c.data() + size_t(k) * N * N);
  });
  // Its generated code leaves the upper halves of the vector registers in use,
  // which would slow every SSE benchmark that runs after it.
  if (__builtin_cpu_supports("avx")) asm volatile("vzeroupper" ::: "memory");
}
#endif

#define QEL_MUL_BENCH(T, N, ArrayB, label)                                              \
  BENCHMARK(qelmMul<T, N, ArrayB>)->Name(label "/" #T "/" #N "/qelm")->Arg(1000)->Arg(100000);  \
  BENCHMARK(eigenLoop<T, N, ArrayB>)->Name(label "/" #T "/" #N "/eigen")->Arg(1000)->Arg(100000); \
  BENCHMARK(plainLoop<T, N, ArrayB>)->Name(label "/" #T "/" #N "/loop")->Arg(1000)->Arg(100000);  \
  QEL_MUL_BENCH_XSMM(T, N, ArrayB, label)
#ifdef QELM_BENCH_HAVE_LIBXSMM
#define QEL_MUL_BENCH_XSMM(T, N, ArrayB, label) \
  BENCHMARK(libxsmmLoop<T, N, ArrayB>)->Name(label "/" #T "/" #N "/libxsmm")->Arg(1000)->Arg(100000);
#else
#define QEL_MUL_BENCH_XSMM(T, N, ArrayB, label)
#endif

QEL_MUL_BENCH(float, 3, true, "Mul_mama")
QEL_MUL_BENCH(float, 4, true, "Mul_mama")
QEL_MUL_BENCH(float, 6, true, "Mul_mama")
QEL_MUL_BENCH(double, 3, true, "Mul_mama")
QEL_MUL_BENCH(double, 4, true, "Mul_mama")
QEL_MUL_BENCH(double, 6, true, "Mul_mama")
#define QEL_MUL_WHOLE(T, N) \
  BENCHMARK(eigenWhole<T, N, false>)->Name("Mul_mam/" #T "/" #N "/eigen-whole")->Arg(1000)->Arg(100000);
QEL_MUL_WHOLE(float, 3)
QEL_MUL_WHOLE(float, 4)
QEL_MUL_WHOLE(float, 6)
QEL_MUL_WHOLE(double, 3)
QEL_MUL_WHOLE(double, 4)
QEL_MUL_WHOLE(double, 6)
QEL_MUL_BENCH(float, 3, false, "Mul_mam")
QEL_MUL_BENCH(float, 4, false, "Mul_mam")
QEL_MUL_BENCH(float, 6, false, "Mul_mam")
QEL_MUL_BENCH(double, 3, false, "Mul_mam")
QEL_MUL_BENCH(double, 4, false, "Mul_mam")
QEL_MUL_BENCH(double, 6, false, "Mul_mam")

}  // namespace

BENCHMARK_MAIN();
