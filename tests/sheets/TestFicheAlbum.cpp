#include "LivreDeFiches.h"

#include "sheets/FicheAlbum.h"
#include "store/Vocabulaires.h"

#include <QFileDialog>
#include <QPrinterInfo>
#include <QTimer>

#include <memory>

using namespace browser;
using namespace platform::controls;
using sheets::FicheAlbum;

namespace {

const QString kDots = store::LignePointillee.toString();

/// Runs a function on the next modal window of a class.
template <class Dialog, class Function>
std::unique_ptr<QTimer> answering(Function answer) {
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [answer, &timer = *timer] {
        if (auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget())) {
            timer.stop();
            answer(*dialog);
        }
    });
    timer->start(10);
    return timer;
}

} // namespace

class TestFicheAlbum : public QObject {
    Q_OBJECT

private:
    /// Opens the sheet of the recipe that the main window shows.
    FicheAlbum &open() {
        m_sheet = std::make_unique<FicheAlbum>(*m_window);
        m_sheet->ChargerFiche();
        m_sheet->show();
        return *m_sheet;
    }

    QString line(int i) const {
        const QStringList captions{m_sheet->Qte(i).Caption(), m_sheet->Mesure(i).Caption(),
                                   m_sheet->Ingre(i).Caption()};
        return captions.join(u'|').replace(kDots, u"..."_qs);
    }

    /// Prints, naming a file in the save dialog; the empty name cancels. Gives the name that was proposed.
    QString printTo(const QString &path) {
        QString proposed;
        const auto user = answering<QFileDialog>([&](QFileDialog &dialog) {
            proposed = QFileInfo(dialog.selectedFiles().value(0)).fileName();
            if (path.isEmpty()) {
                dialog.reject();
                return;
            }
            dialog.selectFile(path);
            static_cast<QDialog &>(dialog).accept();
        });
        QTest::mouseClick(&m_sheet->Navi(3), Qt::LeftButton);
        return proposed;
    }

    std::unique_ptr<LivreDeFiches> m_book;
    std::unique_ptr<Frmmain> m_window;
    std::unique_ptr<FicheAlbum> m_sheet;

private Q_SLOTS:

    void init() {
        m_book = std::make_unique<LivreDeFiches>();
        m_window = std::make_unique<Frmmain>();
        openView(*m_window, 0);
    }

    void cleanup() {
        m_sheet.reset();
        m_window.reset();
    }

    void sheetRepeatsTheMainWindow() {
        const FicheAlbum &sheet = open();
        QCOMPARE(sheet.Recette.Caption(), u"Aïoli"_qs);
        QCOMPARE(sheet.Cout.Caption(), u"Peu Cher"_qs);
        QCOMPARE(sheet.Teneur.Caption(), u"Chinon"_qs);
        const QStringList expected{u"10 minutes"_qs, u"10 minutes"_qs, u"4 personnes"_qs,
                                   u"Entrée froide"_qs};
        for (int i = 0; i < expected.size(); ++i) {
            QCOMPARE(sheet.Data(i).Caption(), expected[i]);
        }
        QCOMPARE(sheet.DureeReal, u"25 minutes"_qs);
        QCOMPARE(sheet.Prepa.Text(), u"Piler l'ail, afin qu'il prenne."_qs);
        QCOMPARE(sheet.Deco.Text(), u"Servir très frais."_qs);
        QVERIFY(sheet.Photo.isVisible() && sheet.CadrePhoto.Caption().isEmpty());
        QCOMPARE(sheet.Photo.Width(), Twips(4695 - 400));
    }

    void rowsFollowTheRecipe() {
        FicheAlbum &sheet = open();
        QCOMPARE(sheet.Qte.Count(), 9);
        QCOMPARE(sheet.Prepa.Top(), Twips(5280 + 9 * 375 + 8 * 100 + 400 + 240));
        QTest::mouseClick(&sheet.Navi(1), Qt::LeftButton);
        QCOMPARE(sheet.Recette.Caption(), u"Beignets"_qs);
        QCOMPARE(sheet.Qte.Count(), 3);
        QCOMPARE(line(0), u"125|grammes|Ingrédient10"_qs);
        QCOMPARE(line(2), u"...|...|..."_qs);
        QVERIFY(sheet.Ingre(2).isVisible());
        QCOMPARE(sheet.Mesure(2).Top(), Twips(5280 + 2 * 475));
        QCOMPARE(sheet.Deco.Bottom() + Twips(400), sheet.Scroll(0).ScrollableHeight());
        QVERIFY(!sheet.Photo.isVisible());
        QCOMPARE(sheet.CadrePhoto.Caption(), u"Pas de photo"_qs);
        QTest::mouseClick(&sheet.Navi(1), Qt::LeftButton);
        QCOMPARE(sheet.Qte.Count(), 1); // the empty row of a recipe without lines
        QCOMPARE(line(0), u"||"_qs);
    }

    void buttonHeldDownGoesToTheEnd() {
        FicheAlbum &sheet = open();
        QVERIFY(!sheet.Navi(0).isEnabled());
        sheet.Navi(1).setAutoRepeatDelay(10);
        sheet.Navi(1).setFocus();
        QTest::mousePress(&sheet.Navi(1), Qt::LeftButton);
        QTRY_COMPARE(sheet.Recette.Caption(), u"Crème"_qs);
        QVERIFY(!sheet.Navi(1).isEnabled() && !sheet.Navi(1).Value() && sheet.Navi(0).isEnabled());
        QCOMPARE(sheet.focusWidget(), &sheet.Navi(0)); // not the printer
        QTest::mouseRelease(&sheet.Navi(1), Qt::LeftButton);
        // The main window has come along: a click on any row shows that row.
        QCOMPARE(m_window->LTDroit.Caption(), u"Crème"_qs);
        clickRow(m_window->Liste, 1);
        QCOMPARE(m_window->Quantite.Count(), 9);
    }

    void lowerListIsWalkedInAGroup() {
        m_window->Bouton(2).SetValue(true); // by number of persons
        clickRow(m_window->LFilms, 2);
        FicheAlbum &sheet = open();
        QVERIFY(sheet.Navi(0).isEnabled() && !sheet.Navi(1).isEnabled());
        QTest::mouseClick(&sheet.Navi(0), Qt::LeftButton);
        QCOMPARE(sheet.Recette.Caption(), m_window->LFilms.Text(1));
        QCOMPARE(m_window->LFilms.SelectedIndex(), 1);
    }

    void fieldsDoNotStayDown() {
        FicheAlbum &sheet = open();
        for (Ribbon *field : {&sheet.Cout, &sheet.Data(2), &sheet.Qte(0), &sheet.Ingre(4)}) {
            field->SetValue(true);
            QVERIFY(!field->Value());
        }
    }

    void longTitleIsSetSmaller() {
        LivreEssai::execute({u"UPDATE Cocktails SET Recette = '%1' WHERE Numero = 1"_qs.arg(
            u"Aïoli "_qs.repeated(20).trimmed())});
        m_window->Liste.Clear();
        TrierListe(*m_window, 0);
        const FicheAlbum &sheet = open();
        QVERIFY(sheet.Recette.fontMetrics().horizontalAdvance(sheet.Recette.Caption()) <
                sheet.Recette.width());
    }

    void printingWithoutAPrinterAsksForAFile() {
        if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
            QSKIP("a printer is installed: it would print");
        }
        open();
        const QString path = m_book->path(u"aïoli.pdf"_qs);
        QCOMPARE(printTo({}), u"Aïoli.pdf"_qs);
        QVERIFY(!QFile::exists(path));
        printTo(path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().startsWith("%PDF"));
        QVERIFY(!m_sheet->Navi(3).Value() && QApplication::overrideCursor() == nullptr);
    }
};

QTEST_MAIN(TestFicheAlbum)
#include "TestFicheAlbum.moc"
