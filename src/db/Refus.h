#pragma once

#include "core/Error.h"

namespace SQLite {
class Exception;
}

/// What the engine refuses.
namespace Refus {

/// The engine's refusal of something on a file, as an Error that names the file.
Error Dire(const SQLite::Exception &e, const QString &chemin);

}
