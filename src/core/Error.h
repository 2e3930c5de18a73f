#pragma once

#include <QString>
#include <stdexcept>

/// A broken operation: what failed, on what, and the words of whoever refused (engine, file system).
class Error : public std::runtime_error
{
public:
    /// Told apart only where a caller reacts differently.
    enum class Sorte {
        Autre,
        Introuvable,
        Etrangere,
        Abimee,
        LectureSeule,
        EnUsage,
        Ancienne,
        PlusRecente,
        Perimee,
        Abandonnee ///< given up by the user, who was asked and need not be told
    };

    Error(Sorte sorte, const QString &quoi, const QString &surQuoi, const QString &details = {});
    Error(const QString &quoi, const QString &surQuoi, const QString &details = {});

    Sorte sorte() const { return m_sorte; }
    /// For a person: one line each for what failed, on what, and why.
    QString message() const { return m_message; }

private:
    Sorte m_sorte;
    QString m_message;
};
