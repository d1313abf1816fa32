// SPDX-License-Identifier: MIT
// The file as this class sees it; all numbers big-endian:
//   FF D8                      start, at the first byte
//   [any] FF.. code            marker; before it there may be anything that is no marker, such as
//                              the coded data behind FF DA, in which FF 00 stands for a byte FF
//     code D9                  end; nothing behind it is looked at
//     code below C0, D0 to D8  stands alone
//     other codes              16-bit length, which counts its own two bytes, and the segment
// A decoder looks for the next marker in just this way, in the coded data and elsewhere.
#include "platform/JpegMarkers.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int kMostBytes = 8 * 1024 * 1024;

constexpr char kFill = '\xFF';
constexpr unsigned char kFirstWithSegment = 0xC0;
constexpr unsigned char kFirstRestart = 0xD0;
constexpr unsigned char kStart = 0xD8; // stands behind the last restart
constexpr unsigned char kEnd = 0xD9;

bool standsAlone(unsigned char code)
{
    return code < kFirstWithSegment || (code >= kFirstRestart && code <= kStart);
}

} // namespace

void JpegMarkers::add(const char* bytes, qint64 size)
{
    const char* end = bytes + size;
    while (bytes != end && m_expect != Expect::Nothing) {
        bytes = take(bytes, end);
        if (m_bytes.size() > kMostBytes) {
            m_isUnusable = true;
            m_expect = Expect::Nothing;
        }
    }
}

const char* JpegMarkers::take(const char* at, const char* end)
{
    switch (m_expect) {
    case Expect::Start:
        takeStart(*at);
        return at + 1;
    case Expect::Marker:
        return findMarker(at, end);
    case Expect::Code:
        takeCode(*at);
        return at + 1;
    case Expect::Length:
        takeLength(*at);
        return at + 1;
    case Expect::Segment:
        return takeSegment(at, end);
    case Expect::Nothing:
        break;
    }
    return end;
}

void JpegMarkers::takeStart(char byte)
{
    m_bytes.append(byte);
    if (m_bytes.size() == 2) {
        m_isUnusable = m_bytes != QByteArray("\xFF\xD8");
        m_expect = m_isUnusable ? Expect::Nothing : Expect::Marker;
    }
}

// Stays here while there is nothing but coded data: it is most of the file.
const char* JpegMarkers::findMarker(const char* at, const char* end)
{
    while (const void* found = std::memchr(at, kFill, static_cast<std::size_t>(end - at))) {
        at = static_cast<const char*>(found) + 1;
        if (at == end || *at != 0) {
            m_expect = Expect::Code;
            return at;
        }
        ++at;
    }
    return end;
}

void JpegMarkers::takeCode(char byte)
{
    if (byte == kFill) {
        return; // any number of them may stand before the code
    }
    m_expect = Expect::Marker;
    const auto code = static_cast<unsigned char>(byte);
    if (code == 0) {
        return;
    }
    m_bytes.append(kFill);
    m_bytes.append(byte);
    if (code == kEnd) {
        m_expect = Expect::Nothing;
    } else if (!standsAlone(code)) {
        m_expect = Expect::Length;
        m_lengthAt = m_bytes.size();
    }
}

void JpegMarkers::takeLength(char byte)
{
    m_bytes.append(byte);
    if (m_bytes.size() < m_lengthAt + 2) {
        return;
    }
    const auto high = static_cast<unsigned char>(m_bytes.at(m_lengthAt));
    const auto low = static_cast<unsigned char>(m_bytes.at(m_lengthAt + 1));
    m_segmentLeft = high * 256 + low - 2;
    m_expect = m_segmentLeft > 0 ? Expect::Segment : Expect::Marker;
}

const char* JpegMarkers::takeSegment(const char* at, const char* end)
{
    const auto size = static_cast<int>(std::min<qint64>(m_segmentLeft, end - at));
    m_bytes.append(at, size);
    m_segmentLeft -= size;
    if (m_segmentLeft == 0) {
        m_expect = Expect::Marker;
    }
    return at + size;
}
