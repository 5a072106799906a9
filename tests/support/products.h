// The harness of the product tests (Mul by a vector, Gaxpy, Mul by a constant).
// A call is pushed operand by operand through the export's own prototype, and
// any one argument of a check group can be spoiled on the way, so one loop
// proves the check order of every description. Also: calls at each side of a
// work limit, the budget sweep, the team's shares, matrix-by-vector calls.
#pragma once

#include <qelm/qelm.h>

#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <optional>

#include "batch.h"
#include "feed.h"
#include "pinned_core.h"

namespace qt {

enum Lay { S, L, P };  // standard, object pointers, element pointers
// Argument `at` of group g (N pointers, C count, Z sizes, S strides, R shifts)
// takes `value`; g = M makes size `at` one larger instead.
struct Spoil { char g; int at, value; };
struct Outcome { QelStatus status; bool untouched; std::map<char, int> seen; };  // seen: arguments per group

struct Args {
  Args(Lay l, const std::vector<Spoil>& b) : lay(l), bad(b) {}
  Lay lay;
  char objectStride = 'S';  // the group of stride 0 ('0' where it is tested apart)
  std::vector<Spoil> bad;
  std::map<char, int> seen;
  Feed f;
  long long take(char g, long long v) {
    const int at = seen[g]++;
    for (const Spoil& s : bad)
      if (s.at == at && (s.g == g || (s.g == 'M' && g == 'Z'))) return s.g == 'M' ? v + 1 : s.value;
    return v;
  }
  void ptr(const void* p) { f.ptr(take('N', 1) ? p : nullptr); }
  void num(char g, long long v) { f.num(take(g, v)); }
  template <class T>  // an operand: pointer, then shift and strides in the order of the form
  void group(Batch<T>& b, bool array, bool matrix) {
    if (lay == P) return ptr(b.elems()), num('R', b.elemShift), array ? num(objectStride, b.s0) : void();
    lay == L && array ? (ptr(b.list()), num('R', b.listShift)) : ptr(b.ptr());
    if (lay == S && array) num(objectStride, b.s0);
    if (matrix) num('S', b.s1);
    num('S', b.s2);
  }
};

// The checks come in the order `expected` (N C Z M S R unless a family says
// otherwise; 0 is stride 0 tested apart) and write nothing: each argument
// spoiled alone (its group's bad values in turn), and the first of a group with
// the last of each later group. Groups the form lacks drop out; M spoils the
// sizes listed in `mismatch`. `run(spoils)` makes a fresh call.
template <class Run>
void checkOrder(const std::string& name, int e, const std::vector<int>& mismatch, Run run,
                std::string expected = "NCZMSR") {
  const Outcome probe = run(std::vector<Spoil>{});
  ASSERT_EQ(probe.status, qelStatusOk) << name;
  auto args = [&](char g) { return g == 'M' ? int(mismatch.size()) : probe.seen.count(g) ? probe.seen.at(g) : 0; };
  std::string order = expected;
  std::erase_if(order, [&](char g) { return !args(g); });
  const std::map<char, std::pair<QelStatus, std::vector<int>>> groups = {
      {'N', {qelStatusNullPointer, {0}}}, {'C', {qelStatusBadCount, {0, -1}}}, {'Z', {qelStatusBadSize, {0, -3}}},
      {'M', {qelStatusSizeMismatch, {0}}}, {'S', {qelStatusBadStride, {e / 2, 0, -e}}},
      {'R', {qelStatusBadRoiShift, {e / 2, -e}}}, {'0', {qelStatusBadStride, {e / 2, 0, -e}}}};
  auto spoil = [&](char g, int at) {
    const std::vector<int>& v = groups.at(g).second;
    return Spoil{g, g == 'M' ? mismatch[at] : at, v[at % v.size()]};
  };
  for (size_t x = 0; x < order.size(); ++x)
    for (int at = 0; at < args(order[x]); ++at)
      for (size_t y = x; y < (at ? x + 1 : order.size()); ++y) {
        const Outcome o = run(y > x ? std::vector{spoil(order[x], at), spoil(order[y], args(order[y]) - 1)}
                                    : std::vector{spoil(order[x], at)});
        EXPECT_EQ(o.status, groups.at(order[x]).first) << name << " " << order[x] << at << " with " << order[y];
        EXPECT_TRUE(o.untouched) << name << " wrote on a refused call";
      }
}

// Serial while the work W is at most `last`, the driver after it (last < 0: no
// work figure, a large call never forks). At each side, sizes m, k and a count
// with W = base + per * count, {base, per} = parts(m, k), nearest the edge on
// that side (exact first, then a count of 2 or more; k runs long for one row)
// and no further than `slack`; call(m, k, count, threads) makes and checks it.
template <class Parts, class Call>
void limitEdges(const std::string& name, int last, int slack, Parts parts, Call call) {
  for (bool serial : {true, false}) {
    const int target = last + !serial;
    std::array<int, 4> b = {64, 64, 1, 0};  // m, k, count, W
    for (int m = 1, score = 1 << 30; m <= 64 && last >= 0; ++m)
      for (int k = 1; k <= (m == 1 ? target : 64); ++k) {
        const auto [base, per] = parts(m, k);
        const int c = per < 1 || base > target ? 0 : serial ? (target - base) / per : (target - base + per - 1) / per;
        const int w = base + per * c, s = 2 * std::abs(w - target) + (c < 2);
        if (c > 0 && s < score) score = s, b = {m, k, c, w};
      }
    ASSERT_TRUE(last < 0 || std::abs(b[3] - target) <= slack) << name << " no sizes for W " << target;
    PinnedBudget pin(2);
    call(b[0], b[1], b[2], serial || b[2] < 2 || last < 0 ? 1 : 2);
    EXPECT_EQ(pin.calls(), serial || last < 0 ? 0 : b[2] > 1 ? 2 : 1) << name << " W " << b[3];
  }
}

// Budgets 1, 2, 3, 7 on a call over its limit: the driver asks once, a team
// once more; `run(budget)` makes and checks it and answers its results.
template <class T, class Run>
void sweepBudgets(const std::string& name, bool sameForAll, Run run) {
  std::vector<T> first;
  for (int budget : {1, 2, 3, 7}) {
    PinnedBudget pin(budget);
    const std::vector<T> got = run(budget);
    EXPECT_EQ(pin.calls(), budget == 1 ? 1 : 2) << name << " budget " << budget;
    if (budget == 1) first = got;
    EXPECT_TRUE(!sameForAll || sameBits(first, got)) << name << " budget " << budget;
  }
}

// f.template operator()<T>(e) over the exports of both element types.
template <class E, class F>
void forEach(const std::vector<E>& f32, const std::vector<E>& f64, F f) {
  for (const E& e : f32) f.template operator()<float>(e);
  for (const E& e : f64) f.template operator()<double>(e);
}

// The share of a team holding object n: the first count % threads take one more.
struct Share { int first, size; };
inline Share shareHolding(int count, int threads, int n) {
  for (int t = 0, first = 0, size; t < threads; ++t, first += size)
    if (size = count / threads + (t < count % threads); n < first + size) return {first, size};
  return {0, 0};
}

// Sums of products t rounded to T: from the first one; from +0; and the square
// forms (n = 4..6) of one Qel32f matrix held as columns against many vectors,
// and of horizontal pairs (n = 4, 5).
template <class T>
T fromLeft(const std::vector<T>& t) { return std::accumulate(t.begin() + 1, t.end(), t[0]); }
template <class T>
T fromZero(const std::vector<T>& t, size_t first = 0, size_t end = size_t(-1)) {
  return std::accumulate(t.begin() + first, t.begin() + std::min(end, t.size()), T(0));
}
template <class T>
T spread(const std::vector<T>& t, int i) {
  if (t.size() == 4) return (t[0] + t[2]) + (t[1] + t[3]);
  if (t.size() == 6) return ((t[0] + t[2]) + t[4]) + ((t[1] + t[3]) + t[5]);
  return i < 4 ? ((t[0] + t[1]) + t[4]) + (t[2] + t[3]) : ((t[0] + t[2]) + t[4]) + (t[1] + t[3]);
}
template <class T>
T pairSum(const std::vector<T>& t) {
  const T s = (t[0] + t[1]) + (t[2] + t[3]);
  return t.size() == 4 ? s : s + t[4];
}

// The split sum peeled on the address x of elements of e bytes (x = 0: the
// plain split sum): two 16-byte accumulators over whole blocks of eight after
// the peel, whose plain sum starts lane 0, then the rest one by one; plain
// below peel + 8 terms or when x is no multiple of e.
template <class T>
T split(const std::vector<T>& p, uintptr_t x = 0, size_t e = sizeof(T)) {
  const size_t K = p.size(), lanes = 16 / sizeof(T), r = x % 16, peel = r ? (16 - r) / e : 0;
  if (r % e || K < peel + 8) return fromZero(p);
  const size_t q = K - (K - peel) % 8;
  T acc[2][4] = {{fromZero(p, 0, peel)}}, s[4];  // indexed: a choice of two arrays is a temporary at -O0
  for (size_t k = peel; k < q; ++k) acc[(k - peel) / lanes % 2][(k - peel) % lanes] += p[k];
  for (size_t l = 0; l < 4; ++l) s[l] = acc[0][l] + acc[1][l];
  return std::accumulate(p.begin() + q, p.end(), lanes == 4 ? (s[0] + s[1]) + (s[2] + s[3]) : s[0] + s[1]);
}

// Mul by a vector and Gaxpy: op(A) of M x K (stored K x M when transposed), x
// of K, z of M (Gaxpy), dst of M; which of A, x, z, dst are arrays.
struct VecExport {
  std::string name;
  QelStatus (*call)(Feed&);
  Lay lay;
  bool t, z;
  std::array<bool, 4> arr;
};
// Forms of A, x, z, dst: contiguous, then each operand alone off stride 2.
const std::vector<std::array<Form, 4>> kVecForms = {
    {Form::Packed, Form::Packed, Form::Packed, Form::Packed},
    {Form::Pitch16, Form::Pitch16, Form::Pitch16, Form::Pitch16},
    {Form::RowGaps, Form::Unaligned, Form::Unaligned, Form::Unaligned},
    {Form::ColumnMajor, Form::Packed, Form::Packed, Form::Packed},
    {Form::Packed, Form::ElementGaps, Form::Packed, Form::Packed},
    {Form::Packed, Form::Packed, Form::ElementGaps, Form::Packed},
    {Form::Packed, Form::Packed, Form::Packed, Form::ElementGaps}};

template <class T>
struct VecCall {
  const VecExport& e;
  const int M, K, count;
  Batch<T> a, x, z, d;  // x lies `skew` bytes on

  VecCall(const VecExport& ex, int m, int k, int n, const std::array<Form, 4>& f, int skew = 0)
      : e(ex), M(m), K(k), count(n), a(e.t ? k : m, e.t ? m : k, e.arr[0] ? n : 1, f[0]),
        x(1, k, e.arr[1] ? n : 1, f[1], skew), z(1, m, e.arr[2] ? n : 1, f[2]), d(1, m, e.arr[3] ? n : 1, f[3]) {
    a.fillRandom(9 + 31 * m + k), x.fillRandom(10 + k), z.fillRandom(11);
  }
  Outcome run(const std::vector<Spoil>& bad = {}) {
    Args g(e.lay, bad);
    g.group(a, e.arr[0], true), g.num('Z', a.cols()), g.num('Z', a.rows());
    g.group(x, e.arr[1], false), g.num('Z', K);
    if (e.z) g.group(z, e.arr[2], false), g.num('Z', M);
    g.group(d, e.arr[3], false);
    if (e.arr[3]) g.num('C', count);
    return {e.call(g.f), d.untouched(), g.seen};
  }
  bool contiguous() const {
    const int s = sizeof(T);
    return e.lay != P && a.s2 == s && x.s2 == s && (!e.z || z.s2 == s) && d.s2 == s;
  }
  T op(int n, int i, int k) const { return e.t ? a.get(e.arr[0] * n, k, i) : a.get(e.arr[0] * n, i, k); }
  T xOf(int n, int k) const { return x.get(e.arr[1] * n, 0, k); }
  T zOf(int n, int i) const { return e.z ? z.get(e.arr[2] * n, 0, i) : T(0); }
  std::vector<T> products(int n, int i) const {
    std::vector<T> p;
    for (int k = 0; k < K; ++k) p.push_back(op(n, i, k) * xOf(n, k));
    return p;
  }
  // Runs it: each result as model(*this, n, i, threads) has it, where it has
  // one, and within (K + 2) ulps of its magnitude of the long-double value;
  // nothing written outside dst. Answers the results.
  template <class Model>
  std::vector<T> check(Model model, int threads, const std::string& how) {
    const std::string at = e.name + " " + std::to_string(M) + "x" + std::to_string(K) + " " + how;
    EXPECT_EQ(run().status, qelStatusOk) << at;
    [&] {
      for (int n = 0; n < d.count(); ++n)
        for (int i = 0; i < M; ++i) {
          const T got = d.get(n, 0, i);
          const std::optional<T> want = model(*this, n, i, threads);
          ASSERT_TRUE(!want || std::memcmp(&got, &*want, sizeof(T)) == 0)
              << at << " at " << n << "," << i << ": " << got << " vs " << *want;
          long double ref = zOf(n, i), mag = std::fabs(ref), t;
          for (int k = 0; k < K; ++k) t = (long double)op(n, i, k) * xOf(n, k), ref += t, mag += std::fabs(t);
          ASSERT_LE(std::fabs(got - ref), (K + 2) * std::numeric_limits<T>::epsilon() * mag) << at;
        }
      ASSERT_TRUE(d.outsideIntact()) << at;
    }();
    return d.values();
  }
};

}  // namespace qt
