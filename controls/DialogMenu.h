#pragma once

#include <QString>

#include <functional>

class QAction;
class QDialog;
class QMenuBar;
class QWidget;

namespace kaart {

inline constexpr int menuBarHeight = 360; ///< twips

/// The menu bar of a window without a layout, along its top edge; the window has its width already.
QMenuBar& addMenuBar(QDialog& window);

/// Appends an entry to a menu or straight to a menu bar and gives it a letter. The name becomes its
/// objectName.
QAction& addEntry(QWidget& menu, const char* name, const QString& caption,
                  const std::function<void()>& run);

} // namespace kaart
