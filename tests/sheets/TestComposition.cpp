#include "sheets/Composition.h"

#include <QTest>

#include <algorithm>
#include <map>

using namespace sheets;
using platform::geometry::Extent;
using platform::geometry::Rectangle;
using platform::geometry::Twips;

namespace {

Extent extent(int width, int height) {
    return {Twips(width), Twips(height)};
}

Rectangle place(int left, int width, int height) {
    return {Twips(left), {}, Twips(width), Twips(height)};
}

/// The sheet as it stands with two ingredient rows and a photo.
Mesures sheet() {
    const Rectangle short_ = place(240, 3600, 240);
    return {.largeur = Twips(15300),
            .recette = place(240, 14175, 435),
            .cadrePhoto = place(240, 4695, 3975),
            .photo = extent(4295, 2577),
            .libelle = {short_, place(5280, 3495, 240), place(9120, 5175, 240), short_,
                        place(5280, 9015, 240), short_, Rectangle(), place(5280, 9015, 240),
                        place(5280, 1935, 240), place(8040, 1935, 240), place(10680, 3615, 240)},
            .cout = extent(1935, 375),
            .diff = extent(1935, 375),
            .teneur = extent(3615, 375),
            .data = {extent(9015, 375), extent(9015, 375), extent(3495, 375), extent(5175, 375)},
            .lignes = 2,
            .qte = extent(1455, 375),
            .mesure = extent(2175, 375),
            .ingre = extent(10155, 375),
            .prepa = extent(14055, 4455),
            .deco = extent(14055, 1815)};
}

/// Writing in which a point is 10 pixels tall and a line one character, for texts of so many lines.
Metrique writing(int method, int notes) {
    return {136, 95, 80, [=](Champ field, double points, qsizetype from, int, int height) {
                const auto line = static_cast<int>(10 * points);
                const qsizetype left = (field == Champ::Prepa ? method : notes) - from;
                const qsizetype lines = std::min<qsizetype>(left, height / line);
                return Morceau{from, from + lines, points, static_cast<qint32>(lines * line), lines == left};
            }};
}

bool overlap(const Rect &a, const Rect &b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

} // namespace

class TestComposition : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void everyRectangleOfAPage() {
        // A quarter of a pixel to the twip.
        const Metrique small{90, 80, 60, writing(1, 1).couper};
        const std::vector<Page> pages = Composer(sheet(), {3825, 5400}, small);
        const std::vector<Bloc> expected{
            {Champ::Recette, 0, {60, 100, 3705, 209}},   {Champ::Libelle, 8, {1424, 239, 1908, 299}},
            {Champ::Cout, 0, {1424, 299, 1908, 393}},    {Champ::Libelle, 9, {2008, 309, 2492, 369}},
            {Champ::Diff, 0, {2008, 369, 2492, 463}},    {Champ::Libelle, 10, {2592, 309, 3496, 369}},
            {Champ::Teneur, 0, {2592, 369, 3496, 463}},  {Champ::Libelle, 7, {1424, 528, 3678, 588}},
            {Champ::Data, 1, {1424, 588, 3496, 682}},    {Champ::Libelle, 1, {1424, 747, 2298, 807}},
            {Champ::Data, 2, {1424, 807, 3496, 901}},    {Champ::Libelle, 2, {1424, 966, 2718, 1026}},
            {Champ::Data, 3, {1424, 1026, 3496, 1120}},  {Champ::Libelle, 0, {60, 1370, 960, 1430}},
            {Champ::Qte, 0, {60, 1430, 424, 1524}},      {Champ::Mesure, 0, {434, 1430, 978, 1524}},
            {Champ::Ingre, 0, {988, 1430, 3497, 1524}},  {Champ::Qte, 1, {60, 1524, 424, 1618}},
            {Champ::Mesure, 1, {434, 1524, 978, 1618}},  {Champ::Ingre, 1, {988, 1524, 3497, 1618}},
            {Champ::Libelle, 3, {60, 1718, 960, 1778}},  {Champ::Prepa, 0, {60, 1778, 3574, 2892}},
            {Champ::Libelle, 4, {60, 2992, 2314, 3052}}, {Champ::DureeReal, 0, {60, 3052, 2314, 3146}},
            {Champ::Libelle, 5, {60, 3246, 960, 3306}},  {Champ::Deco, 0, {60, 3306, 3574, 3760}},
        };
        QCOMPARE(pages.front().blocs.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const Bloc &block = pages.front().blocs[i];
            QCOMPARE(std::pair(block.champ, block.index), std::pair(expected[i].champ, expected[i].index));
            QVERIFY2(block.rect == expected[i].rect, qPrintable(QString::number(i)));
        }
        QVERIFY((pages.front().photo == Rect{80, 414, 1154, 1058}));
    }

    void halvesGoToTheEvenNeighbourAndOfTheRoomBesideThePhotoTowardsZero() {
        Mesures mesures = sheet();
        mesures.recette = place(241, 14175, 433);
        mesures.cadrePhoto = place(240, 482, 3975);
        mesures.photo = extent(404, 3735);
        const Page page = Composer(mesures, {7650, 11000}, writing(1, 1)).front();
        QVERIFY((page.blocs.front().rect == Rect{120, 100, 7410, 316}));
        // The frame is 121 pixels wide, the photo 202: half of -81 is -40.
        QCOMPARE(page.photo.left, 120 - 40);
    }

    void whatDoesNotFitGoesOn_data() {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("method"); // lines
        QTest::addColumn<int>("notes");
        QTest::addColumn<QSize>("paper");
        QTest::addColumn<QStringList>("expected"); // sizes of the parts of a text on each page
        const QSize a4(4792, 6849);
        QTest::newRow("nothing is set smaller") << 9 << 15 << 6 << a4 << QStringList{u"P9 D9"_qs};
        QTest::newRow("only the method shrinks") << 9 << 17 << 6 << a4 << QStringList{u"P8 D9"_qs};
        QTest::newRow("notes take the room below") << 9 << 15 << 20 << a4 << QStringList{u"P9 D9"_qs};
        QTest::newRow("and shrink then") << 9 << 15 << 27 << a4 << QStringList{u"P9 D7.5"_qs};
        QTest::newRow("method goes on") << 9 << 70 << 6 << a4 << QStringList{u"P7 D9"_qs, u"P7"_qs};
        QTest::newRow("both go on, the method first")
            << 9 << 120 << 60 << a4 << QStringList{u"P7 D7"_qs, u"P7"_qs, u"P7 D7"_qs};
        QTest::newRow("rows push the notes over") << 24 << 15 << 20 << a4 << QStringList{u"P9"_qs, u"D9"_qs};
        QTest::newRow("rows fill pages") << 100 << 15 << 3 << a4 << QStringList{{}, {}, u"P9 D9"_qs};
        QTest::newRow("paper wider than high")
            << 9 << 15 << 6 << QSize(9700, 6400) << QStringList{u"P8.5"_qs, u"D9"_qs};
    }

    void whatDoesNotFitGoesOn() {
        QFETCH(const int, rows);
        QFETCH(const QSize, paper);
        Mesures mesures = sheet();
        mesures.lignes = rows;
        QStringList parts;
        std::map<Champ, qsizetype> read;
        QFETCH(const int, method);
        QFETCH(const int, notes);
        for (const Page &page : Composer(mesures, {paper.width(), paper.height()}, writing(method, notes))) {
            QStringList sizes;
            QCOMPARE(page.blocs.front().champ, Champ::Recette);
            for (const Bloc &block : page.blocs) {
                const auto covers = [&](const Bloc &other) { return overlap(block.rect, other.rect); };
                QCOMPARE(std::count_if(page.blocs.begin(), page.blocs.end(), covers), 1); // itself
                QVERIFY(block.rect.bottom <= paper.height());
                QVERIFY(!overlap(block.rect, page.photo));
                if (block.champ == Champ::Qte) {
                    QCOMPARE(block.index, read[Champ::Qte]++);
                } else if (block.champ == Champ::Prepa || block.champ == Champ::Deco) {
                    QCOMPARE(block.morceau.debut, std::exchange(read[block.champ], block.morceau.fin));
                    sizes +=
                        (block.champ == Champ::Prepa ? u'P' : u'D') + QString::number(block.morceau.points);
                }
            }
            parts += sizes.join(u' ');
        }
        QTEST(parts, "expected");
        QCOMPARE(read[Champ::Qte], rows);
        QCOMPARE(read[Champ::Prepa], method);
        QCOMPARE(read[Champ::Deco], notes);
    }
};

QTEST_GUILESS_MAIN(TestComposition)
#include "TestComposition.moc"
