#include "core/ui/Liens.h"

#include "core/Error.h"
#include "core/Images.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QRegularExpression>
#include <QUrl>

void Liens::Ouvrir(const QString &adresse)
{
    static const QRegularExpression schema(
        QStringLiteral("^([a-z][a-z0-9+.-]*://|(mailto|javascript|data|file):)"),
        QRegularExpression::CaseInsensitiveOption);
    QString entiere = adresse.trimmed();
    if (!entiere.contains(schema))
        entiere.prepend(QStringLiteral("http://"));
    const QUrl url(entiere, QUrl::TolerantMode);
    static const QStringList permis{
        QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto")};
    if (!url.isValid() || !permis.contains(url.scheme()))
        throw Error(QCoreApplication::translate("Liens", "Cette adresse ne peut pas être ouverte."), adresse);
    if (!QDesktopServices::openUrl(url))
        throw Error(QCoreApplication::translate("Liens", "Aucun programme n'ouvre cette adresse."), adresse);
}

void Liens::OuvrirImage(const QString &nom)
{
    const QString chemin = Images::Trouver(nom);
    if (chemin.isEmpty())
        throw Error(QCoreApplication::translate("Liens", "Cette image n'existe plus."), nom);
    if (!Images::EstUneImage(chemin) || !QDesktopServices::openUrl(QUrl::fromLocalFile(chemin)))
        throw Error(QCoreApplication::translate("Liens", "Aucun programme n'ouvre cette image."), chemin);
}
