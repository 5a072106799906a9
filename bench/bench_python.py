#!/usr/bin/env python3
"""qelm.linalg against numpy.linalg on stacks of 1e5 small matrices, one thread.

Writes bench/results/python.md (median times and ratios) and
bench/results/python.png. Run from the repository with the package importable:
    PYTHONPATH=build/release/python /usr/bin/python3 bench/bench_python.py
"""
import os

for var in ("OMP_NUM_THREADS", "OPENBLAS_NUM_THREADS", "MKL_NUM_THREADS"):
    os.environ[var] = "1"

import argparse  # noqa: E402
import time  # noqa: E402

import numpy as np  # noqa: E402

import qelm  # noqa: E402
import qelm.linalg as ql  # noqa: E402

COUNT = 100_000
SIZES = (3, 4, 6)
DTYPES = (np.float32, np.float64)


def inputs(n, dtype, rng):
    a = rng.standard_normal((COUNT, n, n))
    s = a @ np.swapaxes(a, -1, -2) + n * np.eye(n)
    g = a + 2.5 * np.sqrt(n) * np.eye(n)
    b = rng.standard_normal((COUNT, n, 1))
    return g.astype(dtype), s.astype(dtype), b.astype(dtype)


# name: (qelm call, numpy call), each on (general, symmetric positive definite, rhs)
WORK = {
    "inv": (lambda g, s, b: ql.inv(g), lambda g, s, b: np.linalg.inv(g)),
    "det": (lambda g, s, b: ql.det(g), lambda g, s, b: np.linalg.det(g)),
    "solve": (lambda g, s, b: ql.solve(g, b), lambda g, s, b: np.linalg.solve(g, b)),
    "cholesky": (lambda g, s, b: ql.cholesky(s), lambda g, s, b: np.linalg.cholesky(s)),
    "eigh": (lambda g, s, b: ql.eigh(s), lambda g, s, b: np.linalg.eigh(s)),
    "eigvals": (lambda g, s, b: ql.eigvals(g), lambda g, s, b: np.linalg.eigvals(g)),
    "matmul": (lambda g, s, b: ql.matmul(g, s), lambda g, s, b: np.matmul(g, s)),
}


def library_calls(name, g, s, b):
    """The export calls alone, on outputs made beforehand: what qelm.linalg adds
    on top of them is the rest of its time."""
    from qelm import _qelm
    f64 = g.dtype == np.float64
    count, n = g.shape[:2]
    m = np.empty_like(g)
    v = np.empty((count, n), g.dtype)
    v2 = np.empty((count, n), g.dtype)
    idx = np.empty((count, n), np.int32)
    calls = {
        "inv": lambda: _qelm.run("Invert", f64, [g, m], n, 0, 0, n * n + n),
        "det": lambda: _qelm.run("Det", f64, [g, v[:, 0]], n, 0, 0, n * n + n),
        "solve": lambda: (_qelm.run("LUDecomp", f64, [g, m, idx], n),
                          _qelm.run("LUBackSubst", f64, [m, idx, b[:, :, 0], v], n)),
        "cholesky": lambda: _qelm.run("CholeskyDecomp", f64, [s, m], n),
        "eigh": lambda: _qelm.run("EigenValuesVectorsSym", f64, [s, v, m], n, 0, 0, n * n),
        "eigvals": lambda: _qelm.run("EigenValues", f64, [g, v, v2], n, 0, 0, n * (n + 5)),
        "matmul": lambda: _qelm.run("Mul", f64, [g, s, m], n, n, n),
    }
    return calls[name]


def median_time(fn, args, repeats):
    fn(*args)
    times = []
    for _ in range(repeats):
        t = time.perf_counter()
        fn(*args)
        times.append(time.perf_counter() - t)
    return float(np.median(times))


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--repeats", type=int, default=5)
    ap.add_argument("--out", default=os.path.join(os.path.dirname(os.path.abspath(__file__)), "results"))
    args = ap.parse_args()
    qelm.set_num_threads(1)
    rng = np.random.default_rng(1)
    rows = []
    for n in SIZES:
        for dt in DTYPES:
            data = inputs(n, dt, rng)
            for name, (mine, theirs) in WORK.items():
                tq = median_time(mine, data, args.repeats)
                tn = median_time(theirs, data, args.repeats)
                tl = median_time(library_calls(name, *data), (), args.repeats)
                rows.append((name, n, np.dtype(dt).name, tq, tn, tl))
                print("%-9s n=%d %-7s qelm %8.2f ms (library %8.2f)  numpy %8.2f ms  x%.1f"
                      % (name, n, np.dtype(dt).name, tq * 1e3, tl * 1e3, tn * 1e3, tn / tq), flush=True)
    write_table(rows, args)
    write_plot(rows, args)


def write_table(rows, args):
    lines = ["# qelm.linalg against numpy.linalg",
             "",
             "Stacks of %d matrices, one thread on both sides (OpenBLAS, OpenMP budget 1), median of %d runs, numpy %s."
             % (COUNT, args.repeats, np.__version__),
             "Ratio = numpy time / qelm time. The machine has 2 shared cores with other work running:",
             "single runs vary by 10-30%; the medians are what to read.",
             "",
             "The library column times the export calls alone on outputs made beforehand (solve: LU",
             "factorisation and back-substitution); qelm.linalg's own share is the difference.",
             "",
             "| function | n | dtype | qelm ms | library ms | numpy ms | ratio |",
             "|---|---|---|---|---|---|---|"]
    for name, n, dt, tq, tn, tl in rows:
        lines.append("| %s | %d | %s | %.2f | %.2f | %.2f | %.1fx |"
                     % (name, n, dt, tq * 1e3, tl * 1e3, tn * 1e3, tn / tq))
    with open(os.path.join(args.out, "python.md"), "w") as f:
        f.write("\n".join(lines) + "\n")


def write_plot(rows, args):
    import matplotlib
    matplotlib.use("Agg")
    import matplotlib.pyplot as plt
    names = list(WORK)
    fig, axes = plt.subplots(1, len(DTYPES), figsize=(11, 4), sharey=True)
    width = 0.8 / len(SIZES)
    for ax, dt in zip(axes, DTYPES):
        dname = np.dtype(dt).name
        for k, n in enumerate(SIZES):
            ratios = [next(tn / tq for nm, nn, d, tq, tn, tl in rows if nm == name and nn == n and d == dname)
                      for name in names]
            ax.bar(np.arange(len(names)) + (k - 1) * width, ratios, width, label="n = %d" % n)
        ax.set_xticks(np.arange(len(names)), names, rotation=30)
        ax.set_yscale("log")
        ax.axhline(1, color="grey", lw=0.8)
        ax.set_title("%s, %d matrices, one thread" % (dname, COUNT))
        ax.grid(axis="y", which="both", alpha=0.3)
    axes[0].set_ylabel("speed-up over numpy.linalg")
    axes[0].legend()
    fig.tight_layout()
    fig.savefig(os.path.join(args.out, "python.png"), dpi=110)


if __name__ == "__main__":
    main()
