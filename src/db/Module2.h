#pragma once

#include <QString>
#include <optional>

/// The coded form in which the reference catalogue keeps its texts.
///
/// Each UTF-16 unit from U+0020 to U+D6FF is stored 256 higher, so that texts sort as they read; units from
/// U+D800 on (surrogates, private use, compatibility forms) are stored as they are. A stored unit below U+0120
/// stands for nothing: a text that holds one was never coded.
namespace Module2 {

/// Nothing when the text holds a character that cannot be coded: a control character, or U+D700 to U+D7FF.
std::optional<QString> Coder(const QString &texte);

/// Nothing when the text was not coded by this rule.
std::optional<QString> Decoder(const QString &code);

}
