// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRAbstractItem.h"

#include <QByteArray>
#include <QList>
#include <QMap>

#include <memory>
#include <vector>

/// Kinds of a contact's properties.
enum PropType : int {
    Phone = 3,
    Email = 4,
    Address = 5,
    Date = 12,
    InstantMessage = 13,
    WebAddress = 22,
    RelatedName = 23,
    SocialProfile = 46,
};

struct ContactProperty {
    int type = 0;                 ///< a `PropType`
    QString label;                ///< the phone's token or a free label
    QString value;                ///< of the plain kinds
    QMap<QString, QString> entry; ///< of the composite kinds
};

/// One entry of a contact.
class DATAEXPORT_EXPORT PRContactProperty {
public:
    explicit PRContactProperty(ContactProperty property = {}) : m_property(std::move(property)) {}

    int propType() const { return m_property.type; }
    const QString& propLabel() const { return m_property.label; }
    const QString& propValue() const { return m_property.value; }
    const QMap<QString, QString>& propValueEntry() const { return m_property.entry; }
    const ContactProperty& contents() const { return m_property; }

private:
    ContactProperty m_property;
};

struct AltBirthday {
    int type = 0; ///< not 0: there is one
    QString label;
    QString desc; ///< ready to show
};

struct ContactContent {
    QString namePrefix;
    QString firstName;
    QString middleName;
    QString lastName;
    QString nameSuffix;
    QString firstPhonetic;
    QString lastPhonetic;
    QString middlePhonetic;
    QString organizationPhonetic;
    QString firstPronunciation;
    QString lastPronunciation;
    QString middlePronunciation;
    QString organizationPronunciation;
    QString previousFamilyName;
    QString nickname;
    QString jobTitle;
    QString department;
    QString organization;
    QString birthday; ///< seconds since the start of 2001 as decimal text
    QString note;
    QByteArray photo; ///< encoded image
    AltBirthday altBirthday;
    std::vector<PRContactProperty> propertyList;
};

/// The full contents of a contact. The texts are members of `ContactContent`, under the same names.
class DATAEXPORT_EXPORT PRContactPrivate : public ContactContent {
public:
    explicit PRContactPrivate(ContactContent content = {});
    PRContactPrivate(const PRContactPrivate&) = delete;
    PRContactPrivate& operator=(const PRContactPrivate&) = delete;
    ~PRContactPrivate();

    const QList<PRContactProperty*>& properties() const { return m_properties; }
    int getAltBirthdayType() const { return altBirthday.type; }
    QString getAltBirthdayLabel() const { return altBirthday.label; }
    QString getAltBirthdayDesc() const { return altBirthday.desc; }

private:
    QList<PRContactProperty*> m_properties; // into propertyList
};

/// One contact; `value(0)` is the display name.
class DATAEXPORT_EXPORT PRContactItem : public PRAbstractItem {
public:
    /// Without contents: all of them are empty.
    explicit PRContactItem(Record record = {});
    PRContactItem(Record record, ContactContent content);
    ~PRContactItem() override;

    /// Never null. A reader of a large store overrides it to load the contact when it is asked for;
    /// the result then holds until the next contact of the same store is asked for.
    virtual const PRContactPrivate* detailContent() const;

private:
    std::unique_ptr<PRContactPrivate> m_content; // null: none
};
