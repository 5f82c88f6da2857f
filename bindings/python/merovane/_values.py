"""Python values as exported functions take and give them.

Whole numbers are checked against their width: ctypes would keep their low bits and say nothing.
"""
import ctypes
import operator
import os
import sys
from ctypes import c_char, c_int32, c_size_t, c_uint8, c_uint16, c_uint32
from typing import Any, ClassVar, Generic, List, Optional, Sequence, SupportsIndex, Tuple, TypeVar, Union

Text = Union[str, bytes, "os.PathLike[str]"]
Bytes = Union[bytes, bytearray, memoryview]
R = TypeVar("R", bound="Record")

_SIZES = {c_uint8: (0, 0xFF), c_uint16: (0, 0xFFFF), c_uint32: (0, 0xFFFFFFFF), c_int32: (-0x80000000, 0x7FFFFFFF),
          c_size_t: (0, c_size_t(-1).value)}


def integer(kind: Any, name: str, value: SupportsIndex) -> int:
    low, high = _SIZES[kind]
    number = operator.index(value)
    if not low <= number <= high:
        raise ValueError(f"{name} is {number}: it must be {low} to {high}")
    return number


def u8(name: str, value: SupportsIndex) -> int:
    return integer(c_uint8, name, value)


def u16(name: str, value: SupportsIndex) -> int:
    return integer(c_uint16, name, value)


def u32(name: str, value: SupportsIndex) -> int:
    return integer(c_uint32, name, value)


def i32(name: str, value: SupportsIndex) -> int:
    return integer(c_int32, name, value)


def flag(name: str, value: Any) -> int:
    return 1 if value else 0


def encode(text: Text) -> bytes:
    """A text in the system's narrow encoding, as the library takes texts and paths."""
    raw = os.fspath(text)
    if isinstance(raw, str):
        raw = raw.encode("mbcs") if sys.platform == "win32" else os.fsencode(raw)
    return raw


def decode(raw: bytes) -> str:
    """A text of the library's; bytes that are none in the system's encoding show as \\xNN."""
    if sys.platform == "win32":
        return raw.decode("mbcs", "replace")
    return raw.decode(sys.getfilesystemencoding(), "backslashreplace")


def text(name: str, value: Text) -> bytes:
    raw = encode(value)
    if b"\0" in raw:
        raise ValueError(f"{name} holds a zero, where the library would take it to end")
    return raw


class Cell:
    """One number that a function stores."""

    def __init__(self, kind: Any) -> None:
        self._memory = kind()
        self._as_parameter_ = ctypes.byref(self._memory)

    @property
    def value(self) -> int:
        return int(self._memory.value)

    def set(self, number: int) -> "Cell":
        self._memory.value = number
        return self


class Array:
    """Elements that a function reads or stores."""

    def __init__(self, kind: Any, content: Union[int, bytes, List[int]]) -> None:
        """`content` is what they are, or how many zeros."""
        if isinstance(content, int):
            self._memory = (kind * content)()
        elif isinstance(content, bytes):
            self._memory = (kind * len(content)).from_buffer_copy(content)
        else:
            self._memory = (kind * len(content))(*content)
        self._as_parameter_ = self._memory

    def __len__(self) -> int:
        return len(self._memory)

    def bytes(self, count: Optional[int] = None) -> bytes:
        return bytes(memoryview(self._memory).cast("B")[:len(self._memory) if count is None else count])

    def numbers(self) -> List[int]:
        return list(self._memory)

    def text(self, count: Optional[int] = None) -> str:
        """`count` characters; without it those up to the first zero."""
        raw = bytes(self._memory.raw)
        return decode(raw.split(b"\0", 1)[0] if count is None else raw[:count])


def byte_array(name: str, data: Bytes, count: Optional[int] = None) -> Array:
    view = memoryview(data).cast("B")
    if count is not None and len(view) != count:
        raise ValueError(f"{name} has {len(view)} bytes: it must have {count}")
    return Array(c_uint8, view.tobytes())


def character_array(name: str, value: Text) -> Array:
    return Array(c_char, encode(value))


def number_array(name: str, kind: Any, values: Sequence[int], count: Optional[int] = None) -> Array:
    numbers = [integer(kind, f"{name}[{at}]", value) for at, value in enumerate(values)]
    if count is not None and len(numbers) != count:
        raise ValueError(f"{name} has {len(numbers)} values: it must have {count}")
    return Array(kind, numbers)


def room(name: str, count: SupportsIndex) -> int:
    """How many elements a function is given room for. It refuses 0 itself."""
    number = operator.index(count)
    if not 0 <= number <= 0x7FFFFFFF:
        raise ValueError(f"{name} is {number}: it must be 0 to {0x7FFFFFFF}")
    return number


def units(name: str, length: int, width: int) -> int:
    """How many units of `width` bytes the data have."""
    if length % width:
        raise ValueError(f"{name} has {length} bytes: it must have whole units of {width}")
    return length // width


class Record:
    """A record of the library's as a dataclass: numbers are ints, characters a str, bytes a bytes, other arrays lists.

    What is shorter than its field is filled up with zeros.
    """

    Layout: ClassVar[Any]
    # Names an array at its end and the field that counts its elements, which may be more than the layout has.
    OPEN_END: ClassVar[Optional[Tuple[str, str]]] = None

    def __init_subclass__(cls) -> None:
        cls.Layout.record = cls


def record_kinds(layout: Any) -> List[Tuple[str, Any]]:
    return list(layout._fields_)


def to_memory(name: str, kind: Any, value: Any) -> Any:
    if issubclass(kind, ctypes.Structure):
        return RecordMemory(value)._memory
    if not issubclass(kind, ctypes.Array):
        return integer(kind, name, value)
    element: Any = kind._type_
    raw = encode(value) if element is c_char else value
    if len(raw) > kind._length_:
        raise ValueError(f"{name} has {len(raw)} elements: at most {kind._length_} fit")
    if element is c_char:
        return raw
    return kind(*(to_memory(f"{name}[{at}]", element, part) for at, part in enumerate(raw)))


def from_memory(kind: Any, value: Any) -> Any:
    if issubclass(kind, ctypes.Structure):
        return read_record(value)
    if not issubclass(kind, ctypes.Array):
        return value
    element: Any = kind._type_
    if element is c_char:
        return decode(value)
    if element is c_uint8:
        return bytes(value)
    return [from_memory(element, part) for part in value]


def read_record(memory: Any) -> Any:
    values = {name: from_memory(kind, getattr(memory, name)) for name, kind in record_kinds(memory)}
    return memory.record(**values)


class RecordMemory(Generic[R]):
    """The memory of a record that a function reads or stores."""

    def __init__(self, record: R) -> None:
        if not isinstance(record, Record):
            raise TypeError(f"a record is expected, not {record!r}")
        self._kind = type(record)
        layout = self._kind.Layout
        name = self._kind.__name__
        size, open_end = ctypes.sizeof(layout), None
        if self._kind.OPEN_END:
            array, counter = self._kind.OPEN_END
            field = dict(record_kinds(layout))[array]
            count, offset = u16(counter, getattr(record, counter)), getattr(layout, array).offset
            if len(getattr(record, array)) > count:
                raise ValueError(f"{name}.{array} has {len(getattr(record, array))} elements: {counter} says {count}")
            size = max(size, offset + count * ctypes.sizeof(field._type_))
            open_end = (array, field._type_ * count, offset)
        self._bytes = (c_uint8 * size)()
        self._memory = layout.from_buffer(self._bytes)
        self._open_end = None
        self._as_parameter_ = ctypes.byref(self._bytes)
        for field_name, kind in record_kinds(layout):
            value = getattr(record, field_name)
            if open_end and field_name == open_end[0]:
                self._open_end = open_end[1].from_buffer(self._bytes, open_end[2])
                self._open_end[:len(value)] = [integer(kind._type_, f"{name}.{field_name}[{at}]", part)
                                               for at, part in enumerate(value)]
            else:
                setattr(self._memory, field_name, to_memory(f"{name}.{field_name}", kind, value))

    def record(self) -> R:
        found: R = read_record(self._memory)
        if self._open_end is not None and self._kind.OPEN_END:
            setattr(found, self._kind.OPEN_END[0], list(self._open_end))
        return found
