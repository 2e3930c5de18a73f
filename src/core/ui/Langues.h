#pragma once

#include <QString>
#include <functional>

class QMenu;

/// Fills a menu with the languages that there are, the current one ticked; each action bears its file's name.
void RemplirLangues(QMenu &menu, const std::function<void(const QString &fichier)> &choisie);
