// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <sys/mount.h>

namespace support {

/// A disk of its own, of so many bytes, on a folder that is there. What lies on it goes with it.
/// Only root may mount one.
class SmallDisk {
public:
    SmallDisk(const QString& folder, int bytes) : m_folder(QFile::encodeName(folder))
    {
        const QByteArray size = "size=" + QByteArray::number(bytes);
        m_isThere = ::mount("tmpfs", m_folder.constData(), "tmpfs", 0, size.constData()) == 0;
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk()
    {
        if (m_isThere) {
            ::umount2(m_folder.constData(), MNT_DETACH);
        }
    }

    /// False where this user or this machine allows none.
    bool isThere() const { return m_isThere; }

private:
    QByteArray m_folder;
    bool m_isThere = false;
};

} // namespace support
