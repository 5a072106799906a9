// Matrix-by-vector products and Mul by a constant on one thread. qelm's
// Mul_mva (one matrix, many vectors), Mul_mava (matrix and vector in pairs) and
// Gaxpy_mva (y = A x + z, one matrix, many x and z) against a loop of Eigen
// fixed-size Map products and a plain fixed-size loop; Mul_mac (every 4x4
// matrix times one constant) against an Eigen Map loop, a plain loop and memcpy
// of the same bytes as the bandwidth reference. Packed row-major objects, every
// peer on the same data. Counters: items are objects (ns per object =
// 1e9 / items_per_second, also shown as ns/object) and bytes read + written.
#include <benchmark/benchmark.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <Eigen/Core>
#include <cstring>
#include <random>
#include <type_traits>
#include <vector>

namespace {

void report(benchmark::State& state, int64_t count, int64_t bytesPerObject) {
  state.SetItemsProcessed(state.iterations() * count);
  state.SetBytesProcessed(state.iterations() * count * bytesPerObject);
  state.counters["ns/object"] = benchmark::Counter(
      double(state.iterations() * count), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

template <class F>
void timed(benchmark::State& state, const void* out, F&& body) {
  for (auto _ : state) {
    body();
    benchmark::DoNotOptimize(out);
    benchmark::ClobberMemory();
  }
}

// ---------------------------------------------------------------- matrix by vector

// mva: one matrix, `count` vectors x; mava: `count` matrices, each with its own
// x; gaxpy: one matrix, `count` pairs of x and z.
enum class Form { mva, mava, gaxpy };

template <class T, int N, Form F>
struct Operands {
  int count;
  std::vector<T> a, x, z, y;
  explicit Operands(int count_)
      : count(count_), a(size_t(N) * N * (F == Form::mava ? count_ : 1)), x(size_t(N) * count_),
        z(F == Form::gaxpy ? size_t(N) * count_ : 0), y(size_t(N) * count_) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (auto& v : a) v = T(u(rng));
    for (auto& v : x) v = T(u(rng));
    for (auto& v : z) v = T(u(rng));
  }
  const T* aOf(int k) const { return a.data() + (F == Form::mava ? size_t(k) * N * N : 0); }
  static constexpr int64_t bytesPerObject() {
    return int64_t(sizeof(T)) * (F == Form::mava ? N * N + 2 * N : F == Form::gaxpy ? 3 * N : 2 * N);
  }
};

template <class T, int N, Form F>
void qelmMulVector(benchmark::State& state) {
  Operands<T, N, F> p(int(state.range(0)));
  const int e = sizeof(T), s1 = N * e, s0 = N * N * e, cnt = p.count;
  const T *a = p.a.data(), *x = p.x.data(), *z = p.z.data();
  T* y = p.y.data();
  qelSetNumThreads(1);
  timed(state, y, [&] {
    QelStatus st;
    if constexpr (std::is_same_v<T, float> && F == Form::mva)
      st = qelmMul_mva_32f(a, s1, e, N, N, x, s1, e, N, y, s1, e, cnt);
    else if constexpr (std::is_same_v<T, float> && F == Form::mava)
      st = qelmMul_mava_32f(a, s0, s1, e, N, N, x, s1, e, N, y, s1, e, cnt);
    else if constexpr (std::is_same_v<T, float>)
      st = qelmGaxpy_mva_32f(a, s1, e, N, N, x, s1, e, N, z, s1, e, N, y, s1, e, cnt);
    else if constexpr (F == Form::mva)
      st = qelmMul_mva_64f(a, s1, e, N, N, x, s1, e, N, y, s1, e, cnt);
    else if constexpr (F == Form::mava)
      st = qelmMul_mava_64f(a, s0, s1, e, N, N, x, s1, e, N, y, s1, e, cnt);
    else
      st = qelmGaxpy_mva_64f(a, s1, e, N, N, x, s1, e, N, z, s1, e, N, y, s1, e, cnt);
    if (st != qelStatusOk) state.SkipWithError("qelm call failed");
  });
  qelSetNumThreads(0);
  report(state, cnt, p.bytesPerObject());
}

// One pass of a peer over raw pointers, kept out of line as qelm's call is:
// inlined into the timing loop, GCC keeps Eigen's Gaxpy at about 8 ns/object
// instead of 2.5-3.5. Where one matrix serves every vector it is copied into a
// local ahead of the object loop, so the loop holds it rather than re-reading
// it after every store. GCC may vectorize these loops across objects: Eigen's
// 3x3 32f Gaxpy runs four objects in three SSE registers.
template <class T, int N, Form F>
[[gnu::noinline]] void eigenPass(const T* a, const T* xs, const T* zs, T* ys, int count) {
  using Mat = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  using Vec = Eigen::Matrix<T, N, 1>;
  const Mat held = Eigen::Map<const Mat>(a);
  for (int k = 0; k < count; ++k) {
    Eigen::Map<const Vec> x(xs + size_t(k) * N);
    Eigen::Map<Vec> y(ys + size_t(k) * N);
    if constexpr (F == Form::mva)
      y.noalias() = held * x;
    else if constexpr (F == Form::mava)
      y.noalias() = Eigen::Map<const Mat>(a + size_t(k) * N * N) * x;
    else
      y.noalias() = held * x + Eigen::Map<const Vec>(zs + size_t(k) * N);
  }
}

// Each inner product is summed in full before z is added, as qelm's Gaxpy does.
template <class T, int N, Form F>
[[gnu::noinline]] void plainPass(const T* a, const T* xs, const T* zs, T* ys, int count) {
  T held[N * N];
  std::memcpy(held, a, sizeof held);
  for (int k = 0; k < count; ++k) {
    const T* m = F == Form::mava ? a + size_t(k) * N * N : held;
    const T* x = xs + size_t(k) * N;
    T* y = ys + size_t(k) * N;
    for (int i = 0; i < N; ++i) {
      T s = 0;
      for (int q = 0; q < N; ++q) s += m[i * N + q] * x[q];
      y[i] = F == Form::gaxpy ? s + zs[size_t(k) * N + i] : s;
    }
  }
}

template <class T, int N, Form F>
void eigenLoop(benchmark::State& state) {
  Operands<T, N, F> p(int(state.range(0)));
  timed(state, p.y.data(), [&] { eigenPass<T, N, F>(p.a.data(), p.x.data(), p.z.data(), p.y.data(), p.count); });
  report(state, p.count, p.bytesPerObject());
}

template <class T, int N, Form F>
void plainLoop(benchmark::State& state) {
  Operands<T, N, F> p(int(state.range(0)));
  timed(state, p.y.data(), [&] { plainPass<T, N, F>(p.a.data(), p.x.data(), p.z.data(), p.y.data(), p.count); });
  report(state, p.count, p.bytesPerObject());
}

#define QEL_MV_BENCH(T, N, F, label)                                                                    \
  BENCHMARK(qelmMulVector<T, N, Form::F>)->Name(label "/" #T "/" #N "/qelm")->Arg(1000)->Arg(100000); \
  BENCHMARK(eigenLoop<T, N, Form::F>)->Name(label "/" #T "/" #N "/eigen")->Arg(1000)->Arg(100000);    \
  BENCHMARK(plainLoop<T, N, Form::F>)->Name(label "/" #T "/" #N "/loop")->Arg(1000)->Arg(100000);

QEL_MV_BENCH(float, 3, mva, "Mul_mva")
QEL_MV_BENCH(float, 4, mva, "Mul_mva")
QEL_MV_BENCH(double, 3, mva, "Mul_mva")
QEL_MV_BENCH(double, 4, mva, "Mul_mva")
QEL_MV_BENCH(float, 3, mava, "Mul_mava")
QEL_MV_BENCH(float, 4, mava, "Mul_mava")
QEL_MV_BENCH(double, 3, mava, "Mul_mava")
QEL_MV_BENCH(double, 4, mava, "Mul_mava")
QEL_MV_BENCH(float, 3, gaxpy, "Gaxpy_mva")
QEL_MV_BENCH(float, 4, gaxpy, "Gaxpy_mva")
QEL_MV_BENCH(double, 3, gaxpy, "Gaxpy_mva")
QEL_MV_BENCH(double, 4, gaxpy, "Gaxpy_mva")

// ---------------------------------------------------------------- 4x4 matrices by a constant

// Every object is read once and written once, so memcpy of the same bytes
// (source bytes in, destination bytes out) is the reference at sizes past
// cache; glibc's large-copy path need not be the fastest way to move them.
template <class T>
struct Scaled {
  int count;
  std::vector<T> src, dst;
  explicit Scaled(int count_) : count(count_), src(size_t(16) * count_), dst(src.size()) {
    for (size_t k = 0; k < src.size(); ++k) src[k] = T(k % 13) * T(0.5);
  }
  static constexpr int64_t bytesPerObject() { return 2 * 16 * int64_t(sizeof(T)); }
};

constexpr double kScale = 1.5;

template <class T>
void qelmMulMac(benchmark::State& state) {
  Scaled<T> m(int(state.range(0)));
  const int e = sizeof(T), s1 = 4 * e, s0 = 16 * e, cnt = m.count;
  qelSetNumThreads(1);
  timed(state, m.dst.data(), [&] {
    QelStatus st;
    if constexpr (std::is_same_v<T, float>)
      st = qelmMul_mac_32f(m.src.data(), s0, s1, e, T(kScale), m.dst.data(), s0, s1, e, 4, 4, cnt);
    else
      st = qelmMul_mac_64f(m.src.data(), s0, s1, e, T(kScale), m.dst.data(), s0, s1, e, 4, 4, cnt);
    if (st != qelStatusOk) state.SkipWithError("qelm Mul_mac failed");
  });
  qelSetNumThreads(0);
  report(state, cnt, m.bytesPerObject());
}

// The Eigen form a user would write per object, dst = src * c over Maps, and
// the flat plain loop; out of line like the passes above.
template <class T>
[[gnu::noinline]] void eigenScalePass(const T* src, T* dst, T c, int count) {
  using Arr = Eigen::Array<T, 16, 1>;
  for (int k = 0; k < count; ++k)
    Eigen::Map<Arr>(dst + size_t(k) * 16) = Eigen::Map<const Arr>(src + size_t(k) * 16) * c;
}

template <class T>
[[gnu::noinline]] void plainScalePass(const T* src, T* dst, T c, int count) {
  for (size_t k = 0; k < size_t(count) * 16; ++k) dst[k] = src[k] * c;
}

template <class T>
void eigenMulMac(benchmark::State& state) {
  Scaled<T> m(int(state.range(0)));
  timed(state, m.dst.data(), [&] { eigenScalePass<T>(m.src.data(), m.dst.data(), T(kScale), m.count); });
  report(state, m.count, m.bytesPerObject());
}

template <class T>
void plainMulMac(benchmark::State& state) {
  Scaled<T> m(int(state.range(0)));
  timed(state, m.dst.data(), [&] { plainScalePass<T>(m.src.data(), m.dst.data(), T(kScale), m.count); });
  report(state, m.count, m.bytesPerObject());
}

template <class T>
void memcpyMulMac(benchmark::State& state) {
  Scaled<T> m(int(state.range(0)));
  timed(state, m.dst.data(), [&] { std::memcpy(m.dst.data(), m.src.data(), m.src.size() * sizeof(T)); });
  report(state, m.count, m.bytesPerObject());
}

#define QEL_MAC_BENCH(T)                                                                                \
  BENCHMARK(qelmMulMac<T>)->Name("Mul_mac/" #T "/4/qelm")->Arg(1000)->Arg(1000000);                     \
  BENCHMARK(eigenMulMac<T>)->Name("Mul_mac/" #T "/4/eigen")->Arg(1000)->Arg(1000000);                   \
  BENCHMARK(plainMulMac<T>)->Name("Mul_mac/" #T "/4/loop")->Arg(1000)->Arg(1000000);                    \
  BENCHMARK(memcpyMulMac<T>)->Name("Mul_mac/" #T "/4/memcpy")->Arg(1000)->Arg(1000000);

QEL_MAC_BENCH(float)
QEL_MAC_BENCH(double)

}  // namespace

BENCHMARK_MAIN();
