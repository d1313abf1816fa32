// SPDX-License-Identifier: MIT
#include "platform/OvProductInfo.h"

OvProductInfo* OvProductInfo::instance()
{
    static OvProductInfo product;
    return &product;
}

QString OvProductInfo::brand() const
{
    return QStringLiteral("default");
}
