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

/// As ToInteger, for a 32-bit float, not rounded.
float ToSingle(const QString &text);

/// The truth that a text holds: its word in French or in English, in any case, or a number, where 0 is false. Throws
/// ConversionError for any other text.
bool ToBoolean(const QString &text);

/// The word of a truth in the user's language: "Vrai" and "Faux" in French, "True" and "False" in all others.
QString ToText(bool truth);

/// A float as text with a decimal point, so that ToSingle gives back the same float.
QString ToText(float number);

} // namespace platform::settings
