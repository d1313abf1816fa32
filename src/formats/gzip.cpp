// SPDX-License-Identifier: MIT
// gzip begins with the bytes 1F 8B, zlib with 78 and one of 01, 5E, 9C, DA; zlib tells them apart.
#include "formats/gzip.h"

#include <algorithm>
#include <memory>
#include <zlib.h>

namespace formats {

namespace {

constexpr int kEitherHeader = MAX_WBITS + 32;
constexpr int kFirstSize = 1 << 14; // most bodies are smaller

struct EndInflate {
    void operator()(z_stream* stream) const { inflateEnd(stream); }
};

Error damaged()
{
    return {.what = QStringLiteral("its compressed bytes are damaged")};
}

Error tooLarge(int limit)
{
    return {.what = QStringLiteral("it holds more than %1 bytes compressed").arg(limit)};
}

} // namespace

Result<QByteArray> inflated(std::span<const unsigned char> bytes, int limit)
{
    z_stream stream{};
    // zlib is older than const; it only reads.
    stream.next_in = const_cast<Bytef*>(bytes.data());
    stream.avail_in = static_cast<uInt>(bytes.size());
    if (inflateInit2(&stream, kEitherHeader) != Z_OK) {
        return damaged();
    }
    const std::unique_ptr<z_stream, EndInflate> ended(&stream);
    QByteArray contents;
    int used = 0;
    int state = Z_OK;
    while (state == Z_OK) {
        // One byte more than is allowed tells what is too much.
        contents.resize(std::min(limit, std::max(kFirstSize, used * 2)) + 1);
        stream.next_out = reinterpret_cast<Bytef*>(contents.data()) + used;
        stream.avail_out = static_cast<uInt>(contents.size() - used);
        state = inflate(&stream, Z_NO_FLUSH);
        used = contents.size() - static_cast<int>(stream.avail_out);
        if (used > limit) {
            return tooLarge(limit);
        }
    }
    if (state != Z_STREAM_END) {
        return damaged();
    }
    contents.truncate(used);
    return contents;
}

} // namespace formats
