#include "webimport/AccesBDNet.h"

#include "core/Reglages.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "webimport/Telechargement.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int LargeurDeLaPage = 560;

bool estAcceptable(const QString &texte)
{
    return texte.isEmpty() || Telechargement::EstDuWeb(Telechargement::AdresseDe(texte));
}

}

AccesBDNet::AccesBDNet(QWidget *parent)
    : QWidget(parent)
{
    auto *page = new QVBoxLayout(this);
    auto *zone = new QWidget(this);
    zone->setFixedWidth(LargeurDeLaPage);
    auto *grille = new QGridLayout(zone);
    grille->setHorizontalSpacing(Theme::Moyen);
    grille->setVerticalSpacing(Theme::Petit);
    grille->setColumnStretch(1, 1);
    m_notice = nommer(new QLabel(zone), QStringLiteral("Notice"));
    m_notice->setWordWrap(true);
    m_notice->setForegroundRole(QPalette::PlaceholderText);
    grille->addWidget(m_notice, 0, 0, 1, 2);
    grille->setRowMinimumHeight(1, Theme::Petit);
    const auto ajouter = [&](const char *nom, QLabel *&libelle) {
        auto *ligne = nommer(new QLineEdit(zone), QLatin1String(nom));
        libelle = new QLabel(zone);
        libelle->setForegroundRole(QPalette::PlaceholderText);
        libelle->setBuddy(ligne);
        const int rang = grille->rowCount();
        grille->addWidget(libelle, rang, 0);
        grille->addWidget(ligne, rang, 1);
        connect(ligne, &QLineEdit::textChanged, this, &AccesBDNet::suivre);
        // Queued: storing may take the page away, and the key must not press the button that then gets the focus.
        connect(ligne, &QLineEdit::returnPressed, this, &AccesBDNet::enregistrer, Qt::QueuedConnection);
        return ligne;
    };
    m_hote = ajouter("Hote", m_libelleHote);
    m_accueil = ajouter("PageAccueil", m_libelleAccueil);
    setFocusProxy(m_hote);
    m_enregistrer = nommer(new QPushButton(zone), QStringLiteral("Enregistrer"));
    grille->addWidget(m_enregistrer, grille->rowCount(), 1, Qt::AlignRight);
    connect(m_enregistrer, &QPushButton::clicked, this, &AccesBDNet::enregistrer);
    // Not aligned, but between stretches: so the lines of the notice get the height that they need.
    auto *milieu = new QHBoxLayout;
    milieu->addStretch(1);
    milieu->addWidget(zone);
    milieu->addStretch(1);
    page->addStretch(1);
    page->addLayout(milieu);
    page->addStretch(2);
}

void AccesBDNet::montrer(bool navigateur)
{
    m_navigateur = navigateur;
    const Reglages &reglages = Reglages::courant();
    m_hote->setText(reglages.texte(Cle::HoteBDNet));
    m_accueil->setText(reglages.texte(Cle::AccueilBDNet));
    Traduire();
    suivre();
}

void AccesBDNet::Traduire()
{
    QStringList avis;
    if (!m_navigateur)
        avis << tr("Le navigateur n'est pas installé (paquet libqt6webenginewidgets6). L'adresse d'une fiche "
                   "d'album, écrite ci-dessus, suffit pour l'analyser.");
    const Reglages &reglages = Reglages::courant();
    if (reglages.texte(Cle::HoteBDNet).isEmpty() || reglages.texte(Cle::AccueilBDNet).isEmpty())
        avis << tr("Donnez l'adresse du catalogue, d'où viennent les couvertures, et la page par laquelle sa "
                   "visite commence.");
    m_notice->setText(avis.join(QStringLiteral("\n\n")));
    m_libelleHote->setText(tr("Adresse du catalogue"));
    m_hote->setAccessibleName(tr("Adresse du catalogue"));
    m_libelleAccueil->setText(tr("Page d'accueil"));
    m_accueil->setAccessibleName(tr("Page d'accueil"));
    libeller(m_enregistrer, tr("Enregistrer"));
}

/// There is something to store as soon as a line says something else than the settings.
void AccesBDNet::suivre()
{
    const Reglages &reglages = Reglages::courant();
    m_enregistrer->setEnabled(m_hote->text().trimmed() != reglages.texte(Cle::HoteBDNet)
        || m_accueil->text().trimmed() != reglages.texte(Cle::AccueilBDNet));
}

void AccesBDNet::enregistrer()
{
    for (QLineEdit *ligne : {m_hote, m_accueil}) {
        if (estAcceptable(ligne->text().trimmed()))
            continue;
        ligne->setFocus();
        ligne->selectAll();
        Q_EMIT refuse(tr("« %1 » n'est pas une adresse du web.").arg(ligne->text().trimmed()));
        return;
    }
    Reglages &reglages = Reglages::courant();
    reglages.ecrire(Cle::HoteBDNet, m_hote->text().trimmed());
    reglages.ecrire(Cle::AccueilBDNet, m_accueil->text().trimmed());
    montrer(m_navigateur);
    Q_EMIT enregistre();
}
