#!/usr/bin/env python3
"""Makes every face of the exported functions from their one declaration (../exports; ../README.md says how they are written).

--output DIR   declared/*.h and .cpp (prototypes that bodies match, and what comes ahead of each body), exports.cpp, module
               definitions, import definitions, exports.map, exports-windows.txt, exports-linux.txt, api.json,
               python/*.py, csharp/*
--headers DIR  merovane.h and result_codes.h
--check DIR    writes nothing and fails when the headers there are not what the declarations give
"""
import argparse
import pathlib
import sys

sys.dont_write_bytecode = True
HERE = pathlib.Path(__file__).resolve().parent
HEADERS = HERE.parent.parent / "include/merovane"
sys.path.insert(0, str(HERE))

import cpp  # noqa: E402
import csharp  # noqa: E402
import header  # noqa: E402
import python  # noqa: E402
import reader  # noqa: E402
import tables  # noqa: E402


def outputs(api):
    files = {
        "exports.cpp": cpp.exports_source(api),
        "commands/argument_checks.h": cpp.checks_header(),
        "declared/calibration_items.h": cpp.items_header(api),
        "declared/names.h": cpp.names_header(api),
        "Merovane-x86.def": tables.module_definition(api, stdcall=True),
        "Merovane-x64.def": tables.module_definition(api, stdcall=False),
        "Merovane-import-x86.def": tables.import_definition(api, stdcall=True),
        "Merovane-import-x64.def": tables.import_definition(api, stdcall=False),
        "exports.map": tables.version_script(api),
        "exports-windows.txt": "".join(f"{export.windows_name}\n" for export in api.published),
        "exports-linux.txt": "".join(f"{export.name}\n" for export in api.published),
        "api.json": tables.api_json(api),
    }
    files |= python.outputs(api, HEADERS)
    files |= csharp.outputs(api, HEADERS)
    for unit in api.includes:
        files[f"declared/{unit}.h"] = cpp.declared_header(api, unit)
        files[f"declared/{unit}.cpp"] = cpp.declared_source(api, unit)
    return files


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--output", type=pathlib.Path)
    parser.add_argument("--headers", type=pathlib.Path)
    parser.add_argument("--check", type=pathlib.Path)
    options = parser.parse_args()
    api = reader.read_api(HERE.parent / "exports", HERE.parent / "result_codes.def",
                          HEADERS / "diagnostics.h")
    headers = {"merovane.h": header.merovane_h(api, HERE), "result_codes.h": header.result_codes_h(api)}
    if options.check:
        stale = [name for name, text in headers.items() if (options.check / name).read_text() != text]
        if stale:
            sys.exit(f"not what the declarations give: {', '.join(stale)} "
                     "(run api/generate/generate.py --headers include/merovane)")
    if options.headers:
        for name, text in headers.items():
            (options.headers / name).write_text(text)
    if options.output:
        for name, text in outputs(api).items():
            path = options.output / name
            path.parent.mkdir(parents=True, exist_ok=True)
            if not path.exists() or path.read_text() != text:
                path.write_text(text)


if __name__ == "__main__":
    main()
