// SPDX-License-Identifier: MIT
// What a contact holds, and what is read of it:
//
//   label    _$!<Mobile>!$_                                  mobile
//   account  service=skype, username=mia                     mia (Skype)
//   address  Street=Main St 1, City=Berlin, Country=Germany  Main St 1<joiner>Berlin<joiner>Germany
//   date     694267200                                       2023-01-01
#include "translators/contact/CContactHelper.h"

#include "model/PRContactItem.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>

namespace {

constexpr auto kHome = "_$!<Home>!$_"_L1;
constexpr auto kHomePage = "_$!<HomePage>!$_"_L1;
constexpr auto kIPhone = "iPhone"_L1;
constexpr auto kMain = "_$!<Main>!$_"_L1;
constexpr auto kMobile = "_$!<Mobile>!$_"_L1;
constexpr auto kOther = "_$!<Other>!$_"_L1;
constexpr auto kPager = "_$!<Pager>!$_"_L1;
constexpr auto kWork = "_$!<Work>!$_"_L1;
constexpr auto kBirthday = "birthday"_L1;

constexpr int kYearOfDatesWithoutYear = 1604;

struct LabelRow {
    QLatin1String token;
    const char* label = nullptr; // also the source text of its translation
};

// Small letters and capitals are mixed, and stay so: other address books know the labels.
// clang-format off
constexpr std::array kLabels{
    LabelRow{kMobile,                         QT_TRANSLATE_NOOP("DataExport", "mobile")},
    LabelRow{kIPhone,                         QT_TRANSLATE_NOOP("DataExport", "iPhone")},
    LabelRow{kHome,                           QT_TRANSLATE_NOOP("DataExport", "home")},
    LabelRow{kWork,                           QT_TRANSLATE_NOOP("DataExport", "work")},
    LabelRow{"_$!<Anniversary>!$_"_L1,        QT_TRANSLATE_NOOP("DataExport", "anniversary")},
    LabelRow{kOther,                          QT_TRANSLATE_NOOP("DataExport", "other")},
    LabelRow{kMain,                           QT_TRANSLATE_NOOP("DataExport", "main")},
    LabelRow{"_$!<OtherFAX>!$_"_L1,           QT_TRANSLATE_NOOP("DataExport", "other fax")},
    LabelRow{"_$!<HomeFAX>!$_"_L1,            QT_TRANSLATE_NOOP("DataExport", "home fax")},
    LabelRow{"_$!<WorkFAX>!$_"_L1,            QT_TRANSLATE_NOOP("DataExport", "work fax")},
    LabelRow{kPager,                          QT_TRANSLATE_NOOP("DataExport", "pager")},
    LabelRow{kHomePage,                       QT_TRANSLATE_NOOP("DataExport", "home page")},
    LabelRow{"_$!<Mother>!$_"_L1,             QT_TRANSLATE_NOOP("DataExport", "mother")},
    LabelRow{"_$!<Father>!$_"_L1,             QT_TRANSLATE_NOOP("DataExport", "father")},
    LabelRow{"_$!<Parent>!$_"_L1,             QT_TRANSLATE_NOOP("DataExport", "parent")},
    LabelRow{"_$!<Brother>!$_"_L1,            QT_TRANSLATE_NOOP("DataExport", "brother")},
    LabelRow{"_$!<Sister>!$_"_L1,             QT_TRANSLATE_NOOP("DataExport", "sister")},
    LabelRow{"_$!<Child>!$_"_L1,              QT_TRANSLATE_NOOP("DataExport", "child")},
    LabelRow{"_$!<Friend>!$_"_L1,             QT_TRANSLATE_NOOP("DataExport", "friend")},
    LabelRow{"_$!<Spouse>!$_"_L1,             QT_TRANSLATE_NOOP("DataExport", "spouse")},
    LabelRow{"_$!<Partner>!$_"_L1,            QT_TRANSLATE_NOOP("DataExport", "partner")},
    LabelRow{"_$!<Assistant>!$_"_L1,          QT_TRANSLATE_NOOP("DataExport", "assistant")},
    LabelRow{"_$!<Manager>!$_"_L1,            QT_TRANSLATE_NOOP("DataExport", "manager")},
    LabelRow{"twitter"_L1,                    QT_TRANSLATE_NOOP("DataExport", "Twitter")},
    LabelRow{"facebook"_L1,                   QT_TRANSLATE_NOOP("DataExport", "Facebook")},
    LabelRow{"flickr"_L1,                     QT_TRANSLATE_NOOP("DataExport", "Flickr")},
    LabelRow{"linkedin"_L1,                   QT_TRANSLATE_NOOP("DataExport", "LinkedIn")},
    LabelRow{"myspace"_L1,                    QT_TRANSLATE_NOOP("DataExport", "Myspace")},
    LabelRow{"sinaweibo"_L1,                  QT_TRANSLATE_NOOP("DataExport", "Sina Weibo")},
    LabelRow{kBirthday,                       QT_TRANSLATE_NOOP("DataExport", "birthday")},
    LabelRow{"_$!<School>!$_"_L1,             QT_TRANSLATE_NOOP("DataExport", "School")},
    LabelRow{"_$!<ElderBrother>!$_"_L1,       QT_TRANSLATE_NOOP("DataExport", "Elder Brother")},
    LabelRow{"_$!<ElderSister>!$_"_L1,        QT_TRANSLATE_NOOP("DataExport", "Elder Sister")},
    LabelRow{"_$!<YoungerBrother>!$_"_L1,     QT_TRANSLATE_NOOP("DataExport", "Younger Brother")},
    LabelRow{"_$!<YoungerSister>!$_"_L1,      QT_TRANSLATE_NOOP("DataExport", "Younger Sister")},
    LabelRow{"_$!<Husband>!$_"_L1,            QT_TRANSLATE_NOOP("DataExport", "Husband")},
    LabelRow{"_$!<Wife>!$_"_L1,               QT_TRANSLATE_NOOP("DataExport", "Wife")},
    LabelRow{"_$!<Son>!$_"_L1,                QT_TRANSLATE_NOOP("DataExport", "Son")},
    LabelRow{"_$!<Daughter>!$_"_L1,           QT_TRANSLATE_NOOP("DataExport", "Daughter")},
    LabelRow{"_$!<Colleague>!$_"_L1,          QT_TRANSLATE_NOOP("DataExport", "Colleague")},
};
// clang-format on

struct ServiceRow {
    QLatin1String key;
    const char* name = nullptr;
};

constexpr std::array kServices{
    ServiceRow{"google"_L1, "Google Talk"},
    ServiceRow{"googletalk"_L1, "Google Talk"},
    ServiceRow{"yahoo"_L1, "Yahoo!"},
    ServiceRow{"msn"_L1, "MSN"},
    ServiceRow{"icq"_L1, "ICQ"},
    ServiceRow{"jabber"_L1, "Jabber"},
    ServiceRow{"skype"_L1, "Skype"},
    ServiceRow{"qq"_L1, "QQ"},
    ServiceRow{"facebook"_L1, "Facebook"},
    ServiceRow{"gadu"_L1, "GaduGadu"},
    ServiceRow{"aim"_L1, "AIM"},
};

struct GroupRow {
    int propType = 0;
    const char* label = nullptr;
};

constexpr std::array kGroups{
    GroupRow{Phone, QT_TRANSLATE_NOOP("DataExport", "Phone")},
    GroupRow{Email, QT_TRANSLATE_NOOP("DataExport", "Email")},
    GroupRow{WebAddress, QT_TRANSLATE_NOOP("DataExport", "URL")},
    GroupRow{Address, QT_TRANSLATE_NOOP("DataExport", "Address")},
    GroupRow{Date, QT_TRANSLATE_NOOP("DataExport", "Date")},
    GroupRow{RelatedName, QT_TRANSLATE_NOOP("DataExport", "Related Name")},
    GroupRow{SocialProfile, QT_TRANSLATE_NOOP("DataExport", "Social Profile")},
    GroupRow{InstantMessage, QT_TRANSLATE_NOOP("DataExport", "Instant Message")},
};

QString translated(const char* source)
{
    return QCoreApplication::translate("DataExport", source);
}

// Both tables are made once; the objects share them, since some are made for one record alone.

const QMap<QString, QString>& allLabels()
{
    static const QMap<QString, QString> labels = [] {
        QMap<QString, QString> all;
        for (const LabelRow& row : kLabels) {
            all.insert(row.token, QLatin1String(row.label));
        }
        return all;
    }();
    return labels;
}

const QMap<QString, const char*>& allServices()
{
    static const QMap<QString, const char*> services = [] {
        QMap<QString, const char*> all;
        for (const ServiceRow& row : kServices) {
            all.insert(row.key, row.name);
        }
        return all;
    }();
    return services;
}

} // namespace

const QString CContactHelper::CATE_HOME = kHome;
const QString CContactHelper::CATE_HOMEPAGE = kHomePage;
const QString CContactHelper::CATE_IPHONE = kIPhone;
const QString CContactHelper::CATE_MAIN = kMain;
const QString CContactHelper::CATE_MOBILE = kMobile;
const QString CContactHelper::CATE_OTHER = kOther;
const QString CContactHelper::CATE_PAGER = kPager;
const QString CContactHelper::CATE_WORK = kWork;
const QString CContactHelper::PROP_KEY_BIRTHDAY = kBirthday;
const QString CContactHelper::PROP_KEY_NOTES = QStringLiteral("notes");
const QString CContactHelper::VALUE_KEY_CITY = QStringLiteral("City");
const QString CContactHelper::VALUE_KEY_COUNTRY = QStringLiteral("Country");
const QString CContactHelper::VALUE_KEY_SERVICE = QStringLiteral("service");
const QString CContactHelper::VALUE_KEY_STATE = QStringLiteral("State");
const QString CContactHelper::VALUE_KEY_STREET = QStringLiteral("Street");
const QString CContactHelper::VALUE_KEY_USER = QStringLiteral("username");
const QString CContactHelper::VALUE_KEY_ZIP = QStringLiteral("ZIP");

CContactHelper::CContactHelper() = default;
CContactHelper::CContactHelper(const CContactHelper& other) = default;
CContactHelper& CContactHelper::operator=(const CContactHelper& other) = default;
CContactHelper::~CContactHelper() = default;

QString CContactHelper::convertLabel(const QString& label, bool localized)
{
    if (labelMap.isEmpty()) {
        labelMap = allLabels();
    }
    const auto found = labelMap.constFind(label);
    if (found == labelMap.constEnd()) {
        return label; // the user's own words are not translated
    }
    return localized ? translated(found->toUtf8().constData()) : *found;
}

QString CContactHelper::convertGroupLabel(int propType) const
{
    const auto* found = std::ranges::find(kGroups, propType, &GroupRow::propType);
    return found != kGroups.end() ? translated(found->label) : QString();
}

QString CContactHelper::convertSpecialValue(const QString& value)
{
    if (serviceMap.isEmpty()) {
        serviceMap = allServices();
    }
    const char* name = serviceMap.value(value.toLower(), nullptr);
    return name != nullptr ? QString::fromLatin1(name) : value;
}

// NOLINTBEGIN(performance-unnecessary-value-param): the date comes by value in the host's contract
QString CContactHelper::getDateDesc(QDateTime dateTime, const char* format)
// NOLINTEND(performance-unnecessary-value-param)
{
    // Asked and written before any change of zone, which could lead out of the year.
    if (dateTime.date().year() == kYearOfDatesWithoutYear) {
        return QLocale::c().toString(dateTime.date(), QStringLiteral("MM-dd"));
    }
    if (format == nullptr) {
        return CCommonUtils::dateToString(dateTime, true);
    }
    return QLocale::c().toString(dateTime.toLocalTime().date(), QString::fromUtf8(format));
}

bool CContactHelper::getHiddenProperty(
    const PRContactProperty* prop, QMap<QString, QString>& entries) const
{
    entries = prop->propValueEntry();
    for (const QLatin1String shown : {"Country"_L1, "Street"_L1, "ZIP"_L1, "City"_L1, "State"_L1,
             "CountryCode"_L1, "username"_L1, "service"_L1, "url"_L1}) {
        entries.remove(shown);
    }
    return !entries.isEmpty();
}

int CContactHelper::getPropCount(const PRContactPrivate* contact, int propType) const
{
    return static_cast<int>(
        std::ranges::count(contact->properties(), propType, &PRContactProperty::propType));
}

QString CContactHelper::getPropLabel(const PRContactProperty* prop)
{
    const QMap<QString, QString>& entry = prop->propValueEntry();
    const bool hasService = prop->propType() == SocialProfile && entry.contains(VALUE_KEY_SERVICE);
    return convertLabel(hasService ? entry.value(VALUE_KEY_SERVICE) : prop->propLabel(), true);
}

QString CContactHelper::getPropValue(const PRContactProperty* prop, const QString& joiner)
{
    if (!prop->propValueEntry().isEmpty()) {
        // A social profile has its service in the label.
        return buildMultiValue(prop, prop->propType() != SocialProfile, joiner);
    }
    if (prop->propType() == Date) {
        // What is no number counts as 0 seconds.
        const double seconds = prop->propValue().toDouble();
        return getDateDesc(CCommonUtils::buildDateTimeBase2001(seconds), nullptr);
    }
    return prop->propValue();
}

QString CContactHelper::getPropValueEntry(const PRContactProperty* prop, const QString& key) const
{
    return prop->propValueEntry().value(key);
}

QString CContactHelper::groupLabelForBirthday() const
{
    return translated(QT_TRANSLATE_NOOP("DataExport", "Birthday"));
}

QString CContactHelper::groupLabelForNotes() const
{
    return translated(QT_TRANSLATE_NOOP("DataExport", "Notes"));
}

QString CContactHelper::buildMultiValue(
    const PRContactProperty* prop, bool withService, const QString& joiner)
{
    const QMap<QString, QString>& entry = prop->propValueEntry();
    if (entry.contains(VALUE_KEY_SERVICE) || entry.contains(VALUE_KEY_USER)) {
        const QString service = entry.value(VALUE_KEY_SERVICE);
        QString user = entry.value(VALUE_KEY_USER);
        if (service == "twitter"_L1) { // not "Twitter"
            user.prepend(QChar(u'@'));
        }
        if (withService && !service.isEmpty()) {
            user += " ("_L1 + convertSpecialValue(service) + ")"_L1;
        }
        return user;
    }
    QStringList parts;
    for (const QString& key :
        {VALUE_KEY_STREET, VALUE_KEY_CITY, VALUE_KEY_STATE, VALUE_KEY_ZIP, VALUE_KEY_COUNTRY}) {
        const QString part = entry.value(key);
        if (!part.isEmpty()) {
            parts.append(part);
        }
    }
    return parts.join(joiner);
}
