-- SPDX-License-Identifier: MIT
-- Schema of WeChat's messages: AppDomain-com.tencent.xin,
-- Documents/<md5 of the user name>/DB/MM.sqlite, message_1.sqlite and so on. Each chat has a table of
-- this kind; this one is that with "filehelper". Chats with strangers have Hello_ before the md5.

CREATE TABLE Chat_9e20f478899dc29eb19741386f9343c8 (
    TableVer INTEGER DEFAULT 1,
    MesLocalID INTEGER PRIMARY KEY AUTOINCREMENT,  -- also the name of the files
    MesSvrID INTEGER DEFAULT 0,       -- 0: the server does not have it
    CreateTime INTEGER DEFAULT 0,     -- seconds since 1970
    Message TEXT,
    Status INTEGER DEFAULT 0,
    ImgStatus INTEGER DEFAULT 0,
    Type INTEGER,
    Des INTEGER                       -- 0 sent, 1 received
);
