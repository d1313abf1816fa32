// SPDX-License-Identifier: MIT
// What KContacts makes of files of vCards, as JSON: one object for each card, in order.
//
//   {"file": "Ben Stone.vcf", "name": "Ben Stone", "nameParts": ["Stone", "Ben", "", "", ""],
//    "phones": [{"number": "+1 555 0104", "kinds": ["home"]}], "mails": ["ben@stone.example"],
//    "addresses": [["Lindenweg 7", "Berlin", "BE", "10115", "Germany"]], "photoWidth": 4, ...}
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <kcontacts/addressee.h>
#include <kcontacts/vcardconverter.h>

namespace {

QJsonArray kindsOf(const KContacts::PhoneNumber& phone)
{
    using KContacts::PhoneNumber;
    const auto type = phone.type();
    QJsonArray kinds;
    if (type.testFlag(PhoneNumber::Home)) {
        kinds.append(QStringLiteral("home"));
    }
    if (type.testFlag(PhoneNumber::Work)) {
        kinds.append(QStringLiteral("work"));
    }
    if (type.testFlag(PhoneNumber::Fax)) {
        kinds.append(QStringLiteral("fax"));
    }
    if (type.testFlag(PhoneNumber::Cell)) {
        kinds.append(QStringLiteral("cell"));
    }
    return kinds;
}

QJsonArray phonesOf(const KContacts::Addressee& card)
{
    QJsonArray phones;
    const auto numbers = card.phoneNumbers();
    for (const KContacts::PhoneNumber& phone : numbers) {
        phones.append(QJsonObject{
            {QStringLiteral("number"), phone.number()}, {QStringLiteral("kinds"), kindsOf(phone)}});
    }
    return phones;
}

QJsonArray addressesOf(const KContacts::Addressee& card)
{
    QJsonArray addresses;
    const auto all = card.addresses();
    for (const KContacts::Address& address : all) {
        addresses.append(QJsonArray{address.street(), address.locality(), address.region(),
            address.postalCode(), address.country()});
    }
    return addresses;
}

QJsonArray urlsOf(const KContacts::Addressee& card)
{
    QJsonArray urls;
    const auto all = card.extraUrlList();
    for (const KContacts::ResourceLocatorUrl& url : all) {
        urls.append(url.url().toString());
    }
    return urls;
}

QJsonObject described(const KContacts::Addressee& card, const QString& file)
{
    return {
        {QStringLiteral("file"), file},
        {QStringLiteral("name"), card.formattedName()},
        {QStringLiteral("nameParts"), QJsonArray{card.familyName(), card.givenName(),
                                          card.additionalName(), card.prefix(), card.suffix()}},
        {QStringLiteral("nickname"), card.nickName()},
        {QStringLiteral("title"), card.title()},
        {QStringLiteral("organization"), card.organization()},
        {QStringLiteral("department"), card.department()},
        {QStringLiteral("birthday"), card.birthday().date().toString(Qt::ISODate)},
        {QStringLiteral("note"), card.note()},
        {QStringLiteral("phones"), phonesOf(card)},
        {QStringLiteral("mails"), QJsonArray::fromStringList(card.emails())},
        {QStringLiteral("addresses"), addressesOf(card)},
        {QStringLiteral("urls"), urlsOf(card)},
        {QStringLiteral("photoWidth"), card.photo().data().width()},
    };
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QJsonArray cards;
    const QStringList files = QCoreApplication::arguments().mid(1);
    for (const QString& path : files) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            return 1;
        }
        const auto read = KContacts::VCardConverter().parseVCards(file.readAll());
        for (const KContacts::Addressee& card : read) {
            cards.append(described(card, QFileInfo(path).fileName()));
        }
    }
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    out << QString::fromUtf8(QJsonDocument(cards).toJson());
    return 0;
}
