"""The generated part of the C# binding: constants, records, the exported functions as they stand (Native.cs), the same with values
instead of buffers (QV.cs), those of one port (PhoneCommands.cs); and for its tests a call of every function and the records' fields.
What they stand on is written by hand, in bindings/csharp."""
import re
from dataclasses import dataclass, field
from xml.sax.saxutils import escape

import header
import records
from model import camel

MADE = "// Made by api/generate from the declarations.\n"
SPANS = "NETSTANDARD2_1_OR_GREATER || NETCOREAPP3_0_OR_GREATER"
ELEMENTS = {"u8": "byte", "u16": "ushort", "u32": "uint", "i32": "int", "char": "byte", "bytes": "byte", "text": "byte",
            "word": "UIntPtr", "event": "IntPtr", "ms": "uint", "flag": "uint", "band": "uint"}
FIELD_TYPES = {"uint8_t": "byte", "uint16_t": "ushort", "uint32_t": "uint", "int32_t": "int"}
KEYWORDS = {"event", "lock", "params", "ref", "out", "in", "object", "string", "base"}


def pascal(name):
    return "".join(word[:1].upper() + word[1:].lower() for word in name.split("_"))


def type_name(name):
    """QV_FIXED_NV_INFO as FixedNvInfo; Merovane_Failure as Failure."""
    if name.startswith("Merovane_"):
        return name[len("Merovane_"):]
    return pascal(name.removeprefix("QV_"))


def field_name(name):
    return pascal(name)


def variable(name):
    word = camel(name)
    return "@" + word if word in KEYWORDS else word


def summary(text, indent, tag="summary", attributes=""):
    lines = escape(text).split("\n")
    if len(lines) == 1 and len(lines[0]) < 90:
        return f"{indent}/// <{tag}{attributes}>{lines[0]}</{tag}>\n"
    lines = [line for paragraph in lines for line in header.wrap("", paragraph, "")]
    return f"{indent}/// <{tag}{attributes}>\n" + "".join(f"{indent}/// {line.strip()}\n" for line in lines) + f"{indent}/// </{tag}>\n"


# ---- Constants and records ----

def member_name(enumeration, member):
    short = member.name.upper().removeprefix(enumeration.name.upper() + "_")
    name = pascal(short)
    return name if name.isidentifier() else "Bits" + name


def constants(api, enumerations):
    out = [MADE + "namespace Merovane\n{\n"]
    out.append("    /// <summary>What a command returns. Merovane_ResultName gives the name of each in the logs.</summary>\n"
               "    public enum Result\n    {\n")
    for code in api.result_codes:
        out.append(summary(header.sentence(code.meaning) + ".", " " * 8) + f"        {code.internal} = {code.code},\n")
    out.append("    }\n")
    for enumeration in enumerations:
        out.append("\n" + summary(enumeration.documentation, "    ") + f"    public enum {type_name(enumeration.name)} : uint\n    {{\n")
        for member in enumeration.members:
            if member.documentation:
                out.append(summary(header.sentence(member.documentation), " " * 8))
            out.append(f"        {member_name(enumeration, member)} = {member.value},\n")
        out.append("    }\n")
    return "".join(out) + "}\n"


def record_field(each):
    name, count = field_name(each.name), 1
    for extent in each.extents:
        count *= extent
    if each.type == "char":
        return f"        [MarshalAs(UnmanagedType.ByValTStr, SizeConst = {count})]\n        public string {name} = \"\";\n"
    kind = FIELD_TYPES.get(each.type) or type_name(each.type)
    if not each.extents:
        return f"        public {kind} {name};\n"
    return (f"        [MarshalAs(UnmanagedType.ByValArray, SizeConst = {count})]\n"
            f"        public {kind}[] {name} = new {kind}[{count}];\n")


def nested_record(record):
    """A record inside an array of another: a value without memory of its own, since arrays hold no references to such."""
    fields = "".join(
        f"        public {FIELD_TYPES[each.type]} {field_name(each.name)}{at if each.extents else ''};\n"
        for each in record.fields for at in range(each.extents[0] if each.extents else 1))
    return f"    [StructLayout(LayoutKind.Sequential)]\n    public struct {type_name(record.name)}\n    {{\n{fields}    }}\n"


def is_nested(record, all_records):
    return any(each.type == record.name for other in all_records for each in other.fields)


def records_source(all_records, open_ended):
    out = [MADE + "using System.Runtime.InteropServices;\n\nnamespace Merovane\n{\n"]
    parts = []
    for record in all_records:
        if record.name in open_ended:
            continue
        if is_nested(record, all_records):
            parts.append(summary("An element of a record.", "    ") + nested_record(record))
            continue
        text = summary(record.documentation, "    ")
        text += ("    [StructLayout(LayoutKind.Sequential, CharSet = CharSet.Ansi)]\n"
                 f"    public sealed class {type_name(record.name)}\n    {{\n")
        for each in record.fields:
            if each.documentation:
                text += summary(header.sentence(each.documentation), " " * 8)
            text += record_field(each)
        parts.append(text + "    }\n")
    return "".join(out) + "\n".join(parts) + "}\n"


def layout(all_records, open_ended):
    """For a test: C record, its field, and their names in C#."""
    return "".join(f"{record.name} {each.name} {type_name(record.name)} {field_name(each.name)}\n"
                   for record in all_records if record.name not in open_ended and not is_nested(record, all_records)
                   for each in record.fields)


# ---- The functions as they are exported ----

def is_record(argument):
    return argument.type not in ELEMENTS


def native_parameter(argument):
    name = variable(argument.name)
    if argument.is_open_ended:
        return f"byte* {name}"
    if is_record(argument):
        return {"in": "[In] ", "out": "[Out] ", "inout": "[In, Out] "}[argument.direction] + f"{type_name(argument.type)} {name}"
    return f"{ELEMENTS[argument.type]}{'*' if argument.is_pointer else ''} {name}"


def native_function(export):
    parameters = ", ".join(native_parameter(argument) for argument in export.arguments)
    returned = "void" if export.declaration.returns == "void" else "int"
    imported = "        [DllImport(LibraryName, ExactSpelling = true, CallingConvention = CallingConvention.Winapi{})]\n"
    if not export.decorated:
        return imported.format("") + f"        public static extern {returned} {export.name}({parameters});\n"
    names = ", ".join(variable(argument.name) for argument in export.arguments)
    return (f"        /// <summary>On Windows it is published as {export.windows_name}.</summary>\n"
            f"        public static {returned} {export.name}({parameters}) =>\n"
            f"            IsWindows ? {export.name}_Decorated({names}) : {export.name}_Plain({names});\n"
            + imported.format(f', EntryPoint = "{export.windows_name}"')
            + f"        private static extern {returned} {export.name}_Decorated({parameters});\n"
            + imported.format(f', EntryPoint = "{export.name}"')
            + f"        private static extern {returned} {export.name}_Plain({parameters});\n")


def native(api):
    return (MADE + "using System;\nusing System.Runtime.InteropServices;\n\nnamespace Merovane\n{\n"
            "    public static unsafe partial class Native\n    {\n"
            + "\n".join(native_function(export) for export in api.exports) + "    }\n}\n")


# ---- The functions with values ----

@dataclass
class Shape:
    """A function as C# programs call it, and what its body does."""
    parameters: list = field(default_factory=list)      # (type and name, argument that it comes from)
    given: list = field(default_factory=list)           # the same arguments as a caller forwards them
    declared: list = field(default_factory=list)        # variables that the rest counts on
    before: list = field(default_factory=list)          # statements ahead of the call
    pins: list = field(default_factory=list)            # fixed (...) around it
    passed: dict = field(default_factory=dict)          # argument: expression in the call
    outputs: list = field(default_factory=list)         # (type, name, expression after the call, argument)
    has_arrays: bool = False


def of_enumeration(argument, enumerations):
    """The enumeration whose values an argument takes, as its documentation says."""
    if argument.type == "band":
        return "Band"
    match = re.match(r"an? (QV_\w+)\b", " ".join(argument.documentation))
    return type_name(match[1]) if match and match[1] in enumerations else None


def counter_of(argument, arguments):
    """The array whose elements this argument counts, if it only does that."""
    return next((other for other in arguments
                 if other.is_pointer and other is not argument and other.extent in (argument.name, f"*{argument.name}")), None)


def is_stored(argument, arguments):
    return any(other.stored == argument.name for other in arguments)


def extent(argument, arguments):
    """C#'s expression for how many elements there are."""
    if argument.fixed_extent is not None:
        return argument.extent
    names = {other.name for other in arguments}
    text = argument.extent.lstrip("*")
    if text in names:
        return variable(text)
    return "checked((int)(" + re.sub(r"\b[a-z_]+\b", lambda match: f"(long){variable(match[0])}" if match[0] in names else match[0],
                                     text) + "))"


def add_value(shape, argument, arguments, enumerations, spans):
    name, kind = variable(argument.name), ELEMENTS[argument.type]
    counted = counter_of(argument, arguments)
    if counted is not None:
        as_array = counted.direction != "out" or (spans and counted.type != "char")
        if as_array:
            length = f"{camel(counted.name)}Bytes.Length" if counted.type == "char" else f"{variable(counted.name)}.Length"
            shape.passed[argument.name] = length if kind == "int" else f"({kind}){length}"
            return
        shape.parameters.append((f"int {name}", argument))
        shape.given.append(name)
        shape.passed[argument.name] = name if kind == "int" else f"checked(({kind}){name})"
        return
    named = of_enumeration(argument, enumerations)
    if argument.type == "flag":
        kind, passed = "bool", f"{name} ? 1u : 0u"
    elif named:
        passed, kind = f"({kind}){name}", named
    else:
        passed = name
    shape.parameters.append((f"{kind} {name}", argument))
    shape.given.append(name)
    shape.passed[argument.name] = passed


def add_text(shape, argument):
    name = variable(argument.name)
    shape.parameters.append((f"string {name}", argument))
    shape.given.append(name)
    plain = camel(argument.name)
    shape.before.append(f"var {plain}Text = Memory.Text({name});")
    shape.pins.append(f"fixed (byte* {plain}At = {plain}Text)")
    shape.passed[argument.name] = f"{plain}At"


def add_record(shape, argument):
    name, kind = variable(argument.name), type_name(argument.type)
    shape.passed[argument.name] = name
    if argument.direction == "out":
        shape.before.append(f"{{declare}} {name} = new {kind}();")
        shape.outputs.append((kind, name, name, argument))
        return
    if not argument.may_be_null:
        shape.before.append(f'Memory.Given({name}, "{name.lstrip("@")}");')
    shape.parameters.append((f"{kind} {name}", argument))
    shape.given.append(name)


def add_open_ended(shape, argument):
    """A record of a selector and as many values as it counts."""
    shape.parameters.append(("uint selector", argument))
    if argument.direction == "in":
        shape.parameters.append(("ushort[] values", argument))
        shape.given += ["selector", "values"]
        shape.before.append("var memory = CountedValues.Of(selector, values);")
    else:
        shape.parameters.append(("int count", argument))
        shape.given += ["selector", "count"]
        shape.before.append("var memory = CountedValues.Of(selector, new ushort[count]);")
        shape.outputs.append(("ushort[]", "values", "CountedValues.From(memory)", argument))
    shape.pins.append("fixed (byte* memoryAt = memory)")
    shape.passed[argument.name] = "memoryAt"


def add_characters(shape, argument, arguments):
    """A text that an array of characters carries, with no zero at its end."""
    name, plain = variable(argument.name), camel(argument.name)
    shape.passed[argument.name] = f"{plain}At"
    if argument.direction == "in":
        shape.parameters.append((f"string {name}", argument))
        shape.given.append(name)
        shape.before.append(f"var {plain}Bytes = Memory.Characters({name});")
    else:
        shape.before.append(f"var {plain}Bytes = new byte[{extent(argument, arguments)}];")
        stored = f", {variable(argument.stored)}Stored" if argument.stored else ""
        shape.outputs.append(("string", name, f"Memory.Characters{'' if stored else 'ToZero'}({plain}Bytes{stored})", argument))
    shape.pins.append(f"fixed (byte* {plain}At = Memory.NotEmpty({plain}Bytes))")


def add_new_array(shape, argument, arguments):
    """An array that the call makes and gives back."""
    name, kind, at = variable(argument.name), ELEMENTS[argument.type], f"{camel(argument.name)}At"
    shape.passed[argument.name] = at
    shape.before.append(f"{{declare}} {name} = new {kind}[{extent(argument, arguments)}];")
    value = f"Memory.Cut({name}, {variable(argument.stored)}Stored)" if argument.stored else name
    shape.outputs.append((f"{kind}[]", name, value, argument))
    shape.pins.append(f"fixed ({kind}* {at} = Memory.NotEmpty({name}))")


def add_array(shape, argument, arguments, spans):
    """An array of the caller's."""
    name, kind, plain = variable(argument.name), ELEMENTS[argument.type], camel(argument.name)
    shape.has_arrays = True
    shape.passed[argument.name] = f"{plain}At"
    view = f"{kind}[]" if not spans else f"ReadOnlySpan<{kind}>" if argument.direction == "in" else f"Span<{kind}>"
    shape.parameters.append((f"{view} {name}", argument))
    shape.given.append(name)
    if not any(other.name == argument.extent.lstrip("*") for other in arguments):
        check = "OptionalExtent" if argument.may_be_null else "Extent"
        shape.before.append(f'Memory.{check}({name}{".Length" if spans else ""}, {extent(argument, arguments)}, "{plain}");')
    elif not spans:
        shape.before.append(f'Memory.Given({name}, "{plain}");')
    memory = name if spans and argument.may_be_null else f"Memory.NotEmpty({name})"
    shape.pins.append(f"fixed ({kind}* {plain}At = {memory})")
    if spans and argument.stored:
        stored = f"(int)Math.Min({variable(argument.stored)}Stored, (uint){name}.Length)"
        shape.outputs.append(("int", f"{plain}Stored", stored, argument))


def add_scalar(shape, argument, arguments, spans):
    name, kind = variable(argument.name), ELEMENTS[argument.type]
    shape.passed[argument.name] = f"&{name}Value"
    counted = counter_of(argument, arguments)
    if argument.direction == "inout":                      # in: the room at an array; out: what was stored there
        shape.passed[argument.name] = f"&{name}Stored"
        if spans:
            shape.declared.append(f"var {name}Stored = ({kind}){variable(counted.name)}.Length;")
        else:
            shape.parameters.append((f"int {name}", argument))
            shape.given.append(name)
            shape.declared.append(f"var {name}Stored = checked(({kind}){name});")
        return
    if is_stored(argument, arguments):
        shape.declared.append(f"{kind} {name}Stored = 0;")
        shape.passed[argument.name] = f"&{name}Stored"
        return
    shape.declared.append(f"{kind} {name}Value = 0;")
    shape.outputs.append((kind, name, f"{name}Value", argument))


def shape_of(export, enumerations, spans):
    shape = Shape()
    arguments = export.arguments
    for argument in arguments:
        if not argument.is_pointer:
            add_value(shape, argument, arguments, enumerations, spans)
        elif argument.is_open_ended:
            add_open_ended(shape, argument)
        elif is_record(argument):
            add_record(shape, argument)
        elif argument.type == "text":
            add_text(shape, argument)
        elif argument.type == "char":
            add_characters(shape, argument, arguments)
        elif argument.extent and argument.direction == "out" and not spans:
            add_new_array(shape, argument, arguments)
        elif argument.extent:
            add_array(shape, argument, arguments, spans)
        else:
            add_scalar(shape, argument, arguments, spans)
    return shape


def method_name(export):
    return export.name.removeprefix("QV_")


def returned_type(export, shape):
    if export.declaration.returns == "void":
        return "void"
    if not export.declaration.returns_result:
        return "int"
    return shape.outputs[0][0] if len(shape.outputs) == 1 else "void"


def outs(shape):
    return shape.outputs if len(shape.outputs) > 1 else []


def signature(shape):
    return ", ".join([text for text, _ in shape.parameters] + [f"out {kind} {name}" for kind, name, _, _ in outs(shape)])


def documentation(export, shape, api):
    indent = " " * 8
    declaration = export.declaration
    lead = f"QV_{declaration.name} for one port. " if export.twin else ""
    text = summary(lead + "\n".join(header.description(declaration)), indent)
    rows = [(decl.split()[-1], argument) for decl, argument in shape.parameters]
    rows += [(name, argument) for _, name, _, argument in outs(shape)]
    for name, argument in rows:
        if words := " ".join(argument.documentation):
            text += summary(header.sentence(words) + ".", indent, "param", f' name="{name.lstrip("@")}"')
    if len(shape.outputs) == 1 and shape.outputs[0][3].documentation:
        text += summary(header.sentence(" ".join(shape.outputs[0][3].documentation)) + ".", indent, "returns")
    found = "; ".join(f"{code.internal}: {when}" for code, when in header.results(export, api))
    if declaration.returns_result and found:
        text += summary(found + ".", indent, "exception", ' cref="MerovaneException"')
    return text


def body(export, shape):
    indent = " " * 12
    call = f"Native.{export.name}({', '.join(shape.passed[argument.name] for argument in export.arguments)})"
    several = outs(shape)
    lines = [indent + line.replace("{declare} ", "" if several else "var ") for line in shape.declared + shape.before]
    pins = [indent + pin for pin in shape.pins]
    if export.declaration.returns == "void" or export.declaration.returns_result:
        checked = f"MerovaneException.Check({call});" if export.declaration.returns_result else f"{call};"
        lines += pins + [indent + ("    " if pins else "") + checked]
        if several:
            lines += [f"{indent}{name} = {value};" for _, name, value, _ in several if name != value]
        elif shape.outputs:
            lines.append(f"{indent}return {shape.outputs[0][2]};")
    else:
        lines.append(f"{indent}return {call};")
    return "\n".join(lines) + "\n"


def method(export, shape, api):
    return (documentation(export, shape, api)
            + f"        public static {returned_type(export, shape)} {method_name(export)}({signature(shape)})\n"
            + "        {\n" + body(export, shape) + "        }\n")


def phone_method(export, shape, api):
    parameters = Shape(parameters=shape.parameters[1:], outputs=shape.outputs)
    given = ", ".join(["Port"] + shape.given[1:] + [f"out {name}" for _, name, _, _ in outs(shape)])
    return (documentation(export, parameters, api).replace(f"QV_{export.declaration.name} for one port. ", "")
            + f"        public {returned_type(export, shape)} {export.declaration.name}({signature(parameters)}) =>\n"
            + f"            QV.{method_name(export)}({given});\n")


def with_spans(api, enumerations, wanted, make):
    """What `make` gives for each function, and again for those that can work on memory of the caller's."""
    plain, spans = [], []
    for export in api.exports:
        if not wanted(export):
            continue
        plain.append(make(export, shape_of(export, enumerations, False), api))
        with_views = shape_of(export, enumerations, True)
        if with_views.has_arrays:
            spans.append(make(export, with_views, api))
    return "\n".join(plain) + f"\n#if {SPANS}\n\n" + "\n".join(spans) + "\n#endif\n"


def functions(api, enumerations):
    return (MADE + "using System;\n\nnamespace Merovane\n{\n"
            + summary("Every exported function under its name without QV_, with values instead of buffers and lengths. A result other "
                      "than Success is an exception.", "    ")
            + "    public static unsafe class QV\n    {\n"
            + with_spans(api, enumerations, lambda export: True, method) + "    }\n}\n")


def phone_commands(api, enumerations):
    return (MADE + "using System;\n\nnamespace Merovane\n{\n    public sealed partial class Phone\n    {\n"
            + with_spans(api, enumerations, lambda export: export.twin, phone_method) + "    }\n}\n")


# ---- For the binding's tests ----

def sample(text, argument, arguments):
    """A value for a parameter with which the call gets as far as its port."""
    kind = text.split()[0]
    if kind == "string":
        return '"x"'
    if kind == "bool":
        return "false"
    if kind.endswith("[]"):
        count = argument.extent if argument.fixed_extent is not None else "1"
        return f"new {kind[:-2]}[{count}]"
    if is_record(argument) and argument.is_pointer and kind == type_name(argument.type):
        return f"new {kind}()"
    if kind in ("IntPtr", "UIntPtr"):
        return f"{kind}.Zero"
    value = str(argument.one_of[0] if argument.one_of else max(argument.low or 0, 1) if counter_of(argument, arguments)
                or argument.is_pointer or argument.type == "ms" else argument.low or 0)
    return value if kind in ("byte", "ushort", "uint", "int") else f"({kind}){value}"


def sweep(api, enumerations):
    out = [MADE + "using System;\nusing Merovane;\n\nstatic partial class Sweep\n{\n    static void Calls()\n    {\n"]
    for export in api.exports:
        shape = shape_of(export, enumerations, False)
        values = [sample(text, argument, export.arguments) for text, argument in shape.parameters]
        values += ["out _"] * len(outs(shape))
        kind = "Session" if export.declaration.kind == "session" else "Command"
        out.append(f'        {kind}("{export.name}", () => QV.{method_name(export)}({", ".join(values)}));\n')
    names = ", ".join(f'"{function.name}"' for function in api.diagnostics)
    return "".join(out) + f"    }}\n\n    static readonly string[] diagnostics = {{ {names} }};\n}}\n"


def outputs(api, headers):
    """Files by name, from the declarations and from the headers' constants and records."""
    enumerations, all_records = records.read_types(headers / "types.h")
    more_enumerations, more_records = records.read_types(headers / "diagnostics.h")
    names = {enumeration.name for enumeration in enumerations}
    open_ended = {argument.type for declaration in api.declarations for argument in declaration.arguments if argument.is_open_ended}
    every_record = all_records + more_records
    return {
        "csharp/Constants.cs": constants(api, enumerations + more_enumerations),
        "csharp/Records.cs": records_source(every_record, open_ended),
        "csharp/Native.cs": native(api),
        "csharp/QV.cs": functions(api, names),
        "csharp/PhoneCommands.cs": phone_commands(api, names),
        "csharp/test/Sweep.cs": sweep(api, names),
        "csharp/test/layout.txt": layout(every_record, open_ended),
    }
