// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

/// Each of / \ : " * ? < > | CR LF becomes an underscore; all else stays, at any length.
QString safeFileName(const QString& name);

/// The text between double quotes, with each double quote in it doubled; also when it is empty.
QString csvQuote(const QString& text);

/// HTML with each line feed turned into a live "<br>". A carriage return stays.
QString htmlEscapeLines(const QString& text);

/// Appends the same, in one pass and without a copy in between.
void appendHtmlLines(QString& page, QStringView text);

/// Appends `text` with each double quote doubled, without the quotes around it.
void appendCsvEscaped(QString& row, const QString& text);
