// SPDX-License-Identifier: MIT
// A contact with all that has a line; with the charset written, ";CHARSET=utf-8" stands before the
// first colon of all lines between the version and the photo:
//
//   BEGIN:VCARD
//   VERSION:2.1
//   FN:Mia Huber
//   N:Huber;Mia;Anna;Dr.;jun.
//   NICKNAME:Mimi
//   NOTE;ENCODING=QUOTED-PRINTABLE:=4d=65=74
//   TITLE:Pilot
//   BDAY:1985-04-12
//   ORG:Sky Ltd;Flight
//   TEL;TYPE=home fax:+49 30 5550102
//   EMAIL;TYPE=work:mia@example.org
//   ADR;TYPE=home;ENCODING=QUOTED-PRINTABLE:;;=4d=61=69=6e;=42=65=72=6c=69=6e;;;
//   URL;TYPE=home page:https://example.org
//   X-IM;TYPE=home:skype;mia.huber
//   X-DT;TYPE=anniversary:2010-06-01
//   X-RSH;TYPE=mother:Eva
//   PHOTO;TYPE=JPEG;ENCODING=BASE64:/9j/4AAQ...
//   END:VCARD
//   (two empty lines)
#include "translators/contact/CContact2VCFTranslateTavero.h"

#include "exporters/CIDataExporter.h"
#include "platform/literals.h"
#include "translators/contact/CContactHelper.h"
#include "translators/contact/VCard.h"
#include "translators/contact/contact_contents.h"

#include <QTextCodec>

#include <array>

namespace {

constexpr QLatin1String kQuotedPrintable = ";ENCODING=QUOTED-PRINTABLE"_L1;

// Commas and line feeds stay.
QString escapeValue(QString value)
{
    value.replace(R"(\)"_L1, R"(\\)"_L1); // first, or those of the semicolons would be doubled
    value.replace(";"_L1, R"(\;)"_L1);
    return value;
}

// The bytes are those of the locale's encoding, which need not be UTF-8. All of them are quoted,
// letters too, with small letters in the numbers, and no line is broken.
QString quotedPrintable(const QString& text)
{
    if (text.isEmpty()) {
        return {};
    }
    const QTextCodec* codec = QTextCodec::codecForLocale();
    return codec->toUnicode('=' + codec->fromUnicode(text).toHex('='));
}

QString plainValue(const PRContactProperty& property)
{
    return escapeValue(property.propValue());
}

QString addressValue(const PRContactProperty& address)
{
    const QMap<QString, QString>& entry = address.propValueEntry();
    QString value = QStringLiteral(";"); // neither post-office box nor extension
    for (const QString& part : {CContactHelper::VALUE_KEY_STREET, CContactHelper::VALUE_KEY_CITY,
             CContactHelper::VALUE_KEY_STATE, CContactHelper::VALUE_KEY_ZIP,
             CContactHelper::VALUE_KEY_COUNTRY}) {
        value += QChar(u';');
        value += quotedPrintable(entry.value(part));
    }
    return value;
}

QString messengerValue(const PRContactProperty& messenger)
{
    const QMap<QString, QString>& entry = messenger.propValueEntry();
    return escapeValue(entry.value(CContactHelper::VALUE_KEY_SERVICE).toLower()) + QChar(u';')
           + escapeValue(entry.value(CContactHelper::VALUE_KEY_USER));
}

QString dayValue(const PRContactProperty& date)
{
    return dayText(date.propValue());
}

// The lines of a kind of properties.
struct KindLine {
    PropType type = Phone;
    QLatin1String begin;
    QLatin1String encoding;
    QString (*value)(const PRContactProperty& property) = nullptr;
};
// clang-format off
constexpr std::array kKindLines{
    KindLine{Phone,          "TEL;TYPE="_L1,   ""_L1,            plainValue},
    KindLine{Email,          "EMAIL;TYPE="_L1, ""_L1,            plainValue},
    KindLine{Address,        "ADR;TYPE="_L1,   kQuotedPrintable, addressValue},
    KindLine{WebAddress,     "URL;TYPE="_L1,   ""_L1,            plainValue},
    KindLine{InstantMessage, "X-IM;TYPE="_L1,  ""_L1,            messengerValue},
    KindLine{Date,           "X-DT;TYPE="_L1,  ""_L1,            dayValue},
    KindLine{RelatedName,    "X-RSH;TYPE="_L1, ""_L1,            plainValue},
};
// clang-format on

// One card, line by line.
class TaveroCard {
public:
    TaveroCard(const PRContactPrivate& contact, bool writeCharset)
        : m_contact(contact), m_valueBegin(writeCharset ? ";CHARSET=utf-8:"_L1 : ":"_L1),
          m_card(contact)
    {
    }

    const QString& text(const QString& displayName)
    {
        addTexts(displayName);
        for (const KindLine& row : kKindLines) {
            addProperties(row);
        }
        m_card.addPhoto(m_contact.photo);
        return m_card.end();
    }

private:
    void addTexts(const QString& displayName)
    {
        addText("FN"_L1, displayName);
        addPlaces("N"_L1, {m_contact.lastName, m_contact.firstName, m_contact.middleName,
                              m_contact.namePrefix, m_contact.nameSuffix});
        addText("NICKNAME"_L1, m_contact.nickname);
        if (!m_contact.note.isEmpty()) {
            m_card.addLine(
                "NOTE"_L1, kQuotedPrintable, m_valueBegin, quotedPrintable(m_contact.note));
        }
        addText("TITLE"_L1, m_contact.jobTitle);
        if (!m_contact.birthday.isEmpty()) {
            m_card.addLine("BDAY"_L1, m_valueBegin, dayText(m_contact.birthday));
        }
        addPlaces("ORG"_L1, {m_contact.organization, m_contact.department});
    }

    void addText(QLatin1String name, const QString& value)
    {
        if (!value.isEmpty()) {
            m_card.addLine(name, m_valueBegin, escapeValue(value));
        }
    }

    // Values that each keep their place, unless all of them are empty.
    void addPlaces(QLatin1String name, std::initializer_list<QString> values)
    {
        QStringList places;
        bool anyFilled = false;
        for (const QString& value : values) {
            places.append(escapeValue(value));
            anyFilled = anyFilled || !value.isEmpty();
        }
        if (anyFilled) {
            m_card.addLine(name, m_valueBegin, places.join(QChar(u';')));
        }
    }

    void addProperties(const KindLine& row)
    {
        for (const PRContactProperty* property : propertiesOf(m_contact, row.type)) {
            // The label is not escaped, be it the user's own words.
            m_card.addLine(row.begin, m_helper.convertLabel(property->propLabel(), false),
                row.encoding, m_valueBegin, row.value(*property));
        }
    }

    const PRContactPrivate& m_contact;
    const QLatin1String m_valueBegin; // what stands between a line's name and its value
    VCard m_card;
    CContactHelper m_helper;
};

} // namespace

bool CContact2VCFTranslateTavero::writeItem(CIDataExporter* exporter, PRContactItem* item)
{
    TaveroCard card(*item->detailContent(), m_writeCharset);
    return exporter->write(card.text(item->value(0)));
}
