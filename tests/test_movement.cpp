// Copy, Extract, Transpose and LoadIdentity: every export in every description
// (and pair of them) against the element each result position should hold, as
// bits (signalling NaN payloads and -0.0 included), nothing written outside;
// check orders with canaries; the object distance ignored for one object; the
// forward order an overlapping copy sees; the cache question of the Qel32f
// transpositions, asked or not, with the same values cached or streamed.
#include <gtest/gtest.h>

#include <functional>

#include "products.h"

namespace {
using namespace qt;

enum Op { Copy, Extract, Transpose, Identity };
struct Export {
  std::string name, order;
  Op op;
  bool array, matrix, trans;  // of the source (dst for Identity)
  Lay lay, dstLay;            // dstLay: Copy's destination
  QelStatus (*call)(Feed&);
};
#define FN(X) [](Feed& f) { return callWith(&qelm##X, f); }
#define CP(K, F, A, B, ORDER) Export{"Copy_" #K "_" #F "_" #A #B, ORDER, Copy, true, #K[0] == 'm', false, A, B, FN(Copy_##K##_##F##_##A##B)}
#define CPALL(K, F, SPLP) CP(K, F, S, S, "NZCS0"), CP(K, F, S, L, "NZCSR0"), CP(K, F, S, P, SPLP), CP(K, F, L, S, "NZCSR0"), \
  CP(K, F, L, L, "NZCSR"), CP(K, F, L, P, SPLP), CP(K, F, P, S, "NZCSR0"), CP(K, F, P, L, "NZCSR0"), CP(K, F, P, P, "NZCR0")
#define EX(K, F, SFX, LAY, ORDER) Export{"Extract_" #K "_" #F #SFX, ORDER, Extract, #K[1] == 'a', #K[0] != 'v', #K[0] == 't', LAY, S, FN(Extract_##K##_##F##SFX)}
#define EX1(K, F, ORDER_P) EX(K, F, , S, "NZS"), EX(K, F, _P, P, ORDER_P)
#define EXA(K, F) EX(K, F, , S, "NZCS"), EX(K, F, _L, L, "NZCRS"), EX(K, F, _P, P, "NZCRS")
#define TR(K, F, SFX, LAY, ORDER) Export{"Transpose_" #K "_" #F #SFX, ORDER, Transpose, #K[1] == 'a', true, false, LAY, LAY, FN(Transpose_##K##_##F##SFX)}
#define ID(F, SFX, LAY, ORDER) Export{"LoadIdentity_ma_" #F #SFX, ORDER, Identity, true, true, false, LAY, LAY, FN(LoadIdentity_ma_##F##SFX)}
#define ALL(F, VSPLP, VP, IDP)                                                                                            \
  {CPALL(ma, F, "NZCSR0"), CPALL(va, F, VSPLP), EX1(m, F, "ZNR"), EX1(t, F, "ZNR"), EX1(v, F, VP), EXA(ma, F), EXA(ta, F), \
   EXA(va, F), TR(m, F, , S, "NZS"), TR(m, F, _P, P, "NZR"), TR(ma, F, , S, "NCZS"), TR(ma, F, _L, L, "NCZSR"),           \
   TR(ma, F, _P, P, "NCZSR"), ID(F, , S, "NZCS0"), ID(F, _L, L, "NZCSR"), ID(F, _P, P, IDP)}
const std::vector<Export> k32 = ALL(32f, "NZCRS0", "NZR", "NZRC0"), k64 = ALL(64f, "NZCSR0", "ZNR", "NZCR0");

// One call on `count` objects of `height` rows of `width` as the export sees
// them; `want(n, i, j)` is what dst element (n, i, j) must hold.
template <class T>
struct Call {
  const Export& e;
  const int w, h, count;
  Batch<T> src, dst;
  std::function<T(int, int, int)> want;

  // A transposed source is stored width rows by height; Extract's dst is one packed run.
  Call(const Export& ex, int w_, int h_, int n, Form fs, Form fd, uint32_t seed = 1)
      : e(ex), w(w_), h(e.matrix ? h_ : 1), count(e.array ? n : 1), src(e.trans ? w : h, e.trans ? h : w, count, fs),
        dst(e.op == Extract ? 1 : e.op == Transpose ? w : h, e.op == Extract ? w * h * count : e.op == Transpose ? h : w,
            e.op == Extract ? 1 : count, e.op == Extract ? Form::Packed : fd) {
    src.fillRandom(seed);
    T snan;  // signalling, with a payload
    std::memcpy(&snan, sizeof(T) == 4 ? "\x01\x00\xa0\x7f\0\0\0\0" : "\x23\x01\0\0\0\0\xf4\x7f", sizeof(T));
    src.set(0, 0, 0, snan), src.set(count - 1, src.rows() - 1, src.cols() - 1, T(-0.0));
    switch (e.op) {
      case Copy: want = [&](int n, int i, int j) { return src.get(n, i, j); }; break;
      case Transpose: want = [&](int n, int i, int j) { return src.get(n, j, i); }; break;
      case Identity: want = [](int, int i, int j) { return T(i == j); }; break;
      case Extract: want = [&](int, int, int k) {
        const int n = k / (w * h), i = k % (w * h) / w, j = k % w;
        return e.trans ? src.get(n, j, i) : src.get(n, i, j);
      };
    }
  }
  Outcome run(const std::vector<Spoil>& bad = {}, std::optional<int> s0 = {}) {
    Args g(e.lay, bad);
    g.objectStride = e.op == Copy || e.op == Identity ? '0' : 'S';
    if (s0) src.s0 = dst.s0 = *s0;
    if (e.op != Identity) g.group(src, e.array, e.matrix);
    if (e.op == Transpose) g.num('Z', w), g.num('Z', h);
    if (e.op == Extract) g.ptr(dst.ptr());
    if (e.op != Extract) g.lay = e.dstLay, g.group(dst, e.array, e.matrix);
    if (e.op != Transpose) g.num('Z', w), e.matrix ? g.num('Z', h) : void();
    if (e.array) g.num('C', count);
    return {e.call(g.f), dst.untouched(), g.seen};
  }
  void check(const std::string& how) {
    ASSERT_EQ(run().status, qelStatusOk) << e.name << " " << how;
    std::vector<T> expect;
    for (int n = 0; n < dst.count(); ++n)
      for (int i = 0; i < dst.rows(); ++i)
        for (int j = 0; j < dst.cols(); ++j) expect.push_back(want(n, i, j));
    EXPECT_TRUE(sameBits(expect, dst.values())) << e.name << " " << w << "x" << h << " " << how;
    EXPECT_TRUE(dst.outsideIntact()) << e.name << " " << how << ": wrote outside dst";
  }
};

TEST(Movement, EveryExportEveryDescriptionEverySize) {
  const std::vector<std::pair<int, int>> sizes = {{1, 1}, {1, 7}, {7, 1}, {2, 3}, {3, 2}, {3, 3}, {4, 4},
                                                  {5, 5}, {6, 6}, {9, 70}, {70, 9}, {17, 16}};
  const auto& forms = allForms();
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    for (auto [w, h] : sizes)
      for (size_t f = 0; f < forms.size(); ++f)
        for (size_t g : {f, (f + 1) % forms.size(), (f + 3) % forms.size()})
          if (ex.matrix || h == 1 || w == h)  // vectors of 1, 3 .. 7
            Call<T>(ex, w, h, 3, forms[f], forms[g], w + h + f).check(std::string(formName(forms[f])) + "/" + formName(forms[g]));
  });
}

TEST(Movement, CheckOrderAndCanaries) {
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    checkOrder(ex.name, sizeof(T), {}, [&](auto bad) { return Call<T>(ex, 4, 3, 3, Form::Packed, Form::RowGaps).run(bad); }, ex.order);
  });
}

// With one object the distance between objects isn't looked at where it is
// tested apart; elsewhere a zero distance is refused even then.
TEST(Movement, ObjectDistanceOfOneObject) {
  forEach(k32, k64, [&]<class T>(const Export& ex) {
    if (!ex.array) return;
    const bool ignored = ex.order.find('0') != std::string::npos || ex.lay == L;  // or there is none
    for (int s0 : {-int(sizeof(T)), 0, 1})
      EXPECT_EQ(Call<T>(ex, 3, 2, 1, Form::Packed, Form::Packed).run({}, s0).status,
                ignored ? qelStatusOk : qelStatusBadStride) << ex.name << " " << s0;
  });
}

// A copy runs forward: a destination one element past its source repeats the
// first element all along, packed or not.
TEST(Movement, OverlappingCopyRunsForward) {
  for (int s0 : {28, 32}) {
    float v[40];
    std::iota(v, v + 40, 1.0f);
    ASSERT_EQ(qelmCopy_va_32f_SS(v, s0, 4, v + 1, s0, 4, 7, 4), qelStatusOk);
    for (int n = 0; n < 4; ++n)
      for (int j = 0; j < 7; ++j) EXPECT_EQ(v[1 + n * s0 / 4 + j], s0 == 28 ? 1.0f : float(1 + n * s0 / 4)) << s0 << " " << n << " " << j;
  }
}

// Qel32f transpositions ask for the cache only for an object whose smaller
// side is above 128, or an array form (ma, ma_L, contiguous, no unrolled size)
// of more than 128 KiB; streamed or cached, the values are the same.
TEST(Movement, CacheQuestion) {
  const auto find = [](const std::string& n) { return *std::find_if(k32.begin(), k32.end(), [&](auto& e) { return e.name == n; }); };
  struct Case { std::string name; int w, h, count; Form f; int asked; };
  const std::vector<Case> cases = {
      {"Transpose_m_32f", 129, 130, 1, Form::Packed, 1}, {"Transpose_m_32f", 128, 300, 1, Form::Packed, 0},
      {"Transpose_m_32f", 129, 129, 1, Form::ElementGaps, 0}, {"Transpose_m_32f_P", 129, 129, 1, Form::Packed, 0},
      {"Transpose_ma_32f", 8, 8, 256, Form::Packed, 0}, {"Transpose_ma_32f", 8, 8, 257, Form::Packed, 1},
      {"Transpose_ma_32f_L", 16, 4, 257, Form::RowGaps, 1}, {"Transpose_ma_32f", 4, 4, 4000, Form::Packed, 0},
      {"Transpose_ma_32f", 8, 8, 257, Form::ColumnMajor, 0}, {"Transpose_ma_32f_P", 8, 8, 257, Form::Packed, 0},
      {"Transpose_ma_32f", 130, 140, 2, Form::Packed, 3}};  // the array, then each object when it stays cached
  for (const Case& c : cases)
    for (int cache : {0, -1, 4096, 388265, 388266, 1 << 30}) {  // 388266: 291200 is three quarters
      PinnedBudget pin(1);
      pinnedSetCacheSize(cache);
      Call<float>(find(c.name), c.w, c.h, c.count, c.f, c.f).check("cache " + std::to_string(cache));
      const int figure = 8 * c.w * c.h * c.count, asked = c.asked == 3 ? (cache > 0 && figure > cache - cache / 4 ? 1 : 3) : c.asked;
      EXPECT_EQ(pinnedCacheCalls(), asked) << c.name << " " << c.w << "x" << c.h << "x" << c.count << " cache " << cache;
    }
  pinnedSetCacheSize(0);
}

}  // namespace
