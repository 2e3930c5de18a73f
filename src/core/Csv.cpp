#include "core/Csv.h"

#include "core/Error.h"

#include <QCoreApplication>
#include <QFile>
#include <csv.h>

namespace {

/// What the callbacks of the reader share. The reader counts no lines, so line ends are counted here.
struct Lecture
{
    QStringList entete;
    QStringList cellules;
    int ligne = 1;
    bool enTete = true;
    const std::function<void(const Csv::Rangee &)> *pour = nullptr;
};

void finDeCellule(void *octets, size_t taille, void *donnees)
{
    auto &lecture = *static_cast<Lecture *>(donnees);
    const QString cellule = octets
        ? QString::fromUtf8(static_cast<const char *>(octets), static_cast<qsizetype>(taille))
        : QString();
    lecture.cellules << cellule;
    lecture.ligne += static_cast<int>(cellule.count(u'\n'));
}

/// Called at every character that may end a line, so that blank lines are counted, too.
void finDeLigne(int caractere, void *donnees)
{
    auto &lecture = *static_cast<Lecture *>(donnees);
    if (!lecture.cellules.isEmpty()) {
        if (std::exchange(lecture.enTete, false))
            lecture.entete = lecture.cellules;
        else
            (*lecture.pour)({lecture.ligne, lecture.cellules, &lecture.entete});
    }
    lecture.cellules.clear();
    if (caractere == '\n')
        ++lecture.ligne;
}

/// Owns the C parser.
struct Analyseur
{
    csv_parser parser;
    Analyseur() { csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI | CSV_EMPTY_IS_NULL | CSV_REPALL_NL); }
    ~Analyseur() { csv_free(&parser); }
    Analyseur(const Analyseur &) = delete;
    Analyseur &operator=(const Analyseur &) = delete;
};

}

QString Csv::Rangee::operator[](const QString &colonne) const
{
    return cellules.value(entete->indexOf(colonne));
}

void Csv::Lire(const QString &chemin, const std::function<void(const Rangee &)> &pour)
{
    const auto echec = [&](const QString &details) {
        throw Error(QCoreApplication::translate("Csv", "Ce fichier ne peut pas être lu."), chemin, details);
    };
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        echec(fichier.errorString());
    QByteArray octets = fichier.readAll();
    if (octets.startsWith("\xEF\xBB\xBF"))
        octets.remove(0, 3);

    Analyseur analyseur;
    Lecture lecture;
    lecture.pour = &pour;
    const auto taille = static_cast<size_t>(octets.size());
    const bool lu
        = csv_parse(&analyseur.parser, octets.constData(), taille, finDeCellule, finDeLigne, &lecture)
        == taille;
    if (!lu || csv_fini(&analyseur.parser, finDeCellule, finDeLigne, &lecture) != 0)
        echec(QString::fromUtf8(csv_strerror(csv_error(&analyseur.parser))));
}
