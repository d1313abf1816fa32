// SPDX-License-Identifier: MIT
#include "core_data.h"

#include "common.h"
#include "plist_writer.h"

#include <QUuid>

namespace sample {

void describeStore(Database& database, const QString& name, std::initializer_list<Entity> entities)
{
    for (const Entity& entity : entities) {
        database.insert("Z_PRIMARYKEY",
            {{"Z_ENT", entity.number}, {"Z_NAME", entity.name}, {"Z_SUPER", 0}, {"Z_MAX", 0}});
    }
    database.insert("Z_METADATA",
        {{"Z_VERSION", 1}, {"Z_UUID", uuidFor("store " + name)},
            {"Z_PLIST", binaryPlist(QVariantMap{{"NSPersistenceFrameworkVersion", 1338}})}});
}

QByteArray uuidBytesFor(const QString& name)
{
    return QUuid::fromString(uuidFor(name)).toRfc4122();
}

} // namespace sample
