#pragma once

#include <QComboBox>

/// An editable choice list. What is typed is completed in the line when it can only mean one of the names; otherwise the
/// names that hold it, whatever case and accents, are offered below.
class ListeChoix : public QComboBox
{
    Q_OBJECT

public:
    explicit ListeChoix(QWidget *parent = nullptr);

    /// Offers these names; the text in the field stays.
    void proposer(const QStringList &noms);

private:
    QStringList m_noms;
    QStringList m_plies; ///< the same, as they compare
};
