// SPDX-License-Identifier: MIT
#include "cli/categories.h"

#include "driver/category_order.h"
#include "model/PRBackup.h"
#include "platform/literals.h"

#include <QStringList>

#include <optional>

namespace {

int selectedCount(const PRBackup& records, int dataType)
{
    const PRData* data = records.getPRData(dataType);
    return data != nullptr ? data->recoverCount() : 0;
}

std::optional<int> dataTypeOf(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber && number >= 0 && number < kDataTypeCount) {
        return number;
    }
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        if (PRBackup::dataTypeName(dataType).compare(text, Qt::CaseInsensitive) == 0) {
            return dataType;
        }
    }
    return std::nullopt;
}

// One category a line, with the number that stands for it.
QString allCategories()
{
    QString lines;
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        lines += QStringLiteral("\n  %1  ").arg(dataType, 2) + PRBackup::dataTypeName(dataType);
    }
    return lines;
}

} // namespace

formats::Result<QVector<int>> parseCategories(const QString& list)
{
    QVector<int> dataTypes;
    const QStringList texts = list.split(QChar(u','));
    for (const QString& text : texts) {
        const std::optional<int> dataType = dataTypeOf(text.trimmed());
        if (!dataType) {
            return formats::Error{.where = {},
                .what = R"(no category is called ")"_L1 + text.trimmed() + R"("; there are:)"_L1
                        + allCategories()};
        }
        if (!dataTypes.contains(*dataType)) {
            dataTypes.append(*dataType);
        }
    }
    return dataTypes;
}

ExportPlan planExport(const PRBackup& records, const QVector<int>& only)
{
    ExportPlan plan;
    for (const int dataType : kCategoryOrder) {
        if (!only.isEmpty() && !only.contains(dataType)) {
            continue;
        }
        if (selectedCount(records, dataType) == 0) {
            plan.empty.append(dataType);
        } else {
            plan.written.append(dataType);
        }
    }
    if (only.isEmpty()) {
        plan.empty.clear(); // nobody asked for them
    }
    return plan;
}

QString categoryNames(const QVector<int>& dataTypes)
{
    QStringList names;
    for (const int dataType : dataTypes) {
        names.append(PRBackup::dataTypeName(dataType));
    }
    return names.join(", "_L1);
}
