// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class PRWeiChatContact;

// What both formats of chat contacts say in the same words.

/// The alias between quotation marks, which are not doubled inside; empty where there is none.
QString aliasText(const PRWeiChatContact& contact);
/// The id that people know, else the one of the application.
QString publicId(const QString& chosen, const QString& given);
/// City and country with a blank between them, also where both are empty.
QString regionText(const PRWeiChatContact& contact);
