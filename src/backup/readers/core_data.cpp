// SPDX-License-Identifier: MIT
// Z_PRIMARYKEY (Z_ENT, Z_NAME): the kinds of rows. One table holds the rows of several kinds; each
// row has its kind in Z_ENT and its own number in Z_PK.
#include "backup/readers/core_data.h"

#include <QRegularExpression>

#include <cstdint>

namespace backup {

std::optional<qint64> entityNumber(const formats::Database& database, QLatin1String name)
{
    auto query = database.prepare("SELECT Z_ENT FROM Z_PRIMARYKEY WHERE Z_NAME = ?"_L1);
    if (!query) {
        return std::nullopt;
    }
    query->bind(1, QString(name));
    return query->next() ? std::optional(query->integer(0)) : std::nullopt;
}

QString TableColumns::firstOf(
    const QString& alias, std::initializer_list<QLatin1String> names) const
{
    QStringList present;
    for (const QLatin1String name : names) {
        if (has(name)) {
            present.append("nullif("_L1 + alias + QChar(u'.') + name + ",0)"_L1);
        }
    }
    if (present.isEmpty()) {
        return QStringLiteral("NULL");
    }
    // coalesce wants two at least.
    return "coalesce("_L1 + present.join(QChar(u',')) + ",NULL)"_L1;
}

QStringList TableColumns::matching(const QString& pattern) const
{
    return m_names.filter(QRegularExpression(QRegularExpression::anchoredPattern(pattern)));
}

} // namespace backup
