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

/// What comes from a server is looked at by the decoders of the web's own formats only.
bool estUneImageDuWeb(const QByteArray &octets)
{
    return octets.startsWith("\xFF\xD8\xFF") || octets.startsWith("\x89PNG\r\n") || octets.startsWith("GIF8")
        || octets.startsWith("BM");
}

/// True when some sheet shows the picture of this name, whatever the path before it.
bool estUtilisee(const Base &base, const QString &nom)
{
    const QString test
        = QStringLiteral("SELECT 1 From %1 where '/' || replace(%2, '\\', '/') like '%/' || ? escape '!'"
                         " or '/' || replace(%3, '\\', '/') like '%/' || ? escape '!' limit 1");
    QString motif = nom;
    for (const QChar c : QStringLiteral("!%_"))
        motif.replace(c, u'!' + QString(c));
    const auto trouvee = [&](const char *table, const char *premier, const char *second) {
        const QString sql = QString(test)
                                .replace(QLatin1String("%1"), QLatin1String(table))
                                .replace(QLatin1String("%2"), QLatin1String(premier))
                                .replace(QLatin1String("%3"), QLatin1String(second));
        return !base.read(sql, {motif, motif}).AtEnd();
    };
    for (const char *table : {"LAlbums", "Serie", "Auteurs", "Editeur", "ExLibris", "PresseBD"}) {
        if (trouvee(table, "Photo1", "Photo2"))
            return true;
    }
    return trouvee("LAlbums", "dedi1", "dedi2");
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
    if (!estUneImageDuWeb(octets) || Images::Decoder(brouillon, TailleDEssai).isNull())
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
