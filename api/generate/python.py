"""The generated part of the Python package: constants.py, records.py and exports.py. What they stand on is written by hand, in
bindings/python/merovane."""
import keyword
import re
import textwrap

import header
import records

WIDTH = 120
# What a call can carry: room for every answer, where the caller does not say how much there is to be.
ROOM = 65536

CTYPES = {"uint8_t": "c_uint8", "uint16_t": "c_uint16", "uint32_t": "c_uint32", "int32_t": "c_int32", "char": "c_char"}
# Of a declaration's types: how the call passes it, ctypes' name, what checks it.
NUMBERS = {
    "u8": ("B", "c_uint8", "u8"), "u16": ("H", "c_uint16", "u16"), "u32": ("I", "c_uint32", "u32"),
    "i32": ("i", "c_int32", "i32"), "ms": ("I", "c_uint32", "u32"), "flag": ("I", "c_uint32", "flag"),
    "band": ("I", "c_uint32", "u32"),
}
BYTES = ("u8", "bytes")


def class_name(name):
    """QV_FIXED_NV_INFO as FixedNvInfo; Merovane_Failure as Failure."""
    _, *words = name.split("_")
    if name.startswith("Merovane_"):
        return "".join(words)
    return "".join(word.capitalize() for word in words)


def record_name(name):
    """An element is called in the singular of the field that holds it."""
    return class_name(name[:-1] if name.endswith("REGIONS") else name)


def python_name(name):
    return name + "_" if keyword.iskeyword(name) else name


def docstring(text, indent):
    """Paragraphs, each wrapped; lines that begin with spaces stand as they are."""
    text = text.replace("\\", "\\\\").replace('"""', "'''")
    lines = []
    for paragraph in text.split("\n"):
        hanging = "  " if paragraph.startswith(("- ", "  ")) else ""
        lead = re.match(r" *", paragraph)[0]
        lines += textwrap.wrap(paragraph, WIDTH - len(indent), initial_indent="", subsequent_indent=lead + hanging,
                               break_long_words=False, break_on_hyphens=False) or [""]
    if len(lines) == 1 and len(indent + lines[0]) + 6 <= WIDTH:
        return f'{indent}"""{lines[0]}"""\n'
    return f'{indent}"""' + "\n".join((indent if line and at else "") + line for at, line in enumerate(lines)) + f'\n{indent}"""\n'


# ---- Constants ----

def member_name(enumeration, member):
    prefix = enumeration.name.upper() + "_"
    short = member.name[len(prefix):] if member.name.startswith(prefix) else member.name
    return short if short.isidentifier() else f"{prefix.split('_')[-2]}_{short}"


def constants_module(api, enumerations):
    out = ['"""The constants that exported functions take and give."""\nfrom enum import IntEnum\n']
    out.append('\n\nclass Result(IntEnum):\n    """The result codes, each under the name that says what happened, and under that '
               'of the logs."""\n\n')
    for code in api.result_codes:
        out.append(f"    {code.short_name} = {code.code}\n")
        if code.public_name != code.short_name:
            out.append(f"    {code.public_name} = {code.code}\n")
    for enumeration in enumerations:
        out.append(f"\n\nclass {class_name(enumeration.name)}(IntEnum):\n{docstring(enumeration.documentation, '    ')}\n")
        for member in enumeration.members:
            comment = f"  # {member.documentation}" if member.documentation else ""
            line = f"    {member_name(enumeration, member)} = {member.value}"
            out.append((line if len(line + comment) > WIDTH else line + comment) + "\n")
    return "".join(out)


# ---- Records ----

def field_types(field, record_names):
    """(annotation, default, ctypes expression)"""
    kind = record_name(field.type) if field.type in record_names else CTYPES[field.type]
    layout = f"{kind}.Layout" if field.type in record_names else kind
    for extent in reversed(field.extents):
        layout = f"{layout} * {extent}" if "*" not in layout else f"({layout}) * {extent}"
    if not field.extents:
        return "int", "0", layout
    if field.type == "char":
        return "str", '""', layout
    if field.type == "uint8_t":
        return "bytes", 'b""', layout
    element = kind if field.type in record_names else "int"
    annotation = element
    for _ in field.extents:
        annotation = f"Sequence[{annotation}]"
    return annotation, "field(default_factory=list)", layout


def record_class(record, record_names, open_ended):
    out = [f"\n\n@dataclass\nclass {record_name(record.name)}(Record):\n"]
    text = record.documentation or "A part of the record that follows."
    out.append(docstring(text, "    ") + "\n")
    fields = [(field, *field_types(field, record_names)) for field in record.fields]
    for field, annotation, default, _ in fields:
        line = f"    {python_name(field.name)}: {annotation} = {default}"
        comment = f"  # {field.documentation}" if field.documentation else ""
        if comment and len(line + comment) > WIDTH:
            out += [f"    # {part}\n" for part in textwrap.wrap(field.documentation, WIDTH - 6)]
            comment = ""
        out.append(line + comment + "\n")
    out.append("\n    class Layout(ctypes.Structure):\n        record: ClassVar[type]\n        _fields_ = [\n")
    out += [f'            ("{python_name(field.name)}", {layout}),\n' for field, _, _, layout in fields]
    out.append("        ]\n")
    if record.name in open_ended:
        out.append(f'\n    OPEN_END = ("{record.fields[-1].name}", "{record.fields[-2].name}")\n')
    return "".join(out)


def records_module(api, types):
    open_ended = {argument.type for declaration in api.declarations for argument in declaration.arguments
                  if argument.is_open_ended}
    names = {record.name for record in types}
    out = ['"""The records that exported functions take and give. Bytes stand as the library has them."""\n'
           "import ctypes\nfrom ctypes import c_char, c_int32, c_uint8, c_uint16, c_uint32\n"
           "from dataclasses import dataclass, field\nfrom typing import ClassVar, Sequence\n\n"
           "from ._values import Record\n"]
    out += [record_class(record, names, open_ended) for record in types]
    return "".join(out)


# ---- Exports ----

def unit_expression(declaration, argument):
    """(argument that counts, bytes of a unit as a Python expression) of an extent such as `count * width`."""
    counter, _, width = argument.extent.partition(" * ")
    return counter, re.sub(r"([^?():]+) \? ([^?():]+) : ", r"\2 if \1 else ", width.strip("()"))


class Function:
    """One exported function as Python has it."""

    def __init__(self, export):
        self.export = export
        self.arguments = export.arguments
        declaration = export.declaration
        self.parameters = []     # (name, annotation, default or None, keyword only)
        self.described = []      # (name, argument)
        self.setup = []          # statements ahead of the call
        self.passed = []         # expressions
        self.kinds = ""
        self.stored = []         # (argument, annotation, expression)
        self.hidden = self.hidden_arguments(declaration)
        for argument in self.arguments:
            if argument.is_pointer:
                self.pointer(argument)
            else:
                self.number(argument)
        self.order_parameters()

    def hidden_arguments(self, declaration):
        """Arguments that Python knows by itself: (name, how it is computed)."""
        hidden = {}
        for argument in declaration.arguments:
            name = python_name(argument.name)
            if argument.direction in ("in", "inout") and declaration.argument(argument.extent):
                hidden[argument.extent] = f"len({name}_)"
            elif argument.direction == "in" and " * " in argument.extent:
                counter, width = unit_expression(declaration, argument)
                hidden[counter] = f'_v.units("{name}", len({name}_), {width})'
            elif argument.type == "text" and declaration.argument(f"{argument.name}_length"):
                hidden[f"{argument.name}_length"] = f"len({name}_)"
        return hidden

    def parameter(self, argument, annotation, default=None, keyword_only=False):
        self.parameters.append((python_name(argument.name), annotation, default, keyword_only))
        self.described.append(argument)

    def number(self, argument):
        declaration, name = self.export.declaration, python_name(argument.name)
        if argument.type == "event":
            self.parameter(argument, "Union[Event, int]")
            self.kinds += "e"
            self.passed.append(f"handle_of({name})")
            return
        if argument.type == "word":
            self.parameter(argument, "int")
            self.kinds += "w"
            self.passed.append(f'_v.integer(c_size_t, "{name}", {name})')
            return
        kind, _, check = NUMBERS[argument.type]
        self.kinds += kind
        if argument.name in self.hidden:
            self.passed.append(f'_v.{check}("{name}", {self.hidden[argument.name]})')
            return
        counted = next((other for other in declaration.arguments
                        if other.direction == "out" and other.extent == argument.name), None)
        value = name
        if counted and argument.name == "capacity" and (counted.stored or counted.type == "char"):
            annotation = "Optional[int]" if counted.optional else "int"
            value = f"{name} or 0" if counted.optional else name
            self.parameter(argument, annotation, str(ROOM), True)
        else:
            self.parameter(argument, "bool" if argument.type == "flag" else "int")
        self.passed.append(f'_v.{check}("{name}", {value})')

    def pointer(self, argument):
        self.kinds += "p"
        if argument.type == "text":
            self.text(argument)
        elif argument.type.startswith("QV_"):
            self.record(argument)
        elif argument.extent:
            self.array(argument)
        else:
            self.cell(argument)

    def text(self, argument):
        name = python_name(argument.name)
        if argument.may_be_null:
            self.parameter(argument, "Optional[Text]", "None")
            self.setup.append(f'{name}_ = None if {name} is None else _v.text("{name}", {name})')
        else:
            self.parameter(argument, "Text")
            self.setup.append(f'{name}_ = _v.text("{name}", {name})')
        self.passed.append(f"{name}_")

    def record(self, argument):
        name, kind = python_name(argument.name), record_name(argument.type)
        if argument.direction == "out":
            self.setup.append(f"{name}_ = _v.RecordMemory({kind}())")
            self.stored.append((argument, kind, f"{name}_.record()"))
        elif argument.direction == "inout":
            given = argument.is_open_ended
            self.parameter(argument, kind if given else f"Optional[{kind}]", None if given else "None")
            self.setup.append(f"{name}_ = _v.RecordMemory({name if given else f'{name} or {kind}()'})")
            self.stored.append((argument, kind, f"{name}_.record()"))
        elif argument.may_be_null:
            self.parameter(argument, f"Optional[{kind}]", "None")
            self.setup.append(f"{name}_ = None if {name} is None else _v.RecordMemory({name})")
        else:
            self.parameter(argument, kind)
            self.setup.append(f"{name}_ = _v.RecordMemory({name})")
        self.passed.append(f"{name}_")

    def cell(self, argument):
        name = python_name(argument.name)
        kind = NUMBERS[argument.type][1]
        counts = [other for other in self.arguments if other.stored == argument.name]
        if argument.direction == "inout":
            # Room in, number out, of an array that it counts.
            self.parameters.append((name, "int", str(ROOM), True))
            self.described.append(argument)
            self.setup.insert(0, f'{name}_ = _v.Cell({kind}).set(_v.{NUMBERS[argument.type][2]}("{name}", {name}))')
        else:
            self.setup.append(f"{name}_ = _v.Cell({kind})")
            if not counts:
                self.stored.append((argument, "int", f"{name}_.value"))
        optional = next((other for other in counts if other.optional), None)
        self.passed.append(f"None if {python_name(optional.name)}_ is None else {name}_" if optional else f"{name}_")

    def array(self, argument):
        declaration, name = self.export.declaration, python_name(argument.name)
        kind = "c_char" if argument.type == "char" else "c_uint8" if argument.type in BYTES else NUMBERS[argument.type][1]
        fixed = argument.fixed_extent
        if argument.direction == "in":
            self.array_in(argument, name, kind, fixed)
            return
        if argument.direction == "inout":
            self.array_inout(argument, name, kind, fixed)
            return
        if fixed is not None:
            count = str(fixed)
        elif " * " in argument.extent:
            counter, width = unit_expression(declaration, argument)
            count = f'_v.room("{counter}", {python_name(counter)}) * ({width})'
        else:
            count = f'_v.room("{argument.extent.lstrip("*")}", {python_name(argument.extent.lstrip("*"))})'
        if argument.optional:
            self.setup.append(f"{name}_ = None if {argument.extent} is None else _v.Array({kind}, {count})")
        else:
            self.setup.append(f"{name}_ = _v.Array({kind}, {count})")
        self.passed.append(f"{name}_")
        counted = f"{python_name(argument.stored)}_.value" if argument.stored else ""
        if kind == "c_char":
            expression, annotation = f"{name}_.text({counted})", "str"
        elif kind == "c_uint8":
            expression, annotation = f"{name}_.bytes({counted})", "bytes"
        else:
            expression, annotation = f"{name}_.numbers()", "List[int]"
        if argument.optional:
            expression = f'"" if {name}_ is None else {expression}'
        self.stored.append((argument, annotation, expression))

    def array_in(self, argument, name, kind, fixed):
        count = "" if fixed is None else f", {fixed}"
        if kind == "c_char":
            annotation, made = "Text", f'_v.character_array("{name}", {name})'
        elif kind == "c_uint8":
            annotation, made = "Bytes", f'_v.byte_array("{name}", {name}{count})'
        else:
            annotation, made = "Sequence[int]", f'_v.number_array("{name}", {kind}, {name}{count})'
        if argument.may_be_null:
            self.parameter(argument, f"Optional[{annotation}]", "None")
            self.setup.append(f"{name}_ = None if {name} is None else {made}")
        else:
            self.parameter(argument, annotation)
            self.setup.append(f"{name}_ = {made}")
        self.passed.append(f"{name}_")

    def array_inout(self, argument, name, kind, fixed):
        if kind == "c_uint8":
            self.parameter(argument, "Bytes")
            self.setup.append(f'{name}_ = _v.byte_array("{name}", {name})')
            self.stored.append((argument, "bytes", f"{name}_.bytes()"))
        else:
            self.parameter(argument, "Optional[Sequence[int]]", "None")
            self.setup.append(f'{name}_ = _v.number_array("{name}", {kind}, [0] * {fixed} if {name} is None else {name}, {fixed})')
            self.stored.append((argument, "List[int]", f"{name}_.numbers()"))
        self.passed.append(f"{name}_")

    def order_parameters(self):
        """A default holds only where none without one follows; keyword-only parameters come last."""
        rows = list(zip(self.parameters, self.described))
        positional = [row for row in rows if not row[0][3]]
        last_without = max((at for at, (row, _) in enumerate(positional) if row[2] is None), default=-1)
        positional = [((name, kind, default if at > last_without else None, False), argument)
                      for at, ((name, kind, default, _), argument) in enumerate(positional)]
        self.rows = positional + [row for row in rows if row[0][3]]

    @property
    def signature(self):
        parts, starred = [], False
        for (name, annotation, default, keyword_only), _ in self.rows:
            if keyword_only and not starred:
                parts.append("*")
                starred = True
            parts.append(f"{name}: {annotation}" + (f" = {default}" if default is not None else ""))
        return parts

    @property
    def result_class(self):
        """The class of what the function stores, where that is more than one thing."""
        return f"{self.export.declaration.name}Result" if len(self.stored) > 1 else None

    @property
    def returns(self):
        declaration = self.export.declaration
        if "number" in declaration.flags:
            return "int"
        if not self.stored:
            return "None"
        return self.result_class or self.stored[0][1]


def described(argument, declaration, default):
    own = [header.range_text(argument)]
    if argument.fixed_extent is not None and argument.type != "text":
        own.append(header.extent_text(argument))
    if argument.type == "ms":
        own.append("milliseconds")
    if argument.may_be_null and default == "None":
        own.append("may be None")
    text = " ".join(argument.documentation)
    facts = ", ".join(fact for fact in own if fact)
    return f"{text} ({facts})" if text and facts else text or facts


def function_documentation(function, api):
    export, declaration = function.export, function.export.declaration
    lines = header.description(declaration)
    text = [lines[0], *lines[1:]]
    if export.twin:
        text[0] = f"QV_{declaration.name} for one port. " + text[0]
    rows = [f"  {name}: {described(argument, declaration, default)}" for (name, _, default, _), argument in function.rows]
    if rows:
        text += ["", "Arguments:", *rows]
    if function.stored:
        text += ["", "Returns:"]
        text += [f"  {argument.name}: " + ("as the call leaves it" if argument.direction == "inout" else
                                           described(argument, declaration, None)) for argument, _, _ in function.stored]
    nulls = header.null_pointers(declaration)
    raised = []
    for code, words in header.results(export, api):
        # Python hands in no null pointer.
        words = "; ".join(word for word in words.split("; ") if word not in nulls)
        if code.code != 0 and words:
            raised.append(f"  {code.short_name}: {words}")
    others = header.exchange_codes(declaration, api)
    if declaration.kind == "project":
        others = [api.result("PortNotOpen").short_name]
    if others:
        raised.append(f"  {', '.join(others)}")
    if raised:
        text += ["", "Raises MerovaneError with:", *raised]
    return "\n".join(text)


def wrapped_call(head, parts, tail, indent):
    one = f"{indent}{head}({', '.join(parts)}){tail}"
    if len(one) <= WIDTH:
        return one + "\n"
    # Between arguments only.
    inner = textwrap.wrap(", ".join(part.replace(" ", "\0") for part in parts), WIDTH - len(indent) - 9,
                          break_long_words=False, break_on_hyphens=False)
    lines = "\n".join(f"{indent}        {line}" for line in inner).replace("\0", " ")
    return f"{indent}{head}(\n{lines}){tail}\n"


def result_class(function):
    rows = "".join(f"    {python_name(argument.name)}: {annotation}\n" for argument, annotation, _ in function.stored)
    text = docstring(f"What QV_{function.export.declaration.name} stores.", "    ")
    return f"\n\nclass {function.result_class}(NamedTuple):\n{text}\n{rows}"


def function_source(function, api):
    export, declaration = function.export, function.export.declaration
    out = ["\n\n" + wrapped_call(f"def {export.name}", function.signature, f" -> {function.returns}:", "")]
    out.append(docstring(function_documentation(function, api), "    "))
    out += [f"    {statement}\n" for statement in function.setup]
    called = f'_exports["{export.name}"]'
    if function.stored:
        values = ", ".join(expression for _, _, expression in function.stored)
        if function.result_class:
            values = f"{function.result_class}({values})"
        out.append(wrapped_call(f"return {called}.fetch", [f"lambda: {values}", *function.passed], "", "    "))
    elif "number" in declaration.flags:
        out.append(wrapped_call(f"return {called}.call", function.passed, "", "    "))
    elif "void" in declaration.flags:
        out.append(wrapped_call(f"{called}.call", function.passed, "", "    "))
    else:
        out.append(wrapped_call(f"{called}.check", function.passed, "", "    "))
    return "".join(out)


def exports_module(api):
    functions = [Function(export) for export in api.exports]
    used = sorted({record_name(argument.type) for declaration in api.declarations for argument in declaration.arguments
                   if argument.type.startswith("QV_")})
    out = ['"""Every exported function under its own name, with Python values.\n\n'
           "Buffers and lengths are made here: what goes in is bytes, a text or a sequence of ints, what comes out is returned.\n"
           'A function that fails raises MerovaneError. Those with _MT take the port; the others work on the one that was '
           'opened last.\n"""\n'
           "from ctypes import c_char, c_size_t, c_uint8, c_uint16, c_uint32\n"
           "from typing import List, NamedTuple, Optional, Sequence, Union\n\n"
           "from . import _values as _v\nfrom ._call import Export\nfrom ._values import Bytes, Text\n"
           "from .events import Event, handle_of\n",
           "".join(textwrap.fill(f"from .records import ({', '.join(used)})", WIDTH, subsequent_indent=" " * 22)), "\n\n",
           "_exports = {export.name: export for export in (\n"]
    out += [f'    Export("{function.export.name}", "{function.export.windows_name}", '
            f'{function.export.declaration.operation or 0}, "{function.kinds}"),\n' for function in functions]
    out.append(")}\n")
    for function in functions:
        if function.result_class and not function.export.twin:
            out.append(result_class(function))
        out.append(function_source(function, api))
    return "".join(out)


def outputs(api, headers):
    enumerations, types = [], []
    for name in ("types.h", "diagnostics.h"):
        found = records.read_types(headers / name)
        # Python's logging is told of events, not its caller.
        enumerations += [enumeration for enumeration in found[0] if enumeration.name != "Merovane_Event"]
        types += found[1]
    return {"python/constants.py": constants_module(api, enumerations), "python/records.py": records_module(api, types),
            "python/exports.py": exports_module(api)}
