#include "TestBackend.h"

#include "platform/scandialogs/ImageSource.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QTimer>

#include <functional>

using platform::scandialogs::ImageSource;

namespace {

/// Runs steps on the modal dialog of a name as soon as it is shown, before the call that shows it returns. What is
/// still open at their end is closed, so that a failed check does not leave the call waiting.
void onDialog(const QString &name, const std::function<void(QDialog &)> &steps) {
    QTimer::singleShot(0, qApp, [name, steps] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        if (dialog->objectName() == name) {
            steps(*dialog);
        }
        dialog->done(dialog->result());
        QCOMPARE(dialog->objectName(), name);
    });
}

void click(const QDialog &dialog, const QString &button) {
    dialog.findChild<QAbstractButton *>(button)->click();
}

QString state(const QDialog &dialog) {
    return dialog.findChild<QLabel *>(u"Etat"_qs)->text();
}

bool ready(const QDialog &dialog) {
    return dialog.findChild<QAbstractButton *>(u"Numeriser"_qs)->isEnabled();
}

void choose(ImageSource &source, int row) {
    onDialog(u"SelectionSource"_qs, [row](QDialog &dialog) {
        auto *list = dialog.findChild<QListWidget *>(u"Sources"_qs);
        QTRY_COMPARE(list->count(), 2);
        list->setCurrentRow(row);
        click(dialog, u"Choisir"_qs);
    });
    QCOMPARE(source.SelectImageSource(nullptr), 1);
}

} // namespace

class TestScanDialogs : public QObject {
    Q_OBJECT

private:
    TestBackend m_backend;

private Q_SLOTS:

    void init() {
        m_backend.configure();
        QApplication::clipboard()->clear();
    }

    void choiceIsRememberedUntilTheScannerGoes() {
        ImageSource source;
        choose(source, 1);
        onDialog(u"SelectionSource"_qs, [this](QDialog &dialog) {
            auto *list = dialog.findChild<QListWidget *>(u"Sources"_qs);
            QTRY_COMPARE(list->count(), 2);
            QCOMPARE(list->currentRow(), 1);
            m_backend.withoutDevices(); // the scanners are unplugged
            click(dialog, u"Actualiser"_qs);
            QTRY_VERIFY(state(dialog).startsWith(u"Aucun scanner trouvé"));
            click(dialog, u"Annuler"_qs);
        });
        QCOMPARE(source.SelectImageSource(nullptr), 0);
        QCOMPARE(ImageSource().AcquireToClipboard(nullptr), 0); // nothing chosen: nothing shown
    }

    void pictureOfTheDrawnAreaComesToTheClipboard() {
        ImageSource source;
        choose(source, 0);
        onDialog(u"Numerisation"_qs, [](QDialog &dialog) {
            QTRY_VERIFY(ready(dialog));
            dialog.findChild<QComboBox *>(u"Mode"_qs)->setCurrentText(u"Couleur"_qs);
            dialog.findChild<QComboBox *>(u"Resolution"_qs)->setCurrentText(u"100 ppp"_qs);
            auto *glass = dialog.findChild<QWidget *>(u"Zone"_qs);
            const QImage empty = glass->grab().toImage();
            click(dialog, u"Apercu"_qs);
            QTRY_VERIFY(ready(dialog));
            QVERIFY(glass->grab().toImage() != empty);
            // The quarter around the middle.
            const QPoint middle = glass->rect().center();
            const int quarter = qMin(glass->width(), glass->height()) / 4;
            QTest::mousePress(glass, Qt::LeftButton, {}, middle - QPoint(quarter, quarter));
            QTest::mouseRelease(glass, Qt::LeftButton, {}, middle + QPoint(quarter, quarter));
            click(dialog, u"Numeriser"_qs);
            QTRY_VERIFY(!dialog.isVisible());
        });
        QCOMPARE(source.AcquireToClipboard(nullptr), 1);
        const QImage picture = QApplication::clipboard()->image();
        // 100 of 200 millimetres at 100 dots per inch.
        QVERIFY(qAbs(picture.width() - 393) <= 8);
        QVERIFY(qAbs(picture.height() - 393) <= 8);
    }
};

QTEST_MAIN(TestScanDialogs)
#include "TestScanDialogs.moc"
