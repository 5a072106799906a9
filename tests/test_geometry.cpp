// Geometry on fixed sizes, all 87 exports: one table per group (small vectors,
// builders, transforms, 4x4 routines). Each result is checked bit for bit
// against a float model of the order of operations written here from the
// routine's definition, and within a few units in the last place against a
// long double formula (the builders against the textbook column-vector forms,
// transposed); operands lie 16-byte aligned and 4 bytes past it, outputs are
// fenced by canaries, array strides leave gaps.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <functional>
#include <random>
#include <type_traits>

#include "pinned_core.h"
#include "qelm/qelm.h"

namespace {

using LD = long double;
constexpr uint32_t kCanary = 0xA5A5A5A5u;

// n floats inside a canary-filled block, 16-byte aligned or 4 bytes past it.
struct Slot {
  alignas(16) float room[48];
  float* p;
  int n;
  Slot(int count, bool off4, const float* init = nullptr) : p(room + 8 + off4), n(count) {
    std::memset(room, 0xA5, sizeof room);
    if (init) std::memcpy(p, init, sizeof(float) * n);
  }
  bool fenced() const {
    for (const float* q = room; q < room + 48; ++q)
      if ((q < p || q >= p + n) && std::memcmp(q, &kCanary, 4) != 0) return false;
    return true;
  }
  float operator[](int i) const { return p[i]; }
};

bool sameBits(float a, float b) { return std::memcmp(&a, &b, 4) == 0; }
// |got - want| within `units` float epsilons of `scale` (the size of the terms).
::testing::AssertionResult close(float got, LD want, LD scale, int units = 8) {
  if (std::fabs(got - want) <= units * LD(FLT_EPSILON) * (scale + LD(FLT_MIN))) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << got << " vs " << double(want) << " (scale " << double(scale) << ")";
}

std::mt19937 rng(2011);
float uniform(float lo = -2, float hi = 2) { return std::uniform_real_distribution<float>(lo, hi)(rng); }

// ============================================================== small vectors

enum VOp { Add, Sub, MulC, Dot, Cross, LenSqr, Len, Max, Min, Normalize, Linear, Bary, Hermite, CatmullRom };

// The definition of each routine in T: float gives the library's bits (the
// order of every operation as defined, root and Hermite weights in 64 bits),
// long double the reference. Returns the number of elements written.
template <class T>
int vectorModel(VOp op, int n, const T* a, const T* b, const T* c, const T* e, T s, T s2, T* d) {
  using W = std::conditional_t<std::is_same_v<T, float>, double, LD>;
  auto root = [](T x) { return T(std::sqrt(W(x))); };
  auto dot = [&](const T* x, const T* y) { T t = x[0] * y[0]; for (int i = 1; i < n; ++i) t = t + x[i] * y[i]; return t; };
  auto hermite = [&](const T* p0, const T* t0, const T* p1, const T* t1) {
    const T q = s * s;
    const W q3 = W(q) * s, w1 = T(((s - W(q)) - q) + q3), w2 = T((q3 - 3 * W(q)) + q3), w3 = T(q3 - q);
    for (int i = 0; i < n; ++i) d[i] = (p0[i] - p1[i]) * T(w2) + ((p0[i] + t0[i] * T(w1)) + t1[i] * T(w3));
    return n;
  };
  switch (op) {
    case Add: for (int i = 0; i < n; ++i) d[i] = a[i] + b[i]; return n;
    case Sub: for (int i = 0; i < n; ++i) d[i] = a[i] - b[i]; return n;
    case MulC: for (int i = 0; i < n; ++i) d[i] = a[i] * s; return n;
    case Dot: d[0] = dot(a, b); return 1;
    case LenSqr: d[0] = dot(a, a); return 1;
    case Len: d[0] = root(dot(a, a)); return 1;
    case Max: for (int i = 0; i < n; ++i) d[i] = a[i] > b[i] ? a[i] : b[i]; return n;
    case Min: for (int i = 0; i < n; ++i) d[i] = a[i] < b[i] ? a[i] : b[i]; return n;
    case Normalize: {
      const T l = root(n == 4 ? ((a[1] * a[1] + a[2] * a[2]) + a[3] * a[3]) + a[0] * a[0] : dot(a, a));
      for (int i = 0; i < n; ++i) d[i] = a[i] / l;
      return n;
    }
    case Linear: for (int i = 0; i < n; ++i) d[i] = a[i] + (b[i] - a[i]) * s; return n;
    case Bary: for (int i = 0; i < n; ++i) d[i] = ((b[i] - a[i]) * s + a[i]) + (c[i] - a[i]) * s2; return n;
    case Hermite: return hermite(a, b, c, e);
    case CatmullRom: {
      T t0[4], t1[4];
      for (int i = 0; i < n; ++i) t0[i] = (c[i] - a[i]) * T(0.5), t1[i] = (e[i] - b[i]) * T(0.5);
      return hermite(b, t0, c, t1);
    }
    case Cross: {
      if (n == 2) return d[0] = a[0] * b[1] - a[1] * b[0], 1;
      if (n == 3) {
        for (int i = 0; i < 3; ++i) d[i] = a[(i + 1) % 3] * b[(i + 2) % 3] - a[(i + 2) % 3] * b[(i + 1) % 3];
        return 3;
      }
      auto m = [&](int i, int j) { return b[i] * c[j] - b[j] * c[i]; };  // 4D: the product of a, b, c
      d[0] = (m(2, 3) * a[1] - m(1, 3) * a[2]) + m(1, 2) * a[3];
      d[1] = T(0) - ((m(2, 3) * a[0] - m(0, 3) * a[2]) + m(0, 2) * a[3]);
      d[2] = (m(1, 3) * a[0] - m(0, 3) * a[1]) + m(0, 1) * a[3];
      d[3] = T(0) - ((m(1, 2) * a[0] - m(0, 2) * a[1]) + m(0, 1) * a[2]);
      return 4;
    }
  }
  return 0;
}

using VCall = std::function<QelStatus(const float*, const float*, const float*, const float*, float, float, float*)>;
struct VExp {
  const char* name;
  VOp op;
  int n;
  VCall call;
};
#define V_AB(OP, F, N) VExp{#F "_v" #N, OP, N, [](auto a, auto b, auto, auto, float, float, float* d) { return qelm##F##_v##N##_32f(a, b, d); }}
#define V_A(OP, F, N) VExp{#F "_v" #N, OP, N, [](auto a, auto, auto, auto, float, float, float* d) { return qelm##F##_v##N##_32f(a, d); }}
#define V_ROW(N)                                                                                                 \
  V_AB(Add, Add, N), V_AB(Sub, Sub, N), V_AB(Dot, DotProduct, N), V_AB(Max, Max, N), V_AB(Min, Min, N),            \
      V_A(LenSqr, LenSqr, N), V_A(Len, Len, N), V_A(Normalize, Normalize, N),                                      \
      VExp{"MulC_v" #N, MulC, N, [](auto a, auto, auto, auto, float s, float, float* d) { return qelmMulC_v##N##_32f(a, s, d); }}, \
      VExp{"InterpolationLinear_v" #N, Linear, N, [](auto a, auto b, auto, auto, float s, float, float* d) { return qelmInterpolationLinear_v##N##_32f(a, b, s, d); }}, \
      VExp{"BaryCentric_v" #N, Bary, N, [](auto a, auto b, auto c, auto, float s, float t, float* d) { return qelmBaryCentric_v##N##_32f(a, b, c, s, t, d); }}, \
      VExp{"Hermite_v" #N, Hermite, N, [](auto a, auto b, auto c, auto e, float s, float, float* d) { return qelmHermite_v##N##_32f(a, b, c, e, s, d); }}, \
      VExp{"InterpolationCatmullRom_v" #N, CatmullRom, N, [](auto a, auto b, auto c, auto e, float s, float, float* d) { return qelmInterpolationCatmullRom_v##N##_32f(a, b, c, e, s, d); }}
const std::vector<VExp> kVectors = {
    V_ROW(2), V_ROW(3), V_ROW(4), V_AB(Cross, CrossProduct, 2), V_AB(Cross, CrossProduct, 3),
    VExp{"CrossProduct_v4", Cross, 4, [](auto a, auto b, auto c, auto, float, float, float* d) { return qelmCrossProduct_v4_32f(a, b, c, d); }}};

TEST(Geometry, SmallVectorsAgainstTheirOrderAndLongDouble) {
  ASSERT_EQ(kVectors.size(), 42u);
  for (const VExp& e : kVectors)
    for (int round = 0; round < 40; ++round) {
      float src[4][4], sc[2] = {uniform(), uniform()};
      for (auto& v : src) for (float& x : v) x = uniform();
      if (round == 1) std::memcpy(src[1], src[0], sizeof src[0]);  // equal elements for Max, Min
      float want[4];
      const int outs = vectorModel<float>(e.op, e.n, src[0], src[1], src[2], src[3], sc[0], sc[1], want);
      LD wide[4][4], ref[4];
      for (int k = 0; k < 16; ++k) wide[k / 4][k % 4] = src[k / 4][k % 4];
      vectorModel<LD>(e.op, e.n, wide[0], wide[1], wide[2], wide[3], sc[0], sc[1], ref);
      for (bool off4 : {false, true}) {
        Slot a(4, off4, src[0]), b(4, !off4, src[1]), c(4, off4, src[2]), d4(4, off4, src[3]), out(outs, off4);
        ASSERT_EQ(e.call(a.p, b.p, c.p, d4.p, sc[0], sc[1], out.p), qelStatusOk) << e.name;
        EXPECT_TRUE(out.fenced()) << e.name << " wrote past its " << outs << " elements";
        for (int i = 0; i < outs; ++i) {
          EXPECT_TRUE(sameBits(out[i], want[i])) << e.name << " " << i << ": " << out[i] << " vs " << want[i];
          EXPECT_TRUE(close(out[i], ref[i], e.op == Normalize || e.op == Len ? std::fabs(ref[i]) : 64)) << e.name << " " << i;
        }
      }
      if (e.op != Cross && e.op != Dot && e.op != LenSqr && e.op != Len) {  // dst may be src1
        float inPlace[4];
        std::memcpy(inPlace, src[0], sizeof inPlace);
        e.call(inPlace, src[1], src[2], src[3], sc[0], sc[1], inPlace);
        EXPECT_EQ(std::memcmp(inPlace, want, 4 * outs), 0) << e.name << " in place";
      }
    }
}

TEST(Geometry, SmallVectorEdges) {
  const float nan = NAN, x[3] = {nan, 1, 2}, y[3] = {0, nan, 5}, z[4] = {}, p[4][3] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {-1, -2, -3}};
  float d[4];
  for (auto f : {qelmMax_v3_32f, qelmMin_v3_32f}) {  // a NaN on either side: src2's element
    f(x, y, d);
    EXPECT_EQ(d[0], 0.0f); EXPECT_TRUE(std::isnan(d[1])); EXPECT_EQ(d[2], f == qelmMax_v3_32f ? 5.0f : 2.0f);
  }
  EXPECT_EQ(qelmNormalize_v4_32f(z, d), qelStatusOk);
  for (float v : d) EXPECT_TRUE(std::isnan(v));
  const float pair[2] = {3, 4};
  qelmLen_v2_32f(pair, d); EXPECT_EQ(d[0], 5.0f);
  for (float s : {0.0f, 1.0f}) {
    qelmHermite_v3_32f(p[0], p[1], p[2], p[3], s, d);
    EXPECT_EQ(std::memcmp(d, p[s == 0 ? 0 : 2], 12), 0) << "Hermite at " << s;
    qelmInterpolationCatmullRom_v3_32f(p[0], p[1], p[2], p[3], s, d);
    EXPECT_EQ(std::memcmp(d, p[s == 0 ? 1 : 2], 12), 0) << "Catmull-Rom at " << s;
  }
  const float a[2] = {0.1f, 1e8f}, b[2] = {0.7f, -3.0f};  // val 1 rounds through src2 - src1
  qelmInterpolationLinear_v2_32f(a, b, 1.0f, d);
  EXPECT_EQ(d[0], a[0] + (b[0] - a[0])); EXPECT_NE(d[1], b[1]); EXPECT_EQ(d[1], a[1] + (b[1] - a[1]));
  qelmBaryCentric_v3_32f(p[0], p[1], p[2], 0, 0, d);
  EXPECT_EQ(std::memcmp(d, p[0], 12), 0);
}

// ============================================================== 4x4 matrices

using M4 = std::array<float, 16>;
using L4 = std::array<LD, 16>;
M4 randomMatrix() { M4 m; for (float& x : m) x = uniform(); return m; }
template <class T> std::array<T, 16> transposed(const std::array<T, 16>& a) {
  std::array<T, 16> t;
  for (int k = 0; k < 16; ++k) t[k] = a[(k % 4) * 4 + k / 4];
  return t;
}
// ((a(i,0) B0 + a(i,1) B1) + a(i,2) B2) + a(i,3) B3: the float model and the reference.
template <class T> std::array<T, 16> product(const std::array<T, 16>& a, const std::array<T, 16>& b) {
  std::array<T, 16> p;
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) p[4 * i + j] = ((a[4 * i] * b[j] + a[4 * i + 1] * b[4 + j]) + a[4 * i + 2] * b[8 + j]) + a[4 * i + 3] * b[12 + j];
  return p;
}
L4 wide(const M4& m) { L4 w; for (int k = 0; k < 16; ++k) w[k] = m[k]; return w; }
// Gauss-Jordan with partial pivoting; the determinant on the way.
L4 inverse(L4 a, LD* det = nullptr) {
  L4 r{};
  for (int i = 0; i < 4; ++i) r[5 * i] = 1;
  LD d = 1;
  for (int k = 0; k < 4; ++k) {
    int p = k;
    for (int i = k + 1; i < 4; ++i) if (std::fabs(a[4 * i + k]) > std::fabs(a[4 * p + k])) p = i;
    if (p != k) { d = -d; for (int j = 0; j < 4; ++j) std::swap(a[4 * k + j], a[4 * p + j]), std::swap(r[4 * k + j], r[4 * p + j]); }
    const LD piv = a[5 * k];
    d *= piv;
    for (int j = 0; j < 4; ++j) a[4 * k + j] /= piv, r[4 * k + j] /= piv;
    for (int i = 0; i < 4; ++i)
      if (i != k) { const LD f = a[4 * i + k]; for (int j = 0; j < 4; ++j) a[4 * i + j] -= f * a[4 * k + j], r[4 * i + j] -= f * r[4 * k + j]; }
  }
  if (det) *det = d;
  return r;
}
// The row-0 expansion as four lanes of 2x2 minors of rows 2 and 3, signed lanes added in pairs.
float detModel(const M4& m) {
  const float *r0 = &m[0], *r1 = &m[4], *r2 = &m[8], *r3 = &m[12];
  const int L[4] = {1, 0, 0, 0}, M[4] = {2, 2, 1, 1}, H[4] = {3, 3, 3, 2};
  float t[4];
  for (int k = 0; k < 4; ++k) {
    const float a = r2[M[k]], b = r2[H[k]], c = r2[L[k]], d = r3[H[k]], e = r3[M[k]], f = r3[L[k]];
    t[k] = (((a * d - b * e) * r1[L[k]] - (c * d - f * b) * r1[M[k]]) + (e * c - a * f) * r1[H[k]]) * r0[k];
  }
  return (t[0] - t[1]) + (t[2] - t[3]);
}

TEST(Geometry, MatrixRoutinesByOrderAndInPlace) {
  for (int round = 0; round < 200; ++round) {
    const M4 a = randomMatrix(), b = randomMatrix(), ab = product(a, b);
    const L4 ref = product(wide(a), wide(b));
    for (bool off4 : {false, true}) {
      Slot sa(16, off4, a.data()), sb(16, !off4, b.data()), d(16, off4), t(16, !off4), det(1, off4);
      ASSERT_EQ(qelmMul_mm4x4_32f(sa.p, sb.p, d.p), qelStatusOk);
      ASSERT_EQ(qelmMulTranspose_m4_32f(sa.p, sb.p, t.p), qelStatusOk);
      qelmDet_m4_32f(sa.p, det.p);
      const M4 abT = transposed(ab);
      for (int k = 0; k < 16; ++k) {
        EXPECT_TRUE(sameBits(d[k], ab[k]) && sameBits(t[k], abT[k])) << k;
        EXPECT_TRUE(close(d[k], ref[k], 8));
      }
      LD refDet;
      inverse(wide(a), &refDet);
      EXPECT_TRUE(sameBits(det[0], detModel(a)) && close(det[0], refDet, 24));
      qelmTranspose_m4_32f(sa.p, t.p);
      EXPECT_EQ(std::memcmp(t.p, transposed(a).data(), 64), 0);
      EXPECT_TRUE(d.fenced() && t.fenced() && det.fenced());
    }
    M4 in = a;  // in place: the product of the values before the call
    qelmMul_mm4x4_32f(in.data(), b.data(), in.data()); EXPECT_EQ(in, ab);
    in = b, qelmMul_mm4x4_32f(a.data(), in.data(), in.data()); EXPECT_EQ(in, ab);
    in = a, qelmMulTranspose_m4_32f(in.data(), b.data(), in.data()); EXPECT_EQ(in, transposed(ab));
    in = a, qelmTranspose_m4_32f(in.data(), in.data()); EXPECT_EQ(in, transposed(a));
  }
  M4 m{};
  Slot canary(16, false);
  const float* none = nullptr;
  EXPECT_EQ(qelmMul_mm4x4_32f(none, m.data(), canary.p), qelStatusNullPointer);
  EXPECT_EQ(qelmMul_mm4x4_32f(m.data(), none, canary.p), qelStatusNullPointer);
  EXPECT_EQ(qelmMul_mm4x4_32f(m.data(), m.data(), nullptr), qelStatusNullPointer);
  canary.n = 0; EXPECT_TRUE(canary.fenced());
}

TEST(Geometry, InvertWithItsDeterminantAndSingularRule) {
  for (int round = 0; round < 200; ++round) {
    const M4 a = randomMatrix();
    LD det;
    const L4 ref = inverse(wide(a), &det);
    LD big = 0, scale = 0;  // the error grows with the condition, about max|a| max|inverse|
    for (int k = 0; k < 16; ++k) big = std::max(big, std::fabs(LD(a[k]))), scale = std::max(scale, std::fabs(ref[k]));
    for (bool off4 : {false, true}) {
      Slot s(16, off4, a.data()), d(16, !off4), dd(1, off4);
      ASSERT_EQ(qelmInvert_m4_32f(s.p, off4 ? nullptr : dd.p, d.p), qelStatusOk);
      if (!off4) {
        EXPECT_TRUE(close(dd[0], det, 24));
      }
      for (int k = 0; k < 16; ++k) EXPECT_TRUE(close(d[k], ref[k], 4 * big * scale * scale, 16)) << k;
      EXPECT_TRUE(d.fenced() && (off4 || dd.fenced()));
    }
  }
  for (float target : {1e-36f, 2e-36f, 1e-18f, NAN}) {  // diag(target, 1, 1, 1): det exact
    M4 m{target, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    Slot d(16, false), dd(1, true);
    const QelStatus st = qelmInvert_m4_32f(m.data(), dd.p, d.p);
    EXPECT_EQ(st, target == 1e-36f ? qelStatusSingular : qelStatusOk);
    EXPECT_TRUE(sameBits(dd[0], target == 1e-36f ? 0.0f : target)) << target;
    if (target == 1e-36f) {
      d.n = 0;
      EXPECT_TRUE(d.fenced());
    } else if (target == 1e-18f) {
      EXPECT_TRUE(close(d[0], 1e18L, 1e18L) && close(d[5], 1, 1));
    } else if (std::isnan(target)) {
      EXPECT_TRUE(std::isnan(d[0]));
    }
  }
}

TEST(Geometry, IdentityAndItsWeakTest) {
  Slot id(16, true);
  qelmIdentity_m4_32f(id.p);
  for (int k = 0; k < 16; ++k) EXPECT_TRUE(sameBits(id[k], k % 5 ? 0.0f : 1.0f));
  EXPECT_TRUE(id.fenced());
  float det = 0;
  qelmDet_m4_32f(id.p, &det);
  EXPECT_EQ(det, 1.0f);
  struct Case { M4 m; int want; };
  M4 negZero{1, -0.0f, 0, 0, -0.0f, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, col3{1, 9, 9, 0, 9, 9, 9, 0, 9, 9, 9, 0, 9, 9, 9, 1};
  const std::vector<Case> cases = {{M4{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, 1}, {M4{}, 0},
                                   {M4{1, 2, 3, 4, 0, 5, 6, 7, 0, 8, 9, 1, 0, 2, 3, 4}, 1},  // column 0 matches
                                   {negZero, 1}, {col3, 1}, {M4{2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, 0},
                                   {M4{NAN, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, 0}, {M4{1, 9, 9, 9, 1, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9}, 0}};
  for (const Case& c : cases) {
    Qel32s got = -1;
    EXPECT_EQ(qelmIsIdentity_m4_32f(c.m.data(), &got), qelStatusOk);
    EXPECT_EQ(got, c.want);
  }
}

// ============================================================== builders

// The textbook column-vector matrices (a point is a column on the right), in long
// double; the row-vector builders must give their transposes.
L4 rows(std::initializer_list<LD> v) { L4 m{}; std::copy(v.begin(), v.end(), m.begin()); return m; }
L4 columnRotation(int axis, LD a) {
  const LD s = std::sin(a), c = std::cos(a);
  if (axis == 0) return rows({1, 0, 0, 0, 0, c, -s, 0, 0, s, c, 0, 0, 0, 0, 1});
  if (axis == 1) return rows({c, 0, s, 0, 0, 1, 0, 0, -s, 0, c, 0, 0, 0, 0, 1});
  return rows({c, -s, 0, 0, s, c, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1});
}
L4 columnLookAt(const float* a, bool left) {  // a: eye, at, up
  LD z[3], x[3], y[3], nz = 0, nx = 0;
  for (int i = 0; i < 3; ++i) z[i] = left ? LD(a[3 + i]) - a[i] : LD(a[i]) - a[3 + i], nz += z[i] * z[i];
  for (int i = 0; i < 3; ++i) z[i] /= std::sqrt(nz);
  for (int i = 0; i < 3; ++i) x[i] = a[6 + (i + 1) % 3] * z[(i + 2) % 3] - a[6 + (i + 2) % 3] * z[(i + 1) % 3], nx += x[i] * x[i];
  for (int i = 0; i < 3; ++i) x[i] /= std::sqrt(nx);
  for (int i = 0; i < 3; ++i) y[i] = z[(i + 1) % 3] * x[(i + 2) % 3] - z[(i + 2) % 3] * x[(i + 1) % 3];
  L4 m{};
  for (int i = 0; i < 3; ++i) m[i] = x[i], m[4 + i] = y[i], m[8 + i] = z[i];
  for (int i = 0; i < 3; ++i) m[3] -= x[i] * a[i], m[7] -= y[i] * a[i], m[11] -= z[i] * a[i];
  m[15] = 1;
  return m;
}
// Projections: x and y scales and offsets (the off-centre terms), depth 0..1 from zNear to zFar.
L4 columnProjection(bool perspective, bool left, LD xs, LD ys, LD xo, LD yo, LD n, LD f) {
  const LD h = left ? 1 : -1, range = left ? f - n : n - f;
  if (!perspective) return rows({xs, 0, 0, xo, 0, ys, 0, yo, 0, 0, 1 / range, -h * n / range, 0, 0, 0, 1});
  return rows({xs, 0, h * xo, 0, 0, ys, h * yo, 0, 0, 0, f / range, -h * n * f / range, 0, 0, h, 0});
}

struct BExp {
  const char* name;
  std::function<QelStatus(const float*, float*)> call;
  std::function<L4(const LD*, const float*)> column;
};
#define B(NAME, CALL, COLUMN) BExp{#NAME, [](const float* a, float* d) { return qelm##NAME##_m4_32f CALL; }, [](const LD* a, const float* f) { (void)a, (void)f; return COLUMN; }}
#define B_PROJ(NAME, PERSP, LEFT, XS, YS)                                                    \
  B(NAME, (a[0], a[1], a[2], a[3], d), columnProjection(PERSP, LEFT, XS, YS, 0, 0, a[2], a[3]))
#define B_OFF(NAME, PERSP, LEFT, S)                                                                                           \
  B(NAME, (a[0], a[1], a[2], a[3], a[4], a[5], d),                                                                            \
    columnProjection(PERSP, LEFT, S / (a[1] - a[0]), S / (a[3] - a[2]), (a[0] + a[1]) / (a[0] - a[1]),                       \
                     (a[2] + a[3]) / (a[2] - a[3]), a[4], a[5]))
const std::vector<BExp> kBuilders = {
    B(Translation, (a[0], a[1], a[2], d), rows({1, 0, 0, a[0], 0, 1, 0, a[1], 0, 0, 1, a[2], 0, 0, 0, 1})),
    B(Scaling, (a[0], a[1], a[2], d), rows({a[0], 0, 0, 0, 0, a[1], 0, 0, 0, 0, a[2], 0, 0, 0, 0, 1})),
    B(RotationX, (a[0], d), columnRotation(0, a[0])), B(RotationY, (a[0], d), columnRotation(1, a[0])),
    B(RotationZ, (a[0], d), columnRotation(2, a[0])),
    BExp{"RotationAxis", [](const float* a, float* d) { return qelmRotationAxis_v3m4_32f(a, a[3], d); },
         [](const LD* a, const float*) {  // c I + s [k]x + (1 - c) k k'
           const LD n = std::sqrt(a[0] * a[0] + a[1] * a[1] + a[2] * a[2]), k[3] = {a[0] / n, a[1] / n, a[2] / n};
           const LD s = std::sin(a[3]), c = std::cos(a[3]);
           L4 m = rows({c, -s * k[2], s * k[1], 0, s * k[2], c, -s * k[0], 0, -s * k[1], s * k[0], c, 0, 0, 0, 0, 1});
           for (int i = 0; i < 3; ++i) for (int j = 0; j < 3; ++j) m[4 * i + j] += (1 - c) * k[i] * k[j];
           return m;
         }},
    B(RotationYawPitchRoll, (a[0], a[1], a[2], d),  // roll about z first, then pitch about x, then yaw about y
      product(product(columnRotation(1, a[0]), columnRotation(0, a[1])), columnRotation(2, a[2]))),
    B(LookAtLH, (a, a + 3, a + 6, d), columnLookAt(f, true)), B(LookAtRH, (a, a + 3, a + 6, d), columnLookAt(f, false)),
    B_PROJ(OrthoLH, false, true, 2 / a[0], 2 / a[1]), B_PROJ(OrthoRH, false, false, 2 / a[0], 2 / a[1]),
    B_PROJ(PerspectiveLH, true, true, 2 * a[2] / a[0], 2 * a[2] / a[1]),
    B_PROJ(PerspectiveRH, true, false, 2 * a[2] / a[0], 2 * a[2] / a[1]),
    B_PROJ(PerspectiveFovLH, true, true, 1 / std::tan(a[0] / 2) / a[1], 1 / std::tan(a[0] / 2)),
    B_PROJ(PerspectiveFovRH, true, false, 1 / std::tan(a[0] / 2) / a[1], 1 / std::tan(a[0] / 2)),
    B_OFF(OrthoOffCenterLH, false, true, 2), B_OFF(OrthoOffCenterRH, false, false, 2),
    B_OFF(PerspectiveOffCenterLH, true, true, 2 * a[4]), B_OFF(PerspectiveOffCenterRH, true, false, 2 * a[4])};

TEST(Geometry, BuildersAreTheTextbookMatricesTransposed) {
  ASSERT_EQ(kBuilders.size(), 19u);
  for (const BExp& e : kBuilders)
    for (int round = 0; round < 50; ++round) {
      float a[9];  // increasing from 0.5: left < right < bottom < top < zNear < zFar; the fov below pi
      for (int k = 0; k < 9; ++k) a[k] = std::string(e.name).find("Look") == 0 ? uniform(-3, 3) : 0.5f + k + uniform(0, 0.5f);
      LD wide[9];
      std::copy(a, a + 9, wide);
      const L4 c = e.column(wide, a);
      LD scale = 0;
      for (LD x : c) scale = std::max(scale, std::fabs(x));
      Slot d(16, round % 2);
      ASSERT_EQ(e.call(a, d.p), qelStatusOk);
      for (int k = 0; k < 16; ++k) EXPECT_TRUE(close(d[k], c[(k % 4) * 4 + k / 4], scale, 16)) << e.name << " element " << k;
      EXPECT_TRUE(d.fenced());
    }
}

TEST(Geometry, BuilderEdges) {
  M4 z, axis;
  const float twoZ[3] = {0, 0, 2}, zero[3] = {};
  qelmRotationZ_m4_32f(0.7f, z.data()), qelmRotationAxis_v3m4_32f(twoZ, 0.7f, axis.data());
  EXPECT_EQ(axis, z);  // the axis is normalised first
  qelmRotationAxis_v3m4_32f(zero, 0.7f, axis.data());
  EXPECT_TRUE(std::isnan(axis[0]) && std::isnan(axis[10]));
  qelmPerspectiveLH_m4_32f(2, 2, 1, 1, z.data());
  EXPECT_TRUE(std::isinf(z[10]));
  const float eye[3] = {0, 0, -5}, at[3] = {}, up[3] = {0, 1, 0}, along[3] = {0, 0, 1};
  qelmLookAtLH_m4_32f(eye, at, up, z.data());
  EXPECT_EQ(z, (M4{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 5, 1}));
  EXPECT_FALSE(std::signbit(z[12]) || std::signbit(z[13]));  // 0 - 0 is +0
  EXPECT_EQ(qelmLookAtLH_m4_32f(eye, at, along, z.data()), qelStatusOk);
  EXPECT_TRUE(std::isnan(z[0]) && std::isnan(z[12]));
  M4 lh, rh;
  qelmOrthoLH_m4_32f(2, 2, 1, 3, lh.data()), qelmOrthoRH_m4_32f(2, 2, 1, 3, rh.data());
  EXPECT_TRUE(lh[10] == 0.5f && lh[14] == -0.5f && rh[10] == -0.5f && rh[14] == -0.5f);
  qelmRotationX_m4_32f(0, lh.data());
  EXPECT_FALSE(std::signbit(lh[9]));  // -s formed as 0 - s
}

// ============================================================== transforms

enum TKind { Plain, Coord, Normal };
using Single = QelStatus (*)(const Qel32f*, const Qel32f*, Qel32f*);
using Array = QelStatus (*)(const Qel32f*, const Qel32f*, int, Qel32f*, int, int);
struct TExp {
  const char* name;
  TKind kind;
  int n, outs;
  Single one;
  Array many;
};
#define T_ROW(OP, KIND, N, OUTS) TExp{#OP "_m4v" #N, KIND, N, OUTS, qelm##OP##_m4v##N##_32f, qelm##OP##_m4v##N##a_32f}
const std::vector<TExp> kTransforms = {T_ROW(AffineTransform, Plain, 2, 4), T_ROW(AffineTransform, Plain, 3, 4),
                                       T_ROW(AffineTransform, Plain, 4, 4), T_ROW(AffineTransformCoord, Coord, 2, 2),
                                       T_ROW(AffineTransformCoord, Coord, 3, 3), T_ROW(AffineTransformNormal, Normal, 2, 2),
                                       T_ROW(AffineTransformNormal, Normal, 3, 3)};

// Each form's order of the row additions, lane c; T = long double gives the reference.
template <class T, class M>
std::array<T, 4> transformModel(TKind kind, int n, const M& m, const float* v) {
  std::array<T, 4> r;
  for (int c = 0; c < 4; ++c) {
    auto R = [&](int k) { return T(m[4 * k + c]); };
    const T x = v[0], y = v[1], z = n > 2 ? T(v[2]) : T(0);
    if (kind == Normal) r[c] = n == 2 ? R(0) * x + R(1) * y : (R(0) * x + R(1) * y) + R(2) * z;
    else if (kind == Coord) r[c] = n == 2 ? (R(0) * x + R(3)) + R(1) * y : (R(3) + R(2) * z) + (R(0) * x + R(1) * y);
    else if (n == 4) r[c] = (R(0) * x + R(1) * y) + (R(2) * z + R(3) * T(v[3]));
    else r[c] = n == 2 ? (R(3) + R(0) * x) + R(1) * y : ((R(3) + R(0) * x) + R(1) * y) + R(2) * z;
  }
  if (kind == Coord) for (int c = 0; c < 4; ++c) r[c] = r[c] / r[3];
  return r;
}

TEST(Geometry, TransformsByOrderAlignedAndThroughGappedStrides) {
  for (const TExp& e : kTransforms)
    for (int round = 0; round < 30; ++round) {
      const M4 m = randomMatrix();
      const int count = round % 6;
      std::vector<float> src(count * 8 + 4);
      for (float& x : src) x = uniform();
      for (bool off4 : {false, true}) {  // single form
        Slot v(e.n, off4, src.data()), d(e.outs, !off4);
        ASSERT_EQ(e.one(m.data(), v.p, d.p), qelStatusOk);
        const auto want = transformModel<float>(e.kind, e.n, m, src.data());
        const auto ref = transformModel<LD>(e.kind, e.n, wide(m), src.data());
        for (int c = 0; c < e.outs; ++c) {
          EXPECT_TRUE(sameBits(d[c], want[c])) << e.name << " " << c;
          EXPECT_TRUE(close(d[c], ref[c], e.kind == Coord ? 1e3L * (1 + std::fabs(ref[c])) : 8)) << e.name;
        }
        EXPECT_TRUE(d.fenced());
      }
      // Arrays: packed, and with gaps of two elements after each source and three after each result.
      for (int gap : {0, 1}) {
        const int ss = 4 * (e.n + 2 * gap), ds = 4 * (e.outs + 3 * gap);
        std::vector<float> in(count * (e.n + 2) + 1), out(count * (e.outs + 3) + 4);
        std::memset(out.data(), 0xA5, out.size() * 4);
        for (int i = 0; i < count; ++i) std::copy_n(src.begin() + i * e.n, e.n, in.begin() + 1 + i * ss / 4);
        ASSERT_EQ(e.many(m.data(), in.data() + 1, ss, out.data() + 1, ds, count), qelStatusOk);
        for (int k = 0; k < int(out.size()); ++k) {
          const int i = (k - 1) / (ds / 4), c = (k - 1) % (ds / 4);
          if (k >= 1 && i < count && c < e.outs)
            EXPECT_TRUE(sameBits(out[k], transformModel<float>(e.kind, e.n, m, &src[i * e.n])[c])) << e.name << " " << i;
          else
            EXPECT_EQ(std::memcmp(&out[k], &kCanary, 4), 0) << e.name << " wrote a gap at " << k;
        }
      }
    }
  const M4 flat{1, 2, 0, 0, 3, 4, 0, 0, 5, 6, 0, 0, 0, 0, 0, 0}, move{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 7, 8, 9, 1};
  const float v[3] = {1, 2, 3};
  float d[4];
  EXPECT_EQ(qelmAffineTransformCoord_m4v2_32f(flat.data(), v, d), qelStatusOk);  // w = 0: no guard
  EXPECT_TRUE(!std::isfinite(d[0]) && !std::isfinite(d[1]));
  qelmAffineTransformNormal_m4v3_32f(move.data(), v, d);
  EXPECT_EQ(std::memcmp(d, v, 12), 0);
  qelmAffineTransform_m4v3_32f(move.data(), v, d);
  EXPECT_TRUE(d[0] == 8 && d[1] == 10 && d[2] == 12 && d[3] == 1);
}

// A world, a look-at view and a perspective projection, the points in front.
struct Scene {
  M4 projection, view, world;
  float port[4] = {640, 480, 0.25f, 0.75f};  // viewWidth, viewHeight, minZ, maxZ
  Scene() {
    const float eye[3] = {uniform(), uniform(), -8}, at[3] = {uniform(), uniform(), 0}, up[3] = {0.1f, 1, 0};
    qelmPerspectiveFovLH_m4_32f(uniform(0.6f, 1.4f), 4.0f / 3, 0.5f, 50, projection.data());
    qelmLookAtLH_m4_32f(eye, at, up, view.data());
    qelmRotationYawPitchRoll_m4_32f(uniform(), uniform(), uniform(), world.data());
    world[12] = uniform(), world[13] = uniform(), world[14] = uniform();
  }
  // Steps 4 and 5 of Project on a chain result r.
  std::array<float, 3> toScreen(std::array<float, 4> r) const {
    for (int c = 0; c < 3; ++c) r[c] = r[c] / r[3];
    const float hw = port[0] * 0.5f, hh = port[1] * 0.5f;
    return {hw + hw * r[0], hh + (0.0f - hh) * r[1], port[2] + (port[3] - port[2]) * r[2]};
  }
};
std::array<float, 4> times(const std::array<float, 4>& r, const M4& m) {  // (R0 r0 + R1 r1) + (R2 r2 + R3 r3)
  const M4 col = transposed(m);
  std::array<float, 4> o;
  for (int c = 0; c < 4; ++c) o[c] = (col[4 * c] * r[0] + col[4 * c + 1] * r[1]) + (col[4 * c + 2] * r[2] + col[4 * c + 3] * r[3]);
  return o;
}

TEST(Geometry, ProjectAndUnproject) {
  for (int round = 0; round < 50; ++round) {
    const Scene s;
    const int count = round % 5;
    float pts[4][3], scr[4][3], back[4][3], arr[4][4];
    for (auto& p : pts) for (float& x : p) x = uniform(-1, 1);
    const M4 chain = product(s.world, product(s.view, s.projection));
    for (int i = 0; i < 4; ++i) {
      const auto p = s.toScreen(times(times(transformModel<float>(Plain, 3, s.world, pts[i]), s.view), s.projection));
      Slot d(3, i % 2);
      ASSERT_EQ(qelmProject_m4v3_32f(s.projection.data(), s.view.data(), s.world.data(), pts[i], s.port[0], s.port[1], s.port[2], s.port[3], d.p), qelStatusOk);
      for (int c = 0; c < 3; ++c) EXPECT_TRUE(sameBits(d[c], p[c])) << "Project " << c;
      EXPECT_TRUE(d.fenced());
      std::memcpy(scr[i], d.p, 12);
      ASSERT_EQ(qelmUnproject_m4v3_32f(s.projection.data(), s.view.data(), s.world.data(), scr[i], s.port[0], s.port[1], s.port[2], s.port[3], back[i]), qelStatusOk);
      for (int c = 0; c < 3; ++c) EXPECT_NEAR(back[i][c], pts[i][c], 2e-3f) << "Unproject " << c;
      // Its bits: the device coordinates by the Qel32f chain inverted wide and rounded.
      const L4 inv = inverse(wide(product(product(s.world, s.view), s.projection)));
      M4 narrow;
      for (int k = 0; k < 16; ++k) narrow[k] = float(inv[k]);
      const float dev[3] = {(2.0f * scr[i][0]) / s.port[0] - 1.0f, (-2.0f * scr[i][1]) / s.port[1] + 1.0f, (scr[i][2] - s.port[2]) / (s.port[3] - s.port[2])};
      const auto u = transformModel<float>(Coord, 3, narrow, dev);
      for (int c = 0; c < 3; ++c) EXPECT_TRUE(sameBits(back[i][c], u[c])) << "Unproject bits " << c;
    }
    // Arrays: the chain multiplied once, the results through one transform; strides with gaps.
    std::memset(arr, 0xA5, sizeof arr);
    ASSERT_EQ(qelmProject_m4v3a_32f(s.projection.data(), s.view.data(), s.world.data(), pts[0], 12, s.port[0], s.port[1], s.port[2], s.port[3], arr[0], 16, count), qelStatusOk);
    for (int i = 0; i < 4; ++i) {
      const auto p = s.toScreen(transformModel<float>(Plain, 3, chain, pts[i]));
      for (int c = 0; c < 4; ++c) EXPECT_TRUE(i < count && c < 3 ? sameBits(arr[i][c], p[c]) : std::memcmp(&arr[i][c], &kCanary, 4) == 0) << i << c;
    }
    std::memset(arr, 0xA5, sizeof arr);
    ASSERT_EQ(qelmUnproject_m4v3a_32f(s.projection.data(), s.view.data(), s.world.data(), scr[0], 12, s.port[0], s.port[1], s.port[2], s.port[3], arr[0], 16, count), qelStatusOk);
    for (int i = 0; i < 4; ++i)
      for (int c = 0; c < 4; ++c) EXPECT_TRUE(i < count && c < 3 ? sameBits(arr[i][c], back[i][c]) : std::memcmp(&arr[i][c], &kCanary, 4) == 0);
  }
  // Identity chain: the viewport alone. A singular world: the device coordinates stay, arrays stay untouched.
  const M4 id{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, zero{};
  const float p[3] = {0.5f, -0.25f, 0.5f};
  float d[3];
  qelmProject_m4v3_32f(id.data(), id.data(), id.data(), p, 640, 480, 0.25f, 0.75f, d);
  EXPECT_TRUE(d[0] == 320 + 320 * 0.5f && d[1] == 240 - 240 * -0.25f && d[2] == 0.25f + 0.5f * 0.5f);
  EXPECT_EQ(qelmUnproject_m4v3_32f(id.data(), id.data(), zero.data(), d, 640, 480, 0.25f, 0.75f, d), qelStatusSingular);
  EXPECT_TRUE(d[0] == (2.0f * 480) / 640 - 1 && d[1] == (-2.0f * 300) / 480 + 1 && d[2] == 0.5f);
  Slot untouched(6, false);
  EXPECT_EQ(qelmUnproject_m4v3a_32f(id.data(), id.data(), zero.data(), p, 0, 640, 480, 0, 1, untouched.p, 12, 2), qelStatusSingular);
  EXPECT_EQ(qelmUnproject_m4v3a_32f(id.data(), id.data(), id.data(), p, 0, 640, 480, 0, 1, untouched.p, 12, 0), qelStatusOk);
  untouched.n = 0;
  EXPECT_TRUE(untouched.fenced());
}

// ---- the checked column-vector transform

struct H3 {
  std::vector<float> m, v, d;
  int s1, s2, vs0, vs2, ds0, ds2, count;
  H3(int n, int ms1, int ms2, int vStride2, int dStride2)
      : m(64), v(n * 4 * 3 + 4), d(n * 4 * 3 + 4), s1(ms1), s2(ms2), vs0(4 * (vStride2 / 4) * 3 + 4), vs2(vStride2),
        ds0(4 * (dStride2 / 4) * 3 + 8), ds2(dStride2), count(n) {
    for (float& x : m) x = uniform();
    for (float& x : v) x = uniform();
    for (int r = 0; r < 4; ++r) at(r, 3) = uniform(2, 3);  // keep w away from 0
    std::memset(d.data(), 0xA5, d.size() * 4);
  }
  float& at(int r, int c) { return m[(r * s1 + c * s2) / 4]; }
  float& in(int n, int k) { return v[(n * vs0 + k * vs2) / 4]; }
  float& out(int n, int k) { return d[(n * ds0 + k * ds2) / 4]; }
  QelStatus run() { return qelmAffineTransform3DH_mva_32f(m.data(), s1, s2, v.data(), vs0, vs2, d.data(), ds0, ds2, count); }
  // t = (M(r,0) x + M(r,1) y) + (M(r,2) z + M(r,3)), then t / t3 by its reciprocal unless |t3| <= FLT_MIN.
  void check(const std::string& how) {
    std::vector<bool> written(d.size());
    for (int n = 0; n < count; ++n) {
      float t[4];
      for (int r = 0; r < 4; ++r) t[r] = (at(r, 0) * in(n, 0) + at(r, 1) * in(n, 1)) + (at(r, 2) * in(n, 2) + at(r, 3));
      const bool ok = std::fabs(t[3]) > FLT_MIN;
      for (int k = 0; k < 3; ++k) {
        EXPECT_TRUE(sameBits(out(n, k), ok ? t[k] * (1.0f / t[3]) : FLT_MAX)) << how << " " << n << "," << k;
        written[(n * ds0 + k * ds2) / 4] = true;
      }
    }
    for (size_t k = 0; k < d.size(); ++k) EXPECT_TRUE(written[k] || std::memcmp(&d[k], &kCanary, 4) == 0) << how << " gap " << k;
  }
};

TEST(Geometry, AffineTransform3DHChecksPathsAndDivideByZero) {
  // Matrix row-major with gaps or column-major; vectors packed or with gaps (a general kernel).
  for (auto [s1, s2, vs2, ds2] : {std::array{16, 4, 4, 4}, {20, 4, 4, 4}, {4, 16, 4, 8}, {16, 4, 8, 4}, {16, 4, 4, 12}})
    for (int count : {1, 5, 130, 131})
      for (int threads : {1, 2}) {
        H3 h(count, s1, s2, vs2, ds2);
        const int zeroW = count > 3 ? count - 2 : -1;  // one vector with t3 = 0, in the second share
        if (zeroW > 0) h.in(zeroW, 0) = h.in(zeroW, 1) = h.in(zeroW, 2) = 0, h.at(3, 3) = 0;
        PinnedBudget budget(threads);
        EXPECT_EQ(h.run(), zeroW > 0 ? qelStatusDivideByZero : qelStatusOk);
        EXPECT_EQ(budget.calls() > 0, count >= 131) << "6 count above 784 goes to the driver";
        h.check("strides " + std::to_string(s1) + "," + std::to_string(s2) + " count " + std::to_string(count));
      }
  // Checks N C S, in that order, nothing written.
  H3 h(2, 16, 4, 4, 4);
  const float* none = nullptr;
  auto call = [&](const float* a, const float* b, float* c, int count, std::array<int, 6> st) {
    return qelmAffineTransform3DH_mva_32f(a, st[0], st[1], b, st[2], st[3], c, st[4], st[5], count);
  };
  const std::array<int, 6> good{16, 4, 16, 4, 16, 4};
  EXPECT_EQ(call(none, h.v.data(), h.d.data(), 0, good), qelStatusNullPointer);
  EXPECT_EQ(call(h.m.data(), none, h.d.data(), 1, good), qelStatusNullPointer);
  EXPECT_EQ(call(h.m.data(), h.v.data(), nullptr, 1, good), qelStatusNullPointer);
  for (int k = 0; k < 6; ++k)
    for (int bad : {0, 2, -4}) {
      auto st = good;
      st[k] = bad;
      EXPECT_EQ(call(h.m.data(), h.v.data(), h.d.data(), 0, st), qelStatusBadCount);
      EXPECT_EQ(call(h.m.data(), h.v.data(), h.d.data(), 1, st), qelStatusBadStride);
    }
  h.count = 0;
  h.check("failed checks");
}

}  // namespace
