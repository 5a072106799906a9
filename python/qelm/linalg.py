"""numpy.linalg on real stacks of small matrices, through the library.

Each function takes what numpy.linalg's function of the same name takes and
answers with the same shapes, dtypes (float32 stays float32, integers become
float64), orderings and exceptions. What the library does not take (complex,
empty or 0-d arrays, negative strides, orders above ``MAX_ORDER``) is handed
to numpy. An object the library refuses while numpy answers it (a pivot below
the library's absolute tolerance, an eigenvalue product near zero...) is
answered by numpy for that object alone, the rest of the stack staying with
the library; numpy's own refusal raises :class:`qelm.LinAlgError`, which
names the first failing object.
"""
import collections
import warnings

import numpy as np

from . import get_num_threads
from ._core import NUMPY2, LinAlgError, Result, answer, fix, reachable, real_type, run, take

__all__ = ["inv", "det", "solve", "cholesky", "qr", "lstsq", "eigh", "eigvalsh", "eigvals", "eig",
           "matmul", "lu_factor", "lu_solve", "cho_factor", "cho_solve", "LinAlgError", "MAX_ORDER"]

# Above these orders numpy's blocked LAPACK routines win (the library's
# general inverse takes n**5 steps by design).
MAX_ORDER = 16
_MAX_INVERT = 10

EighResult = collections.namedtuple("EighResult", "eigenvalues eigenvectors")
EigResult = collections.namedtuple("EigResult", "eigenvalues eigenvectors")
QRResult = collections.namedtuple("QRResult", "Q R")

# Which export family answers which function, and the scratch it needs per call.
_FAMILIES = {
    "inv": ("Invert", lambda n: n * n + n),
    "det": ("Det", lambda n: n * n + n),
    "solve": ("LUDecomp", lambda n: 0),
    "cholesky": ("CholeskyDecomp", lambda n: 0),
    "eigvalsh": ("EigenValuesSym", lambda n: n * n),
    "eigh": ("EigenValuesVectorsSym", lambda n: n * n),
    "eigvals": ("EigenValues", lambda n: n * (n + 5)),
    "eig": ("EigenValuesVectorsLeft", lambda n: n * (3 * n + 5)),
}


def _square(a, limit=MAX_ORDER):
    """(dtype, n) when the library takes the stack a, else None."""
    if not isinstance(a, np.ndarray) or not reachable(a):
        return None
    dt = real_type(a)
    n = a.shape[-1]
    if dt is None or a.shape[-2] != n or n > limit:
        return None
    return dt, n


def _numpy(fn, out, *args, **kw):
    r = fn(*args, **kw)
    if out is not None:
        np.copyto(out, r)
        return out
    return r


def _family(name, a, dt, n, outputs, mark=-1):
    fam, buf = _FAMILIES[name]
    return run(fam, dt, [a] + outputs, n, buffer=buf(n), mark=mark)


# ---- inverse and determinant

def inv(a, out=None):
    """numpy.linalg.inv."""
    a = np.asarray(a)
    got = _square(a, _MAX_INVERT)
    if got is None:
        return _numpy(np.linalg.inv, out, a)
    dt, n = got
    src = take(a, dt)
    res = Result(a.shape, dt, 2, out, avoid=(a,))
    refused = _family("inv", src, dt, n, [res.view])
    if refused:
        answer(refused, a.shape[:-2], np.linalg.inv, [src], [res.view])
    return res.value()


def det(a, out=None):
    """numpy.linalg.det."""
    a = np.asarray(a)
    got = _square(a)
    if got is None:
        return _numpy(np.linalg.det, out, a)
    dt, n = got
    src = take(a, dt)
    res = Result(a.shape[:-2], dt, 0, out, packed=True)
    view = res.view if res.view is not None else res.array.reshape(1)
    _family("det", src, dt, n, [view])
    r = res.value()
    return r[()] if r.ndim == 0 and out is None else r


# ---- linear systems

def _vector_rhs(a, b):
    """numpy's reading of solve's b: a stack of vectors or of matrices."""
    if NUMPY2:
        return b.ndim == 1
    return b.ndim == a.ndim - 1


def _lu(src, dt, n, stack):
    """LU factors and row indices of a stack, and the objects the library refused."""
    count = src.shape[0]
    lu = np.empty((count, n, n), dt)
    idx = np.empty((count, n), np.int32)
    refused = run("LUDecomp", dt, [src, lu, idx], n)
    return lu, idx, refused


# Objects per step of a serial solve: the factors of one step stay in cache
# for their back-substitution, and no stack-sized scratch array is faulted in.
# With a team the stack goes in one step: every step would wake the team.
_SOLVE_BYTES = 1 << 20


def _lu_solve_steps(src, rhs, x, dt, n):
    count, k = src.shape[0], rhs.shape[-1]
    step = max(1, _SOLVE_BYTES // (n * n * np.dtype(dt).itemsize))
    if get_num_threads() > 1:
        step = count
    lu = np.empty((min(step, count), n, n), dt)
    idx = np.empty((min(step, count), n), np.int32)
    refused = []
    for first in range(0, count, step):
        last = min(first + step, count)
        f, i = lu[:last - first], idx[:last - first]
        refused += [first + r for r in run("LUDecomp", dt, [src[first:last], f, i], n)]
        for j in range(k):
            run("LUBackSubst", dt, [f, i, rhs[first:last, :, j], x[first:last, :, j]], n)
    return refused


def solve(a, b, out=None):
    """numpy.linalg.solve."""
    a = np.asarray(a)
    b = np.asarray(b)
    got = _square(a)
    if got is None or not reachable(b, core=1) or real_type(a, b) is None:
        return _numpy(np.linalg.solve, out, a, b)
    n = a.shape[-1]
    dt = real_type(a, b)
    vec = _vector_rhs(a, b)
    bm = b[..., None] if vec else b
    if bm.ndim < 2 or bm.shape[-2] != n:
        return _numpy(np.linalg.solve, out, a, b)
    try:
        stack = np.broadcast_shapes(a.shape[:-2], bm.shape[:-2])
    except ValueError:
        return _numpy(np.linalg.solve, out, a, b)
    k = bm.shape[-1]
    src = take(np.broadcast_to(a, stack + (n, n)), dt)
    rhs = take(np.broadcast_to(bm, stack + (n, k)), dt)
    shape = stack + ((n,) if vec else (n, k))
    res = Result(shape, dt, 1 if vec else 2, out, avoid=(a, b))
    x = res.view if not vec else res.view[..., None]
    refused = _lu_solve_steps(src, rhs, x, dt, n)
    if refused:
        answer(refused, stack, np.linalg.solve, [src, rhs], [x])
    return res.value()


def cholesky(a, upper=False, out=None):
    """numpy.linalg.cholesky: the lower factor (upper=True: its transpose)."""
    a = np.asarray(a)
    got = _square(a)
    if got is None:
        return _numpy(np.linalg.cholesky, out, a, **({"upper": True} if upper else {}))
    dt, n = got
    res = Result(a.shape, dt, 2, out, avoid=(a,))
    if upper:   # the lower factor of the upper triangle, written transposed
        src = take(np.swapaxes(a, -1, -2), dt)
        dst = np.swapaxes(res.view, -1, -2)
    else:
        src, dst = take(a, dt), res.view
    refused = _family("cholesky", src, dt, n, [dst])
    refused = sorted(set(refused) | set(fix("cholesky", dt, [dst], n)))
    if refused:
        answer(refused, a.shape[:-2], np.linalg.cholesky, [src], [dst])
    return res.value()


def qr(a, mode="reduced"):
    """numpy.linalg.qr for modes 'reduced', 'complete' and 'r' (rows >= columns)."""
    a = np.asarray(a)
    if (not isinstance(a, np.ndarray) or not reachable(a) or real_type(a) is None
            or mode not in ("reduced", "complete", "r") or a.shape[-2] < a.shape[-1]
            or a.shape[-2] > MAX_ORDER):
        return np.linalg.qr(a, mode=mode)
    dt = real_type(a)
    m, n = a.shape[-2:]
    stack = a.shape[:-2]
    src = take(a, dt)
    f = np.empty(src.shape, dt)
    refused = run("QRDecomp", dt, [src, f], 0, w=n, h=m, buffer=m)
    cols = m if mode == "complete" else n
    rows = m if mode == "complete" else n
    r = np.triu(f[:, :rows, :])
    q = None
    if mode != "r":
        q = _reflectors_to_q(f, m, n, cols)
    if refused:
        idx = np.asarray(refused)
        if mode == "r":
            r[idx] = np.linalg.qr(src[idx], mode="r")
        else:
            q[idx], r[idx] = np.linalg.qr(src[idx], mode=mode)
    r = r.reshape(stack + r.shape[1:])
    if mode == "r":
        return r
    return QRResult(q.reshape(stack + q.shape[1:]), r)


def _reflectors_to_q(f, m, n, cols):
    """Q from the factor's reflectors (head 1 implied, tails below the diagonal)."""
    count = f.shape[0]
    q = np.zeros((count, m, cols), f.dtype)
    q[:, np.arange(cols), np.arange(cols)] = 1
    steps = n - 1 if m == n else n
    for k in reversed(range(steps)):
        v = np.empty((count, m - k), f.dtype)
        v[:, 0] = 1
        v[:, 1:] = f[:, k + 1:, k]
        beta = -2 / np.einsum("ci,ci->c", v, v)
        w = np.einsum("ci,cij->cj", v, q[:, k:, :])
        q[:, k:, :] += (beta[:, None] * v)[:, :, None] * w[:, None, :]
    return q


def lstsq(a, b, rcond=None):
    """numpy.linalg.lstsq for matrices of full column rank (through QR), also on stacks.

    Returns (x, residuals, rank, s) as numpy does; on a stack rank and s have
    one entry per object. Rank-deficient objects are answered by numpy."""
    a = np.asarray(a)
    b = np.asarray(b)
    ok = (reachable(a) and reachable(b, core=1) and real_type(a, b) is not None
          and a.shape[-2] >= a.shape[-1] and a.shape[-2] <= MAX_ORDER)
    vec = b.ndim == a.ndim - 1
    if not ok or (a.ndim == 2 and b.ndim not in (1, 2)):
        if a.ndim == 2:
            return np.linalg.lstsq(a, b, rcond=rcond)
        ok = False
    if ok:
        bm = b[..., None] if vec else b
        ok = bm.shape[:-1] == a.shape[:-1]
    if not ok:
        if a.ndim == 2:
            return np.linalg.lstsq(a, b, rcond=rcond)
        raise np.linalg.LinAlgError("lstsq takes a stack (..., M, N) with b of shape (..., M) or (..., M, K)")
    dt = real_type(a, b)
    m, n = a.shape[-2:]
    stack = a.shape[:-2]
    k = bm.shape[-1]
    src = take(a, dt)
    rhs = take(bm, dt)
    f = np.empty(src.shape, dt)
    x = np.empty((src.shape[0], n, k), dt)
    refused = set(run("QRDecomp", dt, [src, f], 0, w=n, h=m, buffer=m))
    for j in range(k):
        run("QRBackSubst", dt, [f, rhs[:, :, j], x[:, :, j]], 0, w=n, h=m, buffer=m)
    s = np.linalg.svd(src, compute_uv=False)
    cut = (np.finfo(dt).eps * max(m, n) if rcond is None or rcond < 0 else rcond) * s[:, :1]
    rank = np.count_nonzero(s > cut, axis=-1)
    refused |= set(np.flatnonzero(rank < n).tolist())
    resid = None
    if m > n:
        resid = np.einsum("cij,cij->cj", *(2 * [np.einsum("cmn,cnk->cmk", src, x) - rhs]))
    for i in sorted(refused):
        xi, ri, rank[i], _ = np.linalg.lstsq(src[i], rhs[i], rcond=rcond)
        x[i] = xi
        if resid is not None:
            resid[i] = ri if ri.size else np.nan
    x = x.reshape(stack + (n, k))
    if vec:
        x = x[..., 0]
    if resid is None or (refused and np.any(rank < n)):
        resid = np.empty(stack + (0,), dt)
    else:
        resid = resid.reshape(stack + (k,))
    if a.ndim == 2:
        return x, resid, int(rank[0]), s[0]
    return x, resid, rank.reshape(stack), s.reshape(stack + (n,))


# ---- symmetric eigenproblems

def _symmetric(a, uplo):
    """a with the upper (uplo 'L') or lower triangle replaced by the mirror of the
    other, as LAPACK reads it; a itself when it is symmetric already."""
    if uplo not in ("L", "U"):
        raise ValueError("UPLO argument must be 'L' or 'U'")
    t = np.swapaxes(a, -1, -2)
    if np.array_equal(a, t):
        return a
    low = np.tril(a) if uplo == "L" else np.tril(t)
    return low + np.swapaxes(np.tril(low, -1), -1, -2)


def eigvalsh(a, UPLO="L", out=None):
    """numpy.linalg.eigvalsh: ascending eigenvalues."""
    a = np.asarray(a)
    got = _square(a)
    if got is None:
        return _numpy(np.linalg.eigvalsh, out, a, UPLO=UPLO)
    dt, n = got
    src = take(_symmetric(a, UPLO), dt)
    res = Result(a.shape[:-1], dt, 1, out, packed=True)
    refused = _family("eigvalsh", src, dt, n, [res.view])
    refused = sorted(set(refused) | set(fix("trace", dt, [src, res.view], n)))
    fix("sort", dt, [res.view], n)
    if refused:
        answer(refused, a.shape[:-2], np.linalg.eigvalsh, [src], [res.view])
    return res.value()


def eigh(a, UPLO="L"):
    """numpy.linalg.eigh: ascending eigenvalues and unit eigenvectors in columns."""
    a = np.asarray(a)
    got = _square(a)
    if got is None:
        return np.linalg.eigh(a, UPLO=UPLO)
    dt, n = got
    src = take(_symmetric(a, UPLO), dt)
    w = np.empty(a.shape[:-1], dt)
    v = np.empty(a.shape, dt)
    wv, vv = w.reshape(-1, n), v.reshape(-1, n, n)
    refused = _family("eigh", src, dt, n, [wv, vv])
    refused = sorted(set(refused) | set(fix("trace", dt, [src, wv], n)))
    fix("sort", dt, [wv, vv], n)
    if refused:
        answer(refused, a.shape[:-2], np.linalg.eigh, [src], [wv, vv])
    return EighResult(w, v)


# ---- general eigenproblems

def _general_values(a, dt, n, vectors):
    src = take(a, dt)
    count = src.shape[0]
    re = np.empty((count, n), dt)
    im = np.empty((count, n), dt)
    outs = [re, im]
    if vectors:
        vec = np.empty((count, n, n), dt)
        outs.append(vec)
    refused = _family("eig" if vectors else "eigvals", src, dt, n, outs, mark=3 if vectors else -1)
    refused = set(refused) | set(fix("trace", dt, [src, re, im], n))
    return src, outs, sorted(refused)


def _complex_type(dt):
    return np.complex64 if dt == np.float32 else np.complex128


def _complex(re, im, dt):
    w = np.empty(re.shape, _complex_type(dt))
    w.real, w.imag = re, im
    return w


def eigvals(a):
    """numpy.linalg.eigvals: real when every value is real, complex otherwise."""
    a = np.asarray(a)
    got = _square(a)
    if got is None:
        return np.linalg.eigvals(a)
    dt, n = got
    src, (re, im), refused = _general_values(a, dt, n, False)
    if refused:
        w = _complex(re, im, dt)
        answer(refused, a.shape[:-2], np.linalg.eigvals, [src], [w])
        if not w.imag.any():
            w = np.ascontiguousarray(w.real)
    elif not im.any():
        w = re
    else:
        w = _complex(re, im, dt)
    return w.reshape(a.shape[:-1])


def eig(a):
    """numpy.linalg.eig: eigenvalues and unit right eigenvectors in columns."""
    a = np.asarray(a)
    got = _square(a)
    if got is None:
        return np.linalg.eig(a)
    dt, n = got
    src, (re, im, vec), refused = _general_values(a, dt, n, True)
    ct = _complex_type(dt)
    w = _complex(re, im, dt)
    v = vec.astype(ct)
    # A pair (j, j+1) keeps the vector of re + i im as real and imaginary columns;
    # those are the left eigenvectors of the transposed matrix, so the right
    # eigenvector of A for that value is their conjugate.
    obj, col = np.nonzero(im > 0)
    if obj.size:
        vr, vi = vec[obj, :, col], vec[obj, :, col + 1]
        v[obj, :, col] = vr - 1j * vi
        v[obj, :, col + 1] = vr + 1j * vi
    if refused:
        answer(refused, a.shape[:-2], np.linalg.eig, [src], [w, v])
    if not w.imag.any():
        w, v = np.ascontiguousarray(w.real), np.ascontiguousarray(v.real)
    return EigResult(w.reshape(a.shape[:-1]), v.reshape(a.shape))


# ---- products

def matmul(a, b, out=None):
    """numpy.matmul on stacks of matrices (1-d operands are numpy's)."""
    a = np.asarray(a)
    b = np.asarray(b)
    dt = real_type(a, b)
    if (dt is None or not reachable(a) or not reachable(b) or a.shape[-1] != b.shape[-2]
            or max(a.shape[-2:] + b.shape[-1:]) > MAX_ORDER):
        return np.matmul(a, b, out=out) if out is not None else np.matmul(a, b)
    try:
        stack = np.broadcast_shapes(a.shape[:-2], b.shape[:-2])
    except ValueError:
        return np.matmul(a, b)
    h, n = a.shape[-2:]
    w = b.shape[-1]
    s1 = take(np.broadcast_to(a, stack + (h, n)), dt)
    s2 = take(np.broadcast_to(b, stack + (n, w)), dt)
    res = Result(stack + (h, w), dt, 2, out, avoid=(a, b))
    run("Mul", dt, [s1, s2, res.view], n, w=w, h=h)
    return res.value()


# ---- factor pairs in the manner of scipy.linalg

def lu_factor(a, overwrite_a=False, check_finite=True):
    """scipy.linalg.lu_factor on a stack: (lu, piv), rows of lu in pivot order,
    piv[k] the row exchanged with row k (0-based), so that P A = L U."""
    a = np.asarray(a)
    if check_finite and not np.isfinite(a).all():
        raise ValueError("array must not contain infs or NaNs")
    got = _square(a)
    if got is None:
        if a.ndim < 2 or a.shape[-1] != a.shape[-2]:
            raise ValueError("expected square matrix")
        got = (real_type(a) or np.result_type(a, np.float64), a.shape[-1])
        lu, piv = _lu_numpy(a.reshape((-1,) + a.shape[-2:]).astype(got[0]))
        return lu.reshape(a.shape), piv.reshape(a.shape[:-1])
    dt, n = got
    src = take(a, dt)
    lu, idx, refused = _lu(src, dt, n, a.shape[:-2])
    rows = np.take_along_axis(lu, idx[:, :, None].astype(np.intp), axis=1)
    piv = _perm_to_swaps(idx)
    if refused:
        r = np.asarray(refused)
        rows[r], piv[r] = _lu_numpy(src[r])
    return rows.reshape(a.shape), piv.reshape(a.shape[:-1])


def _perm_to_swaps(perm):
    """The row exchanges (LAPACK's ipiv, 0-based) that produce a permutation."""
    count, n = perm.shape
    at = np.arange(count)
    cur = np.tile(np.arange(n, dtype=np.int32), (count, 1))
    pos = cur.copy()
    piv = np.empty((count, n), np.int32)
    for k in range(n):
        j = pos[at, perm[:, k]]
        piv[:, k] = j
        x, y = cur[at, k].copy(), cur[at, j].copy()
        cur[at, k], cur[at, j] = y, x
        pos[at, y], pos[at, x] = k, j
    return piv


def _lu_numpy(a):
    """Partial-pivoting LU of a stack in numpy, for objects the library refuses."""
    lu = np.array(a, copy=True)
    count, n, _ = lu.shape
    at = np.arange(count)
    piv = np.empty((count, n), np.int32)
    for k in range(n):
        p = k + np.argmax(np.abs(lu[:, k:, k]), axis=1)
        piv[:, k] = p
        rk, rp = lu[at, k].copy(), lu[at, p].copy()
        lu[at, k], lu[at, p] = rp, rk
        d = lu[:, k, k]
        zero = d == 0
        if zero.any():
            warnings.warn("Diagonal number %d is exactly zero. Singular matrix." % (k + 1),
                          RuntimeWarning, stacklevel=3)
        with np.errstate(divide="ignore", invalid="ignore"):
            m = np.where(zero[:, None], 0, lu[:, k + 1:, k] / np.where(zero, 1, d)[:, None])
        lu[:, k + 1:, k] = m
        lu[:, k + 1:, k + 1:] -= m[:, :, None] * lu[:, k, None, k + 1:]
    return lu, piv


def lu_solve(lu_and_piv, b, trans=0, overwrite_b=False, check_finite=True):
    """scipy.linalg.lu_solve on stacks: b (..., n) or (..., n, k)."""
    lu, piv = lu_and_piv
    lu = np.asarray(lu)
    piv = np.asarray(piv)
    b = np.asarray(b)
    n = lu.shape[-1]
    vec = b.ndim == lu.ndim - 1
    bm = b[..., None] if vec else b
    dt = real_type(lu, b) or np.float64
    stack = lu.shape[:-2]
    count = int(np.prod(stack, dtype=np.int64))
    perm = _swaps_to_perm(piv.reshape(count, n))
    if trans:
        a = _lu_rebuild(lu.reshape(count, n, n).astype(dt), perm)
        x = np.linalg.solve(np.swapaxes(a, -1, -2), bm.reshape(count, n, -1).astype(dt))
        x = x.reshape(bm.shape)
        return x[..., 0] if vec else x
    # lu's rows stand in pivot order: the right-hand sides are put in that
    # order too, and the factors read with the identity for their row index.
    src = take(lu, dt)
    rhs = take(np.broadcast_to(bm, stack + bm.shape[-2:]), dt, 2)
    rhs = np.take_along_axis(rhs, perm[:, :, None].astype(np.intp), axis=1)
    rows = np.tile(np.arange(n, dtype=np.int32), (count, 1))
    k = rhs.shape[-1]
    x = np.empty((count, n, k), dt)
    for j in range(k):
        run("LUBackSubst", dt, [src, rows, rhs[:, :, j], x[:, :, j]], n)
    x = x.reshape(stack + (n, k))
    return x[..., 0] if vec else x


def _swaps_to_perm(piv):
    count, n = piv.shape
    at = np.arange(count)
    perm = np.tile(np.arange(n, dtype=np.int32), (count, 1))
    for k in range(n):
        j = piv[:, k]
        x, y = perm[at, k].copy(), perm[at, j].copy()
        perm[at, k], perm[at, j] = y, x
    return perm


def _lu_rebuild(lu, perm):
    low = np.tril(lu, -1) + np.eye(lu.shape[-1], dtype=lu.dtype)
    pa = low @ np.triu(lu)
    a = np.empty_like(pa)
    np.put_along_axis(a, perm[:, :, None].astype(np.intp), pa, axis=1)
    return a


def cho_factor(a, lower=False, overwrite_a=False, check_finite=True):
    """scipy.linalg.cho_factor on a stack: (c, lower), the factor in the chosen
    triangle of c, the other triangle holding a's entries."""
    a = np.asarray(a)
    if check_finite and not np.isfinite(a).all():
        raise ValueError("array must not contain infs or NaNs")
    got = _square(a)
    dt = got[0] if got else (real_type(a) or np.float64)
    c = np.array(a, dtype=dt, order="C", copy=True)
    if a.ndim < 2 or a.size == 0 or a.shape[-1] != a.shape[-2]:
        raise ValueError("expected square matrix")
    n = a.shape[-1]
    view = take(c, dt)
    f = view if lower else np.swapaxes(view, -1, -2)
    refused = run("CholeskyDecomp", dt, [f, f], n)
    refused = sorted(set(refused) | set(fix("reciprocal_diagonal", dt, [f], n)))
    if refused:
        base = take(np.asarray(a, dtype=dt), dt)
        (low,) = answer(refused, a.shape[:-2], np.linalg.cholesky,
                        [base if lower else np.swapaxes(base, -1, -2)], [None])
        keep = np.tril(np.ones((n, n), bool))
        for t, i in enumerate(sorted(refused)):
            f[i][keep] = low[t][keep]
    return c, lower


def cho_solve(c_and_lower, b, overwrite_b=False, check_finite=True):
    """scipy.linalg.cho_solve on stacks: b (..., n) or (..., n, k)."""
    c, lower = c_and_lower
    c = np.asarray(c)
    b = np.asarray(b)
    n = c.shape[-1]
    dt = real_type(c, b) or np.float64
    vec = b.ndim == c.ndim - 1
    bm = b[..., None] if vec else b
    stack = c.shape[:-2]
    f = np.array(c, dtype=dt, order="C", copy=True).reshape((-1, n, n))
    if not lower:
        f = np.swapaxes(f, -1, -2)
    fix("reciprocal_diagonal", dt, [f], n)
    rhs = take(np.broadcast_to(bm, stack + bm.shape[-2:]), dt)
    k = rhs.shape[-1]
    x = np.empty((f.shape[0], n, k), dt)
    for j in range(k):
        run("CholeskyBackSubst", dt, [f, rhs[:, :, j], x[:, :, j]], n)
    x = x.reshape(stack + (n, k))
    return x[..., 0] if vec else x
