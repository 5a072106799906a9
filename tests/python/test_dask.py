"""qelm.dask: block functions against numpy, and a LocalCluster round trip."""
import dask
import dask.array as da
import numpy as np
import pytest
from conftest import spd, well_conditioned

import qelm.dask as qd

CASES = {  # name: (qelm.dask call, numpy answer)
    "inv": (qd.inv, np.linalg.inv),
    "det": (qd.det, np.linalg.det),
    "cholesky": (qd.cholesky, np.linalg.cholesky),
    "eigvalsh": (qd.eigvalsh, np.linalg.eigvalsh),
    "eigh": (lambda a: qd.eigh(a)[0], np.linalg.eigvalsh),
    "eigvals": (lambda a: qd.eigvals(a).real.max(-1), lambda a: np.linalg.eigvals(a).real.max(-1)),
    "solve": (lambda a: qd.solve(a, a[..., 0]), lambda a: np.linalg.solve(a, a[..., 0:1])[..., 0]),
    "matmul": (lambda a: qd.matmul(a, a), lambda a: a @ a),
    "qr": (lambda a: da.matmul(*qd.qr(a)), lambda a: a),
    "lu": (lambda a: qd.lu_solve(qd.lu_factor(a), a[..., 1]), lambda a: np.linalg.solve(a, a[..., 1:2])[..., 0]),
    "cho": (lambda a: qd.cho_solve(qd.cho_factor(a), a[..., 1]), lambda a: np.linalg.solve(a, a[..., 1:2])[..., 0]),
    "lstsq": (lambda a: qd.lstsq(a, a[..., 1])[0], lambda a: np.linalg.solve(a, a[..., 1:2])[..., 0]),
}


@pytest.mark.parametrize("name", CASES)
def test_blocks(name, rng):
    a = spd(rng, (40, 3), np.float64, 4)
    mine, theirs = CASES[name]
    x = da.from_array(a, chunks=(16, 3, 2, 4))          # a matrix axis split: rechunked
    got = mine(x)
    with dask.config.set(scheduler="threads"):
        np.testing.assert_allclose(got.compute(), theirs(a), rtol=1e-8, atol=1e-10)


def test_local_cluster_round_trip(rng):
    distributed = pytest.importorskip("distributed")
    a = well_conditioned(rng, (20000,), np.float32, 4)
    b = rng.standard_normal((20000, 4)).astype(np.float32)
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True,
                                  dashboard_address=None) as cluster, distributed.Client(cluster):
        x = qd.solve(da.from_array(a, chunks=(5000, 4, 4)), da.from_array(b, chunks=(5000, 4))).compute()
    assert x.dtype == np.float32
    np.testing.assert_allclose(np.einsum("nij,nj->ni", a, x), b, rtol=1e-3, atol=1e-4)
