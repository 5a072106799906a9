// EigenValuesSym and EigenValuesVectorsSym. Every export in every description
// against a cyclic Jacobi reference in long double (values, residuals A v - l v,
// orthonormality), with identical bits across descriptions and thread budgets;
// the closed forms of orders 1 and 2 and diagonal inputs bit for bit; then the
// absolute singular test, its two positions, non-convergence, stops, thresholds
// and argument checks, each failure leaving canaries where nothing may be written.
#include <gtest/gtest.h>
#include <qelm/qelm.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <vector>

#include "batch.h"
#include "pinned_core.h"

namespace {

using qt::Batch;
using qt::Form;
using LD = long double;

template <class T> struct Sym;
#define SYM_EXPORTS(T, F)                                                                                   \
  template <> struct Sym<T> {                                                                               \
    static constexpr auto vm = qelmEigenValuesSym_m_##F, vmP = qelmEigenValuesSym_m_##F##_P;                \
    static constexpr auto vma = qelmEigenValuesSym_ma_##F, vmaL = qelmEigenValuesSym_ma_##F##_L,            \
                          vmaP = qelmEigenValuesSym_ma_##F##_P;                                             \
    static constexpr auto qm = qelmEigenValuesVectorsSym_m_##F, qmP = qelmEigenValuesVectorsSym_m_##F##_P;  \
    static constexpr auto qma = qelmEigenValuesVectorsSym_ma_##F, qmaL = qelmEigenValuesVectorsSym_ma_##F##_L, \
                          qmaP = qelmEigenValuesVectorsSym_ma_##F##_P;                                      \
  };
SYM_EXPORTS(Qel32f, 32f)
SYM_EXPORTS(Qel64f, 64f)

enum Desc { Std, List, Ptr };
struct Call { bool vectors, array; Desc desc; };

// One export by family, shape and description; q is unused by the values family.
template <class T>
QelStatus call(Call c, Batch<T>& a, T* buf, Batch<T>& q, T* vals, int n) {
  using F = Sym<T>;
  const int k = a.count();
  if (!c.vectors) {
    if (!c.array) return c.desc == Ptr ? F::vmP(a.elems(), a.elemShift, buf, vals, n) : F::vm(a.ptr(), a.s1, a.s2, buf, vals, n);
    if (c.desc == Std) return F::vma(a.ptr(), a.s0, a.s1, a.s2, buf, vals, n, k);
    if (c.desc == List) return F::vmaL(a.list(), a.listShift, a.s1, a.s2, buf, vals, n, k);
    return F::vmaP(a.elems(), a.elemShift, a.s0, buf, vals, n, k);
  }
  if (!c.array)
    return c.desc == Ptr ? F::qmP(a.elems(), a.elemShift, buf, q.elems(), q.elemShift, vals, n)
                         : F::qm(a.ptr(), a.s1, a.s2, buf, q.ptr(), q.s1, q.s2, vals, n);
  if (c.desc == Std) return F::qma(a.ptr(), a.s0, a.s1, a.s2, buf, q.ptr(), q.s0, q.s1, q.s2, vals, n, k);
  if (c.desc == List)
    return F::qmaL(a.list(), a.listShift, a.s1, a.s2, buf, q.list(), q.listShift, q.s1, q.s2, vals, n, k);
  return F::qmaP(a.elems(), a.elemShift, a.s0, buf, q.elems(), q.elemShift, q.s0, vals, n, k);
}
const std::vector<Call> kCalls = {{false, false, Std}, {false, false, Ptr}, {false, true, Std}, {false, true, List},
                                  {false, true, Ptr},  {true, false, Std},  {true, false, Ptr}, {true, true, Std},
                                  {true, true, List},  {true, true, Ptr}};

// Values, vectors and buffer of one call, canary-filled.
template <class T>
struct Out {
  Batch<T> q;
  std::vector<T> vals, buf;
  Out(int n, int count, Form f = Form::Packed) : q(n, n, count, f), vals(n * count + 4), buf(n * n + 4) {
    std::memset(vals.data(), qt::kCanary, vals.size() * sizeof(T));
    std::memset(buf.data(), qt::kCanary, buf.size() * sizeof(T));
  }
  bool canary(int from, int to) const {  // values [from, to) unwritten
    std::vector<unsigned char> c((to - from) * sizeof(T), qt::kCanary);
    return std::memcmp(vals.data() + from, c.data(), c.size()) == 0;
  }
};
template <class T>
QelStatus run(Call c, Batch<T>& a, Out<T>& o) { return call(c, a, o.buf.data(), o.q, o.vals.data(), a.rows()); }
template <class T>
std::vector<T> head(const std::vector<T>& v, int len) { return std::vector<T>(v.begin(), v.begin() + len); }

template <class T>
void symmetric(Batch<T>& a, uint32_t seed) {
  a.fillRandom(seed);
  for (int o = 0; o < a.count(); ++o)
    for (int i = 0; i < a.rows(); ++i) {
      // A spread diagonal keeps the product clear of the singular test; odd
      // objects have it falling, so they take the downward sweep.
      const int at = o % 2 ? a.rows() - 1 - i : i;
      a.set(o, i, i, a.get(o, i, i) + T(3 * at - a.rows()) + T(0.5));
      for (int j = 0; j < i; ++j) a.set(o, i, j, a.get(o, j, i));
    }
}

// Cyclic Jacobi in long double: the eigenvalues, descending.
std::vector<LD> jacobi(std::vector<LD> a, int n) {
  for (int sweep = 0; sweep < 60; ++sweep)
    for (int p = 0; p < n; ++p)
      for (int r = p + 1; r < n; ++r) {
        if (std::fabs(a[p * n + r]) < 1e-40L) continue;
        const LD th = (a[r * n + r] - a[p * n + p]) / (2 * a[p * n + r]);
        const LD t = (th < 0 ? -1 : 1) / (std::fabs(th) + std::sqrt(th * th + 1)), c = 1 / std::sqrt(t * t + 1), s = t * c;
        for (int k = 0; k < n; ++k) {
          const LD x = a[k * n + p], y = a[k * n + r];
          a[k * n + p] = c * x - s * y, a[k * n + r] = s * x + c * y;
        }
        for (int k = 0; k < n; ++k) {
          const LD x = a[p * n + k], y = a[r * n + k];
          a[p * n + k] = c * x - s * y, a[r * n + k] = s * x + c * y;
        }
      }
  std::vector<LD> d;
  for (int i = 0; i < n; ++i) d.push_back(a[i * n + i]);
  std::sort(d.rbegin(), d.rend());
  return d;
}

// Object o of one call against the reference: values (descending from order 3),
// and for vectors A v = l v and Q^T Q = I, all scaled by the norm of A.
template <class T>
void expectDecomposition(const Batch<T>& a, const Out<T>& out, bool vectors, int o) {
  const int n = a.rows();
  std::vector<LD> m;
  LD norm = 0;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) m.push_back(a.get(o, i, j)), norm += m.back() * m.back();
  const LD tol = 16 * n * std::sqrt(norm) * LD(std::numeric_limits<T>::epsilon());
  const T* v = &out.vals[o * n];
  EXPECT_TRUE(n < 3 || std::is_sorted(v, v + n, std::greater<T>())) << "object " << o;
  std::vector<LD> got(v, v + n), want = jacobi(m, n);
  std::sort(got.rbegin(), got.rend());
  for (int j = 0; j < n; ++j) EXPECT_NEAR(got[j], want[j], tol) << "object " << o << " value " << j;
  if (!vectors) return;
  for (int j = 0; j < n; ++j)
    for (int k = 0; k < n; ++k) {
      LD r = 0, d = -LD(j == k);
      for (int i = 0; i < n; ++i) {
        r += m[k * n + i] * LD(out.q.get(o, i, j));
        d += LD(out.q.get(o, i, j)) * LD(out.q.get(o, i, k));
      }
      EXPECT_NEAR(r, LD(v[j]) * LD(out.q.get(o, k, j)), tol) << "object " << o << " A v " << j << " row " << k;
      EXPECT_NEAR(d, 0, 16 * n * LD(std::numeric_limits<T>::epsilon())) << "object " << o << " Q^T Q " << j << k;
    }
}

// ------------------------------------------------------------------ sweep
template <class T>
void sweep() {
  for (int n : {1, 2, 3, 4, 5, 6, 7, 9, 12})
    for (bool vectors : {false, true}) {
      const int count = 5;
      Batch<T> a(n, n, count);
      symmetric(a, 10 + n);
      Out<T> first(n, count);
      ASSERT_EQ(run({vectors, true, Std}, a, first), 0) << n;
      for (int o = 0; o < count; ++o) expectDecomposition(a, first, vectors, o);
      for (Call c : kCalls) {
        if (c.vectors != vectors) continue;
        for (Form form : qt::allForms()) {
          SCOPED_TRACE(testing::Message() << "n " << n << " array " << c.array << " desc " << c.desc << " form "
                                          << qt::formName(form));
          const int k = c.array ? count : 1;
          Batch<T> b(n, n, k, form);
          symmetric(b, 10 + n);
          Out<T> out(n, k, form);
          ASSERT_EQ(run(c, b, out), 0);
          EXPECT_TRUE(out.canary(n * k, n * k + 4) && out.q.outsideIntact());
          EXPECT_TRUE(qt::sameBits(head(out.vals, n * k), head(first.vals, n * k)));
          EXPECT_TRUE(!vectors || qt::sameBits(out.q.values(), head(first.q.values(), n * n * k)));
        }
      }
    }
}
TEST(EigenSym, EveryExportInEveryDescription32f) { sweep<Qel32f>(); }
TEST(EigenSym, EveryExportInEveryDescription64f) { sweep<Qel64f>(); }

// ------------------------------------------------------------------ closed forms and exact paths
// Order 2 as written: the pair unsorted (so [[-3, 0], [0, -1]] gives -3, -1),
// the rotation from the signs of the trace and of a - d; src(1, 0) is never read.
template <class T>
void orderTwo() {
  Batch<T> one(1, 1, 1);  // order 1: the element, zero included, and the vector 1
  one.at(0, 0, 0) = 0;
  Out<T> o1(1, 1);
  EXPECT_TRUE(run({true, false, Std}, one, o1) == 0 && o1.vals[0] == 0 && o1.q.at(0, 0, 0) == 1);
  const T eps = std::numeric_limits<T>::epsilon();
  const std::vector<T> picks = {-3, -1, T(-1e-8), 0, T(1e-8), T(0.5), 1, 3, T(0.1)};
  for (T a : picks)
    for (T b : picks)
      for (T d : picks) {
        Batch<T> m(2, 2, 1);
        m.at(0, 0, 0) = a, m.at(0, 0, 1) = b, m.at(0, 1, 0) = NAN, m.at(0, 1, 1) = d;
        for (bool vectors : {false, true}) {
          Out<T> out(2, 1);
          const QelStatus st = run({vectors, false, Std}, m, out);
          const T det = a * d - b * b, df = a - d, tb = b + b, sm = d + a;
          const T rt = T(std::sqrt(double(df * df + tb * tb)));
          if (std::fabs(det) <= eps) {
            EXPECT_EQ(st, qelStatusSingular);
            EXPECT_TRUE(out.canary(0, 6) && out.q.untouched());
            continue;
          }
          const int sg1 = sm > eps ? 1 : sm >= -eps ? 0 : -1, sg2 = df < -eps ? -1 : 1;
          const T l1 = sg1 > 0 ? (rt + sm) * T(0.5) : sg1 == 0 ? rt * T(0.5) : (sm - rt) * T(0.5);
          const T l2 = sg1 ? det / l1 : rt * T(-0.5);
          ASSERT_EQ(st, 0);
          EXPECT_TRUE(qt::sameBits(std::vector<T>(out.vals.begin(), out.vals.begin() + 2), {l1, l2}));
          EXPECT_TRUE(out.canary(2, 6));
          if (!vectors) continue;
          const T cs = sg2 < 0 ? df - rt : rt + df;
          T c1 = 1, s1 = 0;
          if (std::fabs(cs) > std::fabs(tb)) {
            const T ct = -tb / cs;
            s1 = 1 / T(std::sqrt(double(ct * ct + 1))), c1 = ct * s1;
          } else if (std::fabs(tb) > eps) {
            const T tn = -cs / tb;
            c1 = 1 / T(std::sqrt(double(tn * tn + 1))), s1 = tn * c1;
          }
          const bool same = (sg1 < 0 ? -1 : 1) == sg2;
          const T c = same ? -s1 : c1, s = same ? c1 : s1;
          EXPECT_TRUE(qt::sameBits(out.q.values(), {c, -s, s, c})) << a << " " << b << " " << d;
        }
      }
}
TEST(EigenSym, OrderTwoIsItsClosedForm32f) { orderTwo<Qel32f>(); }
TEST(EigenSym, OrderTwoIsItsClosedForm64f) { orderTwo<Qel64f>(); }

// The selection sort as stated: the first of equal values stays first.
std::vector<int> sortOrder(std::vector<double> v) {
  std::vector<int> p(v.size());
  for (size_t i = 0; i < v.size(); ++i) p[i] = int(i);
  for (size_t i = 0; i + 1 < v.size(); ++i) {
    const size_t j = std::max_element(v.begin() + i, v.end()) - v.begin();
    std::swap(v[i], v[j]), std::swap(p[i], p[j]);
  }
  return p;
}

// A diagonal input splits at once in either sweep: its values, sorted, and a
// permutation of the identity's columns. A zero on the diagonal is refused,
// the single-matrix vectors forms having sorted first, the others not.
template <class T>
void diagonal() {
  for (int n = 3; n <= 7; ++n)
    for (int zero : {-1, 1})
      for (uint32_t seed = 0; seed < 4; ++seed)
        for (Call c : kCalls) {
          Batch<T> a(n, n, 1);
          std::vector<double> d;
          for (int i = 0; i < n; ++i) d.push_back(i == zero ? 0 : double(int((seed * 7 + i * 5) % 9) - 4) / 2);
          for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j) a.at(0, i, j) = i == j ? T(d[i]) : T(0);
          Out<T> out(n, 1);
          const bool refused = zero >= 0 || std::count(d.begin(), d.end(), 0.0);
          EXPECT_EQ(run(c, a, out), refused ? qelStatusSingular : qelStatusOk);
          const bool sorted = !refused || (c.vectors && !c.array);
          std::vector<int> p = sortOrder(d);
          for (int j = 0; j < n; ++j) {
            const int from = sorted ? p[j] : j;
            EXPECT_EQ(out.vals[j], T(d[from])) << n << " " << seed << " " << j;
            for (int i = 0; i < n && c.vectors; ++i) EXPECT_EQ(out.q.at(0, i, j), T(i == from));
          }
        }
}
TEST(EigenSym, DiagonalInputsSplitAtOnce32f) { diagonal<Qel32f>(); }
TEST(EigenSym, DiagonalInputsSplitAtOnce64f) { diagonal<Qel64f>(); }

// A subdiagonal splits when half of it is at most epsilon, at any scale of the
// diagonal: then Q stays the identity, just above it a rotation shows.
TEST(EigenSym, DeflationIsAbsolute) {
  for (double scale : {1e-3, 1.0, 1e6})
    for (double e : {1.5, 2.5}) {
      Batch<double> a(3, 3, 1);
      for (int k = 0; k < 9; ++k) a.at(0, k / 3, k % 3) = k % 4 ? 0 : (3 - k / 4) * scale;
      a.at(0, 1, 0) = a.at(0, 0, 1) = a.at(0, 2, 1) = a.at(0, 1, 2) = e * 0x1p-52;
      Out<double> out(3, 1);
      ASSERT_EQ(run({true, false, Std}, a, out), 0);
      EXPECT_EQ(out.q.at(0, 0, 1) == 0 && out.q.at(0, 1, 2) == 0, e < 2) << scale << " " << e;
    }
}

// ------------------------------------------------------------------ failures
// The test on the product is absolute: 1e-3 times a well-conditioned matrix
// is refused in 32f and not in 64f. (In 32f its reflection, h near 5e-8, is
// below epsilon too and is left out.)
TEST(EigenSym, SmallEigenvaluesAreRefusedIn32f) {
  Batch<float> a(3, 3, 1);
  Batch<double> b(3, 3, 1);
  const float m[9] = {1, 0.1f, 0.05f, 0.1f, 1.2f, 0.1f, 0.05f, 0.1f, 1.4f};  // eigenvalues near 1e-3
  for (int k = 0; k < 9; ++k) a.at(0, k / 3, k % 3) = m[k] * 1e-3f, b.at(0, k / 3, k % 3) = m[k] * 1e-3f;
  for (Call c : kCalls) {
    Out<float> fa(3, 1);
    Out<double> fb(3, 1);
    EXPECT_EQ(run(c, a, fa), qelStatusSingular);
    EXPECT_EQ(run(c, b, fb), qelStatusOk);
    EXPECT_FALSE(fa.canary(0, 1) || fa.canary(1, 2) || fa.canary(2, 3));  // the values stay written
  }
}

// Downward, the values kernels multiply in W[m][m] wherever a search stops,
// finished or not: a zero met on the way refuses a regular matrix (det 1/16),
// and extra factors let an exactly singular one (det 0) through, while the
// vectors kernels test the determinant.
TEST(EigenSym, TheValuesProductIsNotTheDeterminant) {
  const std::vector<float> regular = {-1, 0, 0, 0, 0, -0.25f, 0, -0.25f, 0.5f},
                           singular = {-1, -1, 0, 0.5f, -1, -1, -0.5f, 0.5f, 0, -0.5f, -0.75f, -0.75f,
                                       0.5f, 0.5f, -0.75f, -0.25f};
  for (const auto& m : {regular, singular})
    for (Call c : kCalls) {
      const int n = m.size() == 9 ? 3 : 4;
      Batch<float> a(n, n, 1);
      for (int k = 0; k < n * n; ++k) a.at(0, k / n, k % n) = m[k];
      Out<float> out(n, 1);
      EXPECT_EQ(run(c, a, out), c.vectors == (n == 3) ? qelStatusOk : qelStatusSingular) << n << " " << c.vectors;
    }
}

// A NaN on the subdiagonal never splits: the downward sweep (first diagonal
// element the larger) gives up after its passes, the upward one never starts.
TEST(EigenSym, NaNSubdiagonalExhaustsTheDownwardSweep) {
  for (double last : {1.0, 9.0})
    for (Call c : kCalls) {
      Batch<double> a(3, 3, 1);
      const double m[9] = {5, NAN, 0, NAN, 2, 1, 0, 1, last};
      for (int k = 0; k < 9; ++k) a.at(0, k / 3, k % 3) = m[k];
      Out<double> out(3, 1);
      EXPECT_EQ(run(c, a, out), last < 5 ? qelStatusNoConvergence : qelStatusOk);
    }
}

// Serially the first failing object ends the call; with two threads each share
// stops at its own.
TEST(EigenSym, ArraysStopAtTheFirstFailure) {
  for (int budget : {1, 2})
    for (Call c : kCalls) {
      if (!c.array) continue;
      const int n = 3, count = budget == 1 ? 4 : 100;  // 100 objects: W of 1200 and 2100, two shares of 50
      const std::vector<int> bad = budget == 1 ? std::vector<int>{1} : std::vector<int>{5, 70};
      Batch<float> a(n, n, count, Form::RowGaps);
      symmetric(a, 4);
      for (int o : bad) a.at(o, 1, 0) = a.at(o, 0, 1) = NAN, a.at(o, 0, 0) = 50;  // no convergence
      Out<float> out(n, count, Form::RowGaps);
      PinnedBudget pin(budget);
      EXPECT_EQ(run(c, a, out), qelStatusNoConvergence);
      EXPECT_EQ(pin.calls(), budget == 1 ? 0 : 2);
      for (int o = 0; o < count; ++o) {
        const int stop = bad[budget == 1 || o < 50 ? 0 : 1];
        if (o > stop) {
          EXPECT_TRUE(out.canary(o * n, o * n + n)) << o;
          EXPECT_TRUE(!c.vectors || out.q.at(o, 0, 0) == out.q.at(count - 1, 0, 0)) << o;  // canary
        } else if (o < stop) {
          expectDecomposition(a, out, c.vectors, o);
        }
      }
    }
}

// ------------------------------------------------------------------ driver
// W at the last serial value and the first parallel one; the forked path
// works in its own block and leaves the caller's buffer alone.
TEST(EigenSym, WorkThresholdsAndTheDriversOwnScratch) {
  struct W { bool vectors; int n, count, calls; };
  for (W t : {W{false, 1, 500, 0}, {false, 1, 501, 2}, {false, 2, 166, 0}, {false, 2, 167, 2}, {true, 2, 70, 0},
              {true, 2, 71, 2}, {true, 1, 233, 0}, {true, 1, 234, 2}})
    for (Desc d : {Std, List, Ptr}) {
      Batch<double> a(t.n, t.n, t.count);
      symmetric(a, 8);
      Out<double> out(t.n, t.count);
      PinnedBudget pin(2);
      ASSERT_EQ(run({t.vectors, true, d}, a, out), 0);
      EXPECT_EQ(pin.calls(), t.calls) << t.vectors << " " << t.n << " " << t.count;
      EXPECT_EQ(out.buf == Out<double>(t.n, t.count).buf, t.calls > 0 || t.n == 1);
    }
}

// Every array export gives the same bits under budgets 1, 2, 3 and 7.
template <class T>
void budgets() {
  for (int n : {2, 5})
    for (Call c : kCalls) {
      if (!c.array) continue;
      const int count = n == 2 ? 200 : 41;
      Batch<T> a(n, n, count, Form::RowGaps);
      symmetric(a, 9);
      Out<T> one(n, count, Form::RowGaps);
      ASSERT_EQ(run(c, a, one), 0);
      for (int budget : {2, 3, 7}) {
        Out<T> out(n, count, Form::RowGaps);
        PinnedBudget pin(budget);
        ASSERT_EQ(run(c, a, out), 0);
        EXPECT_EQ(pin.calls(), 2);
        EXPECT_TRUE(qt::sameBits(out.vals, one.vals) && qt::sameBits(out.q.values(), one.q.values()))
            << n << " " << budget;
      }
    }
}
TEST(EigenSym, IdenticalBitsAcrossBudgets32f) { budgets<Qel32f>(); }
TEST(EigenSym, IdenticalBitsAcrossBudgets64f) { budgets<Qel64f>(); }

// ------------------------------------------------------------------ argument checks
// N Z C S for the standard arrays, N Z C R S for _L and _P, N Z S and N Z R for
// one matrix; a failed check writes nothing.
TEST(EigenSym, ChecksInOrderAndWriteNothing) {
  Batch<float> a(3, 3, 2);
  symmetric(a, 1);
  Out<float> o(3, 2);
  float *b = o.buf.data(), *v = o.vals.data(), *q = o.q.ptr();
  float* const* Q = o.q.list();
  struct C { std::function<QelStatus()> call; QelStatus want; };
  const std::vector<C> cases = {
      {[&] { return qelmEigenValuesSym_m_32f(a.ptr(), 12, 4, nullptr, v, 0); }, -8},
      {[&] { return qelmEigenValuesSym_m_32f(a.ptr(), 12, 2, b, v, 0); }, -6},
      {[&] { return qelmEigenValuesSym_m_32f(a.ptr(), 12, 2, b, v, 3); }, -182},
      {[&] { return qelmEigenValuesSym_m_32f_P(a.elems(), -4, b, v, 3); }, -202},
      {[&] { return qelmEigenValuesSym_ma_32f(a.ptr(), 36, 12, 4, b, v, 0, 0); }, -6},
      {[&] { return qelmEigenValuesSym_ma_32f(a.ptr(), 0, 12, 4, b, v, 3, 0); }, -203},
      {[&] { return qelmEigenValuesSym_ma_32f(a.ptr(), 0, 12, 4, b, v, 3, 2); }, -182},
      {[&] { return qelmEigenValuesSym_ma_32f_L(a.list(), 2, 12, 0, b, v, 3, 2); }, -202},
      {[&] { return qelmEigenValuesSym_ma_32f_P(a.elems(), 1, 3, b, v, 3, 2); }, -202},
      {[&] { return qelmEigenValuesVectorsSym_m_32f(a.ptr(), 12, 4, b, nullptr, 12, 4, v, 3); }, -8},
      {[&] { return qelmEigenValuesVectorsSym_m_32f(a.ptr(), 12, 4, b, q, 12, 6, v, 3); }, -182},
      {[&] { return qelmEigenValuesVectorsSym_m_32f_P(a.elems(), 0, b, o.q.elems(), 2, v, 3); }, -202},
      {[&] { return qelmEigenValuesVectorsSym_ma_32f(a.ptr(), 36, 12, 4, b, q, 34, 12, 4, v, 3, 2); }, -182},
      {[&] { return qelmEigenValuesVectorsSym_ma_32f_L(a.list(), 0, 12, 4, b, nullptr, 0, 12, 4, v, 3, 2); }, -8},
      {[&] { return qelmEigenValuesVectorsSym_ma_32f_L(a.list(), 0, 12, 4, b, Q, 6, 12, 3, v, 3, 2); }, -202},
      {[&] { return qelmEigenValuesVectorsSym_ma_32f_P(a.elems(), 0, 36, b, o.q.elems(), 0, 36, v, 0, 2); }, -6},
      {[&] { return qelmEigenValuesVectorsSym_ma_32f_P(a.elems(), 0, 36, b, o.q.elems(), 0, -36, v, 3, 2); }, -182},
  };
  for (size_t k = 0; k < cases.size(); ++k) {
    EXPECT_EQ(cases[k].call(), cases[k].want) << "case " << k;
    EXPECT_TRUE(o.canary(0, 10) && o.q.untouched() && o.buf == Out<float>(3, 2).buf) << "case " << k;
  }
}

}  // namespace
