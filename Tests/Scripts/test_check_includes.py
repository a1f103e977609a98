"""scripts/check-includes, run on small source trees."""

import pathlib
import subprocess

import pytest

CHECK_INCLUDES = pathlib.Path(__file__).resolve().parents[2] / "scripts/check-includes"

CLEAN = {
    "Sources/SnakeCore/Game.hpp": "#include <vector>\n",
    "Sources/SnakeCore/CMakeLists.txt": "add_library(SnakeCore STATIC Game.hpp)\n",
    "Sources/Fernwick/Session/Session.hpp":
        '#include <QString>\n#include "SnakeCore/Game.hpp"\n#include "Session/Pace.hpp"\n',
    "Sources/Fernwick/Session/Pace.hpp": "#include <SnakeCore/Game.hpp>\n",
    "Sources/Fernwick/Session/CMakeLists.txt":
        "fernwick_library(FernwickSession Session.hpp Pace.hpp)\n"
        "target_link_libraries(FernwickSession PUBLIC SnakeCore Qt6::Core)\n",
    "Sources/Fernwick/Storage/PreferencesFile.cpp": '#include "Session/Session.hpp"\n',
    "Sources/Fernwick/Storage/CMakeLists.txt":
        "fernwick_library(FernwickStorage PreferencesFile.cpp)\n"
        "target_link_libraries(FernwickStorage\n    PUBLIC FernwickSession\n)\n",
}


@pytest.fixture
def check(tmp_path):
    """Writes the clean tree with some files changed; returns what the script prints about it."""
    def check(changed=None):
        for name, text in (CLEAN | (changed or {})).items():
            path = tmp_path / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        done = subprocess.run([CHECK_INCLUDES, tmp_path], text=True, stdout=subprocess.PIPE)
        assert done.returncode == (0 if changed is None else 1)
        return done.stdout

    return check


def test_accepts_a_clean_tree(check):
    assert check() == "Every #include and every link is allowed.\n"


def test_reports_a_forbidden_include_with_file_and_line(check):
    printed = check({"Sources/Fernwick/Session/Pace.hpp":
                     '#pragma once\n\n#include "Storage/PreferencesFile.hpp"\n',
                     "Sources/Fernwick/Storage/PreferencesFile.hpp": ""})
    assert ("Sources/Fernwick/Session/Pace.hpp:3: Session must not include Storage: "
            "Storage/PreferencesFile.hpp\n") in printed


def test_reports_an_indirect_cycle(check):
    printed = check({"Sources/SnakeCore/Game.hpp": '#include "Storage/PreferencesFile.hpp"\n',
                     "Sources/Fernwick/Storage/PreferencesFile.hpp": ""})
    assert "cycle of folders (#include): SnakeCore -> Storage -> Session -> SnakeCore\n" in printed


def test_reports_an_include_that_is_not_linked(check):
    printed = check({"Sources/Fernwick/Storage/CMakeLists.txt":
                     "fernwick_library(FernwickStorage PreferencesFile.cpp)\n"})
    assert printed == ("Sources/Fernwick/Storage/PreferencesFile.cpp:1: Storage includes Session "
                       "but does not link it: Session/Session.hpp\n")


def test_reports_a_forbidden_link_and_a_cycle_of_links(check):
    printed = check({"Sources/SnakeCore/CMakeLists.txt":
                     "add_library(SnakeCore STATIC Game.hpp)\n"
                     "target_link_libraries(SnakeCore PRIVATE FernwickStorage)\n"})
    assert printed == ("CMake: the target of SnakeCore must not link that of Storage\n"
                       "cycle of folders (link): SnakeCore -> Storage -> Session -> SnakeCore\n")


def test_reports_a_file_that_does_not_exist(check):
    printed = check({"Sources/Fernwick/Session/Pace.hpp": '#include "Pace/Pace.hpp"\n'})
    assert printed == ("Sources/Fernwick/Session/Pace.hpp:1: no such file under Sources: "
                       "Pace/Pace.hpp\n")


def test_reports_a_folder_that_the_table_does_not_list(check):
    printed = check({"Sources/Fernwick/Helpers/All.hpp": "#include <vector>\n"})
    assert printed == ("Sources/Fernwick/Helpers/All.hpp:1: this folder is not in the table of "
                       "scripts/check-includes\n")


def test_reports_a_tree_without_sources(tmp_path):
    done = subprocess.run([CHECK_INCLUDES, tmp_path], text=True, stdout=subprocess.PIPE)
    assert done.returncode == 1
    assert "no #include found" in done.stdout


@pytest.mark.parametrize("folder, header, kind", [
    ("SnakeCore", "QString", "Qt"),
    ("SnakeCore", "QtCore/QString", "Qt"),
    ("Fernwick/Painting/Board", "QWidget", "widget"),
    ("Fernwick/Painting/Board", "QtWidgets/QApplication", "widget"),
    ("Fernwick/Session", "QPushButton", "widget"),
    ("Fernwick/Session", "QSaveFile", "file"),
    ("Fernwick/Session", "filesystem", "file"),
    ("Fernwick/Session", "QLocalSocket", "socket"),
    ("Fernwick/Session", "sys/socket.h", "socket"),
])
def test_reports_a_forbidden_library_header(check, folder, header, kind):
    printed = check({f"Sources/{folder}/Extra.hpp": f"#include <{header}>\n"})
    name = folder.removeprefix("Fernwick/")
    assert printed == (f"Sources/{folder}/Extra.hpp:1: {name} must not include a {kind} header: "
                       f"<{header}>\n")
