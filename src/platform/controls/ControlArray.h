#pragma once

#include "ControlTable.h"

#include <QWidget>
#include <algorithm>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace platform::controls {

/// Like controls under one name with an index from 0, named "Name(index)". Elements of the table exist from
/// the start, gaps between their indices allowed; further ones are loaded and unloaded while the window
/// lives.
template <class Control>
class ControlArray {
public:
    /// Makes an element for each row of the table named "name(0)", "name(1)", ...
    ControlArray(QWidget *parent, std::span<const ControlRow> table, std::string_view name)
        : m_parent(parent), m_name(name) {
        const std::string stem = m_name + "(";
        for (const ControlRow &row : table) {
            if (row.name.starts_with(stem)) {
                const std::size_t index = std::stoul(std::string(row.name.substr(stem.size())));
                m_elements.resize(std::max(m_elements.size(), index + 1));
                m_elements[index] = std::make_unique<Control>(parent, row);
            }
        }
    }

    /// The last index plus 1.
    int Count() const { return static_cast<int>(m_elements.size()); }

    /// Throws std::out_of_range when there is no such element.
    Control &operator()(int index) { return *m_elements.at(checked(index)); }

    const Control &operator()(int index) const { return *m_elements.at(checked(index)); }

    /// Adds the element of the next index, placed as the row says, hidden as long as nobody shows it.
    Control &Load(const ControlRow &row) {
        const std::string name = m_name + "(" + std::to_string(Count()) + ")";
        ControlRow named = row;
        named.name = name;
        m_elements.push_back(std::make_unique<Control>(m_parent, named));
        return *m_elements.back();
    }

    /// Destroys the last element.
    void UnloadLast() { m_elements.pop_back(); }

    /// Does something to each element.
    template <class Action>
    void ForEach(Action action) {
        for (const std::unique_ptr<Control> &element : m_elements) {
            if (element) {
                action(*element);
            }
        }
    }

private:
    std::size_t checked(int index) const {
        if (index < 0 || index >= Count() || !m_elements[static_cast<std::size_t>(index)]) {
            throw std::out_of_range("L'élément de contrôle « " + m_name + "(" + std::to_string(index) +
                                    ") » n'existe pas.");
        }
        return static_cast<std::size_t>(index);
    }

    QWidget *m_parent;
    std::string m_name;
    // The parent would delete its children too; owning them here makes UnloadLast immediate, and a widget
    // that dies before its parent takes itself out of the parent's list.
    std::vector<std::unique_ptr<Control>> m_elements;
};

} // namespace platform::controls
