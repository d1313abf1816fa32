// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// Pages of notes link to their pictures in "Image", and the folder beside them is called "image".
/// Where a file system tells these apart, a link of the other spelling makes the page whole.
void addOtherSpelling(const QString& categoryFolder);
