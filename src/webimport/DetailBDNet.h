#pragma once

#include "model/Album.h"
#include "webimport/Importation.h"

#include <QWidget>
#include <map>

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
    /// What stands in the fields now.
    Album album() const;
    /// True when the user changed something of it.
    bool aUneSaisie() const { return album() != m_depart; }
    /// Puts the cursor into the field.
    void designer(Rubrique rubrique);
    void Traduire();

private:
    QWidget *construireChamps();
    QWidget *construireImages();

    Album m_depart; ///< the texts that the fields began with
    Album m_montre; ///< what the page gave, also what has no field here
    std::map<Rubrique, QLineEdit *> m_champs;
    std::map<Rubrique, QLabel *> m_libelles;
    std::map<Rubrique, QCheckBox *> m_cases;
    QLabel *m_libelleHistoire = nullptr;
    QPlainTextEdit *m_histoire = nullptr;
    std::map<Rubrique, CadreImage *> m_cadres;
};
