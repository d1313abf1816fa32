// SPDX-License-Identifier: MIT
// Both CSV files of contacts as tests look at them.
#pragma once

#include "model/PRData.h"
#include "translators/contact/contact_builder.h"
#include "translators/contact/text_sink.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

/// The rows of the selected contacts: the names, then one for each contact.
template <typename Translator> QStringList rowsOf(RecordList records)
{
    PRContactData data(std::move(records));
    TextSink sink;
    EXPECT_TRUE(Translator(&data).translate(&sink, "T", nullptr));
    return sink.writes();
}

template <typename Translator> QStringList rowsOf(std::vector<ContactContent> contents)
{
    return rowsOf<Translator>(contactsOf(std::move(contents)));
}

/// The cells of a row that has neither commas nor quotes in its texts.
inline QStringList cellsOf(QString row)
{
    EXPECT_TRUE(row.endsWith("\n"));
    row.chop(1);
    QStringList cells = row.split(',');
    for (QString& cell : cells) {
        if (cell.startsWith('"') && cell.endsWith('"')) {
            cell = cell.mid(1).chopped(1);
        }
    }
    return cells;
}

/// The filled cells of a contact that stands alone in its file, by their columns.
template <typename Translator> QMap<QString, QString> filledCells(ContactContent content)
{
    std::vector<ContactContent> contents;
    contents.push_back(std::move(content));
    const QStringList rows = rowsOf<Translator>(std::move(contents));
    const QStringList names = cellsOf(rows.value(0));
    const QStringList cells = cellsOf(rows.value(1));
    EXPECT_EQ(rows.size(), 2);
    EXPECT_EQ(names.size(), cells.size());
    QMap<QString, QString> filled;
    for (int i = 0; i < cells.size(); ++i) {
        if (!cells.at(i).isEmpty()) {
            filled.insert(names.at(i), cells.at(i));
        }
    }
    return filled;
}

/// A text for each member of a contact, and each member of another class: who is swapped shows.
inline ContactContent everyText()
{
    ContactContent content;
    content.namePrefix = "Dr.";
    content.firstName = "Mia";
    content.middleName = "Ann";
    content.lastName = "Berg";
    content.nameSuffix = "jr.";
    content.firstPhonetic = "mi-a";
    content.lastPhonetic = "beh-rg";
    content.middlePhonetic = "an";
    content.organizationPhonetic = "ak-me";
    content.firstPronunciation = "p1";
    content.lastPronunciation = "p2";
    content.middlePronunciation = "p3";
    content.organizationPronunciation = "p4";
    content.previousFamilyName = "Tal";
    content.nickname = "Mimi";
    content.jobTitle = "Pilot";
    content.department = "Flight";
    content.organization = "Acme";
    content.birthday = "-496195200"; // 1985-04-12
    content.note = "Likes tea";
    content.photo = "bytes";
    content.altBirthday = {.type = 1, .label = "lunar", .desc = "2-23"};
    return content;
}
