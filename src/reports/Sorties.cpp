#include "reports/Sorties.h"

#include "core/Error.h"
#include "core/Images.h"
#include "core/Traduction.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QSaveFile>

using Listage::Tableau;
using Sorties::Avance;

namespace {

const QByteArray MarqueUtf8("\xEF\xBB\xBF");
constexpr QSize TailleImage(320, 440);

/// A file that is written in pieces, and takes its name when it is whole.
class Fichier
{
public:
    explicit Fichier(const QString &chemin)
        : m_fichier(chemin)
    {
        if (!m_fichier.open(QIODevice::WriteOnly))
            echouer();
    }
    void ecrire(const QString &texte)
    {
        constexpr qsizetype Morceau = 1 << 16;
        m_attente += texte.toUtf8();
        if (m_attente.size() > Morceau)
            vider();
    }
    void ecrire(const QByteArray &octets) { m_attente += octets; }
    /// True, since all is written.
    bool terminer()
    {
        vider();
        // The flush says why; the commit only that it failed.
        if (!m_fichier.flush() || !m_fichier.commit())
            echouer();
        return true;
    }

private:
    void vider()
    {
        // A disk that fills up takes a part first, and says why at the next.
        while (!m_attente.isEmpty()) {
            const qint64 ecrits = m_fichier.write(m_attente);
            if (ecrits <= 0)
                echouer();
            m_attente.remove(0, ecrits);
        }
    }
    [[noreturn]] void echouer() const
    {
        throw Error(QCoreApplication::translate("Sorties", "La liste ne peut pas être écrite."),
            m_fichier.fileName(), m_fichier.errorString());
    }

    QSaveFile m_fichier;
    QByteArray m_attente;
};

constexpr auto Style = R"(<style>
body { font: 10pt "DejaVu Sans", Verdana, sans-serif; color: #22252b; background: #fff; margin: 2em; }
h1 { font-size: 1.5em; color: #1f4e79; margin: 0 0 .2em; }
p { color: #5c6068; margin: 0 0 1.2em; }
img { float: right; max-width: 320px; margin: 0 0 1em 2em; border: 1px solid #c9c3b4; }
table { border-collapse: collapse; }
th { text-align: left; border-bottom: 2px solid #1f4e79; }
th, td { padding: .3em .8em; vertical-align: top; white-space: pre-line; }
td { border-bottom: 1px solid #e2ddd0; }
tr:nth-child(even) td { background: #faf7ef; }
.d { text-align: right; }
footer { margin-top: 1.2em; font-weight: bold; }
@media print { thead { display: table-header-group; } tr { page-break-inside: avoid; } }
</style>
)";

QString baliser(const char *balise, const QString &texte, bool aDroite)
{
    const QString nom = QLatin1String(balise);
    return QStringLiteral("<%1%2>").arg(nom, aDroite ? QStringLiteral(" class=\"d\"") : QString())
        + texte.toHtmlEscaped() + QStringLiteral("</%1>").arg(nom);
}

/// A picture as part of the page; empty without one.
QString incorporer(const QString &chemin)
{
    const QImage image = chemin.isEmpty() ? QImage() : Images::Decoder(chemin, TailleImage);
    if (image.isNull())
        return {};
    QByteArray octets;
    QBuffer tampon(&octets);
    tampon.open(QIODevice::WriteOnly);
    image.save(&tampon, "PNG");
    return QStringLiteral("<img alt=\"\" src=\"data:image/png;base64,%1\">\n")
        .arg(QString::fromLatin1(octets.toBase64()));
}

QString enTeteHtml(const Tableau &tableau)
{
    QString page = QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\">\n<head>\n<meta charset=\"utf-8\">\n")
                       .arg(Traduction::courant().locale().bcp47Name());
    page += QStringLiteral("<title>%1</title>\n").arg(tableau.titre.toHtmlEscaped());
    page += QLatin1String(Style) + QStringLiteral("</head>\n<body>\n") + incorporer(tableau.image);
    page += QStringLiteral("<h1>%1</h1>\n<p>%2</p>\n<table>\n<thead><tr>")
                .arg(tableau.titre.toHtmlEscaped(), Sorties::EnTete().toHtmlEscaped());
    for (const auto &tete : tableau.tetes)
        page += baliser("th", tete.libelle, tete.aDroite);
    return page + QStringLiteral("</tr></thead>\n<tbody>\n");
}

QString rangeeHtml(const Tableau &tableau, const QStringList &cellules)
{
    static const QString aGauche = QStringLiteral("<td>");
    static const QString aDroite = QStringLiteral("<td class=\"d\">");
    QString rangee = QStringLiteral("<tr>");
    for (qsizetype i = 0; i < cellules.size(); ++i) {
        rangee += tableau.tetes[static_cast<std::size_t>(i)].aDroite ? aDroite : aGauche;
        rangee += cellules[i].toHtmlEscaped() + QStringLiteral("</td>");
    }
    return rangee + QStringLiteral("</tr>\n");
}

/// One row of the text; a value of several lines takes as many.
QString rangeeTexte(
    const Tableau &tableau, const std::vector<qsizetype> &largeurs, const QStringList &cellules)
{
    std::vector<QStringList> lignes;
    qsizetype hauteur = 1;
    for (const QString &cellule : cellules) {
        lignes.push_back(cellule.split(u'\n'));
        hauteur = std::max(hauteur, lignes.back().size());
    }
    QString rangee;
    for (qsizetype ligne = 0; ligne < hauteur; ++ligne) {
        QString texte;
        for (std::size_t i = 0; i < lignes.size(); ++i) {
            const QString cellule = lignes[i].value(ligne);
            texte += tableau.tetes[i].aDroite ? cellule.rightJustified(largeurs[i])
                                              : cellule.leftJustified(largeurs[i]);
            texte += QStringLiteral("  ");
        }
        while (texte.endsWith(u' '))
            texte.chop(1);
        rangee += texte + u'\n';
    }
    return rangee;
}

QString celluleCsv(const QString &cellule)
{
    const bool entreGuillemets = cellule.contains(u',') || cellule.contains(u'"') || cellule.contains(u'\n')
        || cellule.contains(u'\r') || cellule.contains(u';') || cellule.startsWith(u' ');
    return entreGuillemets
        ? u'"' + QString(cellule).replace(QStringLiteral("\""), QStringLiteral("\"\"")) + u'"'
        : cellule;
}

QString rangeeCsv(const QStringList &cellules)
{
    QString rangee;
    // A line without anything would be none.
    if (cellules.size() == 1 && cellules.front().isEmpty())
        return QStringLiteral("\"\"\r\n");
    for (qsizetype i = 0; i < cellules.size(); ++i) {
        if (i > 0)
            rangee += u',';
        rangee += celluleCsv(cellules[i]);
    }
    return rangee + QStringLiteral("\r\n");
}

void elargir(Sorties::Largeur &largeur, QStringView cellule)
{
    qsizetype ligne = 0;
    qsizetype mot = 0;
    for (const QChar c : cellule) {
        ligne = c == u'\n' ? 0 : ligne + 1;
        mot = c.isSpace() ? 0 : mot + 1;
        largeur.ligne = std::max(largeur.ligne, ligne);
        largeur.mot = std::max(largeur.mot, mot);
    }
}

QStringList libelles(const Tableau &tableau)
{
    QStringList noms;
    for (const auto &tete : tableau.tetes)
        noms << tete.libelle;
    return noms;
}

}

QString Sorties::EnTete()
{
    return texte(Txt::ListeDAlbumsGenereePar) + u' ' + titre();
}

bool Sorties::Parcourir(const Tableau &tableau, const Avance &avance, int debut, int fin,
    const std::function<void(const QStringList &cellules)> &pour)
{
    constexpr qint64 Pas = 512;
    qint64 faites = 0;
    return tableau.parcourir([&](const QStringList &cellules) {
        pour(cellules);
        ++faites;
        if (!avance || faites % Pas != 0)
            return true;
        const qint64 part = std::min(faites, tableau.lignes) * (fin - debut) / std::max(1LL, tableau.lignes);
        return avance(debut + static_cast<int>(part));
    });
}

std::optional<std::vector<Sorties::Largeur>> Sorties::Mesurer(
    const Tableau &tableau, const Avance &avance, int debut, int fin)
{
    std::vector<Largeur> largeurs(tableau.tetes.size());
    const bool entier = Parcourir(tableau, avance, debut, fin, [&](const QStringList &cellules) {
        for (std::size_t i = 0; i < largeurs.size(); ++i)
            elargir(largeurs[i], cellules[static_cast<qsizetype>(i)]);
    });
    return entier ? std::optional(largeurs) : std::nullopt;
}

bool Sorties::EcrireHtml(const QString &chemin, const Tableau &tableau, const Avance &avance)
{
    Fichier fichier(chemin);
    fichier.ecrire(enTeteHtml(tableau));
    if (!Parcourir(tableau, avance, 0, 100,
            [&](const QStringList &cellules) { fichier.ecrire(rangeeHtml(tableau, cellules)); }))
        return false;
    fichier.ecrire(QStringLiteral("</tbody>\n</table>\n<footer>"));
    for (const QString &ligne : tableau.totaux())
        fichier.ecrire(ligne.toHtmlEscaped() + QStringLiteral("<br>\n"));
    fichier.ecrire(QStringLiteral("</footer>\n</body>\n</html>\n"));
    return fichier.terminer();
}

bool Sorties::EcrireTexte(const QString &chemin, const Tableau &tableau, const Avance &avance)
{
    constexpr int MoitieFaite = 50;
    const auto mesures = Mesurer(tableau, avance, 0, MoitieFaite);
    if (!mesures)
        return false;
    std::vector<qsizetype> largeurs;
    for (std::size_t i = 0; i < mesures->size(); ++i)
        largeurs.push_back(std::max((*mesures)[i].ligne, tableau.tetes[i].libelle.size()));
    Fichier fichier(chemin);
    fichier.ecrire(tableau.titre + u'\n' + EnTete() + QStringLiteral("\n\n"));
    fichier.ecrire(rangeeTexte(tableau, largeurs, libelles(tableau)));
    QStringList filets;
    for (const qsizetype largeur : largeurs)
        filets << QString(largeur, u'-');
    fichier.ecrire(rangeeTexte(tableau, largeurs, filets));
    if (!Parcourir(tableau, avance, MoitieFaite, 100,
            [&](const QStringList &cellules) { fichier.ecrire(rangeeTexte(tableau, largeurs, cellules)); }))
        return false;
    fichier.ecrire(QStringLiteral("\n"));
    for (const QString &ligne : tableau.totaux())
        fichier.ecrire(ligne + u'\n');
    return fichier.terminer();
}

bool Sorties::EcrireCsv(const QString &chemin, const Tableau &tableau, const Avance &avance)
{
    Fichier fichier(chemin);
    fichier.ecrire(MarqueUtf8);
    fichier.ecrire(rangeeCsv(libelles(tableau)));
    if (!Parcourir(tableau, avance, 0, 100,
            [&](const QStringList &cellules) { fichier.ecrire(rangeeCsv(cellules)); }))
        return false;
    return fichier.terminer();
}
