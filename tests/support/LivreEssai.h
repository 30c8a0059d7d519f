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
