#pragma once

#include <QString>

namespace kaart {

/// "hh:mm:ss"; from 100 hours on the first group has three digits.
QString gameTime(int seconds);

/// "G", "S" or "M" for the levels 0 to 2; empty for another.
QString levelLetter(int level);

/// A game's cell in the list of scores: the grid, twelve blanks and the letter of the level.
QString gridText(int columns, int rows, int level);

} // namespace kaart
