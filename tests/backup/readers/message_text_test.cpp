// SPDX-License-Identifier: MIT
#include "backup/readers/message_text.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

TEST(ShownText, LeavesTheMarksOfAttachmentsOut)
{
    struct Row {
        const char* what;
        std::string_view stored;
        const char* shown;
    };
    static constexpr Row kRows[] = {
        {"no mark", "  Hi\n", "  Hi\n"},
        {"nothing", "", ""},
        {"a mark alone", "\xEF\xBF\xBC", ""},
        {"the mark of an app", "\xEF\xBF\xBD", ""},
        {"marks and blanks", "\xEF\xBF\xBC \n\xEF\xBF\xBC", ""},
        {"text behind", "\xEF\xBF\xBCHi", "Hi"},
        {"text before and behind", "Look: \xEF\xBF\xBC and \xEF\xBF\xBC", "Look:\nand"},
        {"another character that begins alike", "\xEF\xBC\xA1 \xEF\xBF\xA5", "Ａ ￥"},
        {"a byte that is no UTF-8 stays as a replacement", "Ol\xE9!", "Ol\xEF\xBF\xBD!"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(backup::shownText(row.stored), QString::fromUtf8(row.shown));
    }
}

// What an app's message archives, as a property list with the references already in it.
QByteArray archive(const QByteArray& objects)
{
    return R"(<?xml version="1.0"?><plist version="1.0"><dict>
        <key>$archiver</key><string>NSKeyedArchiver</string><key>$version</key><integer>100000</integer>
        <key>$top</key><dict><key>root</key><dict><key>CF$UID</key><integer>1</integer></dict></dict>
        <key>$objects</key><array><string>$null</string>)"
           + objects + "</array></dict></plist>";
}

TEST(AppMessageText, TakesLabelThenCaptionThenAddressThenNameOfTheApp)
{
    struct Row {
        const char* what;
        const char* objects;
        const char* text;
    };
    static constexpr Row kRows[] = {
        {"label",
            "<dict><key>ldtext</key><string>Gift</string><key>an</key><string>Shop</string></dict>",
            "Gift"},
        {"caption",
            "<dict><key>userInfo</key><dict><key>caption</key><string>Lunch</string></dict>"
            "<key>an</key><string>Shop</string></dict>",
            "Lunch"},
        {"subcaption",
            "<dict><key>userInfo</key><dict><key>subcaption</key><string>At "
            "one</string></dict></dict>",
            "At one"},
        {"address",
            "<dict><key>URL</key><string>https://example.org/</string><key>an</key><string>Shop</"
            "string></dict>",
            "https://example.org/"},
        {"name", "<dict><key>an</key><string>Shop</string></dict>", "Shop"},
        {"nothing", "<dict/>", "App message"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(backup::appMessageText("com.example.app", archive(row.objects)), row.text);
    }
}

TEST(AppMessageText, NamesTheAppsOfThePhone)
{
    struct Row {
        const char* bundle;
        const char* text;
    };
    static constexpr Row kRows[] = {
        {"com.apple.Handwriting.HandwritingProvider", "Handwritten message"},
        {"com.apple.DigitalTouchBalloonProvider", "Digital Touch message"},
        {"com.apple.messages.MSMessageExtensionBalloonPlugin:0000000000:"
         "com.apple.PassbookUIService.PeerPaymentMessagesExtension",
            "Payment"},
        {"com.apple.findmy.FindMyMessagesApp", "Location"},
        {"com.apple.ActivityMessagesApp.MessagesExtension", "Fitness message"},
        {"com.apple.mobileslideshow.PhotosMessagesApp", "Shared photos"},
        {"com.apple.SafetyMonitorApp.SafetyMonitorMessages", "Check In"},
        {"com.apple.messages.Polls", "Poll"},
        {"", "App message"},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(backup::appMessageText(row.bundle, QByteArray("damaged")), row.text);
    }
}

TEST(AppMessageText, OfALinkIsItsAddress)
{
    const QByteArray payload =
        archive("<dict><key>richLinkMetadata</key><dict>"
                "<key>URL</key><string>https://example.org/b</string>"
                "<key>originalURL</key><string>https://example.org/a</string></dict></dict>");
    EXPECT_EQ(backup::appMessageText("com.apple.messages.URLBalloonProvider", payload),
        "https://example.org/a");
}

TEST(EditHistory, IsEmptyForADamagedSummary)
{
    const backup::EditHistory history = backup::readEditHistory("damaged");
    EXPECT_TRUE(history.earlier.isEmpty());
    EXPECT_TRUE(history.current.isEmpty());
    EXPECT_FALSE(history.partsUnsent);
}

} // namespace
