#include "entry/Manuelle.h"

Manuelle::Manuelle(Demandes &demandes)
    : FormeCreation(demandes, QStringLiteral("Manuelle"), {820, 640}, Txt::CreationManuelleDUnAlbum)
{
    construireFormulaire(true);
}
