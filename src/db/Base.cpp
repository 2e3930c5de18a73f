#include "db/Base.h"

#include "core/Dossier.h"
#include "db/Connexion.h"
#include "db/Sql.h"
#include "db/Valeur.h"

#include <SQLiteCpp/Statement.h>

Base::Base()
    : Base(Dossier::courant().chemin(QStringLiteral("bd.mdb")), Entete::Nature::Collection)
{
    m_connexion->aSauver = true;
}

Base::Base(const QString &chemin, Entete::Nature nature)
    : m_connexion(Connexion::ouvrir(chemin, nature))
{
}

Recordset Base::OpenRecordset(const QString &sql, const QVariantList &valeurs) const
{
    return Recordset(m_connexion, sql, valeurs);
}

int Base::Execute(const QString &sql, const QVariantList &valeurs) const
{
    int changees = 0;
    m_connexion->ecrire([&] {
        SQLite::Statement instruction(m_connexion->db(), Sql::Normaliser(sql).toStdString());
        for (int i = 0; i < valeurs.size(); ++i)
            Valeur::Lier(instruction, i + 1, valeurs[i]);
        changees = instruction.exec();
    });
    return changees;
}
