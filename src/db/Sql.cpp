#include "db/Sql.h"

#include <QRegularExpression>

QString Sql::Normaliser(const QString &sql)
{
    static const QRegularExpression morceau(
        QStringLiteral(R"('(?:[^']|'')*'|"(?:[^"]|"")*"|\b(true|false)\b)"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression queue(QStringLiteral(R"([\s;]+$)"));
    QString resultat;
    qsizetype debut = 0;
    for (auto trouve = morceau.globalMatch(sql); trouve.hasNext();) {
        const auto m = trouve.next();
        if (m.capturedLength(1) == 0)
            continue;
        const bool vrai = m.captured(1).compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
        resultat += QStringView(sql).mid(debut, m.capturedStart() - debut);
        resultat += vrai ? QStringLiteral("-1") : QStringLiteral("0");
        debut = m.capturedEnd();
    }
    resultat += QStringView(sql).mid(debut);
    return resultat.remove(queue);
}

bool Sql::EstUneEcriture(const QString &sql)
{
    const QString debut = sql.trimmed().left(6).toUpper();
    return debut == QLatin1String("INSERT") || debut == QLatin1String("UPDATE")
        || debut == QLatin1String("DELETE");
}

QString Sql::Nom(const QString &nom)
{
    return u'"' + QString(nom).replace(u'"', QStringLiteral("\"\"")) + u'"';
}
