// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/ExportCSVFile_Google.h"
#include "interchange/ExportCSVFile_Outlook.h"
#include "interchange/ExportVCFFile.h"

/// The private members of the exporters, for tests of what no caller sees.
namespace access_to {

using FieldMaps = QList<QMap<QString, QString>>;

/// One map for each contact that was read, by the keys of the field table.
const FieldMaps& records(const ExportCSVFile_Google& exporter);
const FieldMaps& records(const ExportCSVFile_Outlook& exporter);

/// Sets the data of the exporter, as an export does, and calls its `writeFile`.
int writeFile(ExportCSVFile_Google& exporter, PRData& data, int mode, const QString& path);
int writeFile(ExportCSVFile_Outlook& exporter, PRData& data, int mode, const QString& path);
int writeFile(ExportVCFFile& exporter, PRData& data, int mode, const QString& path);

const QString& macFilePath(const ExportVCFFile& exporter);

} // namespace access_to
