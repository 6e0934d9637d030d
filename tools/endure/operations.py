"""The saves that the trials interrupt. Each knows the state before and after it."""
import shutil
import signal
import sqlite3
import subprocess
import threading

from common import PATIENCE, RENDER, ROOT, SAVER, end, environment, run, start, wait

OLD_TEMPLATE = ROOT / "templates/clockwork.sfd"
NEW_TEMPLATE = ROOT / "templates/fern-house.sfd"


class Operation:
    """A save of files in a folder. `snapshot` holds the folder before it, `shop` all other files."""

    def __init__(self, shop):
        self.shop = shop
        self.snapshot = shop / "before"
        self.target = shop / "target"

    def reset(self, target=None):
        """Puts the state before the save into the folder, and uses it from now on."""
        self.target = target or self.target
        shutil.rmtree(self.target, ignore_errors=True)
        shutil.copytree(self.snapshot, self.target)

    def files(self):
        return {path.name: path.read_bytes() for path in self.target.rglob("*") if path.is_file()}


class TreeSave(Operation):
    """The import of a template into the stored tree, by the program. With `first` there is no tree
    before, so that all bodies are stored as well."""

    def __init__(self, shop, first=False):
        super().__init__(shop)
        self.snapshot.mkdir(parents=True)
        if not first:
            self.reset()
            self._import(OLD_TEMPLATE, [])
            shutil.copytree(self.target, self.snapshot, dirs_exist_ok=True)
        self.old = [None, []] if first else [self._rows(self.snapshot)]
        self.reset()
        code, _, err = self.run()
        if code != 0:
            raise RuntimeError(f"cannot import {NEW_TEMPLATE}: {err.decode(errors='replace')}")
        self.new = self._rows(self.target)
        self.former = [data for name, data in self.files().items() if name.endswith(".sfd")]
        if self.new in self.old:
            raise RuntimeError("the import changes nothing")

    def _import(self, template, prefix):
        """Imports, and ends the saver that runs after it. Returns exit code (0: it says that the
        template is stored), standard output and standard error."""
        env = environment(self.shop / "home", XDG_CONFIG_HOME=str(self.target))
        process = start([*prefix, SAVER, template], env=env, stdout=subprocess.PIPE,
                        stderr=subprocess.PIPE)
        hung = threading.Event()
        watchdog = threading.Timer(PATIENCE, lambda: (hung.set(), end(process)))
        watchdog.start()
        first_line = process.stdout.readline()  # empty if the process ends without one
        watchdog.cancel()
        code = end(process, signal.SIGTERM) if first_line else wait(process)
        rest, err = process.communicate()
        return None if hung.is_set() else code, first_line + rest, err

    def run(self, prefix=()):
        return self._import(NEW_TEMPLATE, prefix)

    def _rows(self, folder):
        """The contents of the tree; None without a file."""
        file = folder / "Tessellane/settings.db"
        if not file.exists():
            return None
        tree = sqlite3.connect(file)
        try:
            if not tree.execute("SELECT 1 FROM sqlite_schema WHERE name = 'tree'").fetchone():
                return []
            return tree.execute("SELECT path, name, text FROM tree ORDER BY path, name").fetchall()
        finally:
            tree.close()

    def fault(self, only=None):
        """What is wrong with the folder now; None if it holds the state before or after the save.
        With `only` the state must be "old" or "new"."""
        env = environment(self.shop / "home", XDG_CONFIG_HOME=str(self.target))
        code, _, err = run([RENDER, "--stored", "--save", self.shop / "read.sfd"], env=env)
        if code != 0 or err:
            return f"the program cannot read the tree (code {code}): {err.decode(errors='replace')}"
        try:
            rows = self._rows(self.target)
        except sqlite3.Error as error:
            return f"the tree cannot be read: {error}"
        states = {"old": self.old, "new": [self.new]}.get(only, [*self.old, self.new])
        if rows not in states:
            return f"the tree is neither old nor new ({len(rows or [])} values), or not {only}"
        for name, data in self.files().items():
            if name.endswith(".sfd") and data not in self.former:
                return f"{name} is incomplete"
            if not name.endswith(".sfd") and name not in ("settings.db", "settings.db-journal"):
                return f"{name} is left behind"
        return None


class FileSave(Operation):
    """The replacement of a template and a picture, by the renderer."""

    NAMES = ("saved.sfd", "saved.png")

    def __init__(self, shop):
        super().__init__(shop)
        self.snapshot.mkdir(parents=True)
        self.reset()
        self._render(["--theme", "2"], [])
        shutil.copytree(self.target, self.snapshot, dirs_exist_ok=True)
        self.old = self.files()
        code, _, err = self.run()
        self.new = self.files()
        if code != 0 or any(self.old[name] == self.new[name] for name in self.NAMES):
            raise RuntimeError(f"cannot replace the files: {err.decode(errors='replace')}")

    def _render(self, settings, prefix):
        return run([*prefix, RENDER, *settings, "--size", "640x360", "--frames", "6",
                    "--save", self.target / self.NAMES[0], "--sheet", self.target / self.NAMES[1]],
                   env=environment(self.shop / "home"))

    def run(self, prefix=()):
        return self._render(["--factory", "1"], prefix)

    def fault(self, only=None):
        now = self.files()
        for name in self.NAMES:
            states = {"old": [self.old[name]], "new": [self.new[name]]}.get(
                only, [self.old[name], self.new[name]])
            if now.pop(name, None) not in states:
                return f"{name} is neither old nor new, or not {only}"
        # Killed between the two steps of a replacement, a complete file may remain beside the old.
        if any(data not in self.new.values() for data in now.values()):
            return f"an incomplete file is left behind: {', '.join(now)}"
        return None
