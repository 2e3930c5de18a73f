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
#include <QTextBoundaryFinder>
#include <array>

namespace {

constexpr qsizetype OctetsDeLaFin = 24; ///< of an ending, its dot included
const QString Rangement = QStringLiteral("images");
const std::array DossiersDImages{Rangement, QStringLiteral("image")};

/// The kinds that are always read, and those that need a plug-in of the platform.
const QStringList Courantes{QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("bmp"),
    QStringLiteral("png"), QStringLiteral("wmf"), QStringLiteral("ico")};
const QStringList Autres{QStringLiteral("gif"), QStringLiteral("webp"), QStringLiteral("tif"),
    QStringLiteral("tiff"), QStringLiteral("avif")};

/// Signs that show nothing of themselves and change how the rest reads.
bool estUnPiege(char32_t signe)
{
    const QChar::Category sorte = QChar::category(signe);
    const QChar::Direction sens = QChar::direction(signe);
    // The isolates and the embeddings, the overrides and the marks of direction.
    const bool dirige = sorte == QChar::Other_Format && sens != QChar::DirBN;
    return dirige || sorte == QChar::Other_Control || sorte == QChar::Other_Surrogate
        || sorte == QChar::Separator_Line || sorte == QChar::Separator_Paragraph;
}

QString sansPieges(const QString &texte)
{
    QString net;
    for (const char32_t signe : texte.toUcs4())
        net += estUnPiege(signe) ? QStringLiteral("_") : QString::fromUcs4(&signe, 1);
    return net;
}

/// As many whole characters as so many bytes hold.
QString couper(const QString &texte, qsizetype octets)
{
    qsizetype fin = 0;
    QTextBoundaryFinder limites(QTextBoundaryFinder::Grapheme, texte);
    for (qsizetype suivante = limites.toNextBoundary(); suivante > 0; suivante = limites.toNextBoundary()) {
        if (QStringView(texte).left(suivante).toUtf8().size() > octets)
            break;
        fin = suivante;
    }
    return texte.left(fin);
}

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
    const QString suffixe = QFileInfo(nom.trimmed()).suffix().toLower();
    return Courantes.contains(suffixe) || Autres.contains(suffixe);
}

QStringList Images::Extensions()
{
    const QList<QByteArray> lus = QImageReader::supportedImageFormats();
    QStringList extensions = Courantes;
    for (const QString &extension : Autres) {
        if (lus.contains(extension.toLatin1()))
            extensions << extension;
    }
    return extensions;
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
    const QString suffixe
        = source.suffix().isEmpty() ? QString() : couper(u'.' + sansPieges(source.suffix()), OctetsDeLaFin);
    const QString base = couper(sansPieges(source.completeBaseName()), OctetsDuNom);
    QString nom = base + suffixe;
    for (int rang = 2; QFileInfo::exists(cible(nom)); ++rang) {
        if (memeContenu(chemin, cible(nom)))
            return QFileInfo(cible(nom)).fileName();
        nom = base + QStringLiteral(" (%1)").arg(rang) + suffixe;
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
    // No more of a text of any length than may count.
    QString nom = couper(sansPieges(titre.left(OctetsDuNom + 1)), OctetsDuNom);
    for (QChar &c : nom) {
        if (refuses.contains(c))
            c = u'_';
    }
    // A leading dot would hide the file.
    for (qsizetype i = 0; i < nom.size() && nom[i] == u'.'; ++i)
        nom[i] = u'_';
    return nom;
}
