"""What linkers and other programs read: module definitions, version script, lists of names, api.json."""
import json

import header
from model import TYPES


def module_definition(api, stdcall):
    rows = (f"  {export.windows_name} = {export.symbol(stdcall)}\n" for export in api.published)
    return "LIBRARY Merovane\nEXPORTS\n" + "".join(rows)


def import_definition(api, stdcall):
    rows = (f"  {export.symbol(stdcall)} == {export.windows_name}\n" for export in api.published)
    return "LIBRARY Merovane.dll\nEXPORTS\n" + "".join(rows)


def version_script(api):
    return "{\n  global:\n" + "".join(f"    {export.name};\n" for export in api.published) + "  local: *;\n};\n"


def argument_json(argument):
    return {
        "name": argument.name, "type": argument.type, "c_type": argument.c_type().strip(), "direction": argument.direction,
        "extent": argument.extent or None, "stored": argument.stored or None, "minimum": argument.low,
        "maximum": argument.high, "one_of": list(argument.one_of) or None, "optional": argument.optional,
        "when": argument.when or None, "unit": (TYPES[argument.type][2] if argument.type in TYPES else "") or None,
        "documentation": " ".join(argument.documentation)}


def export_json(export, api):
    declaration = export.declaration
    return {
        "name": export.name, "windows_name": export.windows_name, "kind": declaration.kind,
        "twin_of": f"QV_{declaration.name}" if export.twin else None, "group": declaration.group,
        "operation": declaration.operation, "reported_as": declaration.reported_as or None, "uses": declaration.uses,
        "log_names": declaration.log_names, "returns": declaration.returns, "returns_result": declaration.returns_result,
        "documentation": "\n".join(header.description(declaration)),
        "arguments_known": "unknown-arguments" not in declaration.flags,
        "arguments": [argument_json(argument) for argument in export.arguments],
        "results": [{"code": code.code, "name": code.public_name, "short_name": code.short_name, "when": text}
                    for code, text in header.results(export, api)],
        "exchange_results": header.exchange_codes(declaration, api)}


def api_json(api):
    items = [{key: value for key, value in item.items() if key != "exports"} |
             {"exports": [cell and {"name": f"QV_{cell[0]}", "operation": cell[1]} for cell in item["exports"]]}
             for item in api.items]
    codes = [{"code": code.code, "name": code.public_name, "short_name": code.short_name, "meaning": code.meaning,
              "advice": code.advice}
             for code in api.result_codes]
    return json.dumps({"exports": [export_json(export, api) for export in api.exports], "calibration_items": items,
                       "result_codes": codes,
                       "operations": [{"id": number, "name": name} for number, name in api.operation_names]}, indent=1) + "\n"
