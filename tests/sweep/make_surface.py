#!/usr/bin/env python3
"""make_surface.py API_JSON OUTPUT: every exported function as a row that the sweep can call (surface.h)."""
import json
import pathlib
import re
import sys

ROLES = {"in": "In", "out": "Out", "inout": "InOut"}
LARGEST = {"uint8_t": (0, 2**8 - 1), "uint16_t": (0, 2**16 - 1), "uint32_t": (0, 2**32 - 1), "int32_t": (-2**31, 2**31 - 1)}


def extent(argument, arguments):
    text = argument["extent"]
    if not text or text == "...":
        return "nullptr"
    for place, other in enumerate(arguments):
        if other["direction"] == "value":
            value = f"static_cast<{other['c_type']}>(w[{place}])"
        else:
            value = f"reinterpret_cast<{other['c_type']}>(w[{place}])"
        text = re.sub(rf"(?<!\w){other['name']}(?!\w)", value, text)
    return f"[](Words{' w' if 'w[' in text else ''}) -> std::size_t {{ return static_cast<std::size_t>({text}); }}"


def row(argument, arguments):
    c_type = argument["c_type"]
    value = argument["direction"] == "value"
    element = c_type if value else c_type.removeprefix("const ").rstrip("* ")
    low, high = LARGEST.get(element, (0, 0)) if value else (0, 0)
    bounded = value and (argument["minimum"] is not None or argument["maximum"] is not None)
    if argument["minimum"] is not None:
        low = argument["minimum"]
    if argument["maximum"] is not None:
        high = argument["maximum"]
    if argument["one_of"]:
        low = high = argument["one_of"][0]
    if value:
        # Of an event and of an address only null can be made up.
        role = {"ms": "Duration", "event": "Handle", "word": "Handle"}.get(argument["type"], "Number")
    else:
        role = "Text" if argument["type"] == "text" else ROLES[argument["direction"]]
    if role == "Duration":
        low = 1 if "without end" in argument["documentation"] else 0
    is_count = any(other["extent"] and re.search(rf"(?<!\w){argument['name']}(?!\w)", other["extent"]) for other in arguments)
    size = "1" if element == "void" else f"sizeof({element})"
    null = argument["optional"] or bool(argument["when"])
    flag = ("false", "true")
    return (f'    {{"{argument["name"]}", Argument::Role::{role}, {size}, {extent(argument, arguments)}, {flag[is_count]}, '
            f"{low}LL, {high}LL, {flag[bounded and not argument['when']]}, {flag[null]}}},\n")


def limit(export, by_name, seen=()):
    """(milliseconds that the documentation names, how often they and the arguments' may pass)"""
    text = " ".join([export["documentation"], *(argument["documentation"] for argument in export["arguments"])])
    named = [int(number) for number in re.findall(r"\b(\d+) ms\b", text)]
    named += [int(a["documentation"].split("0: ")[1]) for a in export["arguments"] if re.search(r"; 0: \d+$", a["documentation"])]
    plain = re.search(r"Waits (\d+) ms\.", text)
    if plain and len(named) == 1:
        return named[0], 1
    if named:
        return sum(named), 6
    for name in re.findall(r"QV_\w+", text):
        if name in by_name and name not in seen and name != export["name"]:
            return limit(by_name[name], by_name, (*seen, export["name"]))
    return 0, 1


def main():
    api = json.loads(pathlib.Path(sys.argv[1]).read_text())
    codes = {name: code["code"] for code in api["result_codes"] for name in (code["name"], code["short_name"])}
    by_name = {export["name"]: export for export in api["exports"]}
    out = ["// Made by make_surface.py.\n", '#include "sweep/surface.h"\n\n', "namespace merovane::sweep {\nnamespace {\n\n"]
    rows = []
    for export in api["exports"]:
        name, arguments = export["name"], export["arguments"]
        held = "{}"
        if arguments:
            out.append(f"constexpr Argument kArguments_{name}[] = {{\n" + "".join(row(a, arguments) for a in arguments) + "};\n")
            held = f"kArguments_{name}"
        results = "{}"
        if export["returns_result"]:
            given = sorted({0, *(result["code"] for result in export["results"]), *(codes[c] for c in export["exchange_results"])})
            out.append(f"constexpr std::int32_t kResults_{name}[] = {{{', '.join(map(str, given))}}};\n")
            results = f"kResults_{name}"
        milliseconds, rounds = limit(export, by_name)
        flag = ("false", "true")
        rows.append(f'    {{"{name}", Export::Kind::{export["kind"].capitalize()}, '
                    f'{flag[bool(arguments) and arguments[0]["name"] == "port"]}, '
                    f'{flag[export["uses"] in ("asks", "sends", "listens")]}, '
                    f"[](Words w, bool& moved) {{ return CallWith(&{name}, w, moved); }}, "
                    f"{held}, {results}, {milliseconds}, {rounds}}},\n")
    out += ["\nconstexpr Export kSurface[] = {\n", *rows, "};\n\n}  // namespace\n\n",
            "std::span<const Export> Surface() { return kSurface; }\n\n}  // namespace merovane::sweep\n"]
    pathlib.Path(sys.argv[2]).write_text("".join(out))


if __name__ == "__main__":
    main()
