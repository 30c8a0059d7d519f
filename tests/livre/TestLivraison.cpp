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

    void write(const QString &path, const QByteArray &content) const {
        const QString full = m_folder->filePath(path);
        QVERIFY(QDir().mkpath(full.section(u'/', 0, -2)));
        writeFile(full, content);
    }

    QByteArray read(const QString &path) const { return contentOf(m_folder->filePath(path)); }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void aRebuild_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("book") << u"db.mdb"_s;
        QTest::newRow("photo with a ligature") << u"photos/Bœuf bourguignon.jpg"_s;
        QTest::newRow("blank, apostrophe and brackets") << u"Fond Ecran/Soupe à l'oignon (gratinée).jpg"_s;
    }

    void aRebuild() {
        QFETCH(const QString, file);
        const QString fresh = u"neuf/"_s + file;
        const QString delivered = u"Savorel/"_s + file;

        write(fresh, "one");
        deliver();
        QCOMPARE(read(delivered), "one");
        write(fresh, "two");
        deliver();
        QCOMPARE(read(delivered), "two");

        write(delivered, "mine");
        deliver();
        QCOMPARE(read(delivered), "mine");
        write(fresh, "three");
        deliver();
        deliver();
        QCOMPARE(read(delivered), "mine");
    }

    void aThrownAwayFileComesBack() {
        write(u"neuf/photos/a.jpg"_s, "one");
        deliver();
        QVERIFY(QFile::remove(m_folder->filePath(u"Savorel/photos/a.jpg"_s)));
        deliver();
        QCOMPARE(read(u"Savorel/photos/a.jpg"_s), "one");
    }

    void anOlderFolderIsLeftAlone() {
        write(u"Savorel/db.mdb"_s, "recipes of many years");
        write(u"neuf/db.mdb"_s, "one");
        deliver();
        QCOMPARE(read(u"Savorel/db.mdb"_s), "recipes of many years");
    }

    void aDeliveryBrokenOffIsTakenUp() {
        // The file had arrived, its stamp had not.
        write(u"Savorel/db.mdb"_s, "one");
        write(u"neuf/db.mdb"_s, "one");
        deliver();
        write(u"neuf/db.mdb"_s, "two");
        deliver();
        QCOMPARE(read(u"Savorel/db.mdb"_s), "two");
    }

    void aChangeThatWasUndoneCountsAsNone() {
        write(u"neuf/db.mdb"_s, "one");
        deliver();
        write(u"Savorel/db.mdb"_s, "mine");
        write(u"neuf/db.mdb"_s, "two");
        deliver();
        write(u"Savorel/db.mdb"_s, "one");
        deliver();
        QCOMPARE(read(u"Savorel/db.mdb"_s), "two");
    }
};

QTEST_APPLESS_MAIN(TestLivraison)
#include "TestLivraison.moc"
