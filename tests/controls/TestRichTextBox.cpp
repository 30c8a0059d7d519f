#include "Shown.h"

#include "platform/controls/FileDrop.h"
#include "platform/controls/RichTextBox.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QMimeData>
#include <QSignalBlocker>
#include <QSignalSpy>

#include <memory>

using namespace platform::controls;

namespace {

constexpr ControlRow kRow{"Saisie", 0, 0, 6000, 1500};

QMimeData *html(const QString &source) {
    auto *data = new QMimeData;
    data->setHtml(source);
    return data;
}

} // namespace

class TestRichTextBox : public QObject {
    Q_OBJECT

private:
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(m_box, Qt::Key(key), modifiers);
    }

    /// A key on a mixed selection over two paragraphs, on formatted text, and between two typed letters.
    void formatWith(int key, const QString &on, const QString &off) {
        m_box->SetTextRTF(u"{\\rtf1 a" + on + u" b" + off + u" c\\par d}");
        m_box->Select(0, 5);
        press(key);
        QVERIFY2(stored().startsWith(on + u" abc"), "a mixed selection is not set");
        QVERIFY(stored().endsWith(on + u" d"));
        m_box->Select(1, 1);
        press(key);
        QVERIFY(stored().startsWith(on + u" a" + off + u" b" + on + u" c"));
        QCOMPARE(raised(), 2);

        m_box->SetTextRTF(u"a"_qs);
        m_box->Select(1, 0);
        press(key);
        QTest::keyClicks(m_box, u"b"_qs);
        press(key);
        QTest::keyClicks(m_box, u"c"_qs);
        QCOMPARE(stored(), u"a" + on + u" b" + off + u" c");
        QCOMPARE(raised(), 2);
    }

    /// How many changes were raised since the last call.
    qsizetype raised() {
        const qsizetype count = m_changes->count();
        m_changes->clear();
        return count;
    }

    /// The body of the stored text, formats and characters alike.
    QString stored() const {
        const QString text = m_box->TextRTF();
        const qsizetype start = text.indexOf(u"\\pard") + 5;
        return text.mid(start, text.lastIndexOf(u"\\par") - start).trimmed();
    }

    std::unique_ptr<QWidget> m_window;
    RichTextBox *m_box = nullptr;
    std::unique_ptr<QSignalSpy> m_changes;

private Q_SLOTS:

    void init() {
        m_window = std::make_unique<QWidget>();
        m_box = new RichTextBox(m_window.get(), kRow);
        m_changes = std::make_unique<QSignalSpy>(m_box, &RichTextBox::Change);
        showActive(*m_window);
        m_box->setFocus();
    }

    void programmeRaisesNoChange() {
        m_box->SetTextRTF(u"{\\rtf1\\ansi Cuire \\b 10\\b0  min\\par\\par}"_qs);
        const QString loaded = m_box->TextRTF();
        m_box->SetDefaultColor(Qt::yellow);
        m_box->resize(150, 200);
        m_box->clearFocus();
        QTest::qWait(1);
        QCOMPARE(m_box->TextRTF(), loaded);
        {
            const QSignalBlocker programme(m_box);
            m_box->Select(0, 5);
            m_box->SetSelColor(Qt::white);
        }
        m_box->setFocus();
        press(Qt::Key_Z);
        QVERIFY2(m_box->TextRTF() != loaded, "undo takes back an act of the programme");
        QCOMPARE(raised(), 0);
    }

    void actsThatChangeNothingRaiseNoChange() {
        m_box->SetTextRTF(u"{\\rtf1\\ansi\\b Gras\\b0}"_qs);
        m_box->Select(1, 2);
        m_box->SetSelBold(true);
        m_box->Select(4, 0);
        press(Qt::Key_B);
        press(Qt::Key_I);
        press(Qt::Key_U);
        m_box->SetSelColor(Qt::red);
        press(Qt::Key_C);
        press(Qt::Key_Right, Qt::NoModifier);
        press(Qt::Key_Delete, Qt::NoModifier);
        QApplication::clipboard()->setMimeData(html(u"<img src='x.png'>"_qs));
        press(Qt::Key_V);
        QCOMPARE(raised(), 0);

        // A format chosen in an empty box does not outlive the next text.
        m_box->SetTextRTF(QString());
        press(Qt::Key_B);
        m_box->SetTextRTF(QString());
        QTest::keyClicks(m_box, u"a"_qs);
        QCOMPARE(stored(), u"a"_qs);
    }

    void everyChangeOfTheUserIsRaised() {
        m_box->SetTextRTF(u"un deux"_qs);
        QTest::keyClicks(m_box, u"a "_qs);
        QCOMPARE(raised(), 2);
        press(Qt::Key_Backspace, Qt::NoModifier);
        QCOMPARE(raised(), 1);
        press(Qt::Key_Return, Qt::NoModifier);
        QCOMPARE(raised(), 1);
        m_box->Select(2, 2);
        press(Qt::Key_X);
        press(Qt::Key_Insert, Qt::ShiftModifier);
        QCOMPARE(raised(), 2);
        QCOMPARE(m_box->Text(), u"a\nun deux"_qs);

        m_box->Select(0, 1);
        m_box->SetSelColor(Qt::red);
        QCOMPARE(raised(), 1);
        const QString red = m_box->TextRTF();
        press(Qt::Key_Z);
        QVERIFY(!m_box->TextRTF().contains(u"\\cf1"));
        press(Qt::Key_Y);
        QCOMPARE(m_box->TextRTF(), red);
        QCOMPARE(raised(), 2);
    }

    void keysFormat() {
        formatWith(Qt::Key_B, u"\\b"_qs, u"\\b0"_qs);
        formatWith(Qt::Key_I, u"\\i"_qs, u"\\i0"_qs);
        formatWith(Qt::Key_U, u"\\ul"_qs, u"\\ulnone"_qs);
    }

    void aDroppedFileGoesToWhatTheBoxStandsIn() {
        const auto *area = new FileDrop(*m_window);
        QSignalSpy dropped(area, &FileDrop::Dropped);
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(u"/tarte.jpg"_qs)});
        const QPoint place = m_box->viewport()->rect().center();
        QDragEnterEvent enters(place, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_box->viewport(), &enters);
        QDropEvent drops(place, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_box->viewport(), &drops);
        QCOMPARE(dropped.count(), 1);
        QCOMPARE(raised(), 0);
    }

    void anEmptiedBoxKeepsItsColour() {
        for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace}) {
            m_box->SetTextRTF(QString());
            m_box->SetSelColor(Qt::cyan);
            QTest::keyClicks(m_box, u"un"_qs);
            press(Qt::Key_A);
            press(key, Qt::NoModifier);
            QTest::keyClicks(m_box, u"deux"_qs);
            QVERIFY2(m_box->TextRTF().contains(u"\\red0\\green255\\blue255"), "the colour is lost");
        }
    }

    void aLongRunIsShownAtOnce() {
        const QString letters(600'000, u'a');
        QElapsedTimer time;
        time.start();
        m_box->SetTextRTF(letters);
        m_box->SetTextRTF(u"b"_qs);
        QApplication::clipboard()->setText(letters);
        press(Qt::Key_V);
        m_box->grab();
        QVERIFY2(time.elapsed() < 10'000, "wrapped at words it takes a minute");
        QCOMPARE(m_box->Text().size(), 600'001);
    }

    void ofMillionsOfCharactersTheBeginningIsShown() {
        const QString text = QString(1'000'000, u'a') + u"b";
        m_box->SetTextRTF(text);
        QCOMPARE(m_box->toPlainText().size(), 1'000'000);
        QCOMPARE(m_box->Text(), text);
        QVERIFY(m_box->isReadOnly());
        m_box->Select(0, 5);
        m_box->SetSelColor(Qt::red);
        press(Qt::Key_B);
        QTest::keyClicks(m_box, u"x"_qs);
        QCOMPARE(m_box->TextRTF(), text);
        QVERIFY(m_box->findChild<QWidget *>(u"Notice"_qs)->isVisible());

        m_box->SetTextRTF(u"court"_qs);
        QVERIFY(!m_box->isReadOnly());
        QApplication::clipboard()->setText(text);
        press(Qt::Key_V);
        QCOMPARE(m_box->Text(), u"court"_qs);
        QCOMPARE(raised(), 0);
    }
};

QTEST_MAIN(TestRichTextBox)
#include "TestRichTextBox.moc"
