#pragma once

#include <initializer_list>
#include <utility>

class QLabel;
class QWidget;

namespace kaart {

/// Wraps a label's text into lines that start at its top left.
void makeParagraph(QLabel& label);

/// Gives fields the text of the labels beside them as accessible names and makes them the labels'
/// buddies: {field, label} by the names of a window's controls, all of which must be there.
void nameByLabels(const QWidget& window,
                  std::initializer_list<std::pair<const char*, const char*>> fields);

} // namespace kaart
