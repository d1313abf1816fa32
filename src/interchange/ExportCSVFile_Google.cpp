// SPDX-License-Identifier: MIT
// A header, then one row for each contact, ended by CR LF. Nothing is quoted. Each kind of value
// has as many groups of columns as the contact with the most of them needs:
//
//   Name,Given Name,...,Group Membership,E-mail 1 - Type,E-mail 1 - Value,E-mail 2 - Type,...
//   Luna:Mia;;;,,...,,HOME,mia@example.org,,,...
#include "interchange/ExportCSVFile_Google.h"

#include "interchange/InterchangeLayout.h"
#include "interchange/contact_values.h"
#include "interchange/csv_file.h"
#include "interchange/field_tables.h"
#include "model/PRContactItem.h"
#include "platform/literals.h"

#include <QStringList>

namespace {

using FieldHandler = QString (*)(const PRContactItem& contact);

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): the format counts per process
CountMap s_googleMaxCounts;

constexpr const InterchangeLayout& kLayout = kGoogleLayout;

template <auto kField> QString plain(const PRContactItem& contact)
{
    return kLayout.escapeValue(contact.detailContent()->*kField);
}

QString empty(const PRContactItem& /*contact*/)
{
    return {};
}

QString composedName(const PRContactItem& contact)
{
    const PRContactPrivate& content = *contact.detailContent();
    return filled("%1:%2;%3;%4;%5"_L1, kLayout.escapeValue(content.lastName),
        kLayout.escapeValue(content.firstName), kLayout.escapeValue(content.middleName),
        kLayout.escapeValue(content.namePrefix), kLayout.escapeValue(content.nameSuffix));
}

// "--05-31": the year is dropped.
QString yearlyDate(const QString& secondsSince2001)
{
    return filled("--%1"_L1, dayText(secondsSince2001, "yyyy-MM-dd"_L1));
}

QString birthday(const PRContactItem& contact)
{
    const QString& seconds = contact.detailContent()->birthday;
    return seconds.isEmpty() ? QString() : yearlyDate(seconds);
}

template <typename ValuesOf>
QString series(const PRContactItem& contact, PropType kind, const QString& name, ValuesOf valuesOf)
{
    return seriesOf(contact, kind, s_googleMaxCounts, name, valuesOf).join(QChar(u','));
}

QString shownLabel(QLatin1String family, const PRContactProperty& property)
{
    return kLayout.displayLabel(family, labelOrType(property));
}

// Type and Value of each property of a kind.
QString labelledValues(
    const PRContactItem& contact, PropType kind, const QString& name, QLatin1String family)
{
    return series(contact, kind, name, [family](const PRContactProperty& property) -> QStringList {
        return {shownLabel(family, property), kLayout.escapeValue(property.propValue())};
    });
}

// Unlike those of other kinds, the label of an e-mail is escaped once more: a label of one's own
// has its backslashes and semicolons escaped twice.
QString emails(const PRContactItem& contact)
{
    const QString name = QStringLiteral("E-mail");
    return series(contact, Email, name, [](const PRContactProperty& email) -> QStringList {
        return {kLayout.escapeValue(shownLabel("EMAIL"_L1, email)),
            kLayout.escapeValue(email.propValue())};
    });
}

QString phones(const PRContactItem& contact)
{
    return labelledValues(contact, Phone, QStringLiteral("Phone"), "TEL"_L1);
}

// The country is its code. Of all parts the street alone is cleaned; a comma in another stays.
QString addresses(const PRContactItem& contact)
{
    const QString name = QStringLiteral("Address");
    return series(contact, Address, name, [](const PRContactProperty& address) -> QStringList {
        return {
            shownLabel("ADR"_L1, address),
            QString(), // formatted
            kLayout.cleanAddressText(kLayout.subValue(address, "Street"_L1)),
            kLayout.subValue(address, "City"_L1),
            QString(), // PO box
            kLayout.subValue(address, "State"_L1),
            kLayout.subValue(address, "ZIP"_L1),
            kLayout.subValue(address, "CountryCode"_L1),
            kLayout.subValue(address, "SubLocality"_L1),
        };
    });
}

// Unescaped. Eight columns, of which five are always empty.
QString organization(const PRContactItem& contact)
{
    const PRContactPrivate& content = *contact.detailContent();
    return filled(",%1,,%2,%3,,,"_L1, content.organization, content.jobTitle, content.department);
}

QString relations(const PRContactItem& contact)
{
    return labelledValues(contact, RelatedName, QStringLiteral("Relation"), "X-RSH"_L1);
}

QString websites(const PRContactItem& contact)
{
    return labelledValues(contact, WebAddress, QStringLiteral("Website"), "URL"_L1);
}

// Instant messengers, unescaped.
QString customFields(const PRContactItem& contact)
{
    const QString name = QStringLiteral("Custom_Field");
    return series(
        contact, InstantMessage, name, [](const PRContactProperty& account) -> QStringList {
            return {
                kLayout.subValue(account, "service"_L1), kLayout.subValue(account, "username"_L1)};
        });
}

// The dates stand in the note, without their labels, yet they are counted: the columns "Event" are
// made for them and stay empty.
QString eventLine(const PRContactItem& contact)
{
    const QString name = QStringLiteral("Event");
    const QStringList days = seriesOf(
        contact, Date, s_googleMaxCounts, name, [](const PRContactProperty& date) -> QStringList {
            return {yearlyDate(date.propValue())};
        });
    return days.isEmpty()
               ? QString()
               : filled(kLayout.noteLine, "Commemoration Day"_L1, days.join(QChar(u'/')));
}

QString notes(const PRContactItem& contact)
{
    const bool complete = holdsNoteBlock(contact.detailContent()->note);
    return csvNote(kLayout, contact, complete ? QString() : eventLine(contact));
}

using C = ContactContent;

// Notes stand last, so that the dates of a contact are counted when its record is complete.
// clang-format off
const FieldRow<FieldHandler> s_googleFields[] = {
    {"Name"_L1,                 composedName},
    {"Given_Name"_L1,           plain<&C::firstName>},
    {"Additional_Name"_L1,      plain<&C::middleName>},
    {"Family_Name"_L1,          plain<&C::lastName>},
    {"Yomi_Name"_L1,            empty},
    {"Given_Name_Yomi"_L1,      plain<&C::firstPhonetic>},
    {"Additional_Name_Yomi"_L1, plain<&C::middlePhonetic>},
    {"Family_Name_Yomi"_L1,     plain<&C::lastPhonetic>},
    {"Name_Prefix"_L1,          plain<&C::namePrefix>},
    {"Name_Suffix"_L1,          plain<&C::nameSuffix>},
    {"Initials"_L1,             empty},
    {"Nickname"_L1,             plain<&C::nickname>},
    {"Short_Name"_L1,           empty},
    {"Maiden_Name"_L1,          empty},
    {"Birthday"_L1,             birthday},
    {"Gender"_L1,               empty},
    {"Location"_L1,             empty},
    {"Billing_Information"_L1,  empty},
    {"Directory_Server"_L1,     empty},
    {"Mileage"_L1,              empty},
    {"Occupation"_L1,           empty},
    {"Hobby"_L1,                empty},
    {"Sensitivity"_L1,          empty},
    {"Priority"_L1,             empty},
    {"Subject"_L1,              empty},
    {"Language"_L1,             empty},
    {"Photo"_L1,                empty},
    {"Group_Membership"_L1,     empty},
    {"E-mail"_L1,               emails},
    {"Phone"_L1,                phones},
    {"Address"_L1,              addresses},
    {"Organization"_L1,         organization},
    {"Relation"_L1,             relations},
    {"Website"_L1,              websites},
    {"Custom_Field"_L1,         customFields},
    {"Notes"_L1,                notes},
    {QString(),                 nullptr},
};
// clang-format on

// A row looks its fields up under these names. "Given Name" is not "Given_Name": what has a blank
// in its name is never found and stays empty in every row. The format is so.
const QString kFixedColumns[] = {
    "Name"_L1,
    "Given Name"_L1,
    "Additional Name"_L1,
    "Family Name"_L1,
    "Yomi Name"_L1,
    "Given Name Yomi"_L1,
    "Additional Name Yomi"_L1,
    "Family Name Yomi"_L1,
    "Name Prefix"_L1,
    "Name Suffix"_L1,
    "Initials"_L1,
    "Nickname"_L1,
    "Short Name"_L1,
    "Maiden Name"_L1,
    "Birthday"_L1,
    "Gender"_L1,
    "Location"_L1,
    "Billing Information"_L1,
    "Directory Server"_L1,
    "Mileage"_L1,
    "Occupation"_L1,
    "Hobby"_L1,
    "Sensitivity"_L1,
    "Priority"_L1,
    "Subject"_L1,
    "Notes"_L1,
    "Language"_L1,
    "Photo"_L1,
    "Group Membership"_L1,
};

struct Series {
    QString name;        // also the key of the record
    QStringList columns; // of one value
    bool once = false;   // one value, always there, never padded
};

const Series kSeries[] = {
    {"E-mail"_L1, {"E-mail %1 - Type"_L1, "E-mail %1 - Value"_L1}},
    {"Phone"_L1, {"Phone %1 - Type"_L1, "Phone %1 - Value"_L1}},
    {"Address"_L1, {"Address %1 - Type"_L1, "Address %1 - Formatted"_L1, "Address %1 - Street"_L1,
                       "Address %1 - City"_L1, "Address %1 - PO Box"_L1, "Address %1 - Region"_L1,
                       "Address %1 - Postal Code"_L1, "Address %1 - Country"_L1,
                       "Address %1 - Extended Address"_L1}},
    {"Organization"_L1,
        {"Organization %1 - Type"_L1, "Organization %1 - Name"_L1, "Organization %1 - Yomi Name"_L1,
            "Organization %1 - Title"_L1, "Organization %1 - Department"_L1,
            "Organization %1 - Symbol"_L1, "Organization %1 - Location"_L1,
            "Organization %1 - Job Description"_L1},
        true},
    {"Relation"_L1, {"Relation %1 - Type"_L1, "Relation %1 - Value"_L1}},
    {"Website"_L1, {"Website %1 - Type"_L1, "Website %1 - Value"_L1}},
    {"Event"_L1, {"Event %1 - Type"_L1, "Event %1 - Value"_L1}},
    {"Custom_Field"_L1, {"Custom Field %1 - Type"_L1, "Custom Field %1 - Value"_L1}},
};

FieldMap contactToRecord(const PRContactItem& contact)
{
    FieldMap record;
    forEachField(s_googleFields, [&](const FieldRow<FieldHandler>& field) {
        record.insert(field.key, field.handler(contact));
    });
    return record;
}

void addGroup(CsvRow& header, const Series& series, int number)
{
    for (const QString& column : series.columns) {
        header.add(column.arg(number));
    }
}

QString buildHeaderRow()
{
    CsvRow header;
    for (const QString& column : kFixedColumns) {
        header.add(column);
    }
    for (const Series& series : kSeries) {
        const int groups = series.once ? 1 : s_googleMaxCounts.value(series.name);
        for (int number = 1; number <= groups; ++number) {
            addGroup(header, series, number);
        }
    }
    return header.line();
}

// A series that no contact has still gives one empty field, for which the header has no column.
QString buildRow(const FieldMap& record)
{
    CsvRow row;
    for (const QString& column : kFixedColumns) {
        row.add(record.value(column));
    }
    for (const Series& series : kSeries) {
        const int groups = series.once ? 0 : s_googleMaxCounts.value(series.name);
        row.addPadded(record.value(series.name), series.columns.size() * groups);
    }
    return row.line();
}

constexpr CsvLayout kCsv{
    .maxCounts = &s_googleMaxCounts,
    .contactToRecord = contactToRecord,
    .buildHeaderRow = buildHeaderRow,
    .buildRow = buildRow,
};

} // namespace

ExportCSVFile_Google::ExportCSVFile_Google(QObject* parent) : QObject(parent)
{
}

int ExportCSVFile_Google::exportContacts(
    PRData* data, const QDir& dir, const QString& ownerName, const QString& categoryName)
{
    m_data = data;
    const QString path = makeFilePath(dir, ownerName, categoryName);
    if (path.isEmpty()) {
        return 0;
    }
    return writeFile(OneFile, path) != 0 ? 1 : 0;
}

QString ExportCSVFile_Google::makeFilePath(
    const QDir& dir, const QString& ownerName, const QString& categoryName) const
{
    if (!kLayout.makeFolder(dir, categoryName)) {
        return {};
    }
    return kLayout.filePath(dir, ownerName, categoryName, tr("for Google"));
}

int ExportCSVFile_Google::writeFile(InterchangeWriteMode mode, const QString& path)
{
    return writeCsvFile(kCsv, mode, path, *m_data, m_records);
}
