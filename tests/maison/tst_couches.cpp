#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

/// The house's walls: which folder may know which, what a library may link, what a form may not say.
class tst_couches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void lesDossiersSeConnaissentDansUnSeulSens();
    void laLogiqueNeVoitAucunWidget();
    void lesFormesNeParlentPasSql();
    void seulLeBureauConnaitLaFenetre();

private:
    /// Include paths of a source, of this project only.
    QStringList inclusions(const QString &fichier) const;
    QString contenu(const QString &fichier) const;
    bool estForme(const QString &fichier) const { return m_formes.contains(fichier); }

    QDir m_sources{QStringLiteral(SOURCES)};
    QStringList m_fichiers;
    QSet<QString> m_formes;
    QMap<QString, QString> m_maison;
};

namespace {

/// core, db, model, acts, then the rooms, which do not know each other, then app, which knows them all.
int rangDe(const QString &dossier)
{
    static const QStringList ordre{
        QStringLiteral("core"), QStringLiteral("db"), QStringLiteral("model"), QStringLiteral("acts")};
    if (dossier == QLatin1String("app"))
        return static_cast<int>(ordre.size()) + 1;
    const qsizetype rang = ordre.indexOf(dossier);
    return static_cast<int>(rang < 0 ? ordre.size() : rang);
}

QString dossierDe(const QString &fichier)
{
    return fichier.section(u'/', 0, 0);
}

}

void tst_couches::initTestCase()
{
    for (QDirIterator i(m_sources.path(), {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
             QDirIterator::Subdirectories);
         i.hasNext();)
        m_fichiers << m_sources.relativeFilePath(i.next());
    QVERIFY(m_fichiers.size() > 60);
    QFile liste(QStringLiteral(MAISON));
    QVERIFY(liste.open(QIODevice::ReadOnly));
    const QStringList lignes = QString::fromUtf8(liste.readAll()).split(u'\n');
    for (const QString &ligne : lignes)
        m_maison[ligne.section(u'=', 0, 0)] = ligne.section(u'=', 1);
    const QStringList formes = m_maison[QStringLiteral("formes")].split(u';');
    m_formes = QSet<QString>(formes.begin(), formes.end());
    QVERIFY(m_formes.contains(QStringLiteral("browse/Frmmain.cpp")));
}

QString tst_couches::contenu(const QString &fichier) const
{
    QFile source(m_sources.filePath(fichier));
    return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
}

QStringList tst_couches::inclusions(const QString &fichier) const
{
    static const QRegularExpression forme(
        QStringLiteral("^#include \"([^\"]+(?<!\\.moc))\""), QRegularExpression::MultilineOption);
    QStringList chemins;
    for (auto trouve = forme.globalMatch(contenu(fichier)); trouve.hasNext();)
        chemins << trouve.next().captured(1);
    return chemins;
}

void tst_couches::lesDossiersSeConnaissentDansUnSeulSens()
{
    for (const QString &fichier : std::as_const(m_fichiers)) {
        const QString dossier = dossierDe(fichier);
        const QStringList chemins = inclusions(fichier);
        for (const QString &chemin : chemins) {
            const bool permis = dossierDe(chemin) == dossier || rangDe(dossierDe(chemin)) < rangDe(dossier);
            QVERIFY2(chemin.contains(u'/') && permis, qPrintable(fichier + QStringLiteral(" -> ") + chemin));
        }
    }
}

void tst_couches::laLogiqueNeVoitAucunWidget()
{
    QVERIFY(m_maison[QStringLiteral("liensLogique")].contains(QStringLiteral("Qt6::Gui")));
    QVERIFY2(!m_maison[QStringLiteral("liensLogique")].contains(QStringLiteral("Widgets")),
        qPrintable(m_maison[QStringLiteral("liensLogique")]));
    for (const QString &fichier : std::as_const(m_fichiers)) {
        if (estForme(fichier) || dossierDe(fichier) == QLatin1String("app"))
            continue;
        const QStringList chemins = inclusions(fichier);
        for (const QString &chemin : chemins)
            QVERIFY2(!estForme(chemin), qPrintable(fichier + QStringLiteral(" -> ") + chemin));
    }
}

void tst_couches::lesFormesNeParlentPasSql()
{
    static const QRegularExpression sql(
        QStringLiteral("\"\\s*(select|insert|update|delete)\\s"), QRegularExpression::CaseInsensitiveOption);
    for (const QString &fichier : std::as_const(m_formes)) {
        QVERIFY2(!contenu(fichier).contains(sql), qPrintable(fichier));
        QVERIFY2(!inclusions(fichier).contains(QStringLiteral("db/Base.h")), qPrintable(fichier));
    }
}

void tst_couches::seulLeBureauConnaitLaFenetre()
{
    static const QSet<QString> inities{
        QStringLiteral("app/Bureau.cpp"), QStringLiteral("browse/Frmmain.cpp")};
    for (const QString &fichier : std::as_const(m_fichiers)) {
        const bool connait = inclusions(fichier).contains(QStringLiteral("browse/Frmmain.h"));
        QVERIFY2(!connait || inities.contains(fichier), qPrintable(fichier));
    }
}

QTEST_GUILESS_MAIN(tst_couches)
#include "tst_couches.moc"
