#include "EssaiCoque.h"
#include "Reponse.h"

#include "platform/database/DatabaseError.h"
#include "platform/settings/Conversion.h"
#include "shell/FinDuProgramme.h"

using platform::desktop::SingleInstance;
using platform::settings::ConversionError;

class TestDemarrage : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<EssaiCoque> m_test;
    browser::Frmmain *m_window = nullptr;

private Q_SLOTS:

    void init() {
        m_test.reset(); // a second one would find the first one running
        m_test = std::make_unique<EssaiCoque>();
        m_window = &m_test->main();
    }

    void firstRunShowsTheRecipes() {
        // What an import leaves that ended badly would be read with the next page.
        const QString page = writeFile(m_test->book.path(u"temp.txt"_qs), "page");
        const QString photo = writeFile(m_test->book.path(u"photo.bmp"_qs), "photo");
        m_test->start();
        QVERIFY(!QFile::exists(page));
        QVERIFY(!QFile::exists(photo));
        QVERIFY(m_window->isVisible());
        QCOMPARE(LivreEssai::setting(u"Tris"_qs), u"0"_qs);
        QCOMPARE(m_window->LTDroit.Caption(), u"Tarte"_qs);
    }

    void laterRunTakesUpThePlaceAndTheView() {
        LivreEssai::setSetting(u"Tris"_qs, u"1"_qs);
        LivreEssai::setSetting(u"MainTop"_qs, u"150.5"_qs);
        LivreEssai::setSetting(u"MainLeft"_qs, u"0"_qs);
        m_test->start();
        QCOMPARE(m_window->pos(), QPoint(0, 10));
        QCOMPARE(LivreEssai::setting(u"Tris"_qs), u"1"_qs);
        QCOMPARE(m_window->LTGauche.Caption(), u" Liste des Durées de Cuisson "_qs);
    }

    void interruptedLoadLeavesTheListEmpty() {
        LivreEssai::setSetting(u"Tris"_qs, u"99"_qs);
        m_test->start();
        QVERIFY(m_window->isVisible());
        QCOMPARE(m_window->Liste.Count(), 0);
        QCOMPARE(LivreEssai::setting(u"Tris"_qs), u"99"_qs);
        QTest::mouseClick(&m_window->Bouton(0), Qt::LeftButton);
        QCOMPARE(m_window->Liste.Count(), 1);
    }

    void lettersWhereNumbersBelong() {
        for (const QString &key : {u"Tris"_qs, u"MainLeft"_qs, u"MainTop"_qs}) {
            LivreEssai::setSetting(key, u"abc"_qs);
            QVERIFY_THROWS_EXCEPTION(ConversionError, m_test->start());
            QCOMPARE(LivreEssai::setting(key), u"abc"_qs);
        }
    }

    void missingBookIsTheEnginesError() {
        QVERIFY(QFile::remove(store::CheminBase()));
        QVERIFY_THROWS_EXCEPTION(platform::database::DatabaseError, m_test->start());
        QVERIFY(!QFile::exists(store::CheminBase()));
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    void secondInstanceEndsBeforeItWrites() {
        LivreEssai::setSetting(u"Tris"_qs, u"4"_qs);
        const SingleInstance second(EssaiCoque::claim());
        const Reponse ok(u"OK"_qs);
        QVERIFY_THROWS_EXCEPTION(shell::FinDuProgramme, shell::ChargerFrmmain(*m_test->windows, second));
        QCOMPARE(ok.question().simplified(),
                 u"Savorel est en cours d'utilsation sur votre machine Pour pouvoir "
                 "l'utiliser de nouveau, veuillez fermer la version ouverte !"_qs);
        QCOMPARE(LivreEssai::setting(u"Tris"_qs), u"4"_qs);
    }

    void aFileLeftBehindIsNoRunningProgram() {
        const QTemporaryDir place;
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(place.path()));
        qputenv("XDG_CACHE_HOME", QFile::encodeName(place.filePath(u"cache"_qs)));
        std::optional<SingleInstance> first(std::in_place, u"Essai"_qs);
        const QString lock = place.filePath(QDir(place.path()).entryList({u"*.lock"_qs}).value(0));
        first.reset();
        QVERIFY(!QFile::exists(lock));
        writeFile(lock, "1\nsavorel\n");
        // A folder stands for a file that nobody can open.
        for (const bool readable : {true, false}) {
            if (!readable) {
                QVERIFY(QDir().mkpath(lock));
            }
            first.emplace(u"Essai"_qs);
            QVERIFY(!first->IsRunningElsewhere());
            QVERIFY(SingleInstance(u"Essai"_qs).IsRunningElsewhere());
            QVERIFY(SingleInstance(u"Essai"_qs).IsRunningElsewhere());
            first.reset();
        }
        QVERIFY(QDir(place.filePath(u"cache"_qs)).isEmpty());
    }

    void refusedQuitKeepsThePlace() {
        m_test->start();
        m_window->move(30, 40);
        const Reponse no(u"Non"_qs);
        QTest::mouseClick(&m_window->Btn_Quit, Qt::LeftButton);
        QCOMPARE(no.question(), u"Voulez vous quitter Savorel ?"_qs);
        QVERIFY(m_window->isVisible());
        QVERIFY(!m_window->Btn_Quit.Value());
        QCOMPARE(LivreEssai::setting(u"MainTop"_qs), u"600"_qs);
    }

    void agreedQuitRemovesTheScratchPicture() {
        m_test->start();
        const QString scratch = writeFile(m_test->book.path(u"temp.bmp"_qs), {});
        for (const bool present : {true, false}) {
            QCOMPARE(QFile::exists(scratch), present);
            const Reponse yes(u"Oui"_qs);
            QVERIFY_THROWS_EXCEPTION(shell::FinDuProgramme, m_window->Btn_Quit.SetValue(true));
            m_window->Btn_Quit.SetValue(false);
        }
        QVERIFY(!QFile::exists(scratch));
        QCOMPARE(LivreEssai::setting(u"MainTop"_qs), QString());
    }

    void importWithoutItsBrowserIsToldAndNoMore() {
        m_test->start();
        const Reponse answer(u"OK"_qs);
        m_window->Outils(1).SetValue(true);
        QVERIFY2(answer.question().contains(u"Ce que vous pouvez faire : "_qs),
                 qPrintable(answer.question()));
        QVERIFY(m_window->isVisible());
        QVERIFY(!m_window->Outils(1).Value());
    }
};

QTEST_MAIN(TestDemarrage)
#include "TestDemarrage.moc"
