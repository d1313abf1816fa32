// SPDX-License-Identifier: MIT
#include "backup/readers/CallData.h"

#include "backup/readers/call_records.h"
#include "backup/readers/table_reader.h"

#include <algorithm>
#include <iterator>

namespace backup {

CallData::CallData(SenderNames names, Notices& notices)
    : LazyData(kDataType, callColumns(), notices), m_names(std::move(names))
{
}

RecordList CallData::read(const std::vector<NamedDatabase>& databases, Notices& notices) const
{
    std::vector<Call> calls;
    for (const NamedDatabase& store : databases) {
        std::vector<Call> more = readCalls(TableReader(store.opened.database, store.name, notices));
        std::ranges::move(more, std::back_inserter(calls));
    }
    return callRecords(std::move(calls), m_names);
}

} // namespace backup
