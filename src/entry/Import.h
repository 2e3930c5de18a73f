#pragma once

#include "acts/Importer.h"
#include "core/ui/FormeOutil.h"

class Demandes;
class QComboBox;
class QGridLayout;
class QLabel;
class QPlainTextEdit;
class QTableWidget;
class TitreGroupe;

/// Albums from a file of separated values: which column holds what, how the first rows would come in, and what
/// became of them all.
class Import : public FormeOutil
{
    Q_OBJECT

public:
    explicit Import(Demandes &demandes);

    /// Begins anew, without a file.
    void charger() override;
    /// Takes up a file. Throws Error.
    void ouvrir(const QString &chemin);

protected:
    void Traduire() override;

private:
    /// Which column of the file holds something.
    struct Colonne
    {
        Rubrique rubrique;
        QLabel *libelle;
        QComboBox *choix;
    };

    QWidget *construireCorrespondance();
    QWidget *construireExemples();
    void choisirFichier();
    void proposerColonnes();
    void nommerFichier();
    Importer::Correspondance correspondance() const;
    void montrerExemples();
    void montrerRapport(const Importer::Rapport &rapport);
    void importer();

    Demandes &m_demandes;
    QString m_chemin;
    Importer::Apercu m_apercu;
    bool m_importe = false; ///< this file has come in
    QLabel *m_fichier = nullptr;
    QPushButton *m_choisir = nullptr;
    TitreGroupe *m_titreColonnes = nullptr;
    TitreGroupe *m_titreExemples = nullptr;
    std::vector<Colonne> m_colonnes;
    QTableWidget *m_exemples = nullptr;
    QComboBox *m_doublons = nullptr;
    QLabel *m_libelleDoublons = nullptr;
    QPlainTextEdit *m_rapport = nullptr;
    QLabel *m_message = nullptr;
    QPushButton *m_valider = nullptr;
};
