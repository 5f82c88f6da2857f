"""Reads the declarations (exports/*.api) and the result codes; every mistake in them ends the run with its place."""
import re
import sys

import items
from model import TYPES, USES, Api, Argument, Declaration, DiagnosticFunction, ResultCode, camel

FLAGS = {"command": {"plain", "decorated", "twin-decorated", "own-results", "unknown-arguments"}, "session": {"void", "number"},
         "project": {"plain", "image", "holder", "project-first"}}


def fail(where, text):
    sys.exit(f"{where}: {text}")


def split_arguments(text):
    """At the commas that stand in no bracket and no brace."""
    parts, depth, part = [], 0, ""
    for character in text:
        depth += {"[": 1, "{": 1, "(": 1, "]": -1, "}": -1, ")": -1}.get(character, 0)
        if character == "," and depth == 0:
            parts.append(part)
            part = ""
        else:
            part += character
    return [part.strip() for part in parts + [part] if part.strip()]


ARGUMENT = re.compile(
    r"(?:(?P<direction>in|out|inout)\s+)?(?P<type>\w+)\s+(?P<name>\w+)(?P<optional>\?)?"
    r"(?:\[(?P<extent>[^\]]+)\])?(?:\s*->\s*(?P<stored>\w+))?"
    r"(?:\s+(?P<low>-?\d+)?\.\.(?P<high>\d+)?)?(?:\s+\{(?P<one_of>[\d, ]+)\})?(?:\s+when\s+(?P<when>.+))?")


def read_argument(text, where):
    match = ARGUMENT.fullmatch(text)
    if not match:
        fail(where, f"cannot read the argument '{text}'")
    kind = match["type"]
    if kind not in TYPES and not kind.startswith("QV_"):
        fail(where, f"there is no type '{kind}'")
    direction = match["direction"] or "value"
    if direction == "value" and (kind in ("text", "char", "bytes") or kind.startswith("QV_") or match["extent"]):
        fail(where, f"'{text}' is a pointer: say in, out or inout")
    number = lambda group: int(match[group]) if match[group] else None
    return Argument(match["name"], kind, direction, (match["extent"] or "").strip(), match["stored"] or "",
                    number("low"), number("high"),
                    tuple(int(value) for value in (match["one_of"] or "").replace(" ", "").split(",") if value),
                    bool(match["optional"]), match["when"] or "")


def cpp_names(expression, arguments):
    """The expression with the arguments' names as C++ has them; quoted texts stay as they are."""
    parts = re.split(r'("[^"]*")', expression)
    for argument in arguments:
        parts[::2] = [re.sub(rf"(?<!\w){argument.name}(?!\w)", camel(argument.name), part) for part in parts[::2]]
    return "".join(parts)


def read_clauses(declaration, text, where):
    """What follows the arguments: log, logs, require ... : "why", runs."""
    tokens = re.findall(r'"[^"]*"|[^\s"]+', text)
    clauses, current = [], None
    for token in tokens:
        if token in ("log", "logs", "require", "runs"):
            current = [token]
            clauses.append(current)
        elif current is None:
            fail(where, f"cannot read '{token}' after the arguments")
        else:
            current.append(token)
    if declaration.kind == "command" and declaration.uses != "unsupported":
        declaration.log = f'"{declaration.name}:"'
        declaration.log_names = [f"{declaration.name}:"]
    for word, *rest in clauses:
        expression = cpp_names(" ".join(rest), declaration.arguments)
        if word in ("log", "logs"):
            declaration.log_names = re.findall(r'"([^"]*)"', expression)
            declaration.log = expression if word == "log" and expression != "none" else None
        elif word == "runs":
            declaration.runs = expression
        else:
            match = re.fullmatch(r'(.+?) : "([^"]+)"', expression)
            if not match:
                fail(where, 'a requirement is written: require condition : "what is refused"')
            declaration.requirements.append((match[1], match[2]))


STATEMENT = re.compile(r"(command|session|project)\s+(\w+)\s*=\s*(\d+|none|as\s+\w+)\s*([\w\s-]*)\((.*)", re.DOTALL)


def closing(text):
    depth = 1
    for at, character in enumerate(text):
        depth += {"(": 1, ")": -1}.get(character, 0)
        if depth == 0:
            return at
    return None


def read_statement(text, where):
    match = STATEMENT.fullmatch(text)
    end = closing(match[5]) if match else None
    if end is None:
        fail(where, f"cannot read '{' '.join(text.split())}'")
    kind, name, operation, words, rest = match.groups()
    words = words.split()
    uses = [word for word in words if word in USES]
    flags = frozenset(word for word in words if word not in USES)
    if unknown := flags - FLAGS[kind]:
        fail(where, f"a {kind} takes no '{sorted(unknown)[0]}'")
    if kind == "command" and len(uses) != 1:
        fail(where, f"a command says one of {', '.join(USES)}")
    arguments = [read_argument(part, where) for part in split_arguments(" ".join(rest[:end].split()))]
    if arguments and "unknown-arguments" in flags:
        fail(where, "what is not known cannot be listed")
    declaration = Declaration(kind, name, int(operation) if operation.isdigit() else None,
                              operation[3:].strip() if operation.startswith("as") else "",
                              uses[0] if uses else "local", flags, arguments)
    for argument in arguments:
        for other in (argument.stored, argument.extent.lstrip("*") if argument.extent.lstrip("*").isidentifier() else ""):
            if other and not declaration.argument(other):
                fail(where, f"{argument.name} names '{other}', which is no argument")
    read_clauses(declaration, rest[end + 1:], where)
    return declaration


def read_documentation(declaration, lines, codes, where):
    """Text, then @param and @retval paragraphs; every argument and every result of its own has one."""
    target = declaration.brief
    seen = set()
    for line in lines:
        if match := re.fullmatch(r"@param (\w+)\s+(.+)", line):
            argument = declaration.argument(match[1])
            if not argument:
                fail(where, f"{declaration.name} has no argument '{match[1]}'")
            if match[1] in seen:
                fail(where, f"{declaration.name} says twice what `{match[1]}` is")
            target = argument.documentation
            seen.add(match[1])
            target.append(match[2])
        elif match := re.fullmatch(r"@retval (\w+)\s+(.+)", line):
            code = next((code for code in codes if match[1] in (code.name, code.short_name)), None)
            if not code:
                fail(where, f"there is no result '{match[1]}'")
            if code.internal in dict(declaration.results):
                fail(where, f"{declaration.name} says twice when it gives '{match[1]}'")
            target = [match[2]]
            declaration.results.append((code.internal, target))
        elif line.startswith("@"):
            fail(where, f"cannot read '{line}'")
        else:
            target.append(line.strip())
    if not declaration.brief:
        fail(where, f"{declaration.name} has no documentation")
    for argument in declaration.arguments:
        if argument.name in seen:
            continue
        if argument.type == "band":
            argument.documentation.append("a QV_BAND")
        else:
            fail(where, f"{declaration.name} does not say what `{argument.name}` is")


def read_result_codes(path):
    rows = re.findall(r'RESULT\((-?\d+), (\w+), "(\w*)",\s*"(.*)",\s*"(.*)"\)', path.read_text())
    codes = [ResultCode(int(code), *texts) for code, *texts in rows]
    if [code.code for code in codes] != list(range(-1, 40)):
        fail(path.name, "the codes do not run from -1 to 39")
    return codes


def read_diagnostics(path):
    rows = re.findall(r"MEROVANE_API [\w *]+?MEROVANE_CALL\s+(Merovane_\w+)\(([^)]*)\);", path.read_text())
    return [DiagnosticFunction(name, 0 if arguments.strip() == "void" else 4 * len(arguments.split(",")))
            for name, arguments in rows]


def read_api(exports, result_codes, diagnostics):
    codes = read_result_codes(result_codes)
    api = Api([], [], codes, {}, read_diagnostics(diagnostics))
    for path in sorted(exports.glob("*.api")):
        unit = re.sub(r"^\d+_", "", path.stem)
        api.includes[unit] = []
        group, documentation, statement, began = "", [], "", 0
        for number, line in enumerate(path.read_text().splitlines(), 1):
            where = f"{path.name}:{number}"
            stripped = line.strip()
            if stripped.startswith("///"):
                documentation.append(stripped[4:])
            elif not statement and (match := re.fullmatch(r'include "(.+)"', stripped)):
                api.includes[unit].append(match[1])
            elif not statement and (match := re.fullmatch(r"group (.+)", stripped)):
                group = match[1]
            elif stripped and not stripped.startswith("#"):
                began = began if statement else number
                statement += "\n" + stripped
                if not statement.endswith(";"):
                    continue
                where = f"{path.name}:{began}"
                text = statement[1:-1]
                if text.startswith("item "):
                    item, made = items.read_item(text, documentation, where)
                    api.items.append(item)
                else:
                    declaration = read_statement(text, where)
                    read_documentation(declaration, documentation, codes, where)
                    made = [declaration]
                for declaration in made:
                    declaration.group, declaration.unit = group, unit
                api.declarations += made
                documentation, statement = [], ""
        if statement:
            fail(path.name, f"'{statement}' does not end")
    for declaration in api.declarations:
        if declaration.reported_as:
            declaration.operation = next(
                (other.operation for other in api.declarations if other.name == declaration.reported_as), None)
            if declaration.operation is None:
                sys.exit(f"{declaration.name} ends in {declaration.reported_as}, which records no operation")
    names = [export.name for export in api.exports]
    for name in {name for name in names if names.count(name) > 1}:
        sys.exit(f"{name} is declared twice")
    return api
