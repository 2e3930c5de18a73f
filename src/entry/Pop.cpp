#include "entry/Pop.h"

#include "acts/Choisir.h"
#include "acts/Demandes.h"
#include "acts/Joindre.h"
#include "acts/Preter.h"
#include "acts/Supprimer.h"
#include "core/Images.h"
#include "core/Texte.h"
#include "core/Traduction.h"
#include "core/ui/ChoisirImage.h"
#include "core/ui/Icones.h"
#include "core/ui/Langues.h"
#include "core/ui/Liens.h"
#include "core/ui/Messages.h"

#include <QApplication>
#include <QClipboard>

using Champs::Champ;
using Champs::Vue;
using General::Tri;

namespace {

constexpr qsizetype LongueurDuNom = 48;

QString icone(const QString &commande)
{
    static const QHash<QString, QString> icones{
        {QStringLiteral("ajouter"), QStringLiteral("ajouter")},
        {QStringLiteral("crea"), QStringLiteral("creation")},
        {QStringLiteral("modifie"), QStringLiteral("modifier")},
        {QStringLiteral("modifier"), QStringLiteral("modifier")},
        {QStringLiteral("supprime"), QStringLiteral("supprimer")},
        {QStringLiteral("supprimer"), QStringLiteral("supprimer")},
        {QStringLiteral("Visu"), QStringLiteral("lien")},
        {QStringLiteral("visu2"), QStringLiteral("image")},
        {QStringLiteral("modifphoto"), QStringLiteral("image-ajouter")},
        {QStringLiteral("modifimageDedi"), QStringLiteral("image-ajouter")},
        {QStringLiteral("Supphoto"), QStringLiteral("image-supprimer")},
        {QStringLiteral("suppimagededi"), QStringLiteral("image-supprimer")},
        {QStringLiteral("preter"), QStringLiteral("prets")},
        {QStringLiteral("rendre"), QStringLiteral("retourner")},
        {QStringLiteral("quitter"), QStringLiteral("quitter")},
    };
    return icones.value(commande);
}

QString pourMenu(const QString &texte)
{
    const bool long_ = texte.size() > LongueurDuNom;
    return QString(long_ ? Texte::Couper(texte, LongueurDuNom) + QChar(0x2026) : texte)
        .replace(u'&', QStringLiteral("&&"));
}

bool estDedicace(const Edition &edition)
{
    const Champ *champ = Ecrire::ChampDe(edition);
    return champ && champ->vue == Vue::Dedicace;
}

}

Pop::Pop(Demandes &demandes)
    : m_demandes(demandes)
{
    setObjectName(QStringLiteral("Pop"));
}

template <class Geste>
QAction *Pop::commande(const char *nom, const QString &libelle, Geste geste)
{
    QAction *action = addAction(libelle);
    action->setObjectName(QLatin1String(nom));
    if (const QString dessin = icone(action->objectName()); !dessin.isEmpty())
        action->setIcon(Icones::Charger(dessin));
    connect(action, &QAction::triggered, this, geste);
    return action;
}

void Pop::ouvrir(const Edition &edition, const QPoint &point)
{
    m_edition = edition;
    clear();
    delete m_langues; // a menu clears its actions, not its menus
    remplir();
    popup(point);
}

void Pop::remplir()
{
    const General::Entree entree = m_edition.entree;
    if (entree.id > 0) {
        const QString nom = General::LireTexte(entree.tri, entree.id);
        QAction *premiere
            = commande("LL", pourMenu(nom), [this, entree] { Q_EMIT m_demandes.entree(entree); });
        QFont gras = font();
        gras.setBold(true);
        premiere->setFont(gras);
        addSeparator();
    }
    if (m_edition.viseUneValeur())
        remplirValeur();
    else if (entree.id > 0)
        remplirEntree();
    addSeparator();
    if (entree.tri != Tri::Albums) {
        const QString liste = texte(General::ListeDe(entree.tri).bouton);
        commande("ajouter", texte(Txt::Ajouter) + QStringLiteral(": ") + liste,
            [this, entree] { Q_EMIT m_demandes.ajout(entree.tri); });
    }
    commande("crea", texte(Txt::CreationManuelleDUnAlbum) + QStringLiteral("\tCtrl+N"),
        [this] { Q_EMIT m_demandes.forme(Formes::Nom::Manuelle); });
    addSeparator();
    m_langues = addMenu(Icones::Charger(QStringLiteral("langue")), texte(Txt::SelectionnerLaLangue));
    m_langues->menuAction()->setObjectName(QStringLiteral("Payss"));
    RemplirLangues(*m_langues, [this](const QString &fichier) { Q_EMIT m_demandes.langue(fichier); });
    commande("quitter", tr("Quitter") + QStringLiteral("\tCtrl+Q"), [this] { Q_EMIT m_demandes.sortie(); });
}

void Pop::remplirEntree()
{
    const General::Entree entree = m_edition.entree;
    commande("modifie", tr("Renommer") + QStringLiteral("\tF2"),
        [this, entree] { Q_EMIT m_demandes.renommage(entree); });
    if (entree.tri == Tri::Albums)
        remplirPret(entree);
    remplirCopie(General::LireTexte(entree.tri, entree.id));
    commande("supprime", texte(Txt::Supprimer) + QLatin1Char('\t') + tr("Suppr"),
        [this, entree] { Q_EMIT m_demandes.suppression(entree); });
}

/// An album is lent, or comes back.
void Pop::remplirPret(General::Entree album)
{
    const std::vector<int> pretes = General::LirePretes();
    if (std::binary_search(pretes.begin(), pretes.end(), album.id))
        commande("rendre", tr("Rendre"), [album] { Preter::Rendre(album.id); });
    else
        commande("preter", tr("Prêter…"), [this, album] {
            Q_EMIT m_demandes.edition(Ecrire::EditionDe(album, Champs::De(Champs::Feuille::Album, "NPret")));
        });
}

void Pop::remplirCopie(const QString &texte)
{
    if (!Texte::EstVide(texte))
        commande("copier", tr("Copier"), [texte] { QApplication::clipboard()->setText(texte); });
}

void Pop::remplirValeur()
{
    const Champ *champ = Ecrire::ChampDe(m_edition);
    const bool image = champ && champ->vue == Vue::Image;
    const bool dediImage = estDedicace(m_edition) && Images::EstUneImage(m_edition.affichee);
    const QString libelle = QStringLiteral(": ") + Ecrire::LibelleDe(m_edition);
    if (champ && champ->vue == Vue::Lien && !Texte::EstVide(m_edition.affichee))
        commande("Visu", texte(Txt::VisiterLeSite), [this] { Liens::Ouvrir(m_edition.affichee); });
    if ((image || dediImage) && !Images::Trouver(m_edition.affichee).isEmpty())
        commande("visu2", texte(Txt::VisualiserLImage), [this] { Liens::OuvrirImage(m_edition.affichee); });
    if (image || estDedicace(m_edition))
        remplirImage();
    const bool legende = !champ || champ->voie != Champs::Voie::Directe;
    if (legende && !dediImage)
        commande(
            "modifier", texte(Txt::Modifier) + libelle, [this] { Q_EMIT m_demandes.edition(m_edition); });
    if (legende && !dediImage)
        remplirCopie(m_edition.affichee);
    if (Choisir::PeutVider(m_edition) && !dediImage)
        commande("supprimer", texte(Txt::Supprimer) + libelle, [this] { Choisir::Vider(m_edition); });
}

void Pop::remplirImage()
{
    const bool dedicace = estDedicace(m_edition);
    commande(dedicace ? "modifimageDedi" : "modifphoto", texte(Txt::ModifierLImage),
        [this] { choisirImage(m_edition); });
    const bool pleine
        = dedicace ? Images::EstUneImage(m_edition.affichee) : !Texte::EstVide(m_edition.affichee);
    if (pleine)
        commande(dedicace ? "suppimagededi" : "Supphoto", texte(Txt::SupprimerLImage),
            [this] { Joindre::Oter(m_edition); });
}

void Pop::choisirImage(const Edition &edition)
{
    QWidget *devant = QApplication::activeWindow();
    const QString question = Joindre::QuestionSurLaNote(edition);
    if (!question.isEmpty() && !Messages::Demander(devant, question))
        return;
    const QString chemin = ChoisirImage(devant);
    if (!chemin.isEmpty())
        Joindre::Poser(edition, chemin);
}

void Pop::supprimer(General::Entree entree)
{
    const QString nom = General::LireTexte(entree.tri, entree.id);
    const QString suites = Supprimer::Suites(entree);
    QString question = texte(Txt::VoulezVousSupprimer) + QStringLiteral(" '") + nom + QStringLiteral("' ?");
    if (!suites.isEmpty())
        question += u'\n' + suites;
    if (Messages::Demander(QApplication::activeWindow(), question, !suites.isEmpty()))
        Supprimer::SupprimerEntree(entree);
}
