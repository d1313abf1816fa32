// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRAbstractItem.h"

#include <QList>

/// A contact or a group room of a chat application.
class DATAEXPORT_EXPORT PRWeiChatContact {
public:
    /// One person in a room.
    struct MemberContact {
        QString alias;
        QString name;
        QString nameId;
        QString wxId;
    };

    struct Content {
        QString name;
        QString nickName;
        QString wxNameId;
        QString nameID;
        QString country;
        QString city;
        QString sign;
        QStringList phones;
        bool room = false;
        QString headImage; ///< path, or an address that begins with "http"
        QList<MemberContact> members;
    };

    PRWeiChatContact();
    explicit PRWeiChatContact(Content content);

    QString name() const { return m_content.name; }
    QString nickName() const { return m_content.nickName; }
    QString wxNameId() const { return m_content.wxNameId; }
    QString nameID() const { return m_content.nameID; }
    QString country() const { return m_content.country; }
    QString city() const { return m_content.city; }
    QString sign() const { return m_content.sign; }
    QStringList phones() const { return m_content.phones; }
    bool isRoom() const { return m_content.room; }
    QString HeadImage() const { return m_content.headImage; }
    QList<MemberContact> members() const { return m_content.members; }
    const Content& contents() const { return m_content; }

private:
    Content m_content;
};

class DATAEXPORT_EXPORT PRWeichatContactItem : public PRAbstractItem {
public:
    explicit PRWeichatContactItem(Record record = {}, PRWeiChatContact::Content content = {});
    ~PRWeichatContactItem() override;

    /// Never null.
    virtual PRWeiChatContact* detailContent() { return &m_contact; }

private:
    PRWeiChatContact m_contact;
};
