#!/usr/bin/env python3
"""Counts how the files of src/ include one another: lines by room, circles, and public headers that nobody needs.

A room is a folder of sources. A public header belongs to the room of its source file. A file here is a source with its header.
A circle is a group of files that reach one another by includes.
"""
import argparse
import collections
import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]', re.MULTILINE)


class Sources:
    def __init__(self, top):
        self.texts = {path.relative_to(top): path.read_text(encoding='utf-8')
                      for path in sorted(top.rglob('*')) if path.suffix in ('.cpp', '.h')}
        self.libraries = sorted((path.parent.relative_to(top) for path in top.rglob('CMakeLists.txt')
                                 if 'nivra_library(' in path.read_text() or 'add_library(' in path.read_text()),
                                key=lambda path: -len(path.parts))
        self.public = {'/'.join(path.parts[path.parts.index('include') + 1:]): path
                       for path in self.texts if self.is_public(path)}
        self.includes = {path: self._targets(path) for path in self.texts}
        self.rooms = {path: self._room(path) for path in self.texts}

    @staticmethod
    def is_public(path):
        return 'include' in path.parts

    def library(self, path):
        return next(folder for folder in self.libraries if folder in path.parents)

    def _room(self, path):
        if not self.is_public(path):
            return str(path.parent)
        library = self.library(path)
        beside = [other for other in self.texts
                  if other.stem == path.stem and other.suffix == '.cpp' and self.library(other) == library]
        return str(beside[0].parent if beside else library)

    def _targets(self, path):
        found = set()
        for name in INCLUDE.findall(self.texts[path]):
            for candidate in (path.parent / name, self.library(path) / name, self.public.get(name)):
                if candidate in self.texts and candidate != path:
                    found.add(candidate)
                    break
        return found

    def file(self, path):
        return self.rooms[path] + '/' + path.stem

    def file_graph(self):
        graph = collections.defaultdict(set)
        for path, targets in self.includes.items():
            graph[self.file(path)] |= {self.file(target) for target in targets} - {self.file(path)}
        return graph

    def needed_headers(self):
        """Public headers that another library includes, by itself or with another one."""
        needed = {target for path, targets in self.includes.items() for target in targets
                  if self.library(path) != self.library(target)}
        waiting = list(needed)
        while waiting:
            for target in self.includes[waiting.pop()] - needed:
                needed.add(target)
                waiting.append(target)
        return needed


def circles(graph):
    """Strongly connected components of more than one member (Tarjan 1972), without recursion."""
    index, low, stack, found = {}, {}, [], []
    for start in list(graph):
        if start in index:
            continue
        index[start] = low[start] = len(index)
        stack.append(start)
        work = [(start, iter(graph[start]))]
        while work:
            node, targets = work[-1]
            target = next(targets, None)
            if target is None:
                work.pop()
                if work:
                    low[work[-1][0]] = min(low[work[-1][0]], low[node])
                if low[node] == index[node]:
                    group = stack[stack.index(node):]
                    del stack[stack.index(node):]
                    if len(group) > 1:
                        found.append(sorted(group))
            elif target not in index:
                index[target] = low[target] = len(index)
                stack.append(target)
                work.append((target, iter(graph[target])))
            elif target in stack:
                low[node] = min(low[node], index[target])
    return sorted(found)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument('--source', type=pathlib.Path, default=pathlib.Path(__file__).resolve().parent.parent / 'src')
    parser.add_argument('--check', action='store_true',
                        help='fail on a circle between rooms and on a public header that no other library includes')
    wanted = parser.parse_args()
    sources = Sources(wanted.source)

    lines = collections.Counter()
    files = collections.Counter(sources.rooms.values())
    for path, text in sources.texts.items():
        lines[sources.rooms[path]] += text.count('\n')
    print(f'{"room":<28}{"files":>6}{"lines":>8}')
    for room in sorted(lines):
        print(f'{room:<28}{files[room]:>6}{lines[room]:>8}')
    print(f'{"all":<28}{sum(files.values()):>6}{sum(lines.values()):>8}\n')

    inside, between = [], []
    for group in circles(sources.file_graph()):
        (between if len({name.rpartition('/')[0] for name in group}) > 1 else inside).append(group)
    for title, groups in (('inside of a room', inside), ('between rooms', between)):
        print(f'circles of files {title}: {len(groups)}')
        for group in groups:
            print('  ' + ', '.join(group))

    public = set(sources.public.values())
    # The generated forms name headers too.
    forms = ' '.join(path.read_text(encoding='utf-8') for path in wanted.source.rglob('*.ui'))
    unneeded = sorted(path for path in public - sources.needed_headers()
                      if '/'.join(path.parts[path.parts.index('include') + 1:]) not in forms)
    print(f'public headers: {len(public)} of {sum(path.suffix == ".h" for path in sources.texts)}, '
          f'of which no other library needs {len(unneeded)}')
    for path in unneeded:
        print(f'  {path}')
    return 1 if wanted.check and (between or unneeded) else 0


if __name__ == '__main__':
    sys.exit(main())
