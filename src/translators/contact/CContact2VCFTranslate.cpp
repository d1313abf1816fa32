// SPDX-License-Identifier: MIT
// A contact with all that has a line:
//
//   BEGIN:VCARD
//   VERSION:2.1
//   FN;CHARSET=utf-8:Mia Huber
//   N;CHARSET=utf-8:Dr.;Mia;Anna;Huber;jun.
//   TITLE;CHARSET=utf-8:Pilot
//   ORG;CHARSET=utf-8:Sky Ltd;Flight
//   NICKNAME;CHARSET=utf-8:Mimi
//   BDAY;CHARSET=utf-8:1985-04-12
//   NOTE;CHARSET=utf-8:Met in Rome
//   ADR;TYPE=home;CHARSET=utf-8:;;Main St 1;Berlin;10115;Germany
//   TEL;work;fax;CHARSET=utf-8:+49 30 5550102
//   EMAIL;TYPE=internet;CHARSET=utf-8:mia@example.org
//   PHOTO;TYPE=JPEG;ENCODING=BASE64:/9j/4AAQ...
//   URL;TYPE=work;CHARSET=utf-8:https://example.org
//   X-SKYPE;mia.huber
//   END:VCARD
//   (two empty lines)
#include "translators/contact/CContact2VCFTranslate.h"

#include "exporters/CIDataExporter.h"
#include "platform/literals.h"
#include "translators/contact/CContactHelper.h"
#include "translators/contact/VCard.h"
#include "translators/contact/contact_contents.h"

namespace {

constexpr QLatin1String kCharset = ";CHARSET=utf-8:"_L1;
constexpr QLatin1String kOther = "other"_L1;

// A word found anywhere in the label counts, and the last one of the list wins: a mother and a
// brother are "other", a home page is "home", and so is what has none of the words.
QLatin1String vcardType(const QString& label)
{
    QLatin1String type = "home"_L1;
    for (const QLatin1String word : {"home"_L1, "work"_L1, kOther, "pager"_L1}) {
        if (label.contains(word, Qt::CaseInsensitive)) {
            type = word;
        }
    }
    return type;
}

void addText(VCard& card, QLatin1String name, const QString& value)
{
    if (!value.isEmpty()) {
        card.addLine(name, kCharset, value);
    }
}

void addTexts(VCard& card, const QString& displayName, const PRContactPrivate& contact)
{
    addText(card, "FN"_L1, displayName);
    // The parts of a name, and of an organization, have no places of their own: an empty one leaves
    // no gap. Readers of these files are used to it.
    addText(card, "N"_L1,
        joinFilled({contact.namePrefix, contact.firstName, contact.middleName, contact.lastName,
                       contact.nameSuffix},
            ";"_L1));
    addText(card, "TITLE"_L1, contact.jobTitle);
    addText(card, "ORG"_L1, joinFilled({contact.organization, contact.department}, ";"_L1));
    addText(card, "NICKNAME"_L1, contact.nickname);
    if (!contact.birthday.isEmpty()) {
        card.addLine("BDAY"_L1, kCharset, dateText(contact.birthday));
    }
    // Its line feeds stay, and break the line.
    addText(card, "NOTE"_L1, contact.note);
}

void addAddresses(VCard& card, const PRContactPrivate& contact, CContactHelper& helper)
{
    for (const PRContactProperty* address : propertiesOf(contact, Address)) {
        // No places here either: without a street the city comes first.
        QString value = helper.getPropValue(address, QStringLiteral(";"));
        value.replace(QChar(u'\n'), QChar(u' '));
        card.addLine("ADR;TYPE="_L1, vcardType(address->propLabel()), kCharset, ";;"_L1, value);
    }
}

void addPhones(VCard& card, const PRContactPrivate& contact)
{
    for (const PRContactProperty* phone : propertiesOf(contact, Phone)) {
        const QString& label = phone->propLabel();
        const QLatin1String type = vcardType(label);
        const bool isFax = label.contains("fax"_L1, Qt::CaseInsensitive);
        // No "TYPE=" here, and no other phones.
        card.addLine("TEL;"_L1, type == kOther ? "home"_L1 : type, isFax ? ";fax"_L1 : ""_L1,
            kCharset, phone->propValue());
    }
}

void addMails(VCard& card, const PRContactPrivate& contact)
{
    for (const PRContactProperty* mail : propertiesOf(contact, Email)) {
        card.addLine("EMAIL;TYPE=internet"_L1, kCharset, mail->propValue());
    }
}

void addWebAddresses(VCard& card, const PRContactPrivate& contact)
{
    for (const PRContactProperty* site : propertiesOf(contact, WebAddress)) {
        card.addLine("URL;TYPE="_L1, vcardType(site->propLabel()), kCharset, site->propValue());
    }
}

void addMessengers(VCard& card, const PRContactPrivate& contact)
{
    for (const PRContactProperty* messenger : propertiesOf(contact, InstantMessage)) {
        const QMap<QString, QString>& entry = messenger->propValueEntry();
        const QString user = entry.value(CContactHelper::VALUE_KEY_USER);
        // A service without a name still counts, one that is not there does not.
        if (entry.contains(CContactHelper::VALUE_KEY_SERVICE) && !user.isEmpty()) {
            const QString service = entry.value(CContactHelper::VALUE_KEY_SERVICE).toUpper();
            // A semicolon before the value, not a colon: so the format has it.
            card.addLine("X-"_L1, service, ";"_L1, user);
        }
    }
}

} // namespace

bool CContact2VCFTranslate::writeItem(CIDataExporter* exporter, PRContactItem* item)
{
    const PRContactPrivate& contact = *item->detailContent();
    CContactHelper helper;
    VCard card(contact);
    addTexts(card, item->value(0), contact);
    addAddresses(card, contact, helper);
    addPhones(card, contact);
    addMails(card, contact);
    card.addPhoto(contact.photo);
    addWebAddresses(card, contact);
    addMessengers(card, contact);
    return exporter->write(card.end());
}
