// SPDX-License-Identifier: MIT
#include "backup/readers/DeviceFileItem.h"

#include "platform/literals.h"

#include <QDateTime>

#include <cmath>
#include <utility>

namespace backup {

namespace {

// A directory's name may have 255 bytes, and a character of a title takes up to three.
constexpr int kLongestDirectoryName = 80;
constexpr double kLongestRecording = 365.0 * 24 * 3600; // seconds

} // namespace

DeviceFileItem::DeviceFileItem(
    Record record, FileContent content, DeviceFile place, const FileLocator& files)
    : PRFileItem(std::move(record), std::move(content)), m_place(std::move(place)), m_files(&files)
{
}

QString DeviceFileItem::filePath() const
{
    if (m_isReplaced) {
        return PRFileItem::filePath();
    }
    return m_place.path.isEmpty() ? QString() : m_files->locate(m_place.domain, m_place.path);
}

void DeviceFileItem::setFilePath(const QString& path)
{
    m_isReplaced = true;
    PRFileItem::setFilePath(path);
}

ListedData::ListedData(int dataType, QStringList columns, List list)
    : PRData(dataType, {}, std::move(columns)), m_list(std::move(list))
{
}

const RecordList& ListedData::records() const
{
    if (m_list) {
        m_listed = std::exchange(m_list, nullptr)();
    }
    return m_listed;
}

QString directoryName(const QString& title)
{
    QString name = title.left(kLongestDirectoryName);
    if (!name.isEmpty() && name.at(name.size() - 1).isHighSurrogate()) {
        name.chop(1);
    }
    name = name.trimmed();
    return name.isEmpty() || name == "."_L1 || name == ".."_L1 ? QStringLiteral("_") : name;
}

QString lastPart(const QString& path)
{
    return path.mid(path.lastIndexOf(QChar(u'/')) + 1);
}

QString durationText(qint64 seconds)
{
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600)
        .arg(seconds / 60 % 60, 2, 10, QChar(u'0'))
        .arg(seconds % 60, 2, 10, QChar(u'0'));
}

QString recordingLength(double seconds)
{
    // Written so that NaN, too, is none.
    return seconds > 0 && seconds < kLongestRecording ? durationText(std::llround(seconds))
                                                      : QString();
}

QString isoDate(const QDateTime& date)
{
    return date.isValid() ? date.toUTC().toString(Qt::ISODate) : QString();
}

} // namespace backup
