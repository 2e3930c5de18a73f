#pragma once

#include <QLocale>
#include <QTranslator>

/// The texts that the numbered table does not have, and those of the platform (Oui, Non), in the language in
/// force.
class Catalogues
{
public:
    ~Catalogues();
    /// `dossier` holds the program's own catalogues, "bulleo_de.qm" and so on. French needs none.
    void charger(const QLocale &locale, const QString &dossier);

private:
    void oter();

    QTranslator m_programme;
    QTranslator m_plateforme;
};
