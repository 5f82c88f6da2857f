"""The C++ faces: prototypes that bodies must match, what comes ahead of each body, the exported functions."""
import json
import re

import header
from model import BANDS, camel

MADE = "// Made by api/generate from api/exports/*.api.\n"


def namespace_of(kind):
    return {"command": "merovane::commands", "project": "merovane::nvproject", "session": "merovane::library"}[kind]


def subject(declaration):
    """What a command works on, ahead of the caller's arguments."""
    if declaration.kind == "command":
        return ["Phone& phone"]
    if declaration.kind == "project":
        holder = ["std::unique_ptr<CFileParser>& holder"] if "holder" in declaration.flags else ["CFileParser* project"]
        return holder + context_parameters(declaration)
    return []


def context_parameters(declaration):
    """What a project function gets of the library beside its project."""
    image = ["const ImageContext& context"] if "image" in declaration.flags else []
    return image + (["const LogLine& log"] if declaration.log_names else [])


def returned(declaration):
    if declaration.kind == "session":
        return "void" if declaration.returns == "void" else "std::int32_t"
    return "Result"


def prototype(declaration):
    parameters = subject(declaration) + [argument.cpp_parameter() for argument in declaration.arguments]
    return f"{returned(declaration)} {declaration.name}({', '.join(parameters)})"


# ---- What a body gets: checked arguments ----

def element_type(argument):
    return ("const " if argument.direction == "in" else "") + argument.cpp_element


def view_type(argument):
    """The type that the body sees; None where it is the caller's own."""
    if argument.type == "flag" and not argument.is_pointer:
        return "bool"
    if not argument.is_pointer or argument.type == "text":
        return None
    element = element_type(argument)
    if argument.extent and not argument.is_open_ended:
        fixed = argument.fixed_extent is not None and not argument.may_be_null
        return f"std::span<{element}, {argument.extent}>" if fixed else f"std::span<{element}>"
    return f"{element}*" if argument.may_be_null else f"{element}&"


def body_parameters(declaration):
    if declaration.kind == "command":
        parameters = ["Operation& operation"]
    elif "holder" in declaration.flags:
        parameters = ["std::unique_ptr<CFileParser>& holder"]
    else:
        parameters = ["CFileParser& project"] + context_parameters(declaration)
    for argument in declaration.arguments:
        if declaration.counts(argument):
            continue
        kind = view_type(argument)
        parameters.append(f"{kind} {camel(argument.name)}" if kind else argument.cpp_parameter())
    return parameters


def body_prototype(declaration):
    return f"Result {declaration.name}({', '.join(body_parameters(declaration))})"


def is_wrapped(argument):
    kind = view_type(argument)
    return kind is not None and kind != "bool" and not kind.endswith("*")


def raw_name(argument):
    return camel(argument.name) + ("At" if is_wrapped(argument) else "")


def refusals(declaration):
    """(condition in C++ under which the arguments are refused)"""
    found = []
    for argument in declaration.arguments:
        guard = f"({unchecked(argument.when, declaration)}) && " if argument.when else ""
        name = raw_name(argument)
        if argument.is_pointer and not argument.optional:
            found.append(f"{guard}!{name}" if not guard else f"({guard}!{name})")
        if argument.is_pointer and argument.optional:
            guard += f"{name} && "
        value = f"*{name}" if argument.is_pointer else name
        if argument.type == "band":
            outside = f"!IsBand({value})"
        elif argument.one_of:
            outside = f"!IsOneOf({value}, {{{', '.join(map(str, argument.one_of))}}})"
        else:
            bounds = []
            if argument.least is not None:
                bounds.append(f"{value} < {argument.least}")
            if argument.high is not None:
                bounds.append(f"{value} > {argument.high}")
            outside = " || ".join(bounds)
        if outside:
            found.append(f"({guard}({outside}))" if guard else outside)
    return found


def views(declaration):
    lines = []
    for argument in declaration.arguments:
        kind, name = view_type(argument), camel(argument.name)
        if not is_wrapped(argument):
            continue
        raw = raw_name(argument)
        if kind.endswith("&"):
            lines.append(f"  {kind} {name} = *{raw};\n")
            continue
        pointer = raw if argument.type != "bytes" else f"static_cast<{element_type(argument)}*>({raw})"
        extent = argument.extent
        for other in declaration.arguments:
            if extent.lstrip("*") == other.name:
                starred = extent.startswith("*")
                extent = ("*" if starred else "") + (raw_name(other) if starred else camel(other.name))
        if argument.fixed_extent is None:
            extent = f"static_cast<std::size_t>({as_cpp(extent, declaration)})"
        if argument.may_be_null:
            there = raw if not argument.when else f"({unchecked(argument.when, declaration)}) && {raw}"
            lines.append(f"  const {kind} {name} = {there} ? {kind}({pointer}, {extent}) : {kind}();\n")
        else:
            lines.append(f"  const {kind} {name}({pointer}, {extent});\n")
    return lines


def named(expression, declaration, name_of):
    for argument in declaration.arguments:
        expression = re.sub(rf"(?<!\w){argument.name}(?!\w)", name_of(argument), expression)
    return expression


def as_cpp(expression, declaration):
    return named(expression, declaration, lambda argument: camel(argument.name))


def unchecked(expression, declaration):
    """The expression with the names that arguments have until they are checked."""
    return named(expression, declaration, raw_name)


def argument_for_body(argument):
    name = camel(argument.name)
    return f"{name} != 0" if view_type(argument) == "bool" else name


def definition(declaration):
    parameters = subject(declaration)
    for argument in declaration.arguments:
        parameter = argument.cpp_parameter()
        parameters.append(parameter + "At" if is_wrapped(argument) else parameter)
    out = [f"{returned(declaration)} {declaration.name}({', '.join(parameters)}) {{\n"]
    if declaration.kind == "command":
        operation = f", {declaration.operation}" if declaration.operation is not None else ""
        out.append(f"  Operation operation(phone{operation});\n")
    is_project = declaration.kind == "project" and "holder" not in declaration.flags
    no_project = "  if (project == nullptr) return Result::NvProjectNotOpen;\n" if is_project else ""
    if "project-first" in declaration.flags:
        out.append(no_project)
    conditions = refusals(declaration)
    if conditions:
        out.append(f"  if ({' || '.join(conditions)}) return Result::InvalidParam;\n")
    out += views(declaration)
    for condition, _ in declaration.requirements:
        out.append(f"  if (!({condition})) return Result::InvalidParam;\n")
    if "project-first" not in declaration.flags:
        out.append(no_project)
    if declaration.log:
        out.append(f"  operation.Log({declaration.log});\n")
    if declaration.uses == "unsupported":
        call = "Result::NotSupported"
    elif declaration.runs:
        call = declaration.runs
    else:
        first = {"command": ["operation"], "project": ["*project"]}[declaration.kind]
        if "holder" in declaration.flags:
            first = ["holder"]
        elif declaration.kind == "project":
            first += [parameter.split()[-1] for parameter in context_parameters(declaration)]
        given = [argument_for_body(argument) for argument in declaration.arguments if not declaration.counts(argument)]
        call = f"body::{declaration.name}({', '.join(first + given)})"
    out.append(f"  return {call};\n}}\n\n")
    return "".join(out)


def units(api, kinds):
    return list(dict.fromkeys(d.unit for d in api.declarations if d.kind in kinds))


def in_unit(api, unit, kinds):
    return [d for d in api.declarations if d.unit == unit and d.kind in kinds]


STANDARD = "#include <cstddef>\n#include <cstdint>\n#include <memory>\n#include <span>\n\n"


def declared_header(api, unit):
    """What other code may call, and what bodies must match."""
    kinds = [kind for kind in ("command", "project", "session") if in_unit(api, unit, (kind,))]
    out = [MADE, "#pragma once\n\n", STANDARD]
    if "command" in kinds:
        out.append('#include "commands/operation.h"\n#include "commands/phone.h"\n')
    if "project" in kinds:
        out.append('#include "nvproject/file_parser.h"\n')
    out.append('#include "link/result.h"\n#include "merovane/types.h"\n')
    for kind in kinds:
        declarations = in_unit(api, unit, (kind,))
        out.append(f"\nnamespace {namespace_of(kind)} {{\n\n")
        out += [prototype(d) + ";\n" for d in declarations]
        bodies = [d for d in declarations if kind != "session" and not d.runs and d.uses != "unsupported"]
        if bodies:
            out.append("\n// Their arguments are checked and their names logged.\nnamespace body {\n\n")
            out += [body_prototype(d) + ";\n" for d in bodies]
            out.append("\n}  // namespace body\n")
        if kind == "session":
            out.append("\nnamespace operation_id {\n\n")
            out += [f"inline constexpr std::uint32_t k{d.name} = {d.operation};\n" for d in declarations
                    if d.operation is not None]
            out.append("\n}  // namespace operation_id\n")
        out.append(f"\n}}  // namespace {namespace_of(kind)}\n")
    return "".join(out)


def declared_source(api, unit):
    if not in_unit(api, unit, ("command", "project")):
        return MADE
    out = [MADE, f'#include "declared/{unit}.h"\n\n#include "commands/argument_checks.h"\n'
           if in_unit(api, unit, ("command",)) else f'#include "declared/{unit}.h"\n']
    out += [f'#include "{path}"\n' for path in api.includes[unit]]
    for kind in ("command", "project"):
        declarations = in_unit(api, unit, (kind,))
        if declarations:
            out.append(f"\nnamespace {namespace_of(kind)} {{\n\n")
            out += [definition(d) for d in declarations]
            out.append(f"}}  // namespace {namespace_of(kind)}\n")
    return "".join(out)


def call(export):
    declaration = export.declaration
    names = [camel(argument.name) for argument in declaration.arguments]
    if declaration.kind == "session":
        return f"library::{declaration.name}({', '.join(names)})"
    if declaration.kind == "command":
        frame = "OnPhone(port, " if export.twin else "OnDefaultPhone("
        return f"library::{frame}[&](auto& phone) {{ return commands::{declaration.name}({', '.join(['phone'] + names)}); }})"
    frame = "OnProjectOf(port, " if export.twin else "OnDefaultProject("
    first = ["phone.project"] if "holder" in declaration.flags else ["phone.project.get()"]
    if "image" in declaration.flags:
        first.append("library::ImageContextNow()")
    if declaration.log_names:
        first.append("library::UsefulLogOf(phone)")
    return (f"library::{frame}{declaration.operation}, [&](auto& phone) "
            f"{{ return nvproject::{declaration.name}({', '.join(first + names)}); }})")


# ---- What a trace tells of arguments ----

def argument_kind(argument):
    if not argument.is_pointer:
        return "Signed" if argument.type == "i32" else "Unsigned"
    if argument.type == "text":
        return "Text"
    many = argument.extent and argument.extent != "1"
    # An answer need not fill a capacity; other extents are what is there.
    untold = argument.direction == "out" and many and argument.fixed_extent is None and not argument.stored
    if untold and re.fullmatch(r"\w*capacity", argument.extent) or argument.is_open_ended:
        return "Room"
    if argument.type == "char":
        return "Characters"
    if argument.type in ("u16", "u32") or argument.type == "u8" and not many:
        return "Numbers" if many else "Number"
    return "Bytes"


def element_bytes(argument):
    return "1" if argument.type in ("text", "bytes") else f"sizeof({argument.cpp_element})"


def counter(argument, declaration):
    """How many elements the argument's pointer leads to, in C++, by the arguments' words; None: always one."""
    extent = "1" if not argument.extent or argument.is_open_ended else argument.extent
    if argument.when:
        extent = f"({argument.when}) ? {extent} : 0"
    if extent == "1":
        return None
    if extent.isdigit():
        return f"[](const std::uintptr_t*) -> std::uint64_t {{ return {extent}; }}"
    words = {other.name: f"static_cast<{other.cpp_element}>(words[{at}])" if not other.is_pointer else
             f"reinterpret_cast<const {other.cpp_element}*>(words[{at}])"
             for at, other in enumerate(declaration.arguments)}
    expression = named(extent, declaration, lambda other: words[other.name])
    return f"[](const std::uintptr_t* words) -> std::uint64_t {{ return {expression}; }}"


def argument_info(argument, declaration):
    use = {"value": "Value", "in": "In", "out": "Out", "inout": "InOut"}[argument.direction]
    count = counter(argument, declaration)
    stored = next((at for at, other in enumerate(declaration.arguments) if other.name == argument.stored), None)
    found = [f'"{argument.name}"', f"Kind::{argument_kind(argument)}", f"Use::{use}", element_bytes(argument)]
    if count or stored is not None:
        found.append(count or "nullptr")
    if stored is not None:
        found.append(str(stored))
    return "{" + ", ".join(found) + "}"


def argument_table(declaration):
    if not declaration.arguments:
        return ""
    rows = "".join(f"    {argument_info(argument, declaration)},\n" for argument in declaration.arguments)
    return f"constexpr library::ArgumentInfo k{declaration.name}[] = {{\n{rows}}};\n"


def exported(export):
    """One exported function: a Call, which tells of itself."""
    declaration = export.declaration
    parameters = ", ".join(argument.cpp_parameter() for argument in export.arguments)
    nothing = declaration.returns == "void"
    returns = "Nothing" if nothing else "Result" if declaration.returns_result else "Number"
    # A session function says `port` itself.
    told = [argument for argument in export.arguments if argument is not export.port]
    table = f"k{declaration.name}" if declaration.arguments else "{}"
    port = "port" if any(argument.name == "port" for argument in export.arguments) else "0"
    limit = next((camel(argument.name) for argument in export.arguments if argument.type == "ms"), "0")
    words = ", ".join(f"library::Word({camel(argument.name)})" for argument in told)
    refusals = json.dumps("; ".join(header.refused(export)), ensure_ascii=False)
    return (f"{'void' if nothing else 'std::int32_t'} MEROVANE_CALL {export.name}({parameters}) {{\n"
            f"  static constexpr library::ExportInfo kInfo{{\"{export.name}\", {declaration.operation or 0},\n"
            f"      library::ExportInfo::Returns::{returns}, {refusals}, {table}}};\n"
            + (f"  const std::uintptr_t callWords[] = {{{words}}};\n" if words else "")
            + f"  library::Call call(kInfo, {port}, {limit}, {'callWords' if words else 'nullptr'});\n"
            + (f"  {call(export)};\n  call.Returned(0);\n" if nothing else f"  return call.Returned({call(export)});\n")
            + "}\n\n")


def exports_source(api):
    out = [MADE, '#define MEROVANE_BUILD\n#include "merovane/merovane.h"\n\n#include "library/call.h"\n#include "library/export_frame.h"\n']
    out += [f'#include "declared/{unit}.h"\n' for unit in units(api, ("command", "project", "session"))]
    out.append("\nusing namespace merovane;\n\nnamespace {\n\nusing Kind = library::ArgumentInfo::Kind;\n"
               "using Use = library::ArgumentInfo::Use;\n\n")
    most = max(len(declaration.arguments) for declaration in api.declarations)
    out.append(f"static_assert({most} <= library::kMostArguments);\n\n")
    out += [argument_table(declaration) for declaration in api.declarations]
    out.append('\n}  // namespace\n\nextern "C" {\n\n')
    out += [exported(export) for export in api.exports]
    return "".join(out) + '}  // extern "C"\n'


def items_header(api):
    out = [MADE, "#pragma once\n\n#include <array>\n\n#include \"commands/calibration/calibration_item.h\"\n\n"
           "namespace merovane::commands {\n\nnamespace items {\n\n"]
    kinds = {"imei": "Imei", "commit": "Commit"}
    for item in api.items:
        element = {"u16": "U16", "u32": "U32"}.get(item["data"], "Byte")
        data = kinds.get(item["data"], "Counted" if item["counted"] else "Array" if item["count"] > 1 else "Value")
        exports = ", ".join("{}" if not cell else f'{{"{cell[0]}", {-1 if cell[1] is None else cell[1]}}}'
                            for cell in item["exports"])
        out.append(f"inline constexpr CalibrationItem {item['name']}{{\n"
                   f"    .name = \"{item['name']}\", .item = {item['number']}, .offset = {item['fixed_offset']}, "
                   f".perIndex = {item['per_index']},\n    .bytes = {item['bytes']}, "
                   f".element = Element::{element}, .data = ItemData::{data}, .perBand = {str(item['per_band']).lower()},\n"
                   f"    .either = {str(item['either']).lower()}, .exports = {{{{{exports}}}}}}};\n")
    out.append("\n}  // namespace items\n\ninline constexpr std::array kCalibrationItems{\n")
    out += [f"    &items::{item['name']},\n" for item in api.items]
    return "".join(out) + "};\n\n}  // namespace merovane::commands\n"


def names_header(api):
    """The names under which callers know results and operations."""
    results = "".join(f'    "{code.short_name}",\n' for code in api.result_codes)
    operations = "".join(f'    OperationName{{{number}, "{name}"}},\n' for number, name in api.operation_names)
    return (MADE + "#pragma once\n\n#include <array>\n#include <cstdint>\n\nnamespace merovane::library {\n\n"
            "// By code, from -1 on.\ninline constexpr std::array kResultNames{\n" + results + "};\n\n"
            "struct OperationName {\n  std::uint32_t id;\n  const char* name;\n};\n"
            "// By rising id.\ninline constexpr std::array kOperationNames{\n" + operations + "};\n\n"
            "}  // namespace merovane::library\n")


def checks_header():
    """Kept here so that the bands stand once."""
    numbers = ", ".join(str(number) for number in BANDS)
    return (MADE + "#pragma once\n\n#include <algorithm>\n#include <cstdint>\n#include <initializer_list>\n\n"
            "namespace merovane::commands {\n\n"
            "inline bool IsOneOf(std::uint32_t value, std::initializer_list<std::uint32_t> values) {\n"
            "  return std::ranges::find(values, value) != values.end();\n}\n\n"
            f"inline bool IsBand(std::uint32_t band) {{ return IsOneOf(band, {{{numbers}}}); }}\n\n"
            "}  // namespace merovane::commands\n")
