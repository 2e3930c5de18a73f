#pragma once

/// What is shipped, brought into the application folder.
namespace Livraison {

/// Fills a new or empty folder from what is shipped and adds what a folder with a collection lacks. A
/// folder that holds files but no collection is left alone: an empty one must never hide a lost one.
/// Throws Error when a copy fails.
void Preparer();

}
