#include "Files.h"
#include "OldBook.h"

#include "platform/jet/JetReader.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <memory>

using namespace platform::jet;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Counts what comes.
class Counter : public JetSink {
public:
    void table(const QString &, const QStringList &) override { ++tables; }

    void row(const QVariantList &) override {}

    void progress(qint64, qint64) override { ++calls; }

    int tables = 0;
    int calls = 0;
};

QString errorOf(const QString &program, const QString &file, JetSink &sink,
                std::chrono::milliseconds limit = kJetTimeLimit) {
    const QStringList tables{u"Cocktails"_s, u"Ingre"_s,       u"Categorie"_s,  u"DureeReal"_s, u"Verre"_s,
                             u"VIN"_s,       u"Realisation"_s, u"Ingredient"_s, u"Quantite"_s,  u"Mesure"_s};
    try {
        readJet(program, file, tables, sink, limit);
        return {};
    } catch (const JetError &error) {
        return QString::fromUtf8(error.what());
    }
}

} // namespace

class TestJetReader : public QObject {
    Q_OBJECT

private:
    QString write(const QByteArray &content) const {
        return writeFile(m_folder->filePath(u"livre.mdb"_s), content);
    }

    const QString m_program = QStringLiteral(READING_PROGRAM);
    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void aReaderThatFails() {
        const QString nonsense = u"incompréhensible"_s;
        const auto readers = std::to_array<std::pair<QByteArray, QString>>({
            {"kill -SEGV $$", u"brutalement"_s},
            {"exec sleep 60", u"trop de temps"_s},
            {"exec sleep 60 >&-", u"trop de temps"_s}, // closes its output and stays
            {"exit 0", u"avant la fin"_s},
            {"exec yes", nonsense},
            {"printf 'R\\377\\377\\377\\377'; exec sleep 60", nonsense}, // announces a huge record
            // A text longer than its record, a row of no table, tables without end.
            {"printf 'T\\010\\0\\0\\0\\377\\0\\0\\0abcd'; exec sleep 60", nonsense},
            {"printf 'R\\0\\0\\0\\0'", nonsense},
            {"while printf 'T\\011\\0\\0\\0\\1\\0\\0\\0a\\0\\0\\0\\0%65536s'; do :; done", nonsense},
            // Stops within a record, ends well with a bad code, has more behind the end, tells a failure.
            {"printf 'E\\1\\0'", u"avant la fin"_s},
            {"printf 'E\\0\\0\\0\\0'; exit 3", u"avant la fin"_s},
            {"printf 'E\\0\\0\\0\\0E\\0\\0\\0\\0'", nonsense},
            {"printf 'X\\7\\0\\0\\0\\3\\0\\0\\0non'; exit 2", u"non"_s},
        });
        for (const auto &[script, error] : readers) {
            Counter sink;
            QElapsedTimer timer;
            timer.start();
            const QString told =
                errorOf(writeScript(m_folder->filePath(u"lecteur"_s), script), u"livre"_s, sink, 1s);
            QVERIFY2(told.contains(error), qPrintable(QString::fromUtf8(script) + u": " + told));
            QVERIFY2(timer.elapsed() < 5000, "the limit is one second");
            // A window that shows the progress must be painted while the reader is silent.
            QVERIFY(sink.calls > 5 || !error.contains(u"temps"));
        }
    }

    void filesThatAreNoBook() {
        Counter sink;
        for (const QByteArray &content : {QByteArray(), QByteArray(8192, '\0'), QByteArray(100, 'x'),
                                          QByteArray("\0\1\0\0Standard", 12)}) {
            QVERIFY(!isJetFile(write(content)));
            QVERIFY(!errorOf(m_program, write(content), sink).isEmpty());
        }
        const QString headOnly = write(QByteArray("\0\1\0\0Standard Jet DB\0", 20));
        QVERIFY(isJetFile(headOnly));
        QVERIFY(!errorOf(m_program, headOnly, sink).isEmpty());
        const QString absent = m_folder->filePath(u"absent"_s);
        QVERIFY(!isJetFile(absent));
        QVERIFY(!errorOf(m_program, absent, sink).isEmpty());
        QCOMPARE(sink.tables, 0);
        QVERIFY(errorOf(absent, headOnly, sink).contains(u"lancé"));
    }

    /// The file is read to its end although its texts are not whole: nothing but the checks tells it.
    void truncatedBook() {
        const QByteArray book = oldBook();
        for (const qsizetype percent : {1, 10, 30, 60, 80, 95}) {
            const qsizetype cut = book.size() * percent / 100;
            for (const qsizetype size : {cut, cut - cut % 4096}) {
                Counter sink;
                const QString error = errorOf(m_program, write(book.first(size)), sink);
                QVERIFY2(!error.isEmpty(), qPrintable(QString::number(size)));
            }
        }
    }

    /// Four bytes of each file, half of them in the heads of pages: an error, or a book.
    void flippedBytes() {
        const QByteArray book = oldBook();
        QRandomGenerator random(20000);
        int refused = 0;
        for (int i = 0; i < 80; ++i) {
            QByteArray damaged = book;
            for (int place = 0; place < 4; ++place) {
                const qsizetype page = qsizetype(random.bounded(int(book.size() / 4096))) * 4096;
                char &byte = damaged[page + random.bounded(place % 2 == 0 ? 64 : 4096)];
                byte = char(byte ^ char(1 + random.bounded(255)));
            }
            Counter sink;
            const QString error = errorOf(m_program, write(damaged), sink, 20s);
            QVERIFY2(!error.contains(u"temps"), qPrintable(QString::number(i)));
            refused += error.isEmpty() ? 0 : 1;
        }
        QVERIFY2(refused > 10, qPrintable(QString::number(refused)));
    }
};

QTEST_GUILESS_MAIN(TestJetReader)
#include "TestJetReader.moc"
