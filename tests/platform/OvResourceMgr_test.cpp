// SPDX-License-Identifier: MIT
#include "platform/OvResourceMgr.h"

#include <QDir>

#include <gtest/gtest.h>

TEST(OvResourceMgr, IsOneObject)
{
    EXPECT_EQ(OvResourceMgr::instance(), OvResourceMgr::instance());
}

TEST(OvResourceMgr, TakesTheFolderOfTheHostAndGoesBackToTheDefault)
{
    OvResourceMgr& manager = *OvResourceMgr::instance();
    const QString standard = manager.productResourceRoot();
    manager.setProductResourceRoot("/host/resources");
    EXPECT_EQ(manager.productResourceRoot(), "/host/resources");
    manager.setProductResourceRoot("");
    EXPECT_EQ(manager.productResourceRoot(), standard);
}

TEST(OvResourceMgr, FindsTheFolderOfTheBuildInTheBuildTree)
{
    EXPECT_EQ(QDir::cleanPath(OvResourceMgr::instance()->productResourceRoot()),
        QDir::cleanPath(DATAEXPORT_BUILD_DIR "/resources"));
}
