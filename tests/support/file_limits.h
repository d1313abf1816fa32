// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace support {

/// No file of this process can grow above so many bytes for as long as it lives: writes fail as
/// they do on a full disk.
class LargestFile {
public:
    explicit LargestFile(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    LargestFile(const LargestFile&) = delete;
    LargestFile& operator=(const LargestFile&) = delete;
    ~LargestFile()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }

private:
    rlimit m_before = {};
    void (*m_signal)(int);
};

/// For as long as it lives the process has no more rights than anybody: what its mode forbids is
/// forbidden, also where the tests run as root.
class AsAnybody {
public:
    AsAnybody() : m_before(::geteuid())
    {
        constexpr uid_t kNobody = 65'534;
        m_changed = m_before == 0 && ::seteuid(kNobody) == 0;
    }
    AsAnybody(const AsAnybody&) = delete;
    AsAnybody& operator=(const AsAnybody&) = delete;
    ~AsAnybody()
    {
        if (m_changed && ::seteuid(m_before) != 0) {
            ::_exit(1); // the tests that follow would fail for no reason of theirs
        }
    }

private:
    uid_t m_before;
    bool m_changed = false;
};

} // namespace support
