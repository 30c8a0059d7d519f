// Kills a program that changes a recipe at each of its waits for the disk, and looks after each kill whether the book
// opens and holds the former value or the new one; the new one, once the window has gone on.

#include "KilledAtWait.h"
#include "LivreEssai.h"

#include "browser/Fiche.h"
#include "platform/richtext/RichText.h"

#include <QApplication>

#include <array>
#include <cstdio>

using namespace browser;
using namespace platform::controls;

namespace {

void choose(Ribbon &button, DropList &list, const QString &text) {
    button.SetValue(true);
    list.AddItems({text});
    list.setCurrentIndex(list.findText(text));
    Q_EMIT list.activated(list.currentIndex());
}

/// A kind of change: where the book holds it, and how it is done.
struct Kind {
    QString query;
    void (*change)(Frmmain &, const QString &);
};

const std::array kKinds{
    Kind{u"SELECT c.NCategorie, c.Categorie From Categorie c, Cocktails r"
         " where r.Numero = 1 and c.NCategorie = r.NCategorie"_qs,
         [](Frmmain &frm, const QString &value) {
             frm.Data(6).SetValue(true);
             frm.LCategorie.SetText(value);
             Q_EMIT frm.LCategorie.EnterPressed();
         }},
    Kind{u"SELECT Numero, preparation From Cocktails where Numero = 1"_qs,
         [](Frmmain &frm, const QString &value) {
             frm.Saisie(0).selectAll();
             frm.Saisie(0).insertPlainText(value);
         }},
    Kind{u"SELECT q.NQuantite, q.Quantite From Quantite q, Ingre l"
         " where l.Numero = 1 and l.NIngre = 1 and q.NQuantite = l.NQuantite order by q.NQuantite desc"_qs,
         [](Frmmain &frm, const QString &value) { choose(frm.Quantite(0), frm.LQuantite, value); }},
    Kind{u"SELECT Numero, Recette From Cocktails where Numero = 1"_qs,
         [](Frmmain &frm, const QString &value) { RenommerListe(frm, 1, value); }},
};

/// What the book holds now where a kind of change writes.
QString stored(const Kind &kind) {
    return platform::richtext::plainText(LivreEssai::text(kind.query));
}

} // namespace

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const LivreEssai book;
    LivreEssai::addTarte();
    LivreEssai::execute({u"INSERT INTO Ingre VALUES (1, 1, 1, 1)"_qs});
    const QByteArray before = LivreEssai::bytes();
    const QString fresh = u"essai"_qs;
    int kills = 0;
    for (const Kind &kind : kKinds) {
        writeFile(store::CheminBase(), before);
        const QString former = stored(kind);
        bool ended = false;
        for (int wait = 0; !ended; ++wait) {
            ended = survives(before, [&] {
                const QApplication application(argc, argv);
                Frmmain frm;
                openView(frm, 0);
                waitsLeft() = wait;
                kind.change(frm, fresh);
                _exit(EXIT_SUCCESS);
            });
            const QString value = stored(kind);
            if (value != fresh && (ended || value != former)) {
                std::fprintf(stderr, "« %s » stored at wait %d\n", qPrintable(value), wait);
                return EXIT_FAILURE;
            }
            kills += ended ? 0 : 1;
        }
    }
    std::printf("%d kills\n", kills);
    return kills > int(2 * kKinds.size()) ? EXIT_SUCCESS : EXIT_FAILURE;
}
