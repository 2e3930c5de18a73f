#pragma once

class Dossier;
class QWidget;

/// What is done before the first window is filled.
namespace Demarrage {

/// Takes hold of the application folder and prepares it; false when another copy of the program has it, which the
/// user was told.
bool PrendreLeDossier(Dossier &dossier);

/// Looks after a collection that was damaged, brings it up to the last schema step, and takes in a settings file that
/// lies in the folder. What fails is told once the window is there: the start goes on with what there is.
void MettreEnEtat();

/// Offers to take away what hidden leftovers the collection holds; each version of the program looks once.
void ProposerDOterLesRestes(QWidget *parent);

}
