// SPDX-License-Identifier: MIT
#include "cli/language_choice.h"

#include <gtest/gtest.h>

#include <array>

namespace {

const QStringList kAvailable{"de", "en", "pt", "zh_CN", "zh_TW"};

} // namespace

TEST(LanguageOfCode, FindsTheCatalogueThatIsMeant)
{
    struct Row {
        const char* what;
        QString code;
        QString language;
    };
    const std::array rows{
        Row{"a language", "de", "de"},
        Row{"with a territory, as locales write it", "de_AT", "de"},
        Row{"with a territory, as pages write it", "de-AT", "de"},
        Row{"a whole locale", "de_AT.UTF-8@euro", "de"},
        Row{"a locale with a mark alone", "de_AT@euro", "de"},
        Row{"a spelling of a year", "de-CH-1901", "de"},
        Row{"in capitals", "DE", "de"},
        Row{"English", "en", "en"},
        Row{"English of somewhere", "en-GB", "en"},
        Row{"Portuguese of Brazil", "pt_BR", "pt"},
        Row{"Portuguese of Portugal", "pt-PT", "pt"},
        Row{"Chinese of nowhere", "zh", "zh_CN"},
        Row{"Chinese of China", "zh_CN", "zh_CN"},
        Row{"Chinese of Singapore", "zh-SG", "zh_CN"},
        Row{"Chinese of Taiwan", "zh_TW", "zh_TW"},
        Row{"in small letters", "zh-tw", "zh_TW"},
        Row{"Chinese of Hong Kong", "zh-HK", "zh_TW"},
        Row{"Chinese of Macau", "zh_MO", "zh_TW"},
        Row{"a script alone", "zh-Hant", "zh_TW"},
        Row{"the other script", "zh_Hans", "zh_CN"},
        Row{"a script is more than a territory", "zh-Hans-HK", "zh_CN"},
        Row{"either way", "zh_Hant_CN", "zh_TW"},
        Row{"a language that is not there", "fr", ""},
        Row{"one of three letters that begins alike", "den", ""},
        Row{"the name of a language", "deutsch", ""},
        Row{"the locale of no language", "C", ""},
        Row{"the same with a character set", "C.UTF-8", ""},
        Row{"a territory alone", "_AT", ""},
        Row{"a way to another folder", "../de", ""},
        Row{"nothing", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(languageOfCode(row.code, kAvailable), row.language);
    }
}

TEST(LanguageOfCode, PrefersTheCatalogueOfTheTerritory)
{
    const QStringList available{"en", "pt", "pt_PT"};
    EXPECT_EQ(languageOfCode("pt-PT", available), "pt_PT");
    EXPECT_EQ(languageOfCode("pt-BR", available), "pt");
}

TEST(LanguageOfUser, IsTheFirstThatThereIs)
{
    struct Row {
        const char* what;
        QStringList wanted;
        QString language;
    };
    const std::array rows{
        Row{"one", {"de-DE"}, "de"},
        Row{"the second", {"gsw-CH", "de-CH", "zh-TW"}, "de"},
        Row{"English before another", {"en-US", "de-DE"}, "en"},
        Row{"none of them", {"fr-FR", "it"}, "en"},
        Row{"no language", {"C"}, "en"},
        Row{"nothing is wanted", {}, "en"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(languageOfUser(row.wanted, kAvailable), row.language);
    }
}
