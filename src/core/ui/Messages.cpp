#include "core/ui/Messages.h"

#include "core/Error.h"
#include "core/Traduction.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QTimer>

namespace {

Messages::Doublure *&doublure()
{
    static Messages::Doublure *courante = nullptr;
    return courante;
}

int montrer(QWidget *parent, QMessageBox::Icon icone, const QString &texte,
    QMessageBox::StandardButtons boutons, QMessageBox::StandardButton premier = QMessageBox::NoButton)
{
    QMessageBox boite(icone, titre(), texte, boutons, parent);
    boite.setDefaultButton(premier);
    boite.setTextFormat(Qt::PlainText);
    return boite.exec();
}

void dire(QWidget *parent, QMessageBox::Icon icone, const QString &texte)
{
    if (doublure())
        doublure()->textes << texte;
    else
        montrer(parent, icone, texte, QMessageBox::Ok);
}

bool choisir(QWidget *parent, QMessageBox::Icon icone, const QString &texte, QMessageBox::StandardButton oui,
    QMessageBox::StandardButton non, bool prudente = false)
{
    if (doublure()) {
        doublure()->textes << texte;
        return !doublure()->reponses.isEmpty() && doublure()->reponses.dequeue();
    }
    return montrer(parent, icone, texte, oui | non, prudente ? non : oui) == oui;
}

QString prochainFichier()
{
    return doublure()->fichiers.isEmpty() ? QString() : doublure()->fichiers.dequeue();
}

/// The suffixes that filters name, "*.bmp;*.png" gives two.
QStringList suffixesDe(const QString &filtres)
{
    const QStringList parties = filtres.split(u'|');
    QStringList suffixes;
    for (qsizetype i = 1; i < parties.size(); i += 2) {
        for (const QString &motif : parties[i].split(u';'))
            suffixes << motif.section(u'.', -1).trimmed().toLower();
    }
    return suffixes;
}

/// Gives the name the first suffix when it has none; when there is but one, also when it has another, since no filter
/// would list it again. The dialog asked about the name as it was typed.
QString completer(QWidget *parent, const QString &chemin, const QString &filtres)
{
    const QStringList suffixes = suffixesDe(filtres);
    const QString sien = QFileInfo(chemin).suffix().toLower();
    if (chemin.isEmpty() || suffixes.contains(sien) || (suffixes.size() > 1 && !sien.isEmpty()))
        return chemin;
    const QString complet = chemin + u'.' + suffixes.value(0);
    const QString question = QCoreApplication::translate("Impression", "« %1 » existe déjà. Le remplacer ?")
                                 .arg(QFileInfo(complet).fileName());
    return QFileInfo::exists(complet) && !Messages::Demander(parent, question) ? QString() : complet;
}

}

Messages::Doublure::Doublure()
{
    doublure() = this;
}

Messages::Doublure::~Doublure()
{
    doublure() = nullptr;
}

void Messages::Informer(QWidget *parent, const QString &texte)
{
    dire(parent, QMessageBox::Information, texte);
}

void Messages::Avertir(QWidget *parent, const QString &texte)
{
    dire(parent, QMessageBox::Warning, texte);
}

void Messages::Arreter(QWidget *parent, const QString &texte)
{
    dire(parent, QMessageBox::Critical, texte);
}

bool Messages::Demander(QWidget *parent, const QString &question, bool prudente)
{
    return choisir(parent, QMessageBox::Question, question, QMessageBox::Yes, QMessageBox::No, prudente);
}

void Messages::Signaler(const Error &erreur)
{
    // The application's gate makes a box of it, as of any other error.
    QTimer::singleShot(0, QCoreApplication::instance(), [erreur] { throw erreur; });
}

bool Messages::Reessayer(QWidget *parent, const QString &texte)
{
    return choisir(parent, QMessageBox::Warning, texte, QMessageBox::Retry, QMessageBox::Cancel);
}

QString Messages::OuvrirFichier(
    QWidget *parent, const QString &titre, const QString &dossier, const QString &filtres)
{
    if (doublure())
        return prochainFichier();
    return QFileDialog::getOpenFileName(parent, titre, dossier, Filtres(filtres));
}

QString Messages::EnregistrerFichier(
    QWidget *parent, const QString &titre, const QString &dossier, const QString &filtres)
{
    return completer(parent,
        doublure() ? prochainFichier()
                   : QFileDialog::getSaveFileName(parent, titre, dossier, Filtres(filtres)),
        filtres);
}

QString Messages::Filtres(const QString &paires)
{
    const QStringList parties = paires.split(u'|');
    QStringList filtres;
    for (qsizetype i = 0; i + 1 < parties.size(); i += 2) {
        const QString description = parties[i].section(u'(', 0, 0).trimmed();
        const QString motifs = QString(parties[i + 1]).replace(u';', u' ');
        filtres << QStringLiteral("%1 (%2)").arg(description, motifs);
    }
    return filtres.join(QStringLiteral(";;"));
}
