#pragma once

#include "declarations/screens/ecranentetesnumerotees.h"

/// The headers of the nominative declarations, and the way from them to the lines and the file.
class frmDecNom : public EcranEntetesNumerotees
{
    Q_OBJECT

public:
    explicit frmDecNom(Contexte &contexte);
};
