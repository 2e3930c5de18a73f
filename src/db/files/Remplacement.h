#pragma once

#include <QDateTime>
#include <QString>

/// Putting another collection in the place of the one at work.
namespace Remplacement {

/// What a file is. Only sound and blank ones can be put in place as they are; old ones are converted first.
enum class Etat { Saine, Vierge, Courante, Ancienne, PlusRecente, Catalogue, Abimee, Etrangere };

struct Examen
{
    Etat etat = Etat::Etrangere;
    QDateTime date;
    qint64 taille = 0;
    int albums = 0; ///< of a sound one
    QString mots; ///< what is wrong with a damaged one, in the engine's words
};

/// Looks at a file without touching it. Throws Error when it is missing or held by another program.
Examen Examiner(const QString &chemin);

/// Why a file of this kind is not put in place, in one line; empty when it may be.
QString RaisonDuRefus(Etat etat);

/// Puts a copy of a file in the place of the collection and announces it; says why not when it may not be. The
/// collection that was there becomes a dated backup; one that cannot be read any more is kept beside, as "bd
/// abîmée" with the date. No Base may be open. Throws Error, with everything as it was.
QString Restaurer(const QString &chemin);

}
