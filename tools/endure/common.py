"""What the trials share: the row of the table, the programs, and the processes that a trial starts."""
import os
import pathlib
import signal
import subprocess
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
SAVER = ROOT / "build/release/src/app/starfolds"
RENDER = ROOT / "build/release/src/render/starfolds-render"
CHECKED_RENDER = ROOT / "build/debug/src/render/starfolds-render"  # with sanitizers
FAILURES = ROOT / "build/endure"  # the inputs of failed trials

# No trial depends on the speed of the machine: a program that takes longer than this hangs.
PATIENCE = 60  # seconds

_living = set()


class Row:
    """One row of the table. A trial adds to `trials`, and its fault, if any, to `faults`."""

    def __init__(self, name, promise):
        self.name, self.promise = name, promise
        self.trials, self.faults, self.note = 0, [], ""
        self.seconds = 0.0

    def count(self, fault, trial):
        self.trials += 1
        if fault:
            self.faults.append(f"{trial}: {fault}")
            print(f"endure: {self.name}: {trial}: {fault}", flush=True)


class Share:
    """The time of a row."""

    def __init__(self, seconds):
        self.end = time.monotonic() + seconds

    def is_left(self):
        return time.monotonic() < self.end

    def wait(self, seconds):
        time.sleep(max(0.0, min(seconds, self.end - time.monotonic())))


def environment(folder, **more):
    """Settings and sockets in the folder, and no window system unless `more` names one."""
    runtime = folder / "runtime"
    runtime.mkdir(mode=0o700, parents=True, exist_ok=True)
    given = {
        "HOME": str(folder), "XDG_CONFIG_HOME": str(folder / "config"),
        "XDG_RUNTIME_DIR": str(runtime), "QT_QPA_PLATFORM": "offscreen",
        "LANG": "C.UTF-8", "PATH": "/usr/bin:/bin",
    }
    return {**given, **more}


def start(command, **options):
    """A process in a group of its own, which `end_all` ends."""
    options.setdefault("stdin", subprocess.DEVNULL)
    process = subprocess.Popen([str(part) for part in command], start_new_session=True, **options)
    _living.add(process)
    return process


def end(process, by=signal.SIGKILL):
    """Ends a process and its children, and returns its exit code; None if it takes too long."""
    if process.poll() is None:
        try:
            os.killpg(process.pid, by)
        except ProcessLookupError:
            pass
    return wait(process)


def wait(process):
    """The exit code, or None after `PATIENCE` seconds. Either way the process is gone."""
    try:
        return process.wait(PATIENCE)
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        return None
    finally:
        _living.discard(process)


def end_all():
    for process in list(_living):
        end(process)


def run(command, **options):
    """Returns exit code (None: it hung), standard output and standard error."""
    process = start(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)
    try:
        out, err = process.communicate(timeout=PATIENCE)
        return process.returncode, out, err
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        out, err = process.communicate()
        return None, out, err
    finally:
        _living.discard(process)
