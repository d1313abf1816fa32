// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A plain file without a buffer of its own, opened with nothing asked about it that its user does
/// not need to know: of small files the questions would be a third of the work.
class RawFile {
public:
    RawFile() = default;
    RawFile(const RawFile&) = delete;
    RawFile& operator=(const RawFile&) = delete;
    ~RawFile() { close(); }

    /// False for what cannot be read, and for a directory.
    bool openToRead(const QString& path);
    /// Makes the file, or empties the one that is there.
    bool openToWrite(const QString& path);
    void close();

    /// Reads on for at most `size` bytes, and gives their number: 0 at the end of the file, -1
    /// where it cannot be read on.
    qint64 read(char* bytes, qint64 size);
    /// The number of bytes that were written: less than `size` on a full disk and the like.
    qint64 write(const char* bytes, qint64 size);

private:
    int m_file = -1;
};
