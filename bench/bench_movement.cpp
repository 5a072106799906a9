// Moves and measures on one thread. Copy_ma of 4x4 Qel32f from a strided array,
// an object list and element pointers into a strided array, against memcpy of
// the same bytes; Transpose_m_32f of one square matrix (256, 2048, 4096) against
// a plain loop and Eigen's transpose() into another matrix; Transpose_ma_32f,
// FrobNorm_ma_32f and Trace_ma_32f of 4x4 objects against a loop of Eigen
// fixed-size Maps. Packed row-major data, the same for every peer. Counters:
// bytes read + written (GB/s), and ns per object where there are objects.
#include <benchmark/benchmark.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <Eigen/Core>
#include <cstring>
#include <vector>

namespace {

using Mat4 = Eigen::Matrix<float, 4, 4, Eigen::RowMajor>;
using MatX = Eigen::Matrix<float, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

template <class F>
void timed(benchmark::State& state, int64_t objects, int64_t bytes, const void* out, F&& body) {
  qelSetNumThreads(1);
  for (auto _ : state) {
    body();
    benchmark::DoNotOptimize(out);
    benchmark::ClobberMemory();
  }
  qelSetNumThreads(0);
  state.SetBytesProcessed(state.iterations() * bytes);
  state.SetItemsProcessed(state.iterations() * objects);
  state.counters["ns/object"] =
      benchmark::Counter(double(state.iterations() * objects), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

// `count` packed 4x4 objects with the descriptions of the same bytes.
struct Objects {
  int count;
  std::vector<float> src, dst;
  std::vector<const float*> list, elems;
  std::vector<float> out;  // one scalar per object
  explicit Objects(int n) : count(n), src(size_t(16) * n), dst(src.size()), out(n) {
    for (size_t k = 0; k < src.size(); ++k) src[k] = float(k % 13) * 0.5f;
    for (int k = 0; k < n; ++k) list.push_back(src.data() + size_t(16) * k);
    for (int k = 0; k < 16; ++k) elems.push_back(src.data() + k);
  }
};

// ---------------------------------------------------------------- Copy_ma 4x4

enum class From { S, L, P, Memcpy };

template <From F>
void copyMa(benchmark::State& state) {
  Objects o(int(state.range(0)));
  float* d = o.dst.data();
  timed(state, o.count, int64_t(2) * 64 * o.count, d, [&] {
    if constexpr (F == From::S) qelmCopy_ma_32f_SS(o.src.data(), 64, 16, 4, d, 64, 16, 4, 4, 4, o.count);
    if constexpr (F == From::L) qelmCopy_ma_32f_LS(o.list.data(), 0, 16, 4, d, 64, 16, 4, 4, 4, o.count);
    if constexpr (F == From::P) qelmCopy_ma_32f_PS(o.elems.data(), 0, 64, d, 64, 16, 4, 4, 4, o.count);
    if constexpr (F == From::Memcpy) std::memcpy(d, o.src.data(), o.src.size() * sizeof(float));
  });
}
BENCHMARK(copyMa<From::S>)->Name("Copy_ma_32f_SS/4/qelm")->Arg(1000000);
BENCHMARK(copyMa<From::L>)->Name("Copy_ma_32f_LS/4/qelm")->Arg(1000000);
BENCHMARK(copyMa<From::P>)->Name("Copy_ma_32f_PS/4/qelm")->Arg(1000000);
BENCHMARK(copyMa<From::Memcpy>)->Name("Copy_ma_32f/4/memcpy")->Arg(1000000);

// ---------------------------------------------------------------- Transpose_m_32f

enum class By { Qelm, Loop, Eigen };

template <By B>
void transposeM(benchmark::State& state) {
  const int n = int(state.range(0));
  MatX a = MatX::Random(n, n), t(n, n);
  timed(state, 0, int64_t(2) * n * n * 4, t.data(), [&] {
    if constexpr (B == By::Qelm) qelmTranspose_m_32f(a.data(), 4 * n, 4, n, n, t.data(), 4 * n, 4);
    if constexpr (B == By::Eigen) t.noalias() = a.transpose();
    if constexpr (B == By::Loop) {
      const float* s = a.data();
      float* d = t.data();
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) d[size_t(j) * n + i] = s[size_t(i) * n + j];
    }
  });
}
#define QEL_TRANSPOSE_M(B, label) BENCHMARK(transposeM<By::B>)->Name("Transpose_m_32f/" label)->Arg(256)->Arg(2048)->Arg(4096)
QEL_TRANSPOSE_M(Qelm, "qelm");
QEL_TRANSPOSE_M(Loop, "loop");
QEL_TRANSPOSE_M(Eigen, "eigen");

// ---------------------------------------------------------------- 4x4 arrays: Transpose, FrobNorm, Trace

enum class Op { Transpose, Frob, Trace };

template <Op O, bool Eigen>
void array4(benchmark::State& state) {
  Objects o(int(state.range(0)));
  const float* s = o.src.data();
  float *d = o.dst.data(), *out = o.out.data();
  const int64_t bytes = O == Op::Transpose ? 128 : 64 + 4;
  timed(state, o.count, bytes * o.count, d, [&] {
    if constexpr (!Eigen) {
      if constexpr (O == Op::Transpose) qelmTranspose_ma_32f(s, 64, 16, 4, 4, 4, d, 64, 16, 4, o.count);
      if constexpr (O == Op::Frob) qelmFrobNorm_ma_32f(s, 64, 16, 4, 4, 4, out, o.count);
      if constexpr (O == Op::Trace) qelmTrace_ma_32f(s, 64, 16, 4, 4, out, o.count);
    } else {
      for (int k = 0; k < o.count; ++k) {
        Eigen::Map<const Mat4> m(s + size_t(16) * k);
        if constexpr (O == Op::Transpose) Eigen::Map<Mat4>(d + size_t(16) * k) = m.transpose();
        if constexpr (O == Op::Frob) out[k] = m.norm();
        if constexpr (O == Op::Trace) out[k] = m.trace();
      }
    }
  });
}
#define QEL_ARRAY4(O, label)                                                                   \
  BENCHMARK(array4<Op::O, false>)->Name(label "/4/qelm")->Arg(1000)->Arg(1000000);            \
  BENCHMARK(array4<Op::O, true>)->Name(label "/4/eigen")->Arg(1000)->Arg(1000000)
QEL_ARRAY4(Transpose, "Transpose_ma_32f");
QEL_ARRAY4(Frob, "FrobNorm_ma_32f");
QEL_ARRAY4(Trace, "Trace_ma_32f");

}  // namespace

BENCHMARK_MAIN();
