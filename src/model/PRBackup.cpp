// SPDX-License-Identifier: MIT
#include "model/PRBackup.h"

#include "platform/literals.h"

namespace {

constexpr std::array<QLatin1String, kDataTypeCount> kDataTypeNames{
    "Messages"_L1,
    "Message Attachments"_L1,
    "Contacts"_L1,
    "Call History"_L1,
    "Voicemail"_L1,
    "WhatsApp"_L1,
    "WhatsApp Attachments"_L1,
    "WhatsApp Business"_L1,
    "WhatsApp Business Attachments"_L1,
    "LINE"_L1,
    "LINE Attachments"_L1,
    "Viber"_L1,
    "Viber Attachments"_L1,
    "Viber Call History"_L1,
    "WeChat"_L1,
    "WeChat Attachments"_L1,
    "WeChat Contacts"_L1,
    "Kik"_L1,
    "Kik Attachments"_L1,
    "Messenger"_L1,
    "Messenger Attachments"_L1,
    "Photos"_L1,
    "Shared Photos"_L1,
    "Videos"_L1,
    "App Photos"_L1,
    "App Videos"_L1,
    "App Audio"_L1,
    "Notes"_L1,
    "Note Attachments"_L1,
    "Calendar"_L1,
    "Reminders"_L1,
    "Voice Memos"_L1,
    "Ringtones"_L1,
    "Safari Bookmarks"_L1,
    "Safari History"_L1,
    "App Documents"_L1,
};

bool isDataType(int dataType)
{
    return dataType >= 0 && dataType < kDataTypeCount;
}

} // namespace

PRBackup::PRBackup() = default;
PRBackup::PRBackup(PRBackup&& other) noexcept = default;
PRBackup& PRBackup::operator=(PRBackup&& other) noexcept = default;
PRBackup::~PRBackup() = default;

void PRBackup::add(std::unique_ptr<PRData> set)
{
    if (set && isDataType(set->dataType())) {
        m_sets.at(static_cast<std::size_t>(set->dataType())) = std::move(set);
    }
}

PRData* PRBackup::getPRData(int dataType) const
{
    return isDataType(dataType) ? m_sets.at(static_cast<std::size_t>(dataType)).get() : nullptr;
}

QString PRBackup::dataTypeName(int dataType)
{
    return isDataType(dataType) ? QString(kDataTypeNames.at(static_cast<std::size_t>(dataType)))
                                : QString();
}

bool PRBackup::fromPhotoFile(int dataType)
{
    return dataType == 21 || dataType == 22 || dataType == 23;
}
