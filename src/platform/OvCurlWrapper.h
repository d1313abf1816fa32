// SPDX-License-Identifier: MIT
#pragma once

#include "platform/export.h"

#include <QtGlobal>

class QString;

/// Where a download is given up.
struct DownloadLimits {
    long connectMs = 15'000; ///< until the connection stands
    long slowBytesPerSecond = 1024;
    long slowSeconds = 30; ///< for so long below that speed
    qint64 bytes = qint64(2) << 30;
};

/// One blocking download at a time over http or https, with its result code afterwards.
/// Redirects are followed (at most 10, and to http or https only). What goes beyond its limits ends
/// in failure. A copy carries the limits and the result code.
class DATAEXPORT_EXPORT OvCurlWrapper {
public:
    OvCurlWrapper() = default;
    explicit OvCurlWrapper(const DownloadLimits& limits) : m_limits(limits) {}

    /// Fetches `url` into the file at `path`, which is replaced. False when the transfer failed or
    /// the status was 400 or above; no file, and no part of one, is left then.
    /// `overwrite` false keeps an existing file and reports failure.
    bool download(const QString& url, const QString& path, bool overwrite);

    /// Result of the last transfer: 5, 6 or 7 where a proxy, a host or a connection failed, be it
    /// behind a redirect; else the HTTP status; where no answer came, libcurl's own error number.
    /// 0 before the first transfer.
    int httpCode() const { return m_httpCode; }

private:
    DownloadLimits m_limits;
    int m_httpCode = 0;
};
