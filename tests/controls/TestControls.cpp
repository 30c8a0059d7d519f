#include "Files.h"
#include "Shown.h"

#include "platform/controls/ControlArray.h"
#include "platform/controls/DropList.h"
#include "platform/controls/Labels.h"
#include "platform/controls/ListView.h"
#include "platform/controls/Picture.h"
#include "platform/controls/RibbonButton.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/WhenPressed.h"
#include "platform/images/LoadPicture.h"

#include <QAccessible>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>
#include <stdexcept>

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

    void ribbonIsReleasedHoweverItsActionEnds() {
        auto &button = shown<Ribbon>();
        whenPressed(button, [] { throw std::runtime_error("refusé"); });
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, button.SetValue(true));
        QVERIFY(!button.Value());

        auto &kept = shown<Ribbon>();
        whenPressed(
            kept, [] {}, Release::ByAction);
        kept.SetValue(true);
        QVERIFY(kept.Value());
    }

    void ribbonRaisesItsEventOnBothChanges() {
        auto &button = shown<Ribbon>();
        int pressed = 0;
        whenPressed(button, [&] { ++pressed; });
        const QSignalSpy raised(&button, &Ribbon::toggled);
        button.SetValue(true);
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::keyClick(&button, Qt::Key_Return);
        QCOMPARE(pressed, 3);
        QCOMPARE(raised.count(), 6);

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

        QTest::keyClick(&list, Qt::Key_PageDown); // opens the list and moves in it
        QTRY_VERIFY(list.view()->isVisible());
        for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_Down}) {
            QTest::keyClick(list.view(), key);
        }
        QCOMPARE(clicks.count(), 0);
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

    void anOpenedListIsAsWideAsItsLongestEntry() {
        auto &list = shown<DropList>();
        m_window->resize(400, 300);
        list.AddItems({u"une personne"_qs, QString(855, u'.')});
        const auto width = [&list] {
            list.showPopup();
            const QWidget &opened = *list.view()->window();
            const int overEdge = opened.geometry().right() - list.mapToGlobal(QPoint(400, 0)).x();
            list.hidePopup();
            return overEdge >= 0 ? -1 : opened.width();
        };
        QCOMPARE(width(), list.width());
        list.AddItems({u"pour une tablée de douze à quinze convives"_qs});
        QVERIFY(width() > list.width());
        QVERIFY(width() < 400);
        list.AddItems({QString(300, u'm')});
        QCOMPARE(width(), 400);
        list.SetLeft(Twips(1500));
        QCOMPARE(width(), 400);
    }

    void whatIsBroughtIntoALineStaysOnIt() {
        QApplication::clipboard()->setText(u"1 heure\r\n20\n"_qs);
        auto &box = shown<TextBox>();
        box.SetText(u"a\nb"_qs); // set by the programme: it stays
        QTest::keyClick(&box, Qt::Key_Home);
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(box.Text(), u"1 heure 20 a\nb"_qs);
        QCOMPARE(box.cursorPosition(), 11);
        auto &list = shown<DropList>();
        QTest::keyClick(&list, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(list.Text(), u"1 heure 20"_qs);

        auto *file = new QMimeData;
        file->setUrls({QUrl::fromLocalFile(u"/tarte.jpg"_qs)});
        QDragEnterEvent enters(QPoint(5, 5), Qt::CopyAction, file, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(list.lineEdit(), &enters);
        QVERIFY(!enters.isAccepted());
        QApplication::clipboard()->setMimeData(file);
        QTest::keyClick(&list, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(list.Text(), u"1 heure 20"_qs);
    }

    void whatIsCutIsWholeInItsToolTip() {
        const QString text = u"Un titre bien trop long pour tenir sur une ligne"_qs;
        auto &value = shown<Ribbon>();
        value.SetLook(Look::Value);
        for (const auto &[caption, ofLabel, ofValue] : {std::tuple(text, text, text),
                                                        {u"Court"_qs, QString(), u"Court"_qs},
                                                        {QString(855, u'.'), QString(), QString()}}) {
            Label fresh(m_window.get(), kRow);
            fresh.SetCaption(caption);
            value.SetCaption(caption);
            QCOMPARE(fresh.toolTip(), ofLabel);
            QCOMPARE(value.toolTip(), ofValue);
        }
    }

    void screenReadersHearWhatControlsAre() {
        auto &button = shown<Ribbon>();
        QAccessibleInterface &told = *QAccessible::queryAccessibleInterface(&button);
        QCOMPARE(told.role(), QAccessible::Button);
        QVERIFY(!told.state().checkable);
        button.SetLook(Look::Sort);
        QCOMPARE(told.role(), QAccessible::RadioButton);
        button.SetForeColor(Qt::black);
        QVERIFY(told.state().checked);
        QSignalSpy presses(&button, &Ribbon::toggled);
        told.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(presses.count(), 1);
    }

    void aLabelEditIsDroppedByAnyOtherAct() {
        QApplication::setDoubleClickInterval(60);
        List &list = shownList();
        list.SetLabelEdit(List::LabelEditMode::Automatic);
        list.Select(2);
        QWidget other(m_window.get());
        other.setGeometry(0, 300, 50, 50);
        other.show();
        const auto edits = [&list](const std::function<void()> &act) {
            const QRect row = list.visualRect(list.model()->index(1, 0));
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row.center());
            act();
            QTest::qWait(120);
            return list.viewport()->findChild<QLineEdit *>() != nullptr;
        };
        QVERIFY(!edits([&] { QTest::mousePress(&other, Qt::LeftButton); }));
        QVERIFY(!edits([&] { QTest::keyClick(&list, Qt::Key_Shift); }));
        QVERIFY(!edits([&] { list.clearFocus(); }));
        QVERIFY(edits([] {}));
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

    void oneRowOfAListStaysSelected() {
        List &list = shownList();
        list.Select(2);
        const QPoint row = list.visualRect(list.model()->index(1, 0)).center();
        const QPoint below(row.x(), list.viewport()->height() - 2);
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
            QTest::mouseClick(list.viewport(), button, {}, below);
            QCOMPARE(list.SelectedIndex(), 2);
            QTest::mouseClick(list.viewport(), button, Qt::ControlModifier, row);
            QCOMPARE(list.SelectedIndex(), 2);
        }
        QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(list.SelectedIndex(), 2);
        const QSignalSpy chosen(&list, &List::DblClick);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, below);
        QCOMPARE(chosen.count(), 0);
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
        list.SetEmptyText(u"Vide"_qs);
        QCOMPARE(list.accessibleDescription(), QString());
        list.Clear();
        QCOMPARE(list.accessibleDescription(), u"Vide"_qs);
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
