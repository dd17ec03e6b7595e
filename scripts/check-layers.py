#!/usr/bin/env python3
"""Checks the layers of src/: no upward include and no cycle between folders.

Layers, lowest first:
  0  src/core/document
  1  src/core/<other areas>
  2  src/ui/<area>        (ui/shell included)
  3  src/app, src/cli

A file may include headers of its own layer or of lower ones. Folders of one layer may
include each other only as long as that makes no cycle.

    scripts/check-layers.py [SRC_DIR]     exit 0 when clean, 1 with a list of offences
"""
import os
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)


def folder_of(path):
    """'core/board', 'ui/shell', 'app', 'cli' for a path below src/."""
    parts = path.split('/')
    if parts[0] in ('core', 'ui') and len(parts) > 2:
        return parts[0] + '/' + parts[1]
    return parts[0]


def rank(folder):
    if folder == 'core/document':
        return 0
    if folder.startswith('core/'):
        return 1
    if folder.startswith('ui/'):
        return 2
    return 3


def resolve(src, including_folder, header):
    """The folder (below src/) a quoted include resolves to, or None for generated
    and unknown headers. Core headers are found below src/core, the others below src."""
    if os.path.isfile(os.path.join(src, including_folder, header)):
        return including_folder  # a header beside the including file
    if os.path.isfile(os.path.join(src, 'core', header)):
        return folder_of('core/' + header)
    if os.path.isfile(os.path.join(src, header)):
        return folder_of(header)
    return None


def main():
    src = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), '..', 'src'))
    offences = []
    graph = {}
    for root, _, files in os.walk(src):
        for name in sorted(files):
            if not name.endswith(('.h', '.cpp')):
                continue
            path = os.path.relpath(os.path.join(root, name), src)
            folder = folder_of(path)
            with open(os.path.join(root, name), encoding='utf-8') as f:
                text = f.read()
            for header in INCLUDE.findall(text):
                target = resolve(src, os.path.dirname(path), header)
                if target is None or target == folder:
                    continue
                if folder.startswith('core/') and not os.path.isfile(os.path.join(src, 'core', header)) \
                        and not os.path.isfile(os.path.join(src, os.path.dirname(path), header)):
                    offences.append(f'{path}: includes "{header}", which is not a core header')
                    continue
                if rank(target) > rank(folder):
                    offences.append(f'{path}: includes "{header}" of a higher layer ({target})')
                graph.setdefault(folder, set()).add(target)

    # Cycles between folders, by depth-first search.
    state = {}

    def visit(node, trail):
        state[node] = 'open'
        for nxt in sorted(graph.get(node, ())):
            if state.get(nxt) == 'open':
                cycle = trail[trail.index(nxt):] + [nxt] if nxt in trail else [node, nxt]
                offences.append('folder cycle: ' + ' -> '.join(cycle))
            elif nxt not in state:
                visit(nxt, trail + [nxt])
        state[node] = 'done'

    for node in sorted(graph):
        if node not in state:
            visit(node, [node])

    for line in offences:
        print(line)
    if offences:
        return 1
    print(f'layers clean: {len(graph)} folders, no upward include, no cycle')
    return 0


if __name__ == '__main__':
    sys.exit(main())
