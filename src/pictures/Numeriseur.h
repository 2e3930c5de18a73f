#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

/// A way to scanners. All calls may take long: they are made beside the window's work, one at a time.
class Numeriseur
{
public:
    virtual ~Numeriseur() = default;

    struct Source
    {
        QString nom; ///< by which it is opened
        QString titre; ///< for a person
    };
    /// The scanners that there are. Throws Error.
    virtual std::vector<Source> sources() = 0;

    /// Told now and then with the percentage done; false ends the scan.
    using Avance = std::function<bool(int pourcent)>;
    /// Scans one page in colour; null when it was ended. Throws Error.
    virtual QImage acquerir(const QString &source, const Avance &avance) = 0;

    /// The system's scanners, by SANE; none where its library is missing.
    static std::unique_ptr<Numeriseur> DuSysteme();
};
