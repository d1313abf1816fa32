// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// The one of `available` ("de", "zh_TW") that is meant by "de", "de_AT", "de-AT" or "zh-Hant",
/// in any case; empty when none is.
QString languageOfCode(const QString& code, const QStringList& available);

/// The first of a user's languages that there is, else "en".
QString languageOfUser(const QStringList& wanted, const QStringList& available);
