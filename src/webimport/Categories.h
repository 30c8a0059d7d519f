#pragma once

#include <QStringView>

namespace webimport {

/// The category that a page's address names by its group, "&groupid=" and two characters; empty where it
/// names none or an unknown one.
/// @throws IncompatibiliteDeType when the two characters are no number, as in "9&"
QStringView CategorieDeLAdresse(QStringView adresse);

} // namespace webimport
