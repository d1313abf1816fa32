# SPDX-License-Identifier: MIT
"""What scripts/check_layers finds, each in a tree that has one thing wrong."""

import importlib.machinery
import importlib.util
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK_LAYERS = Path(__file__).resolve().parents[2] / "scripts" / "check_layers"
SPDX = "// SPDX-License-Identifier: MIT\n"
TABLE = """
| Folder | What lives there | May include |
|---|---|---|
| `src/platform/` | dates and files, `Log` | |
| `src/model/` | records | `platform` |
| `src/exporters/` | sinks | `model` `platform` |
| `src/backup/readers/` | sources | `model` |
"""
SOUND = {
    "docs/ARCHITECTURE.md": TABLE,
    "cmake/public_headers.txt": "# installed\nmodel/*.h\nplatform/export.h\n",
    "src/platform/export.h": SPDX + "#pragma once\n#include <QString>\n",
    "src/platform/dates.h": SPDX,
    "src/model/Record.h": SPDX + '#include "platform/export.h"\n',
    "src/model/Record.cpp": SPDX + '#include "model/Record.h"\n#include "platform/dates.h"\n#include <vector>\n',
    "src/exporters/Sink.h": SPDX + '#include "model/Record.h"\n',
    "src/backup/readers/Reader.cpp": SPDX + '#include "model/Record.h"\n',
    "scripts/tool": "#!/bin/sh\n# SPDX-License-Identifier: MIT\n",
}


def load_check_layers():
    loader = importlib.machinery.SourceFileLoader("check_layers", str(CHECK_LAYERS))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("check_layers", loader))
    loader.exec_module(module)
    return module


def write_tree(root, files):
    for name, text in (SOUND | files).items():
        path = Path(root, name)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)


def findings_with(files):
    """What is found in the sound tree with these files in their place."""
    with tempfile.TemporaryDirectory() as root:
        write_tree(root, files)
        return list(load_check_layers().findings(Path(root)))


class CheckLayers(unittest.TestCase):
    def assert_only_finding(self, files, expected):
        self.assertEqual(findings_with(files), [expected])

    def test_finds_nothing_in_a_sound_tree(self):
        self.assertEqual(findings_with({}), [])

    def test_fails_only_where_it_finds_something(self):
        with tempfile.TemporaryDirectory() as root:
            for text, status in ((SPDX, 0), ("int untitled;\n", 1)):
                write_tree(root, {"src/model/Record.cpp": text})
                run = subprocess.run(
                    [sys.executable, CHECK_LAYERS, root], capture_output=True, text=True, check=False)
                self.assertEqual((run.returncode, len(run.stdout.splitlines())), (status, status))

    def test_finds_an_include_that_the_table_does_not_allow(self):
        self.assert_only_finding(
            {"src/platform/dates.h": SPDX + '\n#include "model/Record.h"\n'},
            "src/platform/dates.h:3: src/platform/ may not include model/Record.h")

    def test_allows_only_what_stands_in_the_row_and_nothing_through_others(self):
        self.assert_only_finding(
            {"src/backup/readers/Reader.cpp": SPDX + '#include "platform/export.h"\n'},
            "src/backup/readers/Reader.cpp:2: src/backup/readers/ may not include platform/export.h")

    def test_finds_it_in_angle_brackets_and_behind_blanks_too(self):
        self.assert_only_finding(
            {"src/platform/dates.h": SPDX + " #  include <model/Record.h>\n"},
            "src/platform/dates.h:2: src/platform/ may not include model/Record.h")

    def test_finds_a_path_that_leads_upwards(self):
        self.assert_only_finding(
            {"src/platform/dates.h": SPDX + '#include "../model/Record.h"\n'},
            "src/platform/dates.h:2: ../model/Record.h leads upwards; write its path from src/")

    def test_finds_a_path_that_does_not_begin_at_src(self):
        self.assert_only_finding(
            {"src/platform/dates.h": SPDX + '#include "export.h"\n'},
            "src/platform/dates.h:2: export.h is no path from src/ to a header of a layer")

    def test_finds_a_folder_that_the_table_does_not_know(self):
        self.assert_only_finding(
            {"src/model/deep/Record.cpp": SPDX},
            "src/model/deep/Record.cpp: src/model/deep/ is not in the table of layers")

    def test_finds_a_table_that_names_no_layer(self):
        self.assert_only_finding(
            {"docs/ARCHITECTURE.md": TABLE.replace("| `model` `platform` |", "| `model` `platfrom` `platform` |")},
            "docs/ARCHITECTURE.md: src/exporters/ may include platfrom, which is no layer")

    def test_fails_without_a_table(self):
        self.assertIn("docs/ARCHITECTURE.md: no table of layers",
            findings_with({"docs/ARCHITECTURE.md": "# How it is built\n"}))

    def test_finds_a_source_file_without_the_licence_line(self):
        self.assert_only_finding(
            {"src/model/Record.cpp": '#include "model/Record.h"\n'},
            "src/model/Record.cpp: does not begin with '// SPDX-License-Identifier: MIT'")

    def test_finds_a_script_without_the_licence_line(self):
        self.assert_only_finding(
            {"scripts/tool": "#!/bin/sh\nexit 0\n"},
            "scripts/tool: does not begin with '# SPDX-License-Identifier: MIT'")

    def test_finds_using_namespace_but_not_in_a_comment(self):
        self.assert_only_finding(
            {"tests/model/Record_test.cpp": SPDX + "// using namespace\nusing  namespace std;\n"},
            "tests/model/Record_test.cpp:3: using namespace")

    def test_takes_a_namespace_of_literal_suffixes(self):
        self.assertEqual(findings_with(
            {"src/model/Record.cpp": SPDX + "using namespace std::string_view_literals;\n"}), [])
        self.assert_only_finding(
            {"src/model/Record.cpp": SPDX + "using namespace std::chrono;\n"},
            "src/model/Record.cpp:2: using namespace")

    def test_takes_500_lines_and_no_more(self):
        self.assertEqual(findings_with({"src/model/Record.cpp": SPDX + "\n" * 499}), [])
        self.assert_only_finding(
            {"src/model/Record.cpp": SPDX + "\n" * 500},
            "src/model/Record.cpp: 501 lines, more than 500")

    def test_finds_an_installed_header_that_includes_one_that_is_not(self):
        self.assert_only_finding(
            {"src/model/Record.h": SPDX + '#include "platform/dates.h"\n'},
            "src/model/Record.h:2: is installed, but includes platform/dates.h, which is not")


if __name__ == "__main__":
    unittest.main()
