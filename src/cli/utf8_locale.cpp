// SPDX-License-Identifier: MIT
#include "cli/utf8_locale.h"

#include <QByteArray>

#include <clocale>
#include <cstring>
#include <langinfo.h>

void useUtf8Locale()
{
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        qputenv("LC_ALL", "C.UTF-8"); // Qt reads the environment again
        std::setlocale(LC_ALL, "");
    }
}
