// SPDX-License-Identifier: MIT
#include "model/PRContactItem.h"

#include <QString>

#include <gtest/gtest.h>

TEST(PRContactItem, HasItsContentsUnderTheirNames)
{
    ContactContent content;
    content.namePrefix = "Dr";
    content.firstName = "Anna";
    content.lastName = "Meier";
    content.organizationPronunciation = "spoken";
    content.birthday = "-978307200";
    content.photo = "bytes";
    content.altBirthday = {.type = 2, .label = "lunar", .desc = "5th of the 5th"};
    const PRContactItem item({.values = {"Anna Meier"}}, std::move(content));
    EXPECT_EQ(item.value(0), "Anna Meier");
    ASSERT_NE(item.detailContent(), nullptr);
    const PRContactPrivate& contact = *item.detailContent();
    EXPECT_EQ(contact.namePrefix, "Dr");
    EXPECT_EQ(contact.firstName, "Anna");
    EXPECT_EQ(contact.lastName, "Meier");
    EXPECT_EQ(contact.middleName, "");
    EXPECT_EQ(contact.organizationPronunciation, "spoken");
    EXPECT_EQ(contact.birthday, "-978307200");
    EXPECT_EQ(contact.photo, "bytes");
    EXPECT_EQ(contact.getAltBirthdayType(), 2);
    EXPECT_EQ(contact.getAltBirthdayLabel(), "lunar");
    EXPECT_EQ(contact.getAltBirthdayDesc(), "5th of the 5th");
}

TEST(PRContactItem, IsEmptyByDefault)
{
    const PRContactItem item;
    EXPECT_TRUE(item.detailContent()->properties().isEmpty());
    EXPECT_EQ(item.detailContent()->getAltBirthdayType(), 0);
    EXPECT_TRUE(item.detailContent()->photo.isEmpty());
}

TEST(PRContactItem, KeepsItsPropertiesInOrder)
{
    ContactContent content;
    content.propertyList.emplace_back(
        ContactProperty{.type = Phone, .label = "_$!<Mobile>!$_", .value = "+49 1"});
    content.propertyList.emplace_back(
        ContactProperty{.type = Address, .label = "home", .entry = {{"City", "Bonn"}}});
    const PRContactItem item({}, std::move(content));
    const QList<PRContactProperty*>& properties = item.detailContent()->properties();
    ASSERT_EQ(properties.size(), 2);
    EXPECT_EQ(properties.at(0)->propType(), 3);
    EXPECT_EQ(properties.at(0)->propLabel(), "_$!<Mobile>!$_");
    EXPECT_EQ(properties.at(0)->propValue(), "+49 1");
    EXPECT_TRUE(properties.at(0)->propValueEntry().isEmpty());
    EXPECT_EQ(properties.at(1)->propType(), 5);
    EXPECT_EQ(properties.at(1)->propValue(), "");
    EXPECT_EQ(properties.at(1)->propValueEntry().value("City"), "Bonn");
}

TEST(PRContactItem, NumbersOfThePropertiesAreFixed)
{
    EXPECT_EQ(Phone, 3);
    EXPECT_EQ(Email, 4);
    EXPECT_EQ(Address, 5);
    EXPECT_EQ(Date, 12);
    EXPECT_EQ(InstantMessage, 13);
    EXPECT_EQ(WebAddress, 22);
    EXPECT_EQ(RelatedName, 23);
    EXPECT_EQ(SocialProfile, 46);
}

namespace {

class LoadedContact final : public PRContactItem {
public:
    LoadedContact() : PRContactItem({.values = {"Anna"}}) { m_loaded.firstName = "Anna"; }
    const PRContactPrivate* detailContent() const override { return &m_loaded; }

private:
    PRContactPrivate m_loaded;
};

} // namespace

TEST(PRContactItem, ReaderMayLoadItsContents)
{
    const LoadedContact item;
    const PRContactItem& contact = item;
    EXPECT_EQ(contact.value(0), "Anna");
    EXPECT_EQ(contact.detailContent()->firstName, "Anna");
}
