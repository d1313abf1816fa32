// SPDX-License-Identifier: MIT
//   Packing
//   ☑ Rope                 checklists: ☐ ☑
//   ☐ Lamp
//   • Tea                  lists: •, –, 1.
//     • green              deeper ones behind an em space for each step
//   Timetable (https://ferry.example/)
//   Day | Harbour          tables: a line for each row
#include "backup/readers/note_content.h"

#include "platform/literals.h"

#include <algorithm>
#include <array>

namespace backup {

namespace {

using formats::NoteRun;
using Piece = PRNoteItem::NotePiece;

constexpr int kText = 0;
constexpr QChar kAttachmentMark(u'\uFFFC');
constexpr QChar kLineSeparator(u'\u2028');
constexpr QChar kEmSpace(u'\u2003');
constexpr std::size_t kLevels = 32;

bool isList(int style)
{
    return style >= formats::DottedList && style <= formats::CheckedList;
}

// The numbers of numbered lists, by their depth.
class ListNumbers {
public:
    // The number of this paragraph; it goes on from the one before in the same list.
    int next(const NoteRun& paragraph)
    {
        const auto level = std::min(static_cast<std::size_t>(paragraph.indent), kLevels - 1);
        const bool isNumbered = paragraph.style == formats::NumberedList;
        const std::size_t kept = isNumbered ? level + 1 : isList(paragraph.style) ? level : 0;
        std::fill(m_numbers.begin() + static_cast<std::ptrdiff_t>(kept), m_numbers.end(), 0);
        return isNumbered ? ++m_numbers[level] : 0;
    }

private:
    std::array<int, kLevels> m_numbers{};
};

/// Goes over the runs of a body with places that only grow.
class RunCursor {
public:
    explicit RunCursor(const std::vector<NoteRun>& runs) : m_runs(runs) {}

    /// The run at a place; one without attributes behind the last.
    const NoteRun& at(int place)
    {
        static const NoteRun none;
        while (m_next < m_runs.size() && m_start + m_runs[m_next].length <= place) {
            m_start += m_runs[m_next++].length;
        }
        return m_next < m_runs.size() ? m_runs[m_next] : none;
    }

    /// Where the run of the last `at` ends, `limit` at most.
    int endOr(int limit) const
    {
        return m_next < m_runs.size() ? std::min(limit, m_start + m_runs[m_next].length) : limit;
    }

private:
    const std::vector<NoteRun>& m_runs;
    std::size_t m_next = 0;
    int m_start = 0;
};

class Writer {
public:
    Writer(const formats::NoteBody& body, const NoteInserts& inserts)
        : m_body(body), m_inserts(inserts), m_runs(body.runs)
    {
    }

    std::vector<Piece> write()
    {
        const QString& text = m_body.text;
        for (int start = 0; start < text.size();) {
            const int lineEnd = text.indexOf(QChar(u'\n'), start);
            const int end = lineEnd < 0 ? text.size() : lineEnd;
            addParagraph(start, end);
            m_text += QChar(u'\n');
            start = end + 1;
        }
        endText();
        return std::move(m_pieces);
    }

private:
    void addParagraph(int start, int end)
    {
        m_text += lineStart(m_runs.at(start));
        QString link;
        int linkStart = 0;
        for (int place = start; place < end;) {
            const NoteRun& run = m_runs.at(place);
            if (run.link != link) {
                endLink(link, linkStart);
                link = run.link;
                linkStart = m_text.size();
            }
            const int runEnd = m_runs.endOr(end);
            addStretch(m_body.text.mid(place, runEnd - place), run);
            place = runEnd;
        }
        endLink(link, linkStart);
    }

    QString lineStart(const NoteRun& paragraph)
    {
        const int number = m_numbers.next(paragraph);
        QString start(isList(paragraph.style) ? paragraph.indent : 0, kEmSpace);
        if (paragraph.quote) {
            start += "> "_L1;
        }
        switch (paragraph.style) {
        case formats::DottedList:
            return start + QStringLiteral("• ");
        case formats::DashedList:
            return start + QStringLiteral("– ");
        case formats::NumberedList:
            return start + QString::number(number) + ". "_L1;
        case formats::CheckedList:
            return start + (paragraph.done ? QStringLiteral("☑ ") : QStringLiteral("☐ "));
        default:
            return start;
        }
    }

    // A link whose text does not show where it leads.
    void endLink(const QString& link, int start)
    {
        const QString shown = m_text.mid(start).trimmed();
        if (!link.isEmpty() && !shown.isEmpty() && !link.contains(shown)) {
            m_text += " ("_L1 + link + ")"_L1;
        }
    }

    void addStretch(QString text, const NoteRun& run)
    {
        text.remove(QChar(QChar::ByteOrderMark));
        text.replace(kLineSeparator, QChar(u'\n'));
        const bool isAttachment = !run.attachment.isEmpty() && text.contains(kAttachmentMark);
        m_text += text.remove(kAttachmentMark);
        if (isAttachment) {
            insert(m_inserts(run));
        }
    }

    void insert(const NoteInsert& insert)
    {
        const bool isBlock = insert.text.contains(QChar(u'\n'));
        if (isBlock && !m_text.isEmpty() && !m_text.endsWith(QChar(u'\n'))) {
            m_text += QChar(u'\n');
        }
        m_text += insert.text;
        if (!insert.pictures.empty()) {
            endText();
            m_pieces.insert(m_pieces.end(), insert.pictures.begin(), insert.pictures.end());
        }
    }

    // Line breaks at the ends of a stretch are those around the pictures.
    void endText()
    {
        int from = 0;
        int to = m_text.size();
        while (from < to && m_text[from] == QChar(u'\n')) {
            ++from;
        }
        while (to > from && m_text[to - 1].isSpace()) {
            --to;
        }
        if (to > from) {
            m_pieces.push_back({.kind = kText, .content = m_text.mid(from, to - from)});
        }
        m_text.clear();
    }

    const formats::NoteBody& m_body;
    const NoteInserts& m_inserts;
    RunCursor m_runs;
    ListNumbers m_numbers;
    QString m_text; // since the last picture
    std::vector<Piece> m_pieces;
};

} // namespace

NoteContent noteContent(const formats::NoteBody& body, const NoteInserts& inserts)
{
    NoteContent content{.text = {}, .pieces = Writer(body, inserts).write()};
    content.text = plainText(content.pieces);
    return content;
}

NoteContent plainContent(const QString& text)
{
    return noteContent({.text = text, .runs = {}}, {});
}

QString plainText(const std::vector<PRNoteItem::NotePiece>& pieces)
{
    QStringList parts;
    for (const Piece& piece : pieces) {
        parts.append(piece.kind == kText ? piece.content : "["_L1 + piece.label + "]"_L1);
    }
    return parts.join(QChar(u'\n'));
}

} // namespace backup
