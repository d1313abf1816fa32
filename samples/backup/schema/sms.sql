-- SPDX-License-Identifier: MIT
-- Schema of the message store of a phone with iOS 17: HomeDomain, Library/SMS/sms.db.
--
-- Columns stand in the order in which they lie in a row: releases have only ever added columns at
-- the end, and a search for deleted rows depends on the order. Triggers are left out: some call
-- functions of the phone, and rows are to go in as they are given.
--
-- Units: all dates of `message`, `chat_message_join` and the tables of deleted messages are
-- nanoseconds since 2001-01-01 UTC; those of `attachment` are seconds since then; 0 means not set.

-- People, groups and messages -------------------------------------------------------------------

-- One row for each address and service: a person has several.
CREATE TABLE handle (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT UNIQUE,
    id TEXT NOT NULL,                               -- "+491715550101", "rosa@example.org", "62262"
    country TEXT,                                   -- two letters, lower case
    service TEXT NOT NULL,                          -- "iMessage", "SMS"
    uncanonicalized_id TEXT,                        -- as it was dialled
    person_centric_id TEXT,                         -- the same for all addresses of a person
    UNIQUE (id, service)
);

CREATE TABLE chat (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    guid TEXT UNIQUE NOT NULL,                      -- "SMS;-;+49171...", "iMessage;+;chat123..."
    style INTEGER,                                  -- 45 with one person, 43 group
    state INTEGER,
    account_id TEXT,
    properties BLOB,                                -- binary property list
    chat_identifier TEXT,                           -- address of the person, or "chat" and a number
    service_name TEXT,
    room_name TEXT,                                 -- groups only
    account_login TEXT,                             -- own line: "P:+49171...", "E:anna@example.org"
    is_archived INTEGER DEFAULT 0,
    last_addressed_handle TEXT,
    display_name TEXT,                              -- name that the members gave to the group
    group_id TEXT,
    is_filtered INTEGER DEFAULT 0,                  -- 1: from unknown senders
    successful_query INTEGER,
    engram_id TEXT,
    server_change_token TEXT,
    ck_sync_state INTEGER DEFAULT 0,
    original_group_id TEXT,
    last_read_message_timestamp INTEGER DEFAULT 0,
    cloudkit_record_id TEXT,
    last_addressed_sim_id TEXT,
    is_blackholed INTEGER DEFAULT 0,
    syndication_date INTEGER DEFAULT 0,
    syndication_type INTEGER DEFAULT 0,
    is_recovered INTEGER DEFAULT 0,
    is_deleting_incoming_messages INTEGER DEFAULT 0
);

CREATE TABLE message (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    guid TEXT UNIQUE NOT NULL,
    text TEXT,                                      -- NULL in many rows: see attributedBody
    replace INTEGER DEFAULT 0,
    service_center TEXT,
    handle_id INTEGER DEFAULT 0,                    -- sender; of an own message the addressee or 0
    subject TEXT,
    country TEXT,
    attributedBody BLOB,                            -- typedstream of an NSAttributedString
    version INTEGER DEFAULT 0,
    type INTEGER DEFAULT 0,
    service TEXT,                                   -- "iMessage", "SMS" (MMS too), "RCS"
    account TEXT,                                   -- own line
    account_guid TEXT,
    error INTEGER DEFAULT 0,                        -- not 0: sending failed
    date INTEGER,
    date_read INTEGER,
    date_delivered INTEGER,
    is_delivered INTEGER DEFAULT 0,
    is_finished INTEGER DEFAULT 0,
    is_emote INTEGER DEFAULT 0,
    is_from_me INTEGER DEFAULT 0,
    is_empty INTEGER DEFAULT 0,
    is_delayed INTEGER DEFAULT 0,
    is_auto_reply INTEGER DEFAULT 0,
    is_prepared INTEGER DEFAULT 0,
    is_read INTEGER DEFAULT 0,
    is_system_message INTEGER DEFAULT 0,
    is_sent INTEGER DEFAULT 0,
    has_dd_results INTEGER DEFAULT 0,
    is_service_message INTEGER DEFAULT 0,
    is_forward INTEGER DEFAULT 0,
    was_downgraded INTEGER DEFAULT 0,               -- iMessage that went out as SMS
    is_archive INTEGER DEFAULT 0,
    cache_has_attachments INTEGER DEFAULT 0,
    cache_roomnames TEXT,
    was_data_detected INTEGER DEFAULT 0,
    was_deduplicated INTEGER DEFAULT 0,
    is_audio_message INTEGER DEFAULT 0,
    is_played INTEGER DEFAULT 0,
    date_played INTEGER,
    item_type INTEGER DEFAULT 0,                    -- not 0: a line about the group
    other_handle INTEGER DEFAULT 0,                 -- second person of such a line, 0 the owner
    group_title TEXT,                               -- new name of the group
    group_action_type INTEGER DEFAULT 0,
    share_status INTEGER DEFAULT 0,
    share_direction INTEGER DEFAULT 0,
    is_expirable INTEGER DEFAULT 0,
    expire_state INTEGER DEFAULT 0,
    message_action_type INTEGER DEFAULT 0,
    message_source INTEGER DEFAULT 0,
    associated_message_guid TEXT,                   -- "p:<part>/<guid>", "bp:<guid>", or a guid
    associated_message_type INTEGER DEFAULT 0,      -- 1000 sticker, 2000+ tapback, 3000+ undone
    balloon_bundle_id TEXT,                         -- which app draws the bubble
    payload_data BLOB,                              -- keyed archive for that app
    expressive_send_style_id TEXT,                  -- effect of bubble or screen
    associated_message_range_location INTEGER DEFAULT 0, -- UTF-16 units
    associated_message_range_length INTEGER DEFAULT 0,   -- UTF-16 units
    time_expressive_send_played INTEGER,
    message_summary_info BLOB,                      -- binary property list; earlier texts of edits
    ck_sync_state INTEGER DEFAULT 0,
    ck_record_id TEXT,
    ck_record_change_tag TEXT,
    destination_caller_id TEXT,                     -- own address or number
    is_corrupt INTEGER DEFAULT 0,
    reply_to_guid TEXT,                             -- the message before, in most rows
    sort_id INTEGER,
    is_spam INTEGER DEFAULT 0,
    has_unseen_mention INTEGER DEFAULT 0,
    thread_originator_guid TEXT,                    -- first message of a thread of replies
    thread_originator_part TEXT,                    -- "<part>:<start>:<length>"
    syndication_ranges TEXT,
    synced_syndication_ranges TEXT,
    was_delivered_quietly INTEGER DEFAULT 0,
    did_notify_recipient INTEGER DEFAULT 0,
    date_retracted INTEGER DEFAULT 0,               -- unsent
    date_edited INTEGER DEFAULT 0,
    was_detonated INTEGER DEFAULT 0,
    part_count INTEGER,
    is_stewie INTEGER DEFAULT 0,
    is_kt_verified INTEGER DEFAULT 0,
    is_sos INTEGER DEFAULT 0,
    is_critical INTEGER DEFAULT 0,
    bia_reference_id TEXT DEFAULT NULL,
    fallback_hash TEXT DEFAULT NULL,
    -- The next release's column, here already so that the phone can hold a tapback with any emoji.
    associated_message_emoji TEXT DEFAULT NULL
);

CREATE TABLE attachment (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT,
    guid TEXT UNIQUE NOT NULL,                      -- "at_<part>_<message guid>", or a guid
    created_date INTEGER DEFAULT 0,                 -- seconds since 2001
    start_date INTEGER DEFAULT 0,                   -- seconds since 2001
    filename TEXT,                                  -- "~/Library/SMS/Attachments/..."; NULL: none
    uti TEXT,
    mime_type TEXT,
    transfer_state INTEGER DEFAULT 0,               -- 0 waiting, 5 done, 6 failed
    is_outgoing INTEGER DEFAULT 0,
    user_info BLOB,                                 -- binary property list
    transfer_name TEXT,                             -- name for people
    total_bytes INTEGER DEFAULT 0,
    is_sticker INTEGER DEFAULT 0,
    sticker_user_info BLOB,                         -- binary property list
    attribution_info BLOB,                          -- binary property list
    hide_attachment INTEGER DEFAULT 0,              -- 1: data of an app's message
    ck_sync_state INTEGER DEFAULT 0,
    ck_server_change_token_blob BLOB,
    ck_record_id TEXT,
    original_guid TEXT UNIQUE NOT NULL,
    is_commsafety_sensitive INTEGER DEFAULT 0,
    emoji_image_content_identifier TEXT DEFAULT NULL,
    emoji_image_short_description TEXT DEFAULT NULL,
    preview_generation_state INTEGER DEFAULT 0
);

-- What belongs to what ---------------------------------------------------------------------------

CREATE TABLE chat_handle_join (
    chat_id INTEGER REFERENCES chat (ROWID) ON DELETE CASCADE,
    handle_id INTEGER REFERENCES handle (ROWID) ON DELETE CASCADE,
    UNIQUE(chat_id, handle_id)
);

CREATE TABLE chat_message_join (
    chat_id INTEGER REFERENCES chat (ROWID) ON DELETE CASCADE,
    message_id INTEGER REFERENCES message (ROWID) ON DELETE CASCADE,
    message_date INTEGER DEFAULT 0,                 -- as message.date
    PRIMARY KEY (chat_id, message_id)
);

CREATE TABLE message_attachment_join (
    message_id INTEGER REFERENCES message (ROWID) ON DELETE CASCADE,
    attachment_id INTEGER REFERENCES attachment (ROWID) ON DELETE CASCADE,
    UNIQUE(message_id, attachment_id)
);

-- Deleted, and still to be had for a month -------------------------------------------------------

-- The message itself stays in its table; its row of chat_message_join is gone.
CREATE TABLE chat_recoverable_message_join (
    chat_id INTEGER REFERENCES chat (ROWID) ON DELETE CASCADE,
    message_id INTEGER REFERENCES message (ROWID) ON DELETE CASCADE,
    delete_date INTEGER,
    ck_sync_state INTEGER DEFAULT 0,
    PRIMARY KEY (chat_id, message_id),
    CHECK (delete_date != 0)
);

-- One part (a picture, a text) of a message that is else still there.
CREATE TABLE recoverable_message_part (
    chat_id INTEGER REFERENCES chat (ROWID) ON DELETE CASCADE,
    message_id INTEGER REFERENCES message (ROWID) ON DELETE CASCADE,
    part_index INTEGER,
    delete_date INTEGER,
    part_text BLOB NOT NULL,                        -- typedstream of an NSAttributedString
    ck_sync_state INTEGER DEFAULT 0,
    PRIMARY KEY (chat_id, message_id, part_index),
    CHECK (delete_date != 0)
);

CREATE TABLE unsynced_removed_recoverable_messages (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT UNIQUE,
    chat_guid TEXT NOT NULL,
    message_guid TEXT NOT NULL,
    part_index INTEGER
);

-- Deleted for good: that there was a message, and nothing else -----------------------------------

CREATE TABLE deleted_messages (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT UNIQUE,
    guid TEXT NOT NULL
);

CREATE TABLE sync_deleted_messages (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT UNIQUE,
    guid TEXT NOT NULL,
    recordID TEXT
);

CREATE TABLE sync_deleted_chats (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT UNIQUE,
    guid TEXT NOT NULL,
    recordID TEXT,
    timestamp INTEGER
);

CREATE TABLE sync_deleted_attachments (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT UNIQUE,
    guid TEXT NOT NULL,
    recordID TEXT
);

-- Bookkeeping ------------------------------------------------------------------------------------

CREATE TABLE message_processing_task (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT UNIQUE,
    guid TEXT NOT NULL,
    task_flags INTEGER NOT NULL
);

CREATE TABLE kvtable (
    ROWID INTEGER PRIMARY KEY AUTOINCREMENT UNIQUE,
    key TEXT UNIQUE NOT NULL,
    value BLOB NOT NULL
);

CREATE TABLE _SqliteDatabaseProperties (key TEXT, value TEXT, UNIQUE(key));

-- Indexes ----------------------------------------------------------------------------------------

CREATE INDEX message_idx_date ON message(date);
CREATE INDEX message_idx_handle ON message(handle_id, date);
CREATE INDEX message_idx_handle_id ON message(handle_id);
CREATE INDEX message_idx_other_handle ON message(other_handle);
CREATE INDEX message_idx_associated_message ON message(associated_message_guid);
CREATE INDEX message_idx_thread_originator_guid ON message(thread_originator_guid);
CREATE INDEX message_idx_cache_has_attachments ON message(cache_has_attachments);
CREATE INDEX message_idx_expire_state ON message(expire_state);
CREATE INDEX message_idx_was_downgraded ON message(was_downgraded);
CREATE INDEX message_idx_failed ON message(is_finished, is_from_me, error);
CREATE INDEX message_idx_is_read ON message(is_read, is_from_me, is_finished);
CREATE INDEX message_idx_isRead_isFromMe_itemType ON message(is_read, is_from_me, item_type);
CREATE INDEX message_idx_is_sent_is_from_me_error ON message(is_sent, is_from_me, error);
CREATE INDEX message_idx_undelivered_one_to_one_imessage
    ON message(cache_roomnames, service, is_sent, is_delivered, was_downgraded, item_type)
    WHERE cache_roomnames IS NULL AND service = 'iMessage' AND is_sent = 1
      AND is_delivered = 0 AND was_downgraded = 0 AND item_type == 0;

CREATE INDEX chat_idx_chat_identifier ON chat(chat_identifier);
CREATE INDEX chat_idx_chat_identifier_service_name ON chat(chat_identifier, service_name);
CREATE INDEX chat_idx_chat_room_name_service_name ON chat(room_name, service_name);
CREATE INDEX chat_idx_group_id ON chat(group_id);
CREATE INDEX chat_idx_is_archived ON chat(is_archived);

CREATE INDEX attachment_idx_is_sticker ON attachment(is_sticker);
CREATE INDEX attachment_idx_purged_attachments_v2
    ON attachment(hide_attachment, ck_sync_state, transfer_state)
    WHERE hide_attachment = 0 AND (ck_sync_state = 1 OR ck_sync_state = 4) AND transfer_state = 0;

CREATE INDEX chat_handle_join_idx_handle_id ON chat_handle_join(handle_id);
CREATE INDEX chat_message_join_idx_chat_id ON chat_message_join(chat_id);
CREATE INDEX chat_message_join_idx_message_id_only ON chat_message_join(message_id);
CREATE INDEX chat_message_join_idx_message_date_id_chat_id
    ON chat_message_join(chat_id, message_date, message_id);
CREATE INDEX message_attachment_join_idx_message_id ON message_attachment_join(message_id);
CREATE INDEX message_attachment_join_idx_attachment_id ON message_attachment_join(attachment_id);
CREATE INDEX chat_recoverable_message_join_message_id_idx
    ON chat_recoverable_message_join(message_id);
CREATE INDEX message_processing_task_idx_guid_task_flags
    ON message_processing_task(guid, task_flags);
