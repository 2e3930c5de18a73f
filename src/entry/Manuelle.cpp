#include "entry/Manuelle.h"

Manuelle::Manuelle()
    : FormeCreation(QStringLiteral("Manuelle"), Txt::CreationManuelleDUnAlbum, true)
{
    resize(820, 640);
}
