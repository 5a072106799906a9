// qelm demo: the library's everyday job on built-in data. Large arrays of small
// matrices are processed in every memory description, serially and with a
// parallel thread budget, checked against a plain loop, and timed.
#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

// The main job: factor and solve many 4x4 systems (demo_lu.cpp).
int demoLuRoad(int count, int budget);
// Points and bodies moved by rotations (demo_transform.cpp).
int demoTransformRoad(int count, int budget);
// Stiffness systems by Cholesky and principal axes of bodies (demo_mechanics.cpp).
int demoMechanicsRoad(int count, int budget);

namespace {

double seconds(std::chrono::steady_clock::time_point t0) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
}

// dst = src1 + src2 over `count` 4x4 matrices and one shared 4x4 matrix,
// through the standard, list (_L) and element-pointer (_P) descriptions.
int demoAddMatrices(int count, int budget) {
  qelSetNumThreads(budget);
  const int n = 4, bytes = sizeof(float);
  const int s1 = n * bytes, s0 = n * s1;
  std::vector<float> a(size_t(count) * 16), d(size_t(count) * 16), b(16);
  for (size_t k = 0; k < a.size(); ++k) a[k] = float(k % 97) * 0.25f;
  for (int k = 0; k < 16; ++k) b[k] = float(k) - 7.5f;

  std::vector<const float*> aList(count);
  std::vector<float*> dList(count);
  for (int m = 0; m < count; ++m) {
    aList[m] = &a[size_t(m) * 16];
    dList[m] = &d[size_t(m) * 16];
  }
  std::vector<const float*> aElems(16), bElems(16);
  std::vector<float*> dElems(16);
  for (int e = 0; e < 16; ++e) {
    aElems[e] = &a[e];
    bElems[e] = &b[e];
    dElems[e] = &d[e];
  }

  int failures = 0;
  auto run = [&](const char* name, auto call) {
    std::fill(d.begin(), d.end(), -1.0f);
    auto t0 = std::chrono::steady_clock::now();
    QelStatus st = call();
    double t = seconds(t0);
    double worst = 0;
    for (size_t k = 0; k < d.size(); ++k)
      worst = std::fmax(worst, std::fabs(double(d[k]) - (double(a[k]) + double(b[k % 16]))));
    bool ok = st == qelStatusOk && worst == 0;
    failures += !ok;
    std::printf("  %-22s status %4d  max error %.1g  %8.2f M matrices/s  %6.2f GB/s  %s\n", name,
                int(st), worst, count / t * 1e-6, 2.0 * count * 64 / t * 1e-9, ok ? "ok" : "WRONG");
  };
  std::printf("Add %d 4x4 matrices to one 4x4 matrix, thread budget %d\n", count, budget);
  run("standard", [&] { return qelmAdd_mam_32f(a.data(), s0, s1, bytes, b.data(), s1, bytes,
                                               d.data(), s0, s1, bytes, n, n, count); });
  run("object list (_L)", [&] { return qelmAdd_mam_32f_L(aList.data(), 0, s1, bytes, b.data(), s1,
                                                         bytes, dList.data(), 0, s1, bytes, n, n,
                                                         count); });
  run("element pointers (_P)", [&] { return qelmAdd_mam_32f_P(aElems.data(), 0, s0, bElems.data(),
                                                              0, dElems.data(), 0, s0, n, n,
                                                              count); });
  return failures;
}

}  // namespace

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::atoi(argv[1]) : 1000000;
  const QelLibraryVersion* v = qelmGetLibVersion();
  // The default budget is what this machine can use: the processors the
  // process may run on, serial under a passive wait policy.
  const int machine = qelGetNumThreads();
  std::printf("qelm %d.%d (%s), thread budget %d on this machine\n\n", v->major, v->minor, v->version,
              machine);
  int failures = 0;
  for (int systems : {1000, 100000}) {
    failures += demoLuRoad(systems, 1);
    if (machine > 1) failures += demoLuRoad(systems, machine);
  }
  std::printf("\n");
  failures += demoTransformRoad(count, 1);
  if (machine > 1) failures += demoTransformRoad(count, machine);
  std::printf("\n");
  failures += demoMechanicsRoad(100000, 1);
  if (machine > 1) failures += demoMechanicsRoad(100000, machine);
  std::printf("\n");
  failures += demoAddMatrices(count, 1);
  if (machine > 1) failures += demoAddMatrices(count, machine);
  qelSetNumThreads(0);
  std::printf("\n%s\n", failures ? "demo FAILED" : "all results checked");
  return failures ? 1 : 0;
}
