// Geometry on fixed sizes, all 87 exports, one table per group. Each result is
// checked bit for bit against a float model of its order of operations and
// within a few float units of a long double formula (the builders against the
// textbook column-vector forms, transposed); operands lie 16-byte aligned and 4
// bytes past it, outputs are fenced by canaries, array strides leave gaps.
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
using M4 = std::array<float, 16>;
using L4 = std::array<LD, 16>;
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
bool isCanary(const float& x) { return std::memcmp(&x, &kCanary, 4) == 0; }
// |got - want| within `units` float epsilons of `scale` (the size of the terms).
testing::AssertionResult close(float got, LD want, LD scale, int units = 8) {
  if (std::fabs(got - want) <= units * LD(FLT_EPSILON) * (scale + LD(FLT_MIN))) return testing::AssertionSuccess();
  return testing::AssertionFailure() << got << " vs " << double(want) << " (scale " << double(scale) << ")";
}
std::mt19937 rng(2011);
float uniform(float lo = -2, float hi = 2) { return std::uniform_real_distribution<float>(lo, hi)(rng); }
M4 randomMatrix() { M4 m; for (float& x : m) x = uniform(); return m; }
L4 wide(const M4& m) { L4 w; std::copy(m.begin(), m.end(), w.begin()); return w; }
template <class T> std::array<T, 16> transposed(std::array<T, 16> a) {
  for (int k = 0; k < 16; ++k) if (k % 4 > k / 4) std::swap(a[k], a[(k % 4) * 4 + k / 4]);
  return a;
}

// ============================================================== small vectors
enum VOp { Add, Sub, MulC, Dot, Cross, LenSqr, Len, Max, Min, Normalize, Linear, Bary, Hermite, CatmullRom };

// Each routine in T: float gives the library's bits (roots and Hermite weights
// in 64 bits), long double the reference. Returns the number of elements out.
template <class T>
int vectorModel(VOp op, int n, const T* a, const T* b, const T* c, const T* e, T s, T s2, T* d) {
  using W = std::conditional_t<std::is_same_v<T, float>, double, LD>;
  auto root = [](T x) { return T(std::sqrt(W(x))); };
  auto dot = [&](const T* x, const T* y) { T t = x[0] * y[0]; for (int i = 1; i < n; ++i) t = t + x[i] * y[i]; return t; };
  auto each = [&](auto f) { for (int i = 0; i < n; ++i) d[i] = f(i); return n; };
  auto hermite = [&](const T* p0, const T* t0, const T* p1, const T* t1) {
    const T q = s * s;
    const W q3 = W(q) * s, w1 = T(((s - W(q)) - q) + q3), w2 = T((q3 - 3 * W(q)) + q3), w3 = T(q3 - q);
    return each([&](int i) { return (p0[i] - p1[i]) * T(w2) + ((p0[i] + t0[i] * T(w1)) + t1[i] * T(w3)); });
  };
  T t0[4], t1[4];
  auto m = [&](int i, int j) { return b[i] * c[j] - b[j] * c[i]; };  // 4D cross: minors of b and c
  switch (op) {
    case Add: return each([&](int i) { return a[i] + b[i]; });
    case Sub: return each([&](int i) { return a[i] - b[i]; });
    case MulC: return each([&](int i) { return a[i] * s; });
    case Dot: return d[0] = dot(a, b), 1;
    case LenSqr: return d[0] = dot(a, a), 1;
    case Len: return d[0] = root(dot(a, a)), 1;
    case Max: return each([&](int i) { return a[i] > b[i] ? a[i] : b[i]; });
    case Min: return each([&](int i) { return a[i] < b[i] ? a[i] : b[i]; });
    case Normalize: {  // the four-element form adds the first square last
      const T l = root(n == 4 ? ((a[1] * a[1] + a[2] * a[2]) + a[3] * a[3]) + a[0] * a[0] : dot(a, a));
      return each([&](int i) { return a[i] / l; });
    }
    case Linear: return each([&](int i) { return a[i] + (b[i] - a[i]) * s; });
    case Bary: return each([&](int i) { return ((b[i] - a[i]) * s + a[i]) + (c[i] - a[i]) * s2; });
    case Hermite: return hermite(a, b, c, e);
    case CatmullRom:
      for (int i = 0; i < n; ++i) t0[i] = (c[i] - a[i]) * T(0.5), t1[i] = (e[i] - b[i]) * T(0.5);
      return hermite(b, t0, c, t1);
    case Cross:
      if (n == 2) return d[0] = a[0] * b[1] - a[1] * b[0], 1;
      if (n == 3) return each([&](int i) { return a[(i + 1) % 3] * b[(i + 2) % 3] - a[(i + 2) % 3] * b[(i + 1) % 3]; });
      d[0] = (m(2, 3) * a[1] - m(1, 3) * a[2]) + m(1, 2) * a[3];
      d[1] = T(0) - ((m(2, 3) * a[0] - m(0, 3) * a[2]) + m(0, 2) * a[3]);
      d[2] = (m(1, 3) * a[0] - m(0, 3) * a[1]) + m(0, 1) * a[3];
      d[3] = T(0) - ((m(1, 2) * a[0] - m(0, 2) * a[1]) + m(0, 1) * a[2]);
      return 4;
  }
  return 0;
}

using VCall = std::function<QelStatus(const float*, const float*, const float*, const float*, float, float, float*)>;
struct VExp { const char* name; VOp op; int n; VCall call; };
#define V_(OP, F, N, ...) VExp{#F "_v" #N, OP, N, [](auto a, auto b, auto c, auto e, float s, float t, float* d) { \
  (void)a, (void)b, (void)c, (void)e, (void)s, (void)t; return qelm##F##_v##N##_32f(__VA_ARGS__, d); }}
#define V_ROW(N)                                                                                                   \
  V_(Add, Add, N, a, b), V_(Sub, Sub, N, a, b), V_(Dot, DotProduct, N, a, b), V_(Max, Max, N, a, b),               \
      V_(Min, Min, N, a, b), V_(LenSqr, LenSqr, N, a), V_(Len, Len, N, a), V_(Normalize, Normalize, N, a),         \
      V_(MulC, MulC, N, a, s), V_(Linear, InterpolationLinear, N, a, b, s), V_(Bary, BaryCentric, N, a, b, c, s, t), \
      V_(Hermite, Hermite, N, a, b, c, e, s), V_(CatmullRom, InterpolationCatmullRom, N, a, b, c, e, s)
const std::vector<VExp> kVectors = {V_ROW(2), V_ROW(3), V_ROW(4), V_(Cross, CrossProduct, 2, a, b),
                                    V_(Cross, CrossProduct, 3, a, b), V_(Cross, CrossProduct, 4, a, b, c)};

// Round 1 has equal sources, round 2 NaNs and signed zeros (Max and Min take src2's element).
TEST(Geometry, SmallVectorsAgainstTheirOrderAndLongDouble) {
  ASSERT_EQ(kVectors.size(), 42u);
  for (const VExp& e : kVectors)
    for (int round = 0; round < 40; ++round) {
      float src[4][4], sc[2] = {uniform(), uniform()}, want[4], in[4];
      for (auto& v : src) for (float& x : v) x = uniform();
      if (round == 1) std::memcpy(src[1], src[0], sizeof src[0]);
      if (round == 2) src[0][0] = NAN, src[1][1] = NAN, src[1][2] = 0.0f, src[0][2] = -0.0f;
      const int outs = vectorModel<float>(e.op, e.n, src[0], src[1], src[2], src[3], sc[0], sc[1], want);
      LD w[4][4], ref[4];
      for (int k = 0; k < 16; ++k) w[k / 4][k % 4] = src[k / 4][k % 4];
      vectorModel<LD>(e.op, e.n, w[0], w[1], w[2], w[3], sc[0], sc[1], ref);
      for (bool off4 : {false, true}) {
        Slot a(4, off4, src[0]), b(4, !off4, src[1]), c(4, off4, src[2]), d4(4, off4, src[3]), out(outs, off4);
        ASSERT_EQ(e.call(a.p, b.p, c.p, d4.p, sc[0], sc[1], out.p), qelStatusOk) << e.name;
        EXPECT_TRUE(out.fenced()) << e.name << " wrote past its " << outs << " elements";
        for (int i = 0; i < outs; ++i)
          EXPECT_TRUE(sameBits(out[i], want[i]) && (round == 2 || close(out[i], ref[i], e.op == Normalize || e.op == Len ? std::fabs(ref[i]) : 64)))
              << e.name << " " << i << ": " << out[i] << " vs " << want[i];
      }
      std::memcpy(in, src[0], sizeof in);  // dst may be src1
      if (e.op != Cross && e.op != Dot && e.op != LenSqr && e.op != Len) e.call(in, src[1], src[2], src[3], sc[0], sc[1], in);
      EXPECT_EQ(std::memcmp(in, outs == e.n && e.op != Cross ? want : src[0], 4 * outs), 0) << e.name << " in place";
    }
  float d[4] = {};  // a zero vector normalises into NaNs
  qelmNormalize_v4_32f(d, d);
  EXPECT_TRUE(std::isnan(d[0]) && std::isnan(d[1]) && std::isnan(d[2]) && std::isnan(d[3]));
}

// ============================================================== 4x4 matrices
// ((a(i,0) B0 + a(i,1) B1) + a(i,2) B2) + a(i,3) B3: the float model and the reference.
template <class T> std::array<T, 16> product(const std::array<T, 16>& a, const std::array<T, 16>& b) {
  std::array<T, 16> p;
  for (int k = 0, i = 0, j = 0; k < 16; ++k, i = k / 4 * 4, j = k % 4)
    p[k] = ((a[i] * b[j] + a[i + 1] * b[4 + j]) + a[i + 2] * b[8 + j]) + a[i + 3] * b[12 + j];
  return p;
}
// Gauss-Jordan with partial pivoting in long double; the determinant on the way.
L4 inverse(const M4& m, LD* det = nullptr) {
  LD a[4][8] = {}, d = 1;
  for (int k = 0; k < 16; ++k) a[k / 4][k % 4] = m[k], a[k / 4][4 + k / 4] = 1;
  for (int k = 0, p = 0; k < 4; ++k, p = k) {
    for (int i = k + 1; i < 4; ++i) p = std::fabs(a[i][k]) > std::fabs(a[p][k]) ? i : p;
    if (p != k) std::swap(a[p], a[k]), d = -d;
    d *= a[k][k];
    for (int j = 7; j >= k; --j) a[k][j] /= a[k][k];
    for (int i = 0; i < 4; ++i) for (int j = 7; j >= k && i != k; --j) a[i][j] -= a[i][k] * a[k][j];
  }
  L4 r;
  for (int k = 0; k < 16; ++k) r[k] = a[k / 4][4 + k % 4];
  return det ? *det = d, r : r;
}
// The row-0 expansion as four lanes of 2x2 minors of rows 2 and 3, signed lanes added in pairs.
float detModel(const M4& m) {
  const float *r1 = &m[4], *r2 = &m[8], *r3 = &m[12];
  const int L[4] = {1, 0, 0, 0}, M[4] = {2, 2, 1, 1}, H[4] = {3, 3, 3, 2};
  float t[4];
  for (int k = 0; k < 4; ++k) {
    const float a = r2[M[k]], b = r2[H[k]], c = r2[L[k]], d = r3[H[k]], e = r3[M[k]], f = r3[L[k]];
    t[k] = (((a * d - b * e) * r1[L[k]] - (c * d - f * b) * r1[M[k]]) + (e * c - a * f) * r1[H[k]]) * m[k];
  }
  return (t[0] - t[1]) + (t[2] - t[3]);
}

TEST(Geometry, MatrixRoutinesByOrderAndInPlace) {
  for (int round = 0; round < 200; ++round) {
    const M4 a = randomMatrix(), b = randomMatrix(), ab = product(a, b), abT = transposed(ab);
    const L4 ref = product(wide(a), wide(b));
    LD det, big = 0, scale = 0;  // the inverse's error grows with max|a| max|inverse|
    const L4 inv = inverse(a, &det);
    for (int k = 0; k < 16; ++k) big = std::max(big, std::fabs(LD(a[k]))), scale = std::max(scale, std::fabs(inv[k]));
    for (bool off4 : {false, true}) {
      Slot sa(16, off4, a.data()), sb(16, !off4, b.data()), d(16, off4), t(16, !off4), i(16, off4), dt(1, off4), di(1, !off4);
      ASSERT_EQ(qelmMul_mm4x4_32f(sa.p, sb.p, d.p) | qelmMulTranspose_m4_32f(sa.p, sb.p, t.p) | qelmDet_m4_32f(sa.p, dt.p), 0);
      ASSERT_EQ(qelmInvert_m4_32f(sa.p, off4 ? nullptr : di.p, i.p), qelStatusOk);
      for (int k = 0; k < 16; ++k)
        EXPECT_TRUE(sameBits(d[k], ab[k]) && sameBits(t[k], abT[k]) && close(d[k], ref[k], 8) && close(i[k], inv[k], 4 * big * scale * scale, 16)) << k;
      EXPECT_TRUE(sameBits(dt[0], detModel(a)) && close(dt[0], det, 24) && (off4 || close(di[0], det, 24)));
      qelmTranspose_m4_32f(sa.p, t.p);
      EXPECT_EQ(std::memcmp(t.p, transposed(a).data(), 64), 0);
      EXPECT_TRUE(d.fenced() && t.fenced() && i.fenced() && dt.fenced() && di.fenced());
    }
    M4 in = a;  // in place: the product of the values before the call
    qelmMul_mm4x4_32f(in.data(), b.data(), in.data()); EXPECT_EQ(in, ab);
    in = b, qelmMul_mm4x4_32f(a.data(), in.data(), in.data()); EXPECT_EQ(in, ab);
    in = a, qelmMulTranspose_m4_32f(in.data(), b.data(), in.data()); EXPECT_EQ(in, abT);
    in = a, qelmTranspose_m4_32f(in.data(), in.data()); EXPECT_EQ(in, transposed(a));
  }
  Slot canary(0, false);  // Mul checks its pointers, writing nothing
  const M4 m{};
  EXPECT_EQ(qelmMul_mm4x4_32f(nullptr, m.data(), canary.p) + qelmMul_mm4x4_32f(m.data(), nullptr, canary.p), 2 * qelStatusNullPointer);
  EXPECT_TRUE(qelmMul_mm4x4_32f(m.data(), m.data(), nullptr) == qelStatusNullPointer && canary.fenced());
}

// diag(x, 1, 1, 1), the determinant exact: singular strictly below 2^-119, det 0 and no inverse
// (at the edge the refined reciprocal overflows: no values to check there).
TEST(Geometry, InvertSingularEdgeIdentityAndItsWeakTest) {
  for (float x : {0x1.fffffep-120f, 0x1p-119f, 1e-18f, NAN}) {
    const M4 m{x, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    const bool singular = x < 0x1p-119f;
    Slot d(singular ? 0 : 16, false), dd(1, true);
    EXPECT_EQ(qelmInvert_m4_32f(m.data(), dd.p, d.p), singular ? qelStatusSingular : qelStatusOk) << x;
    EXPECT_TRUE(sameBits(dd[0], singular ? 0.0f : x) && d.fenced()) << x;
    EXPECT_TRUE(x == 1e-18f ? close(d[0], 1e18L, 1e18L) && close(d[5], 1, 1) : std::isnan(x) == std::isnan(d[0])) << x;
  }
  Slot id(16, true);
  qelmIdentity_m4_32f(id.p);
  for (int k = 0; k < 16; ++k) EXPECT_TRUE(sameBits(id[k], k % 5 ? 0.0f : 1.0f) && id.fenced());
  // (0, 0) must be 1, then one column equal to the identity's is enough; -0 equals 0.
  for (const auto& [m, want] : std::vector<std::pair<M4, int>>{
           {M4{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, 1}, {M4{}, 0}, {M4{1, 2, 3, 4, 0, 5, 6, 7, 0, 8, 9, 1, 0, 2, 3, 4}, 1},
           {M4{1, -0.0f, 0, 0, -0.0f, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, 1}, {M4{1, 9, 9, 0, 9, 9, 9, 0, 9, 9, 9, 0, 9, 9, 9, 1}, 1},
           {M4{NAN, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, 0}, {M4{1, 9, 9, 9, 1, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9}, 0}}) {
    Qel32s got = -1;
    EXPECT_TRUE(qelmIsIdentity_m4_32f(m.data(), &got) == qelStatusOk && got == want) << got;
  }
}

// ============================================================== builders
// The textbook column-vector matrices in long double; the row-vector builders give their transposes.
L4 rows(std::initializer_list<LD> v) { L4 m{}; std::copy(v.begin(), v.end(), m.begin()); return m; }
L4 columnRotation(int axis, LD a) {
  const LD s = std::sin(a), c = std::cos(a);
  if (axis == 0) return rows({1, 0, 0, 0, 0, c, -s, 0, 0, s, c, 0, 0, 0, 0, 1});
  if (axis == 1) return rows({c, 0, s, 0, 0, 1, 0, 0, -s, 0, c, 0, 0, 0, 0, 1});
  return rows({c, -s, 0, 0, s, c, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1});
}
using V3 = std::array<LD, 3>;
V3 unit(V3 v) { const LD n = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]); for (LD& x : v) x /= n; return v; }
V3 cross(const LD* u, const V3& v) { return {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]}; }
L4 columnLookAt(const LD* a, LD h) {  // a: eye, at, up; the view direction h (at - eye)
  const V3 z = unit({h * (a[3] - a[0]), h * (a[4] - a[1]), h * (a[5] - a[2])}), x = unit(cross(a + 6, z)), y = cross(z.data(), x);
  L4 m{};
  for (int i = 0; i < 3; ++i) m[i] = x[i], m[4 + i] = y[i], m[8 + i] = z[i], m[3] -= x[i] * a[i], m[7] -= y[i] * a[i], m[11] -= z[i] * a[i];
  return m[15] = 1, m;
}
// Projections: x and y scales and offsets, depth 0..1 from zNear to zFar.
L4 columnProjection(bool perspective, bool left, LD xs, LD ys, LD xo, LD yo, LD n, LD f) {
  const LD h = left ? 1 : -1, range = left ? f - n : n - f;
  if (!perspective) return rows({xs, 0, 0, xo, 0, ys, 0, yo, 0, 0, 1 / range, -h * n / range, 0, 0, 0, 1});
  return rows({xs, 0, h * xo, 0, 0, ys, h * yo, 0, 0, 0, f / range, -h * n * f / range, 0, 0, h, 0});
}
L4 columnAxis(const LD* a) {  // c I + s [k]x + (1 - c) k k'
  const V3 k = unit({a[0], a[1], a[2]});
  const LD s = std::sin(a[3]), c = std::cos(a[3]);
  L4 m = rows({c, -s * k[2], s * k[1], 0, s * k[2], c, -s * k[0], 0, -s * k[1], s * k[0], c, 0, 0, 0, 0, 1});
  for (int i = 0; i < 9; ++i) m[4 * (i / 3) + i % 3] += (1 - c) * k[i / 3] * k[i % 3];
  return m;
}

struct BExp { const char* name; std::function<QelStatus(const float*, float*)> call; std::function<L4(const LD*)> column; };
#define B(NAME, CALL, COLUMN) BExp{#NAME, [](const float* a, float* d) { return qelm##NAME##_32f CALL; }, [](const LD* a) { return COLUMN; }}
#define B_PROJ(NAME, P, L, XS, YS) B(NAME##_m4, (a[0], a[1], a[2], a[3], d), columnProjection(P, L, XS, YS, 0, 0, a[2], a[3]))
#define B_OFF(NAME, P, L, S) B(NAME##_m4, (a[0], a[1], a[2], a[3], a[4], a[5], d), columnProjection(P, L, S / (a[1] - a[0]), \
    S / (a[3] - a[2]), (a[0] + a[1]) / (a[0] - a[1]), (a[2] + a[3]) / (a[2] - a[3]), a[4], a[5]))
const std::vector<BExp> kBuilders = {
    B(Translation_m4, (a[0], a[1], a[2], d), rows({1, 0, 0, a[0], 0, 1, 0, a[1], 0, 0, 1, a[2], 0, 0, 0, 1})),
    B(Scaling_m4, (a[0], a[1], a[2], d), rows({a[0], 0, 0, 0, 0, a[1], 0, 0, 0, 0, a[2], 0, 0, 0, 0, 1})),
    B(RotationX_m4, (a[0], d), columnRotation(0, a[0])), B(RotationY_m4, (a[0], d), columnRotation(1, a[0])),
    B(RotationZ_m4, (a[0], d), columnRotation(2, a[0])), B(RotationAxis_v3m4, (a, a[3], d), columnAxis(a)),
    B(RotationYawPitchRoll_m4, (a[0], a[1], a[2], d),  // roll about z first, then pitch about x, then yaw about y
      product(product(columnRotation(1, a[0]), columnRotation(0, a[1])), columnRotation(2, a[2]))),
    B(LookAtLH_m4, (a, a + 3, a + 6, d), columnLookAt(a, 1)), B(LookAtRH_m4, (a, a + 3, a + 6, d), columnLookAt(a, -1)),
    B_PROJ(OrthoLH, false, true, 2 / a[0], 2 / a[1]), B_PROJ(OrthoRH, false, false, 2 / a[0], 2 / a[1]),
    B_PROJ(PerspectiveLH, true, true, 2 * a[2] / a[0], 2 * a[2] / a[1]),
    B_PROJ(PerspectiveRH, true, false, 2 * a[2] / a[0], 2 * a[2] / a[1]),
    B_PROJ(PerspectiveFovLH, true, true, 1 / std::tan(a[0] / 2) / a[1], 1 / std::tan(a[0] / 2)),
    B_PROJ(PerspectiveFovRH, true, false, 1 / std::tan(a[0] / 2) / a[1], 1 / std::tan(a[0] / 2)),
    B_OFF(OrthoOffCenterLH, false, true, 2), B_OFF(OrthoOffCenterRH, false, false, 2),
    B_OFF(PerspectiveOffCenterLH, true, true, 2 * a[4]), B_OFF(PerspectiveOffCenterRH, true, false, 2 * a[4])};

// Arguments increase from 0.5 (left < right < bottom < top < zNear < zFar, the fov below pi);
// round 0 turns the axis rotations by 0, where the negated sine is 0 - 0, +0.
TEST(Geometry, BuildersAreTheTextbookMatricesTransposed) {
  ASSERT_EQ(kBuilders.size(), 19u);
  for (const BExp& e : kBuilders)
    for (int round = 0; round < 50; ++round) {
      float a[9];
      LD w[9], scale = 0;
      const bool axisRotation = std::strncmp(e.name, "Rotation", 8) == 0 && e.name[9] == '_';
      for (int k = 0; k < 9; ++k) w[k] = a[k] = std::strncmp(e.name, "Look", 4) == 0 ? uniform(-3, 3) : 0.5f + k + uniform(0, 0.5f);
      if (round == 0 && axisRotation) w[0] = a[0] = 0;
      const L4 c = e.column(w);
      for (LD x : c) scale = std::max(scale, std::fabs(x));
      Slot d(16, round % 2);
      ASSERT_EQ(e.call(a, d.p), qelStatusOk);
      for (int k = 0; k < 16; ++k)
        EXPECT_TRUE(close(d[k], c[(k % 4) * 4 + k / 4], scale, 16) && !(round == 0 && axisRotation && std::signbit(d[k])) && d.fenced()) << e.name << k;
    }
  const float zero[3] = {}, eye[3] = {0, 0, -5}, along[3] = {0, 0, 1};
  M4 m;  // up along the view gives a zero x axis, normalised into NaNs
  EXPECT_EQ(qelmLookAtLH_m4_32f(eye, zero, along, m.data()), qelStatusOk);
  EXPECT_TRUE(std::isnan(m[0]) && std::isnan(m[12]));
}

// ============================================================== transforms
enum TKind { Plain, Coord, Normal };
struct TExp { const char* name; TKind kind; int n, outs; QelStatus (*one)(const Qel32f*, const Qel32f*, Qel32f*);
              QelStatus (*many)(const Qel32f*, const Qel32f*, int, Qel32f*, int, int); };
#define T_ROW(OP, KIND, N, OUTS) TExp{#OP "_m4v" #N, KIND, N, OUTS, qelm##OP##_m4v##N##_32f, qelm##OP##_m4v##N##a_32f}
const std::vector<TExp> kTransforms = {
    T_ROW(AffineTransform, Plain, 2, 4), T_ROW(AffineTransform, Plain, 3, 4), T_ROW(AffineTransform, Plain, 4, 4),
    T_ROW(AffineTransformCoord, Coord, 2, 2), T_ROW(AffineTransformCoord, Coord, 3, 3),
    T_ROW(AffineTransformNormal, Normal, 2, 2), T_ROW(AffineTransformNormal, Normal, 3, 3)};

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
  for (int c = 0; c < 4 && kind == Coord; ++c) r[c] = r[c] / r[3];
  return r;
}

// Single forms at both alignments; arrays packed, and with gaps of two elements after each source, three after each result.
TEST(Geometry, TransformsByOrderAlignedAndThroughGappedStrides) {
  for (const TExp& e : kTransforms)
    for (int round = 0; round < 30; ++round) {
      const M4 m = randomMatrix();
      const int count = round % 6;
      std::vector<float> src(count * 8 + 4);
      for (float& x : src) x = uniform();
      const auto want = transformModel<float>(e.kind, e.n, m, src.data());
      const auto ref = transformModel<LD>(e.kind, e.n, wide(m), src.data());
      for (bool off4 : {false, true}) {
        Slot v(e.n, off4, src.data()), d(e.outs, !off4);
        ASSERT_EQ(e.one(m.data(), v.p, d.p), qelStatusOk);
        for (int c = 0; c < e.outs; ++c)
          EXPECT_TRUE(sameBits(d[c], want[c]) && close(d[c], ref[c], e.kind == Coord ? 1e3L * (1 + std::fabs(ref[c])) : 8) && d.fenced()) << e.name << c;
      }
      for (int gap : {0, 1}) {
        const int ss = e.n + 2 * gap, ds = e.outs + 3 * gap;
        std::vector<float> in(count * (e.n + 2) + 1), out(count * (e.outs + 3) + 4);
        std::memset(out.data(), 0xA5, out.size() * 4);
        for (int i = 0; i < count; ++i) std::copy_n(src.begin() + i * e.n, e.n, in.begin() + 1 + i * ss);
        ASSERT_EQ(e.many(m.data(), in.data() + 1, 4 * ss, out.data() + 1, 4 * ds, count), qelStatusOk);
        for (int k = 0, i = -1, c = 0; k < int(out.size()); ++k, i = (k - 1) / ds, c = (k - 1) % ds)
          EXPECT_TRUE(k >= 1 && i < count && c < e.outs ? sameBits(out[k], transformModel<float>(e.kind, e.n, m, &src[i * e.n])[c]) : isCanary(out[k])) << e.name << k;
      }
    }
}

// World, look-at view and perspective projection; points in front. Project by
// its chain in Qel32f, Unproject by the chain inverted wide and rounded.
TEST(Geometry, ProjectAndUnproject) {
  const float port[4] = {640, 480, 0.25f, 0.75f};
  auto toScreen = [&](std::array<float, 4> r) {
    for (int c = 0; c < 3; ++c) r[c] = r[c] / r[3];
    const float hw = port[0] * 0.5f, hh = port[1] * 0.5f;
    return std::array<float, 3>{hw + hw * r[0], hh + (0.0f - hh) * r[1], port[2] + (port[3] - port[2]) * r[2]};
  };
  auto times = [](const std::array<float, 4>& r, const M4& m) { return transformModel<float>(Plain, 4, m, r.data()); };
  for (int round = 0; round < 50; ++round) {
    M4 proj, view, world, narrow;
    const float eye[3] = {uniform(), uniform(), -8}, at[3] = {uniform(), uniform(), 0}, up[3] = {0.1f, 1, 0};
    qelmPerspectiveFovLH_m4_32f(uniform(0.6f, 1.4f), 4.0f / 3, 0.5f, 50, proj.data());
    qelmLookAtLH_m4_32f(eye, at, up, view.data());
    qelmRotationYawPitchRoll_m4_32f(uniform(), uniform(), uniform(), world.data());
    world[12] = uniform(), world[13] = uniform(), world[14] = uniform();
    const L4 inv = inverse(product(product(world, view), proj));
    for (int k = 0; k < 16; ++k) narrow[k] = float(inv[k]);
    const float* ms[3] = {proj.data(), view.data(), world.data()};
    float pts[4][3], scr[4][3], back[4][3], arr[4][4];
    for (auto& p : pts) for (float& x : p) x = uniform(-1, 1);
    for (int i = 0; i < 4; ++i) {
      const auto p = toScreen(times(times(transformModel<float>(Plain, 3, world, pts[i]), view), proj));
      Slot d(3, i % 2);
      ASSERT_EQ(qelmProject_m4v3_32f(ms[0], ms[1], ms[2], pts[i], port[0], port[1], port[2], port[3], d.p), 0);
      for (int c = 0; c < 3; ++c) EXPECT_TRUE(sameBits(scr[i][c] = d[c], p[c]) && d.fenced()) << "Project " << c;
      ASSERT_EQ(qelmUnproject_m4v3_32f(ms[0], ms[1], ms[2], scr[i], port[0], port[1], port[2], port[3], back[i]), 0);
      const float dev[3] = {(2.0f * scr[i][0]) / port[0] - 1.0f, (-2.0f * scr[i][1]) / port[1] + 1.0f, (scr[i][2] - port[2]) / (port[3] - port[2])};
      const auto u = transformModel<float>(Coord, 3, narrow, dev);
      for (int c = 0; c < 3; ++c) EXPECT_TRUE(sameBits(back[i][c], u[c]) && std::fabs(back[i][c] - pts[i][c]) < 2e-3f) << "Unproject " << c;
    }
    // Arrays: the chain multiplied once, view by projection first; strides with gaps.
    const M4 chain = product(world, product(view, proj));
    const int count = round % 5;
    for (bool un : {false, true}) {
      std::memset(arr, 0xA5, sizeof arr);
      auto fn = un ? qelmUnproject_m4v3a_32f : qelmProject_m4v3a_32f;
      ASSERT_EQ(fn(ms[0], ms[1], ms[2], un ? scr[0] : pts[0], 12, port[0], port[1], port[2], port[3], arr[0], 16, count), 0);
      for (int i = 0; i < 16; ++i) {
        const float want = un ? back[i / 4][i % 4 % 3] : toScreen(transformModel<float>(Plain, 3, chain, pts[i / 4 % 4]))[i % 4 % 3];
        EXPECT_TRUE(i / 4 < count && i % 4 < 3 ? sameBits(arr[i / 4][i % 4], want) : isCanary(arr[i / 4][i % 4])) << un << i;
      }
    }
  }
  // A singular chain: the single form leaves the device coordinates, the array form nothing.
  const M4 id{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, zero{};
  float d[3] = {480, 300, 0.5f};
  EXPECT_EQ(qelmUnproject_m4v3_32f(id.data(), id.data(), zero.data(), d, 640, 480, 0.25f, 0.75f, d), qelStatusSingular);
  EXPECT_TRUE(d[0] == (2.0f * 480) / 640 - 1 && d[1] == (-2.0f * 300) / 480 + 1 && d[2] == 0.5f);
  Slot untouched(0, false);
  EXPECT_EQ(qelmUnproject_m4v3a_32f(id.data(), id.data(), zero.data(), d, 0, 640, 480, 0, 1, untouched.p, 12, 2), qelStatusSingular);
  EXPECT_TRUE(untouched.fenced());
}

// The checked column-vector transform: t = (M(r,0) x + M(r,1) y) + (M(r,2) z + M(r,3)), then
// t / t3 by its reciprocal, or FLT_MAX and a failure where |t3| <= FLT_MIN. Serial at 6 count <= 784.
TEST(Geometry, AffineTransform3DHChecksPathsAndDivideByZero) {
  // Matrix rows with gaps or column-major; vectors packed or gapped.
  for (auto [s1, s2, vs2, ds2] : {std::array{16, 4, 4, 4}, {20, 4, 4, 4}, {4, 16, 4, 8}, {16, 4, 8, 4}, {16, 4, 4, 12}})
    for (int count : {1, 5, 130, 131})
      for (int threads : {1, 2}) {
        const int vs0 = 3 * vs2 + 4, ds0 = 3 * ds2 + 8, zeroW = count > 3 ? count - 2 : -1;  // in the second share
        std::vector<float> m(64), v(count * 12 + 4), d(count * 12 + 12, 0);
        std::vector<bool> written(d.size());
        for (float& x : m) x = uniform();
        for (float& x : v) x = uniform();
        auto M = [&](int r, int c) -> float& { return m[(r * s1 + c * s2) / 4]; };
        auto V = [&](int n, int k) -> float& { return v[(n * vs0 + k * vs2) / 4]; };
        for (int r = 0; r < 4; ++r) M(r, 3) = uniform(2, 3);  // w away from 0 but at zeroW: 0 or FLT_MIN
        if (zeroW > 0) V(zeroW, 0) = V(zeroW, 1) = V(zeroW, 2) = 0, M(3, 3) = FLT_MIN * (count % 2);
        std::memset(d.data(), 0xA5, d.size() * 4);
        PinnedBudget budget(threads);
        EXPECT_EQ(qelmAffineTransform3DH_mva_32f(m.data(), s1, s2, v.data(), vs0, vs2, d.data(), ds0, ds2, count),
                  zeroW > 0 ? qelStatusDivideByZero : qelStatusOk);
        EXPECT_EQ(budget.calls() > 0, count >= 131);
        for (int n = 0; n < count; ++n) {
          float t[4];
          for (int r = 0; r < 4; ++r) t[r] = (M(r, 0) * V(n, 0) + M(r, 1) * V(n, 1)) + (M(r, 2) * V(n, 2) + M(r, 3));
          for (int k = 0, at = n * ds0 / 4; k < 3; ++k, at = (n * ds0 + k * ds2) / 4) {
            EXPECT_TRUE(sameBits(d[at], std::fabs(t[3]) > FLT_MIN ? t[k] * (1.0f / t[3]) : FLT_MAX)) << n;
            written[at] = true;
          }
        }
        for (size_t k = 0; k < d.size(); ++k) EXPECT_TRUE(written[k] || isCanary(d[k])) << "gap " << k;
      }
  // Checks N C S in that order, nothing written.
  Slot m(16, false), v(8, false), d(0, false);
  auto call = [&](const float* a, const float* b, float* c, int count, std::array<int, 6> st) {
    return qelmAffineTransform3DH_mva_32f(a, st[0], st[1], b, st[2], st[3], c, st[4], st[5], count);
  };
  const std::array<int, 6> good{16, 4, 16, 4, 16, 4};
  EXPECT_EQ(call(nullptr, v.p, d.p, 0, good) + call(m.p, nullptr, d.p, 1, good) + call(m.p, v.p, nullptr, 1, good), 3 * qelStatusNullPointer);
  for (int k = 0; k < 6; ++k)
    for (int bad : {0, 2, -4}) {
      auto st = good;
      st[k] = bad;
      EXPECT_TRUE(call(m.p, v.p, d.p, 0, st) == qelStatusBadCount && call(m.p, v.p, d.p, 1, st) == qelStatusBadStride) << k << bad;
    }
  EXPECT_TRUE(d.fenced());
}

}  // namespace
