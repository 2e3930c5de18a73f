#pragma once

#include "acts/Historique.h"
#include "app/Options.h"
#include "core/Catalogues.h"
#include "core/ui/Forme.h"

#include <functional>
#include <map>

struct Edition;
class Frmmain;
class Pop;
class Splash;

/// The one place that knows all forms: it makes each on first use and connects what they wish to what there is.
class Bureau : public QObject
{
    Q_OBJECT

public:
    explicit Bureau(const Options &options);
    ~Bureau() override;

    void demarrer();

private:
    /// Says how a form is made; only forms that were said so exist.
    template <class F>
    void declarer(Forme::Nom nom);
    template <class F>
    F *forme(Forme::Nom nom)
    {
        return static_cast<F *>(ouvrir(nom));
    }
    /// Connects the wishes and slots that a form has, whichever they are.
    template <class F>
    void brancher(F *forme);
    void brancherParticuliers();

    bool existe(Forme::Nom nom) const { return m_fabriques.contains(nom); }
    /// The form, made if need be; not shown.
    Forme *ouvrir(Forme::Nom nom);
    void montrer(Forme::Nom nom);

    /// Opens the form in which a field's value is entered or chosen.
    void editer(const Edition &edition);
    /// The context menu, made when it is first asked for.
    Pop &pop();
    void poserEtapes();
    void montrerEtape(const Etape &etape, const QString &message);

    void chargerTextes();
    void choisirLangue(const QString &fichier);
    void annoncerLangue();
    void proposerReprise();
    void proposerFichier(const QString &chemin);
    void recevoirFichier(const QString &chemin);
    void appliquerApparence();
    void premierDemarrage();
    void sauvegarderCopie();
    void capturer();
    void montrerPourCapture(Forme::Nom nom);
    void capturerEntree(Frmmain &fenetre, int id);
    void enregistrerCapture(QWidget *fenetre);

    Options m_options;
    Catalogues m_catalogues;
    Historique m_historique;
    std::map<Forme::Nom, std::function<Forme *()>> m_fabriques;
    std::map<Forme::Nom, std::unique_ptr<Forme>> m_formes;
    std::vector<std::function<void()>> m_apparences; ///< of the forms that have been made
    std::unique_ptr<Pop> m_pop;
    std::map<Forme::Nom, std::function<void()>> m_chargements; ///< what is to be read when a form is shown
};
