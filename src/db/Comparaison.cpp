#include "db/Comparaison.h"

#include <unicode/ucol.h>

void *Comparaison::creer()
{
    UErrorCode erreur = U_ZERO_ERROR;
    UCollator *collateur = ucol_open("fr", &erreur);
    if (U_FAILURE(erreur))
        return nullptr;
    ucol_setStrength(collateur, UCOL_SECONDARY);
    return collateur;
}

void Comparaison::detruire(void *collateur)
{
    ucol_close(static_cast<UCollator *>(collateur));
}

int Comparaison::comparer(void *collateur, int la, const void *a, int lb, const void *b)
{
    UErrorCode erreur = U_ZERO_ERROR;
    return ucol_strcollUTF8(static_cast<UCollator *>(collateur), static_cast<const char *>(a), la,
        static_cast<const char *>(b), lb, &erreur);
}

int Comparaison::version()
{
    UErrorCode erreur = U_ZERO_ERROR;
    UCollator *collateur = ucol_open("fr", &erreur);
    if (U_FAILURE(erreur))
        return 0;
    UVersionInfo v;
    ucol_getVersion(collateur, v);
    ucol_close(collateur);
    return (v[0] << 15 ^ v[1] << 10 ^ v[2] << 5 ^ v[3]) & 0x7FFFFF;
}
