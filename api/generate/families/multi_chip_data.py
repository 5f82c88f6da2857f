"""The exports of multi_chip_data.def: power factors and ramps of multi-chip handsets."""
import re

import calibration_items

TABLE = "commands/calibration/multi_chip_data.def"
PLACES = {"Ram": "RAM", "Flash": "flash"}


def add_factor(api, items, name, item, storage, band):
    if band == "Current":
        band_text, refused = "in the band of QV_SetPhoneClassmark_MChip", "a null pointer"
    else:
        band_text, refused = "in the band `first`", "a null pointer or a band other than 0, 1, 3 and 4"
    api.add("command", set(), name, [("const QV_POWER_STEP *", "step")], [
        f"Writes `third` to item {items[item]} in {PLACES[storage]} {band_text}. 1000 ms.",
        "Its offset is 16 x `fourth` + `second`, less 5 when `first` is band 0 or 4. Nothing is sent when `second`, `third`",
        "and `fourth` are those that this function wrote last, for whatever band and though the handset was restarted",
        "since: the result is 0.",
        f"@return 0; 4 for {refused}"],
        f"commands::SetMultiChipFactor(phone, commands::multi_chip::{name}, step)")


def add_ramps(api, storage):
    ramp = f"commands::multi_chip::Ramp_{storage}"
    for name, verb, kind, function in ((f"RampSetting_{storage}_MChip", "Writes", "const uint16_t *", "Write"),
                                       (f"ReadRamp_{storage}_MChip", "Reads", "uint16_t *", "Read")):
        documentation = [
            f"{verb} two ramp tables in {PLACES[storage]}: the items 9 and 11 when `flag` is not 0, else 8 and 10. 1000 ms each.",
            "@param first   16 points",
            "@param second  16 points" + ("" if verb == "Writes" else "; points that an answer lacks stay as they were"),
            "@param band    0, 1, 3 or 4",
            "@return 0; 4 for a null pointer or another band" + ("" if verb == "Writes" else "; 13 when an answer has no data")]
        api.add("command", set(), name,
                [("uint32_t ", "flag"), (kind, "first"), (kind, "second"), ("uint32_t ", "band")], documentation,
                f"commands::{function}MultiChipRamp(phone, {ramp}, flag, first, second, band)")


def add_exports(api, source):
    text = (source / TABLE).read_text()
    items = {row["name"]: row["item"] for _, row in calibration_items.rows(source)}
    for row in re.findall(r"^MULTI_CHIP_FACTOR\((.+)\)$", text, re.MULTILINE):
        name, _, item, storage, band = (cell.strip() for cell in row.split(","))
        add_factor(api, items, name, item, storage, band)
    for row in re.findall(r"^MULTI_CHIP_RAMP\((.+)\)$", text, re.MULTILINE):
        add_ramps(api, row.split(",")[0].strip())
