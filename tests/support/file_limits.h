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
/// forbidden, also where the tests run as root. So is the way to a file, through folders that are
/// not open to all. The real user changes too, for access(2), and Qt with it, asks after that one.
class AsAnybody {
public:
    AsAnybody() : m_isRoot(::geteuid() == 0)
    {
        constexpr uid_t kNobody = 65'534;
        m_changed = m_isRoot && ::setresuid(kNobody, kNobody, 0) == 0; // the saved one leads back
    }
    AsAnybody(const AsAnybody&) = delete;
    AsAnybody& operator=(const AsAnybody&) = delete;
    ~AsAnybody()
    {
        if (m_changed && ::setresuid(0, 0, 0) != 0) {
            ::_exit(1); // the tests that follow would fail for no reason of theirs
        }
    }

    /// False where root could not lay down its rights.
    bool holds() const { return m_changed || !m_isRoot; }

private:
    bool m_isRoot;
    bool m_changed = false;
};

} // namespace support
