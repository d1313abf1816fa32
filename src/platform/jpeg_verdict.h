// SPDX-License-Identifier: MIT
#pragma once

class JpegMarkers;
class QString;

/// Whether a decoder gets through these markers. It then gets through the file too, however its
/// coded data are damaged; false tells nothing.
bool markersDecode(const JpegMarkers& markers);

/// Whether `QImage` can load the file at `path`, whose markers are `markers`: its own verdict for
/// every file. A file that it can load costs a fraction of loading it.
bool loadsAsImage(const QString& path, const JpegMarkers& markers);
