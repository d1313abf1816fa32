// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace support {

/// Catches the calls of `CCommonUtils::protectMediaFile` for as long as it lives, one at a time:
///   "open /path", "close /path"
/// Only for programs of tests that are linked by `dataexport_catch_protection`.
class ProtectCalls {
public:
    /// `look` is called at each call, and what it tells stands behind the path: "open /path: ...".
    explicit ProtectCalls(std::function<QString()> look = {});
    ProtectCalls(const ProtectCalls&) = delete;
    ProtectCalls& operator=(const ProtectCalls&) = delete;
    ~ProtectCalls();

    const QStringList& calls() const { return m_calls; }
    void add(const QString& path, bool protect);

private:
    std::function<QString()> m_look;
    QStringList m_calls;
};

} // namespace support
