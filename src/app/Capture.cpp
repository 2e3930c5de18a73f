#include "app/Capture.h"

#include "acts/Ecrire.h"
#include "app/Bureau.h"
#include "core/Error.h"
#include "core/Reglages.h"

#include <QCoreApplication>
#include <QMetaEnum>
#include <QTextStream>
#include <QTimer>

using Formes::Nom;

namespace {

constexpr int AttenteMs = 700;
/// A page takes its time to be drawn.
constexpr int AttentePageMs = 2500;

}

Capture::Capture(Bureau &bureau, const Options &options)
    : m_bureau(bureau)
    , m_options(options)
{
    QTimer::singleShot(AttenteMs, this, &Capture::commencer);
}

void Capture::commencer()
{
    bool connue = false;
    const int valeur = QMetaEnum::fromType<Nom>().keyToValue(m_options.forme.toLatin1().constData(), &connue);
    if (!connue) {
        QTextStream(stderr) << m_options.forme << QStringLiteral(" ?\n");
        return QCoreApplication::exit(2);
    }
    const auto nom = static_cast<Nom>(valeur);
    // Whatever happens to the entry, the picture ends the program.
    const bool page = nom == Nom::BDNet || nom == Nom::Stats;
    QTimer::singleShot(page ? AttentePageMs : AttenteMs, this, [this, nom] { enregistrer(nom); });
    if (m_options.entree)
        Q_EMIT m_bureau.demandes().entree(
            {General::TriDe(Reglages::courant().entier(Cle::Tris)), *m_options.entree});
    // Behind the entry, which is shown from the event loop.
    QMetaObject::invokeMethod(
        this, [this, nom] { montrer(nom); }, Qt::QueuedConnection);
}

/// A form by itself; those that edit a field on one of the sheet shown.
void Capture::montrer(Nom nom)
{
    const General::Entree courante = m_bureau.courante();
    if (m_options.entree && courante.id != *m_options.entree)
        throw Error(tr("Cette fiche n'existe pas."), QStringLiteral("N %1").arg(*m_options.entree));
    if (nom == Nom::Frmmain)
        return;
    if (nom != Nom::FrmModif && nom != Nom::FrmModif2)
        return Q_EMIT m_bureau.demandes().forme(nom);
    constexpr Champs::Feuille Album = Champs::Feuille::Album;
    if (courante.tri == General::Tri::Albums && courante.id > 0)
        Q_EMIT m_bureau.demandes().edition(Ecrire::EditionDe(
            courante, nom == Nom::FrmModif ? Champs::De(Album, "Scena") : Champs::De(Album, "PrixA")));
}

void Capture::enregistrer(Nom nom)
{
    const bool ecrite = m_bureau.ouvrir(nom)->grab().save(m_options.capture);
    if (!ecrite)
        QTextStream(stderr) << m_options.capture << QStringLiteral(" ?\n");
    QCoreApplication::exit(ecrite ? 0 : 1);
}
