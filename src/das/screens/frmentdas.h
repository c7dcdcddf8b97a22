#pragma once

#include "declarations/screens/ecranentetesnumerotees.h"

/// The headers of the annual declarations, and the way from them to the lines and the file.
class frmentdas : public EcranEntetesNumerotees
{
    Q_OBJECT

public:
    explicit frmentdas(Contexte &contexte);
};
