// SPDX-License-Identifier: MIT
#pragma once

#include "platform/export.h"

#include <QDateTime>
#include <QMap>
#include <QString>

class PRContactPrivate;
class PRContactProperty;

/// Turns what a contact's properties hold into what people and other address books read: label
/// tokens into labels, service keys into names, composite values into one text, seconds into dates.
/// Nothing fails: what is unknown comes back as it came, what is missing reads as empty. The tables
/// are filled on first use, so an object belongs to one thread at a time.
class DATAEXPORT_EXPORT CContactHelper {
public:
    // Label tokens, as they stand in `propLabel`.
    static const QString CATE_HOME;
    static const QString CATE_HOMEPAGE;
    static const QString CATE_IPHONE;
    static const QString CATE_MAIN;
    static const QString CATE_MOBILE;
    static const QString CATE_OTHER;
    static const QString CATE_PAGER;
    static const QString CATE_WORK;
    // Labels of what is shown like a property and is none.
    static const QString PROP_KEY_BIRTHDAY;
    static const QString PROP_KEY_NOTES;
    // Keys of `propValueEntry`.
    static const QString VALUE_KEY_CITY;
    static const QString VALUE_KEY_COUNTRY;
    static const QString VALUE_KEY_SERVICE;
    static const QString VALUE_KEY_STATE;
    static const QString VALUE_KEY_STREET;
    static const QString VALUE_KEY_USER;
    static const QString VALUE_KEY_ZIP;

    CContactHelper();
    CContactHelper(const CContactHelper& other);
    CContactHelper& operator=(const CContactHelper& other);
    ~CContactHelper();

    /// The label of a token: English, as files have it, or `localized`, as pages show it. A label
    /// of the user's own comes back as it is.
    QString convertLabel(const QString& label, bool localized);

    /// The translated heading of a kind of properties; empty for a kind that has none.
    QString convertGroupLabel(int propType) const;

    /// The name of a service, whose key may be written in capitals.
    QString convertSpecialValue(const QString& value);

    /// The date in local time by `format`, or as pages show it if that is null. A date of the year
    /// 1604 has no year: month and day alone, whatever the format, and not in local time.
    static QString getDateDesc(QDateTime dateTime, const char* format);

    /// Puts into `entries` what no other line of a page shows of the property; false if that is
    /// nothing.
    bool getHiddenProperty(const PRContactProperty* prop, QMap<QString, QString>& entries) const;

    int getPropCount(const PRContactPrivate* contact, int propType) const;

    /// The translated label; that of a social profile is its service.
    QString getPropLabel(const PRContactProperty* prop);

    /// The value as pages show it. The parts of an address stand with `joiner` between them.
    QString getPropValue(const PRContactProperty* prop, const QString& joiner);

    QString getPropValueEntry(const PRContactProperty* prop, const QString& key) const;

    QString groupLabelForBirthday() const;
    QString groupLabelForNotes() const;

private:
    QString buildMultiValue(const PRContactProperty* prop, bool withService, const QString& joiner);

    QMap<QString, QString> labelMap;
    QMap<QString, const char*> serviceMap;
};
