#pragma once

#include <QString>
#include <stdexcept>

namespace platform::settings {

/// A text that does not convert to the wanted type; what() is the French text of the failure, in UTF-8.
class ConversionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The number that a text holds, blanks around it allowed; decimal point or comma; fractions are rounded to
/// the nearest integer, ties to even. Throws ConversionError for a text that is no number or is out of the
/// range.
qint16 ToInteger(const QString &text);

/// As ToInteger, for 32 bits.
qint32 ToLong(const QString &text);

/// As ToInteger, for a 32-bit float, not rounded.
float ToSingle(const QString &text);

/// A float as text with a decimal point, so that ToSingle gives back the same float.
QString ToText(float number);

} // namespace platform::settings
