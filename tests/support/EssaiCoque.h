#pragma once

#include "LivreEssai.h"
#include "Meanwhile.h"

#include "platform/desktop/SingleInstance.h"
#include "shell/Demarrage.h"
#include "shell/Fenetres.h"

#include <QFileDialog>
#include <QLineEdit>

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

    /// The claim of a program of another name, so that a running one does not matter.
    static QString claim() {
        return QStringLiteral("SavorelEssai%1").arg(QCoreApplication::applicationPid());
    }

    browser::Frmmain &main() const { return windows->Principale; }

    LivreEssai book;
    std::unique_ptr<shell::Fenetres> windows;

private:
    const platform::desktop::SingleInstance m_instance{claim()};
};

/// Types a name into the next file dialog and accepts; cancels it for an empty name.
inline std::unique_ptr<QTimer> choosing(const QString &name) {
    return in<QFileDialog>([name](QFileDialog &dialog) {
        auto *field = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        field->setText(name);
        QTest::keyClick(field, name.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        return true;
    });
}
