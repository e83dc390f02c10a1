// The list of notifications and the controller that places it.
#pragma once

#include "Simulator/UIKit/UIScrollView.hpp"
#include "Simulator/UIKit/UIViewController.hpp"

#include <vector>

namespace Simulator {

/// Scrolled, or moved by its insets; what lies beyond the edges shows as on the phone.
struct NCNotificationListView : UIScrollView {
    void layoutSubviews();

    /// Rows from top to bottom, each with its height.
    struct Row {
        UI::View view;
        double height;
    };
    std::vector<Row> rows;
};

struct NCNotificationStructuredListViewController : UIViewController {
    void viewDidLoad();
    void placeParts() override;
    UI::View scrollView() const { return m_list; }
    /// Older notifications show when the cover sheet is pulled down over the home screen.
    void setHistoryRevealed(bool revealed);

private:
    UI::View m_list;
    UI::View m_header;
    UI::View m_hint;
};

struct CSCombinedListViewController : UIViewController {
    void viewDidLoad();
    void viewWillAppear(bool animated);
    void placeParts() override;
    UIEdgeInsets listViewDefaultContentInsets() const { return {}; }

    UI::ViewController structuredList;
};

}
