// The one binding of the Python package: a table of the export families the
// package uses, by name and element type, and one runner that calls them on
// stacks of objects with the GIL released.
//
// Python hands every operand over as a numpy array whose first axis is the
// stack and whose strides are already positive multiples of the element size.
// The runner reads the byte strides (object, row, element) from the array,
// cuts the stack into calls whose byte offsets fit the library's 32-bit
// distances, and when a call reports a failure finds every object the library
// refused by calling it again object by object (a single object never forks,
// so its status is exact). Python then answers those objects its own way.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <qelm/qelcore.h>
#include <qelm/qelm.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace py = pybind11;

namespace {

// An operand as the standard description sees it: base and byte strides.
struct Operand {
  char* p = nullptr;
  long s0 = 0, s1 = 0, s2 = 0;
  long span = 0;  // bytes from the base of one object to the end of its last element
};

constexpr int kMaxOperands = 5;

// The arguments of one call: operands shifted to the first object of the call.
struct Args {
  Operand op[kMaxOperands];
  void* buffer = nullptr;
  int n = 0, w = 0, h = 0, count = 0;
  double val = 0;
  template <class T> T* P(int i) const { return reinterpret_cast<T*>(op[i].p); }
  int S0(int i) const { return int(op[i].s0); }
  int S1(int i) const { return int(op[i].s1); }
  int S2(int i) const { return int(op[i].s2); }
};

using Export = int (*)(const Args&);
struct Family { Export f32, f64; };

// One line per family: the export's arguments, spelled once for both types.
#define BOTH(fn, args)                                                                    \
  Family {                                                                                \
    [](const Args& x) -> int { using T = Qel32f; (void)sizeof(T); return qelm##fn##_32f args; }, \
    [](const Args& x) -> int { using T = Qel64f; (void)sizeof(T); return qelm##fn##_64f args; }  \
  }
#define M(i) x.P<T>(i), x.S0(i), x.S1(i), x.S2(i)
#define V(i) x.P<T>(i), x.S0(i), x.S2(i)

const std::map<std::string, Family>& families() {
  static const std::map<std::string, Family> table = {
      // operand 0 the matrix stack, 1 the result (and index, values...) as listed
      {"Invert", BOTH(Invert_ma, (M(0), static_cast<T*>(x.buffer), M(1), x.n, x.count))},
      {"Det", BOTH(Det_ma, (M(0), x.n, static_cast<T*>(x.buffer), x.P<T>(1), x.count))},
      {"LUDecomp", BOTH(LUDecomp_ma, (M(0), x.P<Qel32s>(2), M(1), x.n, x.count))},
      {"LUBackSubst", BOTH(LUBackSubst_mava, (M(0), x.P<Qel32s>(1), V(2), V(3), x.n, x.count))},
      {"CholeskyDecomp", BOTH(CholeskyDecomp_ma, (M(0), M(1), x.n, x.count))},
      {"CholeskyBackSubst", BOTH(CholeskyBackSubst_mava, (M(0), V(1), V(2), x.n, x.count))},
      {"QRDecomp", BOTH(QRDecomp_ma, (M(0), static_cast<T*>(x.buffer), M(1), x.w, x.h, x.count))},
      {"QRBackSubst",
       BOTH(QRBackSubst_mava, (M(0), static_cast<T*>(x.buffer), V(1), V(2), x.w, x.h, x.count))},
      {"EigenValuesSym", BOTH(EigenValuesSym_ma, (M(0), static_cast<T*>(x.buffer), x.P<T>(1), x.n, x.count))},
      {"EigenValuesVectorsSym",
       BOTH(EigenValuesVectorsSym_ma, (M(0), static_cast<T*>(x.buffer), M(2), x.P<T>(1), x.n, x.count))},
      {"EigenValues",
       BOTH(EigenValues_ma, (M(0), x.P<T>(1), x.P<T>(2), x.n, x.count, static_cast<T*>(x.buffer)))},
      {"EigenValuesVectorsLeft",
       BOTH(EigenValuesVectorsLeft_ma,
            (M(0), M(3), x.P<T>(1), x.P<T>(2), x.n, x.count, static_cast<T*>(x.buffer)))},
      // Mul: operand 0 is h x n, operand 1 is n x w, the product h x w.
      {"Mul", BOTH(Mul_mama, (M(0), x.n, x.h, M(1), x.w, x.n, M(2), x.count))},
      {"DotProduct", BOTH(DotProduct_vava, (V(0), V(1), x.P<T>(2), x.n, x.count))},
      {"L2Norm", BOTH(L2Norm_va, (V(0), x.P<T>(1), x.n, x.count))},
      {"CrossProduct", BOTH(CrossProduct_vava, (V(0), V(1), V(2), x.count))},
      {"Saxpy", BOTH(Saxpy_vava, (V(0), T(x.val), V(1), V(2), x.n, x.count))},
  };
  return table;
}
#undef V
#undef M
#undef BOTH

// The geometry transforms: single precision, one packed 4x4 matrix (operand 2).
using Transform = QelStatus (*)(const Qel32f*, const Qel32f*, int, Qel32f*, int, int);
const std::map<std::string, Transform>& transforms() {
  static const std::map<std::string, Transform> table = {
      {"points", qelmAffineTransformCoord_m4v3a_32f},
      {"normals", qelmAffineTransformNormal_m4v3a_32f},
      {"homogeneous", qelmAffineTransform_m4v4a_32f},
  };
  return table;
}

Operand describe(const py::array& a, long itemsize) {
  Operand o;
  const int nd = int(a.ndim());
  if (nd < 1) throw py::value_error("an operand needs a stack axis");
  o.p = static_cast<char*>(const_cast<void*>(a.data()));
  o.s0 = a.strides(0);
  o.s2 = nd >= 2 ? a.strides(nd - 1) : itemsize;
  o.s1 = nd >= 3 ? a.strides(nd - 2) : itemsize;
  o.span = itemsize;
  if (nd >= 2) o.span += (a.shape(nd - 1) - 1) * o.s2;
  if (nd >= 3) o.span += (a.shape(nd - 2) - 1) * o.s1;
  for (long s : {o.s0, o.s1, o.s2})
    if (s <= 0 || s % itemsize != 0 || s > INT32_MAX)
      throw py::value_error("operand strides must be positive multiples of the element size");
  return o;
}

// Marks a call leaves behind when it stops without a status: a quiet NaN with
// a payload no arithmetic produces, in one element every finished object writes.
template <class T> T mark();
template <> float mark<float>() { uint32_t b = 0x7fc0dead; float f; std::memcpy(&f, &b, 4); return f; }
template <> double mark<double>() { uint64_t b = 0x7ff8deadbeef0bedULL; double f; std::memcpy(&f, &b, 8); return f; }
template <class T> bool isMark(const char* p) { T m = mark<T>(); return std::memcmp(p, &m, sizeof(T)) == 0; }

struct Job {
  Family fam;
  bool f64;
  Args args;
  long count;
  std::vector<char> scratch;
  int markOperand = -1;   // operand whose last element marks a finished object
  long markOffset = 0;    // byte offset of that element in one object

  int callRange(long first, long cnt) const {
    Args a = args;
    for (auto& o : a.op) o.p = o.p ? o.p + first * o.s0 : nullptr;
    a.count = int(cnt);
    return f64 ? fam.f64(a) : fam.f32(a);
  }
  bool unfinished(long i) const {
    if (markOperand < 0) return false;
    const char* p = args.op[markOperand].p + i * args.op[markOperand].s0 + markOffset;
    return f64 ? isMark<double>(p) : isMark<float>(p);
  }
  void setMarks() {
    if (markOperand < 0) return;
    for (long i = 0; i < count; ++i) {
      char* p = args.op[markOperand].p + i * args.op[markOperand].s0 + markOffset;
      if (f64) { double m = mark<double>(); std::memcpy(p, &m, 8); }
      else { float m = mark<float>(); std::memcpy(p, &m, 4); }
    }
  }
  // The most objects one call may take: every byte offset within 31 bits.
  long chunk() const {
    long most = INT32_MAX;
    for (const auto& o : args.op)
      if (o.p && o.s0 > 0) most = std::min(most, (long(INT32_MAX) - o.span) / o.s0 + 1);
    return std::max(1L, most);
  }
};

// Runs a family on a stack. Returns (first non-zero status, objects refused).
py::tuple run(const std::string& name, bool f64, const std::vector<py::object>& operands,
              int n, int w, int h, long bufferElements, double val, int markOperand) {
  auto it = families().find(name);
  if (it == families().end()) throw py::value_error("no such family: " + name);
  Job job;
  job.fam = it->second;
  job.f64 = f64;
  const long item = f64 ? 8 : 4;
  long count = -1;
  if (int(operands.size()) > kMaxOperands) throw py::value_error("too many operands");
  for (size_t i = 0; i < operands.size(); ++i) {
    if (operands[i].is_none()) continue;
    if (!py::isinstance<py::array>(operands[i])) throw py::type_error("operands are numpy arrays");
    py::array a = py::reinterpret_borrow<py::array>(operands[i]);
    const char kind = a.dtype().kind();
    // elements of the family's type, or the 32-bit row indices of LU
    if (!((kind == 'f' && a.itemsize() == item) || (kind == 'i' && a.itemsize() == 4)))
      throw py::type_error("operand " + std::to_string(i) + " has the wrong element type");
    job.args.op[i] = describe(a, a.itemsize());
    if (count < 0) count = a.shape(0);
    else if (a.shape(0) != count) throw py::value_error("operands differ in their number of objects");
  }
  job.count = count;
  job.args.n = n; job.args.w = w; job.args.h = h; job.args.val = val;
  job.scratch.assign(size_t(std::max(1L, bufferElements)) * item, 0);
  job.args.buffer = job.scratch.data();
  if (markOperand >= 0) {
    job.markOperand = markOperand;
    job.markOffset = job.args.op[markOperand].span - item;
  }
  int status = 0;
  std::vector<long> refused;
  if (count > 0) {
    py::gil_scoped_release release;
    job.setMarks();
    const long step = job.chunk();
    bool again = false;
    for (long first = 0; first < count; first += step) {
      const int st = job.callRange(first, std::min(step, count - first));
      if (st != 0 && status == 0) status = st;
      again |= st != 0;
    }
    if (!again && job.markOperand >= 0)
      for (long i = 0; i < count && !again; ++i) again = job.unfinished(i);
    if (again) {
      // One object at a time: its status is exact, and nothing after it waits.
      for (long i = 0; i < count; ++i)
        if (job.callRange(i, 1) != 0 || job.unfinished(i)) refused.push_back(i);
    }
  }
  return py::make_tuple(status, refused);
}

// ---- passes over the results that turn the library's forms into numpy's.

template <class T> T& at(const Operand& o, long n, long i, long j) {
  return *reinterpret_cast<T*>(o.p + n * o.s0 + i * o.s1 + j * o.s2);
}

// The Cholesky factor keeps 1 / L(i,i) on its diagonal; `zeroUpper` also
// clears the triangle above it, which the factorisation leaves alone. Objects
// whose diagonal came out NaN (the factorisation lets NaN through) are returned.
template <class T> std::vector<long> factorDiagonal(const Operand& o, long count, int n, bool zeroUpper) {
  std::vector<long> nan;
  for (long k = 0; k < count; ++k) {
    bool bad = false;
    for (int i = 0; i < n; ++i) {
      T& d = at<T>(o, k, i, i);
      d = T(1) / d;
      bad |= d != d;
      if (zeroUpper)
        for (int j = i + 1; j < n; ++j) at<T>(o, k, i, j) = T(0);
    }
    if (bad) nan.push_back(k);
  }
  return nan;
}

// Ascending values, the vector columns carried along (values: count x n rows).
template <class T> void sortAscending(const Operand& vals, const Operand* vecs, long count, int n) {
  for (long k = 0; k < count; ++k)
    for (int i = 1; i < n; ++i)
      for (int j = i; j > 0 && at<T>(vals, k, 0, j) < at<T>(vals, k, 0, j - 1); --j) {
        std::swap(at<T>(vals, k, 0, j), at<T>(vals, k, 0, j - 1));
        if (vecs)
          for (int r = 0; r < n; ++r) std::swap(at<T>(*vecs, k, r, j), at<T>(*vecs, k, r, j - 1));
      }
}

// The sum of the squared eigenvalues is the trace of A squared. An object whose
// values break that by more than rounding (a real pair reported as complex, say)
// is returned for an answer elsewhere. Only objects with a complex value are looked at.
// A symmetric matrix (im null) is looked at whole: its values' squares sum to
// its Frobenius norm squared.
template <class T>
std::vector<long> traceCheck(const Operand& a, const Operand& re, const Operand* im, long count, int n) {
  std::vector<long> out;
  const double eps = std::numeric_limits<T>::epsilon();
  for (long k = 0; k < count; ++k) {
    bool complexValue = false;
    double sumValues = 0, scale = 0;
    for (int i = 0; i < n; ++i) {
      const double r = at<T>(re, k, 0, i), m = im ? double(at<T>(*im, k, 0, i)) : 0.0;
      complexValue |= m != 0 || r != r;   // NaN: looked at, and refused below
      sumValues += r * r - m * m;
      scale += r * r + m * m;
    }
    if (im && !complexValue) continue;
    double trace = 0, frob = 0;
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) {
        const double x = at<T>(a, k, i, j);
        trace += x * double(at<T>(a, k, j, i));
        frob += x * x;
      }
    if (!(std::fabs(sumValues - trace) <= 64 * n * eps * (scale + frob))) out.push_back(k);
  }
  return out;
}

py::object fix(const std::string& what, bool f64, const std::vector<py::object>& operands, int n) {
  std::vector<py::array> arrs;
  std::vector<Operand> ops;
  long count = -1;
  for (const auto& obj : operands) {
    py::array a = py::reinterpret_borrow<py::array>(obj);
    ops.push_back(describe(a, a.itemsize()));
    count = a.shape(0);
    arrs.push_back(a);
  }
  py::gil_scoped_release release;
  if (what == "cholesky" || what == "reciprocal_diagonal") {
    const bool zero = what == "cholesky";
    auto nan = f64 ? factorDiagonal<double>(ops[0], count, n, zero) : factorDiagonal<float>(ops[0], count, n, zero);
    py::gil_scoped_acquire gil;
    return py::cast(nan);
  } else if (what == "sort") {
    const Operand* v = ops.size() > 1 ? &ops[1] : nullptr;
    f64 ? sortAscending<double>(ops[0], v, count, n) : sortAscending<float>(ops[0], v, count, n);
  } else if (what == "trace") {
    const Operand* im = ops.size() > 2 ? &ops[2] : nullptr;
    auto bad = f64 ? traceCheck<double>(ops[0], ops[1], im, count, n)
                   : traceCheck<float>(ops[0], ops[1], im, count, n);
    py::gil_scoped_acquire gil;
    return py::cast(bad);
  } else {
    py::gil_scoped_acquire gil;
    throw py::value_error("no such pass: " + what);
  }
  return py::none();
}

int transform(const std::string& kind, py::array m, py::array src, py::array dst) {
  auto it = transforms().find(kind);
  if (it == transforms().end()) throw py::value_error("no such transform: " + kind);
  const long count = src.shape(0);
  const auto* mp = static_cast<const Qel32f*>(m.data());
  const auto* sp = static_cast<const char*>(src.data());
  auto* dp = static_cast<char*>(dst.mutable_data());
  const long ss = src.strides(0), ds = dst.strides(0);
  py::gil_scoped_release release;
  // The transforms have no parallel path: the array is cut so that offsets stay in 31 bits.
  const long step = std::max(1L, long(INT32_MAX) / std::max({ss, ds, 1L}) - 1);
  int status = 0;
  for (long first = 0; first < count; first += step) {
    const int st = it->second(mp, reinterpret_cast<const Qel32f*>(sp + first * ss), int(ss),
                              reinterpret_cast<Qel32f*>(dp + first * ds), int(ds),
                              int(std::min(step, count - first)));
    if (st != 0 && status == 0) status = st;
  }
  return status;
}

}  // namespace

PYBIND11_MODULE(_qelm, mod) {
  mod.doc() = "qelm: the binding of the library's array exports";
  mod.def("run", &run, py::arg("family"), py::arg("f64"), py::arg("operands"), py::arg("n"),
          py::arg("w") = 0, py::arg("h") = 0, py::arg("buffer") = 0, py::arg("val") = 0.0,
          py::arg("mark") = -1);
  mod.def("fix", &fix);
  mod.def("transform", &transform);
  mod.def("set_num_threads", [](int t) { qelSetNumThreads(t); });
  mod.def("get_num_threads", []() { return qelGetNumThreads(); });
  mod.def("version", []() {
    const QelLibraryVersion* v = qelmGetLibVersion();
    return py::make_tuple(v->major, v->minor, v->majorBuild, v->build, std::string(v->version));
  });
  std::vector<std::string> names;
  for (const auto& kv : families()) names.push_back(kv.first);
  mod.attr("families") = names;
}
