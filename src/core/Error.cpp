#include "core/Error.h"

#include <QStringList>

namespace {

QString assembler(const QString &quoi, const QString &surQuoi, const QString &details)
{
    QStringList lignes{quoi, surQuoi, details};
    lignes.removeAll(QString());
    return lignes.join(u'\n');
}

}

Error::Error(Sorte sorte, const QString &quoi, const QString &surQuoi, const QString &details)
    : std::runtime_error(assembler(quoi, surQuoi, details).toStdString())
    , m_sorte(sorte)
    , m_message(assembler(quoi, surQuoi, details))
{
}

Error::Error(const QString &quoi, const QString &surQuoi, const QString &details)
    : Error(Sorte::Autre, quoi, surQuoi, details)
{
}
