#include "db/files/Verification.h"

#include "core/Error.h"
#include "db/Base.h"
#include "db/Refus.h"
#include "db/files/Moteur.h"

#include <QStringList>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <functional>

namespace {

/// A few complaints say as much as a hundred.
const QString Controle = QStringLiteral("PRAGMA quick_check(5)");
const QString Saine = QStringLiteral("ok");

/// What the check says; a file that is too damaged to be checked says so by its Error.
QString juger(const std::function<QStringList()> &controle)
{
    try {
        const QStringList mots = controle();
        return mots == QStringList(Saine) ? QString() : mots.join(u'\n');
    } catch (const Error &e) {
        if (e.sorte() != Error::Sorte::Abimee)
            throw;
        return e.message();
    }
}

}

QString Verification::Verifier()
{
    return juger([] {
        const Base base;
        QStringList mots;
        for (auto rs = base.read(Controle); !rs.AtEnd(); rs.MoveNext())
            mots << rs.Fields(0).toString();
        return mots;
    });
}

QString Verification::Verifier(const QString &chemin)
{
    return juger([&] {
        const auto db = Moteur::Ouvrir(chemin);
        QStringList mots;
        try {
            SQLite::Statement controle(*db, Controle.toStdString());
            while (controle.executeStep())
                mots << QString::fromUtf8(controle.getColumn(0).getText());
        } catch (const SQLite::Exception &e) {
            throw Refus::Dire(e, chemin);
        }
        return mots;
    });
}
