"""Fixtures for tests of station programs: a simulated handset, and a phone that is open on it.

    def test_identity(merovane_phone):
        assert merovane_phone.imei == "490154203237518"

    @pytest.mark.merovane_handset("--fault", "drop=next:1", mode=None)
    def test_boot(merovane_phone):
        merovane_phone.start("test")
"""
from typing import TYPE_CHECKING, Any, Iterator

import pytest

if TYPE_CHECKING:
    from .phone import Phone
    from .simulator import SimulatedHandset


def pytest_configure(config: Any) -> None:
    config.addinivalue_line("markers", "merovane_handset(*options, mode=1, tcp=False): the simulated handset's options")


@pytest.fixture
def merovane_handset(request: Any) -> "Iterator[SimulatedHandset]":
    """A simulated handset in test mode, or as the marker merovane_handset says."""
    from .simulator import SimulatedHandset
    marker = request.node.get_closest_marker("merovane_handset")
    options, how = (marker.args, marker.kwargs) if marker else ((), {})
    with SimulatedHandset(*options, **how) as handset:
        yield handset


@pytest.fixture
def merovane_phone(merovane_handset: "SimulatedHandset") -> "Iterator[Phone]":
    """A Phone that is open on the simulated handset."""
    from .phone import open_phone
    with open_phone(merovane_handset.device) as phone:
        yield phone
