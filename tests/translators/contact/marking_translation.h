// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

/// While it lives, every text of the product becomes <text>.
class MarkingTranslation final : public QTranslator {
public:
    MarkingTranslation() { QCoreApplication::installTranslator(this); }

    QString translate(const char* context, const char* source, const char* /*disambiguation*/,
        int /*n*/) const override
    {
        return QLatin1String(context) == QLatin1String("DataExport")
                   ? QLatin1Char('<') + QString::fromUtf8(source) + QLatin1Char('>')
                   : QString();
    }
    bool isEmpty() const override { return false; }
};
