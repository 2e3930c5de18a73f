#include "reports/Statistiques.h"

#include "acts/Acte.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Fonds.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "model/General.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>
#include <unordered_map>

namespace {

/// The kinds whose links are cleaned.
constexpr const Especes::Espece *Nettoyees[]
    = {&Especes::Auteur, &Especes::Coll, &Especes::Editeur, &Especes::Genre, &Especes::Serie};

/// A section of the page: heading count, entries by name, albums of each.
struct Section
{
    Txt libelle;
    const char *total;
    const char *entrees;
    const char *comptes;
};
constexpr Section Sections[] = {
    {Txt::NombreDeSeries, "SELECT count(*) From serie where Nserie > 0 ;",
        "SELECT NSerie, Nom From serie order by Nom asc ;",
        "SELECT NSerie, count(*) From seriealbums group by NSerie"},
    {Txt::NombreDeDessinateurs, "SELECT count(*) From auteurs where Nauteur > 0 and Dessin = -1 ;",
        "SELECT NAuteur, Nom From Auteurs where Dessin = -1 order by Nom asc ;",
        "SELECT NAuteur, count(*) From AuteursAlbums where Dessin = -1 group by NAuteur"},
    {Txt::NombreDeScenaristes, "SELECT count(*) From auteurs where Nauteur > 0 and Scena = -1 ;",
        "SELECT NAuteur, Nom From Auteurs where Scena = -1 order by Nom asc ;",
        "SELECT NAuteur, count(*) From AuteursAlbums where Scena= -1 group by NAuteur"},
    {Txt::NombreDeGenres, "SELECT count(*) From genre  where NGenre > 0 ;",
        "SELECT NGenre, Nom From Genre order by Nom asc ;",
        "SELECT NGenre, count(*) From GenreAlbums group by NGenre"},
    {Txt::NombreDEditeurs, "SELECT count(*) From Editeur where NEdit > 0  ;",
        "SELECT NEdit, Nom From Editeur order by Nom asc ;",
        "SELECT NEdit, count(*) From EditeurAlbums group by NEdit"},
    {Txt::NombreDeCollections, "SELECT count(*) From Coll  where NColl > 0  ;",
        "SELECT NColl, Nom From Coll order by Nom asc ;",
        "SELECT NColl, count(*) From CollAlbums group by NColl"},
};

const QString FondTitre = QStringLiteral("#330099");
const QString EncreTitre = QStringLiteral("#66CCFF");
const QString FondImpair = QStringLiteral("#CCCCCC");
const QString FondPair = QStringLiteral("#FFFFFF");
const QString Encre = QStringLiteral("0");

QString ligne(
    const QString &fond, const QString &encre, const QString &nom, const QString &compte, const QString &part)
{
    const QString police = QStringLiteral("<b><font color='") + encre
        + QStringLiteral("' size='2' face='Arial, Helvetica, sans-serif'>");
    return QStringLiteral("<table width='100%' border='0' cellpadding='0' cellspacing='0' bgcolor='") + fond
        + QStringLiteral("'><tr> <td width='2%'><div align='left'><b></b></div></td><td width='58%'>")
        + police + nom + QStringLiteral("</font></b></td><td width='20%'>") + police + compte
        + QStringLiteral("</font></b></td><td width='20%'>") + police + part
        + QStringLiteral("</font></b></td></tr></table>");
}

/// The background picture as the page names it, within its quotes.
QString fondDePage()
{
    const QString chemin = Fonds::CheminChoisi();
    if (chemin.isEmpty())
        return {};
    return QString::fromLatin1(QUrl::fromLocalFile(chemin).toEncoded()).replace(u'\'', QLatin1String("%27"));
}

QStringList entete()
{
    const QString rapport = texte(Txt::Statistiques).toHtmlEscaped();
    return {
        QStringLiteral("<HTML><HEAD><title>") + titre() + QStringLiteral(", ") + rapport
            + QStringLiteral("</title></HEAD><body bgcolor='#6699CC' background='") + fondDePage()
            + QStringLiteral("'>"),
        QStringLiteral(
            "<table width='100%' border='0' cellpadding='0' cellspacing='0' ><tr bgcolor='#3399CC' "
            "valign='top' align='center'><td>"),
        QStringLiteral("<table width='100%' border='0' cellpadding='0' cellspacing='0' ><tr "
                       "bgcolor='#FFFFCC'><td><div align='center'><b><font color='#000000' size='2' "
                       "face='Arial, Helvetica, sans-serif'>")
            + rapport + QStringLiteral("</font></b></div></td></tr></table>"),
        QStringLiteral("<table width='100%' border='0'><tr><td height='20'>&nbsp;</td></tr></table>"),
        QStringLiteral(
            "<table width='100%' border='01' cellpadding='0' cellspacing='0' ><tr bgcolor='#006FCC' "
            "><td><div align='center'><b><font color='#FFFFFF' size='3' face='Arial, Helvetica, "
            "sans-serif'>    <p>")
            + QCoreApplication::translate("Statistiques", "Statistiques ...").toHtmlEscaped()
            + QStringLiteral("</p></font></b></div></td></tr></table>"),
        QStringLiteral("<table width='100%' border='0'><tr>&nbsp;</tr></table>"),
    };
}

std::unordered_map<qint64, qint64> comptes(const Base &base, const Section &section)
{
    std::unordered_map<qint64, qint64> comptes;
    for (auto rs = base.read(QLatin1String(section.comptes)); !rs.AtEnd(); rs.MoveNext())
        comptes[rs.Int64(0)] = rs.Int64(1);
    return comptes;
}

/// "33,33 %  ", in the language in force.
QString pourcentage(qint64 compte, qint64 total)
{
    if (total == 0)
        return {};
    QLocale locale = Traduction::courant().locale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(double(compte) / double(total) * 100, 'f', 2) + QStringLiteral(" %  ");
}

void ecrireSection(const Base &base, const Section &section, qint64 total, QByteArray &page)
{
    const auto albums = comptes(base, section);
    const auto nombre = base.read(QLatin1String(section.total));
    const QString libelle
        = texte(section.libelle).toHtmlEscaped() + QStringLiteral(" : ") + QString::number(nombre.Int64(0));
    page += ligne(FondTitre, EncreTitre, libelle, texte(Txt::NombreDAlbums).toHtmlEscaped(),
                QStringLiteral(" /%"))
                .toUtf8()
        + '\n';
    bool impair = true;
    for (auto rs = base.read(QLatin1String(section.entrees)); !rs.AtEnd(); rs.MoveNext()) {
        const auto trouve = albums.find(rs.Int64(0));
        const qint64 compte = trouve == albums.end() ? 0 : trouve->second;
        page += ligne(impair ? FondImpair : FondPair, Encre, rs.Fields(1).toString().toHtmlEscaped(),
                    QString::number(compte), pourcentage(compte, total))
                    .toUtf8()
            + '\n';
        impair = !impair;
    }
}

/// The row numbers of the links of a kind whose entry or album is gone.
QString perdus(const Especes::Espece *l)
{
    return QStringLiteral(
        "SELECT l.rowid From %1 l left join %2 e on e.%3 = l.%3"
        " left join LAlbums a on a.NAlbum = l.NAlbum where e.%3 is null or a.NAlbum is null")
        .arg(QLatin1String(l->liens), QLatin1String(l->table), QLatin1String(l->cle));
}

bool aDesLiensPerdus()
{
    const Base base;
    return std::any_of(std::begin(Nettoyees), std::end(Nettoyees), [&](const Especes::Espece *l) {
        return base.read(QStringLiteral("SELECT exists (%1)").arg(perdus(l))).Int64(0) != 0;
    });
}

/// The page of a collection that is only to be read stands where what can be made again does.
QString dossierDeLaPage()
{
    return General::EstEnLectureSeule()
        ? QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/Stats")
        : Dossier::courant().chemin(QStringLiteral("Stats"));
}

}

int Statistiques::Nettoyer()
{
    // Looking alone is no act: it makes no backup and leaves what can be made again.
    if (General::EstEnLectureSeule() || !aDesLiensPerdus())
        return 0;
    Acte acte({});
    int otes = 0;
    for (const Especes::Espece *l : Nettoyees)
        otes += acte.base().Execute(
            QStringLiteral("DELETE From %1 where rowid in (%2)").arg(QLatin1String(l->liens), perdus(l)));
    acte.intituler(QCoreApplication::translate("Statistiques", "Liens sans fiche ôtés : %1").arg(otes));
    acte.valider();
    return otes;
}

QByteArray Statistiques::Page(const Avance &avance)
{
    const Base base;
    const qint64 total = base.read(QStringLiteral("SELECT count(*) From album where Num > 0;")).Int64(0);
    QByteArray page("\xEF\xBB\xBF");
    page += entete().join(u'\n').toUtf8() + '\n';
    int faites = 0;
    for (const Section &section : Sections) {
        if (faites > 0)
            page += "</table></table><p></p>\n";
        ecrireSection(base, section, total, page);
        ++faites;
        if (avance && !avance(100 * faites / static_cast<int>(std::size(Sections))))
            return {};
    }
    return page + "</td></tr></table></HTML>\n";
}

QString Statistiques::Calculer(const Avance &avance)
{
    const auto echec = [](const QString &chemin, const QString &details) {
        throw Error(
            QCoreApplication::translate("Statistiques", "La page des statistiques ne peut pas être écrite."),
            chemin, details);
    };
    Nettoyer();
    const QByteArray page = Page(avance);
    if (page.isEmpty())
        return {};
    const QString dossier = dossierDeLaPage();
    if (!QDir().mkpath(dossier))
        echec(dossier, {});
    QSaveFile fichier(dossier + QStringLiteral("/Statistiques.htm"));
    // A commit alone may miss that the last of it did not reach the disk.
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(page) != page.size() || !fichier.flush()
        || !fichier.commit())
        echec(fichier.fileName(), fichier.errorString());
    return fichier.fileName();
}
