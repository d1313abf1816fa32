// SPDX-License-Identifier: MIT
#pragma once

#include "recordset/JsonText.h"
#include "recordset/Source.h"

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>

// The forms in which a value stands in the file. Each reads a value (false: a fault was noted),
// says whether two values are the same, and writes one.
namespace recordset::forms {

template <typename Value> struct Comparable {
    static bool same(const Value& one, const Value& other) { return one == other; }
};

struct Flag : Comparable<bool> {
    static bool read(const Source& source, bool& truth);
    static void write(bool truth, JsonText& out) { out.truth(truth); }
};

struct Integer : Comparable<int> {
    static bool read(const Source& source, int& number);
    static void write(int number, JsonText& out) { out.number(number); }
};

struct Text : Comparable<QString> {
    static bool read(const Source& source, QString& text);
    static void write(const QString& text, JsonText& out) { out.text(text); }
};

/// A file's path, read into an absolute one, or an address.
struct Path : Comparable<QString> {
    static bool read(const Source& source, QString& path);
    /// A relative path names a file in the working directory, here as for everyone who opens it.
    static void write(const QString& path, JsonText& out);
};

struct Date {
    static bool read(const Source& source, QDateTime& moment);
    /// An invalid QDateTime compares equal to the start of 1970.
    static bool same(const QDateTime& one, const QDateTime& other);
    static void write(const QDateTime& moment, JsonText& out);
};

struct Bytes : Comparable<QByteArray> {
    static bool read(const Source& source, QByteArray& bytes);
    static void write(const QByteArray& bytes, JsonText& out);
};

struct TextList : Comparable<QStringList> {
    static bool read(const Source& source, QStringList& texts);
    static void write(const QStringList& texts, JsonText& out);
};

struct TextMap : Comparable<QMap<QString, QString>> {
    static bool read(const Source& source, QMap<QString, QString>& texts);
    static void write(const QMap<QString, QString>& texts, JsonText& out);
};

} // namespace recordset::forms
