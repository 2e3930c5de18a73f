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
    const auto ecrire
        = [&](const QFont &font, const QColor &encre, Qt::Alignment cote, const QString &texte) {
              p->setFont(font);
              p->setPen(choisie ? o.palette.color(QPalette::HighlightedText) : encre);
              p->drawText(r, int(cote) | Qt::TextSingleLine,
                  QFontMetrics(font).elidedText(texte, Qt::ElideRight, r.width()));
          };
    p->save();
    ecrire(o.font, o.palette.color(QPalette::Text), Qt::AlignTop, titre);
    ecrire(petite(o.font), Theme::Discret(o.palette), Qt::AlignBottom,
        index.data(ListeCatalogue::RoleSerie).toString());
    p->restore();
}

QSize LigneCatalogue::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int hauteur
        = QFontMetrics(option.font).height() + QFontMetrics(petite(option.font)).height() + Theme::Fin;
    return {QStyledItemDelegate::sizeHint(option, index).width(), hauteur};
}
