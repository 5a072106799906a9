// EigenValuesSym and EigenValuesVectorsSym, all twenty exports from one call
// table: residuals A v - l v and Q^T Q in long double, identical bits across
// descriptions, forms and thread budgets; order 2 and diagonal inputs bit for
// bit; the absolute tests, stops, thresholds and checks, each failure leaving
// canaries where nothing may be written.
#include <gtest/gtest.h>
#include <qelm/qelm.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <numeric>
#include <vector>

#include "batch.h"
#include "pinned_core.h"

namespace {

using qt::Batch;
using qt::Form;
using LD = long double;

template <class T> struct Sym;
#define SYM_EXPORTS(T, F)                                                                                         \
  template <> struct Sym<T> {                                                                                     \
    static constexpr auto vm = qelmEigenValuesSym_m_##F, vmP = qelmEigenValuesSym_m_##F##_P;                      \
    static constexpr auto vma = qelmEigenValuesSym_ma_##F, vmaL = qelmEigenValuesSym_ma_##F##_L,                  \
                          vmaP = qelmEigenValuesSym_ma_##F##_P;                                                   \
    static constexpr auto qm = qelmEigenValuesVectorsSym_m_##F, qmP = qelmEigenValuesVectorsSym_m_##F##_P;        \
    static constexpr auto qma = qelmEigenValuesVectorsSym_ma_##F, qmaL = qelmEigenValuesVectorsSym_ma_##F##_L,    \
                          qmaP = qelmEigenValuesVectorsSym_ma_##F##_P;                                            \
  };
SYM_EXPORTS(Qel32f, 32f)
SYM_EXPORTS(Qel64f, 64f)

enum Desc { Std, List, Ptr };
struct Call { bool vectors, array; Desc desc; };
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

// One export by family, shape and description.
template <class T>
QelStatus run(Call c, Batch<T>& a, Out<T>& o) {
  using F = Sym<T>;
  const int n = a.rows(), k = a.count();
  T *buf = o.buf.data(), *vals = o.vals.data();
  Batch<T>& q = o.q;
  if (!c.vectors) {
    if (!c.array) return c.desc == Ptr ? F::vmP(a.elems(), a.elemShift, buf, vals, n) : F::vm(a.ptr(), a.s1, a.s2, buf, vals, n);
    if (c.desc == Std) return F::vma(a.ptr(), a.s0, a.s1, a.s2, buf, vals, n, k);
    return c.desc == List ? F::vmaL(a.list(), a.listShift, a.s1, a.s2, buf, vals, n, k)
                          : F::vmaP(a.elems(), a.elemShift, a.s0, buf, vals, n, k);
  }
  if (!c.array)
    return c.desc == Ptr ? F::qmP(a.elems(), a.elemShift, buf, q.elems(), q.elemShift, vals, n)
                         : F::qm(a.ptr(), a.s1, a.s2, buf, q.ptr(), q.s1, q.s2, vals, n);
  if (c.desc == Std) return F::qma(a.ptr(), a.s0, a.s1, a.s2, buf, q.ptr(), q.s0, q.s1, q.s2, vals, n, k);
  return c.desc == List ? F::qmaL(a.list(), a.listShift, a.s1, a.s2, buf, q.list(), q.listShift, q.s1, q.s2, vals, n, k)
                        : F::qmaP(a.elems(), a.elemShift, a.s0, buf, q.elems(), q.elemShift, q.s0, vals, n, k);
}

// A spread diagonal keeps the product clear of the singular test; odd objects
// have it falling, so they take the downward sweep.
template <class T>
void symmetric(Batch<T>& a, uint32_t seed) {
  a.fillRandom(seed);
  for (int o = 0; o < a.count(); ++o)
    for (int i = 0; i < a.rows(); ++i) {
      a.set(o, i, i, a.get(o, i, i) + T(3 * (o % 2 ? a.rows() - 1 - i : i) - a.rows()) + T(0.5));
      for (int j = 0; j < i; ++j) a.set(o, i, j, a.get(o, j, i));
    }
}
// One matrix from its rows.
template <class T>
struct FromRows : Batch<T> {
  explicit FromRows(const std::vector<double>& m) : Batch<T>(side(m), side(m), 1) {
    for (int k = 0; k < int(m.size()); ++k) this->at(0, k / side(m), k % side(m)) = T(m[k]);
  }
  static int side(const std::vector<double>& m) { return int(std::lround(std::sqrt(double(m.size())))); }
};

// Object o of a vectors call against A, in long double: A v = l v and Q^T Q = I
// within 16 n epsilons of the norm of A, values descending from order 3.
template <class T>
void expectDecomposition(const Batch<T>& a, const Out<T>& out, int o) {
  const int n = a.rows();
  LD norm = 0;
  for (int k = 0; k < n * n; ++k) norm += LD(a.get(o, k / n, k % n)) * a.get(o, k / n, k % n);
  const LD eps = std::numeric_limits<T>::epsilon(), tol = 16 * n * std::sqrt(norm) * eps;
  const T* v = &out.vals[o * n];
  EXPECT_TRUE(n < 3 || std::is_sorted(v, v + n, std::greater<T>())) << "object " << o;
  for (int j = 0; j < n; ++j)
    for (int k = 0; k < n; ++k) {
      LD r = -LD(v[j]) * out.q.get(o, k, j), d = -LD(j == k);
      for (int i = 0; i < n; ++i) r += LD(a.get(o, k, i)) * out.q.get(o, i, j), d += LD(out.q.get(o, i, j)) * out.q.get(o, i, k);
      EXPECT_TRUE(std::fabs(r) <= tol && std::fabs(d) <= 16 * n * eps) << "object " << o << " pair " << j << " row " << k;
    }
}

// Every export, every form, bit for bit as the standard array of its family; the
// vectors family against A, the values family within the same bounds of it.
template <class T>
void sweep() {
  for (int n : {1, 2, 3, 4, 5, 6, 7, 9}) {
    Batch<T> a(n, n, 5);
    symmetric(a, 10 + n);
    Out<T> first[2] = {Out<T>(n, 5), Out<T>(n, 5)};
    for (bool vectors : {false, true}) ASSERT_EQ(run({vectors, true, Std}, a, first[vectors]), 0) << n;
    for (int o = 0; o < 5; ++o) expectDecomposition(a, first[1], o);
    for (int k = 0; k < 5 * n; ++k) {
      const LD scale = std::fabs(LD(first[1].vals[k / n * n])) + std::fabs(LD(first[1].vals[k / n * n + n - 1]));
      EXPECT_NEAR(first[0].vals[k], first[1].vals[k], 16 * n * scale * std::numeric_limits<T>::epsilon()) << n << " " << k;
    }
    for (Call c : kCalls)
      for (Form form : qt::allForms()) {
        SCOPED_TRACE(testing::Message() << "n " << n << " vectors " << c.vectors << " array " << c.array << " desc " << c.desc << " form " << qt::formName(form));
        const int k = c.array ? 5 : 1;
        Batch<T> b(n, n, k, form);
        symmetric(b, 10 + n);
        Out<T> out(n, k, form);
        ASSERT_EQ(run(c, b, out), 0);
        EXPECT_TRUE(out.canary(n * k, n * k + 4) && out.q.outsideIntact() && (c.vectors || out.q.untouched()));
        EXPECT_EQ(std::memcmp(out.vals.data(), first[c.vectors].vals.data(), n * k * sizeof(T)), 0);
        const std::vector<T> q = out.q.values(), q0 = first[1].q.values();
        EXPECT_TRUE(!c.vectors || std::memcmp(q.data(), q0.data(), q.size() * sizeof(T)) == 0);
      }
  }
}
TEST(EigenSym, EveryExportInEveryDescription) { sweep<Qel32f>(), sweep<Qel64f>(); }

// Order 2 as written: the pair unsorted, the rotation from the signs of the
// trace and of a - d, src(1, 0) never read; order 1 is the element and 1.
template <class T>
void orderTwo() {
  FromRows<T> one({0});
  Out<T> o1(1, 1);
  EXPECT_TRUE(run({true, false, Std}, one, o1) == 0 && o1.vals[0] == 0 && o1.q.at(0, 0, 0) == 1);
  const T eps = std::numeric_limits<T>::epsilon();
  const std::vector<T> picks = {-3, -1, T(-1e-8), 0, T(1e-8), T(0.5), 1, 3, T(0.1)};
  for (T a : picks)
    for (T b : picks)
      for (T d : picks)
        for (bool vectors : {false, true}) {
          FromRows<T> m({double(a), double(b), NAN, double(d)});
          Out<T> out(2, 1);
          const QelStatus st = run({vectors, false, Std}, m, out);
          const T det = a * d - b * b, df = a - d, tb = b + b, sm = d + a, rt = T(std::sqrt(double(df * df + tb * tb)));
          if (std::fabs(det) <= eps) {
            EXPECT_TRUE(st == qelStatusSingular && out.canary(0, 6) && out.q.untouched());
            continue;
          }
          const int sg1 = sm > eps ? 1 : sm >= -eps ? 0 : -1, sg2 = df < -eps ? -1 : 1;
          const T l1 = sg1 > 0 ? (rt + sm) * T(0.5) : sg1 == 0 ? rt * T(0.5) : (sm - rt) * T(0.5);
          const T l2 = sg1 ? det / l1 : rt * T(-0.5), cs = sg2 < 0 ? df - rt : rt + df;
          ASSERT_EQ(st, 0);
          EXPECT_TRUE(qt::sameBits(std::vector<T>(out.vals.begin(), out.vals.begin() + 2), {l1, l2}) && out.canary(2, 6));
          const bool byCot = std::fabs(cs) > std::fabs(tb);  // the cotangent -tb/cs, or the tangent -cs/tb
          const T r = byCot ? -tb / cs : -cs / tb, w = 1 / T(std::sqrt(double(r * r + 1)));
          const T c1 = byCot ? r * w : std::fabs(tb) > eps ? w : 1, s1 = byCot ? w : std::fabs(tb) > eps ? r * w : 0;
          const bool same = (sg1 < 0 ? -1 : 1) == sg2;
          const T c = same ? -s1 : c1, s = same ? c1 : s1;
          EXPECT_TRUE(!vectors || qt::sameBits(out.q.values(), {c, -s, s, c})) << a << " " << b << " " << d;
        }
}
TEST(EigenSym, OrderTwoIsItsClosedForm) { orderTwo<Qel32f>(), orderTwo<Qel64f>(); }

// A diagonal input splits at once: its values sorted descending (the first of
// equals first), Q a permutation of the identity. A zero on the diagonal is
// refused, only the single-matrix vectors forms having sorted first.
template <class T>
void diagonal() {
  for (int n = 3; n <= 7; ++n)
    for (int zero : {-1, 1})
      for (int seed = 0; seed < 4; ++seed)
        for (Call c : kCalls) {
          std::vector<double> d, m(n * n);
          for (int i = 0; i < n; ++i) d.push_back(i == zero ? 0 : double((seed * 7 + i * 5) % 9 - 4) / 2);
          for (int i = 0; i < n; ++i) m[i * n + i] = d[i];
          FromRows<T> a(m);
          Out<T> out(n, 1);
          const bool refused = std::count(d.begin(), d.end(), 0.0) > 0;
          EXPECT_EQ(run(c, a, out), refused ? qelStatusSingular : qelStatusOk);
          std::vector<int> p(n);
          std::iota(p.begin(), p.end(), 0);
          for (int i = 0, j = 0; i + 1 < n && (!refused || (c.vectors && !c.array)); std::swap(p[i], p[j]), j = ++i)
            for (int k = i + 1; k < n; ++k) j = d[p[k]] > d[p[j]] ? k : j;  // selection sort: the first of equals first
          for (int j = 0; j < n; ++j) {
            EXPECT_EQ(out.vals[j], T(d[p[j]])) << n << " " << seed << " " << j;
            for (int i = 0; i < n && c.vectors; ++i) EXPECT_EQ(out.q.at(0, i, j), T(i == p[j]));
          }
        }
}
TEST(EigenSym, DiagonalInputsSplitAtOnce) { diagonal<Qel32f>(), diagonal<Qel64f>(); }

// A subdiagonal splits when half of it is at most epsilon, at any scale of the
// diagonal: then Q stays the identity; just above it a rotation shows.
TEST(EigenSym, DeflationIsAbsolute) {
  for (double scale : {1e-3, 1.0, 1e6})
    for (double e : {1.5 * 0x1p-52, 2.5 * 0x1p-52}) {
      FromRows<double> a({3 * scale, e, 0, e, 2 * scale, e, 0, e, scale});
      Out<double> out(3, 1);
      ASSERT_EQ(run({true, false, Std}, a, out), 0);
      EXPECT_EQ(out.q.at(0, 0, 1) == 0 && out.q.at(0, 1, 2) == 0, e < 0x1p-51) << scale << " " << e;
    }
}

// Statuses of every export, values and vectors families. The product test is
// absolute (1e-3 times a well-conditioned matrix is refused in 32f, the values
// still written); downward, the values kernels multiply in W[m][m] wherever a
// search stops, so a zero met on the way refuses a regular matrix and extra
// factors let a singular one through; a NaN subdiagonal exhausts the downward
// sweep (first diagonal element the larger) and never starts the upward one.
template <class T>
void expectStatus(const std::vector<double>& m, QelStatus values, QelStatus vectors, bool written = false) {
  for (Call c : kCalls) {
    FromRows<T> a(m);
    Out<T> out(a.rows(), 1);
    EXPECT_EQ(run(c, a, out), c.vectors ? vectors : values) << m.size() << " " << c.vectors << c.array << c.desc;
    for (int j = 0; j < a.rows() && written; ++j) EXPECT_FALSE(out.canary(j, j + 1));
  }
}
TEST(EigenSym, AbsoluteTestsAndTheirFailures) {
  std::vector<double> small = {1, 0.1, 0.05, 0.1, 1.2, 0.1, 0.05, 0.1, 1.4};  // eigenvalues near 1e-3
  for (double& x : small) x = float(float(x) * 1e-3f);
  expectStatus<float>(small, qelStatusSingular, qelStatusSingular, true);
  expectStatus<double>(small, qelStatusOk, qelStatusOk);
  expectStatus<float>({-1, 0, 0, 0, 0, -0.25, 0, -0.25, 0.5}, qelStatusSingular, qelStatusOk);
  expectStatus<float>({-1, -1, 0, 0.5, -1, -1, -0.5, 0.5, 0, -0.5, -0.75, -0.75, 0.5, 0.5, -0.75, -0.25}, qelStatusOk,
                      qelStatusSingular);
  expectStatus<double>({5, NAN, 0, NAN, 2, 1, 0, 1, 1}, qelStatusNoConvergence, qelStatusNoConvergence);
  expectStatus<double>({5, NAN, 0, NAN, 2, 1, 0, 1, 9}, qelStatusOk, qelStatusOk);
}

// Serially the first failing object ends the call; with two threads each share
// stops at its own. Objects after a stop keep their canaries.
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
        const bool untouched = out.canary(o * n, o * n + n) && (!c.vectors || out.q.at(o, 0, 0) == out.q.at(count - 1, 0, 0));
        EXPECT_TRUE(o == stop || untouched == (o > stop)) << o;  // the last object's vectors keep the canary
      }
    }
}

// W at the last serial value and the first parallel one; the forked path works
// in its own block, leaving the caller's buffer alone; budgets 2, 3 and 7 give
// the bits of the serial run.
template <class T>
void driver() {
  struct W { bool vectors; int n, count, calls; };
  for (W t : {W{false, 1, 500, 0}, {false, 1, 501, 2}, {false, 2, 166, 0}, {false, 2, 167, 2}, {true, 2, 70, 0},
              {true, 2, 71, 2}, {true, 1, 233, 0}, {true, 1, 234, 2}, {false, 5, 41, 2}, {true, 5, 41, 2}})
    for (Desc d : {Std, List, Ptr}) {
      Batch<T> a(t.n, t.n, t.count, Form::RowGaps);
      symmetric(a, 8);
      Out<T> one(t.n, t.count, Form::RowGaps);
      ASSERT_EQ(run({t.vectors, true, d}, a, one), 0);
      for (int budget : {2, 3, 7}) {
        Out<T> out(t.n, t.count, Form::RowGaps);
        PinnedBudget pin(budget);
        ASSERT_EQ(run({t.vectors, true, d}, a, out), 0);
        EXPECT_EQ(pin.calls(), t.calls) << t.vectors << " " << t.n << " " << t.count;
        EXPECT_EQ(out.buf == Out<T>(t.n, t.count).buf, t.calls > 0 || t.n == 1);
        EXPECT_TRUE(qt::sameBits(out.vals, one.vals) && qt::sameBits(out.q.values(), one.q.values())) << t.n << " " << budget;
      }
    }
}
TEST(EigenSym, WorkThresholdsOwnScratchAndBitsAcrossBudgets) { driver<Qel32f>(), driver<Qel64f>(); }

// N Z C S for the standard arrays, N Z C R S for _L and _P, N Z S and N Z R for
// one matrix; a failed check writes nothing.
TEST(EigenSym, ChecksInOrderAndWriteNothing) {
  Batch<float> a(3, 3, 2);
  symmetric(a, 1);
  Out<float> o(3, 2);
  float *b = o.buf.data(), *v = o.vals.data(), *q = o.q.ptr();
  float* const* Q = o.q.list();
  const std::vector<std::pair<std::function<QelStatus()>, QelStatus>> cases = {
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
      {[&] { return qelmEigenValuesVectorsSym_ma_32f_P(a.elems(), 0, 36, b, o.q.elems(), 0, -36, v, 3, 2); }, -182}};
  for (size_t k = 0; k < cases.size(); ++k) {
    EXPECT_EQ(cases[k].first(), cases[k].second) << "case " << k;
    EXPECT_TRUE(o.canary(0, 10) && o.q.untouched() && o.buf == Out<float>(3, 2).buf) << "case " << k;
  }
}

}  // namespace
