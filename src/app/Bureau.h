#pragma once

#include "acts/Demandes.h"
#include "acts/Historique.h"
#include "app/Options.h"
#include "core/Catalogues.h"
#include "core/ui/Forme.h"

#include <map>

class Frmmain;
class Pop;

/// The one place that knows all forms: it makes each on first use, and answers what they wish.
class Bureau : public QObject
{
    Q_OBJECT

public:
    explicit Bureau(const Options &options);
    ~Bureau() override;

    void demarrer();

    Demandes &demandes() { return m_demandes; }
    /// The form, made if need be; not shown. Throws Error, and then there is none.
    Forme *ouvrir(Forme::Nom nom);
    /// The entry whose sheet the main window shows; its identifier is 0 when there is none.
    General::Entree courante();

private:
    template <class F>
    F &forme(Forme::Nom nom);
    Frmmain &fenetre();
    std::unique_ptr<Forme> fabriquer(Forme::Nom nom);
    /// Lets a form follow the entry that the main window shows.
    template <class F>
    std::unique_ptr<Forme> suivre(std::unique_ptr<F> forme);
    void montrer(Forme::Nom nom);
    void placer(Forme::Nom nom, Forme &voulue);

    void repondre();
    void repondreAuxFiches();
    void brancherFenetre();
    void brancherHistorique();

    /// Opens the form in which a field's value is entered or chosen.
    void editer(const Edition &edition);
    void ouvrirMenu(const Edition &edition, const QPoint &point);
    /// The context menu, made when it is first asked for.
    Pop &pop();
    /// True of a collection that can only be read, which is said.
    bool seLitSeulement();
    void poserEtapes();
    void montrerEtape(const Etape &etape, const QString &message);
    void retourner();

    void chargerTextes();
    void choisirLangue(const QString &fichier);
    void annoncerLangue();
    void proposerReprise();
    void proposerFichier(const QString &chemin);
    void recevoirFichier(const QString &chemin);
    void appliquerApparence();
    void premierDemarrage();
    void sauvegarderCopie();

    Options m_options;
    Catalogues m_catalogues;
    Historique m_historique;
    Demandes m_demandes;
    std::map<Forme::Nom, std::unique_ptr<Forme>> m_formes; ///< those that have been made
    std::unique_ptr<Pop> m_pop;
};
