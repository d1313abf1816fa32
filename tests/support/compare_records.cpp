// SPDX-License-Identifier: MIT
#include "support/compare_records.h"

#include "model/PRCalendarItem.h"
#include "model/PRContactItem.h"
#include "model/PRFileItem.h"
#include "model/PRNoteItem.h"
#include "model/PRSMSItem.h"
#include "model/PRSafariBookmarkItem.h"
#include "model/PRWeichatContactItem.h"
#include "model/PRWhatsappItem.h"

#include <QDebug>
#include <QStringList>

#include <optional>

namespace support {

namespace {

template <typename Value> QString shown(const Value& value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

/// Keeps the first difference, and the way to what is being compared.
class Comparison {
public:
    template <typename Value> void same(const char* what, const Value& one, const Value& other)
    {
        if (m_difference.isEmpty() && !(one == other)) {
            note(what, shown(one), shown(other));
        }
    }
    // An invalid date compares equal to the start of 1970.
    void same(const char* what, const QDateTime& one, const QDateTime& other)
    {
        if (m_difference.isEmpty() && (one.isValid() != other.isValid() || one != other)) {
            note(what, shown(one), shown(other));
        }
    }

    /// Compares two lists item by item, once they have the same number.
    template <typename List, typename Compare>
    void each(const char* what, const List& one, const List& other, const Compare& compare)
    {
        same(what, static_cast<int>(one.size()), static_cast<int>(other.size()));
        for (int index = 0; m_difference.isEmpty() && index < static_cast<int>(one.size());
             ++index) {
            m_way.append(QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(index));
            compare(one.at(index), other.at(index));
            m_way.removeLast();
        }
    }

    const QString& difference() const { return m_difference; }
    void enter(const QString& step) { m_way.append(step); }
    void leave() { m_way.removeLast(); }

private:
    void note(const char* what, const QString& one, const QString& other)
    {
        m_difference = QStringLiteral("%1: %2 and %3")
                           .arg((m_way + QStringList(what)).join(QStringLiteral(", ")), one, other);
    }

    QStringList m_way;
    QString m_difference;
};

void comparePieces(Comparison& comparison, const PRSMSPiece& one, const PRSMSPiece& other)
{
    comparison.same("type", one.pieceType(), other.pieceType());
    comparison.same("location", one.isLocation(), other.isLocation());
    comparison.same("data", one.pieceData(), other.pieceData());
    comparison.same("path", one.pieceLocation(), other.pieceLocation());
    comparison.same("preview", one.piecePreviewFile(), other.piecePreviewFile());
    comparison.same("info", one.pieceInfo(), other.pieceInfo());
}

void compareMessages(Comparison& comparison, const PRSMSChat& one, const PRSMSChat& other)
{
    comparison.same("checked", one.isChecked(), other.isChecked());
    comparison.same("fromMe", one.isFromMe(), other.isFromMe());
    comparison.same("sentDone", one.isSentDone(), other.isSentDone());
    comparison.same("normalSMS", one.isNormalSMS(), other.isNormalSMS());
    comparison.same("date", one.msgDate(), other.msgDate());
    comparison.same("itemType", one.itemType(), other.itemType());
    comparison.same("event", one.msgForEvent({}), other.msgForEvent({}));
    comparison.same("subject", one.subject(), other.subject());
    comparison.same("content", one.content(), other.content());
    comparison.same("addr", one.addr(), other.addr());
    comparison.each("piece", one.pieces(), other.pieces(),
        [&](const auto* left, const auto* right) { comparePieces(comparison, *left, *right); });
}

void compareItems(Comparison& comparison, PRSMSItem& one, PRSMSItem& other)
{
    // Of two items of one store only the last answer holds; the sides are two stores.
    const PRSMSChatGroup& left = *one.detailContent();
    const PRSMSChatGroup& right = *other.detailContent();
    comparison.same("addrIds", left.addrIds(), right.addrIds());
    comparison.each("chat", left.chats(), right.chats(),
        [&](const auto* a, const auto* b) { compareMessages(comparison, *a, *b); });
}

void compareNames(
    Comparison& comparison, const PRContactPrivate& one, const PRContactPrivate& other)
{
    comparison.same("namePrefix", one.namePrefix, other.namePrefix);
    comparison.same("firstName", one.firstName, other.firstName);
    comparison.same("middleName", one.middleName, other.middleName);
    comparison.same("lastName", one.lastName, other.lastName);
    comparison.same("nameSuffix", one.nameSuffix, other.nameSuffix);
    comparison.same("firstPhonetic", one.firstPhonetic, other.firstPhonetic);
    comparison.same("lastPhonetic", one.lastPhonetic, other.lastPhonetic);
    comparison.same("middlePhonetic", one.middlePhonetic, other.middlePhonetic);
    comparison.same("organizationPhonetic", one.organizationPhonetic, other.organizationPhonetic);
    comparison.same("firstPronunciation", one.firstPronunciation, other.firstPronunciation);
    comparison.same("lastPronunciation", one.lastPronunciation, other.lastPronunciation);
    comparison.same("middlePronunciation", one.middlePronunciation, other.middlePronunciation);
    comparison.same("organizationPronunciation", one.organizationPronunciation,
        other.organizationPronunciation);
    comparison.same("previousFamilyName", one.previousFamilyName, other.previousFamilyName);
    comparison.same("nickname", one.nickname, other.nickname);
}

void compareProperties(
    Comparison& comparison, const PRContactProperty& one, const PRContactProperty& other)
{
    comparison.same("type", one.propType(), other.propType());
    comparison.same("label", one.propLabel(), other.propLabel());
    comparison.same("value", one.propValue(), other.propValue());
    comparison.same("entry", one.propValueEntry(), other.propValueEntry());
}

void compareItems(Comparison& comparison, PRContactItem& one, PRContactItem& other)
{
    const PRContactPrivate& left = *one.detailContent();
    const PRContactPrivate& right = *other.detailContent();
    compareNames(comparison, left, right);
    comparison.same("jobTitle", left.jobTitle, right.jobTitle);
    comparison.same("department", left.department, right.department);
    comparison.same("organization", left.organization, right.organization);
    comparison.same("birthday", left.birthday, right.birthday);
    comparison.same("note", left.note, right.note);
    comparison.same("photo", left.photo, right.photo);
    comparison.same("alt birthday type", left.getAltBirthdayType(), right.getAltBirthdayType());
    comparison.same("alt birthday label", left.getAltBirthdayLabel(), right.getAltBirthdayLabel());
    comparison.same("alt birthday desc", left.getAltBirthdayDesc(), right.getAltBirthdayDesc());
    comparison.each("property", left.properties(), right.properties(),
        [&](const auto* a, const auto* b) { compareProperties(comparison, *a, *b); });
}

void compareMessages(Comparison& comparison, const PRWhatsappMsg& one, const PRWhatsappMsg& other)
{
    comparison.same("checked", one.isChecked(), other.isChecked());
    comparison.same("type", static_cast<int>(one.type()), static_cast<int>(other.type()));
    comparison.same("fromMe", one.isFromMe(), other.isFromMe());
    comparison.same("sentDone", one.isSentDone(), other.isSentDone());
    comparison.same("date", one.msgDate(), other.msgDate());
    comparison.same("content", one.content(), other.content());
    comparison.same("member", one.member(), other.member());
    comparison.same("media", one.media(), other.media());
    comparison.same("thumbData", one.isReadThumbFileData(), other.isReadThumbFileData());
    comparison.same("broadcast", one.isBroadcast(), other.isBroadcast());
    comparison.same("drawLike", one.isDrawLike(), other.isDrawLike());
    comparison.same("likeType", one.getLikeType(), other.getLikeType());
    comparison.same("likeCount", one.getLikeCount(), other.getLikeCount());
}

void compareItems(Comparison& comparison, PRWhatsappItem& one, PRWhatsappItem& other)
{
    comparison.each("message", one.detailContent()->messages(), other.detailContent()->messages(),
        [&](const auto* a, const auto* b) { compareMessages(comparison, *a, *b); });
}

void compareItems(Comparison& comparison, PRWeichatContactItem& one, PRWeichatContactItem& other)
{
    const PRWeiChatContact& left = *one.detailContent();
    const PRWeiChatContact& right = *other.detailContent();
    comparison.same("name", left.name(), right.name());
    comparison.same("nickName", left.nickName(), right.nickName());
    comparison.same("wxNameId", left.wxNameId(), right.wxNameId());
    comparison.same("nameID", left.nameID(), right.nameID());
    comparison.same("country", left.country(), right.country());
    comparison.same("city", left.city(), right.city());
    comparison.same("sign", left.sign(), right.sign());
    comparison.same("phones", left.phones(), right.phones());
    comparison.same("room", left.isRoom(), right.isRoom());
    comparison.same("headImage", left.HeadImage(), right.HeadImage());
    comparison.each("member", left.members(), right.members(), [&](const auto& a, const auto& b) {
        comparison.same("alias", a.alias, b.alias);
        comparison.same("name", a.name, b.name);
        comparison.same("nameId", a.nameId, b.nameId);
        comparison.same("wxId", a.wxId, b.wxId);
    });
}

void compareItems(Comparison& comparison, PRCalendarItem& one, PRCalendarItem& other)
{
    comparison.same("allDay", one.getAllDay(), other.getAllDay());
    comparison.same("start", one.sortValue(2).toDateTime(), other.sortValue(2).toDateTime());
    comparison.same("end", one.sortValue(3).toDateTime(), other.sortValue(3).toDateTime());
    comparison.same("recurrence", one.sortValue(5), other.sortValue(5));
    comparison.same(
        "recurrenceEnd", one.sortValue(6).toDateTime(), other.sortValue(6).toDateTime());
    comparison.same("alarm", one.sortValue(9), other.sortValue(9));
}

void compareItems(Comparison& comparison, PRSafariBookmarkItem& one, PRSafariBookmarkItem& other)
{
    comparison.same("group", one.bookmarkGroup(), other.bookmarkGroup());
}

void compareItems(Comparison& comparison, PRNoteItem& one, PRNoteItem& other)
{
    comparison.each(
        "piece", one.notePieces(), other.notePieces(), [&](const auto* a, const auto* b) {
            comparison.same("kind", a->kind, b->kind);
            comparison.same("content", a->content, b->content);
            comparison.same("label", a->label, b->label);
            comparison.same("sourcePath", a->sourcePath, b->sourcePath);
            comparison.same("previewPath", a->previewPath, b->previewPath);
            comparison.same("preview", a->preview, b->preview);
        });
}

void compareItems(Comparison& comparison, PRFileItem& one, PRFileItem& other)
{
    comparison.same("data", one.fileData(), other.fileData());
    comparison.same("path", one.filePath(), other.filePath());
    comparison.same("thumbFile", one.thumbFilePath(), other.thumbFilePath());
    comparison.same("thumbnail", one.thumbnail(), other.thumbnail());
    comparison.same("thumbToMedia", one.isThumbToMedia(), other.isThumbToMedia());
    comparison.same("detailDate", one.getDetailInfoDateTime(), other.getDetailInfoDateTime());
}

/// Compares what only records of one class have, where both are of it.
template <typename Item>
void compareAs(Comparison& comparison, const char* kind, PRAbstractItem& one, PRAbstractItem& other)
{
    auto* left = dynamic_cast<Item*>(&one);
    auto* right = dynamic_cast<Item*>(&other);
    comparison.same(kind, left != nullptr, right != nullptr);
    if (left != nullptr && right != nullptr) {
        compareItems(comparison, *left, *right);
    }
}

QString parentOf(PRAbstractItem& item)
{
    const PRAbstractItem* parent = item.parentItem();
    return parent != nullptr ? QStringLiteral("in ") + parent->value(0) : QString();
}

void compareRecords(Comparison& comparison, PRAbstractItem& one, PRAbstractItem& other)
{
    comparison.same("values", one.record().values, other.record().values);
    comparison.same("selected", one.isSelected(), other.isSelected());
    comparison.same("parent", parentOf(one), parentOf(other));
    for (const int number : {Deleted, InCalendarRange, Locked, PartlySelected}) {
        comparison.same("flags", one.flag(number) ? number : 0, other.flag(number) ? number : 0);
    }
    compareAs<PRSMSItem>(comparison, "is sms", one, other);
    compareAs<PRContactItem>(comparison, "is contact", one, other);
    compareAs<PRWhatsappItem>(comparison, "is chat", one, other);
    compareAs<PRWeichatContactItem>(comparison, "is chatContact", one, other);
    compareAs<PRCalendarItem>(comparison, "is event", one, other);
    compareAs<PRSafariBookmarkItem>(comparison, "is bookmark", one, other);
    compareAs<PRNoteItem>(comparison, "is note", one, other);
    compareAs<PRFileItem>(comparison, "is file", one, other);
}

template <typename Class> bool isA(const PRData& set)
{
    return dynamic_cast<const Class*>(&set) != nullptr;
}

void compareSets(Comparison& comparison, const PRData& one, const PRData& other)
{
    comparison.same("is PRContactData", isA<PRContactData>(one), isA<PRContactData>(other));
    comparison.same("is PRSMSData", isA<PRSMSData>(one), isA<PRSMSData>(other));
    comparison.same("columns", one.dataColumn(), other.dataColumn());
    for (int column = 0; column < one.dataColumn(); ++column) {
        comparison.same("column", one.columnName(column), other.columnName(column));
    }
    comparison.same("records", one.count(1), other.count(1));
    for (int row = 0; comparison.difference().isEmpty() && row < one.count(1); ++row) {
        comparison.enter(QStringLiteral("record %1").arg(row));
        compareRecords(comparison, *one.at(row, true), *other.at(row, true));
        comparison.leave();
    }
}

} // namespace

QString firstDifference(const PRBackup& one, const PRBackup& other)
{
    Comparison comparison;
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        const PRData* left = one.getPRData(dataType);
        const PRData* right = other.getPRData(dataType);
        comparison.enter(QStringLiteral("set %1").arg(dataType));
        comparison.same("is there", left != nullptr, right != nullptr);
        if (left != nullptr && right != nullptr) {
            compareSets(comparison, *left, *right);
        }
        comparison.leave();
    }
    return comparison.difference();
}

} // namespace support
