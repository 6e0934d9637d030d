"""Random settings and mutated templates, for the renderer with sanitizers."""
import random
import re
import shlex

from common import CHECKED_RENDER, FAILURES, ROOT, environment, run

_RANGE = re.compile(r"^`(\w+)`: (-?\d+) to (-?\d+)", re.MULTILINE)
_ODD_NUMBERS = ("0", "-1", "1", "32767", "-32768", "65536", "2147483647", "-2147483648", "1e308",
                "-1e-308", "0.5", "999999999999999999999")
_ODD_TEXTS = (*_ODD_NUMBERS, "", "nan", "x", "True")
_ODD_BYTES = (b"=", b"\r\n", b"[", b"]", b"\0", b"\xff\xfe", b"999999999", b"-1", b"_0=",
              b"<img src=/dev/zero>", b"\xc3")


def _fault(code, err):
    text = err.decode(errors="replace")
    if code is None:
        return "it hangs"
    if code not in (0, 1, 2) or "Sanitizer" in text or "runtime error:" in text:
        return f"code {code}: {text.strip()[:500]}"
    return None


def _settings():
    """Names of settings with their ranges, from the help. `--set` knows no parts of a body."""
    text = "\n".join(path.read_text(encoding="utf-8")
                     for path in sorted((ROOT / "docs/help").glob("*.md")))
    return sorted({(name, int(low), int(high)) for name, low, high in _RANGE.findall(text)
                   if not name.startswith(("IFS_", "Atom_"))})


def _value(low, high):
    kind = random.random()
    if kind < 0.6:
        return str(random.randint(low, high))
    return str(random.choice((low, high, low - 1, high + 1))) if kind < 0.85 else random.choice(
        _ODD_NUMBERS)


def _place(name):
    """The body whose setting it is: one composite; one profile, or all of them."""
    if name.startswith("_CompFold"):
        return f"CompFold{random.randint(0, 15)}/"
    one = name.startswith("Starfold_") and random.random() < 0.3
    return f"Starfold{random.randint(0, 49)}/" if one else ""


def try_settings(row, share, shop, frames):
    settings = _settings()
    shown = 0
    while share.is_left():
        command = [CHECKED_RENDER, "--hash", "--size", "320x200", "--frames", frames, "--every",
                   frames, "--seed", random.getrandbits(64)]
        command += random.choice(([], ["--profile", random.randint(0, 49)],
                                  ["--composite", random.randint(0, 15)]))
        command += random.choice(([], ["--factory", random.randint(0, 1)],
                                  ["--theme", random.randint(1, 8)]))
        for name, low, high in random.sample(settings, random.randint(1, 40)):
            command += ["--set", f"{_place(name)}{name}={_value(low, high)}"]
        code, out, err = run(command, env=environment(shop))
        shown += bool(out)
        fault = _fault(code, err)
        if fault:
            fault += "; " + shlex.join(str(part) for part in command)
        row.count(fault, "settings")
    row.note = f"{len(settings)} settings, {frames} frames each; {shown} runs to the end"


def _mutated(data, other):
    """One of the usual mutations of a text of lines."""
    lines = data.splitlines(keepends=True) or [b""]
    at = random.randrange(len(lines))
    kind = random.randrange(8)
    if kind == 0:
        del lines[at:at + random.randint(1, 50)]
    elif kind == 1:
        lines.insert(at, random.choice(lines) * random.choice((1, 2, 3000)))
    elif kind == 2:
        lines[at] = lines[at].partition(b"=")[0] + b"=" + random.choice(_ODD_TEXTS).encode() + b"\r\n"
    elif kind == 3:
        random.shuffle(lines)
    elif kind == 4:
        return data[:random.randrange(len(data) + 1)]
    elif kind == 5:
        return data[:random.randrange(len(data) + 1)] + other[random.randrange(len(other) + 1):]
    else:
        changed = bytearray(data or b"\n")
        for _ in range(random.choice((1, 4, 64))):
            place = random.randrange(len(changed))
            if kind == 6:
                changed[place] ^= 1 << random.randrange(8)
            else:
                changed[place:place + random.randint(0, 3)] = random.choice(_ODD_BYTES)
        return bytes(changed)
    return b"".join(lines)


def mutate_templates(row, share, shop):
    originals = [path.read_bytes() for path in sorted((ROOT / "templates").glob("*.sfd"))]
    shown = 0
    while share.is_left():
        data = random.choice(originals)
        for _ in range(random.randint(1, 6)):
            data = _mutated(data, random.choice(originals))
        file = shop / "mutated.sfd"
        file.write_bytes(data)
        code, out, err = run([CHECKED_RENDER, "--template", file, "--hash", "--size", "320x200",
                              "--frames", "30", "--every", "30"], env=environment(shop))
        shown += bool(out)
        fault = _fault(code, err)
        if fault:
            FAILURES.mkdir(parents=True, exist_ok=True)
            kept = FAILURES / f"mutated-{row.trials}.sfd"
            kept.write_bytes(data)
            fault += f"; {kept}"
        row.count(fault, "template")
    row.note = f"{shown} shown, {row.trials - shown} refused with a message"
