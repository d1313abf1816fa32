// SPDX-License-Identifier: MIT
#include "platform/OvCurlWrapper.h"

#include <QFile>
#include <QString>

#include <curl/curl.h>

#include <memory>

namespace {

constexpr long kMaxRedirects = 10;

struct EasyCleanup {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
using EasyHandle = std::unique_ptr<CURL, EasyCleanup>;

struct Body {
    QFile& file;
    qint64 limit = 0;
    qint64 size = 0;
};

// libcurl's own size limit knows only the announced length; a body without one is counted here.
std::size_t writeBody(char* bytes, std::size_t /*one*/, std::size_t count, void* target)
{
    Body& body = *static_cast<Body*>(target);
    body.size += static_cast<qint64>(count);
    if (body.size > body.limit) {
        return 0;
    }
    const qint64 written = body.file.write(bytes, static_cast<qint64>(count));
    return written < 0 ? 0 : static_cast<std::size_t>(written);
}

void setOptions(CURL* curl, const QByteArray& address, const DownloadLimits& limits, Body& body)
{
    // NOLINTBEGIN(cppcoreguidelines-pro-type-vararg): the interface of the library
    curl_easy_setopt(curl, CURLOPT_URL, address.constData());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(curl, CURLOPT_MAXREDIRS, kMaxRedirects);
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, limits.connectMs);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, limits.slowBytesPerSecond);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, limits.slowSeconds);
    curl_easy_setopt(curl, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(limits.bytes));
    curl_easy_setopt(curl, CURLOPT_FAILONERROR, 1L);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, writeBody);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &body);
    // NOLINTEND(cppcoreguidelines-pro-type-vararg)
}

// A connection that is not made in time is one that failed, as a refused one is. libcurl has one
// number for all that takes too long.
CURLcode reasonOf(CURL* curl, CURLcode result)
{
    curl_off_t untilRequest = 0;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the interface of the library
    curl_easy_getinfo(curl, CURLINFO_PRETRANSFER_TIME_T, &untilRequest);
    return result == CURLE_OPERATION_TIMEDOUT && untilRequest == 0 ? CURLE_COULDNT_CONNECT : result;
}

int codeOf(CURL* curl, CURLcode reason)
{
    long status = 0;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): as above
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status);
    const bool neverReached = reason == CURLE_COULDNT_RESOLVE_PROXY
                              || reason == CURLE_COULDNT_RESOLVE_HOST
                              || reason == CURLE_COULDNT_CONNECT;
    // A redirect has a status of its own, which says nothing of the place that it leads to.
    return status == 0 || neverReached ? static_cast<int>(reason) : static_cast<int>(status);
}

} // namespace

bool OvCurlWrapper::download(const QString& url, const QString& path, bool overwrite)
{
    m_httpCode = 0;
    QFile file(path);
    const EasyHandle curl(curl_easy_init());
    if (!curl || (!overwrite && file.exists()) || !file.open(QIODevice::WriteOnly)) {
        m_httpCode = CURLE_WRITE_ERROR;
        return false;
    }
    Body body{.file = file, .limit = m_limits.bytes};
    const QByteArray address = url.toUtf8();
    setOptions(curl.get(), address, m_limits, body);
    const CURLcode result = curl_easy_perform(curl.get());
    m_httpCode = codeOf(curl.get(), reasonOf(curl.get(), result));

    const bool flushed = file.flush();
    file.close();
    const bool done = result == CURLE_OK && flushed;
    if (!done) {
        file.remove();
    }
    return done;
}
