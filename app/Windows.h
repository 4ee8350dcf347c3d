#pragma once

#include "design/window/WindowTable.h"

namespace kaart {

/// Every window that the main window's menu entries and buttons open. A new window is one row.
WindowTable windowTable();

} // namespace kaart
