// Cholesky and QR factors and solves on one thread, each timed on its own:
// qelm's array calls against a textbook fixed-size loop (square roots and
// divisions as a user writes them), Eigen's fixed-size LLT and HouseholderQR,
// and LAPACKE potrf/potrs and geqrf + ormqr + trtrs per matrix. Items are
// systems.
#include <benchmark/benchmark.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <Eigen/Dense>
#include <cmath>
#include <cstring>
#include <random>
#include <type_traits>
#include <vector>

#ifdef QELM_BENCH_HAVE_LAPACKE
#include <lapacke.h>
extern "C" void openblas_set_num_threads(int);
#endif

namespace {

// count symmetric positive definite matrices (B B^T + n I), right-hand sides.
template <class T>
struct Systems {
  int n, count;
  std::vector<T> a, f, b, x, buf;
  Systems(int n_, int count_)
      : n(n_), count(count_), a(size_t(n_) * n_ * count_), f(a.size()), b(size_t(n_) * count_), x(b.size()),
        buf(n_) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    std::vector<double> B(n * n);
    for (int k = 0; k < count; ++k) {
      for (auto& e : B) e = u(rng);
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
          double s = i == j ? n : 0;
          for (int q = 0; q < n; ++q) s += B[i * n + q] * B[j * n + q];
          a[size_t(k) * n * n + i * n + j] = T(s);
        }
    }
    for (auto& v : b) v = T(u(rng));
  }
  T* A(int k) { return &a[size_t(k) * n * n]; }
  T* F(int k) { return &f[size_t(k) * n * n]; }
  T* Bv(int k) { return &b[size_t(k) * n]; }
  T* X(int k) { return &x[size_t(k) * n]; }
};

// ---------------------------------------------------------------- qelm
template <class T, int N>
QelStatus qelmCholesky(Systems<T>& s) {
  const int e = sizeof(T), m = N * N * e, v = N * e;
  if constexpr (std::is_same_v<T, float>)
    return qelmCholeskyDecomp_ma_32f(s.a.data(), m, v, e, s.f.data(), m, v, e, N, s.count);
  else
    return qelmCholeskyDecomp_ma_64f(s.a.data(), m, v, e, s.f.data(), m, v, e, N, s.count);
}
template <class T, int N>
QelStatus qelmCholeskySolve(Systems<T>& s) {
  const int e = sizeof(T), m = N * N * e, v = N * e;
  if constexpr (std::is_same_v<T, float>)
    return qelmCholeskyBackSubst_mava_32f(s.f.data(), m, v, e, s.b.data(), v, e, s.x.data(), v, e, N, s.count);
  else
    return qelmCholeskyBackSubst_mava_64f(s.f.data(), m, v, e, s.b.data(), v, e, s.x.data(), v, e, N, s.count);
}
template <class T, int N>
QelStatus qelmQR(Systems<T>& s) {
  const int e = sizeof(T), m = N * N * e, v = N * e;
  if constexpr (std::is_same_v<T, float>)
    return qelmQRDecomp_ma_32f(s.a.data(), m, v, e, s.buf.data(), s.f.data(), m, v, e, N, N, s.count);
  else
    return qelmQRDecomp_ma_64f(s.a.data(), m, v, e, s.buf.data(), s.f.data(), m, v, e, N, N, s.count);
}
template <class T, int N>
QelStatus qelmQRSolve(Systems<T>& s) {
  const int e = sizeof(T), m = N * N * e, v = N * e;
  if constexpr (std::is_same_v<T, float>)
    return qelmQRBackSubst_mava_32f(s.f.data(), m, v, e, s.buf.data(), s.b.data(), v, e, s.x.data(), v, e, N, N,
                                    s.count);
  else
    return qelmQRBackSubst_mava_64f(s.f.data(), m, v, e, s.buf.data(), s.b.data(), v, e, s.x.data(), v, e, N, N,
                                    s.count);
}

// ---------------------------------------------------------------- the textbook loops
template <class T, int N>
inline void plainCholesky(const T* a, T* l) {
  for (int i = 0; i < N; ++i) {
    for (int j = 0; j < i; ++j) {
      T s = a[i * N + j];
      for (int k = 0; k < j; ++k) s -= l[i * N + k] * l[j * N + k];
      l[i * N + j] = s / l[j * N + j];
    }
    T s = a[i * N + i];
    for (int k = 0; k < i; ++k) s -= l[i * N + k] * l[i * N + k];
    l[i * N + i] = std::sqrt(s);
  }
}
template <class T, int N>
inline void plainCholeskySolve(const T* l, const T* b, T* x) {
  T y[N];
  for (int i = 0; i < N; ++i) {
    T s = b[i];
    for (int j = 0; j < i; ++j) s -= l[i * N + j] * y[j];
    y[i] = s / l[i * N + i];
  }
  for (int i = N - 1; i >= 0; --i) {
    T s = y[i];
    for (int j = i + 1; j < N; ++j) s -= l[j * N + i] * y[j];
    y[i] = s / l[i * N + i];
  }
  for (int i = 0; i < N; ++i) x[i] = y[i];
}
// Householder with unnormalised reflectors kept below the diagonal, their
// heads and norms on the side.
template <class T, int N>
inline void plainQR(const T* a, T* r, T* heads) {
  for (int i = 0; i < N * N; ++i) r[i] = a[i];
  for (int k = 0; k < N - 1; ++k) {
    T s = 0;
    for (int i = k; i < N; ++i) s += r[i * N + k] * r[i * N + k];
    const T x0 = r[k * N + k];
    const T norm = std::copysign(std::sqrt(s), x0);
    const T v0 = x0 + norm;
    const T vv = s - x0 * x0 + v0 * v0;
    r[k * N + k] = v0;
    for (int j = k + 1; j < N; ++j) {
      T t = 0;
      for (int i = k; i < N; ++i) t += r[i * N + k] * r[i * N + j];
      t = 2 * t / vv;
      for (int i = k; i < N; ++i) r[i * N + j] -= t * r[i * N + k];
    }
    r[k * N + k] = -norm;
    heads[k] = v0;
    heads[N + k] = vv;
  }
}
template <class T, int N>
inline void plainQRSolve(const T* r, const T* heads, const T* b, T* x) {
  T y[N];
  for (int i = 0; i < N; ++i) y[i] = b[i];
  for (int k = 0; k < N - 1; ++k) {
    T t = heads[k] * y[k];
    for (int i = k + 1; i < N; ++i) t += r[i * N + k] * y[i];
    t = 2 * t / heads[N + k];
    y[k] -= t * heads[k];
    for (int i = k + 1; i < N; ++i) y[i] -= t * r[i * N + k];
  }
  for (int i = N - 1; i >= 0; --i) {
    T s = y[i];
    for (int j = i + 1; j < N; ++j) s -= r[i * N + j] * y[j];
    y[i] = s / r[i * N + i];
  }
  for (int i = 0; i < N; ++i) x[i] = y[i];
}

// ---------------------------------------------------------------- runners
enum Work { CholFactor, CholSolve, QRFactor, QRSolve };

template <class T, int N, Work W>
void qelmRun(benchmark::State& state) {
  Systems<T> s(N, int(state.range(0)));
  qelSetNumThreads(1);
  if (W == CholSolve) qelmCholesky<T, N>(s);
  if (W == QRSolve) qelmQR<T, N>(s);
  for (auto _ : state) {
    QelStatus st = W == CholFactor  ? qelmCholesky<T, N>(s)
                   : W == CholSolve ? qelmCholeskySolve<T, N>(s)
                   : W == QRFactor  ? qelmQR<T, N>(s)
                                    : qelmQRSolve<T, N>(s);
    if (st != qelStatusOk) state.SkipWithError("qelm failed");
    benchmark::DoNotOptimize(s.f.data());
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  qelSetNumThreads(0);
  state.SetItemsProcessed(state.iterations() * s.count);
}

template <class T, int N, Work W>
void loopRun(benchmark::State& state) {
  Systems<T> s(N, int(state.range(0)));
  std::vector<T> heads(size_t(2) * N * s.count);
  auto factor = [&](int k) {
    if (W == CholFactor || W == CholSolve) plainCholesky<T, N>(s.A(k), s.F(k));
    else plainQR<T, N>(s.A(k), s.F(k), &heads[size_t(2) * N * k]);
  };
  if (W == CholSolve || W == QRSolve)
    for (int k = 0; k < s.count; ++k) factor(k);
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k) {
      if (W == CholFactor || W == QRFactor) factor(k);
      else if (W == CholSolve) plainCholeskySolve<T, N>(s.F(k), s.Bv(k), s.X(k));
      else plainQRSolve<T, N>(s.F(k), &heads[size_t(2) * N * k], s.Bv(k), s.X(k));
    }
    benchmark::DoNotOptimize(s.f.data());
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}

template <class T, int N, Work W>
void eigenRun(benchmark::State& state) {
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  using Vec = Eigen::Matrix<T, N, 1>;
  using Dec = std::conditional_t<W == CholFactor || W == CholSolve, Eigen::LLT<Mat>, Eigen::HouseholderQR<Mat>>;
  Systems<T> s(N, int(state.range(0)));
  std::vector<Dec> out(s.count);
  if (W == CholSolve || W == QRSolve)
    for (int k = 0; k < s.count; ++k) out[k].compute(Eigen::Map<const Mat>(s.A(k)));
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k) {
      if (W == CholFactor || W == QRFactor) out[k].compute(Eigen::Map<const Mat>(s.A(k)));
      else Eigen::Map<Vec>(s.X(k)) = out[k].solve(Eigen::Map<const Vec>(s.Bv(k)));
    }
    benchmark::DoNotOptimize(out.data());
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}

#ifdef QELM_BENCH_HAVE_LAPACKE
// Column-major; the factors work in place, so each matrix is copied first, as
// the others leave their source intact; the solves overwrite their
// right-hand side, so it is copied too.
template <class T, int N, Work W>
void lapackeRun(benchmark::State& state) {
  constexpr bool F32 = std::is_same_v<T, float>;
  Systems<T> s(N, int(state.range(0)));
  std::vector<T> tau(static_cast<size_t>(N) * s.count);
  openblas_set_num_threads(1);
  auto factor = [&](int k) {
    T* f = s.F(k);
    std::memcpy(f, s.A(k), sizeof(T) * N * N);
    if (W == CholFactor || W == CholSolve) {
      if constexpr (F32) LAPACKE_spotrf_work(LAPACK_COL_MAJOR, 'L', N, f, N);
      else LAPACKE_dpotrf_work(LAPACK_COL_MAJOR, 'L', N, f, N);
    } else {
      T work[64 * N];
      if constexpr (F32) LAPACKE_sgeqrf_work(LAPACK_COL_MAJOR, N, N, f, N, &tau[size_t(N) * k], work, 64 * N);
      else LAPACKE_dgeqrf_work(LAPACK_COL_MAJOR, N, N, f, N, &tau[size_t(N) * k], work, 64 * N);
    }
  };
  auto solve = [&](int k) {
    T* x = s.X(k);
    std::memcpy(x, s.Bv(k), sizeof(T) * N);
    if (W == CholSolve) {
      if constexpr (F32) LAPACKE_spotrs_work(LAPACK_COL_MAJOR, 'L', N, 1, s.F(k), N, x, N);
      else LAPACKE_dpotrs_work(LAPACK_COL_MAJOR, 'L', N, 1, s.F(k), N, x, N);
    } else {
      T work[64 * N];
      if constexpr (F32) {
        LAPACKE_sormqr_work(LAPACK_COL_MAJOR, 'L', 'T', N, 1, N, s.F(k), N, &tau[size_t(N) * k], x, N, work, 64 * N);
        LAPACKE_strtrs_work(LAPACK_COL_MAJOR, 'U', 'N', 'N', N, 1, s.F(k), N, x, N);
      } else {
        LAPACKE_dormqr_work(LAPACK_COL_MAJOR, 'L', 'T', N, 1, N, s.F(k), N, &tau[size_t(N) * k], x, N, work, 64 * N);
        LAPACKE_dtrtrs_work(LAPACK_COL_MAJOR, 'U', 'N', 'N', N, 1, s.F(k), N, x, N);
      }
    }
  };
  if (W == CholSolve || W == QRSolve)
    for (int k = 0; k < s.count; ++k) factor(k);
  for (auto _ : state) {
    for (int k = 0; k < s.count; ++k) {
      if (W == CholFactor || W == QRFactor) factor(k);
      else solve(k);
    }
    benchmark::DoNotOptimize(s.f.data());
    benchmark::DoNotOptimize(s.x.data());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * s.count);
}
#define CQ_LAPACKE(T, N, W, NAME) \
  BENCHMARK(lapackeRun<T, N, W>)->Name(NAME "/lapacke")->Arg(1000)->Arg(100000);
#else
#define CQ_LAPACKE(T, N, W, NAME)
#endif

#define CQ_ROW(T, N, W, NAME)                                                  \
  BENCHMARK(qelmRun<T, N, W>)->Name(NAME "/qelm")->Arg(1000)->Arg(100000);   \
  BENCHMARK(loopRun<T, N, W>)->Name(NAME "/loop")->Arg(1000)->Arg(100000);   \
  BENCHMARK(eigenRun<T, N, W>)->Name(NAME "/eigen")->Arg(1000)->Arg(100000); \
  CQ_LAPACKE(T, N, W, NAME)
#define CQ_BENCH(T, F, N)                                                  \
  CQ_ROW(T, N, CholFactor, "CholeskyDecomp_ma/" #F "/" #N)                 \
  CQ_ROW(T, N, CholSolve, "CholeskyBackSubst_mava/" #F "/" #N)             \
  CQ_ROW(T, N, QRFactor, "QRDecomp_ma/" #F "/" #N)                         \
  CQ_ROW(T, N, QRSolve, "QRBackSubst_mava/" #F "/" #N)

CQ_BENCH(float, 32f, 4)
CQ_BENCH(float, 32f, 6)
CQ_BENCH(double, 64f, 4)
CQ_BENCH(double, 64f, 6)

}  // namespace

BENCHMARK_MAIN();
