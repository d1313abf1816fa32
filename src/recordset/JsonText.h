// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace recordset {

/// Builds JSON text from its beginning to its end; the caller takes what is there from time to
/// time. Lists of objects put each object on a line of its own, down to the items of a record
/// (its messages); what an item holds stays on the item's line.
class JsonText {
public:
    /// The outermost object has one member a line.
    void openDocument() { open('{', true); }
    void openObject() { open('{', false); }
    void closeObject() { close('}'); }
    void openList() { open('[', false); }
    /// A list of objects.
    void openItems();
    void closeList() { close(']'); }

    /// Names the value that comes next.
    void key(std::string_view name);
    void textKey(const QString& name);

    /// Surrogates without a partner become U+FFFD.
    void text(const QString& text);
    void number(int number);
    void truth(bool truth);
    /// `text` is well-formed UTF-8.
    void utf8(const QByteArray& text);

    /// What was written since the last call.
    std::string take();

private:
    struct Level {
        bool lines = false; // each member on its own line
        bool empty = true;
    };

    void open(char bracket, bool lines);
    void close(char bracket);
    void separate();
    void startLine();

    std::string m_text;
    std::vector<Level> m_levels;
    std::size_t m_indent = 0; // levels with lines of their own
    bool m_afterKey = false;
};

} // namespace recordset
