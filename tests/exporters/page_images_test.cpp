// SPDX-License-Identifier: MIT
#include "exporters/page_images.h"
#include "platform/OvResourceMgr.h"

#include <QImage>

#include <gtest/gtest.h>

namespace {

TEST(PageImages, AreLinkedFromTheDirectoryBesideThePage)
{
    EXPECT_EQ(imagePath("a.png"), "image/a.png");
}

TEST(PageImages, ThatDifferByBrandLieInTheFolderOfTheBrand)
{
    OvResourceMgr::instance()->setProductResourceRoot("/res");
    EXPECT_EQ(brandImageSource("a.png"), "/res/DataExport/default/a.png");
    OvResourceMgr::instance()->setProductResourceRoot({});
}

TEST(PageImages, BecomePngPixelByPixel)
{
    QImage picture(2, 1, QImage::Format_ARGB32);
    picture.setPixel(0, 0, qRgba(1, 2, 3, 255));
    picture.setPixel(1, 0, qRgba(4, 5, 6, 7));
    const QByteArray png = pngOf(picture);
    EXPECT_TRUE(png.startsWith("\x89PNG\r\n\x1a\n"));
    EXPECT_EQ(QImage::fromData(png).convertToFormat(QImage::Format_ARGB32), picture);
}

} // namespace
