// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace backup {

/// What a user should know of a backup that could be read in part: one sentence each, in the order
/// of their first appearance, none twice.
class Notices {
public:
    /// Sentences of one kind that `addOneOfMany` gives in full.
    static constexpr int kShownOfAKind = 20;

    void add(const QString& sentence);

    /// A sentence of a kind that can come ten thousand times. Once enough of the kind have been
    /// given in full, the further ones are counted in one sentence: `rest`, with the count at its
    /// %1. The text of `rest` is the kind.
    void addOneOfMany(const QString& sentence, const QString& rest);

    const QStringList& sentences() const { return m_sentences; }

private:
    struct Kind {
        int shown = 0;
        int counted = 0;
        int at = 0; ///< of the counting sentence; it stands once something is counted
    };

    void count(Kind& kind, const QString& rest);

    QStringList m_sentences;
    QSet<QString> m_told; ///< counted ones as well, or they would be counted twice
    QHash<QString, Kind> m_kinds;
};

} // namespace backup
