#include "EssaiCoque.h"
#include "Reponse.h"

#include "entry/Manuelle.h"

#include <QHelpEvent>
#include <QToolTip>

using platform::controls::ToolWindow;

/// What keys do in the windows, and where the keyboard is afterwards.
class TestTouches : public QObject {
    Q_OBJECT

private:
    /// What the tool tip of a control shows.
    static QString shownTip(QWidget &control) {
        QHelpEvent pause(QEvent::ToolTip, {}, control.mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(&control, &pause);
        return QToolTip::text();
    }

    static void press(QWidget &window, QKeyCombination key) {
        QTest::keyClick(window.focusWidget(), key.key(), key.keyboardModifiers());
    }

    std::unique_ptr<EssaiCoque> m_program;
    browser::Frmmain *m_window = nullptr;

private Q_SLOTS:

    void init() {
        m_program = std::make_unique<EssaiCoque>();
        LivreEssai::execute({
            u"INSERT INTO Cocktails (Numero, Recette, Cout, difficulte, NCategorie) VALUES (2, 'Aïoli', 0, "
            u"0, 1),"
            " (3, 'Épinards', 0, 0, 1), (4, 'Œufs durs', 0, 0, 1)"_qs,
        });
        m_window = &m_program->main();
        m_program->start();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
    }

    void cleanup() { m_program.reset(); }

    void aKeyOpensAToolAndEscapeLeavesIt() {
        for (const auto &[key, name, tool] : {std::tuple(Qt::CTRL | Qt::Key_N, u"Manuelle"_qs, 0),
                                              {Qt::CTRL | Qt::Key_P, u"FicheAlbum"_qs, 2},
                                              {Qt::CTRL | Qt::Key_F, u"FrmFind"_qs, 4}}) {
            m_window->Saisie(0).setFocus();
            QString opened;
            const auto user = in<ToolWindow>([&opened](ToolWindow &window) {
                opened = window.objectName();
                QTest::keyClick(&window, Qt::Key_Escape);
                return !window.isVisible();
            });
            press(*m_window, key);
            QCOMPARE(opened, name);
            QCOMPARE(m_window->focusWidget(), &m_window->Liste);
            const QString tip = m_window->Outils(tool).toolTip();
            QCOMPARE(shownTip(m_window->Outils(tool)),
                     QString(tip + u" (" + QKeySequence(key).toString(QKeySequence::NativeText) + u')'));
            QVERIFY(QTest::qWaitForWindowActive(m_window));
        }
        m_window->Outils(2).hide();
        press(*m_window, Qt::CTRL | Qt::Key_P);
        QVERIFY(m_window->isVisible());
    }

    void escapeAsksBeforeTypedTextIsLost() {
        for (const bool typed : {true, false}) {
            std::optional<bool> asked;
            const auto user = in<entry::Manuelle>([&](entry::Manuelle &window) {
                if (!window.isActiveWindow()) {
                    return false;
                }
                if (typed) {
                    QTest::keyClicks(&window.TitreRecette, u"Riz"_qs);
                }
                const Reponse yes(u"Oui"_qs);
                QTest::keyClick(&window, Qt::Key_Escape);
                asked = yes.asked();
                return true;
            });
            m_window->Outils(0).SetValue(true);
            QCOMPARE(asked, typed);
        }
    }

    void viewsGiveTheKeyboardToTheList() {
        for (const auto &[key, view] : {std::pair(Qt::CTRL | Qt::Key_2, u"1"_qs),
                                        {Qt::CTRL | Qt::Key_Ampersand, u"0"_qs},
                                        {Qt::CTRL | Qt::Key_8, u"7"_qs}}) {
            m_window->Outils(0).setFocus();
            press(*m_window, key);
            QCOMPARE(LivreEssai::setting(u"Tris"_qs), view);
            QCOMPARE(m_window->focusWidget(), &m_window->Liste);
        }
        QTest::mouseClick(&m_window->Bouton(0), Qt::LeftButton);
        for (const auto &[letters, title] :
             {std::pair(u"EP"_qs, u"Épinards"_qs), {u"oeufs d"_qs, u"Œufs durs"_qs}}) {
            QTest::qWait(QApplication::keyboardInputInterval() + 50);
            QTest::keyClicks(m_window->focusWidget(), letters);
            QCOMPARE(m_window->LTDroit.Caption(), title);
        }
    }

    void deleteAndRenameActOnTheSelectedRowAlone() {
        const Reponse no(u"Non"_qs);
        press(*m_window, Qt::Key_Delete);
        QCOMPARE(no.question(), u"Voulez-vous réellement supprimer Aïoli ?"_qs);

        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        const Reponse none(u"Non"_qs);
        press(*m_window, Qt::Key_F2);
        QPointer<QLineEdit> editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(editor);
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClicks(editor, u"Rouille"_qs);
        // The row takes its text before the key acts.
        QTest::keyClick(editor, Qt::Key_2, Qt::ControlModifier);
        QTest::keyClick(&m_window->Liste, Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(texts(m_window->Liste), u"Épinards, Œufs durs, Rouille, Tarte"_qs);

        // A class of the fixed vocabularies cannot be changed.
        press(*m_window, Qt::CTRL | Qt::Key_4);
        press(*m_window, Qt::Key_F2);
        press(*m_window, Qt::Key_Delete);
        QCOMPARE(QApplication::focusWidget(), &m_window->Liste);
        QVERIFY(!none.asked());
    }

    void quitAsks() {
        const Reponse no(u"Non"_qs);
        press(*m_window, Qt::CTRL | Qt::Key_Q);
        QCOMPARE(no.question(), u"Voulez vous quitter Savorel ?"_qs);
        QVERIFY(m_window->isVisible());
    }
};

QTEST_MAIN(TestTouches)
#include "TestTouches.moc"
