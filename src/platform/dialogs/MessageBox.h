#pragma once

#include <QString>

class QWidget;

namespace platform::dialogs {

enum class Icon { Information, Question, Exclamation, Critical };

/// Shows a modal message with one OK button, and returns when it is closed. The parent may be null.
void Message(QWidget *parent, const QString &title, const QString &text, Icon icon);

/// Asks a question with the buttons "Oui" and "Non"; true for "Oui". Escape and closing are "Non".
bool Ask(QWidget *parent, const QString &title, const QString &question);

} // namespace platform::dialogs
