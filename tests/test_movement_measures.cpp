// Trace and FrobNorm: every export in every description. Trace bit for bit in
// the order of its kernel (rising from d0 in the contiguous kernels at sizes 3
// to 6, the general kernels' own orders there, from zero elsewhere and in _P);
// FrobNorm against a long double within a bound, bit for bit where the order is
// fixed (plain row order); check orders with canaries, work limits at their
// edges, the same bits for every budget.
#include <gtest/gtest.h>

#include "products.h"

namespace {
using namespace qt;

constexpr int below(int t) { return t - 1; }
constexpr int atMost(int t) { return t; }
struct Export {
  std::string name;
  bool trace, array;
  Lay lay;
  int contiguous, general;  // the last serial work
  QelStatus (*call)(Feed&);
};
#define E(OP, K, F, SFX, LAY, C, G) Export{#OP "_" #K "_" #F #SFX, #OP[0] == 'T', #K[1] == 'a', LAY, C, G, [](Feed& f) { return callWith(&qelm##OP##_##K##_##F##SFX, f); }}
#define ONE(OP, F) E(OP, m, F, , S, 0, 0), E(OP, m, F, _P, P, 0, 0)
#define TRACE(F) ONE(Trace, F), E(Trace, ma, F, , S, below(3601), below(3601)), E(Trace, ma, F, _L, L, below(3601), below(3601)), \
  E(Trace, ma, F, _P, P, below(3601), below(3601)), ONE(FrobNorm, F)
const std::vector<Export> k32 = {TRACE(32f), E(FrobNorm, ma, 32f, , S, below(2501), below(1801)),
                                 E(FrobNorm, ma, 32f, _L, L, below(1601), below(1601)), E(FrobNorm, ma, 32f, _P, P, below(1501), below(1501))},
                          k64 = {TRACE(64f), E(FrobNorm, ma, 64f, , S, atMost(1800), atMost(1500)),
                                 E(FrobNorm, ma, 64f, _L, L, below(1601), below(1601)), E(FrobNorm, ma, 64f, _P, P, below(2501), below(2501))};

template <class T>
struct Call {
  const Export& e;
  const int w, h, count;
  Batch<T> src, dst;
  Call(const Export& ex, int w_, int h_, int n, Form f, uint32_t seed = 3)
      : e(ex), w(w_), h(h_), count(e.array ? n : 1), src(h, w, count, f), dst(1, 1, count) {
    src.fillRandom(seed, -3, 5);
    for (int k = 0; k < std::min(w, h); ++k) src.set(count - 1, k, k, T(-0.0));  // the sum is -0 only without a 0 +
  }
  Outcome run(const std::vector<Spoil>& bad = {}) {
    Args g(e.lay, bad);
    g.group(src, e.array, true), g.num('Z', w);
    if (!e.trace) g.num('Z', h);
    g.ptr(dst.ptr());
    if (e.array) g.num('C', count);
    return {e.call(g.f), dst.untouched(), g.seen};
  }
  // The trace of object n in its kernel's order, where one is fixed.
  T trace(int n) const {
    static const std::vector<int> general[4] = {{1, 2, 0}, {2, 3, 1, 0}, {3, 4, 2, 0, 1}, {4, 5, 3, 0, 1, 2}};
    std::vector<T> d;
    for (int k = 0; k < w; ++k) d.push_back(src.get(n, k, k));
    if (e.lay == P || w < 3 || w > 6) return fromZero(d);
    if (src.s2 == sizeof(T)) return fromLeft(d);
    std::vector<T> ordered;
    for (int k : general[w - 3]) ordered.push_back(d[k]);
    return fromLeft(ordered);
  }
  std::optional<T> frob(int n) const {
    if (e.lay == P ? w * h > 1 : w * h >= 8 && !(w == h && w >= 3 && w <= 5)) return std::nullopt;
    T s = 0;
    for (int i = 0; i < h; ++i)
      for (int j = 0; j < w; ++j) s += src.get(n, i, j) * src.get(n, i, j);
    return std::sqrt(s);
  }
  std::vector<T> check(const std::string& how) {
    const std::string at = e.name + " " + std::to_string(w) + "x" + std::to_string(h) + " " + how;
    EXPECT_EQ(run().status, qelStatusOk) << at;
    for (int n = 0; n < count; ++n) {
      const T got = dst.get(n, 0, 0);
      const std::optional<T> want = e.trace ? trace(n) : frob(n);
      EXPECT_TRUE(!want || sameBits<T>({got}, {*want})) << at << " object " << n << ": " << got << " vs " << *want;
      long double ref = 0, mag = 0;
      for (int i = 0; i < h; ++i)
        for (int j = 0; j < w; ++j)
          if (long double x = src.get(n, i, j); !e.trace) ref += x * x, mag += x * x;
          else if (i == j) ref += x, mag += std::fabs(x);
      if (!e.trace) ref = std::sqrt(ref), mag = std::sqrt(mag);
      EXPECT_LE(std::fabs(got - ref), (w * h + 2) * std::numeric_limits<T>::epsilon() * mag) << at;
    }
    EXPECT_TRUE(dst.outsideIntact()) << at;
    return dst.values();
  }
};

TEST(Measures, EveryExportEveryDescriptionEverySize) {
  const std::vector<std::pair<int, int>> sizes = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7}, {9, 9},
                                                  {2, 3}, {7, 1}, {1, 9}, {4, 9}, {9, 4}, {13, 7}, {20, 20}};
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    for (auto [w, h] : sizes)
      for (Form f : allForms())
        if (!ex.trace || w == h) Call<T>(ex, w, h, 5, f, w * 7 + h).check(formName(f));  // 5: a group of four, one alone
  });
}

// No wider sum and no scaling: squares past the range give infinity.
TEST(Measures, FrobNormOverflows) {
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    if (ex.trace) return;
    Call<T> c(ex, 3, 2, 2, Form::Packed);
    c.src.fill(T(sizeof(T) == 4 ? 1e20 : 1e160));
    ASSERT_EQ(c.run().status, qelStatusOk);
    EXPECT_EQ(c.dst.get(0, 0, 0), T(INFINITY)) << ex.name;
  });
}

TEST(Measures, CheckOrderAndCanaries) {
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    checkOrder(ex.name, sizeof(T), {}, [&](auto bad) { return Call<T>(ex, 4, ex.trace ? 4 : 3, 3, Form::Packed).run(bad); });
  });
}

TEST(Measures, WorkLimitEdges) {
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    for (bool contiguous : {true, false})
      if (ex.array)
        limitEdges(ex.name, contiguous ? ex.contiguous : ex.general, 0, [&](int m, int k) {
          return ex.trace && m > 1 ? std::pair{0, 0} : std::pair{0, ex.trace ? k : m * k};
        }, [&](int m, int k, int count, int) {
          Call<T>(ex, k, ex.trace ? k : m, count, contiguous ? Form::Packed : Form::ColumnMajor).check("limit");
        });
  });
}

TEST(Measures, SameBitsForEveryBudget) {
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    for (Form f : {Form::Packed, Form::ElementGaps})
      if (ex.array) sweepBudgets<T>(ex.name, true, [&](int) { return Call<T>(ex, 5, 5, 1001, f).check("budget"); });
  });
}

}  // namespace
