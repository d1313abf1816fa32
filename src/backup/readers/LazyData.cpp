// SPDX-License-Identifier: MIT
#include "backup/readers/LazyData.h"

namespace backup {

LazyData::LazyData(int dataType, QStringList columns, Notices& notices)
    : PRData(dataType, {}, std::move(columns)), m_notices(notices)
{
}

void LazyData::addDatabase(NamedDatabase database)
{
    m_databases.push_back(std::move(database));
}

const RecordList& LazyData::records() const
{
    if (!m_isRead) {
        m_isRead = true;
        m_records = read(m_databases, m_notices);
        m_databases.clear();
    }
    return m_records;
}

} // namespace backup
