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


def main():
    rng = np.random.default_rng(2024)
    a = rng.standard_normal((COUNT, 4, 4)) + 4 * np.eye(4)
    b = rng.standard_normal((COUNT, 4))
    print("qelm %s, %d threads, %d systems of order 4" % (qelm.version()[4], qelm.get_num_threads(), COUNT))
    for dtype in (np.float64, np.float32):
        a_, b_ = a.astype(dtype), b.astype(dtype)
        t = time.perf_counter()
        x = ql.solve(a_, b_)
        tq = time.perf_counter() - t
        t = time.perf_counter()
        xn = np.linalg.solve(a_, b_[..., None])[..., 0]
        tn = time.perf_counter() - t
        rq, rn = residual(a_, x, b_), residual(a_, xn, b_)
        print("%-7s qelm %7.1f ms  numpy %7.1f ms  (x%.1f)   residual qelm %.1e  numpy %.1e"
              % (np.dtype(dtype).name, tq * 1e3, tn * 1e3, tn / tq, rq, rn))
        limit = 100 * np.finfo(dtype).eps
        if not (rq <= limit and x.dtype == dtype):
            raise SystemExit("residual %.2e above %.2e" % (rq, limit))
    print("ok: every residual within 100 ulps of |A| |x|")


if __name__ == "__main__":
    main()
