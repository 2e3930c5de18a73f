#include "entry/FrmModif.h"

#include "core/Dates.h"
#include "core/Error.h"
#include "core/Texte.h"
#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/LigneCompletee.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QListView>
#include <QScopedValueRollback>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize TailleListe(340, 300);
constexpr int LignesDIndice = 2;

}

FrmModif::FrmModif(Demandes &demandes)
    : FormeModification(demandes, QStringLiteral("FrmModif"), LignesDIndice)
{
    auto *ligne = new QHBoxLayout;
    m_saisie = nommer(new LigneCompletee([this](const QString &saisie) { return seulOffert(saisie); }, this),
        QStringLiteral("Saisie"));
    m_saisie->setClearButtonEnabled(true);
    m_saisie->installEventFilter(this);
    ligne->addWidget(m_saisie, 1);
    m_menu = nommer(new QToolButton(this), QStringLiteral("Menu"));
    m_menu->setIcon(Icones::Charger(QStringLiteral("ajouter")));
    ligne->addWidget(m_menu);
    corps()->addLayout(ligne);
    construireListe();
    construireCalendrier();
    connect(m_saisie, &QLineEdit::textEdited, this, &FrmModif::taper);
    connect(m_menu, &QToolButton::clicked, this, &FrmModif::ajouter);
    FrmModif::Traduire();
}

void FrmModif::construireListe()
{
    m_liste = nommer(new QListView(this), QStringLiteral("Liste"));
    m_liste->setModel(&m_modele);
    m_liste->setUniformItemSizes(true);
    m_liste->setEditTriggers(QListView::NoEditTriggers);
    m_liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_liste->setMinimumSize(TailleListe);
    m_liste->setSpacing(2);
    corps()->addWidget(m_liste, 1);
    connect(m_liste->selectionModel(), &QItemSelectionModel::currentChanged, this, &FrmModif::prendre);
    connect(m_liste, &QListView::clicked, this, &FrmModif::prendre);
    connect(m_liste, &QListView::doubleClicked, this, [this] { valider(); });
}

void FrmModif::construireCalendrier()
{
    m_date = nommer(new QCalendarWidget(this), QStringLiteral("SaisieDate"));
    m_date->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    for (const auto &[bouton, icone] :
        {std::pair("qt_calendar_prevmonth", "precedent"), std::pair("qt_calendar_nextmonth", "suivant")}) {
        if (auto *fleche = m_date->findChild<QToolButton *>(QLatin1String(bouton)))
            fleche->setIcon(Icones::Charger(QLatin1String(icone), QPalette::HighlightedText));
    }
    QTextCharFormat finDeSemaine;
    finDeSemaine.setForeground(Theme::Rouge(palette()));
    for (const Qt::DayOfWeek jour : {Qt::Saturday, Qt::Sunday})
        m_date->setWeekdayTextFormat(jour, finDeSemaine);
    corps()->addWidget(m_date, 1);
    connect(m_date, &QCalendarWidget::clicked, this, &FrmModif::prendreJour);
    connect(m_date, &QCalendarWidget::selectionChanged, this, &FrmModif::prendreJour);
    connect(m_date, &QCalendarWidget::activated, this, [this] {
        // The day that an empty field begins with was not taken yet.
        if (m_choisie.texte.isEmpty())
            prendreJour();
        valider();
    });
}

void FrmModif::Traduire()
{
    FormeModification::Traduire();
    expliquer(m_menu, texte(Txt::Ajouter));
    m_saisie->setAccessibleName(Ecrire::LibelleDe(edition()));
    m_liste->setAccessibleName(Ecrire::LibelleDe(edition()));
    m_date->setAccessibleName(Ecrire::LibelleDe(edition()));
    m_date->setLocale(Traduction::courant().locale());
}

void FrmModif::proposer()
{
    m_choisie = {0, edition().affichee};
    m_saisie->setText(edition().affichee);
    RendreDateVisible(Choisir::EstUneDate(edition()));
    m_depart = m_saisie->text();
    m_saisie->selectAll();
    m_saisie->setFocus();
}

void FrmModif::RendreDateVisible(bool visible)
{
    m_date->setVisible(visible);
    m_liste->setVisible(!visible);
    m_menu->setVisible(!visible);
    if (!visible)
        return remplir();
    const QScopedValueRollback montre(m_montre, true);
    m_date->setSelectedDate(Dates::LireJour(edition().affichee).value_or(QDate::currentDate()));
}

/// The whole list, standing on the entry that the field holds.
void FrmModif::remplir()
{
    const QScopedValueRollback montre(m_montre, true);
    General::Choix choix = Choisir::LireChoix(edition());
    m_modele.filtrer({});
    m_modele.remplir(General::Tri::Series, std::move(choix.entrees));
    const QModelIndex tenue = m_modele.index(choix.choisie);
    m_tenue = m_modele.id(tenue);
    m_liste->setCurrentIndex(tenue);
    if (tenue.isValid())
        m_liste->scrollTo(tenue, QListView::PositionAtCenter);
}

/// The one line that a typed text leaves in the list and begins; empty without one.
QString FrmModif::seulOffert(const QString &saisie)
{
    if (!m_liste->isVisible())
        return {};
    const QScopedValueRollback montre(m_montre, true);
    m_modele.filtrer(saisie);
    const QString seul = m_modele.rowCount() == 1 ? m_modele.index(0).data().toString() : QString();
    return Texte::Plier(seul).startsWith(Texte::Plier(saisie)) ? seul : QString();
}

void FrmModif::taper()
{
    m_choisie = {0, m_saisie->text().trimmed()};
    refuser({});
    if (!m_liste->isVisible())
        return;
    {
        const QScopedValueRollback montre(m_montre, true);
        m_modele.filtrer(m_choisie.texte);
        m_liste->setCurrentIndex({});
    }
    try {
        resoudre();
    } catch (const Error &) {
        // The base is not to be had just now: nothing can be said, and validating asks again.
    }
}

/// Whom a typed text means: a line of the list, an entry of that very name which the list does not offer, or a new one.
/// Says which.
void FrmModif::resoudre()
{
    const QString texte = m_choisie.texte;
    if (texte.isEmpty())
        return;
    if (const QModelIndex offert = offertSous(texte); offert.isValid())
        return choisirOffert(offert);
    const Sources::Source &source = *Ecrire::SourceDe(edition());
    m_choisie.id = Choisir::PorteurDe(edition(), texte);
    // An author is called by both his names; a contributor is found by his surname alone, too.
    m_choisie.neuve = m_choisie.id == 0 && source.role;
    if (m_choisie.id == 0 && !source.role)
        m_choisie.id = Choisir::Chercher(edition(), texte);
    const int rang = m_modele.entrees().rang(m_choisie.id);
    const QStringList neuves = m_choisie.id > 0 ? QStringList()
        : m_choisie.neuve                       ? QStringList{texte}
                                                : Choisir::Nouveaux(edition(), texte);
    if (m_choisie.id > 0 && source.role && rang < 0)
        prevenir(tr("« %1 » est connu dans un autre métier : il sera choisi.").arg(texte));
    else if (neuves.isEmpty())
        prevenir(tr("« %1 » sera choisi.").arg(rang >= 0 ? m_modele.entrees().texte(rang) : texte));
    else
        prevenir(tr("« %1 » sera ajouté ; ↓ pour choisir dans la liste.")
                     .arg(neuves.join(QStringLiteral(" », « "))));
}

void FrmModif::choisirOffert(const QModelIndex &index)
{
    const QScopedValueRollback montre(m_montre, true);
    m_choisie = {m_modele.id(index), index.data().toString()};
    m_liste->setCurrentIndex(index);
    prevenir(tr("« %1 » sera choisi.").arg(m_choisie.texte));
}

void FrmModif::prendre(const QModelIndex &index)
{
    if (m_montre || !index.isValid())
        return;
    m_choisie = {m_modele.id(index), index.data().toString()};
    m_saisie->setText(m_choisie.texte);
    refuser({});
}

void FrmModif::prendreJour()
{
    if (m_montre)
        return;
    m_choisie = {0, Dates::Ecrire(m_date->selectedDate())};
    m_saisie->setText(m_choisie.texte);
    refuser({});
}

/// The line that reads like this, whatever case; of several the one that the field holds.
QModelIndex FrmModif::offertSous(const QString &nom) const
{
    const auto porte = [&](const QModelIndex &index) {
        return index.data().toString().compare(nom, Qt::CaseInsensitive) == 0;
    };
    if (const QModelIndex tenue = m_modele.indexDe(m_tenue); porte(tenue))
        return tenue;
    for (int i = 0; i < m_modele.rowCount(); ++i) {
        if (porte(m_modele.index(i)))
            return m_modele.index(i);
    }
    return {};
}

bool FrmModif::VerifierExist(const QString &nom) const
{
    return Choisir::PorteurDe(edition(), nom) > 0;
}

void FrmModif::ajouter()
{
    const QString nom = m_saisie->text().trimmed();
    if (!Texte::EstUnNom(nom)) {
        refuser(tr("Tapez d'abord le nom à ajouter."));
        m_saisie->setFocus();
        return;
    }
    if (VerifierExist(nom)) {
        Messages::Avertir(this, tr("La donnée existe déjà !"));
        return;
    }
    const int id = Choisir::Ajouter(edition(), nom);
    remplir();
    m_liste->setCurrentIndex(m_modele.indexDe(id));
    m_liste->scrollTo(m_liste->currentIndex());
    m_choisie = {id, nom};
}

void FrmModif::valider()
{
    // The same words may be another entry's.
    const bool autre = m_choisie.id > 0 && m_choisie.id != m_tenue;
    if (m_choisie.texte == m_depart.trimmed() && !autre && !Choisir::TientUnDisparu(edition())) {
        close();
        return;
    }
    if (m_choisie.id == 0 && m_liste->isVisible())
        resoudre();
    const QString refus = Choisir::Valider(edition(), m_choisie);
    if (!refus.isEmpty()) {
        // What was picked may be gone: its text stays, to be found or made by the next try.
        m_choisie.id = 0;
        if (m_liste->isVisible())
            remplir();
        refuser(refus);
        m_saisie->setFocus();
        return;
    }
    close();
}

bool FrmModif::eventFilter(QObject *objet, QEvent *evenement)
{
    if (objet == m_saisie && evenement->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(evenement)->key() == Qt::Key_Down) {
        if (m_date->isVisible()) {
            m_date->setFocus();
        } else {
            m_liste->setFocus();
            if (!m_liste->currentIndex().isValid())
                m_liste->setCurrentIndex(m_modele.index(0));
        }
        return true;
    }
    return FormeModification::eventFilter(objet, evenement);
}
