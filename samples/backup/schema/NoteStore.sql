-- SPDX-License-Identifier: MIT
-- Schema of the store of notes of a phone with iOS 17: AppDomainGroup-group.com.apple.notes,
-- NoteStore.sqlite. The table of objects has some two hundred columns; here are those that carry
-- something.
--
-- Units: all dates are seconds since 2001-01-01 UTC.

-- Number and name of each kind of rows ------------------------------------------------------------

CREATE TABLE Z_PRIMARYKEY (
    Z_ENT INTEGER PRIMARY KEY,
    Z_NAME VARCHAR,
    Z_SUPER INTEGER,
    Z_MAX INTEGER                                   -- highest Z_PK given
);

CREATE TABLE Z_METADATA (
    Z_VERSION INTEGER PRIMARY KEY,
    Z_UUID VARCHAR(255),
    Z_PLIST BLOB
);

-- Accounts, folders, notes, attachments, their files and previews: a row each ---------------------

CREATE TABLE ZICCLOUDSYNCINGOBJECT (
    Z_PK INTEGER PRIMARY KEY,
    Z_ENT INTEGER,                                  -- kind of the row
    Z_OPT INTEGER,
    ZISPASSWORDPROTECTED INTEGER,
    ZCRYPTOITERATIONCOUNT INTEGER,
    ZMARKEDFORDELETION INTEGER,                     -- 1: to be purged
    ZFILESIZE INTEGER,
    ZMEDIA INTEGER,                                 -- attachment: its file
    ZNOTE INTEGER,                                  -- attachment: its note
    ZPARENTATTACHMENT INTEGER,                      -- page of a scan: the scan
    ZATTACHMENT INTEGER,                            -- preview: the attachment
    ZNOTE1 INTEGER,                                 -- inline attachment: its note
    ZATTACHMENT1 INTEGER,                           -- file: the attachment
    ZHASCHECKLIST INTEGER,
    ZISPINNED INTEGER,
    ZACCOUNT7 INTEGER,                              -- note: its account
    ZFOLDER INTEGER,                                -- note: its folder
    ZNOTEDATA INTEGER,                              -- note: its text
    ZACCOUNTTYPE INTEGER,                           -- 1 iCloud, 3 on the phone
    ZFOLDERTYPE INTEGER,                            -- 0 ordinary, 1 recently deleted
    ZACCOUNT8 INTEGER,                              -- folder: its account
    ZPARENT INTEGER,                                -- folder: the one that it lies in
    ZCREATIONDATE TIMESTAMP,                        -- of an attachment
    ZMODIFICATIONDATE TIMESTAMP,
    ZHEIGHT FLOAT,
    ZSCALE FLOAT,
    ZWIDTH FLOAT,
    ZCREATIONDATE1 TIMESTAMP,
    ZCREATIONDATE3 TIMESTAMP,                       -- of a note
    ZMODIFICATIONDATE1 TIMESTAMP,
    ZIDENTIFIER VARCHAR,
    ZPASSWORDHINT VARCHAR,
    ZFALLBACKIMAGEGENERATION VARCHAR,
    ZFALLBACKPDFGENERATION VARCHAR,
    ZSUMMARY VARCHAR,
    ZTITLE VARCHAR,                                 -- of an attachment
    ZTYPEUTI VARCHAR,
    ZURLSTRING VARCHAR,
    ZGENERATION VARCHAR,                            -- of a preview
    ZALTTEXT VARCHAR,                               -- of an inline attachment
    ZTYPEUTI1 VARCHAR,
    ZFILENAME VARCHAR,
    ZGENERATION1 VARCHAR,                           -- of a file
    ZSNIPPET VARCHAR,
    ZTITLE1 VARCHAR,                                -- of a note
    ZNAME VARCHAR,                                  -- of an account
    ZTITLE2 VARCHAR,                                -- of a folder
    ZCRYPTOINITIALIZATIONVECTOR BLOB,
    ZCRYPTOSALT BLOB,
    ZCRYPTOTAG BLOB,
    ZCRYPTOWRAPPEDKEY BLOB,
    ZMERGEABLEDATA1 BLOB                            -- of a table
);

-- Texts ------------------------------------------------------------------------------------------

CREATE TABLE ZICNOTEDATA (
    Z_PK INTEGER PRIMARY KEY,
    Z_ENT INTEGER,
    Z_OPT INTEGER,
    ZNOTE INTEGER,
    ZCRYPTOINITIALIZATIONVECTOR BLOB,
    ZCRYPTOTAG BLOB,
    ZDATA BLOB
);

CREATE INDEX Z_ICCloudSyncingObject_Z_ENT ON ZICCLOUDSYNCINGOBJECT (Z_ENT);
CREATE INDEX Z_ICNoteData_ZNOTE ON ZICNOTEDATA (ZNOTE);
