// SPDX-License-Identifier: MIT
#include "platform/OvCurlWrapper.h"

#include <QFile>
#include <QString>

#include <curl/curl.h>

#include <memory>

namespace {

constexpr long kConnectSeconds = 15;
constexpr long kSlowBytesPerSecond = 1024;
constexpr long kSlowSeconds = 30;
constexpr long kMaxRedirects = 10;
constexpr qint64 kMaxBytes = qint64(2) << 30;

struct EasyCleanup {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
using EasyHandle = std::unique_ptr<CURL, EasyCleanup>;

struct Body {
    QFile& file;
    qint64 size = 0;
};

// libcurl's own size limit knows only the announced length; a body without one is counted here.
std::size_t writeBody(char* bytes, std::size_t /*one*/, std::size_t count, void* target)
{
    Body& body = *static_cast<Body*>(target);
    body.size += static_cast<qint64>(count);
    if (body.size > kMaxBytes) {
        return 0;
    }
    const qint64 written = body.file.write(bytes, static_cast<qint64>(count));
    return written < 0 ? 0 : static_cast<std::size_t>(written);
}

void setOptions(CURL* curl, const QByteArray& address, Body& body)
{
    // NOLINTBEGIN(cppcoreguidelines-pro-type-vararg): the interface of the library
    curl_easy_setopt(curl, CURLOPT_URL, address.constData());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(curl, CURLOPT_MAXREDIRS, kMaxRedirects);
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, kConnectSeconds);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, kSlowBytesPerSecond);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, kSlowSeconds);
    curl_easy_setopt(curl, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(kMaxBytes));
    curl_easy_setopt(curl, CURLOPT_FAILONERROR, 1L);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, writeBody);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &body);
    // NOLINTEND(cppcoreguidelines-pro-type-vararg)
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
    Body body{file};
    const QByteArray address = url.toUtf8();
    setOptions(curl.get(), address, body);
    const CURLcode result = curl_easy_perform(curl.get());

    long status = 0;
    curl_easy_getinfo(curl.get(), CURLINFO_RESPONSE_CODE, &status);
    m_httpCode = status != 0 ? static_cast<int>(status) : static_cast<int>(result);

    const bool flushed = file.flush();
    file.close();
    const bool done = result == CURLE_OK && flushed;
    if (!done) {
        file.remove();
    }
    return done;
}
