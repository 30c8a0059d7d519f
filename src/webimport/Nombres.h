#pragma once

#include <QLocale>
#include <QStringView>

namespace webimport {

/// Whether a text is a number as the user's country writes them: a sign, digits with separators of groups and
/// of decimals, an exponent, blanks around it. Groups may have any length. Fractions, units and the empty
/// text are not numeric.
bool EstNumerique(QStringView texte, const QLocale &pays = QLocale());

/// The number that a text holds.
/// @throws IncompatibiliteDeType for a text that is not numeric
double LireNombre(QStringView texte, const QLocale &pays = QLocale());

} // namespace webimport
