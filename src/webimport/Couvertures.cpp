#include "webimport/Couvertures.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Images.h"
#include "db/Base.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

namespace {

constexpr QSize TailleDEssai(64, 64);

void ecrire(const QString &chemin, const QByteArray &octets)
{
    QSaveFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size() || !fichier.commit())
        throw Error(QCoreApplication::translate("Couvertures", "L'image ne peut pas être enregistrée."),
            chemin, fichier.errorString());
}

/// True when some sheet shows the picture of this name.
bool estUtilisee(const Base &base, const QString &nom)
{
    for (const char *table : {"LAlbums", "Serie", "Auteurs", "Editeur", "ExLibris", "PresseBD"}) {
        const auto rs
            = base.OpenRecordset(QStringLiteral("SELECT 1 From %1 where Photo1 = ? or Photo2 = ? limit 1")
                                     .arg(QLatin1String(table)),
                {nom, nom});
        if (!rs.AtEnd())
            return true;
    }
    return !base.OpenRecordset(
                    QStringLiteral("SELECT 1 From LAlbums where dedi1 = ? or dedi2 = ? limit 1"), {nom, nom})
                .AtEnd();
}

}

QUrl Couvertures::Adresse(const QString &hote, const QString &morceau, Rang rang)
{
    QString adresse = hote.contains(QLatin1String("://")) ? hote : QStringLiteral("http://") + hote;
    while (adresse.endsWith(u'/'))
        adresse.chop(1);
    adresse += QStringLiteral("/img/couvpage") + morceau + QStringLiteral(".jpg");
    if (rang == Rang::Seconde)
        adresse.replace(QLatin1String("_cg.jpg"), QLatin1String("_pg.jpg"));
    return QUrl(adresse, QUrl::TolerantMode);
}

QString Couvertures::Garder(const QByteArray &octets, const QString &titre, Rang rang)
{
    const Dossier &dossier = Dossier::courant();
    const QString numero = QString::number(static_cast<int>(rang));
    const QString brouillon = dossier.chemin(QStringLiteral("temp%1.jpg").arg(numero));
    ecrire(brouillon, octets);
    if (Images::Decoder(brouillon, TailleDEssai).isNull())
        return {};
    const QString debut = Images::NomDeFichier(titre) + u'_' + numero;
    QString nom = debut + QStringLiteral(".jpg");
    const Base base;
    for (int essai = 2; estUtilisee(base, nom); ++essai)
        nom = debut + QStringLiteral(" (%1).jpg").arg(essai);
    const QString images = dossier.chemin(QStringLiteral("images"));
    if (!QDir().mkpath(images))
        throw Error(
            QCoreApplication::translate("Couvertures", "L'image ne peut pas être enregistrée."), images);
    ecrire(images + u'/' + nom, octets);
    return nom;
}
