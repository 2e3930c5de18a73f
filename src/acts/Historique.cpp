#include "acts/Historique.h"

#include "core/Error.h"
#include "db/Base.h"
#include "db/Journal.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

namespace {

constexpr int Limite = 200;
constexpr int Fusionnable = 1;

/// Puts later changes of a row together with an earlier one that they go on from.
void fondre(Changements &changements, const Changements &suite)
{
    for (const Changement &c : suite) {
        const auto amorce = std::find_if(changements.begin(), changements.end(),
            [&](const Changement &a) { return a.table == c.table && a.cle == c.cle && a.apres == c.avant; });
        if (amorce == changements.end())
            changements.push_back(c);
        else
            amorce->apres = c.apres;
    }
    std::erase_if(changements, [](const Changement &c) { return c.avant == c.apres; });
}

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

    int id() const override { return m_etape.visite > 0 ? Fusionnable : -1; }
    bool mergeWith(const QUndoCommand *autre) override
    {
        const Etape &suite = static_cast<const Marche *>(autre)->m_etape;
        if (suite.visite != m_etape.visite || suite.titre != m_etape.titre || suite.lieu != m_etape.lieu)
            return false;
        fondre(m_etape.changements, suite.changements);
        // A visit that ends where it began is no step.
        setObsolete(m_etape.changements.empty());
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
    if (m_enCours)
        return;
    Etape nommee = etape;
    if (nommee.titre.isEmpty())
        nommee.titre = QCoreApplication::translate("Historique", "Modification");
    const int avant = m_pile.index();
    m_pile.push(new Marche(nommee));
    // A visit that came back to where it began took its step away again.
    if (m_pile.index() >= avant)
        Q_EMIT inscrite(nommee);
}

Etape Historique::jouer(int rang, Acte acte, void (QUndoStack::*avancer)())
{
    const auto *marche = static_cast<const Marche *>(m_pile.command(rang));
    const Etape etape = marche->etape();
    try {
        const QScopedValueRollback enCours(m_enCours, true);
        const Base base;
        acte(base, etape.changements);
    } catch (const Error &e) {
        if (e.sorte() == Error::Sorte::Perimee) {
            const_cast<QUndoCommand *>(m_pile.command(rang))->setObsolete(true);
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
        Q_EMIT annulee(jouer(m_pile.index() - 1, &Journal::Annuler, &QUndoStack::undo));
}

void Historique::refaire()
{
    if (m_pile.canRedo())
        Q_EMIT refaite(jouer(m_pile.index(), &Journal::Refaire, &QUndoStack::redo));
}

void Historique::oublier()
{
    m_pile.clear();
}
