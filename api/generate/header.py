"""The public headers: merovane.h, the manual of every exported function, and result_codes.h."""
import re

from model import USES

WIDTH = 100


def wrap(prefix, text, indent):
    """Comment lines of at most WIDTH columns, the first led by `prefix`."""
    words, lines, line = text.split(), [], prefix
    for word in words:
        if len(line) + 1 + len(word) > WIDTH and line.strip(" *"):
            lines.append(line.rstrip())
            line = indent
        line += ("" if line.endswith(" ") else " ") + word
    return lines + [line.rstrip()]


def sentence(text):
    return text[0].upper() + text[1:]


def listed(parts, last=" or "):
    return parts[0] if len(parts) == 1 else ", ".join(parts[:-1]) + last + parts[-1]


def range_text(argument):
    if argument.one_of:
        return listed([str(value) for value in argument.one_of])
    if argument.high is not None:
        lowest = argument.low if argument.low is not None or argument.type == "i32" else 0
        return f"up to {argument.high}" if lowest is None else f"{lowest} to {argument.high}"
    if argument.low is not None:
        return f"{argument.low} and up" if argument.low != 1 or argument.type == "i32" else "above 0"
    return ""


def outside_text(argument):
    """Which values are refused."""
    if argument.least is not None and argument.high is not None:
        return f"outside {range_text(argument)}"
    if argument.high is not None:
        return f"above {argument.high}"
    if argument.least is not None:
        return f"below {argument.least}" if argument.least != 1 or argument.type == "i32" else "of 0"
    return ""


def extent_text(argument):
    if not argument.extent or argument.is_open_ended:
        return ""
    unit = "byte" if argument.c_element in ("uint8_t", "char", "void") else "value"
    if argument.fixed_extent is not None:
        return f"one {unit}" if argument.fixed_extent == 1 else f"{argument.extent} {unit}s"
    return f"`{argument.extent}` {unit}s"


def condition_text(argument, declaration):
    """When the argument is checked at all."""
    names = [declaration.argument(name) for name in argument.when.split(" && ")]
    if names and all(other and other.is_pointer for other in names):
        return f"when {listed([f'`{other.name}`' for other in names], ' and ')} " + (
            "is not null" if len(names) == 1 else "are not null")
    if len(names) == 1 and names[0]:
        return f"when `{argument.when}` is not 0"
    return f"when `{argument.when}`"


def facts(argument, declaration):
    """What the declaration itself says of an argument."""
    found = [extent_text(argument)]
    if argument.stored:
        found.append(f"counted in `{argument.stored}`")
    bounds = range_text(argument)
    if bounds and argument.when:
        bounds += f" {condition_text(argument, declaration)}"
    found.append(bounds)
    if argument.type == "ms":
        found.append("milliseconds")
    if argument.optional:
        found.append("may be null")
    if argument.when and argument.is_pointer:
        found.append(f"looked at only {condition_text(argument, declaration)}")
    return ", ".join(fact for fact in found if fact)


def null_pointers(declaration):
    """Which null pointers are refused, in words."""
    every = [argument for argument in declaration.arguments if argument.is_pointer]
    pointers = [argument for argument in every if not argument.optional]
    always = [f"`{argument.name}`" for argument in pointers if not argument.when]
    reasons = []
    if len(always) > 1 and len(always) == len(every):
        reasons.append("a null pointer")
    elif always:
        reasons.append(f"{listed(always)} is null")
    for condition in dict.fromkeys(argument.when for argument in pointers if argument.when):
        sometimes = [argument for argument in pointers if argument.when == condition]
        reasons.append(f"{listed([f'`{argument.name}`' for argument in sometimes])} is null "
                       f"{condition_text(sometimes[0], declaration)}")
    return reasons


def refused(export):
    """The reasons for PC_ERR_INVALID_PARAM, in words."""
    declaration = export.declaration
    reasons = []
    if export.twin:
        reasons.append("`port` below 1")
    reasons += null_pointers(declaration)
    for argument in declaration.arguments:
        outside = outside_text(argument)
        if argument.type == "band":
            reasons.append("another band")
        elif argument.one_of:
            reasons.append(f"another `{argument.name}`")
        elif outside:
            condition = f" {condition_text(argument, declaration)}" if argument.when else ""
            reasons.append(f"`{argument.name}` {outside}{condition}")
    own = [" ".join(lines) for internal, lines in declaration.results if internal == "InvalidParam"]
    return reasons + [text for _, text in declaration.requirements] + own


def results(export, api):
    """(name, text) of every result that this function describes itself."""
    declaration = export.declaration
    own = {internal: " ".join(lines) for internal, lines in declaration.results}
    found = []
    reasons = refused(export)
    own.pop("InvalidParam", None)
    if reasons:
        found.append(("InvalidParam", "; ".join(reasons)))
    if declaration.kind == "project":
        own.setdefault("PortNotOpen", "the port has no session")
        if "holder" not in declaration.flags:
            own.setdefault("NvProjectNotOpen", "no NV project is open")
    for internal, text in own.items():
        found.append((internal, text))
    found.sort(key=lambda row: api.result(row[0]).code)
    return [(api.result(internal), text) for internal, text in found]


def exchange_codes(declaration, api):
    if declaration.kind != "command" and declaration.uses == "local":
        return []
    described = {internal for internal, _ in declaration.results}
    given = ("PortNotOpen",) if "own-results" in declaration.flags else USES[declaration.uses]
    return [api.result(internal).short_name for internal in given if internal not in described]


def paragraphs(lines):
    """The text, and then the points of its list: each begins with a hyphen."""
    text = []
    for line in lines:
        if line.startswith("- ") or not text:
            text.append(line)
        else:
            text[-1] += " " + line
    return text


def description(declaration):
    """What the function does, as paragraphs."""
    lines = paragraphs(declaration.brief)
    if declaration.kind == "command" and declaration.operation is None:
        lines[0] += " The result is reported under the operation id of the command before."
    if declaration.uses == "unsupported":
        lines[0] += " Not supported: with its port open it sends nothing, changes nothing and fails."
    if "unknown-arguments" in declaration.flags:
        beside = ", and its _MT form none beside the port" if declaration.has_twin else ""
        lines[0] += (f" Its arguments are not known: it takes none{beside}, and a 32-bit Windows program must not pass any, "
                     "since they would stay on its stack.")
    return lines


def wrapped(declaration):
    """A comment's first lines."""
    text, *points = description(declaration)
    return wrap("/**", text, " *") + [line for point in points for line in wrap(" * -", point[2:], " *   ")]


def comment(export, api):
    declaration = export.declaration
    if export.twin:
        lines = wrap("/**", f"QV_{declaration.name} for the port `port`, with the same results. {sentence(declaration.brief[0])}"
                     if len(declaration.brief) == 1 else
                     f"QV_{declaration.name} for the port `port`, with the same effect and results.", " *")
    else:
        lines = wrapped(declaration)
    if export.decorated:
        lines += wrap(" *", f"On Windows, GetProcAddress finds it as {export.windows_name}.", " *")
    for argument in export.arguments:
        own = facts(argument, declaration)
        text = " ".join(argument.documentation)
        if text and own:
            # After more than one clause it would not be plain what the brackets speak of.
            text = f"{own}; {text}" if re.search(r"[.;:] ", text) else f"{text} ({own})"
        text = text or own
        lines += wrap(f" * @param {argument.name}  ", text, " *   ")
    if not export.twin:
        for code, text in results(export, api):
            name = code.short_name
            lines += wrap(f" * @retval {name}  ", text, " *   ")
        if declaration.returns_result:
            # Without its arguments it cannot do what it is for.
            success = [] if "unknown-arguments" in declaration.flags else ["0 (PC_ERR_SUCCESS)"]
            codes = success + ["one of the above"] * bool(results(export, api)) + exchange_codes(declaration, api)
            lines += wrap(" * @return ", listed(codes), " *   ")
    return "\n".join(lines) + " */\n"


def annotated(argument):
    """The argument as the header declares it, with what static analysis can use."""
    if not argument.is_pointer:
        return argument.c_type() + argument.name
    word = {"in": "IN", "out": "OUT", "inout": "INOUT"}[argument.direction]
    opt = "_OPT" if argument.may_be_null else ""
    if argument.type == "text":
        macro = f"MEROVANE_IN_TEXT{opt}"
    elif argument.is_open_ended:
        return argument.c_type() + argument.name
    elif argument.extent:
        macro = f"MEROVANE_{word}_N{opt}({argument.extent.replace(' ', '')})"
    else:
        macro = f"MEROVANE_{word}{opt}"
    return f"{macro} {argument.c_type()}{argument.name}"


def access(export):
    """GCC's access attributes: which argument is read or written, and which one counts its elements."""
    found = []
    words = {"in": "READS", "out": "WRITES", "inout": "UPDATES"}
    arguments = export.arguments
    for at, argument in enumerate(arguments, 1):
        if not argument.is_pointer or argument.type == "text" or argument.is_open_ended:
            continue
        counter = next((n for n, other in enumerate(arguments, 1)
                        if other.name == argument.extent and not other.is_pointer), None)
        found.append(f"MEROVANE_{words[argument.direction]}{'_N' if counter else ''}({at}{f', {counter}' if counter else ''})")
    return "".join(" " + text for text in found)


def prototype(export):
    arguments = ", ".join(annotated(argument) for argument in export.arguments) or "void"
    text = f"MEROVANE_API {export.declaration.returns} MEROVANE_CALL {export.name}({arguments}){access(export)};"
    if len(text) <= WIDTH:
        return text + "\n"
    head, _, tail = text.partition("(")
    lines, line = [], " " * 4
    # Between arguments only, not inside the macros that follow them.
    for part in re.split(r", (?!\d)", tail):
        if len(line) + len(part) + 1 > WIDTH and line.strip():
            lines.append(line.rstrip())
            line = " " * 4
        line += part + ", "
    return head + "(\n" + "\n".join(lines + [line[:-2]]) + "\n"


def merovane_h(api, templates):
    out = [(templates / "header_preamble.txt").read_text()]
    group = None
    for export in api.exports:
        if export.declaration.group != group:
            group = export.declaration.group
            out.append(f"\n/* ---- {group} {'-' * max(3, 80 - len(group))} */\n")
        out.append("\n" + comment(export, api) + prototype(export))
    out.append((templates / "header_end.txt").read_text())
    return "".join(out)


def result_codes_h(api):
    out = ["/* The result codes: what every command returns.\n *\n"
           " * Every code has the name that the logs show and a short one that says what happened, which\n * merovane.h uses. */\n"
           "#ifndef MEROVANE_RESULT_CODES_H\n#define MEROVANE_RESULT_CODES_H\n\ntypedef enum QV_RESULT {\n"]
    rows = []
    for code in api.result_codes:
        rows.append(f"  /** {sentence(code.meaning)}. */\n  {code.public_name} = {code.code}")
        if code.short_name != code.public_name:
            rows.append(f"  {code.short_name} = {code.code}")
    refused = api.result("Refused")
    rows.append(f"  /** The name that {refused.short_name} had first. */\n  QV_REFUSED = {refused.code}")
    out.append(",\n".join(rows) + "\n} QV_RESULT;\n\n#endif\n")
    return "".join(out)


