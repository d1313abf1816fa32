// SPDX-License-Identifier: MIT
#include "cli/utf8_locale.h"

#include <QByteArray>

#include <clocale>
#include <cstring>
#include <langinfo.h>

namespace {

// The locale that the user's messages shall have, by the order in which these count.
QByteArray localeOfMessages()
{
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        QByteArray locale = qgetenv(name);
        if (!locale.isEmpty()) {
            return locale;
        }
    }
    return "C";
}

} // namespace

void useUtf8Locale()
{
    const QByteArray messages = localeOfMessages();
    if (messages == "C" || messages == "POSIX" || messages.startsWith("C.")) {
        qunsetenv("LANGUAGE"); // a list of languages counts in a locale of a language alone
    }
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        if (qEnvironmentVariableIsEmpty("LANGUAGE")) {
            qputenv("LANGUAGE", messages); // the language is not to go with the character set
        }
        qputenv("LC_ALL", "C.UTF-8"); // Qt reads the environment again
        std::setlocale(LC_ALL, "");
    }
}
