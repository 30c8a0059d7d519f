// livre SOURCES PICTURES OUTPUT: makes the book that is delivered, db.mdb and photos/, from readable texts.
//
// SOURCES/vocabulaires/<table>.txt holds the texts of a lookup table, one a line; their places are their
// numbers. SOURCES/recettes/*.txt hold a recipe each, numbered in the order of their names:
//
//   Titre : Le Gratin dauphinois           nine fields, see RecipeText.cpp; times, persons, dish type and wine
//   Durée cuisson : 1 heure 15             are texts of the vocabularies, cost and difficulty class names
//   Dessin : gratin-dauphinois             its picture is PICTURES/gratin-dauphinois.jpg
//   == Ingrédients ==
//   Pour la garniture :                    an ingredient alone; with a ":" at its end it is a heading
//   40 | cl de | lait entier               quantity, measure, ingredient; the first two may be empty
//   == Préparation ==
//   1. First step ...                      markup, see Markup.h
//   == Compléments ==
//   **Variante.** Some *other* way ...
#include "BookWriter.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <exception>

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // documents need an application, a build machine has no display
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("usage: livre SOURCES PICTURES OUTPUT\n", stderr);
        return EXIT_FAILURE;
    }
    try {
        writeBook({arguments[1], arguments[2], arguments[3]});
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
