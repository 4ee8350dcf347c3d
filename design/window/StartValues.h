#pragma once

#include <QWidget>

namespace kaart {

/// Gives the lists of the main window their contents and all option controls their start values.
void fillControls(QWidget& window);

/// Sets the option controls back, through the controls, so that their handlers run. Kept: the text
/// line comes back as "Mijn Tekst", with a capital, and not as it starts.
void resetControls(QWidget& window);

} // namespace kaart
