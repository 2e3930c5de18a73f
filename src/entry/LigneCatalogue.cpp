#include "entry/LigneCatalogue.h"

#include "core/ui/Theme.h"
#include "entry/ListeCatalogue.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr qreal TailleDeLaSerie = 0.86;

QFont petite(const QFont &font)
{
    return Theme::Taille(font, TailleDeLaSerie);
}

}

void LigneCatalogue::paint(QPainter *p, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem o = option;
    initStyleOption(&o, index);
    const QString titre = std::exchange(o.text, QString());
    const QStyle *style = o.widget ? o.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &o, p, o.widget);
    const bool choisie = o.state.testFlag(QStyle::State_Selected);
    const QRect r = o.rect.adjusted(Theme::Fin, Theme::Fin / 2, -Theme::Fin, -Theme::Fin / 2);
    const auto ecrire = [&](const QFont &font, const QColor &encre, Qt::Alignment cote, const QString &texte,
                            const QString &fin) {
        const QFontMetrics mesure(font);
        const int place = r.width() - mesure.horizontalAdvance(fin);
        p->setFont(font);
        p->setPen(choisie ? o.palette.color(QPalette::HighlightedText) : encre);
        p->drawText(r, int(cote) | Qt::TextSingleLine, mesure.elidedText(texte, Qt::ElideRight, place) + fin);
    };
    // A long title ends in dots; its number stands behind it all the same.
    const qsizetype numero = std::max<qsizetype>(0, titre.lastIndexOf(QLatin1String("  (")));
    p->save();
    ecrire(o.font, o.palette.color(QPalette::Text), Qt::AlignTop, titre.left(numero), titre.mid(numero));
    ecrire(petite(o.font), Theme::Discret(o.palette), Qt::AlignBottom,
        index.data(ListeCatalogue::RoleSerie).toString(), {});
    p->restore();
}

/// As wide as the list is.
QSize LigneCatalogue::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {1, QFontMetrics(option.font).height() + QFontMetrics(petite(option.font)).height() + Theme::Fin};
}
