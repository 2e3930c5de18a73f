#pragma once

#include "core/Courant.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>
#include <functional>
#include <optional>
#include <vector>

class Error;

/// One changed row of the collection: before and after. No "before" is a new row, no "after" a deleted one.
struct Changement
{
    using Ligne = std::vector<QVariant>;

    QString table;
    qint64 cle = 0; ///< row number, which is the identifier in the tables of entries
    std::optional<Ligne> avant;
    std::optional<Ligne> apres;
};

/// What one user action changed, in the order in which it happened.
using Changements = std::vector<Changement>;

/// One action of the user, as undo names it and finds its place again.
struct Etape
{
    QString titre; ///< "Scénariste: Caumery"
    Changements changements;
    QVariant lieu; ///< where it was done; the forms know what this is
    int visite = 0; ///< steps of one visit to one place under one title are one step; 0 is none
};

/// The collection as the forms know it: it tells them when something in it has changed.
class Annonces : public QObject, public Courant<Annonces>
{
    Q_OBJECT

public:
    /// Asked when the file is in use by another program; true tries again. Without it the opening fails.
    std::function<bool(const Error &)> reessayer;

    /// The backups of this run, which the engine makes before it writes.
    struct SuiviDesSauvegardes
    {
        std::function<QDateTime()> maintenant = [] { return QDateTime::currentDateTime(); };
        /// Told why none could be made; not again until one succeeds. It is called in the middle of a write, so
        /// it may only post.
        std::function<void(const Error &)> manquee;
        QDateTime derniere; ///< when one was last made or tried; null before the first write
        bool enEchec = false;
    } sauvegardes;

    /// Names what is changed while it lives; the outermost one counts. It must outlive the Base that is written
    /// through, since a step is complete when that is closed: it is declared before it.
    class Intitule
    {
    public:
        explicit Intitule(const QString &titre, const QVariant &lieu = {}, int visite = 0);
        ~Intitule();
        Intitule(const Intitule &) = delete;
        Intitule &operator=(const Intitule &) = delete;

    private:
        bool m_premier;
    };

    /// Hands the step over at once, and announces its changes from the event loop, once the action that made
    /// them is over.
    void annoncer(const Changements &changements);
    /// Announces that another collection stands in the file: no step leads back, everything is to be read anew.
    void remplacer();

Q_SIGNALS:
    void faite(const Etape &etape);
    /// A change without a table stands for a change of everything.
    void changee(const Changements &changements);
    void remplacee();

private:
    void publier(const Changements &changements);

    std::optional<Etape> m_intitule;
};
