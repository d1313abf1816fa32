// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/write_mode.h"

#include <QDir>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

class PRData;

/// The selected contacts as one CSV file that Outlook imports. An object serves one export, made on
/// the stack for it; the counts behind its columns belong to the process, so that one export runs
/// at a time.
class ExportCSVFile_Outlook : public QObject {
    Q_OBJECT

public:
    explicit ExportCSVFile_Outlook(QObject* parent);

    /// Writes "<dir>/<category>/CSV/<owner>'s <category> for Outlook.csv". 1 for a file that could
    /// not be written, else 0, also where its folder could not be made.
    int exportContacts(
        PRData* data, const QDir& dir, const QString& ownerName, const QString& categoryName);

private:
    /// Empty when the folder cannot be made.
    QString makeFilePath(
        const QDir& dir, const QString& ownerName, const QString& categoryName) const;
    /// 0, or -1 for a mode other than `OneFile` and for a file that cannot be opened.
    int writeFile(InterchangeWriteMode mode, const QString& path);

    PRData* m_data = nullptr;                // of the present call, not owned
    QList<QMap<QString, QString>> m_records; // one for each contact, by the keys of the field table
};
