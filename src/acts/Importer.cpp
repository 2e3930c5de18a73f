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

namespace {

constexpr int RangeesDApercu = 20;

/// How a field's column may be called: the words of the program, in the language in force, and common ones of its
/// six languages, folded; those that fit best come first.
struct Appellation
{
    std::vector<Txt> textes;
    const char *mots;
};
const std::array<Appellation, NombreDeChamps> &appellations()
{
    static const std::array<Appellation, NombreDeChamps> toutes{
        Appellation{{Txt::TitreAlbum, Txt::TitreDeLAlbum},
            "titre titrealbum titredelalbum title albumtitle titel albumtitel titulo tituloalbum"
            " titulodelalbum titolo titoloalbum titolodellalbum album nom name"},
        {{Txt::NumeroAlbum, Txt::NumeroDeLAlbum, Txt::NumeroAbrege, Txt::Numero},
            "tome tomo volume band deel numero number nummer numeroalbum nalbum issue vol num no nr n"},
        {{Txt::TitreSerie, Txt::TitreDeLaSerie, Txt::NomDeLaSerie, Txt::Serie},
            "serie series titreserie titredelaserie seriestitle serientitel tituloserie titoloserie"
            " reekstitel reeks reihe saga"},
        {{Txt::DateParution, Txt::DateDeParution},
            "dateparu dateparution datedeparution parution publdate publicationdate published"
            " erscheinungsdatum erschienen fechapublicacion fechadepublicacion datauscita"
            " datadipubblicazione datumuitgave date datum fecha data annee year jahr ano anno jaar"},
        {{Txt::Editeur, Txt::NomDeLEditeur},
            "editeur publisher verlag editorial editore uitgever uitgeverij"},
        {{Txt::Broche, Txt::Brochee},
            "broche brochee paperback softcover broschiert rustica brossura ingenaaid"},
        {{Txt::Couleur}, "couleur couleurs colour color farbe farbig colores colore colori kleur"},
        {{Txt::Integrale}, "integrale omnibus gesamtausgabe integral integraal"},
        {{Txt::Genre, Txt::GenreDeBD}, "genre genero genere categorie category kategorie categoria"},
        {{Txt::Dessinateur, Txt::NomDuDessinateur},
            "dessin dessinateur artist art zeichner zeichnung zeichnungen dibujante dibujo disegnatore"
            " disegni disegno tekenaar tekeningen"},
        {{Txt::Coloriste}, "coloriste colorist colourist kolorist colorista inkleurder color"},
        {{Txt::Scenariste, Txt::NomDuScenariste},
            "scena scenario scenariste writer script szenarist szenario texter guionista guion"
            " sceneggiatore sceneggiatura scenarist schrijver auteur author autor autore"},
        {{Txt::Resume},
            "histoire resume synopsis summary plot story handlung inhalt zusammenfassung resumen argumento"
            " riassunto trama storia samenvatting verhaal description"},
        {{}, "photo1 recto couverture photo image cover frontcover front titelbild portada copertina omslag"},
        {{}, "photo2 verso dos backcover back ruckseite contraportada retro achterkant"},
        {{Txt::PrixDAchat, Txt::Prix},
            "prix prixa prixdachat prixachat price preis kaufpreis precio prezzo prijs aankoopprijs"},
    };
    return toutes;
}

constexpr const char *Oui
    = "oui o yes y 1 vrai true ja j si s wahr verdadero vero waar x broche couleur integrale";
constexpr const char *Non = "non n no 0 faux false nein nee falso falsch onwaar cartonne nb noiretblanc";

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ImporterAlbums)
};

std::size_t rang(Champ champ)
{
    return static_cast<std::size_t>(champ);
}

/// A name with only its letters and digits, without case and accents.
QString plier(const QString &nom)
{
    QString plie = Texte::Plier(nom.normalized(QString::NormalizationForm_KC));
    plie.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
    return plie;
}

QStringList nomsPossibles(const Appellation &appellation)
{
    QStringList noms = QString::fromLatin1(appellation.mots).split(u' ');
    for (const Txt t : appellation.textes)
        noms << plier(texte(t));
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

/// An amount in whatever writing, with the signs that group its digits and its currency taken away. Of point and
/// comma the last one is the decimal one, unless it stands there twice.
QString lirePrix(QString prix)
{
    static const QRegularExpression signes(QStringLiteral("euros?|eur|[\\s€$£'’]"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    prix.remove(signes);
    const bool virgule = prix.lastIndexOf(u',') > prix.lastIndexOf(u'.');
    const QChar decimal = virgule ? u',' : u'.';
    const QChar groupe = virgule ? u'.' : u',';
    const bool plusieurs = prix.count(decimal) > 1;
    if (plusieurs && prix.contains(groupe))
        return prix; // no writing of a number
    prix.remove(plusieurs ? decimal : groupe);
    return prix;
}

bool estUnFichier(const QString &chemin)
{
    return QFileInfo(chemin).isAbsolute() && QFileInfo(chemin).isFile();
}

/// The cells of a row by field.
struct Cellules
{
    const QStringList &cellules;
    const Correspondance &correspondance;

    QString texte(Champ champ) const
    {
        const int colonne = correspondance[rang(champ)];
        return colonne < 0 ? QString() : cellules.value(colonne).trimmed();
    }
    QString ligne(Champ champ) const { return texte(champ).simplified(); }
    /// Notes the first cell that is neither yes nor no.
    bool booleen(Champ champ, Txt libelle, QString &refus) const
    {
        const auto valeur = lireBooleen(texte(champ));
        if (!valeur && refus.isEmpty())
            refus = Tr::tr("%1 : « %2 » n'est ni oui ni non.").arg(::texte(libelle), texte(champ));
        return valeur.value_or(false);
    }
};

Saisie::Textes lireTextes(const Cellules &c, QString &refus)
{
    Saisie::Textes t;
    t.album.titre = c.ligne(Champ::Titre);
    t.album.serie = c.ligne(Champ::Serie);
    t.album.dateparu = c.ligne(Champ::Dateparu);
    t.album.editeur = c.ligne(Champ::Editeur);
    t.album.genre = c.ligne(Champ::Genre);
    t.album.dessin = c.ligne(Champ::Dessin);
    t.album.color = c.ligne(Champ::Color);
    t.album.scena = c.ligne(Champ::Scena);
    t.album.histoire = c.texte(Champ::Histoire).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    t.album.photo1 = c.texte(Champ::Photo1);
    t.album.photo2 = c.texte(Champ::Photo2);
    t.album.broche = c.booleen(Champ::Broche, Txt::Broche, refus);
    t.album.couleur = c.booleen(Champ::Couleur, Txt::Couleur, refus);
    t.album.integrale = c.booleen(Champ::Integrale, Txt::Integrale, refus);
    t.tome = c.texte(Champ::Tome);
    t.prix = lirePrix(c.texte(Champ::Prix));
    // A bare name is not looked for here: the picture may come later.
    t.photo1 = estUnFichier(t.album.photo1) ? t.album.photo1 : QString();
    t.photo2 = estUnFichier(t.album.photo2) ? t.album.photo2 : QString();
    return t;
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
    Creer::Album &album = composee.album;
    if (!composee.refus.isEmpty()) {
        rapport.refus.push_back({ligne.numero, composee.refus});
    } else if (doublons == Doublons::Sauter && Creer::Existe(album)) {
        rapport.sautes << ligne.numero;
    } else {
        album.photo1 = images.prendre(album.photo1);
        album.photo2 = images.prendre(album.photo2);
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

Correspondance Importer::Proposer(const QStringList &entete)
{
    QStringList colonnes;
    for (const QString &nom : entete)
        colonnes << plier(nom);
    Correspondance correspondance;
    correspondance.fill(-1);
    for (std::size_t champ = 0; champ < NombreDeChamps; ++champ) {
        const QStringList noms = nomsPossibles(appellations()[champ]);
        for (const QString &nom : noms) {
            const qsizetype colonne = nom.isEmpty() ? -1 : colonnes.indexOf(nom);
            if (colonne < 0)
                continue;
            correspondance[champ] = static_cast<int>(colonne);
            colonnes[colonne].clear(); // one column is one field
            break;
        }
    }
    return correspondance;
}

Composee Importer::Composer(const QStringList &cellules, const Correspondance &correspondance)
{
    QString refus;
    const Saisie::Textes textes = lireTextes({cellules, correspondance}, refus);
    if (const auto autre = Saisie::Verifier(textes); autre && refus.isEmpty())
        refus = autre->raison;
    return refus.isEmpty() ? Composee{Saisie::Composer(textes), {}} : Composee{textes.album, refus};
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
