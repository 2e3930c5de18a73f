#include "core/Texte.h"

#include <QStringDecoder>
#include <QTextBoundaryFinder>
#include <algorithm>

namespace {

constexpr qsizetype NombreDePoints = 855;

/// The characters 0x80 to 0x9F of Windows-1252; the five unused codes stay what they are.
constexpr char16_t Haut1252[32] = {0x20AC, 0x81, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6,
    0x2030, 0x0160, 0x2039, 0x0152, 0x8D, 0x017D, 0x8F, 0x90, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013,
    0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D, 0x017E, 0x0178};

}

const QString &Texte::Pointilles()
{
    static const QString points(NombreDePoints, u'.');
    return points;
}

bool Texte::EstVide(const QString &texte)
{
    return texte.trimmed().isEmpty() || texte == Pointilles();
}

QString Texte::UneLigne(const QString &texte)
{
    QString ligne = texte;
    for (QChar &c : ligne) {
        const QChar::Category sorte = c.category();
        if (sorte == QChar::Other_Control || sorte == QChar::Separator_Line
            || sorte == QChar::Separator_Paragraph)
            c = u' ';
    }
    return ligne.trimmed();
}

QString Texte::Couper(const QString &texte, qsizetype longueur)
{
    if (texte.size() <= longueur)
        return texte;
    QTextBoundaryFinder bords(QTextBoundaryFinder::Grapheme, texte);
    bords.setPosition(longueur);
    return texte.left(bords.isAtBoundary() ? longueur : bords.toPreviousBoundary());
}

bool Texte::EstUnNom(const QString &texte)
{
    return std::any_of(texte.begin(), texte.end(), [](QChar c) { return !c.isSpace() && c != u','; });
}

QString Texte::Decoder1252(const QByteArray &octets)
{
    QString texte = QString::fromLatin1(octets);
    for (QChar &c : texte) {
        if (c.unicode() >= 0x80 && c.unicode() <= 0x9F)
            c = QChar(Haut1252[c.unicode() - 0x80]);
    }
    return texte;
}

QString Texte::Decoder(const QByteArray &octets)
{
    QStringDecoder utf8(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    QString texte = utf8(octets);
    return utf8.hasError() ? Decoder1252(octets) : texte;
}

QString Texte::Plier(const QString &texte)
{
    QString plie;
    plie.reserve(texte.size() + 2);
    const auto ajouter = [&plie](QChar c) {
        switch (c.unicode()) {
        case 0x153:
            plie += QLatin1String("oe");
            break;
        case 0xE6:
            plie += QLatin1String("ae");
            break;
        case 0xDF:
            plie += QLatin1String("ss");
            break;
        default:
            if (c.category() != QChar::Mark_NonSpacing)
                plie += c;
        }
    };
    for (const QChar c : texte) {
        if (c.unicode() < 0x80) {
            plie += c.toLower();
            continue;
        }
        const QString decompose = c.decomposition();
        // A letter and its accent; what decomposes otherwise (a fraction, a ligature of presentation) stays.
        if (decompose.isEmpty() || c.decompositionTag() != QChar::Canonical)
            ajouter(c.toLower());
        else
            ajouter(decompose[0].toLower());
    }
    return plie;
}

QString Texte::NomPrenom(const QString &nom, const QString &prenom)
{
    const QString net = prenom.trimmed();
    return net.isEmpty() ? nom : nom + QStringLiteral(", ") + net;
}
