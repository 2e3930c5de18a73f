#include "browse/VueListe.h"

#include "core/ui/Icones.h"
#include "core/ui/Legende.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

VueListe::VueListe(const QString &nom, QWidget *parent)
    : QListView(parent)
{
    setObjectName(nom);
    setModel(&m_modele);
    setUniformItemSizes(true);
    setEditTriggers(EditKeyPressed | DoubleClicked);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setIconSize({18, 18});
    setFrameShape(NoFrame);
    setSpacing(0);

    m_annonce.setSingleShot(true);
    connect(&m_annonce, &QTimer::timeout, this, [this] {
        if (currentIndex().isValid())
            Q_EMIT entreeChoisie({m_modele.tri(), choisie()});
    });
    // A click on the entry that is already current shows it again: the sheet may be that of another list.
    connect(this, &QListView::clicked, this, [this] { m_annonce.start(0); });
}

void VueListe::remplir(General::Tri tri, Entrees entrees)
{
    const bool memeListe = tri == m_modele.tri();
    const int hauteur = memeListe ? verticalScrollBar()->value() : 0;
    const bool enVue = memeListe && estEnVue();
    m_rang = memeListe ? currentIndex().row() : -1;
    if (!memeListe)
        m_retenue = 0;
    m_muette = true;
    const QString icone = QString::fromLatin1(General::ListeDe(tri).icone);
    m_modele.poserIcones(Icones::Charger(icone), Icones::AvecMarque(icone, QStringLiteral("pret")));
    m_modele.remplir(tri, std::move(entrees));
    // One that a filter hides is still the one; one that is not here any more leaves its place to nobody.
    const QModelIndex courante = m_modele.indexDe(m_retenue);
    setCurrentIndex(courante);
    if (memeListe)
        verticalScrollBar()->setValue(hauteur);
    if (enVue && courante.isValid())
        scrollTo(courante);
    m_muette = false;
}

bool VueListe::estEnVue() const
{
    const QModelIndex courante = currentIndex();
    return courante.isValid() && viewport()->rect().intersects(visualRect(courante));
}

int VueListe::remplacante() const
{
    return m_modele.id(m_modele.index(std::min(m_rang, m_modele.rowCount() - 1)));
}

bool VueListe::avancer(int pas)
{
    const QModelIndex voisine = m_modele.index(currentIndex().row() + pas);
    if (!currentIndex().isValid() || !voisine.isValid())
        return false;
    setCurrentIndex(voisine);
    return true;
}

void VueListe::choisir(int id)
{
    const QModelIndex index = m_modele.indexDe(id);
    m_retenue = id;
    m_muette = true;
    setCurrentIndex(index);
    if (index.isValid())
        scrollTo(index);
    m_muette = false;
}

void VueListe::currentChanged(const QModelIndex &courant, const QModelIndex &precedent)
{
    QListView::currentChanged(courant, precedent);
    if (m_muette || !courant.isValid())
        return;
    m_retenue = m_modele.id(courant);
    m_annonce.start(0);
}

void VueListe::filtrer(const QString &texte)
{
    m_muette = true;
    m_modele.filtrer(texte);
    retrouver();
    m_muette = false;
}

void VueListe::restreindre(std::vector<int> ids)
{
    m_muette = true;
    m_modele.restreindre(std::move(ids));
    retrouver();
    m_muette = false;
}

/// The entry that was current is so again when its line shows.
void VueListe::retrouver()
{
    const QModelIndex retenue = m_modele.indexDe(m_retenue);
    setCurrentIndex(retenue);
    if (retenue.isValid())
        scrollTo(retenue, PositionAtCenter);
}

bool VueListe::renommer(int id)
{
    const QModelIndex index = m_modele.indexDe(id);
    if (!index.isValid())
        return false;
    scrollTo(index);
    setCurrentIndex(index);
    edit(index);
    return true;
}

void VueListe::ajouter()
{
    m_muette = true;
    const QModelIndex neuve = m_modele.ouvrirNeuve();
    setCurrentIndex(neuve);
    scrollTo(neuve);
    setFocus();
    edit(neuve);
    m_muette = false;
}

void VueListe::closeEditor(QWidget *editeur, QAbstractItemDelegate::EndEditHint suite)
{
    QListView::closeEditor(editeur, suite);
    if (!m_modele.aUneNeuve())
        return;
    // The line goes once the view is done with its editor.
    QTimer::singleShot(0, this, [this] {
        m_muette = true;
        m_modele.fermerNeuve();
        setCurrentIndex(m_modele.indexDe(m_retenue));
        m_muette = false;
    });
}

void VueListe::contextMenuEvent(QContextMenuEvent *evenement)
{
    const bool souris = evenement->reason() == QContextMenuEvent::Mouse;
    const QModelIndex index = souris ? indexAt(evenement->pos()) : currentIndex();
    const QPoint point
        = souris ? evenement->globalPos() : viewport()->mapToGlobal(visualRect(index).bottomLeft());
    Q_EMIT menuDemande({m_modele.tri(), m_modele.id(index)}, point);
}

/// With no line to show it, the list itself shows that the keyboard is here.
void VueListe::paintEvent(QPaintEvent *evenement)
{
    QListView::paintEvent(evenement);
    if (!hasFocus() || currentIndex().isValid())
        return;
    QPainter p(viewport());
    Legende::DessinerFocus(p, *viewport());
}

void VueListe::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() == Qt::Key_Delete && choisie() > 0)
        Q_EMIT suppressionDemandee({m_modele.tri(), choisie()});
    else
        QListView::keyPressEvent(evenement);
}
