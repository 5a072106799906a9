// Vector algebra on one thread, packed arrays of short vectors: DotProduct_vava
// and L2Norm_va (lengths 3 and 4, 1e3 and 1e5 vectors), CrossProduct_vava, and
// the streaming Saxpy_vava and LComb_vava over 1e6 elements (vectors of 4),
// against a loop of Eigen Map expressions and a plain loop on the same data,
// and memcpy of the same bytes for the streaming ones. Counters: items are
// vectors (ns/object), bytes read + written.
#include <benchmark/benchmark.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <Eigen/Core>
#include <Eigen/Geometry>
#include <cmath>
#include <cstring>
#include <random>
#include <type_traits>
#include <vector>

namespace {

enum class Op { Dot, Norm, Cross, Saxpy, LComb };
constexpr double kV1 = 1.5, kV2 = -0.5;

template <class T, Op O, int N>
struct Data {
  static constexpr int outLen = O == Op::Dot || O == Op::Norm ? 1 : N;
  int count;
  std::vector<T> a, b, d;
  explicit Data(int count_) : count(count_), a(size_t(N) * count_), b(a.size()), d(size_t(outLen) * count_) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (auto& v : a) v = T(u(rng));
    for (auto& v : b) v = T(u(rng));
  }
  static constexpr int64_t bytesPerObject() {
    return int64_t(sizeof(T)) * ((O == Op::Norm ? 1 : 2) * N + outLen);
  }
};

template <class T, Op O, int N>
QelStatus callQelm(Data<T, O, N>& p) {
  constexpr bool f = std::is_same_v<T, float>;
  const int e = sizeof(T), s0 = N * e, c = p.count;
  const T *a = p.a.data(), *b = p.b.data();
  T* d = p.d.data();
  if constexpr (O == Op::Dot) {
    if constexpr (f) return qelmDotProduct_vava_32f(a, s0, e, b, s0, e, d, N, c);
    else return qelmDotProduct_vava_64f(a, s0, e, b, s0, e, d, N, c);
  } else if constexpr (O == Op::Norm) {
    if constexpr (f) return qelmL2Norm_va_32f(a, s0, e, d, N, c);
    else return qelmL2Norm_va_64f(a, s0, e, d, N, c);
  } else if constexpr (O == Op::Cross) {
    if constexpr (f) return qelmCrossProduct_vava_32f(a, s0, e, b, s0, e, d, s0, e, c);
    else return qelmCrossProduct_vava_64f(a, s0, e, b, s0, e, d, s0, e, c);
  } else if constexpr (O == Op::Saxpy) {
    if constexpr (f) return qelmSaxpy_vava_32f(a, s0, e, T(kV1), b, s0, e, d, s0, e, N, c);
    else return qelmSaxpy_vava_64f(a, s0, e, T(kV1), b, s0, e, d, s0, e, N, c);
  } else {
    if constexpr (f) return qelmLComb_vava_32f(a, s0, e, T(kV1), b, s0, e, T(kV2), d, s0, e, N, c);
    else return qelmLComb_vava_64f(a, s0, e, T(kV1), b, s0, e, T(kV2), d, s0, e, N, c);
  }
}

// The peers, out of line as qelm's call is.
template <class T, Op O, int N>
[[gnu::noinline]] void eigenPass(const T* as, const T* bs, T* ds, int count) {
  using Vec = Eigen::Matrix<T, N, 1>;
  for (int k = 0; k < count; ++k) {
    Eigen::Map<const Vec> a(as + size_t(k) * N), b(bs + size_t(k) * N);
    if constexpr (O == Op::Dot) ds[k] = a.dot(b);
    else if constexpr (O == Op::Norm) ds[k] = a.norm();
    else if constexpr (O == Op::Cross) Eigen::Map<Vec>(ds + size_t(k) * N) = a.cross(b);
    else if constexpr (O == Op::Saxpy) Eigen::Map<Vec>(ds + size_t(k) * N) = a * T(kV1) + b;
    else Eigen::Map<Vec>(ds + size_t(k) * N) = a * T(kV1) + b * T(kV2);
  }
}

template <class T, Op O, int N>
[[gnu::noinline]] void plainPass(const T* as, const T* bs, T* ds, int count) {
  for (int k = 0; k < count; ++k) {
    const T *a = as + size_t(k) * N, *b = bs + size_t(k) * N;
    T* d = ds + size_t(k) * N;
    if constexpr (O == Op::Dot || O == Op::Norm) {
      T s = 0;
      for (int i = 0; i < N; ++i) s += a[i] * (O == Op::Norm ? a[i] : b[i]);
      ds[k] = O == Op::Norm ? std::sqrt(s) : s;
    } else if constexpr (O == Op::Cross) {
      const T x = a[1] * b[2] - a[2] * b[1], y = a[2] * b[0] - a[0] * b[2], z = a[0] * b[1] - a[1] * b[0];
      d[0] = x, d[1] = y, d[2] = z;
    } else {
      for (int i = 0; i < N; ++i) d[i] = a[i] * T(kV1) + (O == Op::LComb ? b[i] * T(kV2) : b[i]);
    }
  }
}

void report(benchmark::State& state, int64_t count, int64_t bytesPerObject) {
  state.SetItemsProcessed(state.iterations() * count);
  state.SetBytesProcessed(state.iterations() * count * bytesPerObject);
  state.counters["ns/object"] = benchmark::Counter(
      double(state.iterations() * count), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

enum class Peer { Qelm, Eigen, Loop, Memcpy };

template <class T, Op O, int N, Peer P>
void run(benchmark::State& state) {
  Data<T, O, N> p(int(state.range(0)));
  if (P == Peer::Qelm) qelSetNumThreads(1);
  for (auto _ : state) {
    if constexpr (P == Peer::Qelm) {
      if (callQelm(p) != qelStatusOk) state.SkipWithError("qelm call failed");
    } else if constexpr (P == Peer::Eigen) {
      eigenPass<T, O, N>(p.a.data(), p.b.data(), p.d.data(), p.count);
    } else if constexpr (P == Peer::Loop) {
      plainPass<T, O, N>(p.a.data(), p.b.data(), p.d.data(), p.count);
    } else {  // one source into dst: a stream in, a stream out (Saxpy and LComb read one more)
      std::memcpy(p.d.data(), p.a.data(), p.d.size() * sizeof(T));
    }
    benchmark::DoNotOptimize(p.d.data());
    benchmark::ClobberMemory();
  }
  if (P == Peer::Qelm) qelSetNumThreads(0);
  report(state, p.count, Data<T, O, N>::bytesPerObject());
}

#define QEL_VEC_BENCH(label, T, O, N, ...)                                                          \
  BENCHMARK(run<T, Op::O, N, Peer::Qelm>)->Name(label "/" #T "/" #N "/qelm")->Args({__VA_ARGS__});   \
  BENCHMARK(run<T, Op::O, N, Peer::Eigen>)->Name(label "/" #T "/" #N "/eigen")->Args({__VA_ARGS__}); \
  BENCHMARK(run<T, Op::O, N, Peer::Loop>)->Name(label "/" #T "/" #N "/loop")->Args({__VA_ARGS__});
#define QEL_VEC_BENCH2(label, T, O, N) QEL_VEC_BENCH(label, T, O, N, 1000) QEL_VEC_BENCH(label, T, O, N, 100000)
#define QEL_STREAM_BENCH(label, T, O)                                                                \
  QEL_VEC_BENCH(label, T, O, 4, 250000)                                                              \
  BENCHMARK(run<T, Op::O, 4, Peer::Memcpy>)->Name(label "/" #T "/4/memcpy")->Arg(250000);

QEL_VEC_BENCH2("DotProduct_vava", float, Dot, 3)
QEL_VEC_BENCH2("DotProduct_vava", float, Dot, 4)
QEL_VEC_BENCH2("DotProduct_vava", double, Dot, 3)
QEL_VEC_BENCH2("DotProduct_vava", double, Dot, 4)
QEL_VEC_BENCH2("L2Norm_va", float, Norm, 3)
QEL_VEC_BENCH2("L2Norm_va", float, Norm, 4)
QEL_VEC_BENCH2("L2Norm_va", double, Norm, 3)
QEL_VEC_BENCH2("L2Norm_va", double, Norm, 4)
QEL_VEC_BENCH2("CrossProduct_vava", float, Cross, 3)
QEL_VEC_BENCH2("CrossProduct_vava", double, Cross, 3)
QEL_STREAM_BENCH("Saxpy_vava", float, Saxpy)
QEL_STREAM_BENCH("Saxpy_vava", double, Saxpy)
QEL_STREAM_BENCH("LComb_vava", float, LComb)
QEL_STREAM_BENCH("LComb_vava", double, LComb)

}  // namespace

BENCHMARK_MAIN();
