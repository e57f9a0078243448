# SPDX-License-Identifier: MIT
"""What a work is when nothing disturbs it, and how it is disturbed."""

import collections
import os
import re
import shutil
from typing import NamedTuple

from faults.scenes import ScriptFailure, moved_crossword

ERRORS = ("ENOSPC", "EIO", "EACCES", "EINTR")
FULL = "full"
KILL = "kill"
CALLS = (
    "openat", "read", "pread64", "write", "pwrite64", "ftruncate", "fsync", "fdatasync", "rename",
    "renameat", "renameat2", "link", "linkat", "unlink", "unlinkat", "mkdir", "mkdirat", "chmod",
    "fchmod", "fchmodat", "fchown", "fsetxattr", "fremovexattr", "flock", "close",
)  # fmt: skip
CALL_LINE = re.compile(r"(?P<thread>\d+) +(?P<name>\w+)\((?P<arguments>.*)")
PATH = re.compile(r'[<"](/[^>"]*)[>"]')


class File(NamedTuple):
    content: bytes
    mode: int
    attributes: dict


def look(path):
    """All files and folders below a folder by their names."""
    found = {}
    for entry in sorted(path.rglob("*")):
        attributes = {name: os.getxattr(entry, name) for name in os.listxattr(entry)}
        content = entry.read_bytes() if entry.is_file() else b""
        name = str(entry.relative_to(path))
        found[name] = File(content, entry.stat().st_mode & 0o7777, attributes)
    return found


def put(source, target):
    shutil.rmtree(target, ignore_errors=True)
    shutil.copytree(source, target)


def printed_lines(run):
    """The number of the error and the rest, for each line."""
    lines = [line.partition(" ") for line in run.stdout.splitlines()]
    return [(int(number), text) for number, _, text in lines]


def read_journal(work, scene):
    """What the program finds in the journal. It is then put back as it was."""
    put(scene.files, scene.root / "kept")
    run = scene.run([*scene.arguments(work)[:-1], ""])
    put(scene.root / "kept", scene.files)
    lines = printed_lines(run)
    if run.returncode != 0 or len(lines) != 1 or lines[0][0] != 0:
        return f"unreadable: {run.stdout}{run.stderr}"
    return lines[0][1]


class Call(NamedTuple):
    name: str
    path: str  # The first one, where it has two.
    count: int  # Which one of its name, path and thread.
    in_main_thread: bool

    def __str__(self):
        return f"{self.name} {self.count} of {self.path.rpartition('/scene/')[2]}"


class Reference(NamedTuple):
    before: dict
    after: dict
    calls: list
    printed: list
    read_before: str
    read_after: list  # What the journal says after the opening and after each command.

    @property
    def untouched(self):
        """The names of the files that are the same before and after."""
        return {name for name, file in self.before.items() if self.after.get(name) == file}


def trace(work, scene):
    """The calls on the scene's files in their order, and the run."""
    log = scene.root / "trace"
    strace = ("strace", "-f", "-y", "-o", log, "-e", "trace=" + ",".join(CALLS))
    run = scene.run(scene.arguments(work), strace)
    if run.returncode != 0:
        raise ScriptFailure(f"{work.name}: the work fails undisturbed\n{run.stdout}{run.stderr}")
    calls = []
    seen = collections.Counter()
    main_thread = None
    for line in log.read_text(errors="replace").splitlines():
        match = CALL_LINE.match(line)
        if not match:
            continue
        main_thread = main_thread or match["thread"]
        named = (path.rstrip("/") for path in PATH.findall(match["arguments"]))
        paths = list(dict.fromkeys(p for p in named if p.startswith(f"{scene.files}/")))
        for path in paths:
            seen[match["thread"], match["name"], path] += 1
        if paths:
            count = seen[match["thread"], match["name"], paths[0]]
            calls.append(Call(match["name"], paths[0], count, match["thread"] == main_thread))
    if not any(call.name == "write" for call in calls):
        raise ScriptFailure(f"{work.name}: the trace has no write")
    return calls, run


def check_order(work, calls):
    """What a power cut would need: all that is written is synced before its file gets its name,
    or at last, and so is the folder after a new name."""
    broken = []
    unsynced = set()
    new_names = set()
    for call in calls:
        if call.name in ("write", "ftruncate"):
            unsynced.add(call.path)
        elif call.name in ("fsync", "fdatasync"):
            unsynced.discard(call.path)
            new_names.discard(call.path)
        elif call.name == "rename":
            new_names.add(call.path.rpartition("/")[0])
            if call.path in unsynced:
                broken.append(f"{work.name}: {call} before its bytes are synced")
    left = sorted(unsynced | new_names)
    return broken + [f"{work.name}: {path} is never synced" for path in left]


def observe(work, scene):
    """Makes the scene, keeps it, and does the work undisturbed."""
    shutil.rmtree(scene.root, ignore_errors=True)
    scene.files.mkdir(parents=True)
    work.prepare(scene)
    put(scene.files, scene.root / "before")
    before = look(scene.files)
    read_before = ""
    read_after = []
    if work.commands is not None:
        read_before = read_journal(work, scene)
        for count in range(len(work.commands) + 1):
            scene.run([*scene.arguments(work)[:-1], work.commands[:count]])
            read_after.append(read_journal(work, scene))
            put(scene.root / "before", scene.files)
    calls, run = trace(work, scene)
    after = look(scene.files)
    return Reference(before, after, calls, printed_lines(run), read_before, read_after)


class Fault(NamedTuple):
    call: Call
    kind: str

    def makes_another_users(self, work):
        """A journal that may not be opened is not ours, and rightly not taken over."""
        journal = self.call.name == "openat" and self.call.path.endswith(".journal")
        return work.prepare is moved_crossword and journal and self.kind == "EACCES"

    def __str__(self):
        return f"{self.kind} at {self.call}"


def inject(work, scene, fault):
    """Runs the work with the fault. A thread beside the main one may be late; then once more."""
    log = scene.root / "trace"
    what = {KILL: "signal=SIGKILL", FULL: "error=ENOSPC"}.get(fault.kind, f"error={fault.kind}")
    until = "+" if fault.kind == FULL else ""
    sign = "killed by SIGKILL" if fault.kind == KILL else "(INJECTED)"
    option = f"inject={fault.call.name}:{what}:when={fault.call.count}{until}"
    path = fault.call.path
    strace = ("strace", "-f", "-o", log, "-P", path, "-P", path + "/", "-e", option)
    for _ in range(5):
        put(scene.root / "before", scene.files)
        run = scene.run(scene.arguments(work), strace)
        if sign in log.read_text(errors="replace"):
            return run
    raise ScriptFailure(f"{work.name}: {fault} was not injected\n{run.stderr}")
