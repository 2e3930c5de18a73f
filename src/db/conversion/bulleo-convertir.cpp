// Makes a new collection, or reference catalogue, of one in the format of old: bulleo-convertir OLD NEW. The library
// that reads the old format can fall over a damaged file, so this is a process of its own. What it says on its
// output is written down in db/files/Conversion.h.

#include "core/Error.h"
#include "db/conversion/Convertisseur.h"
#include "db/conversion/Echec.h"
#include "db/files/Conversion.h"

#include <QCoreApplication>
#include <SQLiteCpp/Exception.h>
#include <cstdio>

namespace {

void dire(const Conversion::Annonce &annonce)
{
    const QByteArray ligne = Conversion::Ligne(annonce);
    std::fwrite(ligne.constData(), 1, static_cast<std::size_t>(ligne.size()), stdout);
    std::fflush(stdout);
}

int echouer(Conversion::Code code, const QString &details)
{
    dire(Conversion::Echouee{code, details});
    return 1;
}

}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("bulleo-convertir OLD NEW\n", stderr);
        return 2;
    }
    try {
        Convertisseur::Convertir(arguments[1], arguments[2], dire);
        return 0;
    } catch (const Echec &e) {
        return echouer(e.code(), e.details());
    } catch (const Error &e) {
        return echouer(Conversion::Code::Ecriture, e.message());
    } catch (const SQLite::Exception &e) {
        return echouer(Conversion::Code::Ecriture, QString::fromUtf8(e.what()));
    }
}
