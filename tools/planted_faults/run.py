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
this working tree, the programs of its tests are built in the release build, the tests run, and the
file is put back. The tests must pass without a fault. A fault that does not compile proves nothing
about the tests: it is counted apart. Exits 1 if a fault does not build, or is missed and not marked
so.
"""
import collections
import json
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


def targets_of(tests):
    """The ninja targets that the commands of these tests name, relative to the build."""
    shown = subprocess.run(["ctest", "--preset", "release", "-N", "--show-only=json-v1", "-R", tests],
                           cwd=ROOT, check=True, capture_output=True, text=True)
    words = {word for test in json.loads(shown.stdout)["tests"] for word in test["command"]}
    targets = [word.removeprefix(f"{BUILD}/") for word in words if word.startswith(f"{BUILD}/")]
    return targets or sys.exit(f"no program for the tests {tests}")


def verdict_of(fault):
    path = ROOT / fault["file"]
    original = path.read_text(encoding="utf-8")
    if original.count(fault["old"]) != 1:
        sys.exit(f"{fault['fault']}: the old text stands {original.count(fault['old'])} times in "
                 f"{fault['file']}")
    targets = targets_of(fault["tests"])
    path.write_text(original.replace(fault["old"], fault["new"]), encoding="utf-8")
    try:
        if not run("ninja", "-C", str(BUILD), *targets):
            return "does not build"
        if not run("ctest", "--preset", "release", "--parallel", "2", "--stop-on-failure",
                   "-R", fault["tests"]):
            return "caught"
        return "missed (accepted)" if "missed" in fault else "MISSED"
    finally:
        path.write_text(original, encoding="utf-8")


def main(arguments):
    only = None
    if arguments[:1] == ["--only"]:
        only, arguments = arguments[1], arguments[2:]
    lists = [pathlib.Path(name) for name in arguments]
    lists = lists or sorted(pathlib.Path(__file__).parent.glob("*.txt"))
    if not run("ninja", "-C", str(BUILD)):  # ctest knows the tests of programs that are built
        sys.exit("the program does not build without a fault")
    verdicts = collections.Counter()
    for fault in (fault for path in lists for fault in read_faults(path)):
        if only and fault["fault"] != only:
            continue
        verdict = verdict_of(fault)
        verdicts[verdict] += 1
        print(f"{verdict:18} {fault['file']:44} {fault['fault']}", flush=True)
    print(", ".join(f"{count} {verdict}" for verdict, count in verdicts.items()))
    return 1 if verdicts["MISSED"] or verdicts["does not build"] else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
