#include "browse/Etagere.h"

#include "core/ui/Theme.h"
#include "core/ui/Vignettes.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <QTimer>

namespace {

constexpr QSize TailleImage(116, 154);
constexpr int HauteurTitre = 38;
constexpr int Marge = 8;

}

/// Paints one volume; what it does not know yet it asks the shelf for.
class Etagere::Dessin : public QStyledItemDelegate
{
public:
    explicit Dessin(Etagere *etagere)
        : QStyledItemDelegate(etagere)
        , m_etagere(*etagere)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {TailleImage.width() + 2 * Marge, TailleImage.height() + HauteurTitre + 2 * Marge};
    }

    void paint(QPainter *p, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const bool choisi = option.state.testFlag(QStyle::State_Selected);
        if (choisi || option.state.testFlag(QStyle::State_MouseOver))
            p->fillRect(option.rect, Theme::Survol(option.palette));
        if (option.state.testFlag(QStyle::State_HasFocus)) {
            p->setPen(Theme::Bleu(option.palette));
            p->drawRect(option.rect.adjusted(0, 0, -1, -1));
        }
        const QRect cadre(option.rect.topLeft() + QPoint(Marge, Marge), TailleImage);
        const int num = m_etagere.m_modele.id(index);
        const auto volume = m_etagere.m_volumes.find(num);
        if (volume == m_etagere.m_volumes.end())
            demander(num);
        else
            peindreImage(p, cadre, option.palette, volume->second);
        peindreTitre(p, option, cadre, index.data().toString());
    }

private:
    void demander(int num) const
    {
        if (m_etagere.m_manquants.empty())
            QTimer::singleShot(0, &m_etagere, &Etagere::lireManquants);
        m_etagere.m_manquants.push_back(num);
    }

    void peindreImage(
        QPainter *p, const QRect &cadre, const QPalette &palette, const General::Volume &volume) const
    {
        const QString &chemin = volume.image;
        const QSize taille = TailleImage * m_etagere.devicePixelRatioF();
        const QImage *image = chemin.isEmpty() ? nullptr : Vignettes::Connue(chemin, taille);
        if (!chemin.isEmpty() && !image)
            Vignettes::Demander(&m_etagere, chemin, taille,
                [etagere = &m_etagere](const QImage &) { etagere->viewport()->update(); });
        QRect place = cadre;
        if (image && !image->isNull()) {
            place.setSize(image->size().scaled(cadre.size(), Qt::KeepAspectRatio));
            place.moveCenter(cadre.center());
            place.moveBottom(cadre.bottom());
            p->setRenderHint(QPainter::SmoothPixmapTransform);
            p->drawImage(place, *image);
        } else {
            p->fillRect(place, palette.color(QPalette::AlternateBase));
        }
        p->setPen(Theme::Trait(palette));
        p->drawRect(place.adjusted(0, 0, -1, -1));
        if (volume.tome > 0)
            peindreTome(p, place.bottomLeft(), palette, volume.tome);
    }

    void peindreTome(QPainter *p, const QPoint &coin, const QPalette &palette, int tome) const
    {
        p->save();
        p->setFont(Theme::Taille(p->font(), 0.85, QFont::Bold));
        const QString texte = QString::number(tome);
        constexpr int Hauteur = 18;
        const QRect etiquette(
            coin - QPoint(0, Hauteur - 1), QSize(p->fontMetrics().horizontalAdvance(texte) + 10, Hauteur));
        p->fillRect(etiquette, Theme::FondRouge(palette));
        p->setPen(palette.color(QPalette::HighlightedText));
        p->drawText(etiquette, Qt::AlignCenter, texte);
        p->restore();
    }

    static void peindreTitre(
        QPainter *p, const QStyleOptionViewItem &option, const QRect &cadre, const QString &titre)
    {
        const QRect place(cadre.left() - 4, cadre.bottom() + 4, cadre.width() + 8, HauteurTitre);
        p->save();
        p->setClipRect(place);
        p->setPen(Theme::Encre(option.palette));
        p->setFont(Theme::Taille(option.font, 0.85));
        p->drawText(place, int(Qt::AlignHCenter) | Qt::AlignTop | Qt::TextWordWrap, titre);
        p->restore();
    }

    Etagere &m_etagere;
};

Etagere::Etagere(QWidget *parent)
    : QListView(parent)
{
    setObjectName(QStringLiteral("Etagere"));
    setModel(&m_modele);
    setItemDelegate(new Dessin(this));
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setLayoutMode(Batched);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    connect(this, &QListView::activated, this,
        [this](const QModelIndex &i) { Q_EMIT albumDemande(m_modele.id(i)); });
    connect(this, &QListView::clicked, this,
        [this](const QModelIndex &i) { Q_EMIT albumDemande(m_modele.id(i)); });
}

void Etagere::montrer(const Entrees &albums)
{
    m_volumes.clear();
    m_manquants.clear();
    m_modele.remplir(General::Tri::Albums, albums);
}

void Etagere::lireManquants()
{
    const std::vector<int> manquants = std::exchange(m_manquants, {});
    // Known as empty before the reading, so that a failing one is not asked for at every paint.
    for (const int num : manquants)
        m_volumes.emplace(num, General::Volume());
    const std::vector<General::Volume> volumes = General::LireVolumes(manquants);
    for (std::size_t i = 0; i < manquants.size(); ++i)
        m_volumes[manquants[i]] = volumes[i];
    viewport()->update();
}
