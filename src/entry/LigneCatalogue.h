#pragma once

#include <QStyledItemDelegate>

/// A line of the reference catalogue: its title, and its series below in smaller letters.
class LigneCatalogue : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *p, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
