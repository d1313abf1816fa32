-- SPDX-License-Identifier: MIT
-- Schema of the voice memos of a phone with iOS 17:
-- AppDomainGroup-group.com.apple.VoiceMemos.shared, Recordings/CloudRecordings.db. Dates are seconds
-- since 2001-01-01 UTC.

CREATE TABLE ZCLOUDRECORDING (
    Z_PK INTEGER PRIMARY KEY,
    Z_ENT INTEGER,                    -- 1
    Z_OPT INTEGER,
    ZFOLDER INTEGER,                  -- ZFOLDER.Z_PK
    ZDATE TIMESTAMP,
    ZDURATION FLOAT,                  -- seconds
    ZEVICTIONDATE TIMESTAMP,          -- set: recently deleted
    ZCUSTOMLABEL VARCHAR,             -- a moment
    ZCUSTOMLABELFORSORTING VARCHAR,
    ZENCRYPTEDTITLE VARCHAR,          -- in plain text
    ZPATH VARCHAR,                    -- name of the file
    ZUNIQUEID VARCHAR
);

CREATE TABLE ZFOLDER (
    Z_PK INTEGER PRIMARY KEY,
    Z_ENT INTEGER,                    -- 2
    Z_OPT INTEGER,
    ZRANK INTEGER,
    ZENCRYPTEDNAME VARCHAR,           -- in plain text
    ZUUID VARCHAR
);

CREATE TABLE Z_PRIMARYKEY (Z_ENT INTEGER PRIMARY KEY, Z_NAME VARCHAR, Z_SUPER INTEGER, Z_MAX INTEGER);
CREATE TABLE Z_METADATA (Z_VERSION INTEGER PRIMARY KEY, Z_UUID VARCHAR(255), Z_PLIST BLOB);
