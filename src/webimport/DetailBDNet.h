#pragma once

#include "webimport/CreationBDNet.h"
#include "webimport/Importation.h"

#include <QWidget>
#include <vector>

class CadreImage;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

/// The fields that a page gave, to be looked over before the album is created.
class DetailBDNet : public QWidget
{
    Q_OBJECT

public:
    explicit DetailBDNet(QWidget *parent);

    void montrer(const Importation::Resultat &resultat);
    CreationBDNet::Saisie saisie() const;
    /// Puts the cursor into the field.
    void designer(CreationBDNet::Champ champ);
    void Traduire();

private:
    QWidget *construireChamps();
    QWidget *construireImages();

    std::vector<QLineEdit *> m_champs;
    std::vector<QLabel *> m_libelles;
    QCheckBox *m_cases[3] = {};
    QLabel *m_libelleHistoire = nullptr;
    QPlainTextEdit *m_histoire = nullptr;
    CadreImage *m_cadres[2] = {};
    QString m_photos[2];
};
