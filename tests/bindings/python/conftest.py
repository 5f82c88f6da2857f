"""The library keeps settings and logs in a folder of this run."""
import os

import pytest

import merovane


@pytest.fixture(scope="session", autouse=True)
def folder(tmp_path_factory):
    folder = tmp_path_factory.mktemp("station")
    (folder / "Merovane.ini").write_text("[Record Comm Log]\nRecord Useful Log=1\n")
    merovane.diagnostics.set_folder(folder)
    return folder


@pytest.fixture(scope="session")
def build():
    return os.environ["MEROVANE_BUILD"]
