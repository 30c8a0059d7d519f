#include "Files.h"
#include "Meanwhile.h"
#include "Reponse.h"
#include "SmallFilesOnly.h"
#include "TestBackend.h"

#include "pictures/atelier/Acquisition.h"
#include "pictures/atelier/Scan.h"
#include "platform/scandialogs/ImageSource.h"
#include "store/Programme.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <optional>

using namespace pictures::atelier;

namespace {

constexpr int kLeft = 0;
constexpr int kRight = 1;
constexpr int kOpen = 2;
constexpr int kSave = 3;
constexpr int kMirror = 4;
constexpr int kScan = 6;

/// The left half red, the right one blue.
QImage twoColours(int width, int height) {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QPainter(&picture).fillRect(width / 2, 0, width, height, Qt::blue);
    return picture;
}

void click(const QDialog &dialog, const QString &button) {
    dialog.findChild<QAbstractButton *>(button)->click();
}

/// Chooses the first scanner and scans with what it is set to.
bool scan(QDialog &dialog) {
    if (dialog.objectName() == u"SelectionSource"_qs) {
        if (dialog.findChild<QListWidget *>(u"Sources"_qs)->count() > 0) {
            click(dialog, u"Choisir"_qs);
        }
    } else {
        click(dialog, u"Numeriser"_qs); // disabled until the device is ready, and while it scans
    }
    return false;
}

} // namespace

class TestAcquisition : public QObject {
    Q_OBJECT

private:
    TestBackend m_backend;
    QTemporaryDir m_folder;
    std::optional<platform::scandialogs::ImageSource> m_scanner;
    std::optional<Acquisition> m_window;
    QString m_proposed, m_filters; // of the last file dialog

    QString path(const QString &name) const { return m_folder.filePath(name); }

    void press(int button) { m_window->Btn_ScanS(button).SetValue(true); }

    /// Presses a button and gives its dialog a file, or cancels.
    void press(int button, const QString &file) {
        const auto user = in<QFileDialog>([this, file](QFileDialog &files) {
            m_proposed = files.selectedFiles().value(0);
            m_filters = files.nameFilters().join(u'|');
            files.setOption(QFileDialog::DontConfirmOverwrite);
            chooseIn(files, file);
            return true;
        });
        press(button);
    }

    QImage shown() const { return m_window->PhotoScan.Picture(); }

    /// The buttons that are enabled, by their indices.
    QString enabled() {
        QString found;
        for (int index = 0; index < m_window->Btn_ScanS.Count(); ++index) {
            found += m_window->Btn_ScanS(index).isEnabled() ? QString::number(index) : QString();
        }
        return found;
    }

private Q_SLOTS:

    void initTestCase() {
        QVERIFY(QDir(m_folder.path()).mkdir(u"image"_qs));
        store::DefinirDossierProgramme(m_folder.path());
        for (const QString &name : {u"tarte.jpg"_qs, u"TARTE.JPG"_qs, u"tarte.png"_qs}) {
            QVERIFY(twoColours(40, 20).save(path(name)));
        }
        writeFile(path(u"texte.jpg"_qs), "Tarte aux pommes");
    }

    void init() {
        QApplication::clipboard()->clear();
        QFile::remove(path(u"temp.bmp"_qs));
        m_scanner.emplace();
        m_window.emplace(*m_scanner);
        m_window->move(1, 1); // the wait below is long for a window at the origin
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(&*m_window));
    }

    void cleanup() {
        m_window.reset();
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    void buttonsFollowThePicture() {
        press(kLeft); // without a picture nothing happens
        press(kMirror);
        QVERIFY(!QFile::exists(path(u"temp.bmp"_qs)));
        press(kOpen, path(u"tarte.png"_qs));
        press(kSave, {});
        QCOMPARE(enabled(), u"0123456"_qs);
        press(kSave, path(u"gardee.bmp"_qs));
        QCOMPARE(enabled(), u"26"_qs);
        press(kOpen, {});
        QCOMPARE(enabled(), u"26"_qs);
        press(kOpen, path(u"tarte.png"_qs));
        QCOMPARE(enabled(), u"0123456"_qs);
        press(kOpen, path(u"texte.jpg"_qs));
        QCOMPARE(m_proposed, path(u"tarte.png"_qs));
        QVERIFY2(m_filters.endsWith(u"(*.bmp *.jpg *.jpeg *.png *.gif *.wmf *.ico)"_qs),
                 qPrintable(m_filters));
        // What is no picture leaves the one before.
        QCOMPARE(shown().size(), QSize(40, 20));
    }

    void turnsAndMirrors() {
        press(kOpen, path(u"tarte.png"_qs));
        press(kLeft);
        QCOMPARE(shown().size(), QSize(20, 40));
        QCOMPARE(shown().pixelColor(10, 10), QColor(Qt::blue));
        QVERIFY(QFile::exists(path(u"temp.bmp"_qs)));
        press(kMirror);
        press(kMirror + 1);
        QCOMPARE(shown().pixelColor(10, 10), QColor(Qt::red));
        QVERIFY(!QFile::exists(path(u"temp.bmp"_qs)));
        press(kRight);
        QCOMPARE(shown().pixelColor(10, 10), QColor(Qt::blue));
    }

    /// A question where the picture is in no file; a turn that goes on stops.
    void leaving() {
        press(kOpen, path(u"tarte.png"_qs));
        press(kMirror);
        {
            const Reponse no(u"Non"_qs);
            m_window->Quit.click();
            QVERIFY2(no.question().startsWith(u"Cette image n'est pas enregistrée."_qs),
                     qPrintable(no.question()));
        }
        QVERIFY(m_window->isVisible());
        press(kSave, path(u"tournee.bmp"_qs));
        m_window->PhotoScan.SetPicture(twoColours(600, 400));
        QTimer::singleShot(0, &m_window->Quit, [this] { m_window->Quit.click(); });
        press(kLeft);
        QVERIFY(!m_window->isVisible());
        QCOMPARE(shown().size(), QSize(600, 400));
    }

    void pictureTakenAwayWhileItTurns() {
        m_window->PhotoScan.SetPicture(twoColours(60, 40));
        QTimer::singleShot(0, &*m_window, [this] { OuvrirFichier(*m_window, {}); });
        press(kLeft);
        QVERIFY(shown().isNull());
        QVERIFY(!QFile::exists(path(u"temp.bmp"_qs)));
    }

    void saveDialogProposesNoJpeg() {
        for (const auto &[opened, proposed] :
             {std::pair(u"tarte.jpg"_qs, u"tarte.bmp"_qs), std::pair(u"TARTE.JPG"_qs, u"TARTE.JPG"_qs),
              std::pair(u"tarte.png"_qs, u"tarte.png"_qs)}) {
            press(kOpen, path(opened));
            press(kSave, {});
            QCOMPARE(m_proposed, path(proposed));
            QCOMPARE(m_filters.endsWith(u"(*.bmp)"), opened != proposed);
        }
    }

    void fullSizeIsSavedAsABitmap() {
        const QImage large = twoColours(3000, 1000);
        QVERIFY(large.save(path(u"grande.png"_qs)));
        press(kOpen, path(u"grande.png"_qs));
        press(kSave, path(u"grande.ico"_qs));
        QCOMPARE(QImage(path(u"grande.ico"_qs), "BMP").convertToFormat(QImage::Format_RGB32), large);
        // A full disk leaves the file that was there, the picture, and the buttons.
        press(kOpen, path(u"grande.png"_qs));
        m_window->PhotoScan.SetPicture(twoColours(300, 200));
        QString said;
        {
            const SmallFilesOnly full;
            const auto user = in<QMessageBox>([&said](QMessageBox &box) {
                said = box.text();
                box.accept();
                return true;
            });
            press(kSave, path(u"grande.ico"_qs));
        }
        QVERIFY2(said.startsWith(u"Impossible d'écrire "_qs + path(u"grande.ico"_qs)), qPrintable(said));
        QCOMPARE(enabled(), u"0123456"_qs);
        QCOMPARE(shown().size(), QSize(300, 200));
        QCOMPARE(QImage(path(u"grande.ico"_qs), "BMP").size(), large.size());
    }

    void scannedAndPastedPictures() {
        auto user = in<QDialog>(scan);
        press(kScan);
        user.reset();
        QVERIFY(!shown().isNull());
        QCOMPARE(shown().size(), QApplication::clipboard()->image().size());

        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&*m_window));
        for (const bool picture : {true, false}) { // a text leaves the picture
            QApplication::clipboard()->setText(u"Tarte"_qs);
            if (picture) {
                QApplication::clipboard()->setImage(twoColours(30, 30));
            }
            QTest::keyClick(&*m_window, Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(shown().size(), QSize(30, 30));
        }
    }

    void nothingChosenIsAnError() {
        m_backend.withoutDevices();
        press(kOpen, path(u"tarte.png"_qs));
        QString message;
        const auto user = in<QDialog>([&message](QDialog &dialog) {
            if (const auto *box = qobject_cast<QMessageBox *>(&dialog)) {
                message = box->text();
            }
            dialog.reject();
            return false;
        });
        press(kScan);
        QCOMPARE(message, u"                       Une erreur est survenue ...\n\nVeuillez vérifier votre "
                          "Scanner et recommencer l'opération plus tard !"_qs);
        QCOMPARE(shown().size(), QSize(40, 20));
    }
};

QTEST_MAIN(TestAcquisition)
#include "TestAcquisition.moc"
