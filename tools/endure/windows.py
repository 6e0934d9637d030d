"""Windows on an X server: hosts that die or change size, and a saver that runs for long."""
import contextlib
import ctypes
import os
import random
import signal
import subprocess
import time

from common import PATIENCE, SAVER, end, environment, start, wait

_IGNORE_ERRORS = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)


@contextlib.contextmanager
def x_server():
    """The display of an X server of our own, such as ":7"."""
    server = start(["Xvfb", "-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp",
                    "-noreset"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    try:
        yield ":" + server.stdout.readline().decode().strip()
    finally:
        end(server, signal.SIGTERM)
        server.stdout.close()


class XClient:
    """The few calls of Xlib that a host makes."""

    def __init__(self, display):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        for name in ("XDefaultRootWindow", "XCreateSimpleWindow"):
            getattr(self.x, name).restype = ctypes.c_ulong
        self.x.XSetErrorHandler(_IGNORE_ERRORS)
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(display.encode()))
        if not self.display:
            raise RuntimeError(f"no X server at {display}")

    def make(self, width, height):
        root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.display))
        window = ctypes.c_ulong(self.x.XCreateSimpleWindow(
            self.display, root, 0, 0, width, height, 0, ctypes.c_ulong(0), ctypes.c_ulong(0)))
        self.x.XMapWindow(self.display, window)
        self.sync()
        return window

    def resize(self, window, width, height):
        self.x.XResizeWindow(self.display, window, width, height)
        self.sync()

    def destroy(self, window):
        self.x.XDestroyWindow(self.display, window)
        self.sync()

    def sync(self):
        self.x.XSync(self.display, 0)

    def close(self):
        self.x.XCloseDisplay(self.display)

    def size_of_child(self, window):
        """Width and height of a window's first child; None without one."""
        root, parent, count = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_uint()
        children = ctypes.POINTER(ctypes.c_ulong)()
        if not self.x.XQueryTree(self.display, window, *map(ctypes.byref, (
                root, parent, children, count))) or not count.value:
            return None
        x, y = ctypes.c_int(), ctypes.c_int()
        sizes = [ctypes.c_uint() for _ in range(4)]  # width, height, border, depth
        known = self.x.XGetGeometry(self.display, ctypes.c_ulong(children[0]), *map(
            ctypes.byref, (root, x, y, *sizes)))
        self.x.XFree(children)
        return (sizes[0].value, sizes[1].value) if known else None


def _follows(client, window, guest, size):
    """Whether the guest's window comes to fill the host's."""
    until = time.monotonic() + PATIENCE
    while client.size_of_child(window) != size:
        if guest.poll() is not None or time.monotonic() > until:
            return False
        time.sleep(0.01)
    return True


def host_dies(row, share, shop):
    """Destroys the window of a host at a random moment, sometimes after changes of its size."""
    resizes = 0
    with x_server() as display:
        while share.is_left():
            client = XClient(display)
            window = client.make(320, 200)
            env = environment(shop, DISPLAY=display, QT_QPA_PLATFORM="xcb")
            command = [SAVER, "/P", window.value]
            if random.random() < 0.5:
                command, env["XSCREENSAVER_WINDOW"] = [SAVER, "--root"], hex(window.value)
            guest = start(command, env=env, stderr=subprocess.PIPE)
            fault, size = None, (320, 200)
            if random.random() < 0.4:
                for _ in range(random.randint(1, 20)):
                    size = (random.randint(1, 900), random.randint(1, 700))
                    client.resize(window, *size)
                    time.sleep(random.random() * 0.05)
                    resizes += 1
                if not _follows(client, window, guest, size):
                    fault = f"it does not follow its host to {size}, code {guest.poll()}"
            else:
                time.sleep(random.random() * 0.5)
            if random.random() < 0.5:
                client.destroy(window)
                client.close()
            else:
                client.close()  # the server destroys the windows of a client that is gone
            code = wait(guest)
            message = guest.stderr.read().decode(errors="replace")
            guest.stderr.close()
            if code != 0:
                fault = f"code {code} (None: it did not end): {message}"
            row.count(fault, " ".join(map(str, command[1:])))
    row.note = f"{resizes} changes of size"


def _usage(process):
    """Memory in KiB and the number of open files."""
    with open(f"/proc/{process.pid}/status", encoding="ascii", errors="replace") as status:
        memory = next(int(line.split()[1]) for line in status if line.startswith("VmRSS:"))
    return memory, len(os.listdir(f"/proc/{process.pid}/fd"))


def soak(row, share, shop, seconds):
    """Runs universes of a few seconds and compares memory and open files with those after the first
    third of the time."""
    allowed = 8 << 10  # KiB; an allocator returns memory late
    with x_server() as display:
        saver = start([SAVER, "--saver", "--delay", "0", "--visits", "1", "--starfolds", "3",
                       "--set", "Universe_ESteps=20", "--set", "Universe_GSteps=2", "--set",
                       "Universe_GPCtrl=4", "--set", "Universe_GCCtrl=4", "--randomize"],
                      env=environment(shop, DISPLAY=display, QT_QPA_PLATFORM="xcb"))
        warm_up = time.monotonic() + seconds / 3
        memory = files = 0
        now = (0, 0)
        while share.is_left() and saver.poll() is None:
            now = _usage(saver)
            if time.monotonic() < warm_up:
                memory, files = max(memory, now[0]), max(files, now[1])
            else:
                row.count("it grows" if now[0] > memory + allowed or now[1] > files else None,
                          f"{now[0]} KiB after {memory}, {now[1]} open files after {files}")
            share.wait(1)
        row.note = f"{memory} KiB and {files} open files, at the end {now[0]} and {now[1]}"
        if saver.poll() is not None:
            row.count(f"code {saver.returncode}", "the saver ended by itself")
        elif end(saver, signal.SIGTERM) != 0:
            row.count(f"code {saver.returncode}", "at the end")
