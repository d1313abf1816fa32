// SPDX-License-Identifier: MIT
#include "random_records.h"

#include "model/PRCalendarItem.h"
#include "model/PRContactItem.h"
#include "model/PRFileItem.h"
#include "model/PRNoteItem.h"
#include "model/PRSMSItem.h"
#include "model/PRSafariBookmarkItem.h"
#include "model/PRWeichatContactItem.h"
#include "model/PRWhatsappItem.h"

#include <QDateTime>
#include <QDir>

#include <limits>
#include <random>

namespace {

// The engine's numbers are the same everywhere, those of the standard's distributions are not.
class Random {
public:
    explicit Random(unsigned seed) : m_engine(seed) {}

    int below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }
    bool truth() { return below(2) == 0; }

    int number()
    {
        const int numbers[] = {0, 0, 1, -1, 46, std::numeric_limits<int>::min(),
            std::numeric_limits<int>::max(), static_cast<int>(m_engine())};
        return numbers[below(8)];
    }

    uint character()
    {
        switch (below(8)) {
        case 0:
            return static_cast<uint>(below(0x20)); // control characters, U+0000 too
        case 1:
            return QByteArray("\"\\/~<>&'").at(below(8)) & 0x7F;
        case 2:
            return 0x80 + static_cast<uint>(below(0xD800 - 0x80));
        case 3:
            return 0xE000 + static_cast<uint>(below(0x2000)); // U+FEFF and U+FFFF too
        case 4:
            return 0x10000 + static_cast<uint>(below(0x100000));
        case 5:
            return 0xFEFF;
        default:
            return 0x20 + static_cast<uint>(below(0x60));
        }
    }

    QString text()
    {
        QVector<uint> characters(below(3) == 0 ? 0 : below(12));
        for (uint& one : characters) {
            one = character();
        }
        return QString::fromUcs4(characters.constData(), characters.size());
    }

    QStringList texts()
    {
        QStringList list;
        for (int left = below(4); left > 0; --left) {
            list.append(text());
        }
        return list;
    }

    QMap<QString, QString> textMap()
    {
        QMap<QString, QString> map;
        for (int left = below(4); left > 0; --left) {
            map.insert(text(), text());
        }
        return map;
    }

    QByteArray bytes()
    {
        if (truth()) {
            return text().toUtf8();
        }
        QByteArray bytes(below(20), '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(below(256));
        }
        return bytes;
    }

    QString path()
    {
        switch (below(4)) {
        case 0:
            return {};
        case 1:
            return "http" + text() + "://" + text(); // an address, or a path that looks like one
        default:
            return "/" + text();
        }
    }

    QDateTime date()
    {
        const qint64 seconds = static_cast<int>(m_engine());
        switch (below(6)) {
        case 0:
            return {};
        case 1:
            return QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
        case 2:
            return QDateTime::fromMSecsSinceEpoch(seconds * 1000 + below(1000), Qt::LocalTime);
        case 3:
            return QDateTime::fromMSecsSinceEpoch(seconds * 1'000'000, Qt::UTC); // 66 000 years
        default:
            return QDateTime::fromMSecsSinceEpoch(seconds * 1000, Qt::UTC);
        }
    }

private:
    std::mt19937 m_engine;
};

// What is no address is an absolute clean path in a model.
QString modelPath(Random& random)
{
    const QString path = random.path();
    const QString scheme = path.section("://", 0, 0);
    const bool plainScheme = scheme == "http" && path.startsWith("http://");
    return path.isEmpty() || plainScheme ? path : QDir::cleanPath("/" + path);
}

std::vector<PRSMSPiece> randomPieces(Random& random)
{
    std::vector<PRSMSPiece> pieces;
    for (int left = random.below(3); left > 0; --left) {
        pieces.emplace_back(SmsPiece{.type = random.text(),
            .location = random.truth(),
            .data = random.bytes(),
            .path = modelPath(random),
            .preview = modelPath(random),
            .info = random.text()});
    }
    return pieces;
}

std::unique_ptr<PRAbstractItem> randomSms(Random& random, Record record)
{
    SmsConversation conversation{.addrIds = random.textMap()};
    for (int left = random.below(5); left > 0; --left) {
        conversation.chats.emplace_back(SmsMessage{.checked = random.truth(),
            .fromMe = random.truth(),
            .sentDone = random.truth(),
            .normalSMS = random.truth(),
            .date = random.date(),
            .itemType = random.number(),
            .event = random.text(),
            .subject = random.text(),
            .content = random.text(),
            .addr = random.text(),
            .pieces = randomPieces(random)});
    }
    return std::make_unique<PRSMSItem>(std::move(record), std::move(conversation));
}

std::unique_ptr<PRAbstractItem> randomContact(Random& random, Record record)
{
    ContactContent contact{
        .photo = random.bytes(),
        .altBirthday = {.type = random.number(), .label = random.text(), .desc = random.text()},
    };
    for (QString ContactContent::*member :
        {&ContactContent::namePrefix, &ContactContent::firstName, &ContactContent::middleName,
            &ContactContent::lastName, &ContactContent::nameSuffix, &ContactContent::firstPhonetic,
            &ContactContent::lastPhonetic, &ContactContent::middlePhonetic,
            &ContactContent::organizationPhonetic, &ContactContent::firstPronunciation,
            &ContactContent::lastPronunciation, &ContactContent::middlePronunciation,
            &ContactContent::organizationPronunciation, &ContactContent::previousFamilyName,
            &ContactContent::nickname, &ContactContent::jobTitle, &ContactContent::department,
            &ContactContent::organization, &ContactContent::birthday, &ContactContent::note}) {
        contact.*member = random.text();
    }
    for (int left = random.below(4); left > 0; --left) {
        contact.propertyList.emplace_back(ContactProperty{.type = random.number(),
            .label = random.text(),
            .value = random.text(),
            .entry = random.textMap()});
    }
    return std::make_unique<PRContactItem>(std::move(record), std::move(contact));
}

std::unique_ptr<PRAbstractItem> randomChat(Random& random, Record record)
{
    std::vector<PRWhatsappMsg> messages;
    for (int left = random.below(5); left > 0; --left) {
        messages.emplace_back(ChatMessage{.checked = random.truth(),
            .type = random.number(),
            .fromMe = random.truth(),
            .sentDone = random.truth(),
            .date = random.date(),
            .content = random.text(),
            .member = random.text(),
            .media = modelPath(random),
            .thumbData = random.truth(),
            .broadcast = random.truth(),
            .drawLike = random.truth(),
            .likeType = random.number(),
            .likeCount = random.number()});
    }
    return std::make_unique<PRWhatsappItem>(std::move(record), std::move(messages));
}

std::unique_ptr<PRAbstractItem> randomChatContact(Random& random, Record record)
{
    PRWeiChatContact::Content contact{.name = random.text(),
        .nickName = random.text(),
        .wxNameId = random.text(),
        .nameID = random.text(),
        .country = random.text(),
        .city = random.text(),
        .sign = random.text(),
        .phones = random.texts(),
        .room = random.truth(),
        .headImage = modelPath(random)};
    for (int left = random.below(3); left > 0; --left) {
        contact.members.append({.alias = random.text(),
            .name = random.text(),
            .nameId = random.text(),
            .wxId = random.text()});
    }
    return std::make_unique<PRWeichatContactItem>(std::move(record), std::move(contact));
}

std::unique_ptr<PRAbstractItem> randomEvent(Random& random, Record record)
{
    return std::make_unique<PRCalendarItem>(
        std::move(record), CalendarEvent{.allDay = random.number(),
                               .start = random.date(),
                               .end = random.date(),
                               .recurrence = random.text(),
                               .recurrenceEnd = random.date(),
                               .alarmSeconds = random.number()});
}

std::unique_ptr<PRAbstractItem> randomBookmark(Random& random, Record record)
{
    return std::make_unique<PRSafariBookmarkItem>(std::move(record), random.text());
}

std::unique_ptr<PRAbstractItem> randomNote(Random& random, Record record)
{
    std::vector<PRNoteItem::NotePiece> pieces;
    for (int left = random.below(4); left > 0; --left) {
        const int kind = random.number();
        pieces.push_back({.kind = kind,
            .content = kind == 0 ? random.text() : modelPath(random),
            .label = random.text(),
            .sourcePath = modelPath(random),
            .previewPath = modelPath(random)});
    }
    return std::make_unique<PRNoteItem>(std::move(record), std::move(pieces));
}

std::unique_ptr<PRAbstractItem> randomFile(Random& random, Record record)
{
    return std::make_unique<PRFileItem>(std::move(record), FileContent{.data = random.bytes(),
                                                               .path = modelPath(random),
                                                               .thumbFile = modelPath(random),
                                                               .thumbnail = modelPath(random),
                                                               .thumbToMedia = random.truth(),
                                                               .detailDate = random.text()});
}

std::unique_ptr<PRAbstractItem> plain(Random& /*random*/, Record record)
{
    return std::make_unique<PRAbstractItem>(std::move(record));
}

Record randomRecord(Random& random)
{
    Record record{.values = random.texts(), .selected = random.below(3) != 0};
    for (const int flag : {Deleted, InCalendarRange, Locked, PartlySelected}) {
        record.flags |= random.truth() ? flag : 0;
    }
    const QString parent = random.text();
    if (random.truth() && parent != "." && parent != "..") {
        record.parent = parent;
    }
    return record;
}

std::unique_ptr<PRData> randomSet(Random& random, int dataType)
{
    constexpr std::array kMakers{randomSms, randomContact, randomChat, randomChatContact,
        randomEvent, randomBookmark, randomNote, randomFile, plain};
    RecordList records;
    for (int left = random.below(6); left > 0; --left) {
        const auto& make = kMakers.at(static_cast<std::size_t>(random.below(kMakers.size())));
        records.push_back(make(random, randomRecord(random)));
    }
    const QStringList columns = random.truth() ? PRData::nameColumn() : random.texts();
    switch (dataType) {
    case 0:
        return std::make_unique<PRSMSData>(std::move(records), columns);
    case 2:
        return std::make_unique<PRContactData>(std::move(records), columns);
    default:
        return std::make_unique<PRData>(dataType, std::move(records), columns);
    }
}

} // namespace

PRBackup randomBackup(unsigned seed)
{
    Random random(seed);
    PRBackup backup;
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        if (random.truth()) {
            backup.add(randomSet(random, dataType));
        }
    }
    return backup;
}
