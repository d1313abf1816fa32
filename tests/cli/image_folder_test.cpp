// SPDX-License-Identifier: MIT
#include "cli/image_folder.h"
#include "support/temp_tree.h"

#include <gtest/gtest.h>

namespace {

TEST(ImageFolder, IsFoundUnderTheSpellingOfTheLinksInNotes)
{
    const support::TempTree tree;
    tree.write("image/1.png", "a picture");
    addOtherSpelling(tree.path());
    EXPECT_EQ(tree.read("Image/1.png"), "a picture");
}

TEST(ImageFolder, StaysWholeWhenTheTreeIsMoved)
{
    const support::TempTree tree;
    tree.write("Notes/image/1.png", "a picture");
    addOtherSpelling(tree.path("Notes"));
    ASSERT_TRUE(QDir().rename(tree.path("Notes"), tree.path("Moved")));
    EXPECT_EQ(tree.read("Moved/Image/1.png"), "a picture");
}

TEST(ImageFolder, OfASecondExportIsLeftAsItIs)
{
    const support::TempTree tree;
    tree.write("image/1.png", "a picture");
    tree.write("Image/2.png", "somebody's own");
    addOtherSpelling(tree.path());
    EXPECT_EQ(tree.read("Image/2.png"), "somebody's own");
    EXPECT_FALSE(tree.exists("Image/1.png"));
}

TEST(ImageFolder, IsNotMadeForAPageWithoutOne)
{
    const support::TempTree tree;
    addOtherSpelling(tree.path());
    EXPECT_FALSE(tree.exists("Image"));
}

} // namespace
