// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <QLatin1String>
#include <span>
#include <vector>

class CContactHelper;
class PRContactPrivate;
class PRContactProperty;
class PRData;

/// A column that stands once. Without a `cell` it is empty in every row.
struct ContactColumn {
    QLatin1String name;
    QString (*cell)(CContactHelper& helper, const PRContactPrivate& contact) = nullptr;
};

/// A column that stands once for each property of a kind; "%1" in its name is the number.
struct PropertyColumn {
    QLatin1String name;
    QString (*cell)(CContactHelper& helper, const PRContactProperty& property) = nullptr;
};

/// The columns of one kind of properties. All of the first property stand before those of the
/// second.
struct PropertyBlock {
    int propType = 0;
    std::span<const PropertyColumn> columns;
};

/// The columns of a CSV file of contacts: those that stand once, then the blocks, each repeated for
/// the selected contact that has most of its kind.
class ContactColumns {
public:
    /// No columns.
    ContactColumns() = default;
    ContactColumns(std::span<const ContactColumn> columns, std::span<const PropertyBlock> blocks,
        const PRData& data);

    QStringList names() const;

    /// The cells of a contact, quoted, with a comma between them. Properties for which there are no
    /// columns are left out.
    QString row(CContactHelper& helper, const PRContactPrivate& contact) const;

private:
    struct RepeatedBlock {
        PropertyBlock block;
        int count = 0;
    };

    std::span<const ContactColumn> m_columns;
    std::vector<RepeatedBlock> m_blocks;
};
