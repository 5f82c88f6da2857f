"""What the library logs, as Python's logging has it."""
import atexit
import ctypes
import logging
import threading
from typing import Any, Optional, Union

from . import _library, errors

_LOG_LINE, _CALL = 1, 2

_lock = threading.Lock()
# The library calls it for as long as it has it.
_listener: Any = None


def log_to(logger: Optional[Union[str, logging.Logger]] = "merovane") -> None:
    """Has log lines go to the logger's child of their port, as "merovane.port5", at INFO, and each call with its result and
    time at DEBUG. None ends that.

    Records arrive on a thread of the library's, a moment after the call.
    """
    global _listener
    library = _library.library()
    try:
        set_listener = library.Merovane_SetListener
    except AttributeError:
        raise _library.LibraryError(f"{_library.path()} tells nobody what it logs: it is of an older version than this "
                                    "package") from None
    make: Any = getattr(ctypes, "WINFUNCTYPE" if _library.WINDOWS else "CFUNCTYPE")
    kind = make(None, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_int32, ctypes.c_char_p)
    set_listener.argtypes, set_listener.restype = [kind, ctypes.c_void_p], ctypes.c_int32
    with _lock:
        listener = kind() if logger is None else kind(_forward_to(logger))
        code = set_listener(listener, None)
        if code:
            raise errors.failed("Merovane_SetListener", 0, code, None)
        if _listener is None:
            # The interpreter is gone before the library's threads are.
            atexit.register(log_to, None)
        _listener = listener


def _forward_to(logger: Union[str, logging.Logger]) -> Any:
    parent = logging.getLogger(logger) if isinstance(logger, str) else logger

    def listen(context: Any, event: int, port: int, text: bytes) -> None:
        child = parent.getChild(f"port{port}") if port else parent
        level = logging.INFO if event == _LOG_LINE else logging.DEBUG
        if child.isEnabledFor(level):
            child.log(level, "%s", text.decode("utf-8", "replace"))

    return listen
