"""Why a call failed, what results and operations are called, what the settings are, which calls were made."""
import ctypes
import json
import os
from typing import Any, Dict, Optional, Union

from . import _library
from .records import Failure


def _function(name: str, result: Any, *arguments: Any) -> Any:
    function = _library.library()[name]
    function.restype, function.argtypes = result, list(arguments)
    return function


def _text(name: str, *arguments: int) -> str:
    kinds = [ctypes.c_int32 if name.startswith("Merovane_Result") else ctypes.c_uint32 for _ in arguments]
    raw: bytes = _function(name, ctypes.c_char_p, *kinds)(*arguments)
    return raw.decode("utf-8", "replace")


def _check(name: str, code: int) -> None:
    from . import errors
    if code:
        raise errors.MerovaneError(name, "", code, result_meaning(code))


def version() -> str:
    """The library's version, as "1.2.3"."""
    return _text("Merovane_Version")


def result_name(result: int) -> str:
    """The name of a result, as "PC_ERR_SUCCESS"; "unknown result" for a number that is none."""
    return _text("Merovane_ResultName", int(result))


def result_meaning(result: int) -> str:
    """What a result says, in one sentence."""
    return _text("Merovane_ResultMeaning", int(result))


def result_advice(result: int) -> str:
    """What to look at when a call gave this result; empty for 0."""
    return _text("Merovane_ResultAdvice", int(result))


def operation_name(operation: int) -> str:
    """The export that records an operation id, as "ReadFlash" for 23."""
    return _text("Merovane_OperationName", operation)


def start_mode_name(mode: int) -> str:
    """The name of a start mode, where it has one that all handsets share."""
    return _text("Merovane_StartModeName", mode)


def last_failure(port: int = 0) -> Optional[Failure]:
    """The last call that failed on a port, or with 0 in this thread; None when none has."""
    memory: Any = Failure.Layout()
    memory.struct_bytes = ctypes.sizeof(memory)
    find = _function("Merovane_LastFailure", ctypes.c_int32, ctypes.c_int32, ctypes.c_void_p)
    if not find(port, ctypes.byref(memory)):
        return None
    values: Dict[str, Any] = {}
    for name, _ in Failure.Layout._fields_:
        value = getattr(memory, name)
        # These texts are UTF-8 on every system.
        values[name] = value.decode("utf-8", "replace") if isinstance(value, bytes) else value
    return Failure(**values)


def forget_failure(port: int = 0) -> None:
    """Forgets the last failure of a port, or with 0 of this thread."""
    _function("Merovane_ForgetFailure", None, ctypes.c_int32)(port)


def set_folder(folder: Union[str, "os.PathLike[str]"]) -> None:
    """Has the settings file read in, and logs written to, this folder instead of the interpreter's.

    Before the first session only.
    """
    raw = os.fspath(folder).encode("utf-8", "surrogateescape")
    _check("Merovane_SetFolder", _function("Merovane_SetFolder", ctypes.c_int32, ctypes.c_char_p)(raw))


def settings() -> Dict[str, Any]:
    """The settings in force, where each comes from, and what is wrong with the file.

    {"file": path, "found": bool, "settings": [{"section", "key", "value", "source"}], "problems": [{..., "text"}]}
    """
    function = _function("Merovane_Settings", ctypes.c_uint32, ctypes.c_void_p, ctypes.c_uint32)
    size = function(None, 0)
    while True:
        text = ctypes.create_string_buffer(size)
        needed = function(text, size)
        if needed <= size:
            found: Dict[str, Any] = json.loads(text.value.decode("utf-8", "replace"))
            return found
        size = needed


def set_trace(trace: int) -> None:
    """Switches the trace, one line of JSON for each call beside the logs: a constants.Trace."""
    _check("Merovane_SetTrace", _function("Merovane_SetTrace", ctypes.c_int32, ctypes.c_uint32)(trace))


def flush(timeout: float) -> bool:
    """Waits until all calls that have returned are in the trace and in Python's logging.

    False when `timeout` seconds were not enough.
    """
    return bool(_function("Merovane_Flush", ctypes.c_int32, ctypes.c_uint32)(round(timeout * 1000)))
