-- SPDX-License-Identifier: MIT
-- Schema of the address book of a phone with iOS 17:
-- HomeDomain, Library/AddressBook/AddressBook.sqlitedb.
--
-- Columns stand in the order in which they lie in a row. `ab_generate_guid` is a function of the
-- phone: whoever inserts a row elsewhere gives its guid. The full-text index, the search keys, the
-- counts of the section letters and all triggers are left out: they need the phone's tokenizer,
-- collations and functions.
--
-- Units: dates are seconds since 2001-01-01 UTC; Birthday and other dates of a person are decimal
-- texts of such seconds, noon of the day as a rule, and 1604 stands for a year that is not known.

-- Where cards come from --------------------------------------------------------------------------

CREATE TABLE ABAccount (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    AccountIdentifier TEXT,
    Flags INTEGER,
    DefaultSourceID INTEGER,
    guid TEXT NOT NULL DEFAULT (ab_generate_guid()),
    UNIQUE(guid)
);

CREATE TABLE ABStore (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    Name TEXT,
    ExternalIdentifier TEXT,
    Type INTEGER,
    ConstraintsPath TEXT,
    ExternalModificationTag TEXT,
    ExternalSyncTag TEXT,
    StoreInternalIdentifier TEXT,
    AccountID INTEGER DEFAULT -1,      -- -1: on the phone alone
    Enabled INTEGER DEFAULT 1,
    SyncData BLOB,
    MeIdentifier INTEGER DEFAULT -1,   -- the owner's own card
    Capabilities INTEGER DEFAULT 0,
    guid TEXT NOT NULL DEFAULT (ab_generate_guid()),
    LastSyncDate TEXT,
    UNIQUE(StoreInternalIdentifier),
    UNIQUE(guid)
);

-- People -----------------------------------------------------------------------------------------

CREATE TABLE ABPerson (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    First TEXT,
    Last TEXT,
    Middle TEXT,
    FirstPhonetic TEXT,
    MiddlePhonetic TEXT,
    LastPhonetic TEXT,
    Organization TEXT,
    Department TEXT,
    Note TEXT,
    Kind INTEGER,                      -- 0 person, 1 organization
    Birthday TEXT,
    JobTitle TEXT,
    Nickname TEXT,
    Prefix TEXT,
    Suffix TEXT,
    FirstSort TEXT,
    LastSort TEXT,
    CreationDate INTEGER,
    ModificationDate INTEGER,
    CompositeNameFallback TEXT,
    ExternalIdentifier TEXT,
    ExternalModificationTag TEXT,
    ExternalUUID TEXT,
    StoreID INTEGER,
    DisplayName TEXT,
    ExternalRepresentation BLOB,
    FirstSortSection TEXT,
    LastSortSection TEXT,
    FirstSortLanguageIndex INTEGER DEFAULT 2147483647,
    LastSortLanguageIndex INTEGER DEFAULT 2147483647,
    PersonLink INTEGER DEFAULT -1,     -- equal in all cards that are shown as one
    ImageURI TEXT,
    IsPreferredName INTEGER DEFAULT 1, -- the card of a linked set that gives the name
    guid TEXT NOT NULL DEFAULT (ab_generate_guid()),
    PhonemeData TEXT,
    AlternateBirthday TEXT,
    MapsData TEXT,
    FirstPronunciation TEXT,
    MiddlePronunciation TEXT,
    LastPronunciation TEXT,
    OrganizationPhonetic TEXT,
    OrganizationPronunciation TEXT,
    PreviousFamilyName TEXT,
    PreferredLikenessSource TEXT,
    PreferredPersonaIdentifier TEXT,
    PreferredChannel TEXT,
    DowntimeWhitelist TEXT,
    ImageType TEXT,
    ImageHash BLOB,
    MemojiMetadata BLOB,
    Wallpaper BLOB,
    WallpaperMetadata BLOB,
    WallpaperURI TEXT,
    WatchWallpaperImageData BLOB,
    DisplayFlags INTEGER,
    UNIQUE(guid)
);

CREATE TABLE ABPersonLink (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    PreferredImagePersonID INTEGER DEFAULT -1,
    PreferredNamePersonID INTEGER DEFAULT -1,
    guid TEXT NOT NULL DEFAULT (ab_generate_guid()),
    UNIQUE(guid)
);

-- Phones, addresses and all else of which a person may have several ------------------------------

CREATE TABLE ABMultiValue (
    UID INTEGER PRIMARY KEY,
    record_id INTEGER,                 -- ABPerson.ROWID
    property INTEGER,                  -- 3 phone, 4 mail, 5 address, 12 date, 13 messenger, 22 URL,
                                       -- 23 related name, 46 social profile
    identifier INTEGER,                -- order within the property
    label INTEGER,                     -- row of ABMultiValueLabel
    value TEXT,                        -- NULL where the value is made of entries
    guid TEXT NOT NULL DEFAULT (ab_generate_guid()),
    UNIQUE(guid)
);

-- The next four are known by their implicit row numbers, which no VACUUM may change.
CREATE TABLE ABMultiValueLabel (value TEXT, UNIQUE(value));     -- "_$!<Mobile>!$_", "iPhone"
CREATE TABLE ABMultiValueEntry (parent_id INTEGER, key INTEGER, value TEXT, UNIQUE(parent_id, key));
CREATE TABLE ABMultiValueEntryKey (value TEXT, UNIQUE(value));  -- "Street", "City"
CREATE TABLE ABPhoneLastFour (multivalue_id INTEGER PRIMARY KEY, value TEXT);

-- Groups -----------------------------------------------------------------------------------------

CREATE TABLE ABGroup (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    Name TEXT,
    ExternalIdentifier TEXT,
    StoreID INTEGER,
    ExternalModificationTag TEXT,
    ExternalRepresentation BLOB,
    ExternalUUID TEXT,
    guid TEXT NOT NULL DEFAULT (ab_generate_guid()),
    UNIQUE(guid)
);

CREATE TABLE ABGroupMembers (
    UID INTEGER PRIMARY KEY,
    group_id INTEGER,
    member_type INTEGER,               -- 0 person, 1 group
    member_id INTEGER,
    UNIQUE(group_id, member_type, member_id)
);

-- Bookkeeping ------------------------------------------------------------------------------------

CREATE TABLE ABPersonChanges (
    record INTEGER,
    type INTEGER,
    sequence_number INTEGER,
    Image INTEGER,
    ExternalIdentifier TEXT,
    StoreID INTEGER,
    PersonLink INTEGER,
    guid TEXT,
    Changes INTEGER
);

CREATE TABLE ABGroupChanges (
    record INTEGER,
    type INTEGER,
    sequence_number INTEGER,
    ExternalIdentifier TEXT,
    StoreID INTEGER,
    guid TEXT
);

CREATE TABLE ABPersonMultiValueDeletes (
    record_id INTEGER,
    property_id INTEGER,
    identifier INTEGER,
    sequence_number INTEGER,
    record_uid TEXT,
    identifier_uid TEXT
);

CREATE TABLE _SqliteDatabaseProperties (key TEXT, value TEXT, UNIQUE(key));

-- Indexes ----------------------------------------------------------------------------------------

CREATE INDEX ABFirstSortIndex on ABPerson(FirstSortLanguageIndex, FirstSortSection, FirstSort);
CREATE INDEX ABLastSortIndex on ABPerson(LastSortLanguageIndex, LastSortSection, LastSort);
CREATE INDEX ABFirstSortStoreIndex
    on ABPerson(StoreID, FirstSortLanguageIndex, FirstSortSection, FirstSort);
CREATE INDEX ABLastSortStoreIndex
    on ABPerson(StoreID, LastSortLanguageIndex, LastSortSection, LastSort);
CREATE INDEX ABPreferredFirstSortIndex
    on ABPerson(IsPreferredName, FirstSortLanguageIndex, FirstSortSection, FirstSort);
CREATE INDEX ABPreferredLastSortIndex
    on ABPerson(IsPreferredName, LastSortLanguageIndex, LastSortSection, LastSort);
CREATE INDEX ABPersonPersonLinkIndex on ABPerson(PersonLink);
CREATE INDEX ABPersonExternalUUIDIndex on ABPerson(ExternalUUID);
CREATE INDEX ABPersonExternalIdentifierIndex on ABPerson(ExternalIdentifier);
CREATE INDEX ABMultiValueRecordIDIndex on ABMultiValue(record_id);
CREATE INDEX ABMultiValueLabelIndex ON ABMultiValue(label);
CREATE INDEX ABMultiValueGUIDIndex ON ABMultiValue(guid);
CREATE INDEX ABMultiValuePropertyValueIndex ON ABMultiValue(property, value COLLATE NOCASE);
CREATE INDEX ABMultiValueEntryKeyIndex ON ABMultiValueEntry(key);
CREATE INDEX ABMultiValueEntryParentIndex ON ABMultiValueEntry(parent_id);
CREATE INDEX ABPhoneLastFourIndex ON ABPhoneLastFour(value);
