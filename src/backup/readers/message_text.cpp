// SPDX-License-Identifier: MIT
// The texts of messages that have none in their row:
//   message_summary_info  {ec: {"0": [{d: 695000000.0, t: <typedstream>}, ...]}, ep: [0], rp: [1]}
//                         ec: the versions of each part, the last one current; rp: unsent parts
//   payload_data          keyed archive of an app's message; of a link {richLinkMetadata: {...}},
//                         of others {ldtext, an, URL, userInfo: {caption, ...}}
#include "backup/readers/message_text.h"

#include "formats/plist.h"
#include "formats/typedstream.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <iterator>

namespace backup {

namespace {

struct AppRow {
    QLatin1String bundlePart;
    const char* name = nullptr;
};

// clang-format off
constexpr std::array kApps{
    AppRow{"HandwritingProvider"_L1,          QT_TRANSLATE_NOOP("DataExport", "Handwritten message")},
    AppRow{"DigitalTouchBalloonProvider"_L1,  QT_TRANSLATE_NOOP("DataExport", "Digital Touch message")},
    AppRow{"PeerPaymentMessagesExtension"_L1, QT_TRANSLATE_NOOP("DataExport", "Payment")},
    AppRow{"FindMyMessagesApp"_L1,            QT_TRANSLATE_NOOP("DataExport", "Location")},
    AppRow{"ActivityMessagesApp"_L1,          QT_TRANSLATE_NOOP("DataExport", "Fitness message")},
    AppRow{"PhotosMessagesApp"_L1,            QT_TRANSLATE_NOOP("DataExport", "Shared photos")},
    AppRow{"SafetyMonitorMessages"_L1,        QT_TRANSLATE_NOOP("DataExport", "Check In")},
    AppRow{"messages.Polls"_L1,               QT_TRANSLATE_NOOP("DataExport", "Poll")},
};
// clang-format on

constexpr std::array kCaptionKeys{"caption"_L1, "subcaption"_L1, "secondary-subcaption"_L1,
    "tertiary-subcaption"_L1, "image-title"_L1};

// An archived address is its text, or an object with its parts.
QString addressText(const QVariant& address)
{
    if (address.type() == QVariant::Map) {
        const QVariantMap parts = address.toMap();
        return parts.value("NS.relative"_L1).toString();
    }
    return address.toString();
}

QString linkText(const QVariantMap& payload)
{
    const QVariantMap link = payload.value("richLinkMetadata"_L1).toMap();
    const QString address = addressText(link.value("originalURL"_L1));
    return address.isEmpty() ? addressText(link.value("URL"_L1)) : address;
}

QString captionText(const QVariantMap& payload)
{
    QString label = payload.value("ldtext"_L1).toString();
    if (!label.isEmpty()) {
        return label;
    }
    const QVariantMap captions = payload.value("userInfo"_L1).toMap();
    for (const QLatin1String key : kCaptionKeys) {
        QString caption = captions.value(key).toString();
        if (!caption.isEmpty()) {
            return caption;
        }
    }
    return {};
}

QString appName(const QString& bundle)
{
    const auto* const app = std::ranges::find_if(
        kApps, [&](const AppRow& row) { return bundle.contains(row.bundlePart); });
    return QCoreApplication::translate("DataExport",
        app != kApps.end() ? app->name : QT_TRANSLATE_NOOP("DataExport", "App message"));
}

constexpr std::size_t kMarkBytes = 3;

// The first U+FFFC or U+FFFD.
std::size_t findMark(std::string_view utf8)
{
    std::size_t at = utf8.find("\xEF\xBF");
    while (at != std::string_view::npos) {
        const std::string_view last = utf8.substr(at + 2, 1);
        if (last == "\xBC" || last == "\xBD") {
            return at;
        }
        at = utf8.find("\xEF\xBF", at + 1);
    }
    return at;
}

QString fromUtf8(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString versionText(const QVariant& version)
{
    const QByteArray stream = version.toMap().value("t"_L1).toByteArray();
    const auto text =
        formats::typedstreamText({reinterpret_cast<const unsigned char*>(stream.constData()),
            static_cast<std::size_t>(stream.size())});
    return text ? shownText(*text) : QString();
}

// Oldest first, the current one last.
QStringList versionTexts(const QVariant& part)
{
    const QVariantList versions = part.toList();
    QStringList texts;
    std::ranges::transform(versions, std::back_inserter(texts), versionText);
    return texts;
}

} // namespace

// The phone shows what stands before and after an attachment in bubbles of their own; here they are
// lines of one text. The marks are looked for as bytes: a byte that is no UTF-8 becomes U+FFFD too,
// and stays where it is.
QString shownText(std::string_view utf8)
{
    std::size_t mark = findMark(utf8);
    if (mark == std::string_view::npos) {
        return fromUtf8(utf8);
    }
    QStringList parts;
    const auto addPart = [&parts](std::string_view part) {
        const QString trimmed = fromUtf8(part).trimmed();
        if (!trimmed.isEmpty()) {
            parts.append(trimmed);
        }
    };
    while (mark != std::string_view::npos) {
        addPart(utf8.substr(0, mark));
        utf8.remove_prefix(mark + kMarkBytes);
        mark = findMark(utf8);
    }
    addPart(utf8);
    return parts.join(QChar(u'\n'));
}

EditHistory readEditHistory(const QByteArray& summaryInfo)
{
    const auto plist = formats::parsePlist(summaryInfo, QString());
    if (!plist) {
        return {};
    }
    const QVariantMap summary = plist->toMap();
    EditHistory history;
    history.partsUnsent = !summary.value("rp"_L1).toList().isEmpty();
    QStringList current;
    const QVariantMap parts = summary.value("ec"_L1).toMap();
    for (const QVariant& part : parts) {
        QStringList versions = versionTexts(part);
        if (!versions.isEmpty()) {
            current.append(versions.takeLast());
        }
        history.earlier += versions;
    }
    current.removeAll(QString());
    history.earlier.removeAll(QString());
    history.current = current.join(QChar(u'\n'));
    return history;
}

QString appMessageText(const QString& bundle, const QByteArray& payload)
{
    const auto plist = formats::parsePlist(payload, QString());
    const QVariantMap root = plist ? formats::unarchive(*plist).toMap() : QVariantMap();
    QString text = bundle.contains("URLBalloonProvider"_L1) ? linkText(root) : captionText(root);
    if (text.isEmpty()) {
        text = addressText(root.value("URL"_L1));
    }
    const QString app = root.value("an"_L1).toString();
    if (text.isEmpty()) {
        text = app;
    }
    return text.isEmpty() ? appName(bundle) : text;
}

} // namespace backup
