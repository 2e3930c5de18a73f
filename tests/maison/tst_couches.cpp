#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <functional>

namespace {

/// The floors, each knowing those above it in this list; what is not named is a room of the top floor.
const QStringList Etages{QStringLiteral("core"), QStringLiteral("core/ui"), QStringLiteral("db/schema"), "db",
    "db/files", "db/conversion", "model", "acts"};
const QString Sommet = QStringLiteral("app");

QString dossierDe(const QString &fichier)
{
    return fichier.section(u'/', 0, -2);
}

qsizetype rangDe(const QString &dossier)
{
    if (dossier == Sommet)
        return Etages.size() + 1;
    const qsizetype rang = Etages.indexOf(dossier);
    return rang < 0 ? Etages.size() : rang;
}

/// A folder and what is under it are one room; a module of a room may have programs of its own under it.
bool memePiece(const QString &dossier, const QString &autre)
{
    return dossier == autre
        || (rangDe(dossier) == Etages.size() && dossier.section(u'/', 0, 0) == autre.section(u'/', 0, 0));
}

/// A header and its source are one module.
QString moduleDe(const QString &fichier)
{
    return fichier.section(u'.', 0, 0);
}

using Graphe = QMap<QString, QSet<QString>>;

/// The way from a place back to itself; empty when there is none.
QStringList chercherCercle(const Graphe &graphe, const QString &lieu, QStringList chemin, QSet<QString> &sus)
{
    const qsizetype debut = chemin.indexOf(lieu);
    chemin << lieu;
    if (debut >= 0)
        return chemin.mid(debut);
    if (sus.contains(lieu))
        return {};
    for (const QString &suivant : graphe.value(lieu)) {
        const QStringList cercle = chercherCercle(graphe, suivant, chemin, sus);
        if (!cercle.isEmpty())
            return cercle;
    }
    sus << lieu;
    return {};
}

QString unCercle(const Graphe &graphe)
{
    QSet<QString> sus;
    for (auto lieu = graphe.keyBegin(); lieu != graphe.keyEnd(); ++lieu) {
        const QStringList cercle = chercherCercle(graphe, *lieu, {}, sus);
        if (!cercle.isEmpty())
            return cercle.join(" -> ");
    }
    return {};
}

}

/// The house's walls: which folder may know which, what a library may link, what a form may not say.
class tst_couches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (QDirIterator i(m_sources.path(), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
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
        QVERIFY(m_formes.contains("browse/Frmmain.cpp"));
    }

    void lesDossiersSeConnaissentDansUnSeulSens()
    {
        verifier([](const QString &fichier, const QString &vu) {
            const QString ici = dossierDe(fichier);
            return vu.contains(u'/')
                && (memePiece(ici, dossierDe(vu)) || rangDe(dossierDe(vu)) < rangDe(ici));
        });
    }

    void aucunCercleEntreModulesNiDossiers()
    {
        Graphe modules;
        Graphe dossiers;
        for (const QString &fichier : std::as_const(m_fichiers)) {
            const QStringList chemins = inclusions(fichier);
            for (const QString &chemin : chemins) {
                if (moduleDe(chemin) != moduleDe(fichier))
                    modules[moduleDe(fichier)] << moduleDe(chemin);
                if (dossierDe(chemin) != dossierDe(fichier))
                    dossiers[dossierDe(fichier)] << dossierDe(chemin);
            }
        }
        QVERIFY(modules.size() > 60 && dossiers.size() > 12);
        QCOMPARE(unCercle(modules), QString());
        QCOMPARE(unCercle(dossiers), QString());
    }

    void laLogiqueNeVoitAucunWidget()
    {
        QVERIFY(m_maison[QStringLiteral("liensLogique")].contains("Qt6::Gui"));
        QVERIFY2(!m_maison[QStringLiteral("liensLogique")].contains("Widgets"),
            qPrintable(m_maison[QStringLiteral("liensLogique")]));
        verifier([this](const QString &fichier, const QString &vu) {
            return estForme(fichier) || dossierDe(fichier) == Sommet || !estForme(vu);
        });
    }

    void lesFormesNeParlentPasSql()
    {
        static const QRegularExpression sql(
            "\"\\s*(select|insert|update|delete)\\s", QRegularExpression::CaseInsensitiveOption);
        for (const QString &fichier : std::as_const(m_formes))
            QVERIFY2(!contenu(fichier).contains(sql), qPrintable(fichier));
        verifier([this](auto &fichier, auto &vu) { return !estForme(fichier) || vu != "db/Base.h"; });
    }

    /// What writes rows without an act is for acts alone: no room includes it, and none calls it by way of another header.
    void lesFormesNEcriventQueParUnActe()
    {
        static const QStringList nus{"acts/EcrireFiche.h", "acts/EcrireGrilles.h", "db/AccesBase.h",
            "db/Recordset.h", "db/Transaction.h"};
        static const QRegularExpression appel(QStringLiteral(
            "Creer::(CreerAlbum|CreerEntree|CreerAuteur|LierAuteur|AjouterAuteur)\\(|\\bTransaction \\w"));
        const auto estDeLaLogique = [this](const QString &fichier) {
            return rangDe(dossierDe(fichier)) < Etages.size() && !estForme(fichier);
        };
        for (const QString &fichier : std::as_const(m_fichiers)) {
            const QString source = contenu(fichier);
            const bool nu = source.contains("Execute(") && !source.contains("acte.base().Execute(");
            QVERIFY2(estDeLaLogique(fichier) || (!nu && !source.contains(appel)), qPrintable(fichier));
        }
        verifier([&](auto &fichier, auto &vu) { return estDeLaLogique(fichier) || !nus.contains(vu); });
    }

    void seulLeBureauConnaitLaFenetre()
    {
        static const QSet<QString> inities{"app/Bureau.cpp", "browse/Frmmain.cpp"};
        verifier(
            [](auto &fichier, auto &vu) { return vu != "browse/Frmmain.h" || inities.contains(fichier); });
    }

private:
    /// Fails on the first file that includes what it may not.
    void verifier(const std::function<bool(const QString &, const QString &)> &permise) const
    {
        for (const QString &fichier : m_fichiers) {
            for (const QString &vu : inclusions(fichier))
                QVERIFY2(permise(fichier, vu), qPrintable(fichier + " -> " + vu));
        }
    }

    /// Include paths of a source, of this project only.
    QStringList inclusions(const QString &fichier) const
    {
        static const QRegularExpression forme(
            QStringLiteral("^#include \"([^\"]+(?<!\\.moc))\""), QRegularExpression::MultilineOption);
        QStringList chemins;
        for (auto trouve = forme.globalMatch(contenu(fichier)); trouve.hasNext();)
            chemins << trouve.next().captured(1);
        return chemins;
    }

    QString contenu(const QString &fichier) const
    {
        QFile source(m_sources.filePath(fichier));
        return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
    }

    bool estForme(const QString &fichier) const { return m_formes.contains(fichier); }

    QDir m_sources{QStringLiteral(SOURCES)};
    QStringList m_fichiers;
    QSet<QString> m_formes;
    QMap<QString, QString> m_maison;
};

QTEST_GUILESS_MAIN(tst_couches)
#include "tst_couches.moc"
