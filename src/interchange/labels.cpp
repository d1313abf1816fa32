// SPDX-License-Identifier: MIT
#include "interchange/labels.h"

#include "platform/literals.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

struct LabelRow {
    QLatin1String family;
    QLatin1String label;                // as the phone has it, case included
    std::array<QLatin1String, 3> words; // by LabelColumn; empty: the layout has no such row
};

// A related name without a label is looked up by its kind, "23". The word for "home" stands in the
// family of related names, and in no other. Addresses have no row for "other".
// clang-format off
constexpr std::array kLabels{
    LabelRow{"TEL"_L1,   "main"_L1,               {"pref"_L1,     "pref"_L1,     "pref"_L1}},
    LabelRow{"TEL"_L1,   "_$!<Mobile>!$_"_L1,     {"CELL"_L1,     "CELL"_L1,     "CELL"_L1}},
    LabelRow{"TEL"_L1,   "_$!<Home>!$_"_L1,       {"HOME"_L1,     "HOME"_L1,     "HOME"_L1}},
    LabelRow{"TEL"_L1,   "_$!<Work>!$_"_L1,       {"WORK"_L1,     "WORK"_L1,     "WORK"_L1}},
    LabelRow{"TEL"_L1,   "_$!<Main>!$_"_L1,       {"MAIN"_L1,     "MAIN"_L1,     "MAIN"_L1}},
    LabelRow{"TEL"_L1,   "_$!<HomeFAX>!$_"_L1,    {"HOMEFAX"_L1,  "HomeFAX"_L1,  "HOME;TYPE=FAX"_L1}},
    LabelRow{"TEL"_L1,   "_$!<WorkFAX>!$_"_L1,    {"WORKFAX"_L1,  "WorkFAX"_L1,  "WORK;TYPE=FAX"_L1}},
    LabelRow{"TEL"_L1,   "_$!<OtherFAX>!$_"_L1,   {""_L1,         "OtherFAX"_L1, ""_L1}},
    LabelRow{"TEL"_L1,   "_$!<Pager>!$_"_L1,      {"PAGER"_L1,    "PAGER"_L1,    "PAGER"_L1}},
    LabelRow{"TEL"_L1,   "_$!<Other>!$_"_L1,      {"OTHER"_L1,    "OTHER"_L1,    "OTHER"_L1}},
    LabelRow{"URL"_L1,   "_$!<Work>!$_"_L1,       {"WORK"_L1,     "WORK"_L1,     "WORK"_L1}},
    LabelRow{"URL"_L1,   "_$!<Home>!$_"_L1,       {"HOME"_L1,     "HOME"_L1,     "HOME"_L1}},
    LabelRow{"URL"_L1,   "_$!<Other>!$_"_L1,      {"OTHER"_L1,    "OTHER"_L1,    "OTHER"_L1}},
    LabelRow{"EMAIL"_L1, "_$!<Work>!$_"_L1,       {"WORK"_L1,     "WORK"_L1,     "WORK"_L1}},
    LabelRow{"EMAIL"_L1, "_$!<Home>!$_"_L1,       {"HOME"_L1,     "HOME"_L1,     "HOME"_L1}},
    LabelRow{"EMAIL"_L1, "_$!<Other>!$_"_L1,      {"OTHER"_L1,    "OTHER"_L1,    "OTHER"_L1}},
    LabelRow{"X-DT"_L1,  "_$!<Other>!$_"_L1,      {"OTHER"_L1,    "OTHER"_L1,    "OTHER"_L1}},
    LabelRow{"ADR"_L1,   "_$!<Home>!$_"_L1,       {"HOME"_L1,     "HOME"_L1,     "HOME"_L1}},
    LabelRow{"ADR"_L1,   "_$!<Work>!$_"_L1,       {"WORK"_L1,     "WORK"_L1,     "WORK"_L1}},
    LabelRow{"X-RSH"_L1, "23"_L1,                 {"OTHER"_L1,    "OTHER"_L1,    "OTHER"_L1}},
    LabelRow{"X-RSH"_L1, "home"_L1,               {"internet"_L1, "internet"_L1, "internet"_L1}},
};
// clang-format on

} // namespace

QLatin1String mappedLabel(LabelColumn column, QLatin1String family, const QString& label)
{
    const auto* const row = std::ranges::find_if(kLabels,
        [&](const LabelRow& known) { return known.family == family && label == known.label; });
    return row != kLabels.end() ? row->words[static_cast<std::size_t>(column)] : QLatin1String();
}
