#include "EssaiCoque.h"

#include "browser/Operations.h"

#include <functional>

/// How the window of creation is opened, minimised, brought back and unloaded.
class TestCreationManuelle : public QObject {
    Q_OBJECT

private:
    /// Does something while the window is open, then closes it.
    void meanwhile(const std::function<void(entry::Manuelle &)> &act) {
        QTimer::singleShot(0, this, [this, act] {
            m_seen = true;
            entry::Manuelle &window = m_program->windows->Creation();
            QVERIFY(window.isVisible() && !m_program->main().isVisible());
            act(window);
            window.Quit.SetValue(true);
        });
    }

    /// Whether the window was there and is gone, with the main window in its place.
    bool isOver() const {
        return m_seen && m_program->main().isVisible() && m_program->windows->Outils().empty();
    }

    std::unique_ptr<EssaiCoque> m_program;
    bool m_seen = false;

private Q_SLOTS:

    void init() {
        m_program = std::make_unique<EssaiCoque>();
        platform::settings::SaveSetting(u"Savorel"_qs, u"Patch"_qs, u"Mode"_qs, u"1"_qs);
        m_program->start();
        m_seen = false;
    }

    void cleanup() { m_program.reset(); }

    void theToolMakesItAnewEachTime() {
        for (int turn = 0; turn < 2; ++turn) {
            LivreEssai::execute({u"INSERT INTO Quantite VALUES (%1, 'q')"_qs.arg(turn + 1)});
            meanwhile([&](entry::Manuelle &window) {
                QCOMPARE(window.Mode(), 0); // and not the one of the main window
                QCOMPARE(window.LQte.Count(), turn + 1);
                QCOMPARE(window.TitreRecette.Text(), QString());
                window.TitreRecette.SetText(u"Riz"_qs);
            });
            QTest::mouseClick(&m_program->main().LBtn(0), Qt::LeftButton);
            QVERIFY(isOver() && !m_program->main().Outils(0).Value());
        }
    }

    void theMenuOpensItWhereRowsAreRecipes() {
        browser::Frmmain &frm = m_program->main();
        browser::Pop &pop = m_program->windows->Pop;
        clickRow(frm.Liste, 1, Qt::RightButton);
        QTRY_VERIFY(pop.Menu1.isVisible());
        pop.Menu1.close();
        QVERIFY(pop.Ajouter.isEnabled());
        meanwhile([](const entry::Manuelle & /*window*/) {});
        pop.Ajouter.trigger();
        QVERIFY(isOver());

        frm.Outils(2).SetTag(browser::kBas);
        browser::EnregistrerVue(5);
        QVERIFY(browser::PeutAjouter(frm));
        frm.Outils(2).SetTag({});
        QVERIFY(!browser::PeutAjouter(frm));
    }

    void aMinimisedOneComesBackAsItWas() {
        browser::Pop &pop = m_program->windows->Pop;
        for (const bool byMenu : {false, true}) {
            pop.FenetreOuverte = browser::Pop::kSeule;
            meanwhile([&](entry::Manuelle &window) {
                window.TitreRecette.SetText(u"Riz"_qs);
                window.Ingre(10).SetText(u"Sel"_qs);
                window.Saisie(1).setFocus();
                QTest::mouseClick(&window.Mini, Qt::LeftButton);
                QVERIFY(!window.isVisible());
                QTRY_VERIFY(pop.isVisible());
                pop.setWindowState(Qt::WindowNoState);
                QTRY_VERIFY(window.isVisible());
                QCOMPARE(window.TitreRecette.Text() + window.Ingre(10).Text(), u"RizSel"_qs);
                QCOMPARE(window.focusWidget(), &window.Saisie(1));
            });
            if (byMenu) {
                Q_EMIT m_program->main().CreationDemandee();
            } else {
                m_program->main().Outils(0).SetValue(true);
            }
            QVERIFY(isOver());
        }
    }
};

QTEST_MAIN(TestCreationManuelle)
#include "TestCreationManuelle.moc"
