// SPDX-License-Identifier: MIT
#include "media.h"

#include "common.h"
#include "pictures.h"
#include "recordings.h"

#include <algorithm>
#include <array>

namespace sample {

namespace {

struct Made {
    const char* name;
    QByteArray (*make)();
};
// clang-format off
constexpr std::array kMade{
    Made{"beach.jpg",  [] { return jpeg(beach()); }},
    Made{"cake.png",   [] { return png(cake()); }},
    Made{"cat.heic",   [] { return heic(cat()); }},
    Made{"cat-small.png", [] { return png(cat().scaled(288, 384, Qt::KeepAspectRatio, Qt::SmoothTransformation)); }},
    Made{"star.png",   [] { return png(star()); }},
    Made{"shell.png",  [] { return png(shell()); }},
    Made{"sketch.png", [] { return png(sketch()); }},
    Made{"page.png",   [] { return png(page()); }},
    Made{"lena.jpg",   [] { return jpeg(portrait("#5d4037", "#43a047")); }},
    Made{"ben.jpg",    [] { return jpeg(portrait("#212121", "#1e88e5")); }},
    Made{"olena.jpg",  [] { return jpeg(portrait("#c79a5b", "#1565c0", 512)); }},
    Made{"meiling.png", [] { return png(portrait("#101010", "#d81b60", 320)); }},
    Made{"zoe.jpg",    [] { return jpeg(portrait("#b23c17", "#fdd835", 64)); }},
    Made{"grace.jpg",  [] { return jpeg(portrait("#cfd8dc", "#6a1b9a", 1024)); }},
    Made{"madonna.png", [] { return png(portrait("#ffe082", "#212121", 96)); }},
    Made{"frida.jpg",  [] { return jpeg(portrait("#8d6e63", "#00897b", 480)); }},
    Made{"flower.png", [] { return png(flower()); }},
    Made{"boat.mov",   film},
    Made{"boat-home.mov", filmBackwards},
    Made{"melody.caf", melody},
    Made{"ticket.pdf", ticket},
};
// clang-format on

} // namespace

QByteArray media(const QString& name, const QString& directory)
{
    // "hills-7.jpg": one view of many
    if (name.startsWith("hills-")) {
        return jpeg(hills(name.section('-', 1).section('.', 0, 0).toInt()));
    }
    const auto* const made =
        std::ranges::find_if(kMade, [&](const Made& file) { return name == file.name; });
    return made != kMade.end() ? made->make() : readFile(directory + "/" + name);
}

} // namespace sample
