// SPDX-License-Identifier: MIT
#include "platform/OvResourceMgr.h"

#include "platform/literals.h"

#include <QDir>
#include <QFileInfo>

#include <dlfcn.h>

namespace {

// The library lies in <prefix>/lib and its resources in <prefix>/share/dataexport; in the build
// tree they lie in a folder of their own.
QString defaultRoot()
{
    Dl_info place = {};
    if (dladdr(reinterpret_cast<const void*>(&defaultRoot), &place) == 0) {
        return QStringLiteral(DATAEXPORT_RESOURCE_ROOT);
    }
    QDir directory = QFileInfo(QString::fromLocal8Bit(place.dli_fname)).absoluteDir();
    while (directory.cdUp()) {
        QString installed = directory.filePath("share/dataexport"_L1);
        if (QDir(installed).exists("DataExport"_L1)) {
            return installed;
        }
    }
    return QStringLiteral(DATAEXPORT_RESOURCE_ROOT);
}

} // namespace

OvResourceMgr* OvResourceMgr::instance()
{
    static OvResourceMgr manager;
    return &manager;
}

QString OvResourceMgr::productResourceRoot() const
{
    return m_root.isEmpty() ? defaultRoot() : m_root;
}
