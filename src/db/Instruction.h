#pragma once

#include <memory>

class Connexion;
namespace SQLite {
class Statement;
}

/// Gives a prepared statement back to its connection, which keeps it for the next use of its text.
struct Rendre
{
    Connexion *connexion = nullptr;
    void operator()(SQLite::Statement *instruction) const;
};

/// A prepared statement in use. It must not outlive its connection.
using Instruction = std::unique_ptr<SQLite::Statement, Rendre>;
