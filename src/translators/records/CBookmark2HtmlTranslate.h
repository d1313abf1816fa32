// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CHtmlExporter;
class CIProgressCallback;
class PRData;

/// The selected bookmarks or visits as one page, group by group. Made on the stack of an entry,
/// lives for one run. The data set is not owned.
class CBookmark2HtmlTranslate final {
public:
    explicit CBookmark2HtmlTranslate(PRData* data) : m_data(data) {}

    /// The head text that the page needs.
    static QString styleSheet();

    /// False when something could not be written. A cancel leaves a complete page of what was
    /// gathered until then. `progress` may be null.
    bool translate(CHtmlExporter* exporter, const QString& title, CIProgressCallback* progress);

private:
    PRData* m_data;
};
