#pragma once

#include "core/ui/FormeOutil.h"
#include "reports/MiseEnPage.h"

#include <array>

class ChoixColonnes;
class QLabel;
class QPrinter;
class QPushButton;
class QRadioButton;
class QTableWidget;
class TitreGroupe;

/// Lists on paper and in files: which entries, which columns, in which order, and into what.
class Impression : public FormeOutil
{
    Q_OBJECT

public:
    /// `liste` says what the list of the main window shows.
    explicit Impression(std::function<General::Selection()> liste);

    /// Takes up the list and the sheet that the main window shows. Throws Error.
    void charger() override;
    /// The entry of the sheet shown; number 0 when there is none.
    void poserCourante(General::Entree entree);

protected:
    void Traduire() override;
    bool event(QEvent *evenement) override;

private:
    enum class Portee { Collection, Liste, Fiche };
    enum class Sortie { Html, Texte, Pdf, Csv };
    using Ecriture = std::function<bool(const QString &, const Listage::Tableau &, const Sorties::Avance &)>;

    QWidget *construireChoix();
    QWidget *construireExemple();
    QWidget *construireSorties();

    Portee portee() const;
    General::Tri tri() const;
    void proposerPortees();
    void relireListe();
    Listage::Tableau tableau() const;
    void montrerExemple();
    void changer();

    void ecrire(Sortie sortie);
    void imprimer();
    void montrerApercu();
    bool accepterLargeur(const Listage::Tableau &liste);
    static void preparer(QPrinter &imprimante, const Listage::Tableau &liste);
    bool travailler(const std::function<bool(const Sorties::Avance &)> &travail);

    std::function<General::Selection()> m_liste;
    General::Entree m_courante;
    General::Selection m_montree;

    std::array<TitreGroupe *, 3> m_groupes{};
    ChoixColonnes *m_colonnes = nullptr;
    std::array<QRadioButton *, 3> m_portees{};
    std::array<QRadioButton *, 2> m_ordres{};
    QTableWidget *m_exemple = nullptr;
    QLabel *m_nombre = nullptr;
    std::array<QPushButton *, 4> m_sorties{};
    QPushButton *m_imprimer = nullptr;
    QPushButton *m_apercu = nullptr;
};
