#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads the files of plain contacts back by a program that is not ours.

  contacts_readback.py READER PROGRAM [CARDS_BY_KCONTACTS]

READER is csv (of Python), vobject, kcontacts or libreoffice. The contacts of plain-contacts.json are
exported in both forms, and what the reader finds must be what the records hold. Where the form of a
file is at odds with what a strict reader takes, a test says in what, and expects it. Exits with 77,
and says why, where the reader is missing.
"""

import csv
import json
import logging
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from expected_contacts import CELLS, HEADERS

try:
    import vobject
except ImportError:
    vobject = None

SKIPPED = 77
SYSTEM_PYTHON = "/usr/bin/python3"  # which packages of the system are for
RECORDS = Path(__file__).with_name("plain-contacts.json")
PEOPLE = json.loads(RECORDS.read_text())["sets"][0]["records"]
PHONE, MAIL, ADDRESS, WEB = 3, 4, 5, 22
MIA, BEN, ZOE, TAXI, IDA = range(5)

PROGRAM = KCONTACTS = None
WORK = None  # the folder of all that is written here


def run(*command):
    """Cards for Tavero take the encoding of the locale."""
    return subprocess.run([str(word) for word in command], check=True, stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE,
                          env=os.environ | {"TZ": "Etc/GMT-2", "LC_ALL": "C.UTF-8"}).stdout


def exported(name, *options, source=RECORDS):
    """The folder of contacts; a name stands for one export."""
    target = WORK / name
    if not target.exists():
        run(PROGRAM, "export", source, target, "--only", "contacts", "--owner", "Anna",
            "--language", "en", "--quiet", *options)
    return target / "Contacts"


def normal():
    return exported("normal")


def tavero():
    return exported("tavero", "--tavero")


def card_files(folder):
    """The files of single contacts, in the order of the records."""
    return [folder / "VCF" / f"{person['values'][0]}.vcf" for person in PEOPLE]


def shared_files():
    return [folder / "VCF" / f"Anna's Contacts for {who}.vcf"
            for folder in (normal(), tavero()) for who in ("iCloud", "Mac")]


def tables():
    """form -> path; the two forms for other programs do not depend on the option."""
    return {"common": normal() / "CSV/Anna's Contacts in common use.csv",
            "tavero": tavero() / "CSV/Anna's Contacts in common use.csv",
            "google": normal() / "CSV/Anna's Contacts for Google.csv",
            "outlook": normal() / "CSV/Anna's Contacts for Outlook.csv"}


# What the records hold.

def values(person, kind):
    return [p["value"] for p in person.get("properties", []) if p["type"] == kind]


def addresses(person):
    """Street, city, state, postal code, country."""
    return [[p["entry"].get(key, "") for key in ("Street", "City", "State", "ZIP", "Country")]
            for p in person.get("properties", []) if p["type"] == ADDRESS]


def name_parts(person, keys=("lastName", "firstName", "middleName", "namePrefix", "nameSuffix")):
    return [person.get(key, "") for key in keys]


def names_in_spoken_order(person):
    """The parts that are there, prefix first, with nothing in the places of the others."""
    parts = name_parts(person, ("namePrefix", "firstName", "middleName", "lastName", "nameSuffix"))
    return moved_up(parts)


def moved_up(parts):
    filled = [part for part in parts if part]
    return filled + [""] * (len(parts) - len(filled))


def without_blanks(parts):
    return [parts[0].replace(" ", "")] + parts[1:]


def birthday(person):
    return {"-496152000": "1985-04-12", "-318081600": "1990-12-03"}.get(person.get("birthday"), "")


def organization(person):
    return [person[key] for key in ("organization", "department") if key in person]


class CsvFiles(unittest.TestCase):
    maxDiff = None

    def rows(self, path):
        return list(csv.reader(path.open(encoding="utf-8-sig", newline=""), strict=True))

    def test_headers_name_the_columns(self):
        for form, path in tables().items():
            end = [""] if form == "common" else []
            self.assertEqual(self.rows(path)[0], HEADERS[form] + end, form)

    def test_each_value_stands_under_its_header(self):
        for form, path in tables().items():
            header, *rows = self.rows(path)
            self.assertEqual(len(rows), len(PEOPLE), form)
            for row, cells in zip(rows, CELLS[form]):
                with self.subTest(form, cells=cells):
                    self.assertEqual(len(row), len(header))
                    self.assertEqual({h: c for h, c in zip(header, row) if c}, cells)

    def test_forms_for_other_programs_are_the_same_with_tavero(self):
        for who in ("Google", "Outlook"):
            name = f"CSV/Anna's Contacts for {who}.csv"
            self.assertEqual((normal() / name).read_bytes(), (tavero() / name).read_bytes())

    def test_own_forms_have_a_mark_and_forms_for_other_programs_have_none(self):
        marks = {form: path.read_bytes().startswith(b"\xef\xbb\xbf")
                 for form, path in tables().items()}
        self.assertEqual(marks, {"common": True, "tavero": True, "google": False,
                                 "outlook": False})

    # What a strict reader stumbles over.

    def few(self, who):
        """The rows of those who have no address, web address, relation, day or messenger."""
        people = json.dumps({"recordSet": 1, "sets": [
            {"dataType": 2, "records": [PEOPLE[BEN], PEOPLE[TAXI]]}]})
        source = WORK / "few.json"
        source.write_text(people)
        return self.rows(exported("few", source=source) / "CSV" / f"Anna's Contacts for {who}.csv")

    def test_rows_in_common_use_have_an_empty_cell_behind_the_last_column(self):
        for row in self.rows(tables()["common"]):
            self.assertEqual(len(row), len(HEADERS["common"]) + 1)
            self.assertEqual(row[-1], "")

    def test_google_kind_that_nobody_has_moves_what_follows_to_the_right(self):
        header, _, taxi = self.few("Google")
        self.assertEqual(taxi[header.index("Organization 1 - Name") + 1], "Blitz Taxi")
        self.assertEqual(len(taxi), len(header) + 5)

    def test_outlook_addresses_that_nobody_has_move_what_follows_to_the_left(self):
        header, ben, _ = self.few("Outlook")
        self.assertEqual(ben[header.index("Birthday") - 3 * 4], "12/03")
        self.assertEqual(len(ben), len(header) - 3 * 4)


class VObject(unittest.TestCase):
    maxDiff = None

    def card(self, path, **options):
        return vobject.readOne(path.read_bytes().decode(), **options)

    def cards(self, folder):
        """Ida's messenger is refused in one of the forms; see below."""
        logging.disable()
        return [self.card(path, ignoreUnreadable=True) for path in card_files(folder)]

    def texts(self, card, name):
        return [line.value for line in card.contents.get(name, [])]

    def text(self, card, name):
        return "".join(self.texts(card, name))

    def name(self, card):
        n = card.n.value
        return [n.family, n.given, n.additional, n.prefix, n.suffix]

    def places(self, card):
        return [[a.street, a.city, a.region, a.code, a.country] for a in self.texts(card, "adr")]

    def check_plain_values(self, card, person):
        self.assertEqual(self.texts(card, "tel"), values(person, PHONE))
        self.assertEqual(self.texts(card, "email"), values(person, MAIL))
        self.assertEqual(self.texts(card, "url"), values(person, WEB))
        self.assertEqual(sum(self.texts(card, "org"), []), organization(person))
        self.assertEqual(self.text(card, "bday"), birthday(person))
        for line, key in (("note", "note"), ("title", "jobTitle"), ("nickname", "nickname")):
            self.assertEqual(self.text(card, line), person.get(key, ""))

    def test_single_cards_hold_what_the_records_hold(self):
        for folder in (normal(), tavero()):
            for card, person in zip(self.cards(folder), PEOPLE):
                with self.subTest(folder=folder.parent.name, name=person["values"][0]):
                    self.assertEqual(card.version.value, "2.1")
                    self.assertEqual(card.fn.value, person["values"][0])
                    self.check_plain_values(card, person)

    def test_pictures_come_back_whole(self):
        for folder in (normal(), tavero()):
            picture = self.cards(folder)[MIA].photo.value
            self.assertTrue(picture.startswith(b"\x89PNG") and picture.endswith(b"IEND\xaeB`\x82"))

    def test_tavero_names_and_addresses_keep_their_places(self):
        for card, person in zip(self.cards(tavero()), PEOPLE):
            if "n" in card.contents:
                self.assertEqual(self.name(card), name_parts(person))
            self.assertEqual(self.places(card), addresses(person))

    def test_tavero_kinds_are_words(self):
        cards = self.cards(tavero())
        self.assertEqual([tel.params["TYPE"] for tel in cards[MIA].tel_list],
                         [["mobile"], ["work"], ["home fax"]])
        self.assertEqual([mail.params["TYPE"] for mail in cards[MIA].email_list],
                         [["work"], ["home"]])

    def test_tavero_lines_of_its_own_are_read(self):
        ida = self.card(card_files(tavero())[IDA])
        self.assertEqual(self.text(ida, "x-im"), "skype;ida.falk")
        self.assertEqual(self.text(ida, "x-dt"), "2023-01-02")
        self.assertEqual(self.text(ida, "x-rsh"), "Eva")

    def test_shared_files_hold_what_the_records_hold(self):
        for path in shared_files():
            cards = list(vobject.readComponents(path.read_bytes().decode()))
            self.assertEqual(len(cards), len(PEOPLE))
            for card, person in zip(cards, PEOPLE):
                with self.subTest(path.name, name=person["values"][0]):
                    self.assertTrue(card.validate(raiseException=True))
                    self.assertEqual(card.version.value, "3.0")
                    self.assertEqual(self.name(card), name_parts(person))
                    self.check_plain_values(card, person)

    def test_shared_files_are_one_text(self):
        self.assertEqual(len({path.read_bytes() for path in shared_files()}), 1)

    # What a strict reader stumbles over.

    def test_names_of_single_cards_are_taken_for_others(self):
        """The parts that are there stand in spoken order: "Ben Stone" is Ben by family name."""
        for card, person in zip(self.cards(normal()), PEOPLE):
            parts = self.name(card) if "n" in card.contents else [""] * 5
            self.assertEqual(parts, names_in_spoken_order(person))

    def test_addresses_of_single_cards_move_up_where_a_part_is_missing(self):
        for card, person in zip(self.cards(normal()), PEOPLE):
            self.assertEqual(self.places(card), [moved_up(place) for place in addresses(person)])
        self.assertEqual(self.places(self.cards(normal())[ZOE])[0][0], "Zürich")

    def test_kinds_of_phones_are_words_without_a_name_and_mobile_ones_are_home(self):
        tels = self.cards(normal())[MIA].tel_list
        self.assertEqual([tel.singletonparams for tel in tels],
                         [["home"], ["work"], ["home", "fax"]])
        self.assertFalse(any("TYPE" in tel.params for tel in tels))

    def test_messenger_line_has_no_colon_and_is_refused(self):
        path = card_files(normal())[IDA]
        self.assertIn(b"\r\nX-SKYPE;ida.falk\r\n", path.read_bytes())
        with self.assertRaisesRegex(vobject.base.ParseError, "X-SKYPE;ida.falk"):
            self.card(path)

    def test_streets_of_shared_files_have_no_blanks_and_all_are_home(self):
        for path in shared_files():
            for card, person in zip(vobject.readComponents(path.read_bytes().decode()), PEOPLE):
                self.assertEqual(self.places(card),
                                 [without_blanks(place) for place in addresses(person)])
                for adr in card.contents.get("adr", []):
                    self.assertEqual(adr.params["TYPE"][0], "HOME")

    def test_kind_of_an_address_of_shared_files_is_the_label_of_its_group(self):
        mia = self.card(shared_files()[0])
        labels = {line.group: line.value for line in mia.contents["x-ablabel"]}
        self.assertEqual([labels[adr.group] for adr in mia.adr_list], ["HOME", "WORK"])

    def test_names_shown_of_shared_files_keep_blanks_for_missing_parts(self):
        cards = vobject.readComponents(shared_files()[0].read_bytes().decode())
        self.assertEqual([card.fn.value for card in cards],
                         ["Mia Ann Berg", "Ben  Stone", "Zoë Müller 王", "  ", "Ida  Falk"])


class KContacts(unittest.TestCase):
    maxDiff = None

    def cards(self, *paths):
        return json.loads(run(KCONTACTS, *paths))

    def check_plain_values(self, card, person):
        self.assertEqual([phone["number"] for phone in card["phones"]], values(person, PHONE))
        self.assertEqual(sorted(card["mails"]), sorted(values(person, MAIL)))
        self.assertEqual([card[key] for key in ("organization", "department") if card[key]],
                         organization(person))
        self.assertEqual(card["birthday"], birthday(person))
        for key, of in (("note", "note"), ("title", "jobTitle"), ("nickname", "nickname")):
            self.assertEqual(card[key], person.get(of, ""))

    def test_single_cards_hold_what_the_records_hold(self):
        for folder in (normal(), tavero()):
            cards = self.cards(*card_files(folder))
            self.assertEqual(len(cards), len(PEOPLE))
            for card, person in zip(cards, PEOPLE):
                with self.subTest(folder=folder.parent.name, name=person["values"][0]):
                    self.assertEqual(card["name"], person["values"][0])
                    self.check_plain_values(card, person)
                    self.assertEqual(card["urls"], values(person, WEB))
                    self.assertEqual(card["photoWidth"], 4 if "photo" in person else 0)

    def test_tavero_names_and_addresses_keep_their_places(self):
        for card, person in zip(self.cards(*card_files(tavero())), PEOPLE):
            self.assertEqual(card["nameParts"], name_parts(person))
            self.assertEqual(card["addresses"], addresses(person))

    def test_shared_files_hold_what_the_records_hold(self):
        for path in shared_files():
            cards = self.cards(path)
            self.assertEqual(len(cards), len(PEOPLE))
            for card, person in zip(cards, PEOPLE):
                with self.subTest(path.name, name=person["values"][0]):
                    self.assertEqual(card["nameParts"], name_parts(person))
                    self.check_plain_values(card, person)

    def test_kinds_of_phones_are_known_in_shared_files(self):
        mia = self.cards(shared_files()[0])[MIA]
        self.assertEqual([phone["kinds"] for phone in mia["phones"]],
                         [["cell"], ["work"], ["home", "fax"]])

    # What a strict reader stumbles over.

    def test_names_of_single_cards_are_taken_for_others(self):
        for card, person in zip(self.cards(*card_files(normal())), PEOPLE):
            self.assertEqual(card["nameParts"], names_in_spoken_order(person))

    def test_addresses_of_single_cards_move_up_where_a_part_is_missing(self):
        for card, person in zip(self.cards(*card_files(normal())), PEOPLE):
            self.assertEqual(card["addresses"], [moved_up(place) for place in addresses(person)])

    def test_mobile_phones_of_single_cards_are_home_phones(self):
        mia = self.cards(card_files(normal())[MIA])[0]
        self.assertEqual([phone["kinds"] for phone in mia["phones"]],
                         [["home"], ["work"], ["home", "fax"]])

    def test_tavero_words_for_mobile_and_home_fax_are_no_kinds_of_the_format(self):
        mia = self.cards(card_files(tavero())[MIA])[0]
        self.assertEqual([phone["kinds"] for phone in mia["phones"]], [[], ["work"], []])

    def test_streets_of_shared_files_have_no_blanks(self):
        for card, person in zip(self.cards(shared_files()[0]), PEOPLE):
            self.assertEqual(card["addresses"],
                             [without_blanks(place) for place in addresses(person)])

    def test_web_address_in_a_group_is_not_found(self):
        self.assertIn(b"\r\nitem3.URL;TYPE=pref:https://berg.example/mia\r\n",
                      shared_files()[0].read_bytes())
        self.assertEqual(self.cards(shared_files()[0])[MIA]["urls"], [])


class LibreOffice(unittest.TestCase):
    maxDiff = None
    TABLE = "{urn:oasis:names:tc:opendocument:xmlns:table:1.0}"
    TEXT = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"
    # Commas, quotation marks, UTF-8, from the first line on, columns as they come, English of the
    # United States; what stands in quotation marks is text, and only plain numbers are numbers.
    FILTER = "Text - txt - csv (StarCalc):44,34,76,1,,1033,true,false"

    @classmethod
    def setUpClass(cls):
        source, target = WORK / "tables", WORK / "sheets"
        source.mkdir()
        for form, path in tables().items():
            shutil.copy(path, source / f"{form}.csv")
        run("soffice", f"-env:UserInstallation={(WORK / 'profile').as_uri()}", "--headless",
            f"--infilter={cls.FILTER}", "--convert-to", "fods", "--outdir", target,
            *sorted(source.iterdir()))
        cls.sheets = {form: cls.rows(target / f"{form}.fods") for form in tables()}

    @classmethod
    def shown(cls, cell):
        for tab in cell.iter(cls.TEXT + "tab"):
            tab.text = "\t"
        return "\n".join("".join(line.itertext()) for line in cell.findall(cls.TEXT + "p"))

    @classmethod
    def rows(cls, path):
        """The texts of the sheet's cells; equal cells beside each other are written once."""
        rows = []
        for row in ElementTree.parse(path).getroot().iter(cls.TABLE + "table-row"):
            rows.append([cls.shown(cell) for cell in row.findall(cls.TABLE + "table-cell")
                         for _ in range(int(cell.get(cls.TABLE + "number-columns-repeated", 1)))])
        return rows

    def test_headers_name_the_columns(self):
        for form, rows in self.sheets.items():
            self.assertEqual(rows[0], HEADERS[form], form)

    def test_each_value_stands_under_its_header(self):
        for form, (header, *rows) in self.sheets.items():
            self.assertEqual(len(rows), len(PEOPLE), form)
            for row, cells in zip(rows, CELLS[form]):
                with self.subTest(form, cells=cells):
                    found = {h: c for h, c in zip(header, row, strict=True) if c}
                    self.assertEqual(found, self.as_shown(form, cells))

    # What a spreadsheet stumbles over.

    def as_shown(self, form, cells):
        """Cells without quotation marks that look like numbers lose what numbers do not have."""
        if form in ("common", "tavero"):
            return cells
        return {header: str(int(cell)) if cell.isdigit() else cell
                for header, cell in cells.items()}

    def test_postal_codes_lose_their_zero_where_cells_are_not_quoted(self):
        columns = {"common": "Address 2 - Postal Code", "tavero": "Address 2 - Postal Code",
                   "google": "Address 2 - Postal Code", "outlook": "Business Postal Code"}
        self.assertEqual({form: self.sheets[form][1 + MIA][HEADERS[form].index(column)]
                          for form, column in columns.items()},
                         {"common": "01067", "tavero": "01067", "google": "1067",
                          "outlook": "1067"})


READERS = {  # word -> test case, what is missing
    "csv": (CsvFiles, lambda: ""),
    "vobject": (VObject, lambda: "" if vobject else "python3-vobject"),
    "kcontacts": (KContacts, lambda: "" if KCONTACTS else "libkf5contacts-dev"),
    "libreoffice": (LibreOffice, lambda: "" if shutil.which("localc") else "libreoffice-calc"),
}


def main():
    global PROGRAM, KCONTACTS, WORK
    reader, PROGRAM, *others = sys.argv[1:]
    KCONTACTS = others[0] if others else None
    python = Path(SYSTEM_PYTHON)
    can_change = python.exists() and not python.samefile(sys.executable)
    if reader == "vobject" and not vobject and can_change:
        os.execv(python, [python, "-B", *sys.argv])
    case, missing = READERS[reader]
    if missing():
        print(f"skipped: there is no {missing()} (./dev setup installs it)")
        return SKIPPED
    with tempfile.TemporaryDirectory() as folder:
        WORK = Path(folder)
        tests = unittest.defaultTestLoader.loadTestsFromTestCase(case)
        return 0 if unittest.TextTestRunner().run(tests).wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
