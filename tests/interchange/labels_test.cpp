// SPDX-License-Identifier: MIT
#include "interchange/labels.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>

namespace {

struct Row {
    const char* family = "";
    const char* label = "";
    const char* google = "";
    const char* outlook = "";
    const char* vCard = "";
};

QString mapped(LabelColumn column, const char* family, const char* label)
{
    return mappedLabel(column, QLatin1String(family), label);
}

void expectWords(const Row& row)
{
    SCOPED_TRACE(std::string(row.family) + " " + row.label);
    EXPECT_EQ(mapped(LabelColumn::Google, row.family, row.label), row.google);
    EXPECT_EQ(mapped(LabelColumn::Outlook, row.family, row.label), row.outlook);
    EXPECT_EQ(mapped(LabelColumn::VCard, row.family, row.label), row.vCard);
}

} // namespace

TEST(Labels, EachLayoutHasItsWords)
{
    const std::array rows{
        Row{"TEL", "main", "pref", "pref", "pref"},
        Row{"TEL", "_$!<Mobile>!$_", "CELL", "CELL", "CELL"},
        Row{"TEL", "_$!<Home>!$_", "HOME", "HOME", "HOME"},
        Row{"TEL", "_$!<Work>!$_", "WORK", "WORK", "WORK"},
        Row{"TEL", "_$!<Main>!$_", "MAIN", "MAIN", "MAIN"},
        Row{"TEL", "_$!<HomeFAX>!$_", "HOMEFAX", "HomeFAX", "HOME;TYPE=FAX"},
        Row{"TEL", "_$!<WorkFAX>!$_", "WORKFAX", "WorkFAX", "WORK;TYPE=FAX"},
        Row{"TEL", "_$!<Pager>!$_", "PAGER", "PAGER", "PAGER"},
        Row{"TEL", "_$!<Other>!$_", "OTHER", "OTHER", "OTHER"},
        Row{"URL", "_$!<Work>!$_", "WORK", "WORK", "WORK"},
        Row{"URL", "_$!<Home>!$_", "HOME", "HOME", "HOME"},
        Row{"URL", "_$!<Other>!$_", "OTHER", "OTHER", "OTHER"},
        Row{"EMAIL", "_$!<Work>!$_", "WORK", "WORK", "WORK"},
        Row{"EMAIL", "_$!<Home>!$_", "HOME", "HOME", "HOME"},
        Row{"EMAIL", "_$!<Other>!$_", "OTHER", "OTHER", "OTHER"},
        Row{"X-DT", "_$!<Other>!$_", "OTHER", "OTHER", "OTHER"},
        Row{"ADR", "_$!<Home>!$_", "HOME", "HOME", "HOME"},
        Row{"ADR", "_$!<Work>!$_", "WORK", "WORK", "WORK"},
    };
    for (const Row& row : rows) {
        expectWords(row);
    }
}

TEST(Labels, OutlookAloneKnowsTheOtherFax)
{
    expectWords({"TEL", "_$!<OtherFAX>!$_", "", "OtherFAX", ""});
}

TEST(Labels, ARelatedNameWithoutLabelIsFoundByItsKind)
{
    expectWords({"X-RSH", "23", "OTHER", "OTHER", "OTHER"});
}

TEST(Labels, HomeIsInternetAmongRelatedNamesAndNowhereElse)
{
    expectWords({"X-RSH", "home", "internet", "internet", "internet"});
    for (const char* family : {"TEL", "ADR", "EMAIL", "URL", "X-DT", "X-IM"}) {
        expectWords({family, "home"});
    }
}

TEST(Labels, OtherFamiliesAndOtherLabelsHaveNoWords)
{
    const std::array rows{
        Row{"ADR", "_$!<Other>!$_"},    // the address has no such row
        Row{"URL", "_$!<HomePage>!$_"}, // nor has the home page one
        Row{"X-DT", "_$!<Anniversary>!$_"},
        Row{"X-DT", "_$!<Home>!$_"},
        Row{"EMAIL", "_$!<Mobile>!$_"},
        Row{"EMAIL", "4"},
        Row{"TEL", "3"},
        Row{"TEL", "23"},
        Row{"X-IM", "Skype"},
        Row{"X-IM", "_$!<Home>!$_"},
        Row{"X-SP", "_$!<Home>!$_"},
        Row{"", "_$!<Home>!$_"},
        Row{"tel", "_$!<Home>!$_"},
        Row{"TEL", ""},
    };
    for (const Row& row : rows) {
        expectWords(row);
    }
}

TEST(Labels, AreComparedExactly)
{
    for (const char* label : {"_$!<mobile>!$_", "Mobile", "_$!<Mobile>!$_ ", "MAIN", "Main"}) {
        expectWords({"TEL", label});
    }
}
