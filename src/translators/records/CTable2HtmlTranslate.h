// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CHtmlExporter;
class CIProgressCallback;
class PRData;

/// The selected records of any data set as one table, with the set's own columns; notes show their
/// text and pictures in one of them. Made on the stack of an entry, lives for one run. The data set
/// is not owned.
class CTable2HtmlTranslate final {
public:
    explicit CTable2HtmlTranslate(PRData* data) : m_data(data) {}

    /// The head text that the page needs.
    static QString styleSheet();

    /// False when something could not be written; the page has no end then. A cancel ends the page
    /// in order. `progress` may be null.
    bool translate(CHtmlExporter* exporter, const QString& title, CIProgressCallback* progress);

private:
    PRData* m_data;
};
