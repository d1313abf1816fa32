// SPDX-License-Identifier: MIT
#include "backup/container/Notices.h"

namespace backup {

void Notices::add(const QString& sentence)
{
    if (!m_told.contains(sentence)) {
        m_told.insert(sentence);
        m_sentences.append(sentence);
    }
}

void Notices::addOneOfMany(const QString& sentence, const QString& rest)
{
    if (m_told.contains(sentence)) {
        return;
    }
    Kind& kind = m_kinds[rest];
    if (kind.shown < kShownOfAKind) {
        ++kind.shown;
        add(sentence);
        return;
    }
    m_told.insert(sentence);
    count(kind, rest);
}

void Notices::count(Kind& kind, const QString& rest)
{
    if (kind.counted == 0) {
        kind.at = m_sentences.size();
        m_sentences.append(QString());
    }
    ++kind.counted;
    m_sentences[kind.at] = rest.arg(kind.counted);
}

} // namespace backup
