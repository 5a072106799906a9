// Mul by a constant: every export of the table, in every description, against
// the product rounded to the element type (each element is one product, so
// equality is exact, NaN and infinity included), with check orders, canaries,
// each work limit at its edge, budgets and in-place calls.
#include <gtest/gtest.h>
#include <qelm/qelm.h>

#include <cmath>
#include <cstring>
#include <map>
#include <memory>

#include "batch.h"
#include "feed.h"
#include "pinned_core.h"

namespace {
using qt::Batch;
using qt::Feed;
using qt::Form;

enum Shape { MC, TC, VC, MAC, TAC, VAC, VCA, VACA };
enum Lay { S, L, P };
struct Limit {  // serial while W < t, or W <= t when atMost
  int32_t t = 0;
  bool atMost = false;
  int64_t lastSerial() const { return atMost ? t : t - 1; }
};
constexpr Limit below(int t) { return {t, false}; }
constexpr Limit atMost(int t) { return {t, true}; }

struct Export {
  std::string name;
  Shape shape; Lay lay; bool f64;
  QelStatus (*call)(Feed&);
  Limit contiguous, general;  // one limit for _P, vca and vaca
};
bool hasCount(Shape s) { return s >= MAC; }
bool isVector(Shape s) { return s == VC || s >= VAC; }
bool srcArray(Shape s) { return hasCount(s) && s != VCA; }
bool transposed(Shape s) { return s == TC || s == TAC; }
bool inPlaceOk(Shape s) { return !transposed(s) && s != VCA; }  // dst may be src, same description
int64_t workOf(Shape s, int64_t x, int64_t c) {  // x: width * height or len
  return s == VCA ? x * (c + 1) + c : s == VACA ? c * (2 * x + 1) : 2 * x * c;
}

#define ROW(SH, SHAPE, F, LAY, F64, C, G) \
  Export{#SH "_" #F, SHAPE, LAY, F64, [](Feed& f) { return qt::callWith(&qelmMul_##SH##_##F, f); }, C, G}
#define ONE(SH, SHAPE)                                                                     \
  ROW(SH, SHAPE, 32f, S, false, {}, {}), ROW(SH, SHAPE, 32f_P, P, false, {}, {}),          \
      ROW(SH, SHAPE, 64f, S, true, {}, {}), ROW(SH, SHAPE, 64f_P, P, true, {}, {})
#define ARR(SH, SHAPE, C32, G32, C32L, G32L, P32, C64, G64, C64L, G64L, P64)                 \
  ROW(SH, SHAPE, 32f, S, false, C32, G32), ROW(SH, SHAPE, 32f_L, L, false, C32L, G32L),      \
      ROW(SH, SHAPE, 32f_P, P, false, P32, P32), ROW(SH, SHAPE, 64f, S, true, C64, G64),     \
      ROW(SH, SHAPE, 64f_L, L, true, C64L, G64L), ROW(SH, SHAPE, 64f_P, P, true, P64, P64)
#define SECOND(SH, SHAPE) \
  ARR(SH, SHAPE, atMost(2100), atMost(2100), atMost(1200), atMost(1200), below(651), \
      atMost(2100), atMost(2100), atMost(1200), atMost(1200), below(651))

const std::vector<Export>& exports() {
  static const std::vector<Export> all = {
      ONE(mc, MC), ONE(tc, TC), ONE(vc, VC),
      ARR(mac, MAC, below(3501), below(3501), below(3501), below(1501), atMost(1700),
          below(3501), below(3501), below(3501), below(3501), atMost(1700)),
      ARR(tac, TAC, below(3501), below(3501), below(3501), below(1501), atMost(1700),
          below(3501), below(3501), below(3501), below(3501), atMost(1700)),
      ARR(vac, VAC, atMost(2500), atMost(1440), atMost(3600), atMost(1440), atMost(1440),
          atMost(3600), atMost(1440), atMost(3600), atMost(1440), atMost(1440)),
      SECOND(vca, VCA), SECOND(vaca, VACA)};
  return all;
}

// One argument of a kind (pointer, stride, shift, size, count), picked by its
// place among those of its kind, takes a bad value.
struct Bad {
  int at = -1, value = 0, seen = 0;
  int take(int v) { return seen++ == at ? value : v; }
};

// One call: src (a transposed one stored width by height), the constants, dst.
template <class T>
struct Call {
  const Export& ex;
  int w, h, count, rows, cols;
  std::unique_ptr<Batch<T>> src, vals, dst;
  std::vector<T> before;
  T val;
  bool inPlace;
  std::map<char, Bad> bad;  // by check group: N C Z S R

  Call(const Export& e, int w_, int h_, int count_, Form fs, Form fd, uint32_t seed, bool inPlace_ = false)
      : ex(e), w(w_), h(h_), count(count_), rows(isVector(e.shape) ? 1 : transposed(e.shape) ? w : h),
        cols(isVector(e.shape) ? w : transposed(e.shape) ? h : w), inPlace(inPlace_) {
    src = std::make_unique<Batch<T>>(rows, cols, srcArray(e.shape) ? count : 1, fs);
    src->fillRandom(seed);
    src->set(0, 0, 0, T(INFINITY));
    if (rows * cols > 1) src->set(0, rows - 1, cols - 1, T(NAN));
    before = src->values();
    vals = std::make_unique<Batch<T>>(1, 1, count, fs);
    vals->fillRandom(seed + 1);
    vals->set(0, 0, 0, seed % 2 ? T(0) : T(-0.0));
    val = seed % 3 ? T(0.75 + seed % 5) : T(0);
    dst = std::make_unique<Batch<T>>(isVector(e.shape) ? 1 : h, w, hasCount(e.shape) ? count : 1, fd);
  }
  Batch<T>& out() { return inPlace ? *src : *dst; }

  void pointer(Feed& f, const void* p) { f.ptr(bad['N'].take(1) ? p : nullptr); }
  void push(Feed& f, Batch<T>& b, bool array, bool vec) {
    auto stride = [&](int s) { f.num(bad['S'].take(s)); };
    auto shift = [&](int s) { f.num(bad['R'].take(s)); };
    pointer(f, ex.lay == P ? (const void*)b.elems() : ex.lay == L && array ? (const void*)b.list() : b.ptr());
    if (ex.lay == P) {
      shift(Batch<T>::elemShift);
      if (array) stride(b.s0);
      return;
    }
    if (array) ex.lay == S ? stride(b.s0) : shift(Batch<T>::listShift);
    if (!vec) stride(b.s1);
    stride(b.s2);
  }

  QelStatus run() {
    for (auto& [group, b] : bad) b.seen = 0;
    Feed f;
    const Shape s = ex.shape;
    push(f, *src, srcArray(s), isVector(s));
    if (s < VCA) f.val(val);
    else if (ex.lay == L) pointer(f, vals->list()), f.num(bad['R'].take(Batch<T>::listShift));
    else pointer(f, vals->ptr()), f.num(bad['S'].take(vals->s0));
    push(f, out(), hasCount(s), isVector(s));
    f.num(bad['Z'].take(w));
    if (!isVector(s)) f.num(bad['Z'].take(h));
    if (hasCount(s)) f.num(bad['C'].take(count));
    return ex.call(f);
  }

  void expectResult(const std::string& where) {
    int wrong = 0;
    for (int n = 0; n < (hasCount(ex.shape) ? count : 1); ++n)
      for (int i = 0; i < (isVector(ex.shape) ? 1 : h); ++i)
        for (int j = 0; j < w; ++j) {
          const int obj = srcArray(ex.shape) ? n : 0, r = transposed(ex.shape) ? j : i;
          const T x = before[(obj * rows + r) * cols + (transposed(ex.shape) ? i : j)];
          const T want = x * (ex.shape >= VCA ? vals->get(n, 0, 0) : val), got = out().get(n, i, j);
          if (std::memcmp(&want, &got, sizeof(T)) != 0 && wrong++ < 3)
            ADD_FAILURE() << ex.name << " " << where << " n=" << n << " (" << i << "," << j << "): " << got
                          << " != " << want;
        }
    EXPECT_TRUE(out().outsideIntact()) << ex.name << " " << where << ": wrote outside dst";
  }
};

template <class F>
void forEachExport(F f, bool arraysOnly = false) {
  for (const Export& ex : exports())
    if (!arraysOnly || hasCount(ex.shape)) {
      if (ex.f64) f.template operator()<double>(ex);
      else f.template operator()<float>(ex);
    }
}

using Sizes = std::vector<std::pair<int, int>>;
const Sizes kVectorSizes = {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}, {7, 1}, {9, 1}, {17, 1}};
const Sizes kMatrixSizes = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7}, {3, 4}, {4, 3}, {2, 5}};

// All operands in one form, dst in another, and dst as src itself.
TEST(MulConst, EveryExportEveryDescriptionEverySize) {
  const auto& forms = qt::allForms();
  forEachExport([&]<class T>(const Export& ex) {
    for (auto [w, h] : isVector(ex.shape) ? kVectorSizes : kMatrixSizes)
      for (size_t f = 0; f < forms.size(); ++f)
        for (int variant : {0, 1, 2}) {
          if (variant == 2 && !inPlaceOk(ex.shape)) continue;
          const Form fd = forms[variant == 1 ? (f + 3) % forms.size() : f];
          Call<T> c(ex, w, h, 5, forms[f], fd, uint32_t(w * 31 + h + f + variant), variant == 2);
          const std::string where = std::to_string(w) + "x" + std::to_string(h) + " " + qt::formName(forms[f]) +
                                    (variant == 1 ? " mixed" : variant == 2 ? " in place" : "");
          ASSERT_EQ(c.run(), qelStatusOk) << ex.name << " " << where;
          c.expectResult(where);
        }
  });
}

const std::map<char, QelStatus> kStatus = {{'N', qelStatusNullPointer}, {'C', qelStatusBadCount},
                                           {'Z', qelStatusBadSize}, {'S', qelStatusBadStride},
                                           {'R', qelStatusBadRoiShift}};

// Each group of the order alone, then with every later one: the earlier group
// reports. Then every argument of every group alone, with each kind of bad
// value. Nothing is written.
TEST(MulConst, CheckOrderAndCanaries) {
  forEachExport([&]<class T>(const Export& ex) {
    const std::string order = std::string(hasCount(ex.shape) ? "NCZ" : "NZ") +
                              (ex.lay == S ? "S" : hasCount(ex.shape) ? "SR" : "R");
    const int e = sizeof(T);
    const std::map<char, std::vector<int>> values = {
        {'N', {0}}, {'C', {0, -1}}, {'Z', {0, -3}}, {'S', {e / 2, 0, -e}}, {'R', {-e, e / 2}}};
    for (size_t x = 0; x < order.size(); ++x)
      for (size_t y = x; y < order.size(); ++y) {
        Call<T> c(ex, 4, 4, 3, Form::Packed, Form::Packed, 1);
        c.bad[order[x]] = {0, values.at(order[x])[0]}, c.bad[order[y]] = {0, values.at(order[y])[0]};
        EXPECT_EQ(c.run(), kStatus.at(order[x])) << ex.name << " " << order[x] << order[y];
        EXPECT_TRUE(c.dst->untouched()) << ex.name << " wrote on a failed check";
      }
    Call<T> probe(ex, 4, 4, 3, Form::Packed, Form::Packed, 1);
    ASSERT_EQ(probe.run(), qelStatusOk);
    for (char group : order)
      for (int at = 0; at < probe.bad[group].seen; ++at)
        for (int value : values.at(group)) {
          Call<T> c(ex, 4, 4, 3, Form::Packed, Form::Packed, 1);
          c.bad[group] = {at, value};
          EXPECT_EQ(c.run(), kStatus.at(group)) << ex.name << " " << group << at << " = " << value;
          EXPECT_TRUE(c.dst->untouched()) << ex.name << " wrote on a failed check";
        }
  });
}

// Sizes x (len, or width with height 1) and count >= 2 whose W is the target or,
// where none gives it, the nearest W on the same side of the limit.
TEST(MulConst, WorkLimitEdges) {
  forEachExport([&]<class T>(const Export& ex) {
    for (bool contiguous : {true, false}) {
      const Limit lim = contiguous ? ex.contiguous : ex.general;
      for (int64_t target : {lim.lastSerial(), lim.lastSerial() + 1}) {
        const bool parallel = target > lim.lastSerial();
        int x = 0, c = 0;
        int64_t best = 0;
        for (int xx = 1; xx <= 64; ++xx)
          for (int cc = 2; workOf(ex.shape, xx, cc) <= target + 3; ++cc) {
            const int64_t w = workOf(ex.shape, xx, cc);
            const bool closer = x == 0 || std::llabs(w - target) < std::llabs(best - target);
            if ((parallel ? w >= target : w <= target) && closer) x = xx, c = cc, best = w;
          }
        ASSERT_LE(std::llabs(best - target), 2) << ex.name << " no sizes for W " << target;
        PinnedBudget pin(2);
        const Form form = contiguous ? Form::Packed : Form::ColumnMajor;
        Call<T> call(ex, x, 1, c, form, form, 5);
        ASSERT_EQ(call.run(), qelStatusOk);
        EXPECT_EQ(pin.calls(), parallel ? 2 : 0) << ex.name << (contiguous ? " contig" : " general") << " W=" << best;
        call.expectResult("limit");
      }
    }
  }, true);
}

// Odd budgets in place where a shape allows it.
TEST(MulConst, SameBitsForEveryBudget) {
  forEachExport([&]<class T>(const Export& ex) {
    for (auto [w, h] : {std::pair{4, 4}, std::pair{5, 3}}) {
      std::vector<T> first;
      for (int budget : {1, 2, 3, 7}) {
        PinnedBudget pin(budget);
        Call<T> c(ex, w, h, 1001, Form::Packed, Form::RowGaps, 7, budget % 2 && inPlaceOk(ex.shape));
        ASSERT_EQ(c.run(), qelStatusOk);
        c.expectResult("budget " + std::to_string(budget));
        if (first.empty()) first = c.out().values();
        else EXPECT_TRUE(qt::sameBits(first, c.out().values())) << ex.name << " budget " << budget;
      }
    }
  }, true);
}

}  // namespace
