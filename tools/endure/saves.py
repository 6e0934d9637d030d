"""Saves that are killed, that find the disk full, and that end with a power failure."""
import json
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from common import PATIENCE, Share, start, wait
from operations import FileSave, TreeSave
from system_calls import Disk, record

OPERATIONS = {
    "tree": TreeSave,
    "first": lambda shop: TreeSave(shop, first=True),
    "files": FileSave,
}


def kill_at_calls(row, share, shop, kinds):
    """Kills the program at each system call of the save, in random order."""
    places = []
    for kind in kinds:
        operation = OPERATIONS[kind](shop / kind)
        calls, begin, finish = record(operation)
        names = [call.name for call in calls]
        # strace counts the calls of each name.
        places += [(operation, kind, names[at], names[:at + 1].count(names[at]))
                   for at in range(begin, min(finish + 1, len(names)))]
    random.shuffle(places)
    killed = 0
    for operation, kind, name, number in places:
        if not share.is_left():
            break
        operation.reset()
        code, _, _ = operation.run(["strace", "-f", "-qq", "-o", "/dev/null", "-e",
                                    f"trace={name}", "-e",
                                    f"inject={name}:signal=SIGKILL:when={number}"])
        killed += code == -signal.SIGKILL
        row.count("it hangs" if code is None else operation.fault("new" if code == 0 else None),
                  f"{kind}, killed at {name} {number}")
    row.note = f"{row.trials} of {len(places)} calls, {killed} of which ended it"


def lose_power(row, share, shop, kinds):
    """Lets the power fail at random moments of a recorded save."""
    saves = []
    for kind in kinds:
        operation = OPERATIONS[kind](shop / kind)
        calls, begin, finish = record(operation)
        saves.append((kind, operation, calls[:finish], begin))
    while share.is_left():
        kind, operation, calls, begin = random.choice(saves)
        seed = random.getrandbits(32)
        after = random.choice((len(calls), random.randint(begin, len(calls))))
        operation.reset()
        disk = Disk(operation.target)
        for call in calls[:after]:
            disk.do(call)
        shutil.rmtree(operation.target)
        operation.target.mkdir()
        for path, data in disk.after_power_failure(random.Random(seed)).items():
            pathlib.Path(path).parent.mkdir(parents=True, exist_ok=True)
            pathlib.Path(path).write_bytes(data)
        row.count(operation.fault("new" if after == len(calls) else None),
                  f"{kind}, call {after} of {len(calls)}, seed {seed}")
    row.note = ", ".join(f"{kind} of {len(calls) - begin} calls" for kind, _, calls, begin in saves)


def fill_disk(row, share, shop, kinds):
    """Runs `fill_small_disk` where a file system can be mounted that ends with its process."""
    seconds = max(1, share.end - time.monotonic())
    process = start(["unshare", "--user", "--map-root-user", "--mount", sys.executable, __file__,
                     shop, str(seconds), *kinds], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    out, err = process.communicate(timeout=seconds + 10 * PATIENCE)
    wait(process)
    if process.returncode != 0:
        row.note = "not run: " + err.decode(errors="replace").strip().splitlines()[-1]
        return
    result = json.loads(out)
    row.trials, row.faults, row.note = result["trials"], result["faults"], result["note"]


def fill_small_disk(shop, share, kinds):
    """Returns the results of saves on a disk of which so many pages are free, for all numbers."""
    page, room = 4096, 4 << 20
    disk = shop / "disk"
    disk.mkdir()
    subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={room}", "none", disk], check=True)
    operations = {kind: OPERATIONS[kind](shop / kind) for kind in kinds}
    levels = [(kind, level) for kind in kinds for level in range(0, 260)]
    random.shuffle(levels)
    trials, refused, faults = 0, 0, []
    for kind, level in levels:
        if not share.is_left():
            break
        operation = operations[kind]
        operation.reset(disk / "target")
        free = os.statvfs(disk).f_bavail
        (disk / "filler").write_bytes(bytes(max(0, free - level) * page))
        code, _, err = operation.run()
        (disk / "filler").unlink()
        fault = operation.fault({0: "new"}.get(code))
        if code is None:
            fault = "it hangs"
        elif code != 0 and not err:
            fault = f"code {code} without a message"
        elif code not in (0, 1, 2):
            fault = f"code {code}"
        trials += 1
        refused += code != 0
        if fault:
            faults.append(f"{kind} with {level} pages free: {fault}")
    return {"trials": trials, "faults": faults,
            "note": f"{trials} of {len(levels)} levels; {refused} saves refused"}


if __name__ == "__main__":
    with tempfile.TemporaryDirectory(dir=sys.argv[1]) as folder:
        print(json.dumps(fill_small_disk(pathlib.Path(folder), Share(float(sys.argv[2])),
                                         sys.argv[3:])))
        # The mount ends with this process; its folder cannot be removed before.
        subprocess.run(["umount", pathlib.Path(folder) / "disk"], check=True)
