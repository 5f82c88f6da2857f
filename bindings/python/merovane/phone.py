"""A handset on a port, as a station engineer works with it."""
import contextlib
import os
import threading
import time
from concurrent.futures import ThreadPoolExecutor, wait
from typing import Dict, Iterator, List, Union

from . import _library, exports
from .constants import AccessWidth, Cause, Result
from .errors import MerovaneError
from .records import CellInfo, FixedNvInfo, FlashInfo

Port = Union[int, str, "os.PathLike[str]"]

BAUD_RATE = 115200
# Modes are the handset's own numbers; this one is that of the station programs.
START_MODES = {"test": 1}

SERIAL_NUMBER_BYTES = 24
# Long enough for a start frame of a handset that sends them, short enough to be no burden when it is up already.
_FIRST_LOOK_S = 0.3
_LOOK_S = 2.0
_REOPEN_PAUSE_S = 0.1
_INTERRUPTIBLE_S = 0.2

_ports_lock = threading.Lock()
_ports: Dict[str, int] = {}


def port_number(port: Port) -> int:
    """The number of a port that is given by number, by name ("COM5") or as a device ("/dev/ttyUSB0").

    A device gets a number of its own, which stays the same as long as the program runs; its logs go by it.
    """
    if isinstance(port, int):
        return port
    device = os.fspath(port)
    if device.upper().startswith("COM") and device[3:].isdigit():
        return int(device[3:])
    _library.library()
    with _ports_lock:
        if device not in _ports:
            free = next((number for number in _library.NAMED_PORTS
                         if number not in _ports.values() and not os.environ.get(f"CASSORIND_COM{number}")), None)
            if free is None:
                raise ValueError(f"{device}: no port number is left, {len(_ports)} devices have one")
            os.environ[f"CASSORIND_COM{free}"] = device
            _ports[device] = free
        return _ports[device]


def mode_number(mode: Union[int, str]) -> int:
    if isinstance(mode, str):
        if mode not in START_MODES:
            raise ValueError(f"{mode!r} is no mode: give its number, or one of {', '.join(START_MODES)}")
        return START_MODES[mode]
    return int(mode)


def milliseconds(timeout: float) -> int:
    return max(1, round(timeout * 1000))


class NvProject:
    """The NV project that a phone holds. Nothing of it is sent to the handset."""

    def __init__(self, port: int) -> None:
        self._port = port

    def __getitem__(self, path: str) -> str:
        """An item's content, as text."""
        return exports.QV_GetNvValue_MT(self._port, 0, path)

    def __setitem__(self, path: str, content: Union[str, int]) -> None:
        exports.QV_SetNvValue_MT(self._port, 0, path, str(content))

    def image(self) -> bytes:
        """The NV image, as it stands in a handset's flash memory."""
        image = exports.QV_GenerateNvBianryDataBlockInMemory_MT(self._port)
        return image.buffer[:image.length]


class Phone:
    """A handset on an open port; open() makes one. Any thread may use it: calls on one port take turns.

    What is not here is in merovane.exports: `exports.QV_PressKeyboard_MT(phone.port, 5)`.
    """

    def __init__(self, port: int, baud_rate: int = BAUD_RATE, default: bool = False) -> None:
        """For a port that is open. open() opens one."""
        self.port = port
        self._baud_rate = baud_rate
        self._default = default

    def _begin(self) -> None:
        begin = exports.QV_BeginPhoneTest if self._default else exports.QV_BeginPhoneTest_MT
        begin(self.port, self._baud_rate)

    def close(self) -> None:
        """Closes the port. A call that another thread has in it returns at once."""
        try:
            exports.QV_EndPhoneTest_MT(self.port)
        except MerovaneError as error:
            if error.code != Result.PC_ERR_PORT_NOT_OPEN:
                raise

    def __enter__(self) -> "Phone":
        return self

    def __exit__(self, *error: object) -> None:
        self.close()

    def __repr__(self) -> str:
        return f"<merovane.Phone on port {self.port}>"

    # ---- Modes ----

    def start(self, mode: Union[int, str] = "test", timeout: float = 15.0) -> None:
        """Has the handset in a mode: catches it when it boots, takes it as it is when it is in the mode already, and
        changes its mode when it is in another one. A port that vanishes meanwhile is opened again when it comes back.
        """
        wanted = mode_number(mode)
        deadline = time.monotonic() + timeout
        patience = _FIRST_LOOK_S
        while True:
            left = deadline - time.monotonic()
            try:
                exports.QV_SetPhoneStartModeEx_MT(self.port, wanted, milliseconds(min(patience, left)))
                return
            except MerovaneError as error:
                failure = _unanswered(error)
            lost = _gone(failure)
            try:
                # A handset that has booted answers to this, and to no start mode.
                if not lost and (self.mode == wanted & 0x0F or exports.QV_UsbChangePhoneMode_MT(self.port, wanted)):
                    return
                lost = True
            except MerovaneError as error:
                lost = _gone(_unanswered(error))
            if time.monotonic() >= deadline:
                raise failure
            if lost:
                self._reopen(deadline)
            patience = _FIRST_LOOK_S if lost else _LOOK_S

    def _reopen(self, deadline: float) -> None:
        self.close()
        while True:
            time.sleep(_REOPEN_PAUSE_S)
            try:
                self._begin()
                return
            except MerovaneError as error:
                if error.code != Result.PC_ERR_CANNOT_OPEN_PORT or time.monotonic() >= deadline:
                    raise

    @property
    def mode(self) -> int:
        """The mode that the handset is in; of its number the low four bits."""
        answer = exports.QV_ReadMode_MT(self.port, 16)
        return answer[3] & 0x0F

    def restart(self, timeout: float = 4.0) -> None:
        """Restarts the handset. It boots then, and start() catches it."""
        exports.QV_RestartPhone_MT(self.port, milliseconds(timeout))

    # ---- Who it is ----

    def fixed_nv(self) -> FixedNvInfo:
        """IMEIs, addresses and GPS block, as the handset's fixed NV holds them."""
        return exports.QV_FastReadNvInfo_MT(self.port)

    @property
    def imei(self) -> str:
        return self.fixed_nv().imei1

    @imei.setter
    def imei(self, digits: str) -> None:
        exports.QV_FastWriteNvInfo_MT(self.port, FixedNvInfo(write_imei1=1, imei1=digits))

    @property
    def second_imei(self) -> str:
        return self.fixed_nv().imei2

    @second_imei.setter
    def second_imei(self, digits: str) -> None:
        exports.QV_FastWriteNvInfo_MT(self.port, FixedNvInfo(write_imei2=1, imei2=digits))

    @property
    def bluetooth_address(self) -> str:
        """As "00:11:22:33:44:55"; it may be set without the colons."""
        digits = self.fixed_nv().bluetooth_address
        return ":".join(digits[at:at + 2] for at in range(0, len(digits), 2))

    @bluetooth_address.setter
    def bluetooth_address(self, address: str) -> None:
        digits = address.replace(":", "").replace("-", "")
        exports.QV_FastWriteNvInfo_MT(self.port, FixedNvInfo(write_bluetooth_address=1, bluetooth_address=digits))

    @property
    def serial_number(self) -> str:
        return _serial_text(exports.QV_ReadSN_MT(self.port, SERIAL_NUMBER_BYTES))

    @serial_number.setter
    def serial_number(self, text: str) -> None:
        exports.QV_WriteSN_MT(self.port, text.encode("ascii"))

    @property
    def second_serial_number(self) -> str:
        return _serial_text(exports.QV_ReadSN2_MT(self.port, SERIAL_NUMBER_BYTES))

    @second_serial_number.setter
    def second_serial_number(self, text: str) -> None:
        exports.QV_WriteSN2_MT(self.port, text.encode("ascii"))

    @property
    def software_version(self) -> str:
        return exports.QV_GetMSVersion_MT(self.port)

    @property
    def chip_id(self) -> int:
        return exports.QV_GetChipID_MT(self.port)

    @property
    def flash_info(self) -> FlashInfo:
        return exports.QV_GetFlashInfo_MT(self.port)

    # ---- What it measures ----

    @property
    def battery_voltage(self) -> int:
        """In the handset's unit."""
        return exports.QV_ReadPhoneVolt_MT(self.port)

    def adc(self, channel: int, timeout: float = 1.0) -> int:
        """Measures an ADC channel."""
        return exports.QV_ReadAdcValue_MT(self.port, channel, milliseconds(timeout)).value

    @property
    def cell(self) -> CellInfo:
        """The serving cell."""
        return exports.QV_GetCurrCellInfo_MT(self.port)

    # ---- What it is told ----

    def at(self, command: str, timeout: float = 5.0) -> List[str]:
        """Sends an AT command and returns the lines of its answer: ["+CSQ: 20,0", "OK"]."""
        answer = exports.QV_SendAtCommand_MT(self.port, command, True, milliseconds(timeout))
        return [line.strip() for line in answer.splitlines() if line.strip()]

    def read_flash(self, item: int, length: int, timeout: float = 4.0) -> bytes:
        """A production flash item from its start; its whole is cut to `length`."""
        try:
            return exports.QV_ReadFlash_MT(self.port, item, length, milliseconds(timeout))
        except MerovaneError as error:
            if error.code != Result.PC_ERR_BUFFER_TOO_SMALL:
                raise
            return bytes(error.partial)

    def write_flash(self, item: int, data: bytes, timeout: float = 4.0) -> None:
        exports.QV_WriteFlash_MT(self.port, item, data, milliseconds(timeout))

    def read_nv(self, item: int, timeout: float = 4.0) -> bytes:
        """An NV item, whole."""
        return exports.QV_ReadNv_MT(self.port, item, milliseconds(timeout))

    def write_nv(self, item: int, data: bytes) -> None:
        exports.QV_WriteNv_MT(self.port, item, data)

    def read_registers(self, address: int, count: int = 1, width: AccessWidth = AccessWidth.WIDTH_32) -> bytes:
        """`count` units of `width`, in the handset's byte order."""
        return exports.QV_ReadRegister_MT(self.port, width, address, count)

    def write_registers(self, address: int, data: bytes, width: AccessWidth = AccessWidth.WIDTH_32) -> None:
        exports.QV_WriteRegister_MT(self.port, width, address, data)

    @contextlib.contextmanager
    def calibration(self, band: int) -> Iterator[None]:
        """The handset's calibration layer is active, in a Band, as long as the block lasts."""
        exports.QV_Active_MT(self.port, True)
        try:
            exports.QV_SetPhoneClassmark_MT(self.port, band)
            yield
        finally:
            exports.QV_Active_MT(self.port, False)

    @contextlib.contextmanager
    def project(self, path: Union[str, "os.PathLike[str]"]) -> Iterator[NvProject]:
        """An NV project, open as long as the block lasts: `project["calibration_param_T.adc.battery[0]"] = 5`."""
        # Its modules are found by its folder, which a bare name lacks.
        exports.QV_OpenPrjFile_MT(self.port, os.path.abspath(path))
        try:
            yield NvProject(self.port)
        finally:
            exports.QV_ClosePrjFile_MT(self.port)


def _unanswered(error: MerovaneError) -> MerovaneError:
    """The error, when waiting longer can help."""
    if error.code not in (Result.PC_ERR_NO_USEFUL_DATA, Result.PC_ERR_NO_ANSWER, Result.PC_ERR_WRITE_FAILED):
        raise error
    return error


def _gone(error: MerovaneError) -> bool:
    return error.code == Result.PC_ERR_WRITE_FAILED or (
        error.failure is not None and error.failure.cause == Cause.DEVICE_GONE)


def _serial_text(raw: bytes) -> str:
    return raw.split(b"\0", 1)[0].decode("ascii", "backslashreplace")


def open_phone(port: Port, baud_rate: int = BAUD_RATE, *, default: bool = False) -> Phone:
    """Opens a port, given by its number, by its name ("COM5") or as a device ("/dev/ttyUSB0", "socket://host:port").

    `default` makes it also the one on which the functions without _MT work.
    """
    phone = Phone(port_number(port), baud_rate, default)
    phone._begin()
    return phone


def catch(port: Port, mode: Union[int, str] = "test", timeout: float = 60.0) -> Phone:
    """Waits for a handset whose device appears only when it is plugged in or boots, puts it into a mode and opens it.

    The device is awaited under its own name or number, 1 to 256.
    """
    number = port_number(port)
    with ThreadPoolExecutor(1) as pool:
        # In a thread of its own, so that Ctrl+C is heard meanwhile.
        process = pool.submit(exports.QV_EnterModeProcessEx_MT, number, True, mode_number(mode), milliseconds(timeout))
        try:
            while not wait([process], _INTERRUPTIBLE_S).done:
                pass
        except BaseException:
            with contextlib.suppress(MerovaneError):
                exports.QV_StopModeProcess_MT(number)
            raise
        process.result()
    return Phone(number)
