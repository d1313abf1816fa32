// SPDX-License-Identifier: MIT
#include "backup/readers/chat_lines.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace {

TEST(ChatLines, CallTellsWhoCalledHowAndHowLong)
{
    struct Row {
        backup::ChatCall call;
        const char* line = nullptr;
    };
    const std::array rows{
        Row{{.isMissed = true}, "Missed voice call"},
        Row{{.isVideo = true, .isMissed = true}, "Missed video call"},
        Row{{.seconds = 312}, "Incoming voice call (0:05:12)"},
        Row{{.isVideo = true}, "Incoming video call"},
        Row{{.isMissed = true, .caller = "Mia"}, "Mia: Missed voice call"},
        Row{{.fromMe = true}, "Outgoing voice call"},
        Row{{.isVideo = true, .fromMe = true, .seconds = 3600}, "Outgoing video call (1:00:00)"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(backup::callLine(row.call), row.line);
    }
}

TEST(ChatLines, PlaceHasItsNameAndItsCoordinates)
{
    struct Row {
        const char* what = nullptr;
        const char* name = "";
        double latitude = 0;
        double longitude = 0;
        const char* text = nullptr;
    };
    const std::array rows{
        Row{"coordinates", "", 52.5163, 13.3777, "52.5163, 13.3777"},
        Row{"with a name", "Pier 7", -33.8568, 151.2153, "Pier 7\n-33.8568, 151.2153"},
        Row{"a name alone", "Pier 7", 0, 0, "Pier 7"},
        Row{"on the equator", "", 0, 36.5, "0, 36.5"},
        Row{"unknown", "", 0, 0, ""},
        Row{"outside of the earth", "", 91, 0, ""},
        Row{"no number", "", NAN, 10, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(backup::locationText(row.name, row.latitude, row.longitude), row.text);
    }
}

TEST(ChatLines, NamesLoseMarksOfDirectionAndOuterBlanks)
{
    EXPECT_EQ(backup::plainName(QString::fromUtf8("\u2068نور\u2069\u200E ")), "نور");
    EXPECT_EQ(backup::plainName("\uFEFFMia Ann"), "Mia Ann");
}

TEST(ChatLines, NumberWithCountryHasItsPlus)
{
    struct Row {
        const char* number = nullptr;
        const char* shown = nullptr;
    };
    const std::array rows{
        Row{"491715550101", "+491715550101"},
        Row{"+49 171 5550101", "+49 171 5550101"},
        Row{"01715550101", "01715550101"},
        Row{"110", "110"},
        Row{"", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(backup::shownPhone(row.number), row.shown);
    }
}

TEST(DocumentName, IsTheSendersWithTheEndingOfTheFile)
{
    struct Row {
        const char* title = nullptr;
        const char* path = nullptr;
        const char* name = nullptr;
    };
    const std::vector<Row> rows{
        {"Tides.pdf", "a/1.pdf", "Tides.pdf"},
        {"Tides", "a/1.pdf", "Tides.pdf"},
        {"TIDES.PDF", "a/1.pdf", "TIDES.PDF"},
        {"Invoice No. 12", "a/1.pdf", "Invoice No. 12.pdf"},
        {"data.xyz", "a/1.xyz", "data.xyz"},
        {"Tides", "a.b/1", "Tides"},
        {"", "a/1.pdf", "1.pdf"},
        {"../../Tides", "a/1.pdf", "Tides.pdf"},
        {"Tides/", "a/1.pdf", "1.pdf"},
        {" High\nand low ", "1.pdf", "High and low.pdf"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.title);
        EXPECT_EQ(backup::documentName(row.title, row.path), row.name);
    }
}

} // namespace
