#include "exemple/Couvertures.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "db/Base.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <array>
#include <random>

namespace {

constexpr QSize Droite(360, 480);
constexpr QSize Italienne(480, 320);
constexpr int QualiteJpeg = 82;

struct Album
{
    int num;
    QString titre;
    QString auteurs;
    QString editeur;
    int serie;
    bool italienne;
};

/// Two inks and a paper for each series, so that its albums look alike on a shelf.
struct Encres
{
    QColor haut, bas, trait;
};
constexpr std::array<std::array<unsigned, 3>, 9> Palettes{
    {{0xC9D6C3, 0x3F5A63, 0xFFFDF4}, {0xE9C46A, 0x8A3B2E, 0xFFF8E7}, {0xA8BFD0, 0x2B4A6F, 0xFFFFFF},
        {0xE6B8A2, 0x7A3E48, 0xFFF6EE}, {0xB7C68B, 0x44583A, 0xFBFFF0}, {0xD8C3A5, 0x5C4A3D, 0xFFFBF2},
        {0xF2D7A0, 0xB5541C, 0x3A1C0C}, {0xBFC8D6, 0x4A4E69, 0xFFFFFF}, {0xF0E2C4, 0x9A7B4F, 0x2C2416}}};

Encres encresDe(const Album &album)
{
    const auto rang
        = static_cast<std::size_t>(album.serie > 0 ? album.serie : album.num * 5) % Palettes.size();
    return {QColor(Palettes[rang][0]), QColor(Palettes[rang][1]), QColor(Palettes[rang][2])};
}

/// A landscape of hills under a sun: quiet, and another one for each album.
void dessinerPaysage(QPainter &p, const QSize &taille, const Encres &encres, std::mt19937 &hasard)
{
    const auto entre
        = [&](int bas, int haut) { return std::uniform_int_distribution<int>(bas, haut)(hasard); };
    const int rayon = entre(taille.height() / 14, taille.height() / 8);
    p.setPen(Qt::NoPen);
    QColor soleil = encres.trait;
    soleil.setAlpha(190);
    p.setBrush(soleil);
    p.drawEllipse(
        QPoint(entre(rayon, taille.width() - rayon), entre(taille.height() * 2 / 5, taille.height() / 2)),
        rayon, rayon);
    for (int plan = 0; plan < 3; ++plan) {
        QPainterPath colline(QPointF(0, taille.height()));
        const int base = taille.height() * (11 + 2 * plan) / 20;
        int y = base;
        colline.lineTo(0, y);
        for (int x = 0; x < taille.width();) {
            const int pas = entre(50, 120);
            const int suivant = base + entre(-36, 36);
            colline.quadTo(x + pas / 2.0, std::min(y, suivant) - entre(0, 30), x + pas, suivant);
            x += pas;
            y = suivant;
        }
        colline.lineTo(taille.width() + 120, taille.height());
        QColor ton = encres.bas.lighter(135 - 17 * plan);
        ton.setAlpha(200);
        p.setBrush(ton);
        p.drawPath(colline);
    }
}

QImage dessiner(const Album &album, bool dos)
{
    const QSize taille = album.italienne ? Italienne : Droite;
    const Encres encres = encresDe(album);
    std::mt19937 hasard(static_cast<unsigned>(album.num));
    QImage image(taille, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient fond(0, 0, 0, taille.height());
    fond.setColorAt(0, dos ? encres.bas : encres.haut);
    fond.setColorAt(1, encres.bas);
    p.fillRect(image.rect(), fond);
    const QRect marge = image.rect().adjusted(24, 22, -24, -20);
    p.setPen(QPen(encres.trait, 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(image.rect().adjusted(10, 10, -10, -10));
    if (dos) {
        p.setFont(QFont(QStringLiteral("DejaVu Serif"), 13));
        p.drawText(marge, Qt::AlignCenter | Qt::TextWordWrap, album.editeur);
        return image;
    }
    p.setClipRect(image.rect().adjusted(11, 11, -11, -11));
    dessinerPaysage(p, taille, encres, hasard);
    const bool sombre = encres.haut.lightness() > 150;
    p.setPen(sombre ? encres.bas.darker(150) : encres.trait);
    p.setFont(QFont(QStringLiteral("DejaVu Serif"), 22, QFont::Bold));
    p.drawText(marge, Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap, album.titre);
    p.setPen(encres.trait);
    p.setFont(QFont(QStringLiteral("DejaVu Serif"), 12));
    p.drawText(marge, Qt::AlignBottom | Qt::AlignHCenter | Qt::TextWordWrap, album.auteurs);
    return image;
}

void enregistrer(const QImage &image, const QString &nom)
{
    const QString chemin = Dossier::courant().chemin(QStringLiteral("images/") + nom);
    if (!image.save(chemin, "JPG", QualiteJpeg))
        throw Error(QStringLiteral("Cette image ne peut pas être écrite."), chemin);
}

}

void dessinerCouvertures()
{
    Base base;
    const QString sql = QStringLiteral("SELECT l.NAlbum, l.TAlbum, coalesce(d.Nom, ''), coalesce(s.Nom, ''), "
                                       "coalesce(e.Nom, ''), a.NumSerie,"
                                       " a.NCouverture From LAlbums l join Album a on a.Num = l.NAlbum left "
                                       "join Auteurs d on d.NAuteur = a.NDessin"
                                       " left join Auteurs s on s.NAuteur = a.NScen left join Editeur e on "
                                       "e.NEdit = a.NEdit order by l.NAlbum");
    for (auto rs = base.read(sql); !rs.AtEnd(); rs.MoveNext()) {
        const QString dessin = rs.Fields(2).toString();
        const QString scenario = rs.Fields(3).toString();
        const bool seul = scenario.isEmpty() || scenario == dessin;
        constexpr int FormatItalien = 2;
        const Album album{rs.Fields(0).toInt(), rs.Fields(1).toString(),
            seul ? dessin : dessin + QStringLiteral(" · ") + scenario, rs.Fields(4).toString(),
            rs.Fields(5).toInt(), rs.Fields(6).toInt() == FormatItalien};
        enregistrer(dessiner(album, false), QStringLiteral("album-%1.jpg").arg(album.num));
        enregistrer(dessiner(album, true), QStringLiteral("album-%1-dos.jpg").arg(album.num));
    }
}
