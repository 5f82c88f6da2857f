"""Events that the library sets: an event's handle on Windows, an eventfd descriptor elsewhere."""
import ctypes
import math
import os
import select
import sys
import time
from typing import Any, Optional


class Event:
    """Is set by a mode process, and then stays set until the next one begins.

    It must outlive the mode process: stop that (QV_StopModeProcess) before closing the event early.
    """

    handle = 0

    def __init__(self) -> None:
        self.handle = _create()

    def wait(self, timeout: Optional[float] = None) -> bool:
        """Whether the event was set within `timeout` seconds; without it waits until it is."""
        return _wait(self.handle, timeout)

    def is_set(self) -> bool:
        return self.wait(0)

    def close(self) -> None:
        if self.handle:
            _close(self.handle)
            self.handle = 0

    def __enter__(self) -> "Event":
        return self

    def __exit__(self, *error: object) -> None:
        self.close()

    def __del__(self) -> None:
        self.close()


def handle_of(event: Any) -> int:
    """The library's form of an Event or of a handle that the caller made."""
    return int(event.handle if isinstance(event, Event) else event)


if sys.platform == "win32":
    _kernel = ctypes.WinDLL("kernel32", use_last_error=True)
    _kernel.CreateEventW.restype = ctypes.c_void_p
    _kernel.CreateEventW.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_wchar_p]
    _kernel.WaitForSingleObject.argtypes = [ctypes.c_void_p, ctypes.c_uint32]
    _kernel.WaitForSingleObject.restype = ctypes.c_uint32
    _kernel.CloseHandle.argtypes = [ctypes.c_void_p]

    def _create() -> int:
        handle = _kernel.CreateEventW(None, 1, 0, None)
        if not handle:
            raise ctypes.WinError(ctypes.get_last_error())
        return int(handle)

    def _wait(handle: int, timeout: Optional[float]) -> bool:
        end = None if timeout is None else time.monotonic() + timeout
        while True:
            # In pieces, so that Ctrl+C is heard.
            left = 0.2 if end is None else max(0.0, min(0.2, end - time.monotonic()))
            outcome = _kernel.WaitForSingleObject(handle, math.ceil(left * 1000))
            if outcome == 0:
                return True
            if outcome != 0x102:
                raise ctypes.WinError(ctypes.get_last_error())
            if end is not None and time.monotonic() >= end:
                return False

    def _close(handle: int) -> None:
        _kernel.CloseHandle(handle)
else:
    def _create() -> int:
        # os.eventfd is of Python 3.10. The flags are those of open().
        descriptor = ctypes.CDLL(None, use_errno=True).eventfd(0, os.O_CLOEXEC | os.O_NONBLOCK)
        if descriptor < 0:
            raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()))
        return int(descriptor)

    def _wait(handle: int, timeout: Optional[float]) -> bool:
        poll = select.poll()
        poll.register(handle, select.POLLIN)
        return bool(poll.poll(None if timeout is None else math.ceil(max(0.0, timeout) * 1000)))

    def _close(handle: int) -> None:
        os.close(handle)
