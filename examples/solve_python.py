#!/usr/bin/env python3
"""A million 4x4 systems with qelm.linalg.solve, checked against numpy.linalg.solve.

    PYTHONPATH=build/release/python /usr/bin/python3 examples/solve_python.py
"""
import time

import numpy as np

import qelm
import qelm.linalg as ql

COUNT = 1_000_000


def residual(a, x, b):
    """Largest |A x - b| relative to |A| |x| over the stack."""
    r = np.einsum("nij,nj->ni", a, x) - b
    scale = np.abs(a).max(axis=(1, 2)) * np.abs(x).max(axis=1)
    return float((np.abs(r).max(axis=1) / scale).max())


def best_of(fn, runs=3):
    """The shortest of a few runs, in ms: the first run pays for fresh pages."""
    times = []
    for _ in range(runs):
        t = time.perf_counter()
        fn()
        times.append(time.perf_counter() - t)
    return 1e3 * min(times)


def main():
    rng = np.random.default_rng(2024)
    a = rng.standard_normal((COUNT, 4, 4)) + 4 * np.eye(4)
    b = rng.standard_normal((COUNT, 4))
    threads = qelm.get_num_threads()
    print("qelm %s, %d systems of order 4, best of 3 runs" % (qelm.version()[4], COUNT))
    for dtype in (np.float64, np.float32):
        a_, b_ = a.astype(dtype), b.astype(dtype)
        x = ql.solve(a_, b_)
        xn = np.linalg.solve(a_, b_[..., None])[..., 0]
        tq = best_of(lambda: ql.solve(a_, b_))
        with qelm.threads(1):
            t1 = best_of(lambda: ql.solve(a_, b_))
        tn = best_of(lambda: np.linalg.solve(a_, b_[..., None]))
        rq, rn = residual(a_, x, b_), residual(a_, xn, b_)
        print("%-7s qelm %6.1f ms (%d threads), %6.1f ms (1 thread)   numpy %6.1f ms   "
              "residual qelm %.1e  numpy %.1e" % (np.dtype(dtype).name, tq, threads, t1, tn, rq, rn))
        limit = 100 * np.finfo(dtype).eps
        if not (rq <= limit and x.dtype == dtype):
            raise SystemExit("residual %.2e above %.2e" % (rq, limit))
    print("ok: every residual within 100 ulps of |A| |x|")


if __name__ == "__main__":
    main()
