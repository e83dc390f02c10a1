// A grid of colours, one of which is under the finger; and a slider whose track shows what it leads to.
#pragma once

#include "Simulator/UIKit/UISlider.hpp"

#include <optional>

namespace Simulator {

struct UIColorGridView : UIControl {
    static constexpr int columns = 12;
    static constexpr int rows = 10;

    void decorate(Graphics::Layer& layer) const override;
    bool beginTracking(const NS::Object& touch, const NS::Object& event);
    bool continueTracking(const NS::Object& touch, const NS::Object& event);

    /// Greys from white to black in the first row; below, the hues from dark to pale.
    static UI::Color colorAt(int row, int column);

    UI::Color selectedColor;

private:
    struct Cell {
        int row;
        int column;
        bool operator==(const Cell&) const = default;
    };
    Cell cellUnder(const NS::Object& touch) const;
    void choose(Cell cell);

    std::optional<Cell> m_selected;
};

struct UIColorSlider : UISlider {
    void decorate(Graphics::Layer& layer) const override;
    std::vector<Graphics::Color> trackColors;
};

}
