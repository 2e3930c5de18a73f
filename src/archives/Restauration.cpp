#include "archives/Restauration.h"

#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Suivi.h"
#include "core/ui/Theme.h"
#include "core/ui/TitreGroupe.h"
#include "db/files/Reprise.h"
#include "db/files/Sauvegardes.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using Remplacement::Etat;
using Remplacement::Examen;

namespace {

constexpr QSize TailleDessinee(680, 480);
enum Colonne { ColonneDate, ColonneAlbums, ColonneTaille, ColonneFichier };
constexpr int Chemin = Qt::UserRole;
constexpr int EtatDuFichier = Qt::UserRole + 1;
/// What the columns show, apart from the words of a language.
constexpr int Valeur = Qt::UserRole + 2;

/// Why nothing was converted, for a person.
QString raisonDe(const Conversion::Rapport &rapport)
{
    const auto dire = [](const char *texte) { return Restauration::tr(texte); };
    switch (rapport.erreur) {
    case Conversion::Code::Annulee:
        return dire(QT_TRANSLATE_NOOP("Restauration", "Annulé : rien n'a changé."));
    case Conversion::Code::Chiffree:
        return dire(QT_TRANSLATE_NOOP(
            "Restauration", "Cette base est chiffrée : elle ne peut pas être lue. Rien n'a changé."));
    case Conversion::Code::Abimee:
        return dire(QT_TRANSLATE_NOOP("Restauration", "Cette base est abîmée. Rien n'a changé.")) + u' '
            + rapport.details;
    case Conversion::Code::Absent:
        return dire(QT_TRANSLATE_NOOP("Restauration", "Le convertisseur manque : Bulleo est mal installé."));
    default:
        return dire(QT_TRANSLATE_NOOP("Restauration", "La conversion a échoué. Rien n'a changé.")) + u' '
            + rapport.details;
    }
}

/// A kind of what the converter left out, for a person.
QString motDe(const QString &sorte)
{
    static const QMap<QString, const char *> Mots{
        {QStringLiteral("tableInconnue"), QT_TRANSLATE_NOOP("Restauration", "table inconnue")},
        {QStringLiteral("tableManquante"), QT_TRANSLATE_NOOP("Restauration", "table absente, laissée vide")},
        {QStringLiteral("champInconnu"), QT_TRANSLATE_NOOP("Restauration", "champ inconnu")},
        {QStringLiteral("double"), QT_TRANSLATE_NOOP("Restauration", "numéro déjà pris, ligne laissée")},
        {QStringLiteral("identifiant"), QT_TRANSLATE_NOOP("Restauration", "ligne sans numéro, laissée")},
        {QStringLiteral("nombre"), QT_TRANSLATE_NOOP("Restauration", "pas un nombre, laissé vide")},
        {QStringLiteral("montant"), QT_TRANSLATE_NOOP("Restauration", "montant trop grand, arrondi")},
    };
    const char *mot = Mots.value(sorte);
    return mot ? Restauration::tr(mot) : sorte;
}

bool estUtilisable(Etat etat)
{
    return etat == Etat::Saine || etat == Etat::Vierge || etat == Etat::Ancienne;
}

}

Restauration::Restauration()
    : FormeOutil(QStringLiteral("Restauration"), TailleDessinee, Mini | Progression)
{
    construireListe();
    ajouterMessage();
    m_choisir = ajouterAuPied(QStringLiteral("Choisir"));
    m_valider = ajouterAuPied(QStringLiteral("Valider"), true);
    connect(m_choisir, &QPushButton::clicked, this, &Restauration::choisirFichier);
    connect(m_valider, &QPushButton::clicked, this, &Restauration::restaurer);
    connect(m_sauvegardes, &QTreeWidget::currentItemChanged, this, &Restauration::expliquerChoix);
    connect(m_sauvegardes, &QTreeWidget::itemDoubleClicked, this, &Restauration::restaurer);
    Restauration::Traduire();
    expliquerChoix();
}

void Restauration::construireListe()
{
    m_titreListe = new TitreGroupe(this);
    corps()->addWidget(m_titreListe);
    m_sauvegardes = nommer(new QTreeWidget(this), QStringLiteral("Sauvegardes"));
    m_sauvegardes->setRootIsDecorated(false);
    m_sauvegardes->setUniformRowHeights(true);
    m_sauvegardes->setAllColumnsShowFocus(true);
    m_sauvegardes->setAlternatingRowColors(true);
    corps()->addWidget(m_sauvegardes, 1);
    m_vide = new QLabel(m_sauvegardes);
    m_vide->setWordWrap(true);
    m_vide->setAlignment(Qt::AlignCenter);
    m_vide->setForegroundRole(QPalette::PlaceholderText);
    m_vide->setContentsMargins(Theme::Grand, Theme::Grand, Theme::Grand, Theme::Grand);
    (new QVBoxLayout(m_sauvegardes))->addWidget(m_vide);
    m_sansImages = nommer(new QLabel(this), QStringLiteral("SansImages"));
    m_sansImages->setWordWrap(true);
    m_sansImages->setForegroundRole(QPalette::PlaceholderText);
    corps()->addWidget(m_sansImages);
    m_rapport = nommer(new QPlainTextEdit(this), QStringLiteral("Rapport"));
    m_rapport->setReadOnly(true);
    m_rapport->setTabChangesFocus(true);
    m_rapport->hide();
    corps()->addWidget(m_rapport, 1);
}

void Restauration::charger()
{
    m_sauvegardes->clear();
    dire({});
    m_rapport->hide();
    int rang = 0;
    for (const Sauvegardes::Sauvegarde &s : Sauvegardes::Lister()) {
        Examen examen;
        examen.date = s.date;
        examen.taille = s.taille;
        examen.albums = s.albums;
        examen.etat = s.albums < 0 ? Etat::Abimee : Etat::Saine;
        ajouterLigne(s.chemin, QFileInfo(s.chemin).fileName(), examen, rang++);
    }
    m_vide->setVisible(rang == 0);
    m_sauvegardes->setCurrentItem(m_sauvegardes->topLevelItem(0));
    expliquerChoix();
}

void Restauration::ajouterLigne(const QString &chemin, const QString &nom, const Examen &examen, int rang)
{
    const bool lisible = examen.etat == Etat::Saine || examen.etat == Etat::Vierge;
    auto *ligne = new QTreeWidgetItem;
    ligne->setData(0, Chemin, chemin);
    ligne->setData(0, EtatDuFichier, static_cast<int>(examen.etat));
    ligne->setData(ColonneDate, Valeur, examen.date);
    ligne->setData(ColonneAlbums, Valeur, lisible ? examen.albums : -1);
    ligne->setData(ColonneTaille, Valeur, examen.taille);
    ligne->setText(ColonneFichier, nom);
    for (const int colonne : {ColonneAlbums, ColonneTaille})
        ligne->setTextAlignment(colonne, Qt::AlignRight | Qt::AlignVCenter);
    ecrireLigne(ligne);
    m_sauvegardes->insertTopLevelItem(rang, ligne);
    for (int colonne = 0; colonne < m_sauvegardes->columnCount(); ++colonne)
        m_sauvegardes->resizeColumnToContents(colonne);
}

/// Its date and figures, in the language in force.
void Restauration::ecrireLigne(QTreeWidgetItem *ligne)
{
    const QLocale &locale = Traduction::courant().locale();
    const int albums = ligne->data(ColonneAlbums, Valeur).toInt();
    ligne->setText(
        ColonneDate, locale.toString(ligne->data(ColonneDate, Valeur).toDateTime(), QLocale::ShortFormat));
    ligne->setText(ColonneAlbums, albums < 0 ? QStringLiteral("—") : locale.toString(albums));
    ligne->setText(ColonneTaille, locale.formattedDataSize(ligne->data(ColonneTaille, Valeur).toLongLong()));
}

void Restauration::choisirFichier()
{
    const QString chemin = Messages::OuvrirFichier(this, texte(Txt::RestaurerUneAncienneBase),
        Reglages::courant().texte(Cle::DossierCopies), texte(Txt::FiltreRestauration));
    if (!chemin.isEmpty())
        proposer(chemin);
}

void Restauration::proposer(const QString &chemin)
{
    const Examen examen = Remplacement::Examiner(chemin);
    const QString raison = Remplacement::RaisonDuRefus(examen.etat);
    if (!estUtilisable(examen.etat)) {
        dire(examen.mots.isEmpty() ? raison : raison + u' ' + examen.mots);
        return;
    }
    Reglages::courant().ecrire(Cle::DossierCopies, QFileInfo(chemin).absolutePath());
    m_vide->hide();
    ajouterLigne(chemin, chemin, examen, 0);
    m_sauvegardes->setCurrentItem(m_sauvegardes->topLevelItem(0));
    m_sauvegardes->setFocus();
}

QString Restauration::cheminChoisi() const
{
    const QTreeWidgetItem *ligne = m_sauvegardes->currentItem();
    return ligne ? ligne->data(0, Chemin).toString() : QString();
}

/// What will be done with the file chosen, or why nothing can be.
void Restauration::expliquerChoix()
{
    const QTreeWidgetItem *ligne = m_sauvegardes->currentItem();
    const auto etat = ligne ? static_cast<Etat>(ligne->data(0, EtatDuFichier).toInt()) : Etat::Etrangere;
    m_valider->setEnabled(ligne && estUtilisable(etat));
    if (!ligne)
        return dire({});
    dire(etat == Etat::Ancienne
            ? tr("Une ancienne base : elle sera convertie, son fichier reste comme il est.")
            : estUtilisable(etat) ? tr("La base en service est gardée parmi les sauvegardes.")
                                  : Remplacement::RaisonDuRefus(etat));
}

void Restauration::restaurer()
{
    const QTreeWidgetItem *ligne = m_sauvegardes->currentItem();
    if (!m_valider->isEnabled())
        return;
    const QString chemin = cheminChoisi();
    if (static_cast<Etat>(ligne->data(0, EtatDuFichier).toInt()) == Etat::Ancienne)
        return convertir(chemin);
    const QString question = tr("Remplacer la base en service par celle du %1, avec %n album(s) ?", nullptr,
        ligne->data(ColonneAlbums, Valeur).toInt())
                                 .arg(ligne->text(ColonneDate));
    if (!Messages::Demander(this, question))
        return;
    const QString refus = Remplacement::Restaurer(chemin);
    if (!refus.isEmpty())
        return dire(refus);
    charger();
    Messages::Informer(this, texte(Txt::RestaurationEffectuee));
}

void Restauration::convertir(const QString &chemin)
{
    if (!Messages::Demander(
            this, tr("Convertir cette ancienne base et la mettre en service ? Son fichier est gardé.")))
        return;
    Conversion::Rapport rapport;
    {
        Suivi suivi(progression(), annuler());
        rapport = Reprise::Reprendre(chemin, [&](int pourcent) { return suivi.avancer(pourcent); });
    }
    if (rapport.erreur != Conversion::Code::Aucun)
        return dire(raisonDe(rapport));
    charger();
    montrerRapport(rapport);
    Messages::Informer(this, texte(Txt::RestaurationEffectuee));
}

/// What came over, table by table, and what the new file does not hold as it was.
void Restauration::montrerRapport(const Conversion::Rapport &rapport)
{
    QStringList lignes;
    for (const Conversion::TableLue &table : rapport.tables)
        lignes << tr("%1 : %n ligne(s)", nullptr, static_cast<int>(table.rangees)).arg(table.nom);
    if (!rapport.ecartes.isEmpty())
        lignes << QString() << tr("Laissé de côté, ou changé :");
    for (const Conversion::Ecarte &ecarte : rapport.ecartes)
        lignes << QStringLiteral("%1 — %2 %3")
                      .arg(motDe(ecarte.sorte), ecarte.table, ecarte.quoi.join(QStringLiteral(", ")));
    m_rapport->setPlainText(lignes.join(u'\n'));
    m_rapport->show();
    if (rapport.nature == QLatin1String("catalogue"))
        dire(tr("C'était un catalogue de référence : ses textes sont repris tels quels, leur code"
                " n'étant pas connu."));
}

void Restauration::Traduire()
{
    FormeOutil::Traduire();
    poserTitre(texte(Txt::Restauration));
    m_titreListe->setText(tr("Sauvegardes"));
    m_sauvegardes->setAccessibleName(tr("Sauvegardes"));
    m_sauvegardes->setHeaderLabels({tr("Date"), texte(Txt::AlbumsDeBD), texte(Txt::Taille), tr("Fichier")});
    m_vide->setText(
        tr("Aucune sauvegarde pour l'instant : la première se fait d'elle-même, avant votre prochaine"
           " modification. Vous pouvez aussi choisir un fichier."));
    m_sansImages->setText(
        tr("Une sauvegarde contient les données, pas les images : leurs dossiers, images et image, se"
           " copient à part."));
    for (int i = 0; i < m_sauvegardes->topLevelItemCount(); ++i)
        ecrireLigne(m_sauvegardes->topLevelItem(i));
    m_rapport->setAccessibleName(tr("Rapport"));
    libeller(m_choisir, tr("Choisir un fichier…"));
    libeller(m_valider, tr("Restaurer"));
    expliquerChoix();
}
