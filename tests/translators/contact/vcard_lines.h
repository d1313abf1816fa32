// SPDX-License-Identifier: MIT
// Both kinds of vCards as tests look at them.
#pragma once

#include "model/PRData.h"
#include "translators/contact/contact_builder.h"
#include "translators/contact/text_sink.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

/// What the translator makes of one contact.
template <typename Translator>
QString cardOf(Translator& translator, ContactContent content, const QString& name = {})
{
    TextSink sink;
    EXPECT_TRUE(translator.writeItem(&sink, contactOf(std::move(content), name).get()));
    EXPECT_EQ(sink.writes().size(), 1);
    EXPECT_EQ(sink.otherCalls(), QStringList());
    return sink.writes().value(0);
}

/// The same without what every card has.
template <typename Translator>
std::string linesOf(Translator& translator, ContactContent content, const QString& name = {})
{
    const QString card = cardOf(translator, std::move(content), name);
    const QString begin = "BEGIN:VCARD\r\nVERSION:2.1\r\n";
    const QString end = "END:VCARD\r\n\r\n\r\n";
    EXPECT_TRUE(card.startsWith(begin) && card.endsWith(end)) << card.toStdString();
    return card.mid(begin.size()).chopped(end.size()).toStdString();
}

/// A contact that has all that can have a line, by an order that is not that of the lines.
inline ContactContent everything()
{
    ContactContent content = holding({
        plain(RelatedName, "_$!<Mother>!$_", "Eva"),
        composite(SocialProfile, "_$!<Home>!$_", {{"service", "twitter"}, {"username", "mia"}}),
        composite(InstantMessage, "_$!<Home>!$_", {{"service", "Skype"}, {"username", "mia.h"}}),
        plain(Date, "_$!<Anniversary>!$_", "297043200"), // 2010-06-01
        plain(WebAddress, "_$!<HomePage>!$_", "https://a.example"),
        plain(Email, "_$!<Work>!$_", "mia@a.example"),
        plain(Phone, "_$!<Mobile>!$_", "+49 171"),
        plain(Phone, "_$!<WorkFAX>!$_", "+49 30"),
        composite(Address, "_$!<Home>!$_", {{"City", "B"}, {"Street", "A"}, {"CountryCode", "de"}}),
        plain(16, "a", "b"),
    });
    content.namePrefix = "Dr.";
    content.firstName = "Mia";
    content.middleName = "Anna";
    content.lastName = "Huber";
    content.nameSuffix = "jun.";
    content.firstPhonetic = "mi-a";
    content.lastPhonetic = "hu-ber";
    content.previousFamilyName = "Tal";
    content.nickname = "Mimi";
    content.jobTitle = "Pilot";
    content.department = "Flight";
    content.organization = "Sky Ltd";
    content.birthday = "-496195200"; // 1985-04-12
    content.note = "Tea";
    content.photo = QByteArray("\xff\xd8\xff\xe0", 4);
    content.altBirthday = {.type = 1, .label = "lunar", .desc = "2-23"};
    return content;
}
