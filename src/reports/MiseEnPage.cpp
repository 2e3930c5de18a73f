#include "reports/MiseEnPage.h"

#include "core/Error.h"
#include "core/Images.h"
#include "core/Traduction.h"

#include <QCoreApplication>
#include <QDate>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextLayout>
#include <numeric>

using Listage::Tableau;
using Sorties::Avance;

namespace {

constexpr QColor Encre(0x22, 0x25, 0x2b);
constexpr QColor Bleu(0x1f, 0x4e, 0x79);
constexpr QColor Gris(0x6b, 0x6f, 0x77);
constexpr QColor Filet(0xd8, 0xd2, 0xc4);
constexpr int ColonnesDebout = 6;
constexpr int MoitieFaite = 40;
constexpr int MargeMm = 15;
constexpr qreal PointsParPouce = 72;

/// The page that is being filled: where the pen stands, and how a row is set. Lengths are device units.
class Page
{
public:
    Page(QPagedPaintDevice &papier, QPainter &crayon, const Tableau &tableau)
        : m_papier(papier)
        , m_p(crayon)
        , m_tableau(tableau)
        , m_unite(papier.logicalDpiX() / PointsParPouce)
        , m_ecart(6 * m_unite)
        , m_texte(police(8.5))
        , m_tete(police(8.5, QFont::Bold))
        , m_metriques(m_texte, &papier)
        , m_pleine(papier.pageLayout().paintRectPixels(papier.logicalDpiX()).width())
        , m_largeur(m_pleine)
        , m_hauteur(papier.pageLayout().paintRectPixels(papier.logicalDpiY()).height())
        , m_bas(m_hauteur - 2 * m_metriques.height())
    {
    }

    void mesurer(const std::vector<Sorties::Largeur> &mesures);
    void commencer();
    void rangee(const QStringList &cellules);
    void terminer();

private:
    static QFont police(qreal points, QFont::Weight graisse = QFont::Normal)
    {
        QFont police(QStringLiteral("DejaVu Sans"));
        police.setPointSizeF(points);
        police.setWeight(graisse);
        return police;
    }
    void ligne(const QString &texte, const QFont &police, const QColor &couleur);
    void tetes();
    void numero();
    void suivante();
    void image();
    QStringList lignes(const QString &texte, std::size_t colonne, const QFont &police) const;
    void poser(const QStringList &cellules, const QFont &police, const QColor &couleur, bool coupable);
    void filet(qreal epaisseur, const QColor &couleur);

    QPagedPaintDevice &m_papier;
    QPainter &m_p;
    const Tableau &m_tableau;
    qreal m_unite; ///< of a point
    qreal m_ecart; ///< between columns
    QFont m_texte;
    QFont m_tete;
    QFontMetricsF m_metriques;
    qreal m_pleine; ///< width of a page
    qreal m_largeur; ///< of the rows: less beside a picture
    qreal m_hauteur;
    qreal m_bas; ///< rows end above it
    qreal m_y = 0;
    int m_page = 1;
    std::vector<qreal> m_colonnes; ///< their widths
};

/// Each column gets what its longest line needs when all fit. Else the wide ones give way in proportion, down to
/// their longest word.
void Page::mesurer(const std::vector<Sorties::Largeur> &mesures)
{
    constexpr qsizetype PlusLongueLigne = 70;
    constexpr qsizetype PlusLongMot = 16;
    constexpr qreal PlusAise = 1.4;
    const QFontMetricsF tetes(m_tete, &m_papier);
    const qreal lettre = m_metriques.averageCharWidth() * 1.12;
    std::vector<qreal> voulues;
    std::vector<qreal> moindres;
    for (std::size_t i = 0; i < mesures.size(); ++i) {
        qreal tete = 0;
        for (const QString &mot : m_tableau.tetes[i].libelle.split(u' '))
            tete = std::max(tete, tetes.horizontalAdvance(mot));
        const auto ligne = static_cast<qreal>(std::min(mesures[i].ligne, PlusLongueLigne));
        const auto mot = static_cast<qreal>(std::min(mesures[i].mot, PlusLongMot));
        voulues.push_back(std::max(ligne * lettre, tete) + m_ecart);
        moindres.push_back(std::max(mot * lettre, tete) + m_ecart);
    }
    const qreal voulue = std::accumulate(voulues.begin(), voulues.end(), 0.0);
    const qreal moindre = std::accumulate(moindres.begin(), moindres.end(), 0.0);
    if (voulue <= m_largeur) {
        // Letters are wider than their average here and there: what is left over goes to all.
        const qreal aise = std::min(PlusAise, m_largeur / voulue);
        for (const qreal largeur : voulues)
            m_colonnes.push_back(largeur * aise);
        return;
    }
    const qreal part = std::max(0.0, (m_largeur - moindre) / std::max(1.0, voulue - moindre));
    const qreal serre = std::min(1.0, m_largeur / moindre);
    for (std::size_t i = 0; i < voulues.size(); ++i)
        m_colonnes.push_back(
            part > 0 ? moindres[i] + (voulues[i] - moindres[i]) * part : moindres[i] * serre);
}

void Page::commencer()
{
    image();
    ligne(m_tableau.titre, police(15, QFont::Bold), Bleu);
    ligne(Sorties::EnTete() + QStringLiteral("  —  ")
            + Traduction::courant().locale().toString(QDate::currentDate(), QLocale::ShortFormat),
        police(8), Gris);
    m_y += m_metriques.height();
    tetes();
}

/// The picture stands at the right of the title, and the rows go beside it.
void Page::image()
{
    const QImage image = m_tableau.image.isEmpty() ? QImage() : Images::Decoder(m_tableau.image, {900, 1200});
    if (image.isNull())
        return;
    const QSizeF place = QSizeF(image.size()).scaled(m_largeur / 3, m_hauteur / 3, Qt::KeepAspectRatio);
    const QRectF cadre(QPointF(m_largeur - place.width(), 0), place);
    m_p.drawImage(cadre, image);
    m_largeur -= place.width() + 12 * m_unite;
    m_colonnes.back() = std::max(
        m_colonnes.back() / 3, m_largeur - std::accumulate(m_colonnes.begin(), m_colonnes.end() - 1, 0.0));
}

void Page::ligne(const QString &texte, const QFont &police, const QColor &couleur)
{
    m_p.setFont(police);
    m_p.setPen(couleur);
    const qreal hauteur = QFontMetricsF(police, &m_papier).height();
    m_p.drawText(QRectF(0, m_y, m_largeur, hauteur), Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetricsF(police, &m_papier).elidedText(texte, Qt::ElideRight, m_largeur));
    m_y += hauteur;
}

/// The lines of a cell as its column breaks them. Most texts are one line and need no measuring.
QStringList Page::lignes(const QString &texte, std::size_t colonne, const QFont &police) const
{
    const qreal largeur = std::max(m_colonnes[colonne] - m_ecart, 3 * m_metriques.averageCharWidth());
    const QStringList paragraphes = texte.split(u'\n');
    if (paragraphes.size() == 1 && static_cast<qreal>(texte.size()) * m_metriques.maxWidth() / 2 < largeur)
        return paragraphes;
    QStringList lignes;
    for (const QString &paragraphe : paragraphes) {
        QTextLayout disposition(paragraphe, police, &m_papier);
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        disposition.setTextOption(option);
        disposition.beginLayout();
        for (QTextLine ligne = disposition.createLine(); ligne.isValid(); ligne = disposition.createLine()) {
            ligne.setLineWidth(largeur);
            lignes << paragraphe.mid(ligne.textStart(), ligne.textLength());
        }
        disposition.endLayout();
    }
    return lignes;
}

/// Sets the cells of a row line by line. What does not fit on the page goes on to the next one, in one piece
/// unless it is longer than a page.
void Page::poser(const QStringList &cellules, const QFont &police, const QColor &couleur, bool coupable)
{
    std::vector<QStringList> lignesDe;
    qsizetype nombre = 1;
    for (std::size_t i = 0; i < m_colonnes.size(); ++i) {
        lignesDe.push_back(lignes(cellules[static_cast<qsizetype>(i)], i, police));
        nombre = std::max(nombre, lignesDe.back().size());
    }
    const qreal hauteur = m_metriques.height();
    if (coupable && m_y + static_cast<qreal>(nombre) * hauteur > m_bas
        && static_cast<qreal>(nombre) * hauteur < m_bas / 2)
        suivante();
    for (qsizetype n = 0; n < nombre; ++n) {
        if (coupable && m_y + hauteur > m_bas)
            suivante();
        m_p.setFont(police);
        m_p.setPen(couleur);
        qreal x = 0;
        for (std::size_t i = 0; i < m_colonnes.size(); ++i) {
            const int cote = m_tableau.tetes[i].aDroite ? Qt::AlignRight : Qt::AlignLeft;
            if (n < lignesDe[i].size())
                m_p.drawText(QRectF(x, m_y, m_colonnes[i] - m_ecart, hauteur), cote | Qt::TextSingleLine,
                    lignesDe[i][n]);
            x += m_colonnes[i];
        }
        m_y += hauteur;
    }
}

void Page::tetes()
{
    QStringList libelles;
    for (const auto &tete : m_tableau.tetes)
        libelles << tete.libelle;
    poser(libelles, m_tete, Bleu, false);
    filet(m_unite, Bleu);
}

void Page::filet(qreal epaisseur, const QColor &couleur)
{
    m_y += 2 * m_unite;
    m_p.setPen(QPen(couleur, epaisseur));
    m_p.drawLine(QPointF(0, m_y), QPointF(m_largeur, m_y));
    m_y += 2 * m_unite;
}

void Page::numero()
{
    m_p.setFont(police(8));
    m_p.setPen(Gris);
    m_p.drawText(QRectF(0, m_bas, m_pleine, m_hauteur - m_bas), Qt::AlignRight | Qt::AlignBottom,
        QString::number(m_page));
}

void Page::suivante()
{
    numero();
    m_papier.newPage();
    ++m_page;
    m_largeur = m_pleine;
    m_y = 0;
    tetes();
}

void Page::rangee(const QStringList &cellules)
{
    poser(cellules, m_texte, Encre, true);
    filet(m_unite / 2, Filet);
}

void Page::terminer()
{
    const QStringList totaux = m_tableau.totaux();
    if (m_y + static_cast<qreal>(totaux.size() + 1) * m_metriques.height() > m_bas)
        suivante();
    m_y += m_metriques.height();
    for (const QString &total : totaux)
        ligne(total, m_tete, Encre);
    numero();
}

}

bool MiseEnPage::EstLarge(const Tableau &tableau)
{
    return std::ssize(tableau.tetes) > ColonnesDebout;
}

bool MiseEnPage::Dessiner(QPagedPaintDevice &papier, const Tableau &tableau, const Avance &avance)
{
    const auto mesures = Sorties::Mesurer(tableau, avance, 0, MoitieFaite);
    if (!mesures)
        return false;
    QPainter crayon;
    if (!crayon.begin(&papier))
        throw Error(QCoreApplication::translate("Sorties", "La liste ne peut pas être imprimée."), {});
    Page page(papier, crayon, tableau);
    page.mesurer(*mesures);
    page.commencer();
    const bool entier = Sorties::Parcourir(
        tableau, avance, MoitieFaite, 100, [&](const QStringList &cellules) { page.rangee(cellules); });
    if (entier)
        page.terminer();
    return entier;
}

bool MiseEnPage::EcrirePdf(const QString &chemin, const Tableau &tableau, const Avance &avance)
{
    const auto echouer = [&](const QString &details) {
        throw Error(
            QCoreApplication::translate("Sorties", "La liste ne peut pas être écrite."), chemin, details);
    };
    QSaveFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly))
        echouer(fichier.errorString());
    bool entier = false;
    {
        QPdfWriter papier(&fichier);
        papier.setTitle(tableau.titre);
        papier.setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
            EstLarge(tableau) ? QPageLayout::Landscape : QPageLayout::Portrait,
            QMarginsF(MargeMm, MargeMm, MargeMm, MargeMm), QPageLayout::Millimeter));
        entier = Dessiner(papier, tableau, avance);
    }
    if (!entier)
        return false;
    if (!fichier.flush() || fichier.error() != QFileDevice::NoError || !fichier.commit())
        echouer(fichier.errorString());
    return true;
}
