// A mistake in the source texts of the book stops the build and names its place.
#include "Files.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Mistake {
    QString before, after, message; // the message behind the name of the file
    QString file = u"recettes/gratin-dauphinois.txt"_s;
};

/// Makes the mistake in a copy of the sources.
void expectToStop(const Mistake &mistake) {
    const QTemporaryDir folder;
    const QString sources = folder.filePath(u"livre"_s);
    const QString output = folder.filePath(u"livraison"_s);
    QCOMPARE(QProcess::execute(u"cp"_s, {u"-r"_s, QStringLiteral(BOOK_SOURCES), sources}), 0);
    QVERIFY(QDir().mkpath(output));
    const QString wrong = sources + u'/' + mistake.file;
    const QString text = QString::fromUtf8(contentOf(wrong));
    QCOMPARE(text.count(mistake.before), 1);
    writeFile(wrong, QString(text).replace(mistake.before, mistake.after).toUtf8());

    QProcess tool;
    tool.start(QStringLiteral(BOOK_TOOL), {sources, QStringLiteral(BOOK_PICTURES), output});
    QVERIFY(tool.waitForFinished());
    const QString errors = QString::fromUtf8(tool.readAllStandardError());
    QCOMPARE(tool.exitCode(), 1);
    QVERIFY2(errors.contains(wrong + mistake.message), qPrintable(errors));
    QVERIFY(QDir(output).isEmpty());
}

} // namespace

class TestSourcesDuLivre : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void aMistakeStopsTheBuild() {
        const auto mistakes = std::to_array<Mistake>({
            {u"Personnes :"_s, u"Convives :"_s, u":4: unknown field \"Convives\""_s},
            {u"Personnes : "_s, u"Vin : "_s, u":8: the field \"Vin\" is there already"_s},
            {u"Personnes : 6 personnes\n"_s, {}, u":51: the field \"Personnes\" is missing"_s},
            {u"cl de | lait"_s, u"bols de | lait"_s, u":13: \"bols de\" is not in the vocabulary Mesure"_s},
            {u"Dessin : gratin-dauphinois"_s, u"Dessin : gratin"_s, u":9: no picture "_s},
            {u"**3 mm**"_s, u"**3 mm"_s, u":23: a * or ** of this paragraph is not closed"_s},
            {u"\n3. "_s, u"\n4. "_s, u":27: step 3 is expected here"_s},
            {u"Cidre brut"_s, u"chablis Minéral"_s, u":25: \"chablis Minéral\" is there already"_s,
             u"vocabulaires/vin.txt"_s},
        });
        for (const Mistake &mistake : mistakes) {
            expectToStop(mistake);
        }
    }
};

QTEST_GUILESS_MAIN(TestSourcesDuLivre)
#include "TestSourcesDuLivre.moc"
