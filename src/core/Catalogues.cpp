#include "core/Catalogues.h"

#include <QCoreApplication>
#include <QLibraryInfo>

Catalogues::~Catalogues()
{
    oter();
}

void Catalogues::oter()
{
    QCoreApplication::removeTranslator(&m_programme);
    QCoreApplication::removeTranslator(&m_plateforme);
}

void Catalogues::charger(const QLocale &locale, const QString &dossier)
{
    oter();
    const QString code = locale.name().section(u'_', 0, 0);
    if (m_plateforme.load(
            QStringLiteral("qtbase_") + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_plateforme);
    if (m_programme.load(QStringLiteral("bulleo_") + code, dossier))
        QCoreApplication::installTranslator(&m_programme);
}
