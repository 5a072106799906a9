// Geometry on fixed sizes, one thread: arrays of 3-points through one 4x4
// matrix (AffineTransform and AffineTransformCoord, packed: points 12 bytes
// apart, results 16 or 12), and element routines called once per object over
// arrays of them (Mul_mm4x4, Invert_m4, Normalize_v3). Peers on the same bytes:
// GLM's default types (scalar code), GLM's aligned types with its SSE code
// (glmsimd), Eigen fixed-size maps, and a plain loop. A packed row-major qelm
// matrix is a column-major GLM or Eigen matrix: the point times it is the
// matrix times the column point, so every peer computes the same values.
// Counters: items are objects, ns/object = 1e9 / items_per_second.
#define GLM_FORCE_INTRINSICS
#include <benchmark/benchmark.h>
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <Eigen/Dense>
#include <cmath>
#include <cstring>
#include <string>
#include <utility>
#include <glm/glm.hpp>
#include <glm/gtc/type_aligned.hpp>
#include <glm/gtc/type_ptr.hpp>
#include <random>
#include <vector>

namespace {

void report(benchmark::State& state, int64_t count) {
  state.SetItemsProcessed(state.iterations() * count);
  state.counters["ns/object"] = benchmark::Counter(double(state.iterations() * count),
                                                   benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

template <class F>
void timed(benchmark::State& state, int64_t count, const void* out, F&& body) {
  qelSetNumThreads(1);
  for (auto _ : state) {
    body();
    benchmark::DoNotOptimize(out);
    benchmark::ClobberMemory();
  }
  report(state, count);
}

std::vector<float> randoms(size_t n, float lo = -1, float hi = 1) {
  std::mt19937 rng(11);
  std::uniform_real_distribution<float> u(lo, hi);
  std::vector<float> v(n);
  for (float& x : v) x = u(rng);
  return v;
}

// A matrix whose column 3 keeps w near 1 for the coordinate transform.
std::vector<float> transformMatrix() {
  std::vector<float> m = randoms(16);
  m[3] = m[7] = m[11] = 0.01f, m[15] = 1;
  return m;
}

// ---------------------------------------------------------------- point arrays

enum class Point { Plain, Coord };

template <Point P>
void qelmPoints(benchmark::State& state) {
  const int n = int(state.range(0));
  const auto m = transformMatrix(), src = randoms(3 * size_t(n));
  std::vector<float> dst(4 * size_t(n));
  timed(state, n, dst.data(), [&] {
    if constexpr (P == Point::Plain) qelmAffineTransform_m4v3a_32f(m.data(), src.data(), 12, dst.data(), 16, n);
    else qelmAffineTransformCoord_m4v3a_32f(m.data(), src.data(), 12, dst.data(), 12, n);
  });
}

template <Point P>
void loopPoints(benchmark::State& state) {
  const int n = int(state.range(0));
  const auto m = transformMatrix(), src = randoms(3 * size_t(n));
  std::vector<float> dst(4 * size_t(n));
  timed(state, n, dst.data(), [&] {
    const float* a = m.data();
    for (int i = 0; i < n; ++i) {
      const float *s = &src[3 * size_t(i)], x = s[0], y = s[1], z = s[2];
      float r[4];
      for (int c = 0; c < 4; ++c) r[c] = ((a[12 + c] + a[c] * x) + a[4 + c] * y) + a[8 + c] * z;
      if constexpr (P == Point::Plain) {
        for (int c = 0; c < 4; ++c) dst[4 * size_t(i) + c] = r[c];
      } else {
        for (int c = 0; c < 3; ++c) dst[3 * size_t(i) + c] = r[c] / r[3];
      }
    }
  });
}

template <class Mat, class Vec, Point P>
void glmPoints(benchmark::State& state) {
  const int n = int(state.range(0));
  const auto m = transformMatrix(), src = randoms(3 * size_t(n));
  std::vector<float> dst(4 * size_t(n));
  const Mat a = Mat(glm::make_mat4(m.data()));
  timed(state, n, dst.data(), [&] {
    for (int i = 0; i < n; ++i) {
      const float* s = &src[3 * size_t(i)];
      const Vec r = a * Vec(s[0], s[1], s[2], 1.0f);
      if constexpr (P == Point::Plain) {
        std::memcpy(&dst[4 * size_t(i)], &r[0], 16);
      } else {
        const Vec q = r / r.w;
        std::memcpy(&dst[3 * size_t(i)], &q[0], 12);
      }
    }
  });
}

template <Point P>
void eigenPoints(benchmark::State& state) {
  const int n = int(state.range(0));
  const auto m = transformMatrix(), src = randoms(3 * size_t(n));
  std::vector<float> dst(4 * size_t(n));
  const Eigen::Matrix4f a = Eigen::Map<const Eigen::Matrix4f>(m.data());
  timed(state, n, dst.data(), [&] {
    for (int i = 0; i < n; ++i) {
      const Eigen::Vector4f r = a * Eigen::Map<const Eigen::Vector3f>(&src[3 * size_t(i)]).homogeneous();
      if constexpr (P == Point::Plain) {
        Eigen::Map<Eigen::Vector4f> out(&dst[4 * size_t(i)]);
        out = r;
      } else {
        Eigen::Map<Eigen::Vector3f> out(&dst[3 * size_t(i)]);
        out = r.head<3>() / r.w();
      }
    }
  });
}

// ---------------------------------------------------------------- element routines over arrays

enum class Op { Mul, Invert, Normalize };

template <Op O>
struct Arrays {
  int n;
  std::vector<float> a, b, d;
  explicit Arrays(int count)
      : n(count), a(randoms(size_t(count) * (O == Op::Normalize ? 3 : 16))), b(randoms(a.size())), d(a.size()) {
    if constexpr (O == Op::Invert)  // well away from singular
      for (int k = 0; k < n; ++k)
        for (int i = 0; i < 4; ++i) a[16 * size_t(k) + 5 * i] += 4;
  }
  int size() const { return O == Op::Normalize ? 3 : 16; }
};

template <Op O>
void qelmEach(benchmark::State& state) {
  Arrays<O> p(int(state.range(0)));
  timed(state, p.n, p.d.data(), [&] {
    for (int k = 0; k < p.n; ++k) {
      const size_t at = size_t(k) * p.size();
      if constexpr (O == Op::Mul) qelmMul_mm4x4_32f(&p.a[at], &p.b[at], &p.d[at]);
      else if constexpr (O == Op::Invert) qelmInvert_m4_32f(&p.a[at], nullptr, &p.d[at]);
      else qelmNormalize_v3_32f(&p.a[at], &p.d[at]);
    }
  });
}

template <Op O>
void loopEach(benchmark::State& state) {
  Arrays<O> p(int(state.range(0)));
  timed(state, p.n, p.d.data(), [&] {
    for (int k = 0; k < p.n; ++k) {
      const size_t at = size_t(k) * p.size();
      const float *a = &p.a[at], *b = &p.b[at];
      float* d = &p.d[at];
      if constexpr (O == Op::Mul) {
        for (int i = 0; i < 4; ++i)
          for (int j = 0; j < 4; ++j)
            d[4 * i + j] = ((a[4 * i] * b[j] + a[4 * i + 1] * b[4 + j]) + a[4 * i + 2] * b[8 + j]) + a[4 * i + 3] * b[12 + j];
      } else {
        const float len = std::sqrt((a[0] * a[0] + a[1] * a[1]) + a[2] * a[2]);
        for (int i = 0; i < 3; ++i) d[i] = a[i] / len;
      }
    }
  });
}

template <class Mat, class Vec3, Op O>
void glmEach(benchmark::State& state) {
  Arrays<O> p(int(state.range(0)));
  timed(state, p.n, p.d.data(), [&] {
    for (int k = 0; k < p.n; ++k) {
      const size_t at = size_t(k) * p.size();
      if constexpr (O == Op::Normalize) {
        const Vec3 v = glm::normalize(glm::make_vec3(&p.a[at]));
        std::memcpy(&p.d[at], &v[0], 12);
      } else {
        const Mat a = Mat(glm::make_mat4(&p.a[at]));
        const Mat r = O == Op::Mul ? Mat(glm::make_mat4(&p.b[at])) * a : glm::inverse(a);
        std::memcpy(&p.d[at], &r[0][0], 64);
      }
    }
  });
}

template <Op O>
void eigenEach(benchmark::State& state) {
  Arrays<O> p(int(state.range(0)));
  timed(state, p.n, p.d.data(), [&] {
    for (int k = 0; k < p.n; ++k) {
      const size_t at = size_t(k) * p.size();
      if constexpr (O == Op::Normalize) {
        Eigen::Map<Eigen::Vector3f>(&p.d[at]) = Eigen::Map<const Eigen::Vector3f>(&p.a[at]).normalized();
      } else {
        const Eigen::Map<const Eigen::Matrix4f> a(&p.a[at]);
        if constexpr (O == Op::Mul) Eigen::Map<Eigen::Matrix4f>(&p.d[at]).noalias() = Eigen::Map<const Eigen::Matrix4f>(&p.b[at]) * a;
        else Eigen::Map<Eigen::Matrix4f>(&p.d[at]) = a.inverse();
      }
    }
  });
}

using Plain = glm::mat4;
using Simd = glm::aligned_mat4;

}  // namespace

// clang-format off
#define REG(NAME, ...) benchmark::RegisterBenchmark(NAME, __VA_ARGS__)
int registerAll() {
  for (auto [name, coord] : {std::pair{"AffineTransform_m4v3a", false}, {"AffineTransformCoord_m4v3a", true}})
    for (int n : {1000, 100000}) {
      auto row = [&](const char* impl) { return std::string(name) + "/32f/4/" + impl; };  // the size of the matrix
      REG(row("qelm").c_str(), coord ? qelmPoints<Point::Coord> : qelmPoints<Point::Plain>)->Arg(n);
      REG(row("glm").c_str(), coord ? glmPoints<Plain, glm::vec4, Point::Coord> : glmPoints<Plain, glm::vec4, Point::Plain>)->Arg(n);
      REG(row("glmsimd").c_str(), coord ? glmPoints<Simd, glm::aligned_vec4, Point::Coord> : glmPoints<Simd, glm::aligned_vec4, Point::Plain>)->Arg(n);
      REG(row("eigen").c_str(), coord ? eigenPoints<Point::Coord> : eigenPoints<Point::Plain>)->Arg(n);
      REG(row("loop").c_str(), coord ? loopPoints<Point::Coord> : loopPoints<Point::Plain>)->Arg(n);
    }
  REG("Mul_mm4x4/32f/4/qelm", qelmEach<Op::Mul>)->Arg(1000);
  REG("Mul_mm4x4/32f/4/glm", glmEach<Plain, glm::vec3, Op::Mul>)->Arg(1000);
  REG("Mul_mm4x4/32f/4/glmsimd", glmEach<Simd, glm::aligned_vec3, Op::Mul>)->Arg(1000);
  REG("Mul_mm4x4/32f/4/eigen", eigenEach<Op::Mul>)->Arg(1000);
  REG("Mul_mm4x4/32f/4/loop", loopEach<Op::Mul>)->Arg(1000);
  REG("Invert_m4/32f/4/qelm", qelmEach<Op::Invert>)->Arg(1000);
  REG("Invert_m4/32f/4/glm", glmEach<Plain, glm::vec3, Op::Invert>)->Arg(1000);
  REG("Invert_m4/32f/4/glmsimd", glmEach<Simd, glm::aligned_vec3, Op::Invert>)->Arg(1000);
  REG("Invert_m4/32f/4/eigen", eigenEach<Op::Invert>)->Arg(1000);
  REG("Normalize_v3/32f/3/qelm", qelmEach<Op::Normalize>)->Arg(1000);
  REG("Normalize_v3/32f/3/glm", glmEach<Plain, glm::vec3, Op::Normalize>)->Arg(1000);
  REG("Normalize_v3/32f/3/glmsimd", glmEach<Simd, glm::aligned_vec3, Op::Normalize>)->Arg(1000);
  REG("Normalize_v3/32f/3/eigen", eigenEach<Op::Normalize>)->Arg(1000);
  REG("Normalize_v3/32f/3/loop", loopEach<Op::Normalize>)->Arg(1000);
  return 0;
}
// clang-format on
const int registered = registerAll();

BENCHMARK_MAIN();
