// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// A JPEG file without its entropy-coded data: all markers in their order, each with its segment.
/// That is a few hundred bytes of a photo of megabytes, and all that decides whether a decoder
/// refuses the file, for damage in the coded data only brings warnings. Fed with a file in pieces,
/// as a copy goes along.
class JpegMarkers {
public:
    void add(const char* bytes, qint64 size);

    /// Begins as a JPEG does, and its markers are few enough to be kept.
    bool isUsable() const { return m_bytes.size() >= 2 && !m_isUnusable; }
    const QByteArray& bytes() const { return m_bytes; }

private:
    enum class Expect { Start, Marker, Code, Length, Segment, Nothing };

    const char* take(const char* at, const char* end);
    void takeStart(char byte);
    const char* findMarker(const char* at, const char* end);
    void takeCode(char byte);
    void takeLength(char byte);
    const char* takeSegment(const char* at, const char* end);

    QByteArray m_bytes;
    Expect m_expect = Expect::Start;
    int m_segmentLeft = 0; // bytes of the segment that are still to come
    int m_lengthAt = 0;    // where the length of the segment stands in `m_bytes`
    bool m_isUnusable = false;
};
