#pragma once

#include "platform/geometry/Twips.h"

#include <QStringView>
#include <array>
#include <stdexcept>
#include <string_view>

namespace platform::controls {

// Controls are measured and placed in twips throughout.
using geometry::Extent;
using geometry::IntegerHalf;
using geometry::kTwipsPerPixel;
using geometry::kWindowSize;
using geometry::Rectangle;
using geometry::Twips;
using geometry::twipsPerPixel;

/// One row of a window's table of controls: its name ("Outils(2)" for an element of an array), its place in
/// its parent in twips, and its texts. accessible is what a screen reader says of a control without visible
/// text.
struct ControlRow {
    std::string_view name;
    int left, top, width, height;
    std::u16string_view caption{};
    std::u16string_view toolTip{};
    std::u16string_view accessible{};

    constexpr Rectangle place() const { return {Twips(left), Twips(top), Twips(width), Twips(height)}; }
};

/// The row of that name; a name that is not in the table does not compile.
template <std::size_t N>
consteval const ControlRow &rowNamed(const std::array<ControlRow, N> &table, std::string_view name) {
    for (const ControlRow &row : table) {
        if (row.name == name) {
            return row;
        }
    }
    throw std::logic_error("no such control");
}

} // namespace platform::controls
