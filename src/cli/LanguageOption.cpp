// SPDX-License-Identifier: MIT
#include "cli/LanguageOption.h"

#include "cli/Command.h"
#include "cli/language_choice.h"
#include "platform/OvResourceMgr.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <CLI/CLI.hpp>

#include <algorithm>

namespace {

constexpr QLatin1String kCataloguePrefix = "dataexport_"_L1;
constexpr QLatin1String kCatalogueEnding = ".qm"_L1;

QString catalogueFolder()
{
    return OvResourceMgr::instance()->productResourceRoot() + "/translations"_L1;
}

// English, which needs none, and those that have a catalogue.
QStringList availableLanguages()
{
    QStringList languages{QStringLiteral("en")};
    const QStringList files =
        QDir(catalogueFolder()).entryList({kCataloguePrefix + QChar(u'*') + kCatalogueEnding});
    for (const QString& file : files) {
        languages.append(file.mid(kCataloguePrefix.size()).chopped(kCatalogueEnding.size()));
    }
    languages.sort();
    return languages;
}

} // namespace

void LanguageOption::addTo(CLI::App& command)
{
    CLI::Option* option =
        command.add_option("--language", m_code, "The language of labels: de, fr, zh_TW ...");
    option->option_text("CODE");
    m_options.push_back(option);
}

bool LanguageOption::isGiven() const
{
    return std::ranges::any_of(
        m_options, [](const CLI::Option* option) { return !option->empty(); });
}

QString LanguageOption::install()
{
    const QStringList available = availableLanguages();
    const QString code = argumentText(m_code);
    const QString language = isGiven() ? languageOfCode(code, available)
                                       : languageOfUser(QLocale::system().uiLanguages(), available);
    if (language.isEmpty()) {
        return R"(--language: no language is called ")"_L1 + code + R"("; there are: )"_L1
               + available.join(", "_L1);
    }
    if (language == "en"_L1) {
        return {};
    }
    const QString catalogue = catalogueFolder() + QChar(u'/') + kCataloguePrefix + language;
    if (m_translator.load(catalogue + kCatalogueEnding)) {
        QCoreApplication::installTranslator(&m_translator);
        return {};
    }
    return isGiven() ? "--language: "_L1 + catalogue + kCatalogueEnding + ": cannot be read"_L1
                     : QString();
}
