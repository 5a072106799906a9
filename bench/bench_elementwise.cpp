// Add and Sub on arrays of small objects against what a user would write
// otherwise: a plain loop, an Eigen Map loop, and memcpy of the same bytes as
// the bandwidth ceiling. Counters: ns per object and GB/s moved (reads + writes).
#include <benchmark/benchmark.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <Eigen/Core>
#include <cstring>
#include <vector>

namespace {

template <class T>
struct Arrays {
  std::vector<T> a, b, d;
  Arrays(size_t elems, size_t bElems) : a(elems), b(bElems), d(elems) {
    for (size_t k = 0; k < a.size(); ++k) a[k] = T(k % 13) * T(0.5);
    for (size_t k = 0; k < b.size(); ++k) b[k] = T(k % 7) - T(3);
  }
};

void report(benchmark::State& state, int64_t count, int64_t bytesPerObject) {
  state.SetItemsProcessed(state.iterations() * count);
  state.SetBytesProcessed(state.iterations() * count * bytesPerObject);
  state.counters["ns/object"] = benchmark::Counter(
      double(state.iterations() * count), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

// ---------------------------------------------------------------- matrices 4x4

template <class T>
using Mat4 = Eigen::Matrix<T, 4, 4, Eigen::RowMajor>;

enum class Shape { mam, mama, tama };

template <class T, Shape S>
QelStatus qelmCall(const T* a, const T* b, T* d, int count);

template <>
QelStatus qelmCall<float, Shape::mam>(const float* a, const float* b, float* d, int c) {
  return qelmAdd_mam_32f(a, 64, 16, 4, b, 16, 4, d, 64, 16, 4, 4, 4, c);
}
template <>
QelStatus qelmCall<double, Shape::mam>(const double* a, const double* b, double* d, int c) {
  return qelmAdd_mam_64f(a, 128, 32, 8, b, 32, 8, d, 128, 32, 8, 4, 4, c);
}
template <>
QelStatus qelmCall<float, Shape::mama>(const float* a, const float* b, float* d, int c) {
  return qelmAdd_mama_32f(a, 64, 16, 4, b, 64, 16, 4, d, 64, 16, 4, 4, 4, c);
}
template <>
QelStatus qelmCall<double, Shape::mama>(const double* a, const double* b, double* d, int c) {
  return qelmAdd_mama_64f(a, 128, 32, 8, b, 128, 32, 8, d, 128, 32, 8, 4, 4, c);
}
template <>
QelStatus qelmCall<float, Shape::tama>(const float* a, const float* b, float* d, int c) {
  return qelmSub_tama_32f(a, 64, 16, 4, b, 64, 16, 4, d, 64, 16, 4, 4, 4, c);
}
template <>
QelStatus qelmCall<double, Shape::tama>(const double* a, const double* b, double* d, int c) {
  return qelmSub_tama_64f(a, 128, 32, 8, b, 128, 32, 8, d, 128, 32, 8, 4, 4, c);
}

constexpr int64_t bytesOf(Shape s, int elem) { return (s == Shape::mam ? 2 : 3) * 16 * elem; }

template <class T, Shape S>
void BM_qelm(benchmark::State& state) {
  const int count = int(state.range(0));
  Arrays<T> m(size_t(count) * 16, S == Shape::mam ? 16 : size_t(count) * 16);
  qelSetNumThreads(1);
  for (auto _ : state) {
    qelmCall<T, S>(m.a.data(), m.b.data(), m.d.data(), count);
    benchmark::ClobberMemory();
  }
  report(state, count, bytesOf(S, sizeof(T)));
}

template <class T, Shape S>
void BM_plainLoop(benchmark::State& state) {
  const int count = int(state.range(0));
  Arrays<T> m(size_t(count) * 16, S == Shape::mam ? 16 : size_t(count) * 16);
  for (auto _ : state) {
    for (int n = 0; n < count; ++n) {
      const T* a = &m.a[size_t(n) * 16];
      const T* b = S == Shape::mam ? m.b.data() : &m.b[size_t(n) * 16];
      T* d = &m.d[size_t(n) * 16];
      for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
          d[i * 4 + j] = S == Shape::tama ? a[j * 4 + i] - b[i * 4 + j] : a[i * 4 + j] + b[i * 4 + j];
    }
    benchmark::ClobberMemory();
  }
  report(state, count, bytesOf(S, sizeof(T)));
}

template <class T, Shape S>
void BM_eigenMap(benchmark::State& state) {
  const int count = int(state.range(0));
  Arrays<T> m(size_t(count) * 16, S == Shape::mam ? 16 : size_t(count) * 16);
  for (auto _ : state) {
    for (int n = 0; n < count; ++n) {
      Eigen::Map<const Mat4<T>> a(&m.a[size_t(n) * 16]);
      Eigen::Map<const Mat4<T>> b(S == Shape::mam ? m.b.data() : &m.b[size_t(n) * 16]);
      Eigen::Map<Mat4<T>> d(&m.d[size_t(n) * 16]);
      if constexpr (S == Shape::tama) d.noalias() = a.transpose() - b;
      else d.noalias() = a + b;
    }
    benchmark::ClobberMemory();
  }
  report(state, count, bytesOf(S, sizeof(T)));
}

// Eigen with the whole array as one expression: the objects are rows of a
// count by 16 matrix, the single operand one row added to each.
template <class T, Shape S>
void BM_eigenWhole(benchmark::State& state) {
  const int count = int(state.range(0));
  Arrays<T> m(size_t(count) * 16, S == Shape::mam ? 16 : size_t(count) * 16);
  using Rows = Eigen::Matrix<T, Eigen::Dynamic, 16, Eigen::RowMajor>;
  using Row = Eigen::Matrix<T, 1, 16>;
  for (auto _ : state) {
    Eigen::Map<const Rows> a(m.a.data(), count, 16);
    Eigen::Map<Rows> d(m.d.data(), count, 16);
    if constexpr (S == Shape::mam) d.noalias() = a.rowwise() + Eigen::Map<const Row>(m.b.data());
    else d.noalias() = a + Eigen::Map<const Rows>(m.b.data(), count, 16);
    benchmark::ClobberMemory();
  }
  report(state, count, bytesOf(S, sizeof(T)));
}

// The bandwidth ceiling: memcpy moving the same number of bytes (half read,
// half written).
template <class T, Shape S>
void BM_memcpy(benchmark::State& state) {
  const int count = int(state.range(0));
  const size_t half = size_t(bytesOf(S, sizeof(T))) * count / 2;
  std::vector<char> from(half, 1), to(half);
  for (auto _ : state) {
    std::memcpy(to.data(), from.data(), half);
    benchmark::ClobberMemory();
  }
  report(state, count, bytesOf(S, sizeof(T)));
}

#define MATRIX_ROWS(T, S, label)                                                                     \
  BENCHMARK(BM_qelm<T, Shape::S>)->Name(label "/" #T "/4/qelm")->Arg(1000)->Arg(1000000);           \
  BENCHMARK(BM_plainLoop<T, Shape::S>)->Name(label "/" #T "/4/loop")->Arg(1000)->Arg(1000000);      \
  BENCHMARK(BM_eigenMap<T, Shape::S>)->Name(label "/" #T "/4/eigen")->Arg(1000)->Arg(1000000);      \
  MATRIX_WHOLE_##S(T, label)                                                                         \
  BENCHMARK(BM_memcpy<T, Shape::S>)->Name(label "/" #T "/4/memcpy")->Arg(1000)->Arg(1000000);
// A transposed operand has no one-expression form over the whole array.
#define MATRIX_WHOLE_mam(T, label) \
  BENCHMARK(BM_eigenWhole<T, Shape::mam>)->Name(label "/" #T "/4/eigen-whole")->Arg(1000)->Arg(1000000);
#define MATRIX_WHOLE_mama(T, label) \
  BENCHMARK(BM_eigenWhole<T, Shape::mama>)->Name(label "/" #T "/4/eigen-whole")->Arg(1000)->Arg(1000000);
#define MATRIX_WHOLE_tama(T, label)

MATRIX_ROWS(float, mam, "Add_mam")
MATRIX_ROWS(float, mama, "Add_mama")
MATRIX_ROWS(double, mama, "Add_mama")
MATRIX_ROWS(float, tama, "Sub_tama")
MATRIX_ROWS(double, tama, "Sub_tama")

// ---------------------------------------------------------------- vectors

template <int Len>
void BM_qelmAddVava(benchmark::State& state) {
  const int count = int(state.range(0));
  Arrays<float> v(size_t(count) * Len, size_t(count) * Len);
  qelSetNumThreads(1);
  const int s0 = Len * 4;
  for (auto _ : state) {
    qelmAdd_vava_32f(v.a.data(), s0, 4, v.b.data(), s0, 4, v.d.data(), s0, 4, Len, count);
    benchmark::ClobberMemory();
  }
  report(state, count, 3 * Len * 4);
}

template <int Len>
void BM_plainAddVava(benchmark::State& state) {
  const int count = int(state.range(0));
  Arrays<float> v(size_t(count) * Len, size_t(count) * Len);
  for (auto _ : state) {
    for (size_t k = 0; k < size_t(count) * Len; ++k) v.d[k] = v.a[k] + v.b[k];
    benchmark::ClobberMemory();
  }
  report(state, count, 3 * Len * 4);
}

template <int Len>
void BM_eigenAddVava(benchmark::State& state) {
  const int count = int(state.range(0));
  Arrays<float> v(size_t(count) * Len, size_t(count) * Len);
  using Vec = Eigen::Matrix<float, Len, 1>;
  for (auto _ : state) {
    for (int n = 0; n < count; ++n)
      Eigen::Map<Vec>(&v.d[size_t(n) * Len]) =
          Eigen::Map<const Vec>(&v.a[size_t(n) * Len]) + Eigen::Map<const Vec>(&v.b[size_t(n) * Len]);
    benchmark::ClobberMemory();
  }
  report(state, count, 3 * Len * 4);
}

template <int Len>
void BM_memcpyVava(benchmark::State& state) {
  const int count = int(state.range(0));
  const size_t half = size_t(3 * Len * 4) * count / 2;
  std::vector<char> from(half, 1), to(half);
  for (auto _ : state) {
    std::memcpy(to.data(), from.data(), half);
    benchmark::ClobberMemory();
  }
  report(state, count, 3 * Len * 4);
}

#define VECTOR_ROWS(L)                                                                           \
  BENCHMARK(BM_qelmAddVava<L>)->Name("Add_vava/float/" #L "/qelm")->Arg(1000)->Arg(1000000);       \
  BENCHMARK(BM_plainAddVava<L>)->Name("Add_vava/float/" #L "/loop")->Arg(1000)->Arg(1000000);      \
  BENCHMARK(BM_eigenAddVava<L>)->Name("Add_vava/float/" #L "/eigen")->Arg(1000)->Arg(1000000);     \
  BENCHMARK(BM_memcpyVava<L>)->Name("Add_vava/float/" #L "/memcpy")->Arg(1000)->Arg(1000000);

VECTOR_ROWS(3)
VECTOR_ROWS(4)

}  // namespace

BENCHMARK_MAIN();
