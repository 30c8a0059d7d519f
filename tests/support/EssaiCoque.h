#pragma once

#include "LivreEssai.h"

#include "platform/desktop/SingleInstance.h"
#include "shell/Demarrage.h"
#include "shell/Fenetres.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

#include <memory>

/// A book with one recipe, and the windows of a program that is not started yet.
class EssaiCoque {
public:
    EssaiCoque() {
        LivreEssai::execute({
            QStringLiteral(
                "INSERT INTO Cocktails (Numero, Recette, Cout, difficulte) VALUES (1, 'Tarte', 0, 0)"),
            QStringLiteral("INSERT INTO Categorie VALUES (1, '10 mn')"),
        });
        windows = std::make_unique<shell::Fenetres>();
    }

    void start() const { shell::ChargerFrmmain(*windows, m_instance); }

    browser::Frmmain &main() const { return windows->Principale; }

    LivreEssai book;
    std::unique_ptr<shell::Fenetres> windows;

private:
    // Of a name of its own, so that a running program does not matter.
    const platform::desktop::SingleInstance m_instance{
        QStringLiteral("SavorelEssai%1").arg(QCoreApplication::applicationPid())};
};

/// Does something, again and again, until it says that it is done: what the user does while a modal window is open.
template <class Step>
std::unique_ptr<QTimer> meanwhile(Step step) {
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [step, &timer = *timer] {
        if (step()) {
            timer.stop();
        }
    });
    timer->start(10);
    return timer;
}

/// Types a name into the next file dialog and accepts; cancels it for an empty name.
inline std::unique_ptr<QTimer> choosing(const QString &name) {
    return meanwhile([name] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return false;
        }
        auto *field = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        field->setText(name);
        QTest::keyClick(field, name.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        return true;
    });
}
