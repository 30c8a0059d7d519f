// The program folder as the user finds it after a rebuild: new versions arrive, own changes stay.
#include "Files.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class TestLivraison : public QObject {
    Q_OBJECT

private:
    void deliver() const {
        const QString root = m_folder->path();
        QProcess cmake;
        cmake.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        cmake.start(QStringLiteral(CMAKE_PROGRAM),
                    {u"-DSOURCE="_s + root + u"/neuf", u"-DDESTINATION="_s + root + u"/Savorel",
                     u"-DSTAMPS="_s + root + u"/recu", u"-P"_s, QStringLiteral(DELIVERY_SCRIPT)});
        QVERIFY(cmake.waitForFinished());
        QCOMPARE(cmake.exitCode(), 0);
    }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void scenario_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("words");
        const QString changes = u"new:one rebuild is:one new:two rebuild is:two"
                                " mine:own rebuild is:own new:three rebuild rebuild is:own"_s;
        QTest::newRow("new versions and own changes") << u"db.mdb"_s << changes;
        QTest::newRow("ligature and signs") << u"Fond Ecran/Bœuf à l'oignon (gratiné).jpg"_s << changes;
        QTest::newRow("a file thrown away comes back")
            << u"photos/a.jpg"_s << u"new:one rebuild thrown: rebuild is:one"_s;
        QTest::newRow("a folder older than the deliveries")
            << u"db.mdb"_s << u"mine:recipes new:one rebuild is:recipes"_s;
        QTest::newRow("broken off before the stamp was written")
            << u"db.mdb"_s << u"mine:one new:one rebuild new:two rebuild is:two"_s;
        QTest::newRow("a change that was undone counts as none")
            << u"db.mdb"_s << u"new:one rebuild mine:own new:two rebuild mine:one rebuild is:two"_s;
    }

    void scenario() {
        QFETCH(const QString, file);
        QFETCH(const QString, words);
        const QString fresh = m_folder->filePath(u"neuf/"_s + file);
        const QString delivered = m_folder->filePath(u"Savorel/"_s + file);
        for (const QString &path : {fresh, delivered}) {
            QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        }
        for (const QString &step : words.split(u' ')) {
            const QByteArray content = step.section(u':', 1).toUtf8();
            if (step == u"rebuild") {
                deliver();
            } else if (step == u"thrown:") {
                QVERIFY(QFile::remove(delivered));
            } else if (step.startsWith(u"is:")) {
                QCOMPARE(contentOf(delivered), content);
            } else {
                writeFile(step.startsWith(u"new:") ? fresh : delivered, content);
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestLivraison)
#include "TestLivraison.moc"
