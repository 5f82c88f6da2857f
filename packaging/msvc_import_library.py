#!/usr/bin/env python3
"""Makes an import library for Microsoft's linker from a module definition.

A line "symbol == name" says how compilers call what the DLL exports under a name. LLVM's dlltool
does most of it. What it has no words for are names that are exported decorated: on 32 bits their
imports are marked afterwards, on 64 bits they get a second name.
"""

import argparse
import pathlib
import re
import struct
import subprocess

ARCHIVE_HEADER = struct.Struct("16s12s6s6s8s10s2s")
SHORT_IMPORT = struct.Struct("<HHHHIIHH")
SHORT_IMPORT_SIGNATURE = (0, 0xFFFF)
NAME_TYPE_SHIFT = 2
NAME_TYPE_MASK = 7 << NAME_TYPE_SHIFT
NAME_AS_IT_STANDS = 1 << NAME_TYPE_SHIFT


def exports(definition):
    """(symbol, name) of every export; equal where the definition gives a name only."""
    lines = definition.read_text().splitlines()
    words = (re.fullmatch(r"\s*(\S+)(?: == (\S+))?", line) for line in lines[lines.index("EXPORTS") + 1:])
    return [(word[1], word[2] or word[1]) for word in words if word]


def mark_decorated(library, names):
    """The imports of these names carry them as they stand, underscore and byte count included."""
    content = bytearray(library.read_bytes())
    offset = len(b"!<arch>\n")
    left = set(names)
    while offset < len(content):
        size = int(ARCHIVE_HEADER.unpack_from(content, offset)[5])
        member = offset + ARCHIVE_HEADER.size
        fields = list(SHORT_IMPORT.unpack_from(content, member))
        if tuple(fields[:2]) == SHORT_IMPORT_SIGNATURE:
            start = member + SHORT_IMPORT.size
            symbol = bytes(content[start:content.index(0, start)]).decode()
            if symbol in left:
                fields[-1] = fields[-1] & ~NAME_TYPE_MASK | NAME_AS_IT_STANDS
                SHORT_IMPORT.pack_into(content, member, *fields)
                left.remove(symbol)
        offset = member + size + size % 2
    if left:
        raise SystemExit(f"{library} does not import {', '.join(sorted(left))}")
    library.write_bytes(content)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--dlltool", required=True)
    parser.add_argument("--machine", required=True, choices=("x86", "x64"))
    parser.add_argument("--dll", required=True)
    parser.add_argument("definition", type=pathlib.Path)
    parser.add_argument("library", type=pathlib.Path)
    options = parser.parse_args()

    listed = exports(options.definition)
    lines = [f"LIBRARY {options.dll}", "EXPORTS"]
    if options.machine == "x86":
        lines += [symbol for symbol, _ in listed]
        machine = ["-m", "i386", "-k"]
    else:
        for symbol, name in listed:
            lines += [name] if symbol == name else [name, f"{symbol} == {name}"]
        machine = ["-m", "i386:x86-64"]
    said = options.library.with_suffix(".msvc.def")
    said.write_text("\n".join(lines) + "\n")
    subprocess.run([options.dlltool, *machine, "-d", said, "-l", options.library], check=True)
    if options.machine == "x86":
        mark_decorated(options.library, [name for _, name in listed if "@" in name])


if __name__ == "__main__":
    main()
