# SPDX-License-Identifier: MIT
"""What must hold after a fault. Each function yields the promises that are broken."""

import pathlib

from faults.scenes import journal_in
from faults.traces import FULL, KILL, inject, look, printed_lines, read_journal

RIGHTS_CALLS = {"fchmod", "fchown", "fsetxattr", "fremovexattr"}
FIRST_LINE = b"kalvon journal 1\n"


def is_journal(name):
    return name.startswith("state/")


def wrong_rights(file, right, fault):
    """The only excuse is a call that gives rights: it may leave less of them, never more."""
    if fault.call.name in RIGHTS_CALLS:
        kept = all(right.attributes.get(name) == v for name, v in file.attributes.items())
        return file.mode & ~right.mode or not kept
    return (file.mode, file.attributes) != (right.mode, right.attributes)


def was_not_synced(name, fault):
    """Whether the fault has kept the new file of this name from the disk."""
    target, temporary = pathlib.PurePath(name), pathlib.PurePath(fault.call.path)
    refused = fault.call.name == "fsync" and fault.kind not in ("EINTR", KILL)
    return refused and temporary.stem == target.stem and temporary.name != target.name


def judge_files(reference, found, printed, fault, counts):
    """Yields what is broken of the files that are no journals."""
    told = {text.rpartition("\\")[2]: error for error, text in printed if "\\" in text}
    told.update({text: error for error, text in printed if text.endswith(".txt")})
    for name, new in reference.after.items():
        if is_journal(name):
            continue
        old = reference.before.get(name)
        file = found.get(name)
        error = told.get(name.rpartition("/")[2])
        if file is None:
            counts["old"] += 1
            if old is not None or error == 0:
                yield f"{name} is gone"
            continue
        is_old = old is not None and file.content == old.content
        is_new = file.content == new.content
        if old is None or new.content != old.content:
            counts["new" if is_new else "old"] += 1
        if not is_old and not is_new:
            yield f"{name} is neither old nor new"
        elif error == 0 and not is_new:
            yield f"{name} is old, but was told to be saved"
        elif error == 0 and was_not_synced(name, fault):
            yield f"{name} is not synced, but was told to be saved"
        elif error and not is_old:
            yield f"{name} is not old, but the save told error {error}"
        if wrong_rights(file, old or new, fault):
            yield f"{name} has other rights"


def judge_names(reference, found, fault):
    """Only a kill may leave files until the next time, or the refusal to remove one."""
    if fault.kind != KILL and fault.call.name != "unlink":
        for name in found.keys() - reference.before.keys() - reference.after.keys():
            yield f"{name} is left"


def judge_journal(reference, found, read, printed, fault, counts):
    opening_failed = bool(printed) and printed[0][0] != 0
    failed = [count for count, (error, _) in enumerate(printed) if error != 0]
    shown = [text for _, text in printed]
    if not opening_failed and shown != [text for _, text in reference.printed[: len(shown)]]:
        yield "the program shows other steps"
    if opening_failed or not printed:
        allowed = [reference.read_before, *reference.read_after[: len(printed) + 1]]
    elif fault.kind == KILL:
        allowed = reference.read_after[len(printed) - 1 : len(printed) + 1]
    elif fault.kind == FULL and failed:
        allowed = [reference.read_after[failed[0] - 1]]
    else:
        # What one record did not take the next one brings, but behind the end there is none.
        allowed = reference.read_after[-2 if printed[-1][0] != 0 else -1 :]
    counts["new" if read == reference.read_after[-1] else "old"] += 1
    if read not in allowed:
        yield f"the journal says: {read}"
    for name, file in found.items():
        if is_journal(name) and file.mode & 0o077:
            yield f"{name} is not for its owner alone"
        if is_journal(name) and name in reference.untouched and file != reference.before[name]:
            yield f"{name} is another crossword's, and has changed"


def steps_in(text):
    return text.partition(" of")[2].partition(" waiting")[0]


def judge_once_more(work, reference, scene, read, fault):
    """Without a fault the same work is done, from where the other ended, and nothing is left."""
    run = scene.run(scene.arguments(work))
    printed = printed_lines(run)
    if run.returncode != 0 or any(error != 0 for error, _ in printed):
        yield f"fails the next time: {run.stdout}{run.stderr}"
        return
    found = look(scene.files)
    if found.keys() != reference.after.keys():
        yield f"the next time leaves {sorted(found.keys() ^ reference.after.keys())}"
    for name, new in reference.after.items():
        file = found.get(name, new)
        if not is_journal(name) and file.content != new.content:
            yield f"{name} is not new the next time"
        if not is_journal(name) and wrong_rights(file, new, fault):
            yield f"{name} has other rights the next time"
    if work.commands is not None:
        if printed[0][1] != read:
            yield f"opens the next time with {printed[0][1]}, after {read}"
        again = read_journal(work, scene)
        if steps_in(again) != steps_in(printed[-1][1]):
            yield f"then has other steps: {again}, after {printed[-1][1]}"


def judge(work, reference, scene, fault, counts):
    run = inject(work, scene, fault)
    printed = printed_lines(run)
    if fault.kind != KILL and run.returncode not in (0, 1):
        yield f"the program ends with {run.returncode}: {run.stderr}"
    if fault.kind != KILL and run.returncode == 0 and work.commands is None:
        if printed != reference.printed:
            yield f"tells another success: {run.stdout}"
    found = look(scene.files)
    yield from judge_files(reference, found, printed, fault, counts)
    yield from judge_names(reference, found, fault)
    read = ""
    if work.commands is not None:
        read = read_journal(work, scene)
        yield from judge_journal(reference, found, read, printed, fault, counts)
    yield from judge_once_more(work, reference, scene, read, fault)


def tear(work, reference, scene, counts, step):
    """Does to a new journal, at each place, what a power cut may: what stands before it stays."""
    path = journal_in(scene)
    whole = path.read_bytes()
    ends = []
    end = len(FIRST_LINE)
    while end < len(whole):
        end += 8 + int.from_bytes(whole[end : end + 4], "little")
        ends.append(end)
    for length in range(0, len(whole), step):
        before, rest = whole[:length], whole[length:]
        variants = [before, before + bytes(len(rest)), before + bytes([rest[0] ^ 1]) + rest[1:]]
        # Another first line would be that of another program's file.
        for torn in variants if length >= len(FIRST_LINE) else variants[:1]:
            path.write_bytes(torn)
            records = sum(end <= len(torn) and torn[:end] == whole[:end] for end in ends)
            counts["torn"] += 1
            read = read_journal(work, scene)
            if read != reference.read_after[max(0, records - 1)]:
                yield f"{work.name}: torn after {length} bytes it says: {read}"
