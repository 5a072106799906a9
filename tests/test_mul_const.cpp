// Mul by a constant: every export, in every description, against the product
// rounded to the element type (each element is one product, so equality is
// exact, NaN, infinity and signed zero included), in place where it may be, with
// check orders, canaries, each work limit at its edge and budgets.
#include <gtest/gtest.h>

#include "products.h"

namespace {
using namespace qt;

enum Shape { MC, TC, VC, MAC, TAC, VAC, VCA, VACA };
bool hasCount(Shape s) { return s >= MAC; }
bool isVector(Shape s) { return s == VC || s >= VAC; }
bool srcArray(Shape s) { return hasCount(s) && s != VCA; }
bool transposed(Shape s) { return s == TC || s == TAC; }
bool inPlaceOk(Shape s) { return !transposed(s) && s != VCA; }  // dst may be src, same description

// Limits as the last serial work: serial while W < t, or while W <= t.
constexpr int below(int t) { return t - 1; }
constexpr int atMost(int t) { return t; }
struct Export {
  std::string name;
  Shape shape;
  Lay lay;
  QelStatus (*call)(Feed&);
  int contiguous, general;  // one limit for _P, vca and vaca
};
#define ROW(SH, SHAPE, F, LAY, C, G) Export{#SH "_" #F, SHAPE, LAY, [](Feed& f) { return callWith(&qelmMul_##SH##_##F, f); }, C, G}
#define ONE(F, SH, SHAPE) ROW(SH, SHAPE, F, S, 0, 0), ROW(SH, SHAPE, F##_P, P, 0, 0)
#define ARR(F, SH, SHAPE, C, G, CL, GL, PP) ROW(SH, SHAPE, F, S, C, G), ROW(SH, SHAPE, F##_L, L, CL, GL), ROW(SH, SHAPE, F##_P, P, PP, PP)
#define ALL(F, VAC_C, MAC_LG)                                                                                              \
  {ONE(F, mc, MC), ONE(F, tc, TC), ONE(F, vc, VC),                                                                        \
   ARR(F, mac, MAC, below(3501), below(3501), below(3501), MAC_LG, atMost(1700)),                                          \
   ARR(F, tac, TAC, below(3501), below(3501), below(3501), MAC_LG, atMost(1700)),                                          \
   ARR(F, vac, VAC, VAC_C, atMost(1440), atMost(3600), atMost(1440), atMost(1440)),                                         \
   ARR(F, vca, VCA, atMost(2100), atMost(2100), atMost(1200), atMost(1200), below(651)),                                  \
   ARR(F, vaca, VACA, atMost(2100), atMost(2100), atMost(1200), atMost(1200), below(651))}
const std::vector<Export> k32 = ALL(32f, atMost(2500), below(1501)), k64 = ALL(64f, atMost(3600), below(3501));

// One call: src (a transposed one stored width by height), the constants, dst;
// `want` is src times its constant, as dst should hold it.
template <class T>
struct Call {
  const Export& ex;
  const int w, h, count;
  const bool vec = isVector(ex.shape), tr = transposed(ex.shape), inPlace;
  Batch<T> src, vals, dst;
  const T val;
  std::vector<T> want;

  Call(const Export& e, int w_, int h_, int n, Form fs, Form fd, uint32_t seed, bool inPlace_ = false)
      : ex(e), w(w_), h(h_), count(n), inPlace(inPlace_), src(vec ? 1 : tr ? w : h, vec || !tr ? w : h, srcArray(e.shape) ? n : 1, fs),
        vals(1, 1, n, fs), dst(vec ? 1 : h, w, hasCount(e.shape) ? n : 1, fd), val(seed % 3 ? T(0.75 + seed % 5) : T(0)) {
    src.fillRandom(seed), vals.fillRandom(seed + 1), vals.set(0, 0, 0, seed % 2 ? T(0) : T(-0.0));
    src.set(0, 0, 0, T(INFINITY)), src.set(0, src.rows() - 1, src.cols() - 1, T(NAN));
    for (int o = 0; o < dst.count(); ++o)
      for (int i = 0; i < dst.rows(); ++i)
        for (int j = 0; j < w; ++j)
          want.push_back(src.get(srcArray(e.shape) * o, tr ? j : i, tr ? i : j) * (e.shape >= VCA ? vals.get(o, 0, 0) : val));
  }
  Batch<T>& out() { return inPlace ? src : dst; }
  Outcome run(const std::vector<Spoil>& bad = {}) {
    Args g(ex.lay, bad);
    g.group(src, srcArray(ex.shape), !vec);
    if (ex.shape < VCA) g.f.val(val);
    else ex.lay == L ? (g.ptr(vals.list()), g.num('R', vals.listShift)) : (g.ptr(vals.ptr()), g.num('S', vals.s0));
    g.group(out(), hasCount(ex.shape), !vec), g.num('Z', w);
    if (!vec) g.num('Z', h);
    if (hasCount(ex.shape)) g.num('C', count);
    return {ex.call(g.f), dst.untouched(), g.seen};
  }
  std::vector<T> check(const std::string& how) {
    EXPECT_EQ(run().status, qelStatusOk) << ex.name << " " << how;
    EXPECT_TRUE(sameBits(want, out().values())) << ex.name << " " << w << "x" << h << " " << how;
    EXPECT_TRUE(out().outsideIntact()) << ex.name << " " << how << ": wrote outside dst";
    return out().values();
  }
};

// All operands in one form, dst in another, and dst as src itself.
TEST(MulConst, EveryExportEveryDescriptionEverySize) {
  const std::vector<std::pair<int, int>> vectors = {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}, {7, 1}, {9, 1}, {17, 1}},
                                         matrices = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7}, {3, 4}, {4, 3}, {2, 5}};
  const auto& forms = allForms();
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    for (auto [w, h] : isVector(ex.shape) ? vectors : matrices)
      for (size_t f = 0; f < forms.size(); ++f)
        for (int variant : {0, 1, 2})
          if (variant < 2 || inPlaceOk(ex.shape))
            Call<T>(ex, w, h, 5, forms[f], forms[variant == 1 ? (f + 3) % forms.size() : f], w * 31 + h + f + variant, variant == 2)
                .check(std::string(formName(forms[f])) + (variant == 1 ? " mixed" : variant == 2 ? " in place" : ""));
  });
}

TEST(MulConst, CheckOrderAndCanaries) {
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    checkOrder(ex.name, sizeof(T), {}, [&](auto bad) { return Call<T>(ex, 4, 4, 3, Form::Packed, Form::Packed, 1).run(bad); });
  });
}

// Sizes len (or width, height 1) and count whose W is at the edge or, where no
// W can be, next to it; vca and vaca test the work before the strides.
TEST(MulConst, WorkLimitEdges) {
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    for (bool contiguous : {true, false})
      if (hasCount(ex.shape))
        limitEdges(ex.name, contiguous ? ex.contiguous : ex.general, 1, [&](int m, int x) {
          return m > 1 ? std::pair{0, 0} : ex.shape == VCA ? std::pair{x, x + 1} : std::pair{0, ex.shape == VACA ? 2 * x + 1 : 2 * x};
        }, [&](int, int x, int count, int) {
          const Form form = contiguous ? Form::Packed : Form::ColumnMajor;
          Call<T>(ex, x, 1, count, form, form, 5).check("limit");
        });
  });
}

// Odd budgets in place where a shape allows it.
TEST(MulConst, SameBitsForEveryBudget) {
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    for (auto [w, h] : {std::pair{4, 4}, std::pair{5, 3}})
      if (hasCount(ex.shape))
        sweepBudgets<T>(ex.name, true, [&](int budget) {
          return Call<T>(ex, w, h, 1001, Form::Packed, Form::RowGaps, 7, budget % 2 && inPlaceOk(ex.shape)).check("budget");
        });
  });
}

}  // namespace
