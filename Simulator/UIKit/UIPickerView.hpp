// Wheels of rows. The data source is asked how many there are, the delegate only for the views of those in sight.
#pragma once

#include "Platform/UIKit/UIPickerView.hpp"
#include "Simulator/UIKit/PickerWheel.hpp"

#include <memory>
#include <vector>

namespace Simulator {

struct UIPickerView : UIView {
    void decorate(Graphics::Layer& layer) const override;
    void describe(nlohmann::json& description) const override;

    void initWithFrame(CGRect frame);
    CGSize sizeThatFits(CGSize) const;
    CGSize intrinsicContentSize() const { return sizeThatFits({}); }
    void layoutSubviews();
    UI::View hitTest(CGPoint point, const NS::Object& event) const;

    ObjC::Object delegate() const { return ObjC::Object(m_delegateReference); }
    void setDelegate(const ObjC::Object& object);
    ObjC::Object dataSource() const { return ObjC::Object(m_dataSourceReference); }
    void setDataSource(const ObjC::Object& object);
    void reloadAllComponents();
    void reloadComponent(long component);
    long numberOfComponents();
    long numberOfRows(long component);
    CGSize rowSize(long component);
    UI::View viewForRow(long row, long component);
    long selectedRow(long component);
    void selectRow(long row, long component, bool animated);

    /// The user turned the first wheel to the row.
    void choose(long row);

    void touchesBegan(const NS::Object& touches, const NS::Object& event);
    void touchesMoved(const NS::Object& touches, const NS::Object& event);
    void touchesEnded(const NS::Object& touches, const NS::Object& event);
    void touchesCancelled(const NS::Object& touches, const NS::Object& event);

    bool showsSelectionIndicator = true;

private:
    void loadIfNeeded();
    void forget();
    PickerWheel* wheelAt(long component);
    std::unique_ptr<PickerWheel> makeWheel(long component);
    UI::View makeRow(long row, long component) const;
    void placeRows(long component);
    void chosen(long row, long component);
    double heightOfRow(long component) const;
    Graphics::Rect frameOf(long component) const;

    /// Not retained.
    id m_delegateReference = nullptr;
    id m_dataSourceReference = nullptr;
    bool m_isLoaded = false;
    std::vector<std::unique_ptr<PickerWheel>> m_wheels;
    /// The wheel under the finger; −1 for none.
    long m_heldComponent = -1;
    CGPoint m_touchStart;
    bool m_isDragging = false;
};

}
