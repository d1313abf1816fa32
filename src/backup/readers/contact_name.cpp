// SPDX-License-Identifier: MIT
//   Dr. Ina Petersen MD     prefix, first, middle, last, suffix
//   田中 由紀                the family name leads in East Asia
//   李明, 김민준              ... with no blank in Chinese and Korean names
#include "backup/readers/contact_name.h"

#include "platform/literals.h"

#include <QStringList>

#include <algorithm>

namespace backup {

namespace {

enum SortClass : char { Letters = '1', OtherSigns = '2', Nothing = '3' };

bool isOf(const QString& text, std::initializer_list<QChar::Script> scripts)
{
    return std::ranges::any_of(text, [&](QChar c) {
        return std::ranges::any_of(
            scripts, [&](QChar::Script script) { return c.script() == script; });
    });
}

bool hasKana(const QString& text)
{
    return isOf(text, {QChar::Script_Hiragana, QChar::Script_Katakana});
}

bool isEastAsian(const QString& text)
{
    return isOf(text, {QChar::Script_Han, QChar::Script_Hangul}) || hasKana(text);
}

bool isHanOrHangul(const QString& text)
{
    return std::ranges::all_of(text, [](QChar c) {
        return c.script() == QChar::Script_Han || c.script() == QChar::Script_Hangul;
    });
}

QString joined(QStringList parts, const QString& joiner)
{
    parts.removeAll(QString());
    return parts.join(joiner);
}

QString personName(const ContactName& name)
{
    const QStringList western{
        name.first.simplified(), name.middle.simplified(), name.last.simplified()};
    const QString letters = western.join(QString());
    QString core = joined(western, " "_L1);
    if (isEastAsian(letters)) {
        const bool isJapanese = hasKana(letters + name.firstPhonetic + name.lastPhonetic);
        const bool isOneWord = isHanOrHangul(letters) && !isJapanese;
        core = joined({western.last(), western.at(1), western.first()},
            isOneWord ? QString() : QStringLiteral(" "));
    }
    return joined({name.prefix.simplified(), core, name.suffix.simplified()}, " "_L1);
}

QString orElse(const QString& text, const QString& other)
{
    return text.isEmpty() ? other : text;
}

// The text that a list is sorted by, as people read it.
QString sortName(const ContactName& name)
{
    const QString person = orElse(name.lastPhonetic, name.last) + QChar(u' ')
                           + orElse(name.firstPhonetic, name.first) + QChar(u' ') + name.middle;
    const QString organization = orElse(name.organizationPhonetic, name.organization);
    const bool isNamedByIt = name.isOrganization && !organization.isEmpty();
    return orElse(
        orElse(isNamedByIt ? organization : person.simplified(), organization), name.nickname);
}

bool isMark(QChar c)
{
    const ushort unit = c.unicode();
    return unit == 0x200E || unit == 0x200F || (unit >= 0x202A && unit <= 0x202E)
           || (unit >= 0x2066 && unit <= 0x2069) || unit == 0xFEFF;
}

} // namespace

QString displayName(const ContactName& name)
{
    QString organization = name.organization.simplified();
    if (name.isOrganization && !organization.isEmpty()) {
        return organization;
    }
    return orElse(orElse(personName(name), organization), name.nickname.simplified());
}

QByteArray sortKey(const ContactName& name)
{
    QString text = sortName(name).simplified().normalized(QString::NormalizationForm_KD);
    text = text.toCaseFolded();
    QString bare;
    std::ranges::copy_if(text, std::back_inserter(bare), [](QChar c) { return !c.isMark(); });
    if (bare.isEmpty()) {
        return {1, Nothing};
    }
    const bool isLetter = bare.at(0).isLetter() || bare.at(0).isSurrogate();
    return QByteArray(1, isLetter ? Letters : OtherSigns) + bare.toUtf8();
}

QString withoutMarks(const QString& text)
{
    int first = 0;
    int end = text.size();
    while (first < end && isMark(text.at(first))) {
        ++first;
    }
    while (end > first && isMark(text.at(end - 1))) {
        --end;
    }
    return text.mid(first, end - first);
}

} // namespace backup
