// SPDX-License-Identifier: MIT
#pragma once

#include "exporters/CIDataExporter.h"

#include <QString>
#include <QStringList>

/// Keeps each text that it is given; the `failing`-th one (from 1) is answered by false. What else
/// is called is written down beside it.
class TextSink final : public CIDataExporter {
public:
    explicit TextSink(int failing = 0) : m_failing(failing) {}

    using CIDataExporter::write;
    bool beginItem(const QString& name) override { return other("beginItem " + name); }
    bool write(const QString& text, QString& /*result*/) override
    {
        m_writes.append(text);
        return m_writes.size() != m_failing;
    }
    bool exportData(const QByteArray& /*data*/, const QString& name) override
    {
        return other("exportData " + name);
    }
    bool copyDepend(const QString& src, const QString& /*name*/) override
    {
        return other("copyDepend " + src);
    }
    bool endItem() override { return other("endItem"); }
    bool beginFile(const QDir& /*dir*/) override { return other("beginFile"); }
    bool endFile(bool /*ok*/) override { return other("endFile"); }

    const QStringList& writes() const { return m_writes; }
    const QStringList& otherCalls() const { return m_otherCalls; }

private:
    bool other(const QString& call)
    {
        m_otherCalls.append(call);
        return true;
    }

    int m_failing;
    QStringList m_writes;
    QStringList m_otherCalls;
};
