// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace formats {

/// Something that failed and that the user must know.
struct Error {
    QString where; ///< the file, and the place in it
    QString what;  ///< what was found or expected, a clause without a full stop

    /// "where: what"
    QString text() const { return where.isEmpty() ? what : where + QStringLiteral(": ") + what; }
};

/// A value or an Error; shaped like std::expected, so that it can be replaced by it.
template <typename T> class Result {
public:
    Result(T value) : m_state(std::move(value)) {}     // NOLINT(google-explicit-constructor)
    Result(Error error) : m_state(std::move(error)) {} // NOLINT(google-explicit-constructor)

    bool has_value() const { return std::holds_alternative<T>(m_state); }
    explicit operator bool() const { return has_value(); }

    T& value() { return std::get<T>(m_state); }
    const T& value() const { return std::get<T>(m_state); }
    T& operator*() { return value(); }
    const T& operator*() const { return value(); }
    T* operator->() { return &value(); }
    const T* operator->() const { return &value(); }

    const Error& error() const { return std::get<Error>(m_state); }

private:
    std::variant<T, Error> m_state;
};

/// The result of an operation that has no value.
using Done = Result<std::monostate>;

} // namespace formats
