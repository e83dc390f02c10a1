// A view whose content is larger than itself.
#pragma once

#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

struct UIScrollView : UIView {
    void addParts() override;
    void setContentInset(UIEdgeInsets inset);
    void setContentOffset(CGPoint offset);

    /// Room around the content, which does not move along with it.
    UIEdgeInsets contentInset{};
    /// What of the content is at the view's own origin.
    CGPoint contentOffset{};
    CGSize contentSize{};

private:
    /// The content goes along with the finger, up and down.
    void followFinger(const UI::GestureRecognizer& finger);

    double m_fingerBefore = 0;
};

}
