// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace backup {

/// What a user should know of a backup that could be read in part: one sentence each, in the order
/// of their first appearance, none twice.
class Notices {
public:
    void add(const QString& sentence)
    {
        if (!m_sentences.contains(sentence)) {
            m_sentences.append(sentence);
        }
    }
    const QStringList& sentences() const { return m_sentences; }

private:
    QStringList m_sentences;
};

} // namespace backup
