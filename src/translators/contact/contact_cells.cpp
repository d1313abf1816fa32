// SPDX-License-Identifier: MIT
#include "translators/contact/contact_cells.h"

#include "translators/contact/contact_contents.h"

QString birthdayCell(CContactHelper& /*helper*/, const PRContactPrivate& contact)
{
    return contact.birthday.isEmpty() ? QString() : dayText(contact.birthday);
}

QString labelCell(CContactHelper& helper, const PRContactProperty& property)
{
    return helper.convertLabel(property.propLabel(), false);
}

QString valueCell(CContactHelper& /*helper*/, const PRContactProperty& property)
{
    return property.propValue();
}

QString dayCell(CContactHelper& /*helper*/, const PRContactProperty& property)
{
    return dayText(property.propValue());
}

QString lineCell(CContactHelper& helper, const PRContactProperty& property, const QString& key)
{
    return helper.getPropValueEntry(&property, key).replace(QChar(u'\n'), QChar(u' '));
}

QString userCell(CContactHelper& helper, const PRContactProperty& messenger)
{
    return helper.getPropValueEntry(&messenger, CContactHelper::VALUE_KEY_USER);
}
