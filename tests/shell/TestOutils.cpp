#include "EssaiCoque.h"

#include "entry/Manuelle.h"
#include "pictures/atelier/Acquisition.h"
#include "sheets/FicheAlbum.h"

#include <functional>

using browser::Outil;

/// How the windows that take the place of the main window are opened, minimised, brought back and closed.
class TestOutils : public QObject {
    Q_OBJECT

private:
    std::function<void()> tool(int number) const {
        return [this, number] { m_program->main().Outils(number).SetValue(true); };
    }

    /// Opens a window, does something with it and closes it.
    template <class Window, class Act>
    void use(const std::function<void()> &open, Outil outil, Act act) {
        const browser::Frmmain &frm = m_program->main();
        bool seen = false;
        QTimer::singleShot(0, this, [&] {
            auto &opened = m_program->windows->FenetreDe<Window>(outil);
            seen = opened.isVisible() && !frm.isVisible();
            act(opened);
            opened.Quit.SetValue(true);
        });
        open();
        QVERIFY(seen);
        QVERIFY(frm.isVisible());
        QVERIFY(!frm.Outils(0).Value());
        QVERIFY(!frm.Outils(2).Value());
        QVERIFY(!frm.Outils(3).Value());
    }

    /// Minimises a window, and brings it back as the task bar does.
    void minimise(platform::controls::ToolWindow &window) const {
        browser::Pop &pop = m_program->windows->Pop;
        QTest::mouseClick(&window.Mini, Qt::LeftButton);
        QVERIFY(!window.isVisible());
        QVERIFY(!m_program->main().isVisible());
        QTRY_VERIFY(pop.isVisible());
        pop.setWindowState(Qt::WindowNoState);
        QTRY_VERIFY(window.isVisible());
        QVERIFY(!pop.isVisible());
    }

    std::unique_ptr<EssaiCoque> m_program;

private Q_SLOTS:

    void init() {
        m_program = std::make_unique<EssaiCoque>();
        LivreEssai::execute({
            u"INSERT INTO Ingre VALUES (1, 1, 1, 1), (1, 2, 1, 1)"_qs,
            u"INSERT INTO Cocktails (Numero, Recette, Cout, difficulte) VALUES (2, 'Aïoli', 0, 0)"_qs,
        });
        platform::settings::SaveSetting(u"Savorel"_qs, u"Patch"_qs, u"Mode"_qs, u"1"_qs);
        m_program->start();
    }

    void cleanup() { m_program.reset(); }

    void creationAndWorkshopAreMadeAnewEachTime() {
        for (int turn = 0; turn < 2; ++turn) {
            LivreEssai::execute({u"INSERT INTO Quantite VALUES (%1, 'q')"_qs.arg(turn + 1)});
            use<entry::Manuelle>(tool(0), Outil::CreationManuelle, [&](entry::Manuelle &window) {
                QCOMPARE(window.Mode(), 0); // and not the one of the main window
                QCOMPARE(window.LQte.Count(), turn + 1);
                QCOMPARE(window.TitreRecette.Text(), QString());
                window.TitreRecette.SetText(u"Riz"_qs);
            });
            use<pictures::atelier::Acquisition>(
                tool(3), Outil::Acquisition, [](pictures::atelier::Acquisition &window) {
                    QVERIFY(window.PhotoScan.Picture().isNull());
                    window.PhotoScan.SetPicture(QImage(4, 4, QImage::Format_RGB32));
                    window.AttendreUneImage();
                });
            QVERIFY(m_program->windows->Faites().empty());
        }
    }

    void eachToolHasItsDrawing() {
        browser::Frmmain &frm = m_program->main();
        for (int index = 0; index < frm.Outils.Count(); ++index) {
            QVERIFY2(!frm.Outils(index).Picture().isNull(), qPrintable(frm.LBtn(index).Caption()));
        }
        QVERIFY(frm.LBtn(frm.Outils.Count()).isHidden());
    }

    void theSheetShowsTheRecipeOfTheList() {
        for (const auto &[row, title, lines] :
             {std::tuple(1, u"Aïoli"_qs, 1), std::tuple(2, u"Tarte"_qs, 3)}) {
            clickRow(m_program->main().Liste, row);
            use<sheets::FicheAlbum>(tool(2), Outil::Fiches,
                                    [&, &title = title, &lines = lines](sheets::FicheAlbum &window) {
                                        QCOMPARE(window.Recette.Caption(), title);
                                        QCOMPARE(window.Qte.Count(), lines);
                                    });
        }
    }

    void aMinimisedWindowComesBackAsItWas() {
        const std::function<void()> byMenu = [this] { Q_EMIT m_program->main().CreationDemandee(); };
        for (const auto &open : {tool(0), byMenu}) {
            m_program->windows->Pop.FenetreOuverte = browser::Pop::kSeule;
            use<entry::Manuelle>(open, Outil::CreationManuelle, [this](entry::Manuelle &window) {
                window.TitreRecette.SetText(u"Riz"_qs);
                window.Ingre(10).SetText(u"Sel"_qs);
                window.Saisie(1).setFocus();
                minimise(window);
                QCOMPARE(window.TitreRecette.Text(), u"Riz"_qs);
                QCOMPARE(window.Ingre(10).Text(), u"Sel"_qs);
                QCOMPARE(window.focusWidget(), &window.Saisie(1));
            });
        }
        use<sheets::FicheAlbum>(tool(2), Outil::Fiches,
                                [this](sheets::FicheAlbum &window) { minimise(window); });
        use<pictures::atelier::Acquisition>(
            tool(3), Outil::Acquisition, [this](pictures::atelier::Acquisition &window) {
                window.PhotoScan.SetPicture(QImage(4, 4, QImage::Format_RGB32));
                minimise(window);
                QCOMPARE(window.PhotoScan.Picture().width(), 4);
            });
    }
};

QTEST_MAIN(TestOutils)
#include "TestOutils.moc"
