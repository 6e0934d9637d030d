#!/usr/bin/env python3
"""Long trials of the promises of reliability. Prints one table: trials and failures of each promise.

Usage: tools/endure/endure.py [--only NAME]... [MINUTES]

MINUTES (default 60) is the time of all trials; the programs must be built, see `./dev endure`. Each
row gets an equal share, and what one leaves over is the next one's; the soak runs beside the others.
Inputs of failed trials are stored in build/endure. Exits 1 if a trial failed.
"""
import argparse
import pathlib
import random
import signal
import sys
import tempfile
import textwrap
import threading
import time

import inputs
import saves
import windows
from common import CHECKED_RENDER, RENDER, SAVER, Row, Share, end_all

ROWS = [
    (Row("kills of a tree's save", "killed at any system call, the stored tree is old or new"),
     saves.kill_at_calls, ["tree", "first"]),
    (Row("kills of a file's save", "killed at any system call, a file is old or new"),
     saves.kill_at_calls, ["files"]),
    (Row("full disks", "a save on a full disk is complete, or changes nothing and says so"),
     saves.fill_disk, ["tree", "first", "files"]),
    (Row("power failures, tree", "after a power failure the tree is old or new; saved is saved"),
     saves.lose_power, ["tree", "first"]),
    (Row("power failures, files", "after a power failure a file is old or new; saved is saved"),
     saves.lose_power, ["files"]),
    (Row("dying hosts", "no process outlives the window that it draws in; it follows its size"),
     windows.host_dies),
    (Row("random settings", "no settings crash or hang a run, or are undefined behaviour"),
     inputs.try_settings, 300),
    (Row("mutated templates", "no template crashes or hangs, or is undefined behaviour"),
     inputs.mutate_templates),
]
SOAK = Row("soak", "memory and open files do not grow with the universes shown")


def attempt(row, action, share, shop, *more):
    """A trial that cannot be made is a failure of its row, and the other rows go on."""
    print(f"endure: {row.name}", flush=True)
    begin = time.monotonic()
    shop.mkdir()
    try:
        action(row, share, shop, *more)
    except Exception as error:  # whatever it is, the table is printed
        row.count(f"{type(error).__name__}: {error}", "the trial itself")
    row.seconds = time.monotonic() - begin


def print_table(rows, seconds):
    print(f"\n{seconds / 60:.1f} minutes\n\n| trials of | promise | trials | failures | minutes | |"
          "\n|---|---|---:|---:|---:|---|")
    for row in rows:
        print(f"| {row.name} | {row.promise} | {row.trials} | {len(row.faults)} | "
              f"{row.seconds / 60:.1f} | {row.note} |")
    for row in rows:
        for fault in row.faults[:10]:
            print(textwrap.indent(f"{row.name}: {fault}", "  "))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--only", action="append", default=[], metavar="NAME")
    parser.add_argument("minutes", nargs="?", type=float, default=60)
    arguments = parser.parse_args()
    for program in (SAVER, RENDER, CHECKED_RENDER):
        if not program.exists():
            sys.exit(f"{program} is not built")
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))

    chosen = [part for part in ROWS if not arguments.only or part[0].name in arguments.only]
    random.seed()
    begin = time.monotonic()
    seconds = arguments.minutes * 60
    with tempfile.TemporaryDirectory(prefix="endure-") as folder:
        shops = pathlib.Path(folder)
        try:
            beside = threading.Thread(target=attempt, daemon=True, args=(
                SOAK, windows.soak, Share(seconds), shops / "soak", seconds))
            beside.start()
            for index, (row, action, *more) in enumerate(chosen):
                left = begin + seconds - time.monotonic()
                attempt(row, action, Share(left / (len(chosen) - index)), shops / str(index), *more)
            beside.join()
        finally:
            end_all()
    rows = [part[0] for part in chosen] + [SOAK]
    print_table(rows, time.monotonic() - begin)
    sys.exit(any(row.faults for row in rows))


if __name__ == "__main__":
    main()
