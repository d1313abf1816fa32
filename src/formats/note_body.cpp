// SPDX-License-Identifier: MIT
// gzip around messages of note_body.proto:
//   NoteStore.document.note
//     text  "Shopping\nMilk\nBread\n\uFFFC\n"
//     run   {length 9, paragraph {style 0}}                      Shopping
//           {length 5, paragraph {style 103, checklist {done}}}  Milk
//           {length 6, paragraph {style 103}}                    Bread
//           {length 1, attachment {identifier, type}}            U+FFFC stands for it
#include "formats/note_body.h"

#include "formats/cocoa_values.h"
#include "formats/note_message.h"

#include <algorithm>
#include <note_body.pb.h>

namespace formats {

namespace {

constexpr int kDeepestIndent = 16; // deeper than the phone goes

NoteRun runOf(const proto::AttributeRun& run)
{
    const proto::ParagraphStyle& paragraph = run.paragraph();
    return {
        .length = run.length(),
        .style = paragraph.style(),
        .indent = std::clamp(paragraph.indent(), 0, kDeepestIndent),
        .done = paragraph.checklist().done() != 0,
        .quote = paragraph.quote() != 0,
        .link = utf8Text(run.link()),
        .attachment = utf8Text(run.attachment().identifier()),
        .attachmentType = utf8Text(run.attachment().type()),
    };
}

} // namespace

Result<NoteBody> parseNoteBody(std::span<const unsigned char> bytes)
{
    const auto store = noteMessage<proto::NoteStore>(bytes);
    if (!store) {
        return store.error();
    }
    const proto::NoteText& note = store->document().note();
    NoteBody body{.text = utf8Text(note.text()), .runs = {}};
    int rest = body.text.size();
    for (const proto::AttributeRun& run : note.run()) {
        if (run.length() <= 0) {
            continue;
        }
        body.runs.push_back(runOf(run));
        int& length = body.runs.back().length;
        length = std::min(length, rest);
        rest -= length;
        if (rest == 0) {
            break;
        }
    }
    return body;
}

} // namespace formats
