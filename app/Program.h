#pragma once

class QApplication;

namespace kaart {

/// Gives the application its name, its look and its language. To be called before any window.
void prepareApplication(QApplication& application);

} // namespace kaart
