// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CIDataExporter;
class CIProgressCallback;
class PRData;
class PRWhatsappItem;

/// Turns the selected chats of an application into one output format. Made on the stack of a stage,
/// lives for one run. The data set is not owned.
class CWhatsappTranslate {
public:
    explicit CWhatsappTranslate(PRData* data) : m_data(data) {}
    CWhatsappTranslate(const CWhatsappTranslate&) = delete;
    CWhatsappTranslate& operator=(const CWhatsappTranslate&) = delete;

    /// Runs before anything else; false stops the export.
    virtual bool prepare(
        CIDataExporter* exporter, const QString& title, CIProgressCallback* progress) = 0;
    virtual bool writeHeader(CIDataExporter* exporter) = 0;
    virtual bool writeFooter(CIDataExporter* exporter) = 0;
    virtual bool writeItem(CIDataExporter* exporter, PRWhatsappItem* item) = 0;

    /// Walks the selected records. False when something could not be written; a cancelled export is
    /// not a failure. `progress` may be null.
    bool translate(CIDataExporter* exporter, const QString& title, CIProgressCallback* progress);

protected:
    ~CWhatsappTranslate() = default;

private:
    PRData* m_data;
};
