// SPDX-License-Identifier: MIT
#pragma once

#include "platform/export.h"

#include <QString>

/// Where the images of the pages lie. One object for the process.
class DATAEXPORT_EXPORT OvResourceMgr {
public:
    static OvResourceMgr* instance();

    /// The folder that holds "DataExport", without a closing slash: the one given by the host, else
    /// the installed one beside the library, else that of the build.
    QString productResourceRoot() const;

    /// Set by the host before an export; an empty text brings the default back.
    void setProductResourceRoot(const QString& directory) { m_root = directory; }

private:
    QString m_root;
};
