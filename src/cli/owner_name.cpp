// SPDX-License-Identifier: MIT
#include "cli/owner_name.h"

#include "platform/literals.h"

#include <algorithm>

namespace {

// A file name has 255 bytes; the category's name, a number and the extension need their share, and
// a unit of UTF-16 takes up to three.
constexpr int kLongestOwner = 60;

bool isUnfit(QChar c)
{
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return c == u'/' || c == u'\\';
    }
}

} // namespace

QString cleanedOwner(const QString& name)
{
    QString owner = name.trimmed(); // first: a line feed at the end is no part of a name
    std::replace_if(owner.begin(), owner.end(), isUnfit, QChar(u'_'));
    owner.truncate(kLongestOwner);
    if (!owner.isEmpty() && owner.at(owner.size() - 1).isHighSurrogate()) {
        owner.chop(1);
    }
    owner = owner.trimmed();
    return owner == "."_L1 || owner == ".."_L1 ? QStringLiteral("_") : owner;
}

QString defaultOwner(const QStringList& names)
{
    for (const QString& name : names) {
        QString owner = cleanedOwner(name);
        if (!owner.isEmpty()) {
            return owner;
        }
    }
    return QStringLiteral("iPhone");
}
