// SPDX-License-Identifier: MIT
#include "golden_tree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTextCodec>

#include <optional>

namespace golden {
namespace {

const char* const kKeep = ".keep";
constexpr auto kAll = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

bool isEmptyDirectory(const QString& path)
{
    return QDir(path).entryList(kAll) == QStringList(kKeep) || QDir(path).isEmpty(kAll);
}

// Pages have no line breaks of their own: one tag a line.
QString textOf(const QString& path, const QByteArray& bytes)
{
    if (path.endsWith(".html")) {
        return QString::fromUtf8(bytes.constData(), bytes.size()).replace('<', "\n<").mid(1);
    }
    const bool isUtf16 = bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
    return isUtf16 ? QTextCodec::codecForName("UTF-16")->toUnicode(bytes)
                   : QString::fromUtf8(bytes.constData(), bytes.size());
}

// All that is not plain ASCII by its number, so that nothing is shown as what it is not.
QString shown(const QString& line)
{
    QString text;
    for (const QChar c : line.left(500)) {
        const ushort unit = c.unicode();
        const bool plain = unit >= 0x20 && unit < 0x7F;
        text += plain ? QString(c) : QStringLiteral("{%1}").arg(unit, 4, 16, QLatin1Char('0'));
    }
    return text;
}

int firstDifferenceOf(const QByteArray& expected, const QByteArray& actual)
{
    int at = 0;
    while (at < expected.size() && at < actual.size() && expected.at(at) == actual.at(at)) {
        ++at;
    }
    return at;
}

// None for other files, empty ones and broken ones. All in one format: how a picture is packed is
// up to a library.
std::optional<QImage> pictureOf(const QString& path, const QByteArray& bytes)
{
    const QImage picture = path.endsWith(".png") ? QImage::fromData(bytes) : QImage();
    return picture.isNull() ? std::nullopt
                            : std::optional(picture.convertToFormat(QImage::Format_ARGB32));
}

bool isSame(const QString& path, const QByteArray& expected, const QByteArray& actual)
{
    const std::optional<QImage> picture = pictureOf(path, expected);
    return expected == actual || (picture.has_value() && picture == pictureOf(path, actual));
}

QString pictureDifference(const QString& path, const QImage& expected, const QImage& actual)
{
    if (expected.size() != actual.size()) {
        return QStringLiteral("%1: a picture of %2 x %3 is expected, one of %4 x %5 written")
            .arg(path, QString::number(expected.width()), QString::number(expected.height()),
                QString::number(actual.width()), QString::number(actual.height()));
    }
    return path + ": shows another picture of the same size";
}

QString difference(const QString& path, const QByteArray& expected, const QByteArray& actual)
{
    const std::optional<QImage> expectedPicture = pictureOf(path, expected);
    const std::optional<QImage> picture = pictureOf(path, actual);
    if (expectedPicture.has_value() && picture.has_value()) {
        return pictureDifference(path, *expectedPicture, *picture);
    }
    const QStringList expectedLines = textOf(path, expected).split('\n');
    const QStringList actualLines = textOf(path, actual).split('\n');
    int line = 0;
    while (line < expectedLines.size() && line < actualLines.size()
           && expectedLines.at(line) == actualLines.at(line)) {
        ++line;
    }
    // All places at once: a path or a line may hold a "%1" of its own.
    return QStringLiteral("%1: differs at byte %2 (%3 bytes expected, %4 written), line %5\n"
                          "  expected: %6\n"
                          "  written:  %7")
        .arg(path, QString::number(firstDifferenceOf(expected, actual)),
            QString::number(expected.size()), QString::number(actual.size()),
            QString::number(line + 1), shown(expectedLines.value(line, "(no line)")),
            shown(actualLines.value(line, "(no line)")));
}

} // namespace

Tree readTree(const QString& directory)
{
    Tree tree;
    const QDir root(directory);
    QDirIterator entries(directory, kAll, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QString relative = root.relativeFilePath(path);
        const bool isDirectory = entries.fileInfo().isDir();
        if (isDirectory && isEmptyDirectory(path)) {
            tree.insert(relative + '/', {});
        }
        if (!isDirectory && entries.fileName() != kKeep) {
            tree.insert(relative, contentsOf(path));
        }
    }
    return tree;
}

bool writeTree(const QString& directory, const Tree& tree)
{
    if (!QDir(directory).removeRecursively() || !QDir().mkpath(directory)) {
        return false;
    }
    Tree files = tree;
    if (files.isEmpty()) {
        files.insert(kKeep, {});
    }
    for (auto entry = files.cbegin(); entry != files.cend(); ++entry) {
        const QString relative = entry.key().endsWith('/') ? entry.key() + kKeep : entry.key();
        QFile file(QDir(directory).filePath(relative));
        if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly)
            || file.write(entry.value()) != entry.value().size() || !file.flush()) {
            return false;
        }
    }
    return true;
}

QStringList differences(const Tree& expected, const Tree& actual)
{
    QStringList found;
    for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry) {
        const auto other = actual.constFind(entry.key());
        if (other == actual.cend()) {
            found.append(entry.key() + ": expected and not written");
        } else if (!isSame(entry.key(), *entry, *other)) {
            found.append(difference(entry.key(), *entry, *other));
        }
    }
    for (auto entry = actual.cbegin(); entry != actual.cend(); ++entry) {
        if (!expected.contains(entry.key())) {
            found.append(entry.key() + ": written and not expected");
        }
    }
    return found;
}

} // namespace golden
