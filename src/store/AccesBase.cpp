#include "AccesBase.h"

#include "FiltreTexte.h"
#include "Livre.h"
#include "Textes.h"

#include <algorithm>
#include <array>

namespace store {

using platform::database::Database;
using platform::database::Recordset;

namespace {

/// True for a text with a tag of the web import, which no choice list shows.
bool porteBalise(const QString &texte) {
    static constexpr std::array<QStringView, 4> kBalises{u"<B>", u"</B>", u"<I>", u"</I>"};
    // Hardly any text holds one: a single look settles nearly all of a list of thousands.
    return texte.contains(u'<') &&
           std::any_of(kBalises.begin(), kBalises.end(),
                       [&texte](QStringView balise) { return texte.contains(balise); });
}

QString fichesDeCle(const QString &table, const QString &colonne, qint64 cle) {
    return u"SELECT * From " + table + u" where " + colonne + u" = " + QString::number(cle);
}

QString ligneIngre(qint64 recette, const LigneIngre &ligne) {
    return u"SELECT * From Ingre where Numero = " + QString::number(recette) + u" and NQuantite = " +
           QString::number(ligne.quantite) + u" and NMesure = " + QString::number(ligne.mesure) +
           u" and NIngre = " + QString::number(ligne.ingredient);
}

void valider(Recordset &fiches) {
    fiches.Update();
    fiches.SetBookmark(fiches.LastModified());
}

qint64 numeroSuivant(Database &base, const QString &table, const QString &colonneCle) {
    Recordset maximum = base.OpenRecordset(u"SELECT max(+" + colonneCle + u") From " + table);
    return maximum.Fields(0).IsNull() ? 1 : maximum.Fields(0).Number() + 1;
}

/// Writes a column of the row of a key, and the key itself, as every change of a row does.
void ecrireFiche(const QString &table, qint64 cle, const QString &colonneCle, int position,
                 const QVariant &valeur) {
    Database base = OuvrirLivre();
    Recordset fiche = base.OpenRecordset(fichesDeCle(table, colonneCle, cle));
    fiche.Edit();
    fiche.Fields(0) = cle;
    fiche.Fields(position) = valeur;
    valider(fiche);
}

} // namespace

QString RequeteListe(QStringView table, QStringView ordre) {
    return u"SELECT * From " + table + u" order by " + ordre + u" asc";
}

Choix LireChoix(const QString &table, const QString &ordre) {
    Database base = OuvrirLivre();
    Recordset fiches = base.OpenRecordset(RequeteListe(table, ordre));
    Choix choix{{}, fiches.RecordCount() == 0};
    for (qsizetype compteur = 0; compteur < fiches.RecordCount(); ++compteur, fiches.MoveNext()) {
        const QString texte = SansBlancs(fiches.Fields(1).Text());
        if (!texte.isEmpty() && !porteBalise(texte)) {
            choix.textes.append(texte);
        }
    }
    return choix;
}

QStringList LireListeSimple(const QString &table, const QString &ordre, int position) {
    Database base = OuvrirLivre();
    Recordset fiches = base.OpenRecordset(u"SELECT * From " + table + u"  order by " + ordre + u" asc");
    QStringList textes;
    for (qsizetype compteur = 0; compteur < fiches.RecordCount(); ++compteur, fiches.MoveNext()) {
        const QString texte = fiches.Fields(position).Text();
        if (!porteBalise(texte)) {
            textes.append(SansBlancs(texte));
        }
    }
    return textes;
}

std::vector<Resultat> LireResultats(const QString &requete, bool enTete, const QString &filtre) {
    FiltreTexte gardes(enTete, filtre);
    Database base = OuvrirLivre();
    Recordset fiches = base.OpenRecordset(requete);
    std::vector<Resultat> resultats;
    for (qsizetype compteur = 0; compteur < fiches.RecordCount(); ++compteur, fiches.MoveNext()) {
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

void ModifierLibelle(const QString &table, qint64 cle, const QString &texte, const QString &colonneCle) {
    ecrireFiche(table, cle, colonneCle, 1, texte);
}

void ModifierChamp(const QString &table, qint64 cle, QVariant &valeur, const QString &colonneCle,
                   int position) {
    if (valeur.toString().isEmpty()) {
        valeur = QStringLiteral(" ");
    }
    ecrireFiche(table, cle, colonneCle, position, valeur);
}

void ModifierSiRenseigne(QVariant &valeur, const QString &table, qint64 cle, int position) {
    if (valeur.toString().isEmpty()) {
        return;
    }
    const bool recette = table == u"Cocktails";
    ModifierChamp(table, cle, valeur, recette ? QStringLiteral("Numero") : QStringLiteral("NVerre"),
                  position);
}

void RemplacerLigneIngre(qint64 recette, const LigneIngre &ancienne, const LigneIngre &nouvelle) {
    Database base = OuvrirLivre();
    // The new line comes first: killed between the two, the program leaves one line too many, never one too few.
    const qsizetype quiPart = ancienne == nouvelle ? 1 : 0;
    if (Recordset lignes = base.OpenRecordset(ligneIngre(recette, nouvelle));
        lignes.RecordCount() <= quiPart) {
        lignes.AddNew();
        lignes.Fields(u"Numero") = recette;
        lignes.Fields(u"NQuantite") = nouvelle.quantite;
        lignes.Fields(u"NMesure") = nouvelle.mesure;
        lignes.Fields(u"NIngre") = nouvelle.ingredient;
        valider(lignes);
    }
    if (Recordset lignes = base.OpenRecordset(ligneIngre(recette, ancienne)); lignes.RecordCount() > 0) {
        lignes.Delete();
    }
}

void SupprimerFiches(const QString &table, qint64 valeur, const QString &colonne) {
    Database base = OuvrirLivre();
    while (true) {
        Recordset fiches = base.OpenRecordset(fichesDeCle(table, colonne, valeur));
        if (fiches.RecordCount() == 0) {
            return;
        }
        fiches.Delete();
    }
}

void AjouterFiche(const QString &texte, const QString &table, const QString &colonneCle) {
    Database base = OuvrirLivre();
    const qint64 numero = numeroSuivant(base, table, colonneCle);
    Recordset fiches = base.OpenRecordset(u"SELECT * From " + table);
    fiches.AddNew();
    fiches.Fields(0) = numero;
    fiches.Fields(1) = texte;
    if (table == u"Verre") {
        for (int position = 2; position <= 4; ++position) {
            fiches.Fields(position) = QStringLiteral(" ");
        }
    }
    valider(fiches);
}

void RechercherNumero(const QString &texte, qint64 &numero, const QString &table, const QString &colonneCle) {
    Database base = OuvrirLivre();
    Recordset trouvees = base.OpenRecordset(u"SELECT * From " + table + u" where " + table + u" = '" +
                                            DoublerApostrophes(texte) + u"' order by " + table + u" asc");
    if (texte.isEmpty()) {
        return;
    }
    if (trouvees.RecordCount() > 0) {
        numero = trouvees.Fields(0).Number();
        return;
    }
    numero = numeroSuivant(base, table, colonneCle);
    Recordset fiches = base.OpenRecordset(u"SELECT * From " + table);
    fiches.AddNew();
    fiches.Fields(0) = numero;
    fiches.Fields(1) = texte == LignePointillee ? QStringLiteral(" ") : texte;
    valider(fiches);
}

} // namespace store
