#pragma once

#include <QByteArray>

namespace bench {

/// A title for each number, all different up to 30,000; the same number always gives the same texts.
QByteArray recipeTitle(int number);

/// A text for a row of a lookup table.
QByteArray lookupText(int number);

/// Instructions in RTF as classic rich text controls write them, 1 to 4 KB.
/// @param seed texts of different seeds differ in length and words
QByteArray recipeRtf(int seed);

/// The same with a text of 10,000 characters.
QByteArray longRecipeRtf();

} // namespace bench
