import numpy as np
import pytest
from hypothesis import settings


def well_conditioned(rng, shape, dtype, n):
    """Random matrices with a dominant diagonal: condition numbers near 10."""
    a = rng.standard_normal(shape + (n, n)) + 2.5 * np.sqrt(n) * np.eye(n)
    return a.astype(dtype)


def spd(rng, shape, dtype, n):
    a = rng.standard_normal(shape + (n, n))
    return (a @ np.swapaxes(a, -1, -2) + n * np.eye(n)).astype(dtype)


def tol(dtype):
    return dict(rtol=2e-3, atol=2e-3) if dtype == np.float32 else dict(rtol=1e-9, atol=1e-9)


@pytest.fixture
def rng():
    return np.random.default_rng(7)


# No example database in the source tree: every run draws afresh.
settings.register_profile("qelm", database=None)
settings.load_profile("qelm")
