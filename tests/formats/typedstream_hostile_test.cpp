// SPDX-License-Identifier: MIT
#include "formats/typedstream.h"
#include "stream_bytes.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using formats::parseTypedstream;
using formats::typedstreamText;
using Random = std::mt19937; // the same numbers everywhere

std::size_t below(Random& random, std::size_t bound)
{
    return random() % bound;
}

std::ptrdiff_t placeIn(Random& random, const Bytes& stream)
{
    return static_cast<std::ptrdiff_t>(below(random, stream.size()));
}

// Bytes that mean something are more likely to lead somewhere than any byte.
unsigned char likelyByte(Random& random)
{
    constexpr unsigned char kLikely[]{0x80, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x92, 0x94, 0x96,
        0xFF, 0x00, 0x7F, '@', '[', ']', '{', '}', '*', '#', '+', 'i', 'd', '9'};
    const std::size_t pick = below(random, 2 * std::size(kLikely));
    return pick < std::size(kLikely) ? kLikely[pick] : static_cast<unsigned char>(random());
}

void changeOnce(Random& random, Bytes& stream)
{
    if (stream.empty()) {
        return;
    }
    const auto place = stream.begin() + placeIn(random, stream);
    switch (below(random, 6)) {
    case 0:
        *place = likelyByte(random);
        break;
    case 1:
        *place = static_cast<unsigned char>(*place ^ 1U << below(random, 8));
        break;
    case 2:
        stream.insert(place, likelyByte(random));
        break;
    case 3:
        stream.erase(place);
        break;
    case 4:
        stream.erase(place, stream.end());
        break;
    default: { // a piece once more
        const auto rest = static_cast<std::size_t>(stream.end() - place);
        const Bytes piece(place, place + static_cast<std::ptrdiff_t>(below(random, rest) + 1));
        stream.insert(stream.begin() + placeIn(random, stream), piece.begin(), piece.end());
    }
    }
}

void expectSoundResults(const Bytes& stream)
{
    const auto view = typedstreamText(stream);
    if (view && !view->empty()) {
        const auto* const begin = reinterpret_cast<const char*>(stream.data());
        ASSERT_GE(view->data(), begin);
        ASSERT_LE(view->data() + view->size(), begin + stream.size());
    }
    const auto parsed = parseTypedstream(stream);
    ASSERT_TRUE(parsed || !view) << "a text that the view has is lost";
    int next = 0;
    for (std::size_t i = 0; parsed && i < parsed->runs.size(); ++i) {
        ASSERT_EQ(parsed->runs[i].start, next);
        ASSERT_GT(parsed->runs[i].length, 0);
        next += parsed->runs[i].length;
    }
    ASSERT_TRUE(!parsed || next <= parsed->text.size());
}

TEST(TypedstreamHostile, SurvivesChangedSamples)
{
    constexpr const char* kEveryClass = R"(
        84 84 84 07 'NSArray' 00 94 99 04
        92 84 84 84 06 'NSData' 00 94 99 03 84 04 '[3c]' 01 02 03 86
        92 84 84 84 05 'NSURL' 00 94 84 01 'c' 00 92 84 96 96 0C 'http://a.b/c' 86 86
        92 84 84 84 06 'NSDate' 00 94 84 01 'd' 3C 86
        92 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 94 84 01 '*' 84 99 99 05 86 86)";
    const Bytes samples[]{sampleStream(), attributeStream(kEveryClass)};
    ASSERT_FALSE(parseTypedstream(samples[1])->runs.empty());
    Random random(20240607);
    for (int round = 0; round < 20'000; ++round) {
        Bytes stream = samples[round % 2];
        for (std::size_t changes = 1 + below(random, 6); changes > 0; --changes) {
            changeOnce(random, stream);
        }
        expectSoundResults(stream);
        if (HasFatalFailure()) {
            FAIL() << "round " << round;
        }
    }
}

TEST(TypedstreamHostile, SurvivesNoiseBehindTheHeader)
{
    Random random(7);
    for (int round = 0; round < 20'000; ++round) {
        Bytes stream = streamHeader() + drawn("84 84 84 08 'NSString' 01 85");
        for (std::size_t size = below(random, 200); size > 0; --size) {
            stream.push_back(likelyByte(random));
        }
        expectSoundResults(stream);
        if (HasFatalFailure()) {
            FAIL() << "round " << round;
        }
    }
}

} // namespace
