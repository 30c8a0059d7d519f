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

constexpr double kPoint = 600.0 / 72; // device pixels

/// A word on a printed page; its place in points from the upper left corner of the paper.
struct Word {
    QString text;
    QRectF place;
};

QByteArray run(const QString &tool, const QStringList &arguments) {
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        throw std::runtime_error("a tool of poppler-utils failed");
    }
    return process.readAllStandardOutput();
}

/// The words of a page in the order in which they were printed.
std::vector<Word> wordsOf(const QString &pdf) {
    static const QRegularExpression word(
        u"<word xMin=\"(.+?)\" yMin=\"(.+?)\" xMax=\"(.+?)\" yMax=\"(.+?)\">(.*?)</word>"_qs);
    const QString page = QString::fromUtf8(run(u"pdftotext"_qs, {u"-raw"_qs, u"-bbox"_qs, pdf, u"-"_qs}));
    std::vector<Word> words;
    for (auto found = word.globalMatch(page); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const auto number = [&match](int i) { return match.captured(i).toDouble(); };
        QString text = match.captured(5);
        text.replace(u"&apos;"_qs, u"'"_qs).replace(u"&amp;"_qs, u"&"_qs);
        words.push_back({text, QRectF(QPointF(number(1), number(2)), QPointF(number(3), number(4)))});
    }
    return words;
}

/// The places of the words one below or beside another, as one.
QRectF around(const std::vector<Word> &words, const QString &first, const QString &last) {
    const auto begin =
        std::find_if(words.begin(), words.end(), [&first](const Word &word) { return word.text == first; });
    QRectF all;
    for (auto word = begin; word != words.end(); ++word) {
        all |= word->place;
        if (word->text == last) {
            return all;
        }
    }
    return {};
}

} // namespace

class TestImpression : public QObject {
    Q_OBJECT

private:
    /// Prints the sheet of the first recipe and gives the path of the file.
    QString print(QPageSize::PageSizeId paper = QPageSize::A4) {
        m_open->sheet.ChargerFiche();
        const QString path = m_open->book.path(u"fiche.pdf"_qs);
        QPdfWriter writer(path);
        writer.setPageSize(QPageSize(paper));
        writer.setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Point);
        writer.setResolution(600);
        QPainter painter(&writer);
        Imprimer(m_open->sheet, painter);
        m_corner = writer.pageLayout().paintRect(QPageLayout::Point).topLeft();
        m_page = Composer(MesuresDe(m_open->sheet), writer.width());
        return path;
    }

    void change(const QString &columns) {
        LivreEssai::execute({u"UPDATE Cocktails SET %1 WHERE Numero = 1"_qs.arg(columns)});
        m_open->window.CleCourante.clear();
        TrierListe(m_open->window, 0);
    }

    /// A rectangle of the page in points of the paper.
    QRectF onPaper(const Rect &rect) const {
        const QRectF pixels(QPointF(rect.left, rect.top), QPointF(rect.right, rect.bottom));
        return {pixels.topLeft() / kPoint + m_corner, pixels.size() / kPoint};
    }

    QRectF placeOf(Champ field) const {
        const auto is = [field](const Bloc &block) { return block.champ == field; };
        return onPaper(std::find_if(m_page.blocs.begin(), m_page.blocs.end(), is)->rect);
    }

    std::unique_ptr<FicheOuverte> m_open;
    QPointF m_corner;
    Page m_page;

private Q_SLOTS:

    void init() { m_open = std::make_unique<FicheOuverte>(); }

    void cleanup() { m_open.reset(); }

    void everyTextOnceAndInOrder() {
        const std::vector<Word> words = wordsOf(print());
        QStringList read;
        for (const Word &word : words) {
            const bool dots = word.text.count(u'.') == word.text.size();
            read += dots ? u"..."_qs : word.text;
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
    }

    void wordsAndPhotoStandInTheirPlaces() {
        const QString pdf = print();
        const std::vector<Word> words = wordsOf(pdf);
        for (const auto &[field, first] :
             {std::pair(Champ::Cout, u"Peu"_qs), std::pair(Champ::Mesure, u"grammes"_qs),
              std::pair(Champ::Prepa, u"Piler"_qs), std::pair(Champ::Deco, u"Servir"_qs)}) {
            const QPointF off = around(words, first, first).topLeft() - placeOf(field).topLeft();
            QVERIFY2(off.manhattanLength() < 1.5, qPrintable(first));
        }

        run(u"pdftoppm"_qs,
            {u"-r"_qs, u"72"_qs, u"-png"_qs, u"-singlefile"_qs, pdf, m_open->book.path(u"fiche"_qs)});
        const QImage paper(m_open->book.path(u"fiche.png"_qs));
        const auto printed = [&paper](const QPoint &place) {
            const QColor point = paper.pixelColor(place);
            return point.red() > 200 && point.green() < 60 && point.blue() > 200;
        };
        const QRect photo = onPaper(m_page.photo).toRect();
        QVERIFY(printed(photo.topLeft() + QPoint(2, 2)));
        QVERIFY(printed(photo.bottomRight() - QPoint(2, 2)));
        QVERIFY(!printed(photo.topLeft() - QPoint(2, 2)));
        QVERIFY(!printed(photo.bottomRight() + QPoint(2, 2)));
    }

    void longTextsAreSetSmaller() {
        for (const auto &[paper, sentences] : {std::pair(QPageSize::A4, 48), std::pair(QPageSize::A5, 24)}) {
            change(u"Recette = 'Ail %1 fin', preparation = 'Commencer %2 finir.'"_qs.arg(
                u"titre "_qs.repeated(18).trimmed(),
                u"remuer longuement la sauce au chocolat noir "_qs.repeated(sentences)));
            const std::vector<Word> words = wordsOf(print(paper));
            const QRectF title = around(words, u"Ail"_qs, u"fin"_qs);
            QVERIFY(title.bottom() <= placeOf(Champ::Recette).bottom() + 1);
            QVERIFY(title.isValid());
            const QRectF method = around(words, u"Commencer"_qs, u"finir."_qs);
            QVERIFY(method.isValid());
            QVERIFY(placeOf(Champ::Prepa).adjusted(-1, -1, 1, 1).contains(method));
        }
    }
};

QTEST_MAIN(TestImpression)
#include "TestImpression.moc"
