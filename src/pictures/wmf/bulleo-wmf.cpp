// Turns a Windows metafile into SVG on its output: bulleo-wmf FILE. The library that reads the old format was not
// made for files from anywhere, so it works in a process of its own, with limits.

#include <cstdio>
#include <sys/resource.h>

extern "C" {
#include <libwmf/api.h>
#include <libwmf/svg.h>
}

namespace {

void limiter()
{
    constexpr rlim_t Secondes = 10;
    const rlimit temps{Secondes, Secondes};
    setrlimit(RLIMIT_CPU, &temps);
#ifndef __SANITIZE_ADDRESS__ // whose shadow memory alone is larger than any limit
    constexpr rlim_t Memoire = rlim_t(512) << 20;
    const rlimit memoire{Memoire, Memoire};
    setrlimit(RLIMIT_AS, &memoire);
#endif
}

bool convertir(const char *chemin)
{
    wmfAPI *api = nullptr;
    wmfAPI_Options options{};
    options.function = wmf_svg_function;
    if (wmf_api_create(&api, WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL, &options) != wmf_E_None)
        return false;
    wmfD_Rect cadre{};
    if (wmf_file_open(api, const_cast<char *>(chemin)) != wmf_E_None
        || wmf_scan(api, 0, &cadre) != wmf_E_None)
        return false;
    wmf_svg_t *dessin = WMF_SVG_GetData(api);
    dessin->out = wmf_stream_create(api, stdout);
    unsigned int largeur = 0;
    unsigned int hauteur = 0;
    if (!dessin->out || wmf_display_size(api, &largeur, &hauteur, 96, 96) != wmf_E_None)
        return false;
    dessin->bbox = cadre;
    dessin->width = largeur;
    dessin->height = hauteur;
    return wmf_play(api, 0, &cadre) == wmf_E_None;
}

}

int main(int argc, char *argv[])
{
    if (argc != 2)
        return 2;
    limiter();
    return convertir(argv[1]) ? 0 : 1;
}
