// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

/// A text of the product, marked by QT_TRANSLATE_NOOP, in the language of the host.
inline QString label(const char* source)
{
    return QCoreApplication::translate("DataExport", source);
}
