// SPDX-License-Identifier: MIT
// One card for each contact, of a page that `card.cpp` shows:
//
//   (photo)     Mia Huber
//               Miya Huba                    as it is spoken
//               "Mimi"                       nickname
//               Pilot - Flight - Sky Ltd     job title, department, organization
//   Phone       a group for each kind of properties
//   Date        the birthdays stand before it
//   Notes       the last group
#include "translators/contact/CContact2HtmlTranslate.h"

#include "exporters/CHtmlExporter.h"
#include "exporters/page_images.h"
#include "exporters/page_text.h"
#include "model/PRContactItem.h"
#include "platform/literals.h"
#include "translators/contact/CContactHelper.h"
#include "translators/contact/card.h"
#include "translators/contact/contact_contents.h"

#include <QImage>

#include <array>
#include <iterator>

namespace {

// Properties of other kinds are not shown.
constexpr std::array kGroupOrder{
    Phone, Email, WebAddress, Address, Date, RelatedName, SocialProfile, InstantMessage};

// None of the lines is escaped, and an empty one keeps its place.
void drawLines(Page& page, const PRContactPrivate& contact)
{
    addCardLine(page, joinFilled({contact.firstPhonetic, contact.lastPhonetic}, " "_L1));
    // A quotation mark in the nickname is not doubled.
    addCardLine(page,
        contact.nickname.isEmpty() ? QString() : QChar(u'"') + contact.nickname + QChar(u'"'));
    addCardLine(
        page, joinFilled({contact.jobTitle, contact.department, contact.organization}, " - "_L1));
}

// The groups under a contact's name.
class CardGroups {
public:
    CardGroups(Page& page, const PRContactPrivate& contact, bool deleted)
        : m_page(page), m_contact(contact), m_deleted(deleted)
    {
    }

    void draw()
    {
        for (const PropType type : kGroupOrder) {
            if (type == Date) {
                drawBirthdays();
            }
            drawGroup(type);
        }
        drawNote();
    }

private:
    void drawBirthdays()
    {
        const bool hasBirthday = !m_contact.birthday.isEmpty();
        const bool hasAlternative = m_contact.getAltBirthdayType() != 0;
        if (hasBirthday || hasAlternative) {
            addCardHeading(m_page, m_helper.groupLabelForBirthday());
        }
        if (hasBirthday) {
            addCardRow(m_page, hasAlternative ? CardRow::Inner : CardRow::Last,
                m_helper.convertLabel(CContactHelper::PROP_KEY_BIRTHDAY, true),
                dateText(m_contact.birthday));
        }
        if (hasAlternative) {
            addCardRow(m_page, CardRow::Last, m_contact.getAltBirthdayLabel(),
                m_contact.getAltBirthdayDesc());
        }
    }

    void drawGroup(PropType type)
    {
        const QVector<const PRContactProperty*> properties = propertiesOf(m_contact, type);
        if (properties.isEmpty()) {
            return;
        }
        addCardHeading(m_page, m_helper.convertGroupLabel(type));
        for (const PRContactProperty* property : properties) {
            drawProperty(*property, property == properties.last());
        }
    }

    void drawProperty(const PRContactProperty& property, bool lastOfGroup)
    {
        QMap<QString, QString> hidden;
        if (m_deleted) {
            m_helper.getHiddenProperty(&property, hidden);
        }
        addCardRow(m_page, lastOfGroup && hidden.isEmpty() ? CardRow::Last : CardRow::Inner,
            m_helper.getPropLabel(&property),
            m_helper.getPropValue(&property, QStringLiteral(" ")));
        for (auto entry = hidden.constBegin(); entry != hidden.constEnd(); ++entry) {
            const bool last = lastOfGroup && std::next(entry) == hidden.constEnd();
            addCardRow(m_page, last ? CardRow::Last : CardRow::Inner, entry.key(), entry.value());
        }
    }

    void drawNote()
    {
        if (!m_contact.note.isEmpty()) {
            addCardHeading(m_page, m_helper.groupLabelForNotes());
            addCardRow(m_page, CardRow::Last,
                m_helper.convertLabel(CContactHelper::PROP_KEY_NOTES, true), m_contact.note);
        }
    }

    Page& m_page;
    const PRContactPrivate& m_contact;
    const bool m_deleted;
    CContactHelper m_helper;
};

} // namespace

QString CContact2HtmlTranslate::styleSheet()
{
    return cardStyleSheet();
}

bool CContact2HtmlTranslate::prepare(
    CIDataExporter* /*exporter*/, const QString& title, CIProgressCallback* /*progress*/)
{
    m_title = title;
    return true;
}

bool CContact2HtmlTranslate::writeHeader(CIDataExporter* exporter)
{
    return writeCardsTop(*static_cast<CHtmlExporter*>(exporter), m_title);
}

bool CContact2HtmlTranslate::writeFooter(CIDataExporter* exporter)
{
    return writeCardsBottom(*exporter);
}

bool CContact2HtmlTranslate::writeItem(CIDataExporter* exporter, PRContactItem* item)
{
    const PRContactPrivate& contact = *item->detailContent();
    const bool deleted = item->flag(Deleted);
    Page page;
    openCard(page, addPicture(*exporter, contact.photo), item->value(0), deleted);
    drawLines(page, contact);
    openCardTable(page);
    CardGroups(page, contact, deleted).draw();
    closeCard(page);
    return exporter->write(page.text());
}

QString CContact2HtmlTranslate::addPicture(CIDataExporter& exporter, const QByteArray& photo)
{
    if (photo.isEmpty()) {
        return defaultCardPicture();
    }
    // The number is spent on a photo that cannot be read too.
    const QString name = QStringLiteral("%1.png").arg(m_photoIndex);
    ++m_photoIndex;
    QImage picture;
    if (!picture.loadFromData(photo)) {
        return defaultCardPicture();
    }
    exporter.exportData(cardPicture(picture), name); // not tested: the page goes on without it
    return imagePath(name);
}
