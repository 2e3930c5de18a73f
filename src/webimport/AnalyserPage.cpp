#include "webimport/AnalyserPage.h"

#include "core/Error.h"
#include "core/Texte.h"

#include <QCoreApplication>
#include <QLocale>
#include <cmath>

using AnalysePage::Page;

namespace {

constexpr double FrancsParEuro = 6.55957;
const QString FinDeLien = QStringLiteral("</a>");
const QString FinDeSpan = QStringLiteral("</span>");

Error illisible(const char *raison)
{
    return Error(QCoreApplication::translate("AnalysePage", "La page ne peut pas être analysée."),
        QCoreApplication::translate("AnalysePage", raison));
}

bool contient(const QString &ligne, const QString &marqueur)
{
    bool trouve = false;
    AnalysePage::LigneContient(marqueur, ligne, trouve);
    return trouve;
}

/// The lines of a text, whichever way they end; a walk that can be asked for the next one from anywhere.
class Lignes
{
public:
    explicit Lignes(const QString &texte)
        : m_texte(texte)
    {
    }
    bool finies() const { return m_place >= m_texte.size(); }
    QString suivante()
    {
        if (finies())
            throw illisible(QT_TRANSLATE_NOOP("AnalysePage", "Il lui manque une ligne."));
        qsizetype fin = m_place;
        while (fin < m_texte.size() && m_texte[fin] != u'\n' && m_texte[fin] != u'\r')
            ++fin;
        const QString ligne = m_texte.mid(m_place, fin - m_place);
        m_place = fin + 1;
        if (fin + 1 < m_texte.size() && m_texte[fin] == u'\r' && m_texte[fin + 1] == u'\n')
            ++m_place;
        return ligne;
    }

private:
    QString m_texte;
    qsizetype m_place = 0;
};

double nombre(const QString &texte)
{
    bool sur = false;
    const double valeur = QString(texte).replace(u',', u'.').trimmed().toDouble(&sur);
    if (!sur || !std::isfinite(valeur))
        throw illisible(QT_TRANSLATE_NOOP("AnalysePage", "Son prix n'est pas un nombre."));
    return valeur;
}

/// A value between two fixed markers of a line that a third one tells.
struct Coupe
{
    QString Page::*valeur;
    const char *signe;
    const char *debut;
    const char *fin;
};

void couper(const Coupe &coupe, const QString &ligne, Page &page)
{
    QString &valeur = page.*coupe.valeur;
    if (valeur.isEmpty() && contient(ligne, QString::fromUtf8(coupe.signe)))
        AnalysePage::ExtraireEntre(
            QString::fromUtf8(coupe.debut), ligne, valeur, QString::fromUtf8(coupe.fin));
}

void lireSerie(const QString &ligne, Page &page)
{
    if (!page.serie.isEmpty())
        return;
    couper({&Page::serie, "<h1>Série&nbsp;", "<h1>Série&nbsp;", "</span>"}, ligne, page);
    const qsizetype tome = page.serie.indexOf(QLatin1String("(tome"), 0, Qt::CaseInsensitive);
    if (tome >= 0)
        page.serie.truncate(tome);
}

void lirePrix(const QString &ligne, Page &page)
{
    const QString marqueur = QStringLiteral("prix public : </span>");
    if (!page.prix.isEmpty() || !contient(ligne, marqueur))
        return;
    AnalysePage::ExtraireEntre(marqueur, ligne, page.prix, QStringLiteral("&euro;"));
    page.prixFrancs = QString::number(nombre(page.prix) * FrancsParEuro, 'g', QLocale::FloatingPointShortest);
}

void lireDate(const QString &ligne, Page &page)
{
    if (page.date.isEmpty()
        && (contient(ligne, QStringLiteral("paru ")) || contient(ligne, QStringLiteral("parution"))))
        AnalysePage::ExtraireEntre(FinDeSpan, ligne, page.date, FinDeSpan);
}

/// The line of one artist is told by its own marker but cut behind "parution": a page with a single artist
/// names him there or not at all.
void lireDessinateurs(const QString &ligne, Page &page)
{
    couper({&Page::dessinateurs, "dessinateur : </span>", "parution", "</a>"}, ligne, page);
    const QString plusieurs = QStringLiteral("dessinateurs : </span>");
    if (!contient(ligne, plusieurs))
        return;
    QString coupe;
    AnalysePage::ExtraireEntre(plusieurs, ligne, coupe, FinDeLien);
    if (!page.dessinateurs.isEmpty() && !coupe.isEmpty())
        page.dessinateurs += QStringLiteral(", ");
    page.dessinateurs += coupe;
}

void lireScenariste(const QString &ligne, Page &page)
{
    if (!page.scenariste.isEmpty())
        return;
    const QString plusieurs = QStringLiteral("scénaristes :");
    const QString un = QStringLiteral("scénariste :");
    if (contient(ligne, plusieurs))
        AnalysePage::ExtraireEntre(plusieurs, ligne, page.scenariste, FinDeLien);
    else if (contient(ligne, un))
        AnalysePage::ExtraireEntre(un, ligne, page.scenariste, FinDeLien);
}

/// A value whose marker stands on one line and itself on the next, which no other rule sees.
void lireDessous(const QString &ligne, const QString &marqueur, Lignes &lignes, QString &valeur)
{
    if (valeur.isEmpty() && contient(ligne, marqueur))
        AnalysePage::ExtraireEntre(QStringLiteral(" >"), lignes.suivante().toLower(), valeur, FinDeLien);
}

void lireDescription(const QString &ligne, Page &page)
{
    const QString marqueur = QStringLiteral("<span class=\"infoliste\">Album");
    if (!page.description.isEmpty() || !contient(ligne, marqueur))
        return;
    AnalysePage::ExtraireEntre(marqueur, ligne, page.description, FinDeSpan);
    if (contient(page.description, QStringLiteral("en couleur"))
        || contient(page.description, QStringLiteral("cartonnée")))
        page.finition = QStringLiteral("Album en couleur");
}

void lireCouverture(const QString &ligne, Page &page, const AnalysePage::CouvertureTrouvee &trouvee)
{
    const bool vide = page.couverture.isEmpty();
    couper({&Page::couverture, "/img/couvpage", "/img/couvpage", ".jpg"}, ligne, page);
    if (vide && !page.couverture.isEmpty() && trouvee)
        trouvee(page.couverture, page.titre);
}

/// All rules on one line, in their order. Values are cut from the line in lower case, but for the description.
void lireLigne(const QString &lue, Lignes &lignes, Page &page, const AnalysePage::CouvertureTrouvee &trouvee)
{
    const QString ligne = lue.toLower();
    couper({&Page::titre, "<h2>", "<h2>", "</h2>"}, ligne, page);
    lireSerie(ligne, page);
    couper({&Page::tome, "(tome", "(tome", ")"}, ligne, page);
    lirePrix(ligne, page);
    lireDate(ligne, page);
    lireDessinateurs(ligne, page);
    lireScenariste(ligne, page);
    couper({&Page::genre, "genre :", "genre :", "</a>"}, ligne, page);
    lireDessous(ligne, QStringLiteral("editeur :"), lignes, page.editeur);
    lireDessous(ligne, QStringLiteral("public :"), lignes, page.publicVise);
    lireDescription(lue, page);
    lireCouverture(ligne, page, trouvee);
}

}

void AnalysePage::AnalyserPage(const QByteArray &octets, Page &page, const CouvertureTrouvee &trouvee)
{
    Lignes lignes(Texte::Decoder(octets));
    while (!lignes.finies())
        lireLigne(lignes.suivante(), lignes, page, trouvee);
}

QString AnalysePage::NettoyerTitre(const QString &titre)
{
    QString net = titre;
    net.remove(QStringLiteral("Ils ont travaillé sur la Série BD"), Qt::CaseInsensitive);
    return net.replace(QLatin1String("&nbsp;"), QLatin1String(" ")).trimmed();
}

void AnalysePage::ExtraireEntre(
    const QString &debut, const QString &ligne, QString &cible, const QString &fin)
{
    if (!cible.trimmed().isEmpty())
        return;
    const qsizetype place = ligne.indexOf(debut, 0, Qt::CaseInsensitive);
    if (place < 0)
        return;
    const qsizetype apres = place + debut.size();
    if (fin.isEmpty()) {
        cible = ligne.mid(apres).trimmed();
    } else if (const qsizetype bout = ligne.indexOf(fin, apres, Qt::CaseInsensitive); bout >= 0) {
        cible = ligne.mid(apres, bout - apres).trimmed();
    }
    OterBalises(cible);
}

void AnalysePage::OterBalises(QString &texte)
{
    if (!texte.contains(u'<'))
        return;
    QString net;
    qsizetype place = 0;
    for (;;) {
        const qsizetype ouverte = texte.indexOf(u'<', place);
        if (ouverte < 0)
            break;
        const qsizetype fermee = texte.indexOf(u'>', ouverte);
        if (fermee < 0)
            throw illisible(QT_TRANSLATE_NOOP("AnalysePage", "Une balise n'y est jamais fermée."));
        net += QStringView(texte).mid(place, ouverte - place);
        place = fermee + 1;
    }
    net += QStringView(texte).mid(place);
    texte = net;
}

void AnalysePage::LigneContient(const QString &marqueur, const QString &ligne, bool &trouve)
{
    trouve = trouve || ligne.contains(marqueur, Qt::CaseInsensitive);
}
