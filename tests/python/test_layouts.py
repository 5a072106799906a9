"""Views as they lie: transposed, stepped, columns of larger arrays (Hypothesis)."""
import numpy as np
from conftest import tol, well_conditioned
from hypothesis import given, settings, strategies as st

import qelm.linalg as ql
from qelm._core import take

FUNCTIONS = {
    "inv": (ql.inv, np.linalg.inv),
    "det": (ql.det, np.linalg.det),
    "solve": (lambda a: ql.solve(a, a[..., :1] * 2 + 1), lambda a: np.linalg.solve(a, a[..., :1] * 2 + 1)),
    "eigvals": (lambda a: np.sort_complex(ql.eigvals(a).astype(complex)),
                lambda a: np.sort_complex(np.linalg.eigvals(a).astype(complex))),
    "matmul": (lambda a: ql.matmul(a, a), lambda a: a @ a),
}


@st.composite
def layouts(draw):
    """A stack of n x n matrices as a view into a larger array."""
    n = draw(st.integers(1, 8))
    count = draw(st.integers(1, 6))
    dtype = draw(st.sampled_from([np.float32, np.float64]))
    step = draw(st.integers(1, 3))
    pad = draw(st.integers(0, 3))
    kind = draw(st.sampled_from(["transposed", "stepped", "column", "plain"]))
    base = well_conditioned(np.random.default_rng(draw(st.integers(0, 2**16))), (count * step,), dtype, n + pad)
    if kind == "column":     # one column of matrices inside wider rows
        big = np.zeros((count, n, (n + pad) * 2), dtype)
        big[:, :, 1:1 + n] = base[::step][:, :n, :n]
        return big[:, :, 1:1 + n]
    v = base[::step, :n, :n] if kind != "plain" else np.ascontiguousarray(base[::step, :n, :n])
    return np.swapaxes(v, -1, -2) if kind == "transposed" else v


@settings(max_examples=25, deadline=None)
@given(a=layouts(), name=st.sampled_from(sorted(FUNCTIONS)))
def test_views_answer_like_numpy(a, name):
    mine, theirs = FUNCTIONS[name]
    np.testing.assert_allclose(mine(a), theirs(a), **tol(a.dtype))


@settings(max_examples=20, deadline=None)
@given(a=layouts())
def test_views_are_not_copied(a):
    assert np.shares_memory(take(a, a.dtype), a)


def test_what_is_copied(rng):
    a = rng.standard_normal((4, 3, 3))
    assert not np.shares_memory(take(np.broadcast_to(a[0], (4, 3, 3)), a.dtype), a)   # stride 0
    assert not np.shares_memory(take(a.astype(np.float32), np.float64), a)              # element type
    four = np.swapaxes(rng.standard_normal((2, 3, 4, 4)), -1, -2)                       # folds: one stride
    assert np.shares_memory(take(four, four.dtype), four)
    odd = rng.standard_normal((3, 4, 4, 4))[:, :3]                                      # does not fold
    assert not np.shares_memory(take(odd, odd.dtype), odd)
    np.testing.assert_allclose(ql.inv(odd), np.linalg.inv(odd), rtol=1e-8)
