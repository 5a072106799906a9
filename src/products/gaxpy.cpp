// Gaxpy: y = A x + z for one matrix, with one x and z, with arrays of both
// (mva), or with an array of x and one z (mvav). The inner product is finished
// before z is added; z never enters the accumulation.
//
// Square sizes 3..6 take the square forms of the matrix-by-vector product in
// every kernel, the matrix (and a single z) held in registers across the
// array. Every other size is one plain loop, contiguous or not: dst(i) zeroed,
// each partial sum written back, then z(i) read and added.
#include "../frame/export.h"
#include "../frame/operands.h"
#include "mul_vector.h"

namespace qel::mul {

template <Sums Kind, class A, class X, class Z, class D>
QelStatus gaxpyKernel(const VecDims& dm, A a, X x, Z z, D d, int count) {
  using T = ElemOf<D>;
  constexpr Sums square = D::Object::contiguous ? Kind : Sums::Left;
  if (dm.M == dm.K && squareForm<square>(dm.M, a, x, z, d, count)) return qelStatusOk;
  for (int n = 0; n < count; ++n) {
    const auto ao = a.object(n);
    const auto xo = x.object(n);
    const auto zo = z.object(n);
    const auto dobj = d.object(n);
    for (int i = 0; i < dm.M; ++i) {
      T& out = dobj.at(0, i);
      out = T(0);
      for (int k = 0; k < dm.K; ++k) out = out + T(ao.at(i, k)) * T(xo.at(0, k));
      out = out + T(zo.at(0, i));
    }
  }
  return qelStatusOk;
}

// Checks N C Z M S R, one mismatch test over both pairs of sizes. The work
// counts the vectors alone: the matrix is read once and stays out of it.
template <Sums Kind, class A, class X, class Z, class D>
QelStatus gaxpyFront(A a, X x, Z z, D d, const VecDims& dm, int32_t len3, int count, int32_t contiguousLimit,
                     int32_t generalLimit) {
  CheckGroups g = checkViews(count, {dm.w, dm.h, dm.len, len3}, a, x, z, d);
  g.match = dm.w == dm.len && dm.h == len3;
  if (QelStatus st = firstFailure("NCZMSR", g)) return st;

  auto job = makeJob([dm](int share, void*, auto va, auto vx, auto vz,
                          auto vd) { return gaxpyKernel<Kind>(dm, va, vx, vz, vd, share); },
                     a, x, z, d);
  if constexpr (!X::isArray) {
    return runSerial(job, 1);
  } else {
    const Work w = Z::isArray ? (Work(dm.len) + Work(2) * len3) * count
                              : Work(dm.len) * count + (Work(count) + 1) * len3;
    return runFirstKind(job, count, w, WorkLimit::serialBelow(contiguousLimit),
                        WorkLimit::serialBelow(generalLimit));
  }
}

}  // namespace qel::mul

#define QEL_GAXPY_COUNT_ARG_v
#define QEL_GAXPY_COUNT_ARG_va , int count
#define QEL_GAXPY_COUNT_v 1
#define QEL_GAXPY_COUNT_va count

// One export: x and dst (v, va), z (v, va), type, layout, the sums of the
// contiguous square forms, and the limits below which the contiguous and the
// general kernel stay serial (_P has no contiguous kernel: its first is unused).
#define QEL_GAXPY(name, KX, KZ, T, LAY, SUMS, CONTIGUOUS, GENERAL)                                    \
  QELM_API QelStatus name(QEL_ARGS_m_##LAY(const T, src1), int src1Width, int src1Height,           \
                          QEL_ARGS_##KX##_##LAY(const T, src2), int src2Len,                        \
                          QEL_ARGS_##KZ##_##LAY(const T, src3), int src3Len,                        \
                          QEL_ARGS_##KX##_##LAY(T, dst) QEL_GAXPY_COUNT_ARG_##KX) {                \
    using namespace qel::mul;                                                                      \
    return gaxpyFront<Sums::SUMS>(QEL_VIEW_m_##LAY(src1, src1Width), QEL_VIEW_##KX##_##LAY(src2, src2Len), \
                                  QEL_VIEW_##KZ##_##LAY(src3, src3Len),                            \
                                  QEL_VIEW_##KX##_##LAY(dst, src1Height),                          \
                                  vecDimsOf<false>(src1Width, src1Height, src2Len), src3Len,       \
                                  QEL_GAXPY_COUNT_##KX, CONTIGUOUS, GENERAL);                      \
  }

// Contiguous square sums: Spread, the layout of one Qel32f matrix against many
// vectors (Mvav32 adds its routine of aligned pairs for 12 vectors or more);
// Pairs, horizontal pairs for Qel64f. The _L general kernels of Qel32f go
// parallel from 501: non-contiguous lists at once.
// clang-format off
//        export                  x   z   type    lay sums    contiguous general
QEL_GAXPY(qelmGaxpy_mv_32f,       v,  v,  Qel32f, S,  Spread, 7001,      5001)
QEL_GAXPY(qelmGaxpy_mv_32f_P,     v,  v,  Qel32f, P,  Left,   4501,      4501)
QEL_GAXPY(qelmGaxpy_mv_64f,       v,  v,  Qel64f, S,  Pairs,  5001,      5001)
QEL_GAXPY(qelmGaxpy_mv_64f_P,     v,  v,  Qel64f, P,  Left,   7001,      7001)
QEL_GAXPY(qelmGaxpy_mva_32f,      va, va, Qel32f, S,  Spread, 7001,      5001)
QEL_GAXPY(qelmGaxpy_mva_32f_L,    va, va, Qel32f, L,  Spread, 7001,      501)
QEL_GAXPY(qelmGaxpy_mva_32f_P,    va, va, Qel32f, P,  Left,   4501,      4501)
QEL_GAXPY(qelmGaxpy_mva_64f,      va, va, Qel64f, S,  Pairs,  5001,      5001)
QEL_GAXPY(qelmGaxpy_mva_64f_L,    va, va, Qel64f, L,  Pairs,  6001,      5001)
QEL_GAXPY(qelmGaxpy_mva_64f_P,    va, va, Qel64f, P,  Left,   7001,      7001)
QEL_GAXPY(qelmGaxpy_mvav_32f,     va, v,  Qel32f, S,  Mvav32, 7001,      5001)
QEL_GAXPY(qelmGaxpy_mvav_32f_L,   va, v,  Qel32f, L,  Spread, 7001,      501)
QEL_GAXPY(qelmGaxpy_mvav_32f_P,   va, v,  Qel32f, P,  Left,   4501,      4501)
QEL_GAXPY(qelmGaxpy_mvav_64f,     va, v,  Qel64f, S,  Pairs,  5001,      5001)
QEL_GAXPY(qelmGaxpy_mvav_64f_L,   va, v,  Qel64f, L,  Pairs,  6001,      5001)
QEL_GAXPY(qelmGaxpy_mvav_64f_P,   va, v,  Qel64f, P,  Left,   7001,      7001)
// clang-format on
