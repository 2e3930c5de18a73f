#pragma once

#include "core/ui/Forme.h"

class QBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class VueWeb;

/// The statistics page: computed when the form opens, and anew on demand.
class Stats : public Forme
{
    Q_OBJECT

public:
    Stats();

    /// Computes the page and shows it. Throws Error.
    void charger();

protected:
    void Traduire() override;

private:
    void construirePied(QBoxLayout *page);
    void montrer(const QString &chemin);

    QLabel *m_titre = nullptr;
    VueWeb *m_web = nullptr;
    QLabel *m_notice = nullptr;
    QProgressBar *m_progression = nullptr;
    QPushButton *m_annuler = nullptr;
    QPushButton *m_calculer = nullptr;
    QPushButton *m_mini = nullptr;
    QPushButton *m_quit = nullptr;
};
