"""4x4 transforms of points and normals, single precision, row-vector convention.

A point p is transformed as p @ m with translation in row 3 of m, as the
library's geometry routines do; ``transform_points`` divides by the fourth
coordinate, ``transform_normals`` uses the upper 3x3 only (no inverse, no
normalisation), ``transform`` takes homogeneous 4-vectors. Every result is
float32.
"""
import numpy as np

from . import _qelm

__all__ = ["transform_points", "transform_normals", "transform"]


def _apply(kind, m, v, width, out):
    m = np.ascontiguousarray(np.asarray(m, dtype=np.float32))
    if m.shape != (4, 4):
        raise ValueError("the transform is one 4x4 matrix")
    v = np.asarray(v)
    if v.shape[-1:] != (width,):
        raise ValueError("vectors of %d elements expected" % width)
    src = v.astype(np.float32, copy=False).reshape(-1, width)
    if src.strides[-1] != 4 or src.strides[0] <= 0 or (src.shape[0] > 1 and src.strides[0] < 4 * width):
        src = np.ascontiguousarray(src)
    shape = v.shape[:-1] + ((4,) if kind == "homogeneous" else (width,))
    res = out if out is not None else np.empty(shape, np.float32)
    if res.shape != shape or res.dtype != np.float32:
        raise ValueError("out must be float32 of shape %s" % (shape,))
    dst = res.reshape(-1, shape[-1]) if res.flags.c_contiguous else np.empty((src.shape[0], shape[-1]), np.float32)
    if src.shape[0]:
        _qelm.transform(kind, m, src, dst)
    if not np.shares_memory(dst, res):
        res[...] = dst.reshape(shape)
    return res


def transform_points(m, points, out=None):
    """Points (..., 3) through m, divided by w: (p, 1) @ m, then x/w, y/w, z/w."""
    return _apply("points", m, points, 3, out)


def transform_normals(m, normals, out=None):
    """Directions (..., 3) through the upper 3x3 of m: n @ m[:3, :3]."""
    return _apply("normals", m, normals, 3, out)


def transform(m, vectors, out=None):
    """Homogeneous vectors (..., 4) through m: v @ m."""
    return _apply("homogeneous", m, vectors, 4, out)
