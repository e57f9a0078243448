#!/usr/bin/env -S python3 -B
# SPDX-License-Identifier: MIT
"""Proves by injected faults that no save, no settings and no journal lose anything.

    inject_faults.py [--short] PROGRAM

PROGRAM is kalvon-works. Each work is traced once, then run again for each of its system calls and
each fault: an error in place of the call, a disk that is full from this write on, or a kill just
before the call. After each run the files are looked at, the journal is read, and the work is done
once more without a fault. A new journal is also cut off at each length.

Prints a Markdown table, and on the error output each promise that was broken, with the call; fails
if there is one, or if a fault could not be injected. --short takes for each call the kill and one
of the errors.
"""

import argparse
import collections
import concurrent.futures
import functools
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from faults.scenes import WORKS, Scene, ScriptFailure, no_journal
from faults.traces import ERRORS, FULL, KILL, Fault, check_order, observe
from faults.verdicts import judge, tear


def disturb(program, root, short, work):
    """All that can be said about one work: its counts and what is broken."""
    scene = Scene(program, root / re.sub(r"\W+", "-", work.name))
    reference = observe(work, scene)
    # How often the thread that syncs comes to a call depends on the time, but for the first.
    certain = [call for call in reference.calls if call.in_main_thread or call.count == 1]
    certain.sort(key=lambda call: not call.in_main_thread)
    counts = collections.Counter(calls=len(certain))
    broken = check_order(work, reference.calls)
    if work.prepare is no_journal:
        broken += tear(work, reference, scene, counts, 7 if short else 1)
    for index, call in enumerate(certain):
        errors = ERRORS[index % len(ERRORS) :][:1] if short else ERRORS
        for kind in (*errors, *((FULL,) if call.name == "write" else ()), KILL):
            fault = Fault(call, kind)
            if fault.makes_another_users(work):
                continue
            counts[kind] += 1
            reasons = judge(work, reference, scene, fault, counts)
            broken += (f"{work.name}: {fault}: {reason}" for reason in reasons)
    counts["broken"] = len(broken)
    return counts, broken


COLUMNS = ("calls", *ERRORS, FULL, KILL, "torn", "old", "new", "broken")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--short", action="store_true")
    parser.add_argument("program", type=pathlib.Path)
    options = parser.parse_args()
    if subprocess.run(["strace", "-f", "true"], capture_output=True, check=False).returncode != 0:
        raise ScriptFailure("strace cannot trace a process here, so that no fault can be injected.")
    # In memory, since a save waits for the disk.
    memory = "/dev/shm" if os.path.isdir("/dev/shm") else None
    with tempfile.TemporaryDirectory(dir=memory) as folder:
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            root = pathlib.Path(folder)
            program = options.program.resolve()
            disturb_each = functools.partial(disturb, program, root, options.short)
            results = list(pool.map(disturb_each, WORKS))
    print(f"| work | {' | '.join(COLUMNS)} |\n|---|{len(COLUMNS) * '---:|'}")
    for work, (counts, _) in zip(WORKS, results):
        print(f"| {work.name} | {' | '.join(str(counts[column]) for column in COLUMNS)} |")
    broken = [line for _, lines in results for line in lines]
    for line in broken:
        print(line, file=sys.stderr)
    return 1 if broken else 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except (ScriptFailure, OSError) as failure:
        sys.exit(f"inject_faults.py: {failure}")
