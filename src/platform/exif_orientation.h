// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;

/// Sets the orientation in an Exif block, given from its TIFF header on, to that of an upright
/// picture. A block without one, or one that is damaged, stays as it is.
void setUpright(QByteArray& tiff);
