#pragma once

#include "core/Courant.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <chrono>
#include <functional>
#include <map>
#include <vector>

class Error;
struct Etape;

/// One changed row of the collection, without what it holds.
struct Changement
{
    enum class Sorte {
        Tout, ///< whatever the table holds, or with no table whatever the collection holds
        Ajout,
        Edition,
        Retrait
    };

    QString table;
    qint64 cle = 0; ///< row number, which is the identifier in the tables of entries
    Sorte sorte = Sorte::Tout;
    quint64 champs
        = ~quint64(0); ///< of an edited row: bit n is set when its n-th field differs, 63 for those behind
};

/// What one action changed, in the order in which it happened.
using Changements = std::vector<Changement>;

/// What the forms hear of the collection: that a step was done, that rows were changed, that another file stands in
/// its place. And what the lower floors ask of whoever is in front.
class Annonces : public QObject, public Courant<Annonces>
{
    Q_OBJECT

public:
    /// Asked when the file is in use by another program; true tries again. Without it the opening fails.
    std::function<bool(const Error &)> reessayer;

    /// Asked, after so long, whether a reading is to go on; false ends it. Nothing may touch the base meanwhile.
    struct Patience
    {
        std::chrono::milliseconds delai = std::chrono::seconds(5);
        std::function<bool()> continuer;
    } patience;

    /// Told what the engine complained of when a change stands none the less. It may only post.
    std::function<void(const Error &)> avertir;

    /// The backups of this run, which are made before it writes.
    struct SuiviDesSauvegardes
    {
        std::function<QDateTime()> maintenant = [] { return QDateTime::currentDateTime(); };
        /// Told why none could be made; not again until one succeeds. It is called in the middle of a write, so
        /// it may only post.
        std::function<void(const Error &)> manquee;
        QDateTime derniere; ///< when one was last made or tried; null before the first write
        bool enEchec = false;
        int retraits = 1; ///< how many old ones may go, beside one for each that is made
    } sauvegardes;

    /// The highest number known of each table of entries, given or still referred to; new ones lie above it. Forgotten
    /// with the collection.
    std::map<QString, int> numeros;

    /// Announces changed rows from the event loop, once the action that changed them is over.
    void annoncer(const Changements &changements);
    /// Announces that another collection stands in the file: no step leads back, everything is to be read anew.
    void remplacer();

Q_SIGNALS:
    void faite(const Etape &etape);
    void changee(const Changements &changements);
    void remplacee();
};
