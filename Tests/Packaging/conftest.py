import os
import pathlib
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("FERNWICK_BUILD", ROOT / "build/release")).resolve()


@pytest.fixture(scope="session")
def package():
    """The Debian package that scripts/package built."""
    package, = (ROOT / "build/package").glob("*.deb")
    return package


@pytest.fixture(scope="session")
def control(package):
    """The control fields of the package."""
    text = subprocess.check_output(["dpkg-deb", "--field", package], text=True)
    fields = {}
    for line in text.splitlines():
        name, _, value = line.partition(": ")
        if not line.startswith(" "):
            fields[name] = value
    return fields


@pytest.fixture(scope="session")
def unpacked(package, tmp_path_factory):
    """A folder with the files of the package, as below / on a system that has it installed."""
    folder = tmp_path_factory.mktemp("unpacked")
    subprocess.check_call(["dpkg-deb", "--extract", package, folder])
    return folder


@pytest.fixture(scope="session")
def installed(tmp_path_factory):
    """The prefix of a `cmake --install`."""
    prefix = tmp_path_factory.mktemp("prefix")
    subprocess.run(["cmake", "--install", BUILD, "--prefix", prefix], check=True,
                   stdout=subprocess.DEVNULL)
    return prefix
