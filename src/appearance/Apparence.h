#pragma once

#include "core/ui/FormeOutil.h"

class Demandes;
class PageApparence;
class QTabWidget;

/// How the program looks, a page for each side of it: light or dark, fonts, background. The foot's button applies the
/// page in front.
class Apparence : public FormeOutil
{
    Q_OBJECT

public:
    explicit Apparence(Demandes &demandes);

    /// True for the form and for those of its pages that are asked for by names of their own.
    static bool EstDemandee(Nom nom);
    /// Brings that page to the front; the form's own name stands for the first.
    void ouvrirPage(Nom nom);

    void charger() override;

protected:
    void Traduire() override;

private:
    void ajouterPage(PageApparence *page);
    PageApparence *pageDe(int rang) const;
    void valider();

    Demandes &m_demandes;
    QTabWidget *m_pages = nullptr;
    QPushButton *m_valider = nullptr;
};
