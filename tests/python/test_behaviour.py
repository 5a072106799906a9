"""Exceptions and failing indices, what goes to numpy, out=, thread budgets."""
import warnings

import numpy as np
import pytest
from conftest import spd, well_conditioned

import qelm
import qelm.linalg as ql


def singular_at(rng, where, n=4, dtype=np.float64, stack=(3, 5)):
    a = well_conditioned(rng, stack, dtype, n)
    a[where] = 1.0
    return a


REFUSALS = [  # function, input maker, numpy's message
    (ql.inv, lambda r, w, n: singular_at(r, w, n), "Singular matrix"),
    (lambda a: ql.solve(a, a[..., 0]), lambda r, w, n: singular_at(r, w, n), "Singular matrix"),
    (ql.cholesky, lambda r, w, n: np.where(np.arange(15).reshape(3, 5)[..., None, None] == 5 * w[0] + w[1],
                                         -spd(r, (3, 5), np.float64, n), spd(r, (3, 5), np.float64, n)),
     "positive definite"),
]


@pytest.mark.parametrize("fn,make,message", REFUSALS)
@pytest.mark.parametrize("n", [2, 4, 7])
@pytest.mark.parametrize("threads", [1, 2])
def test_first_failing_index(fn, make, message, n, threads, rng):
    a = make(rng, (1, 3), n)
    a[2, 4] = a[1, 3]          # a second failure after the first
    with qelm.threads(threads), pytest.raises(np.linalg.LinAlgError, match=message) as e:
        fn(a)
    assert isinstance(e.value, qelm.LinAlgError)
    assert e.value.index == (1, 3) and e.value.flat_index == 8


def test_failure_in_a_large_parallel_stack(rng):
    a = well_conditioned(rng, (5000,), np.float32, 4)
    a[3777] = 0
    with qelm.threads(2), pytest.raises(qelm.LinAlgError) as e:
        ql.inv(a)
    assert e.value.index == (3777,)


def _solve(f):
    return lambda a: f(a, a[..., 0:1])[..., 0]


def _sorted(f):
    return lambda a: np.sort(f(a))


ANSWERED_LIKE_NUMPY = {  # objects the library refuses and numpy answers: qelm, numpy, input
    "tiny 2x2 float32 (general pivot tolerance)":
        (ql.inv, np.linalg.inv, lambda r: well_conditioned(r, (6,), np.float32, 2) * 1e-5),
    "tiny 8x8 float32 solve":
        (_solve(ql.solve), _solve(np.linalg.solve), lambda r: well_conditioned(r, (6,), np.float32, 8) * 1e-6),
    "zero eigenvalue (eigvalsh)":
        (ql.eigvalsh, np.linalg.eigvalsh, lambda r: np.array([[[2., 1, 0], [1, 2, 0], [0, 0, 0]]] * 3)),
    "zero eigenvalue 2x2 (eigh)":
        (lambda a: ql.eigh(a)[0], np.linalg.eigvalsh, lambda r: np.array([[[1., 1], [1, 1]]] * 3)),
    "small float32 eigenvalues":
        (ql.eigvalsh, np.linalg.eigvalsh, lambda r: spd(r, (4,), np.float32, 3) * 1e-3),
    "equal diagonal, real pair":
        (_sorted(ql.eigvals), _sorted(np.linalg.eigvals), lambda r: np.array([[[1., 2], [2, 1]], [[3., 0], [0, 3]]])),
    "real pair in a larger matrix":
        (_sorted(ql.eigvals), _sorted(np.linalg.eigvals), lambda r: np.array([[[1., 2, 0], [2, 1, 0], [0, 0, 5]]])),
    "column below tolerance (qr)":
        (lambda a: np.abs(ql.qr(a)[1]), lambda a: np.abs(np.linalg.qr(a)[1]),
         lambda r: well_conditioned(r, (3,), np.float32, 3) * 1e-4),
}


@pytest.mark.parametrize("case", ANSWERED_LIKE_NUMPY)
def test_refused_objects_answered_like_numpy(case, rng):
    mine, theirs, make = ANSWERED_LIKE_NUMPY[case]
    a = make(rng)
    got, want = mine(a), theirs(a)
    assert got.dtype == want.dtype
    np.testing.assert_allclose(got, want, rtol=2e-3, atol=1e-6 * np.abs(want).max())


HANDED_TO_NUMPY = {
    "complex": np.array([[[1 + 1j, 2], [3, 4]]]),
    "empty stack": np.zeros((0, 3, 3)),
    "empty matrices": np.zeros((2, 0, 0)),
    "negative strides": np.arange(18.0).reshape(2, 3, 3)[:, ::-1] + 5 * np.eye(3),
    "float16": np.eye(3, dtype=np.float16),
    "not square": np.ones((2, 3, 4)),
    "0-d": np.float64(3.0),
}


@pytest.mark.parametrize("case", HANDED_TO_NUMPY)
@pytest.mark.parametrize("name", ["inv", "det", "eigvals", "cholesky"])
def test_handed_to_numpy(case, name):
    a = HANDED_TO_NUMPY[case]
    try:
        want = getattr(np.linalg, name)(a)
    except Exception as e:
        with pytest.raises(type(e)):
            getattr(ql, name)(a)
        return
    got = getattr(ql, name)(a)
    assert got.dtype == want.dtype and got.shape == want.shape
    np.testing.assert_allclose(got, want)


@pytest.mark.parametrize("layout", ["C", "F", "strided", "overlapping"])
@pytest.mark.parametrize("name", ["inv", "cholesky", "matmul"])
def test_out(layout, name, rng):
    a = spd(rng, (6,), np.float64, 4)
    fn = {"inv": ql.inv, "cholesky": ql.cholesky, "matmul": lambda x, out: ql.matmul(x, x, out=out)}[name]
    want = {"inv": np.linalg.inv, "cholesky": np.linalg.cholesky, "matmul": lambda x: x @ x}[name](a)
    out = {"C": np.empty_like(a), "F": np.empty(a.shape[::-1]).T, "strided": np.empty((12, 4, 4))[::2],
           "overlapping": a}[layout]
    r = fn(a, out=out)
    assert r is out
    np.testing.assert_allclose(out, want, rtol=1e-10, atol=1e-12)


def test_out_checked(rng):
    a = spd(rng, (6,), np.float64, 4)
    with pytest.raises(ValueError):
        ql.inv(a, out=np.empty((5, 4, 4)))
    with pytest.raises(TypeError):
        ql.inv(a, out=np.empty((6, 4, 4), np.float32))
    d = np.empty(6)
    assert ql.det(a, out=d) is d


def test_thread_budget(rng):
    a = well_conditioned(rng, (20000,), np.float64, 4)
    qelm.set_num_threads(1)
    assert qelm.get_num_threads() == 1
    one = ql.inv(a)
    with qelm.threads(2):
        assert 1 <= qelm.get_num_threads() <= 2          # cut to the usable processors
        two = ql.inv(a)
    assert qelm.get_num_threads() == 1
    qelm.set_num_threads(0)
    np.testing.assert_array_equal(one, two)
    with qelm.serial_tasks():
        assert qelm.get_num_threads() == 1


def test_vector_and_geometry(rng):
    from qelm import geometry, vector
    x, y = rng.standard_normal((2, 50, 3)).astype(np.float32)
    np.testing.assert_allclose(vector.dot(x, y), (x * y).sum(-1), rtol=1e-5, atol=1e-6)
    np.testing.assert_allclose(vector.norm(x[:, :2]), np.linalg.norm(x[:, :2], axis=-1), rtol=1e-5)
    np.testing.assert_allclose(vector.cross(x, y[::-1]), np.cross(x, y[::-1]), rtol=1e-5, atol=1e-6)
    np.testing.assert_allclose(vector.saxpy(2.5, x, y), 2.5 * x + y, rtol=1e-6)
    m = rng.standard_normal((4, 4)).astype(np.float32)
    m[:, 3] = [0, 0, 0, 1]
    h = np.concatenate([x, np.ones((50, 1), np.float32)], axis=-1) @ m
    np.testing.assert_allclose(geometry.transform_points(m, x), h[:, :3] / h[:, 3:], rtol=1e-4, atol=1e-5)
    np.testing.assert_allclose(geometry.transform_normals(m, x), x @ m[:3, :3], rtol=1e-4, atol=1e-5)
    np.testing.assert_allclose(geometry.transform(m, h[::2]), h[::2] @ m, rtol=1e-4, atol=1e-4)


@pytest.mark.parametrize("name", ["inv", "det", "cholesky", "eigvalsh", "eigvals", "solve"])
def test_nan_like_numpy(name):
    a = np.stack([np.eye(3) * 2] * 3)
    a[1, 1, 1] = np.nan
    fn = {"solve": lambda x, m: m.solve(x, x[..., 0])}.get(name, lambda x, m: getattr(m, name)(x))
    try:
        want = fn(a, np.linalg)
    except np.linalg.LinAlgError:
        with pytest.raises(np.linalg.LinAlgError):
            fn(a, ql)
        return
    np.testing.assert_allclose(fn(a, ql), want, equal_nan=True)
