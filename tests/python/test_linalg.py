"""qelm.linalg against numpy.linalg: every function, both dtypes, sizes 1..8."""
import numpy as np
import pytest
from conftest import spd, tol, well_conditioned

import qelm
import qelm.linalg as ql

SIZES = range(1, 9)


def pivoting(rng, shape, dtype, n):
    """Well conditioned, rows reversed: every elimination has to exchange rows."""
    return well_conditioned(rng, shape, dtype, n)[..., ::-1, :].copy()

DTYPES = [np.float32, np.float64]
STACK = (3, 5)


def close(x, y, dtype):
    np.testing.assert_allclose(x, y, **tol(dtype))


def check_eig(a, w, v, dtype):
    """A v = v w column by column, unit columns."""
    a = a.astype(np.complex128)
    close(a @ v, v * w[..., None, :], dtype)
    close(np.linalg.norm(v, axis=-2), 1.0, dtype)


def same_values(x, y, dtype):
    key = lambda z: np.sort_complex(np.round(z.astype(np.complex128), 3))
    close(key(x), key(y), dtype)


# name: (input maker, check of qelm's answer against numpy's)
CASES = {
    "inv": (pivoting, lambda a, dt: close(ql.inv(a), np.linalg.inv(a), dt)),
    "det": (well_conditioned, lambda a, dt: close(ql.det(a), np.linalg.det(a), dt)),
    "solve_vec": (pivoting, lambda a, dt: close(
        ql.solve(a, a[..., 0, :] + 1), np.linalg.solve(a, (a[..., 0, :] + 1)[..., None])[..., 0], dt)),
    "solve_mat": (pivoting, lambda a, dt: close(ql.solve(a, a[..., :2]), np.linalg.solve(a, a[..., :2]), dt)),
    "cholesky": (spd, lambda a, dt: close(ql.cholesky(a), np.linalg.cholesky(a), dt)),
    "eigvalsh": (spd, lambda a, dt: close(ql.eigvalsh(a), np.linalg.eigvalsh(a), dt)),
    "eigh": (spd, lambda a, dt: (close(ql.eigh(a)[0], np.linalg.eigh(a)[0], dt), check_eig(a, *ql.eigh(a), dt))),
    "eigvals": (well_conditioned, lambda a, dt: same_values(ql.eigvals(a), np.linalg.eigvals(a), dt)),
    "eig": (well_conditioned, lambda a, dt: (same_values(ql.eig(a)[0], np.linalg.eig(a)[0], dt),
                                            check_eig(a, *ql.eig(a), dt))),
    "qr": (well_conditioned, lambda a, dt: (close(np.matmul(*ql.qr(a)), a, dt),
                                           close(np.abs(ql.qr(a, mode="r")), np.abs(np.linalg.qr(a, mode="r")), dt))),
    "matmul": (well_conditioned, lambda a, dt: close(ql.matmul(a, np.swapaxes(a, -1, -2)), a @ np.swapaxes(a, -1, -2), dt)),
    "lu": (pivoting, lambda a, dt: close(ql.lu_solve(ql.lu_factor(a), a[..., -1]), np.linalg.solve(a, a[..., -1:])[..., 0], dt)),
    "cho": (spd, lambda a, dt: close(ql.cho_solve(ql.cho_factor(a), a[..., :2]), np.linalg.solve(a, a[..., :2]), dt)),
}


@pytest.mark.parametrize("name", CASES)
@pytest.mark.parametrize("dtype", DTYPES)
@pytest.mark.parametrize("n", SIZES)
def test_against_numpy(name, dtype, n, rng):
    make, check = CASES[name]
    a = make(rng, STACK, dtype, n)
    check(a, dtype)


@pytest.mark.parametrize("fn", [ql.inv, ql.det, ql.cholesky, ql.eigvalsh, ql.eigvals, lambda a: ql.eigh(a)[0],
                                lambda a: ql.eig(a)[1], lambda a: ql.qr(a)[1], lambda a: ql.solve(a, a[..., 0])])
@pytest.mark.parametrize("dtype", [np.float32, np.float64, np.int64])
def test_dtypes(fn, dtype, rng):
    a = spd(rng, (4,), np.float64, 3).round().astype(dtype)
    want = np.float32 if dtype == np.float32 else np.float64
    assert fn(a).dtype in (want, np.result_type(want, np.complex64))


def test_lstsq(rng):
    for dt in DTYPES:
        a = rng.standard_normal((6, 7, 4)).astype(dt)
        b = rng.standard_normal((6, 7)).astype(dt)
        x, res, rank, s = ql.lstsq(a, b)
        for i in range(6):
            xi, ri, ki, si = np.linalg.lstsq(a[i], b[i], rcond=None)
            close(x[i], xi, dt)
            close(res[i], ri[0], dt)
            close(s[i], si, dt)
            assert rank[i] == ki
        x2, r2, k2, s2 = ql.lstsq(a[0], b[0][:, None])       # one matrix: numpy's own return kinds
        assert x2.shape == (4, 1) and r2.shape == (1,) and isinstance(k2, int) and s2.shape == (4,)


def test_lu_factor_layout(rng):
    """scipy's convention: rows of lu in pivot order, piv the LAPACK exchanges."""
    a = pivoting(rng, (10,), np.float64, 5)
    lu, piv = ql.lu_factor(a)
    for i in range(10):
        pa = a[i].copy()
        for k, p in enumerate(piv[i]):
            pa[[k, p]] = pa[[p, k]]
        close((np.tril(lu[i], -1) + np.eye(5)) @ np.triu(lu[i]), pa, np.float64)


def test_cho_factor_triangles(rng):
    a = spd(rng, (4,), np.float64, 4)
    for lower in (True, False):
        c, low = ql.cho_factor(a, lower=lower)
        f = np.tril(c) if lower else np.swapaxes(np.triu(c), -1, -2)
        close(f, np.linalg.cholesky(a), np.float64)
        other = np.triu(c, 1) if lower else np.tril(c, -1)
        close(other, np.triu(a, 1) if lower else np.tril(a, -1), np.float64)
