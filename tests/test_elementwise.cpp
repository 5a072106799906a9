// Add and Sub: every export of the table, in every description, against a plain
// loop in the element type (each element is one operation, so equality is exact),
// with check orders, canaries, work thresholds and budgets.
#include <gtest/gtest.h>
#include <omp.h>

#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <set>

#include "batch.h"
#include "ew_table.h"
#include "pinned_core.h"

namespace {

using namespace ew;
using qt::Batch;
using qt::Feed;
using qt::Form;

std::vector<Export> allExports() {
  std::vector<Export> all = matrixExports();
  for (Export& e : vectorExports()) all.push_back(e);
  return all;
}

// One operand of a call: its data in a Batch, described by kind and layout.
template <class T>
struct Operand {
  Kind kind;
  bool trans;
  Lay lay;
  std::unique_ptr<Batch<T>> b;
  T val = T(1.25);

  Operand(Kind k, bool t, Lay l, int w, int h, int count, Form form, uint32_t seed)
      : kind(k), trans(t), lay(l) {
    int rows = 1, cols = 1;
    if (k == ARR || k == ONE) {
      rows = t ? w : h;
      cols = t ? h : w;
    } else if (isVector(k)) {
      cols = w;
    }
    b = std::make_unique<Batch<T>>(rows, cols, isArray(k) ? count : 1, form);
    if (seed) b->fillRandom(seed);
    val = T(0.75 + seed % 7);
  }

  // A's value at result element (n, i, j).
  T at(int n, int i, int j) const {
    if (kind == CON) return val;
    if (kind == CAR) return b->at(n, 0, 0);
    const int obj = isArray(kind) ? n : 0;
    return trans ? b->at(obj, j, i) : b->at(obj, i, j);
  }

  // Pushes this operand's arguments in its description; `bad` replaces the
  // first pointer with null, `badStride` the stride the description checks
  // last, `badShift` the roi shift.
  void push(Feed& f, bool nullPtr = false, int badStride = 0, int badShift = 0) {
    Batch<T>& d = *b;
    auto pointer = [&](const void* p) { f.ptr(nullPtr ? nullptr : p); };
    auto lastStride = [&](int s) { f.num(badStride ? badStride : s); };
    const int shiftL = badShift ? badShift : Batch<T>::listShift;
    const int shiftP = badShift ? badShift : Batch<T>::elemShift;
    switch (kind) {
      case CON: f.val(val); return;
      case CAR:
        if (lay == L) { pointer(d.list()); f.num(shiftL); }
        else { pointer(d.ptr()); lastStride(d.s0); }
        return;
      case ARR:
        if (lay == S) { pointer(d.ptr()); f.num(d.s0); f.num(d.s1); lastStride(d.s2); }
        else if (lay == L) { pointer(d.list()); f.num(shiftL); f.num(d.s1); lastStride(d.s2); }
        else { pointer(d.elems()); f.num(shiftP); lastStride(d.s0); }
        return;
      case ONE:
        if (lay == P) { pointer(d.elems()); f.num(shiftP); }
        else { pointer(d.ptr()); f.num(d.s1); lastStride(d.s2); }
        return;
      case VARR:
        if (lay == S) { pointer(d.ptr()); f.num(d.s0); lastStride(d.s2); }
        else if (lay == L) { pointer(d.list()); f.num(shiftL); lastStride(d.s2); }
        else { pointer(d.elems()); f.num(shiftP); lastStride(d.s0); }
        return;
      case VONE:
        if (lay == P) { pointer(d.elems()); f.num(shiftP); }
        else { pointer(d.ptr()); lastStride(d.s2); }
        return;
    }
  }
};

enum class Defect { None, N, C, Z, S, R };

QelStatus statusOf(char group) {
  switch (group) {
    case 'N': return qelStatusNullPointer;
    case 'C': return qelStatusBadCount;
    case 'Z': return qelStatusBadSize;
    case 'S': return qelStatusBadStride;
    case 'R': return qelStatusBadRoiShift;
  }
  return qelStatusOk;
}

// A whole call: operands, destination, sizes.
template <class T>
struct Call {
  const Export& ex;
  int w, h, count;
  Operand<T> a, b, d;

  static Kind dstKind(const Export& ex) {
    const bool vec = isVector(ex.ka) || isVector(ex.kb);
    const bool arr = isArray(ex.ka) || isArray(ex.kb);
    return vec ? (arr ? VARR : VONE) : (arr ? ARR : ONE);
  }
  bool hasCount() const { return isArray(ex.ka) || isArray(ex.kb); }

  Call(const Export& e, int w_, int h_, int count_, Form fa, Form fb, Form fd, uint32_t seed = 1)
      : ex(e), w(w_), h(h_), count(count_),
        a(e.ka, e.ta, e.lay, w_, h_, count_, fa, seed),
        b(e.kb, e.tb, e.lay, w_, h_, count_, fb, seed + 100),
        d(dstKind(e), false, e.lay, w_, h_, count_, fd, 0) {}

  QelStatus run(std::set<Defect> defects = {}) {
    Feed f;
    const bool null = defects.count(Defect::N);
    const int badStride = defects.count(Defect::S) ? 2 : 0;
    const int badShift = defects.count(Defect::R) ? -static_cast<int>(sizeof(T)) : 0;
    // The constant of cv, cav, cva, cava is passed after the vector.
    Operand<T>& first = ex.constFirst ? b : a;
    Operand<T>& second = ex.constFirst ? a : b;
    first.push(f, null);
    second.push(f);
    d.push(f, false, badStride, badShift);
    const int width = defects.count(Defect::Z) ? 0 : w;
    f.num(width);
    if (!isVector(d.kind)) f.num(h);
    if (hasCount()) f.num(defects.count(Defect::C) ? 0 : count);
    return ex.call(f);
  }

  // Every result element equals one operation in T on the operands.
  void expectResult(const std::string& where) {
    const int rows = isVector(d.kind) ? 1 : h;
    int wrong = 0;
    for (int n = 0; n < (hasCount() ? count : 1); ++n)
      for (int i = 0; i < rows; ++i)
        for (int j = 0; j < w; ++j) {
          const T x = a.at(n, i, j), y = b.at(n, i, j);
          const T want = ex.op == '+' ? T(x + y) : T(x - y);
          const T got = d.b->at(n, i, j);
          if (std::memcmp(&want, &got, sizeof(T)) != 0 && wrong++ < 3)
            ADD_FAILURE() << ex.name << " " << where << " n=" << n << " (" << i << "," << j
                          << "): " << got << " != " << want;
        }
    EXPECT_TRUE(d.b->outsideIntact()) << ex.name << " " << where << ": wrote outside dst";
  }
};

template <class F>
void forEachExport(F f) {
  for (const Export& ex : allExports()) {
    if (ex.f64) f.template operator()<double>(ex);
    else f.template operator()<float>(ex);
  }
}

std::vector<std::pair<int, int>> sizesFor(const Export& ex) {
  if (isVector(ex.ka) || isVector(ex.kb) || isConst(ex.ka) || isConst(ex.kb))
    return {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}, {7, 1}, {9, 1}, {16, 1}, {17, 1}};
  return {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7},
          {3, 4}, {4, 3}, {6, 5}, {2, 3}, {7, 1}};
}

TEST(Elementwise, EveryExportEveryDescriptionEverySize) {
  const auto& forms = qt::allForms();
  forEachExport([&]<class T>(const Export& ex) {
    for (auto [w, h] : sizesFor(ex))
      for (size_t f = 0; f < forms.size(); ++f) {
        // All operands in one form (contiguous or general kernels), then mixed.
        for (bool mixed : {false, true}) {
          Form fb = mixed ? Form::Packed : forms[f];
          Form fd = mixed ? forms[(f + 3) % forms.size()] : forms[f];
          Call<T> c(ex, w, h, 3, forms[f], fb, fd, uint32_t(w * 31 + h + f));
          const std::string where = std::to_string(w) + "x" + std::to_string(h) + " " +
                                    qt::formName(forms[f]) + (mixed ? " mixed" : "");
          ASSERT_EQ(c.run(), qelStatusOk) << ex.name << " " << where;
          c.expectResult(where);
        }
      }
  });
}

// Each group of the order alone, then every pair: the earlier group reports,
// and the destination keeps its canaries.
TEST(Elementwise, CheckOrderAndCanaries) {
  const std::map<char, Defect> defectOf = {{'N', Defect::N}, {'C', Defect::C}, {'Z', Defect::Z},
                                           {'S', Defect::S}, {'R', Defect::R}};
  forEachExport([&]<class T>(const Export& ex) {
    const std::string& order = ex.order;
    for (size_t x = 0; x < order.size(); ++x)
      for (size_t y = x; y < order.size(); ++y) {
        Call<T> c(ex, 4, 4, 3, Form::Packed, Form::Packed, Form::Packed);
        const QelStatus st = c.run({defectOf.at(order[x]), defectOf.at(order[y])});
        EXPECT_EQ(st, statusOf(order[x])) << ex.name << " defects " << order[x] << order[y];
        EXPECT_TRUE(c.d.b->untouched()) << ex.name << " wrote on a failed check";
      }
  });
}

// --------------------------------------------------------------- work figures

struct Threshold {
  bool never = false;         // no work test: always serial
  int32_t t = 0;
  bool serialAtLimit = false;  // W == t stays serial
  std::function<int64_t(int64_t x, int64_t c)> work;  // x: width * height or len
};

Threshold thresholdOf(const Export& ex, bool contiguous) {
  Threshold th;
  const bool vec = isVector(ex.ka) || isVector(ex.kb);
  if (!vec) {
    th.t = (!ex.f64 && ex.lay == S && contiguous) ? 3000 : 2000;
    if (isArray(ex.ka) && isArray(ex.kb))
      th.work = [](int64_t x, int64_t c) { return 3 * x * c; };
    else
      th.work = [](int64_t x, int64_t c) { return x * (2 * c + 1); };
    return th;
  }
  // Vectors: parallel when W is above the limit.
  const std::string shape = ex.name.substr(4, ex.name.find('_', 4) - 4);
  th.serialAtLimit = true;
  th.t = ex.lay == L ? 2500 : ex.lay == P ? 1500 : ex.f64 ? 1400 : 4800;
  if (shape == "vac" || shape == "vav" || shape == "vva")
    th.work = [](int64_t x, int64_t c) { return (2 * c + 1) * x; };
  else if (shape == "vaca" || shape == "cava")
    th.work = [](int64_t x, int64_t c) { return (2 * x + 1) * c; };
  else if (shape == "vava")
    th.work = [](int64_t x, int64_t c) { return 3 * x * c; };
  else if (shape == "vca" || shape == "cav")
    th.work = [](int64_t x, int64_t c) { return x * (c + 1) + c; };
  else if (shape == "cva") {
    th.work = [](int64_t, int64_t c) { return 2 * c; };
    th.t -= 1;
  }
  th.never = ex.name == "Sub_vva_64f_P";
  return th;
}

// Sizes x (1..64) and count (2..) whose W is `target` or, where no sizes give
// it exactly (W a multiple of 3), the nearest W on the same side of the limit.
struct WorkSizes { int x = 0, count = 0; int64_t w = 0; };
WorkSizes sizesForWork(const Threshold& th, int64_t target, bool atLeast) {
  WorkSizes best;
  for (int x = 1; x <= 64; ++x)
    for (int c = 2; c <= 20000; ++c) {
      const int64_t w = th.work(x, c);
      const bool side = atLeast ? w >= target : w <= target;
      if (side && (best.x == 0 || std::llabs(w - target) < std::llabs(best.w - target)))
        best = {x, c, w};
      if (w > target) break;
    }
  return best;
}

TEST(Elementwise, WorkThresholdEdges) {
  forEachExport([&]<class T>(const Export& ex) {
    if (!isArray(ex.ka) && !isArray(ex.kb)) return;
    for (bool contiguous : {true, false}) {
      if (ex.lay == P && !contiguous) continue;
      const Threshold th = thresholdOf(ex, contiguous);
      const Form form = contiguous ? Form::Packed : Form::ColumnMajor;
      const int64_t lastSerial = th.serialAtLimit ? th.t : th.t - 1;
      for (int64_t target : {lastSerial, lastSerial + 1}) {
        const bool parallel = !th.never && target > lastSerial;
        const WorkSizes ws = sizesForWork(th, target, parallel);
        ASSERT_GT(ws.x, 0) << ex.name << " no sizes for W " << target;
        ASSERT_LE(std::llabs(ws.w - target), 2) << ex.name;
        PinnedBudget pin(2);
        Call<T> call(ex, ws.x, 1, ws.count, form, form, form);
        ASSERT_EQ(call.run(), qelStatusOk);
        EXPECT_EQ(pin.calls(), parallel ? 2 : 0)
            << ex.name << (contiguous ? " contiguous" : " general") << " W=" << target;
        call.expectResult("threshold");
      }
    }
  });
}

// --------------------------------------------------------------- the driver

TEST(Elementwise, SameBitsForEveryBudget) {
  forEachExport([&]<class T>(const Export& ex) {
    if (!isArray(ex.ka) && !isArray(ex.kb)) return;
    for (auto [w, h] : {std::pair{4, 4}, std::pair{5, 3}}) {
      std::vector<T> first;
      for (int budget : {1, 2, 3, 7}) {
        PinnedBudget pin(budget);
        Call<T> c(ex, w, h, 1001, Form::Packed, Form::RowGaps, Form::Packed, 7);
        ASSERT_EQ(c.run(), qelStatusOk);
        c.expectResult("budget " + std::to_string(budget));
        if (first.empty()) first = c.d.b->values();
        else EXPECT_TRUE(qt::sameBits(first, c.d.b->values())) << ex.name << " budget " << budget;
      }
    }
  });
}

// The gate: at least 2 threads and count at least the budget, else the driver
// falls through to the serial kernel after one budget query.
TEST(Driver, GateByBudgetAndCount) {
  const Export ex = matrixExports()[12];  // Add_mam_32f
  ASSERT_EQ(ex.name, "Add_mam_32f");
  struct Case { int budget, count, calls; };
  for (Case k : {Case{0, 50, 1}, Case{-3, 50, 1}, Case{1, 50, 1}, Case{2, 50, 2}, Case{2, 2, 2},
                 Case{7, 6, 1}, Case{7, 7, 2}, Case{7, 8, 2}, Case{3, 1, 1}}) {
    PinnedBudget pin(k.budget);
    Call<float> c(ex, 40, 40, k.count, Form::Packed, Form::Packed, Form::Packed, 3);
    ASSERT_EQ(c.run(), qelStatusOk);
    EXPECT_EQ(pin.calls(), k.calls) << "budget " << k.budget << " count " << k.count;
    c.expectResult("gate");
  }
}

// Inside an enclosing parallel region no team can be formed: the driver runs
// its body as a team of one, and every caller thread still gets its result.
TEST(Driver, CallInsideEnclosingRegion) {
  const Export ex = matrixExports()[12];
  PinnedBudget pin(2);
  int failures = 0;
#pragma omp parallel num_threads(2) reduction(+ : failures)
  {
    Call<float> c(ex, 4, 4, 4000, Form::Packed, Form::Packed, Form::Packed,
                  uint32_t(omp_get_thread_num() + 5));
    failures += c.run() != qelStatusOk;
    c.expectResult("nested");
  }
  EXPECT_EQ(failures, 0);
  EXPECT_EQ(pin.calls(), 4);  // two budget queries per call: both calls reached the fork
}

// dst may be the array operand itself, with the same description.
TEST(Elementwise, InPlaceOnArrayOperand) {
  for (int n : {3, 4, 5, 6, 7}) {
    Batch<float> a(n, n, 4, Form::RowGaps), b(n, n, 1, Form::Packed);
    a.fillRandom(3);
    b.fillRandom(4);
    const std::vector<float> before = a.values();
    ASSERT_EQ(qelmSub_mam_32f(a.ptr(), a.s0, a.s1, a.s2, b.ptr(), b.s1, b.s2, a.ptr(), a.s0, a.s1,
                              a.s2, n, n, 4),
              qelStatusOk);
    const std::vector<float> after = a.values();
    for (size_t k = 0; k < after.size(); ++k)
      ASSERT_EQ(after[k], before[k] - b.at(0, (k / n) % n, k % n)) << n;
  }
}

}  // namespace

namespace {

TEST(ElementwiseVectors, ConstantSideDecidesTheDifference) {
  const float src[2] = {1, 2};
  float d[2];
  ASSERT_EQ(qelmSub_cv_32f(src, 4, 10.0f, d, 4, 2), qelStatusOk);
  EXPECT_EQ(d[0], 9.0f);
  EXPECT_EQ(d[1], 8.0f);
  ASSERT_EQ(qelmSub_vc_32f(src, 4, 10.0f, d, 4, 2), qelStatusOk);
  EXPECT_EQ(d[0], -9.0f);
  EXPECT_EQ(d[1], -8.0f);
}

// Above length 6 the one-vector kernels run a forward loop whenever a source
// overlaps dst, so an overlapping call gives what the plain loop gives.
TEST(ElementwiseVectors, OverlapGivesForwardLoop) {
  for (int len : {7, 8, 9, 16, 23, 40})
    for (int shift : {-3, -1, 1, 2, 5}) {
      std::vector<float> mem(64), want(64);
      for (int k = 0; k < 64; ++k) mem[k] = want[k] = float(k * 3 % 17);
      float* src = mem.data() + 10;
      float* dst = src + shift;
      for (int j = 0; j < len; ++j) want[10 + shift + j] = want[10 + j] + 0.5f;
      ASSERT_EQ(qelmAdd_vc_32f(src, 4, 0.5f, dst, 4, len), qelStatusOk);
      EXPECT_EQ(mem, want) << "len " << len << " shift " << shift;
    }
}

// Element pointers aimed one element past the data with a shift of minus one
// element: a roi shift that only the checks can refuse.
template <class T>
std::vector<const T*> pastByOne(const std::vector<T>& v) {
  std::vector<const T*> p;
  for (const T& x : v) p.push_back(&x + 1);
  return p;
}

TEST(ElementwiseVectors, NarrowerChecksStayNarrow) {
  // Add_vca_64f_P tests no roi shift; its 32f twin refuses a negative one.
  std::vector<double> src64 = {1, 2, 3}, vals64 = {10, 20}, out64(6);
  std::vector<double*> dst64 = {&out64[0], &out64[1], &out64[2]};
  EXPECT_EQ(qelmAdd_vca_64f_P(pastByOne(src64).data(), -8, vals64.data(), 8, dst64.data(), 0, 24,
                              3, 2),
            qelStatusOk);
  EXPECT_EQ(out64, (std::vector<double>{11, 12, 13, 21, 22, 23}));
  std::vector<float> src32 = {1, 2, 3}, vals32 = {10, 20}, out32(6);
  std::vector<float*> dst32 = {&out32[0], &out32[1], &out32[2]};
  EXPECT_EQ(qelmAdd_vca_32f_P(pastByOne(src32).data(), -4, vals32.data(), 4, dst32.data(), 0, 12,
                              3, 2),
            qelStatusBadRoiShift);

  // Sub_cav_32f_P likewise, against its 64f twin.
  EXPECT_EQ(qelmSub_cav_32f_P(pastByOne(src32).data(), -4, vals32.data(), 4, dst32.data(), 0, 12,
                              3, 2),
            qelStatusOk);
  EXPECT_EQ(out32, (std::vector<float>{9, 8, 7, 19, 18, 17}));
  EXPECT_EQ(qelmSub_cav_64f_P(pastByOne(src64).data(), -8, vals64.data(), 8, dst64.data(), 0, 24,
                              3, 2),
            qelStatusBadRoiShift);

  // Add_vaca_32f_P takes any srcStride0, even 0: every object reads one vector.
  std::vector<const float*> src32p = {&src32[0], &src32[1], &src32[2]};
  EXPECT_EQ(qelmAdd_vaca_32f_P(src32p.data(), 0, 0, vals32.data(), 4, dst32.data(), 0, 12, 3, 2),
            qelStatusOk);
  EXPECT_EQ(out32, (std::vector<float>{11, 12, 13, 21, 22, 23}));
  std::vector<const double*> src64p = {&src64[0], &src64[1], &src64[2]};
  EXPECT_EQ(qelmAdd_vaca_64f_P(src64p.data(), 0, 0, vals64.data(), 8, dst64.data(), 0, 24, 3, 2),
            qelStatusBadStride);
}

}  // namespace
