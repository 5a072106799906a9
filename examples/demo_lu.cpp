// The main job, end to end: `count` contiguous 4x4 single-precision systems are
// factored with qelmLUDecomp_ma_32f and solved with qelmLUBackSubst_mava_32f
// under a thread budget, then checked by their residuals.
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

extern int demoLuRoad(int count, int budget);

int demoLuRoad(int count, int budget) {
  constexpr int n = 4;
  const int matBytes = n * n * sizeof(Qel32f), vecBytes = n * sizeof(Qel32f);
  std::vector<Qel32f> a(size_t(count) * n * n), lu(a.size()), b(size_t(count) * n), x(b.size());
  std::vector<Qel32s> index(size_t(count) * n);

  // Diagonally weighted random systems: well conditioned, yet pivoting still
  // reorders rows now and then.
  std::mt19937 rng(2011);
  std::uniform_real_distribution<float> u(-1.0f, 1.0f);
  for (int m = 0; m < count; ++m)
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n; ++j) a[(size_t(m) * n + i) * n + j] = u(rng) + (i == j ? 2.0f : 0.0f);
      b[size_t(m) * n + i] = u(rng);
    }

  qelSetNumThreads(budget);
  // The fastest of three runs: the first forked call of a process also starts
  // the runtime's threads.
  QelStatus st = qelStatusOk;
  double seconds = 0.0;
  for (int run = 0; run < 3 && st == qelStatusOk; ++run) {
    const auto start = std::chrono::steady_clock::now();
    st = qelmLUDecomp_ma_32f(a.data(), matBytes, vecBytes, sizeof(Qel32f), index.data(), lu.data(),
                             matBytes, vecBytes, sizeof(Qel32f), n, count);
    if (st == qelStatusOk)
      st = qelmLUBackSubst_mava_32f(lu.data(), matBytes, vecBytes, sizeof(Qel32f), index.data(),
                                    b.data(), vecBytes, sizeof(Qel32f), x.data(), vecBytes,
                                    sizeof(Qel32f), n, count);
    const double t = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (run == 0 || t < seconds) seconds = t;
  }
  qelSetNumThreads(0);
  if (st != qelStatusOk) {
    std::printf("LU road: %d systems, budget %d: status %d\n", count, budget, int(st));
    return 1;
  }

  // Each residual row is measured against the size of what was summed, so an
  // ill-conditioned system among many random ones doesn't mask a wrong solve.
  double worst = 0.0, worstRelative = 0.0;
  for (int m = 0; m < count; ++m)
    for (int i = 0; i < n; ++i) {
      double r = -double(b[size_t(m) * n + i]), scale = std::fabs(r);
      for (int j = 0; j < n; ++j) {
        const double t = double(a[(size_t(m) * n + i) * n + j]) * double(x[size_t(m) * n + j]);
        r += t;
        scale += std::fabs(t);
      }
      worst = std::max(worst, std::fabs(r));
      if (scale > 0) worstRelative = std::max(worstRelative, std::fabs(r) / scale);
    }
  std::printf("LU road: %d systems of 4x4 (32f), budget %d: worst |A x - b| = %.3g "
              "(%.3g of |A||x| + |b|), %.3g systems/s\n",
              count, budget, worst, worstRelative, seconds > 0 ? count / seconds : 0.0);
  // A backward-stable solve in single precision stays within a few dozen ulps.
  return worstRelative <= 64 * 0x1p-23 ? 0 : 1;
}
