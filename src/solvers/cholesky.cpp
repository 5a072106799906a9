// CholeskyDecomp and CholeskyBackSubst: the front-ends and the exports.
#include "../frame/export.h"
#include "../frame/operands.h"
#include "cholesky.h"

namespace {
using namespace qel;

// A work figure at or below the export's limit stays serial; the limits differ
// by export and, in two of them, by kernel.
struct Limits {
  int32_t contiguous, general;
};

// The ten factor exports. The driver merges the statuses of the threads, each
// of which stops at the first failure of its share.
template <bool GeneralStride64, class S, class D>
QelStatus decompFront(const char* order, S src, D dst, int size, int count, Limits lim) {
  if (QelStatus st = firstFailure(order, checkViews(count, {size}, src, dst))) return st;
  auto job = makeJob(
      [size](int share, void*, auto s, auto d) { return cholObjects<GeneralStride64>(s, d, size, share); }, src,
      dst);
  if constexpr (!S::isArray) {
    return runSerial(job, 1);
  } else {
    return runFirstKind(job, count, Work(size) * size * count, WorkLimit::serialAtMost(lim.contiguous),
                        WorkLimit::serialAtMost(lim.general), DriverTraits{.sharedStatus = true});
  }
}

// The sixteen solve exports; they can't fail after the checks.
template <SolveShape Shape, class A, class B, class X>
QelStatus solveFront(const char* order, A a, B b, X x, int size, int count, Limits lim) {
  if (QelStatus st = firstFailure(order, checkViews(count, {size}, a, b, x))) return st;
  auto job = makeJob(
      [size](int share, void*, auto va, auto vb, auto vx) { return cholSolveObjects<Shape>(va, vb, vx, size, share); },
      a, b, x);
  if constexpr (Shape == SolveShape::Mv) {
    return runSerial(job, 1);
  } else {
    const Work w = Shape == SolveShape::Mva ? (Work(size) + Work(2) * count) * size : (Work(size) + 2) * size * count;
    return runFirstKind(job, count, w, WorkLimit::serialAtMost(lim.contiguous), WorkLimit::serialAtMost(lim.general));
  }
}

constexpr auto Mv = SolveShape::Mv;
constexpr auto Mva = SolveShape::Mva;
constexpr auto Mava = SolveShape::Mava;

}  // namespace

// One line per member. STRICT: the general-stride kernel's 2^-52 island (the
// strided Qel64f array alone); limits as {contiguous, general}.
#define QEL_CHOL_DECOMP(T, F, STRICT, MA, MA_L, MA_P)                                                    \
  QELM_API QelStatus qelmCholeskyDecomp_m_##F(QEL_ARGS_m_S(const T, src), QEL_ARGS_m_S(T, dst), int size) { \
    return decompFront<false>("NZS", QEL_VIEW_m_S(src, size), QEL_VIEW_m_S(dst, size), size, 1, {});      \
  }                                                                                                        \
  QELM_API QelStatus qelmCholeskyDecomp_m_##F##_P(QEL_ARGS_m_P(const T, src), QEL_ARGS_m_P(T, dst),        \
                                                  int size) {                                              \
    return decompFront<false>("NZR", QEL_VIEW_m_P(src, size), QEL_VIEW_m_P(dst, size), size, 1, {});      \
  }                                                                                                        \
  QELM_API QelStatus qelmCholeskyDecomp_ma_##F(QEL_ARGS_ma_S(const T, src), QEL_ARGS_ma_S(T, dst), int size, \
                                               int count) {                                                \
    return decompFront<STRICT>("NCZS", QEL_VIEW_ma_S(src, size), QEL_VIEW_ma_S(dst, size), size, count,    \
                               Limits MA);                                                                 \
  }                                                                                                        \
  QELM_API QelStatus qelmCholeskyDecomp_ma_##F##_L(QEL_ARGS_ma_L(const T, src), QEL_ARGS_ma_L(T, dst),     \
                                                   int size, int count) {                                  \
    return decompFront<false>("NCZSR", QEL_VIEW_ma_L(src, size), QEL_VIEW_ma_L(dst, size), size, count,    \
                              Limits MA_L);                                                                \
  }                                                                                                        \
  QELM_API QelStatus qelmCholeskyDecomp_ma_##F##_P(QEL_ARGS_ma_P(const T, src), QEL_ARGS_ma_P(T, dst),     \
                                                   int size, int count) {                                  \
    return decompFront<false>("NCZSR", QEL_VIEW_ma_P(src, size), QEL_VIEW_ma_P(dst, size), size, count,    \
                              Limits MA_P);                                                                \
  }

QEL_CHOL_DECOMP(Qel32f, 32f, false, ({7500, 7500}), ({2000, 2000}), ({2000, 2000}))
QEL_CHOL_DECOMP(Qel64f, 64f, true, ({2000, 2000}), ({720, 2000}), ({2000, 2000}))

// In mva the one factor is a plain matrix in _L and has no object distance in
// _P. The _L mva members check in their own order.
#define QEL_CHOL_SOLVE(T, F, MVA, MVA_L, MVA_P, MAVA, MAVA_L, MAVA_P)                                     \
  QELM_API QelStatus qelmCholeskyBackSubst_mv_##F(QEL_ARGS_m_S(const T, src), QEL_ARGS_v_S(const T, src2), \
                                                  QEL_ARGS_v_S(T, dst), int size) {                         \
    return solveFront<Mv>("NZS", QEL_VIEW_m_S(src, size), QEL_VIEW_v_S(src2, size), QEL_VIEW_v_S(dst, size), \
                          size, 1, {});                                                                     \
  }                                                                                                         \
  QELM_API QelStatus qelmCholeskyBackSubst_mv_##F##_P(QEL_ARGS_m_P(const T, src),                           \
                                                      QEL_ARGS_v_P(const T, src2), QEL_ARGS_v_P(T, dst),    \
                                                      int size) {                                           \
    return solveFront<Mv>("NZR", QEL_VIEW_m_P(src, size), QEL_VIEW_v_P(src2, size), QEL_VIEW_v_P(dst, size), \
                          size, 1, {});                                                                     \
  }                                                                                                         \
  QELM_API QelStatus qelmCholeskyBackSubst_mva_##F(QEL_ARGS_m_S(const T, src), QEL_ARGS_va_S(const T, src2), \
                                                   QEL_ARGS_va_S(T, dst), int size, int count) {             \
    return solveFront<Mva>("NCZS", QEL_VIEW_m_S(src, size), QEL_VIEW_va_S(src2, size),                      \
                           QEL_VIEW_va_S(dst, size), size, count, Limits MVA);                              \
  }                                                                                                         \
  QELM_API QelStatus qelmCholeskyBackSubst_mva_##F##_L(QEL_ARGS_m_L(const T, src),                          \
                                                       QEL_ARGS_va_L(const T, src2), QEL_ARGS_va_L(T, dst), \
                                                       int size, int count) {                               \
    return solveFront<Mva>("NSRZC", QEL_VIEW_m_L(src, size), QEL_VIEW_va_L(src2, size),                     \
                           QEL_VIEW_va_L(dst, size), size, count, Limits MVA_L);                            \
  }                                                                                                         \
  QELM_API QelStatus qelmCholeskyBackSubst_mva_##F##_P(QEL_ARGS_m_P(const T, src),                          \
                                                       QEL_ARGS_va_P(const T, src2), QEL_ARGS_va_P(T, dst), \
                                                       int size, int count) {                               \
    return solveFront<Mva>("NCZSR", QEL_VIEW_m_P(src, size), QEL_VIEW_va_P(src2, size),                     \
                           QEL_VIEW_va_P(dst, size), size, count, Limits MVA_P);                            \
  }                                                                                                         \
  QELM_API QelStatus qelmCholeskyBackSubst_mava_##F(QEL_ARGS_ma_S(const T, src),                            \
                                                    QEL_ARGS_va_S(const T, src2), QEL_ARGS_va_S(T, dst),    \
                                                    int size, int count) {                                  \
    return solveFront<Mava>("NCZS", QEL_VIEW_ma_S(src, size), QEL_VIEW_va_S(src2, size),                    \
                            QEL_VIEW_va_S(dst, size), size, count, Limits MAVA);                            \
  }                                                                                                         \
  QELM_API QelStatus qelmCholeskyBackSubst_mava_##F##_L(QEL_ARGS_ma_L(const T, src),                        \
                                                        QEL_ARGS_va_L(const T, src2),                       \
                                                        QEL_ARGS_va_L(T, dst), int size, int count) {       \
    return solveFront<Mava>("NCZSR", QEL_VIEW_ma_L(src, size), QEL_VIEW_va_L(src2, size),                   \
                            QEL_VIEW_va_L(dst, size), size, count, Limits MAVA_L);                          \
  }                                                                                                         \
  QELM_API QelStatus qelmCholeskyBackSubst_mava_##F##_P(QEL_ARGS_ma_P(const T, src),                        \
                                                        QEL_ARGS_va_P(const T, src2),                       \
                                                        QEL_ARGS_va_P(T, dst), int size, int count) {       \
    return solveFront<Mava>("NCZSR", QEL_VIEW_ma_P(src, size), QEL_VIEW_va_P(src2, size),                   \
                            QEL_VIEW_va_P(dst, size), size, count, Limits MAVA_P);                          \
  }

QEL_CHOL_SOLVE(Qel32f, 32f, ({1200, 1200}), ({720, 720}), ({720, 720}), ({2050, 1700}), ({1700, 1700}),
               ({1700, 1700}))
QEL_CHOL_SOLVE(Qel64f, 64f, ({720, 720}), ({720, 720}), ({720, 720}), ({1700, 1700}), ({1700, 1700}),
               ({2050, 2050}))
