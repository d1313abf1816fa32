// SPDX-License-Identifier: MIT
#include "translators/record_loop.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

// What every fake below writes to. The call with the text `refused` is answered by false.
struct CallLog {
    QStringList calls;
    QString refused;

    bool operator()(const QString& call)
    {
        calls.append(call);
        return call != refused;
    }
};

class NamedItem final : public PRAbstractItem {
public:
    NamedItem(CallLog& log, const QString& name)
        : PRAbstractItem(Record{.values = {name}}), m_log(log)
    {
    }

    QString value(int column) const override
    {
        m_log(QStringLiteral("value %1").arg(column));
        return PRAbstractItem::value(column);
    }

    QString name() const { return record().values.first(); }

private:
    CallLog& m_log;
};

class LoggedData final : public PRData {
public:
    LoggedData(CallLog& log, RecordList records) : PRData(5, std::move(records)), m_log(log) {}

protected:
    const RecordList& records() const override
    {
        if (!m_asked) {
            m_asked = true;
            m_log("data asked");
        }
        return PRData::records();
    }

private:
    CallLog& m_log;
    mutable bool m_asked = false;
};

class LoggedProgress final : public CIProgressCallback {
public:
    LoggedProgress(CallLog& log, int range, int cancelAtStep)
        : m_log(log), m_range(range), m_cancelAtStep(cancelAtStep)
    {
    }

    void initRange(int range) override { m_log(QStringLiteral("initRange %1").arg(range)); }
    int range() override
    {
        m_log("range");
        return m_range;
    }
    bool step(double amount) override
    {
        m_log(QStringLiteral("step %1").arg(amount));
        return ++m_steps != m_cancelAtStep;
    }
    bool finish() override { return m_log("finish"); }
    void setAttachStage(bool /*attachStage*/) override { m_log("setAttachStage"); }

private:
    CallLog& m_log;
    int m_range;
    int m_cancelAtStep;
    int m_steps = 0;
};

class LoggedExporter final : public CIDataExporter {
public:
    explicit LoggedExporter(CallLog& log) : m_log(log) {}

    using CIDataExporter::write;
    bool beginItem(const QString& name) override
    {
        m_open = name;
        return m_log("begin " + name);
    }
    bool write(const QString& text, QString& /*result*/) override { return m_log("write " + text); }
    bool exportData(const QByteArray& /*data*/, const QString& name) override
    {
        return m_log(name);
    }
    bool copyDepend(const QString& src, const QString& /*name*/) override { return m_log(src); }
    bool endItem() override { return m_log("end " + m_open); }
    bool beginFile(const QDir& /*dir*/) override { return m_log("beginFile"); }
    bool endFile(bool /*ok*/) override { return m_log("endFile"); }

private:
    CallLog& m_log;
    QString m_open;
};

struct LoggedTranslator {
    CallLog& log;
    CIDataExporter* expectedExporter;
    CIProgressCallback* expectedProgress;

    bool prepare(CIDataExporter* exporter, const QString& title, CIProgressCallback* progress)
    {
        EXPECT_EQ(exporter, expectedExporter);
        EXPECT_EQ(progress, expectedProgress);
        return log("prepare " + title);
    }
    bool writeHeader(CIDataExporter* exporter)
    {
        EXPECT_EQ(exporter, expectedExporter);
        return log("header");
    }
    bool writeFooter(CIDataExporter* exporter)
    {
        EXPECT_EQ(exporter, expectedExporter);
        return log("footer");
    }
    bool writeItem(CIDataExporter* exporter, NamedItem* item)
    {
        EXPECT_EQ(exporter, expectedExporter);
        return log("item " + item->name());
    }
};

struct Outcome {
    bool result;
    QString calls;
};

struct Run {
    QString refused;
    int cancelAtStep = 0;
    bool withProgress = true;
    bool withRecords = true;
};

// Ann, a record of another class, Bo, one that is not selected, Cy: four are counted.
RecordList fiveRecords(CallLog& log)
{
    RecordList records;
    records.push_back(std::make_unique<NamedItem>(log, "Ann"));
    records.push_back(std::make_unique<PRAbstractItem>());
    records.push_back(std::make_unique<NamedItem>(log, "Bo"));
    records.push_back(std::make_unique<NamedItem>(log, "Unwanted"));
    records.back()->setSelected(false);
    records.push_back(std::make_unique<NamedItem>(log, "Cy"));
    return records;
}

// A range of 10 over four records: the unit is no whole number.
template <ItemCalls kItemCalls> Outcome outcomeOf(const Run& run)
{
    CallLog log{.calls = {}, .refused = run.refused};
    const LoggedData data(log, run.withRecords ? fiveRecords(log) : RecordList());
    LoggedProgress progress(log, 10, run.cancelAtStep);
    CIProgressCallback* given = run.withProgress ? &progress : nullptr;
    LoggedExporter exporter(log);
    LoggedTranslator translator{
        .log = log, .expectedExporter = &exporter, .expectedProgress = given};
    const bool result =
        translateRecords<NamedItem, kItemCalls>(translator, data, &exporter, "T", given);
    return {.result = result, .calls = log.calls.join(", ")};
}

struct EventRow {
    const char* what;
    Run run;
    bool result;
    const char* calls;
};

template <ItemCalls kItemCalls> void expectRows(const std::vector<EventRow>& rows)
{
    for (const EventRow& row : rows) {
        SCOPED_TRACE(row.what);
        const Outcome outcome = outcomeOf<kItemCalls>(row.run);
        EXPECT_EQ(outcome.result, row.result);
        EXPECT_EQ(outcome.calls.toStdString(), row.calls);
    }
}

TEST(RecordLoop, WithoutItemCallsAnswersEachEvent)
{
    expectRows<ItemCalls::None>({
        {"all goes well", {}, true,
            "prepare T, data asked, range, header, step 2.5, item Ann, step 2.5, "
            "step 2.5, item Bo, step 2.5, item Cy, footer"},
        {"prepare fails: the data set is not asked", {.refused = "prepare T"}, false, "prepare T"},
        {"header fails: no record, no footer", {.refused = "header"}, false,
            "prepare T, data asked, range, header"},
        {"cancel at the first record", {.cancelAtStep = 1}, true,
            "prepare T, data asked, range, header, step 2.5, footer"},
        {"cancel at the record of another class", {.cancelAtStep = 2}, true,
            "prepare T, data asked, range, header, step 2.5, item Ann, step 2.5, footer"},
        {"cancel at the third", {.cancelAtStep = 3}, true,
            "prepare T, data asked, range, header, step 2.5, item Ann, step 2.5, step 2.5, footer"},
        {"cancel at the last", {.cancelAtStep = 4}, true,
            "prepare T, data asked, range, header, step 2.5, item Ann, step 2.5, "
            "step 2.5, item Bo, step 2.5, footer"},
        {"cancel, then the footer fails", {.refused = "footer", .cancelAtStep = 1}, false,
            "prepare T, data asked, range, header, step 2.5, footer"},
        {"a record fails: stop, no footer", {.refused = "item Bo"}, false,
            "prepare T, data asked, range, header, step 2.5, item Ann, step 2.5, "
            "step 2.5, item Bo"},
        {"the footer fails", {.refused = "footer"}, false,
            "prepare T, data asked, range, header, step 2.5, item Ann, step 2.5, "
            "step 2.5, item Bo, step 2.5, item Cy, footer"},
        {"no progress: neither range nor step", {.withProgress = false}, true,
            "prepare T, data asked, header, item Ann, item Bo, item Cy, footer"},
        {"no records: the range is not asked", {.withRecords = false}, true,
            "prepare T, data asked, header, footer"},
        {"neither", {.withProgress = false, .withRecords = false}, true,
            "prepare T, data asked, header, footer"},
    });
}

TEST(RecordLoop, WithItemCallsAnswersEachEvent)
{
    expectRows<ItemCalls::BeginAndEnd>({
        {"all goes well", {}, true,
            "prepare T, data asked, range, header, "
            "step 2.5, value 0, begin Ann, item Ann, end Ann, step 2.5, "
            "step 2.5, value 0, begin Bo, item Bo, end Bo, "
            "step 2.5, value 0, begin Cy, item Cy, end Cy, footer"},
        {"prepare fails: the data set is not asked", {.refused = "prepare T"}, false, "prepare T"},
        {"header fails: no record, no footer", {.refused = "header"}, false,
            "prepare T, data asked, range, header"},
        {"cancel at the third", {.cancelAtStep = 3}, true,
            "prepare T, data asked, range, header, "
            "step 2.5, value 0, begin Ann, item Ann, end Ann, step 2.5, step 2.5, footer"},
        {"cancel, then the footer fails", {.refused = "footer", .cancelAtStep = 3}, false,
            "prepare T, data asked, range, header, "
            "step 2.5, value 0, begin Ann, item Ann, end Ann, step 2.5, step 2.5, footer"},
        {"a refused record is passed over, and not ended", {.refused = "begin Bo"}, true,
            "prepare T, data asked, range, header, "
            "step 2.5, value 0, begin Ann, item Ann, end Ann, step 2.5, "
            "step 2.5, value 0, begin Bo, "
            "step 2.5, value 0, begin Cy, item Cy, end Cy, footer"},
        {"a record fails: it is ended, then stop, no footer", {.refused = "item Bo"}, false,
            "prepare T, data asked, range, header, "
            "step 2.5, value 0, begin Ann, item Ann, end Ann, step 2.5, "
            "step 2.5, value 0, begin Bo, item Bo, end Bo"},
        {"its end fails: stop, no footer", {.refused = "end Bo"}, false,
            "prepare T, data asked, range, header, "
            "step 2.5, value 0, begin Ann, item Ann, end Ann, step 2.5, "
            "step 2.5, value 0, begin Bo, item Bo, end Bo"},
        {"the footer fails", {.refused = "footer"}, false,
            "prepare T, data asked, range, header, "
            "step 2.5, value 0, begin Ann, item Ann, end Ann, step 2.5, "
            "step 2.5, value 0, begin Bo, item Bo, end Bo, "
            "step 2.5, value 0, begin Cy, item Cy, end Cy, footer"},
        {"no progress: neither range nor step", {.withProgress = false}, true,
            "prepare T, data asked, header, "
            "value 0, begin Ann, item Ann, end Ann, value 0, begin Bo, item Bo, end Bo, "
            "value 0, begin Cy, item Cy, end Cy, footer"},
        {"no records: the range is not asked", {.withRecords = false}, true,
            "prepare T, data asked, header, footer"},
    });
}

} // namespace
