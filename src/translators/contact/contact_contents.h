// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRContactItem.h"

#include <QString>
#include <QVector>

#include <QLatin1String>
#include <initializer_list>

// What is read of a contact by pages and vCards alike.

/// The contact's properties of one kind, in their order. They belong to the contact.
QVector<const PRContactProperty*> propertiesOf(const PRContactPrivate& contact, PropType type);

/// Those of the texts that are not empty, with `joiner` between them.
QString joinFilled(std::initializer_list<QString> texts, QLatin1String joiner);

/// A date of a contact as pages show it. What is no number counts as 0 seconds.
QString dateText(const QString& secondsSince2001);
/// The same for other programs: "1985-04-12".
QString dayText(const QString& secondsSince2001);
