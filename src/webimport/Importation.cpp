#include "webimport/Importation.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Reglages.h"
#include "core/Traduction.h"

#include <QSaveFile>

using Couvertures::Rang;

namespace {

/// The words that tick the boxes are those of the pages, whatever the language of the program.
const QString MotBroche = QStringLiteral("BROCHÉ");
const QString MotCouleur = QStringLiteral("COULEUR");

/// Where a page tells what.
struct Part
{
    Rubrique rubrique;
    QString AnalysePage::Page::*texte;
};
constexpr Part Parts[] = {
    {Rubrique::Titre, &AnalysePage::Page::titre},
    {Rubrique::Tome, &AnalysePage::Page::tome},
    {Rubrique::Dateparu, &AnalysePage::Page::date},
    {Rubrique::Serie, &AnalysePage::Page::serie},
    {Rubrique::Genre, &AnalysePage::Page::genre},
    {Rubrique::Dessin, &AnalysePage::Page::dessinateurs},
    {Rubrique::Scena, &AnalysePage::Page::scenariste},
    {Rubrique::Editeur, &AnalysePage::Page::editeur},
    {Rubrique::Prix, &AnalysePage::Page::prix},
};

Album albumDe(const AnalysePage::Page &page)
{
    Album album;
    for (const Part &part : Parts)
        album[part.rubrique] = page.*part.texte;
    for (const auto &[rubrique, oui] :
        {std::pair(Rubrique::Broche, page.description.toUpper().contains(MotBroche)),
            std::pair(Rubrique::Couleur, page.finition.toUpper().contains(MotCouleur))})
        album[rubrique] = QLatin1String(ChampsDeCreation::TexteDeCase(ChampsDeCreation::De(rubrique), oui));
    return album;
}

void garderPage(const QByteArray &octets)
{
    const QString chemin = Dossier::courant().chemin(QStringLiteral("temp.txt"));
    QSaveFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size() || !fichier.commit())
        throw Error(Importation::tr("La page ne peut pas être enregistrée."), chemin, fichier.errorString());
}

}

Importation::Importation(QObject *parent)
    : Importation(Telechargement::Limites(), parent)
{
}

Importation::Importation(const Telechargement::Limites &limites, QObject *parent)
    : QObject(parent)
    , m_telechargement(limites, nullptr)
{
    connect(&m_telechargement, &Telechargement::avance, this, &Importation::avance);
    connect(&m_telechargement, &Telechargement::fini, this, [this](const QByteArray &octets) {
        if (m_rang)
            garderCouverture(octets);
        else
            lirePage(octets);
    });
    connect(&m_telechargement, &Telechargement::echoue, this, [this](const QString &raison) {
        if (m_rang)
            return garderCouverture({});
        m_enCours = false;
        Q_EMIT echouee(raison);
    });
}

bool Importation::EstUneFiche(const QUrl &url)
{
    return url.toString().contains(QLatin1String("catalogue_detail"));
}

void Importation::commencer(const QUrl &url)
{
    m_resultat = {};
    m_rang.reset();
    m_enCours = true;
    m_telechargement.commencer(url);
}

void Importation::annuler()
{
    if (!m_enCours)
        return;
    // Of pictures that were not waited for there are none; the page's own fields are kept.
    m_rang = m_rang ? std::optional(Rang::Seconde) : std::nullopt;
    m_telechargement.annuler();
}

void Importation::lirePage(const QByteArray &octets)
{
    AnalysePage::Page &page = m_resultat.page;
    try {
        garderPage(octets);
        AnalysePage::AnalyserPage(
            octets, page, [this](const QString &, const QString &titre) { m_titreDesImages = titre; });
    } catch (const Error &) {
        m_resultat.complet = false;
    }
    page.titre = AnalysePage::NettoyerTitre(page.titre);
    m_resultat.album = albumDe(page);
    if (page.couverture.isEmpty() || Reglages::courant().texte(Cle::HoteBDNet).isEmpty())
        return terminer();
    m_rang = Rang::Premiere;
    demanderCouverture();
}

void Importation::demanderCouverture()
{
    m_telechargement.commencer(
        Couvertures::Adresse(Reglages::courant().texte(Cle::HoteBDNet), m_resultat.page.couverture, *m_rang));
}

/// A step that fails does not stop the following ones: without its pictures the album can still be made.
void Importation::garderCouverture(const QByteArray &octets)
{
    const bool premiere = *m_rang == Rang::Premiere;
    try {
        if (!octets.isEmpty())
            m_resultat.album[premiere ? Rubrique::Photo1 : Rubrique::Photo2]
                = Couvertures::Garder(octets, m_titreDesImages, *m_rang);
    } catch (const Error &e) {
        m_resultat.sansImage = e.message();
    }
    if (!premiere)
        return terminer();
    m_rang = Rang::Seconde;
    demanderCouverture();
}

void Importation::terminer()
{
    m_enCours = false;
    m_rang.reset();
    Q_EMIT finie(m_resultat);
}
