#include "acts/Historique.h"

#include "core/Error.h"
#include "db/Retour.h"

namespace {

constexpr int Limite = 200;
constexpr int Fusionnable = 1;
/// Of all steps together; beyond it the oldest wait in files.
constexpr qint64 LimiteEnMemoire = 2 * Bande::LimiteEnMemoire;

/// A step on the stack. It only stands there: what it says is done before the stack moves, so that a refusal
/// leaves the stack where it is.
class Marche : public QUndoCommand
{
public:
    explicit Marche(const Etape &etape)
        : QUndoCommand(etape.titre)
        , m_etape(etape)
    {
    }
    const Etape &etape() const { return m_etape; }
    void poser(const std::shared_ptr<Bande> &bande) { m_etape.bande = bande; }

    int id() const override { return m_etape.visite > 0 ? Fusionnable : -1; }
    bool mergeWith(const QUndoCommand *autre) override
    {
        const Etape &suite = static_cast<const Marche *>(autre)->m_etape;
        if (suite.visite != m_etape.visite || suite.titre != m_etape.titre || suite.lieu != m_etape.lieu)
            return false;
        try {
            m_etape.bande->prolonger(*suite.bande);
        } catch (const Error &) {
            // They stay two steps, then.
            return false;
        }
        // A visit that ends where it began is no step.
        setObsolete(m_etape.bande->vide());
        return true;
    }

private:
    Etape m_etape;
};

}

Historique::Historique(Annonces &annonces)
{
    m_pile.setUndoLimit(Limite);
    connect(&annonces, &Annonces::faite, this, &Historique::prendre);
    connect(&annonces, &Annonces::remplacee, this, &Historique::oublier);
    connect(&m_pile, &QUndoStack::indexChanged, this, &Historique::change);
}

Historique::~Historique()
{
    // A stack empties itself with a signal; by then nobody is there to hear it.
    m_pile.blockSignals(true);
}

void Historique::prendre(const Etape &etape)
{
    const int avant = m_pile.index();
    m_pile.push(new Marche(etape));
    alleger();
    // A visit that came back to where it began took its step away again.
    if (m_pile.index() >= avant)
        Q_EMIT inscrite(etape);
}

void Historique::alleger()
{
    qint64 enMemoire = 0;
    for (int i = m_pile.count(); i-- > 0;) {
        Bande &bande = *static_cast<const Marche *>(m_pile.command(i))->etape().bande;
        enMemoire += bande.enMemoire();
        if (enMemoire <= LimiteEnMemoire)
            continue;
        enMemoire -= bande.enMemoire();
        try {
            bande.deposer();
        } catch (const Error &) {
            // It stays in memory, then.
        }
    }
}

/// Takes back what a step left, which leaves the step with the way back from there.
Etape Historique::jouer(int rang, void (QUndoStack::*avancer)())
{
    auto *marche = static_cast<Marche *>(const_cast<QUndoCommand *>(m_pile.command(rang)));
    const Etape etape = marche->etape();
    try {
        Acte acte(etape.titre, etape.lieu);
        Retour::Refaire(acte.base(), *etape.bande);
        marche->poser(acte.validerSansEtape());
        alleger();
    } catch (const Error &e) {
        if (e.sorte() == Error::Sorte::Perimee) {
            marche->setObsolete(true);
            (m_pile.*avancer)();
            // Of a step given up on the way forward the stack says nothing.
            Q_EMIT change();
        }
        throw;
    }
    (m_pile.*avancer)();
    return etape;
}

void Historique::annuler()
{
    if (m_pile.canUndo())
        Q_EMIT annulee(jouer(m_pile.index() - 1, &QUndoStack::undo));
}

void Historique::refaire()
{
    if (m_pile.canRedo())
        Q_EMIT refaite(jouer(m_pile.index(), &QUndoStack::redo));
}

void Historique::oublier()
{
    m_pile.clear();
}
