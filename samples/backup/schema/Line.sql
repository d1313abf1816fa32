-- SPDX-License-Identifier: MIT
-- Schema of the chats of a LINE account, as far as it is known:
-- AppDomainGroup-group.com.linecorp.line, Library/Application Support/PrivateStore/P_<own mid>/
-- Messages/Line.sqlite. A mid is "u" of a person, "c" of a group, "r" of a room, and digits.

CREATE TABLE ZMESSAGE (
    Z_PK INTEGER PRIMARY KEY,
    Z_ENT INTEGER,
    Z_OPT INTEGER,
    ZCHAT INTEGER,
    ZCONTENTTYPE INTEGER,             -- 0 text, 1 picture, 2 film, 3 voice, 6 call, 7 sticker ...
    ZREADCOUNT INTEGER,
    ZSENDER INTEGER,                  -- NULL: the owner, or the application itself
    ZSENDSTATUS INTEGER,              -- 1 sent
    ZTIMESTAMP INTEGER,               -- milliseconds since 1970
    ZLATITUDE FLOAT,
    ZLONGITUDE FLOAT,
    ZID VARCHAR,                      -- names its file
    ZMESSAGETYPE VARCHAR,
    ZTEXT VARCHAR,
    ZCONTENTMETADATA BLOB,            -- keyed archive of a dictionary
    ZTHUMBNAIL BLOB
);
CREATE INDEX ZMESSAGE_ZCHAT_INDEX ON ZMESSAGE (ZCHAT);
CREATE INDEX ZMESSAGE_ZSENDER_INDEX ON ZMESSAGE (ZSENDER);

CREATE TABLE ZCHAT (
    Z_PK INTEGER PRIMARY KEY,
    Z_ENT INTEGER,
    Z_OPT INTEGER,
    ZENABLE INTEGER,
    ZTYPE INTEGER,                    -- 0 person, 1 room, 2 group
    ZLASTUPDATED INTEGER,
    ZMID VARCHAR
);

CREATE TABLE ZUSER (
    Z_PK INTEGER PRIMARY KEY,
    Z_ENT INTEGER,
    Z_OPT INTEGER,
    ZISFRIEND INTEGER,
    ZISINADDRESSBOOK INTEGER,
    ZISREMOVED INTEGER,
    ZADDRESSBOOKNAME VARCHAR,
    ZCUSTOMNAME VARCHAR,              -- what the owner calls the person
    ZMID VARCHAR,
    ZNAME VARCHAR,                    -- what the person calls itself
    ZPICTUREURL VARCHAR,
    ZSORTABLENAME VARCHAR,
    ZSTATUSMESSAGE VARCHAR
);

CREATE TABLE ZCONTACT (
    Z_PK INTEGER PRIMARY KEY,
    Z_ENT INTEGER,
    Z_OPT INTEGER,
    ZMID VARCHAR,
    ZNAME VARCHAR,
    ZPHONENUMBER VARCHAR
);

CREATE TABLE Z_PRIMARYKEY (Z_ENT INTEGER PRIMARY KEY, Z_NAME VARCHAR, Z_SUPER INTEGER, Z_MAX INTEGER);
CREATE TABLE Z_METADATA (Z_VERSION INTEGER PRIMARY KEY, Z_UUID VARCHAR, Z_PLIST BLOB);
