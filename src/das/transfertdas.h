#pragma once

struct TransfertLignes;

/// The copy of the lines of one campaign into another one, where all become lines of the principal
/// declaration.
const TransfertLignes &transfertDas();
