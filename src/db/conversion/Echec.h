#pragma once

#include "db/files/Conversion.h"

#include <QString>
#include <stdexcept>

/// Why a conversion ends without a new file.
class Echec : public std::runtime_error
{
public:
    Echec(Conversion::Code code, const QString &details)
        : std::runtime_error(details.toStdString())
        , m_code(code)
        , m_details(details)
    {
    }

    Conversion::Code code() const { return m_code; }
    const QString &details() const { return m_details; }

private:
    Conversion::Code m_code;
    QString m_details;
};
