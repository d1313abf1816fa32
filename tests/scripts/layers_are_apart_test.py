# SPDX-License-Identifier: MIT
"""The build lets each layer see the headers that docs/ARCHITECTURE.md allows, and no others.

  layers_are_apart_test.py COMPILER LAYERS ROOT

LAYERS has a line for each compiled layer: its name, then its include directories, by semicolons.
"""

import importlib.machinery
import importlib.util
import subprocess
import sys
import unittest
from pathlib import Path

COMPILER, LAYERS, ROOT = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])


def load_check_layers():
    loader = importlib.machinery.SourceFileLoader("check_layers", str(ROOT / "scripts/check_layers"))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("check_layers", loader))
    loader.exec_module(module)
    return module


TABLE = load_check_layers().read_table(ROOT / "docs" / "ARCHITECTURE.md")


def include_directories():
    """Name of a layer -> the directories that its compiler looks into"""
    lines = [line.split(";") for line in LAYERS.read_text().splitlines()]
    return {words[0]: words[1:] for words in lines}


def folder_of(name):
    """"translators_message" is the layer of src/translators/message."""
    folders = {folder.replace("/", "_"): folder for folder in TABLE}
    folders |= {folder.rpartition("/")[2]: folder for folder in TABLE}
    return folders[name]


def compiles(text, directories):
    """Whether the lines compile, and what the compiler says."""
    command = [COMPILER, "-x", "c++", "-std=c++20", "-fPIC", "-fsyntax-only"]
    command += [f"-I{directory}" for directory in directories if directory]
    run = subprocess.run([*command, "-"], input=text, capture_output=True, text=True, check=False)
    return run.returncode == 0, run.stderr


def first_header(folder):
    headers = sorted((ROOT / "src" / folder).glob("*.h"))
    return f"{folder}/{headers[0].name}" if headers else None


class LayersAreApart(unittest.TestCase):
    def test_an_include_that_the_table_forbids_does_not_compile(self):
        model = include_directories()["model"]
        allowed, said = compiles('#include "platform/export.h"\n', model)
        self.assertTrue(allowed, said)
        forbidden, said = compiles('#include "exporters/CIDataExporter.h"\n', model)
        self.assertFalse(forbidden)
        self.assertIn("exporters/CIDataExporter.h", said)

    def test_no_layer_sees_more_than_the_table_allows(self):
        self.assertGreater(len(include_directories()), 5)
        for name, directories in include_directories().items():
            own = folder_of(name)
            others = [folder for folder in TABLE if folder != own and folder not in TABLE[own]]
            headers = [header for header in map(first_header, others) if header]
            lines = [f'#if __has_include("{header}")\n#error sees {header}\n#endif' for header in headers]
            with self.subTest(layer=name):
                apart, said = compiles("\n".join(lines) + "\n", directories)
                self.assertTrue(apart, said)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
