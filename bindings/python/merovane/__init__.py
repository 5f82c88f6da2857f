"""Drives mobile handsets on a factory line.

    import merovane

    with merovane.open(5) as phone:                    # COM5; or "/dev/ttyUSB0", "socket://station7:5000"
        phone.start("test", timeout=15)
        phone.imei = "490154203237518"
        print(phone.battery_voltage)

Phone has what stations want most. Every exported function stands under its own name in merovane.exports, its constants
in merovane.constants and its records in merovane.records. What fails raises MerovaneError, which says why.
"""
from . import constants, diagnostics, events, exports, records
from .constants import Band, Cause, Result
from .errors import LibraryError, MerovaneError
from .events import Event
from .logs import log_to
from .phone import NvProject, Phone, catch
from .phone import open_phone as open
from .simulator import SimulatedHandset

__all__ = ["Band", "Cause", "Event", "LibraryError", "MerovaneError", "NvProject", "Phone", "Result",
           "SimulatedHandset", "catch", "constants", "diagnostics", "events", "exports", "log_to", "open", "records"]
