#include "TestBackend.h"

#include "platform/scandialogs/ImageSource.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QTimer>

#include <functional>

using platform::scandialogs::ImageSource;

class TestScanDialogs : public QObject {
    Q_OBJECT

private:
    /// Runs steps on the list of the scanners as soon as it is shown, before the call that shows it returns. What is
    /// still open at their end is closed, so that a failed check does not leave the call waiting.
    static int select(ImageSource &source,
                      const std::function<void(QDialog &dialog, QListWidget &list)> &steps) {
        QTimer::singleShot(0, qApp, [steps] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            auto *list = dialog->findChild<QListWidget *>(u"Sources"_qs);
            if (QTest::qWaitFor([list] { return list->count() == 2; })) {
                steps(*dialog, *list);
            }
            dialog->done(dialog->result());
        });
        return source.SelectImageSource(nullptr);
    }

    static void click(const QDialog &dialog, const QString &button) {
        dialog.findChild<QAbstractButton *>(button)->click();
    }

    TestBackend m_backend;

private Q_SLOTS:

    void choiceIsRememberedUntilTheScannerGoes() {
        m_backend.configure();
        ImageSource source;
        const int chosen = select(source, [](QDialog &dialog, QListWidget &list) {
            list.setCurrentRow(1);
            click(dialog, u"Choisir"_qs);
        });
        QCOMPARE(chosen, 1);
        const int cancelled = select(source, [this](QDialog &dialog, QListWidget &list) {
            QCOMPARE(list.currentRow(), 1);
            m_backend.withoutDevices(); // the scanners are unplugged
            click(dialog, u"Actualiser"_qs);
            const auto *state = dialog.findChild<QLabel *>(u"Etat"_qs);
            QTRY_VERIFY(state->text().startsWith(u"Aucun scanner trouvé"));
            click(dialog, u"Annuler"_qs);
        });
        QCOMPARE(cancelled, 0);
        QCOMPARE(ImageSource().AcquireToClipboard(nullptr), 0); // nothing chosen: nothing shown
    }
};

QTEST_MAIN(TestScanDialogs)
#include "TestScanDialogs.moc"
