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
        control<QWidget>(window, field).setAccessibleName(control<QLabel>(window, label).text());
    }
}

} // namespace kaart
