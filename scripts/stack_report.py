"""Worst stack of every exported function, from the call graphs that gcc writes with -fcallgraph-info=su,da.

A call through a pointer may reach every function whose address the objects take. Such calls nest: an entry calls a
family, which runs a form, which runs the form of a list item, and so on; paths with up to --indirect of them count.
The C library's own frames are not counted.
"""

import argparse
import functools
import pathlib
import re
import subprocess
import sys

NODE = re.compile(r'node: \{ title: "([^"]*)" label: "([^"]*)"')
EDGE = re.compile(r'edge: \{ sourcename: "([^"]*)" targetname: "([^"]*)"')
FRAME = re.compile(r"(\d+) bytes \(([a-z,]+)\)")
# A relocation's type and symbol; calls and unwind tables do not take an address.
RELOCATION = re.compile(r"^[0-9a-f]+ +[0-9a-f]+ (R_ARM_\w+) +[0-9a-f]+ +(\S+)")
NO_ADDRESS = {"R_ARM_CALL", "R_ARM_JUMP24", "R_ARM_THM_CALL", "R_ARM_THM_JUMP24", "R_ARM_PLT32", "R_ARM_PREL31"}
INDIRECT = "__indirect_call"


class Graph:
    def __init__(self):
        self.frames = {}
        self.names = {}
        self.calls = {}
        self.dynamic = []

    def read(self, path):
        text = path.read_text()
        for title, label in NODE.findall(text):
            frame = FRAME.search(label)
            if not frame:
                continue
            self.frames[title] = int(frame[1])
            name = label.split("\\n")[0]
            self.names[title] = title if name == ")" else name  # gcc loses the names of variadic functions
            if frame[2] == "dynamic":
                self.dynamic.append(self.names[title])
        for caller, callee in EDGE.findall(text):
            self.calls.setdefault(caller, set()).add(callee)


def address_taken(objects, readelf, graph):
    """Titles of the functions whose address some object takes. Local functions have the file before their name."""
    by_symbol = {}
    for title in graph.frames:
        by_symbol.setdefault(title.split(":")[-1], []).append(title)
    listing = subprocess.run([readelf, "-rW", *objects], check=True, capture_output=True, text=True).stdout
    taken = set()
    for line in listing.splitlines():
        found = RELOCATION.match(line)
        if found and found[1] not in NO_ADDRESS:
            taken.update(by_symbol.get(found[2].removeprefix(".text."), []))
    return taken


def worst_stacks(graph, taken, depth):
    """A function from (title, indirect calls left) to (bytes, path)."""
    on_path = []

    @functools.lru_cache(maxsize=None)
    def worst(title, left):
        if (title, left) in on_path:
            sys.exit(f"recursion: {' > '.join(graph.names[t] for t, _ in on_path)} > {graph.names[title]}")
        on_path.append((title, left))
        deepest, path = 0, ()
        for callee in graph.calls.get(title, ()):
            if callee != INDIRECT:
                reached = [worst(callee, left)] if callee in graph.frames else []
            else:
                reached = [worst(target, left - 1) for target in taken] if left > 0 else []
            deepest, path = max([(deepest, path), *reached])
        on_path.pop()
        return deepest + graph.frames[title], (title, *path)

    return lambda title: worst(title, depth)


def exported_names(directory):
    lines = (line.strip() for file in sorted(directory.glob("*.txt")) for line in file.read_text().splitlines())
    return [line for line in lines if line and not line.startswith("#")]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", type=pathlib.Path, help="build directory with objects and .ci files")
    parser.add_argument("--exports", type=pathlib.Path, required=True, help="directory of the lists of exported names")
    parser.add_argument("--limit", type=int, required=True, help="bytes that no function may exceed")
    parser.add_argument("--readelf", default="readelf")
    parser.add_argument("--indirect", type=int, default=4, help="nested calls through pointers")
    options = parser.parse_args()
    sys.setrecursionlimit(10000)

    graph = Graph()
    for file in options.build.rglob("*.ci"):
        graph.read(file)
    taken = address_taken(sorted(options.build.rglob("*.o")), options.readelf, graph)
    worst = worst_stacks(graph, taken, options.indirect)

    exported = exported_names(options.exports)
    missing = [name for name in exported if name not in graph.frames]
    if missing or not exported:
        sys.exit(f"not in the call graph: {', '.join(missing) or 'every exported name'}")
    if graph.dynamic:
        sys.exit(f"frames of unknown size: {', '.join(graph.dynamic)}")

    table = sorted(((*worst(name), name) for name in exported), reverse=True)
    print(f"Deepest stacks of {len(exported)} exported functions, {len(taken)} possible targets of pointers:")
    for size, _, name in table[:10]:
        print(f"{size:8} {name}")
    print("The deepest path:")
    for title in table[0][1]:
        print(f"{graph.frames[title]:8} {graph.names[title]}")
    if table[0][0] > options.limit:
        sys.exit(f"over the limit of {options.limit} bytes")


main()
