#pragma once

#include "appearance/PageApparence.h"

#include <QPalette>

class QComboBox;
class QLabel;

/// Light or dark windows, shown beforehand on a small desk with a sheet.
class PageTheme : public PageApparence
{
    Q_OBJECT

public:
    explicit PageTheme(QWidget *parent = nullptr);

    QString titre() const override;
    void Traduire() override;
    void charger() override;
    void valider() override;

private:
    QWidget *construireExemple();
    void montrerExemple();

    QLabel *m_libelle = nullptr;
    QComboBox *m_theme = nullptr;
    QWidget *m_bureau = nullptr;
    QLabel *m_exemple = nullptr;
    QLabel *m_ligne = nullptr;
};
