#include "Files.h"
#include "Shown.h"

#include "platform/controls/ControlArray.h"
#include "platform/controls/DropList.h"
#include "platform/controls/Labels.h"
#include "platform/controls/ListView.h"
#include "platform/controls/Picture.h"
#include "platform/controls/RibbonButton.h"
#include "platform/images/LoadPicture.h"

#include <QApplication>
#include <QBuffer>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using namespace platform::controls;

namespace {

constexpr ControlRow kRow{"Controle", 0, 0, 3000, 450};

/// A red and blue JPEG whose EXIF block has nothing but an orientation (EXIF 2.32, tag 0x0112).
QByteArray turnedJpeg(char orientation) {
    QImage picture(32, 16, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    QPainter(&picture).fillRect(0, 0, 16, 16, Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "JPG", 100);
    QByteArray exif = QByteArray::fromHex("ffe10022457869660000" // APP1, "Exif"
                                          "49492a0008000000"     // TIFF, little endian
                                          "0100"
                                          "120103000100000000000000" // one entry: a short
                                          "00000000");
    exif[28] = orientation;
    return bytes.insert(2, exif);
}

} // namespace

class TestControls : public QObject {
    Q_OBJECT

private:
    /// The control in a window that has the keyboard.
    template <class Control>
    Control &shown() {
        m_window = std::make_unique<QWidget>();
        auto *control = new Control(m_window.get(), kRow);
        showActive(*m_window);
        control->setFocus();
        return *control;
    }

    List &shownList() {
        auto &list = shown<List>();
        list.resize(300, 200);
        list.SetColumn(u"Titre"_qs, Twips(3700));
        List::Loading rows(list);
        rows.Add(u"N 7"_qs, u"Aïoli"_qs, 1);
        rows.Add(u"N 3"_qs, u"Bisque"_qs, 1);
        rows.Add(u"N 9"_qs, u"Clafoutis"_qs, 2);
        return list;
    }

    std::unique_ptr<QWidget> m_window;

private Q_SLOTS:

    void ribbonRaisesItsEventOnBothChanges() {
        auto &button = shown<Ribbon>();
        int pressed = 0;
        int raised = 0;
        connect(&button, &Ribbon::toggled, &button, [&] {
            ++raised;
            if (button.Value()) {
                ++pressed;
                button.SetValue(false);
            }
        });
        button.SetValue(true);
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::keyClick(&button, Qt::Key_Return);
        QCOMPARE(pressed, 3);
        QCOMPARE(raised, 6);

        button.SetCaption(u"Sel & poivre"_qs);
        QCOMPARE(button.Caption(), u"Sel & poivre"_qs);
        QVERIFY2(button.shortcut().isEmpty(), "an ampersand is no shortcut");
    }

    void dropListRaisesOnlyForTheUser() {
        auto &list = shown<DropList>();
        QSignalSpy clicks(&list, &DropList::Click);
        list.AddItems({u"beurre"_qs, u"farine"_qs, u"sel"_qs});
        list.SetText(u"poivre"_qs);
        list.SetListIndex(1);
        QCOMPARE(list.Text(), u"farine"_qs);
        QCOMPARE(clicks.count(), 0);

        QTest::keyClick(&list, Qt::Key_Down); // opens the list
        QTRY_VERIFY(list.view()->isVisible());
        QTest::keyClick(list.view(), Qt::Key_Return);
        QCOMPARE(clicks.count(), 1); // also for the row that was chosen already

        QSignalSpy enter(&list, &DropList::EnterPressed);
        list.SetText(u"sel"_qs); // a row, but not chosen
        QTest::keyClick(list.lineEdit(), Qt::Key_Return);
        list.clearFocus();
        QCOMPARE(list.Count(), 3);
        QCOMPARE(enter.count(), 1);
        QCOMPARE(clicks.count(), 1);
    }

    void listRaisesWithTheRowSelected() {
        List &list = shownList();
        QStringList raised;
        const auto note = [&](const QString &event) {
            return [event, &list, &raised] { raised += event + QString::number(list.SelectedIndex()); };
        };
        connect(&list, &List::ItemClicked, &list, note(u"clic "_qs));
        connect(&list, &List::ArrowReleased, &list, note(u"flèche "_qs));
        connect(&list, &List::RightClicked, &list, note(u"droit "_qs));
        const auto click = [&list](int index, Qt::MouseButton button) {
            const QRect row = list.visualRect(list.model()->index(index - 1, 0));
            QTest::mouseClick(list.viewport(), button, {}, row.center());
        };
        list.Select(3); // by code: nothing
        click(2, Qt::LeftButton);
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Shift);
        click(1, Qt::RightButton); // on another row shows it first
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(5, list.viewport()->height() - 2));
        QCOMPARE(raised, QStringList({u"clic 2"_qs, u"flèche 3"_qs, u"clic 1"_qs, u"droit 1"_qs}));
    }

    void listKeepsItsRowsApart() {
        List &list = shownList();
        QCOMPARE(list.IndexOfKey(u"N 9"_qs), 3);
        QCOMPARE(list.IndexOfKey(u"N 1"_qs), 0);
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, list.Text(0));
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, list.Select(4));
        list.Remove(1);
        QCOMPARE(list.IndexOfKey(u"N 9"_qs), 2);
        {
            List::Loading rows(list);
            rows.Add(u"N 1"_qs, u"Un"_qs, 1);
            QVERIFY_THROWS_EXCEPTION(DuplicateKeyError, rows.Add(u"N 1"_qs, u"Encore"_qs, 1));
            rows.Add(u"N 2"_qs, u"Deux"_qs, 1);
        }
        QCOMPARE(list.Count(), 2);
        QCOMPARE(list.Text(2), u"Deux"_qs);
    }

    void pictureIsTurnedAsItsOrientationSays() {
        const QTemporaryDir folder;
        const QImage picture =
            platform::images::LoadPicture(writeFile(folder.filePath(u"image.txt"_qs), turnedJpeg(6)));
        QCOMPARE(picture.size(), QSize(16, 32));
        QVERIFY(picture.pixelColor(8, 4).red() > 200);
        QVERIFY(picture.pixelColor(8, 28).blue() > 200);
    }
};

QTEST_MAIN(TestControls)
#include "TestControls.moc"
