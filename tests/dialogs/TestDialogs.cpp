#include "Files.h"
#include "Meanwhile.h"

#include "platform/dialogs/FileDialog.h"
#include "platform/dialogs/InputBox.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

using namespace platform::dialogs;

namespace {

/// Runs a function on the next modal dialog of a class, and closes it if that left it open, so that a failed check
/// does not block the test.
template <class Dialog, class Function>
std::unique_ptr<QTimer> answering(Function answer) {
    return in<Dialog>([answer](Dialog &dialog) {
        if (!dialog.isActiveWindow()) {
            return false;
        }
        answer(dialog);
        if (dialog.isVisible()) {
            dialog.reject();
        }
        return true;
    });
}

void holdKey(QWidget *widget, Qt::Key key, const QString &text = {}) {
    QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, text, true);
    QApplication::sendEvent(widget, &repeat);
}

QLineEdit *nameField(QFileDialog &dialog) {
    return dialog.findChild<QLineEdit *>(u"fileNameEdit"_qs);
}

const QString kFilter = u"Images (*.bmp,*.jpg)|*.bmp;*.jpg|Tout|*"_qs;

} // namespace

class TestDialogs : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// The path that the save dialog gives for a typed name, and whether it asked before, being answered so.
    std::pair<QString, bool> save(const QString &name,
                                  QMessageBox::StandardButton answer = QMessageBox::Yes) {
        bool asked = false;
        const auto user = answering<QFileDialog>([&](QFileDialog &dialog) {
            const auto replacing = answering<QMessageBox>([&](QMessageBox &question) {
                asked = true;
                question.button(answer)->click();
            });
            nameField(dialog)->setText(name);
            QTest::keyClick(nameField(dialog), Qt::Key_Return);
        });
        const QString chosen = ShowSave(nullptr, u"Enregistrer"_qs, kFilter, {m_folder.path()}, u"bmp"_qs);
        return {chosen, asked};
    }

private Q_SLOTS:

    void initTestCase() {
        // The file dialog remembers its places in the user's settings.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, path(u"reglages"_qs));
        for (const QString &name : {u"vieux.bmp"_qs, u"du 12.03.26.bmp"_qs}) {
            writeFile(path(name), {});
        }
    }

    void heldKeyGoesIntoTheInputOnly() {
        const QString text = u"  L'été \"d'or\" & <b>🍓</b> %1 "_qs + QString(50'000, u'x');
        const auto user = answering<QInputDialog>([&](QInputDialog &box) {
            QCOMPARE(box.findChild<QLabel *>()->textFormat(), Qt::PlainText);
            auto *field = box.findChild<QLineEdit *>();
            QVERIFY(field->hasFocus());
            field->insert(text);
            holdKey(field, Qt::Key_Return);
            holdKey(field, Qt::Key_Escape);
            holdKey(field, Qt::Key_A, u"a"_qs);
            QVERIFY(box.isVisible());
            QTest::keyClick(field, Qt::Key_Return);
        });
        QCOMPARE(InputBox(nullptr, u"Titre"_qs, u"<b>Saisir</b>"_qs), std::optional<QString>(text + u'a'));
    }

    void emptyInputIsNotCancelling() {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            const auto user =
                answering<QInputDialog>([key](QInputDialog &box) { QTest::keyClick(&box, key); });
            QCOMPARE(InputBox(nullptr, u"Titre"_qs, u"Texte"_qs).has_value(), key == Qt::Key_Return);
        }
    }

    void aFolderThatIsGoneIsNoName() {
        const auto user = answering<QFileDialog>([this](QFileDialog &dialog) {
            QCOMPARE(nameField(dialog)->text(), QString());
            QCOMPARE(dialog.directory().path(), m_folder.path());
            dialog.reject();
        });
        QCOMPARE(ShowSave(nullptr, u"Enregistrer"_qs, kFilter, {path(u"absent/Documents"_qs)}, u"bmp"_qs),
                 QString());
    }

    void savingCompletesTheNameBeforeItAsks() {
        QCOMPARE(save(u"neuf"_qs), std::pair(path(u"neuf.bmp"_qs), false));
        QCOMPARE(save(u"neuf.ico"_qs), std::pair(path(u"neuf.ico"_qs), false));
        QCOMPARE(save(u"vieux"_qs), std::pair(path(u"vieux.bmp"_qs), true));
        QCOMPARE(save(u"du 12.03.26"_qs), std::pair(path(u"du 12.03.26.bmp"_qs), true));
        QCOMPARE(save(u"vieux"_qs, QMessageBox::No), std::pair(QString(), true));
    }
};

QTEST_MAIN(TestDialogs)
#include "TestDialogs.moc"
