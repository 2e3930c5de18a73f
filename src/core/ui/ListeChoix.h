#pragma once

#include <QComboBox>

/// An editable choice list: what is typed stays as typed, while the names that hold it, whatever case and
/// accents, are offered below.
class ListeChoix : public QComboBox
{
    Q_OBJECT

public:
    explicit ListeChoix(QWidget *parent = nullptr);

    /// Offers these names; the text in the field stays.
    void proposer(const QStringList &noms);
};
