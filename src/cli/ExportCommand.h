// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Command.h"
#include "cli/categories.h"

#include <optional>

struct Source;

/// `dataexport export`: readable files of a source.
class ExportCommand final : public Command {
public:
    /// `program` and `console` are not owned and outlive the command.
    ExportCommand(CLI::App& program, Console& console);

    bool isChosen() const override;
    int run() override;

private:
    /// What was asked for, read from the arguments.
    struct Request {
        QString source;
        QString target;
        QVector<int> only; // empty: all
    };

    void addOptions();
    /// None when something is wrong with the arguments, which has been said.
    std::optional<Request> readRequest();
    bool refuse(const QString& objection);
    QString ownerOf(const Source& source) const;

    int exportSource(const Request& request, Source& source);
    void tellLeftOut(const ExportPlan& plan);
    int tellCancelled(const Request& request, const ExportPlan& plan);
    /// `unconverted`: paths of pictures of which no JPEG could be made.
    int tellResult(const Request& request, const ExportPlan& plan, const PRBackup& records,
        qint64 elapsedMs, const QStringList& unconverted);

    CLI::App* m_arguments;
    Console& m_console;
    std::string m_source;
    std::string m_target;
    std::string m_owner;
    std::string m_only;
    std::string m_resources;
    bool m_heicToJpg = false;
    bool m_tavero = false;
    bool m_merge = false;
    VerbosityOptions m_verbosity;
};
