#include "acts/Acte.h"

#include "core/Error.h"
#include "db/Connexion.h"
#include "db/Retour.h"
#include "db/files/Sauvegardes.h"

#include <QCoreApplication>

namespace {

void avertir(const Error &e)
{
    if (Annonces::courant().avertir)
        Annonces::courant().avertir(
            Error(QCoreApplication::translate(
                      "Acte", "La modification est enregistrée, mais le disque a signalé une erreur."),
                {}, e.message()));
}

}

Acte::Notes::Notes(Journal &journal)
    : m_journal(journal)
    , m_miennes(!journal.enCours())
{
    if (m_miennes)
        m_journal.commencer();
}

Acte::Notes::~Notes()
{
    if (m_miennes && m_journal.enCours())
        m_journal.terminer();
}

std::shared_ptr<Bande> Acte::Notes::prendre()
{
    return std::make_shared<Bande>(m_journal.terminer());
}

Acte::Acte(const QString &titre, General::Entree lieu, int visite)
    : m_etape{titre, lieu, visite, nullptr}
    , m_notes(m_base.connexion().journal())
    , m_transaction(m_base)
{
    Connexion &connexion = m_base.connexion();
    // A bare transaction around it could take back what was announced.
    Q_ASSERT(!m_notes.miennes() || connexion.profondeur == 1);
    connexion.avantEcriture = [&connexion] { Sauvegardes::AvantEcriture(connexion.db()); };
}

Acte::~Acte()
{
    if (m_notes.miennes())
        m_base.connexion().avantEcriture = nullptr;
}

void Acte::valider()
{
    conclure(true);
}

std::shared_ptr<Bande> Acte::validerSansEtape()
{
    Q_ASSERT(m_notes.miennes());
    conclure(false);
    return m_etape.bande;
}

/// What the file says after a commit that failed: the engine may have failed in what follows it.
bool Acte::estFait()
{
    try {
        return m_base.connexion().profondeur == 0 && !m_notes.bande().vide()
            && Retour::EstFait(m_base, m_notes.bande());
    } catch (const Error &) {
        return false;
    }
}

void Acte::conclure(bool enEtape)
{
    if (!m_notes.miennes())
        return m_transaction.Commit();
    // What can fail comes before the commit: after it the act is done.
    const Changements avis = m_notes.bande().avis();
    try {
        m_transaction.Commit();
    } catch (const Error &e) {
        if (!estFait())
            throw;
        avertir(e);
    }
    m_etape.bande = m_notes.prendre();
    if (m_etape.bande->vide())
        return;
    if (enEtape)
        Q_EMIT Annonces::courant().faite(m_etape);
    Annonces::courant().annoncer(avis);
}
