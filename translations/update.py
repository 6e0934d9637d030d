#!/usr/bin/env python3
"""Brings the translations in this folder in step with the texts of the program.

update.py          takes new texts into each .ts file, unfinished, and drops those that are gone
update.py --check  changes nothing; lists what is out of date, unfinished or inconsistent, and fails
update.py --pseudo FILE  writes a translation into no language, each text one third longer
"""
import ast
import re
import subprocess
import sys
import tempfile
import textwrap
from pathlib import Path
from xml.etree import ElementTree
from xml.sax.saxutils import escape

FOLDER = Path(__file__).resolve().parent
SOURCES = FOLDER.parent / 'src'
CONTEXT = 'Starfolds'  # the program asks for a text without regard to its class
PLURAL_FORMS = 2  # of all languages so far
# What a translation must have as often as its text has it.
PLACES = re.compile(r'%n|%\d|</?[a-z]+>')
MARKED = re.compile(r'STARFOLDS_TEXT\(((?:\s*"(?:[^"\\]|\\.)*")+)\s*\)')
RANGE = re.compile(r'\([\d., XYZ-]*-[\d., XYZ-]*\)')


def find_lupdate():
    candidates = ['/usr/lib/qt6/bin/lupdate', 'lupdate-qt6', 'lupdate6', 'lupdate']
    for candidate in candidates:
        try:
            subprocess.run([candidate, '-version'], check=True, capture_output=True)
        except (OSError, subprocess.CalledProcessError):
            continue
        return candidate
    sys.exit('update.py: lupdate is not installed')


def read(file):
    """(text, comment, is plural) to its translations; an unfinished text has none."""
    texts = {}
    for message in ElementTree.parse(file).getroot().iter('message'):
        plural = message.get('numerus') == 'yes'
        key = (message.findtext('source') or '', message.findtext('comment') or '', plural)
        translation = message.find('translation')
        forms = [form.text or '' for form in translation.iter('numerusform')]
        if not plural:
            forms = [translation.text or '']
        texts.setdefault(key, [] if translation.get('type') or not all(forms) else forms)
    return texts


def extract():
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / 'texts.ts'
        # Its warnings are about contexts.
        subprocess.run(
            [find_lupdate(), '-silent', '-tr-function-alias', 'QT_TR_NOOP+=STARFOLDS_TEXT',
             '-I', SOURCES, '-locations', 'none', SOURCES, '-ts', file],
            check=True, capture_output=True)
        texts = list(read(file))
    complain_about_lost(texts)
    return texts


def complain_about_lost(texts):
    """lupdate drops a marked text outside of a namespace and of a class, often without a word."""
    known = {text for text, _, _ in texts}
    for file in [*SOURCES.rglob('*.h'), *SOURCES.rglob('*.cpp')]:
        for literals in MARKED.findall(file.read_text(encoding='utf-8')):
            text = ast.literal_eval(f'({literals})')
            if text and text not in known:
                sys.exit(f'update.py: {file.name}: lupdate does not find {text!r}')


def message(key, forms):
    text, comment, plural = key
    lines = [f'    <message{" numerus=" + chr(34) + "yes" + chr(34) if plural else ""}>',
             f'        <source>{escape(text)}</source>']
    if comment:
        lines.append(f'        <comment>{escape(comment)}</comment>')
    unfinished = '' if forms else ' type="unfinished"'
    if plural:
        shown = ''.join(f'<numerusform>{escape(form)}</numerusform>'
                        for form in forms or [''] * PLURAL_FORMS)
    else:
        shown = escape(forms[0]) if forms else ''
    lines.append(f'        <translation{unfinished}>{shown}</translation>')
    return '\n'.join(lines + ['    </message>\n'])


def write(file, language, texts):
    file.write_text(
        '<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n'
        f'<TS version="2.1" language="{language}" sourcelanguage="en">\n<context>\n'
        f'    <name>{CONTEXT}</name>\n'
        + ''.join(message(key, forms) for key, forms in texts.items()) + '</context>\n</TS>\n',
        encoding='utf-8')


def mnemonics(text):
    return len(re.findall('&', text.replace('&&', '')))


def faults(key, forms):
    text = key[0]
    if not forms:
        yield 'has no finished translation'
    for form in forms:
        if sorted(PLACES.findall(form)) != sorted(PLACES.findall(text)) and not key[2]:
            yield 'has other placeholders in the translation'
        if set(PLACES.findall(form)) - set(PLACES.findall(text)):
            yield 'has no place for a placeholder of the translation'
        if RANGE.findall(form) != RANGE.findall(text):
            yield 'has another range in the translation'
        if mnemonics(form) != mnemonics(text):
            yield 'has another number of mnemonics in the translation'
        if form.count('\n\n') != text.count('\n\n'):
            yield 'has another number of paragraphs in the translation'
        if len(form) - len(form.rstrip()) != len(text) - len(text.rstrip()) and ':' in text:
            yield 'ends in other blanks in the translation'


def check(file, known):
    texts = read(file)
    found = [f'{key[0]!r} is missing' for key in known if key not in texts]
    found += [f'{key[0]!r} is no text of the program' for key in texts if key not in known]
    found += [f'{key[0]!r} {fault}' for key in texts for fault in faults(key, texts[key])]
    for fault in found:
        print(f'{file.name}: {fault}')
    return not found


def pseudo(text):
    """In brackets, each line longer, in words that can wrap; places, mnemonics and markup are kept."""
    lines = []
    for line in text.split('\n'):
        more = textwrap.wrap('öüäx' * (len(line) // 3 // 4 + 1), 6)
        lines.append(line + (' ' + ' '.join(more))[:len(line) // 3])
    return '[' + '\n'.join(lines) + ']'


def main():
    known = extract()
    if '--pseudo' in sys.argv:
        write(Path(sys.argv[-1]), 'eo', {key: [pseudo(key[0])] * (PLURAL_FORMS if key[2] else 1)
                                         for key in known})
        return
    files = sorted(FOLDER.glob('starfolds_*.ts'))
    if '--check' in sys.argv:
        results = [check(file, known) for file in files]
        sys.exit(0 if all(results) else 'update.py: ./dev translate takes new texts in')
    for file in files:
        old = read(file)
        texts = {key: old.get(key, []) for key in known}
        write(file, file.stem.split('_', 1)[1], texts)
        print(f'{file.name}: {len(texts)} texts, {sum(not forms for forms in texts.values())} '
              'unfinished')


if __name__ == '__main__':
    main()
