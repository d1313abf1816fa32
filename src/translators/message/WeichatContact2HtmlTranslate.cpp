// SPDX-License-Identifier: MIT
// One card for each contact or room, of a page that `card.cpp` shows:
//
//   (picture)   Mia                     (picture)   Tide watchers
//               "mimi"                  Name        Ben          a member
//   Detail                              Alias       ben
//   Name        Mia                     Wechat ID   ben.falk
//   Alias       "mimi"                  WXID        wxid_2
//   Wechat ID   mia.huber               Name        Carla        the next one
//   WXID        wxid_1                  ...
//   Region      Kiel Germany
//   Phone       +49 431 5550101,+49 431 5550102
//   What's Up   At sea
#include "translators/message/WeichatContact2HtmlTranslate.h"

#include "exporters/CHtmlExporter.h"
#include "exporters/page_images.h"
#include "exporters/page_text.h"
#include "model/PRData.h"
#include "model/PRWeichatContactItem.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"
#include "translators/contact/card.h"
#include "translators/message/chat_contact_texts.h"
#include "translators/message/labels.h"

#include <QFile>
#include <QImage>

namespace {

constexpr auto kDetail = QT_TRANSLATE_NOOP("DataExport", "Detail");
constexpr auto kName = QT_TRANSLATE_NOOP("DataExport", "Name");
constexpr auto kAlias = QT_TRANSLATE_NOOP("DataExport", "Alias");
constexpr auto kPublicId = QT_TRANSLATE_NOOP("DataExport", "Wechat ID");
constexpr auto kGivenId = QT_TRANSLATE_NOOP("DataExport", "WXID");
constexpr auto kRegion = QT_TRANSLATE_NOOP("DataExport", "Region");
constexpr auto kPhone = QT_TRANSLATE_NOOP("DataExport", "Phone");
constexpr auto kSign = QT_TRANSLATE_NOOP("DataExport", "What's Up");

void drawPerson(Page& page, const PRWeiChatContact& contact)
{
    const auto inner = [&page](const char* source, const QString& value) {
        addCardRow(page, CardRow::Inner, label(source), value);
    };
    addCardHeading(page, label(kDetail));
    inner(kName, contact.name());
    inner(kAlias, aliasText(contact));
    inner(kPublicId, publicId(contact.wxNameId(), contact.nameID()));
    inner(kGivenId, contact.nameID());
    inner(kRegion, regionText(contact));
    inner(kPhone, contact.phones().join(QChar(u',')));
    addCardRow(page, CardRow::Last, label(kSign), contact.sign());
}

void drawMember(Page& page, const PRWeiChatContact::MemberContact& member)
{
    // Without a name there is nothing to stand beside the label, which takes the whole width.
    if (member.name.isEmpty()) {
        addCardHeading(page, label(kName));
    } else {
        addCardRow(page, CardRow::Head, label(kName), member.name);
    }
    addCardRow(page, CardRow::Inner, label(kAlias), member.alias); // without quotation marks
    addCardRow(page, CardRow::Inner, label(kPublicId), publicId(member.wxId, member.nameId));
    addCardRow(page, CardRow::Last, label(kGivenId), member.nameId);
}

void drawRoom(Page& page, const PRWeiChatContact& room)
{
    const QList<PRWeiChatContact::MemberContact> members = room.members();
    for (const PRWeiChatContact::MemberContact& member : members) {
        drawMember(page, member);
    }
}

// Case counts: an address in capitals is a path.
bool isAddress(const QString& source)
{
    return source.startsWith("http"_L1);
}

} // namespace

bool WeichatContact2HtmlTranslate::prepare(
    CIDataExporter* /*exporter*/, const QString& title, CIProgressCallback* /*progress*/)
{
    m_title = title;
    return true;
}

bool WeichatContact2HtmlTranslate::writeHeader(CIDataExporter* exporter)
{
    return writeCardsTop(*static_cast<CHtmlExporter*>(exporter), m_title);
}

bool WeichatContact2HtmlTranslate::writeFooter(CIDataExporter* exporter)
{
    return writeCardsBottom(*exporter);
}

bool WeichatContact2HtmlTranslate::writeItem(CIDataExporter* exporter, PRWeichatContactItem* item)
{
    const PRWeiChatContact& contact = *item->detailContent();
    Page page;
    openCard(
        page, headPicture(*exporter, contact.HeadImage()), contact.name(), item->flag(Deleted));
    if (!contact.isRoom()) {
        addCardLine(page, aliasText(contact));
    }
    openCardTable(page);
    if (contact.isRoom()) {
        drawRoom(page, contact);
    } else {
        drawPerson(page, contact);
    }
    closeCard(page);
    return exporter->write(page.text());
}

QString WeichatContact2HtmlTranslate::headPicture(CIDataExporter& exporter, const QString& source)
{
    const QString name = m_pictures.takeName(); // spent by each contact, with a picture or without
    if (source.isEmpty()) {
        return defaultCardPicture();
    }
    QString path = source;
    if (isAddress(source)) {
        const QString fetched = PRData::onDowmloadThumbnail(m_curl, source, "jpg"_L1);
        path = QFile::exists(fetched) ? fetched : source;
    }
    const QImage picture = CCommonUtils::safeloadImage(path);
    if (picture.isNull()) {
        return defaultCardPicture();
    }
    exporter.exportData(cardPicture(picture), name); // not tested: the page goes on without it
    return imagePath(name);
}
