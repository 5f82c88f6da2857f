"""Simulated handsets, to try a station program without one."""
import os
import shutil
import subprocess
import sys
from pathlib import Path
from typing import Dict, List, Optional

PROGRAM = "merovane-handset" + (".exe" if sys.platform == "win32" else "")
_CLOSE_S = 10.0


def find_program() -> str:
    """The simulated handset's program: MEROVANE_HANDSET names one, a wheel brings one along."""
    named = os.environ.get("MEROVANE_HANDSET")
    beside = Path(__file__).resolve().parent / PROGRAM
    found = named or (str(beside) if beside.exists() else shutil.which(PROGRAM))
    if not found:
        raise FileNotFoundError(
            f"there is no {PROGRAM} in {beside.parent} or on the path; MEROVANE_HANDSET can name one")
    return found


class SimulatedHandset:
    """A handset that is not there, on a pseudo-terminal; on Windows, or with `tcp`, on a TCP port.

        with SimulatedHandset(mode=1) as handset, merovane.open(handset.device) as phone: ...

    mode     boots straight into it; None: it sends start frames until one is chosen
    options  of the program, as "--imei", "490154203237518", "--fault", "drop=0.1"
    """

    def __init__(self, *options: str, mode: Optional[int] = 1, tcp: bool = sys.platform == "win32") -> None:
        command = [find_program(), *options]
        if mode is not None:
            command += ["--mode", str(mode)]
        if tcp:
            command += ["--tcp", "0"]
        self._process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1)
        word, _, place = self._line().partition(" ")
        if word != "ready":
            self.close()
            raise RuntimeError(f"{command[0]} does not start: it ended with {self._process.returncode}")
        self.device = f"socket://{place}" if tcp else place

    def _line(self) -> str:
        assert self._process.stdout
        return self._process.stdout.readline().rstrip("\n")

    def command(self, line: str) -> List[str]:
        """Tells the handset something, as "fault drop=next:1", "restart", "status"; returns what it says to that."""
        assert self._process.stdin
        self._process.stdin.write(line + "\n")
        self._process.stdin.flush()
        said: List[str] = []
        while True:
            answer = self._line()
            if answer.split(" ", 1)[0] == "ok":
                return said
            if answer.startswith("error") or not answer:
                raise ValueError(f"{line}: {answer or 'the handset has ended'}")
            said.append(answer)

    def status(self) -> Dict[str, str]:
        """What the handset shows of itself: {"mode": "1", "peripherals.led": "off", ...}"""
        return {name: value for name, _, value in (line.partition(" ") for line in self.command("status"))}

    def close(self) -> None:
        process = self._process
        if process.stdin and not process.stdin.closed:
            # It ends when nobody can tell it anything any more.
            try:
                process.stdin.write("quit\n")
                process.stdin.close()
            except OSError:
                pass
        try:
            process.wait(_CLOSE_S)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
        if process.stdout:
            process.stdout.close()

    def __enter__(self) -> "SimulatedHandset":
        return self

    def __exit__(self, *error: object) -> None:
        self.close()
