"""The system calls of a save, recorded by strace, and a model of the disk that they change."""
import re

SECTOR = 512  # bytes that a disk writes completely or not at all

CALLS = ("openat,pread64,pwrite64,write,lseek,fsync,fdatasync,ftruncate,fcntl,close,fchmod,"
         "?rename,?renameat,?renameat2,?unlink,?unlinkat,?link,?linkat,?mkdir,?mkdirat")

_LINE = re.compile(r"(\w+)\((.*)\)\s+= (-?\d+)")
_TEXT = re.compile(r'"((?:\\x[0-9a-f]{2})*)"')


class Call:
    def __init__(self, line):
        parts = _LINE.match(line)
        # A call that did not return, such as the last one of a killed process.
        self.name, arguments, result = parts.groups() if parts else ("", "", "-1")
        self.result = int(result)
        self.texts = [bytes.fromhex(text.replace("\\x", "")) for text in _TEXT.findall(arguments)]
        self.arguments = [part.strip() for part in _TEXT.sub("text", arguments).split(",")]

    def number(self, index):
        return int(self.arguments[index])

    def path(self, index=0):
        return self.texts[index].decode(errors="surrogateescape")


def record(operation):
    """The calls of an operation, and the range of those that belong to its save: from the first one
    that names its folder to the message of success or the end."""
    trace = operation.shop / "trace"
    trace.mkdir(exist_ok=True)
    operation.reset()
    code, _, err = operation.run(["strace", "-ff", "--seccomp-bpf", "-qq", "-xx", "-s", "10000000",
                                  "-o", trace / "of", "-e", f"trace={CALLS}"])
    if code != 0:
        raise RuntimeError(f"strace: code {code}, {err.decode(errors='replace')}")
    longest = max(trace.iterdir(), key=lambda path: path.stat().st_size)
    calls = [Call(line) for line in longest.read_text(encoding="ascii").splitlines()]
    for path in trace.iterdir():
        path.unlink()
    folder = str(operation.target)
    begin = next(i for i, call in enumerate(calls)
                 if call.texts and call.path().startswith(folder))
    finish = next((i for i, call in enumerate(calls)
                   if call.name == "write" and call.arguments[0] == "1"), len(calls))
    return calls, begin, finish


class Inode:
    def __init__(self, data=b""):
        self.durable = bytearray(data)
        self.pending = []  # (offset, bytes), or (length, None) for a change of the length


def apply(data, change):
    offset, new = change
    if new is None:
        del data[offset:]
        data.extend(bytes(offset - len(data)))
        return
    data.extend(bytes(max(0, offset - len(data))))
    data[offset:offset + len(new)] = new


class Disk:
    """The files of a folder as a disk has them. What was not flushed may be lost by a power failure:
    any of the writes to a file, and the end of one; the names in the order of their changes."""

    def __init__(self, folder):
        self.folder = str(folder)
        self.names = {str(path): Inode(path.read_bytes())
                      for path in folder.rglob("*") if path.is_file()}
        self.durable_names = dict(self.names)
        self.pending_names = []  # (path, Inode or None), in order
        self.open = {}  # descriptor: [Inode or None for a folder, position]

    def do(self, call):
        action = getattr(self, "do_" + call.name, None)
        if action and call.result >= 0:
            action(call)

    def name(self, path, inode):
        if path.startswith(self.folder):
            if inode is None:
                self.names.pop(path, None)
            else:
                self.names[path] = inode
            self.pending_names.append((path, inode))

    def do_openat(self, call):
        path, flags = call.path(), call.arguments[2]
        if not path.startswith(self.folder):
            self.open.pop(call.result, None)
        elif "O_TMPFILE" in flags:
            self.open[call.result] = [Inode(), 0]
        else:
            if path not in self.names and "O_CREAT" in flags:
                self.name(path, Inode())
            inode = self.names.get(path)  # None for a folder
            if inode and "O_TRUNC" in flags:
                inode.pending.append((0, None))
            self.open[call.result] = [inode, 0]

    def do_fcntl(self, call):
        if "F_DUPFD" in call.arguments[1] and call.number(0) in self.open:
            self.open[call.result] = self.open[call.number(0)]

    def do_close(self, call):
        self.open.pop(call.number(0), None)

    def do_lseek(self, call):
        if call.number(0) in self.open:
            self.open[call.number(0)][1] = call.result

    def do_write(self, call):
        file = self.open.get(call.number(0))
        if file and file[0]:
            file[0].pending.append((file[1], call.texts[0][:call.result]))
            file[1] += call.result

    def do_pwrite64(self, call):
        file = self.open.get(call.number(0))
        if file and file[0]:
            file[0].pending.append((call.number(3), call.texts[0][:call.result]))

    def do_ftruncate(self, call):
        file = self.open.get(call.number(0))
        if file and file[0]:
            file[0].pending.append((call.number(1), None))

    def do_fsync(self, call):
        file = self.open.get(call.number(0))
        if not file:
            return
        if file[0] is None:  # all names are in one folder
            for path, inode in self.pending_names:
                self._set(self.durable_names, path, inode)
            self.pending_names.clear()
            return
        for change in file[0].pending:
            apply(file[0].durable, change)
        file[0].pending.clear()

    do_fdatasync = do_fsync

    def do_rename(self, call):
        inode = self.names.get(call.path())
        if inode:
            # One change for a journal of the file system, so that no failure comes in between.
            self.names.pop(call.path())
            self.name(call.path(1), inode)
            self.pending_names.append((call.path(), None))

    do_renameat = do_renameat2 = do_rename

    def do_unlink(self, call):
        self.name(call.path(), None)

    do_unlinkat = do_unlink

    def do_linkat(self, call):
        old = call.path()
        number = old.removeprefix("/proc/self/fd/")
        inode = self.open[int(number)][0] if number != old else self.names.get(old)
        self.name(call.path(1), inode)

    @staticmethod
    def _set(names, path, inode):
        if inode is None:
            names.pop(path, None)
        else:
            names[path] = inode

    def after_power_failure(self, random):
        """The files by path, with a random part of what was not flushed."""
        names = dict(self.durable_names)
        for path, inode in self.pending_names[:random.randint(0, len(self.pending_names))]:
            self._set(names, path, inode)
        kept = random.choice((0.0, 0.5, 0.9, 1.0))
        return {path: self._contents(inode, kept, random) for path, inode in names.items()}

    @staticmethod
    def _contents(inode, kept, random):
        data = bytearray(inode.durable)
        for offset, new in inode.pending:
            if random.random() > kept:
                continue
            if new is not None and random.random() < 0.2:
                new = new[:random.randint(0, len(new) // SECTOR) * SECTOR]
            apply(data, (offset, new))
        return bytes(data)
