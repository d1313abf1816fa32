// SPDX-License-Identifier: MIT
#include "translators/contact/contact_contents.h"

#include "platform/CCommonUtils.h"
#include "translators/contact/CContactHelper.h"

#include <algorithm>
#include <iterator>

namespace {

QDateTime dateOf(const QString& secondsSince2001)
{
    return CCommonUtils::buildDateTimeBase2001(secondsSince2001.toDouble());
}

} // namespace

QVector<const PRContactProperty*> propertiesOf(const PRContactPrivate& contact, PropType type)
{
    QVector<const PRContactProperty*> found;
    std::copy_if(contact.properties().begin(), contact.properties().end(),
        std::back_inserter(found),
        [type](const PRContactProperty* property) { return property->propType() == type; });
    return found;
}

QString joinFilled(std::initializer_list<QString> texts, QLatin1String joiner)
{
    QString joined;
    for (const QString& text : texts) {
        if (text.isEmpty()) {
            continue;
        }
        if (!joined.isEmpty()) {
            joined += joiner;
        }
        joined += text;
    }
    return joined;
}

QString dateText(const QString& secondsSince2001)
{
    return CContactHelper::getDateDesc(dateOf(secondsSince2001), nullptr);
}

QString dayText(const QString& secondsSince2001)
{
    return CContactHelper::getDateDesc(dateOf(secondsSince2001), "yyyy-MM-dd");
}
