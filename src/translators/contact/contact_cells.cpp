// SPDX-License-Identifier: MIT
#include "translators/contact/contact_cells.h"

#include "platform/CCommonUtils.h"

namespace {

// What is no number counts as 0 seconds: the start of 2001.
QString dayOf(const QString& secondsSince2001)
{
    return CContactHelper::getDateDesc(
        CCommonUtils::buildDateTimeBase2001(secondsSince2001.toDouble()), "yyyy-MM-dd");
}

} // namespace

QString birthdayCell(CContactHelper& /*helper*/, const PRContactPrivate& contact)
{
    return contact.birthday.isEmpty() ? QString() : dayOf(contact.birthday);
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
    return dayOf(property.propValue());
}

QString lineCell(CContactHelper& helper, const PRContactProperty& property, const QString& key)
{
    return helper.getPropValueEntry(&property, key).replace(QChar(u'\n'), QChar(u' '));
}

QString userCell(CContactHelper& helper, const PRContactProperty& messenger)
{
    return helper.getPropValueEntry(&messenger, CContactHelper::VALUE_KEY_USER);
}
