#include "browse/VueListe.h"

#include "core/ui/Icones.h"

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
    const int courante = memeListe ? choisie() : 0;
    const int rang = memeListe ? currentIndex().row() : -1;
    const int hauteur = memeListe ? verticalScrollBar()->value() : 0;
    m_muette = true;
    const QString icone = QString::fromLatin1(General::GenreDe(tri).icone);
    m_modele.poserIcones(Icones::Charger(icone), Icones::AvecMarque(icone, QStringLiteral("pret")));
    m_modele.remplir(tri, std::move(entrees));
    if (courante > 0) {
        // Where the entry was, its successor stands now.
        const QModelIndex sienne = m_modele.indexDe(courante);
        const int dernier = m_modele.rowCount() - 1;
        setCurrentIndex(sienne.isValid() ? sienne : m_modele.index(std::min(rang, dernier)));
    }
    if (memeListe)
        verticalScrollBar()->setValue(hauteur);
    m_muette = false;
}

void VueListe::choisir(int id)
{
    const QModelIndex index = m_modele.indexDe(id);
    m_muette = true;
    setCurrentIndex(index);
    if (index.isValid())
        scrollTo(index);
    m_muette = false;
}

void VueListe::currentChanged(const QModelIndex &courant, const QModelIndex &precedent)
{
    QListView::currentChanged(courant, precedent);
    if (!m_muette && courant.isValid())
        m_annonce.start(0);
}
