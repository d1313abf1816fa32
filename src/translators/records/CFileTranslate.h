// SPDX-License-Identifier: MIT
#pragma once

class CIDataExporter;
class CIProgressCallback;
class PRData;

/// Puts the files of one data set into its category: each record in the first of several ways that
/// works, be it its bytes, its source or a thumbnail. The data set is not owned.
class CFileTranslate {
public:
    explicit CFileTranslate(PRData* data) : m_data(data) {}

    /// `progress` may be null. `protectMedia` brackets each use of a source by `protectMediaFile`.
    /// False only for an `exporter` that is no `CFileExporter`: a record that cannot be had in any
    /// way leaves lines in the log, and a cancel ends the work.
    bool translate(CIDataExporter* exporter, CIProgressCallback* progress, bool protectMedia,
        bool convertHeic);

private:
    PRData* m_data;
};
