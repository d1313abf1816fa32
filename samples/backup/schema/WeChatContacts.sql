-- SPDX-License-Identifier: MIT
-- Schema of WeChat's contacts: AppDomain-com.tencent.xin,
-- Documents/<md5 of the user name>/DB/WCDB_Contact.sqlite. The blobs are messages of protocol buffers.

CREATE TABLE Friend (
    userName TEXT PRIMARY KEY,
    type INTEGER,                     -- bits: 1 on the owner's list, 8 blocked
    certificationFlag INTEGER,
    imgStatus INTEGER,
    encodeUserName TEXT,
    dbContactRemark BLOB,             -- 1 nickname, 2 WeChat id, 3 remark
    dbContactLocal BLOB,
    dbContactHeadImage BLOB,          -- 2, 3 addresses of pictures
    dbContactProfile BLOB,            -- 2 country, 3 province, 4 city, 5 signature
    dbContactSocial BLOB,
    dbContactChatRoom BLOB,           -- 1 "user;user", 6 XML of the members
    dbContactOther BLOB
);
CREATE TABLE OpenIMContact (
    userName TEXT PRIMARY KEY,
    type INTEGER,
    dbContactRemark BLOB,
    dbContactHeadImage BLOB
);
