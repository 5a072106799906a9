"""Vector algebra on stacks of vectors (..., n), through the library.

Thin numpy functions: the same stacking and dtype rules as the linalg module
(float32 stays float32, integers become float64), results in new arrays or
``out``; what the library does not take is numpy's.
"""
import numpy as np

from ._core import Result, reachable, real_type, run, take

__all__ = ["dot", "norm", "cross", "saxpy"]


def _pair(a, b):
    a, b = np.asarray(a), np.asarray(b)
    dt = real_type(a, b)
    if dt is None or not reachable(a, b, core=1) or a.shape[-1] != b.shape[-1]:
        return None
    try:
        stack = np.broadcast_shapes(a.shape[:-1], b.shape[:-1])
    except ValueError:
        return None
    n = a.shape[-1]
    return dt, stack, n, take(np.broadcast_to(a, stack + (n,)), dt, 1), take(np.broadcast_to(b, stack + (n,)), dt, 1)


def dot(a, b, out=None):
    """Inner products of paired vectors: (a * b).sum(-1)."""
    got = _pair(a, b)
    if got is None:
        r = np.einsum("...i,...i->...", a, b)
        return r if out is None else np.copyto(out, r) or out
    dt, stack, n, x, y = got
    res = Result(stack, dt, 0, out, packed=True)
    run("DotProduct", dt, [x, y, res.view if res.view is not None else res.array.reshape(1)], n)
    return res.value()


def norm(a, out=None):
    """Euclidean lengths of the vectors: numpy.linalg.norm(a, axis=-1)."""
    a = np.asarray(a)
    dt = real_type(a)
    if dt is None or not reachable(a, core=1):
        r = np.linalg.norm(a, axis=-1)
        return r if out is None else np.copyto(out, r) or out
    n = a.shape[-1]
    res = Result(a.shape[:-1], dt, 0, out, packed=True)
    run("L2Norm", dt, [take(a, dt, 1), res.view if res.view is not None else res.array.reshape(1)], n)
    return res.value()


def cross(a, b, out=None):
    """Cross products of paired 3-vectors: numpy.cross(a, b)."""
    got = _pair(a, b)
    if got is None or got[2] != 3:
        r = np.cross(a, b)
        return r if out is None else np.copyto(out, r) or out
    dt, stack, n, x, y = got
    res = Result(stack + (3,), dt, 1, out, avoid=(x, y))
    run("CrossProduct", dt, [x, y, res.view], 3)
    return res.value()


def saxpy(alpha, x, y, out=None):
    """alpha * x + y on stacks of vectors, alpha one number."""
    got = _pair(x, y)
    if got is None or np.ndim(alpha) != 0:
        r = np.asarray(alpha) * np.asarray(x) + np.asarray(y)
        return r if out is None else np.copyto(out, r) or out
    dt, stack, n, xs, ys = got
    res = Result(stack + (n,), dt, 1, out, avoid=(xs, ys))
    run("Saxpy", dt, [xs, ys, res.view], n, val=float(alpha))
    return res.value()
