#pragma once

#include <QQueue>
#include <QString>
#include <QStringList>

class Error;
class QWidget;

/// The one door for message boxes and file dialogs; all bear the program's title.
namespace Messages {

void Informer(QWidget *parent, const QString &texte);
void Avertir(QWidget *parent, const QString &texte);
void Arreter(QWidget *parent, const QString &texte);
/// Yes or no, with the question icon. False when the box is closed in another way. `prudente` questions begin on no.
bool Demander(QWidget *parent, const QString &question, bool prudente = false);
/// Tells what broke from the event loop, once whatever is under way is over.
void Signaler(const Error &erreur);
/// Try again or give up.
bool Reessayer(QWidget *parent, const QString &texte);

/// Path chosen for opening or saving; empty when the user gave up. `filtres` is as the language table gives
/// it: description and pattern in turn, separated by "|". A name for saving without a suffix gets the first of theirs,
/// and any name the one suffix where there is but one.
QString OuvrirFichier(QWidget *parent, const QString &titre, const QString &dossier, const QString &filtres);
QString EnregistrerFichier(
    QWidget *parent, const QString &titre, const QString &dossier, const QString &filtres);

/// "description|pattern;pattern|..." as the file dialog takes it.
QString Filtres(const QString &paires);

/// Stands in for the user as long as it lives: answers in turn, and keeps what was shown.
struct Doublure
{
    Doublure();
    ~Doublure();
    Doublure(const Doublure &) = delete;
    Doublure &operator=(const Doublure &) = delete;

    QQueue<bool> reponses; ///< to questions; none left means no
    QQueue<QString> fichiers; ///< to file dialogs; none left means given up
    QStringList textes; ///< of all boxes shown
};

}
