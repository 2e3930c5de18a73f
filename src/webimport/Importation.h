#pragma once

#include "model/Album.h"
#include "webimport/AnalyserPage.h"
#include "webimport/Couvertures.h"
#include "webimport/Telechargement.h"

#include <optional>

/// The import of one album from its page: the page is fetched anew, read, and its two pictures are fetched. A
/// picture that cannot be had is done without.
class Importation : public QObject
{
    Q_OBJECT

public:
    /// What the page gave, ready to be looked over.
    struct Resultat
    {
        AnalysePage::Page page; ///< title cleaned
        Album album; ///< what it says of the album; pictures by their bare names in "images"
        bool complet = true; ///< the page was read to its end
        QString sansImage; ///< why a picture that came could not be kept; empty when all were
    };

    explicit Importation(QObject *parent = nullptr);
    Importation(const Telechargement::Limites &limites, QObject *parent);

    /// True for the address of one album's page.
    static bool EstUneFiche(const QUrl &url);

    /// Begins; one of `finie` and `echouee` follows.
    void commencer(const QUrl &url);
    void annuler();
    bool enCours() const { return m_enCours; }

Q_SIGNALS:
    void avance(qint64 recus, qint64 total);
    void finie(const Importation::Resultat &resultat);
    /// The page itself could not be had; the reason is empty when the user gave up.
    void echouee(const QString &raison);

private:
    void lirePage(const QByteArray &octets);
    void demanderCouverture();
    void garderCouverture(const QByteArray &octets);
    void terminer();

    Telechargement m_telechargement;
    Resultat m_resultat;
    QString m_titreDesImages; ///< as it stood when the cover's path was found
    std::optional<Couvertures::Rang> m_rang; ///< the picture under way; none while the page is
    bool m_enCours = false;
};
