// SPDX-License-Identifier: MIT
// What an exporter keeps from run to run.
#include "driver/driver_fixture.h"
#include "driver/exporter_access.h"
#include "support/recording_progress.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTimerEvent>

#include <functional>
#include <memory>
#include <type_traits>

namespace {

using access_to::cancelled;
using access_to::eventLoop;
using access_to::exportContactForTavero;
using access_to::fromDFU;
using access_to::stopLoop;

// Acts once, when the event loop next comes round after `afterMs`.
class Alarm final : public QObject {
public:
    Alarm(int afterMs, std::function<void()> action) : m_action(std::move(action))
    {
        startTimer(afterMs);
    }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        killTimer(event->timerId());
        m_action();
    }

private:
    std::function<void()> m_action;
};

void deletePosted()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST(ExporterState, StartsWithAllOff)
{
    const CBackupExporter exporter;
    EXPECT_FALSE(exporter.*fromDFU());
    EXPECT_FALSE(exporter.*exportContactForTavero());
    EXPECT_EQ(exporter.*eventLoop(), nullptr);
    EXPECT_EQ((exporter.*access_to::curl()).httpCode(), 0);
    EXPECT_FALSE(exporter.*stopLoop());
    EXPECT_FALSE(exporter.*cancelled());
}

TEST(ExporterState, SettersStoreBothValues)
{
    CBackupExporter exporter;
    for (const bool value : {true, false}) {
        exporter.setFromDFU(value);
        EXPECT_EQ(exporter.*fromDFU(), value);
        EXPECT_EQ(exporter.*exportContactForTavero(), false);
    }
    for (const bool value : {true, false}) {
        exporter.setExportContactForTavero(value);
        EXPECT_EQ(exporter.*exportContactForTavero(), value);
        EXPECT_EQ(exporter.*fromDFU(), false);
    }
}

TEST(ExporterState, CancelDownloadCancelsForGoodAndClearsTheStop)
{
    CBackupExporter exporter;
    exporter.*stopLoop() = true;
    exporter.cancelDownload();
    EXPECT_TRUE(exporter.*cancelled());
    EXPECT_FALSE(exporter.*stopLoop());
    PRBackup empty;
    exporter.exportBackup(&empty, QDir(), nullptr, false, "Anna");
    EXPECT_TRUE(exporter.*cancelled());
}

TEST(ExporterState, OnStopLoopStoresItsValueAndCancelsNothing)
{
    CBackupExporter exporter;
    for (const bool stop : {true, false}) {
        exporter.onStopLoop(stop);
        EXPECT_EQ(exporter.*stopLoop(), stop);
        EXPECT_FALSE(exporter.*cancelled());
    }
}

TEST(ExporterState, BothWaysToStopQuitTheLoopAndLetItGo)
{
    struct {
        const char* what;
        void (*stop)(CBackupExporter& exporter);
    } const rows[] = {
        {"cancelDownload", [](CBackupExporter& exporter) { exporter.cancelDownload(); }},
        {"onStopLoop true", [](CBackupExporter& exporter) { exporter.onStopLoop(true); }},
        {"onStopLoop false", [](CBackupExporter& exporter) { exporter.onStopLoop(false); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        CBackupExporter exporter;
        auto loop = std::make_unique<QEventLoop>();
        const QPointer<QEventLoop> watched(loop.get());
        exporter.*eventLoop() = loop.get();
        const Alarm stop(0, [&] { row.stop(exporter); });
        bool hung = false;
        const Alarm guard(10'000, [&] {
            hung = true;
            loop->exit();
        });
        loop->exec();
        EXPECT_FALSE(hung) << "the loop was not quit";
        EXPECT_EQ(exporter.*eventLoop(), nullptr);
        QEventLoop* released = loop.release();
        deletePosted();
        EXPECT_TRUE(watched.isNull()) << "the loop was not deleted: " << released;
        row.stop(exporter); // without a loop
    }
}

TEST(ExporterState, TheEndOfAnExporterLeavesTheLoopAlone)
{
    const auto loop = std::make_unique<QEventLoop>();
    const QPointer<QEventLoop> watched(loop.get());
    {
        CBackupExporter exporter;
        exporter.*eventLoop() = loop.get();
    }
    deletePosted();
    EXPECT_FALSE(watched.isNull());
}

CBackupExporter withAllSet(QEventLoop& loop)
{
    CBackupExporter exporter;
    exporter.setFromDFU(true);
    exporter.setExportContactForTavero(true);
    exporter.cancelDownload();
    exporter.onStopLoop(true);
    exporter.*eventLoop() = &loop;
    // A scheme that nothing fetches: the result is an error number, without a network.
    (exporter.*access_to::curl()).download("unknown://x", "/nowhere/at/all", true);
    return exporter;
}

void expectAllSet(const CBackupExporter& exporter, const QEventLoop& loop)
{
    EXPECT_TRUE(exporter.*fromDFU());
    EXPECT_TRUE(exporter.*exportContactForTavero());
    EXPECT_TRUE(exporter.*cancelled());
    EXPECT_TRUE(exporter.*stopLoop());
    EXPECT_EQ(exporter.*eventLoop(), &loop);
    EXPECT_NE((exporter.*access_to::curl()).httpCode(), 0);
}

TEST(ExporterState, ACopyHasAllFields)
{
    QEventLoop loop;
    const CBackupExporter original = withAllSet(loop);
    CBackupExporter copy(original);
    expectAllSet(copy, loop);
    copy = CBackupExporter();
    expectAllSet(original, loop);
}

TEST(ExporterState, AssignmentTakesAllFieldsAndIsTheWayToClearACancel)
{
    QEventLoop loop;
    CBackupExporter exporter;
    exporter = withAllSet(loop);
    expectAllSet(exporter, loop);
    exporter = CBackupExporter();
    EXPECT_FALSE(exporter.*cancelled());
    EXPECT_FALSE(exporter.*stopLoop());
    EXPECT_EQ(exporter.*eventLoop(), nullptr);
}

TEST(ExporterState, HasNeitherBaseNorVirtualOperations)
{
    EXPECT_FALSE(std::is_polymorphic_v<CBackupExporter>);
}

using ExporterCopy = DriverTest;

TEST_F(ExporterCopy, Exports)
{
    PRBackup backup;
    backup.add(smsSet(1));
    CBackupExporter original;
    original.cancelDownload(); // categories are written all the same
    CBackupExporter copy(original);
    support::RecordingProgress progress;
    EXPECT_TRUE(copy.exportBackup(&backup, root(), &progress, false, "Anna"));
    EXPECT_EQ(csvRows(), 1);
}

} // namespace
