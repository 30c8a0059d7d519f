#include "LivreDeFiches.h"

#include "sheets/Composition.h"
#include "sheets/Impression.h"

#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>

#include <memory>

using namespace browser;
using namespace sheets;

namespace {

/// A word on a printed page; its place in points from the upper left corner of the paper.
struct Word {
    QString text;
    QRectF place;
    qsizetype page;

    /// What the letters cover, without the room for accents and tails that few of them need.
    QRectF ink() const { return place.adjusted(0.2, place.height() / 5, -0.2, -place.height() / 5); }
};

QByteArray run(const QString &tool, const QStringList &arguments) {
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        throw std::runtime_error("a tool of poppler-utils failed");
    }
    return process.readAllStandardOutput();
}

/// The words in the order in which they were printed.
std::vector<Word> wordsOf(const QString &pdf) {
    static const QRegularExpression word(
        u"<word xMin=\"(.+?)\" yMin=\"(.+?)\" xMax=\"(.+?)\" yMax=\"(.+?)\">(.*?)</word>"_qs);
    const QStringList pages =
        QString::fromUtf8(run(u"pdftotext"_qs, {u"-raw"_qs, u"-bbox"_qs, pdf, u"-"_qs})).split(u"<page "_qs);
    std::vector<Word> words;
    for (qsizetype page = 1; page < pages.size(); ++page) {
        for (auto found = word.globalMatch(pages[page]); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            const auto number = [&match](int i) { return match.captured(i).toDouble(); };
            QString text = match.captured(5);
            text.replace(u"&apos;"_qs, u"'"_qs).replace(u"&amp;"_qs, u"&"_qs);
            words.push_back(
                {text, QRectF(QPointF(number(1), number(2)), QPointF(number(3), number(4))), page});
        }
    }
    return words;
}

const Word &find(const std::vector<Word> &words, const QString &text) {
    for (const Word &word : words) {
        if (word.text == text) {
            return word;
        }
    }
    throw std::runtime_error("not printed: " + text.toStdString());
}

} // namespace

class TestImpression : public QObject {
    Q_OBJECT

private:
    /// Prints the sheet of the first recipe with margins of so many points, and gives the path of the file.
    QString print(QPageSize::PageSizeId paper = QPageSize::A4, double margin = 10) {
        m_open->sheet.ChargerFiche();
        const QString path = m_open->book.path(u"fiche.pdf"_qs);
        QPdfWriter writer(path);
        writer.setPageSize(QPageSize(paper));
        writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Point);
        writer.setResolution(600);
        QPainter painter(&writer);
        Imprimer(m_open->sheet, painter, writer);
        m_margins = writer.pageLayout().paintRect(QPageLayout::Point);
        const Metrique thin{0, 0, 0, [](auto...) { return Morceau(); }};
        m_page = Composer(MesuresDe(m_open->sheet), {writer.width(), writer.height()}, thin).front();
        return path;
    }

    void change(const QString &columns, const QStringList &further = {}) {
        LivreEssai::execute(QStringList(u"UPDATE Cocktails SET %1 WHERE Numero = 1"_qs.arg(columns)) +
                            further);
        TrierListe(m_open->window, 0);
    }

    /// The upper left corner of a field, in points of the paper.
    QPointF cornerOf(Champ field) const {
        const auto is = [field](const Bloc &block) { return block.champ == field; };
        const Rect place = std::find_if(m_page.blocs.begin(), m_page.blocs.end(), is)->rect;
        return QPointF(place.left, place.top) * 72 / 600 + m_margins.topLeft();
    }

    std::unique_ptr<FicheOuverte> m_open;
    QRectF m_margins; // what is between them
    Page m_page;

private Q_SLOTS:

    void init() { m_open = std::make_unique<FicheOuverte>(); }

    void cleanup() { m_open.reset(); }

    void everyTextOnceAndInItsPlace() {
        const QString pdf = print();
        const std::vector<Word> words = wordsOf(pdf);
        QStringList read;
        for (const Word &word : words) {
            read += word.text.startsWith(u"..") ? u"..."_qs : word.text;
        }
        QString expected =
            u"Aïoli Coût Peu Cher Difficulté Facile Conseil en Vin Chinon Durée de Cuisson "
            "10 minutes Nombre de Personnes 4 personnes Type de Plat Entrée froide Ingrédients "_qs;
        for (int i = 8; i >= 1; --i) {
            expected += u"125 grammes Ingrédient%1 "_qs.arg(i);
        }
        expected +=
            u"... ... ... Préparation Piler l'ail, afin qu'il prenne. Durée de Réalisation 25 minutes "
            "Compléments Servir très frais.";
        QCOMPARE(read, expected.split(u' '));
        for (const auto &[field, first] :
             {std::pair(Champ::Cout, u"Peu"_qs), std::pair(Champ::Mesure, u"grammes"_qs),
              std::pair(Champ::Prepa, u"Piler"_qs), std::pair(Champ::Deco, u"Servir"_qs)}) {
            const QPointF off = find(words, first).place.topLeft() - cornerOf(field);
            QVERIFY2(off.manhattanLength() < 2, qPrintable(first));
        }
        const auto lines = [](const QString &file) {
            return run(u"pdfimages"_qs, {u"-list"_qs, file}).count('\n');
        };
        QCOMPARE(lines(pdf), 3);
        change(u"Photo = NULL"_qs);
        QCOMPARE(lines(print()), 2); // the heading alone
    }

    void longTextsOnEveryPaper_data() {
        QTest::addColumn<QPageSize::PageSizeId>("paper");
        QTest::addColumn<double>("margin"); // points
        QTest::addColumn<double>("scale");
        QTest::newRow("A4") << QPageSize::A4 << 10.0 << 1.0;
        QTest::newRow("Letter") << QPageSize::Letter << 10.0 << 1.0;
        QTest::newRow("the margins do not count") << QPageSize::A4 << 110.0 << 1.0;
        QTest::newRow("the photo reaches lower") << QPageSize::A3 << 10.0 << 1.0;
        QTest::newRow("all of the page is smaller") << QPageSize::A5 << 10.0 << 148.0 / 210;
        QTest::newRow("so is that between margins too wide") << QPageSize::A4 << 150.0 << 295.3 / 360;
    }

    /// Every word of a method of 10 KB once and in order, nothing over anything, nothing beyond the margins.
    void longTextsOnEveryPaper() {
        QStringList method{u"x"_qs.repeated(900)}; // longer than a line
        for (int i = 0; i < 1400; ++i) {
            method += u"mot%1"_qs.arg(i);
        }
        change(u"Recette = 'Ail épaulé %1', preparation = '%2', Deco = '%1'"_qs.arg(u"gros "_qs.repeated(80),
                                                                                    method.join(u' ')),
               {u"UPDATE VIN SET VIN = 'Vin %1'"_qs.arg(u"rouge "_qs.repeated(30))});
        QFETCH(const QPageSize::PageSizeId, paper);
        QFETCH(const double, margin);
        const std::vector<Word> words = wordsOf(print(paper, margin));
        QString read;
        int cut = 0;
        for (const Word &word : words) {
            cut += word.page == 1 && word.text.endsWith(u'…') ? 1 : 0;
            read += word.text.contains(QRegularExpression(u"^(mot\\d+|x+)$"_qs)) ? word.text : QString();
            const auto covers = [&word](const Word &other) {
                return word.page == other.page && word.ink().intersects(other.ink());
            };
            QCOMPARE(std::count_if(words.begin(), words.end(), covers), 1); // itself
            QVERIFY2(m_margins.adjusted(-1, -1, 1, 1).contains(word.place), qPrintable(word.text));
        }
        QCOMPARE(read, method.join(QString()));
        QCOMPARE(cut, 2); // the title and the wine
        QFETCH(const double, scale);
        constexpr double kLine = 1.164; // of the face, to a point of its size
        QVERIFY(std::abs(find(words, u"Facile"_qs).place.height() - 8.25 * kLine * scale) < 0.2);
    }
};

QTEST_MAIN(TestImpression)
#include "TestImpression.moc"
