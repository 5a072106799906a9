"""Stacks as the library reads them, and the runner around the binding.

An array of shape (..., h, w) is handed over as it lies when its strides are
positive multiples of the element size and its stack axes fold into one
stride; a stack that does not fold, a broadcast (stride 0) or a foreign
element type is copied once. Negative strides, complex, empty and 0-d inputs
never get here: the callers hand them to numpy.
"""
import numpy as np

from . import _qelm

_INT31 = 2**31 - 1
NUMPY2 = int(np.__version__.split(".")[0]) >= 2


class LinAlgError(np.linalg.LinAlgError):
    """numpy.linalg.LinAlgError with the object it is about.

    ``index`` is the position of the first failing matrix in the stack (a
    tuple, empty for a single matrix); ``flat_index`` the same counted over the
    flattened stack."""

    def __init__(self, message, index=(), flat_index=0):
        super().__init__(message)
        self.index = index
        self.flat_index = flat_index


def real_type(*arrays):
    """numpy.linalg's result type for real inputs, or None for what only numpy takes."""
    double = False
    for a in arrays:
        k = a.dtype.kind
        if k in "biu":
            double = True
        elif k == "f" and a.dtype.itemsize in (4, 8):
            double |= a.dtype.itemsize == 8
        else:
            return None
    return np.float64 if double else np.float32


def reachable(*arrays, core=2):
    """Whether the library can take these arrays at all (else: numpy answers)."""
    for a in arrays:
        if a.ndim < core or a.size == 0:
            return False
        if any(s < 0 for n, s in zip(a.shape, a.strides) if n > 1):
            return False
    return True


def stack_view(a, core):
    """A view of shape (count,) + core shape with one stack stride, or None."""
    item = a.itemsize
    nd = a.ndim
    cshape = a.shape[nd - core:]
    cstr = []
    for n, s in zip(cshape, a.strides[nd - core:]):
        if n == 1:
            s = item
        if s <= 0 or s % item or s > _INT31:
            return None
        cstr.append(s)
    dims = [(n, s) for n, s in zip(a.shape[:nd - core], a.strides[:nd - core]) if n != 1]
    count = 1
    for n, _ in dims:
        count *= n
    if not dims:
        s0 = item
    else:
        for (n1, s1), (n2, s2) in zip(dims, dims[1:]):
            if s1 != s2 * n2:
                return None
        s0 = dims[-1][1]
        if s0 <= 0 or s0 % item or s0 > _INT31:
            return None
    return np.lib.stride_tricks.as_strided(a, (count,) + tuple(cshape), (s0,) + tuple(cstr))


def take(a, dtype, core=2):
    """The stack view of an input, copied once if it has to be."""
    if a.dtype != dtype:
        a = a.astype(dtype)
    v = stack_view(a, core)
    if v is None:
        v = stack_view(np.ascontiguousarray(a), core)
    return v


class Result:
    """A result array: new, or the caller's ``out`` when the library can write it
    where it lies (else a scratch array copied into ``out`` at the end).
    ``packed``: the library writes this result as one contiguous array."""

    def __init__(self, shape, dtype, core, out=None, avoid=(), packed=False):
        self.out = out
        self.array = None
        if out is not None:
            if not isinstance(out, np.ndarray) or out.shape != tuple(shape):
                raise ValueError("out has the wrong shape: %s, expected %s"
                                 % (getattr(out, "shape", None), tuple(shape)))
            if out.dtype != dtype:
                raise TypeError("out has dtype %s, expected %s" % (out.dtype, np.dtype(dtype)))
            if not out.flags.writeable:
                raise ValueError("output array is read-only")
            if reachable(out, core=core) and not any(np.may_share_memory(out, x) for x in avoid):
                v = stack_view(out, core)
                if v is not None and (not packed or v.flags.c_contiguous):
                    self.array, self.view = out, v
        if self.array is None:
            self.array = np.empty(shape, dtype)
            self.view = stack_view(self.array, core) if self.array.size else None

    def value(self):
        if self.out is not None and self.array is not self.out:
            np.copyto(self.out, self.array)
            return self.out
        return self.array


def run(family, dtype, operands, n, w=0, h=0, buffer=0, val=0.0, mark=-1):
    """Runs an export family on stack views; returns the objects it refused."""
    _, refused = _qelm.run(family, dtype == np.float64, list(operands), n, w, h, buffer, val, mark)
    return refused


def fix(what, dtype, operands, n):
    return _qelm.fix(what, dtype == np.float64, list(operands), n)


def answer(refused, stack, numpy_fn, inputs, outputs):
    """Objects the library refused, answered by numpy; numpy's own refusal of
    one of them raises LinAlgError with the first such object's index."""
    idx = np.asarray(sorted(refused), dtype=np.intp)
    try:
        res = numpy_fn(*[x[idx] for x in inputs])
    except np.linalg.LinAlgError:
        for i in idx:
            try:
                numpy_fn(*[x[i:i + 1] for x in inputs])
            except np.linalg.LinAlgError as e:
                where = tuple(int(j) for j in np.unravel_index(int(i), stack)) if stack else ()
                raise LinAlgError(str(e), where, int(i)) from None
        raise
    if not isinstance(res, tuple):
        res = (res,)
    for o, r in zip(outputs, res):
        if o is not None:
            o[idx] = r
    return res
