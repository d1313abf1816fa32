-- SPDX-License-Identifier: MIT
-- What the export of chats reads, as the shell of SQLite writes it with -csv: each message with its
-- chat, its sender, its file and its receipts, in the order of the table (in the order of chats the
-- shell takes longer).
SELECT s.ZCONTACTJID, s.ZPARTNERNAME,
       m.Z_PK, m.ZISFROMME, m.ZMESSAGETYPE, m.ZGROUPEVENTTYPE, m.ZMESSAGEDATE, m.ZTEXT, m.ZSTARRED,
       m.ZFLAGS, m.ZMESSAGESTATUS,
       coalesce(g.ZMEMBERJID, CASE WHEN m.ZISFROMME = 1 THEN NULL ELSE m.ZFROMJID END),
       coalesce(g.ZCONTACTNAME, p.ZPUSHNAME),
       i.ZMEDIALOCALPATH, i.ZXMPPTHUMBPATH, i.ZTITLE, i.ZVCARDNAME, i.ZVCARDSTRING, i.ZLATITUDE,
       i.ZLONGITUDE, i.ZFILESIZE, i.ZMOVIEDURATION, i.ZMEDIAURL, i.ZMETADATA, r.ZRECEIPTINFO
  FROM ZWAMESSAGE m
       LEFT JOIN ZWACHATSESSION s ON s.Z_PK = m.ZCHATSESSION
       LEFT JOIN ZWAGROUPMEMBER g ON g.Z_PK = m.ZGROUPMEMBER
       LEFT JOIN ZWAPROFILEPUSHNAME p ON p.ZJID = coalesce(g.ZMEMBERJID, m.ZFROMJID)
       LEFT JOIN ZWAMEDIAITEM i ON i.Z_PK = m.ZMEDIAITEM
       LEFT JOIN ZWAMESSAGEINFO r ON r.Z_PK = m.ZMESSAGEINFO;
