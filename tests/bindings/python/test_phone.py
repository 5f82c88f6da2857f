"""The hand-written layer, on the simulated handset."""
import pickle
import subprocess
import threading
import time
from pathlib import Path

import pytest

import merovane
from merovane import exports, records
from merovane.constants import AccessWidth, Band, Cause, Result, Trace


def raised(call):
    with pytest.raises(merovane.MerovaneError) as found:
        call()
    return found.value


@pytest.mark.merovane_handset(mode=None)
def test_start_has_the_handset_in_the_mode_however_it_finds_it(merovane_phone, merovane_handset):
    merovane_phone.start("test", timeout=5)  # It was booting.
    assert merovane_handset.status()["mode"] == "1"
    merovane_phone.start(1, timeout=5)  # It is in the mode.
    assert merovane_handset.status()["session.boots"] == "1"
    merovane_phone.start(4, timeout=5)  # It is in another one.
    assert merovane_phone.mode == 4
    merovane_phone.restart()
    merovane_phone.start("test", timeout=5)
    assert merovane_handset.status()["mode"] == "1"
    with pytest.raises(ValueError, match="'tset' is no mode"):
        merovane_phone.start("tset")


def test_start_opens_a_port_that_vanishes_anew(tmp_path):
    link = str(tmp_path / "handset")
    with merovane.SimulatedHandset("--link", link, "--vanish-ms", "300") as handset, merovane.open(link) as phone:
        phone.start(4, timeout=10)
        assert phone.mode == 4
        handset.command("vanish 300")
        phone.start(4, timeout=10)
        assert phone.mode == 4


def test_start_tells_what_it_saw_when_there_is_no_handset(merovane_phone, merovane_handset):
    merovane_handset.command("fault silent=1")
    began = time.monotonic()
    error = raised(lambda: merovane_phone.start("test", timeout=0.5))
    assert time.monotonic() - began < 3
    assert (error.code, error.operation) == (Result.PC_ERR_NO_USEFUL_DATA, "SetPhoneStartModeEx")
    assert error.failure.cause == Cause.SILENT and merovane_handset.device in str(error)


def test_catch_waits_for_a_device_that_appears(tmp_path):
    link = str(tmp_path / "handset")
    started = []
    plug = threading.Timer(0.5, lambda: started.append(
        merovane.SimulatedHandset("--link", link, "--vanish-at-start", "--vanish-ms", "200", mode=None)))
    plug.start()
    try:
        with merovane.catch(link, "test", timeout=20) as phone:
            assert phone.mode == 1
    finally:
        plug.join()
        for handset in started:
            handset.close()


@pytest.mark.parametrize("tcp", [pytest.param(on, marks=pytest.mark.merovane_handset(tcp=on)) for on in (False, True)])
def test_identity_is_written_and_read(merovane_phone, merovane_handset, tcp):
    phone = merovane_phone
    assert merovane_handset.device.startswith("socket://") == tcp
    before = phone.fixed_nv()
    phone.imei = "490154203237518"
    phone.second_imei = "356938035643809"
    phone.bluetooth_address = "00:1a:7d:da:71:13"
    phone.serial_number = "SN20260001"
    phone.second_serial_number = "SN20260002"
    assert (phone.imei, phone.second_imei) == ("490154203237518", "356938035643809")
    assert phone.bluetooth_address == "00:1A:7D:DA:71:13"
    assert (phone.serial_number, phone.second_serial_number) == ("SN20260001", "SN20260002")
    assert phone.fixed_nv().second_address == before.second_address
    assert merovane_handset.status()["fixed_nv.imei1"] == "490154203237518"
    assert raised(lambda: setattr(phone, "imei", "4901")).code == Result.PC_ERR_INVALID_PARAM


def test_values_of_every_kind_pass(merovane_phone):
    phone, port = merovane_phone, merovane_phone.port
    assert phone.at("AT+CGSN")[-1] == "OK"
    assert 3000 < phone.battery_voltage < 5000 and phone.adc(0) >= 0
    assert phone.software_version.startswith("MEROVANE-SIM") and phone.chip_id
    assert len(phone.cell.values) == 8 and phone.flash_info.region_count <= 31
    phone.write_nv(400, b"\0\1\2\xff")
    assert phone.read_nv(400) == b"\0\1\2\xff"
    phone.write_flash(7, bytes(100))
    phone.write_flash(7, b"abc")
    assert phone.read_flash(7, 5) == b"abc\0\0"
    phone.write_registers(0x20000000, bytes(range(8)))
    assert phone.read_registers(0x20000002, 2, AccessWidth.WIDTH_16) == bytes(range(2, 6))
    phone.write_registers(0x20000000, b"\xaa\xbb", AccessWidth.WIDTH_8)
    assert phone.read_registers(0x20000000) == b"\xaa\xbb\2\3"
    # Without an answer to wait for.
    assert exports.QV_SendAT_MT(port, "AT\r\n", 1000, capacity=None) == ""
    exports.QV_WriteTDCalParam_MT(port, records.TdParameters(selector=3, count=3, values=[7, 8, 65535]))
    assert list(exports.QV_ReadTDCalParam_MT(port, records.TdParameters(selector=3, count=3)).values) == [7, 8, 65535]
    # More values than the record has in C.
    error = raised(lambda: exports.QV_ReadTDCalParam_MT(port, records.TdParameters(selector=3, count=4000)))
    assert error.code == Result.PC_ERR_REFUSED and len(error.partial.values) == 4000


def test_calibration_data_pass_both_ways(merovane_phone):
    with merovane_phone.calibration(Band.DCS):
        words = list(range(91))
        port = merovane_phone.port
        exports.QV_WriteData_Ram_AGC_agc_ctrl_word_MT(port, Band.DCS, words)
        assert exports.QV_ReadData_Ram_AGC_agc_ctrl_word_MT(port, Band.DCS) == words
        assert exports.QV_ReadData_Ram_AGC_RX_compensate_value_MT(port, Band.DCS, 3) is not None
        exports.QV_WriteData_Flash_IMEI_MT(port, "490154203237518")
        assert exports.QV_ReadData_Flash_IMEI_MT(port) == "490154203237518"
        result = exports.QV_AgcStart_MT(port, True, records.AgcParameters(words=[62, 200]))
        assert isinstance(result, records.AgcResult)
    with pytest.raises(merovane.MerovaneError):
        exports.QV_AgcStart_MT(port, True, records.AgcParameters(words=[62, 200]))


@pytest.mark.merovane_handset("--vanish-ms", "200")
def test_functions_for_the_default_port_work_on_it(merovane_handset):
    with merovane.open(merovane_handset.device, default=True) as phone:
        assert exports.QV_ReadPhoneVolt() == pytest.approx(phone.battery_voltage, abs=50)
        # The port is opened anew meanwhile.
        phone.start(4, timeout=10)
        assert exports.QV_ReadPhoneVolt() > 3000
    assert raised(exports.QV_ReadPhoneVolt).code == Result.PC_ERR_PORT_NOT_OPEN


def test_an_error_tells_what_failed_and_why(merovane_phone, merovane_handset):
    port = merovane_phone.port
    merovane_phone.write_nv(400, b"abcdef")
    error = raised(lambda: exports.QV_ReadNv_MT(port, 400, 1000, capacity=4))
    assert (error.code, error.function, error.operation) == (Result.PC_ERR_BUFFER_TOO_SMALL, "QV_ReadNv_MT", "ReadNv")
    assert error.partial == b"abcd" and error.name == "PC_ERR_BUFFER_TOO_SMALL"
    merovane_handset.command("fault refuse=next:1")
    error = raised(lambda: merovane_phone.battery_voltage)
    assert error.code == Result.PC_ERR_REFUSED and error.failure.cause == Cause.REFUSED
    assert error.failure.device == merovane_handset.device and error.advice == error.failure.advice
    copy = pickle.loads(pickle.dumps(error))
    assert str(copy) == str(error) and copy.failure == error.failure
    error = raised(lambda: exports.QV_TDStopTx_MT(port))
    assert (error.code, error.operation) == (-1, "TDStopTx") and error.code is Result.PC_ERR_NOT_SUPPORTED
    error = raised(lambda: merovane.open("/nowhere/at/all"))
    assert error.code == Result.PC_ERR_CANNOT_OPEN_PORT and error.failure.cause == Cause.NO_DEVICE
    assert "/nowhere/at/all" in str(error)
    error = raised(lambda: merovane.open(merovane_handset.device))
    assert error.code == Result.PC_ERR_PORT_ALREADY_OPENED


def test_many_handsets_are_driven_at_once():
    handsets = [merovane.SimulatedHandset("--latency-ms", "100") for _ in range(4)]
    voltages = []

    def station(device):
        with merovane.open(device) as phone:
            voltages.extend(phone.battery_voltage for _ in range(5))

    threads = [threading.Thread(target=station, args=(handset.device,)) for handset in handsets]
    began = time.monotonic()
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    # One after another they take 2 s.
    assert time.monotonic() - began < 1.5
    assert len(voltages) == 20
    for handset in handsets:
        handset.close()


@pytest.mark.merovane_handset(mode=None)
def test_a_mode_process_sets_its_event(merovane_phone):
    with merovane.Event() as event:
        assert not event.wait(0.05) and not event.is_set()
        exports.QV_EnterModeProcess_MT(merovane_phone.port, False, 1, event, 10000)
        assert event.wait(10) and event.is_set()
    assert merovane_phone.mode == 1


def test_a_project_is_read_changed_and_made_into_an_image(merovane_phone, build, tmp_path, monkeypatch):
    subprocess.run([f"{build}/bin/merovane-project-generator", str(tmp_path)], check=True, capture_output=True)
    project_file = next(tmp_path.glob("*.prj"))
    # As in a station program that stands beside its project.
    monkeypatch.chdir(tmp_path)
    with merovane_phone.project(project_file.name) as project:
        path = "calibration_param_T.adc.battery[0]"
        project[path] = 4711
        assert project[path] == "4711"
        assert (4711).to_bytes(4, "big") in project.image()
        error = raised(lambda: project["no.such.item"])
        assert error.code == Result.PC_ERR_PATH_NOT_FOUND
    assert raised(lambda: exports.QV_GetNvValue_NvVersion_MT(merovane_phone.port)).code == Result.PC_ERR_NV_PROJECT_NOT_OPEN


def test_what_the_library_logs_arrives_in_pythons_logging(merovane_phone, caplog, folder):
    caplog.set_level("DEBUG", logger="merovane")
    merovane.log_to("merovane")
    merovane.diagnostics.set_trace(Trace.PAYLOADS)
    try:
        merovane_phone.write_nv(400, b"\x01\xff")
        raised(lambda: exports.QV_ReadNv_MT(merovane_phone.port, 400, 1000, capacity=0))
        assert merovane.diagnostics.flush(5)
    finally:
        merovane.log_to(None)
        merovane.diagnostics.set_trace(Trace.OFF)
    merovane_phone.battery_voltage
    of_port = [record for record in caplog.records if record.name == f"merovane.port{merovane_phone.port}"]
    lines = [record.getMessage() for record in of_port if record.levelname == "INFO"]
    calls = [record.call for record in of_port if record.levelname == "DEBUG"]
    assert any("WriteNv" in line for line in lines)
    assert [(call["function"], call["result"]) for call in calls] == [("QV_WriteNv_MT", 0), ("QV_ReadNv_MT", 4)]
    assert calls[0]["arguments"]["data"]["hex"] == "01FF"
    assert list(folder.glob(f"Log/*/Com{merovane_phone.port}_Trace.jsonl"))


def test_the_settings_are_those_of_the_chosen_folder(merovane_phone, folder):
    settings = merovane.diagnostics.settings()
    assert settings["found"] and Path(settings["file"]) == folder / "Merovane.ini"
    merovane_phone.battery_voltage
    assert f"Com{merovane_phone.port}_" in "".join(path.name for path in folder.glob("Log/*/*"))
    assert raised(lambda: merovane.diagnostics.set_folder(folder)).code == Result.PC_ERR_PORT_ALREADY_OPENED
    assert merovane.diagnostics.start_mode_name(1) == "GSM calibration"
