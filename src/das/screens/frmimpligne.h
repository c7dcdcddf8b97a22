#pragma once

#include "screens/fenetreimport.h"

/// Import of an annual declaration from a file of an older form.
class FrmImpLigne : public FenetreImport
{
    Q_OBJECT

public:
    explicit FrmImpLigne(Contexte &contexte);

private:
    void importer() override;
};
