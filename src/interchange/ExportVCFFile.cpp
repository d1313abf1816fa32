// SPDX-License-Identifier: MIT
// One vCard after another, lines ended by CR LF, never folded. A property with a label of its own
// stands in a group, a name "item" with the running number of the vCard:
//
//   BEGIN:VCARD
//   VERSION:3.0
//   FN:Mia  Luna
//   N:Luna;Mia;;;
//   NOTE:
//   item1.ADR;type=HOME;TYPE=pref:;;5thAvenue;NewYork;NY;10001;USA
//   item1.X-ABLabel:HOME
//   item1.X-ABADR:us
//   TEL;TYPE=CELL;TYPE=pref;TYPE=VOICE:+49 171 5550101
//   item2.X-ABRELATEDNAMES;TYPE=pref:Anna
//   item2.X-ABLABEL:_$!<Mother>!$_
//   END:VCARD
#include "interchange/ExportVCFFile.h"

#include "interchange/InterchangeLayout.h"
#include "interchange/contact_values.h"
#include "interchange/field_tables.h"
#include "interchange/utf8_stream.h"
#include "model/PRContactItem.h"
#include "platform/literals.h"

#include <QFile>
#include <QRegExp>
#include <QTextStream>

namespace {

using FieldHandler = QString (*)(
    const QString& key, const PRContactItem& contact, const ExportVCFFile& exporter);

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): the format counts per process
int s_itemCounter = 0;

constexpr const InterchangeLayout& kLayout = kVCardLayout;

constexpr QLatin1String kLineEnd = "\r\n"_L1;
constexpr QLatin1String kPreferred = ";TYPE=pref"_L1;
constexpr QLatin1String kIsoDate = "yyyy-MM-dd"_L1;

// Which of several values is preferred has a rule of its own in each handler. They differ on
// purpose.
QLatin1String preferredIf(bool preferred)
{
    return preferred ? kPreferred : ""_L1;
}

template <typename... Values>
void addLine(QString& lines, QLatin1String pattern, const Values&... values)
{
    lines += filled(pattern, values...);
    lines += kLineEnd;
}

QString nextGroup()
{
    return QString::number(++s_itemCounter);
}

QString formattedName(
    const QString& key, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    const PRContactPrivate& content = *contact.detailContent();
    return filled("%1:%2 %3 %4\r\n"_L1, key, kLayout.escapeValue(content.firstName),
        kLayout.escapeValue(content.middleName), kLayout.escapeValue(content.lastName));
}

QString structuredName(
    const QString& key, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    const PRContactPrivate& content = *contact.detailContent();
    return filled("%1:%2;%3;%4;%5;%6\r\n"_L1, key, kLayout.escapeValue(content.lastName),
        kLayout.escapeValue(content.firstName), kLayout.escapeValue(content.middleName),
        kLayout.escapeValue(content.namePrefix), kLayout.escapeValue(content.nameSuffix));
}

template <auto kField>
QString plain(const QString& key, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    const QString& value = contact.detailContent()->*kField;
    return value.isEmpty() ? QString() : filled("%1:%2\r\n"_L1, key, kLayout.escapeValue(value));
}

QString organization(
    const QString& key, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    const PRContactPrivate& content = *contact.detailContent();
    if (content.organization.isEmpty() && content.department.isEmpty()) {
        return {};
    }
    return filled("%1:%2;%3\r\n"_L1, key, kLayout.escapeValue(content.organization),
        kLayout.escapeValue(content.department));
}

// With its year, unlike in the CSV files.
QString birthday(
    const QString& key, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    const QString& seconds = contact.detailContent()->birthday;
    return seconds.isEmpty() ? QString()
                             : filled("%1;VALUE=date:%2\r\n"_L1, key, dateText(seconds, kIsoDate));
}

// Unescaped, and there for an empty note too. A note with its block keeps its line feeds.
QString note(const QString& key, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    const PRContactPrivate& content = *contact.detailContent();
    if (holdsNoteBlock(content.note)) {
        return filled("%1:%2\r\n"_L1, key, content.note);
    }
    QString line = filled("%1:%2%3"_L1, key, content.note, noteBlock(noteLines(kLayout, content)));
    line.replace(QChar(u'\n'), QChar(u'\t'));
    return line + kLineEnd;
}

// "type=HOME" stands in every address, whatever its label. A district takes the label's line.
void addAddress(QString& lines, const PRContactProperty& address)
{
    const QString group = nextGroup();
    const QString label = kLayout.displayLabel("ADR"_L1, labelOrType(address));
    const QString whole = filled(";;%1;%2;%3;%4;%5"_L1, kLayout.subValue(address, "Street"_L1),
        kLayout.subValue(address, "City"_L1), kLayout.subValue(address, "State"_L1),
        kLayout.subValue(address, "ZIP"_L1), kLayout.subValue(address, "Country"_L1));
    const QString district = kLayout.subValue(address, "SubLocality"_L1);

    addLine(lines, "item%1.ADR;type=HOME%2:%3"_L1, group, preferredIf(label == "HOME"_L1),
        kLayout.cleanAddressText(whole));
    if (!district.isEmpty()) {
        addLine(lines, "item%1.X-APPLE-SUBLOCALITY:%2"_L1, group, district);
    } else {
        addLine(lines, "item%1.X-ABLabel:%2"_L1, group, label);
    }
    addLine(lines, "item%1.X-ABADR:%2"_L1, group, kLayout.subValue(address, "CountryCode"_L1));
}

QString addresses(
    const QString& /*key*/, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    QString lines;
    forEachProperty(contact, Address,
        [&lines](const PRContactProperty& address) { addAddress(lines, address); });
    return lines;
}

// Preferred is the first phone on a line without group.
QString phones(
    const QString& /*key*/, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    QString lines;
    bool first = true;
    forEachProperty(contact, Phone, [&](const PRContactProperty& phone) {
        const QString label = kLayout.displayLabel("TEL"_L1, labelOrType(phone));
        const QString number = kLayout.escapeValue(phone.propValue());
        if (isWrappedLabel(label)) {
            const QString group = nextGroup();
            addLine(lines, "item%1.TEL:%2"_L1, group, number);
            addLine(lines, "item%1.X-ABLABEL:%2"_L1, group, label);
            return;
        }
        addLine(lines, "TEL;TYPE=%1%2;TYPE=VOICE:%3"_L1, label, preferredIf(first), number);
        first = false;
    });
    return lines;
}

// Preferred is the first related name.
QString relatedNames(
    const QString& /*key*/, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    QString lines;
    forEachProperty(contact, RelatedName, [&](const PRContactProperty& related) {
        const QString group = nextGroup();
        addLine(lines, "item%1.X-ABRELATEDNAMES%2:%3"_L1, group, preferredIf(lines.isEmpty()),
            kLayout.escapeValue(related.propValue()));
        addLine(lines, "item%1.X-ABLABEL:%2"_L1, group,
            kLayout.displayLabel("X-RSH"_L1, labelOrType(related)));
    });
    return lines;
}

// Preferred is every home page, which has a group as no label table knows it.
QString webAddresses(
    const QString& /*key*/, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    QString lines;
    forEachProperty(contact, WebAddress, [&](const PRContactProperty& web) {
        const QString label = kLayout.displayLabel("URL"_L1, labelOrType(web));
        const QString url = kLayout.escapeValue(web.propValue());
        if (!kLayout.mapLabel("URL"_L1, labelOrType(web)).isEmpty()) {
            addLine(lines, "URL;TYPE=%1:%2"_L1, label, url);
            return;
        }
        const QString group = nextGroup();
        addLine(
            lines, "item%1.URL%2:%3"_L1, group, preferredIf(label == "_$!<HomePage>!$_"_L1), url);
        addLine(lines, "item%1.X-ABLABEL:%2"_L1, group, label);
    });
    return lines;
}

// Preferred is every address of the label "HOME" on a line without group.
QString emails(
    const QString& /*key*/, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    QString lines;
    forEachProperty(contact, Email, [&](const PRContactProperty& email) {
        const QString label = kLayout.displayLabel("EMAIL"_L1, labelOrType(email));
        const QString address = kLayout.escapeValue(email.propValue());
        if (!kLayout.mapLabel("EMAIL"_L1, labelOrType(email)).isEmpty()) {
            addLine(lines, "EMAIL;TYPE=%1%2;TYPE=INTERNET:%3"_L1, label,
                preferredIf(label == "HOME"_L1), address);
            return;
        }
        const QString group = nextGroup();
        addLine(lines, "item%1.EMAIL;TYPE=INTERNET:%2"_L1, group, address);
        addLine(lines, "item%1.X-ABLABEL:%2"_L1, group, label);
    });
    return lines;
}

// Preferred is the first account. The user name is not escaped.
QString messengers(
    const QString& /*key*/, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    QString lines;
    forEachProperty(contact, InstantMessage, [&](const PRContactProperty& account) {
        const QString group = nextGroup();
        const QString service =
            kLayout.displayLabel("X-IM"_L1, kLayout.subValue(account, "service"_L1));
        addLine(lines, "item%1.IMPP;X-SERVICE-TYPE=%2%3:%4"_L1, group, service,
            preferredIf(lines.isEmpty()), kLayout.subValue(account, "username"_L1));
        addLine(lines, "item%1.X-ABLABEL:%2"_L1, group, service);
    });
    return lines;
}

// Preferred is the first date in a group.
QString dates(
    const QString& /*key*/, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    QString lines;
    bool first = true;
    forEachProperty(contact, Date, [&](const PRContactProperty& property) {
        const QString label = kLayout.displayLabel("X-DT"_L1, labelOrType(property));
        const QString date = dateText(property.propValue(), kIsoDate);
        if (!isWrappedLabel(label)) {
            addLine(lines, "X-ABDATE;TYPE=%1:%2"_L1, label, date);
            return;
        }
        const QString group = nextGroup();
        addLine(lines, "item%1.X-ABDATE%2:%3"_L1, group, preferredIf(first), date);
        addLine(lines, "item%1.X-ABLABEL:%2"_L1, group, label);
        first = false;
    });
    return lines;
}

// Unescaped, and never in a group.
QString socialProfiles(
    const QString& /*key*/, const PRContactItem& contact, const ExportVCFFile& /*exporter*/)
{
    QString lines;
    forEachProperty(contact, SocialProfile, [&](const PRContactProperty& profile) {
        addLine(lines, "X-SOCIALPROFILE;TYPE=%1:%2"_L1, kLayout.subValue(profile, "service"_L1),
            kLayout.subValue(profile, "url"_L1));
    });
    return lines;
}

// In the order of the lines. The keys X-RSH, X-IM, X-DT and X-SP never reach a file.
// clang-format off
const FieldRow<FieldHandler> s_vcfFields[] = {
    {"FN"_L1,       formattedName},
    {"N"_L1,        structuredName},
    {"NICKNAME"_L1, plain<&ContactContent::nickname>},
    {"TITLE"_L1,    plain<&ContactContent::jobTitle>},
    {"ORG"_L1,      organization},
    {"BDAY"_L1,     birthday},
    {"NOTE"_L1,     note},
    {"ADR"_L1,      addresses},
    {"TEL"_L1,      phones},
    {"X-RSH"_L1,    relatedNames},
    {"URL"_L1,      webAddresses},
    {"EMAIL"_L1,    emails},
    {"X-IM"_L1,     messengers},
    {"X-DT"_L1,     dates},
    {"X-SP"_L1,     socialProfiles},
    {QString(),     nullptr},
};
// clang-format on

// "1 Luna": the name of the contact's own file begins with 1 where there is no phonetic first name,
// else with 0. The given name itself is not in it.
QString fileNameOf(const PRContactPrivate& content)
{
    const bool noFirst = content.firstPhonetic.isEmpty();
    const bool both = !noFirst && !content.lastPhonetic.isEmpty();
    QString name =
        filled("%1%2%3"_L1, noFirst ? "1"_L1 : "0"_L1, both ? " "_L1 : ""_L1, content.lastPhonetic);
    name.remove(QRegExp(QStringLiteral("[\\\\:/*\"?<>|]")));
    return name;
}

QString freeFilePath(const QString& pathPrefix, const QString& name)
{
    QString path = pathPrefix + name + ".vcf"_L1;
    for (int number = 1; QFile::exists(path); ++number) {
        path = pathPrefix + name + QChar(u'_') + QString::number(number) + ".vcf"_L1;
    }
    return path;
}

} // namespace

ExportVCFFile::ExportVCFFile(QObject* parent) : QObject(parent)
{
}

int ExportVCFFile::exportContacts(
    PRData* data, const QDir& dir, const QString& ownerName, const QString& categoryName)
{
    m_data = data;
    const QString path = makeFilePath(dir, ownerName, categoryName);
    if (path.isEmpty()) {
        return 0;
    }
    return writeFile(OneFile, path) != 0 ? 1 : 0;
}

QString ExportVCFFile::makeFilePath(
    const QDir& dir, const QString& ownerName, const QString& categoryName)
{
    QString path;
    if (kLayout.makeFolder(dir, categoryName)) {
        path = kLayout.filePath(dir, ownerName, categoryName, tr("for iCloud"));
    }
    m_macFilePath = kLayout.filePath(dir, ownerName, categoryName, tr("for Mac"));
    return path;
}

int ExportVCFFile::writeFile(InterchangeWriteMode mode, const QString& path)
{
    switch (mode) {
    case OneFile:
        return writeOneFile(path);
    case FilePerContact:
        writeFilePerContact(path);
        return 0;
    }
    return -1;
}

int ExportVCFFile::writeOneFile(const QString& path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return -1;
    }
    QTextStream stream(&file);
    if (!setUtf8(stream)) {
        return -1;
    }
    forEachSelectedContact(
        *m_data, [&](const PRContactItem& contact) { stream << contactToVCard(contact); });
    stream.flush();
    if (file.exists()) {
        QFile::copy(path, m_macFilePath); // a copy of an earlier export stays
    }
    return 0;
}

void ExportVCFFile::writeFilePerContact(const QString& pathPrefix) const
{
    for (int row = 0; row < m_data->count(1); ++row) {
        const auto* const contact = dynamic_cast<PRContactItem*>(m_data->at(row, true));
        if (contact == nullptr) {
            continue;
        }
        const QDir folder(pathPrefix);
        if (!folder.exists()) {
            folder.mkpath(folder.absolutePath()); // without it, no file can be opened
        }
        QFile file(freeFilePath(pathPrefix, fileNameOf(*contact->detailContent())));
        if (!file.open(QIODevice::WriteOnly)) {
            continue;
        }
        QTextStream stream(&file);
        if (setUtf8(stream)) {
            stream << contactToVCard(*contact);
        }
    }
}

QString ExportVCFFile::contactToVCard(const PRContactItem& contact) const
{
    QString card = QStringLiteral("BEGIN:VCARD\r\nVERSION:3.0\r\n");
    s_itemCounter = 0;
    forEachField(s_vcfFields, [&](const FieldRow<FieldHandler>& field) {
        card += field.handler(field.key, contact, *this);
    });
    card += "END:VCARD\r\n"_L1;
    return card;
}
