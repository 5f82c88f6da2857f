"""The wheel, as a user has it: nothing of this build is on its path."""
import base64
import csv
import hashlib
import io
import os
import subprocess
import sys
import zipfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]

STATION_TEST = """
import merovane, pytest

@pytest.mark.merovane_handset("--imei", "356938035643809", mode=None)
def test_station(merovane_phone):
    merovane_phone.start("test")
    assert merovane_phone.imei == "356938035643809"
    assert merovane.diagnostics.version() == "{version}"
"""


def build_wheel(build, folder):
    ended = subprocess.run([ROOT / "bindings/python/build-wheel", build, str(folder)], check=True, capture_output=True, text=True,
                           env={**os.environ, "SOURCE_DATE_EPOCH": "1700000000"})
    return Path(ended.stdout.strip())


def test_an_unpacked_wheel_is_all_that_a_station_test_needs(build, tmp_path):
    wheel = build_wheel(build, tmp_path / "one")
    assert wheel.name.startswith("merovane-") and wheel.name.endswith("_x86_64.whl")
    assert wheel.read_bytes() == build_wheel(build, tmp_path / "two").read_bytes()
    site = tmp_path / "site"
    with zipfile.ZipFile(wheel) as archive:
        version = wheel.name.split("-")[1]
        listed = {row[0]: row[1:] for row in csv.reader(io.StringIO(
            archive.read(f"merovane-{version}.dist-info/RECORD").decode()))}
        assert set(listed) == set(archive.namelist())
        for entry in archive.infolist():
            content = archive.read(entry)
            digest = base64.urlsafe_b64encode(hashlib.sha256(content).digest()).rstrip(b"=").decode()
            assert listed[entry.filename] in ([f"sha256={digest}", str(len(content))], ["", ""])
            Path(archive.extract(entry, site)).chmod(entry.external_attr >> 16 & 0o777)
    (tmp_path / "test_station.py").write_text(STATION_TEST.format(version=version))
    environment = {name: value for name, value in os.environ.items() if not name.startswith(("MEROVANE", "CASSORIND"))}
    ended = subprocess.run([sys.executable, "-B", "-m", "pytest", "-q", "-p", "no:cacheprovider", "test_station.py"],
                           env={**environment, "PYTHONPATH": str(site)}, cwd=tmp_path, capture_output=True, text=True,
                           timeout=60)
    assert ended.returncode == 0 and "1 passed" in ended.stdout, ended.stdout + ended.stderr
