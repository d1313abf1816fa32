// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Milliseconds from any fixed moment.
using Clock = std::function<qint64()>;

/// Where an export stands.
struct ProgressState {
    QString stage;           ///< name of the category in work
    double stageShare = 0.0; ///< done of it, 0 to 1
    double share = 0.0;      ///< done of the whole scale, 0 to 1
    double records = 0.0;    ///< done on the whole scale
    qint64 elapsedMs = 0;    ///< since the scale began
};

/// Shows the progress of an export. Asked often; it decides what is worth showing.
class ProgressView {
public:
    ProgressView() = default;
    ProgressView(const ProgressView&) = delete;
    ProgressView& operator=(const ProgressView&) = delete;
    virtual ~ProgressView() = default;

    virtual void stageBegan(const QString& stage) = 0;
    virtual void moved(const ProgressState& state) = 0;
    virtual void stageEnded(const QString& stage) = 0;
};
