// SPDX-License-Identifier: MIT
#pragma once

#include "formats/TypedstreamDecoder.h"
#include "formats/typedstream.h"

namespace formats {

/// The value of an object: NSString and NSURL a QString, NSNumber a qlonglong or double, NSData a
/// QByteArray, NSDate a QDateTime (UTC), NSArray a QVariantList, NSDictionary a QVariantMap,
/// NSAttributedString its text, NSNull and NSObject invalid. None for any other class, and where
/// the object does not hold what one of its class holds.
std::optional<QVariant> valueOfObject(const TypedstreamObject& object);

/// An NSAttributedString with its runs, or an NSString. None for any other object. Runs beyond the
/// text are cut off.
std::optional<AttributedText> attributedTextOf(const TypedstreamObject& object);

} // namespace formats
