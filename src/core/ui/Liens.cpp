#include "core/ui/Liens.h"

#include "core/Error.h"
#include "core/Images.h"
#include "core/ui/Messages.h"

#include <QApplication>
#include <QDesktopServices>
#include <QRegularExpression>
#include <QUrl>

namespace {

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Liens)
};

/// That nothing here opens it is no error of the program: what to do stands in the place of it.
void conseiller(const QString &conseil, const QString &quoi)
{
    Messages::Avertir(QApplication::activeWindow(), conseil + u'\n' + quoi);
}

/// Who a letter is for, and nothing else: no contents, and no file of this machine.
QUrl sansContenu(QUrl courrier)
{
    courrier.setQuery(QString());
    courrier.setFragment(QString());
    return courrier;
}

}

void Liens::Ouvrir(const QString &adresse)
{
    static const QRegularExpression schema(
        QStringLiteral("^([a-z][a-z0-9+.-]*://|(mailto|javascript|data|file):)"),
        QRegularExpression::CaseInsensitiveOption);
    QString entiere = adresse.trimmed();
    if (!entiere.contains(schema))
        entiere.prepend(QStringLiteral("http://"));
    const QUrl url(entiere, QUrl::TolerantMode);
    const bool courrier = url.scheme() == QLatin1String("mailto");
    const bool page = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (!url.isValid() || !(courrier || page))
        conseiller(
            Tr::tr("Cette adresse ne s'ouvre pas d'ici : seuls les pages web et le courrier s'ouvrent."),
            adresse);
    else if (courrier && !QDesktopServices::openUrl(sansContenu(url)))
        conseiller(Tr::tr("Aucun programme de courrier n'est installé : copiez l'adresse dans le vôtre."),
            url.path());
    else if (page && !QDesktopServices::openUrl(url))
        conseiller(
            Tr::tr("Aucun navigateur n'est installé : installez-en un, ou ouvrez cette adresse ailleurs."),
            url.toString());
}

void Liens::OuvrirImage(const QString &nom)
{
    const QString chemin = Images::Trouver(nom);
    if (chemin.isEmpty())
        throw Error(Tr::tr("Cette image n'existe plus."), nom);
    if (!Images::EstUneImage(chemin) || !QDesktopServices::openUrl(QUrl::fromLocalFile(chemin)))
        conseiller(
            Tr::tr("Aucun programme n'est installé pour voir cette image : installez une visionneuse."),
            chemin);
}

void Liens::OuvrirPage(const QString &chemin)
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(chemin)))
        conseiller(
            Tr::tr("Aucun navigateur n'est installé pour lire l'aide : installez-en un, ou ouvrez ce fichier "
                   "ailleurs."),
            chemin);
}
