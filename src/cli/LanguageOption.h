// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTranslator>

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

/// The option --language of all commands, and the translations that it chooses: they hold for as
/// long as the object lives. Without the option the user's locale decides.
class LanguageOption {
public:
    void addTo(CLI::App& command);

    /// Loads the translations. What is wrong with the option's value, empty when nothing is; a
    /// locale without translations is English.
    QString install();

private:
    bool isGiven() const;

    std::vector<CLI::Option*> m_options; // one for each command, owned by it
    std::string m_code;
    QTranslator m_translator;
};
