// One choice of a few, side by side.
#pragma once

#include "Platform/UIKit/UIFont.hpp"
#include "Platform/UIKit/UISegmentedControl.hpp"
#include "Simulator/UIKit/UIControl.hpp"

#include <map>
#include <vector>

namespace Simulator {

struct UISegmentedControl : UIControl {
    void decorate(Graphics::Layer& layer) const override;
    void describe(nlohmann::json& description) const override;

    void initWithItems(const NS::Array& items);
    CGSize sizeThatFits(CGSize) const;
    CGSize intrinsicContentSize() const { return sizeThatFits({}); }

    unsigned long numberOfSegments() const { return m_segments.size(); }
    void insertSegmentWithTitle(const NS::String& title, unsigned long index, bool animated);
    void insertSegmentWithImage(const UI::Image& image, unsigned long index, bool animated);
    void removeSegment(unsigned long index, bool animated);
    void removeAllSegments();
    NS::String titleForSegment(unsigned long index) const;
    void setTitleForSegment(const NS::String& title, unsigned long index);
    UI::Image imageForSegment(unsigned long index) const;
    void setImageForSegment(const UI::Image& image, unsigned long index);
    void setSelectedSegmentIndex(long index);
    NS::Dictionary titleTextAttributes(unsigned long state) const;
    void setTitleTextAttributes(const NS::Dictionary& attributes, unsigned long state);

    bool beginTracking(const NS::Object& touch, const NS::Object& event);
    bool continueTracking(const NS::Object& touch, const NS::Object& event);
    void endTracking(const NS::Object& touch, const NS::Object& event);
    void cancelTracking(const NS::Object& event);

    long selectedSegmentIndex = UI::SegmentedControl::noSegment;
    UI::Color selectedSegmentTint;
    bool apportionsSegmentWidthsByContent = false;

private:
    /// A title or an image; the other is nil.
    struct Segment {
        NS::String title;
        UI::Image image;
    };
    void insert(Segment segment, unsigned long index);
    std::vector<double> naturalWidths() const;
    Graphics::Rect frameOf(std::size_t index) const;
    long indexUnder(const NS::Object& touch) const;
    Graphics::Layer contentOf(std::size_t index) const;
    UI::Font fontOf(bool isSelected) const;
    bool isTruncated(std::size_t index) const;
    bool hasDividerAfter(std::size_t index) const;

    std::vector<Segment> m_segments;
    std::map<unsigned long, NS::Dictionary> m_attributes;
    long m_pressedIndex = UI::SegmentedControl::noSegment;
};

}
