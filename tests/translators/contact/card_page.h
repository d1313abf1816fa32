// SPDX-License-Identifier: MIT
// The page of contacts as tests look at it.
#pragma once

#include "support/recording_page.h"
#include "translators/contact/CContact2HtmlTranslate.h"
#include "translators/contact/contact_builder.h"

#include <QBuffer>

#include <gtest/gtest.h>

/// A card from its begin to the end of its name.
inline QString cardBegin(const QString& name, const QString& picture = "default_contact.png")
{
    return R"(<div class="main nc"><div class="main-top"><div class="main-pic"><img src="image/)"
           + picture + R"(" /></div><div class="main-text"><div class="main-title">)" + name
           + "</div>";
}
/// The same of a deleted contact.
inline QString deletedCardBegin(const QString& name)
{
    return R"(<div class="main dc"><div class="main-top"><div class="main-pic">)"
           R"(<img src="image/default_contact.png" /></div><div class="main-text">)"
           R"(<div class="main-title"><img src='image/deleted.png'>)"
           + name + "</div>";
}
const QString kNoLines = "<p></p><p></p><p></p>";
const QString kTableBegin = "</div></div><table border=0 cellspacing=0 cellpadding=0>";
const QString kCardEnd = "</table></div>";

// Rows of texts that are already escaped.

inline QString heading(const QString& label)
{
    return R"(<tr class="group"><td colspan='2'>)" + label + "&nbsp;</td></tr>";
}
inline QString cells(const QString& label, const QString& value)
{
    return R"(<td class="first-td">)" + label + R"(&nbsp;</td><td class="second-td">)" + value
           + "&nbsp;</td></tr>";
}
inline QString innerRow(const QString& label, const QString& value)
{
    return "<tr>" + cells(label, value);
}
inline QString lastRow(const QString& label, const QString& value)
{
    return R"(<tr class="group_end">)" + cells(label, value);
}

/// What the translator makes of one contact.
inline QString drawnCard(ContactContent content, int flags = 0, const QString& name = "Mia")
{
    PRContactData data;
    CContact2HtmlTranslate translator(&data);
    PRContactItem item(Record{.values = {name}, .flags = flags}, std::move(content));
    RecordingPage page;
    EXPECT_TRUE(translator.writeItem(&page, &item));
    EXPECT_EQ(page.writes.size(), 1);
    EXPECT_EQ(page.files, QStringList());
    return page.text();
}

/// What stands between the name of a contact and its table.
inline QString drawnLines(const ContactContent& content)
{
    const QString card = drawnCard(content);
    const QString begin = cardBegin("Mia");
    const QString end = kTableBegin + kCardEnd;
    EXPECT_TRUE(card.startsWith(begin) && card.endsWith(end)) << card.toStdString();
    return card.mid(begin.size()).chopped(end.size());
}

/// The rows of its table.
inline std::string drawnRows(ContactContent content, int flags = 0)
{
    const QString card = drawnCard(std::move(content), flags);
    const int begin = card.indexOf(kTableBegin);
    EXPECT_TRUE(begin > 0 && card.endsWith(kCardEnd)) << card.toStdString();
    return card.mid(begin + kTableBegin.size()).chopped(kCardEnd.size()).toStdString();
}

/// A picture of one colour as a file has it.
inline QByteArray photoBytes(int width, int height, const char* format = "PNG")
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(qRgb(200, 40, 40));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes;
}
