// SPDX-License-Identifier: MIT
#pragma once

#include "platform/export.h"

#include <QString>

/// What the product is called. One object for the process.
class DATAEXPORT_EXPORT OvProductInfo {
public:
    static OvProductInfo* instance();

    /// Sub-directory of the resources with the images that differ by brand.
    QString brand() const;
};
