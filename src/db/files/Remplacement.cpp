#include "db/files/Remplacement.h"

#include "core/Annonces.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "db/Base.h"
#include "db/Connexion.h"
#include "db/Refus.h"
#include "db/files/MiseANiveau.h"
#include "db/files/Moteur.h"
#include "db/files/Sauvegardes.h"
#include "db/files/Verification.h"
#include "db/schema/Tables.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <SQLiteCpp/Exception.h>
#include <optional>

using Remplacement::Etat;
using Remplacement::Examen;

namespace {

const QString Journal = QStringLiteral("-journal");

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Restauration)
};

/// What the first bytes say; nothing for what may be a collection.
std::optional<Etat> etatParEntete(const QString &chemin)
{
    try {
        Entete::Verifier(chemin, Entete::Nature::Collection);
        return std::nullopt;
    } catch (const Error &e) {
        switch (e.sorte()) {
        case Error::Sorte::Ancienne:
            return Etat::Ancienne;
        case Error::Sorte::Abimee:
            return Etat::Abimee;
        case Error::Sorte::PlusRecente:
            return Etat::PlusRecente;
        case Error::Sorte::Etrangere:
            break;
        default:
            throw;
        }
    }
    try {
        Entete::Verifier(chemin, Entete::Nature::Catalogue);
        return Etat::Catalogue;
    } catch (const Error &) {
        return Etat::Etrangere;
    }
}

/// The first table that a file of its step lacks; empty when it has them all.
QString tableManquante(SQLite::Database &db)
{
    const int inscrite = db.execAndGet("PRAGMA user_version").getInt();
    const QStringList tables = Schema::Tables(Version::Palier(inscrite));
    for (const QString &table : tables) {
        if (!db.tableExists(table.toStdString()))
            return table;
    }
    return {};
}

void lireContenu(const QString &chemin, Examen &examen)
{
    const auto db = Moteur::Ouvrir(chemin);
    const QString manquante = tableManquante(*db);
    if (!manquante.isEmpty()) {
        examen.etat = Etat::Abimee;
        examen.mots = Tr::tr("Une table manque :") + u' ' + manquante;
        return;
    }
    examen.albums = db->execAndGet("SELECT count(*) FROM Album").getInt();
    examen.etat = Moteur::EstVierge(*db) ? Etat::Vierge : Etat::Saine;
}

/// Looks into a file that its first bytes call a collection.
void controler(const QString &chemin, Examen &examen)
{
    examen.etat = Etat::Abimee;
    try {
        examen.mots = Verification::Verifier(chemin);
        if (examen.mots.isEmpty())
            lireContenu(chemin, examen);
    } catch (const SQLite::Exception &e) {
        throw Refus::Dire(e, chemin);
    }
}

/// True for a collection that a backup can be made of; false for what is no readable collection any more.
bool estSaine()
{
    try {
        return Verification::Verifier().isEmpty();
    } catch (const Error &e) {
        if (e.sorte() == Error::Sorte::Etrangere || e.sorte() == Error::Sorte::Ancienne)
            return false;
        throw;
    }
}

bool estAncienne(const QString &chemin)
{
    return QFileInfo::exists(chemin) && etatParEntete(chemin) == Etat::Ancienne;
}

/// Keeps what stands in the place of the collection.
void garder(const QString &collection)
{
    const QString date
        = Annonces::courant().sauvegardes.maintenant().toString(QStringLiteral("yyyy-MM-dd HH-mm-ss"));
    const QString deCote = Moteur::CheminLibre(Dossier::courant().racine()
        + (estAncienne(collection) ? QStringLiteral("/bd-ancien.mdb")
                                   : QStringLiteral("/bd abîmée %1.mdb").arg(date)));
    if (QFileInfo::exists(collection)) {
        if (estSaine()) {
            Base base;
            SQLite::Database &db = base.connexion().db();
            if (!Moteur::EstVierge(db))
                Sauvegardes::Faire(db);
        } else {
            Moteur::Doubler(collection, deCote);
        }
    }
    // What a crash left beside the old file would be taken for the new one's.
    if (QFileInfo::exists(collection + Journal))
        Moteur::Remplacer(collection + Journal, deCote + Journal);
}

}

Examen Remplacement::Examiner(const QString &chemin)
{
    Examen examen;
    examen.date = Sauvegardes::DateDe(chemin);
    examen.taille = QFileInfo(chemin).size();
    if (estAncienne(chemin))
        examen.etat = Etat::Ancienne;
    else if (Dossier::EstLeFichier(chemin, Dossier::courant().collection()))
        examen.etat = Etat::Courante;
    else if (const auto parEntete = etatParEntete(chemin))
        examen.etat = *parEntete;
    else
        controler(chemin, examen);
    return examen;
}

QString Remplacement::RaisonDuRefus(Etat etat)
{
    switch (etat) {
    case Etat::Saine:
    case Etat::Vierge:
        return {};
    case Etat::Courante:
        return Tr::tr("C'est la base en service.");
    case Etat::Ancienne:
        return Tr::tr("Cette base est d'une ancienne version : elle est à convertir d'abord.");
    case Etat::Catalogue:
        return Tr::tr("C'est un catalogue de référence, pas une base.");
    case Etat::PlusRecente:
        return Tr::tr(
            "Cette base vient d'une version plus récente de Bulleo : il faut celle-là pour l'ouvrir.");
    case Etat::Abimee:
        return Tr::tr("Cette base est abîmée.");
    case Etat::Etrangere:
        return Tr::tr("Ce fichier n'est pas une base de Bulleo.");
    }
    Q_UNREACHABLE();
}

QString Remplacement::Restaurer(const QString &chemin)
{
    const QString refus = RaisonDuRefus(Examiner(chemin).etat);
    if (!refus.isEmpty())
        return refus;
    const QString place = Dossier::courant().collection();
    const QString collection = QFileInfo::exists(place) ? QFileInfo(place).canonicalFilePath() : place;
    const QString neuve = collection + QStringLiteral(".neuve");
    const auto oter = qScopeGuard([&] { QFile::remove(neuve); });
    Moteur::Copier(*Moteur::Ouvrir(chemin), neuve);
    garder(collection);
    // Who still has the old file open would go on writing into what is no longer there.
    Q_ASSERT(!Connexion::estOuverte(collection));
    Moteur::Remplacer(neuve, collection);
    Annonces::courant().remplacer();
    MiseANiveau::Executer();
    return {};
}
