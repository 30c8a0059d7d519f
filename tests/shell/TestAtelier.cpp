#include "LivreEssai.h"

#include "pictures/atelier/Acquisition.h"
#include "platform/desktop/SingleInstance.h"
#include "shell/Demarrage.h"
#include "shell/Fenetres.h"

#include <QApplication>
#include <QTimer>

#include <functional>

/// The picture workshop as the toolbar opens it.
class TestAtelier : public QObject {
    Q_OBJECT

private:
    LivreEssai m_book;
    shell::Fenetres m_windows;

    /// Presses the tool and runs the steps while the workshop is open.
    void open(const std::function<void()> &steps) {
        QTimer::singleShot(0, this, [this, steps] {
            steps();
            m_windows.Atelier().Quit.SetValue(true);
        });
        m_windows.Principale.Outils(3).SetValue(true);
    }

private Q_SLOTS:

    void initTestCase() {
        const platform::desktop::SingleInstance instance(
            u"SavorelEssai%1"_qs.arg(QCoreApplication::applicationPid()));
        shell::ChargerFrmmain(m_windows, instance);
    }

    void standsInThePlaceOfTheMainWindowAndStartsEmpty() {
        for (int time = 0; time < 2; ++time) {
            open([this] {
                QVERIFY(m_windows.Atelier().isVisible() && !m_windows.Principale.isVisible());
                QVERIFY(m_windows.Atelier().PhotoScan.Picture().isNull());
                QVERIFY(m_windows.Atelier().Btn_ScanS(0).isEnabled());
                m_windows.Atelier().PhotoScan.SetPicture(QImage(4, 4, QImage::Format_RGB32));
                m_windows.Atelier().AttendreUneImage();
            });
            QVERIFY(m_windows.Principale.isVisible() && !m_windows.Principale.Outils(3).Value());
            QVERIFY(m_windows.Outils().empty());
        }
    }

    void comesBackWithItsPictureAfterMinimising() {
        open([this] {
            auto &workshop = m_windows.Atelier();
            workshop.PhotoScan.SetPicture(QImage(4, 4, QImage::Format_RGB32));
            workshop.Mini.SetValue(true);
            QVERIFY(!workshop.isVisible() && !m_windows.Principale.isVisible());
            m_windows.Pop.setWindowState(Qt::WindowNoState);
            QTRY_VERIFY(workshop.isVisible());
            QVERIFY(!m_windows.Pop.isVisible());
            QCOMPARE(workshop.PhotoScan.Picture().width(), 4);
        });
        QVERIFY(m_windows.Principale.isVisible());
    }
};

QTEST_MAIN(TestAtelier)
#include "TestAtelier.moc"
