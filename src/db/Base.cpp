#include "db/Base.h"

#include "core/Dossier.h"
#include "db/Connexion.h"
#include "db/Sql.h"

Base::Base()
    : Base(Dossier::courant().collection(), Entete::Nature::Collection)
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
        const auto instruction = m_connexion->preparer(Sql::Normaliser(sql), valeurs);
        changees = instruction->exec();
    });
    if (!Sql::EstUneEcriture(sql))
        m_connexion->oublierInstructions();
    return changees;
}
