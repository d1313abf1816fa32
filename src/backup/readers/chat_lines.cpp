// SPDX-License-Identifier: MIT
#include "backup/readers/chat_lines.h"

#include "backup/readers/DeviceFileItem.h"
#include "backup/readers/media_kind.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace backup {

namespace {

constexpr int kShortestWithCountry = 9; // digits; fewer are a number within a country

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

QString callWords(const ChatCall& call)
{
    if (call.isMissed) {
        return call.isVideo ? tr("Missed video call") : tr("Missed voice call");
    }
    if (call.fromMe) {
        return call.isVideo ? tr("Outgoing video call") : tr("Outgoing voice call");
    }
    return call.isVideo ? tr("Incoming video call") : tr("Incoming voice call");
}

// Marks that say in which direction a text runs, and the mark of byte order.
bool isInvisible(QChar c)
{
    const char16_t unit = c.unicode();
    return unit == 0x200E || unit == 0x200F || unit == 0xFEFF || (unit >= 0x202A && unit <= 0x202E)
           || (unit >= 0x2066 && unit <= 0x2069);
}

bool isDigit(QChar c)
{
    return c >= QChar(u'0') && c <= QChar(u'9');
}

} // namespace

QString callLine(const ChatCall& call)
{
    const QString caller = call.caller.isEmpty() ? QString() : call.caller + ": "_L1;
    const QString words = caller + callWords(call);
    return call.seconds > 0 ? words + " ("_L1 + durationText(call.seconds) + QChar(u')') : words;
}

QString coordinatesText(double latitude, double longitude)
{
    // Written so that NaN, too, is none.
    const bool isPlace =
        std::abs(latitude) <= 90 && std::abs(longitude) <= 180 && (latitude != 0 || longitude != 0);
    if (!isPlace) {
        return {};
    }
    constexpr int kDigits = 8; // of the whole number: a metre at the least
    return QString::number(latitude, 'g', kDigits) + ", "_L1
           + QString::number(longitude, 'g', kDigits);
}

QString locationText(const QString& name, double latitude, double longitude)
{
    const QString coordinates = coordinatesText(latitude, longitude);
    return name.isEmpty() || coordinates.isEmpty() ? name + coordinates
                                                   : name + QChar(u'\n') + coordinates;
}

QString unknownMessageLine()
{
    return tr("[Unknown message]");
}

QString systemMessageLine()
{
    return tr("[System message]");
}

QString stickerText()
{
    return tr("[Sticker]");
}

QString plainName(const QString& name)
{
    QString plain = name;
    const auto* const kept = std::remove_if(plain.begin(), plain.end(), isInvisible);
    plain.truncate(static_cast<int>(kept - plain.cbegin()));
    return plain.trimmed();
}

QString firstFilled(std::initializer_list<QString> texts)
{
    const auto* const found =
        std::ranges::find_if(texts, [](const QString& text) { return !text.isEmpty(); });
    return found != texts.end() ? *found : QString();
}

QString documentName(const QString& title, const QString& path)
{
    const QString name = lastPart(title).simplified();
    if (name.isEmpty()) {
        return lastPart(path);
    }
    // Not any ending: "Invoice No. 12" has none.
    const QString ending = QChar(u'.') + QFileInfo(lastPart(path)).suffix();
    const bool isWhole = ending.size() == 1 || mediaKindOf(name) != MediaKind::Other
                         || name.endsWith(ending, Qt::CaseInsensitive);
    return isWhole ? name : name + ending;
}

QString shownPhone(const QString& number)
{
    QString shown = number.trimmed();
    const bool hasCountry = shown.size() >= kShortestWithCountry && !shown.startsWith(QChar(u'0'))
                            && std::ranges::all_of(shown, isDigit);
    return hasCountry ? QChar(u'+') + shown : shown;
}

} // namespace backup
