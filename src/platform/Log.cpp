// SPDX-License-Identifier: MIT
#include "platform/Log.h"

#include "platform/literals.h"

#include <QByteArray>
#include <QLoggingCategory>
#include <QString>

#include <cstdarg>

void Log(const char* tag, int level, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const QString line = QString::vasprintf(format, arguments);
    va_end(arguments);

    const QByteArray name = QByteArray("dataexport.") + tag;
    const QLoggingCategory category(name.constData());
    if (level == 1) {
        qCInfo(category).noquote() << line;
    } else {
        qCWarning(category).noquote() << line;
    }
}
