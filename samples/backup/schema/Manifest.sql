-- SPDX-License-Identifier: MIT
-- Schema of the index of a backup, Manifest.db, since iOS 10.

CREATE TABLE Files (
    fileID TEXT PRIMARY KEY,  -- SHA-1 of "<domain>-<relativePath>" in lower-case hex digits
    domain TEXT,
    relativePath TEXT,        -- empty for the root of a domain
    flags INTEGER,            -- 1 file, 2 directory, 4 symbolic link
    file BLOB                 -- keyed archive of an MBFile: size, dates, mode ...
);
CREATE INDEX FilesDomainIdx ON Files(domain);
CREATE INDEX FilesRelativePathIdx ON Files(relativePath);
CREATE INDEX FilesFlagsIdx ON Files(flags);

CREATE TABLE Properties (key TEXT PRIMARY KEY, value BLOB);
