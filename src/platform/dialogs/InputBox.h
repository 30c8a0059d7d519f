#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace platform::dialogs {

/// Asks for a line of text; gives it as typed, of any length, with line ends as blanks, or nothing on "Annuler", Escape
/// and closing. The parent may be null or hidden.
std::optional<QString> InputBox(QWidget *parent, const QString &title, const QString &prompt);

} // namespace platform::dialogs
