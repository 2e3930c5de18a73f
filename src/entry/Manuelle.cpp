#include "entry/Manuelle.h"

Manuelle::Manuelle()
    : FormeCreation(QStringLiteral("Manuelle"), {820, 640}, Txt::CreationManuelleDUnAlbum)
{
    construireFormulaire(true);
}
