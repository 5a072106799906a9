// What the thread budget buys: the same array calls at budgets 1, 2 and 4
// (and the default), 1e3 to 1e5 objects. Budgets above the processors are cut
// by the base library, so budget 4 on two processors runs as 2. Run the binary
// again under OMP_WAIT_POLICY=passive to see the sleeping runtime.
#include <benchmark/benchmark.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <random>
#include <vector>

namespace {

struct Data {
  std::vector<float> a, b, c;
  std::vector<Qel32s> index;
  explicit Data(int count) : a(size_t(count) * 16), b(a.size()), c(a.size()), index(size_t(count) * 4) {
    std::mt19937 rng(11);
    std::uniform_real_distribution<float> u(-1.0f, 1.0f);
    for (auto& v : a) v = u(rng);
    for (auto& v : b) v = u(rng);
  }
};

// budget 0: the base library's default.
template <int Budget>
void lu(benchmark::State& state) {
  const int count = int(state.range(0));
  Data d(count);
  qelSetNumThreads(Budget);
  for (auto _ : state) {
    qelmLUDecomp_ma_32f(d.a.data(), 64, 16, 4, d.index.data(), d.c.data(), 64, 16, 4, 4, count);
    benchmark::ClobberMemory();
  }
  state.counters["threads"] = qelGetNumThreads();
  qelSetNumThreads(0);
  state.SetItemsProcessed(state.iterations() * count);
}

template <int Budget>
void mul(benchmark::State& state) {
  const int count = int(state.range(0));
  Data d(count);
  qelSetNumThreads(Budget);
  for (auto _ : state) {
    qelmMul_mama_32f(d.a.data(), 64, 16, 4, 4, 4, d.b.data(), 64, 16, 4, 4, 4, d.c.data(), 64, 16, 4, count);
    benchmark::ClobberMemory();
  }
  state.counters["threads"] = qelGetNumThreads();
  qelSetNumThreads(0);
  state.SetItemsProcessed(state.iterations() * count);
}

#define THREAD_ROWS(fn, label)                                                                             \
  BENCHMARK(fn<1>)->Name(label "/budget1")->Arg(1000)->Arg(10000)->Arg(100000)->UseRealTime();           \
  BENCHMARK(fn<2>)->Name(label "/budget2")->Arg(1000)->Arg(10000)->Arg(100000)->UseRealTime();           \
  BENCHMARK(fn<4>)->Name(label "/budget4")->Arg(1000)->Arg(10000)->Arg(100000)->UseRealTime();           \
  BENCHMARK(fn<0>)->Name(label "/default")->Arg(1000)->Arg(10000)->Arg(100000)->UseRealTime();

THREAD_ROWS(lu, "Threads/LUDecomp_ma/float/4")
THREAD_ROWS(mul, "Threads/Mul_mama/float/4")

}  // namespace

BENCHMARK_MAIN();
