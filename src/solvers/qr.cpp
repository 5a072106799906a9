// QRDecomp and QRBackSubst: the front-ends and the exports.
#include "../frame/export.h"
#include "../frame/operands.h"
#include "qr.h"

namespace {
using namespace qel;

// N, S, R as the views say, with the buffer among the pointers even where the
// kernel leaves it alone; M is width not above height.
template <class T, class... V>
CheckGroups qrChecks(const T* buffer, int count, int width, int height, const V&... views) {
  CheckGroups g = checkViews(count, {width, height}, views...);
  g.pointers = g.pointers && buffer != nullptr;
  g.match = width <= height;
  return g;
}

// At or below the limit the serial kernel runs on the caller's buffer; the
// driver, when it forks, hands each thread a slice of `height` elements of a
// block of its own and leaves the caller's buffer alone.
template <class T, class Job>
QelStatus qrRun(const Job& job, T* buffer, int height, int count, Work w, int32_t limit, bool sharedStatus) {
  const WorkLimit lim = WorkLimit::serialAtMost(limit);
  const DriverTraits traits{.sharedStatus = sharedStatus, .sliceBytes = mul32(height, elemSize<T>)};
  return runFirstKind(job, count, w, lim, lim, traits, buffer);
}

template <class T, class S, class D>
QelStatus decompFront(const char* order, S src, T* buffer, D dst, int width, int height, int count,
                      int32_t limit) {
  if (QelStatus st = firstFailure(order, qrChecks(buffer, count, width, height, src, dst))) return st;
  auto job = makeJob(
      [width, height](int share, void* scratch, auto s, auto d) {
        return qrObjects(s, d, static_cast<T*>(scratch), width, height, share);
      },
      src, dst);
  if constexpr (!S::isArray) {
    return runSerial(job, 1, buffer);
  } else {
    return qrRun(job, buffer, height, count, Work(width) * 2 * (Work(height) * count), limit, true);
  }
}

template <SolveShape Shape, class T, class A, class B, class X>
QelStatus solveFront(const char* order, A a, T* buffer, B b, X x, int width, int height, int count,
                     int32_t limit) {
  if (QelStatus st = firstFailure(order, qrChecks(buffer, count, width, height, a, b, x))) return st;
  auto job = makeJob(
      [width, height](int share, void* scratch, auto va, auto vb, auto vx) {
        return qrSolveObjects<Shape>(va, vb, vx, static_cast<T*>(scratch), width, height, share);
      },
      a, b, x);
  if constexpr (Shape == SolveShape::Mv) {
    return runSerial(job, 1, buffer);
  } else if constexpr (Shape == SolveShape::Mva) {
    return qrRun(job, buffer, height, count, Work(width) * height + (Work(width) + height) * count, limit, false);
  } else {
    return qrRun(job, buffer, height, count, (Work(width) * (Work(height) + 1) + height) * count, limit, false);
  }
}

constexpr auto Mv = SolveShape::Mv;
constexpr auto Mva = SolveShape::Mva;
constexpr auto Mava = SolveShape::Mava;

// Work limits: the standard arrays and the _L and _P ones.
constexpr int32_t kPlain = 2800, kListed = 1800;

}  // namespace

// A _P matrix has width x height element pointers, row by row.
#define QEL_QR_DECOMP(T, F)                                                                              \
  QELM_API QelStatus qelmQRDecomp_m_##F(QEL_ARGS_m_S(const T, src), T* buffer, QEL_ARGS_m_S(T, dst),     \
                                        int width, int height) {                                         \
    return decompFront("NZSM", QEL_VIEW_m_S(src, width), buffer, QEL_VIEW_m_S(dst, width), width, height, \
                       1, 0);                                                                            \
  }                                                                                                      \
  QELM_API QelStatus qelmQRDecomp_m_##F##_P(QEL_ARGS_m_P(const T, src), T* buffer, QEL_ARGS_m_P(T, dst), \
                                            int width, int height) {                                     \
    return decompFront("NZRM", QEL_VIEW_m_P(src, width), buffer, QEL_VIEW_m_P(dst, width), width, height, \
                       1, 0);                                                                            \
  }                                                                                                      \
  QELM_API QelStatus qelmQRDecomp_ma_##F(QEL_ARGS_ma_S(const T, src), T* buffer, QEL_ARGS_ma_S(T, dst),  \
                                         int width, int height, int count) {                             \
    return decompFront("NCZSM", QEL_VIEW_ma_S(src, width), buffer, QEL_VIEW_ma_S(dst, width), width,      \
                       height, count, kPlain);                                                           \
  }                                                                                                      \
  QELM_API QelStatus qelmQRDecomp_ma_##F##_L(QEL_ARGS_ma_L(const T, src), T* buffer,                     \
                                             QEL_ARGS_ma_L(T, dst), int width, int height, int count) {  \
    return decompFront("NCZSRM", QEL_VIEW_ma_L(src, width), buffer, QEL_VIEW_ma_L(dst, width), width,     \
                       height, count, kListed);                                                          \
  }                                                                                                      \
  QELM_API QelStatus qelmQRDecomp_ma_##F##_P(QEL_ARGS_ma_P(const T, src), T* buffer,                     \
                                             QEL_ARGS_ma_P(T, dst), int width, int height, int count) {  \
    return decompFront("NCZSRM", QEL_VIEW_ma_P(src, width), buffer, QEL_VIEW_ma_P(dst, width), width,     \
                       height, count, kListed);                                                          \
  }

QEL_QR_DECOMP(Qel32f, 32f)
QEL_QR_DECOMP(Qel64f, 64f)

// src2 holds height elements, dst width.
#define QEL_QR_SOLVE(T, F)                                                                                \
  QELM_API QelStatus qelmQRBackSubst_mv_##F(QEL_ARGS_m_S(const T, src), T* buffer,                        \
                                            QEL_ARGS_v_S(const T, src2), QEL_ARGS_v_S(T, dst), int width, \
                                            int height) {                                                 \
    return solveFront<Mv>("NZSM", QEL_VIEW_m_S(src, width), buffer, QEL_VIEW_v_S(src2, height),           \
                          QEL_VIEW_v_S(dst, width), width, height, 1, 0);                                 \
  }                                                                                                       \
  QELM_API QelStatus qelmQRBackSubst_mv_##F##_P(QEL_ARGS_m_P(const T, src), T* buffer,                    \
                                                QEL_ARGS_v_P(const T, src2), QEL_ARGS_v_P(T, dst),        \
                                                int width, int height) {                                  \
    return solveFront<Mv>("NZRM", QEL_VIEW_m_P(src, width), buffer, QEL_VIEW_v_P(src2, height),           \
                          QEL_VIEW_v_P(dst, width), width, height, 1, 0);                                 \
  }                                                                                                       \
  QELM_API QelStatus qelmQRBackSubst_mva_##F(QEL_ARGS_m_S(const T, src), T* buffer,                       \
                                             QEL_ARGS_va_S(const T, src2), QEL_ARGS_va_S(T, dst),         \
                                             int width, int height, int count) {                          \
    return solveFront<Mva>("NCZSM", QEL_VIEW_m_S(src, width), buffer, QEL_VIEW_va_S(src2, height),        \
                           QEL_VIEW_va_S(dst, width), width, height, count, kPlain);                      \
  }                                                                                                       \
  QELM_API QelStatus qelmQRBackSubst_mva_##F##_L(QEL_ARGS_m_L(const T, src), T* buffer,                   \
                                                 QEL_ARGS_va_L(const T, src2), QEL_ARGS_va_L(T, dst),     \
                                                 int width, int height, int count) {                      \
    return solveFront<Mva>("NCZSRM", QEL_VIEW_m_L(src, width), buffer, QEL_VIEW_va_L(src2, height),       \
                           QEL_VIEW_va_L(dst, width), width, height, count, kListed);                     \
  }                                                                                                       \
  QELM_API QelStatus qelmQRBackSubst_mva_##F##_P(QEL_ARGS_m_P(const T, src), T* buffer,                   \
                                                 QEL_ARGS_va_P(const T, src2), QEL_ARGS_va_P(T, dst),     \
                                                 int width, int height, int count) {                      \
    return solveFront<Mva>("NCZSRM", QEL_VIEW_m_P(src, width), buffer, QEL_VIEW_va_P(src2, height),       \
                           QEL_VIEW_va_P(dst, width), width, height, count, kListed);                     \
  }                                                                                                       \
  QELM_API QelStatus qelmQRBackSubst_mava_##F(QEL_ARGS_ma_S(const T, src), T* buffer,                     \
                                              QEL_ARGS_va_S(const T, src2), QEL_ARGS_va_S(T, dst),        \
                                              int width, int height, int count) {                         \
    return solveFront<Mava>("NCZSM", QEL_VIEW_ma_S(src, width), buffer, QEL_VIEW_va_S(src2, height),      \
                            QEL_VIEW_va_S(dst, width), width, height, count, kPlain);                     \
  }                                                                                                       \
  QELM_API QelStatus qelmQRBackSubst_mava_##F##_L(QEL_ARGS_ma_L(const T, src), T* buffer,                 \
                                                  QEL_ARGS_va_L(const T, src2), QEL_ARGS_va_L(T, dst),    \
                                                  int width, int height, int count) {                     \
    return solveFront<Mava>("NCZSRM", QEL_VIEW_ma_L(src, width), buffer, QEL_VIEW_va_L(src2, height),     \
                            QEL_VIEW_va_L(dst, width), width, height, count, kListed);                    \
  }                                                                                                       \
  QELM_API QelStatus qelmQRBackSubst_mava_##F##_P(QEL_ARGS_ma_P(const T, src), T* buffer,                 \
                                                  QEL_ARGS_va_P(const T, src2), QEL_ARGS_va_P(T, dst),    \
                                                  int width, int height, int count) {                     \
    return solveFront<Mava>("NCZSRM", QEL_VIEW_ma_P(src, width), buffer, QEL_VIEW_va_P(src2, height),     \
                            QEL_VIEW_va_P(dst, width), width, height, count, kListed);                    \
  }

QEL_QR_SOLVE(Qel32f, 32f)
QEL_QR_SOLVE(Qel64f, 64f)
