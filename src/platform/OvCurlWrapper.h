// SPDX-License-Identifier: MIT
#pragma once

#include "platform/export.h"

class QString;

/// One blocking download at a time over http or https, with its result code afterwards.
/// Redirects are followed (at most 10, and to http or https only). A connection that is not made
/// within 15 s, a transfer under 1 KiB/s for 30 s and a body above 2 GiB end in failure.
/// A copy carries the result code and nothing else.
class DATAEXPORT_EXPORT OvCurlWrapper {
public:
    /// Fetches `url` into the file at `path`, which is replaced. False when the transfer failed or
    /// the status was 400 or above; no file, and no part of one, is left then.
    /// `overwrite` false keeps an existing file and reports failure.
    bool download(const QString& url, const QString& path, bool overwrite);

    /// Result of the last transfer: the HTTP status, or where no answer came libcurl's own error
    /// number (5, 6 and 7 for proxy, host and connection). 0 before the first transfer.
    int httpCode() const { return m_httpCode; }

private:
    int m_httpCode = 0;
};
