// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRContactItem.h"
#include "model/PRData.h"
#include "support/temp_tree.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>
#include <utility>
#include <vector>

/// Short ways to make contacts, and to export them as Anna's Contacts.
namespace contacts {

inline ContactProperty plain(int type, const QString& label, const QString& value)
{
    return {.type = type, .label = label, .value = value};
}

inline ContactProperty composite(
    int type, const QMap<QString, QString>& entry, const QString& label = {})
{
    return {.type = type, .label = label, .entry = entry};
}

inline ContactContent with(const std::vector<ContactProperty>& properties)
{
    ContactContent content;
    for (const ContactProperty& property : properties) {
        content.propertyList.emplace_back(property);
    }
    return content;
}

inline RecordList records(std::vector<ContactContent> contents)
{
    RecordList list;
    for (ContactContent& content : contents) {
        list.push_back(std::make_unique<PRContactItem>(Record{}, std::move(content)));
    }
    return list;
}

/// "Contacts/CSV/Anna's Contacts for Google.csv", below a tree.
inline const QString kGoogleFile = "Contacts/CSV/Anna's Contacts for Google.csv";
inline const QString kOutlookFile = "Contacts/CSV/Anna's Contacts for Outlook.csv";
inline const QString kICloudFile = "Contacts/VCF/Anna's Contacts for iCloud.vcf";
inline const QString kMacFile = "Contacts/VCF/Anna's Contacts for Mac.vcf";

template <typename Exporter> int exportInto(const support::TempTree& tree, PRData& data)
{
    Exporter exporter(nullptr);
    return exporter.exportContacts(&data, tree.dir(), "Anna", "Contacts");
}

/// The whole file that an exporter writes for the contacts.
template <typename Exporter>
QString exported(const QString& file, std::vector<ContactContent> contents)
{
    const support::TempTree tree;
    PRContactData data(records(std::move(contents)));
    EXPECT_EQ(exportInto<Exporter>(tree, data), 0);
    return QString::fromUtf8(tree.read(file));
}

/// Its lines, without their ends; the last must have one too.
template <typename Exporter>
QStringList exportedLines(const QString& file, std::vector<ContactContent> contents)
{
    QStringList lines = exported<Exporter>(file, std::move(contents)).split("\r\n");
    EXPECT_EQ(lines.last(), "");
    lines.removeLast();
    return lines;
}

inline QString commas(int count)
{
    return {count, ','};
}

/// Everything that a contact can have, with a comma, a semicolon or a line break here and there.
inline ContactContent rich()
{
    ContactContent content = with({
        plain(Email, "_$!<Home>!$_", "mia@example.org"),
        plain(Phone, "_$!<Mobile>!$_", "+49 171 5550101"),
        composite(InstantMessage, {{"service", "Skype"}, {"username", "mia;1"}}),
        plain(Phone, "_$!<Assistant>!$_", "030;5"),
        plain(Email, "", "luna@example.com"),
        composite(Address,
            {{"Street", "12 Main St., Apt 3\v2nd floor"}, {"City", "New York"}, {"State", "NY"},
                {"ZIP", "10001"}, {"Country", "USA"}, {"CountryCode", "us"},
                {"SubLocality", "Harlem"}},
            "_$!<Home>!$_"),
        plain(RelatedName, "_$!<Mother>!$_", "Eva"),
        plain(WebAddress, "_$!<HomePage>!$_", "https://luna.example/"),
        plain(Date, "_$!<Anniversary>!$_", "12960000"),
        composite(SocialProfile, {{"service", "twitter"}, {"url", "https://t.example/mia"}}),
    });
    content.namePrefix = "Dr";
    content.firstName = "Mia";
    content.middleName = "Ann";
    content.lastName = "Luna";
    content.nameSuffix = "Jr";
    content.firstPhonetic = "Mee";
    content.previousFamilyName = "Sol";
    content.nickname = "Mimi";
    content.jobTitle = "Cook";
    content.department = "R;D";
    content.organization = "Moon";
    content.birthday = "12960000"; // 31 May 2001
    content.note = "Likes\nstars";
    return content;
}

/// A contact with little beside a phone.
inline ContactContent plainOne()
{
    ContactContent content = with({plain(Phone, "_$!<Work>!$_", "110")});
    content.firstName = "Jörg";
    return content;
}

} // namespace contacts
