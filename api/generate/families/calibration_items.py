"""The exports of the handset's calibration data: one row of calibration_items.def each gives up to four."""
import re

TABLE = "commands/calibration/calibration_items.def"
COLUMNS = ("names", "name", "item", "offset", "bytes", "element", "band", "argument", "r", "w", "rf", "wf")
C_TYPES = {"U16": "uint16_t ", "U32": "uint32_t ", "Byte": "uint8_t "}
PLACES = (("Ram", "RAM"), ("Flash", "flash"))
WRONG_BAND = "another band"


def rows(source):
    group = None
    for line in (source / TABLE).read_text().splitlines():
        if match := re.fullmatch(r"// group (.+)", line):
            group = match[1]
        elif match := re.fullmatch(r"CALIBRATION_ITEM\((.+)\)", line.strip()):
            yield group, dict(zip(COLUMNS, (cell.strip() for cell in match[1].split(",")), strict=True))


def export_name(row, writes, place):
    if row["names"] == "Data":
        return f"{'WriteData' if writes else 'ReadData'}_{place}_{row['name']}"
    if row["names"] == "Table":
        return f"{'Set' if writes else 'Read'}{row['name']}_{place}"
    return row["name"]


def pointer(c_type, constant):
    return ("const " if constant else "") + c_type + "*"


def elements(row):
    count = int(row["bytes"]) // (4 if row["element"] == "U32" else 2)
    return "one value" if count == 1 else f"{count} values"


def position(row):
    """What the offset column says, in words, and the argument that it asks for."""
    if match := re.fullmatch(r"Index\((\d+)\)", row["offset"]):
        if match[1] == "1":
            return " from offset `index`", ("uint16_t ", "index"), "in elements"
        return f" from offset {match[1]} x `index`", ("uint16_t ", "index"), f"at most {0xFFFF // int(match[1])}"
    if row["offset"] == "LowByte":
        return " from offset `offset`", ("uint8_t ", "offset"), "in elements; 8 bits"
    fixed = int(re.fullmatch(r"At\((\d+)\)", row["offset"])[1])
    return (f" from offset {fixed}" if fixed else ""), None, ""


def add_item(api, row, writes, place, place_text):
    """One export that reads or writes an item in one place."""
    arguments, selection, refused = [], [], ["a null pointer"]
    where, index, index_text = position(row)
    doc_arguments = []
    of_band = ""
    if row["band"] == "PerBand":
        arguments.append(("uint32_t ", "band"))
        selection.append(".band = band")
        doc_arguments.append("@param band    0, 1, 3 or 4")
        refused.append(WRONG_BAND)
        of_band = " of a band"
    if index:
        arguments.append(index)
        selection.append(f".index = {index[1]}")
        doc_arguments.append(f"@param {index[1]:<6}  {index_text}")
        if index_text.startswith("at most"):
            refused.append("a greater index")
    c_type = C_TYPES[row["element"]]
    by_value = row["argument"] == "Value" and writes
    data = "value" if row["argument"] == "Value" else "values"
    what = "caller's number of values" if row["argument"] == "Counted" else elements(row)
    if by_value:
        arguments.append((c_type, "value"))
        refused.remove("a null pointer")
    else:
        arguments.append((pointer(c_type, writes), data))
    if row["argument"] == "Counted":
        arguments.append(("uint32_t ", "count"))
        selection.append(".count = count")
        doc_arguments.append("@param count   of values, 1 to 32758")
        refused.append("another count")
        what = "`count` values"
    if not writes:
        doc_arguments.append(f"@param {data:<6}  bytes that the answer lacks stay as they were")
    verb = "Writes" if writes else "Reads"
    documentation = [f"{verb} item {row['item']}{of_band} in {place_text}: {what}{where}. 1000 ms."] + doc_arguments
    codes = ["0"]
    if refused:
        codes.append("4 for " + (", ".join(refused[:-1]) + " or " if refused[1:] else "") + refused[-1])
    if not writes:
        codes.append("13 when the answer has no data")
    if len(codes) > 1:
        documentation.append("@return " + "; ".join(codes))
    call = (f"commands::{verb[:-1]}Item(phone, commands::items::{row['name']}, commands::Storage::{place}, "
            f"{{{', '.join(selection)}}}, {'&value' if by_value else data})")
    api.add("command", set(), export_name(row, writes, place), arguments, documentation, call)


def add_imei(api, row, writes, place, place_text):
    name = f"commands::items::{row['name']}, commands::Storage::{place}"
    export = export_name(row, writes, place)
    if writes:
        api.add("command", set(), export, [("const char *", "text")], [
            f"Writes item {row['item']} in {place_text}, an IMEI. 3000 ms.",
            "@param text  begins with 15 decimal digits; what follows does not matter",
            "@return 0; 4 for a null pointer or another character among the first 15"],
            f"commands::WriteImeiItem(phone, {name}, text)")
    else:
        api.add("command", set(), export, [("char *", "text")], [
            f"Reads item {row['item']} in {place_text}, an IMEI. 1000 ms.",
            "@param text  at least 16 bytes: 15 decimal digits and a zero. A damaged digit shows as its value, 10 to",
            "  15, and the text is cut to 15 characters; a digit that the answer lacks shows as 0",
            "@return 0; 4 for a null pointer; 13 when the answer has no data"],
            f"commands::ReadImeiItem(phone, {name}, text)")


def add_commit(api, row, place, place_text):
    api.add("command", set(), export_name(row, True, place), [("uint32_t ", "timeout_ms")], [
        f"Saves all items in RAM to {place_text}, through item {row['item']}.",
        "@param timeout_ms  of the acknowledgement; saving can take many seconds",
        "@return 0; 11 when the handset had not acknowledged in time"],
        f"commands::CommitItem(phone, commands::items::{row['name']}, commands::Storage::{place}, timeout_ms)")


def add_either(api, row):
    c_type = C_TYPES[row["element"]]
    api.add("command", {"plain"}, row["name"],
            [("uint32_t ", "read"), ("uint32_t ", "flash"), ("uint16_t ", "band"), (c_type + "*", "values")], [
        f"Reads or writes item {row['item']}: {elements(row)}. 1000 ms. For the default phone object only.",
        "@param read    not 0: read; 0: write",
        "@param flash   not 0: in flash; 0: in RAM",
        "@param band    the band word, unchecked",
        "@param values  reading leaves those that the answer lacks as they were",
        "@return 0; 4 for a null pointer; 13 when the answer has no data"],
        f"commands::TransferItem(phone, commands::items::{row['name']}, read, flash, band, values)")


def add_exports(api, source):
    for group, row in rows(source):
        api.group = group
        if row["argument"] == "Either":
            add_either(api, row)
            continue
        for at, (place, place_text) in enumerate(PLACES):
            for writes, operation in ((False, row[("r", "rf")[at]]), (True, row[("w", "wf")[at]])):
                if operation == "none":
                    continue
                if row["argument"] == "Imei":
                    add_imei(api, row, writes, place, place_text)
                elif row["argument"] == "Commit":
                    add_commit(api, row, place, place_text)
                else:
                    add_item(api, row, writes, place, place_text)
