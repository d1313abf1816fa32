// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/table_reader.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace backup {

/// A picture or a film as the photo library knows it.
struct Photo {
    /// What it shows beyond being a picture or a film.
    enum Subtype {
        Plain = 0,
        Panorama = 1,
        Live = 2,
        Screenshot = 10,
        SlowMotion = 101,
        TimeLapse
    };

    qint64 id = 0;
    QString directory; ///< below Media: "DCIM/100APPLE"
    QString fileName;
    QString originalName; ///< that it had where it came from; may be empty
    QDateTime created;
    QStringList albums; ///< those of its owner, or the shared one
    int subtype = Plain;
    bool isFilm = false;
    bool isTrashed = false;
    bool isHidden = false;
    bool isFavourite = false;
    bool isShared = false; ///< part of an album shared with others
    bool isShown = true;   ///< false: one of a burst that was not picked, or a place holder
};

/// Whether the database has a table of pictures in a form that is known.
bool isPhotoLibrary(const formats::Database& database);

/// Whether a directory, below Media, holds what is shared with others.
bool isSharedDirectory(const QString& directory);

/// All pictures and films, in no order.
std::vector<Photo> readPhotos(const TableReader& tables);

} // namespace backup
