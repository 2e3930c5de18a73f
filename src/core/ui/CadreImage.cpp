#include "core/ui/CadreImage.h"

#include "core/Images.h"
#include "core/ui/Icones.h"
#include "core/ui/Legende.h"
#include "core/ui/Nommer.h"
#include "core/ui/Theme.h"
#include "core/ui/Vignettes.h"

#include <QAction>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QUrl>

namespace {

constexpr int AttenteMs = 120;
constexpr int CoteCroix = 24;

}

CadreImage::CadreImage(QWidget *parent)
    : QWidget(parent)
{
    m_attente.setSingleShot(true);
    connect(&m_attente, &QTimer::timeout, this, &CadreImage::demander);
}

void CadreImage::montrer(const QString &nom)
{
    m_chemin = Images::Trouver(nom);
    setToolTip(m_chemin.isEmpty() ? QString() : QFileInfo(m_chemin).fileName());
    demander();
    placerRetrait();
}

void CadreImage::poserLegende(const QString &legende)
{
    m_legende = legende;
    update();
}

void CadreImage::poserModifiable()
{
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
}

void CadreImage::poserRetrait(const QString &libelle)
{
    if (!m_retirer) {
        m_retirer = nommer(new QAction(this), QStringLiteral("Retirer"));
        m_retirer->setIcon(Icones::Charger(QStringLiteral("fermer")));
        m_retirer->setShortcut(QKeySequence(Qt::Key_Delete));
        m_retirer->setShortcutContext(Qt::WidgetShortcut);
        addAction(m_retirer);
        setContextMenuPolicy(Qt::ActionsContextMenu);
        connect(m_retirer, &QAction::triggered, this, &CadreImage::retraitDemande);
        // For the mouse alone: the keyboard has its key.
        m_croix = nommer(new QToolButton(this), QStringLiteral("Croix"));
        m_croix->setFocusPolicy(Qt::NoFocus);
        m_croix->setFixedSize(CoteCroix, CoteCroix);
        m_croix->setCursor(Qt::ArrowCursor);
        // Its own ground, so that it is seen on a dark picture, too.
        m_croix->setAutoFillBackground(true);
        m_croix->setBackgroundRole(QPalette::Base);
        m_croix->setIcon(m_retirer->icon());
        connect(m_croix, &QToolButton::clicked, m_retirer, &QAction::trigger);
    }
    m_retirer->setText(libelle);
    expliquer(m_croix, libelle);
    placerRetrait();
}

/// There is nothing to take away from an empty frame.
void CadreImage::placerRetrait()
{
    if (!m_retirer)
        return;
    m_retirer->setEnabled(aUneImage());
    m_croix->setVisible(aUneImage());
    m_croix->move(width() - CoteCroix - Theme::Fin, Theme::Fin);
}

void CadreImage::demander()
{
    const int generation = ++m_generation;
    if (m_chemin.isEmpty() || size().isEmpty())
        return recevoir(generation, {});
    Vignettes::Demander(this, m_chemin, size() * devicePixelRatioF(),
        [this, generation](const QImage &image) { recevoir(generation, image); });
}

void CadreImage::recevoir(int generation, const QImage &image)
{
    if (generation != m_generation)
        return;
    m_image = image;
    m_image.setDevicePixelRatio(devicePixelRatioF());
    update();
}

void CadreImage::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF cadre = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    if (m_image.isNull()) {
        p.setPen(QPen(Theme::Trait(palette()), 1, Qt::DashLine));
        p.setBrush(palette().color(QPalette::AlternateBase));
        p.drawRoundedRect(cadre, 3, 3);
        p.setPen(Theme::Discret(palette()));
        p.drawText(rect().adjusted(8, 8, -8, -8), int(Qt::AlignCenter) | Qt::TextWordWrap, m_legende);
        if (hasFocus())
            Legende::DessinerFocus(p, *this);
        return;
    }
    QRectF place(QPointF(), m_image.deviceIndependentSize().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    place.moveTop(0);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(place, m_image);
    p.setPen(Theme::Trait(palette()));
    p.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
    if (hasFocus())
        Legende::DessinerFocus(p, *this);
}

void CadreImage::resizeEvent(QResizeEvent *evenement)
{
    QWidget::resizeEvent(evenement);
    placerRetrait();
    // While a splitter is dragged the picture is only stretched.
    m_attente.start(m_image.isNull() ? 0 : AttenteMs);
}

void CadreImage::mouseReleaseEvent(QMouseEvent *evenement)
{
    if (evenement->button() == Qt::LeftButton && rect().contains(evenement->position().toPoint()))
        Q_EMIT actionnee();
}

void CadreImage::mouseDoubleClickEvent(QMouseEvent *evenement)
{
    if (evenement->button() == Qt::LeftButton && aUneImage())
        Q_EMIT ouvertureDemandee();
}

void CadreImage::keyPressEvent(QKeyEvent *evenement)
{
    const int touche = evenement->key();
    const QImage collee
        = evenement->matches(QKeySequence::Paste) ? QGuiApplication::clipboard()->image() : QImage();
    if (!collee.isNull())
        Q_EMIT imageCollee(collee);
    else if (touche == Qt::Key_Return || touche == Qt::Key_Enter || touche == Qt::Key_Space)
        aUneImage() ? Q_EMIT ouvertureDemandee() : Q_EMIT actionnee();
    else
        QWidget::keyPressEvent(evenement);
}

void CadreImage::dragEnterEvent(QDragEnterEvent *evenement)
{
    const QList<QUrl> urls = evenement->mimeData()->urls();
    if (urls.size() == 1 && urls.first().isLocalFile())
        evenement->acceptProposedAction();
}

void CadreImage::dropEvent(QDropEvent *evenement)
{
    evenement->acceptProposedAction();
    Q_EMIT fichierDepose(evenement->mimeData()->urls().first().toLocalFile());
}
