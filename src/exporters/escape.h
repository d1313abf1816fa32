// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Each of / \ : " * ? < > | CR LF becomes an underscore; all else stays, at any length.
QString safeFileName(const QString& name);

/// The text between double quotes, with each double quote in it doubled; also when it is empty.
QString csvQuote(const QString& text);

/// HTML with each line feed turned into a live "<br>". A carriage return stays.
QString htmlEscapeLines(const QString& text);

/// Appends `text` with each double quote doubled, without the quotes around it.
void appendCsvEscaped(QString& row, const QString& text);
