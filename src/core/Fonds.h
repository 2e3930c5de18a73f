#pragma once

#include <QString>
#include <QStringList>

/// The background pictures: the one of the settings, and those of the folder "Fond Ecran".
namespace Fonds {

/// Full path of the background picture of the settings, or empty: where they say, else under its name in "Fond Ecran",
/// whatever the letter case.
QString CheminChoisi();

/// The textures of "Fond Ecran", by file name.
QStringList Textures();
/// What a texture is called: its file name up to the first dot.
QString NomDe(const QString &fichier);
/// Full path of a texture; of a picture elsewhere that is what it goes by.
QString CheminDe(const QString &fichier);
/// Takes a picture into "Fond Ecran"; returns its file name there, which gets " (2)" and so on when another
/// picture has it. Throws Error.
QString Ajouter(const QString &chemin);
/// Makes a texture the background, or none for an empty name.
void Choisir(const QString &fichier);

/// Full path of the n-th texture of "Fond Ecran", by name; empty for 0 and beyond the last.
QString Texture(int rang);

}
