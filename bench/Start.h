#pragma once

#include <QString>

namespace bench {

/// Name of the hidden command: `bench --start ours|bare|bookless FOLDER`.
inline constexpr const char *kStartCommand = "--start";
inline constexpr const char *kOurs = "ours";
inline constexpr const char *kBare = "bare";
inline constexpr const char *kBookless = "bookless";

/// Starts the program on the book of a folder; or a window with a list of the same titles and nothing more, read from
/// the book through the C interface ("bare") or from a text file ("bookless").
/// Ends the process when the list is painted, printing the most memory it had in KiB.
int start(int argc, char **argv, const QString &which, const QString &folder);

} // namespace bench
