#pragma once

#include "filters/FilterRoutine.h"
#include "filters/SurfacePasses.h"

#include <span>

namespace kaart {

/// A filter on the array path. `op` names it in tests and benchmarks: a row without its oracle
/// there fails the tests.
struct FilterNumber {
    int number;
    const char* op;
    FilterRoutine routine;
};

/// A command on the surface, under its name in tests and benchmarks.
struct SurfaceOp {
    const char* op = nullptr;
    SurfacePass run = nullptr;
};

/// One entry of the menus that change the whole picture, in menu order.
struct FilterRow {
    const char* menu; ///< objectName of the menu that it stands in
    const char* name;
    int index;
    const char* caption;
    int number = 0; ///< filter number, 0 for none
    std::int32_t parameter = 0;
    SurfaceOp pass = {}; ///< what runs on the surface, after the filter

    /// An entry that only opens a menu of its own.
    bool isSubMenu() const { return number == 0 && pass.run == nullptr; }
};

std::span<const FilterRow> filterTable();
/// By filter number, rising.
std::span<const FilterNumber> filterNumbers();

/// The routine of a filter number; nullptr for one that is free.
FilterRoutine filterRoutine(int number);

} // namespace kaart
