// SPDX-License-Identifier: MIT
// A header, then one row for each contact, ended by CR LF. Nothing is quoted. A label chooses the
// column of its value; a column repeats as often as the contact with the most values needs it:
//
//   First Name,...,E-mail Address,E-mail 2 Address,Home Phone,Business Phone,Mobile Phone,...
//   Mia,...,mia@example.org,,+49 30 5550100,,,...
#include "interchange/ExportCSVFile_Outlook.h"

#include "interchange/InterchangeLayout.h"
#include "interchange/contact_values.h"
#include "interchange/csv_file.h"
#include "interchange/field_tables.h"
#include "model/PRContactItem.h"
#include "platform/literals.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace {

using FieldHandler = QString (*)(const QString& key, const PRContactItem& contact);

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): the format counts per process
CountMap s_outlookMaxCounts;

constexpr const InterchangeLayout& kLayout = kOutlookLayout;

template <auto kField> QString plain(const QString& /*key*/, const PRContactItem& contact)
{
    return kLayout.escapeValue(contact.detailContent()->*kField);
}

QString empty(const QString& /*key*/, const PRContactItem& /*contact*/)
{
    return {};
}

template <typename ValuesOf>
QString series(const PRContactItem& contact, PropType kind, const QString& key, ValuesOf valuesOf)
{
    return seriesOf(contact, kind, s_outlookMaxCounts, key, valuesOf).join(QChar(u','));
}

// All values of a kind, whatever their labels.
template <PropType kKind> QString values(const QString& key, const PRContactItem& contact)
{
    return series(contact, kKind, key, [](const PRContactProperty& property) -> QStringList {
        return {kLayout.escapeValue(property.propValue())};
    });
}

struct PhoneColumn {
    QLatin1String key;
    QLatin1String label;
};

// No label is ever empty, so that nothing comes to "Mobile Phone": mobile numbers are found among
// the other phones.
constexpr std::array kPhoneColumns{
    PhoneColumn{"Home Phone"_L1, "HOME"_L1},
    PhoneColumn{"Business Phone"_L1, "WORK"_L1},
    PhoneColumn{"Mobile Phone"_L1, ""_L1},
    PhoneColumn{"Pager"_L1, "PAGER"_L1},
    PhoneColumn{"Business Fax"_L1, "WorkFAX"_L1},
    PhoneColumn{"Home Fax"_L1, "HomeFAX"_L1},
    PhoneColumn{"Other Fax"_L1, "OtherFAX"_L1},
};

// Neither "CELL" nor "MAIN" is among them.
constexpr std::array kNoOtherPhones{
    "HOME"_L1, "WORK"_L1, "HomeFAX"_L1, "WorkFAX"_L1, "OtherFAX"_L1, "PAGER"_L1};

template <typename Belongs>
QString phonesWhere(const QString& key, const PRContactItem& contact, Belongs belongs)
{
    return series(contact, Phone, key, [&](const PRContactProperty& phone) -> QStringList {
        if (!belongs(kLayout.displayLabel("TEL"_L1, labelOrType(phone)))) {
            return {};
        }
        return {kLayout.escapeValue(phone.propValue())};
    });
}

QString phones(const QString& key, const PRContactItem& contact)
{
    const auto* const column = std::ranges::find_if(
        kPhoneColumns, [&](const PhoneColumn& known) { return key == known.key; });
    return phonesWhere(
        key, contact, [column](const QString& label) { return label == column->label; });
}

QString otherPhones(const QString& key, const PRContactItem& contact)
{
    return phonesWhere(key, contact, [](const QString& label) {
        return std::ranges::none_of(
            kNoOtherPhones, [&](QLatin1String other) { return label == other; });
    });
}

// The user names alone, unescaped.
QString messengers(const QString& key, const PRContactItem& contact)
{
    return series(
        contact, InstantMessage, key, [](const PRContactProperty& account) -> QStringList {
            return {kLayout.subValue(account, "username"_L1)};
        });
}

// The street has the whole address in one word, so that city, state and postal code are there a
// second time. The country is its code.
QStringList addressFields(const PRContactProperty& address)
{
    const QString city = kLayout.subValue(address, "City"_L1);
    const QString state = kLayout.subValue(address, "State"_L1);
    const QString zip = kLayout.subValue(address, "ZIP"_L1);
    const QString whole = filled("%1;%2;%3;%4;%5"_L1, kLayout.subValue(address, "Street"_L1),
        kLayout.subValue(address, "SubLocality"_L1), city, state, zip);
    return {kLayout.cleanAddressText(whole), city, state, zip,
        kLayout.subValue(address, "CountryCode"_L1)};
}

// The word of the column's prefix that an address is labelled with; none for "Other".
QLatin1String labelOfAddresses(const QString& key)
{
    if (key == "Business Address"_L1) {
        return "WORK"_L1;
    }
    return key == "Home Address"_L1 ? "HOME"_L1 : ""_L1;
}

QString addresses(const QString& key, const PRContactItem& contact)
{
    const QLatin1String wanted = labelOfAddresses(key);
    return series(contact, Address, key, [wanted](const PRContactProperty& address) -> QStringList {
        const QString label = kLayout.displayLabel("ADR"_L1, labelOrType(address));
        const bool hasColumn = label == "WORK"_L1 || label == "HOME"_L1;
        const bool belongs = wanted.isEmpty() ? !hasColumn : label == wanted;
        return belongs ? addressFields(address) : QStringList();
    });
}

// All related names, whatever they are to the contact. Nowhere else here does a label lose its
// wrapper.
QString relatedNames(const QString& key, const PRContactItem& contact)
{
    return series(contact, RelatedName, key, [](const PRContactProperty& related) -> QStringList {
        const QString label = unwrapLabel(kLayout.displayLabel("X-RSH"_L1, labelOrType(related)));
        return {filled("%1:%2"_L1, label, kLayout.escapeValue(related.propValue()))};
    });
}

// "05/31": the year is dropped.
QString yearlyDate(const QString& secondsSince2001)
{
    return dayText(secondsSince2001, "yyyy/MM/dd"_L1);
}

QString dates(const QString& key, const PRContactItem& contact)
{
    return series(contact, Date, key, [](const PRContactProperty& date) -> QStringList {
        return {yearlyDate(date.propValue())};
    });
}

QString birthday(const QString& /*key*/, const PRContactItem& contact)
{
    const QString& seconds = contact.detailContent()->birthday;
    return seconds.isEmpty() ? QString() : yearlyDate(seconds);
}

QString notes(const QString& /*key*/, const PRContactItem& contact)
{
    return csvNote(kLayout, contact);
}

using C = ContactContent;

// clang-format off
const FieldRow<FieldHandler> s_outlookFields[] = {
    {"First Name"_L1,         plain<&C::firstName>},
    {"Middle Name"_L1,        plain<&C::middleName>},
    {"Last Name"_L1,          plain<&C::lastName>},
    {"Title"_L1,              plain<&C::jobTitle>}, // not the name's prefix
    {"Suffix"_L1,             plain<&C::nameSuffix>},
    {"Nickname"_L1,           plain<&C::nickname>},
    {"Given Yomi"_L1,         plain<&C::firstPhonetic>},
    {"Surname Yomi"_L1,       plain<&C::lastPhonetic>},
    {"E-mail Address"_L1,     values<Email>},
    {"Home Phone"_L1,         phones},
    {"Business Phone"_L1,     phones},
    {"Mobile Phone"_L1,       phones},
    {"Car Phone"_L1,          empty},
    {"Other Phone"_L1,        otherPhones},
    {"Primary Phone"_L1,      empty},
    {"Pager"_L1,              phones},
    {"Business Fax"_L1,       phones},
    {"Home Fax"_L1,           phones},
    {"Other Fax"_L1,          phones},
    {"Company Main Phone"_L1, empty},
    {"Callback"_L1,           empty},
    {"Radio Phone"_L1,        empty},
    {"Telex"_L1,              empty},
    {"TTY/TDD Phone"_L1,      empty},
    {"IMAddress"_L1,          messengers},
    {"Job Title"_L1,          plain<&C::jobTitle>},
    {"Department"_L1,         plain<&C::department>},
    {"Company"_L1,            plain<&C::organization>},
    {"Office Location"_L1,    empty},
    {"Manager's Name"_L1,     empty},
    {"Assistant's Name"_L1,   empty},
    {"Assistant's Phone"_L1,  empty},
    {"Company Yomi"_L1,       plain<&C::organizationPhonetic>},
    {"Business Address"_L1,   addresses},
    {"Home Address"_L1,       addresses},
    {"Other Address"_L1,      addresses},
    {"Spouse"_L1,             relatedNames},
    {"Schools"_L1,            empty},
    {"Hobby"_L1,              empty},
    {"Location"_L1,           empty},
    {"Web Page"_L1,           values<WebAddress>},
    {"Anniversary"_L1,        dates},
    {"Birthday"_L1,           birthday},
    {"Notes"_L1,              notes},
    {QString(),               nullptr},
};
// clang-format on

// Fields for each value of a contact.
constexpr int kSingle = 0; // a column that never repeats
constexpr int kRepeating = 1;
constexpr int kAddressGroup = 5;

struct Column {
    QString name; // also the key of the record
    int width = kSingle;
};

// clang-format off
const Column kColumns[] = {
    {"First Name"_L1,         kSingle},
    {"Middle Name"_L1,        kSingle},
    {"Last Name"_L1,          kSingle},
    {"Title"_L1,              kSingle},
    {"Suffix"_L1,             kSingle},
    {"Nickname"_L1,           kSingle},
    {"Given Yomi"_L1,         kSingle},
    {"Surname Yomi"_L1,       kSingle},
    {"E-mail Address"_L1,     kRepeating},
    {"Home Phone"_L1,         kRepeating},
    {"Business Phone"_L1,     kRepeating},
    {"Mobile Phone"_L1,       kRepeating},
    {"Car Phone"_L1,          kRepeating},
    {"Other Phone"_L1,        kRepeating},
    {"Primary Phone"_L1,      kRepeating},
    {"Pager"_L1,              kRepeating},
    {"Business Fax"_L1,       kRepeating},
    {"Home Fax"_L1,           kRepeating},
    {"Other Fax"_L1,          kRepeating},
    {"Company Main Phone"_L1, kSingle},
    {"Callback"_L1,           kSingle},
    {"Radio Phone"_L1,        kSingle},
    {"Telex"_L1,              kSingle},
    {"TTY/TDD Phone"_L1,      kSingle},
    {"IMAddress"_L1,          kRepeating},
    {"Job Title"_L1,          kSingle},
    {"Department"_L1,         kSingle},
    {"Company"_L1,            kSingle},
    {"Office Location"_L1,    kSingle},
    {"Manager's Name"_L1,     kSingle},
    {"Assistant's Name"_L1,   kSingle},
    {"Assistant's Phone"_L1,  kSingle},
    {"Company Yomi"_L1,       kSingle},
    {"Business Address"_L1,   kAddressGroup},
    {"Home Address"_L1,       kAddressGroup},
    {"Other Address"_L1,      kAddressGroup},
    {"Spouse"_L1,             kRepeating},
    {"Schools"_L1,            kSingle},
    {"Hobby"_L1,              kSingle},
    {"Location"_L1,           kSingle},
    {"Web Page"_L1,           kRepeating},
    {"Anniversary"_L1,        kRepeating},
    {"Birthday"_L1,           kSingle},
    {"Notes"_L1,              kSingle},
};
// clang-format on

void addAddressGroup(CsvRow& header, const QString& prefix)
{
    static constexpr std::array kParts{
        "%1 Street"_L1, "%1 City"_L1, "%1 State"_L1, "%1 Postal Code"_L1, "%1 Country/Region"_L1};
    for (const QLatin1String part : kParts) {
        header.add(filled(part, prefix));
    }
}

void addColumn(CsvRow& header, const Column& column, int number)
{
    const QString digits = QString::number(number);
    if (column.width == kAddressGroup) {
        const QString prefix = column.name.left(column.name.indexOf(" Address"_L1));
        addAddressGroup(header, number == 1 ? prefix : filled("%1 %2"_L1, prefix, digits));
    } else if (number == 1) {
        header.add(column.name);
    } else if (column.name == "E-mail Address"_L1) {
        header.add(filled("E-mail %1 Address"_L1, digits));
    } else {
        header.add(filled("%1 %2"_L1, column.name, digits));
    }
}

FieldMap contactToRecord(const PRContactItem& contact)
{
    FieldMap record;
    forEachField(s_outlookFields, [&](const FieldRow<FieldHandler>& field) {
        record.insert(field.key, field.handler(field.key, contact));
    });
    return record;
}

// The first column or group of each kind is there for no contact as well. Numbers begin with 2.
QString buildHeaderRow()
{
    CsvRow header;
    for (const Column& column : kColumns) {
        addColumn(header, column, 1);
        for (int number = 2; number <= s_outlookMaxCounts.value(column.name); ++number) {
            addColumn(header, column, number);
        }
    }
    return header.line();
}

// An address group that no contact fills has five columns in the header and one field in the row:
// what follows stands four columns to the left of its header.
QString buildRow(const FieldMap& record)
{
    CsvRow row;
    for (const Column& column : kColumns) {
        const QString value = record.value(column.name);
        if (column.width == kSingle) {
            row.add(value);
        } else {
            row.addPadded(value, column.width * s_outlookMaxCounts.value(column.name));
        }
    }
    return row.line();
}

constexpr CsvLayout kCsv{
    .maxCounts = &s_outlookMaxCounts,
    .contactToRecord = contactToRecord,
    .buildHeaderRow = buildHeaderRow,
    .buildRow = buildRow,
};

} // namespace

ExportCSVFile_Outlook::ExportCSVFile_Outlook(QObject* parent) : QObject(parent)
{
}

int ExportCSVFile_Outlook::exportContacts(
    PRData* data, const QDir& dir, const QString& ownerName, const QString& categoryName)
{
    m_data = data;
    const QString path = makeFilePath(dir, ownerName, categoryName);
    if (path.isEmpty()) {
        return 0;
    }
    return writeFile(OneFile, path) != 0 ? 1 : 0;
}

QString ExportCSVFile_Outlook::makeFilePath(
    const QDir& dir, const QString& ownerName, const QString& categoryName) const
{
    if (!kLayout.makeFolder(dir, categoryName)) {
        return {};
    }
    return kLayout.filePath(dir, ownerName, categoryName, tr("for Outlook"));
}

int ExportCSVFile_Outlook::writeFile(InterchangeWriteMode mode, const QString& path)
{
    return writeCsvFile(kCsv, mode, path, *m_data, m_records);
}
