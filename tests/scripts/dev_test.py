# SPDX-License-Identifier: MIT
"""What ./dev promises of setup and export, in a folder of its own with stand-ins for the programs
that would change the machine or take long."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

DEV = Path(__file__).resolve().parents[2] / "dev"
REAL_PROGRAMS = """bash basename cat chmod comm dirname env grep mkdir mktemp nproc printf readlink rm
    sed sh sort tail touch true""".split()

# Each writes how it was called to $LOG.
STAND_INS = {
    "id": "echo ${FAKE_UID-0}",
    # All are installed but those named in $MISSING.
    "dpkg-query": """
        shift 3
        for package; do
            case " $MISSING " in
            *" $package "*) unknown=1 ;;
            *) echo "$package installed" ;;
            esac
        done
        exit ${unknown-0}""",
    "apt-get": """
        echo "apt-get $*" >>"$LOG"
        [ "$1" = install ] && [ -n "$APT_SAYS" ] && { echo "Reading lists"; echo "$APT_SAYS"; echo "E: more"; exit 100; } >&2
        exit 0""",
    "ctest": 'echo "ctest $*" >>"$LOG"',
    "cmake": """
        [ "$1" = --build ] || exit 0
        mkdir -p build/release/bin
        printf '#!/bin/sh\\nfor word; do echo "[$word]"; done\\n' >build/release/bin/dataexport
        chmod +x build/release/bin/dataexport""",
}
SUDO = 'echo "sudo $*" >>"$LOG"; [ "$1" != -n ] || shift; exec "$@"'


class Dev(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.elsewhere = Path(folder.name, "else where")
        self.elsewhere.mkdir()
        self.root = Path(folder.name, "a project")
        self.bin = self.root / "bin"
        self.bin.mkdir(parents=True)
        shutil.copy(DEV, self.root / "dev")
        for name in REAL_PROGRAMS:
            (self.bin / name).symlink_to(shutil.which(name))
        for name, text in STAND_INS.items():
            self.stand_in(name, text)
        self.log = self.root / "log"
        self.log.touch()
        self.env = {"PATH": str(self.bin), "LOG": str(self.log), "MISSING": "", "APT_SAYS": "",
            "TMPDIR": folder.name}

    def stand_in(self, name, text):
        (self.bin / name).write_text(f"#!/bin/sh\n{text}\n")
        (self.bin / name).chmod(0o755)

    def dev(self, *words, **env):
        return subprocess.run(
            [self.root / "dev", *words], cwd=self.elsewhere, env=self.env | env,
            stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)

    def calls(self):
        return self.log.read_text().splitlines()

    def test_help_names_every_command(self):
        run = self.dev("help")
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        for command in ("setup", "build", "export", "test", "check", "bench", "golden", "help"):
            self.assertIn(f"./dev {command}", run.stdout)

    def test_an_unknown_command_fails_and_shows_the_help(self):
        run = self.dev("exprot")
        self.assertEqual(run.returncode, 1)
        self.assertIn("./dev export", run.stderr)
        self.assertIn("there is no 'exprot'", run.stderr)

    def test_setup_does_nothing_where_nothing_is_missing(self):
        self.assertEqual(self.dev("setup").returncode, 0)
        self.assertEqual(self.calls(), [])

    def test_setup_installs_what_is_missing_and_nothing_else(self):
        run = self.dev("setup", MISSING="cmake libplist-dev")
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertEqual(self.calls(), [
            "apt-get update", "apt-get install -y --no-install-recommends cmake libplist-dev"])

    def test_setup_goes_through_sudo_where_it_is_not_root(self):
        self.stand_in("sudo", SUDO)
        self.assertEqual(self.dev("setup", MISSING="cmake", FAKE_UID="1000").returncode, 0)
        self.assertIn("apt-get install -y --no-install-recommends cmake", self.calls())
        self.assertTrue(self.calls()[0].startswith("sudo"))

    def test_setup_prints_the_command_where_it_may_not_install(self):
        wanted = "setup: run this as root: " \
            "apt-get update && apt-get install -y --no-install-recommends cmake\n"
        no_sudo = self.dev("setup", MISSING="cmake", FAKE_UID="1000")
        self.assertEqual((no_sudo.returncode, no_sudo.stderr), (1, wanted))
        self.stand_in("sudo", "exit 1")
        refused = self.dev("setup", MISSING="cmake", FAKE_UID="1000")
        self.assertEqual((refused.returncode, refused.stderr), (1, wanted))
        self.assertEqual(self.calls(), [])

    def test_setup_says_in_one_line_why_a_package_cannot_be_installed(self):
        run = self.dev("setup", MISSING="cmake", APT_SAYS="E: Unable to locate package cmake")
        self.assertEqual(run.returncode, 1)
        self.assertEqual(len(run.stderr.splitlines()), 1)
        self.assertTrue(run.stderr.startswith(
            "setup: cannot install cmake: Unable to locate package cmake (all output is in "))

    def test_an_export_asks_for_nothing_that_only_tests_need(self):
        self.assertEqual(self.dev("export", MISSING="chromium").returncode, 0)
        self.assertEqual(self.calls(), [])

    def test_tests_run_where_a_browser_cannot_be_installed(self):
        run = self.dev("test", MISSING="chromium", APT_SAYS="E: Unable to locate package chromium")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertRegex(run.stdout, "tests that need .*chromium.* are skipped")
        self.assertTrue(self.calls()[-1].startswith("ctest "))

    def test_tests_do_not_run_where_a_compiler_cannot_be_installed(self):
        run = self.dev("test", MISSING="clang", APT_SAYS="E: Unable to locate package clang")
        self.assertEqual(run.returncode, 1)
        self.assertFalse(any(call.startswith("ctest") for call in self.calls()))

    def test_export_writes_the_sample_into_a_new_out(self):
        run = self.dev("export")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertIn("[export]", run.stdout)
        self.assertIn("[build/release/samples/backup]", run.stdout)
        self.assertIn(f"look into {self.root}/out", run.stdout)

    def test_export_makes_its_own_out_anew(self):
        self.dev("export")
        (self.root / "out/old.csv").touch()
        self.assertEqual(self.dev("export").returncode, 0)
        self.assertFalse((self.root / "out/old.csv").exists())

    def test_export_leaves_an_out_alone_that_it_did_not_make(self):
        (self.root / "out").mkdir()
        (self.root / "out/mine").touch()
        run = self.dev("export")
        self.assertEqual(run.returncode, 1)
        self.assertIn("out/ is not of our making", run.stderr)
        self.assertTrue((self.root / "out/mine").exists())

    def test_export_hands_words_on_and_keeps_its_output_to_the_programs(self):
        run = self.dev("export", "my backup", "--types", "0,2")
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual(run.stdout, "[export]\n[my backup]\n[--types]\n[0,2]\n")

    def test_export_with_words_runs_where_it_was_called(self):
        self.stand_in("cmake", STAND_INS["cmake"].replace("for word", "pwd; for word"))
        run = self.dev("export", "backup")
        self.assertEqual(run.stdout.splitlines()[0], os.path.realpath(self.elsewhere))


if __name__ == "__main__":
    unittest.main()
