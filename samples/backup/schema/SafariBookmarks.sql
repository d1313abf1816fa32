-- SPDX-License-Identifier: MIT
-- Schema of the bookmarks of a phone with iOS 17: HomeDomain, Library/Safari/Bookmarks.db.

CREATE TABLE bookmarks (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    special_id INTEGER DEFAULT 0,     -- 1 favourites, 2 menu, 3 reading list, 5 often visited
    parent INTEGER,                   -- id; 0 is the root
    type INTEGER,                     -- 0 bookmark, 1 folder
    title TEXT,
    url TEXT COLLATE NOCASE,
    num_children INTEGER DEFAULT 0,
    editable INTEGER DEFAULT 1,
    deletable INTEGER DEFAULT 1,
    hidden INTEGER DEFAULT 0,
    hidden_ancestor_count INTEGER DEFAULT 0,
    order_index INTEGER NOT NULL,
    external_uuid TEXT,
    read INTEGER DEFAULT NULL,        -- of the reading list: 0 not yet, 1 read
    last_modified REAL DEFAULT NULL,  -- seconds since 1970
    server_id TEXT,
    sync_key TEXT,
    sync_data BLOB,
    added INTEGER DEFAULT 1,
    deleted INTEGER DEFAULT 0,        -- 1: until the other devices know
    extra_attributes BLOB DEFAULT NULL, -- binary property list
    local_attributes BLOB DEFAULT NULL,
    fetched_icon BOOL DEFAULT 0,
    icon BLOB DEFAULT NULL,
    dav_generation INTEGER DEFAULT 0,
    locally_added BOOL DEFAULT 0,
    archive_status INTEGER DEFAULT 0,
    syncable BOOL DEFAULT 1,
    web_filter_status INTEGER DEFAULT 0,
    modified_attributes UNSIGNED BIG INT DEFAULT 0
);
CREATE TABLE folder_ancestors (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    folder_id INTEGER NOT NULL,
    ancestor_id INTEGER NOT NULL
);
CREATE INDEX special_id_index ON bookmarks (special_id);
CREATE INDEX group_index ON bookmarks (parent, order_index);
