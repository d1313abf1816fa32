# SPDX-License-Identifier: MIT
"""What scripts/check_translations finds, each in a tree that has one thing wrong."""

import importlib.machinery
import importlib.util
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from xml.sax.saxutils import escape

CHECK_TRANSLATIONS = Path(__file__).resolve().parents[2] / "scripts" / "check_translations"
MARK = 'constexpr const char* kLabel = QT_TRANSLATE_NOOP("DataExport", "mobile");\n'
ASK = 'QString text() { return QCoreApplication::translate(\n    "DataExport", "Date: %1"); }\n'
HELPER = 'QString tr(const char* text)\n{\n    return QCoreApplication::translate("DataExport", text);\n}\n'
GERMAN = {"mobile": "Mobil", "Date: %1": "Datum: %1"}
FRENCH = {"mobile": "mobile", "Date: %1": "Date : %1"}


def load():
    loader = importlib.machinery.SourceFileLoader("check_translations", str(CHECK_TRANSLATIONS))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


PAGE_HEADER = "class LIB_EXPORT Page : public QObject {\n    Q_OBJECT\n\npublic:\n};\n"


def catalogue(language, texts, kind="", context="DataExport"):
    messages = "".join(
        f"<message><source>{escape(source)}</source><translation{kind}>{escape(text)}</translation></message>"
        for source, text in texts.items())
    return f'<TS version="2.1" language="{language}"><context><name>{context}</name>{messages}</context></TS>'


class CheckTranslations(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.write("src/model/label.cpp", MARK)
        self.write("src/cli/page.cpp", ASK)
        self.give("de", GERMAN)
        self.give("fr", FRENCH)

    def write(self, path, text):
        (self.root / path).parent.mkdir(parents=True, exist_ok=True)
        (self.root / path).write_text(text, encoding="utf-8")

    def give(self, language, texts, kind=""):
        self.write(f"resources/translations/dataexport_{language}.ts", catalogue(language, texts, kind))

    def findings(self):
        return list(load().findings(self.root))

    def assert_one_finding(self, *parts):
        found = self.findings()
        self.assertEqual(len(found), 1, found)
        for part in parts:
            self.assertIn(part, found[0])

    def test_a_sound_tree_has_no_findings(self):
        self.assertEqual(self.findings(), [])

    def test_a_text_of_the_sources_that_a_catalogue_lacks(self):
        self.give("fr", {"mobile": "mobile", "Other": "Autre"})
        self.give("de", GERMAN | {"Other": "Andere"})
        self.assert_one_finding("dataexport_fr.ts", "'Date: %1'", "src/cli/page.cpp")

    def test_each_way_to_ask_for_a_text_is_seen(self):
        ways = {
            "a mark": 'QT_TRANSLATE_NOOP("DataExport", "New")',
            "a text in two literals": 'translate("DataExport", "Ne"\n    "w")',
            "a function of the file": HELPER + 'auto a = tr("New");',
            "a choice": HELPER + 'auto a = tr(own ? "New" : "mobile");',
            "the other of a choice": HELPER + 'auto a = tr(own ? "mobile" : "New");',
            "a member": HELPER.replace("tr(const char* text)", "Page::tr(const char* text) const")
                + 'tr("New");',
            "a function that fills": HELPER.replace("text)\n", "text, const QString& value)\n")
                .replace("text);", "text).arg(value);") + 'tr("New", value);',
            "a lambda": 'const auto label = [](const char* text) {'
                ' return QCoreApplication::translate("DataExport", text); };\nlabel("New");',
        }
        for what, text in ways.items():
            with self.subTest(what):
                self.write("src/cli/new.cpp", text)
                found = self.findings()
                self.assertEqual(len(found), 2, found) # once for each catalogue
                self.assertIn("'New'", found[0])

    def test_a_function_of_a_header_serves_the_files_that_include_it(self):
        self.write("src/model/tr.h", HELPER)
        self.write("src/model/all.h", '#include "model/tr.h"\n#include "model/all.h"\n')
        for header in ("model/tr.h", "model/all.h"):
            with self.subTest(header):
                self.write("src/cli/new.cpp", f'#include "{header}"\nauto a = tr("New");')
                self.assertEqual(len(self.findings()), 2)

    def test_a_function_of_that_name_elsewhere_is_another(self):
        self.write("src/model/tr.h", HELPER)
        self.write("src/cli/new.cpp", 'auto a = tr("New");')
        self.assertEqual(self.findings(), [])

    def test_what_is_not_asked_for_in_the_context_is_no_text(self):
        self.write("src/cli/other.cpp", 'auto a = tr("Of a class"); str("x"); // translate("DataExport", "Old")\n')
        self.assertEqual(self.findings(), [])

    def test_a_text_that_one_catalogue_alone_has(self):
        self.give("de", GERMAN | {"History": "Verlauf"})
        self.assert_one_finding("dataexport_fr.ts", "'History'", "another catalogue")

    def test_a_translation_that_is_not_finished(self):
        for what, texts, kind in (
                ("empty", GERMAN | {"mobile": ""}, ""),
                ("blank", GERMAN | {"mobile": " "}, "")):
            with self.subTest(what):
                self.give("de", texts, kind)
                self.assert_one_finding("dataexport_de.ts", "'mobile'", "not finished")
        self.give("de", GERMAN, ' type="unfinished"')
        self.assertEqual(len(self.findings()), 2)

    def test_places_that_are_missing_too_many_or_others(self):
        for text in ("Datum", "Datum: %1 %1", "Datum: %2", "Datum: %n"):
            with self.subTest(text):
                self.give("de", GERMAN | {"Date: %1": text})
                self.assert_one_finding("dataexport_de.ts", "places")

    def test_places_may_change_their_order(self):
        self.write("src/cli/page.cpp", ASK + 'QT_TRANSLATE_NOOP("DataExport", "%1\'s %2")')
        self.give("de", GERMAN | {"%1's %2": "%2 von %1"})
        self.give("fr", FRENCH | {"%1's %2": "%2 de %1"})
        self.assertEqual(self.findings(), [])

    def test_characters_that_a_row_of_columns_cannot_hold(self):
        for text in ("Mobil, Handy", 'Mobil "Handy"', "Mobil\nHandy"):
            with self.subTest(text):
                self.give("de", GERMAN | {"mobile": text})
                self.assert_one_finding("dataexport_de.ts", "'mobile'")

    def test_blanks_at_an_end(self):
        self.give("de", GERMAN | {"mobile": "Mobil "})
        self.assert_one_finding("blanks")

    def test_a_text_that_stands_there_twice(self):
        doubled = catalogue("de", GERMAN).replace(
            "</context>", "<message><source>mobile</source><translation>Handy</translation></message></context>")
        self.write("resources/translations/dataexport_de.ts", doubled)
        self.assert_one_finding("'mobile' stands there twice")

    def test_a_language_that_is_not_that_of_the_file_name(self):
        self.write("resources/translations/dataexport_de.ts", catalogue("da", GERMAN))
        self.assert_one_finding("dataexport_de.ts", "'da'")

    def test_a_context_that_nothing_asks_for(self):
        other = catalogue("de", GERMAN) .replace("</TS>", "<context><name>Page</name></context></TS>")
        self.write("resources/translations/dataexport_de.ts", other)
        self.assert_one_finding("'Page'")

    def test_a_class_with_a_context_of_its_own(self):
        self.write("src/model/Page.h", PAGE_HEADER)
        self.write("src/model/Page.cpp", 'QString Page::name() { return tr("for a page"); }\n')
        found = self.findings()
        self.assertEqual(len(found), 2, found) # once for each catalogue
        for part in ("dataexport_de.ts", "'for a page'", "'Page'", "src/model/Page.cpp"):
            self.assertIn(part, found[0])
        for language, texts in (("de", GERMAN), ("fr", FRENCH)):
            own = catalogue(language, {"for a page": "(page)"}, context="Page")
            context = own[own.index("<context>"):]
            self.write(f"resources/translations/dataexport_{language}.ts",
                catalogue(language, texts).replace("</TS>", context))
        self.assertEqual(self.findings(), [])

    def test_a_text_of_a_class_is_not_that_of_the_common_context(self):
        self.write("src/model/tr.h", HELPER)
        self.write("src/model/Page.h", PAGE_HEADER)
        self.write("src/model/Page.cpp", 'QString Page::name() { return tr("for a page"); }\n')
        self.give("de", GERMAN | {"for a page": "(Seite)"})
        self.give("fr", FRENCH | {"for a page": "(page)"})
        self.assertEqual(len(self.findings()), 2)

    def test_a_tree_without_texts_or_catalogues_is_a_finding(self):
        with tempfile.TemporaryDirectory() as empty:
            self.assertEqual(len(list(load().findings(Path(empty)))), 2)

    def test_the_program_prints_and_fails(self):
        self.give("de", {"mobile": "Mobil"})
        run = subprocess.run([sys.executable, "-B", CHECK_TRANSLATIONS, self.root],
            capture_output=True, text=True, check=False)
        self.assertEqual(run.returncode, 1)
        self.assertIn("'Date: %1'", run.stdout)


if __name__ == "__main__":
    unittest.main()
