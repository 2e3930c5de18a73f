#include "core/Csv.h"

#include "core/Error.h"
#include "core/Texte.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <csv.h>
#include <exception>
#include <optional>
#include <utility>

namespace {

constexpr qint64 Morceau = 1 << 16;
constexpr std::array Separateurs{',', ';', '\t'};

/// What the callbacks of the reader share. The reader counts no lines, so line ends are counted here.
struct Lecture
{
    QStringList entete;
    QStringList cellules;
    int ligne = 1;
    bool enTete = true;
    const std::function<void(const Csv::Rangee &)> *pour = nullptr;
    std::exception_ptr echec; ///< of `pour`: an exception may not cross the reader

    void relever() const
    {
        if (echec)
            std::rethrow_exception(echec);
    }
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

void donner(Lecture &lecture)
{
    if (lecture.echec)
        return;
    try {
        (*lecture.pour)({lecture.ligne, lecture.cellules, &lecture.entete});
    } catch (...) {
        lecture.echec = std::current_exception();
    }
}

/// Called at every character that may end a line, so that blank lines are counted, too.
void finDeLigne(int caractere, void *donnees)
{
    auto &lecture = *static_cast<Lecture *>(donnees);
    if (!lecture.cellules.isEmpty()) {
        if (std::exchange(lecture.enTete, false))
            lecture.entete = lecture.cellules;
        else
            donner(lecture);
    }
    lecture.cellules.clear();
    if (caractere == '\n')
        ++lecture.ligne;
}

[[noreturn]] void echec(const QString &chemin, const QString &details)
{
    throw Error(QCoreApplication::translate("Csv", "Ce fichier ne peut pas être lu."), chemin, details);
}

/// The next piece of a file that is not at its end.
QByteArray lireMorceau(QFile &fichier)
{
    QByteArray octets = fichier.read(Morceau);
    if (octets.isEmpty())
        echec(fichier.fileName(), fichier.errorString());
    return octets;
}

/// Whether all of a file is UTF-8. It stands at its beginning afterwards.
bool estEnUtf8(QFile &fichier)
{
    QStringDecoder decodeur(QStringDecoder::Utf8);
    while (!fichier.atEnd() && !decodeur.hasError()) {
        [[maybe_unused]] const QString morceau = decodeur(lireMorceau(fichier));
    }
    // A character that is cut off at the end shows when something follows it.
    [[maybe_unused]] const QString fin = decodeur(QByteArrayLiteral("\n"));
    if (!fichier.seek(0))
        echec(fichier.fileName(), fichier.errorString());
    return !decodeur.hasError();
}

/// The form of UTF-16 that a file begins in: by its mark, or by the zeros that latin letters have in it.
std::optional<QStringDecoder::Encoding> utf16(const QByteArray &debut)
{
    if (debut.startsWith("\xFF\xFE") || debut.startsWith("\xFE\xFF"))
        return QStringDecoder::Utf16;
    const bool zeroEnTete = debut.size() > 3 && debut[0] == 0 && debut[2] == 0 && debut[1] != 0;
    const bool zeroEnQueue = debut.size() > 3 && debut[1] == 0 && debut[3] == 0 && debut[0] != 0;
    return zeroEnTete ? std::optional(QStringDecoder::Utf16BE)
        : zeroEnQueue ? std::optional(QStringDecoder::Utf16LE)
                      : std::nullopt;
}

/// Pictures, archives and programs hold zeros; no text does.
bool estUnTexte(const QString &texte)
{
    return !texte.contains(QChar(0));
}

/// A file read piece by piece as UTF-8, whatever it is written in.
class Textuel
{
public:
    explicit Textuel(const QString &chemin)
        : m_fichier(chemin)
    {
        if (!m_fichier.open(QIODevice::ReadOnly))
            echec(chemin, m_fichier.errorString());
        const auto seize = utf16(m_fichier.peek(4));
        m_en1252 = !seize && !estEnUtf8(m_fichier);
        m_decodeur = QStringDecoder(seize.value_or(QStringDecoder::Utf8));
    }

    bool fini() const { return m_fichier.atEnd(); }
    QByteArray suite()
    {
        const QByteArray octets = lireMorceau(m_fichier);
        const QString texte = m_en1252 ? Texte::Decoder1252(octets) : QString(m_decodeur(octets));
        if (!estUnTexte(texte))
            echec(m_fichier.fileName(),
                QCoreApplication::translate("Csv", "Ce n'est pas un fichier de valeurs séparées (CSV)."));
        return texte.toUtf8();
    }

private:
    QFile m_fichier;
    bool m_en1252 = false;
    QStringDecoder m_decodeur;
};

/// Owns the C parser.
struct Analyseur
{
    csv_parser parser;
    explicit Analyseur(char separateur)
    {
        csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI | CSV_EMPTY_IS_NULL | CSV_REPALL_NL);
        csv_set_delim(&parser, static_cast<unsigned char>(separateur));
    }
    ~Analyseur() { csv_free(&parser); }
    Analyseur(const Analyseur &) = delete;
    Analyseur &operator=(const Analyseur &) = delete;
};

}

QString Csv::Rangee::operator[](const QString &colonne) const
{
    return cellules.value(entete->indexOf(colonne));
}

char Csv::Separateur(const QString &chemin)
{
    Textuel fichier(chemin);
    std::array<qsizetype, Separateurs.size()> nombres{};
    bool entreGuillemets = false;
    const QByteArray debut = fichier.fini() ? QByteArray() : fichier.suite();
    for (const char c : debut) {
        if (c == '\n' && !entreGuillemets)
            break;
        entreGuillemets = entreGuillemets != (c == '"');
        const auto lequel = std::find(Separateurs.begin(), Separateurs.end(), c);
        if (!entreGuillemets && lequel != Separateurs.end())
            ++nombres[static_cast<std::size_t>(lequel - Separateurs.begin())];
    }
    const auto plusFrequent = std::max_element(nombres.begin(), nombres.end());
    return Separateurs[static_cast<std::size_t>(plusFrequent - nombres.begin())];
}

QStringList Csv::Lire(const QString &chemin, const std::function<void(const Rangee &)> &pour, char separateur)
{
    Textuel fichier(chemin);
    Analyseur analyseur(separateur);
    Lecture lecture;
    lecture.pour = &pour;
    bool lu = true;
    while (lu && !fichier.fini()) {
        const QByteArray octets = fichier.suite();
        const auto taille = static_cast<size_t>(octets.size());
        lu = csv_parse(&analyseur.parser, octets.constData(), taille, finDeCellule, finDeLigne, &lecture)
            == taille;
        lecture.relever();
    }
    lu = lu && csv_fini(&analyseur.parser, finDeCellule, finDeLigne, &lecture) == 0;
    lecture.relever();
    if (!lu)
        echec(chemin,
            QCoreApplication::translate("Csv", "Ligne %1").arg(lecture.ligne) + QStringLiteral(" : ")
                + QString::fromUtf8(csv_strerror(csv_error(&analyseur.parser))));
    return lecture.entete;
}
