#include "Shown.h"

#include "platform/controls/ListView.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>

#include <memory>
#include <stdexcept>

using namespace platform::controls;

class TestListView : public QObject {
    Q_OBJECT

private:
    static constexpr ControlRow kRow{"Liste", 0, 0, 4000, 4000};

    void click(int index, Qt::MouseButton button = Qt::LeftButton) {
        const QModelIndex row = m_list->model()->index(index - 1, 0);
        QTest::mouseClick(m_list->viewport(), button, {}, m_list->visualRect(row).center());
    }

    QLineEdit *editor() const { return m_list->viewport()->findChild<QLineEdit *>(); }

    std::unique_ptr<QWidget> m_window;
    List *m_list = nullptr;

private Q_SLOTS:

    void initTestCase() { QApplication::setDoubleClickInterval(20); }

    void init() {
        m_window = std::make_unique<QWidget>();
        m_list = new List(m_window.get(), kRow);
        m_list->SetColumn(u"Titre"_qs, Twips(3700));
        showActive(*m_window);
        List::Loading rows(*m_list);
        rows.Add(u"N 7"_qs, u"Aïoli"_qs, 1);
        rows.Add(u"N 3"_qs, u"Bisque"_qs, 1);
        rows.Add(u"N 9"_qs, u"Clafoutis"_qs, 2);
    }

    void rowsAreFoundByIndexAndKey() {
        QCOMPARE(m_list->SelectedIndex(), 0);
        QCOMPARE(m_list->IndexOfKey(u"N 9"_qs), 3);
        QCOMPARE(m_list->IndexOfKey(u"N 1"_qs), 0);
        QCOMPARE(m_list->Text(3) + m_list->Key(3) + QString::number(m_list->SmallIcon(3)),
                 u"ClafoutisN 92"_qs);
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, m_list->Text(0));
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, m_list->Select(4));

        m_list->Remove(1);
        QCOMPARE(m_list->IndexOfKey(u"N 9"_qs), 2);
        QCOMPARE(m_list->IndexOfKey(u"N 7"_qs), 0);
    }

    void duplicateKeyLeavesTheRowsBefore() {
        {
            List::Loading rows(*m_list);
            rows.Add(u"N 1"_qs, u"Un"_qs, 1);
            QVERIFY_THROWS_EXCEPTION(DuplicateKeyError, rows.Add(u"N 1"_qs, u"Encore"_qs, 1));
            rows.Add(u"N 2"_qs, u"Deux"_qs, 1);
        }
        QCOMPARE(m_list->Count(), 2);
        QCOMPARE(m_list->Text(m_list->IndexOfKey(u"N 1"_qs)), u"Un"_qs);
        QCOMPARE(m_list->Text(m_list->IndexOfKey(u"N 2"_qs)), u"Deux"_qs);
    }

    void mouseAndArrowsRaiseWithTheRowSelected() {
        QStringList raised;
        const auto note = [&](const QString &event) {
            return [this, event, &raised] { raised += event + QString::number(m_list->SelectedIndex()); };
        };
        connect(m_list, &List::ItemClicked, m_list, note(u"clic "_qs));
        connect(m_list, &List::ArrowReleased, m_list, note(u"flèche "_qs));
        connect(m_list, &List::RightClicked, m_list, note(u"droit "_qs));
        m_list->Select(3); // by code: nothing
        click(2);
        QTest::keyClick(m_list, Qt::Key_Down);
        QTest::keyClick(m_list, Qt::Key_Up);
        QTest::keyClick(m_list, Qt::Key_Shift);
        click(1, Qt::RightButton);
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {},
                          QPoint(5, m_list->viewport()->height() - 2));
        // A right click on another row shows it first.
        QCOMPARE(raised,
                 QStringList({u"clic 2"_qs, u"flèche 3"_qs, u"flèche 2"_qs, u"clic 1"_qs, u"droit 1"_qs}));
    }

    void manualModeEditsOnlyOnRequest() {
        click(1);
        click(1);
        QTest::qWait(5 * QApplication::doubleClickInterval());
        QCOMPARE(editor(), nullptr);

        m_list->StartLabelEdit();
        QVERIFY(editor() != nullptr);
        const QPointer<QLineEdit> opened = editor();
        QSignalSpy edits(m_list, &List::AfterLabelEdit);
        QTest::keyClicks(editor(), u"Perdu"_qs);
        QTest::keyClick(editor(), Qt::Key_Escape);
        QTRY_VERIFY(opened.isNull());
        QCOMPARE(edits.count(), 0);
        QCOMPARE(m_list->Text(1), u"Aïoli"_qs);
    }
};

QTEST_MAIN(TestListView)
#include "TestListView.moc"
