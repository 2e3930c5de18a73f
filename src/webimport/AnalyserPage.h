#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

/// The reading of one album's page of the online catalogue: a scan line by line for fixed markers of its
/// mark-up. The page comes from outside; whatever it holds, a scan ends, in time linear in its length.
namespace AnalysePage {

/// What a page told. All but the description stands in lower case, as it was cut.
struct Page
{
    QString titre;
    QString serie;
    QString tome;
    QString prix; ///< in euro
    QString prixFrancs;
    QString date;
    QString dessinateurs; ///< joined by ", "
    QString scenariste;
    QString genre;
    QString editeur;
    QString publicVise;
    QString description;
    QString finition;
    QString couverture; ///< the piece of the cover's path between "/img/couvpage" and ".jpg"
};

/// Called when the piece of the cover's path is found, with the title as it stands then.
using CouvertureTrouvee = std::function<void(const QString &morceau, const QString &titre)>;

/// Reads a page (UTF-8 when its bytes are, else Windows-1252) into the values that are still empty. Throws Error
/// when a "<" is never closed, a line is missing or a price is no number; what was read until then stays.
void AnalyserPage(const QByteArray &octets, Page &page, const CouvertureTrouvee &trouvee = {});

/// The title without what the page writes around it.
QString NettoyerTitre(const QString &titre);

/// Cuts the text between two markers out of a line, whatever their case, into a target that is still empty, and
/// takes the tags out of it. Without end marker the rest of the line. Throws Error on a "<" that is not closed.
void ExtraireEntre(const QString &debut, const QString &ligne, QString &cible, const QString &fin);

/// Removes every run from "<" to the next ">". Throws Error when there is none.
void OterBalises(QString &texte);

/// Sets the flag when the line holds the marker, whatever the case; never clears it.
void LigneContient(const QString &marqueur, const QString &ligne, bool &trouve);

}
