// SPDX-License-Identifier: MIT
#include "backup/container/manifest_path.h"

#include <QFileInfo>

#include <algorithm>

namespace backup {

namespace {

constexpr int kFileIdDigits = 40;

bool isLowercaseHexDigit(QChar character)
{
    return (character >= QLatin1Char('0') && character <= QLatin1Char('9'))
           || (character >= QLatin1Char('a') && character <= QLatin1Char('f'));
}

bool startsWithDrive(const QString& path)
{
    return path.size() >= 2 && path.at(1) == QLatin1Char(':') && path.at(0).isLetter();
}

} // namespace

bool isFileId(const QString& text)
{
    return text.size() == kFileIdDigits && std::ranges::all_of(text, isLowercaseHexDigit);
}

bool isSafeRelativePath(const QString& path)
{
    if (path.isEmpty() || path.startsWith(QLatin1Char('/')) || startsWithDrive(path)
        || path.contains(QLatin1Char('\\')) || path.contains(QChar(QChar::Null))) {
        return false;
    }
    return !path.split(QLatin1Char('/')).contains(QStringLiteral(".."));
}

QStringList unicodeForms(const QString& path)
{
    QStringList forms{path};
    for (const auto form : {QString::NormalizationForm_C, QString::NormalizationForm_D}) {
        const QString normalized = path.normalized(form);
        if (!forms.contains(normalized)) {
            forms.append(normalized);
        }
    }
    return forms;
}

QString withoutTrailingSlashes(QString path)
{
    while (path.endsWith(QLatin1Char('/'))) {
        path.chop(1);
    }
    return path;
}

bool isPlainFile(const QString& path)
{
    const QFileInfo file(path);
    return file.isFile() && !file.isSymLink();
}

} // namespace backup
