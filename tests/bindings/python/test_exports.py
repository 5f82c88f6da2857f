"""The generated layer: every export can be called, and its values are those of C."""
import ctypes
import inspect
import json
import re
import subprocess
from pathlib import Path

import pytest

import merovane
from merovane import _call, exports, records

ROOT = Path(__file__).resolve().parents[3]


@pytest.fixture(scope="module")
def api(build):
    return json.loads(Path(build, "api/api.json").read_text())


def record_name(name):
    return "".join(word.capitalize() for word in name.split("_")[1:])


def value_of(argument, event):
    """One that the library accepts, where a single argument decides that."""
    kind, extent = argument["type"], argument["extent"]
    if kind in ("text", "char"):
        return "1"
    if kind == "event":
        return event
    if kind.startswith("QV_"):
        return getattr(records, record_name(kind))()
    if extent:
        count = int(extent) if extent.isdigit() else 4
        return bytes(count) if kind in ("u8", "bytes") else [1] * count
    # A property that the library does not have changes nothing.
    if argument["name"] == "property":
        return 99
    return 0 if kind in ("flag", "band") else max(argument["minimum"] or 0, (argument["one_of"] or [0])[0])


def arguments_of(export, function, event):
    known = {argument["name"]: argument for argument in export["arguments"]}
    return {name: value_of(known[name.rstrip("_")], event) for name, parameter in inspect.signature(function).parameters.items()
            if parameter.kind is not parameter.KEYWORD_ONLY}


def test_every_export_can_be_called_without_a_port(api, monkeypatch):
    monkeypatch.setenv("CASSORIND_COM1", "/nowhere/at/all")
    assert len(api["exports"]) == 579
    failed = 0
    with merovane.Event() as event:
        for export in api["exports"]:
            function = getattr(exports, export["name"])
            assert function.__doc__
            documented = {row["short_name"] for row in export["results"]} | set(export["exchange_results"])
            if export["kind"] == "project":
                documented.add("PC_ERR_PORT_NOT_OPEN")
            try:
                function(**arguments_of(export, function, event))
            except merovane.MerovaneError as error:
                failed += 1
                assert error.code in {merovane.Result[name] for name in documented}, str(error)
                assert error.function == export["name"] and error.advice
            else:
                # What needs no port: ends of sessions, properties.
                assert export["kind"] == "session", export["name"]
    assert failed > 560


def test_calls_pass_what_c_declares(api):
    kinds = {"u8": "B", "u16": "H", "i32": "i", "word": "w", "event": "e"}
    for export in api["exports"]:
        passed = exports._exports[export["name"]]._kinds
        assert passed == "".join("p" if argument["direction"] != "value" else kinds.get(argument["type"], "I")
                                 for argument in export["arguments"]), export["name"]


def test_records_lie_in_memory_as_in_c(tmp_path):
    layouts = {("QV_" + re.sub(r"(?<!^)(?=[A-Z])", "_", name).upper() if name != "Failure" else "Merovane_Failure"): kind.Layout
               for name, kind in vars(records).items()
               if inspect.isclass(kind) and kind.__module__ == records.__name__ and name != "FlashInfoRegion"}
    wanted, lines = [], []
    for name, layout in layouts.items():
        wanted.append(ctypes.sizeof(layout))
        lines.append(f'printf("%zu\\n", sizeof({name}));')
        for field, _ in layout._fields_:
            wanted.append(getattr(layout, field).offset)
            lines.append(f'printf("%zu\\n", offsetof({name}, {field}));')
    source = tmp_path / "layout.c"
    source.write_text('#include <stddef.h>\n#include <stdio.h>\n#include "merovane/diagnostics.h"\n#include "merovane/types.h"\n'
                      "int main(void) {\n" + "\n".join(lines) + "\nreturn 0; }\n")
    subprocess.run(["cc", "-I", str(ROOT / "include"), "-o", str(tmp_path / "layout"), str(source)], check=True)
    printed = subprocess.run([str(tmp_path / "layout")], check=True, capture_output=True, text=True).stdout
    assert [int(line) for line in printed.split()] == wanted
    assert len(layouts) >= 15


@pytest.mark.parametrize("call, said", [
    (lambda: exports.QV_WriteNv(70000, b""), "item is 70000: it must be 0 to 65535"),
    (lambda: exports.QV_SetRecvMode(-1), "mode is -1: it must be 0 to 4294967295"),
    (lambda: exports.QV_SaveBTAddr(b"12345"), "address has 5 bytes: it must have 6"),
    (lambda: exports.QV_RampSetting(True, [0] * 15, [0] * 16, 0), "ramp_up has 15 values: it must have 16"),
    (lambda: exports.QV_RampSetting(True, [0] * 15 + [65536], [0] * 16, 0), r"ramp_up\[15\] is 65536"),
    (lambda: exports.QV_OpenPrjFile("a\0b"), "path holds a zero"),
    (lambda: exports.QV_WriteRegister(2, 0, b"12345"), "data has 5 bytes: it must have whole units of 4"),
    (lambda: exports.QV_FastWriteNvInfo(records.FixedNvInfo(imei1="1" * 17)), "imei1 has 17 elements: at most 16 fit"),
    (lambda: exports.QV_TDTxSweep(records.TdTxSweep(points=[[1, 70000]])), r"points\[0\]\[1\] is 70000"),
    (lambda: exports.QV_WriteTDCalParam(records.TdParameters(count=1, values=[1, 2])), "values has 2 elements: count says 1"),
])
def test_what_c_could_not_hold_is_refused(call, said):
    with pytest.raises(ValueError, match=said):
        call()


def test_numbers_that_are_none_are_refused():
    with pytest.raises(TypeError):
        exports.QV_SetCampParam(1.5)
    with pytest.raises(TypeError):
        exports.QV_SetNvValue(0, "a.b", 5)


def test_an_export_that_an_older_library_lacks_is_named():
    with pytest.raises(merovane.LibraryError, match="has no QV_Tomorrow"):
        _call.Export("QV_Tomorrow", "QV_Tomorrow", 0, "").call()
