// SPDX-License-Identifier: MIT
// Exports one contact and one conversation of one message into the directory that is named.
#include "driver/CBackupExporter.h"
#include "model/CIProgressCallback.h"
#include "model/PRBackup.h"
#include "model/PRContactItem.h"
#include "model/PRSMSItem.h"
#include "translators/contact/CContactHelper.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

namespace {

// A progress of the host's own: its type crosses the border of the library.
class CountingProgress final : public CIProgressCallback {
public:
    void initRange(int range) override { m_range = range; }
    int range() override { return m_range; }
    bool step(double amount) override
    {
        m_position += amount;
        return true;
    }
    bool finish() override
    {
        m_finished = true;
        return true;
    }
    void setAttachStage(bool /*attachStage*/) override {}

    bool isComplete() const { return m_finished && m_range == 200 && m_position == 200.0; }

private:
    int m_range = 0;
    double m_position = 0.0;
    bool m_finished = false;
};

std::unique_ptr<PRContactData> oneContact()
{
    ContactContent contact;
    contact.firstName = "Mia";
    contact.birthday = "-496152000"; // 1985-04-12
    contact.propertyList.emplace_back(ContactProperty{
        .type = Phone, .label = CContactHelper::CATE_MOBILE, .value = "+49 171 5550101"});
    RecordList records;
    records.push_back(
        std::make_unique<PRContactItem>(Record{.values = {"Mia"}}, std::move(contact)));
    return std::make_unique<PRContactData>(std::move(records));
}

PRBackup backupWithContactAndMessage()
{
    SmsConversation conversation;
    conversation.chats.emplace_back(SmsMessage{.date = QDateTime::fromSecsSinceEpoch(1714566600),
        .content = "See you at Luna?",
        .addr = "+49 171 5550101"});
    RecordList records;
    records.push_back(std::make_unique<PRSMSItem>(
        Record{.values = {"Mia", "+49 171 5550101"}}, std::move(conversation)));
    PRBackup backup;
    backup.add(std::make_unique<PRSMSData>(std::move(records)));
    backup.add(oneContact());
    return backup;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    CContactHelper helper;
    if (helper.convertLabel(CContactHelper::CATE_MOBILE, false) != QLatin1String("mobile")) {
        std::puts("host: the label of a mobile phone is another one");
        return 1;
    }
    PRBackup backup = backupWithContactAndMessage();
    CountingProgress progress;
    CBackupExporter exporter;
    exporter.exportBackup(&backup, QDir(argv[1]), &progress, false, "Mia");
    if (!progress.isComplete()) {
        std::puts("host: the progress did not reach its end");
        return 1;
    }
    return 0;
}
