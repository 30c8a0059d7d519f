#include "sheets/Composition.h"

#include <QTest>

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

} // namespace

class TestComposition : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void everyRectangleOfAPage() {
        // A quarter of a pixel to the twip.
        const Page page = Composer(sheet(), 3825);
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
        QCOMPARE(page.blocs.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            QVERIFY2(page.blocs[i] == expected[i], qPrintable(QStringLiteral("block %1").arg(i)));
        }
        QVERIFY((page.photo == Rect{80, 414, 1154, 1058}));
    }

    void halvesGoToTheEvenNeighbourAndOfTheRoomBesideThePhotoTowardsZero() {
        Mesures mesures = sheet();
        mesures.recette = place(241, 14175, 433);
        mesures.cadrePhoto = place(240, 482, 3975);
        mesures.photo = extent(404, 3735);
        const Page page = Composer(mesures, 7650);
        QVERIFY((page.blocs.front().rect == Rect{120, 100, 7410, 316}));
        // The frame is 121 pixels wide, the photo 202: half of -81 is -40.
        QCOMPARE(page.photo.left, 120 - 40);
    }
};

QTEST_GUILESS_MAIN(TestComposition)
#include "TestComposition.moc"
