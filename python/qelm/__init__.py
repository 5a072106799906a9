"""qelm: numpy-native batched linear algebra on stacks of small matrices.

``qelm.linalg`` answers like ``numpy.linalg`` on real stacks ``(..., n, n)``,
``qelm.vector`` and ``qelm.geometry`` work on stacks of vectors, and
``qelm.dask`` runs the linalg functions on Dask arrays.
"""
import contextlib as _contextlib
import threading as _threading

import numpy as _np

from . import _qelm
from ._core import LinAlgError

__all__ = ["LinAlgError", "set_num_threads", "get_num_threads", "threads", "linalg", "vector",
           "geometry", "version"]

_budget_lock = _threading.RLock()
_budget = [0]          # what the program set; 0: the base library's default
_serial_users = [0]    # open serial_tasks() blocks


def set_num_threads(n):
    """Set the process-wide thread budget of the library; 0 or below restores the default."""
    n = int(n)
    with _budget_lock:
        _budget[0] = max(n, 0)
        if _serial_users[0] == 0:
            _qelm.set_num_threads(_budget[0])


def get_num_threads():
    """The thread budget a call would use now (cut to the usable processors)."""
    return _qelm.get_num_threads()


@_contextlib.contextmanager
def threads(n):
    """``with qelm.threads(n):`` runs the block's calls with a budget of n threads.

    The budget is process-wide: other threads calling qelm meanwhile share it."""
    with _budget_lock:
        before = _budget[0]
        set_num_threads(n)
    try:
        yield
    finally:
        set_num_threads(before)


@_contextlib.contextmanager
def serial_tasks():
    """Budget 1 while any such block is open, in any thread: the form tasks of a
    worker pool use, so that concurrent tasks do not oversubscribe the cores."""
    with _budget_lock:
        _serial_users[0] += 1
        _qelm.set_num_threads(1)
    try:
        yield
    finally:
        with _budget_lock:
            _serial_users[0] -= 1
            if _serial_users[0] == 0:
                _qelm.set_num_threads(_budget[0])


def version():
    """The library's version record: (major, minor, majorBuild, build, text)."""
    return _qelm.version()


from . import linalg, vector, geometry  # noqa: E402
