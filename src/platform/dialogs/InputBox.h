#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace platform::dialogs {

/// Asks for a line of text; the text as typed, line ends as blanks, without a limit of length, or nothing on "Annuler", Escape and
/// closing. The parent may be null or hidden.
std::optional<QString> InputBox(QWidget *parent, const QString &title, const QString &prompt);

} // namespace platform::dialogs
