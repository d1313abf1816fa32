// SPDX-License-Identifier: MIT
#include "formats/cocoa_values.h"

#include <QUrl>

#include <cmath>

namespace formats {

namespace {

constexpr qint64 kCocoaEpochMs = 978'307'200'000; // of 2001-01-01 since 1970-01-01
constexpr double kYear0 = -63'145'526'400.0;      // first second of the year 0
constexpr double kYear10000 = 252'423'993'600.0;  // first second of the year 10000

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

} // namespace

QDateTime dateFromCocoaSeconds(double seconds)
{
    // NaN fails both comparisons.
    if (!(seconds >= kYear0 && seconds < kYear10000)) {
        return {};
    }
    const auto ms = static_cast<qint64>(std::llround(seconds * 1000.0));
    return QDateTime::fromMSecsSinceEpoch(ms + kCocoaEpochMs, Qt::UTC);
}

QString urlText(const QString& base, const QString& relative)
{
    return base.isEmpty() ? relative
                          : QUrl(base).resolved(QUrl(relative)).toString(QUrl::FullyEncoded);
}

QString utf8Text(std::string_view utf8)
{
    QString text;
    // QString::fromUtf8 swallows the mark.
    while (utf8.starts_with(kByteOrderMark)) {
        text += QChar(QChar::ByteOrderMark);
        utf8.remove_prefix(kByteOrderMark.size());
    }
    const QString rest = QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
    return text.isEmpty() ? rest : text + rest;
}

} // namespace formats
