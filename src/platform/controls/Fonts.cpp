#include "Fonts.h"

#include "ControlTable.h"

#include <QStringList>
#include <algorithm>

namespace platform::controls {

namespace {

QStringList families(Face face) {
    switch (face) {
    case Face::Verdana:
        return {QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")};
    case Face::SansSerif:
        return {QStringLiteral("Microsoft Sans Serif"), QStringLiteral("Liberation Sans")};
    case Face::Comic:
        return {QStringLiteral("Comic Sans MS"), QStringLiteral("Comic Neue")};
    }
    return {};
}

constexpr int kTwipsPerPoint = 20;

} // namespace

QFont interfaceFont(Face face, double points, bool bold) {
    QFont font(families(face));
    font.setPixelSize(std::max(1, Twips(points * kTwipsPerPoint).pixels()));
    font.setBold(bold);
    return font;
}

void substituteFonts() {
    for (const Face face : {Face::Verdana, Face::SansSerif, Face::Comic}) {
        const QStringList names = families(face);
        QFont::insertSubstitutions(names.first(), names.mid(1));
    }
}

} // namespace platform::controls
