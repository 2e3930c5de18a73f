#pragma once

#include "acts/Ecrire.h"
#include "core/ui/Carte.h"

#include <QLabel>
#include <map>
#include <optional>
#include <vector>

class ControleDeChamp;
class Demandes;
class QBoxLayout;
class QGridLayout;
class TitreGroupe;

/// What all sheets share: a control for each field of the table, made, captioned and filled by it; groups that lie side
/// by side or below each other, as the width allows, and that the keyboard goes through.
class FicheForme : public Carte
{
    Q_OBJECT

public:
    FicheForme(Champs::Feuille feuille, const QString &nom, Demandes &demandes, QWidget *parent);

    /// Puts the user's font and colour on every value of the sheet.
    void AppliquerPolicesFiche();

    /// Writes what was typed into the texts and still waits. Throws Error; it then goes on waiting.
    void ecrireMemos();
    bool memosEnAttente() const;
    /// Gives up what waits.
    void oublierMemos();

    /// Whether values can be changed on the sheet itself.
    void permettre(bool permis);

    /// Brings the keyboard to the beginning of the next group, or of the one before, around the sheet.
    void allerAuGroupe(int pas);
    /// Whatever lies where, a sheet does with this width.
    QSize minimumSizeHint() const override;

protected:
    /// How the groups lie: in two columns beside the pictures, in one beside them, or in one below them.
    enum class Disposition { Large, Moyenne, Etroite };
    virtual void disposer(Disposition disposition) = 0;
    /// Width of what stands beside the groups, at its smallest.
    virtual int largeurDesImages() const = 0;
    /// Chooses how the groups lie, by the room and the user's font; it is called when the sheet is whole.
    void redisposer();
    /// The width in which a group shows captions and short values whole.
    int largeurDUnGroupe() const;
    void resizeEvent(QResizeEvent *evenement) override;

    /// Takes all captions from the texts in force.
    virtual void Traduire();
    void changeEvent(QEvent *evenement) override;
    void contextMenuEvent(QContextMenuEvent *evenement) override;
    /// The edition of the value that this control shows; without a field when it shows none.
    virtual Edition editionSous(const QWidget *sous) const;

    /// Makes the control of a field. Its caption, if it has one, is made by `ajouterLigne`.
    QWidget *creer(const char *champ);
    /// A frame for the picture that the value of a field may name; where it names none the frame is not seen.
    QWidget *creerCadre(const char *champ);
    /// The font of a field's value is that many times the user's, and bold.
    void agrandirPolice(const char *champ, qreal facteur);
    /// A value that is no field of the table takes part in the user's font and colour.
    void inscrire(QWidget *valeur);
    /// The grid of the whole sheet.
    QGridLayout *ouvrirPage();
    /// The title of a group; the keyboard goes to what is made next.
    TitreGroupe *titreDe(Txt texte);
    /// The keyboard goes to this control of a group.
    void marquer(QWidget *premier);
    /// A group with its title: its grid, for captions and controls.
    QGridLayout *ouvrirGroupe(QBoxLayout *colonne, Txt titre);
    /// Texts of several lines with their titles; side by side, or below each other.
    QWidget *creerMemos(const std::vector<std::pair<const char *, Txt>> &memos);
    void rangerMemos(bool enColonne);
    using MemoTitre = std::pair<TitreGroupe *, QWidget *>;
    const std::vector<MemoTitre> &memos() const { return m_memos; }
    /// Caption and control of a field as the next row of a grid of two columns.
    void ajouterLigne(QGridLayout *grille, const char *champ);
    /// Gives the captions of several grids one width, so that their values stand in one line.
    static void alignerLibelles(const std::vector<QGridLayout *> &grilles);

    void montrerValeurs(General::Entree entree, const Valeurs &valeurs);
    /// Shows again what is stored, after a direct edit that failed.
    virtual void remontrer() { montrerValeurs(m_entree, m_valeurs); }
    General::Entree entree() const { return m_entree; }
    const Valeurs &valeurs() const { return m_valeurs; }

    Edition editionDe(const Edite &quoi, const QWidget *controle) const;
    /// The field of this sheet of that name.
    const Champs::Champ &champ(const char *nom) const;
    /// Writes a value that was entered on the sheet itself. Throws Error.
    void ecrire(const Edite &quoi, const QString &saisie, int visite = 0);

    Demandes &m_demandes;

private:
    ControleDeChamp *placer(ControleDeChamp *place);
    ControleDeChamp *controleDe(const char *champ) const;
    std::vector<QWidget *> auClavier() const;

    Champs::Feuille m_feuille;
    General::Entree m_entree;
    Valeurs m_valeurs;
    std::vector<ControleDeChamp *> m_controles;
    std::map<const ControleDeChamp *, QLabel *> m_libelles;
    std::map<const ControleDeChamp *, qreal> m_facteurs;
    std::vector<QWidget *> m_inscrites;
    std::vector<std::pair<TitreGroupe *, Txt>> m_titres;
    std::vector<QWidget *> m_premiers; ///< of each group, what the keyboard comes to
    bool m_groupeOuvert = true; ///< the next control is the first of its group
    QGridLayout *m_grilleDesMemos = nullptr;
    std::vector<MemoTitre> m_memos;
    std::optional<Disposition> m_disposition;
};
