#pragma once

#include "platform/controls/ListView.h"

#include <QString>
#include <optional>

namespace browser {

class Frmmain;

/// What Outils(2).Tag holds: which list names the current recipe, the upper or the lower one.
inline const QString kHaut = QStringLiteral("H");
inline const QString kBas = QStringLiteral("B");

/// What the right side of the main window shows: nothing, the theme of a group, or a recipe, which hides that theme.
/// It alone shows and hides Scroll(0), Cadre(1), Outils(2), LBtn(2), titles them in LTDroit, and remembers the recipe,
/// the list that names it and the row of Liste that was acted on last. A list that is emptied takes its recipe along.
class Volet {
public:
    explicit Volet(Frmmain &frm);

    Volet(const Volet &) = delete;
    Volet &operator=(const Volet &) = delete;

    /// Puts the recipe away, with the tool that opens its sheet; the theme of its group is what remains.
    void Quitter();

    /// Shows the theme picture of a view, and no recipe.
    void MontrerTheme(int vue);

    /// The same for a group of that view, whose name is the title.
    void MontrerGroupe(int vue, const QString &nom);

    /// Shows a recipe that the selected row of a list names, kHaut or kBas. Throws what ChargerRecette throws.
    void MontrerRecette(const QString &liste, qint64 numero, const QString &titre);

    /// Shows a recipe under the title of a group, without the tool of its sheet: it has the number of the group that
    /// takes the place of a deleted one. Where no recipe has it the theme stays: what is typed must have a place to go.
    void MontrerSansOutil(qint64 numero);

    /// Number of the recipe shown, on which every change acts. Throws std::out_of_range when there is none.
    qint64 Numero() const;

    /// Notes the list on which the menu acts: kHaut, kBas or nothing, which stands for a group.
    void Designer(const QString &liste);

    /// Whether the lower list is the one that names the current recipe, and on which the menu acts.
    bool EnBas() const;

    /// That list.
    platform::controls::List &Liste();

    /// Key of the row of Liste that was acted on last; empty where that must not be taken for the present one.
    const QString &CleCourante() const { return m_cle; }

    void Retenir(const QString &cle) { m_cle = cle; }

private:
    void MontrerOutil(bool visible);
    void Suivre(const QString &nom, const platform::controls::List &liste);
    void ListeVidee(const QString &nom);

    Frmmain &m_frm;
    std::optional<qint64> m_recette;
    QString m_cle;
    QString m_groupe; // name of the group whose theme is shown
};

} // namespace browser
