// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace support {

/// A variable of the environment, for as long as it lives.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const QByteArray& value)
        : m_name(name), m_before(qgetenv(name))
    {
        qputenv(name, value);
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable()
    {
        if (m_before.isNull()) {
            qunsetenv(m_name);
        } else {
            qputenv(m_name, m_before);
        }
    }

private:
    const char* m_name;
    QByteArray m_before;
};

} // namespace support
