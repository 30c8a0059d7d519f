#pragma once

#include "LivreEssai.h"

#include "sheets/FicheAlbum.h"

#include <QImage>

/// The book fixture with recipes for the sheet, in the order of the list: "Aïoli" with 8 ingredient lines and a photo
/// of one colour, "Beignets" with 2 lines, "Crème" with nothing at all.
class LivreDeFiches : public LivreEssai {
public:
    LivreDeFiches() {
        QImage photo(300, 150, QImage::Format_RGB32);
        photo.fill(Qt::magenta);
        if (!photo.save(path(QStringLiteral("photos/a.png")))) {
            throw std::runtime_error("no photo");
        }
        QStringList statements{
            QStringLiteral("INSERT INTO Categorie VALUES (1, '10 minutes'), (2, '2 heures')"),
            QStringLiteral("INSERT INTO DureeReal VALUES (1, '25 minutes')"),
            QStringLiteral("INSERT INTO Verre (NVerre, Verre) VALUES (1, '4 personnes')"),
            QStringLiteral("INSERT INTO Realisation VALUES (1, 'Entrée froide')"),
            QStringLiteral("INSERT INTO VIN VALUES (1, 'Chinon')"),
            QStringLiteral("INSERT INTO Quantite VALUES (1, '125')"),
            QStringLiteral("INSERT INTO Mesure VALUES (1, 'grammes')"),
            recipe(QStringLiteral("1, 'Aïoli', 1, 1, 'a.png', 1, 'Piler l''ail, afin qu''il prenne.', "
                                  "'Servir très frais.', 1, 2, 1, 1")),
            recipe(QStringLiteral("2, 'Beignets', 2, 1, NULL, 1, NULL, NULL, 1, 2, 1, 1")),
            recipe(QStringLiteral("3, 'Crème', NULL, NULL, NULL, NULL, NULL, NULL, 0, 0, NULL, NULL")),
        };
        for (int i = 1; i <= 10; ++i) {
            statements += QStringLiteral("INSERT INTO Ingredient VALUES (%1, 'Ingrédient%1')").arg(i);
            statements +=
                QStringLiteral("INSERT INTO Ingre VALUES (%1, %2, 1, 1)").arg(i <= 8 ? 1 : 2).arg(i);
        }
        execute(statements);
    }

private:
    static QString recipe(const QString &values) {
        return QStringLiteral("INSERT INTO Cocktails VALUES (%1)").arg(values);
    }
};

/// That book in the main window, which shows the first recipe, and the sheet.
struct FicheOuverte {
    LivreDeFiches book;
    browser::Frmmain window;
    sheets::FicheAlbum sheet{window};

    FicheOuverte() { openView(window, 0); }
};
