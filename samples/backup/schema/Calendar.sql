-- SPDX-License-Identifier: MIT
-- Schema of the calendar of a phone with iOS 17: HomeDomain, Library/Calendar/Calendar.sqlitedb.
-- Dates are seconds since 2001-01-01 UTC; those of whole days, and of events without a zone, are
-- what the clock shows as if that were UTC.

CREATE TABLE Store (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    name TEXT,
    type INTEGER,                     -- 0 the phone's own, 2 an account, 5 birthdays
    disabled INTEGER,
    persistent_id TEXT
);
CREATE TABLE Calendar (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    store_id INTEGER,
    title TEXT,
    flags INTEGER,                    -- 262149 and 524295: suggestions
    color TEXT,                       -- "#RRGGBB"
    supported_entity_types INTEGER,   -- 4 events
    display_order INTEGER,
    UUID TEXT,
    sharing_status INTEGER
);
CREATE TABLE CalendarItem (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    summary TEXT,
    location_id INTEGER,              -- 0 none
    description TEXT,
    start_date REAL,
    start_tz TEXT,                    -- "Europe/Berlin"; "_float" is none
    end_date REAL,
    end_tz TEXT,
    all_day INTEGER,
    calendar_id INTEGER,
    orig_item_id INTEGER,             -- the series that this was moved out of
    orig_date REAL,
    organizer_id INTEGER,
    self_attendee_id INTEGER,
    status INTEGER,                   -- 1 confirmed, 2 tentative, 3 cancelled
    invitation_status INTEGER,
    availability INTEGER,
    url TEXT,
    last_modified REAL,
    birthday_id INTEGER,
    unique_identifier TEXT,
    hidden INTEGER,
    has_recurrences INTEGER,
    has_attendees INTEGER,
    UUID TEXT,
    entity_type INTEGER,              -- 2 event; reminders, 3, lie elsewhere since iOS 13
    priority INTEGER,
    due_date REAL,
    due_tz TEXT,
    due_all_day INTEGER,
    completion_date REAL,
    creation_date REAL,
    calendar_scale TEXT,              -- "gregorian" for birthdays
    conference_url TEXT
);
CREATE TABLE Recurrence (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    frequency INTEGER,                -- 1 daily, 2 weekly, 3 monthly, 4 yearly
    interval INTEGER,
    week_start INTEGER,
    count INTEGER,                    -- 0 none
    cached_end_date REAL,
    cached_end_date_tz TEXT,
    end_date REAL,
    specifier TEXT,                   -- "D=0MO,0WE", "D=+2TU", "M=15;O=3"
    by_month_months INTEGER,
    owner_id INTEGER,
    UUID TEXT
);
CREATE TABLE ExceptionDate (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    owner_id INTEGER,
    date REAL,
    sync_order INTEGER
);
CREATE TABLE Alarm (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    trigger_date REAL,
    trigger_interval INTEGER,         -- seconds; negative is before the start
    type INTEGER,
    calendaritem_owner_id INTEGER,
    calendar_owner_id INTEGER,
    proximity INTEGER,                -- at a place
    disabled INTEGER,
    location_id INTEGER,
    UUID TEXT
);
CREATE TABLE Location (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    title TEXT,
    address TEXT,
    latitude REAL,
    longitude REAL,
    radius REAL,
    item_owner_id INTEGER,
    alarm_owner_id INTEGER
);
CREATE TABLE Participant (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    entity_type INTEGER,              -- 7 guest, 8 organizer
    type INTEGER,
    status INTEGER,                   -- 1 accepted, 2 declined, 3 maybe, 0 and 7 no answer
    role INTEGER,
    identity_id INTEGER,
    owner_id INTEGER,
    UUID TEXT,
    email TEXT,
    phone_number TEXT,
    is_self INTEGER
);
CREATE TABLE Identity (
    display_name TEXT,
    address TEXT,                     -- "mailto:..."
    first_name TEXT,
    last_name TEXT
);
CREATE TABLE CalendarItemChanges (
    record INTEGER,
    type INTEGER,                     -- 2 deleted
    calendar_id INTEGER,
    unique_identifier TEXT,
    UUID TEXT,
    entity_type INTEGER
);
CREATE INDEX CalendarItemCalendarId ON CalendarItem (calendar_id);
CREATE INDEX RecurrenceOwnerId ON Recurrence (owner_id);
CREATE INDEX AlarmOwnerId ON Alarm (calendaritem_owner_id);
