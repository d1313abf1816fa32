// SPDX-License-Identifier: MIT
// {"recordSet": 1, "owner": "Anna", "sets": [{"dataType": 0, "columns": ["Name"], "records": []}]}
#include "platform/literals.h"
#include "recordset/JsonTree.h"
#include "recordset/forms.h"
#include "recordset/record.h"
#include "recordset/recordset.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <fstream>
#include <map>

namespace recordset {

namespace {

using formats::Error;
using formats::Result;

constexpr int kVersion = 1;
constexpr std::string_view kVersionKey = "recordSet";
constexpr std::string_view kOwnerKey = "owner";
constexpr std::string_view kSetsKey = "sets";
constexpr std::string_view kDataTypeKey = "dataType";
constexpr std::string_view kColumnsKey = "columns";
constexpr std::string_view kRecordsKey = "records";
constexpr std::array kDocumentKeys{kVersionKey, kOwnerKey, kSetsKey};
constexpr std::array kSetKeys{kDataTypeKey, kColumnsKey, kRecordsKey};

bool isDataType(const Json& value)
{
    return value.is_number_unsigned() && value.get<std::uint64_t>() < kDataTypeCount;
}

std::unique_ptr<PRData> makeSet(int dataType, RecordList records, QStringList columns)
{
    switch (dataType) {
    case 0:
        return std::make_unique<PRSMSData>(std::move(records), std::move(columns));
    case 2:
        return std::make_unique<PRContactData>(std::move(records), std::move(columns));
    default:
        return std::make_unique<PRData>(dataType, std::move(records), std::move(columns));
    }
}

/// Makes records of one file. Each is made as soon as it has been parsed, and its JSON dropped,
/// where the version and the set's data type stand before it; otherwise when all has been parsed.
class Loader {
public:
    explicit Loader(const QString& path) : m_path(path)
    {
        m_reading.folder = QFileInfo(path).absolutePath();
    }

    Result<RecordSet> load();

private:
    std::optional<Error> parse();
    Error syntaxError(const JsonTree::SyntaxError& error) const;
    Error faultError() const;

    bool takeRecord(Json& json, std::size_t set, std::size_t row);
    bool readDocument(const Source& document, RecordSet& result);
    bool readSets(const Source& sets, PRBackup& backup);
    bool readSet(const Source& set, std::size_t index, PRBackup& backup);
    bool readRecords(const Source& list, int dataType, RecordList& records);

    QString m_path;
    Reading m_reading;
    std::map<std::size_t, RecordList> m_taken; // by the index of their set
    JsonTree m_tree{m_reading, [this](Json& record, std::size_t set, std::size_t row) {
                        return takeRecord(record, set, row);
                    }};
};

Result<RecordSet> Loader::load()
{
    if (const std::optional<Error> error = parse()) {
        return *error;
    }
    RecordSet result;
    if (!m_reading.fault) {
        readDocument(Source(m_tree.root(), m_reading), result);
    }
    if (m_reading.fault) {
        return faultError();
    }
    return result;
}

// What keeps the file from being JSON; other faults are in the reading.
std::optional<Error> Loader::parse()
{
    QFile file(m_path);
    if (!file.open(QFile::ReadOnly)) {
        return Error{.where = m_path, .what = file.errorString()};
    }
    if (file.peek(3) == QByteArray("\xEF\xBB\xBF")) {
        return Error{.where = m_path + ": line 1, column 1"_L1,
            .what = "expected UTF-8 without a byte order mark, found one"_L1};
    }
    std::ifstream stream(QFile::encodeName(m_path).constData(), std::ios::binary);
    Json::sax_parse(stream, &m_tree);
    if (stream.bad() || !stream.is_open()) {
        return Error{.where = m_path, .what = "cannot be read"_L1};
    }
    return m_tree.syntaxError() ? std::optional(syntaxError(*m_tree.syntaxError())) : std::nullopt;
}

// Columns count characters, as an editor does.
Error Loader::syntaxError(const JsonTree::SyntaxError& error) const
{
    std::ifstream stream(QFile::encodeName(m_path).constData(), std::ios::binary);
    qint64 line = 1;
    qint64 column = 1;
    for (std::size_t byte = 1; byte < error.byte && stream.peek() != EOF; ++byte) {
        const int character = stream.get();
        const bool continues = (character & 0xC0) == 0x80;
        line += character == '\n' ? 1 : 0;
        column = character == '\n' ? 1 : column + (continues ? 0 : 1);
    }
    return {.where = QStringLiteral("%1: line %2, column %3").arg(m_path).arg(line).arg(column),
        .what = QString::fromStdString(error.text)};
}

Error Loader::faultError() const
{
    const Fault& fault = *m_reading.fault;
    return {.where = fault.pointer.isEmpty() ? m_path : m_path + ": "_L1 + fault.pointer,
        .what = fault.what};
}

bool Loader::takeRecord(Json& json, std::size_t set, std::size_t row)
{
    const Source document(m_tree.root(), m_reading);
    const Json* version = document.find(kVersionKey);
    const Source sets = document.member(*document.find(kSetsKey), kSetsKey);
    const Source owner = sets.at(set);
    const Json* dataType = owner.find(kDataTypeKey);
    if (version == nullptr || *version != kVersion || dataType == nullptr
        || !isDataType(*dataType)) {
        return true;
    }
    const Source list = owner.member(*owner.find(kRecordsKey), kRecordsKey);
    std::unique_ptr<PRAbstractItem> record = readRecord(list.at(row), dataType->get<int>());
    if (!record) {
        return false;
    }
    m_taken[set].push_back(std::move(record));
    json = Json(Json::value_t::discarded); // keeps the row's place
    return true;
}

bool Loader::readDocument(const Source& document, RecordSet& result)
{
    const QString versionOne = QString::number(kVersion);
    if (!document.isObject()) {
        return false;
    }
    const Json* version = document.find(kVersionKey);
    if (version == nullptr) {
        return document.lacks(kVersionKey, versionOne);
    }
    if (!version->is_number_integer() || *version != kVersion) {
        return document.member(*version, kVersionKey).expected(versionOne);
    }
    if (!document.hasOnly({kDocumentKeys})) {
        return false;
    }
    const Json* owner = document.find(kOwnerKey);
    if (owner != nullptr && !forms::Text::read(document.member(*owner, kOwnerKey), result.owner)) {
        return false;
    }
    const Json* sets = document.find(kSetsKey);
    return sets == nullptr || readSets(document.member(*sets, kSetsKey), result.records);
}

bool Loader::readSets(const Source& sets, PRBackup& backup)
{
    if (!sets.isList()) {
        return false;
    }
    for (std::size_t index = 0; index < sets.json().size(); ++index) {
        if (!readSet(sets.at(index), index, backup)) {
            return false;
        }
    }
    return true;
}

bool Loader::readSet(const Source& set, std::size_t index, PRBackup& backup)
{
    const QString dataTypes = QStringLiteral("a whole number from 0 to %1").arg(kDataTypeCount - 1);
    if (!set.isObject() || !set.hasOnly({kSetKeys})) {
        return false;
    }
    const Json* number = set.find(kDataTypeKey);
    if (number == nullptr) {
        return set.lacks(kDataTypeKey, dataTypes);
    }
    if (!isDataType(*number)) {
        return set.member(*number, kDataTypeKey).expected(dataTypes);
    }
    const int dataType = number->get<int>();
    if (backup.getPRData(dataType) != nullptr) {
        return set.member(*number, kDataTypeKey).expected("at most one set for a data type"_L1);
    }
    QStringList columns = PRData::nameColumn();
    const Json* names = set.find(kColumnsKey);
    if (names != nullptr && !forms::TextList::read(set.member(*names, kColumnsKey), columns)) {
        return false;
    }
    RecordList records = std::move(m_taken[index]);
    const Json* rows = set.find(kRecordsKey);
    if (rows != nullptr && records.empty()
        && !readRecords(set.member(*rows, kRecordsKey), dataType, records)) {
        return false;
    }
    backup.add(makeSet(dataType, std::move(records), std::move(columns)));
    return true;
}

bool Loader::readRecords(const Source& list, int dataType, RecordList& records)
{
    if (!list.isList()) {
        return false;
    }
    for (std::size_t row = 0; row < list.json().size(); ++row) {
        std::unique_ptr<PRAbstractItem> record = readRecord(list.at(row), dataType);
        if (!record) {
            return false;
        }
        records.push_back(std::move(record));
    }
    return true;
}

} // namespace

Result<RecordSet> load(const QString& path)
{
    return Loader(path).load();
}

} // namespace recordset
