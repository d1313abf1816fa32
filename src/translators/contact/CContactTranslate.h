// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CIDataExporter;
class CIProgressCallback;
class PRContactItem;
class PRData;

/// Turns the selected contacts into one output format. The exporter is told where each contact
/// begins and ends, since one of them makes a file for each. Made on the stack of a stage, lives
/// for one run. The data set is not owned.
class CContactTranslate {
public:
    explicit CContactTranslate(PRData* data) : m_data(data) {}
    CContactTranslate(const CContactTranslate&) = delete;
    CContactTranslate& operator=(const CContactTranslate&) = delete;

    /// Runs before anything else; false stops the export.
    virtual bool prepare(
        CIDataExporter* exporter, const QString& title, CIProgressCallback* progress) = 0;
    virtual bool writeHeader(CIDataExporter* exporter) = 0;
    virtual bool writeFooter(CIDataExporter* exporter) = 0;
    virtual bool writeItem(CIDataExporter* exporter, PRContactItem* item) = 0;

    /// Walks the selected records. False when something could not be written; a cancelled export is
    /// not a failure. `progress` may be null.
    bool translate(CIDataExporter* exporter, const QString& title, CIProgressCallback* progress);

protected:
    ~CContactTranslate() = default;

    const PRData& data() const { return *m_data; }

private:
    PRData* m_data;
};
