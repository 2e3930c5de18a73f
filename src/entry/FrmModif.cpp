#include "entry/FrmModif.h"

#include "core/Dates.h"
#include "core/Traduction.h"
#include "core/ui/Icones.h"
#include "core/ui/Messages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize TailleListe(340, 300);

}

FrmModif::FrmModif(Demandes &demandes)
    : FormeModification(demandes, QStringLiteral("FrmModif"))
{
    auto *ligne = new QHBoxLayout;
    m_saisie = nommer(new QLineEdit(this), QStringLiteral("Saisie"));
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

void FrmModif::taper(const QString &texte)
{
    m_choisie = {0, texte.trimmed()};
    refuser({});
    if (!m_liste->isVisible())
        return;
    {
        const QScopedValueRollback montre(m_montre, true);
        m_modele.filtrer(texte);
        m_liste->setCurrentIndex({});
    }
    if (!m_choisie.texte.isEmpty() && !estOffert(m_choisie.texte))
        prevenir(tr("« %1 » sera ajouté ; ↓ pour choisir dans la liste.").arg(m_choisie.texte));
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

/// True when a line of the list reads like this, whatever case.
bool FrmModif::estOffert(const QString &nom) const
{
    for (int i = 0; i < m_modele.rowCount(); ++i) {
        if (m_modele.index(i).data().toString().compare(nom, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

bool FrmModif::VerifierExist(const QString &nom) const
{
    return Choisir::Chercher(edition(), nom) > 0;
}

void FrmModif::ajouter()
{
    const QString nom = m_saisie->text().trimmed();
    if (nom.isEmpty()) {
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
    if (m_choisie.texte == m_depart.trimmed() && !autre) {
        close();
        return;
    }
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
