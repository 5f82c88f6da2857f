"""Finds the library, sees that it suits this interpreter, and loads it at the first call."""
import ctypes
import os
import platform
import re
import struct
import sys
import threading
from pathlib import Path
from typing import Any, Optional

WINDOWS = sys.platform == "win32"
LIBRARY_NAME = "Merovane.dll" if WINDOWS else "libMerovane.so"
# What it loads itself, from its own folder. The channel server's client is wanted only by those who use it.
COMPANION_NAMES = (["Cassorind.dll", "Brimwell.dll"] if WINDOWS
                   else ["libCassorind.so", "libBrimwell.so", "libthreadqueue.so"])

PE_MACHINES = {0x014C: "32-bit x86", 0x8664: "64-bit x86", 0xAA64: "64-bit ARM"}
ELF_MACHINES = {3: "x86", 62: "x86", 40: "ARM", 183: "ARM"}

# The ports that open() takes for devices given by name: the highest that a mode process can await.
NAMED_PORTS = range(256, 192, -1)

_lock = threading.Lock()
_loaded: Optional[ctypes.CDLL] = None


class LibraryError(OSError):
    """The library cannot be used; the text says what to do about it."""


def image_kind(path: Path) -> str:
    """What a library file was built for, as "Windows, 32-bit x86"; "no library" for other files."""
    with path.open("rb") as file:
        head = file.read(64)
        if head[:4] == b"\x7fELF" and len(head) >= 20:
            order = "<" if head[5] == 1 else ">"
            machine = struct.unpack_from(order + "H", head, 18)[0]
            bits = {1: 32, 2: 64}.get(head[4], 0)
            return f"Linux, {bits}-bit {ELF_MACHINES.get(machine, f'machine {machine}')}"
        if head[:2] == b"MZ" and len(head) == 64:
            file.seek(struct.unpack_from("<I", head, 60)[0])
            header = file.read(6)
            if header[:4] == b"PE\0\0" and len(header) == 6:
                machine = struct.unpack_from("<H", header, 4)[0]
                return f"Windows, {PE_MACHINES.get(machine, f'machine {machine:#x}')}"
    return "no library"


def own_kind() -> str:
    """What this interpreter can load."""
    bits = struct.calcsize("P") * 8
    # Of the interpreter: the machine can be another one, that runs it all the same.
    built_for = sys.version if WINDOWS else platform.machine()
    family = "ARM" if re.search(r"arm|aarch", built_for, re.IGNORECASE) else "x86"
    return f"{'Windows' if WINDOWS else 'Linux'}, {bits}-bit {family}"


def check_image(path: Path) -> None:
    """Raises LibraryError when this interpreter cannot load the file."""
    kind, own = image_kind(path), own_kind()
    if kind == own:
        return
    if kind == "no library":
        raise LibraryError(f"{path} is no library: it is damaged, or MEROVANE_LIBRARY names another file by mistake")
    raise LibraryError(f"{path} is built for {kind}, but this Python ({sys.executable}) is {own}. "
                       "Install the wheel that was made for this Python, or name the right library in MEROVANE_LIBRARY")


def library_file() -> str:
    """The file to load. A name without a folder the system finds, or not, where it looks for every library."""
    named = os.environ.get("MEROVANE_LIBRARY")
    if named:
        path = Path(named)
        return os.path.abspath(path / LIBRARY_NAME if path.is_dir() else path)
    beside = Path(__file__).resolve().parent / LIBRARY_NAME
    return str(beside) if beside.exists() else LIBRARY_NAME


def explain(path: str, error: OSError) -> str:
    text = f"{path} cannot be loaded: {error}"
    folder = Path(path).parent
    if os.path.dirname(path):
        missing = [name for name in COMPANION_NAMES if not (folder / name).exists()]
        if missing:
            return f"{text}. {' and '.join(missing)} must stand beside it, in {folder}"
        return text
    return (f"{text}. Install the wheel for this system, which brings the library along, "
            "or name the library's file in MEROVANE_LIBRARY")


def open_library() -> ctypes.CDLL:
    path = library_file()
    if os.path.dirname(path):
        if not os.path.exists(path):
            raise LibraryError(f"there is no library at {path}, which MEROVANE_LIBRARY names")
        for file in [Path(path), *(Path(path).parent / name for name in COMPANION_NAMES)]:
            if file.exists():
                check_image(file)
    load: Any = getattr(ctypes, "WinDLL" if WINDOWS else "CDLL")
    try:
        library: ctypes.CDLL = load(path)
        library.Merovane_Version
    except (OSError, AttributeError) as error:
        if isinstance(error, AttributeError):
            raise LibraryError(f"{path} has no Merovane_Version: it is another library, or an older version") from None
        raise LibraryError(explain(path, error)) from None
    return library


def reserve_ports() -> None:
    """Gives the ports of NAMED_PORTS an empty variable, which means none, while no thread of the library runs.

    A thread that opens a port reads the environment. To give a variable another value leaves the others where they
    are; to add one can move them all under that thread. Windows guards its environment itself.
    """
    if not WINDOWS:
        for port in NAMED_PORTS:
            os.environ.setdefault(f"CASSORIND_COM{port}", "")


def library() -> ctypes.CDLL:
    """The library, loaded by the first who asks."""
    global _loaded
    with _lock:
        if _loaded is None:
            reserve_ports()
            _loaded = open_library()
        return _loaded


def path() -> str:
    """The file of the library that is or would be loaded."""
    return str(library()._name)
