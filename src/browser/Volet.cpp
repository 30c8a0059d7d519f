#include "Volet.h"

#include "Fiche.h"
#include "Frmmain.h"

#include "platform/images/ResourcePicture.h"

#include <stdexcept>

namespace browser {

Volet::Volet(Frmmain &frm) : m_frm(frm) {
    Suivre(kHaut, frm.Liste);
    Suivre(kBas, frm.LFilms);
}

void Volet::Suivre(const QString &nom, const platform::controls::List &liste) {
    QObject::connect(liste.model(), &QAbstractItemModel::modelReset, &m_frm,
                     [this, nom] { ListeVidee(nom); });
    QObject::connect(liste.model(), &QAbstractItemModel::rowsRemoved, &m_frm, [this, nom, &liste] {
        if (liste.Count() == 0) {
            ListeVidee(nom);
        }
    });
}

/// The list was reloaded or has lost its last row, so none of its rows names anything.
void Volet::ListeVidee(const QString &nom) {
    if (nom == kHaut) {
        m_cle.clear();
        m_groupe.clear();
        Quitter();
    } else if (EnBas()) {
        Quitter();
    }
}

void Volet::Quitter() {
    CacherListeModif(m_frm);
    m_frm.Scroll(0).hide();
    MontrerOutil(false);
    m_frm.LTDroit.SetCaption(m_groupe);
    m_recette.reset();
}

void Volet::MontrerTheme(int vue) {
    Quitter();
    m_frm.Cadre(1).SetPicture(
        platform::images::resourcePicture(QStringLiteral(":/themes/vue-%1.png").arg(vue)).toImage());
    m_frm.Cadre(1).show();
}

void Volet::MontrerGroupe(int vue, const QString &nom) {
    m_groupe = nom;
    MontrerTheme(vue);
    m_frm.Scroll(1).setToolTip(QStringLiteral("Une photo illustrant le thème"));
}

void Volet::MontrerRecette(const QString &liste, qint64 numero, const QString &titre) {
    if (liste == kHaut) {
        m_groupe.clear();
        m_frm.Scroll(1).setToolTip({});
        m_frm.Cadre(1).hide();
    }
    ChargerRecette(m_frm, numero);
    m_recette = numero;
    m_frm.LTDroit.SetCaption(titre);
    Designer(liste);
    MontrerOutil(true);
    ChargerLesListesCombo(m_frm);
    m_frm.Scroll(0).show();
}

void Volet::MontrerSansOutil(qint64 numero) {
    if (ChargerRecette(m_frm, numero)) {
        m_recette = numero;
        m_frm.Scroll(0).show();
    }
}

qint64 Volet::Numero() const {
    if (!m_recette) {
        throw std::out_of_range("Aucune recette n'est affichée.");
    }
    return *m_recette;
}

void Volet::Designer(const QString &liste) {
    m_frm.Outils(2).SetTag(liste);
}

bool Volet::EnBas() const {
    return m_frm.Outils(2).Tag() == kBas;
}

platform::controls::List &Volet::Liste() {
    return EnBas() ? m_frm.LFilms : m_frm.Liste;
}

void Volet::MontrerOutil(bool visible) {
    m_frm.Outils(2).setVisible(visible);
    m_frm.LBtn(2).setVisible(visible);
}

} // namespace browser
