#pragma once

#include <QMessageBox>
#include <QString>

class QWidget;

namespace kaart {

// Boxes with plain text and the desktop's standard buttons in Dutch.

/// A question with Yes and No; true for Yes. Escape and the close box count as No.
bool askYesNo(QWidget* parent, const QString& title, const QString& question);

/// A message with an OK button.
void showMessage(QWidget* parent, const QString& title, const QString& text,
                 QMessageBox::Icon icon = QMessageBox::NoIcon);

/// A message whose text stands in columns: in letters of one width.
void showColumns(QWidget* parent, const QString& title, const QString& text);

} // namespace kaart
