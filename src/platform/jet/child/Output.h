#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace platform::jet {

enum class RecordKind : std::uint8_t;

/// Null, a whole number, a real or a text in UTF-8.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// Writes the records of JetStream.h to the standard output.
class Output {
public:
    void begin(std::uint64_t rows);
    void table(std::string_view name, const std::vector<std::string> &columns);
    /// @throws Damage for a row that is too long for a record
    void row(const std::vector<Value> &values);
    void end();
    void failure(std::string_view text);

private:
    void write(RecordKind kind);

    /// The content of the record being made.
    std::string m_content;
};

} // namespace platform::jet
