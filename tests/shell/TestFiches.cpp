#include "LivreEssai.h"

#include "platform/desktop/SingleInstance.h"
#include "sheets/FicheAlbum.h"
#include "shell/Demarrage.h"
#include "shell/Fenetres.h"

#include <QApplication>
#include <QTimer>

#include <functional>

/// The recipe sheet as the toolbar opens it.
class TestFiches : public QObject {
    Q_OBJECT

private:
    LivreEssai m_book;
    shell::Fenetres m_windows;

    /// Presses the tool and runs the steps while the sheet is open.
    void open(const std::function<void()> &steps) {
        QTimer::singleShot(0, this, [this, steps] {
            steps();
            m_windows.Fiches().Quit.SetValue(true);
        });
        m_windows.Principale.Outils(2).SetValue(true);
    }

private Q_SLOTS:

    void initTestCase() {
        LivreEssai::execute({
            u"INSERT INTO Ingre VALUES (1, 1, 1, 1), (1, 2, 1, 1)"_qs,
            u"INSERT INTO Cocktails (Numero, Recette, Cout, difficulte) VALUES (1, 'Aïoli', 0, 0), (2, 'Crème', 0, 0)"_qs,
        });
        const platform::desktop::SingleInstance instance(
            u"SavorelEssai%1"_qs.arg(QCoreApplication::applicationPid()));
        shell::ChargerFrmmain(m_windows, instance);
    }

    void standsInThePlaceOfTheMainWindowAndShowsItsRecipe() {
        for (const auto &[row, title, lines] :
             {std::tuple(1, u"Aïoli"_qs, 3), std::tuple(2, u"Crème"_qs, 1)}) {
            clickRow(m_windows.Principale.Liste, row);
            open([&, &title = title, &lines = lines] {
                QVERIFY(m_windows.Fiches().isVisible() && !m_windows.Principale.isVisible());
                QCOMPARE(m_windows.Fiches().Recette.Caption(), title);
                QCOMPARE(m_windows.Fiches().Qte.Count(), lines);
            });
            QVERIFY(m_windows.Principale.isVisible() && !m_windows.Principale.Outils(2).Value());
        }
    }

    void comesBackAfterMinimising() {
        open([this] {
            auto &sheet = m_windows.Fiches();
            sheet.Mini.SetValue(true);
            QVERIFY(!sheet.isVisible() && !m_windows.Principale.isVisible());
            m_windows.Pop.setWindowState(Qt::WindowNoState);
            QTRY_VERIFY(sheet.isVisible());
            QVERIFY(!m_windows.Pop.isVisible());
        });
        QVERIFY(m_windows.Principale.isVisible());
    }
};

QTEST_MAIN(TestFiches)
#include "TestFiches.moc"
