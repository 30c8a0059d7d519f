#pragma once

#include <QString>

#include <array>

/// What belongs to whoever publishes the program: names and addresses. A build takes others by defining the macros,
/// as in -DSAVOREL_AUTEUR='u"https://auteur.example"'. An address without a scheme is a file of the program's folder;
/// the defaults are pages that travel with the program.
#ifndef SAVOREL_AUTEUR
#define SAVOREL_AUTEUR u"aide/auteur.htm"
#endif
#ifndef SAVOREL_PARTENAIRE
#define SAVOREL_PARTENAIRE u"latablededemain.example"
#endif
#ifndef SAVOREL_PARTENAIRE_ACCUEIL
#define SAVOREL_PARTENAIRE_ACCUEIL u"facile"
#endif
#ifndef SAVOREL_LIENS
#define SAVOREL_LIENS                                                                                        \
    {u"Premiers pas", u"Ouvrir le livre, choisir une vue, lire une recette", u"aide/index.htm"},             \
        {u"Modifier", u"Changer une recette là où elle est affichée", u"aide/modifier.htm"},                 \
        {u"Ajouter", u"Créer une recette à la main ou depuis une page web", u"aide/ajouter.htm"},            \
        {u"Images", u"Numériser, tourner et ranger les photos", u"aide/images.htm"},                         \
        {u"Imprimer", u"Consulter et imprimer les fiches de recettes", u"aide/fiches.htm"},                  \
        {u"Conserver", u"Sauvegarder le livre, le restaurer, reprendre un ancien livre",                     \
         u"aide/sauvegarder.htm"},
#endif

namespace store {

/// Site of the author.
inline constexpr QStringView kAuteurSite = SAVOREL_AUTEUR;

/// Host of the partner's recipe site: its name, and a word that each of its own full addresses holds.
inline constexpr QStringView PartnerSiteHost = SAVOREL_PARTENAIRE;

/// Home of the partner's site, without a closing slash.
inline constexpr QStringView PartnerSiteHome = SAVOREL_PARTENAIRE_ACCUEIL;

/// A link of the opening screen.
struct Lien {
    QStringView titre, description, adresse;
};

inline constexpr auto kLiens = std::to_array<Lien>({SAVOREL_LIENS});

/// A configured address in full: as it stands if it has a scheme, else the URL of a file of the program's folder.
QString AdresseComplete(QStringView adresse);

} // namespace store
