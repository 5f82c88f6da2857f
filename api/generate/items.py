"""The handset's calibration items: one `item` statement gives every export that reads or writes one.

    /// WORDS
    item NAME = NUMBER [at OFFSET] [per band]: DATA
      as EXPORTS = OPERATION OPERATION OPERATION OPERATION;

WORDS say what the item is, as they stand after "Reads" and "Writes".
OFFSET is in elements: a number, `index`, `N * index`, or `offset` (8 bits of the caller's).
DATA is u16, u32 (one value, written by value), u16[17] (an array), u16[count] (as many as the caller says), imei (a text of 15
digits), or commit (none but a time limit).
EXPORTS is the name of all of them: the first {A|B} in it is the verb of reading and writing, {Ram|Flash} the place.
The operations are those of reading and writing in RAM, then in flash: a number, `none` where no id is recorded, - where there is no
such export. `either` in their place: one export reads or writes, in RAM or flash, as its arguments say.
"""
import re
import sys

from model import Argument, Declaration

PLACES = (("Ram", "RAM"), ("Flash", "flash"))
STATEMENT = re.compile(
    r"item\s+(\w+)\s*=\s*(\d+)(?:\s+at\s+([\w* ]+?))?(\s+per\s+band)?\s*:\s*(\w+)(?:\[(\w+)\])?\s+as\s+(\S+)\s*=\s*(.+)",
    re.DOTALL)
BYTES = {"u16": 2, "u32": 4, "imei": 8, "commit": 0}
WIDEST_INDEX = 0xFFFF
# What fits into one frame after the command's header.
MOST_BYTES = 65517


def read_item(text, documentation, where):
    match = STATEMENT.fullmatch(text)
    if not match or len(documentation) != 1:
        sys.exit(f"{where}: cannot read '{' '.join(text.split())}'")
    name, number, offset, per_band, data, count, pattern, operations = match.groups()
    if data not in BYTES:
        sys.exit(f"{where}: an item has no '{data}'")
    if count and not (count.isdigit() or count == "count"):
        sys.exit(f"{where}: cannot read the number of values '{count}'")
    factor = re.fullmatch(r"(?:(\d+)\s*\*\s*)?index", offset or "")
    item = {
        "name": name, "words": documentation[0], "number": int(number), "per_band": bool(per_band),
        "fixed_offset": int(offset) if offset and offset.isdigit() else 0,
        "per_index": int(factor[1] or 1) if factor else 1 if offset == "offset" else 0,
        "low_byte": offset == "offset",
        "data": data, "count": int(count) if count and count.isdigit() else 1, "counted": count == "count",
        "bytes": 0 if count == "count" else BYTES[data] * int(count or 1),
        "either": operations.strip() == "either", "exports": [None] * 4,
    }
    if offset and not (offset.isdigit() or factor or item["low_byte"]):
        sys.exit(f"{where}: cannot read the offset '{offset}'")
    if data in ("imei", "commit") and (offset or per_band or count):
        sys.exit(f"{where}: an item of '{data}' is one for all bands and begins at its start")
    if item["either"]:
        if data not in ("u16", "u32") or offset or per_band or item["counted"]:
            sys.exit(f"{where}: `either` is for values from an item's start, whose number is fixed")
        item["exports"] = [(pattern, None)] * 4
        return item, [either(item, pattern)]
    cells = operations.split()
    if len(cells) != 4 or not all(re.fullmatch(r"\d+|none|-", cell) for cell in cells):
        sys.exit(f"{where}: say four operations, of reading and writing in RAM and in flash")
    if data == "commit" and cells[::2] != ["-", "-"]:
        sys.exit(f"{where}: a commit cannot be read")
    made = []
    for at, cell in enumerate(cells):
        if cell == "-":
            continue
        writes, place = at % 2 == 1, PLACES[at // 2]
        export = re.sub(r"\{(\w+)\|(\w+)\}", lambda m: pick(m, writes, place[0]), pattern)
        operation = None if cell == "none" else int(cell)
        item["exports"][at] = (export, operation)
        make = {"imei": imei, "commit": commit}.get(data, plain)
        made.append(make(item, export, operation, writes, place))
    return item, made


def pick(match, writes, place):
    if match[0] == "{Ram|Flash}":
        return place
    return match[2] if writes else match[1]


def elements(item):
    return "one value" if item["count"] == 1 else f"{item['count']} values"


def address(item, storage, band, offset):
    return f"{{{storage}, {band}, {item['number']}, {offset}}}"


def declaration(item, export, operation, arguments, brief, runs, results=()):
    made = Declaration("command", export, operation, uses="asks", arguments=arguments, log=f'"{export}:"',
                       log_names=[f"{export}:"], runs=runs, brief=brief, results=list(results), item=item)
    if item["either"]:
        made.flags = frozenset({"plain"})
    return made


NO_DATA = ("WrongDataLength", ["the answer has no data"])


def plain(item, export, operation, writes, place):
    arguments, offset, where = [], str(item["fixed_offset"]), ""
    if item["per_band"]:
        arguments.append(Argument("band", "band", documentation=["a QV_BAND"]))
    if item["low_byte"]:
        arguments.append(Argument("offset", "u8", documentation=["of the value, in elements"]))
        offset, where = "offset", " at offset `offset`"
    elif item["per_index"]:
        most = WIDEST_INDEX // item["per_index"]
        arguments.append(Argument("index", "u16", high=most if most < WIDEST_INDEX else None,
                                  documentation=["of the table" if item["per_index"] > 1 else "of the element"]))
        offset = "index" if item["per_index"] == 1 else f"static_cast<std::uint16_t>({item['per_index']} * index)"
        where = " at offset " + ("`index`" if item["per_index"] == 1 else f"{item['per_index']} x `index`")
    elif item["fixed_offset"]:
        where = f" at offset {item['fixed_offset']}"
    one_value = item["count"] == 1 and not item["counted"]
    what = "" if one_value else ": `count` values" if item["counted"] else f": {elements(item)}"
    kept = [] if writes else ["what was read; what the answer lacks stays as it was"]
    if one_value and writes:
        arguments.append(Argument("value", item["data"], documentation=["what is written"]))
        values = "std::span(&value, 1)"
    elif one_value:
        arguments.append(Argument("value", item["data"], "out", documentation=kept))
        values = "std::span(&value, 1)"
    else:
        extent = "count" if item["counted"] else str(item["count"])
        arguments.append(Argument("values", item["data"], "in" if writes else "out", extent,
                                  documentation=kept or ["what is written"]))
        values = "values"
        if item["counted"]:
            arguments.append(Argument("count", "u32", low=1, high=MOST_BYTES // BYTES[item["data"]], documentation=["of values"]))
    verb = "Write" if writes else "Read"
    of_band = " of a band" if item["per_band"] else ""
    band = "static_cast<std::uint16_t>(band)" if item["per_band"] else "0"
    storage = f"Storage::{place[0]}"
    return declaration(item, export, operation, arguments,
                       [f"{verb}s {item['words']}{of_band} {'in' if writes else 'from'} {place[1]}{what}"
                        f" (item {item['number']}{where}). Waits 1000 ms."],
                       f"{verb}Item(operation, {address(item, storage, band, offset)}, {values})",
                       () if writes else (NO_DATA,))


def imei(item, export, operation, writes, place):
    where = address(item, f"Storage::{place[0]}", "0", "0")
    if writes:
        made = declaration(item, export, operation,
                           [Argument("text", "text", "in", documentation=[
                               "begins with 15 decimal digits; what follows does not matter"])],
                           [f"Writes {item['words']} in {place[1]} (item {item['number']}). Waits 3000 ms."],
                           f"WriteImeiItem(operation, {where}, text)")
        made.requirements.append(("PackImei(text)", "a text that does not begin with 15 decimal digits"))
        return made
    return declaration(item, export, operation,
                       [Argument("text", "char", "out", "16", documentation=[
                           "15 decimal digits and a zero. A damaged digit shows as its value, 10 to 15, and the text is cut",
                           "to 15 characters, so that an erased IMEI reads as 151515151515151 with PC_ERR_SUCCESS; a digit",
                           "that the answer lacks shows as 0"])],
                       [f"Reads {item['words']} from {place[1]} (item {item['number']}). Waits 1000 ms."],
                       f"ReadImeiItem(operation, {where}, text)", (NO_DATA,))


def commit(item, export, operation, _writes, place):
    return declaration(item, export, operation,
                       [Argument("timeout_ms", "ms", documentation=[
                           "of the acknowledgement; saving can take many seconds"])],
                       [f"Saves {item['words']} to {place[1]} (item {item['number']})."],
                       f"CommitItem(operation, {address(item, f'Storage::{place[0]}', '0', '0')}, timeoutMs)")


def either(item, export):
    return declaration(item, export, None, [
        Argument("read", "flag", documentation=["not 0: read; 0: write"]),
        Argument("flash", "flag", documentation=["not 0: in flash; 0: in RAM"]),
        Argument("band", "u16", documentation=["the band word, unchecked"]),
        Argument("values", item["data"], "inout", str(item["count"]),
                 documentation=["what is written, or what was read; what the answer lacks stays as it was"])],
        [f"Reads or writes {item['words']}: {elements(item)} (item {item['number']}). Waits 1000 ms. For the default phone object"
         " only."],
        f"TransferItem(operation, read, {address(item, 'flash ? Storage::Flash : Storage::Ram', 'band', '0')}, values)",
        (NO_DATA,))
