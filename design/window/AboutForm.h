#pragma once

#include <QDialog>

namespace kaart {

/// "About Me...": a picture, who made the program, and the maker's address.
class AboutForm : public QDialog {
    Q_OBJECT

public:
    explicit AboutForm(QWidget* parent = nullptr);
};

} // namespace kaart
