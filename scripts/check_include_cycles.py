#!/usr/bin/env python3
"""Fails when the units of a folder include each other in a circle.

A unit is a header with its .cpp (core/editing.h and core/editing.cpp are the unit
core/editing). Unit A depends on unit B when either file of A has an `#include "..."`
line that names B's header. Only units of the folder itself count; includes of other
folders are passed over.

    scripts/check_include_cycles.py core typesetter     (folders from the source root)
    scripts/check_include_cycles.py                     (the folders kept free of circles)
    scripts/check_include_cycles.py --root DIR FOLDER...  (folders of another tree)

Prints each circle found and exits 1; exits 0 when there is none.
"""
import os
import re
import sys

# The folders that ./test.sh and ctest keep free of circles.
CHECKED_FOLDERS = ["core", "typesetter"]

INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
SOURCE_ENDINGS = (".h", ".hpp", ".cpp", ".cc", ".inc")


def unit_of(path):
    return os.path.splitext(path)[0]


def read_graph(root, folder):
    """The units of root/folder and, for each, the set of units of that folder it uses."""
    graph = {}
    base = os.path.join(root, folder)
    for directory, _, files in os.walk(base):
        for name in sorted(files):
            if not name.endswith(SOURCE_ENDINGS):
                continue
            path = os.path.join(directory, name)
            relative = os.path.relpath(path, root).replace(os.sep, "/")
            unit = unit_of(relative)
            uses = graph.setdefault(unit, set())
            with open(path, encoding="utf-8", errors="replace") as source:
                for included in INCLUDE.findall(source.read()):
                    target = included if "/" in included else os.path.join(
                        os.path.dirname(relative), included).replace(os.sep, "/")
                    if target.startswith(folder.rstrip("/") + "/") and target.endswith((".h", ".hpp")):
                        uses.add(unit_of(target))
    for unit in graph:
        graph[unit].discard(unit)
    return graph


def circles(graph):
    """The strongly connected parts of more than one unit (Tarjan, without recursion)."""
    index = {}
    low = {}
    stack = []
    on_stack = set()
    found = []
    counter = 0
    for start in sorted(graph):
        if start in index:
            continue
        work = [(start, iter(sorted(graph.get(start, ()))))]
        index[start] = low[start] = counter
        counter += 1
        stack.append(start)
        on_stack.add(start)
        while work:
            node, children = work[-1]
            child = next(children, None)
            if child is not None:
                if child not in index:
                    index[child] = low[child] = counter
                    counter += 1
                    stack.append(child)
                    on_stack.add(child)
                    work.append((child, iter(sorted(graph.get(child, ())))))
                elif child in on_stack:
                    low[node] = min(low[node], index[child])
                continue
            work.pop()
            if work:
                parent = work[-1][0]
                low[parent] = min(low[parent], low[node])
            if low[node] == index[node]:
                part = []
                while True:
                    member = stack.pop()
                    on_stack.discard(member)
                    part.append(member)
                    if member == node:
                        break
                if len(part) > 1:
                    found.append(sorted(part))
    return found


def main(arguments):
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    if len(arguments) >= 2 and arguments[0] == "--root":
        root = arguments[1]
        arguments = arguments[2:]
    if not arguments:
        arguments = CHECKED_FOLDERS
    if any(a.startswith("-") for a in arguments):
        print(__doc__.strip(), file=sys.stderr)
        return 2
    status = 0
    for folder in arguments:
        if not os.path.isdir(os.path.join(root, folder)):
            print(f"no folder {folder}", file=sys.stderr)
            return 2
        graph = read_graph(root, folder)
        found = circles(graph)
        for part in found:
            status = 1
            print(f"{folder}: units that include each other in a circle:")
            for unit in part:
                uses = sorted(u for u in graph[unit] if u in part)
                print(f"  {unit} -> {', '.join(uses)}")
        if not found:
            print(f"{folder}: no circle among {len(graph)} units")
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
