// SPDX-License-Identifier: MIT
//   FF D8 FF                   JPEG          "....ftyp" and a brand   MPEG-4: film, sound, HEIC
//   "RIFF" ---- "WEBP"         WebP          ...
#include "backup/readers/file_signature.h"

#include "platform/literals.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <array>
#include <string_view>

namespace backup {

namespace {

using namespace std::string_view_literals;

struct SignatureRow {
    std::size_t offset = 0;
    std::string_view bytes;
    QLatin1String ending;
};

// The first that fits counts: a brand stands before the "ftyp" of all.
// clang-format off
constexpr std::array kSignatures{
    SignatureRow{0, "\xFF\xD8\xFF"sv,     "jpg"_L1},
    SignatureRow{0, "\x89PNG\r\n\x1A\n"sv, "png"_L1},
    SignatureRow{0, "GIF8"sv,             "gif"_L1},
    SignatureRow{8, "WEBP"sv,             "webp"_L1},
    SignatureRow{4, "ftyphei"sv,          "heic"_L1},
    SignatureRow{4, "ftypmif1"sv,         "heic"_L1},
    SignatureRow{4, "ftypavif"sv,         "avif"_L1},
    SignatureRow{4, "ftypM4A"sv,          "m4a"_L1},
    SignatureRow{4, "ftypqt"sv,           "mov"_L1},
    SignatureRow{4, "ftyp3g"sv,           "3gp"_L1},
    SignatureRow{4, "ftyp"sv,             "mp4"_L1},
    SignatureRow{0, "\x1A\x45\xDF\xA3"sv, "webm"_L1},
    SignatureRow{8, "WAVE"sv,             "wav"_L1},
    SignatureRow{0, "caff"sv,             "caf"_L1},
    SignatureRow{0, "OggS"sv,             "ogg"_L1},
    SignatureRow{0, "#!AMR"sv,            "amr"_L1},
    SignatureRow{0, "ID3"sv,              "mp3"_L1},
    SignatureRow{0, "%PDF"sv,             "pdf"_L1},
    SignatureRow{0, "PK\x03\x04"sv,       "zip"_L1},
};
// clang-format on

constexpr int kLongestHead = 16;

} // namespace

QLatin1String endingOfFile(const QString& path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray head = file.read(kLongestHead);
    const std::string_view bytes(head.constData(), static_cast<std::size_t>(head.size()));
    const auto* const found = std::ranges::find_if(kSignatures, [&](const SignatureRow& row) {
        return bytes.size() > row.offset && bytes.substr(row.offset).starts_with(row.bytes);
    });
    return found != kSignatures.end() ? found->ending : QLatin1String();
}

} // namespace backup
