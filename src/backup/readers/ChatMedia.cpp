// SPDX-License-Identifier: MIT
#include "backup/readers/ChatMedia.h"

namespace backup {

namespace {

// A device has names in either Unicode form, whatever form its messages have them in.
QString comparable(const QString& key)
{
    return key.normalized(QString::NormalizationForm_C);
}

} // namespace

void ChatMedia::list(const QString& domain, const QString& directory, KeyOf keyOf)
{
    const QStringList paths = m_files.filesBelow(domain, directory);
    for (const QString& path : paths) {
        const QString key = comparable(keyOf(path));
        if (key.isEmpty()) {
            continue;
        }
        if (!m_byKey.contains(key)) {
            m_byKey.insert(key, m_entries.size());
        }
        m_entries.push_back({.place = {.domain = domain, .path = path}});
    }
}

const DeviceFile* ChatMedia::find(const QString& key)
{
    const auto found = m_byKey.constFind(comparable(key));
    if (found == m_byKey.constEnd()) {
        return nullptr;
    }
    Entry& entry = m_entries[*found];
    entry.isFound = true;
    return &entry.place;
}

std::vector<DeviceFile> ChatMedia::leftOver() const
{
    std::vector<DeviceFile> files;
    for (const Entry& entry : m_entries) {
        if (!entry.isFound) {
            files.push_back(entry.place);
        }
    }
    return files;
}

} // namespace backup
