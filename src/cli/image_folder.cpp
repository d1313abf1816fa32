// SPDX-License-Identifier: MIT
#include "cli/image_folder.h"

#include "platform/literals.h"

#include <QDir>
#include <QFile>

void addOtherSpelling(const QString& categoryFolder)
{
    const QDir folder(categoryFolder);
    if (folder.exists("image"_L1) && !folder.exists("Image"_L1)) {
        QFile::link("image"_L1, folder.filePath("Image"_L1)); // without it pictures are not shown
    }
}
