// SPDX-License-Identifier: MIT
#pragma once

#include "maker/note_bodies.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

/// Makes a store of notes whose tables have the columns that its rows name, so that each test says
/// which release it is about. Numbers count from 1 over all kinds, as the store's own.
class NoteStoreBuilder {
public:
    qint64 account(const QVariantMap& columns) { return object("ICAccount", columns); }
    qint64 folder(const QVariantMap& columns) { return object("ICFolder", columns); }
    qint64 attachment(const QVariantMap& columns) { return object("ICAttachment", columns); }
    /// A row of any kind.
    qint64 object(const QString& kind, const QVariantMap& columns);
    /// A note with its text; without one, none was ever downloaded.
    qint64 note(const QVariantMap& columns, const std::optional<QByteArray>& body);
    /// A note that holds just this.
    qint64 plainNote(const QString& title, const QString& text);

    /// Statements to run on the finished store.
    NoteStoreBuilder& run(const QString& sql);

    /// The finished store.
    QByteArray bytes() const;

private:
    struct Object {
        QString kind;
        QVariantMap columns;
    };
    struct Body {
        qint64 note;
        QByteArray data;
    };

    std::vector<Object> m_objects;
    std::vector<Body> m_bodies;
    QStringList m_statements;
};
