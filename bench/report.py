#!/usr/bin/env python3
"""Turns the benchmark JSON files of one run into the summary table and plot.

Benchmark names read  workload/type/size/implementation/objects; the
implementation `qelm` is the library, `memcpy` a bandwidth ceiling that is no
peer, and every other one a peer. Times are medians of the repetitions, CPU
time for the one-thread rows and wall time for the thread rows.

    report.py RESULTS_DIR     writes RESULTS_DIR/summary.md and ratios.png
"""
import json
import pathlib
import sys
from collections import defaultdict

NOT_PEERS = {"qelm", "memcpy"}


def medians(path):
    """(run name, time in ns) of every median aggregate in one JSON file."""
    data = json.loads(path.read_text())
    scale = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
    for b in data.get("benchmarks", []):
        if b.get("aggregate_name") != "median":
            continue
        name = b["run_name"]
        use_real = name.endswith("/real_time")
        name = name.removesuffix("/real_time")
        t = b["real_time"] if use_real else b["cpu_time"]
        yield name, t * scale[b.get("time_unit", "ns")]


def collect(results):
    rows = defaultdict(dict)  # (workload, objects) -> implementation -> ns per object
    threads = defaultdict(dict)  # (policy, workload, objects) -> budget -> ns per call
    for path in sorted(results.glob("*.json")):
        policy = "passive" if path.stem.endswith("-passive") else "default"
        for name, t in medians(path):
            parts = name.split("/")
            objects = int(parts[-1])
            if parts[0] == "Threads":
                threads[(policy, "/".join(parts[1:-2]), objects)][parts[-2]] = t
            else:
                rows[("/".join(parts[:-2]), objects)][parts[-2]] = t / objects
    return rows, threads


def summary(rows, threads):
    out = ["# qelm against its best peer", "",
           "One run of `scripts/bench` on this repository's machine (2 shared cores).",
           "ns per object are medians of the repetitions; ratio = qelm / best peer,",
           "below 1 is qelm ahead. Peers: loop (a plain fixed-size loop at -O3),",
           "eigen (fixed-size Eigen per object), eigen-whole (Eigen over the whole",
           "array in one expression), libxsmm (held to SSE code), lapacke (OpenBLAS).", "",
           "| workload | objects | qelm ns/object | best peer | peer ns/object | ratio |",
           "|---|---:|---:|---|---:|---:|"]
    ratios = []
    for (workload, objects), impls in sorted(rows.items()):
        if "qelm" not in impls:
            continue
        peers = {k: v for k, v in impls.items() if k not in NOT_PEERS}
        if not peers:
            continue
        best = min(peers, key=peers.get)
        ratio = impls["qelm"] / peers[best]
        ratios.append((f"{workload} {objects:g}", ratio))
        out.append(f"| {workload} | {objects:g} | {impls['qelm']:.2f} | {best} | {peers[best]:.2f} | {ratio:.2f} |")
    if threads:
        out += ["", "## Thread budgets", "",
                "Wall time per call; speed-up = budget 1 time / this time. Budgets above the",
                "processors are cut to them by the base library.", "",
                "| wait policy | workload | objects | budget 1 us | budget 2 | budget 4 | default |",
                "|---|---|---:|---:|---:|---:|---:|"]
        for (policy, workload, objects), b in sorted(threads.items()):
            one = b.get("budget1")
            if not one:
                continue
            cells = [f"{one / b[k]:.2f}x" if k in b else "" for k in ("budget2", "budget4", "default")]
            out.append(f"| {policy} | {workload} | {objects:g} | {one / 1e3:.1f} | " + " | ".join(cells) + " |")
    return "\n".join(out) + "\n", ratios


def plot(ratios, path):
    try:
        import matplotlib
        matplotlib.use("Agg")
        import matplotlib.pyplot as plt
    except ImportError:
        print("matplotlib missing: no plot", file=sys.stderr)
        return
    labels = [r[0] for r in ratios]
    values = [r[1] for r in ratios]
    fig, ax = plt.subplots(figsize=(9, 0.22 * len(values) + 1.5))
    colors = ["tab:green" if v <= 1.0 else "tab:red" for v in values]
    ax.barh(range(len(values)), values, color=colors)
    ax.set_yticks(range(len(values)), labels, fontsize=7)
    ax.invert_yaxis()
    ax.axvline(1.0, color="black", linewidth=0.8)
    ax.axvline(0.8, color="gray", linewidth=0.8, linestyle="--")
    ax.set_xlabel("qelm time / best peer time (below 1: qelm ahead)")
    ax.set_title("qelm against the best peer, per workload and object count")
    fig.tight_layout()
    fig.savefig(path, dpi=110)


def main():
    results = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "bench/results")
    rows, threads = collect(results)
    text, ratios = summary(rows, threads)
    (results / "summary.md").write_text(text)
    plot(ratios, results / "ratios.png")
    print(text)


if __name__ == "__main__":
    main()
