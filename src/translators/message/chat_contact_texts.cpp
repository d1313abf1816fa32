// SPDX-License-Identifier: MIT
#include "translators/message/chat_contact_texts.h"

#include "model/PRWeichatContactItem.h"

QString aliasText(const PRWeiChatContact& contact)
{
    const QString alias = contact.nickName();
    return alias.isEmpty() ? QString() : QChar(u'"') + alias + QChar(u'"');
}

QString publicId(const QString& chosen, const QString& given)
{
    return chosen.isEmpty() ? given : chosen;
}

QString regionText(const PRWeiChatContact& contact)
{
    return contact.city() + QChar(u' ') + contact.country();
}
