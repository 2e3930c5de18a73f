#pragma once

/// Brings the collection of the application folder up to the last schema step.
namespace MiseANiveau {

/// Runs the steps that the file has not reached, each in a transaction of its own, after a backup. All errors are
/// ignored: a collection that cannot be brought up is told of by the first operation that misses something. A file
/// that is up to date is read once and not written.
void Executer();

}
