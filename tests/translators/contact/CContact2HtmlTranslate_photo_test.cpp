// SPDX-License-Identifier: MIT
// The photos of the cards: their sizes, their numbers, and those that are none.
#include "translators/contact/card_page.h"

namespace {

// The page of contacts that have these photos.
class ContactPhotos : public testing::Test {
protected:
    void draw(const std::vector<QByteArray>& photos)
    {
        PRContactData data;
        CContact2HtmlTranslate translator(&data);
        for (const QByteArray& photo : photos) {
            EXPECT_TRUE(translator.writeItem(&page, contactOf({.photo = photo}).get()));
        }
    }

    // The pictures that the cards show.
    QStringList shown() const
    {
        const QString begin = R"(<div class="main-pic"><img src=")";
        QStringList paths;
        for (const QString& card : page.writes) {
            const QString rest = card.mid(card.indexOf(begin) + begin.size());
            paths.append(rest.left(rest.indexOf('"')));
        }
        return paths;
    }

    RecordingPage page;
};

TEST_F(ContactPhotos, AreShownFromFilesBesideThePage)
{
    draw({photoBytes(9, 9)});
    EXPECT_EQ(page.text(), cardBegin("Mia", "0.png") + kNoLines + kTableBegin + kCardEnd);
    EXPECT_EQ(page.files, QStringList({"export 0.png"})); // the export fails, the link is there
}

TEST_F(ContactPhotos, AreScaledToFitWhateverTheirSize)
{
    struct {
        QSize size;
        QSize fitted;
    } const rows[] = {
        {{136, 136}, {136, 136}},
        {{1, 1}, {136, 136}},
        {{10, 20}, {68, 136}},
        {{135, 135}, {136, 136}},
        {{137, 137}, {136, 136}},
        {{272, 136}, {136, 68}},
        {{640, 480}, {136, 102}},
        {{480, 640}, {102, 136}},
        {{3'000, 4'000}, {102, 136}},
        {{1, 1'000}, {1, 136}}, // never without a width
        {{1'000, 1}, {136, 1}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.size.width() << " x " << row.size.height());
        page.exported.clear();
        draw({photoBytes(row.size.width(), row.size.height())});
        ASSERT_EQ(page.exported.size(), 1);
        EXPECT_EQ(QImage::fromData(page.exported.first()).size(), row.fitted);
    }
}

TEST_F(ContactPhotos, BecomePngWhateverTheyWere)
{
    draw({photoBytes(200, 100, "JPEG"), photoBytes(200, 100, "PNG"), photoBytes(200, 100, "BMP")});
    ASSERT_EQ(page.exported.size(), 3);
    for (const QByteArray& file : page.exported) {
        EXPECT_TRUE(file.startsWith("\x89PNG\r\n\x1a\n"));
        const QColor colour = QImage::fromData(file).pixelColor(68, 34);
        EXPECT_NEAR(colour.red(), 200, 4);
        EXPECT_NEAR(colour.green(), 40, 4);
        EXPECT_NEAR(colour.blue(), 40, 4);
    }
}

TEST_F(ContactPhotos, AreScaledSmoothly)
{
    QImage stripes(272, 272, QImage::Format_RGB32);
    for (int y = 0; y < stripes.height(); ++y) {
        for (int x = 0; x < stripes.width(); ++x) {
            stripes.setPixel(x, y, x % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(stripes.save(&buffer, "PNG"));
    draw({bytes});
    ASSERT_EQ(page.exported.size(), 1);
    EXPECT_NEAR(QImage::fromData(page.exported.first()).pixelColor(68, 68).red(), 127, 8);
}

TEST_F(ContactPhotos, ThatCannotBeReadSpendTheirNumber)
{
    const QByteArray png = photoBytes(9, 9);
    const QByteArray cut = photoBytes(900, 900).left(40);
    draw({png, "no picture", {}, cut, png});
    EXPECT_EQ(
        shown(), QStringList({"image/0.png", "image/default_contact.png",
                     "image/default_contact.png", "image/default_contact.png", "image/3.png"}));
    EXPECT_EQ(page.files, QStringList({"export 0.png", "export 3.png"}));
}

TEST_F(ContactPhotos, OfDeletedContactsAreShownToo)
{
    PRContactData data;
    CContact2HtmlTranslate translator(&data);
    PRContactItem item(Record{.flags = Deleted}, {.photo = photoBytes(9, 9)});
    EXPECT_TRUE(translator.writeItem(&page, &item));
    EXPECT_EQ(shown(), QStringList({"image/0.png"}));
}

} // namespace
