#!/usr/bin/env python3
"""lean_link.py COMMAND...: runs a link command of MinGW-w64's GCC so that functions which nothing uses
are left out.

--gc-sections alone has no effect: GNU ld keeps all unwind tables (.pdata, .xdata), and each refers to
its function. So the program is linked twice. The first link treats the tables as unused and only tells
which functions are used; the second one keeps the tables of these and drops all others.
"""

import re
import subprocess
import sys
import tempfile
from pathlib import Path

TABLES = ('.pdata', '.xdata')
CODE = '.text'
# Handlers of exceptions, to which only the tables refer.
HANDLERS = ('__gxx_personality_seh0', '__C_specific_handler')
MOST_LINKS = 5  # the second one is hardly ever repeated

SECTION = re.compile(r'^ (\.text[.$]\S+)\s+0x[0-9a-f]+\s+0x([0-9a-f]+)', re.MULTILINE)


def fail(message):
    sys.exit(f'lean_link.py: {message}')


def run(command):
    code = subprocess.run(command, check=False).returncode
    if code != 0:
        sys.exit(code)


def default_script(compiler):
    """The linker's own script for 64-bit programs."""
    linker = subprocess.run([compiler, '-print-prog-name=ld'], check=True, capture_output=True, text=True)
    told = subprocess.run([linker.stdout.strip(), '--verbose'], check=True, capture_output=True, text=True)
    return told.stdout.split('=' * 50)[1].lstrip('=')


def with_tables(script, patterns):
    """The script with other patterns for the input of the unwind tables."""
    for table in TABLES:
        kept = f'KEEP(*({table}*))'
        if kept not in script:
            fail(f'the script of the linker has no {kept}')
        script = script.replace(kept, patterns(table))
    return script


def script_for(script, used, unused):
    """The script that keeps the tables of the used functions, and drops those of the unused ones."""
    def patterns(table):
        names = [table] + [table + name for name in sorted(used)]
        return '\n'.join(f'KEEP(*({name}))' for name in names)

    dropped = ' '.join(f'*({table}{name})' for name in sorted(unused) for table in TABLES)
    start = script.index('{', script.index('SECTIONS')) + 1
    return with_tables(script[:start] + f'\n/DISCARD/ : {{ {dropped} }}\n' + script[start:], patterns)


def functions_of(link_map):
    """The names of used and of unused functions, as they follow the name of a section. A name that is
    used in one file is used; one without any code is not."""
    dropped, kept = link_map.read_text(errors='replace').split('\nLinker script and memory map\n')
    linked = SECTION.findall(re.sub(r'(\S)\n\s+0x', r'\1 0x', kept))
    used = {name[len(CODE):] for name, size in linked if int(size, 16)}
    unused = {name[len(CODE):] for name, _ in linked}
    unused |= {line.split()[0][len(CODE):] for line in dropped.splitlines() if line.startswith(' .text')}
    return used, unused - used - {''}


def main():
    command = sys.argv[1:]
    script = default_script(command[0])
    with tempfile.TemporaryDirectory() as folder:
        file, link_map = Path(folder) / 'script', Path(folder) / 'map'
        options = [f'-Wl,-T,{file}', f'-Wl,-Map,{link_map}', '-Wl,--gc-sections']
        # Not to be run: its tables refer to functions that are not there.
        trial = ['-Wl,--noinhibit-exec', '-o', str(Path(folder) / 'program')]
        file.write_text(with_tables(script, lambda table: f'*({table}*)'))
        run(command + options + trial + [f'-Wl,-u,{handler}' for handler in HANDLERS])
        used, unused = functions_of(link_map)
        for _ in range(MOST_LINKS):
            file.write_text(script_for(script, used, unused))
            run(command + options)
            linked, _ = functions_of(link_map)
            if not linked & unused:  # none of the functions lacks its tables
                return
            used, unused = used | linked, unused - linked
        fail('the used functions cannot be told')


main()
