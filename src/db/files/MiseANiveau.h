#pragma once

/// Brings the collection of the application folder up to the last schema step.
namespace MiseANiveau {

/// Runs the steps that the file has not reached, each in a transaction of its own, after a backup. A file that does
/// not open is left to whoever opens it next; one that is up to date is read once and not written. Throws Error when
/// a step that was due could not be made: it is tried again at the next start.
void Executer();

}
