// SPDX-License-Identifier: MIT
#include "model/PRContactItem.h"
#include "translators/contact/VCard.h"

#include <gtest/gtest.h>

namespace {

TEST(VCardText, EndsInThreeLineEnds)
{
    EXPECT_EQ(
        VCard(PRContactPrivate()).end(), "BEGIN:VCARD\r\nVERSION:2.1\r\nEND:VCARD\r\n\r\n\r\n");
}

TEST(VCardText, MakesALineOfPartsAsTheyAre)
{
    VCard card{PRContactPrivate()};
    card.addLine("A"_L1, QString(":b\n%1"), "c"_L1);
    card.addLine();
    EXPECT_EQ(card.end(), "BEGIN:VCARD\r\nVERSION:2.1\r\nA:b\n%1c\r\n\r\nEND:VCARD\r\n\r\n\r\n");
}

TEST(VCardText, HasRoomForPhotoAndNoteFromTheStart)
{
    const ContactContent content{.note = QString(100'000, 'x'), .photo = QByteArray(100'000, 'x')};
    VCard card{PRContactPrivate(content)};
    const int room = card.end().capacity(); // a shorter card: what is asked for does not grow
    VCard full{PRContactPrivate(content)};
    full.addPhoto(content.photo);
    full.addLine(content.note);
    EXPECT_EQ(full.end().capacity(), room);
}

} // namespace
