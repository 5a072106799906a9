#!/usr/bin/env python3
"""Ten million 4x4 systems on a Dask LocalCluster of 2 worker processes.

The systems are made where they are solved (each worker draws its own chunks),
qelm.dask.solve runs one task per chunk with a thread budget of 1, and only
the largest residual per chunk comes back.

    PYTHONPATH=build/release/python /usr/bin/python3 examples/dask_solve.py [count]
"""
import sys
import time

import dask.array as da
import numpy as np
from distributed import Client, LocalCluster

import qelm.dask as qd


def main():
    count = int(float(sys.argv[1])) if len(sys.argv) > 1 else 10_000_000
    chunk = 500_000
    with LocalCluster(n_workers=2, threads_per_worker=1, processes=True, dashboard_address=None) as cluster, \
            Client(cluster) as client:
        print("cluster:", client)
        rs = da.random.RandomState(7)
        a = rs.standard_normal((count, 4, 4), chunks=(chunk, 4, 4)).astype(np.float32) + 4 * np.eye(4, dtype=np.float32)
        b = rs.standard_normal((count, 4), chunks=(chunk, 4)).astype(np.float32)
        x = qd.solve(a, b)
        # |A x - b| against |A| |x|, object by object
        r = (da.abs(da.einsum("nij,nj->ni", a, x) - b).max(axis=1)
             / (da.abs(a).max(axis=(1, 2)) * da.abs(x).max(axis=1))).max()
        t = time.perf_counter()
        worst = float(r.compute())
        took = time.perf_counter() - t
        print("%d systems (float32) in %.1f s: %.1f M systems/s, largest |A x - b| / (|A| |x|) = %.1e"
              % (count, took, count / took / 1e6, worst))
        if not worst < 100 * np.finfo(np.float32).eps:
            raise SystemExit("residual too large")


if __name__ == "__main__":
    main()
