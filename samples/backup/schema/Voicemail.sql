-- SPDX-License-Identifier: MIT
-- Schema of the answering machine of a phone with iOS 17: HomeDomain,
-- Library/Voicemail/voicemail.db.

CREATE TABLE voicemail (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,  -- also the name of the sound: <ROWID>.amr
    remote_uid INTEGER,
    date INTEGER,                     -- seconds since 1970
    token TEXT,
    sender TEXT,
    callback_num TEXT,
    duration INTEGER,                 -- seconds
    expiration INTEGER,
    trashed_date INTEGER,             -- seconds since 2001; 0: not deleted
    flags INTEGER,                    -- 67 heard, 3 new, 75 deleted
    receiver TEXT,
    label TEXT
);
CREATE TABLE map (account TEXT, label TEXT);
