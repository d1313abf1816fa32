// SPDX-License-Identifier: MIT
//   ZVCARDNAME    "Ben Carter_$!<Name-Separator>!$_Lena Hoffmann"
//                 with several cards, a name for them all may come first
//   ZVCARDSTRING  "BEGIN:VCARD...END:VCARD_$!<VCard-Separator>!$_BEGIN:VCARD..."
//                 FN:Ben Carter
//                 item1.TEL;waid=12025550114:+1 (202) 555-0114
#include "backup/readers/whatsapp_text.h"

#include "backup/readers/chat_lines.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace backup {

namespace {

constexpr QLatin1String kNameSeparator = "_$!<Name-Separator>!$_"_L1;
constexpr QLatin1String kCardSeparator = "_$!<VCard-Separator>!$_"_L1;

struct Card {
    QString name;
    QStringList numbers;
};

QString unescaped(const QString& value)
{
    static const QRegularExpression escape(R"(\\(.))"_L1);
    QString text = value;
    text.replace(R"(\n)"_L1, " "_L1).replace(escape, R"(\1)"_L1);
    return text.simplified();
}

Card parseCard(const QString& text)
{
    static const QRegularExpression fold(R"(\r?\n[ \t])"_L1);
    static const QRegularExpression lineEnd(R"(\r?\n|\r)"_L1);
    static const QRegularExpression property(R"(^(?:[^.:;]+\.)?(FN|TEL)(?:;[^:]*)?:(.*)$)"_L1,
        QRegularExpression::CaseInsensitiveOption);
    Card card;
    const QStringList lines = QString(text).remove(fold).split(lineEnd, Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QRegularExpressionMatch found = property.match(line);
        const QString value = unescaped(found.captured(2));
        if (value.isEmpty()) {
            continue;
        }
        if (found.captured(1).compare("FN"_L1, Qt::CaseInsensitive) == 0) {
            card.name = value;
        } else {
            card.numbers.append(value);
        }
    }
    return card;
}

} // namespace

QString joinedLines(const QStringList& texts)
{
    QStringList lines = texts;
    lines.removeAll(QString());
    lines.removeDuplicates();
    return lines.join(QChar(u'\n'));
}

QString cardLines(const QString& names, const QString& cards)
{
    QStringList people = names.split(kNameSeparator, Qt::SkipEmptyParts);
    const QStringList texts = cards.split(kCardSeparator, Qt::SkipEmptyParts);
    if (!texts.isEmpty() && people.size() == texts.size() + 1) {
        people.removeFirst();
    }
    if (texts.isEmpty()) {
        return joinedLines(people);
    }
    QStringList lines;
    for (int index = 0; index < texts.size(); ++index) {
        const Card card = parseCard(texts[index]);
        const QString name = card.name.isEmpty() ? people.value(index) : card.name;
        const QString numbers = card.numbers.join(", "_L1);
        lines.append(
            name.isEmpty() || numbers.isEmpty() ? name + numbers : name + ": "_L1 + numbers);
    }
    return joinedLines(lines);
}

QString placeLines(const QString& name, const QString& address, double latitude, double longitude)
{
    return joinedLines({name, address, coordinatesText(latitude, longitude)});
}

QString pollLines(const QString& question, const QStringList& options)
{
    QString text = QCoreApplication::translate("DataExport", "Poll") + ": "_L1 + question;
    for (const QString& option : options) {
        text += "\n- "_L1 + option;
    }
    return text;
}

} // namespace backup
