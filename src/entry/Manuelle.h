#pragma once

#include "entry/FormeCreation.h"

class Demandes;

/// Creation by hand: empty fields, with the names of the collection to choose from.
class Manuelle : public FormeCreation
{
    Q_OBJECT

public:
    explicit Manuelle(Demandes &demandes);
};
