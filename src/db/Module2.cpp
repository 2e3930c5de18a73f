#include "db/Module2.h"

namespace {

constexpr char16_t Decalage = 0x100;
constexpr char16_t Premier = 0x20;
constexpr char16_t Dernier = 0xD6FF;
constexpr char16_t Inchanges = 0xD800;

}

std::optional<QString> Module2::Coder(const QString &texte)
{
    QString code = texte;
    for (QChar &c : code) {
        const char16_t unite = c.unicode();
        if (unite >= Inchanges)
            continue;
        if (unite < Premier || unite > Dernier)
            return std::nullopt;
        c = QChar(static_cast<char16_t>(unite + Decalage));
    }
    return code;
}

std::optional<QString> Module2::Decoder(const QString &code)
{
    QString texte = code;
    for (QChar &c : texte) {
        const char16_t unite = c.unicode();
        if (unite >= Inchanges)
            continue;
        if (unite < Premier + Decalage)
            return std::nullopt;
        c = QChar(static_cast<char16_t>(unite - Decalage));
    }
    return texte;
}
