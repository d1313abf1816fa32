// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // One time zone and one language for all expectations, before anything asks for them.
    qputenv("TZ", "Etc/GMT-2");
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    const QCoreApplication application(argc, argv);
    QLocale::setDefault(QLocale::c());
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
