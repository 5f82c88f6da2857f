"""The call of an exported function. ctypes lets other threads run until it returns."""
from ctypes import c_int32, c_size_t, c_ssize_t, c_uint8, c_uint16, c_uint32, c_void_p
from typing import Any, Callable, TypeVar

from . import _library, errors

T = TypeVar("T")

_KINDS = {"B": c_uint8, "H": c_uint16, "I": c_uint32, "i": c_int32, "w": c_size_t, "p": c_void_p,
          "e": c_void_p if _library.WINDOWS else c_ssize_t}


class Export:
    """One exported function. It is looked up at its first call."""

    def __init__(self, name: str, windows_name: str, operation: int, kinds: str) -> None:
        self.name = name
        self.operation = operation
        self._symbol = windows_name if _library.WINDOWS else name
        self._kinds = kinds
        self._function: Any = None

    def call(self, *arguments: Any) -> int:
        """What the function returns; any number for one that returns nothing."""
        function = self._function
        if function is None:
            try:
                function = _library.library()[self._symbol]
            except AttributeError:
                raise _library.LibraryError(
                    f"{_library.path()} has no {self._symbol}: it is of an older version than this package") from None
            function.argtypes = [_KINDS[kind] for kind in self._kinds]
            function.restype = c_int32
            self._function = function
        code: int = function(*arguments)
        return code

    def check(self, *arguments: Any) -> None:
        """Raises MerovaneError unless the function succeeds."""
        code = self.call(*arguments)
        if code:
            raise errors.failed(self.name, self.operation, code, None)

    def fetch(self, stored: Callable[[], T], *arguments: Any) -> T:
        """What the function stored; when it fails, that is in the error."""
        code = self.call(*arguments)
        if code:
            raise errors.failed(self.name, self.operation, code, stored())
        return stored()
