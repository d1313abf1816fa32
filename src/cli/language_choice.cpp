// SPDX-License-Identifier: MIT
//   zh-Hant-HK      de_AT.UTF-8@euro
//   language, script, territory; what follows a point or an "@" is no part of them
#include "cli/language_choice.h"

#include "platform/literals.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

struct Tag {
    QString language;
    QString script;
    QString territory;
};

Tag parseTag(const QString& code)
{
    const QString name = code.section(QRegularExpression(QStringLiteral("[.@]")), 0, 0);
    QStringList parts = name.split(QRegularExpression(QStringLiteral("[-_]")));
    Tag tag{.language = parts.takeFirst().toLower()};
    for (const QString& part : qAsConst(parts)) {
        if (part.size() == 4 && part.at(0).isLetter()) {
            tag.script = part.toLower();
        } else if (part.size() == 2) {
            tag.territory = part.toUpper();
        }
    }
    return tag;
}

// Where nothing is said of the script, the territory tells it.
bool isTraditionalChinese(const Tag& tag)
{
    if (!tag.script.isEmpty()) {
        return tag.script == "hant"_L1;
    }
    return tag.territory == "TW"_L1 || tag.territory == "HK"_L1 || tag.territory == "MO"_L1;
}

// Names of catalogues that would do, the closest one first.
QStringList catalogueNames(const Tag& tag)
{
    if (tag.language == "zh"_L1) {
        return {isTraditionalChinese(tag) ? QStringLiteral("zh_TW") : QStringLiteral("zh_CN")};
    }
    return {tag.language + QChar(u'_') + tag.territory, tag.language};
}

} // namespace

QString languageOfCode(const QString& code, const QStringList& available)
{
    const QStringList names = catalogueNames(parseTag(code));
    const auto found = std::ranges::find_if(
        names, [&available](const QString& name) { return available.contains(name); });
    return found != names.end() ? *found : QString();
}

QString languageOfUser(const QStringList& wanted, const QStringList& available)
{
    for (const QString& code : wanted) {
        QString language = languageOfCode(code, available);
        if (!language.isEmpty()) {
            return language;
        }
    }
    return QStringLiteral("en");
}
