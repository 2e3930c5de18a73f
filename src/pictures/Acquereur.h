#pragma once

#include "pictures/Numeriseur.h"

#include <QObject>
#include <QThread>
#include <atomic>

/// Scans beside the window's work: one listing or scan at a time, in a thread of its own.
class Acquereur : public QObject
{
    Q_OBJECT

public:
    explicit Acquereur(std::unique_ptr<Numeriseur> numeriseur, QObject *parent = nullptr);
    /// Ends what is under way and waits for it.
    ~Acquereur() override;

    bool occupe() const { return m_fil != nullptr; }
    void lister();
    void acquerir(const QString &source);
    /// The scan under way ends without a picture, and without a word.
    void annuler() { m_annule = true; }

Q_SIGNALS:
    void listee(const std::vector<Numeriseur::Source> &sources);
    void avance(int pourcent);
    /// Null when it was ended.
    void acquise(const QImage &image);
    void echouee(const QString &raison);

private:
    template <class Travail>
    void lancer(Travail travail);

    std::unique_ptr<Numeriseur> m_numeriseur;
    std::unique_ptr<QThread> m_fil;
    std::atomic<bool> m_annule = false;
};
