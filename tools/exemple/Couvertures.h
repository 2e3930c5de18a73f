#pragma once

#include <QString>

/// Draws a front and a back cover for every album of the application folder's collection into "images":
/// "album-12.jpg" and "album-12-dos.jpg". The drawing depends only on the album's data. Throws Error.
void dessinerCouvertures();
