#include "LivreDeFiches.h"
#include "Meanwhile.h"

#include "store/Textes.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPrinterInfo>

#include <memory>

using namespace browser;
using namespace platform::controls;
using sheets::FicheAlbum;

class TestFicheAlbum : public QObject {
    Q_OBJECT

private:
    /// Opens the sheet of the recipe that the main window shows.
    FicheAlbum &open() {
        m_open->sheet.ChargerFiche();
        m_open->sheet.show();
        return m_open->sheet;
    }

    QStringList line(int i) const {
        const FicheAlbum &sheet = m_open->sheet;
        return {sheet.Qte(i).Caption(), sheet.Mesure(i).Caption(), sheet.Ingre(i).Caption()};
    }

    /// Prints, naming a file in the save dialog; the empty name cancels. Gives the name that was proposed and the
    /// message that came afterwards.
    QStringList printTo(const QString &path) {
        QStringList seen;
        const auto naming = in<QFileDialog>([&](QFileDialog &dialog) {
            seen += QFileInfo(dialog.selectedFiles().value(0)).fileName();
            dialog.selectFile(path);
            static_cast<QDialog &>(dialog).done(path.isEmpty() ? QDialog::Rejected : QDialog::Accepted);
            return true;
        });
        const auto reading = in<QMessageBox>([&](QMessageBox &box) {
            seen += box.text();
            return box.close();
        });
        QTest::mouseClick(&m_open->sheet.Navi(3), Qt::LeftButton);
        return seen;
    }

    std::unique_ptr<FicheOuverte> m_open;

private Q_SLOTS:

    void init() { m_open = std::make_unique<FicheOuverte>(); }

    void cleanup() { m_open.reset(); }

    void rowsFollowTheRecipe() {
        FicheAlbum &sheet = open();
        QCOMPARE(sheet.Qte.Count(), 9);
        QTest::mouseClick(&sheet.Navi(1), Qt::LeftButton);
        QCOMPARE(sheet.Recette.Caption(), u"Beignets"_qs);
        QCOMPARE(sheet.Qte.Count(), 3);
        QCOMPARE(line(0), (QStringList{u"125"_qs, u"grammes"_qs, u"Ingrédient10"_qs}));
        QCOMPARE(line(2), QStringList(3, store::LignePointillee.toString()));
        QTest::mouseClick(&sheet.Navi(1), Qt::LeftButton);
        QCOMPARE(sheet.Qte.Count(), 1); // the empty row of a recipe without lines
        QCOMPARE(line(0), QStringList(3, QString()));
    }

    void buttonHeldDownGoesToTheEnd() {
        FicheAlbum &sheet = open();
        QVERIFY(!sheet.Navi(0).isEnabled());
        sheet.Navi(1).setAutoRepeatDelay(10);
        sheet.Navi(1).setFocus();
        QTest::mousePress(&sheet.Navi(1), Qt::LeftButton);
        QTRY_COMPARE(sheet.Recette.Caption(), u"Crème"_qs);
        QCOMPARE(sheet.focusWidget(), &sheet.Navi(0)); // not the printer
        QTest::mouseRelease(&sheet.Navi(1), Qt::LeftButton);
        QCOMPARE(m_open->window.LTDroit.Caption(), u"Crème"_qs); // the main window has come along
    }

    void lowerListIsWalkedInAGroup() {
        m_open->window.Bouton(2).SetValue(true); // by number of persons
        clickRow(m_open->window.LFilms, 2);
        FicheAlbum &sheet = open();
        QVERIFY(sheet.Navi(0).isEnabled());
        QVERIFY(!sheet.Navi(1).isEnabled());
        QTest::mouseClick(&sheet.Navi(0), Qt::LeftButton);
        QCOMPARE(sheet.Recette.Caption(), m_open->window.LFilms.Text(1));
        QCOMPARE(m_open->window.LFilms.SelectedIndex(), 1);
    }

    void printingWithoutAPrinterAsksForAFile() {
        qputenv("CUPS_SERVER", "localhost:9"); // where none answers
        QCOMPARE(QPrinterInfo::availablePrinterNames(), QStringList());
        open();
        const QString path = m_open->book.path(u"aïoli.pdf"_qs);
        QCOMPARE(printTo({}), QStringList(u"Aïoli.pdf"_qs));
        QVERIFY(!QFile::exists(path));
        printTo(path);
        QVERIFY(QFile::exists(path));
        const QString nowhere = path + u"/aïoli.pdf"_qs;
        QCOMPARE(printTo(nowhere).value(1), u"Impossible d'écrire le fichier "_qs + nowhere + u'.');
        QVERIFY(!m_open->sheet.Navi(3).Value());
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }
};

QTEST_MAIN(TestFicheAlbum)
#include "TestFicheAlbum.moc"
