#include "EssaiCoque.h"
#include "OldBook.h"

#include "platform/database/DatabaseError.h"
#include "platform/jet/JetReader.h"
#include "store/CopieFichier.h"

#include <QMessageBox>

using platform::database::DatabaseError;

namespace {

constexpr int kBackup = 5;
constexpr int kRestore = 6;

/// Agrees to replace a file, and takes notice of the next message.
std::unique_ptr<QTimer> accepting(QString &said) {
    return in<QMessageBox>([&said](QMessageBox &box) {
        if (QAbstractButton *yes = box.button(QMessageBox::Yes)) {
            yes->click();
            return false;
        }
        said = box.text();
        box.accept();
        return true;
    });
}

std::unique_ptr<QTimer> answering(Qt::Key button, QString &question) {
    return in<QMessageBox>([button, &question](QMessageBox &box) {
        question = box.text();
        QTest::keyClick(&box, button);
        return true;
    });
}

} // namespace

class TestSauvegarde : public QObject {
    Q_OBJECT

private:
    void press(int tool, const QString &file) const {
        const auto user = choosing(file);
        m_test->main().Outils(tool).SetValue(true);
        QVERIFY(!m_test->main().Outils(tool).Value());
    }

    QString path(const QString &name) const { return m_test->book.path(name); }

    /// A book of another recipe.
    QString otherBook(const QString &name) const {
        const QString copy = path(name);
        QFile::copy(store::CheminBase(), copy);
        store::OuvrirLivre(copy).Execute(u"UPDATE Cocktails SET Recette = 'Soupe', preparation = 'Mixer'"_qs);
        return copy;
    }

    std::unique_ptr<EssaiCoque> m_test;

private Q_SLOTS:

    void initTestCase() {
        // The file dialog remembers its places in the user's settings.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.path());
    }

    void init() {
        m_test.reset(); // a second one would find the first one running
        m_test = std::make_unique<EssaiCoque>();
        QVERIFY(QFile::link(QStringLiteral(READING_PROGRAM), path(u"lecteur-jet"_qs)));
    }

    void backupIsTheBookUnderAnyOtherName() {
        m_test->start();
        QVERIFY(QDir(path({})).mkdir(u"cle"_qs));
        for (const QString &name : {u"copie"_qs, u"copie.bak"_qs, u"cle/db.mdb"_qs}) {
            press(kBackup, path(name));
        }
        press(kBackup, {});
        for (const QString &name : {u"copie.mdb"_qs, u"copie.bak"_qs, u"cle/db.mdb"_qs}) {
            QCOMPARE(contentOf(path(name)), LivreEssai::bytes());
        }
        QVERIFY(m_test->main().isVisible());
    }

    void backupOverTheBookIsRefused() {
        m_test->start();
        const QByteArray before = LivreEssai::bytes();
        QVERIFY(QFile::link(store::CheminBase(), path(u"lien.mdb"_qs)));
        for (const QString &name : {u"Db.MDB"_qs, u"lien.mdb"_qs, u"photos/../db.mdb"_qs}) {
            QString said;
            const auto user = accepting(said);
            press(kBackup, path(name));
            QCOMPARE(said, u"Vous ne devriez pas sauvegarder avec ce nom (db.mdb) !!!"_qs);
        }
        QCOMPARE(LivreEssai::bytes(), before);
        QVERIFY(QFileInfo(path(u"lien.mdb"_qs)).isSymLink());
    }

    void restoredCopyIsShown() {
        m_test->start();
        // Where names in other case are other files, this is no restore of the book onto itself.
        press(kRestore, otherBook(u"DB.MDB"_qs));
        QCOMPARE(m_test->main().LTDroit.Caption(), u"Soupe"_qs);
        QCOMPARE(m_test->main().Saisie(0).Text(), u"Mixer"_qs);
        QCOMPARE(texts(m_test->main().Liste), u"Soupe"_qs);
        press(kRestore, store::CheminAvantRestauration());
        QCOMPARE(m_test->main().LTDroit.Caption(), u"Tarte"_qs);
    }

    void restoringTheBookOrNothingChangesNothing() {
        m_test->start();
        const QByteArray before = LivreEssai::bytes();
        for (const QString &file : {store::CheminBase(), QString()}) {
            press(kRestore, file);
            QCOMPARE(LivreEssai::bytes(), before);
            QVERIFY(!QFile::exists(store::CheminAvantRestauration()));
            QCOMPARE(m_test->main().LTDroit.Caption(), u"Tarte"_qs);
        }
    }

    void foreignFileFailsAtTheNextQuery() {
        m_test->start();
        press(kRestore, writeFile(path(u"facture.mdb"_qs), "Monsieur,"));
        QCOMPARE(LivreEssai::bytes(), "Monsieur,");
        QVERIFY(!m_test->main().Chargement.isVisible());
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, m_test->main().Bouton(1).SetValue(true));
    }

    void oldBookIsConverted() {
        m_test->start();
        press(kRestore, writeFile(path(u"vieux.mdb"_qs), oldBook()));
        QCOMPARE(m_test->main().LBGauche.Caption(), u"4 Recette(s) ..."_qs);
        QCOMPARE(contentOf(path(u"vieux.mdb"_qs)), oldBook());
        press(kRestore, store::CheminAvantRestauration());
        QCOMPARE(m_test->main().LTDroit.Caption(), u"Tarte"_qs);
    }

    void oldBookInThePlaceOfOurs() {
        writeFile(store::CheminBase(), oldBook());
        writeFile(path(u"db-ancien.mdb"_qs), "earlier");
        m_test->start();
        QCOMPARE(m_test->main().LBGauche.Caption(), u"4 Recette(s) ..."_qs);
        QCOMPARE(contentOf(path(u"db-ancien.mdb"_qs)), QByteArray("earlier"));
        QCOMPARE(contentOf(path(u"db-ancien-2.mdb"_qs)), oldBook());
        QVERIFY(!QFile::exists(path(u"db.mdb.nouveau"_qs)));
    }

    void damagedOldBookIsToldAndTheFormerStays() {
        m_test->start();
        const QByteArray before = LivreEssai::bytes();
        const QByteArray damaged = QByteArray(4, '\1') + "Standard Jet DB" + QByteArray(9'000, '\7');
        writeFile(path(u"vieux.mdb"_qs), damaged);
        QString said;
        {
            const auto user = accepting(said);
            press(kRestore, path(u"vieux.mdb"_qs));
        }
        QVERIFY(!said.isEmpty());
        QCOMPARE(LivreEssai::bytes(), before);
        QCOMPARE(m_test->main().LTDroit.Caption(), u"Tarte"_qs);
        QVERIFY(!QFile::exists(path(u"db.mdb.nouveau"_qs)));

        init();
        writeFile(store::CheminBase(), damaged);
        QVERIFY_THROWS_EXCEPTION(platform::jet::JetError, m_test->start());
        QCOMPARE(LivreEssai::bytes(), damaged);
    }

    void keptCopyIsOfferedForABookThatDoesNotOpen() {
        for (const QByteArray &unreadable :
             QByteArrayList{"Monsieur,", QByteArray(4, '\1') + "Standard Jet DB"}) {
            init();
            QVERIFY(QFile::rename(store::CheminBase(), store::CheminAvantRestauration()));
            writeFile(store::CheminBase(), unreadable);
            {
                QString question;
                const auto no = answering(Qt::Key_Escape, question);
                QVERIFY_THROWS_EXCEPTION(std::runtime_error, m_test->start());
                QVERIFY(question.contains(u"db-avant-restauration.mdb"));
            }
            QCOMPARE(LivreEssai::bytes(), unreadable);

            m_test->windows.reset();
            m_test->windows = std::make_unique<shell::Fenetres>();
            LivreEssai::setSetting(u"Tris"_qs, u"0"_qs); // a start that fails leaves none
            QString question;
            const auto yes = answering(Qt::Key_Return, question);
            m_test->start();
            QCOMPARE(m_test->main().LTDroit.Caption(), u"Tarte"_qs);
            QCOMPARE(
                contentOf(path(unreadable.startsWith('M') ? u"db-illisible.mdb"_qs : u"db-ancien.mdb"_qs)),
                unreadable);
        }
    }

private:
    QTemporaryDir m_home;
};

QTEST_MAIN(TestSauvegarde)
#include "TestSauvegarde.moc"
