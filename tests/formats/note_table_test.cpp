// SPDX-License-Identifier: MIT
#include "formats/gzip.h"
#include "formats/note_body.h"
#include "maker/note_bodies.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <note_body.pb.h>
#include <random>

namespace {

using formats::NoteTable;
using formats::proto::TableStore;

std::span<const unsigned char> spanOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const unsigned char*>(bytes.constData()),
        static_cast<std::size_t>(bytes.size())};
}

formats::Result<NoteTable> parsed(const QByteArray& bytes)
{
    return formats::parseNoteTable(spanOf(bytes));
}

formats::Result<NoteTable> parsed(const TableStore& store)
{
    return parsed(sample::gzipped(QByteArray::fromStdString(store.SerializeAsString())));
}

TableStore storeOf(const std::vector<QStringList>& rows)
{
    TableStore store;
    const auto plain = formats::inflated(spanOf(sample::noteTable(rows)), 1 << 20);
    EXPECT_TRUE(store.ParseFromArray(plain->constData(), plain->size()));
    return store;
}

const std::vector<QStringList> kRows{{"a", "b", "c"}, {"d", "", "f"}};

TEST(NoteTable, HasRowsAndColumns)
{
    const auto table = parsed(sample::noteTable(kRows));
    ASSERT_TRUE(table);
    EXPECT_EQ(*table, (NoteTable{{"a", "b", "c"}, {"d", "", "f"}}));
}

TEST(NoteTable, RowsStandInTheOrderOfTheirPlaces)
{
    TableStore store = storeOf(kRows);
    for (auto& object : *store.mutable_document()->mutable_objects()->mutable_object()) {
        auto& places = *object.mutable_ordered()->mutable_ordering()->mutable_places();
        if (places.place_size() == 2) { // the rows
            places.mutable_place()->SwapElements(0, 1);
        }
    }
    const auto table = parsed(store);
    ASSERT_TRUE(table);
    EXPECT_EQ(*table, (NoteTable{{"d", "", "f"}, {"a", "b", "c"}}));
}

TEST(NoteTable, WithoutItsOrderIsTheListOfItsTexts)
{
    TableStore store = storeOf(kRows);
    store.mutable_document()->mutable_objects()->clear_key();
    const auto table = parsed(store);
    ASSERT_TRUE(table);
    EXPECT_EQ(*table, (NoteTable{{"a"}, {"d"}, {"b"}, {"c"}, {"f"}}));
}

TEST(NoteTable, WithoutTextsIsAnError)
{
    EXPECT_FALSE(parsed(TableStore()));
    EXPECT_FALSE(parsed(storeOf({{"", ""}})));
    EXPECT_FALSE(parsed(QByteArray("no gzip")));
}

TEST(NoteTable, OfTooManyCellsIsNotBuilt)
{
    TableStore store = storeOf({{"only text"}});
    for (auto& object : *store.mutable_document()->mutable_objects()->mutable_object()) {
        auto& places = *object.mutable_ordered()->mutable_ordering()->mutable_places();
        for (int more = 0; places.place_size() == 1 + more && more < 2000; ++more) {
            *places.add_place() = places.place(0);
        }
    }
    const auto table = parsed(store);
    ASSERT_TRUE(table);
    EXPECT_EQ(*table, (NoteTable{{"only text"}}));
}

bool isRectangular(const NoteTable& table)
{
    return std::ranges::all_of(
        table, [&](const auto& row) { return row.size() == table.front().size(); });
}

TEST(NoteTable, SurvivesChangedBytes)
{
    const auto sound = formats::inflated(spanOf(sample::noteTable(kRows)), 1 << 20);
    ASSERT_TRUE(sound);
    std::mt19937 random(29);
    int read = 0;
    for (int round = 0; round < 5'000; ++round) {
        QByteArray changed = *sound;
        for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
            changed[static_cast<int>(random() % static_cast<unsigned>(changed.size()))] =
                static_cast<char>(random());
        }
        if (const auto table = parsed(sample::gzipped(changed))) {
            ++read;
            ASSERT_TRUE(isRectangular(*table));
        }
    }
    EXPECT_GT(read, 100);
}

} // namespace
