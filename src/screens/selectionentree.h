#pragma once

class QLineEdit;

/// Selects the whole content of a field each time that the focus comes to it, by a click too, so that what is
/// typed replaces it instead of joining prefilled zeros. A click in the field that has the focus already
/// places the cursor, and a drag selects a part.
void selectionnerALEntree(QLineEdit &champ);
