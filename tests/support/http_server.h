// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <functional>
#include <map>
#include <mutex>
#include <netinet/in.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace support {

/// An HTTP server on 127.0.0.1, at a port that the system chooses, in a thread of its own. Every
/// path has its whole answer, head and body, which goes out as it is; then the connection is
/// closed, or kept without another word, or fed byte by byte. A path without an answer gets a 404.
class HttpServer {
public:
    HttpServer() : m_listener(::socket(AF_INET, SOCK_STREAM, 0))
    {
        qputenv("no_proxy", "127.0.0.1"); // whatever the machine's own settings are
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(::bind(m_listener, generic, size), 0);
        EXPECT_EQ(::listen(m_listener, 16), 0);
        EXPECT_EQ(::getsockname(m_listener, generic, &size), 0);
        m_port = ntohs(address.sin_port);
        m_thread = std::thread([this] { serve(); });
    }
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;
    ~HttpServer()
    {
        ::shutdown(m_listener, SHUT_RDWR); // ends the accept
        m_thread.join();
        ::close(m_listener);
    }

    /// A whole answer with a body of known length. `head` holds further lines, each with its CRLF.
    static std::string reply(int status, const std::string& body, const std::string& head = {})
    {
        return "HTTP/1.1 " + std::to_string(status) + " Answer\r\nConnection: close\r\n" + head
               + "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
    }

    static std::string redirect(const std::string& location)
    {
        return reply(302, "gone", "Location: " + location + "\r\n");
    }

    /// Several answers of one path are given one after the other; the last one stays.
    void answer(const std::string& path, std::vector<std::string> answers)
    {
        const std::lock_guard lock(m_mutex);
        m_answers[path] = std::move(answers);
    }
    void answer(const std::string& path, const std::string& whole)
    {
        answer(path, std::vector<std::string>{whole});
    }

    /// What goes on behind the answers of a path, for as long as the other side listens.
    enum class Ending {
        Close,
        Silence, ///< nothing more
        Trickle, ///< a byte, fifty times a second
    };
    void endWith(const std::string& path, Ending ending)
    {
        const std::lock_guard lock(m_mutex);
        m_endings[path] = ending;
    }

    /// Runs in the server's thread, with the path, when a request has come and before its answer.
    void beforeAnswers(std::function<void(const std::string&)> action)
    {
        const std::lock_guard lock(m_mutex);
        m_beforeAnswers = std::move(action);
    }

    /// "http://127.0.0.1:<port><path>"
    QString address(const std::string& path) const
    {
        return QString::fromStdString("http://127.0.0.1:" + std::to_string(m_port) + path);
    }
    int port() const { return m_port; }

    /// The paths that were asked for, in order.
    std::vector<std::string> asked() const
    {
        const std::lock_guard lock(m_mutex);
        return m_asked;
    }

private:
    void serve()
    {
        for (;;) {
            const int client = ::accept(m_listener, nullptr, nullptr);
            if (client < 0) {
                return;
            }
            serveClient(client);
            ::close(client);
        }
    }

    void serveClient(int client)
    {
        std::string request;
        char bytes[4096];
        while (request.find("\r\n\r\n") == std::string::npos) {
            const ssize_t count = ::recv(client, bytes, sizeof bytes, 0);
            if (count <= 0) {
                return;
            }
            request.append(bytes, static_cast<std::size_t>(count));
        }
        const std::size_t start = request.find(' ') + 1;
        const std::string path = request.substr(start, request.find(' ', start) - start);
        if (!sendAll(client, answerTo(path))) {
            return;
        }
        const Ending ending = endingOf(path);
        while (ending != Ending::Close && isListening(client, ending)) {
            if (ending == Ending::Trickle && !sendAll(client, "t")) {
                return;
            }
        }
    }

    static bool sendAll(int client, const std::string& out)
    {
        for (std::size_t sent = 0; sent < out.size();) {
            const ssize_t count =
                ::send(client, out.data() + sent, out.size() - sent, MSG_NOSIGNAL);
            if (count <= 0) {
                return false;
            }
            sent += static_cast<std::size_t>(count);
        }
        return true;
    }

    // Waits for the other side to go, or for the time of the next byte.
    static bool isListening(int client, Ending ending)
    {
        pollfd watched = {};
        watched.fd = client;
        watched.events = POLLIN;
        return ::poll(&watched, 1, ending == Ending::Trickle ? 20 : -1) == 0;
    }

    Ending endingOf(const std::string& path) const
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_endings.find(path);
        return found != m_endings.end() ? found->second : Ending::Close;
    }

    std::string answerTo(const std::string& path)
    {
        const std::lock_guard lock(m_mutex);
        m_asked.push_back(path);
        if (m_beforeAnswers) {
            m_beforeAnswers(path);
        }
        const auto found = m_answers.find(path);
        if (found == m_answers.end() || found->second.empty()) {
            return reply(404, "not here");
        }
        std::vector<std::string>& answers = found->second;
        std::string next = answers.front();
        if (answers.size() > 1) {
            answers.erase(answers.begin());
        }
        return next;
    }

    int m_listener;
    int m_port = 0;
    mutable std::mutex m_mutex;
    std::map<std::string, std::vector<std::string>> m_answers;
    std::map<std::string, Ending> m_endings;
    std::vector<std::string> m_asked;
    std::function<void(const std::string&)> m_beforeAnswers;
    std::thread m_thread;
};

/// A port of 127.0.0.1 that lets nobody in and refuses nobody: its queue is full, and stays so.
class FullPort {
public:
    FullPort() : m_sockets{::socket(AF_INET, SOCK_STREAM, 0)}
    {
        qputenv("no_proxy", "127.0.0.1");
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(::bind(m_sockets.front(), generic, size), 0);
        EXPECT_EQ(::listen(m_sockets.front(), 0), 0);
        EXPECT_EQ(::getsockname(m_sockets.front(), generic, &size), 0);
        m_port = ntohs(address.sin_port);
        for (int i = 0; i < 4; ++i) { // a queue of length 0 holds one or two
            m_sockets.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0));
            static_cast<void>(::connect(m_sockets.back(), generic, size)); // goes on by itself
        }
    }
    FullPort(const FullPort&) = delete;
    FullPort& operator=(const FullPort&) = delete;
    ~FullPort()
    {
        for (const int socket : m_sockets) {
            ::close(socket);
        }
    }

    QString address() const { return QStringLiteral("http://127.0.0.1:%1/").arg(m_port); }

private:
    std::vector<int> m_sockets; // the one that listens, then those that wait
    int m_port = 0;
};

/// A port of 127.0.0.1 at which nothing listens: bound for as long as this lives, but closed to
/// connections.
class ClosedPort {
public:
    ClosedPort() : m_socket(::socket(AF_INET, SOCK_STREAM, 0))
    {
        qputenv("no_proxy", "127.0.0.1");
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(::bind(m_socket, generic, size), 0);
        EXPECT_EQ(::getsockname(m_socket, generic, &size), 0);
        m_port = ntohs(address.sin_port);
    }
    ClosedPort(const ClosedPort&) = delete;
    ClosedPort& operator=(const ClosedPort&) = delete;
    ~ClosedPort() { ::close(m_socket); }

    QString address() const { return QStringLiteral("http://127.0.0.1:%1/").arg(m_port); }

private:
    int m_socket;
    int m_port = 0;
};

} // namespace support
