// libFuzzer target over every export of qelm.
//
// An input names one export of the generated table (fuzz_table.inc, made from
// qelm.h by gen_table.py) and decodes, argument by argument, into a call:
// pointers into a guarded arena (or null), lists of pointers into it for the
// _L and _P descriptions, and sizes, counts, strides and roi shifts from small,
// edge and 32-bit wrapping values. The arena is refilled before every call;
// after it the harness asserts
//   - the status is one the header allows the export;
//   - a refused argument check changed no byte of the arena;
//   - no call wrote outside the slots of its outputs;
//   - a call with a null pointer, a count or a size below 1 is refused, and a
//     call whose arguments are all well formed and agree is not;
// while guard pages and AddressSanitizer catch any access outside the arena.
//
// Valid values are fitted so that a correct call stays inside its slot. Values
// that would make a correct call reach far (a huge count, size or stride that
// passes its own check) only appear together with a null pointer, so the call
// must be refused before it touches anything.
#include "qelm/qelcore.h"
#include "qelm/qelm.h"

#include <sys/mman.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <vector>

namespace {

union Arg {
  void* p;
  int i;
  float f;
  double d;
};

constexpr int kStatuses[] = {qelStatusOk,          qelStatusError,           qelStatusBadSize,
                             qelStatusNullPointer, qelStatusDivideByZero,    qelStatusNotPositiveDefinite,
                             qelStatusBadStride,   qelStatusSingular,        qelStatusBadRoiShift,
                             qelStatusBadCount,    qelStatusSizeMismatch,    qelStatusNoConvergence};

constexpr uint32_t bit(int status) {
  for (int k = 0; k < 12; ++k)
    if (kStatuses[k] == status) return 1u << k;
  return 1u << 31;
}

constexpr uint32_t kArgCheck = bit(qelStatusNullPointer) | bit(qelStatusBadCount) | bit(qelStatusBadSize) |
                               bit(qelStatusSizeMismatch) | bit(qelStatusBadStride) | bit(qelStatusBadRoiShift);

struct Export {
  const char* name;
  QelStatus (*call)(const Arg*);
  const char* roles;
  int elem;
  bool checked;
  uint32_t allowed;
};

#include "fuzz_table.inc"

constexpr int kExportCount = sizeof kExports / sizeof kExports[0];

// ---- the arena: kSlots slots of kSlotBytes between two guard reservations
// wider than any 32-bit distance, so every wild access faults.
constexpr size_t kSlots = 6;
constexpr size_t kSlotBytes = 128 << 10;
constexpr size_t kLead = 16 << 10;  // room before each base for a refused negative stride
constexpr size_t kJitter = 256;     // bases move by up to this from the lead
constexpr size_t kUsable = kSlotBytes - kLead - kJitter;
constexpr size_t kArenaBytes = kSlots * kSlotBytes;
constexpr size_t kGuardBytes = size_t(4) << 30;
constexpr size_t kRotations = 256;  // data variants: offsets into a longer pattern
constexpr size_t kPatternBytes = kArenaBytes + kRotations * 256;
constexpr int kModes = 4;

char* gArena;
std::vector<char> gPattern[2][kModes];  // [element 4 or 8][data mode]

uint64_t gRng = 0x9e3779b97f4a7c15ull;
uint64_t next() {
  gRng ^= gRng << 13;
  gRng ^= gRng >> 7;
  gRng ^= gRng << 17;
  return gRng;
}

template <class T>
T value(int mode) {
  const double u = double(next() >> 11) / double(1ull << 53) * 2 - 1;
  switch (mode) {
    case 0:  // general data
      return T(u);
    case 1:  // small integers: many singular and repeated values
      return T(int(next() % 5) - 2);
    case 2: {  // near one: nearly singular systems, cancellations
      return T(1 + u * 1e-6);
    }
    default: {  // specials among ordinary values
      static const T specials[] = {T(0), -T(0), std::numeric_limits<T>::infinity(),
                                   -std::numeric_limits<T>::infinity(), std::numeric_limits<T>::quiet_NaN(),
                                   std::numeric_limits<T>::denorm_min(), std::numeric_limits<T>::max(),
                                   std::numeric_limits<T>::min(), T(1e-30), T(1e30)};
      if (next() % 4 == 0) return specials[next() % (sizeof specials / sizeof specials[0])];
      return T(u * 100);
    }
  }
}

void setUp() {
  char* r = static_cast<char*>(mmap(nullptr, kGuardBytes * 2 + kArenaBytes, PROT_NONE,
                                    MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
  if (r == MAP_FAILED) std::abort();
  gArena = r + kGuardBytes;
  if (mprotect(gArena, kArenaBytes, PROT_READ | PROT_WRITE) != 0) std::abort();
  for (int mode = 0; mode < kModes; ++mode) {
    auto& p4 = gPattern[0][mode];
    p4.resize(kPatternBytes);
    for (size_t k = 0; k < kPatternBytes; k += 4) {
      const float v = value<float>(mode);
      std::memcpy(&p4[k], &v, 4);
    }
    auto& p8 = gPattern[1][mode];
    p8.resize(kPatternBytes);
    for (size_t k = 0; k < kPatternBytes; k += 8) {
      const double v = value<double>(mode);
      std::memcpy(&p8[k], &v, 8);
    }
  }
  // Two threads, so that calls with enough work take the parallel drivers.
  qelSetNumThreads(2);
}

// ---- decoding
struct Reader {
  const uint8_t* d;
  size_t n, k = 0;
  uint8_t u8() { return k < n ? d[k++] : 0; }
};

// What an argument's value means for the call.
enum Kind : uint8_t {
  kValid,        // passes its check and is fitted to the arena
  kRefusedSure,  // null pointer, count or size below 1: every checked export refuses it
  kRefusedSmall, // a bad stride or shift of small magnitude: refused but by the few
                 // documented gaps, and harmless if accepted
  kWild,         // anything reaching beyond the arena: only beside a sure refusal
  kIdle          // a wild stride between objects of a single object: never used
};

struct Param {
  char role;
  int elem;
  Kind kind = kValid;
  int slot = -1;  // pointers and lists
  int value = 0;  // integers
  bool shared = false;  // a size taken from the call's shared size
  uint8_t sel = 0, v = 0;
};

constexpr int kSizes[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 16};
constexpr int kSmallCounts[] = {1, 2, 3, 4, 5, 8};
constexpr int kMidCounts[] = {6, 7, 9, 15, 16, 17, 31, 33, 63, 64, 65, 100};
constexpr int kLargeCounts[] = {101, 257, 500, 700, 1000, 1001, 1024, 1500, 2048, 4097};

template <size_t N>
int pick(const int (&a)[N], uint8_t v) {
  return a[v % N];
}

int wildSize(uint8_t v) {
  static const int w[] = {65536, 46341, 46340, 0x7fffffff, 0x40000000, 65537, 32768, 0x10000, 1 << 20, 92682};
  return w[v % 10];
}
int wildCount(uint8_t v) {
  static const int w[] = {INT_MAX, 0x40000000, 65536, 46341, 0x10000001, 1 << 24, 0x7ffffff0, 3000000};
  return w[v % 8];
}
int refusedBelowOne(uint8_t v) {
  static const int w[] = {0, -1, -2, INT_MIN, INT_MIN + 1, -65536, -46341};
  return w[v % 7];
}
int refusedSmallStride(int e, uint8_t v) {
  const int w[] = {0, -e, -2 * e, 1, 2, e + 2, e / 2, e - 1, 3, 6, e + 1};
  return w[v % 11];
}
int refusedWildStride(int e, uint8_t v) {
  const int w[] = {INT_MIN, -0x7ffffff8, INT_MIN + e, -0x40000000, 0x7fffffff, 0x40000002, -65536 * e,
                   INT_MIN + 2};
  return w[v % 8];
}
int validWildStride(int e, uint8_t v) {
  const int w[] = {0x7ffffff8, 0x40000000, 0x10000000, 65536 * e, 0x20000000 + e * v, 0x7fff0000, 0x08000000,
                   46341 * e};
  return w[v % 8];
}
int refusedSmallShift(int e, uint8_t v) {
  const int w[] = {-e, 2, 1, e + 1, -2 * e, e / 2, 3, -1};
  return w[v % 8];
}
int refusedWildShift(uint8_t v) {
  const int w[] = {INT_MIN, -0x40000000, -65536, -0x7ffffff8};
  return w[v % 4];
}
int validWildShift(uint8_t v) {
  const int w[] = {0x7ffffff8, 0x40000000, 0x10000000, 0x7fff0000};
  return w[v % 4];
}

struct Call {
  const Export* ex = nullptr;
  std::vector<Param> params;
  std::vector<Arg> args;
  std::vector<std::vector<void*>> lists;
  char srcDesc = 'S', dstDesc = 'S';
  int slotsUsed = 0;
  bool outputSlot[kSlots] = {};
  int indexSlot = -1;
  int indexBound = 1;
  size_t indexBytes = 0;
  bool refusedSure = false, refusedSmall = false, wild = false, sizesAgree = true;
};

bool isPointer(char r) { return r == 'S' || r == 'D' || r == 'X' || r == 'B'; }
bool isList(char r) { return r == 'l' || r == 'L'; }
bool isStride(char r) { return r == '0' || r == '1' || r == '2'; }

void decode(Reader& in, Call& c) {
  const int idx = (in.u8() | in.u8() << 8) % kExportCount;
  const Export& ex = kExports[idx];
  c.ex = &ex;
  const uint8_t sharedSel = in.u8();
  const uint8_t nullPick = in.u8();
  const int shared = pick(kSizes, sharedSel);

  // The description of the lists: _L or _P, or one letter each for the source
  // and destination of Copy (_SP, _LP, ...).
  const char* name = ex.name;
  const size_t len = std::strlen(name);
  if (len > 3 && name[len - 3] == '_' && std::strchr("SLP", name[len - 2]) && std::strchr("SLP", name[len - 1])) {
    c.srcDesc = name[len - 2];
    c.dstDesc = name[len - 1];
  } else if (len > 2 && name[len - 2] == '_' && std::strchr("LP", name[len - 1])) {
    c.srcDesc = c.dstDesc = name[len - 1];
  }

  for (const char* r = ex.roles; *r; ++r) {
    Param p;
    p.role = *r;
    p.elem = ex.elem;
    if (isPointer(*r) || isList(*r)) p.elem = *++r - '0';
    p.sel = in.u8();
    p.v = in.u8();
    const int e = p.elem;
    // Exports without checks get well-formed values only.
    const int classes = ex.checked ? 8 : 5;
    const uint8_t s = p.sel % (isPointer(p.role) || isList(p.role) ? 16 : classes);
    switch (p.role) {
      case 'S': case 'D': case 'X': case 'B': case 'l': case 'L':
        p.slot = c.slotsUsed++;
        if (p.sel % 32 == 0 && ex.checked) p.kind = kRefusedSure;
        if (p.role == 'D' || p.role == 'L' || p.role == 'B') c.outputSlot[p.slot] = true;
        if (p.role == 'X') c.indexSlot = p.slot;
        break;
      case 'c':
        if (s <= 2) p.value = pick(kSmallCounts, p.v);
        else if (s <= 4) p.value = pick(kMidCounts, p.v);
        else if (s == 5) p.value = pick(kLargeCounts, p.v);
        else if (s == 6) p.value = refusedBelowOne(p.v), p.kind = kRefusedSure;
        else p.value = wildCount(p.v), p.kind = kWild;
        break;
      case 'z':
        if (s <= 3) p.value = shared, p.shared = true;
        else if (s <= 5) p.value = pick(kSizes, p.v);
        else if (s == 6) p.value = refusedBelowOne(p.v), p.kind = kRefusedSure;
        else p.value = wildSize(p.v), p.kind = kWild;
        break;
      case '0': case '1': case '2':
        // s 0..3 natural strides, set after the sizes are known
        if (s == 4) p.value = e * (1 + p.v);
        else if (s == 5) p.value = refusedSmallStride(e, p.v), p.kind = kRefusedSmall;
        // A negative or misaligned stride within an object is refused by
        // every checked export; one between objects only matters for more
        // than one object (Copy and LoadIdentity don't test it for one).
        else if (s == 6) p.value = refusedWildStride(e, p.v), p.kind = p.role == '0' ? kWild : kRefusedSure;
        else if (s == 7) p.value = validWildStride(e, p.v), p.kind = kWild;
        break;
      case 'r':
        if (s <= 3) p.value = 0;
        else if (s == 4) p.value = e * (p.v % 8);
        else if (s == 5) p.value = refusedSmallShift(e, p.v), p.kind = kRefusedSmall;
        else if (s == 6) p.value = refusedWildShift(p.v), p.kind = kWild;
        else p.value = validWildShift(p.v), p.kind = kWild;
        break;
      default:
        break;
    }
    c.params.push_back(p);
  }

  // Sizes: the largest well-formed one bounds every object (at least 4: the
  // fixed geometry objects and the three-element cross product).
  int dim = 4;
  int indexBound = INT_MAX;
  int count = 1;
  for (auto& p : c.params) {
    if (p.role == 'z') {
      if (p.kind == kValid) dim = std::max(dim, p.value), indexBound = std::min(indexBound, p.value);
      if (!p.shared) c.sizesAgree = false;
    }
    if (p.role == 'c' && p.kind == kValid) count = p.value;
  }
  c.indexBound = indexBound == INT_MAX ? 1 : indexBound;
  // Natural strides: elements, rows of dim elements, objects of dim*dim.
  for (auto& p : c.params) {
    if (!isStride(p.role) || p.kind != kValid || p.sel % (ex.checked ? 8 : 5) > 3) continue;
    const int e = p.elem, s = p.sel % 4;
    const int natural = p.role == '2' ? e : p.role == '1' ? e * dim : e * dim * dim;
    if (s <= 1) p.value = natural;
    else if (s == 2) p.value = natural + e * (p.v % 4);
    else p.value = p.role == '2' ? e * dim : p.role == '1' ? e : natural;  // column-major
  }

  // Fit the well-formed values: the furthest element any operand can reach
  // must lie in its slot, and a refused negative stride must stay in the lead.
  auto countParam = std::find_if(c.params.begin(), c.params.end(), [](const Param& p) { return p.role == 'c'; });
  for (;;) {
    int64_t s0 = 0, s12 = 0, roi = 0, n0 = 0, n12 = 0, nroi = 0;
    int64_t m1 = 0, m2 = 0, b1 = 0, b2 = 0;
    for (auto& p : c.params) {
      if (p.kind == kWild || p.kind == kRefusedSure) continue;
      const int64_t v = p.value;
      if (p.role == '0') (v >= 0 ? s0 : n0) = std::max(v >= 0 ? s0 : n0, std::abs(v));
      if (p.role == '1') (v >= 0 ? m1 : b1) = std::max(v >= 0 ? m1 : b1, std::abs(v));
      if (p.role == '2') (v >= 0 ? m2 : b2) = std::max(v >= 0 ? m2 : b2, std::abs(v));
      if (p.role == 'r') (v >= 0 ? roi : nroi) = std::max(v >= 0 ? roi : nroi, std::abs(v));
    }
    s12 = m1 + m2;
    n12 = b1 + b2;
    const int64_t d = dim;
    const int64_t reach = std::max({512 + roi + (count - 1) * s0 + (d - 1) * s12 + 8 * d,
                                    int64_t(count) * d * d * 8, d * (3 * d + 5) * 8 + 64});
    const int64_t back = (count - 1) * n0 + (d - 1) * n12 + nroi;
    if (reach <= int64_t(kUsable) && back <= int64_t(kLead) - 64) break;
    if (count > 1) {
      count = (count + 1) / 2;
      countParam->value = count;
      continue;
    }
    // One object and still too far: halve the widest well-formed stride.
    Param* widest = nullptr;
    for (auto& p : c.params)
      if (isStride(p.role) && p.kind == kValid && (!widest || p.value > widest->value)) widest = &p;
    if (!widest || widest->value <= widest->elem) std::abort();  // the bounds above make this unreachable
    widest->value = std::max(widest->elem, widest->value / 2 / widest->elem * widest->elem);
  }

  const bool single = countParam == c.params.end() || (countParam->kind == kValid && countParam->value == 1);
  for (auto& p : c.params) {
    if (p.role == '0' && p.kind == kWild && single) p.kind = kIdle;
    if (p.kind == kRefusedSure) c.refusedSure = true;
    if (p.kind == kRefusedSmall || p.kind == kIdle) c.refusedSmall = true;  // refused or not
    if (p.kind == kWild) c.wild = true;
  }
  // A value reaching beyond the arena only beside a sure refusal: a null
  // pointer, a count or a size below 1, whichever the input picks.
  if (c.wild && !c.refusedSure) {
    std::vector<Param*> can;
    for (auto& p : c.params)
      if (isPointer(p.role) || isList(p.role) || ((p.role == 'c' || p.role == 'z') && p.kind == kValid))
        can.push_back(&p);
    if (can.empty() || !ex.checked) std::abort();  // unchecked exports never get wild values
    Param& p = *can[nullPick % can.size()];
    p.kind = kRefusedSure;
    if (!isPointer(p.role) && !isList(p.role)) p.value = refusedBelowOne(nullPick / 8);
    c.refusedSure = true;
  }

  // Pointers and lists.
  c.args.resize(c.params.size());
  for (size_t k = 0; k < c.params.size(); ++k) {
    Param& p = c.params[k];
    Arg& a = c.args[k];
    if (p.role == 'f') {
      static const float fv[] = {0.0f, 1.0f, -1.0f, 0.5f, 2.0f, 1e-30f, 1e30f, NAN, INFINITY, -INFINITY, 1e-45f, 3.0f,
                                 0.1f, -0.25f, 100.0f, 1e-7f};
      a.f = fv[p.v % 16];
      continue;
    }
    if (p.role == 'd') {
      static const double dv[] = {0.0, 1.0, -1.0, 0.5, 2.0, 1e-300, 1e300, NAN, INFINITY, -INFINITY, 5e-324, 3.0,
                                  0.1, -0.25, 100.0, 1e-15};
      a.d = dv[p.v % 16];
      continue;
    }
    if (!isPointer(p.role) && !isList(p.role)) {
      a.i = p.value;
      continue;
    }
    if (p.kind == kRefusedSure) {
      a.p = nullptr;
      continue;
    }
    const int e = p.elem;
    char* base = gArena + p.slot * kSlotBytes + kLead + (p.v % (kJitter / 8)) * e;
    if (isPointer(p.role)) {
      a.p = base;
      continue;
    }
    const char desc = p.role == 'l' ? c.srcDesc : c.dstDesc;
    const size_t n = desc == 'L' ? size_t(count) : size_t(dim) * dim;
    std::vector<void*> list(n);
    for (size_t m = 0; m < n; ++m) list[m] = base + ((m * 37 + p.v) % 64) * e;
    c.lists.push_back(std::move(list));
    a.p = nullptr;  // set below, once the lists stop moving
  }
  size_t li = 0;
  for (size_t k = 0; k < c.params.size(); ++k)
    if (isList(c.params[k].role) && c.params[k].kind != kRefusedSure) c.args[k].p = c.lists[li++].data();
  if (c.indexSlot >= 0) c.indexBytes = size_t(count) * dim * 4 + kJitter;
}

void describe(const Call& c, QelStatus status, const char* what) {
  std::fprintf(stderr, "\n*** %s: %s", what, c.ex->name);
  if (std::strcmp(what, "call") != 0) std::fprintf(stderr, " returned %d", status);
  std::fprintf(stderr, "\n");
  for (size_t k = 0; k < c.params.size(); ++k) {
    const Param& p = c.params[k];
    const Arg& a = c.args[k];
    if (p.role == 'f') std::fprintf(stderr, "  arg %zu f %g\n", k, a.f);
    else if (p.role == 'd') std::fprintf(stderr, "  arg %zu d %g\n", k, a.d);
    else if (isPointer(p.role) || isList(p.role))
      std::fprintf(stderr, "  arg %zu %c%d slot %d %s\n", k, p.role, p.elem, p.slot, a.p ? "" : "null");
    else std::fprintf(stderr, "  arg %zu %c %d (kind %d)\n", k, p.role, a.i, int(p.kind));
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  setUp();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  Reader in{data, size};
  const uint8_t dataSel = in.u8();
  Call c;
  decode(in, c);

  // Fill: a rotation of the pattern of the export's element type and the
  // chosen data mode; index arrays hold rows within the smallest size.
  const char* pattern = gPattern[c.ex->elem == 8][dataSel % kModes].data() + (dataSel / kModes) % kRotations * 256;
  std::memcpy(gArena, pattern, kArenaBytes);
  std::vector<char> index;
  if (c.indexSlot >= 0) {
    char* at = gArena + c.indexSlot * kSlotBytes + kLead;
    const size_t n = std::min(c.indexBytes, kUsable) / 4;
    for (size_t m = 0; m < n; ++m) {
      const int32_t row = int32_t((m * 2654435761u + dataSel) % uint32_t(c.indexBound));
      std::memcpy(at + 4 * m, &row, 4);
    }
    index.assign(gArena + c.indexSlot * kSlotBytes, gArena + (c.indexSlot + 1) * kSlotBytes);
  }

  static const bool trace = std::getenv("QELM_FUZZ_TRACE") != nullptr;
  if (trace) describe(c, 0, "call");  // before the call: a crash leaves it printed
  const QelStatus status = c.ex->call(c.args.data());
  if (trace)
    std::fprintf(stderr, "  -> %d (refused for sure %d, small %d, wild %d)\n", status, c.refusedSure, c.refusedSmall,
                 c.wild);

  auto fail = [&](const char* what) {
    describe(c, status, what);
    std::abort();
  };
  const uint32_t b = bit(status);
  if (!(c.ex->allowed & b)) fail("status the header does not allow");
  if (c.ex->checked && c.refusedSure && !(b & kArgCheck)) fail("a null pointer, count or size below 1 not refused");
  if (c.ex->checked && !c.refusedSure && !c.refusedSmall && !c.wild && c.sizesAgree && (b & kArgCheck))
    fail("a well-formed call refused");
  const bool refused = (b & kArgCheck) != 0;
  for (size_t s = 0; s < kSlots; ++s) {
    if (c.outputSlot[s] && !refused) continue;
    const char* want = int(s) == c.indexSlot ? index.data() : pattern + s * kSlotBytes;
    if (std::memcmp(gArena + s * kSlotBytes, want, kSlotBytes) != 0)
      fail(refused ? "a refused call wrote" : "a call wrote outside its outputs");
  }
  return 0;
}
