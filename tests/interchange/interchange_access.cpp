// SPDX-License-Identifier: MIT
// An explicit instantiation may name private members; the friend that comes with it hands them out.
#include "interchange_access.h"

namespace access_to {
namespace {

template <typename Name, typename Name::Type kMember> struct Opened {
    friend typename Name::Type pointerTo(Name /*name*/) { return kMember; }
};

struct GoogleData {
    using Type = PRData* ExportCSVFile_Google::*;
    friend Type pointerTo(GoogleData name);
};
template struct Opened<GoogleData, &ExportCSVFile_Google::m_data>;

struct GoogleWriteFile {
    using Type = int (ExportCSVFile_Google::*)(InterchangeWriteMode, const QString&);
    friend Type pointerTo(GoogleWriteFile name);
};
template struct Opened<GoogleWriteFile, &ExportCSVFile_Google::writeFile>;

struct GoogleRecords {
    using Type = FieldMaps ExportCSVFile_Google::*;
    friend Type pointerTo(GoogleRecords name);
};
template struct Opened<GoogleRecords, &ExportCSVFile_Google::m_records>;

struct OutlookData {
    using Type = PRData* ExportCSVFile_Outlook::*;
    friend Type pointerTo(OutlookData name);
};
template struct Opened<OutlookData, &ExportCSVFile_Outlook::m_data>;

struct OutlookWriteFile {
    using Type = int (ExportCSVFile_Outlook::*)(InterchangeWriteMode, const QString&);
    friend Type pointerTo(OutlookWriteFile name);
};
template struct Opened<OutlookWriteFile, &ExportCSVFile_Outlook::writeFile>;

struct OutlookRecords {
    using Type = FieldMaps ExportCSVFile_Outlook::*;
    friend Type pointerTo(OutlookRecords name);
};
template struct Opened<OutlookRecords, &ExportCSVFile_Outlook::m_records>;

struct VCardData {
    using Type = PRData* ExportVCFFile::*;
    friend Type pointerTo(VCardData name);
};
template struct Opened<VCardData, &ExportVCFFile::m_data>;

struct VCardWriteFile {
    using Type = int (ExportVCFFile::*)(InterchangeWriteMode, const QString&);
    friend Type pointerTo(VCardWriteFile name);
};
template struct Opened<VCardWriteFile, &ExportVCFFile::writeFile>;

struct MacFilePath {
    using Type = QString ExportVCFFile::*;
    friend Type pointerTo(MacFilePath name);
};
template struct Opened<MacFilePath, &ExportVCFFile::m_macFilePath>;

} // namespace

const FieldMaps& records(const ExportCSVFile_Google& exporter)
{
    return exporter.*pointerTo(GoogleRecords());
}

const FieldMaps& records(const ExportCSVFile_Outlook& exporter)
{
    return exporter.*pointerTo(OutlookRecords());
}

int writeFile(ExportCSVFile_Google& exporter, PRData& data, int mode, const QString& path)
{
    exporter.*pointerTo(GoogleData()) = &data;
    return (exporter.*pointerTo(GoogleWriteFile()))(static_cast<InterchangeWriteMode>(mode), path);
}

int writeFile(ExportCSVFile_Outlook& exporter, PRData& data, int mode, const QString& path)
{
    exporter.*pointerTo(OutlookData()) = &data;
    return (exporter.*pointerTo(OutlookWriteFile()))(static_cast<InterchangeWriteMode>(mode), path);
}

int writeFile(ExportVCFFile& exporter, PRData& data, int mode, const QString& path)
{
    exporter.*pointerTo(VCardData()) = &data;
    return (exporter.*pointerTo(VCardWriteFile()))(static_cast<InterchangeWriteMode>(mode), path);
}

const QString& macFilePath(const ExportVCFFile& exporter)
{
    return exporter.*pointerTo(MacFilePath());
}

} // namespace access_to
