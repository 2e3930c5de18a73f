#include "core/Error.h"
#include "pictures/Numeriseur.h"

#include <QCoreApplication>
#include <QLibrary>
#include <sane/sane.h>
#include <sane/saneopts.h>

namespace {

constexpr int PointsParPouce = 200;
constexpr int Morceau = 1 << 16;

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Numeriseur)
};

/// The library, loaded when a scanner is first wanted: it brings a dozen others along.
class Sane
{
public:
    Sane()
        : m_bibliotheque(QStringLiteral("sane"), 1)
    {
        m_la = trouver(init, "sane_init") && trouver(exit, "sane_exit")
            && trouver(devices, "sane_get_devices") && trouver(open, "sane_open")
            && trouver(close, "sane_close") && trouver(start, "sane_start") && trouver(read, "sane_read")
            && trouver(cancel, "sane_cancel") && trouver(parameters, "sane_get_parameters")
            && trouver(control, "sane_control_option") && trouver(descriptor, "sane_get_option_descriptor")
            && trouver(status, "sane_strstatus");
        if (m_la)
            m_la = init(nullptr, nullptr) == SANE_STATUS_GOOD;
    }
    ~Sane()
    {
        if (m_la)
            exit();
    }
    Sane(const Sane &) = delete;
    Sane &operator=(const Sane &) = delete;

    bool la() const { return m_la; }
    Error echec(SANE_Status statut) const
    {
        return Error(Tr::tr("Le scanner a refusé l'opération."), {}, QString::fromLocal8Bit(status(statut)));
    }
    void verifier(SANE_Status statut) const
    {
        if (statut != SANE_STATUS_GOOD)
            throw echec(statut);
    }

    decltype(&sane_init) init = nullptr;
    decltype(&sane_exit) exit = nullptr;
    decltype(&sane_get_devices) devices = nullptr;
    decltype(&sane_open) open = nullptr;
    decltype(&sane_close) close = nullptr;
    decltype(&sane_start) start = nullptr;
    decltype(&sane_read) read = nullptr;
    decltype(&sane_cancel) cancel = nullptr;
    decltype(&sane_get_parameters) parameters = nullptr;
    decltype(&sane_control_option) control = nullptr;
    decltype(&sane_get_option_descriptor) descriptor = nullptr;
    decltype(&sane_strstatus) status = nullptr;

private:
    template <class F>
    bool trouver(F &fonction, const char *nom)
    {
        fonction = reinterpret_cast<F>(m_bibliotheque.resolve(nom));
        return fonction != nullptr;
    }

    QLibrary m_bibliotheque;
    bool m_la = false;
};

/// One opened scanner. A scan that was begun ends with it.
class Appareil
{
public:
    Appareil(const Sane &sane, const QString &nom)
        : m_sane(sane)
    {
        m_sane.verifier(m_sane.open(nom.toLocal8Bit().constData(), &m_poignee));
    }
    ~Appareil()
    {
        m_sane.cancel(m_poignee);
        m_sane.close(m_poignee);
    }
    Appareil(const Appareil &) = delete;
    Appareil &operator=(const Appareil &) = delete;

    SANE_Handle poignee() const { return m_poignee; }

    /// Sets an option when the scanner has it; what it does not take stays as it was.
    void regler(const char *nom, const char *texte) const
    {
        const auto [rang, option] = chercher(nom);
        if (!option || option->type != SANE_TYPE_STRING)
            return;
        QByteArray valeur(texte);
        valeur.resize(option->size, '\0');
        m_sane.control(m_poignee, rang, SANE_ACTION_SET_VALUE, valeur.data(), nullptr);
    }
    void regler(const char *nom, int nombre) const
    {
        const auto [rang, option] = chercher(nom);
        if (!option)
            return;
        SANE_Word valeur = option->type == SANE_TYPE_FIXED ? SANE_FIX(nombre) : nombre;
        m_sane.control(m_poignee, rang, SANE_ACTION_SET_VALUE, &valeur, nullptr);
    }

private:
    std::pair<SANE_Int, const SANE_Option_Descriptor *> chercher(const char *nom) const
    {
        for (SANE_Int rang = 1;; ++rang) {
            const SANE_Option_Descriptor *option = m_sane.descriptor(m_poignee, rang);
            if (!option)
                return {0, nullptr};
            if (option->name && qstrcmp(option->name, nom) == 0)
                return {rang, option};
        }
    }

    const Sane &m_sane;
    SANE_Handle m_poignee = nullptr;
};

QImage composer(const SANE_Parameters &p, const QByteArray &octets)
{
    const bool couleur = p.format == SANE_FRAME_RGB;
    const bool connu = (couleur || p.format == SANE_FRAME_GRAY) && p.depth == 8 && p.pixels_per_line > 0
        && p.bytes_per_line >= p.pixels_per_line * (couleur ? 3 : 1);
    const int lignes = connu ? static_cast<int>(octets.size() / p.bytes_per_line) : 0;
    if (lignes == 0)
        throw Error(Tr::tr("Le scanner a rendu une image d'un format inconnu."), {});
    return QImage(reinterpret_cast<const uchar *>(octets.constData()), p.pixels_per_line, lignes,
        p.bytes_per_line, couleur ? QImage::Format_RGB888 : QImage::Format_Grayscale8)
        .convertToFormat(QImage::Format_RGB32);
}

class NumeriseurSane : public Numeriseur
{
public:
    std::vector<Source> sources() override
    {
        const Sane sane;
        std::vector<Source> sources;
        const SANE_Device **liste = nullptr;
        // Scanners of this machine only: asking the network for others takes seconds.
        if (!sane.la() || sane.devices(&liste, SANE_TRUE) != SANE_STATUS_GOOD)
            return sources;
        for (; *liste; ++liste) {
            const QString titre
                = QString::fromLocal8Bit((*liste)->vendor) + u' ' + QString::fromLocal8Bit((*liste)->model);
            sources.push_back({QString::fromLocal8Bit((*liste)->name), titre});
        }
        return sources;
    }

    QImage acquerir(const QString &source, const Avance &avance) override
    {
        const Sane sane;
        if (!sane.la())
            throw Error(Tr::tr("Il n'y a pas de scanner."), {});
        const Appareil appareil(sane, source);
        appareil.regler(SANE_NAME_SCAN_MODE, SANE_VALUE_SCAN_MODE_COLOR);
        appareil.regler(SANE_NAME_BIT_DEPTH, 8);
        appareil.regler(SANE_NAME_SCAN_RESOLUTION, PointsParPouce);
        sane.verifier(sane.start(appareil.poignee()));
        SANE_Parameters p{};
        sane.verifier(sane.parameters(appareil.poignee(), &p));
        QByteArray octets;
        QByteArray morceau(Morceau, Qt::Uninitialized);
        const qint64 total = p.lines > 0 ? qint64(p.lines) * p.bytes_per_line : 0;
        for (;;) {
            SANE_Int lus = 0;
            const SANE_Status statut
                = sane.read(appareil.poignee(), reinterpret_cast<SANE_Byte *>(morceau.data()), Morceau, &lus);
            octets.append(morceau.constData(), lus);
            if (statut == SANE_STATUS_EOF)
                break;
            sane.verifier(statut);
            if (!avance(total > 0 ? static_cast<int>(100 * octets.size() / total) : 0))
                return {};
        }
        return composer(p, octets);
    }
};

}

std::unique_ptr<Numeriseur> Numeriseur::DuSysteme()
{
    return std::make_unique<NumeriseurSane>();
}
