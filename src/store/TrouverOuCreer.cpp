#include "TrouverOuCreer.h"

#include "Textes.h"

namespace store {

using platform::database::Database;
using platform::database::Recordset;

qint64 NumeroSuivant(Database &livre, const Table &table) {
    Recordset maximum = livre.OpenRecordset(u"SELECT max(+" + table.Cle() + u") From " + table.nom);
    return maximum.Fields(0).IsNull() ? 1 : maximum.Fields(0).Number() + 1;
}

std::optional<qint64> AjouterTexte(Database &livre, const Table &table, const QString &texte, Surplus surplus,
                                   const Etapes &etapes) {
    std::optional<qint64> numero;
    etapes.Executer([&] { numero = NumeroSuivant(livre, table); });
    std::optional<Recordset> lignes;
    etapes.Executer([&] { lignes = livre.OpenRecordset(u"SELECT * From " + table.nom); });
    if (!lignes) {
        return numero;
    }
    const auto ecrire = [&](int place, const QVariant &valeur) {
        etapes.Executer([&] { lignes->Fields(place) = valeur; });
    };
    etapes.Executer([&] { lignes->AddNew(); });
    if (numero) {
        ecrire(0, *numero);
    }
    ecrire(1, texte);
    for (int place = 2; surplus == Surplus::Blancs && place < static_cast<int>(table.champs.size());
         ++place) {
        ecrire(place, QStringLiteral(" "));
    }
    etapes.Executer([&] { lignes->Update(); });
    etapes.Executer([&] { lignes->SetBookmark(lignes->LastModified()); });
    return numero;
}

NumeroDeTexte TrouverOuCreer(Database &livre, const Table &table, const QString &texte,
                             const QString &aEcrire, const Etapes &etapes) {
    if (texte.isEmpty()) {
        return {};
    }
    std::optional<Recordset> trouvees;
    etapes.Executer([&] {
        trouvees = livre.OpenRecordset(u"SELECT * From " + table.nom + u" where " + table.Texte() + u" = '" +
                                       DoublerApostrophes(texte) + u"' order by " + table.Texte() + u" asc");
    });
    if (!trouvees) {
        return {};
    }
    if (trouvees->RecordCount() == 0) {
        return {AjouterTexte(livre, table, aEcrire, Surplus::Nuls, etapes), true};
    }
    std::optional<qint64> numero;
    etapes.Executer([&] { numero = trouvees->Fields(0).Number(); });
    return {numero};
}

} // namespace store
