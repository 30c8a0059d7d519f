#include "LivreEssai.h"

#include "browser/Operations.h"
#include "platform/desktop/SingleInstance.h"
#include "shell/Demarrage.h"
#include "shell/Fenetres.h"

#include <QApplication>
#include <QTimer>

#include <functional>
#include <memory>

/// How the window of creation is opened, minimised, brought back and unloaded.
class TestCreationManuelle : public QObject {
    Q_OBJECT

private:
    /// Does something while the window is open, then closes it.
    void meanwhile(const std::function<void(entry::Manuelle &)> &act) {
        QTimer::singleShot(0, this, [this, act] {
            m_seen = true;
            entry::Manuelle &window = m_windows->Creation();
            act(window);
            window.Quit.SetValue(true);
        });
    }

    const platform::desktop::SingleInstance m_instance{
        u"SavorelEssai%1"_qs.arg(QCoreApplication::applicationPid())};
    std::unique_ptr<LivreEssai> m_book;
    std::unique_ptr<shell::Fenetres> m_windows;
    bool m_seen = false;

private Q_SLOTS:

    void init() {
        m_book = std::make_unique<LivreEssai>();
        LivreEssai::execute(
            {u"INSERT INTO Cocktails (Numero, Recette, Cout, difficulte) VALUES (1, 'Tarte', 0, 0)"_qs});
        platform::settings::SaveSetting(u"Savorel"_qs, u"Patch"_qs, u"Mode"_qs, u"1"_qs);
        m_windows = std::make_unique<shell::Fenetres>();
        shell::ChargerFrmmain(*m_windows, m_instance);
        m_seen = false;
    }

    void cleanup() { m_windows.reset(); }

    void theToolMakesItAnewEachTime() {
        browser::Frmmain &frm = m_windows->Principale;
        for (int turn = 0; turn < 2; ++turn) {
            LivreEssai::execute({u"INSERT INTO Quantite VALUES (%1, 'q')"_qs.arg(turn + 1)});
            meanwhile([&](entry::Manuelle &window) {
                QVERIFY(window.isVisible() && !frm.isVisible());
                QCOMPARE(window.Mode(), 0); // and not the one of the main window
                QCOMPARE(window.LQte.Count(), turn + 1);
                QCOMPARE(window.TitreRecette.Text(), QString());
                window.TitreRecette.SetText(u"Riz"_qs);
            });
            QTest::mouseClick(&frm.LBtn(0), Qt::LeftButton);
            QVERIFY(m_seen && frm.isVisible() && !frm.Outils(0).Value());
            QVERIFY(m_windows->Outils().empty());
        }
    }

    void theMenuOpensItWhereRowsAreRecipes() {
        browser::Frmmain &frm = m_windows->Principale;
        clickRow(frm.Liste, 1, Qt::RightButton);
        QTRY_VERIFY(m_windows->Pop.Menu1.isVisible());
        m_windows->Pop.Menu1.close();
        QVERIFY(m_windows->Pop.Ajouter.isEnabled());
        meanwhile([&frm](entry::Manuelle &window) { QVERIFY(window.isVisible() && !frm.isVisible()); });
        m_windows->Pop.Ajouter.trigger();
        QVERIFY(m_seen && frm.isVisible());

        frm.Outils(2).SetTag(browser::kBas);
        browser::EnregistrerVue(5);
        QVERIFY(browser::PeutAjouter(frm));
        frm.Outils(2).SetTag({});
        QVERIFY(!browser::PeutAjouter(frm));
    }

    void aMinimisedOneComesBackAsItWas() {
        browser::Frmmain &frm = m_windows->Principale;
        for (const bool byMenu : {false, true}) {
            m_windows->Pop.FenetreOuverte = browser::Pop::kSeule;
            meanwhile([this](entry::Manuelle &window) {
                window.TitreRecette.SetText(u"Riz"_qs);
                window.Ingre(10).SetText(u"Sel"_qs);
                window.Mini.SetValue(true);
                QVERIFY(!window.isVisible());
                QTRY_VERIFY(m_windows->Pop.isVisible());
                m_windows->Pop.setWindowState(Qt::WindowNoState);
                QTRY_VERIFY(window.isVisible());
                QCOMPARE(&window, &m_windows->Creation());
                QCOMPARE(window.TitreRecette.Text() + window.Ingre(10).Text(), u"RizSel"_qs);
            });
            if (byMenu) {
                Q_EMIT frm.CreationDemandee();
            } else {
                frm.Outils(0).SetValue(true);
            }
            QVERIFY(m_seen && frm.isVisible());
            QVERIFY(m_windows->Outils().empty());
        }
    }
};

QTEST_MAIN(TestCreationManuelle)
#include "TestCreationManuelle.moc"
