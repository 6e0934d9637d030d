#!/usr/bin/env python3
"""Draws a flame graph of the saver: which functions the processor time of its frames goes to.

    perf record --call-graph dwarf -F 5000 -o DATA -p PROCESS -- sleep 5
    perf script -i DATA -F comm,ip,sym,dso | bench/flame_graph.py >graph.svg

Each box is a function, as wide as its share of the samples, above the one that called it. Boxes
narrower than a pixel are left out.
"""
import html
import re
import sys

WIDTH, ROW, FONT = 1000, 17, 11
DEPTH = 22  # calls shown from the first function that is not start-up code


class Node:
    def __init__(self):
        self.count = 0
        self.callees = {}


def short_name(symbol):
    """The name of a function without namespaces' usual parts, templates and arguments."""
    name = re.sub(r"starfolds::|\(anonymous namespace\)::|\[clone .*?\]", "", symbol)
    while (inner := re.sub(r"<[^<>]*>|\([^()]*\)", "", name)) != name:
        name = inner
    return name.strip().removesuffix(" const") or symbol


def stacks(lines):
    """The stacks of `perf script`, each from the outermost function to the innermost."""
    stack = []
    for line in lines:
        if not line.strip():
            if stack:
                yield stack[::-1]
            stack = []
        elif line[0].isspace():
            match = re.match(r"\s+[0-9a-f]+ (.*) \((.*)\)$", line)
            if match:
                symbol, library = match.groups()
                known = symbol != "[unknown]"
                stack.append(short_name(symbol) if known else library.rsplit("/", 1)[-1])


def fold(lines):
    root = Node()
    for stack in stacks(lines):
        first = next((i for i, name in enumerate(stack) if name == "UniverseRun"), None)
        if first is None:
            continue
        node = root
        node.count += 1
        for name in stack[first:first + DEPTH]:
            node = node.callees.setdefault(name, Node())
            node.count += 1
    return root


def boxes(name, node, left, level, total):
    yield name, node.count, left, level
    for callee, below in sorted(node.callees.items()):
        if below.count * WIDTH >= total:
            yield from boxes(callee, below, left, level + 1, total)
        left += below.count


def main():
    root = fold(sys.stdin)
    if root.count == 0:
        sys.exit("no samples of UniverseRun")
    shown = [box for name, node in root.callees.items()
             for box in boxes(name, node, 0, 0, root.count)]
    height = (max(level for *_, level in shown) + 1) * ROW
    print(f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" '
          f'font-family="sans-serif" font-size="{FONT}">')
    for name, count, left, level in shown:
        x, width = left / root.count * WIDTH, count / root.count * WIDTH
        y = height - (level + 1) * ROW
        text = html.escape(name)
        room = int(width / (FONT * 0.56))
        label = text if len(name) <= room else html.escape(name[:room - 1]) + "…" if room > 3 else ""
        hue = 20 + sum(map(ord, name)) % 35
        print(f'<rect x="{x:.1f}" y="{y}" width="{width:.1f}" height="{ROW - 1}" '
              f'fill="hsl({hue},85%,65%)"><title>{text} {count / root.count:.1%}</title></rect>')
        if label:
            print(f'<text x="{x + 3:.1f}" y="{y + ROW - 5}">{label}</text>')
    print("</svg>")


if __name__ == "__main__":
    main()
