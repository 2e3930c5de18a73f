#pragma once

#include "appearance/PageApparence.h"

class CadreImage;
class QBoxLayout;
class QCheckBox;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class TitreGroupe;

/// The background of the windows: a texture of the folder "Fond Ecran", one's own, or none.
class Textures : public PageApparence
{
    Q_OBJECT

public:
    explicit Textures(QWidget *parent = nullptr);

    QString titre() const override;
    void Traduire() override;
    /// Lists the textures there are.
    void charger() override;
    void valider() override;

private:
    void construireListe(QBoxLayout *ligne);
    void construireApercu(QBoxLayout *ligne);
    QListWidgetItem *ajouterLigne(const QString &fichier, const QString &nom);
    void choisir(QListWidgetItem *ligne);
    void montrerApercu();
    void ajouterTexture();

    TitreGroupe *m_titreListe = nullptr;
    QListWidget *m_liste = nullptr;
    int m_presente = 0; ///< line of the background as it is
    QPushButton *m_suppl = nullptr;
    QCheckBox *m_apercu = nullptr;
    QCheckBox *m_defilement = nullptr;
    CadreImage *m_visu = nullptr;
};
