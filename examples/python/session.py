#!/usr/bin/env python3
"""A session as a station has it: catch the handset, put it into test mode, write and read its identity, see what fails and why.

    session.py 5                      the handset on COM5
    session.py /dev/ttyUSB0           on a device; socket://host:port on a device server
    session.py                        a simulated handset
"""
import contextlib
import sys

import merovane


def session(port):
    with merovane.open(port) as phone:
        # Whether it boots, runs in the mode already, or runs in another one.
        phone.start("test", timeout=15)
        print("software:", phone.software_version)

        phone.imei = "490154203237518"
        phone.serial_number = "SN20260001"
        print("identity:", phone.imei, phone.serial_number, phone.bluetooth_address)
        print("battery: ", phone.battery_voltage)
        print("signal:  ", phone.at("AT+CSQ")[0])

        phone.write_nv(400, bytes(range(8)))
        print("NV 400:  ", phone.read_nv(400).hex(" "))

        # Every other function of the library, under its own name.
        merovane.exports.QV_LedOn_MT(phone.port, True)

        # What fails says why.
        try:
            merovane.exports.QV_StartBtAFC_MT(phone.port, True, 100)
        except merovane.MerovaneError as error:
            print("refused: ", error.name, "-", error.advice)


def main():
    with contextlib.ExitStack() as stack:
        port = sys.argv[1] if len(sys.argv) > 1 else None
        if port is None:
            port = stack.enter_context(merovane.SimulatedHandset(mode=None)).device
        try:
            session(int(port) if port.isdigit() else port)
        except merovane.MerovaneError as error:
            sys.exit(f"failed: {error}")
    print("passed")


if __name__ == "__main__":
    main()
