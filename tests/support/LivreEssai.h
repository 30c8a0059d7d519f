#pragma once

#include "Files.h"
#include "Shown.h"

#include "browser/Frmmain.h"
#include "browser/Vues.h"
#include "platform/settings/Settings.h"
#include "store/Livre.h"
#include "store/Programme.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

#include <stdexcept>

/// A program folder with an empty book, and settings of its own, for as long as the object lives.
class LivreEssai {
public:
    LivreEssai() {
        if (!QDir(m_folder.path()).mkdir(QStringLiteral("photos"))) {
            throw std::runtime_error("no temporary folder");
        }
        store::DefinirDossierProgramme(m_folder.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, path(QStringLiteral("reglages")));
        store::CreerLivre(store::CheminBase());
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// The bytes of db.mdb.
    static QByteArray bytes() { return contentOf(store::CheminBase()); }

    static void execute(const QStringList &statements) {
        auto book = store::OuvrirLivre();
        for (const QString &statement : statements) {
            book.Execute(statement);
        }
    }

    /// One row for each vocabulary, and recipe 1, Tarte, which names them. It has no line yet.
    static void addTarte() {
        execute({
            QStringLiteral("INSERT INTO Categorie VALUES (1, '10 mn'), (2, '1 heure')"),
            QStringLiteral("INSERT INTO DureeReal VALUES (1, '20 mn')"),
            QStringLiteral("INSERT INTO Verre (NVerre, Verre) VALUES (1, '4 personnes')"),
            QStringLiteral("INSERT INTO Realisation VALUES (1, 'Entrée')"),
            QStringLiteral("INSERT INTO VIN VALUES (1, 'Chinon')"),
            QStringLiteral("INSERT INTO Ingredient VALUES (1, 'Beurre')"),
            QStringLiteral("INSERT INTO Quantite VALUES (1, '100')"),
            QStringLiteral("INSERT INTO Mesure VALUES (1, 'g')"),
            QStringLiteral("INSERT INTO Cocktails VALUES (1, 'Tarte', 1, 1, NULL, 1, '', '', 1, 2, 1, 1)"),
        });
    }

    /// The second column of the first row of a query.
    static QString text(const QString &query) {
        auto book = store::OuvrirLivre();
        return book.OpenRecordset(query).Fields(1).Text();
    }

    static QString setting(const QString &key) {
        return platform::settings::GetSetting(title(), QStringLiteral("Settings"), key);
    }

    static void setSetting(const QString &key, const QString &text) {
        platform::settings::SaveSetting(title(), QStringLiteral("Settings"), key, text);
    }

private:
    static QString title() { return store::TitreProgramme.toString(); }

    QTemporaryDir m_folder;
};

/// Presses a row of a list.
inline void clickRow(platform::controls::List &list, int index, Qt::MouseButton button = Qt::LeftButton) {
    const QModelIndex row = list.model()->index(index - 1, 0);
    list.scrollTo(row);
    QTest::mouseClick(list.viewport(), button, {}, list.visualRect(row).center());
}

/// The texts of a list, with commas between them.
inline QString texts(const platform::controls::List &list) {
    QStringList all;
    for (int index = 1; index <= list.Count(); ++index) {
        all += list.Text(index);
    }
    return all.join(QStringLiteral(", "));
}

/// Shows the window as the start of the program does, with a view loaded.
inline void openView(browser::Frmmain &frm, int view) {
    frm.PreparerListes();
    frm.SetCouleurSelection(Qt::blue);
    frm.RemplirVocabulaires();
    showActive(frm);
    browser::EnregistrerVue(browser::kVueAucune);
    frm.Bouton(view).SetValue(true);
}
