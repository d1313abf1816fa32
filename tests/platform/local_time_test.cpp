// SPDX-License-Identifier: MIT
#include "platform/CCommonUtils.h"
#include "platform/local_time.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr qint64 kSecondMs = 1000;
constexpr qint64 kHourMs = 3'600'000;
constexpr int kRandomMoments = 1'500;

constexpr std::array kZones{
    "UTC",
    "Etc/GMT-2",
    "Etc/GMT+12",
    "Etc/GMT-14",
    "Europe/London",
    "Europe/Dublin",
    "Europe/Lisbon",
    "Europe/Berlin",
    "Europe/Paris",
    "Europe/Amsterdam",
    "Europe/Moscow",
    "Europe/Istanbul",
    "Europe/Kiev",
    "Europe/Volgograd",
    "Africa/Casablanca",
    "Africa/El_Aaiun",
    "Africa/Cairo",
    "Africa/Tripoli",
    "Africa/Monrovia",
    "Africa/Khartoum",
    "Africa/Windhoek",
    "Africa/Johannesburg",
    "Africa/Lagos",
    "America/St_Johns",
    "America/Halifax",
    "America/New_York",
    "America/Chicago",
    "America/Denver",
    "America/Phoenix",
    "America/Los_Angeles",
    "America/Anchorage",
    "America/Adak",
    "America/Havana",
    "America/Caracas",
    "America/Sao_Paulo",
    "America/Santiago",
    "America/Asuncion",
    "America/Argentina/San_Luis",
    "America/Nuuk",
    "America/Scoresbysund",
    "America/Tijuana",
    "America/Port-au-Prince",
    "Antarctica/Troll",
    "Antarctica/Casey",
    "Antarctica/Macquarie",
    "Asia/Gaza",
    "Asia/Jerusalem",
    "Asia/Beirut",
    "Asia/Damascus",
    "Asia/Tehran",
    "Asia/Kabul",
    "Asia/Karachi",
    "Asia/Kolkata",
    "Asia/Kathmandu",
    "Asia/Dhaka",
    "Asia/Yangon",
    "Asia/Shanghai",
    "Asia/Hong_Kong",
    "Asia/Tokyo",
    "Asia/Seoul",
    "Asia/Pyongyang",
    "Asia/Manila",
    "Asia/Yekaterinburg",
    "Asia/Kamchatka",
    "Australia/Lord_Howe",
    "Australia/Sydney",
    "Australia/Adelaide",
    "Australia/Eucla",
    "Pacific/Apia",
    "Pacific/Auckland",
    "Pacific/Chatham",
    "Pacific/Fiji",
    "Pacific/Kiritimati",
    "Pacific/Honolulu",
    "Pacific/Norfolk",
    "Pacific/Easter",
    "Atlantic/Azores",
    "Indian/Mauritius",
};

/// The process's zone for as long as it lives.
class ZoneForNow {
public:
    explicit ZoneForNow(const char* zone) : m_before(qgetenv("TZ")) { set(zone); }
    ZoneForNow(const ZoneForNow&) = delete;
    ZoneForNow& operator=(const ZoneForNow&) = delete;
    ~ZoneForNow() { set(m_before); }

private:
    static void set(const QByteArray& zone)
    {
        qputenv("TZ", zone);
        tzset();
    }

    QByteArray m_before;
};

qint64 startOfYear(int year)
{
    return QDateTime(QDate(year, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
}

// Every hour from 14 before to 14 after each change of the zone's clock, with its neighbours.
void addChanges(std::vector<qint64>& moments, const char* zone)
{
    const QTimeZone rules{QByteArray(zone)};
    ASSERT_TRUE(rules.isValid()) << zone;
    const auto changes = rules.transitions(QDateTime(QDate(1850, 1, 1), QTime(0, 0), Qt::UTC),
        QDateTime(QDate(2060, 1, 1), QTime(0, 0), Qt::UTC));
    for (const auto& change : changes) {
        const qint64 at = change.atUtc.toMSecsSinceEpoch();
        for (int hour = -14; hour <= 14; ++hour) {
            moments.push_back(at + hour * kHourMs);
        }
        for (const qint64 beside : {-kSecondMs, qint64(-1), qint64(1), kSecondMs}) {
            moments.push_back(at + beside);
        }
    }
}

// The hours around the turn of years at which clocks are computed in another way.
void addYearEnds(std::vector<qint64>& moments)
{
    for (const int year : {1, 1582, 1900, 1901, 1970, 1972, 2000, 2037, 2038, 2039, 2400, 9999}) {
        for (int hour = -48; hour <= 48; ++hour) {
            moments.push_back(startOfYear(year) + hour * kHourMs);
        }
    }
}

// Half of them in the centuries in which people have phones, half anywhere.
void addRandom(std::vector<qint64>& moments, std::mt19937_64& random)
{
    std::uniform_int_distribution<qint64> recent(startOfYear(1900), startOfYear(2100));
    std::uniform_int_distribution<qint64> any(startOfYear(-100), startOfYear(12000));
    for (int i = 0; i < kRandomMoments; ++i) {
        moments.push_back(recent(random));
        moments.push_back(any(random));
    }
}

struct Answers {
    int wrong = 0;
    int lostByQt = 0;
    std::string first; // of those that differ
};

void check(Answers& answers, bool right, qint64 moment, const char* what)
{
    if (!right && answers.wrong++ == 0) {
        answers.first = std::string(what) + " at "
                        + QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC)
                              .toString(Qt::ISODateWithMs)
                              .toStdString();
    }
}

void compareWithQt(Answers& answers, LocalTime& localTime, qint64 moment)
{
    const QDateTime utc = QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC);
    const QDateTime local = utc.toLocalTime();
    const QString minute = CCommonUtils::datetimeToMinute(utc, true);
    if (!local.isValid()) {
        // Qt loses an hour of Easter Island before 1970; the date is good and has a text.
        ++answers.lostByQt;
        check(answers, minute.size() == 16, moment, "text of a moment that Qt loses");
        return;
    }
    check(answers, moment + localTime.offset(moment) == clockAsUtc(local), moment, "offset");
    check(answers, CCommonUtils::dateToString(utc, true) == local.toString("yyyy-MM-dd"), moment,
        "date");
    check(answers, minute == local.toString("yyyy-MM-dd hh:mm"), moment, "minute");
    check(answers,
        CCommonUtils::datetimeToMinute(local, true) == local.toString("yyyy-MM-dd hh:mm"), moment,
        "minute of a local date");
    check(answers, CCommonUtils::datetimeToMinute(utc, false) == utc.toString("yyyy-MM-dd hh:mm"),
        moment, "minute in UTC");
}

// In a thread of its own, so that the dates start without anything remembered.
Answers compareWithQt(const std::vector<qint64>& moments)
{
    Answers answers;
    std::thread work([&] {
        LocalTime localTime;
        for (const qint64 moment : moments) {
            compareWithQt(answers, localTime, moment);
        }
    });
    work.join();
    return answers;
}

} // namespace

TEST(LocalTime, AgreesWithQtInEveryZoneAroundEveryChangeAndAnywhere)
{
    EXPECT_GE(std::set<std::string>(kZones.begin(), kZones.end()).size(), 60U);
    std::mt19937_64 random(
        20010101); // NOLINT(bugprone-random-generator-seed,cert-msc51-cpp): the same each time
    for (const char* zone : kZones) {
        SCOPED_TRACE(zone);
        const ZoneForNow now(zone);
        std::vector<qint64> moments;
        addChanges(moments, zone);
        addYearEnds(moments);
        addRandom(moments, random);
        const Answers answers = compareWithQt(moments);
        EXPECT_LE(answers.lostByQt, 1);
        EXPECT_EQ(answers.wrong, 0) << "of " << moments.size() << ", first: " << answers.first;
    }
}

TEST(LocalTime, RemembersNothingOfAnotherObject)
{
    const qint64 summer = QDateTime(QDate(2024, 7, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    {
        const ZoneForNow now("Europe/Berlin");
        LocalTime localTime;
        EXPECT_EQ(localTime.offset(summer), 2 * kHourMs);
    }
    {
        const ZoneForNow now("America/New_York");
        LocalTime localTime;
        EXPECT_EQ(localTime.offset(summer), -4 * kHourMs);
    }
}

TEST(LocalTime, ChangesAtTheMillisecondOfTheChange)
{
    const ZoneForNow now("Europe/Berlin");
    const qint64 spring = QDateTime(QDate(2024, 3, 31), QTime(1, 0), Qt::UTC).toMSecsSinceEpoch();
    LocalTime localTime;
    EXPECT_EQ(localTime.offset(spring - 1), 1 * kHourMs);
    EXPECT_EQ(localTime.offset(spring), 2 * kHourMs);
    EXPECT_EQ(localTime.offset(spring - 1), 1 * kHourMs);
}
