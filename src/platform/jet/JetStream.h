#pragma once

#include <cstdint>

/// What the reading program writes to its standard output, and readJet() reads.
///
/// A sequence of records: one byte for its kind, four bytes with the size of what follows, the content.
/// Numbers are in the byte order of the machine, since both ends run on it. A text is four bytes with its size
/// in bytes and then its UTF-8.
///
///   Begin    uint64: the rows of all tables that follow, as the file announces them
///   Table    name; uint32 count of columns; their names
///   Row      one value for each column of the table begun last: a ValueKind, then
///            nothing (Null), int64 (Number), double (Real), a text (Text)
///   End      nothing; the last record of a file that was read whole
///   Failure  the text for the user; the last record of a file that could not be read
namespace platform::jet {

enum class RecordKind : std::uint8_t { Begin = 'B', Table = 'T', Row = 'R', End = 'E', Failure = 'X' };

enum class ValueKind : std::uint8_t { Null, Number, Real, Text };

inline constexpr int kRecordHeadSize = 5;

/// The largest content of a record in bytes. No row comes near: the longest texts of a book have some hundred
/// thousand characters.
inline constexpr std::uint32_t kMaxRecordSize = 64U << 20U;

/// Columns of a table; the format counts them in one byte.
inline constexpr std::uint32_t kMaxColumns = 255;

/// Exit codes of the reading program.
enum ExitCode { kReadWhole = 0, kWrongArguments = 1, kFailed = 2 };

} // namespace platform::jet
