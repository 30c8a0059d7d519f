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

    void rectanglesOfAPage() {
        // A quarter of a pixel to the twip.
        const Metrique small{90, 80, 60, writing(1, 1).couper};
        const std::vector<Page> pages = Composer(sheet(), {3825, 5400}, small);
        // Beside the photo, in the last row, and at the end: each stands on what is above it.
        const std::vector<std::pair<std::size_t, Bloc>> expected{
            {0, {Champ::Recette, 0, {60, 100, 3705, 209}}},
            {6, {Champ::Teneur, 0, {2592, 369, 3496, 463}}},
            {12, {Champ::Data, 3, {1424, 1026, 3496, 1120}}},
            {19, {Champ::Ingre, 1, {988, 1524, 3497, 1618}}},
            {23, {Champ::DureeReal, 0, {60, 3052, 2314, 3146}}},
            {25, {Champ::Deco, 0, {60, 3306, 3574, 3760}}},
        };
        for (const auto &[at, block] : expected) {
            const Bloc &placed = pages.front().blocs.at(at);
            QCOMPARE(std::pair(placed.champ, placed.index), std::pair(block.champ, block.index));
            QVERIFY2(placed.rect == block.rect, qPrintable(QString::number(at)));
        }
        QVERIFY((pages.front().photo == Rect{80, 414, 1154, 1058}));
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
