#pragma once

#include <QString>

namespace kaart {

/// Gives the window system a turn. The only place where this happens.
void DoEvents();

/// Lets the window system run until so many seconds have gone by.
void Wacht(double seconds);

/// Shows a file or a web page in the program that the desktop has for it. False when there's none.
bool OpenDocument(const QString& pathOrPage);

bool BestandBestaat(const QString& path);

/// Three values, given as text of numbers from 0 to 255, in upper-case hexadecimal, two digits
/// each: "3C3C3C". An empty value becomes "00".
QString HexKleur(const QString& red, const QString& green, const QString& blue);

} // namespace kaart
