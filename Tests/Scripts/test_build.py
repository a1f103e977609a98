"""How the project is configured and built outside of its presets."""

import json
import pathlib
import re
import shutil
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]


@pytest.fixture
def configure(tmp_path):
    """Configures a build without the tests and returns the compile commands of its C++ files."""

    def configure(*options, source=ROOT):
        build = tmp_path / "build"
        subprocess.run(["cmake", "-G", "Ninja", "-S", source, "-B", build,
                        "-DFERNWICK_BUILD_TESTS=OFF", *options],
                       check=True, stdout=subprocess.DEVNULL)
        commands = json.loads((build / "compile_commands.json").read_text())
        return [entry["command"] for entry in commands if entry["file"].endswith(".cpp")]

    return configure


@pytest.mark.parametrize("options, expected", [
    ([], "20"),
    (["-DCMAKE_CXX_STANDARD=23"], "23"),
    (["-DCMAKE_CXX_STANDARD=17"], "20"),
])
def test_the_builder_may_choose_a_later_cxx_standard(configure, options, expected):
    commands = configure(*options)
    assert {re.findall(r"-std=\S+", command)[-1] for command in commands} == {f"-std=c++{expected}"}


def test_warnings_are_no_errors(configure):
    assert not any("-Werror" in command for command in configure())


def test_the_path_may_have_special_characters(configure, tmp_path):
    source = tmp_path / "ü & x"
    shutil.copytree(ROOT, source, ignore=shutil.ignore_patterns(".*", "build", "Tests"))
    configure(source=source)
    subprocess.run(["cmake", "--build", tmp_path / "build", "--target", "FernwickLook_resources_1",
                    "FernwickLook_resources_2", "FernwickApplication_resources_1"],
                   check=True, stdout=subprocess.DEVNULL)
