// The transform road: a cloud of points moved by one rigid motion, y = R p + t
// (Gaxpy with one matrix and one translation), and a swarm of bodies each
// turned by its own rotation (Mul over matrix and vector pairs), checked
// against a plain loop and timed.
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

int demoTransformRoad(int count, int budget) {
  qelSetNumThreads(budget);
  const int e = sizeof(float), s0 = 3 * e;
  std::vector<float> rot(size_t(count) * 9), pts(size_t(count) * 3), out(pts.size());
  for (int n = 0; n < count; ++n) {
    const float a = 0.001f * float(n % 6283), c = std::cos(a), s = std::sin(a);
    const float r[9] = {c, -s, 0, s, c, 0, 0, 0, 1};  // a turn about z
    for (int k = 0; k < 9; ++k) rot[size_t(n) * 9 + k] = r[k];
    for (int k = 0; k < 3; ++k) pts[size_t(n) * 3 + k] = float((n * 7 + k * 13) % 101) - 50.0f;
  }
  const float t[3] = {1.5f, -2.0f, 0.25f};

  int failures = 0;
  auto run = [&](const char* name, auto call, auto want) {
    auto t0 = std::chrono::steady_clock::now();
    const QelStatus st = call();
    const double secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    double worst = 0;
    for (int n = 0; n < count; ++n)
      for (int i = 0; i < 3; ++i) worst = std::fmax(worst, std::fabs(double(out[size_t(n) * 3 + i]) - want(n, i)));
    const bool ok = st == qelStatusOk && worst < 1e-4;
    failures += !ok;
    std::printf("  %-34s status %4d  max error %.1g  %8.2f M points/s  %s\n", name, int(st), worst,
                count / secs * 1e-6, ok ? "ok" : "WRONG");
  };
  auto dot = [&](const float* m, const float* p, int i) {
    return double(m[3 * i]) * p[0] + double(m[3 * i + 1]) * p[1] + double(m[3 * i + 2]) * p[2];
  };
  std::printf("Transform %d points, thread budget %d\n", count, budget);
  run("one motion R p + t (Gaxpy_mvav)",
      [&] { return qelmGaxpy_mvav_32f(rot.data(), s0, e, 3, 3, pts.data(), s0, e, 3, t, e, 3, out.data(), s0, e, count); },
      [&](int n, int i) { return dot(rot.data(), &pts[size_t(n) * 3], i) + t[i]; });
  run("a rotation per body (Mul_mava)",
      [&] { return qelmMul_mava_32f(rot.data(), 9 * e, s0, e, 3, 3, pts.data(), s0, e, 3, out.data(), s0, e, count); },
      [&](int n, int i) { return dot(&rot[size_t(n) * 9], &pts[size_t(n) * 3], i); });
  return failures;
}
