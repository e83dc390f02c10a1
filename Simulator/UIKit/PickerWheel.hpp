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
        : m_turns(std::move(turns))
    {
    }
    ~PickerWheel() { stop(); }
    PickerWheel(const PickerWheel&) = delete;
    PickerWheel& operator=(const PickerWheel&) = delete;

    long rowCount() const { return m_rowCount; }
    void setRowCount(long count);
    /// In rows: 2.5 is half-way from the third row to the fourth.
    double offset() const { return m_offset; }
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

    Turns m_turns;
    long m_rowCount = 0;
    double m_offset = 0;
    /// Rows a second, from the finger's last movements.
    double m_speed = 0;
    double m_lastDrag = 0;
    double m_unboundOffset = 0;

    bool m_isRunning = false;
    bool m_isChoice = false;
    double m_runBegin = 0;
    double m_runSeconds = 0;
    double m_runFrom = 0;
    double m_runTo = 0;
    TimerId m_timer = 0;
};

}
