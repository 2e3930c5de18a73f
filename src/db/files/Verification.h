#pragma once

#include <QString>

/// Whether the file of a collection is sound, as its engine judges it.
namespace Verification {

/// The engine's words on what is wrong with the collection of the application folder; empty when it is sound.
/// What a crash left unfinished is taken back first. Throws Error when it cannot be looked at: missing, in use,
/// no collection.
QString Verifier();

/// Likewise for a collection that is not at work; its file is not touched.
QString Verifier(const QString &chemin);

}
