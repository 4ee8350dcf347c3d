#pragma once

#include <QStringList>

class QPlainTextEdit;

namespace kaart {

/// The lines of a text box as they are wrapped on the screen, without their line ends; a blank at
/// which a line was wrapped stays at its end. At least one line.
QStringList HaalRegels(const QPlainTextEdit& box);

} // namespace kaart
