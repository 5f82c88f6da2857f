"""What the library logs, as Python's logging has it."""
import atexit
import ctypes
import json
import logging
import threading
from typing import Any, Dict, Optional, Union

from . import _library, diagnostics, errors

# What the listener is told of.
_LOG_LINE, _CALL, _DROPPED = 1, 2, 3
_LEVELS = {_LOG_LINE: logging.INFO, _CALL: logging.DEBUG, _DROPPED: logging.WARNING}
_LAST_RECORDS_S = 1.0

_lock = threading.Lock()
# The library calls it for as long as it has it.
_listener: Any = None


def log_to(logger: Optional[Union[str, logging.Logger]] = "merovane") -> None:
    """Has log lines go to the logger's child of their port, as "merovane.port5", at INFO, and each call of an exported
    function at DEBUG: with its result, its time, and as `record.call` all that the trace has of it. None ends that.

    Records arrive on a thread of the library's, a moment after the call; diagnostics.flush() waits for them.
    """
    global _listener
    library = _library.library()
    make: Any = getattr(ctypes, "WINFUNCTYPE" if _library.WINDOWS else "CFUNCTYPE")
    kind = make(None, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_int32, ctypes.c_char_p)
    library.Merovane_SetListener.argtypes = [kind, ctypes.c_void_p]
    with _lock:
        listener = kind() if logger is None else kind(_forward_to(logger))
        code = library.Merovane_SetListener(listener, None)
        if code:
            raise errors.failed("Merovane_SetListener", 0, code, None)
        if _listener is None and logger is not None:
            atexit.register(_end)
        _listener = listener


def _end() -> None:
    # The library's thread must not call an interpreter that has ended.
    diagnostics.flush(_LAST_RECORDS_S)
    log_to(None)


def _forward_to(logger: Union[str, logging.Logger]) -> Any:
    parent = logging.getLogger(logger) if isinstance(logger, str) else logger

    def listen(context: Any, event: int, port: int, text: bytes) -> None:
        child = parent.getChild(f"port{port}") if port else parent
        level = _LEVELS.get(event)
        if level is None or not child.isEnabledFor(level):
            return
        said = text.decode("utf-8", "backslashreplace")
        if event == _CALL:
            call: Dict[str, Any] = json.loads(said)
            child.log(level, "%s: %s, %.3f ms", call["function"], call.get("name", call.get("result", "done")),
                      call["us"] / 1000, extra={"call": call})
        elif event == _DROPPED:
            child.log(level, "%s records came too fast and were dropped", said)
        else:
            child.log(level, "%s", said.rstrip())

    return listen
