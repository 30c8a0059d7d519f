#include "RecipeTexts.h"

#include <QString>

#include <array>
#include <random>

namespace bench {

namespace {

// clang-format off
constexpr std::array kDishes{
    u"Gratin", u"Tarte", u"Crème", u"Velouté", u"Pâté", u"Soufflé", u"Œufs cocotte", u"Quiche", u"Ragoût", u"Salade",
    u"Soupe", u"Terrine", u"Galettes", u"Beignets", u"Éclairs", u"Purée", u"Civet", u"Fricassée", u"Flan", u"Feuilleté",
    u"Tourte", u"Cassolette", u"Poêlée", u"Brochettes", u"Rôti",
};
constexpr std::array kMains{
    u"courgettes", u"poireaux", u"pêches", u"bœuf", u"poulet", u"veau", u"cabillaud", u"saumon", u"crevettes",
    u"pommes", u"châtaignes", u"céleri", u"carottes", u"fèves", u"lentilles", u"chèvre frais", u"reblochon", u"potiron",
    u"betteraves", u"cèpes", u"girolles", u"lapin", u"canard", u"moules", u"sardines", u"tomates", u"fenouil",
    u"navets", u"mûres", u"rhubarbe",
};
constexpr std::array kManners{
    u"à la crème", u"au miel", u"aux herbes", u"à l'ancienne", u"à l'échalote", u"au vin blanc", u"aux noisettes",
    u"à la sarriette", u"au four", u"de ma grand-mère", u"en croûte", u"aux épices", u"à la moutarde", u"au gingembre",
    u"façon bistrot", u"du dimanche", u"à l'orange", u"aux câpres", u"au beurre salé", u"à la provençale",
    u"aux deux fromages", u"au thym", u"à la tomate", u"aux olives", u"en cocotte", u"à la poêle", u"aux pruneaux",
    u"à l'ail doux", u"au citron confit", u"à la bière", u"aux lardons", u"au poivre vert", u"à la menthe",
    u"en gelée", u"aux amandes", u"à la vanille", u"au caramel", u"aux zestes", u"d'été", u"d'hiver",
};
// clang-format on
constexpr std::array kSteps{
    u"Épluchez les légumes et coupez-les en dés réguliers.",
    u"Faites fondre le beurre à feu doux sans le laisser brunir.",
    u"Ajoutez la crème, salez, poivrez et mélangez délicatement.",
    u"Préchauffez le four à 180 degrés (thermostat six).",
    u"Laissez mijoter à couvert, en remuant de temps en temps.",
    u"Égouttez, puis réservez au chaud pendant la suite.",
    u"Battez les œufs en omelette et versez-les sur la préparation.",
    u"Parsemez de persil haché juste avant de servir.",
    u"Étalez la pâte, garnissez le moule et piquez le fond.",
    u"Goûtez, rectifiez l'assaisonnement et servez aussitôt.",
};

constexpr int kShortestText = 1100; // bytes of RTF
constexpr int kLongestText = 3900;
constexpr int kLongText = 14'000;
// Prime, so that neighbours in number are not neighbours in the alphabet, and no title comes twice.
constexpr std::size_t kStride = 7919;

QByteArray escaped(QStringView text) {
    QByteArray rtf;
    for (const QChar c : text) {
        if (c == u'œ') {
            rtf += "\\'9c"; // of code page 1252
        } else if (c.unicode() < 0x80) {
            rtf += c.toLatin1();
        } else {
            rtf += "\\'" + QByteArray::number(c.unicode(), 16);
        }
    }
    return rtf;
}

QByteArray rtfOfSize(std::mt19937 &random, int size) {
    QByteArray rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Verdana;}}\r\n"
                     "{\\colortbl ;\\red160\\green250\\blue255;\\red255\\green255\\blue0;}\r\n"
                     "\\viewkind4\\uc1\\pard\\cf1\\lang1036\\f0\\fs18 ";
    for (int paragraph = 1; rtf.size() < size; ++paragraph) {
        const auto &step = kSteps[random() % kSteps.size()];
        rtf += "\\cf2\\b " + QByteArray::number(paragraph) + ".\\cf1\\b0  " + escaped(step) + ' ' +
               escaped(kSteps[random() % kSteps.size()]) + "\\par\r\n";
    }
    return rtf + "}\r\n";
}

} // namespace

QByteArray recipeTitle(int number) {
    constexpr std::size_t kTitles = kDishes.size() * kMains.size() * kManners.size();
    const std::size_t place = static_cast<std::size_t>(number) * kStride % kTitles;
    const std::size_t pair = place / kDishes.size();
    const QString title = QStringView(kDishes[place % kDishes.size()]) + u" de " +
                          QStringView(kMains[pair % kMains.size()]) + u' ' +
                          QStringView(kManners[pair / kMains.size()]);
    return title.toUtf8();
}

QByteArray lookupText(int number) {
    const auto place = static_cast<std::size_t>(number);
    const QString text = QStringView(kMains[place * kStride % kMains.size()]) + u' ' +
                         QStringView(kManners[place % kManners.size()]) + u" n° " + QString::number(number);
    return text.toUtf8();
}

QByteArray recipeRtf(int seed) {
    std::mt19937 random(static_cast<unsigned>(seed));
    const int size = std::uniform_int_distribution(kShortestText, kLongestText)(random);
    return rtfOfSize(random, size);
}

QByteArray longRecipeRtf() {
    std::mt19937 random;
    return rtfOfSize(random, kLongText);
}

} // namespace bench
