#include "db/files/Sauvegardes.h"

#include "core/Annonces.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "db/files/Moteur.h"
#include "db/files/Verification.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

using Sauvegardes::Sauvegarde;

namespace {

constexpr qint64 Intervalle = 60LL * 60; // seconds
constexpr qint64 JoursParJour = 14;
constexpr qint64 JoursParSemaine = JoursParJour + 8LL * 7;
const QString FormeDeLaDate = QStringLiteral("yyyy-MM-dd HH-mm-ss");
const QString EnCours = QStringLiteral("/copie en cours.tmp");
const QString Liste = QStringLiteral("/liste.txt");
const QString ListeEnCours = QStringLiteral("/liste en cours.tmp");

QString dossier()
{
    return Dossier::courant().chemin(QStringLiteral("sauvegardes"));
}

/// The date in the name of a copy; copies of one second follow each other. Null for any other name.
QDateTime dateDuNom(const QString &nom)
{
    static const QRegularExpression forme(
        QStringLiteral("^bd (\\d{4}-\\d\\d-\\d\\d \\d\\d-\\d\\d-\\d\\d)(?: \\((\\d{1,3})\\))?\\.bd$"));
    const auto lu = forme.match(nom);
    return QDateTime::fromString(lu.captured(1), FormeDeLaDate).addMSecs(lu.captured(2).toInt());
}

int compterAlbums(const QString &chemin)
{
    try {
        return Moteur::Ouvrir(chemin)->execAndGet("SELECT count(*) FROM Album").getInt();
    } catch (const Error &) {
        return -1;
    } catch (const SQLite::Exception &) {
        return -1;
    }
}

/// The copies that the list names, as far as they stand there as they were made, in the order of their making.
QList<Sauvegarde> lireListe(const QString &dossier)
{
    QList<Sauvegarde> miennes;
    QFile fichier(dossier + Liste);
    if (!fichier.open(QIODevice::ReadOnly))
        return miennes;
    const QStringList lignes = QString::fromUtf8(fichier.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &ligne : lignes) {
        const QString nom = ligne.section(u'\t', 0, 0);
        const QFileInfo copie(dossier + u'/' + nom);
        const QDateTime date = dateDuNom(nom);
        if (date.isValid() && copie.isFile() && copie.size() == ligne.section(u'\t', 1).toLongLong())
            miennes << Sauvegarde{copie.filePath(), date, copie.size(), -1};
    }
    return miennes;
}

void ecrireListe(const QString &dossier, const QList<Sauvegarde> &miennes)
{
    QByteArray octets;
    for (const Sauvegarde &s : miennes)
        octets += QFileInfo(s.chemin).fileName().toUtf8() + '\t' + QByteArray::number(s.taille) + '\n';
    QFile fichier(dossier + ListeEnCours);
    const bool ecrite = fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size();
    fichier.close();
    if (!ecrite || fichier.error() != QFileDevice::NoError)
        throw Error(QCoreApplication::translate(
                        "Sauvegardes", "La liste des copies de sauvegarde ne peut pas être écrite."),
            fichier.fileName(), fichier.errorString());
    Moteur::Remplacer(dossier + ListeEnCours, dossier + Liste);
}

/// Gives the copy that was just made its name. It is noted first, so that no copy is forgotten by a crash.
QString nommer(const QString &dossier)
{
    const QDateTime date = Annonces::courant().sauvegardes.maintenant();
    const QString chemin
        = Moteur::CheminLibre(QStringLiteral("%1/bd %2.bd").arg(dossier, date.toString(FormeDeLaDate)));
    const QString faite = dossier + EnCours;
    ecrireListe(dossier, lireListe(dossier) << Sauvegarde{chemin, date, QFileInfo(faite).size(), -1});
    Moteur::Remplacer(faite, chemin);
    return chemin;
}

/// A clock that is wrong may take many for old: what a run deletes is bounded by what it makes.
void elaguer(Annonces::SuiviDesSauvegardes &suivi)
{
    const QString ici = dossier();
    const QStringList perimees = Sauvegardes::ADetruire(lireListe(ici), suivi.derniere);
    const int permis = ++suivi.retraits;
    for (const QString &chemin : perimees) {
        // One that cannot be removed does not stand in the way of the others.
        if (suivi.retraits > 0 && QFile::remove(chemin))
            --suivi.retraits;
    }
    if (suivi.retraits < permis)
        ecrireListe(ici, lireListe(ici));
}

/// The day, week or month whose newest copy is kept.
QString periode(const QDate &jour, const QDate &aujourdhui)
{
    const qint64 age = jour.daysTo(aujourdhui);
    if (age <= JoursParJour)
        return jour.toString(Qt::ISODate);
    if (age > JoursParSemaine)
        return jour.toString(QStringLiteral("yyyy-MM"));
    int annee = 0;
    const int semaine = jour.weekNumber(&annee);
    return QStringLiteral("%1 semaine %2").arg(annee).arg(semaine);
}

bool due(const Annonces::SuiviDesSauvegardes &suivi, const QDateTime &maintenant)
{
    return !suivi.derniere.isValid() || maintenant < suivi.derniere
        || suivi.derniere.secsTo(maintenant) >= Intervalle;
}

/// Puts a copy that nobody saw being made among those that were, the newest first.
void inserer(QList<Sauvegarde> &sauvegardes, const Sauvegarde &trouvee)
{
    const auto place = std::find_if(
        sauvegardes.begin(), sauvegardes.end(), [&](const Sauvegarde &s) { return s.date < trouvee.date; });
    sauvegardes.insert(place, trouvee);
}

}

QDateTime Sauvegardes::DateDe(const QString &chemin)
{
    const QFileInfo fichier(chemin);
    const QDateTime date = dateDuNom(fichier.fileName());
    return date.isValid() ? date : fichier.lastModified();
}

QList<Sauvegarde> Sauvegardes::Lister()
{
    QList<Sauvegarde> sauvegardes = lireListe(dossier());
    std::reverse(sauvegardes.begin(), sauvegardes.end());
    QSet<QString> miennes;
    for (const Sauvegarde &s : std::as_const(sauvegardes))
        miennes << s.chemin;
    const QDateTime maintenant = Annonces::courant().sauvegardes.maintenant();
    QList<Sauvegarde> aVenir;
    const auto fichiers = QDir(dossier()).entryInfoList({QStringLiteral("*.bd")}, QDir::Files);
    for (const QFileInfo &f : fichiers) {
        const QDateTime date = DateDe(f.filePath());
        // A date to come says nothing of its age.
        if (!miennes.contains(f.filePath()))
            inserer(date > maintenant ? aVenir : sauvegardes, {f.filePath(), date, f.size(), -1});
    }
    sauvegardes += aVenir;
    for (Sauvegarde &s : sauvegardes)
        s.albums = compterAlbums(s.chemin);
    return sauvegardes;
}

QString Sauvegardes::DerniereSaine()
{
    const QList<Sauvegarde> sauvegardes = Lister();
    for (const Sauvegarde &s : sauvegardes) {
        if (s.albums >= 0 && Verification::Verifier(s.chemin).isEmpty())
            return s.chemin;
    }
    return {};
}

QString Sauvegardes::Faire(SQLite::Database &db)
{
    const QString ici = dossier();
    if (!QDir().mkpath(ici))
        throw Error(QCoreApplication::translate("Dossier", "Ce dossier ne peut pas être créé."), ici);
    Moteur::Copier(db, ici + EnCours);
    try {
        return nommer(ici);
    } catch (const Error &) {
        QFile::remove(ici + EnCours);
        throw;
    }
}

void Sauvegardes::Garder(SQLite::Database &db)
{
    auto &suivi = Annonces::courant().sauvegardes;
    suivi.derniere = suivi.maintenant();
    Faire(db);
    elaguer(suivi);
}

void Sauvegardes::AvantEcriture(SQLite::Database &db)
{
    auto &suivi = Annonces::courant().sauvegardes;
    // In the middle of a write there is no state to copy any more.
    if (sqlite3_txn_state(db.getHandle(), "main") == SQLITE_TXN_WRITE)
        return;
    const QDateTime maintenant = suivi.maintenant();
    if (!due(suivi, maintenant))
        return;
    suivi.derniere = maintenant;
    try {
        if (!Moteur::EstVierge(db))
            Garder(db);
        suivi.enEchec = false;
    } catch (const Error &e) {
        if (!std::exchange(suivi.enEchec, true) && suivi.manquee)
            suivi.manquee(e);
    }
}

QStringList Sauvegardes::ADetruire(const QList<Sauvegarde> &sauvegardes, const QDateTime &maintenant)
{
    QSet<QString> gardees;
    QStringList perimees;
    for (auto s = sauvegardes.rbegin(); s != sauvegardes.rend(); ++s) {
        // Another clock dated it.
        if (s->date > maintenant)
            continue;
        const QString sienne = periode(s->date.date(), maintenant.date());
        if (s->date.date() < maintenant.date() && gardees.contains(sienne))
            perimees.prepend(s->chemin);
        gardees << sienne;
    }
    return perimees;
}
