#include "AccesBase.h"

#include "FiltreTexte.h"
#include "Livre.h"
#include "Textes.h"
#include "TrouverOuCreer.h"

#include <algorithm>
#include <array>

namespace store {

using platform::database::Database;
using platform::database::Recordset;

namespace {

/// True for a text with a tag of the web import, which no choice list shows.
bool PorteBalise(const QString &texte) {
    static constexpr std::array<QStringView, 4> kBalises{u"<B>", u"</B>", u"<I>", u"</I>"};
    // Hardly any text holds one: a single look settles nearly all of a list of thousands.
    return texte.contains(u'<') &&
           std::any_of(kBalises.begin(), kBalises.end(),
                       [&texte](QStringView balise) { return texte.contains(balise); });
}

QString RequeteFiche(const Table &table, qint64 cle) {
    return u"SELECT * From " + table.nom + u" where " + table.Cle() + u" = " + QString::number(cle);
}

QString RequeteLigne(qint64 recette, const LigneIngre &ligne) {
    return u"SELECT * From Ingre where Numero = " + QString::number(recette) + u" and NQuantite = " +
           QString::number(ligne.quantite) + u" and NMesure = " + QString::number(ligne.mesure) +
           u" and NIngre = " + QString::number(ligne.ingredient);
}

void Valider(Recordset &fiches) {
    fiches.Update();
    fiches.SetBookmark(fiches.LastModified());
}

/// Writes a column of the row of a key, and the key itself, as every change of a row does.
void EcrireFiche(const Table &table, qint64 cle, int position, const QVariant &valeur) {
    Database base = OuvrirLivre();
    Recordset fiche = base.OpenRecordset(RequeteFiche(table, cle));
    fiche.Edit();
    fiche.Fields(0) = cle;
    fiche.Fields(position) = valeur;
    Valider(fiche);
}

} // namespace

QString RequeteListe(const Table &table) {
    return u"SELECT * From " + table.nom + u" order by " + table.Texte() + u" asc";
}

QStringList ChargerCombo(const Table &table) {
    Database base = OuvrirLivre();
    Recordset fiches = base.OpenRecordset(RequeteListe(table));
    if (fiches.RecordCount() == 0) {
        return {};
    }
    QStringList textes;
    for (; !fiches.AtEnd(); fiches.MoveNext()) {
        const QString texte = SansBlancs(fiches.Fields(1).Text());
        if (!texte.isEmpty() && !PorteBalise(texte)) {
            textes.append(texte);
        }
    }
    textes.append(LignePointillee.toString());
    return textes;
}

QStringList ChargerListeSimple(const Table &table) {
    Database base = OuvrirLivre();
    QStringList textes;
    for (Recordset fiches = base.OpenRecordset(RequeteListe(table)); !fiches.AtEnd(); fiches.MoveNext()) {
        const QString texte = fiches.Fields(1).Text();
        if (!PorteBalise(texte)) {
            textes.append(SansBlancs(texte));
        }
    }
    return textes;
}

std::vector<Resultat> ChargerResultats(const QString &requete, bool enTete, const QString &filtre) {
    FiltreTexte gardes(enTete, filtre);
    Database base = OuvrirLivre();
    Recordset fiches = base.OpenRecordset(requete);
    std::vector<Resultat> resultats;
    for (; !fiches.AtEnd(); fiches.MoveNext()) {
        if (!gardes.Garde(fiches.Fields(1).Utf8())) {
            continue;
        }
        const QString texte = fiches.Fields(1).Text();
        if (!texte.contains(u"</")) {
            resultats.push_back({CleDeListe(fiches.Fields(0).Number()), texte});
        }
    }
    return resultats;
}

void ModifierLibelle(const Table &table, qint64 cle, const QString &texte) {
    EcrireFiche(table, cle, 1, texte);
}

void ModifierChamp(qint64 recette, ChampRecette champ, const QVariant &valeur) {
    EcrireFiche(kCocktails, recette, Position(champ),
                valeur.toString().isEmpty() ? QVariant(QStringLiteral(" ")) : valeur);
}

void ModifierSiRenseigne(qint64 recette, ChampRecette champ, const QString &valeur) {
    if (!valeur.isEmpty()) {
        ModifierChamp(recette, champ, valeur);
    }
}

void RemplacerLigneIngre(qint64 recette, const LigneIngre &ancienne, const LigneIngre &nouvelle) {
    Database base = OuvrirLivre();
    // The new line comes first: killed between the two, the program leaves one line too many, never one too few.
    const qsizetype quiPart = ancienne == nouvelle ? 1 : 0;
    if (Recordset lignes = base.OpenRecordset(RequeteLigne(recette, nouvelle));
        lignes.RecordCount() <= quiPart) {
        lignes.AddNew();
        lignes.Fields(u"Numero") = recette;
        lignes.Fields(u"NQuantite") = nouvelle.quantite;
        lignes.Fields(u"NMesure") = nouvelle.mesure;
        lignes.Fields(u"NIngre") = nouvelle.ingredient;
        Valider(lignes);
    }
    if (Recordset lignes = base.OpenRecordset(RequeteLigne(recette, ancienne)); lignes.RecordCount() > 0) {
        lignes.Delete();
    }
}

void SupprimerFiches(const Table &table, qint64 valeur) {
    Database base = OuvrirLivre();
    while (true) {
        Recordset fiches = base.OpenRecordset(RequeteFiche(table, valeur));
        if (fiches.RecordCount() == 0) {
            return;
        }
        fiches.Delete();
    }
}

void AjouterFiche(const QString &texte, const Table &table) {
    Database base = OuvrirLivre();
    AjouterTexte(base, table, texte, Surplus::Blancs);
}

std::optional<qint64> RechercherNumero(const QString &texte, const Table &table) {
    Database base = OuvrirLivre();
    return TrouverOuCreer(base, table, texte, texte == LignePointillee ? QStringLiteral(" ") : texte).numero;
}

} // namespace store
