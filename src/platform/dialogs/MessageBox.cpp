#include "MessageBox.h"

#include "FirstPressOnly.h"

#include <QMessageBox>
#include <QPushButton>

namespace platform::dialogs {

namespace {

QMessageBox::Icon toolkitIcon(Icon icon) {
    switch (icon) {
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

void show(QMessageBox &box) {
    const FirstPressOnly guard(box);
    box.exec();
}

void prepare(QMessageBox &box, const QString &title, const QString &text, Icon icon) {
    box.setObjectName(QStringLiteral("Message"));
    box.setWindowTitle(title);
    // The texts come from rows and files: shown as they are, never as markup.
    box.setTextFormat(Qt::PlainText);
    // Carriage returns alone end lines in the texts; the toolkit breaks at line feeds only.
    box.setText(QString(text).replace(QLatin1Char('\r'), QLatin1Char('\n')));
    box.setIcon(toolkitIcon(icon));
}

} // namespace

void Message(QWidget *parent, const QString &title, const QString &text, Icon icon) {
    QMessageBox box(parent);
    prepare(box, title, text, icon);
    box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    show(box);
}

bool Ask(QWidget *parent, const QString &title, const QString &question) {
    QMessageBox box(parent);
    prepare(box, title, question, Icon::Question);
    QPushButton *yes = box.addButton(QStringLiteral("&Oui"), QMessageBox::YesRole);
    QPushButton *no = box.addButton(QStringLiteral("&Non"), QMessageBox::NoRole);
    box.setDefaultButton(yes);
    box.setEscapeButton(no);
    show(box);
    return box.clickedButton() == yes;
}

} // namespace platform::dialogs
