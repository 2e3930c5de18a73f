#pragma once

#include "core/ui/FormeOutil.h"

class CadreImage;
class Demandes;
class QCheckBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class TitreGroupe;

/// The background of the windows: a texture of the folder "Fond Ecran", one's own, or none.
class Textures : public FormeOutil
{
    Q_OBJECT

public:
    explicit Textures(Demandes &demandes);

    /// Lists the textures there are.
    void charger() override;

protected:
    void Traduire() override;

private:
    void construireListe(class QBoxLayout *ligne);
    void construireApercu(QBoxLayout *ligne);
    QListWidgetItem *ajouterLigne(const QString &fichier, const QString &nom);
    void choisir(QListWidgetItem *ligne);
    void montrerApercu();
    void ajouterTexture();
    void valider();

    Demandes &m_demandes;
    TitreGroupe *m_titreListe = nullptr;
    QListWidget *m_liste = nullptr;
    int m_presente = 0; ///< line of the background as it is
    QPushButton *m_suppl = nullptr;
    QCheckBox *m_apercu = nullptr;
    QCheckBox *m_defilement = nullptr;
    CadreImage *m_visu = nullptr;
    QPushButton *m_valider = nullptr;
};
