# SPDX-License-Identifier: MIT
"""What scripts/tidy checks again and what it may skip, on a project of two files and a stand-in for
clang-tidy that finds the word FINDING."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

TIDY = Path(__file__).resolve().parents[2] / "scripts" / "tidy"

FAKE_CLANG_TIDY = """#!/bin/sh
if [ "$1" = --version ]; then echo "version ${FAKE_VERSION-1}"; exit; fi
for file; do :; done
echo "$(basename "$file")" >>"$FAKE_LOG"
if cat "$file" "$(dirname "$file")/shared.h" | grep -n FINDING; then exit 1; fi
"""
PROJECT = {
    "CMakeLists.txt": """
        cmake_minimum_required(VERSION 3.25)
        project(Small CXX)
        add_library(small OBJECT a.cpp b.cpp)
        """,
    ".gitignore": "/build/\n",
    ".clang-tidy": "Checks: '-*'\n",
    "a.cpp": '#include "shared.h"\nint a() { return shared; }\n',
    "b.cpp": "int b() { return 1; }\n",
    "shared.h": "constexpr int shared = 1;\n",
    "bin/clang-tidy": FAKE_CLANG_TIDY,
}


class Tidy(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.root = Path(folder.name, "a project")
        cls.env = os.environ | {
            "PATH": f"{cls.root / 'bin'}:{os.environ['PATH']}", "FAKE_LOG": str(cls.root / "log")}
        (cls.root / "bin").mkdir(parents=True)
        (cls.root / "scripts").mkdir()
        shutil.copy(TIDY, cls.root / "scripts/tidy")
        cls.write_project()
        (cls.root / "bin/clang-tidy").chmod(0o755)
        cls.run_in_root("git", "init", "-q")
        cls.run_in_root("cmake", "-G", "Ninja", "-B", "build", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON")

    def setUp(self):
        self.write_project()
        (self.root / "c.cpp").unlink(missing_ok=True)
        shutil.rmtree(self.root / "build/tidy-clean", ignore_errors=True)

    @classmethod
    def write_project(cls):
        for name, text in PROJECT.items():
            path = cls.root / name
            if not path.exists() or path.read_text() != text: # else ninja configures again
                cls.write(name, text)

    @classmethod
    def write(cls, name, text):
        (cls.root / name).write_text(text)

    @classmethod
    def run_in_root(cls, *command, check=True, **env):
        return subprocess.run(
            command, cwd=cls.root, env=cls.env | env, check=check, capture_output=True, text=True)

    def tidy(self, **env):
        """Exit status, and the files that clang-tidy was run on."""
        self.run_in_root("ninja", "-C", "build")
        (self.root / "log").write_text("")
        status = self.run_in_root("scripts/tidy", "build", check=False, **env).returncode
        return status, sorted((self.root / "log").read_text().split())

    def test_checks_all_files_once_and_then_none(self):
        self.assertEqual(self.tidy(), (0, ["a.cpp", "b.cpp"]))
        self.assertEqual(self.tidy(), (0, []))

    def test_checks_the_files_again_that_read_a_changed_header(self):
        self.tidy()
        self.write("shared.h", "constexpr int shared = 2; // other\n")
        self.assertEqual(self.tidy(), (0, ["a.cpp"]))

    def test_checks_a_file_with_a_finding_each_time(self):
        self.write("b.cpp", "int b() { return 1; } // FINDING\n")
        self.assertEqual(self.tidy(), (1, ["a.cpp", "b.cpp"]))
        self.assertEqual(self.tidy(), (1, ["b.cpp"]))

    def test_checks_all_files_again_under_other_settings(self):
        self.tidy()
        self.write(".clang-tidy", "Checks: 'bugprone-*'\n")
        self.assertEqual(self.tidy(), (0, ["a.cpp", "b.cpp"]))

    def test_checks_all_files_again_with_another_clang_tidy(self):
        self.tidy()
        self.assertEqual(self.tidy(FAKE_VERSION="2"), (0, ["a.cpp", "b.cpp"]))

    def test_fails_for_a_file_that_no_target_compiles(self):
        self.tidy()
        self.write("c.cpp", "int c() { return 1; }\n")
        self.assertEqual(self.tidy(), (1, []))

    def test_passes_over_a_test_whose_library_may_be_missing(self):
        self.tidy()
        (self.root / "tests/readback").mkdir(parents=True)
        self.addCleanup(shutil.rmtree, self.root / "tests")
        self.write("tests/readback/c.cpp", "int c() { return 1; }\n")
        self.assertEqual(self.tidy(), (0, []))


if __name__ == "__main__":
    unittest.main()
