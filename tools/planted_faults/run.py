#!/usr/bin/env python3
"""Plants faults in the program, one at a time, and says which of them the tests catch.

Usage: tools/planted_faults/run.py [--only NAME] [LIST...]

Each LIST (default: all *.txt beside this script) holds faults of this form, an empty line apart:

    fault NAME
    file src/numbers/conversions.h
    old return std::llrint(value);
    new return std::lround(value);
    tests ^(Conversions|Text)\\.

`old` must stand exactly once in the file; `tests` is a regular expression for ctest. A line
`missed REASON` marks a fault that no test catches and why that is accepted. The fault is planted in
this working tree, the release build is brought up to date, the tests run, and the file is put back.
A fault that does not compile counts as caught. Exits 1 if a fault is missed that is not marked so.
"""
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build" / "release"


def read_faults(path):
    """The faults of a list, as dictionaries of their lines."""
    faults = []
    for block in path.read_text(encoding="utf-8").split("\n\n"):
        lines = [line for line in block.splitlines() if line and not line.startswith("#")]
        if lines:
            faults.append(dict(line.split(" ", 1) for line in lines))
    return faults


def run(*command):
    """Whether the command succeeds. Its output is dropped."""
    result = subprocess.run(command, cwd=ROOT, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return result.returncode == 0


def is_caught(fault):
    path = ROOT / fault["file"]
    original = path.read_text(encoding="utf-8")
    if original.count(fault["old"]) != 1:
        sys.exit(f"{fault['fault']}: the old text stands {original.count(fault['old'])} times in "
                 f"{fault['file']}")
    path.write_text(original.replace(fault["old"], fault["new"]), encoding="utf-8")
    try:
        if not run("ninja", "-C", str(BUILD)):
            return True
        return not run("ctest", "--preset", "release", "--parallel", "2", "--stop-on-failure",
                       "-R", fault["tests"])
    finally:
        path.write_text(original, encoding="utf-8")


def main(arguments):
    only = None
    if arguments[:1] == ["--only"]:
        only, arguments = arguments[1], arguments[2:]
    lists = [pathlib.Path(name) for name in arguments]
    lists = lists or sorted(pathlib.Path(__file__).parent.glob("*.txt"))
    caught = missed = unexpected = 0
    for fault in (fault for path in lists for fault in read_faults(path)):
        if only and fault["fault"] != only:
            continue
        if is_caught(fault):
            caught += 1
            verdict = "caught"
        else:
            missed += 1
            verdict = "missed (accepted)" if "missed" in fault else "MISSED"
            unexpected += "missed" not in fault
        print(f"{verdict:18} {fault['file']:44} {fault['fault']}", flush=True)
    print(f"{caught} caught, {missed} missed")
    return 1 if unexpected else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
