#!/usr/bin/env python3
"""Makes every face of the exported functions from their one declaration.

The declarations stand in ../exports/*.api, in the order of their file names:

    include "commands/handset/phone_mode.h"     what the generated code needs
    group Test-mode start and phone modes    a heading in the public header
    /// Documentation, as it stands in the public header.
    command ReadMode(uint8_t *mode, uint32_t capacity);

`command X` gives QV_X on the default phone object and QV_X_MT with the port ahead of the same
arguments; both run merovane::commands::X(Phone&, ...). Behind the kind, in brackets:
    plain           no _MT twin
    decorated       no _MT twin, published under its stdcall-decorated name
    twin-decorated  the twin is published under its decorated name
`session X` gives QV_X alone, which runs merovane::library::X(...); [void] when it returns nothing.
`project X` is as `command X`, and runs merovane::nvproject::X(CFileParser*, ...) on the object's NV project, under that
operation's id; underscores in X do not count. Behind the kind, in brackets:
    plain           no _MT twin
    as F            runs F instead
    image           F takes an ImageContext behind the arguments
    holder          F takes what holds the project, and is reported under id 0
A line `family "module"` adds the rows that families/<module>.py makes of a table.

Written: exports.cpp, Merovane-x86.def and Merovane-x64.def for the module, Merovane-import-x86.def and
Merovane-import-x64.def for its import library, exports.map, exports-windows.txt, exports-linux.txt into --output;
with --headers, merovane.h and result_codes.h there; with --check nothing, but it fails when the headers
there are not what would be written.
"""
import argparse
import importlib.util
import pathlib
import re
import sys
from dataclasses import dataclass, field

HERE = pathlib.Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(HERE / "families"))  # a family may use another one's table
EXPORTS = HERE.parent / "exports"
SOURCE = HERE.parent.parent / "src"
# What may stand in brackets behind each kind, beside a project's "as F".
FLAGS = {"command": {"plain", "decorated", "twin-decorated"}, "session": {"void"},
         "project": {"plain", "image", "holder"}}


@dataclass
class Export:
    name: str                 # QV_...
    arguments: list           # [(C type with trailing space or '*', name)]
    documentation: list       # lines
    returns: str = "int32_t"
    body: str = ""            # C++ expression
    decorated: bool = False
    group: str = ""
    twin_of: str = ""

    def prototype(self, indent=""):
        arguments = ", ".join(kind + name for kind, name in self.arguments) or "void"
        return f"{self.returns} MEROVANE_CALL {self.name}({arguments})"

    @property
    def argument_bytes(self):
        # Every argument takes one stack slot of 4 bytes; there are no 64-bit ones.
        return 4 * len(self.arguments)

    @property
    def windows_name(self):
        return f"_{self.name}@{self.argument_bytes}" if self.decorated else self.name


@dataclass
class Api:
    includes: list = field(default_factory=list)
    exports: list = field(default_factory=list)
    group: str = ""

    def add(self, kind, flags, name, arguments, documentation, call=None):
        """`call` is the C++ expression of a command that is no function of the export's own name."""
        names = [argument for _, argument in arguments]

        def export(suffix, body, parameters, doc, decorated=False, twin_of=""):
            self.exports.append(Export(f"QV_{name}{suffix}", parameters, doc, body=body, decorated=decorated,
                                       group=self.group, twin_of=twin_of))

        if kind == "session":
            export("", f"library::{name}({', '.join(names)})", arguments, documentation)
            if "void" in flags:
                self.exports[-1].returns = "void"
            return
        if call is not None:
            pass
        elif kind == "command":
            call = f"commands::{name}({', '.join(['phone'] + names)})"
        else:
            function = next((flag[3:] for flag in flags if flag.startswith("as ")), name.replace("_", ""))
            project = "phone.project" if "holder" in flags else "phone.project.get()"
            context = ["library::ImageContextNow()"] if "image" in flags else []
            call = f"nvproject::{function}({', '.join([project] + names + context)})"
            operation = "0" if "holder" in flags else f"nvproject::operation::k{function}"
            call = f"library::RunProjectOperation({operation}, [&] {{ return {call}; }})"
        closure = "[&](auto& phone) { return " + call + "; }"
        export("", f"library::OnDefaultPhone({closure})", arguments, documentation, "decorated" in flags)
        if not {"plain", "decorated"} & flags:
            export("_MT", f"library::OnPhone(port, {closure})", [("int32_t ", "port")] + arguments,
                   [], "twin-decorated" in flags, twin_of=f"QV_{name}")


def parse_arguments(text, where):
    arguments = []
    for part in filter(None, (p.strip() for p in text.split(","))):
        if part == "void":
            continue
        match = re.fullmatch(r"((?:const )?\w+ \*?|(?:const )?\w+ \*const \*)(\w+)", part)
        if not match:
            sys.exit(f"{where}: cannot read the argument '{part}'")
        arguments.append((match[1], match[2]))
    return arguments


def read_api():
    api = Api()
    for path in sorted(EXPORTS.glob("*.api")):
        documentation, statement = [], ""
        for number, line in enumerate(path.read_text().splitlines(), 1):
            where = f"{path.name}:{number}"
            line = line.strip()
            if line.startswith("///"):
                documentation.append(line[4:])
            elif match := re.fullmatch(r'include "(.+)"', line):
                api.includes.append(match[1])
            elif match := re.fullmatch(r"group (.+)", line):
                api.group = match[1]
            elif match := re.fullmatch(r'family "(\w+)"', line):
                spec = importlib.util.spec_from_file_location(match[1], HERE / "families" / f"{match[1]}.py")
                module = importlib.util.module_from_spec(spec)
                spec.loader.exec_module(module)
                module.add_exports(api, SOURCE)
            elif line and not line.startswith("#"):
                statement += " " + line
                if not statement.endswith(";"):
                    continue
                match = re.fullmatch(r"\s*(command|session|project)(?:\[([\w, -]+)\])? (\w+)\((.*)\);",
                                     statement)
                if not match:
                    sys.exit(f"{where}: cannot read '{statement}'")
                flags = {flag.strip() for flag in match[2].split(",")} if match[2] else set()
                if unknown := {flag for flag in flags - FLAGS[match[1]]
                               if match[1] != "project" or not re.fullmatch(r"as \w+", flag)}:
                    sys.exit(f"{where}: a {match[1]} takes no '{unknown.pop()}'")
                api.add(match[1], flags, match[3], parse_arguments(match[4], where), documentation)
                documentation, statement = [], ""
        if statement:
            sys.exit(f"{path.name}: '{statement}' does not end")
    names = [export.name for export in api.exports]
    for name in {name for name in names if names.count(name) > 1}:
        sys.exit(f"{name} is declared twice")
    return api


def wrap_prototype(text):
    if len(text) <= 100:
        return text
    head, _, tail = text.partition("(")
    lines, line = [], " " * 4
    for part in tail.split(", "):
        if len(line) + len(part) + 1 > 100:
            lines.append(line.rstrip())
            line = " " * 4
        line += part + ", "
    return head + "(\n" + "\n".join(lines + [line[:-2]])


def header(api):
    out = [(HERE / "header_preamble.txt").read_text()]
    group = None
    for export in api.exports:
        if export.group != group:
            group = export.group
            out.append(f"\n/* ---- {group} {'-' * max(3, 80 - len(group))} */\n")
        if export.documentation:
            lines = export.documentation
            out.append("\n/** " + lines[0] + "".join(f"\n *{' ' if line else ''}{line}" for line in lines[1:]) + " */\n")
        elif not export.twin_of:
            out.append("\n")
        out.append(wrap_prototype("MEROVANE_API " + export.prototype() + ";") + "\n")
    out.append((HERE / "header_end.txt").read_text())
    return "".join(out)


def result_codes_header():
    rows = re.findall(r'RESULT\((\d+), (\w+), "(\w*)",\s*"(.*)"\)',
                      (SOURCE / "link" / "result_codes.def").read_text())
    if [int(row[0]) for row in rows] != list(range(40)):
        sys.exit("result_codes.def: the codes do not run from 0 to 39")
    out = ["/* The result codes: what every command returns. */\n#ifndef MEROVANE_RESULT_CODES_H\n"
           "#define MEROVANE_RESULT_CODES_H\n\ntypedef enum QV_RESULT {\n"]
    for code, _, name, meaning in rows:
        name = name or "QV_REFUSED"
        comma = "" if code == "39" else ","
        out.append(f"  /** {meaning[0].upper()}{meaning[1:]}. */\n  {name} = {code}{comma}\n")
    out.append("} QV_RESULT;\n\n#endif\n")
    return "".join(out)


def definitions(api):
    includes = "".join(f'#include "{path}"\n' for path in dict.fromkeys(api.includes))
    out = ['// Made by generate.py from exports/*.api.\n#define MEROVANE_BUILD\n#include "merovane/merovane.h"\n\n'
           '#include "library/export_frame.h"\n' + includes + "\nusing namespace merovane;\n\n"
           'extern "C" {\n\n']
    for export in api.exports:
        out.append(f"{export.prototype()} {{\n  return {export.body};\n}}\n\n")
    return "".join(out) + '}  // extern "C"\n'


def module_definition(api, stdcall):
    out = ["LIBRARY Merovane\nEXPORTS\n"]
    for export in api.exports:
        symbol = export.name + (f"@{export.argument_bytes}" if stdcall else "")
        out.append(f"  {export.windows_name} = {symbol}\n")
    return "".join(out)


def import_definition(api, stdcall):
    out = ["LIBRARY Merovane.dll\nEXPORTS\n"]
    for export in api.exports:
        symbol = export.name + (f"@{export.argument_bytes}" if stdcall else "")
        out.append(f"  {symbol} == {export.windows_name}\n")
    return "".join(out)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--output", type=pathlib.Path)
    parser.add_argument("--headers", type=pathlib.Path)
    parser.add_argument("--check", type=pathlib.Path)
    options = parser.parse_args()
    api = read_api()
    headers = {"merovane.h": header(api), "result_codes.h": result_codes_header()}
    if options.check:
        stale = [name for name, text in headers.items() if (options.check / name).read_text() != text]
        if stale:
            sys.exit(f"not what the declarations give: {', '.join(stale)} (run api/generate/generate.py --headers "
                     "include/merovane)")
    if options.headers:
        for name, text in headers.items():
            (options.headers / name).write_text(text)
    if options.output:
        options.output.mkdir(parents=True, exist_ok=True)
        files = {
            "exports.cpp": definitions(api),
            "Merovane-x86.def": module_definition(api, stdcall=True),
            "Merovane-x64.def": module_definition(api, stdcall=False),
            "Merovane-import-x86.def": import_definition(api, stdcall=True),
            "Merovane-import-x64.def": import_definition(api, stdcall=False),
            "exports.map": "{\n  global:\n" + "".join(f"    {e.name};\n" for e in api.exports) + "  local: *;\n};\n",
            "exports-windows.txt": "".join(f"{e.windows_name}\n" for e in api.exports),
            "exports-linux.txt": "".join(f"{e.name}\n" for e in api.exports),
        }
        for name, text in files.items():
            path = options.output / name
            if not path.exists() or path.read_text() != text:
                path.write_text(text)


if __name__ == "__main__":
    main()
