// One wheel of a picker: its rows, how far it is turned, and its way after a finger has let it go.
#pragma once

#include "Simulator/Loop/Loop.hpp"
#include "Simulator/UIKit/UIView.hpp"

#include <functional>
#include <map>

namespace Simulator {

class PickerWheel {
public:
    struct Turns {
        /// The wheel stands differently now.
        std::function<void()> turned;
        /// It has come to rest on the row, where a finger sent it.
        std::function<void(long row)> chosen;
    };

    explicit PickerWheel(Turns turns)
        : turns_(std::move(turns))
    {
    }
    ~PickerWheel() { stop(); }
    PickerWheel(const PickerWheel&) = delete;
    PickerWheel& operator=(const PickerWheel&) = delete;

    long rowCount() const { return rowCount_; }
    void setRowCount(long count);
    /// In rows: 2.5 is half-way from the third row to the fourth.
    double offset() const { return offset_; }
    /// Where it stands, or will when it has come to rest.
    long selectedRow() const;

    /// Turns it to a row without a word about it.
    void select(long row, bool animated);
    /// A finger holds it, moves it by so many rows, and lets it go.
    void hold();
    void drag(double rows);
    void release();
    /// A tap on a row that many rows below the middle.
    void tap(long rowsBelow);

    /// The views of the rows in sight, by row.
    std::map<long, UI::View> views;

private:
    void runTo(long row, double seconds, bool isChoice);
    void tick();
    void stop();
    long clamped(double row) const;

    Turns turns_;
    long rowCount_ = 0;
    double offset_ = 0;
    /// Rows a second, from the finger's last movements.
    double speed_ = 0;
    double lastDrag_ = 0;
    double unboundOffset_ = 0;

    bool isRunning_ = false;
    bool isChoice_ = false;
    double runBegin_ = 0;
    double runSeconds_ = 0;
    double runFrom_ = 0;
    double runTo_ = 0;
    TimerId timer_ = 0;
};

}
