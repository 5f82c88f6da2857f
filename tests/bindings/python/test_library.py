"""A library that does not suit is told in words; and the example runs."""
import os
import shutil
import signal
import struct
import subprocess
import sys
import time
from pathlib import Path

import pytest

import merovane

ROOT = Path(__file__).resolve().parents[3]


def elf(bits, machine):
    return struct.pack("<4sBB10xHH44x", b"\x7fELF", bits // 32, 1, 3, machine)


def pe(machine):
    return struct.pack("<2s58xI4sH", b"MZ", 64, b"PE\0\0", machine) + bytes(64)


def run(code, **environment):
    return subprocess.run([sys.executable, "-B", "-c", code], env={**os.environ, **environment}, capture_output=True, text=True,
                          timeout=60)


@pytest.mark.parametrize("content, said", [
    (elf(32, 3), "is built for Linux, 32-bit x86, but this Python ({python}) is Linux, 64-bit x86"),
    (elf(64, 183), "is built for Linux, 64-bit ARM"),
    (pe(0x14C), "is built for Windows, 32-bit x86"),
    (pe(0x8664), "is built for Windows, 64-bit x86"),
    (b"<html>not found</html>", "is no library"),
    (b"", "is no library"),
], ids=["linux32", "arm64", "win32", "win64", "page", "empty"])
def test_a_library_for_another_interpreter_is_told_before_it_is_loaded(tmp_path, content, said):
    library = tmp_path / "libMerovane.so"
    library.write_bytes(content)
    ended = run("import merovane; merovane.diagnostics.version()", MEROVANE_LIBRARY=str(library))
    told = ended.stderr.splitlines()[-1]
    assert f"LibraryError: {library}" in told and said.format(python=sys.executable) in told


def test_a_missing_library_or_companion_is_named(tmp_path, build):
    version = "import merovane; print(merovane.diagnostics.version())"
    assert "there is no library at" in run(version, MEROVANE_LIBRARY=str(tmp_path)).stderr
    shutil.copy(Path(build, "bin/libMerovane.so"), tmp_path)
    shutil.copy(Path(build, "bin/libBrimwell.so"), tmp_path)
    said = run(version, MEROVANE_LIBRARY=str(tmp_path)).stderr
    assert "libCassorind.so and libthreadqueue.so must stand beside it" in said
    shutil.copy(Path(build, "bin/libCassorind.so"), tmp_path)
    (tmp_path / "libthreadqueue.so").write_bytes(elf(32, 3))
    assert "libthreadqueue.so is built for Linux, 32-bit x86" in run(version, MEROVANE_LIBRARY=str(tmp_path)).stderr
    shutil.copy(Path(build, "bin/libthreadqueue.so"), tmp_path)
    assert run(version, MEROVANE_LIBRARY=str(tmp_path)).stdout.strip()
    other = tmp_path / "libBrimwell.so"
    assert "it is another library" in run(version, MEROVANE_LIBRARY=str(other)).stderr


def test_the_last_records_are_logged_when_the_interpreter_ends():
    ended = run("""
import logging, merovane
logging.basicConfig(level=logging.DEBUG)
merovane.log_to("station")
for _ in range(100):
    merovane.exports.QV_SetRecvMode(0)
""")
    assert ended.returncode == 0
    assert len([line for line in ended.stderr.splitlines() if line.startswith("DEBUG:station:QV_SetRecvMode: done, ")]) == 100


def test_a_wait_for_a_handset_can_be_interrupted(tmp_path):
    waiting = subprocess.Popen([sys.executable, "-B", "-c", f"""
import merovane
merovane.diagnostics.version()
print("waiting", flush=True)
merovane.catch("{tmp_path}/never", timeout=60)
"""], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    assert waiting.stdout.readline() == "waiting\n"
    time.sleep(0.3)
    waiting.send_signal(signal.SIGINT)
    assert "KeyboardInterrupt" in waiting.communicate(timeout=10)[1]


def test_every_function_of_the_library_is_wrapped(build):
    wrapped = "".join(path.read_text() for path in Path(merovane.__file__).parent.glob("*.py"))
    published = Path(build, "api/exports-linux.txt").read_text().split()
    assert [name for name in published if name not in wrapped] == []
    assert len(published) > 579


def test_the_example_drives_a_handset(tmp_path):
    ended = subprocess.run([sys.executable, "-B", str(ROOT / "examples/python/session.py")], capture_output=True, text=True,
                           timeout=60, cwd=tmp_path)
    assert ended.returncode == 0 and ended.stdout.endswith("passed\n"), ended.stdout + ended.stderr
    assert "490154203237518 SN20260001" in ended.stdout and "refused:" in ended.stdout
    ended = subprocess.run([sys.executable, "-B", str(ROOT / "examples/python/session.py"), "/nowhere/at/all"],
                           capture_output=True, text=True, timeout=60, cwd=tmp_path)
    assert ended.returncode == 1 and "failed: QV_BeginPhoneTest_MT on /nowhere/at/all" in ended.stderr
