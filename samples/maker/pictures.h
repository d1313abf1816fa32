// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace sample {

// Drawn, not photographed: so that nobody owns them but us. No text is drawn, since the letters
// would depend on the fonts of the machine.

QImage beach();  ///< umbrella, sea and sun, 800 x 600
QImage cake();   ///< with four candles, 800 x 600
QImage cat();    ///< 600 x 800, upright
QImage star();   ///< a sticker, transparent around, 240 x 240
QImage shell();  ///< small, transparent around, 96 x 80
QImage sketch(); ///< a boat drawn with a finger, 500 x 360
QImage page();   ///< a scanned sheet with lines of writing, 420 x 594
/// A boat at sea, `step` from 0 to 1 of its way, 320 x 240.
QImage boat(double step);
/// A lake below mountains, another one for each `view`, 640 x 480.
QImage hills(int view);
/// Head and shoulders for an address book, `size` pixels wide and high.
QImage portrait(const QColor& hair, const QColor& shirt, int size = 200);
/// The mark of a shop, transparent around, 320 x 320.
QImage flower();

QByteArray jpeg(const QImage& image);
QByteArray png(const QImage& image);
/// Empty where the machine has no encoder for it.
QByteArray heic(const QImage& image);

} // namespace sample
