#pragma once

#include "db/Base.h"
#include "db/Journal.h"
#include "db/Transaction.h"
#include "model/General.h"

#include <QString>
#include <memory>

/// One thing done to the collection, as undo names it and finds its place again.
struct Etape
{
    QString titre; ///< "Scénariste: Caumery"
    General::Entree lieu; ///< whose sheet shows it; without a number it is its list
    int visite = 0; ///< steps of one visit to one place under one title are one step; 0 is none
    std::shared_ptr<Bande> bande; ///< the rows that it changed
};

/// Something that a user does to the collection: several writes that are one, with the title and the place under
/// which they can be taken back. Unless `valider` is called, nothing of it stays and nobody hears of it. Acts nest:
/// the outermost one counts, an inner one that is not validated takes back its own part.
class Acte
{
public:
    /// Opens the collection. Throws Error.
    explicit Acte(const QString &titre, General::Entree lieu = {}, int visite = 0);
    ~Acte();
    Acte(const Acte &) = delete;
    Acte &operator=(const Acte &) = delete;

    Base &base() { return m_base; }
    /// Where it was done, and how it is called, when that is known only once it is done.
    void placer(General::Entree lieu) { m_etape.lieu = lieu; }
    void intituler(const QString &titre) { m_etape.titre = titre; }

    /// Commits; then the step goes to undo, and the change is announced. An act that changed nothing is no step.
    /// Throws Error, and nothing stays.
    void valider();

    /// The same of an act that takes a step back, which is never an inner one: no step is made of it, its tape is
    /// handed over.
    std::shared_ptr<Bande> validerSansEtape();

private:
    /// The noting of the outermost act, from its beginning to its end.
    class Notes
    {
    public:
        explicit Notes(Journal &journal);
        ~Notes();
        Notes(const Notes &) = delete;
        Notes &operator=(const Notes &) = delete;

        bool miennes() const { return m_miennes; }
        const Bande &bande() const { return *m_journal.bande(); }
        std::shared_ptr<Bande> prendre();

    private:
        Journal &m_journal;
        bool m_miennes;
    };

    bool estFait();
    void conclure(bool enEtape);

    Etape m_etape;
    Base m_base;
    Notes m_notes;
    Transaction m_transaction;
};
