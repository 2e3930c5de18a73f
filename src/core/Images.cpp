#include "core/Images.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Outil.h"
#include "core/Texte.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <array>

namespace {

constexpr qsizetype LongueurDuNom = 120;
const QString Rangement = QStringLiteral("images");
const std::array DossiersDImages{Rangement, QStringLiteral("image")};

QString existant(const QString &chemin)
{
    return QFileInfo(chemin).isFile() ? chemin : QString();
}

QString parDernierePartie(const QString &nom)
{
    for (const QString &dossier : DossiersDImages) {
        QString chemin = existant(Dossier::courant().chemin(dossier + u'/' + nom));
        if (!chemin.isEmpty())
            return chemin;
    }
    return {};
}

/// A path of the platform that the collection may come from: "C:\..." or "\\server\...".
bool estCompletAilleurs(const QString &chemin)
{
    return chemin.startsWith(u'/') || (chemin.size() > 2 && chemin[1] == u':' && chemin[0].isLetter());
}

bool memeContenu(const QString &a, const QString &b)
{
    QFile fa(a);
    QFile fb(b);
    return fa.size() == fb.size() && fa.open(QIODevice::ReadOnly) && fb.open(QIODevice::ReadOnly)
        && fa.readAll() == fb.readAll();
}

/// Placeable or plain Windows metafile, by its first bytes.
bool estUnMetafichier(const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        return false;
    const QByteArray debut = fichier.read(4);
    return debut == QByteArray("\xD7\xCD\xC6\x9A") || debut == QByteArray("\x01\x00\x09\x00", 4);
}

/// A metafile as SVG, made by the converter beside the program; empty when it is not there, or refuses.
QByteArray enSvg(const QString &chemin)
{
    constexpr int DelaiMs = 15'000;
    QProcess convertisseur;
    Outil::Lancer(convertisseur, QStringLiteral("bulleo-wmf"), {chemin});
    if (!convertisseur.waitForFinished(DelaiMs)) {
        Outil::Arreter(convertisseur);
        return {};
    }
    return Outil::AReussi(convertisseur) ? convertisseur.readAllStandardOutput() : QByteArray();
}

/// The picture of a device, in the format of its content, or the one named.
QImage lire(QIODevice &source, const QSize &taille, const QByteArray &format)
{
    // The platform's own limit is lower than ours.
    constexpr int LimiteMio = static_cast<int>(Images::PixelsMax * 4 >> 20) + 1;
    static const bool fixee = (QImageReader::setAllocationLimit(LimiteMio), true);
    Q_UNUSED(fixee)
    QImageReader lecteur(&source, format);
    lecteur.setAutoTransform(true);
    lecteur.setDecideFormatFromContent(format.isEmpty());
    const QSize entiere = lecteur.size();
    if (!entiere.isValid() || qint64(entiere.width()) * entiere.height() > Images::PixelsMax)
        return {};
    const bool couche = lecteur.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize cadre = couche ? taille.transposed() : taille;
    if (entiere.width() > cadre.width() || entiere.height() > cadre.height())
        lecteur.setScaledSize(entiere.scaled(cadre, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return lecteur.read();
}

}

bool Images::EstUneImage(const QString &nom)
{
    static const std::array<QString, 6> extensions{QStringLiteral("jpg"), QStringLiteral("jpeg"),
        QStringLiteral("bmp"), QStringLiteral("png"), QStringLiteral("wmf"), QStringLiteral("ico")};
    const QString suffixe = QFileInfo(nom.trimmed()).suffix().toLower();
    return std::find(extensions.begin(), extensions.end(), suffixe) != extensions.end();
}

QString Images::Trouver(const QString &nom)
{
    if (Texte::EstVide(nom))
        return {};
    const QString chemin = nom.trimmed().replace(u'\\', u'/');
    const QString derniere = chemin.section(u'/', -1);
    QString trouve;
    if (estCompletAilleurs(chemin))
        trouve = existant(chemin);
    else if (chemin != derniere)
        trouve = existant(Dossier::courant().chemin(chemin));
    return trouve.isEmpty() ? parDernierePartie(derniere) : trouve;
}

QString Images::Copier(const QString &chemin)
{
    return CopierDans(Rangement, chemin);
}

QString Images::CopierDans(const QString &dossier, const QString &chemin)
{
    const QFileInfo source(chemin);
    const auto cible = [&](const QString &nom) { return Dossier::courant().chemin(dossier + u'/' + nom); };
    if (!QDir().mkpath(cible({})))
        throw Error(
            QCoreApplication::translate("Images", "Le dossier des images ne peut pas être créé."), cible({}));
    const QString suffixe = source.suffix().isEmpty() ? QString() : u'.' + source.suffix();
    QString nom = source.fileName();
    for (int rang = 2; QFileInfo::exists(cible(nom)); ++rang) {
        if (memeContenu(chemin, cible(nom)))
            return QFileInfo(cible(nom)).fileName();
        nom = source.completeBaseName() + QStringLiteral(" (%1)").arg(rang) + suffixe;
    }
    QFile fichier(chemin);
    if (!fichier.copy(cible(nom)))
        throw Error(QCoreApplication::translate("Images", "Cette image ne peut pas être copiée."), chemin,
            fichier.errorString());
    return nom;
}

QImage Images::Decoder(const QString &chemin, const QSize &taille)
{
    if (estUnMetafichier(chemin)) {
        QByteArray svg = enSvg(chemin);
        QBuffer tampon(&svg);
        return svg.isEmpty() ? QImage() : lire(tampon, taille, "svg");
    }
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? lire(fichier, taille, {}) : QImage();
}

QString Images::NomDeFichier(const QString &titre)
{
    static const QString refuses = QStringLiteral("/\\:*?\"<>|");
    QString nom = titre.left(LongueurDuNom);
    for (QChar &c : nom) {
        if (refuses.contains(c) || c.category() == QChar::Other_Control)
            c = u'_';
    }
    // A leading dot would hide the file.
    for (qsizetype i = 0; i < nom.size() && nom[i] == u'.'; ++i)
        nom[i] = u'_';
    return nom;
}
