#include "controls/Labels.h"

#include "controls/ControlTable.h"

#include <QLabel>

namespace kaart {

void makeParagraph(QLabel& label) {
    label.setWordWrap(true);
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void nameByLabels(const QWidget& window,
                  std::initializer_list<std::pair<const char*, const char*>> fields) {
    for (const auto& [field, label] : fields) {
        auto& named = control<QWidget>(window, field);
        auto& name = control<QLabel>(window, label);
        named.setAccessibleName(name.text());
        // Screen readers take the accessible name of a list of choices for its value.
        name.setBuddy(&named);
    }
}

} // namespace kaart
