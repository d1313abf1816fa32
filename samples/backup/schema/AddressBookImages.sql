-- SPDX-License-Identifier: MIT
-- Schema of the pictures of contacts: HomeDomain, Library/AddressBook/AddressBookImages.sqlitedb.

CREATE TABLE ABFullSizeImage (
    ROWID INTEGER PRIMARY KEY,
    record_id INTEGER,           -- ABPerson.ROWID
    crop_x INTEGER,              -- pixels
    crop_y INTEGER,
    crop_width INTEGER,
    data BLOB                    -- JPEG as a rule
);
CREATE UNIQUE INDEX ABFullSizeImageRecordIDIndex ON ABFullSizeImage(record_id);

CREATE TABLE ABThumbnailImage (
    ROWID INTEGER PRIMARY KEY,
    record_id INTEGER,
    format INTEGER,              -- 0: for lists
    derived_from_format INTEGER,
    data BLOB
);
CREATE UNIQUE INDEX ABImageRecordIDFormatIndex ON ABThumbnailImage(record_id, format);

CREATE TABLE _SqliteDatabaseProperties (key TEXT, value TEXT, UNIQUE(key));
