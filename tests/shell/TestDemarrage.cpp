#include "LivreEssai.h"

#include "platform/database/DatabaseError.h"
#include "platform/desktop/SingleInstance.h"
#include "platform/settings/Conversion.h"
#include "shell/Demarrage.h"
#include "shell/Fenetres.h"
#include "shell/FinDuProgramme.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include <memory>

using browser::Frmmain;
using platform::desktop::SingleInstance;
using platform::settings::ConversionError;

namespace {

/// Answers the next message box, and keeps its text.
class Answer : public QObject {
public:
    explicit Answer(QMessageBox::ButtonRole role) : m_role(role) {
        connect(&m_timer, &QTimer::timeout, this, &Answer::press);
        m_timer.start(10);
    }

    QString title, text;

private:
    void press() {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box == nullptr) {
            return;
        }
        m_timer.stop();
        title = box->windowTitle();
        text = box->text();
        for (QAbstractButton *button : box->buttons()) {
            if (box->buttonRole(button) == m_role) {
                button->click();
            }
        }
    }

    QMessageBox::ButtonRole m_role;
    QTimer m_timer;
};

/// The claim of a program of another name, so that a running one does not matter.
const QString kOwnClaim = u"SavorelEssai%1"_qs.arg(QCoreApplication::applicationPid());

} // namespace

class TestDemarrage : public QObject {
    Q_OBJECT

private:
    void start() { shell::ChargerFrmmain(*m_windows, m_instance); }

    const SingleInstance m_instance{kOwnClaim};
    std::unique_ptr<LivreEssai> m_book;
    std::unique_ptr<shell::Fenetres> m_windows;
    Frmmain *m_window = nullptr;

private Q_SLOTS:

    void init() {
        m_book = std::make_unique<LivreEssai>();
        LivreEssai::execute({
            u"INSERT INTO Cocktails (Numero, Recette, Cout, difficulte) VALUES (1, 'Tarte', 0, 0)"_qs,
            u"INSERT INTO Categorie VALUES (1, '10 mn')"_qs,
        });
        m_windows = std::make_unique<shell::Fenetres>();
        m_window = &m_windows->Principale;
    }

    void cleanup() { m_windows.reset(); }

    void firstRunShowsTheRecipesInTheMiddle() {
        start();
        QVERIFY(m_window->isVisible());
        QCOMPARE(m_window->Mode(), 0);
        QCOMPARE(LivreEssai::setting(u"Tris"_qs), u"0"_qs);
        QCOMPARE(m_window->LTDroit.Caption(), u"Tarte"_qs);
        QCOMPARE(m_window->LCout.Count() + m_window->LDiff.Count(), 11);
        const QPoint off =
            m_window->geometry().center() - QGuiApplication::primaryScreen()->geometry().center();
        QVERIFY(off.manhattanLength() <= 2);
    }

    void laterRunTakesUpThePlaceAndTheView() {
        for (const auto &[key, value] :
             {std::pair(u"Tris"_qs, u"1"_qs), std::pair(u"MainTop"_qs, u"150.5"_qs),
              std::pair(u"MainLeft"_qs, u"0"_qs)}) {
            LivreEssai::setSetting(key, value);
        }
        start();
        QCOMPARE(m_window->pos(), QPoint(0, 10));
        QCOMPARE(LivreEssai::setting(u"Tris"_qs), u"1"_qs);
        QCOMPARE(m_window->LTGauche.Caption(), u" Liste des Durées de Cuisson "_qs);
    }

    void interruptedLoadLeavesTheListEmpty() {
        LivreEssai::setSetting(u"Tris"_qs, u"99"_qs);
        start();
        QVERIFY(m_window->isVisible());
        QCOMPARE(m_window->Liste.Count(), 0);
        QCOMPARE(m_window->LTDroit.Caption(), QString());
        QCOMPARE(LivreEssai::setting(u"Tris"_qs), u"99"_qs);
        QTest::mouseClick(&m_window->Bouton(0), Qt::LeftButton);
        QCOMPARE(m_window->Liste.Count(), 1);
    }

    void lettersWhereNumbersBelong() {
        for (const QString &key : {u"Tris"_qs, u"MainLeft"_qs, u"MainTop"_qs}) {
            LivreEssai::setSetting(key, u"abc"_qs);
            QVERIFY_THROWS_EXCEPTION(ConversionError, start());
            QCOMPARE(LivreEssai::setting(key), u"abc"_qs);
        }
    }

    void missingBookIsTheEnginesError() {
        QVERIFY(QFile::remove(store::CheminBase()));
        QVERIFY_THROWS_EXCEPTION(platform::database::DatabaseError, start());
        QVERIFY(!QFile::exists(store::CheminBase()));
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    void secondInstanceEndsBeforeItWrites() {
        LivreEssai::setSetting(u"Tris"_qs, u"4"_qs);
        const SingleInstance second(kOwnClaim);
        QVERIFY(!m_instance.IsRunningElsewhere() && second.IsRunningElsewhere());
        const Answer ok(QMessageBox::AcceptRole);
        QVERIFY_THROWS_EXCEPTION(shell::FinDuProgramme, shell::ChargerFrmmain(*m_windows, second));
        QCOMPARE(ok.title, u"Savorel"_qs);
        QCOMPARE(ok.text.simplified(), u"Savorel est en cours d'utilsation sur votre machine Pour pouvoir "
                                       "l'utiliser de nouveau, veuillez fermer la version ouverte !"_qs);
        QCOMPARE(LivreEssai::setting(u"Tris"_qs), u"4"_qs);
    }

    void refusedQuitKeepsThePlace() {
        start();
        m_window->move(30, 40);
        const Answer no(QMessageBox::NoRole);
        QTest::mouseClick(&m_window->Btn_Quit, Qt::LeftButton);
        QCOMPARE(no.text, u"Voulez vous quitter Savorel ?"_qs);
        QVERIFY(m_window->isVisible() && !m_window->Btn_Quit.Value());
        QCOMPARE(LivreEssai::setting(u"MainTop"_qs), u"600"_qs);
        QCOMPARE(LivreEssai::setting(u"MainLeft"_qs), u"450"_qs);
    }

    void agreedQuitRemovesTheScratchPicture() {
        start();
        QFile scratch(m_book->path(u"temp.bmp"_qs));
        QVERIFY(scratch.open(QIODevice::WriteOnly));
        scratch.close();
        for (const bool present : {true, false}) {
            QCOMPARE(scratch.exists(), present);
            const Answer yes(QMessageBox::YesRole);
            try {
                m_window->Btn_Quit.SetValue(true);
                QFAIL("the program goes on");
            } catch (const shell::FinDuProgramme &end) {
                QCOMPARE(end.code, 0);
            }
            m_window->Btn_Quit.SetValue(false);
        }
        QVERIFY(!scratch.exists());
        QCOMPARE(LivreEssai::setting(u"MainTop"_qs), QString());
    }

    void closingByThePlatformAsksToo() {
        start();
        const Answer no(QMessageBox::NoRole);
        QCloseEvent close;
        QSpontaneKeyEvent::setSpontaneous(&close);
        QApplication::instance()->notify(m_window, &close);
        QCOMPARE(no.text, u"Voulez vous quitter Savorel ?"_qs);
        QVERIFY(m_window->isVisible());
        QCOMPARE(LivreEssai::setting(u"MainTop"_qs), QString());
    }

    void importWithoutItsBrowserIsToldAndNoMore() {
        start();
        Answer answer(QMessageBox::AcceptRole);
        m_window->Outils(1).SetValue(true);
        QVERIFY2(answer.text.startsWith(u"Le navigateur"_qs), qPrintable(answer.text));
        QVERIFY(m_window->isVisible() && !m_window->Outils(1).Value());
    }
};

QTEST_MAIN(TestDemarrage)
#include "TestDemarrage.moc"
