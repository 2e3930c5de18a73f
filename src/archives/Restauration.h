#pragma once

#include "core/ui/FormeOutil.h"
#include "db/files/Conversion.h"
#include "db/files/Remplacement.h"

class QLabel;
class QPlainTextEdit;
class QTreeWidget;
class QTreeWidgetItem;
class TitreGroupe;

/// Another collection in the place of the one at work: one of the dated backups, or a file chosen.
class Restauration : public FormeOutil
{
    Q_OBJECT

public:
    Restauration();

    /// Lists the backups there are. Throws Error.
    void charger() override;
    /// Adds a file to the list and chooses it. Throws Error.
    void proposer(const QString &chemin);

protected:
    void Traduire() override;

private:
    void construireListe();
    void ajouterLigne(
        const QString &chemin, const QString &nom, const Remplacement::Examen &examen, int rang);
    static void ecrireLigne(QTreeWidgetItem *ligne);
    void choisirFichier();
    void expliquerChoix();
    void restaurer();
    void convertir(const QString &chemin);
    void montrerRapport(const Conversion::Rapport &rapport);
    QString cheminChoisi() const;

    TitreGroupe *m_titreListe = nullptr;
    QTreeWidget *m_sauvegardes = nullptr;
    QLabel *m_vide = nullptr;
    QLabel *m_sansImages = nullptr;
    QPlainTextEdit *m_rapport = nullptr;
    QPushButton *m_choisir = nullptr;
    QPushButton *m_valider = nullptr;
};
