#include "InputBox.h"

#include "FirstPressOnly.h"

#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <limits>

namespace platform::dialogs {

std::optional<QString> InputBox(QWidget *parent, const QString &title, const QString &prompt) {
    constexpr int kWidth = 360; // pixels; room for the titles, which the window would cut
    QInputDialog box(parent);
    box.setObjectName(QStringLiteral("InputBox"));
    box.setWindowTitle(title);
    box.setInputMode(QInputDialog::TextInput);
    // The label belongs to the field, so that a lone & would underline a letter.
    box.setLabelText(QString(prompt).replace(QLatin1Char('&'), QStringLiteral("&&")));
    box.setOkButtonText(QStringLiteral("OK"));
    box.setCancelButtonText(QStringLiteral("Annuler"));
    box.findChild<QLabel *>()->setTextFormat(Qt::PlainText);
    auto *field = box.findChild<QLineEdit *>();
    field->setMaxLength(std::numeric_limits<int>::max());
    field->setMinimumWidth(kWidth);
    const FirstPressOnly guard(box);
    if (box.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    static const QRegularExpression lineEnd(QStringLiteral("\\r\\n|[\\n\\r\\x{2028}\\x{2029}]"));
    return box.textValue().replace(lineEnd, QStringLiteral(" "));
}

} // namespace platform::dialogs
