// World, view and projection matrices in the row-vector convention: translation
// in row 3, and in the projections element (2, 3) carries the handedness (+1
// left, -1 right) with depth coming out in 0..1. Straight scalar code; a zero
// extent, equal planes or a zero axis give what the division gives. Every
// element is written, the unnamed ones 0.
#include "../frame/export.h"
#include "small_vectors.h"

#include <cmath>
#include <cstring>

namespace {
using namespace qel::geo;

struct M4 {
  float e[16] = {};
  float& operator()(int r, int c) { return e[4 * r + c]; }
  QelStatus store(float* dst) const {
    std::memcpy(dst, e, sizeof e);
    return qelStatusOk;
  }
};

// Negations are subtractions from zero: -(+0) stays +0.
inline float negated(float x) { return 0.0f - x; }

enum class Hand { Left, Right };

// Depth terms shared by the orthographic forms, with or without a centre offset.
void orthoDepth(M4& m, Hand h, float zNear, float zFar) {
  m(2, 2) = h == Hand::Left ? 1.0f / (zFar - zNear) : 1.0f / (zNear - zFar);
  m(3, 2) = h == Hand::Left ? zNear / negated(zFar - zNear) : zNear / (zNear - zFar);
  m(3, 3) = 1.0f;
}

// Depth terms of the perspective forms; the field-of-view form writes its own
// (3, 2) for the left hand.
void perspectiveDepth(M4& m, Hand h, float zNear, float zFar) {
  m(2, 2) = h == Hand::Left ? zFar / (zFar - zNear) : zFar / (zNear - zFar);
  m(2, 3) = h == Hand::Left ? 1.0f : -1.0f;
  m(3, 2) = h == Hand::Left ? zNear * zFar / negated(zFar - zNear) : zNear * zFar / (zNear - zFar);
}

QelStatus ortho(Hand h, float width, float height, float zNear, float zFar, float* dst) {
  M4 m;
  m(0, 0) = 2.0f / width;
  m(1, 1) = 2.0f / height;
  orthoDepth(m, h, zNear, zFar);
  return m.store(dst);
}

QelStatus orthoOffCenter(Hand h, float left, float right, float bottom, float top, float zNear, float zFar,
                         float* dst) {
  M4 m;
  m(0, 0) = 2.0f / (right - left);
  m(1, 1) = 2.0f / (top - bottom);
  m(3, 0) = (left + right) / negated(right - left);
  m(3, 1) = (bottom + top) / negated(top - bottom);
  orthoDepth(m, h, zNear, zFar);
  return m.store(dst);
}

QelStatus perspective(Hand h, float width, float height, float zNear, float zFar, float* dst) {
  M4 m;
  m(0, 0) = (zNear + zNear) / width;
  m(1, 1) = (zNear + zNear) / height;
  perspectiveDepth(m, h, zNear, zFar);
  return m.store(dst);
}

QelStatus perspectiveFov(Hand h, float fovY, float aspect, float zNear, float zFar, float* dst) {
  M4 m;
  const float half = fovY * 0.5f;
  const float yScale = cosf(half) / sinf(half);
  m(0, 0) = yScale / aspect;
  m(1, 1) = yScale;
  perspectiveDepth(m, h, zNear, zFar);
  if (h == Hand::Left) m(3, 2) = negated(zNear * zFar) / (zFar - zNear);
  return m.store(dst);
}

QelStatus perspectiveOffCenter(Hand h, float left, float right, float bottom, float top, float zNear, float zFar,
                               float* dst) {
  M4 m;
  m(0, 0) = (zNear + zNear) / (right - left);
  m(1, 1) = (zNear + zNear) / (top - bottom);
  m(2, 0) = h == Hand::Left ? (left + right) / negated(right - left) : (left + right) / (right - left);
  m(2, 1) = h == Hand::Left ? (bottom + top) / negated(top - bottom) : (bottom + top) / (top - bottom);
  perspectiveDepth(m, h, zNear, zFar);
  return m.store(dst);
}

// The view basis from the direction d (at - eye for the left hand, eye - at
// for the right), through the vector routines: up parallel to d leaves a zero
// x axis, normalised into NaNs.
QelStatus lookAt(const float* d, const float* eye, const float* up, float* dst) {
  float x[3], y[3], z[3], upCrossZ[3];
  normalize<3>(d, z);
  cross3(up, z, upCrossZ);
  normalize<3>(upCrossZ, x);
  cross3(z, x, y);
  M4 m;
  for (int r = 0; r < 3; ++r) m(r, 0) = x[r], m(r, 1) = y[r], m(r, 2) = z[r];
  m(3, 0) = negated(dot<3>(x, eye));
  m(3, 1) = negated(dot<3>(y, eye));
  m(3, 2) = negated(dot<3>(z, eye));
  m(3, 3) = 1.0f;
  return m.store(dst);
}

}  // namespace

QELM_API QelStatus qelmTranslation_m4_32f(Qel32f x, Qel32f y, Qel32f z, Qel32f* dst) {
  M4 m;
  m(0, 0) = m(1, 1) = m(2, 2) = m(3, 3) = 1.0f;
  m(3, 0) = x, m(3, 1) = y, m(3, 2) = z;
  return m.store(dst);
}

QELM_API QelStatus qelmScaling_m4_32f(Qel32f x, Qel32f y, Qel32f z, Qel32f* dst) {
  M4 m;
  m(0, 0) = x, m(1, 1) = y, m(2, 2) = z, m(3, 3) = 1.0f;
  return m.store(dst);
}

QELM_API QelStatus qelmRotationX_m4_32f(Qel32f angle, Qel32f* dst) {
  const float s = sinf(angle), c = cosf(angle);
  M4 m;
  m(0, 0) = 1.0f, m(1, 1) = c, m(1, 2) = s, m(2, 1) = negated(s), m(2, 2) = c, m(3, 3) = 1.0f;
  return m.store(dst);
}

QELM_API QelStatus qelmRotationY_m4_32f(Qel32f angle, Qel32f* dst) {
  const float s = sinf(angle), c = cosf(angle);
  M4 m;
  m(0, 0) = c, m(0, 2) = negated(s), m(1, 1) = 1.0f, m(2, 0) = s, m(2, 2) = c, m(3, 3) = 1.0f;
  return m.store(dst);
}

QELM_API QelStatus qelmRotationZ_m4_32f(Qel32f angle, Qel32f* dst) {
  const float s = sinf(angle), c = cosf(angle);
  M4 m;
  m(0, 0) = c, m(0, 1) = s, m(1, 0) = negated(s), m(1, 1) = c, m(2, 2) = 1.0f, m(3, 3) = 1.0f;
  return m.store(dst);
}

// The axis is normalised by a 32-bit root; a zero axis gives NaNs.
QELM_API QelStatus qelmRotationAxis_v3m4_32f(const Qel32f* axis, Qel32f angle, Qel32f* dst) {
  const float s = sinf(angle), c = cosf(angle), t = 1.0f - c;
  const float len = sqrtf((axis[0] * axis[0] + axis[1] * axis[1]) + axis[2] * axis[2]);
  const float x = axis[0] / len, y = axis[1] / len, z = axis[2] / len;
  M4 m;
  m(0, 0) = t * x * x + c;
  m(0, 1) = t * y * x + s * z;
  m(0, 2) = t * z * x - s * y;
  m(1, 0) = t * x * y - s * z;
  m(1, 1) = t * y * y + c;
  m(1, 2) = y * (t * z) + s * x;
  m(2, 0) = s * y + t * x * z;
  m(2, 1) = t * y * z - s * x;
  m(2, 2) = c + z * (t * z);
  m(3, 3) = 1.0f;
  return m.store(dst);
}

QELM_API QelStatus qelmRotationYawPitchRoll_m4_32f(Qel32f yaw, Qel32f pitch, Qel32f roll, Qel32f* dst) {
  const float sy = sinf(yaw), cy = cosf(yaw), sp = sinf(pitch), cp = cosf(pitch), sr = sinf(roll),
              cr = cosf(roll);
  M4 m;
  m(0, 0) = sr * (sy * sp) + cy * cr;
  m(0, 1) = sr * cp;
  m(0, 2) = sr * (sp * cy) - sy * cr;
  m(1, 0) = (sy * sp) * cr - cy * sr;
  m(1, 1) = cr * cp;
  m(1, 2) = sy * sr + cr * (sp * cy);
  m(2, 0) = sy * cp;
  m(2, 1) = negated(sp);
  m(2, 2) = cy * cp;
  m(3, 3) = 1.0f;
  return m.store(dst);
}

QELM_API QelStatus qelmLookAtLH_m4_32f(const Qel32f* eye, const Qel32f* at, const Qel32f* up, Qel32f* dst) {
  const float d[3] = {at[0] - eye[0], at[1] - eye[1], at[2] - eye[2]};
  return lookAt(d, eye, up, dst);
}

QELM_API QelStatus qelmLookAtRH_m4_32f(const Qel32f* eye, const Qel32f* at, const Qel32f* up, Qel32f* dst) {
  const float d[3] = {eye[0] - at[0], eye[1] - at[1], eye[2] - at[2]};
  return lookAt(d, eye, up, dst);
}

// clang-format off
#define QEL_PROJECTION(NAME, FORM, HAND, A, B)                                                                \
  QELM_API QelStatus qelm##NAME##_m4_32f(Qel32f A, Qel32f B, Qel32f zNear, Qel32f zFar, Qel32f* dst) {       \
    return FORM(Hand::HAND, A, B, zNear, zFar, dst);                                                          \
  }
#define QEL_OFF_CENTER(NAME, FORM, HAND)                                                                      \
  QELM_API QelStatus qelm##NAME##_m4_32f(Qel32f left, Qel32f right, Qel32f bottom, Qel32f top, Qel32f zNear, \
                                         Qel32f zFar, Qel32f* dst) {                                          \
    return FORM(Hand::HAND, left, right, bottom, top, zNear, zFar, dst);                                      \
  }
QEL_PROJECTION(OrthoLH,          ortho,          Left,  width, height)
QEL_PROJECTION(OrthoRH,          ortho,          Right, width, height)
QEL_PROJECTION(PerspectiveLH,    perspective,    Left,  width, height)
QEL_PROJECTION(PerspectiveRH,    perspective,    Right, width, height)
QEL_PROJECTION(PerspectiveFovLH, perspectiveFov, Left,  fovY,  aspect)
QEL_PROJECTION(PerspectiveFovRH, perspectiveFov, Right, fovY,  aspect)
QEL_OFF_CENTER(OrthoOffCenterLH,       orthoOffCenter,       Left)
QEL_OFF_CENTER(OrthoOffCenterRH,       orthoOffCenter,       Right)
QEL_OFF_CENTER(PerspectiveOffCenterLH, perspectiveOffCenter, Left)
QEL_OFF_CENTER(PerspectiveOffCenterRH, perspectiveOffCenter, Right)
// clang-format on
