-- SPDX-License-Identifier: MIT
-- Schema of WeChat's list of chats: AppDomain-com.tencent.xin,
-- Documents/<md5 of the user name>/session/session.db.

CREATE TABLE SessionAbstract (
    UsrName TEXT PRIMARY KEY,
    CreateTime INTEGER,               -- of the newest message, seconds since 1970
    unreadcount INTEGER,
    ConStrRes1 TEXT
);
