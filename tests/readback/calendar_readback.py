#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Reads calendar files back: their lines with python3-icalendar, their rules with libical.

  calendar_readback.py PROGRAM BACKUP

The events of the sample backup must come back as the records hold them. Recurrences are made by
the hundred, their days found by walking the calendar day by day, and the rule that the file has for
each must name the same days. Where the form of the file is at odds with what a strict reader takes,
a test says in what, and expects it. Exits with 77, and says why, without one of the two readers.
"""

import ctypes
import ctypes.util
import json
import os
import random
import subprocess
import sys
import tempfile
import unittest
from datetime import date, datetime, time, timedelta, timezone
from pathlib import Path

try:
    import icalendar
except ImportError:
    icalendar = None

SKIPPED = 77
SYSTEM_PYTHON = "/usr/bin/python3"  # which packages of the system are for
CALENDAR = 29
WRITTEN = 2  # the flag of events that go into the file
ZONE = timezone(timedelta(hours=2))
MANY = 60  # more than any recurrence here has
DAYS = ("MO", "TU", "WE", "TH", "FR", "SA", "SU")

PROGRAM = BACKUP = LIBICAL = None


def run(*command):
    subprocess.run([str(word) for word in command], check=True, stdout=subprocess.DEVNULL,
                   stderr=subprocess.PIPE, env=os.environ | {"TZ": "Etc/GMT-2"})


def exported(source, work):
    """The bytes of the calendar file that comes of a backup or a record set."""
    run(PROGRAM, "export", source, work / "out", "--only", "calendar", "--owner", "Anna",
        "--language", "en", "--quiet")
    return (work / "out/Calendar/Anna's Calendar.ics").read_bytes()


def exported_events(events):
    """The text of the file for events of a record set, without its mark."""
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        source = work / "records.json"
        source.write_text(json.dumps({"recordSet": 1, "sets": [{"dataType": CALENDAR, "records": [
            {"flags": [WRITTEN]} | event for event in events]}]}))
        return exported(source, work).decode("utf-8-sig")


def events_of(text):
    return icalendar.Calendar.from_ical(text).walk("VEVENT")


def rules_of(text):
    """The rule of each event, as it stands in the file."""
    return [event.partition("\r\nRRULE:")[2].partition("\r\n")[0]
            for event in text.split("BEGIN:VEVENT")[1:]]


def days_of(rule, start):
    """The days that libical finds from `start` on, MANY of them at most."""
    found = (ctypes.c_long * MANY)()
    noon = int(datetime.combine(start, time(12), timezone.utc).timestamp())
    if not LIBICAL.icalrecur_expand_recurrence(rule.encode(), ctypes.c_long(noon), MANY, found):
        raise ValueError(f"libical does not take {rule}")
    return [datetime.fromtimestamp(moment, timezone.utc).date() for moment in found if moment]


# Recurrences and their days, found without a formula.

def days_from(start):
    day = start
    while True:
        yield day
        day += timedelta(days=1)


def nth_weekday(day):
    """Which Monday, Tuesday ... of its month a day is."""
    return sum(1 for number in range(1, day.day + 1)
               if day.replace(day=number).weekday() == day.weekday())


def is_last_weekday(day):
    return (day + timedelta(days=7)).month != day.month


def monday_of(day):
    return day - timedelta(days=day.weekday())


def is_in_turn(unit, interval, start, day):
    """Whether the day lies in a day, week, month or year that the interval does not leave out."""
    passed = {1: (day - start).days, 2: (monday_of(day) - monday_of(start)).days // 7,
              3: (day.year - start.year) * 12 + day.month - start.month,
              4: day.year - start.year}[unit]
    return passed % interval == 0


KINDS = {  # name -> unit, what tells the day of a start, whether a day is like the start
    "daily": (1, lambda s: "", lambda s, d: True),
    "weekly": (2, lambda s: "", lambda s, d: d.weekday() == s.weekday()),
    "weekly, weekday named": (2, lambda s: f"D=0{DAYS[s.weekday()]}",
                              lambda s, d: d.weekday() == s.weekday()),
    "monthly by day": (3, lambda s: f"M={s.day}", lambda s, d: d.day == s.day),
    "monthly by weekday": (3, lambda s: f"D=+{nth_weekday(s)}{DAYS[s.weekday()]}",
                           lambda s, d: d.weekday() == s.weekday()
                           and nth_weekday(d) == nth_weekday(s)),
    "monthly by last weekday": (3, lambda s: f"D=0{DAYS[s.weekday()]};S=-1",
                                lambda s, d: d.weekday() == s.weekday() and is_last_weekday(d)),
    "yearly by day": (4, lambda s: f"M={s.day};O={s.month}",
                      lambda s, d: (d.month, d.day) == (s.month, s.day)),
    "yearly by weekday": (4, lambda s: f"D=+{nth_weekday(s)}{DAYS[s.weekday()]};O={s.month}",
                          lambda s, d: d.month == s.month and d.weekday() == s.weekday()
                          and nth_weekday(d) == nth_weekday(s)),
    "yearly by last weekday": (4, lambda s: f"D=0{DAYS[s.weekday()]};O={s.month};S=-1",
                               lambda s, d: d.month == s.month and d.weekday() == s.weekday()
                               and is_last_weekday(d)),
}


# Where the count is right whichever day the recurrence ends on, not only where it is one of its own.
ENDING_ANY_DAY = {"daily", "weekly", "weekly, weekday named", "monthly by day", "yearly by day"}


def start_for(kind, chance):
    """A day on which the kind can begin, and that each month or year of it has."""
    while True:
        day = date(2000, 1, 1) + timedelta(days=chance.randrange(365 * 25))
        is_fit = is_last_weekday(day) if "last" in kind else nth_weekday(day) <= 4
        if day.day <= 28 and is_fit or "last" in kind and is_fit:
            return day


def recurrences(count):
    """Recurrences that start on a day of theirs and end on another, or before the next one:
    (what, event, days)"""
    chance = random.Random(29)
    for number in range(count):
        kind = list(KINDS)[number % len(KINDS)]
        unit, specifier, is_like = KINDS[kind]
        start, interval = start_for(kind, chance), chance.choice((1, 1, 2, 3, 5))
        wanted, days = chance.randint(2, 12), []
        for day in days_from(start):
            if is_in_turn(unit, interval, start, day) and is_like(start, day):
                days.append(day)
            if len(days) > wanted:
                break
        following, end = days.pop(), days[wanted - 1]
        if kind in ENDING_ANY_DAY:
            end += timedelta(days=chance.randrange((following - end).days))
        source = f"{interval}*{unit}*{specifier(start)}"
        yield f"{kind}: {source} from {start} to {end}", {
            "values": [kind], "start": f"{start}T12:00:00Z", "end": f"{start}T13:00:00Z",
            "recurrence": source,
            "recurrenceEnd": f"{end}T{chance.choice(('00:00:00', '12:00:00', '23:59:59'))}Z",
        }, days


class SampleBackup(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with tempfile.TemporaryDirectory() as folder:
            work = Path(folder)
            cls.bytes = exported(BACKUP, work)
            run(PROGRAM, "dump", BACKUP, work / "dump.json")
            sets = json.loads((work / "dump.json").read_text())["sets"]
        cls.text = cls.bytes.decode("utf-8-sig")
        cls.records = next(s["records"] for s in sets if s["dataType"] == CALENDAR)

    def readable(self):
        """The file with alarms behind the start as a reader takes them; see below."""
        return self.text.replace("TRIGGER:-PT-", "TRIGGER:PT")

    def test_file_holds_each_event(self):
        self.assertEqual(len(self.records), 23)
        self.assertEqual(len(events_of(self.readable())), len(self.records))

    def test_texts_come_back_whole(self):
        for event, record in zip(events_of(self.readable()), self.records):
            values = record["values"] + [""] * 5
            with self.subTest(values[0]):
                self.assertEqual(event.get("SUMMARY", ""), values[0])
                self.assertEqual(event.get("LOCATION", ""), values[1])
                self.assertEqual(event.get("DESCRIPTION", ""), values[4])

    def test_times_are_local_and_name_no_zone(self):
        for event, record in zip(events_of(self.readable()), self.records):
            with self.subTest(record["values"][0]):
                for name, key in (("DTSTART", "start"), ("DTEND", "end")):
                    moment = datetime.fromisoformat(record[key].replace("Z", "+00:00"))
                    if not record.get("allDay"):
                        moment = moment.astimezone(ZONE)
                    self.assertEqual(event[name].dt, moment.replace(tzinfo=None))

    def test_each_event_has_an_alarm_although_many_records_have_none(self):
        self.assertTrue(any("alarm" not in record for record in self.records))
        for event, record in zip(events_of(self.readable()), self.records):
            (alarm,) = event.walk("VALARM")
            seconds = record.get("alarm", 0)
            self.assertEqual(alarm["TRIGGER"].dt, -timedelta(seconds=seconds))
            self.assertEqual((alarm["ACTION"], alarm["DESCRIPTION"]), ("DISPLAY", "Reminder"))

    def test_calendar_tells_its_maker_and_its_version(self):
        calendar = icalendar.Calendar.from_ical(self.readable())
        self.assertEqual((calendar["PRODID"], calendar["VERSION"]),
                         ("-//orvendale//Tessavon//EN", "2.0"))

    def test_rules_stop_with_their_recurrence(self):
        counted = 0
        for rule, record in zip(rules_of(self.text), self.records):
            if "COUNT" not in rule or record["values"][0] == "Voice training":
                continue
            with self.subTest(record["values"][0]):
                days = days_of(rule, date.fromisoformat(record["start"][:10]))
                self.assertEqual(days[0].isoformat(), record["start"][:10])
                self.assertEqual(days[-1].isoformat(), record["recurrenceEnd"][:10])
                counted += 1
        self.assertEqual(counted, 8)

    # What a strict reader stumbles over.

    def test_mark_at_the_head_is_no_part_of_the_first_line(self):
        self.assertTrue(self.bytes.startswith(b"\xef\xbb\xbfBEGIN:VCALENDAR"))
        with self.assertRaises(ValueError):
            icalendar.Calendar.from_ical(self.bytes)

    def test_alarm_behind_the_start_has_two_signs_and_is_refused(self):
        self.assertIn("TRIGGER:-PT-420M\r\n", self.text)
        with self.assertRaises(ValueError):
            events_of(self.text)

    def test_event_names_neither_itself_nor_when_it_was_written(self):
        for event in events_of(self.readable()):
            self.assertNotIn("UID", event)
            self.assertNotIn("DTSTAMP", event)

    def test_whole_day_has_a_time_of_day(self):
        norway = next(e for e in events_of(self.readable()) if e.get("SUMMARY") == "Norway")
        self.assertEqual(norway["DTSTART"].dt, datetime(2024, 6, 10))
        self.assertEqual(norway["DTEND"].dt, datetime(2024, 6, 23, 23, 59, 59))


class Recurrences(unittest.TestCase):
    def test_rules_of_single_days_name_the_days_of_their_recurrence(self):
        made = list(recurrences(900))
        text = exported_events([event for _, event, _ in made])
        rules = rules_of(text)
        self.assertEqual(len(rules), len(made))
        for (what, event, days), rule in zip(made, rules):
            with self.subTest(what):
                self.assertEqual(days_of(rule, days[0]), days, rule)
        for event, (_, _, days) in zip(events_of(text), made):
            self.assertEqual(event["RRULE"]["COUNT"], [len(days)])

    def test_rule_without_an_end_goes_on(self):
        (rule,) = rules_of(exported_events([
            {"start": "2024-06-04T12:00:00Z", "recurrence": "1*2*D=0TU"}]))
        self.assertEqual(len(days_of(rule, date(2024, 6, 4))), MANY)

    # Where the rule is not the recurrence.

    def days_in_file(self, source, start, end):
        (rule,) = rules_of(exported_events([{
            "start": f"{start}T12:00:00Z", "recurrence": source,
            "recurrenceEnd": f"{end}T12:00:00Z"}]))
        return [day.isoformat() for day in days_of(rule, date.fromisoformat(start))]

    def test_of_several_weekdays_the_last_one_is_left(self):
        # Mondays and Wednesdays from Monday, the 3rd: the Wednesdays are left. The event itself is
        # counted beside them, though it is none, so that one comes behind the end.
        self.assertEqual(self.days_in_file("1*2*D=0MO,0WE", "2024-06-03", "2024-06-12"),
                         ["2024-06-05", "2024-06-12", "2024-06-19"])

    def test_of_several_days_of_the_month_the_first_one_is_left(self):
        self.assertEqual(self.days_in_file("1*3*M=1,15", "2024-06-01", "2024-08-15"),
                         ["2024-06-01", "2024-07-01", "2024-08-01"])

    def test_recurrence_by_no_day_never_ends(self):
        for source in ("1*3*", "1*4*"):
            self.assertEqual(len(self.days_in_file(source, "2024-06-01", "2025-06-01")), MANY)

    def test_weekday_from_the_end_of_the_month_is_each_one_of_the_month(self):
        # The last Friday, three times: the count is that of the months.
        self.assertEqual(self.days_in_file("1*3*D=-1FR", "2024-06-28", "2024-08-30"),
                         ["2024-06-28", "2024-07-05", "2024-07-12"])

    def test_day_that_some_months_lack_comes_once_more_for_each(self):
        # March, May, July: three days in five months.
        self.assertEqual(self.days_in_file("1*3*M=31", "2024-03-31", "2024-07-31"),
                         ["2024-03-31", "2024-05-31", "2024-07-31", "2024-08-31", "2024-10-31"])


class Lines(unittest.TestCase):
    def test_line_feed_in_a_title_makes_a_line_that_is_refused(self):
        text = exported_events([{"values": ["Two\nlines"], "start": "2024-06-04T12:00:00Z"}])
        self.assertIn("SUMMARY:Two\nlines\r\n", text)
        (event,) = events_of(text)
        self.assertEqual(event["SUMMARY"], "Two")
        self.assertEqual(len(event.errors), 1)

    def test_line_feed_in_notes_comes_back(self):
        (event,) = events_of(exported_events([
            {"values": ["", "", "", "", "a\nb, c; d: e"], "start": "2024-06-04T12:00:00Z"}]))
        self.assertEqual(event["DESCRIPTION"], "a\nb, c; d: e")

    def test_backslash_in_notes_is_not_marked_and_may_be_taken_for_another_sign(self):
        (event,) = events_of(exported_events([
            {"values": ["", "", "", "", "C:\\new"], "start": "2024-06-04T12:00:00Z"}]))
        self.assertEqual(event["DESCRIPTION"], "C:\new")

    def test_long_line_comes_back_though_it_is_not_folded(self):
        title = "Fête " * 2000 + "."
        (event,) = events_of(exported_events([
            {"values": [title], "start": "2024-06-04T12:00:00Z"}]))
        self.assertEqual(event["SUMMARY"], title)

    def test_empty_selection_is_no_calendar(self):
        text = exported_events([{"values": ["a"], "start": "2024-06-04T12:00:00Z", "flags": []}])
        self.assertEqual(events_of(text), [])  # selected, but none that is written


def main():
    global PROGRAM, BACKUP, LIBICAL
    PROGRAM, BACKUP = sys.argv[1:3]
    python = Path(SYSTEM_PYTHON)
    if not icalendar and python.exists() and not python.samefile(sys.executable):
        os.execv(python, [python, "-B", *sys.argv])
    library = ctypes.util.find_library("ical")
    missing = [name for name, found in (("python3-icalendar", icalendar), ("libical", library))
               if not found]
    if missing:
        print(f"skipped: there is no {' and no '.join(missing)} (./dev setup installs them)")
        return SKIPPED
    LIBICAL = ctypes.CDLL(library)
    return 0 if unittest.main(argv=sys.argv[:1], exit=False).result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
