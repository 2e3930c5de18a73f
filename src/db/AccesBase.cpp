#include "db/AccesBase.h"

#include "core/Error.h"
#include "db/Base.h"
#include "db/Transaction.h"
#include "db/schema/Tables.h"

namespace {

/// Every name that goes into a query as text passes here.
const QString &connu(const QString &table, const QString &champ)
{
    Q_ASSERT_X(Schema::Colonnes(table).contains(champ, Qt::CaseInsensitive), "AccesBase",
        qPrintable(table + u'.' + champ));
    return table;
}

Recordset ouvrirLigne(Base &base, const QString &table, const QString &champ, const QVariant &valeur)
{
    return base.edit(connu(table, champ), champ + QStringLiteral(" = ?"), {valeur});
}

bool estAuteurs(const QString &table)
{
    return table.compare(QLatin1String("Auteurs"), Qt::CaseInsensitive) == 0;
}

}

QString AccesBase::NomDuRole(Role role)
{
    switch (role) {
    case Role::Dessin:
        return QStringLiteral("Dessin");
    case Role::Scena:
        return QStringLiteral("Scena");
    case Role::Color:
        return QStringLiteral("Color");
    }
    Q_UNREACHABLE();
}

int AccesBase::NouvelIdentifiant(const QString &table, const QString &champ)
{
    const Base base;
    const auto max = base.read(QStringLiteral("SELECT max(%1) From %2").arg(champ, connu(table, champ)));
    return max.Fields(0).toInt() + 1;
}

QStringList AccesBase::LireNoms(const QString &table)
{
    const Base base;
    const QString nom = Schema::Colonnes(table).at(1);
    QStringList noms;
    for (auto rs = base.read(QStringLiteral("SELECT %1 From %2 order by %1 asc").arg(nom, table));
         !rs.AtEnd(); rs.MoveNext())
        noms << rs.Fields(0).toString();
    return noms;
}

void AccesBase::EcrireImage(
    const QString &table, Rang rang, const QString &champCle, int cle, const QString &valeur, Sorte sorte)
{
    Base base;
    auto rs = ouvrirLigne(base, table, champCle, cle);
    if (rs.RecordCount() == 0)
        return;
    const QString champ = (sorte == Sorte::Image ? QStringLiteral("Photo") : QStringLiteral("dedi"))
        + (rang == Rang::Premiere ? u'1' : u'2');
    rs.Edit();
    rs.SetField(champ, valeur);
    rs.Update();
}

AccesBase::Entree AccesBase::ChercherOuCreer(
    const QString &table, const QString &champCle, int champ, const Entree &entree)
{
    Base base;
    auto rs = ouvrirLigne(base, table, champCle, entree.identifiant);
    if (rs.RecordCount() > 0)
        return {entree.identifiant, rs.Fields(champ).toString()};
    const int nouveau = NouvelIdentifiant(table, champCle);
    rs.AddNew();
    rs.SetField(0, nouveau);
    rs.SetField(champ, entree.valeur);
    rs.Update();
    return {nouveau, entree.valeur};
}

int AccesBase::EnregistrerOuSupprimer(const QString &table, const QString &champCle, int champ,
    const Entree &entree, const QVariant &ancienne, std::optional<Role> role)
{
    Base base;
    auto rs = ouvrirLigne(base, table, champCle, entree.identifiant);
    const bool existe = rs.RecordCount() > 0;
    if (entree.valeur.isEmpty()) {
        if (existe)
            rs.Delete();
        return entree.identifiant;
    }
    int identifiant = entree.identifiant;
    if (existe) {
        rs.Edit();
    } else {
        identifiant = ancienne.isValid() ? ancienne.toInt() : NouvelIdentifiant(table, champCle);
        rs.AddNew();
        rs.SetField(0, identifiant);
    }
    rs.SetField(champ, entree.valeur);
    if (role && estAuteurs(table))
        rs.SetField(NomDuRole(*role), true);
    rs.Update();
    return identifiant;
}

void AccesBase::OterRole(int album, Role role)
{
    try {
        Base base;
        Transaction transaction(base);
        const QString nom = NomDuRole(role);
        for (auto rs = base.edit(
                 QStringLiteral("AuteursAlbums"), QStringLiteral("NAlbum = ? and %1=true").arg(nom), {album});
             !rs.AtEnd(); rs.MoveNext()) {
            rs.Edit();
            rs.SetField(nom, false);
            rs.Update();
            const bool encoreUn = rs.Fields(QStringLiteral("Dessin")).toBool()
                || rs.Fields(QStringLiteral("Scena")).toBool() || rs.Fields(QStringLiteral("Color")).toBool();
            if (!encoreUn)
                rs.Delete();
        }
        transaction.Commit();
    } catch (const Error &) {
        // Nothing depends on it: what could not be taken away is seen on the sheet.
    }
}

void AccesBase::PoserRole(int auteur, Role role)
{
    Base base;
    auto rs = ouvrirLigne(base, QStringLiteral("Auteurs"), QStringLiteral("NAuteur"), auteur);
    if (rs.RecordCount() == 0)
        return;
    rs.Edit();
    rs.SetField(NomDuRole(role), true);
    rs.Update();
}

void AccesBase::SupprimerLignes(const QString &table, const QString &champ, int valeur)
{
    Base base;
    base.Execute(QStringLiteral("DELETE From %1 where %2 = ?").arg(connu(table, champ), champ), {valeur});
}

int AccesBase::CompterLignes(const QString &table, const QString &champ, const QVariant &valeur)
{
    const Base base;
    const QString sql = QStringLiteral("SELECT 1 From %1 where %2 = ?").arg(connu(table, champ), champ);
    return base.read(sql, {valeur}).AtEnd() ? 0 : 1;
}
