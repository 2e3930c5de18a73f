#include "acts/Importer.h"

#include "acts/Acte.h"
#include "acts/Saisie.h"
#include "core/Csv.h"
#include "core/Dossier.h"
#include "core/Images.h"
#include "core/Texte.h"
#include "core/Traduction.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <optional>

using namespace Importer;
using ChampsDeCreation::ChampDeCreation;
using ChampsDeCreation::Maniere;

namespace {

constexpr int RangeesDApercu = 20;

constexpr const char *Oui
    = "oui o yes y 1 vrai true ja j si s wahr verdadero vero waar x broche couleur integrale";
constexpr const char *Non = "non n no 0 faux false nein nee falso falsch onwaar cartonne nb noiretblanc";

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ImporterAlbums)
};

/// A name with only its letters and digits, without case and accents.
QString plier(const QString &nom)
{
    QString plie = Texte::Plier(nom.normalized(QString::NormalizationForm_KC));
    plie.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
    return plie;
}

QStringList nomsPossibles(const ChampsDeCreation::Appellation &appellation)
{
    QStringList noms = QString::fromLatin1(appellation.mots).split(u' ');
    for (std::size_t i = 0; i < appellation.nombre; ++i)
        noms << plier(texte(appellation.textes[i]));
    return noms;
}

/// A yes or no; a blank is no. Nothing for another word.
std::optional<bool> lireBooleen(const QString &cellule)
{
    static const QStringList oui = QString::fromLatin1(Oui).split(u' ');
    static const QStringList non = QString::fromLatin1(Non).split(u' ');
    const QString mot = plier(cellule);
    const auto dits = [&](std::initializer_list<Txt> textes) {
        return std::any_of(textes.begin(), textes.end(), [&](Txt t) { return plier(texte(t)) == mot; });
    };
    // The words of our own lists, too.
    if (oui.contains(mot) || dits({Txt::Oui, Txt::Couleur, Txt::Infographie}))
        return true;
    return cellule.isEmpty() || non.contains(mot) || dits({Txt::Non, Txt::NoirEtBlanc}) ? std::optional(false)
                                                                                        : std::nullopt;
}

/// An amount without its currency and the signs that some put between its figures.
QString lirePrix(QString prix)
{
    static const QRegularExpression signes(QStringLiteral("euros?|eur|[\\s€$£'’]"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return prix.remove(signes);
}

bool estUnFichier(const QString &chemin)
{
    return QFileInfo(chemin).isAbsolute() && QFileInfo(chemin).isFile();
}

/// What a cell says, as it is entered; notes the first cell that is neither yes nor no.
QString lire(const ChampDeCreation &champ, const QString &cellule, QString &refus)
{
    switch (champ.maniere) {
    case Maniere::Case: {
        const auto valeur = lireBooleen(cellule);
        if (!valeur && refus.isEmpty())
            refus = Tr::tr("%1 : « %2 » n'est ni oui ni non.").arg(texte(champ.libelle), cellule);
        return QLatin1String(ChampsDeCreation::TexteDeCase(champ, valeur.value_or(false)));
    }
    case Maniere::Memo:
        return QString(cellule).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    case Maniere::Image:
        return cellule;
    default:
        return champ.champ->regle == Champs::Regle::Prix ? lirePrix(cellule) : cellule.simplified();
    }
}

/// A picture is looked for only under the path of a file: one by its bare name may come later.
Album sansImagesAVenir(Album album)
{
    for (const Rubrique photo : {Rubrique::Photo1, Rubrique::Photo2}) {
        if (!estUnFichier(album[photo]))
            album[photo].clear();
    }
    return album;
}

/// The pictures that an import takes; unless it keeps them, those that were not there before go again.
class ImagesPrises
{
public:
    ImagesPrises()
    {
        const QStringList noms = QDir(dossier()).entryList(QDir::Files | QDir::Hidden);
        m_avant = QSet<QString>(noms.begin(), noms.end());
    }
    ~ImagesPrises()
    {
        for (const QString &nom : std::as_const(m_prises))
            QFile::remove(dossier() + u'/' + nom);
    }
    ImagesPrises(const ImagesPrises &) = delete;
    ImagesPrises &operator=(const ImagesPrises &) = delete;

    /// The name to store for a picture of a row.
    QString prendre(const QString &photo)
    {
        if (!estUnFichier(photo))
            return photo;
        const QString nom = Images::Copier(photo);
        if (!m_avant.contains(nom))
            m_prises << nom;
        return nom;
    }
    void garder() { m_prises.clear(); }

private:
    static QString dossier() { return Dossier::courant().chemin(QStringLiteral("images")); }

    QSet<QString> m_avant;
    QSet<QString> m_prises;
};

struct Ligne
{
    int numero;
    QStringList cellules;
};

/// Rows that hold nothing are none.
QList<Ligne> lireLignes(const QString &chemin, QStringList &entete)
{
    QList<Ligne> lignes;
    entete = Csv::Lire(
        chemin,
        [&](const Csv::Rangee &r) {
            if (!r.cellules.join(QString()).trimmed().isEmpty())
                lignes.push_back({r.ligne, r.cellules});
        },
        Csv::Separateur(chemin));
    return lignes;
}

void importer(const Ligne &ligne, const Correspondance &correspondance, Doublons doublons,
    ImagesPrises &images, Rapport &rapport)
{
    Composee composee = Composer(ligne.cellules, correspondance);
    Album &album = composee.album;
    if (!composee.refus.isEmpty()) {
        rapport.refus.push_back({ligne.numero, composee.refus});
    } else if (doublons == Doublons::Sauter && Creer::Existe(album)) {
        rapport.sautes << ligne.numero;
    } else {
        for (const Rubrique photo : {Rubrique::Photo1, Rubrique::Photo2})
            album[photo] = images.prendre(album[photo]);
        Creer::CreerAlbum(album);
        rapport.crees << ligne.numero;
    }
}

}

Apercu Importer::Lire(const QString &chemin)
{
    Apercu apercu;
    const QList<Ligne> lignes = lireLignes(chemin, apercu.entete);
    apercu.nombre = static_cast<int>(lignes.size());
    for (const Ligne &ligne : lignes.first(std::min<qsizetype>(lignes.size(), RangeesDApercu)))
        apercu.rangees << ligne.cellules;
    return apercu;
}

std::vector<Rubrique> Importer::Rubriques()
{
    std::vector<Rubrique> rubriques;
    for (std::size_t i = 0; i < NombreDeRubriques; ++i) {
        const auto rubrique = static_cast<Rubrique>(i);
        if (ChampsDeCreation::De(rubrique).appellation.mots)
            rubriques.push_back(rubrique);
    }
    return rubriques;
}

Correspondance Importer::Proposer(const QStringList &entete)
{
    QStringList colonnes;
    for (const QString &nom : entete)
        colonnes << plier(nom);
    Correspondance correspondance = Aucune();
    for (const Rubrique rubrique : Rubriques()) {
        for (const QString &nom : nomsPossibles(ChampsDeCreation::De(rubrique).appellation)) {
            const qsizetype colonne = nom.isEmpty() ? -1 : colonnes.indexOf(nom);
            if (colonne < 0)
                continue;
            correspondance[static_cast<std::size_t>(rubrique)] = static_cast<int>(colonne);
            colonnes[colonne].clear(); // one column is one field
            break;
        }
    }
    return correspondance;
}

Composee Importer::Composer(const QStringList &cellules, const Correspondance &correspondance)
{
    Composee composee;
    for (const ChampDeCreation &champ : ChampsDeCreation::Tous) {
        const int colonne = correspondance[static_cast<std::size_t>(champ.rubrique)];
        if (colonne >= 0)
            composee.album[champ.rubrique] = lire(champ, cellules.value(colonne).trimmed(), composee.refus);
    }
    const auto autre = Saisie::Verifier(sansImagesAVenir(composee.album));
    if (autre && composee.refus.isEmpty())
        composee.refus = autre->raison;
    return composee;
}

Rapport Importer::ImporterAlbums(
    const QString &chemin, const Correspondance &correspondance, Doublons doublons, const Avance &avance)
{
    QStringList entete;
    const QList<Ligne> lignes = lireLignes(chemin, entete);
    Acte acte(Tr::tr("Importation de « %1 »").arg(QFileInfo(chemin).fileName()));
    ImagesPrises images;
    Rapport rapport;
    for (qsizetype i = 0; i < lignes.size(); ++i) {
        if (avance && !avance(static_cast<int>(100 * i / lignes.size()))) {
            rapport = {};
            rapport.annule = true;
            return rapport;
        }
        importer(lignes[i], correspondance, doublons, images, rapport);
    }
    acte.valider();
    images.garder();
    return rapport;
}
