// Two jobs of a mechanics code: many small stiffness systems K u = f solved by
// Cholesky factors (6x6, 64f, one per element of a mesh), and the principal
// axes of many rigid bodies from their 3x3 inertia tensors (symmetric
// eigenproblems). Both are checked by residuals and timed.
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

int demoMechanicsRoad(int count, int budget);

namespace {

// The fastest of three runs of `call`, in seconds; the first forked call of a
// process also starts the runtime's threads.
template <class F>
double fastest(F call, QelStatus& st) {
  double best = 0;
  for (int run = 0; run < 3; ++run) {
    const auto t0 = std::chrono::steady_clock::now();
    st = call();
    const double t = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    if (run == 0 || t < best) best = t;
    if (st != qelStatusOk) break;
  }
  return best;
}

// K = B^T B + I for a random 6x6 B: symmetric positive definite, as an element
// stiffness matrix with its rigid modes held is.
int stiffness(int count) {
  constexpr int n = 6, e = sizeof(double), row = n * e, mat = n * row;
  std::vector<double> k(size_t(count) * n * n), l(k.size()), f(size_t(count) * n), u(f.size());
  std::mt19937_64 rng(7);
  std::uniform_real_distribution<double> r(-1.0, 1.0);
  for (int m = 0; m < count; ++m) {
    double bm[n][n];
    for (auto& bi : bm)
      for (double& x : bi) x = r(rng);
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n; ++j) {
        double s = i == j ? 1.0 : 0.0;
        for (int q = 0; q < n; ++q) s += bm[q][i] * bm[q][j];
        k[(size_t(m) * n + i) * n + j] = s;
      }
      f[size_t(m) * n + i] = r(rng);
    }
  }
  QelStatus st;
  const double t = fastest([&] {
    QelStatus s = qelmCholeskyDecomp_ma_64f(k.data(), mat, row, e, l.data(), mat, row, e, n, count);
    return s != qelStatusOk ? s : qelmCholeskyBackSubst_mava_64f(l.data(), mat, row, e, f.data(), row, e,
                                                                   u.data(), row, e, n, count);
  }, st);
  double worst = 0;
  for (int m = 0; m < count && st == qelStatusOk; ++m)
    for (int i = 0; i < n; ++i) {
      double res = -f[size_t(m) * n + i], scale = std::fabs(res);
      for (int j = 0; j < n; ++j) {
        const double p = k[(size_t(m) * n + i) * n + j] * u[size_t(m) * n + j];
        res += p;
        scale += std::fabs(p);
      }
      worst = std::max(worst, std::fabs(res) / scale);
    }
  const bool ok = st == qelStatusOk && worst < 64 * 0x1p-52;
  std::printf("  stiffness K u = f, 6x6 (64f), Cholesky  status %d  worst residual %.2g of |K||u| + |f|  "
              "%8.3g systems/s  %s\n", int(st), worst, count / t, ok ? "ok" : "WRONG");
  return ok ? 0 : 1;
}

// The inertia tensor of eight random point masses: I = sum m (|r|^2 E - r r^T).
int principalAxes(int count) {
  constexpr int n = 3, e = sizeof(double), row = n * e, mat = n * row;
  std::vector<double> a(size_t(count) * n * n), vec(a.size()), val(size_t(count) * n), buf(n * n);
  std::mt19937_64 rng(11);
  std::uniform_real_distribution<double> r(-1.0, 1.0);
  for (int m = 0; m < count; ++m) {
    double* t = &a[size_t(m) * n * n];
    std::fill(t, t + n * n, 0.0);
    for (int p = 0; p < 8; ++p) {
      const double w = 1.0 + r(rng), x[3] = {r(rng), 2 * r(rng), 0.5 * r(rng)};
      const double rr = x[0] * x[0] + x[1] * x[1] + x[2] * x[2];
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) t[i * n + j] += w * ((i == j ? rr : 0.0) - x[i] * x[j]);
    }
  }
  QelStatus st;
  const double t = fastest([&] {
    return qelmEigenValuesVectorsSym_ma_64f(a.data(), mat, row, e, buf.data(), vec.data(), mat, row, e,
                                            val.data(), n, count);
  }, st);
  // |A v - lambda v| against the largest moment, and the axes orthonormal.
  double worst = 0;
  for (int m = 0; m < count && st == qelStatusOk; ++m) {
    const double* A = &a[size_t(m) * n * n];
    const double* V = &vec[size_t(m) * n * n];
    const double* L = &val[size_t(m) * n];
    for (int c = 0; c < n; ++c) {
      for (int i = 0; i < n; ++i) {
        double s = -L[c] * V[i * n + c];
        for (int j = 0; j < n; ++j) s += A[i * n + j] * V[j * n + c];
        worst = std::max(worst, std::fabs(s) / std::fabs(L[0]));
      }
      for (int d = 0; d < n; ++d) {
        double dot = 0;
        for (int i = 0; i < n; ++i) dot += V[i * n + c] * V[i * n + d];
        worst = std::max(worst, std::fabs(dot - (c == d ? 1.0 : 0.0)));
      }
    }
  }
  const bool ok = st == qelStatusOk && worst < 1e-12;
  std::printf("  principal axes, 3x3 (64f), symmetric eigen  status %d  worst residual %.2g  %8.3g bodies/s  %s\n",
              int(st), worst, count / t, ok ? "ok" : "WRONG");
  return ok ? 0 : 1;
}

}  // namespace

int demoMechanicsRoad(int count, int budget) {
  qelSetNumThreads(budget);
  std::printf("Mechanics: %d elements and bodies, thread budget %d\n", count, budget);
  const int failures = stiffness(count) + principalAxes(count);
  qelSetNumThreads(0);
  return failures;
}
