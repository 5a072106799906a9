#!/usr/bin/env python3
"""Writes the fuzzer's seed corpus: one well-formed call per export of
include/qelm/qelm.h, so that every export is reached from the start.

    gen_corpus.py HEADER CORPUS_DIR

The byte layout is the one fuzz_qelm.cpp decodes: the data mode, the export's
index (two bytes, table order), the shared size, the pointer to null when a
value must be refused, then a selector and a value byte per argument. A
selector of 1 is the well-formed class of every role: a pointer into the
arena, the shared size, the natural stride, a zero roi shift, a small count."""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from gen_table import parse, role  # noqa: E402

SIZES = [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 16]


def main():
    funcs = parse(sys.argv[1])
    out = sys.argv[2]
    os.makedirs(out, exist_ok=True)
    for old in os.listdir(out):
        if old.startswith("seed-"):
            os.remove(os.path.join(out, old))
    for i, f in enumerate(funcs):
        size = 3 + i % 4  # orders 3 to 6 in turn
        seed = bytearray([i % 4, i & 255, i >> 8, SIZES.index(size), 0])
        for ctype, pname in f["params"]:
            r = role(ctype, pname)[0]
            if r == "c":
                seed += bytes([1, 3 if i % 3 else 5])  # 4 or 8 objects
            elif r in "fd":
                seed += bytes([1, 11])  # the value 3
            else:
                seed += bytes([1, 0])
        with open(os.path.join(out, f"seed-{f['name']}"), "wb") as fh:
            fh.write(seed)


if __name__ == "__main__":
    main()
