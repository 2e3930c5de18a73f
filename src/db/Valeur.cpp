#include "db/Valeur.h"

#include "core/Error.h"

#include <QCoreApplication>
#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>
#include <cmath>
#include <sqlite3.h>

namespace {

double quatreDecimales(double montant)
{
    return std::round(montant * 10000.0) / 10000.0;
}

}

void Valeur::Lier(SQLite::Statement &instruction, int position, const QVariant &valeur)
{
    switch (valeur.typeId()) {
    case QMetaType::UnknownType:
        return instruction.bind(position);
    case QMetaType::Bool:
        return instruction.bind(position, valeur.toBool() ? -1 : 0);
    case QMetaType::Int:
    case QMetaType::LongLong:
        return instruction.bind(position, static_cast<int64_t>(valeur.toLongLong()));
    case QMetaType::Double:
        return instruction.bind(position, quatreDecimales(valeur.toDouble()));
    case QMetaType::QByteArray: {
        const QByteArray octets = valeur.toByteArray();
        return instruction.bind(
            position, static_cast<const void *>(octets.constData()), static_cast<int>(octets.size()));
    }
    default:
        return instruction.bind(position, valeur.toString().toStdString());
    }
}

bool Valeur::Egales(const QVariant &a, const QVariant &b)
{
    const auto canonique = [](const QVariant &v) -> QVariant {
        if (v.typeId() == QMetaType::Bool)
            return v.toBool() ? -1 : 0;
        return v.typeId() == QMetaType::Double ? QVariant(quatreDecimales(v.toDouble())) : v;
    };
    const bool memeGenre = a.isValid() == b.isValid()
        && (a.typeId() == QMetaType::QString) == (b.typeId() == QMetaType::QString);
    return memeGenre && canonique(a) == canonique(b);
}

QVariant Valeur::Lire(const SQLite::Column &colonne)
{
    switch (colonne.getType()) {
    case SQLITE_INTEGER:
        return static_cast<qlonglong>(colonne.getInt64());
    case SQLITE_FLOAT:
        return colonne.getDouble();
    case SQLITE_TEXT: {
        const std::string_view octets = Utf8(colonne);
        return QString::fromUtf8(octets.data(), static_cast<qsizetype>(octets.size()));
    }
    case SQLITE_BLOB:
        return QByteArray(static_cast<const char *>(colonne.getBlob()), colonne.getBytes());
    default:
        return {};
    }
}

int Valeur::Champ(const SQLite::Statement &instruction, const QString &nom)
{
    for (int i = 0; i < instruction.getColumnCount(); ++i) {
        if (nom.compare(QLatin1String(instruction.getColumnName(i)), Qt::CaseInsensitive) == 0)
            return i;
    }
    throw Error(QCoreApplication::translate("Base", "Un champ manque dans la base."), nom,
        QString::fromStdString(instruction.getQuery()));
}

std::string_view Valeur::Utf8(const SQLite::Column &colonne)
{
    const char *octets = colonne.getText();
    return {octets, static_cast<size_t>(colonne.getBytes())};
}
