"""qelm.linalg on Dask arrays chunked along their stack axes.

The matrix axes are put in one chunk (rechunked if they are not); every block
is a stack that one task hands to qelm.linalg, with a thread budget of 1 while
it runs, so that a worker's threads share the cores instead of each forking a
team. Functions with several results compute them in one task and slice them
apart lazily. eigvals and eig always give complex arrays here: a Dask array's
dtype is fixed before its values exist.
"""
import dask.array as da
import numpy as np

from . import linalg as _la
from . import serial_tasks
from ._core import real_type

__all__ = ["inv", "det", "solve", "cholesky", "qr", "lstsq", "eigh", "eigvalsh", "eigvals", "eig",
           "matmul", "lu_factor", "lu_solve", "cho_factor", "cho_solve"]


class _Task:
    """A block function run with a thread budget of 1 (picklable for workers)."""

    def __init__(self, fn, **kw):
        self.fn, self.kw = fn, kw

    def __call__(self, *blocks):
        with serial_tasks():
            return self.fn(*blocks, **self.kw)


def _stack(a, core=2):
    """a as a Dask array whose last `core` axes are one chunk each."""
    a = da.asarray(a)
    if any(len(a.chunks[i]) > 1 for i in range(a.ndim - core, a.ndim)):
        a = a.rechunk({i: -1 for i in range(a.ndim - core, a.ndim)})
    return a


def _like(b, a, core):
    """b rechunked so that its stack axes are chunked as a's."""
    b = da.asarray(b)
    stack = a.chunks[:a.ndim - 2]
    want = stack + tuple((s,) for s in b.shape[len(stack):])
    return b.rechunk(want) if b.chunks != want else b


def _dtype(*arrays):
    dt = real_type(*[np.empty(0, x.dtype) for x in arrays])
    return np.dtype(dt if dt is not None else np.float64)


def _cdtype(dt):
    return np.dtype(np.complex64 if dt == np.float32 else np.complex128)


def _map(fn, *arrays, chunks, dtype, drop=(), new=(), **kw):
    return da.map_blocks(_Task(fn, **kw), *arrays, chunks=chunks, dtype=dtype,
                         drop_axis=list(drop), new_axis=list(new) or None)


def _block(fn, out, *arrays, dtype, stack, new_axes=None, **kw):
    """blockwise over stack axes named by `stack`; `out` and each array's letters
    follow them (the matrix axes are one chunk, so nothing is contracted)."""
    pairs = []
    for x, letters in arrays:
        pairs += [x, stack + letters]
    return da.blockwise(_Task(fn, **kw), stack + out, *pairs, dtype=dtype, concatenate=True,
                        new_axes=new_axes)


def _letters(a):
    return "abcdefgh"[:a.ndim - 2]


def inv(a):
    a = _stack(a)
    return _map(_la.inv, a, chunks=a.chunks, dtype=_dtype(a))


def det(a):
    a = _stack(a)
    return _map(_la.det, a, chunks=a.chunks[:-2], dtype=_dtype(a), drop=(a.ndim - 2, a.ndim - 1))


def cholesky(a):
    a = _stack(a)
    return _map(_la.cholesky, a, chunks=a.chunks, dtype=_dtype(a))


def matmul(a, b):
    a = _stack(a)
    b = _like(_stack(b), a, 2)
    return _block(_la.matmul, "ik", (a, "ij"), (b, "jk"), dtype=_dtype(a, b), stack=_letters(a))


def _rhs(b, like):
    """Right-hand sides stacked as `like`: a stack of vectors (..., n) or of
    matrices (..., n, k); answers them and whether they are vectors."""
    b = da.asarray(b)
    vec = b.ndim == like.ndim - 1
    return _like(_stack(b, 1 if vec else 2), like, 1 if vec else 2), vec


def solve(a, b):
    """b a stack of vectors (..., n) or of matrices (..., n, k), stacked as a."""
    a = _stack(a)
    b, vec = _rhs(b, a)
    return _block(_solve_block, "i" if vec else "ik", (a, "ij"), (b, "i" if vec else "ik"),
                  dtype=_dtype(a, b), stack=_letters(a), vec=vec)


def _solve_block(a, b, vec):
    return _la.solve(a, b[..., None])[..., 0] if vec else _la.solve(a, b)


def eigvalsh(a, UPLO="L"):
    a = _stack(a)
    return _map(_la.eigvalsh, a, chunks=a.chunks[:-1], dtype=_dtype(a), drop=(a.ndim - 1,), UPLO=UPLO)


def _packed_rows(fn, a, extra, dtype, **kw):
    """One task per block giving (..., rows + extra, cols); the caller slices it."""
    chunks = a.chunks[:-2] + ((a.shape[-2] + extra,), a.chunks[-1])
    return _map(fn, a, chunks=chunks, dtype=dtype, **kw)


def _eigh_block(a, UPLO):
    w, v = _la.eigh(a, UPLO=UPLO)
    return np.concatenate([v, w[..., None, :]], axis=-2)


def eigh(a, UPLO="L"):
    a = _stack(a)
    n = a.shape[-1]
    p = _packed_rows(_eigh_block, a, 1, _dtype(a), UPLO=UPLO)
    return _la.EighResult(p[..., n, :], p[..., :n, :])


def eigvals(a):
    a = _stack(a)
    dt = _dtype(a)
    return _map(_eigvals_block, a, chunks=a.chunks[:-1], dtype=_cdtype(dt), drop=(a.ndim - 1,),
                ct=_cdtype(dt))


def _eigvals_block(a, ct):
    return _la.eigvals(a).astype(ct)


def _eig_block(a, ct):
    w, v = _la.eig(a)
    return np.concatenate([v.astype(ct), w.astype(ct)[..., None, :]], axis=-2)


def eig(a):
    a = _stack(a)
    n = a.shape[-1]
    ct = _cdtype(_dtype(a))
    p = _packed_rows(_eig_block, a, 1, ct, ct=ct)
    return _la.EigResult(p[..., n, :], p[..., :n, :])


def _qr_block(a):
    q, r = _la.qr(a)
    return np.concatenate([q, r], axis=-2)


def qr(a):
    """Reduced QR of a stack of tall or square matrices: (Q, R)."""
    a = _stack(a)
    m, n = a.shape[-2:]
    p = _packed_rows(_qr_block, a, n, _dtype(a))
    return _la.QRResult(p[..., :m, :], p[..., m:, :])


def _lstsq_block(a, b, vec, rcond):
    x, res, rank, s = _la.lstsq(a, b[..., None] if vec else b, rcond=rcond)
    count = a.shape[:-2]
    res = res if res.shape[-1] else np.full(count + (x.shape[-1],), np.nan, x.dtype)
    return np.concatenate([x.reshape(count + (-1,)), res, rank[..., None].astype(x.dtype), s], axis=-1)


def lstsq(a, b, rcond=None):
    """(x, residuals, rank, s) per object; residuals are NaN where numpy gives none."""
    a = _stack(a)
    b, vec = _rhs(b, a)
    m, n = a.shape[-2:]
    k = 1 if vec else b.shape[-1]
    width = n * k + k + 1 + n
    p = _block(_lstsq_block, "z", (a, "ij"), (b, "i" if vec else "ik"), dtype=_dtype(a, b),
               stack=_letters(a), new_axes={"z": width}, vec=vec, rcond=rcond)
    x = p[..., :n * k].reshape(a.shape[:-2] + ((n,) if vec else (n, k)))
    return x, p[..., n * k:n * k + k], p[..., n * k + k].astype(np.int64), p[..., n * k + k + 1:]


def _lu_block(a):
    lu, piv = _la.lu_factor(a)
    return np.concatenate([lu, piv[..., None, :].astype(lu.dtype)], axis=-2)


def lu_factor(a):
    a = _stack(a)
    n = a.shape[-1]
    p = _packed_rows(_lu_block, a, 1, _dtype(a))
    return p[..., :n, :], p[..., n, :].astype(np.int32)


def _lu_solve_block(lu, piv, b):
    return _la.lu_solve((lu, piv), b)


def lu_solve(lu_and_piv, b):
    lu, piv = lu_and_piv
    lu = _stack(lu)
    piv = _like(_stack(piv, 1), lu, 1)
    b, vec = _rhs(b, lu)
    return _block(_lu_solve_block, "i" if vec else "ik", (lu, "ij"), (piv, "i"), (b, "i" if vec else "ik"),
                  dtype=_dtype(lu, b), stack=_letters(lu))


def cho_factor(a, lower=False):
    a = _stack(a)
    return _map(_cho_factor_block, a, chunks=a.chunks, dtype=_dtype(a), lower=lower), lower


def _cho_factor_block(a, lower):
    return _la.cho_factor(a, lower=lower)[0]


def _cho_solve_block(c, b, lower):
    return _la.cho_solve((c, lower), b)


def cho_solve(c_and_lower, b):
    c, lower = c_and_lower
    c = _stack(c)
    b, vec = _rhs(b, c)
    return _block(_cho_solve_block, "i" if vec else "ik", (c, "ij"), (b, "i" if vec else "ik"),
                  dtype=_dtype(c, b), stack=_letters(c), lower=lower)
