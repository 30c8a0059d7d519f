#include "LivreDeFiches.h"
#include "Meanwhile.h"

#include "store/Textes.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>

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

    /// Prints, typing a name in the save dialog. Gives the name that was proposed and the message that came afterwards.
    QStringList printTo(const QString &path) {
        QStringList seen;
        const auto naming = in<QFileDialog>([&](QFileDialog &dialog) {
            seen += QFileInfo(dialog.selectedFiles().value(0)).fileName();
            dialog.findChild<QLineEdit *>(u"fileNameEdit"_qs)->setText(path);
            static_cast<QDialog &>(dialog).accept();
            return true;
        });
        const auto reading = in<QMessageBox>([&](QMessageBox &box) {
            seen += box.text();
            return box.close();
        });
        QTest::mouseClick(&m_open->sheet.Navi(3), Qt::LeftButton);
        return seen;
    }

    /// Opens the printer's setup, and within it the properties, and leaves both with OK.
    template <class Setup, class Properties>
    void configure(Setup setup, Properties properties) {
        const auto leave = [](QDialog &dialog) {
            dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
            return true;
        };
        const auto inSetup = in<QPrintDialog>([&](QPrintDialog &dialog) {
            setup(dialog);
            const auto inProperties = in<QDialog>([&](QDialog &inner) {
                if (&inner == &dialog) {
                    return false;
                }
                properties(inner);
                return leave(inner);
            });
            dialog.findChild<QAbstractButton *>(u"properties"_qs)->click();
            return leave(dialog);
        });
        QTest::mouseClick(&m_open->sheet.Navi(2), Qt::LeftButton);
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

    void eachPrintToAFileAsksWithTheRecipesName() {
        FicheAlbum &sheet = open();
        configure(
            [](QPrintDialog &dialog) {
                auto *targets = dialog.findChild<QComboBox *>(u"printers"_qs);
                targets->setCurrentIndex(targets->count() - 1);
                for (const auto &name : {u"filename"_qs, u"copies"_qs, u"duplex"_qs, u"colorMode"_qs}) {
                    QVERIFY2(!dialog.findChild<QWidget *>(name)->isVisible(), qPrintable(name));
                }
            },
            [](QDialog &properties) {
                properties.findChild<QComboBox *>(u"pageSizeCombo"_qs)->setCurrentText(u"A5"_qs);
                QVERIFY(!properties.findChild<QWidget *>(u"landscape"_qs)->isEnabled());
                const auto labels = properties.findChildren<QLabel *>();
                QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
                    return label->isVisible() && label->text() == u"Les pages s'impriment toujours debout.";
                }));
            });
        QCOMPARE(printTo(m_open->book.path(u"menu"_qs)), QStringList(u"Aïoli.pdf"_qs));
        const QString path = m_open->book.path(u"menu.pdf"_qs);
        QCOMPARE(sheet.Avis.toolTip(), QString(u"Imprimé dans "_qs + path));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("/MediaBox [0 0 420."));
        QTest::mouseClick(&sheet.Navi(1), Qt::LeftButton);
        QCOMPARE(sheet.Avis.Caption(), QString());
        QCOMPARE(printTo(u"/proc/b.pdf"_qs),
                 QStringList({u"Beignets.pdf"_qs, u"Impossible d'écrire le fichier /proc/b.pdf."_qs}));
        QCOMPARE(sheet.Avis.Caption(), QString());
        QVERIFY(!sheet.Navi(3).Value());
        QCOMPARE(QApplication::overrideCursor(), nullptr);
    }
};

QTEST_MAIN(TestFicheAlbum)
#include "TestFicheAlbum.moc"
