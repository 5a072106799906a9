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
void symmetric(Batch<T>& a, uint32_t seed) {
  a.fillRandom(seed);
  for (int o = 0; o < a.count(); ++o)
    for (int i = 0; i < a.rows(); ++i) {
      a.set(o, i, i, a.get(o, i, i) + T(3 * i - a.rows()) + T(0.5));
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
  if (n >= 3) EXPECT_TRUE(std::is_sorted(v, v + n, std::greater<T>())) << "object " << o;
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
          EXPECT_TRUE(qt::sameBits(std::vector<T>(out.vals.begin(), out.vals.begin() + n * k),
                                   std::vector<T>(first.vals.begin(), first.vals.begin() + n * k)));
          if (vectors) {
            Batch<T> q(n, n, k);
            for (int o = 0; o < k; ++o)
              for (int i = 0; i < n; ++i)
                for (int j = 0; j < n; ++j) q.set(o, i, j, out.q.get(o, i, j));
            auto want = first.q.values();
            EXPECT_TRUE(qt::sameBits(q.values(), std::vector<T>(want.begin(), want.begin() + n * n * k)));
          }
        }
      }
    }
}
TEST(EigenSym, EveryExportInEveryDescription32f) { sweep<Qel32f>(); }
TEST(EigenSym, EveryExportInEveryDescription64f) { sweep<Qel64f>(); }

}  // namespace
