"""Reads the constants and records that callers see: those of types.h and diagnostics.h."""
import re
import sys
from dataclasses import dataclass

COMMENT = r"/\*\*<?((?:(?!\*/).)*)\*/"


@dataclass
class Member:
    name: str
    value: int
    documentation: str


@dataclass
class Enumeration:
    name: str                    # as in C
    members: list
    documentation: str


@dataclass
class Field:
    name: str
    type: str                    # the C element type; the record's name for a record
    extents: tuple               # (8, 2) for [8][2]; empty for one
    documentation: str


@dataclass
class RecordType:
    name: str                    # as in C; a record without a name is called after the field that holds it
    fields: list
    documentation: str


def plain(comment):
    return " ".join(re.sub(r"^\s*\*", "", line).strip() for line in (comment or "").splitlines()).strip()


def read_members(body):
    found = re.findall(r"(\w+)\s*=\s*(-?\d+)\s*,?[ \t]*(?:/\*+<?((?:(?!\*/).)*)\*/)?", body, re.DOTALL)
    return [Member(name, int(value), plain(comment)) for name, value, comment in found]


def read_fields(body, record, nested):
    pattern = re.compile(rf"(?:{COMMENT}\s*)?(?:struct\s*\{{(?P<inner>[^}}]*)\}}|(?P<type>\w+))\s+(?P<name>\w+)"
                         rf"(?P<extents>(?:\[\d+\])*);[ \t]*(?:/\*\*<((?:(?!\*/).)*)\*/)?", re.DOTALL)
    fields, at = [], 0
    body = body.strip()
    while at < len(body):
        match = pattern.match(body, at)
        if not match:
            sys.exit(f"cannot read the fields of {record} at '{body[at:at + 40]}'")
        kind = match["type"]
        if match["inner"] is not None:
            kind = f"{record}_{match['name'].upper()}"
            nested.append(RecordType(kind, read_fields(match["inner"], kind, nested), ""))
        extents = tuple(int(extent) for extent in re.findall(r"\d+", match["extents"]))
        fields.append(Field(match["name"], kind, extents, plain(match[1]) or plain(match[6])))
        at = match.end() + len(body[match.end():]) - len(body[match.end():].lstrip())
    return fields


def read_types(path):
    """(enumerations, records) of a header, each in the order in which it stands there, records ahead of those that hold them."""
    text = path.read_text()
    enumerations = [Enumeration(name, read_members(body), plain(comment)) for comment, name, body in re.findall(
        rf"(?:{COMMENT}\s*)?typedef enum (\w+) \{{(.*?)\}} \2;", text, re.DOTALL)]
    records = []
    for comment, name, body in re.findall(rf"(?:{COMMENT}\s*)?typedef struct (\w+) \{{(.*?)\}} \2;", text, re.DOTALL):
        nested = []
        fields = read_fields(body, name, nested)
        records += [*nested, RecordType(name, fields, plain(comment))]
    return enumerations, records
