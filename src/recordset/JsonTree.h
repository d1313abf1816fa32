// SPDX-License-Identifier: MIT
#pragma once

#include "recordset/Source.h"

#include <functional>
#include <string>
#include <vector>

namespace recordset {

/// Builds the values of a JSON text while it is parsed, and shows each record, the value at
/// /sets/<set>/records/<row>, as soon as it is complete: whoever has taken it may replace it by
/// something smaller. Refuses a key that an object has already.
class JsonTree final : public nlohmann::json_sax<Json> {
public:
    struct SyntaxError {
        std::size_t byte; ///< counts from 1
        std::string text;
    };
    /// False ends the parsing.
    using OnRecord = std::function<bool(Json& record, std::size_t set, std::size_t row)>;

    JsonTree(Reading& reading, OnRecord onRecord)
        : m_reading(reading), m_onRecord(std::move(onRecord))
    {
    }

    const Json& root() const { return m_root; }
    const std::optional<SyntaxError>& syntaxError() const { return m_syntaxError; }

    bool null() override { return scalar(nullptr); }
    bool boolean(bool value) override { return scalar(value); }
    bool number_integer(number_integer_t value) override { return scalar(value); }
    bool number_unsigned(number_unsigned_t value) override { return scalar(value); }
    bool number_float(number_float_t value, const string_t& /*text*/) override
    {
        return scalar(value);
    }
    bool string(string_t& value) override { return scalar(std::move(value)); }
    bool binary(binary_t& /*value*/) override { return false; } // JSON text has none
    bool start_object(std::size_t /*size*/) override { return open(Json::object()); }
    bool key(string_t& name) override;
    bool end_object() override { return close(); }
    bool start_array(std::size_t /*size*/) override { return open(Json::array()); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t position, const std::string& lastToken,
        const nlohmann::detail::exception& error) override;

private:
    /// An object or a list that is not complete.
    struct Level {
        Json* value;
        std::string key; // of the member that is being read
    };

    Json& place(Json value);
    bool scalar(Json value);
    bool open(Json value);
    bool close();
    bool complete(Json& value);
    QString pointer() const;

    Reading& m_reading;
    OnRecord m_onRecord;
    Json m_root;
    std::vector<Level> m_levels;
    std::optional<SyntaxError> m_syntaxError;
};

} // namespace recordset
